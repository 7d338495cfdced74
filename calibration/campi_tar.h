#pragma once
// Field-level reading and line-level writing shared by the five calibration files.

#include <cstdint>
#include <string>

#include "core/file_record.h"
#include "core/stato.h"

namespace schedine {

// The path of a calibration file: its bare name in the program folder.
std::string percorso_tar(const stato& s, const char* nome);

// Reads a calibration file field by field. A tolerant read passes over a field
// that can't be read (past the end, not a number): the value it was meant for
// keeps what it held. A strict read lets the run-time error through.
class lettura_tar {
 public:
  lettura_tar(lettore_record& lettore, bool tollerante) : lettore_(lettore), tollerante_(tollerante) {}

  void leggi(float& valore);
  void leggi(uint8_t& valore);
  // Drops one field: the empty one behind a row's last comma, or a blank line.
  void salta();
  // A row line "x,y,": X, Y and the empty field behind them.
  void leggi_riga(float& x, float& y) {
    leggi(x);
    leggi(y);
    salta();
  }

 private:
  template <class Lettura>
  void esegui(Lettura&& lettura);

  lettore_record& lettore_;
  bool tollerante_;
};

// A row line without its line end: "x,y," with the numbers as testo_single writes them.
std::string testo_riga(float x, float y);
// carattere_stampa as the files keep it: "1" for the dot, "2" for anything else.
std::string testo_carattere(uint8_t carattere_stampa);

}  // namespace schedine
