// One calibration load on any bytes as its file. Built once per file:
// CARICA is the load, NOME the file's name in the program folder. The
// tolerant loads must take anything; the strict ones may refuse a file only
// with a run-time error.

#include <cstdint>
#include <memory>

#include "calibration/file_tar.h"
#include "core/stato.h"
#include "fuzz/comune.h"

using namespace schedine;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t dimensione) {
  fuzz::scrivi_file(NOME, dati, dimensione);
  auto s = std::make_unique<stato>();
  s->cartella_programma = fuzz::cartella();
  fuzz::esegui([&] { CARICA(*s); });
  return 0;
}
