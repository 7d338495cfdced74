#pragma once
// One whole run: a fresh program in a folder, the scenario's actions on it,
// the journal of what happened and the exit status.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/formato_locale.h"
#include "tools/scenario/azione.h"

namespace schedine {
class dispositivo_stampa;
class giornale;
struct stato;
}  // namespace schedine

namespace schedine::scenario {

struct risultato {
  int stato = 0;          // an esito:: value
  int riga = 0;           // the line where the run stopped, 0 when it ran through
  std::string messaggio;  // why it stopped
};

// Told the program's state once the program is made, before any action.
using al_programma = std::function<void(const stato&)>;

// Runs the actions on a new program in the folder. Print jobs are journaled,
// and drawn on `altro_dispositivo` as well when one is given (the PDF).
risultato esegui_scenario(const std::vector<azione>& azioni, const std::string& cartella, const formato_locale& locale,
                          giornale& g, dispositivo_stampa* altro_dispositivo = nullptr,
                          const al_programma& al_via = {});

// The same from the scenario's text: a line that cannot be understood stops
// the run before anything happens.
risultato esegui_testo_scenario(std::string_view testo, const std::string& cartella, const formato_locale& locale,
                                giornale& g, dispositivo_stampa* altro_dispositivo = nullptr,
                                const al_programma& al_via = {});

}  // namespace schedine::scenario
