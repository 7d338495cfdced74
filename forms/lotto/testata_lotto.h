#pragma once
// How many slips the chosen system prints, as the Lotto slip forms count it
// at load: one slip per column, the count read from the system's head file.

#include <cstdint>
#include <optional>

namespace schedine {

struct stato;

// The head file Trim(sistema_scelto) in the folder of tipo_gioco, read by the
// rule of tipo_sistema:
//   casuale, ridotto        two Longs, the second
//   condizionato            two fields of any form, then a Long
//   autoridotto             one Long
// Every ridotto head is read as the one-file form. "ambo" has no ridotto or
// autoridotto systems, and a crossword head (".sel" in the crossword folder)
// is always one Long whatever tipo_sistema says. Nothing is read for a game
// whose folder the form doesn't know (SuperEnalotto, Win for Life, the
// SuperEnalotto crossword) or for a kind with no rule: the result is empty.
// A file that can't be read throws errore_runtime.
std::optional<int32_t> conta_schede_lotto(const stato& s);

}  // namespace schedine
