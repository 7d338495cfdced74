#include "printing/prove_taratura.h"

#include "controls/modulo.h"
#include "core/errore_runtime.h"
#include "printing/dispositivo_stampa.h"
#include "printing/lavoro_stampa.h"
#include "printing/riga_scheda.h"
#include "printing/scheda_controlli.h"
#include "printing/scheda_enalotto.h"
#include "printing/scheda_enalotto_geometria.h"
#include "printing/segna.h"

// Each sheet is one job of one page, ended by chiudi_stampa alone, and draws
// from the tables as they stand in memory, saved or not. Nothing the user
// chose on a slip form plays a part, except what the SuperEnalotto
// renderers read of their own.

namespace schedine {

namespace {

const std::string nome_prova = "Prova Taratura";
const std::string testo_prova_wforlife = " Prova taratura";

template <class Tabella>
void segna_righe(stato& s, const Tabella& tabella, int da, int a) {
  for (int riga = da; riga <= a; ++riga) segna(s, tabella(riga, asse_x), tabella(riga, asse_y));
}

void segna_gruppo(stato& s, int gruppo, int da, int a) {
  for (int riga = da; riga <= a; ++riga) segna(s, s.tab_coord(gruppo, riga, asse_x), s.tab_coord(gruppo, riga, asse_y));
}

// Rows of panel 5 where the five-panel renderer puts the Superstar grid and
// the subscription boxes.
void segna_pannello5_spostato(stato& s, int da, int a, int righe) {
  double discesa = discesa_pannello5(s, righe);
  for (int n = da; n <= a; ++n) {
    segna(s, s.tab_coord(5, n, asse_x), static_cast<float>(s.tab_coord(5, n, asse_y) + discesa));
  }
}

// The Win for Life sheets carry a fixed text instead of the slip's line.
void stampa_testo_prova(stato& s, float discesa) {
  dispositivo_stampa& d = stampante(s);
  d.imposta_font_grassetto(false);
  d.imposta_font_nome(font_scheda);
  d.posiziona_testo(s.tab_coord(1, 2, asse_x), s.tab_coord(1, 2, asse_y) - discesa);
  d.imposta_font_dimensione(punti_scheda);
  d.stampa_testo(testo_prova_wforlife);
}

}  // namespace

// Only rows 0 to 12 of the stake tables and 0 to 5 of the systems: the rows
// the slip offers most. The determined-position boxes are plain marks here.
void prova_tar_lotto(stato& s) {
  dispositivo_stampa& d = stampante(s);
  prepara_lavoro_lotto(d);
  segna_righe(s, s.tar_numeri, 1, 90);
  segna_righe(s, s.tar_ruote, 0, 10);
  segna(s, s.tar_nazionale(asse_x), s.tar_nazionale(asse_y));
  segna_righe(s, s.tar_ambetto, 0, 12);
  segna_righe(s, s.tar_det_importo, 0, 12);
  segna_righe(s, s.tar_det_posizione, 0, 4);
  segna_righe(s, s.tar_tipo_estrazione, 0, 2);
  segna_righe(s, s.tar_importo_10elotto, 0, 5);
  segna_righe(s, s.tar_sistemi, 0, 5);
  segna_righe(s, s.tar_gio_mult, 0, 5);
  segna_righe(s, s.tar_estratto, 0, 12);
  segna_righe(s, s.tar_ambo, 0, 12);
  segna_righe(s, s.tar_terno, 0, 12);
  segna_righe(s, s.tar_quaterna, 0, 12);
  segna_righe(s, s.tar_cinquina, 0, 12);
  d.imposta_font_dimensione(12.0f);
  d.chiudi_stampa();
}

// The Superstar boxes and the text line come from the slip's own renderer,
// on the slip form loaded for the purpose and unloaded after.
void prova_tar_enalotto(stato& s) {
  dispositivo_stampa& d = stampante(s);
  prepara_lavoro(d);
  for (int g = 1; g <= 5; ++g) segna_gruppo(s, g, 1, 90);
  segna_pannello5_spostato(s, 1, 90, righe_sotto_superstar);
  s.numeri_superstar.azzera();
  segna_pannello5_spostato(s, 80, 87, righe_sotto_abbonamento);
  modulo& modulo_enalotto = modulo_di_stampa(s, "Form_sched_enalotto");
  modulo_enalotto.carica();
  d.imposta_font_grassetto(false);
  s.superstar_attiva = true;
  scheda_enalotto(s, nome_prova, 0.0f, 5);
  modulo_enalotto.scarica();
  d.chiudi_stampa();
}

void prova_tar_enalotto2(stato& s) {
  dispositivo_stampa& d = stampante(s);
  prepara_lavoro(d);
  for (int g = 1; g <= 3; ++g) segna_gruppo(s, g, 1, 90);
  segna_gruppo(s, 4, 1, 6);
  for (int riga : {9, 12, 15}) segna_gruppo(s, 4, riga, riga);
  d.imposta_font_grassetto(false);
  s.superstar_attiva = true;
  scheda_enalotto2(s, nome_prova, 0.0f, 5);
  d.chiudi_stampa();
}

// The Win for Life sheets stop quietly at their first fault, leaving the
// page as far as it got.
void prova_tar_wforlife(stato& s) {
  passa_oltre([&] {
    dispositivo_stampa& d = stampante(s);
    prepara_lavoro(d);
    segna_gruppo(s, 1, 1, 20);
    segna_gruppo(s, 2, 1, 2);
    segna_gruppo(s, 3, 1, 5);
    segna_gruppo(s, 4, 1, 3);
    stampa_testo_prova(s, 28.0f);
    d.chiudi_stampa();
  });
}

void prova_tar_wforlife5(stato& s) {
  passa_oltre([&] {
    dispositivo_stampa& d = stampante(s);
    prepara_lavoro(d);
    for (int g = 1; g <= 5; ++g) segna_gruppo(s, g, 1, 20);
    segna_gruppo(s, 6, 1, 1);
    segna_gruppo(s, 7, 2, 2);
    segna_gruppo(s, 8, 1, 105);
    stampa_testo_prova(s, 31.0f);
    d.chiudi_stampa();
  });
}

}  // namespace schedine
