#include "systems/lettore_colonne.h"

#include <algorithm>
#include <limits>

namespace schedine {

namespace {
constexpr int campi_testata = 3;
}

void lettore_colonne::salta_testata() {
  for (int i = 0; i < campi_testata; ++i) file_.salta_campo();
}

void lettore_colonne::leggi_colonna(std::span<uint8_t> colonna) {
  for (uint8_t& numero : colonna) numero = file_.leggi_byte();
}

int numeri_prima_riga(const std::string& percorso) {
  lettore_record file(percorso);
  const uint64_t virgole = file.salta_riga(',');
  constexpr uint64_t massimo = std::numeric_limits<int>::max() - 1;
  return 1 + static_cast<int>(std::min(virgole, massimo));
}

}  // namespace schedine
