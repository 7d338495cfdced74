// Factory values of the four panel slips, all kept in tab_coord.

#include <array>

#include "calibration/fabbrica.h"
#include "calibration/file_tar.h"
#include "calibration/singole.h"

namespace schedine {

namespace {

void metti(tabella_coord& t, int gruppo, int riga, float x, float y) {
  t(gruppo, riga, asse_x) = x;
  t(gruppo, riga, asse_y) = y;
}

// Two-panel SuperEnalotto: the numbers of a panel read down columns of 15,
// and the columns run from right to left.
void pannello_enalotto2(tabella_coord& t, int gruppo, float x_prima_colonna) {
  for (int n = 1; n <= 90; ++n) {
    const int c = (n - 1) / 15;
    const int r = (n - 1) % 15;
    metti(t, gruppo, n, lineare(x_prima_colonna, -5.0f, c), lineare(22.875f, 4.5f, r));
  }
}

// The Superstar grid: columns of 10, right to left.
void superstar_enalotto2(tabella_coord& t) {
  for (int n = 1; n <= 90; ++n) {
    const int c = (n - 1) / 10;
    const int r = (n - 1) % 10;
    metti(t, 3, n, lineare(54.2f, -5.0f, c), lineare(94.875f, 4.5f, r));
  }
}

// Subscription boxes, one per number of draws, down one column.
void abbonamenti_enalotto2(tabella_coord& t) {
  constexpr std::array righe{2, 3, 4, 5, 6, 9, 12, 15};
  constexpr std::array y{103.875f, 108.375f, 112.875f, 117.375f, 121.875f, 126.375f, 130.875f, 135.375f};
  for (size_t k = 0; k < righe.size(); ++k) metti(t, 4, righe[k], 4.2f, y[k]);
}

// Five-panel Win for Life: each panel has twenty lines of two boxes. Panel
// and line offsets are running totals, added once per step.
void pannelli_wforlife5(tabella_coord& t) {
  float x_sinistra = 11.77f;
  float x_destra = 16.62f;
  for (int g = 1; g <= 5; ++g) {
    float y = 47.31f;
    for (int r = 0; r < 20; ++r) {
      metti(t, g, 2 * r + 1, x_sinistra, y);
      metti(t, g, 2 * r + 2, x_destra, y);
      y = y + 4.02f;
    }
    x_sinistra = x_sinistra + 15.1f;
    x_destra = x_destra + 15.1f;
  }
}

// The 105 subscription boxes: seven columns of 15, read down the columns.
void abbonamenti_wforlife5(tabella_coord& t) {
  float x = 16.51f;
  for (int c = 0; c < 7; ++c) {
    float y = 115.31f;
    for (int r = 0; r < 15; ++r) {
      metti(t, 8, 15 * c + r + 1, x, y);
      y = y + 4.02f;
    }
    x = x + 10.02f;
  }
}

}  // namespace

// The 90 numbers of a panel lie in 6 rows of 15, read along the rows; a
// panel's pitch is 7 rows.
void default_tar_enalotto(stato& s) {
  s.tab_coord.azzera();
  for (int g = 1; g <= 5; ++g) {
    for (int n = 1; n <= 90; ++n) {
      const int r = (n - 1) / 15;
      const int c = (n - 1) % 15;
      metti(s.tab_coord, g, n, lineare(8.94f, 4.99f, c), lineare(29.11f, 3.51f, 7 * (g - 1) + r));
    }
  }
  s.carattere_stampa = 1;
  salva_tar_enalotto(s);
}

void default_tar_enalotto2(stato& s) {
  pannello_enalotto2(s.tab_coord, 1, 64.2f);
  pannello_enalotto2(s.tab_coord, 2, 29.2f);
  superstar_enalotto2(s.tab_coord);
  abbonamenti_enalotto2(s.tab_coord);
  s.carattere_stampa = 1;
  salva_tar_enalotto2(s);
}

void default_tar_wforlife(stato& s) {
  auto& t = s.tab_coord;
  for (int n = 1; n <= 20; ++n) {
    const int r = (n - 1) / 5;
    const int c = (n - 1) % 5;
    metti(t, 1, n, lineare(12.09f, 15.09f, c), lineare(45.18f, 13.41f, r));
  }
  metti(t, 2, 1, 12.09f, 103.777f);
  metti(t, 2, 2, 12.09f, 108.477f);
  for (int riga = 1; riga <= 5; ++riga) metti(t, 3, riga, lineare(16.6f, 15.221f, riga - 1), 134.89f);
  for (int riga = 1; riga <= 3; ++riga) metti(t, 4, riga, lineare(16.6f, 30.442f, riga - 1), 139.89f);
  s.carattere_stampa = 1;
  salva_tar_wforlife(s);
}

void default_tar_wforlife5(stato& s) {
  pannelli_wforlife5(s.tab_coord);
  metti(s.tab_coord, 6, 1, 16.49f, 91.41f);
  metti(s.tab_coord, 7, 2, 16.49f, 95.41f);
  abbonamenti_wforlife5(s.tab_coord);
  s.carattere_stampa = 1;
  salva_tar_wforlife5(s);
}

}  // namespace schedine
