#pragma once
// Reading a scenario: UTF-8 text, one action per line; blank lines and lines
// starting with '#' are skipped; words are separated by blanks, and a text
// argument stands in double quotes with "" for a quote inside it.

#include <string>
#include <string_view>
#include <vector>

#include "tools/scenario/azione.h"

namespace schedine::scenario {

// The actions of a scenario in order, each with its line number (from 1).
// A line that cannot be understood throws errore_scenario naming it. Form
// and variable names are not checked here: that needs the program.
std::vector<azione> analizza_scenario(std::string_view testo);

// The words of one line: a quoted word loses its quotes and its doubled
// quotes; blanks inside parentheses stay in the word ("tab_coord(1, 90, 1)").
struct parola {
  std::string testo;
  bool tra_virgolette = false;
};
std::vector<parola> dividi_riga(std::string_view riga, int numero_riga);

}  // namespace schedine::scenario
