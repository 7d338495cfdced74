#pragma once
// Head files: how many columns a saved system has. Each kind of system keeps
// the count at its own place among the first fields of its head file; what
// stands behind the fields read is never looked at. Every failure (missing
// file, too few fields, a field that is no number) is thrown as
// errore_runtime: the slip forms pass over it and keep their last count.

#include <cstdint>
#include <optional>
#include <string>

#include "systems/nomi_sistema.h"

namespace schedine {

struct stato;

// The column count of a head file of the given kind:
//   casuale, ridotto one-file   Long, Long      -> the second
//   condizionato                any, any, Long  -> the third
//   ridotto two-file, autoridotto  Long         -> the first
int32_t colonne_da_testata(const std::string& percorso, genere g);

// The first field of a file as a Long: the count in a Lotto crossword ".sel"
// and in a SuperEnalotto crossword ".sen" head.
int32_t primo_long(const std::string& percorso);

// The lines of a text file, read to its end; a last line without a line end
// counts, an empty file has none. A SuperEnalotto crossword's true count is
// the line count of its ".col" file.
int32_t conta_righe(const std::string& percorso);

// The slip forms that count a system. The Lotto form reads every ridotto head
// as the one-file form and has no crossword-by-kind rule; the panel forms
// (SuperEnalotto, Win for Life) tell the two ridotto forms apart by the end of
// sistema_scelto and count a "cruciverba" system by the lines of its columns.
enum class modulo_scheda { lotto, pannelli };

// Opens the chosen system for counting: the head file Trim(sistema_scelto) in
// the folder of tipo_gioco, read by the rule of tipo_sistema. Nothing when
// the form has no rule for that pair (no file is opened then).
std::optional<int32_t> conta_colonne_sistema(const stato& s, modulo_scheda modulo);

}  // namespace schedine
