#include "printing/scheda_lotto.h"

#include "controls/modulo.h"
#include "core/errore_runtime.h"
#include "core/numeri.h"
#include "printing/dispositivo_stampa.h"
#include "printing/lavoro_stampa.h"
#include "printing/riga_scheda.h"
#include "printing/scheda_controlli.h"
#include "printing/segna.h"

// Every statement of this renderer runs under passa_oltre: a slip may lose a
// mark or its text line, but the run goes on and nobody is told.

namespace schedine {

namespace {

constexpr int riga_nazionale = 11;
// The five stake rows stop at this row on paper, though the forms and the
// tables go on to row 20.
constexpr int ultima_riga_puntate = 17;
// The text line stands this far above the box of number 1.
constexpr float margine_riga = 12.0f;

// Marks the rows from `da` to `a` whose selection byte holds exactly 100.
template <class Selezione, class Tabella>
void scansiona(stato& s, const Selezione& selezione, const Tabella& tabella, int da, int a) {
  for (int riga = da; riga <= a; ++riga) {
    passa_oltre([&] {
      if (selezione(riga) == selezionato) segna(s, tabella(riga, asse_x), tabella(riga, asse_y));
    });
  }
}

void apri_pagina(stato& s) {
  passa_oltre([&] { stampante(s).imposta_penna(1, 1); });
  passa_oltre([&] { stampante(s).imposta_riempimento(0, 0); });
  passa_oltre([&] { stampante(s).disegna_punto_zero(); });
}

// The national wheel is played alone: when it is chosen no other wheel goes
// on the slip, whatever the other rows hold.
void segna_ruote(stato& s) {
  if (s.sel_ruote(riga_nazionale) == selezionato) {
    passa_oltre([&] { segna(s, s.tar_nazionale(asse_x), s.tar_nazionale(asse_y)); });
    return;
  }
  scansiona(s, s.sel_ruote, s.tar_ruote, 0, 10);
}

void segna_puntate(stato& s) {
  scansiona(s, s.sel_estratto, s.tar_estratto, 0, ultima_riga_puntate);
  scansiona(s, s.sel_ambo, s.tar_ambo, 0, ultima_riga_puntate);
  scansiona(s, s.sel_terno, s.tar_terno, 0, ultima_riga_puntate);
  scansiona(s, s.sel_quaterna, s.tar_quaterna, 0, ultima_riga_puntate);
  scansiona(s, s.sel_cinquina, s.tar_cinquina, 0, ultima_riga_puntate);
}

// The boxes of the determined position are tall on the slip: in the square
// style the mark is a bar from the amount row above down to the box's own
// point, 2 mm wide. The dot stays an ordinary dot.
void segna_det_posizione(stato& s) {
  for (int riga = 0; riga <= 4; ++riga) {
    passa_oltre([&] {
      if (s.sel_det_posizione(riga) != selezionato) return;
      float x = s.tar_det_posizione(riga, asse_x);
      float y = s.tar_det_posizione(riga, asse_y);
      if (s.carattere_stampa == carattere_punto) {
        segna(s, x, y);
      } else {
        stampante(s).disegna_rettangolo(x, s.tar_det_importo(riga, asse_y), x - 2.0f, y + 2.0f);
      }
    });
  }
}

// The amount as the form shows it: the caption of lblimporto, a number in
// the user's locale ("1.234,50"). A caption that is no number fails the
// statement that prints the line, and the slip goes without it.
double importo_mostrato(stato& s) {
  const auto& caption = modulo_di_stampa(s, "Form_sched_lotto_ambetto").c<etichetta>("lblimporto").caption;
  return numero_locale(caption, s.locale);
}

void stampa_riga(stato& s, const std::string& nome_scheda) {
  passa_oltre([&] { stampante(s).imposta_font_nome(font_scheda); });
  passa_oltre([&] {
    stampante(s).posiziona_testo(s.tar_numeri(1, asse_x), s.tar_numeri(1, asse_y) - margine_riga);
  });
  passa_oltre([&] { stampante(s).imposta_font_dimensione(punti_scheda); });
  passa_oltre([&] { stampante(s).stampa_testo(riga_scheda(s, nome_scheda, importo_mostrato(s))); });
  passa_oltre([&] { stampante(s).imposta_font_dimensione(punti_scheda); });
}

}  // namespace

void scheda_lotto(stato& s, const std::string& nome_scheda) {
  apri_pagina(s);
  segna_ruote(s);
  scansiona(s, s.sel_sistemi, s.tar_sistemi, 0, 8);
  scansiona(s, s.sel_gio_mult, s.tar_gio_mult, 0, 9);
  segna_puntate(s);
  scansiona(s, s.sel_det_importo, s.tar_det_importo, 0, 20);
  segna_det_posizione(s);
  scansiona(s, s.sel_ambetto, s.tar_ambetto, 0, 20);
  scansiona(s, s.sel_tipo_estrazione, s.tar_tipo_estrazione, 0, 2);
  scansiona(s, s.sel_importo_10elotto, s.tar_importo_10elotto, 0, 5);
  stampa_riga(s, nome_scheda);
}

}  // namespace schedine
