#include "printing/scheda_enalotto.h"

#include "controls/modulo.h"
#include "core/numeri.h"
#include "printing/dispositivo_stampa.h"
#include "printing/lavoro_stampa.h"
#include "printing/riga_scheda.h"
#include "printing/scheda_controlli.h"
#include "printing/scheda_enalotto_geometria.h"
#include "printing/segna.h"

// Derived points are computed in double and rounded to Single only when they
// reach the device. Neither renderer passes over a fault.

namespace schedine {

namespace {

const std::string modulo_enalotto = "Form_sched_enalotto";
constexpr int ultimo_superstar_cinque_pannelli = 12;
constexpr int ultimo_superstar_due_pannelli = 10;

double xc(const stato& s, int gruppo, int riga) { return s.tab_coord(gruppo, riga, asse_x); }
double yc(const stato& s, int gruppo, int riga) { return s.tab_coord(gruppo, riga, asse_y); }

void segna_d(stato& s, double x, double y) { segna(s, static_cast<float>(x), static_cast<float>(y)); }

// The grid on the form rules over numeri_superstar: the yellow cells are
// read again, along the rows, into entries 1 to 12. A thirteenth and later
// yellow cells still count for the amount but have no entry, and so are not
// printed; the form refuses to start a print with them anyway.
int ricarica_superstar(stato& s) {
  s.numeri_superstar.azzera();
  auto& griglia_superstar = modulo_di_stampa(s, modulo_enalotto).c<griglia>("MSHFlexGrid1");
  int k = 0;
  for (int r = 0; r < griglia_superstar.righe(); ++r) {
    for (int c = 0; c < griglia_superstar.colonne(); ++c) {
      griglia_superstar.imposta_cella_corrente(r, c);
      if (griglia_superstar.colore_cella(r, c) != griglia::giallo) continue;
      ++k;
      if (k <= ultimo_superstar_cinque_pannelli) {
        s.numeri_superstar(k) = a_byte(numero_iniziale(griglia_superstar.testo_cella(r, c)));
      }
    }
  }
  return k;
}

// Each Superstar number is one more column; the number of draws of the
// subscription, when Combo3 names one, multiplies the whole.
float importo_enalotto(stato& s, int numeri_superstar, float prezzo_colonna, uint8_t colonne_scheda) {
  float importo = static_cast<float>(numeri_superstar + 1) * prezzo_colonna * static_cast<float>(colonne_scheda);
  double concorsi = numero_iniziale(modulo_di_stampa(s, modulo_enalotto).c<casella_elenco>("Combo3").testo());
  if (concorsi > 0) importo = a_single(importo * concorsi);
  return importo;
}

// The Superstar box of each panel in play is the one just right of number 15,
// on the panel's first line.
void segna_superstar_pannelli(stato& s, uint8_t colonne_scheda) {
  stampante(s).imposta_font_dimensione(punti_scheda);
  double colonna = xc(s, 1, 15) - xc(s, 1, 14);
  for (int g = 1; g <= colonne_scheda; ++g) {
    auto x = static_cast<float>(xc(s, g, 15) + colonna);
    auto y = static_cast<float>(yc(s, g, 15));
    segna(s, x, y);
    stampante(s).posiziona_testo(x, y);
  }
}

void segna_numeri_superstar(stato& s) {
  double discesa = discesa_pannello5(s, righe_sotto_superstar);
  for (int e = 1; e <= ultimo_superstar_cinque_pannelli; ++e) {
    int numero = s.numeri_superstar(e);
    if (numero > 0) segna_d(s, xc(s, 5, numero), yc(s, 5, numero) + discesa);
  }
}

// Subscription codes 80 to 87 are columns 5 to 12 of panel 5's last line,
// twelve lines lower.
void segna_abbonamento(stato& s) {
  int codice_abbonamento = s.abbonamento_concorsi;
  segna_d(s, xc(s, 5, codice_abbonamento), yc(s, 5, codice_abbonamento) + discesa_pannello5(s, righe_sotto_abbonamento));
}

// The two-panel Superstar box: a dot as ever, but the square stands right of
// and above its point, not as segna draws it.
void segna_superstar_due_pannelli(stato& s) {
  stampante(s).imposta_font_dimensione(punti_scheda);
  float x = s.tab_coord(1, 15, asse_x);
  auto y = static_cast<float>(yc(s, 1, 15) + 45.0);
  if (s.carattere_stampa == carattere_punto) {
    segna(s, x, y);
  } else {
    stampante(s).disegna_rettangolo(x, y, x + 2.0f, y - 2.0f);
  }
  stampante(s).posiziona_testo(x, y);
}

}  // namespace

void scheda_enalotto(stato& s, const std::string& nome_scheda, float prezzo_colonna, uint8_t colonne_scheda) {
  int k = ricarica_superstar(s);
  // Superstar on with no number chosen: the retailer picks one, and it is paid.
  if (k == 0 && s.superstar_attiva) k = 1;
  float importo = importo_enalotto(s, k, prezzo_colonna, colonne_scheda);
  stampa_riga_scheda(s, nome_scheda, importo, s.tab_coord(1, 1, asse_x), s.tab_coord(1, 1, asse_y) - 15.0f);
  if (s.superstar_attiva) {
    segna_superstar_pannelli(s, colonne_scheda);
    segna_numeri_superstar(s);
  }
  if (s.abbonamento_concorsi > 0) segna_abbonamento(s);
}

void scheda_enalotto2(stato& s, const std::string& nome_scheda, float prezzo_colonna, uint8_t colonne_scheda) {
  float importo = static_cast<float>(colonne_scheda) * prezzo_colonna;
  stampa_riga_scheda(s, nome_scheda, importo, s.tab_coord(2, 61, asse_x), s.tab_coord(2, 61, asse_y) - 13.0f);
  if (s.superstar_attiva) {
    segna_superstar_due_pannelli(s);
    for (int e = 1; e <= ultimo_superstar_due_pannelli; ++e) {
      int numero = s.numeri_superstar(e);
      if (numero != 0) segna(s, s.tab_coord(3, numero, asse_x), s.tab_coord(3, numero, asse_y));
    }
  }
  // Group 4 holds the subscription boxes by number of draws in rows 2 to 15,
  // but the code looked up is 80 to 87: only a file with values in those
  // rows puts the mark on its box.
  if (s.abbonamento_concorsi > 0) {
    segna(s, s.tab_coord(4, s.abbonamento_concorsi, asse_x), s.tab_coord(4, s.abbonamento_concorsi, asse_y));
  }
}

}  // namespace schedine
