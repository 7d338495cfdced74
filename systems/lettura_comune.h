#pragma once
// What every reader of a column file does in the same way, whatever the game:
// how it meets a failing statement, how it opens its column file, and how it
// ends a printed slip. The Lotto readers and the panel readers are built on it.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/errore_runtime.h"
#include "core/tabelle.h"
#include "systems/lettore_colonne.h"

namespace schedine {

struct stato;

// How a reader meets a statement that fails.
enum class su_errore {
  // The run-time error unwinds out of the reader and its driver to the
  // print button, which passes over it: the job stays open, and what follows
  // the reader in the driver (closing the job, hiding the progress frame) never runs.
  ferma,
  // The statement is skipped and the reader goes on with the next one: a
  // column that cannot be read leaves the previous numbers in place and the
  // slip is printed with them.
  passa_oltre,
};

// Runs the statements of a reader under its failure behaviour.
class istruzioni {
 public:
  explicit istruzioni(su_errore modo) : modo_(modo) {}

  template <class Istruzione>
  void operator()(Istruzione&& istruzione) const {
    if (modo_ == su_errore::passa_oltre) {
      passa_oltre(istruzione);
    } else {
      istruzione();
    }
  }

 private:
  su_errore modo_;
};

// The column file of a run. A reader that passes over failures may have
// failed to open it: every later use then fails as the use of a file never
// opened ("Nome o numero di file non valido"), and the reader's loop takes
// that as the end, so a missing file prints nothing.
class file_colonne {
 public:
  // Opens cartella_sistema + base name + ending; con_testata drops the three
  // head fields that open a one-file ridotto system.
  void apri(const std::string& percorso, bool con_testata);
  void chiudi() { file_.reset(); }

  bool fine_file() { return aperto().fine_file(); }
  template <int D>
  void leggi_colonna(vettore<uint8_t, D>& colonna, int n) {
    aperto().leggi_colonna(colonna, n);
  }
  void salta_riga() { aperto().salta_riga(); }

 private:
  lettore_colonne& aperto();
  std::optional<lettore_colonne> file_;
};

// The loop test of a reader: true at the end of the file. A reader that
// passes over failures also takes a file it cannot ask (one never opened)
// as ended, so no loop runs on a file that isn't there.
bool colonne_finite(file_colonne& file, const istruzioni& esegui);

// The path of a column file: the system's folder, the base name, the ending.
std::string percorso_colonne(const stato& s, const std::string& nome_base, std::string_view finale);

// The end of a printed slip: the progress bar of the slip form one step on,
// the pending events of the user interface run once, and the page ended.
// The bar never stops a print: a step beyond its maximum (or a form without
// the bar) is dropped, as only the printing itself matters to the run.
void chiudi_scheda(stato& s, std::string_view nome_modulo, const istruzioni& esegui);

}  // namespace schedine
