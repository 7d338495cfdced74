#pragma once
// A value the runner reads from the program to check it against the text a
// scenario expects: texts compare exactly, numbers as numbers (a Single
// within 1e-4, since the tables hold 32-bit floats), Booleans as True/False.

#include <cstdint>
#include <string>

namespace schedine::scenario {

struct valore_letto {
  enum class genere { testo, intero, single, booleano };

  genere tipo = genere::testo;
  std::string testo;   // genere::testo
  double numero = 0;   // intero, single, booleano (0 or 1)

  static valore_letto di_testo(std::string t) { return {genere::testo, std::move(t), 0}; }
  static valore_letto di_intero(int64_t n) { return {genere::intero, {}, static_cast<double>(n)}; }
  static valore_letto di_single(float f) { return {genere::single, {}, f}; }
  static valore_letto di_booleano(bool b) { return {genere::booleano, {}, b ? 1.0 : 0.0}; }

  // The value as a scenario writes it: "68.9", "True", the text itself.
  std::string come_testo() const;
  // True when the expected text stands for this value.
  bool corrisponde(const std::string& atteso) const;
};

}  // namespace schedine::scenario
