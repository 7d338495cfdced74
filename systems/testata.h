#pragma once
// Head files: how many columns a saved system has. Each kind of system keeps
// the count at its own place among the first fields of its head file; what
// stands behind the fields read is never looked at. Every failure (missing
// file, too few fields, a field that is no number) is thrown as
// errore_runtime: the slip forms pass over it and keep their last count.

#include <cstdint>
#include <string>

#include "systems/nomi_sistema.h"

namespace schedine {

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

}  // namespace schedine
