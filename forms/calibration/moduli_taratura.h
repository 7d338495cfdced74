#pragma once
// The five calibration forms, by their design names.

#include "controls/insieme_moduli.h"

namespace schedine {

// Registers tar_lotto, tar_enalotto, tar_enalotto2, tar_wforlife and tar_wforlife5.
void registra_moduli_taratura(insieme_moduli& moduli);

}  // namespace schedine
