#pragma once
// The print drivers of the slips with more than one column: SuperEnalotto
// (five and two panels), 10eLotto, Win for Life (one and five panels). Each
// takes a copy of tipo_sistema and the price of a column, picks the reader
// by the kind of system and runs under a handler that goes on with its next
// statement. Called by the print buttons of the slip forms.

#include <string>

#include "core/stato.h"

namespace schedine {

void stampa_enalotto(stato& s, const std::string& tipo_sistema, float prezzo_colonna);
void stampa_enalotto2(stato& s, const std::string& tipo_sistema, float prezzo_colonna);
void stampa_10elotto(stato& s, const std::string& tipo_sistema, float prezzo_colonna);
void stampa_wforlife(stato& s, const std::string& tipo_sistema, float prezzo_colonna);
void stampa_wforlife5(stato& s, const std::string& tipo_sistema, float prezzo_colonna);

}  // namespace schedine
