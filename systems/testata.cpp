#include "systems/testata.h"

#include "core/errore_runtime.h"
#include "core/file_record.h"

namespace schedine {

namespace {

// Where the count stands in a head: the fields before it, read as Long (so
// they must be numbers) or taken in any form, then the count as a Long.
struct lettura_testata {
  genere tipo;
  int long_prima;
  int qualsiasi_prima;
};

constexpr lettura_testata letture[] = {
    {genere::casuale, 1, 0},
    {genere::condizionato, 0, 2},
    {genere::autoridotto, 0, 0},
    {genere::ridotto_un_file, 1, 0},
    {genere::ridotto_due_file, 0, 0},
};

const lettura_testata& lettura_di(genere g) {
  for (const auto& lettura : letture) {
    if (lettura.tipo == g) return lettura;
  }
  throw errore_runtime(codice::chiamata_non_valida);
}

}  // namespace

int32_t colonne_da_testata(const std::string& percorso, genere g) {
  const lettura_testata& lettura = lettura_di(g);
  lettore_record file(percorso);
  for (int i = 0; i < lettura.long_prima; ++i) file.leggi_long();
  for (int i = 0; i < lettura.qualsiasi_prima; ++i) file.salta_campo();
  return file.leggi_long();
}

int32_t primo_long(const std::string& percorso) {
  lettore_record file(percorso);
  return file.leggi_long();
}

int32_t conta_righe(const std::string& percorso) {
  lettore_record file(percorso);
  int32_t righe = 0;
  while (!file.fine_file()) {
    file.salta_riga();
    ++righe;
  }
  return righe;
}

}  // namespace schedine
