#include "printing/scheda_controlli.h"

#include "controls/insieme_moduli.h"
#include "core/errore_runtime.h"

namespace schedine {

modulo& modulo_di_stampa(stato& s, const std::string& nome_modulo) {
  if (s.moduli == nullptr) throw errore_runtime(codice::oggetto_non_impostato, nome_modulo);
  return (*s.moduli)(nome_modulo);
}

int valore_casella(stato& s, const std::string& nome_modulo, const std::string& nome, int indice) {
  return modulo_di_stampa(s, nome_modulo).c<casella_controllo>(nome, indice).valore();
}

bool opzione_scelta(stato& s, const std::string& nome_modulo, const std::string& nome, int indice) {
  return modulo_di_stampa(s, nome_modulo).c<pulsante_opzione>(nome, indice).valore();
}

}  // namespace schedine
