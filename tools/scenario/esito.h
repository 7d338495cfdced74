#pragma once
// How a scenario run ends: the runner's exit statuses, and the two ways a
// scenario itself can be at fault.

#include <stdexcept>
#include <string>

namespace schedine::scenario {

namespace esito {
inline constexpr int riuscito = 0;          // every action ran and every check held
inline constexpr int verifica_fallita = 1;  // an expect did not hold
inline constexpr int non_valido = 2;        // a line not understood, or naming what doesn't exist
inline constexpr int errore_programma = 3;  // a run-time error ended the program
inline constexpr int guasto_interno = 4;    // a fault of the program itself, never expected
}  // namespace esito

// A line that cannot be understood, or that names an unknown form, control
// or variable, or asks what cannot happen (status 2).
class errore_scenario : public std::runtime_error {
 public:
  errore_scenario(int riga, const std::string& messaggio) : std::runtime_error(messaggio), riga_(riga) {}
  int riga() const { return riga_; }

 private:
  int riga_;
};

// An expect that did not hold (status 1): what was expected and what was found.
class verifica_fallita : public std::runtime_error {
 public:
  verifica_fallita(const std::string& cosa, const std::string& atteso, const std::string& trovato)
      : std::runtime_error(cosa + ": expected \"" + atteso + "\", actual \"" + trovato + "\"") {}
};

}  // namespace schedine::scenario
