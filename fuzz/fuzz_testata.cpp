// Every head reader on any bytes as a head file: the column count of each
// kind of head, the first Long of a crossword head, the line count of a
// crossword's columns and the numbers of a sestine-decine column.

#include <cstdint>
#include <string>

#include "fuzz/comune.h"
#include "systems/lettore_colonne.h"
#include "systems/testata.h"

using namespace schedine;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t dimensione) {
  const std::string percorso = fuzz::scrivi_file("testa.txt", dati, dimensione);
  for (genere g : {genere::casuale, genere::condizionato, genere::autoridotto, genere::ridotto_un_file,
                   genere::ridotto_due_file}) {
    fuzz::esegui([&] { colonne_da_testata(percorso, g); });
  }
  fuzz::esegui([&] { primo_long(percorso); });
  fuzz::esegui([&] {
    int32_t righe = conta_righe(percorso);
    fuzz::richiedi(righe >= 0 && static_cast<size_t>(righe) <= dimensione, "a file has no more lines than bytes");
  });
  fuzz::esegui([&] {
    int numeri = numeri_prima_riga(percorso);
    fuzz::richiedi(numeri >= 1 && static_cast<size_t>(numeri) <= dimensione + 1, "a first line has fields for its commas");
  });
  return 0;
}
