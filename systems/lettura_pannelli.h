#pragma once
// The readers of the slips that carry more than one column: SuperEnalotto
// (five and two panels), 10eLotto, Win for Life (one and five panels). A line
// of the column file is a column and a slip takes several, one to a panel, so
// here dalla_scheda and alla_scheda count slips. The readers are families of
// one walk, told apart by the table of the drivers (stampa_pannelli.cpp).
//
// A slip in the range is marked panel by panel and finished by the family's
// renderer. A slip before the range has its columns read and dropped, with
// no test for the end of the file: a file that ends inside a skipped slip
// fails. A file that ends inside a printed slip sends that slip out with the
// columns it got and closes the job there. A slip with panels left empty
// happens on purpose in the five-panel SuperEnalotto family, where a play
// can't leave one column alone on its slip: when exactly two columns of the
// system are left and the slip has reached its last panel, that panel stays
// empty and the last two columns go together on the next slip.

#include <cstdint>
#include <string>
#include <string_view>

namespace schedine {

struct stato;

// The renderer that finishes a slip once its panels are marked.
using renderer_pannelli = void (*)(stato& s, const std::string& nome_scheda, float prezzo_colonna,
                                   uint8_t colonne_scheda);

// Where the numbers of a column are marked.
enum class griglia_numeri {
  pannello_corrente,  // tab_coord, group of the panel being filled (1, 2, ...)
  primo_pannello,     // tab_coord, group 1
  tar_numeri_10e,     // the 10eLotto number grid
};

// How many columns a slip takes, in the loops of printing and of skipping.
enum class colonne_scheda_famiglia { colonne_per_scheda, una, cinque };

// What the renderer is told as the slip's column count.
enum class colonne_al_renderer {
  segnate,             // the panels filled
  colonne_per_scheda,  // the slip form's setting, whatever was filled
  una,
};

struct famiglia_pannelli {
  std::string_view nome;        // the family, as the system calls it
  std::string_view modulo;      // the slip form, whose ProgressBar1 follows the run
  std::string_view tipo_gioco;  // the game whose names and folder the systems follow
  int numeri;                   // numbers in a column
  griglia_numeri griglia;
  colonne_scheda_famiglia colonne;
  bool regola_due_colonne;
  colonne_al_renderer consegna;
  bool extra_10elotto;  // segna_10elotto_extra before the renderer
  renderer_pannelli renderer;
};

// The column file of a run.
struct file_pannelli {
  std::string finale;  // what follows the base name
  int taglio;          // characters cut from the end of sistema_scelto to leave the base name
  bool testata;        // three head fields open the file, dropped
};

// Walks the column file in cartella_sistema from the opening of the job to
// its end. Any failure is a run-time error out of the reader; the job then
// stays open.
void leggi_colonne_pannelli(stato& s, const famiglia_pannelli& famiglia, const file_pannelli& file,
                            float prezzo_colonna);

}  // namespace schedine
