// "Stampa" on Form_sched_enalotto: the checks that may refuse the run, the
// calibration of the slip reloaded from its file, the range and the
// progress frame, then the driver of the five-panel or of the two-panel
// slip. The form does nothing after the driver: the driver hides Frame2.

#include "calibration/assicura_tar.h"
#include "core/piattaforma.h"
#include "core/stato.h"
#include "forms/enalotto_wforlife/Form_sched_enalotto.h"
#include "forms/enalotto_wforlife/testi_prezzo.h"
#include "systems/stampa_pannelli.h"

namespace schedine {

void Form_sched_enalotto::cmdstampa_click() {
  // The grid's own rule has disabled this button at thirteen numbers; the
  // count here stands on its own all the same.
  int gialle = 0;
  passa_oltre([&] { gialle = conta_gialle(); });
  if (gialle >= 13) {
    passa_oltre([&] {
      s.piattaforma->messaggio("I numeri superstar selezionati non possono essere più di 12!",
                               stile_messaggio::informazione, "");
    });
    return;
  }
  bool senza_prezzo = false;
  passa_oltre([&] { senza_prezzo = c<etichetta>("Text1").caption.empty(); });
  if (senza_prezzo) {
    passa_oltre([&] {
      s.piattaforma->messaggio("Si deve impostare il prezzo della colonna prima di mandare in stampa le schedine.",
                               stile_messaggio::informazione, "Marendolia");
    });
    return;
  }
  bool cinque_pannelli = true;
  passa_oltre([&] { cinque_pannelli = opzione("Option1"); });
  // Only what was saved on a calibration form reaches the slip.
  passa_oltre([&] { cinque_pannelli ? assicura_tar_enalotto(s) : assicura_tar_enalotto2(s); });
  prendi_intervallo();
  passa_oltre([&] {
    auto& frame2 = c<cornice>("Frame2");
    frame2.alto = 495;
    frame2.sinistra = 4185;
  });
  mostra_avanzamento();
  // The two-panel slip holds two columns whatever Combo1 shows.
  if (cinque_pannelli) {
    prendi_colonne_per_scheda();
  } else {
    s.colonne_per_scheda = 2;
  }
  float prezzo = 0;
  passa_oltre([&] { prezzo = static_cast<float>(prezzo_da_etichetta(c<etichetta>("Text1").caption)); });
  // The two-column rule of the five-panel slip works on the count of this form.
  if (cinque_pannelli) s.colonne_sistema = colonne_form;
  std::string tipo_sistema = s.tipo_sistema;
  passa_oltre([&] {
    cinque_pannelli ? stampa_enalotto(s, tipo_sistema, prezzo) : stampa_enalotto2(s, tipo_sistema, prezzo);
  });
}

}  // namespace schedine
