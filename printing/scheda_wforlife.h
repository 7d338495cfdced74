#pragma once
// What finishes a Win for Life slip once its numbers are marked: the text
// line, the choice of Option3 and the subscription, read from the slip form.

#include <cstdint>
#include <string>

#include "core/stato.h"

namespace schedine {

// The one-panel slip, from Form_sched_wforlife.
void scheda_wforlife(stato& s, const std::string& nome_scheda, float prezzo_colonna, uint8_t colonne_scheda);
// The five-panel slip, from Form_sched_wforlife5.
void scheda_wforlife5(stato& s, const std::string& nome_scheda, float prezzo_colonna, uint8_t colonne_scheda);

}  // namespace schedine
