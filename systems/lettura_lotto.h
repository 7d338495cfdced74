#pragma once
// The Lotto readers. A Lotto slip carries one column, so a line of the column
// file is a slip and dalla_scheda, alla_scheda are line numbers from 1. A
// reader walks the file line by line: lines before the range are read and
// dropped, each line in it is marked on the number grid of tar_numeri and
// finished by scheda_lotto, and the walk stops at line alla_scheda (so 0
// prints to the end) or at the end of the file.
//
// The readers are one family, told apart by a table: the sorte and the kind
// of system pick the member, the naming scheme of saved systems gives its
// file, its column size and the cut that leaves the base name, and each
// member keeps its own way of meeting a failure.

#include <string>
#include <string_view>

#include "systems/lettura_comune.h"

namespace schedine {

struct stato;

// A member of the family.
struct lettore_lotto {
  std::string_view tipo_gioco;    // the sorte, or "terno_c", "quaterna_c", "cinquina_c" for crosswords
  std::string_view tipo_sistema;  // the kind; empty for the crossword readers, which serve any kind
  su_errore errore;
};

// What a member reads.
struct file_lotto {
  std::string finale;  // what follows the base name: "caa.txt", "ridb.txt", "lot", ...
  int numeri;          // numbers in a column; 0 when the first line of the file tells (sestine-decine)
  int taglio;          // characters cut from the end of sistema_scelto to leave the base name
  bool testata;        // the file opens with three head fields, dropped
};

// The member for the driver's sorte and kind; nullptr where there is none
// (ambo ridotto, sestine-decine but condizionato, 10elotto, ...).
const lettore_lotto* cerca_lettore_lotto(std::string_view tipo_gioco, std::string_view tipo_sistema);

// The file of a member, from the naming scheme.
file_lotto file_di(const lettore_lotto& lettore);

// Runs a member on the open job: cartella_sistema, sistema_scelto and the
// slip range come from the state. A member that stops the run lets its
// run-time error through.
void leggi_colonne_lotto(stato& s, const lettore_lotto& lettore);

// Numbers in a column of a sestine-decine file whose columns this reader can
// print: from 6 to 10. A file whose first line holds any other count prints
// slips with no number read: the column stays all zero, each line of the file
// makes one slip, and the end of the file ends the run as in every reader.
inline constexpr int sestine_minimo = 6;
inline constexpr int sestine_massimo = 10;

}  // namespace schedine
