#pragma once
// The slip's one line of plain text, the same on every slip: the name of the
// play, the slip's running number within the saved system and the amount.
// It stands in the margin above the slip's own print, in the only font of
// the slips: "arial", 8 points, bold left as it stands.

#include <string>

#include "core/stato.h"

namespace schedine {

inline constexpr const char* font_scheda = "arial";
inline constexpr float punti_scheda = 8.0f;

// "NAME - Sched. n.N - € AMOUNT", with N = page of the job - 1 + dalla_scheda,
// so that a partial range carries the slips' own numbers, and the amount in
// the pattern "###,#0.00" with the separators of the user's locale.
std::string riga_scheda(stato& s, const std::string& nome_scheda, double importo);

// The steps before the text: font name, position (x, y), font size.
void apri_riga_scheda(stato& s, float x, float y);

// apri_riga_scheda, then the line.
void stampa_riga_scheda(stato& s, const std::string& nome_scheda, double importo, float x, float y);

}  // namespace schedine
