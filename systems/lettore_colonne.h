#pragma once
// The column file of a saved system, streamed column by column. A column is
// N numbers taken as the next N fields of the file, whatever the lines say:
// a short line lends its column the first numbers of the next one, and every
// later column slides with it. The file is never held in memory; a reader
// walks it as
//
//   lettore_colonne file(percorso);
//   file.salta_testata();                 // one-file ridotto form only
//   while (!file.fine_file()) file.leggi_colonna(colonna, n);
//
// Every failure is an errore_runtime thrown at the read that meets it: past
// the last field "Input oltre la fine del file" (62), a field that is no
// number "Tipo non corrispondente" (13), a number outside 0 to 255 "Overflow" (6).

#include <cstdint>
#include <span>
#include <string>

#include "core/file_record.h"
#include "core/tabelle.h"

namespace schedine {

class lettore_colonne {
 public:
  // Opens the file; a missing one is "Impossibile trovare il file" (53).
  explicit lettore_colonne(const std::string& percorso) : file_(percorso) {}

  // The three head fields that open a one-file ridotto system, of any form, dropped.
  void salta_testata();

  // True once the last field has been read (a line end after it included).
  bool fine_file() { return file_.fine_file(); }

  // Reads the next colonna.size() numbers, one field each, straight into the
  // column. A failing read leaves the numbers before it stored and those after
  // it as they were, as the read of each number is its own step.
  void leggi_colonna(std::span<uint8_t> colonna);

  // The same into the first n entries of a bounds-checked table: an n beyond
  // the table is "Indice non compreso nell'intervallo" (9) at that entry.
  template <int D>
  void leggi_colonna(vettore<uint8_t, D>& colonna, int n) {
    for (int j = 0; j < n; ++j) colonna(j) = file_.leggi_byte();
  }

  // Drops the rest of the current line, its line end included.
  void salta_riga() { file_.salta_riga(); }

 private:
  lettore_record file_;
};

// Numbers in a column of a sestine-decine file: the commas of its first line
// plus one. An empty file is "Input oltre la fine del file". The line is
// counted as it streams by, never held, and a count beyond what an int holds
// stays at its largest value: any count above the widest column reads alike.
int numeri_prima_riga(const std::string& percorso);

}  // namespace schedine
