#pragma once
// Typing a number into a list of prices jumps to the first price that begins
// with it: "12" finds "€ 12,00", "12,5" finds "€ 12,50". A list of a few
// thousand prices can't be scrolled through by hand. Letters are left to the
// list's own search.

#include <QComboBox>
#include <QString>
#include <functional>

namespace schedine {

// The entry whose number begins with the typed text, or -1. Point and comma
// typed both stand for the decimal comma; thousands points of the entries
// are not typed.
int voce_con_numero(const QComboBox& combo, const QString& digitato);

// Wires the search on the combo, closed or open. A jump on the closed combo
// chooses the entry, as the arrow keys do; in the open list it only moves
// there, and Enter chooses.
void attiva_ricerca_digitata(QComboBox& combo, std::function<void(int)> scegli);

}  // namespace schedine
