#include "printing/scheda_wforlife.h"

#include "printing/dispositivo_stampa.h"
#include "printing/lavoro_stampa.h"
#include "printing/riga_scheda.h"
#include "printing/scheda_controlli.h"
#include "printing/segna.h"

// The Win for Life renderers read the stake and the subscription straight
// from the controls of their own form at print time. They pass over no
// fault: a control the form doesn't have ends the run.

namespace schedine {

namespace {

const std::string modulo_singolo = "Form_sched_wforlife";
const std::string modulo_cinque = "Form_sched_wforlife5";
constexpr int scelte_abbonamento = 8;
constexpr int caselle_abbonamento = 105;

void segna_gruppo(stato& s, int gruppo, int riga) {
  segna(s, s.tab_coord(gruppo, riga, asse_x), s.tab_coord(gruppo, riga, asse_y));
}

// The text line (Win for Life plays only) and the opening of the page's
// marks. `discesa` is how far above number 2 the line stands on this slip.
void inizio_scheda(stato& s, const std::string& nome_scheda, float prezzo_colonna, uint8_t colonne_scheda, float discesa) {
  if (s.tipo_gioco == "wforlife") {
    float importo = static_cast<float>(colonne_scheda) * prezzo_colonna;
    stampa_riga_scheda(s, nome_scheda, importo, s.tab_coord(1, 2, asse_x), s.tab_coord(1, 2, asse_y) - discesa);
  }
  dispositivo_stampa& d = stampante(s);
  d.imposta_penna(1, 1);
  d.imposta_riempimento(0, 0);
  d.disegna_punto_zero();
}

// The stake: 1 € on the first box, 2 € on the second; neither chosen, no mark.
void segna_puntata(stato& s, const std::string& nome_modulo, int gruppo_1, int gruppo_2) {
  if (opzione_scelta(s, nome_modulo, "Option3", 0)) {
    segna_gruppo(s, gruppo_1, 1);
  } else if (opzione_scelta(s, nome_modulo, "Option3", 1)) {
    segna_gruppo(s, gruppo_2, 2);
  }
}

}  // namespace

void scheda_wforlife(stato& s, const std::string& nome_scheda, float prezzo_colonna, uint8_t colonne_scheda) {
  inizio_scheda(s, nome_scheda, prezzo_colonna, colonne_scheda, 28.0f);
  segna_puntata(s, modulo_singolo, 2, 2);
  // The first chosen subscription: 2 to 10 draws on the upper line of boxes
  // (rows 1 to 5), the day, two days and week on the lower one (rows 1 to 3).
  for (int i = 0; i < scelte_abbonamento; ++i) {
    if (!opzione_scelta(s, modulo_singolo, "optAbb", i)) continue;
    if (i < 5) {
      segna_gruppo(s, 3, i + 1);
    } else {
      segna_gruppo(s, 4, i - 4);
    }
    return;
  }
}

void scheda_wforlife5(stato& s, const std::string& nome_scheda, float prezzo_colonna, uint8_t colonne_scheda) {
  inizio_scheda(s, nome_scheda, prezzo_colonna, colonne_scheda, 31.0f);
  segna_puntata(s, modulo_cinque, 6, 7);
  // The calendar of draws: every ticked box is marked, in rising order.
  for (int i = 1; i <= caselle_abbonamento; ++i) {
    if (valore_casella(s, modulo_cinque, "chkAbbonamenti", i - 1) == casella_spuntata) segna_gruppo(s, 8, i);
  }
}

}  // namespace schedine
