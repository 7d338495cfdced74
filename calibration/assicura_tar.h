#pragma once
// A missing calibration file is a normal first start: the factory values are
// written first, then the file is loaded like any other. Callers that are
// about to use a slip's calibration call the routine of that slip.

#include "core/stato.h"

namespace schedine {

void assicura_tar_lotto(stato& s);
void assicura_tar_enalotto(stato& s);
void assicura_tar_enalotto2(stato& s);
void assicura_tar_wforlife(stato& s);
void assicura_tar_wforlife5(stato& s);

}  // namespace schedine
