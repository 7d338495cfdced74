// The column reader on any bytes as a column file, walked to its end as
// the print readers walk it: with or without the one-file ridotto head, in
// columns of any size a sorte has, into a plain span or into a
// bounds-checked table that may be too short for the column.

#include <array>
#include <cstdint>
#include <iterator>
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

// The input's last byte picks the way the file is walked (column size, head,
// kind of column), so that each run reads the file once and the fuzzer
// explores the ways as it explores the bytes; the rest of the input is the file.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t dimensione) {
  if (dimensione == 0) return 0;
  const unsigned scelta = dati[dimensione - 1];
  const std::string percorso = fuzz::scrivi_file("colonne.txt", dati, dimensione - 1);
  const int n = misure[scelta % std::size(misure)];
  const bool con_testata = (scelta / std::size(misure)) % 2 == 1;
  const bool in_tabella = (scelta / std::size(misure) / 2) % 2 == 1;
  fuzz::esegui([&] { leggi_tutto(percorso, n, con_testata, in_tabella); });
  return 0;
}
