#pragma once
// How many columns the chosen system has, as the SuperEnalotto and Win for
// Life slip forms count it each time they reset their range.

#include <cstdint>
#include <optional>
#include <string_view>

namespace schedine {

struct stato;

// The head file Trim(sistema_scelto) in the folder of the form's game
// ("superenalotto" or "wforlife", whatever tipo_gioco says), read by the rule
// of tipo_sistema; a ridotto head is told apart by the end of sistema_scelto.
//
// A crossword ("cruciverba") is counted in the crossword folder: the head
// (sistema_scelto ending in "sen", or "s10" on the Win for Life forms) is
// read and its number dropped, then the lines of the column file (ending in
// "col") are the count. sistema_scelto is rewritten on the way and keeps the
// "col" ending.
//
// Nothing for a kind with no rule. A file that can't be read throws
// errore_runtime, and the form keeps its previous count.
std::optional<int32_t> conta_colonne_pannelli(stato& s, std::string_view gioco);

}  // namespace schedine
