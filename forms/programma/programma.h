#pragma once
// The whole program without a screen: the shared state, the forms and the
// platform services that the caller provides. The desktop program and the
// scenario runner each make one and drive it by the forms' events.

#include <string>

#include "controls/insieme_moduli.h"
#include "core/stato.h"

namespace schedine {

class servizi_piattaforma;

class programma {
 public:
  programma(std::string cartella, servizi_piattaforma& piattaforma, formato_locale locale);

  stato s;
  insieme_moduli moduli{s};

  // The program starts: the main form loads and is shown.
  void avvia();
  // The main form unloads and the program ends.
  void termina();
  bool terminato() const { return moduli.programma_terminato; }
};

// Every form of the program, by its design name.
const std::vector<std::string>& nomi_moduli();

}  // namespace schedine
