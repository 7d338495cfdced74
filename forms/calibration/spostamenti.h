#pragma once
// Shifts of whole calibrations by one step, in place. No shift is clamped:
// a table may be moved as far as the user clicks.

#include "core/stato.h"

namespace schedine {

// Step of the Lotto slip, on both axes, in mm.
inline constexpr float passo_lotto = 0.4375f;
// Steps of the four panel slips, in mm.
inline constexpr float passo_pannelli_x = 0.3125f;
inline constexpr float passo_pannelli_y = 0.1875f;

// Every box of the Lotto set on one axis, tar_nazionale excepted (it has its
// own arrows): the numbers of both grids (row 0 stays), and every row of the
// stake, wheel and option tables.
void sposta_lotto(stato& s, int asse, float passo);

// Rows 1 to ultima_riga of groups primo to ultimo of tab_coord on one axis.
void sposta_gruppi(stato& s, int primo, int ultimo, int ultima_riga, int asse, float passo);

}  // namespace schedine
