#pragma once
// What finishes a SuperEnalotto slip once its panels are marked: the text
// line, the Superstar boxes and numbers, the subscription box.

#include <cstdint>
#include <string>

#include "core/stato.h"

namespace schedine {

// The five-panel slip. Reads the Superstar grid and Combo3 of Form_sched_enalotto.
void scheda_enalotto(stato& s, const std::string& nome_scheda, float prezzo_colonna, uint8_t colonne_scheda);
// The two-panel slip.
void scheda_enalotto2(stato& s, const std::string& nome_scheda, float prezzo_colonna, uint8_t colonne_scheda);

}  // namespace schedine
