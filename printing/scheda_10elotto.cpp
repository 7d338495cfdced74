#include "printing/scheda_10elotto.h"

#include "core/errore_runtime.h"
#include "printing/dispositivo_stampa.h"
#include "printing/lavoro_stampa.h"
#include "printing/riga_scheda.h"
#include "printing/scheda_controlli.h"
#include "printing/segna.h"

// The 10eLotto slip has no calibration rows for the kind of draw and the
// amounts: their boxes are derived from the number grid, so moving the grid
// on the calibration form carries them along. Derived points are computed
// in double and rounded to Single only when they reach the device.

namespace schedine {

namespace {

// The draw boxes lie this far below the Cinquina row of the stakes table.
constexpr double discesa_concorsi = 4.0 * 4.5;
// The text line stands this far above number 9, at the top of the sheet.
constexpr float margine_riga = 137.0f;

// The box of the number of draws: 2 → row 8, 3 → 10, ... 6 → 16; any other
// count falls on row 0.
int riga_concorsi(int16_t concorsi) {
  if (concorsi >= 2 && concorsi <= 6) return 4 + 2 * concorsi;
  return 0;
}

double x10(const stato& s, int n) { return s.tar_numeri_10e(n, asse_x); }
double y10(const stato& s, int n) { return s.tar_numeri_10e(n, asse_y); }

void segna_d(stato& s, double x, double y) { segna(s, static_cast<float>(x), static_cast<float>(y)); }

// Both kinds of draw ticked count every column twice.
double importo_scheda(stato& s, float prezzo_colonna, uint8_t colonne_scheda) {
  const std::string modulo = "Form_sched_lotto_ambetto";
  int colonne = colonne_scheda;
  if (valore_casella(s, modulo, "chkTipoEstrazione", 0) == casella_spuntata &&
      valore_casella(s, modulo, "chkTipoEstrazione", 1) == casella_spuntata) {
    colonne *= 2;
  }
  return prezzo_colonna * static_cast<float>(colonne);
}

void stampa_riga(stato& s, const std::string& nome_scheda, float prezzo_colonna, uint8_t colonne_scheda) {
  apri_riga_scheda(s, s.tar_numeri_10e(9, asse_x), s.tar_numeri_10e(9, asse_y) - margine_riga);
  double importo = importo_scheda(s, prezzo_colonna, colonne_scheda);
  stampante(s).stampa_testo(riga_scheda(s, nome_scheda, importo));
}

}  // namespace

void segna_10elotto_extra(stato& s) {
  if (s.abbonamento_concorsi <= 0) return;
  int riga = riga_concorsi(s.abbonamento_concorsi);
  passa_oltre([&] {
    segna_d(s, s.tar_cinquina(riga, asse_x), static_cast<double>(s.tar_cinquina(riga, asse_y)) + discesa_concorsi);
  });
}

void scheda_10elotto(stato& s, const std::string& nome_scheda, float prezzo_colonna, uint8_t colonne_scheda) {
  if (s.tipo_gioco == "10elotto") stampa_riga(s, nome_scheda, prezzo_colonna, colonne_scheda);

  dispositivo_stampa& d = stampante(s);
  d.imposta_penna(1, 1);
  d.imposta_riempimento(0, 0);
  d.disegna_punto_zero();

  // One line of the grid, and the gap between two amount boxes less their width.
  double passo_y = y10(s, 76) - y10(s, 61);
  double passo_x = x10(s, 87) - x10(s, 86) - 6.11;

  if (s.estrazione_lotto) segna_d(s, x10(s, 76), y10(s, 76) + 2 * passo_y + 0.9);
  if (s.estrazione_immediata) segna_d(s, x10(s, 76), y10(s, 76) + 3 * passo_y + 0.9);
  for (int i = 0; i <= 6; ++i) {
    if (s.importo_10elotto_flag(i + 1)) {
      segna_d(s, x10(s, 85) + 3.21 + i * (passo_x + 4.55), y10(s, 85) + 3 * passo_y + 0.9);
    }
  }
}

}  // namespace schedine
