#pragma once
// Everything on a Lotto slip but its numbers: wheels, stakes, the other boxes
// of the slip form, and the slip's line of text.

#include <string>

#include "core/stato.h"

namespace schedine {

// Called once per slip, with the job open on the slip's page and the numbers
// already marked. Every statement runs with faults passed over.
void scheda_lotto(stato& s, const std::string& nome_scheda);

}  // namespace schedine
