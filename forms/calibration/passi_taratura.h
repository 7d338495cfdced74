#pragma once
// The two small steps every calibration form is made of: a coordinate moved
// by a step in Single, and a click counter whose only store is its caption.

#include "controls/controlli.h"

namespace schedine {

// valore + passo in Single, as the tables are kept. A result beyond the range
// of a Single is the run-time error "Overflow", which no calibration form catches.
void aggiungi_passo(float& valore, float passo);

// A counter label one click further: its caption read as a number (the
// leading-number rule), plus segno, written back as a whole number.
void conta(etichetta& contatore, int segno);

// A counter label back at its start.
inline void azzera(etichetta& contatore) { contatore.caption = "0"; }

}  // namespace schedine
