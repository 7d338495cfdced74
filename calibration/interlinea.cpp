#include "calibration/interlinea.h"

#include <array>
#include <cmath>

#include "calibration/formato_tar.h"
#include "core/errore_runtime.h"

namespace schedine {

namespace {

// One statement of the recomputation: valore + peso · d in Single. A result
// beyond the Single range is an overflow fault, and like any fault here the
// statement is passed over and the value kept.
void correggi(float& valore, int peso, float d) {
  passa_oltre([&] {
    const float nuovo = valore + static_cast<float>(peso) * d;
    if (!std::isfinite(nuovo)) throw errore_runtime(codice::overflow);
    valore = nuovo;
  });
}

void correggi_riga(float& x, float& y, int a, int b, const stato& s) {
  correggi(x, a, s.interlinea_x);
  correggi(y, b, s.interlinea_y);
}

void correggi_coord(stato& s, int gruppo, int riga, int a, int b) {
  correggi_riga(s.tab_coord(gruppo, riga, asse_x), s.tab_coord(gruppo, riga, asse_y), a, b, s);
}

// Weights of a Lotto table row i: a = a0 + a_passo · i, b = b0 + b_passo · i.
// In the stake rows, row 0 gets no X weight and row 1 jumps to 2: the boxes
// of the slip stand that way.
struct pesi_lotto {
  tabella_lotto tabella;
  int prima;
  int ultima;
  int a0;
  int a_passo;
  int b0;
  int b_passo;
  bool riga0_ferma_in_x = false;
};

constexpr pesi_lotto puntata(tabella_lotto tabella, int b) { return {tabella, 0, 20, 1, 1, b, 0, true}; }

constexpr std::array pesi_tabelle_lotto{
    pesi_lotto{tabella_lotto_di<&stato::tar_sistemi>, 0, 8, 8, 1, 20, 0},
    pesi_lotto{tabella_lotto_di<&stato::tar_gio_mult>, 0, 9, 8, 1, 22, 0},
    pesi_lotto{tabella_lotto_di<&stato::tar_totale>, 0, 20, 0, 1, 12, 0},
    puntata(tabella_lotto_di<&stato::tar_estratto>, 13),
    puntata(tabella_lotto_di<&stato::tar_ambo>, 14),
    puntata(tabella_lotto_di<&stato::tar_terno>, 15),
    puntata(tabella_lotto_di<&stato::tar_quaterna>, 16),
    puntata(tabella_lotto_di<&stato::tar_cinquina>, 17),
    puntata(tabella_lotto_di<&stato::tar_ambetto>, 20),
    puntata(tabella_lotto_di<&stato::tar_det_importo>, 19),
    pesi_lotto{tabella_lotto_di<&stato::tar_det_posizione>, 0, 20, 5, 2, 18, 0},
    pesi_lotto{tabella_lotto_di<&stato::tar_tipo_estrazione>, 0, 2, 9, 2, 22, 0},
    pesi_lotto{tabella_lotto_di<&stato::tar_importo_10elotto>, 0, 20, 8, 1, 24, 0},
    pesi_lotto{tabella_lotto_di<&stato::tar_ruote>, 0, 10, 13, 0, 0, 1},
};

void correggi_tabella(stato& s, const pesi_lotto& p) {
  for (int i = p.prima; i <= p.ultima; ++i) {
    const int a = (p.riga0_ferma_in_x && i == 0) ? 0 : p.a0 + p.a_passo * i;
    const int b = p.b0 + p.b_passo * i;
    correggi_riga(p.tabella.cella(s, i, asse_x), p.tabella.cella(s, i, asse_y), a, b, s);
  }
}

}  // namespace

void ricalcola_interlinea_lotto(stato& s) {
  // Number n: column weight c + 1, row weight r.
  for (int n = 1; n <= 90; ++n) {
    const int r = (n - 1) / 10;
    const int c = (n - 1) % 10;
    correggi_riga(s.tar_numeri(n, asse_x), s.tar_numeri(n, asse_y), c + 1, r, s);
  }
  for (const auto& pesi : pesi_tabelle_lotto) correggi_tabella(s, pesi);
  correggi_riga(s.tar_nazionale(0), s.tar_nazionale(1), 13, 11, s);
}

void ricalcola_interlinea_wforlife(stato& s) {
  // The fourth line of numbers steps by twice the X weight and sits at row
  // weight 5, not 3: calibrations made so far rest on this rule.
  for (int n = 1; n <= 20; ++n) {
    const int r = (n - 1) / 5;
    const int c = (n - 1) % 5;
    if (n <= 15) {
      correggi_coord(s, 1, n, c, r);
    } else {
      correggi_coord(s, 1, n, 2 * c, 5);
    }
  }
  correggi_coord(s, 2, 2, 0, 1);
  for (int n = 1; n <= 5; ++n) correggi_coord(s, 3, n, n - 1, 0);
  correggi_coord(s, 4, 1, 0, 1);
  for (int n = 2; n <= 3; ++n) correggi_coord(s, 4, n, 2 * (n - 1), 1);
}

void ricalcola_interlinea_wforlife5(stato& s) {
  // Panel g holds global columns 2 · (g - 1) and 2 · (g - 1) + 1; each line is two rows.
  for (int g = 1; g <= 5; ++g) {
    for (int n = 1; n <= 20; ++n) {
      const int e = (n % 2 == 0) ? 1 : 0;
      correggi_coord(s, g, n, 2 * (g - 1) + e, (n - 1) / 2);
    }
  }
  correggi_coord(s, 6, 1, 1, 0);
  correggi_coord(s, 7, 2, 1, 1);
  // The subscription boxes are weighed in blocks of 13, from -1 for the first
  // block; rows 92 to 105 are not moved.
  for (int n = 1; n <= 91; ++n) correggi_coord(s, 8, n, (n - 1) / 13 - 1, (n - 1) % 13 + 1);
}

}  // namespace schedine
