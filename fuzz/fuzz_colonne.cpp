// The column reader on any bytes as a column file, walked to its end as
// the print readers walk it: with and without the one-file ridotto head, in
// columns of every size a sorte has, into a plain span and into a
// bounds-checked table that may be too short for the column.

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "fuzz/comune.h"
#include "systems/lettore_colonne.h"

using namespace schedine;

namespace {

constexpr int misure[] = {2, 3, 4, 5, 6, 7, 10};

void leggi_tutto(const std::string& percorso, int n, bool con_testata, bool in_tabella) {
  lettore_colonne file(percorso);
  if (con_testata) file.salta_testata();
  std::array<uint8_t, 10> colonna{};
  // A table of 7 entries, 0 to 6: a column of 10 meets its bound.
  vettore<uint8_t, 7> tabella;
  while (!file.fine_file()) {
    if (in_tabella) {
      file.leggi_colonna(tabella, n);
    } else {
      file.leggi_colonna(std::span<uint8_t>(colonna.data(), static_cast<size_t>(n)));
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t dimensione) {
  const std::string percorso = fuzz::scrivi_file("colonne.txt", dati, dimensione);
  for (int n : misure) {
    for (bool con_testata : {false, true}) {
      for (bool in_tabella : {false, true}) fuzz::esegui([&] { leggi_tutto(percorso, n, con_testata, in_tabella); });
    }
  }
  return 0;
}
