#include "forms/calibration/spostamenti.h"

#include <array>

#include "calibration/formato_tar.h"
#include "forms/calibration/passi_taratura.h"

namespace schedine {

namespace {

struct righe_mosse {
  tabella_lotto tabella;
  int prima;
  int ultima;
};

// The whole of each table, rows the slip has no box for included, so that a
// later factory or file value lands on a grid that moved as one.
constexpr std::array tabelle_lotto{
    righe_mosse{tabella_lotto_di<&stato::tar_numeri>, 1, 90},
    righe_mosse{tabella_lotto_di<&stato::tar_numeri_10e>, 1, 90},
    righe_mosse{tabella_lotto_di<&stato::tar_gio_mult>, 0, 9},
    righe_mosse{tabella_lotto_di<&stato::tar_sistemi>, 0, 8},
    righe_mosse{tabella_lotto_di<&stato::tar_totale>, 0, 20},
    righe_mosse{tabella_lotto_di<&stato::tar_estratto>, 0, 20},
    righe_mosse{tabella_lotto_di<&stato::tar_ambo>, 0, 20},
    righe_mosse{tabella_lotto_di<&stato::tar_terno>, 0, 20},
    righe_mosse{tabella_lotto_di<&stato::tar_quaterna>, 0, 20},
    righe_mosse{tabella_lotto_di<&stato::tar_cinquina>, 0, 20},
    righe_mosse{tabella_lotto_di<&stato::tar_ruote>, 0, 10},
    righe_mosse{tabella_lotto_di<&stato::tar_ambetto>, 0, 20},
    righe_mosse{tabella_lotto_di<&stato::tar_det_posizione>, 0, 20},
    righe_mosse{tabella_lotto_di<&stato::tar_det_importo>, 0, 20},
    righe_mosse{tabella_lotto_di<&stato::tar_tipo_estrazione>, 0, 2},
    righe_mosse{tabella_lotto_di<&stato::tar_importo_10elotto>, 0, 20},
};

}  // namespace

void sposta_lotto(stato& s, int asse, float passo) {
  for (const auto& t : tabelle_lotto) {
    for (int riga = t.prima; riga <= t.ultima; ++riga) aggiungi_passo(t.tabella.cella(s, riga, asse), passo);
  }
}

void sposta_gruppi(stato& s, int primo, int ultimo, int ultima_riga, int asse, float passo) {
  for (int gruppo = primo; gruppo <= ultimo; ++gruppo) {
    for (int riga = 1; riga <= ultima_riga; ++riga) aggiungi_passo(s.tab_coord(gruppo, riga, asse), passo);
  }
}

}  // namespace schedine
