#include "tools/scenario/piattaforma_giornale.h"

#include <array>

#include "core/errore_runtime.h"
#include "core/file_sistema.h"
#include "printing/giornale.h"

namespace schedine::scenario {

int risposta_predefinita(int stile) {
  // The button sets by the low three bits of the style, left to right.
  static const std::array<std::array<int, 3>, 6> pulsanti = {{
      {1, 0, 0},  // OK
      {1, 2, 0},  // OK, Cancel
      {3, 4, 5},  // Abort, Retry, Ignore
      {6, 7, 2},  // Yes, No, Cancel
      {6, 7, 0},  // Yes, No
      {4, 2, 0},  // Retry, Cancel
  }};
  int insieme = stile & 7;
  if (insieme >= static_cast<int>(pulsanti.size())) insieme = 0;
  // Bits 8 and 9 name the default button; one beyond the set falls back to the first.
  int predefinito = (stile >> 8) & 3;
  const auto& scelta = pulsanti[static_cast<size_t>(insieme)];
  if (predefinito >= 3 || scelta[static_cast<size_t>(predefinito)] == 0) predefinito = 0;
  return scelta[static_cast<size_t>(predefinito)];
}

piattaforma_giornale::piattaforma_giornale(giornale& destinazione, dispositivo_stampa& stampante)
    : giornale_(destinazione), stampante_(stampante) {}

int piattaforma_giornale::messaggio(const std::string& testo, int stile, const std::string&) {
  giornale_.messaggio(testo);
  return risposta_predefinita(stile);
}

void piattaforma_giornale::avvia_programma(const std::string& percorso) {
  if (!esiste_file(percorso)) throw errore_runtime(codice::file_non_trovato, percorso);
  size_t separatore = percorso.find_last_of("/\\");
  giornale_.avvia(separatore == std::string::npos ? percorso : percorso.substr(separatore + 1));
}

void piattaforma_giornale::carica_skin(const std::string& percorso) {
  if (!esiste_file(percorso)) throw errore_runtime(codice::file_non_trovato, percorso);
}

}  // namespace schedine::scenario
