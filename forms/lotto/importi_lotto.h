#pragma once
// The amounts of the stake columns of the two Lotto slip forms. A stake box's
// array index is its column, and the column's amount is what a tick there
// stakes. Columns without an amount hold 0 and are never shown.

#include <array>
#include <cstdint>

#include "core/tabelle.h"
#include "core/valuta.h"

namespace schedine {

inline constexpr int colonne_puntata = 21;  // columns 0 to 20 have room on the grid

using tabella_importi = std::array<valuta, colonne_puntata>;

// Amounts in ten-thousandths of a euro, column by column.
constexpr tabella_importi importi_da(std::array<int64_t, colonne_puntata> decimillesimi) {
  tabella_importi tabella{};
  for (size_t c = 0; c < tabella.size(); ++c) tabella[c] = valuta::da_decimillesimi(decimillesimi[c]);
  return tabella;
}

// Form_sched_lotto_ambetto: thirteen amounts, from 200 down to 0.05.
inline constexpr tabella_importi importi_colonne_ambetto = importi_da({
    2000000,
    1000000,
    500000,
    200000,
    100000,
    50000,
    30000,
    20000,
    10000,
    5000,
    2000,
    1000,
    500,
});

// Form_sched_10elotto: eighteen amounts, from 200 down to 0.05.
inline constexpr tabella_importi importi_colonne_10elotto = importi_da({
    2000000,
    1000000,
    500000,
    400000,
    300000,
    200000,
    100000,
    50000,
    40000,
    30000,
    20000,
    10000,
    5000,
    4000,
    3000,
    2000,
    1000,
    500,
});

inline void riempi_importi(vettore<valuta, colonne_puntata>& importi, const tabella_importi& tabella) {
  for (int c = 0; c < colonne_puntata; ++c) importi(c) = tabella[static_cast<size_t>(c)];
}

}  // namespace schedine
