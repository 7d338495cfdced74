#pragma once
// Sample saved systems for a demo program folder: a system of every game and
// every kind that the catalogue lists, written as the host suite writes them
// (head file, column file, list file, in the delimited record form), with
// plausible numbers drawn from a fixed seed, so every run writes the same.

#include <optional>
#include <string>
#include <vector>

#include "systems/nomi_sistema.h"

namespace schedine::demo {

enum class sorta_cruciverba { nessuna, enalotto, lotto };

struct sistema_demo {
  std::string tipo_gioco;          // the folder ("cruciverba" for both crossword kinds)
  std::optional<genere> tipo;      // the kind; none for a crossword
  sorta_cruciverba cruciverba = sorta_cruciverba::nessuna;
  std::string nome;                // base name
  int colonne = 0;                 // columns in the system
  int numeri = 0;                  // numbers in a column
  int massimo = 90;                // highest number a column may hold
  std::string testata;             // head file, relative to the program folder
  std::string file_colonne;        // column file, relative to the program folder
  bool testata_in_colonne = false; // the column file opens with three head fields
};

// The systems the demo holds, without writing anything.
std::vector<sistema_demo> sistemi_demo();

// Writes the systems into the program folder (made if missing), removes a
// hand-over file left there, so the program opens on its own list, and
// copies the skin files *.skn of cartella_skin into its "skin" folder.
// Returns the systems written.
std::vector<sistema_demo> genera_demo(const std::string& cartella_programma, const std::string& cartella_skin);

}  // namespace schedine::demo
