#include "app/viste/registro_viste.h"

#include <map>

#include "app/binder/finestra_modulo.h"
#include "controls/modulo.h"

namespace schedine {

namespace {

std::map<std::string, costruttore_vista>& viste() {
  static std::map<std::string, costruttore_vista> registro;
  return registro;
}

}  // namespace

bool registra_vista(const std::string& nome_modulo, costruttore_vista costruttore) {
  viste()[nome_modulo] = costruttore;
  return true;
}

costruttore_vista vista_di(const std::string& nome_modulo) {
  auto it = viste().find(nome_modulo);
  return it == viste().end() ? nullptr : it->second;
}

std::unique_ptr<finestra_modulo> crea_finestra(modulo& m) {
  auto finestra = std::make_unique<finestra_modulo>(m.nome());
  costruttore_vista costruttore = vista_di(m.nome());
  (costruttore != nullptr ? costruttore : &costruisci_vista_in_attesa)(*finestra, m);
  return finestra;
}

}  // namespace schedine
