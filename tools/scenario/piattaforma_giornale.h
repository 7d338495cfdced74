#pragma once
// The platform services of a run without a screen: each request of the
// program becomes a journal line. Message boxes are answered with their
// default button, sibling programs are named and never started, skins are
// only looked for, and print jobs go to the run's device.

#include <string>

#include "core/piattaforma.h"

namespace schedine {
class giornale;
}

namespace schedine::scenario {

// The button a message box of that style answers when the user just presses
// Enter: the default button of its set (OK 1, Cancel 2, Abort 3, Retry 4,
// Ignore 5, Yes 6, No 7).
int risposta_predefinita(int stile);

class piattaforma_giornale : public servizi_piattaforma {
 public:
  // The journal and the device must outlive the services.
  piattaforma_giornale(giornale& destinazione, dispositivo_stampa& stampante);

  void esegui_eventi_in_attesa() override {}
  // Journals `messaggio "TEXT"` and answers the default button.
  int messaggio(const std::string& testo, int stile, const std::string& titolo) override;
  // Journals `avvia "NAME"` with the program's file name as the system
  // names it, when the file is in its place; a missing program cannot be
  // started and is the run-time error "file not found".
  void avvia_programma(const std::string& percorso) override;
  // The look of a skin means nothing here, but its file must be there.
  void carica_skin(const std::string& percorso) override;
  dispositivo_stampa& stampante() override { return stampante_; }

 private:
  giornale& giornale_;
  dispositivo_stampa& stampante_;
};

}  // namespace schedine::scenario
