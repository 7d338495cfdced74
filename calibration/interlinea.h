#pragma once
// Interline correction: stretches a slip's grid in place. Every box moves by
// interlinea_x times its column weight and interlinea_y times its row weight,
// the current correction being added in full on every call (called twice, a
// box moves twice). There is none for the two SuperEnalotto slips.

#include "core/stato.h"

namespace schedine {

// The Lotto set, except tar_numeri_10e.
void ricalcola_interlinea_lotto(stato& s);
// tab_coord as the 1-panel Win for Life slip.
void ricalcola_interlinea_wforlife(stato& s);
// tab_coord as the 5-panel Win for Life slip.
void ricalcola_interlinea_wforlife5(stato& s);

}  // namespace schedine
