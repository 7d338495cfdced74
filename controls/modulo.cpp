#include "controls/modulo.h"

namespace schedine {

void modulo::carica() {
  if (caricato_) return;
  controlli_.clear();
  indice_.clear();
  gruppi_opzione_.clear();
  caricato_ = true;
  crea_controlli();
  al_caricamento();
}

void modulo::mostra() {
  carica();
  visibile_ = true;
  all_attivazione();
}

void modulo::scarica() {
  if (!caricato_) return;
  allo_scaricamento();
  visibile_ = false;
  caricato_ = false;
}

controllo& modulo::trova(const std::string& nome, int indice) {
  carica();
  auto it = indice_.find({nome, indice});
  if (it == indice_.end()) {
    throw errore_runtime(codice::elemento_inesistente, nome_ + "." + nome + (indice >= 0 ? "(" + std::to_string(indice) + ")" : ""));
  }
  return *it->second;
}

bool modulo::esiste(const std::string& nome, int indice) const { return indice_.count({nome, indice}) != 0; }

pulsante_opzione& modulo::aggiungi_opzione(const std::string& nome, int indice, controllo* contenitore) {
  auto& gruppo = gruppi_opzione_[contenitore];
  if (!gruppo) gruppo = std::make_unique<std::vector<pulsante_opzione*>>();
  auto nuovo = std::make_unique<pulsante_opzione>(nome, indice, gruppo.get());
  gruppo->push_back(nuovo.get());
  return registra(std::move(nuovo), contenitore);
}

}  // namespace schedine
