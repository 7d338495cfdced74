#pragma once
// The Lotto print driver: opens the job, picks folder and reader by game and
// kind of system, and closes the job. Called by the Lotto slip form's print
// button after it has set the slip range and reloaded the calibration.

#include <string>

#include "core/stato.h"

namespace schedine {

// tipo: a copy of tipo_gioco. A reader that stops the run lets its run-time
// error through, leaving the job open; the caller passes over it.
void stampa_lotto(stato& s, const std::string& tipo);

}  // namespace schedine
