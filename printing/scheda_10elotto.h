#pragma once
// What finishes a 10eLotto slip once its numbers are marked: the box of the
// number of draws, then the text line, the kind of draw and the amounts.

#include <cstdint>
#include <string>

#include "core/stato.h"

namespace schedine {

void segna_10elotto_extra(stato& s);
void scheda_10elotto(stato& s, const std::string& nome_scheda, float prezzo_colonna, uint8_t colonne_scheda);

}  // namespace schedine
