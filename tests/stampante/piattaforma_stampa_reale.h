#pragma once
// The desktop program's platform as it runs, printing on the desktop's
// default printer, with two differences a test without a person needs:
// message boxes are journaled and answered with their default button instead
// of waiting for a click, and every print job also reaches a second device
// that takes note of what the paper must show.

#include <string>

#include "app/piattaforma_qt/piattaforma_qt.h"
#include "printing/dispositivo_doppio.h"
#include "printing/giornale.h"
#include "tools/scenario/piattaforma_giornale.h"

namespace schedine::prova {

class piattaforma_stampa_reale : public piattaforma_qt {
 public:
  // The journal and the noting device must outlive the platform.
  piattaforma_stampa_reale(std::string cartella_programma, giornale& g, dispositivo_stampa& annotazioni)
      : piattaforma_qt(std::move(cartella_programma)),
        giornale_(g),
        // The noting device comes first: it answers the page numbers, as the
        // journal does in the scenario runner.
        doppio_(annotazioni, piattaforma_qt::stampante()) {}

  int messaggio(const std::string& testo, int stile, const std::string& /*titolo*/) override {
    giornale_.messaggio(testo);
    return scenario::risposta_predefinita(stile);
  }

  dispositivo_stampa& stampante() override { return doppio_; }

 private:
  giornale& giornale_;
  dispositivo_doppio doppio_;
};

}  // namespace schedine::prova
