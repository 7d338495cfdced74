#pragma once
// Factory values of the five slips: where each box lies on an official slip
// fed into a well-behaved printer. Each routine fills its tables, sets
// carattere_stampa to 1 and saves the slip's file, so that what is in memory
// and on disk agree from the first start on. Every value is computed in
// Single, step by step, so that it matches the slip's reference values bit for bit.

#include "core/stato.h"

namespace schedine {

// The Lotto set: clears the interline correction, fills the boxes of the
// slip (rows that the slip has no box for keep what they hold), sets
// riserva_tarlo to 3, saves tarlo2 and loads it back. Faults are passed over.
void default_tar_lotto(stato& s);

// SuperEnalotto, 5 panels: the only factory routine that first clears the
// whole of tab_coord. Saves taren.
void default_tar_enalotto(stato& s);

// The other three write their rows over tab_coord as it stands: rows that are
// not theirs keep the values of whatever slip was loaded, and are saved too.
void default_tar_enalotto2(stato& s);
void default_tar_wforlife(stato& s);
void default_tar_wforlife5(stato& s);

}  // namespace schedine
