// Factory values of the Lotto slip.

#include "calibration/fabbrica.h"
#include "calibration/file_tar.h"
#include "calibration/singole.h"
#include "core/errore_runtime.h"

namespace schedine {

namespace {

// Rows prima to ultima at X = x0 + passo · row, all on the line y.
template <int R>
void riga_di_caselle(tabella_xy<R>& tabella, int prima, int ultima, float x0, float passo, float y) {
  for (int i = prima; i <= ultima; ++i) {
    tabella(i, asse_x) = lineare(x0, passo, i);
    tabella(i, asse_y) = y;
  }
}

// Number n lies in row (n - 1) div 10, column (n - 1) mod 10. The column's X
// is a running total, 7.02 added to -1.3 once per column, so its last bits are
// those of the sum and not of 5.72 + 7.02 · c.
void numeri(stato& s) {
  for (int r = 0; r < 9; ++r) {
    const float y = lineare(24.6f, 6.88f, r);
    float x = -1.3f;
    for (int c = 0; c < 10; ++c) {
      x = x + 7.02f;
      const int n = 10 * r + c + 1;
      s.tar_numeri(n, asse_x) = x;
      s.tar_numeri(n, asse_y) = y;
    }
  }
}

// The wheels step by 5.26 while the national wheel sits at 5.28 · 11: both
// are how the slip's boxes measure.
void ruote(stato& s) {
  const float x = lineare(8.51f, 13.47f, 6);
  for (int i = 0; i <= 10; ++i) {
    s.tar_ruote(i, asse_x) = x;
    s.tar_ruote(i, asse_y) = lineare(23.3f, 5.26f, i);
  }
  s.tar_nazionale(0) = x;
  s.tar_nazionale(1) = lineare(23.3f, 5.28f, 11);
}

// The stake rows share their columns; the line of tar_det_importo starts
// from 98.91, not 98.61, as its boxes do.
void puntate(stato& s) {
  constexpr float x0 = 19.91f;
  constexpr float passo = 5.75f;
  riga_di_caselle(s.tar_estratto, 0, 20, x0, passo, lineare(98.61f, 6.678f, 0));
  riga_di_caselle(s.tar_ambo, 0, 20, x0, passo, lineare(98.61f, 6.678f, 1));
  riga_di_caselle(s.tar_terno, 0, 20, x0, passo, lineare(98.61f, 6.678f, 2));
  riga_di_caselle(s.tar_quaterna, 0, 20, x0, passo, lineare(98.61f, 6.678f, 3));
  riga_di_caselle(s.tar_cinquina, 0, 20, x0, passo, lineare(98.61f, 6.678f, 4));
  riga_di_caselle(s.tar_det_importo, 0, 20, x0, passo, lineare(98.91f, 6.678f, 5));
  riga_di_caselle(s.tar_ambetto, 0, 20, x0, passo, lineare(98.61f, 6.678f, 7));
}

// Only the boxes the slip has: rows 6 to 8 of tar_sistemi and above, the
// whole of tar_numeri_10e and tar_totale keep what they hold.
void altre_caselle(stato& s) {
  riga_di_caselle(s.tar_sistemi, 0, 5, 48.95f, 8.09f, 155.9625f);
  riga_di_caselle(s.tar_gio_mult, 0, 5, 48.95f, 8.09f, 165.9625f);
  riga_di_caselle(s.tar_det_posizione, 0, 4, 42.91f, 11.5f, lineare(98.31f, 6.65f, 6));
  riga_di_caselle(s.tar_tipo_estrazione, 0, 2, 56.96f, 16.12f, 176.4325f);
  riga_di_caselle(s.tar_importo_10elotto, 0, 5, 48.85f, 8.06f, 182.1425f);
}

}  // namespace

void default_tar_lotto(stato& s) {
  s.interlinea_x = 0.0f;
  s.interlinea_y = 0.0f;
  numeri(s);
  ruote(s);
  altre_caselle(s);
  puntate(s);
  s.carattere_stampa = 1;
  s.riserva_tarlo = 3;
  // Faults are passed over: a save that fails leaves the tables in memory,
  // and the load then reads whatever file there is.
  passa_oltre([&] { salva_tar_lotto(s); });
  carica_tar_lotto(s);
}

}  // namespace schedine
