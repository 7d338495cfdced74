#pragma once
// The desktop program's platform as it runs, printing on the desktop's
// default printer, with two differences a test without a person needs:
// message boxes are journaled and answered with their default button instead
// of waiting for a click, and every print job also reaches a second device
// that takes note of what the paper must show. It can also print as the
// preview does: the run into a recorder, then the recorded pages to the printer.

#include <string>

#include "app/piattaforma_qt/piattaforma_qt.h"
#include "printing/dispositivo_doppio.h"
#include "printing/giornale.h"
#include "printing/registratore.h"
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
        doppio_(annotazioni, piattaforma_qt::stampante()),
        anteprima_(annotazioni, registrato_) {}

  int messaggio(const std::string& testo, int stile, const std::string& /*titolo*/) override {
    giornale_.messaggio(testo);
    return scenario::risposta_predefinita(stile);
  }

  dispositivo_stampa& stampante() override { return in_anteprima_ ? anteprima_ : doppio_; }

  // From now on the runs go into the recorder, as "Anteprima" runs them.
  void registra_come_anteprima() { in_anteprima_ = true; }
  // The preview's "Stampa": the recorded pages as one job to the printer.
  void stampa_registrato() {
    registrato_.concludi();
    registrato_.riproduci_tutto(piattaforma_qt::stampante());
  }

 private:
  giornale& giornale_;
  dispositivo_doppio doppio_;
  registratore registrato_;
  dispositivo_doppio anteprima_;
  bool in_anteprima_ = false;
};

}  // namespace schedine::prova
