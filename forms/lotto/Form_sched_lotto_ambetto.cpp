#include "forms/lotto/Form_sched_lotto_ambetto.h"

#include "calibration/file_tar.h"
#include "controls/insieme_moduli.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "systems/stampa_lotto.h"

namespace schedine {

namespace {

constexpr std::array<uint8_t, 6> moltiplicatori = {2, 3, 5, 10, 15, 20};
constexpr std::array<int16_t, 6> importi_dieci_e_lotto = {1, 2, 3, 5, 10, 100};

}  // namespace

Form_sched_lotto_ambetto::Form_sched_lotto_ambetto(stato& s, insieme_moduli& moduli)
    : modulo_lotto("Form_sched_lotto_ambetto", s, moduli) {}

// ---------------------------------------------------------------- load, display, unload

void Form_sched_lotto_ambetto::al_caricamento() {
  passa_oltre([&] { carica_tar_lotto(s); });
  passa_oltre([&] { riempi_tabelle(); });
  passa_oltre([&] { svuota_selezioni_base(); });
  range_pagine();
  // This form disables nothing but the bet rows, whatever the game; 10eLotto included.
  disattiva_righe_per_gioco();
  passa_oltre([&] { lblimporto().caption = formatta_numero(importo_giocata.a_double(), "###,##0.00", s.locale); });
  passa_oltre([&] { adatta_bordi(); });
}

void Form_sched_lotto_ambetto::riempi_tabelle() {
  riempi_importi(importi, importi_colonne_ambetto);
  for (int i = 0; i < 6; ++i) {
    moltiplicatori_abbonamento(i) = moltiplicatori[static_cast<size_t>(i)];
    moltiplicatori_giocate(i) = moltiplicatori[static_cast<size_t>(i)];
    s.importi_10elotto(i) = importi_dieci_e_lotto[static_cast<size_t>(i)];
  }
}

void Form_sched_lotto_ambetto::all_attivazione() {
  passa_oltre([&] { c<cornice>("Frameeuro").visibile = true; });
  // Under Frameeuro's rectangle: shown, yet covered by the amount heads.
  passa_oltre([&] { c<casella_controllo>("ChTotale", 11).visibile = true; });
  passa_oltre([&] { c<casella_controllo>("ChTotale", 12).visibile = true; });
  sposta_forme_evidenza();
  nascondi_colonna_18();
}

void Form_sched_lotto_ambetto::allo_scaricamento() { importo_giocata = valuta(); }

// ---------------------------------------------------------------- selection tables

void Form_sched_lotto_ambetto::svuota() {
  riempi_importi(importi, importi_colonne_ambetto);
  svuota_selezioni();
  s.sel_ambetto.azzera();
  s.sel_det_importo.azzera();
  s.sel_det_posizione.azzera();
  s.sel_tipo_estrazione.azzera();
  s.sel_importo_10elotto.azzera();
}

void Form_sched_lotto_ambetto::inizializza_variabili() {
  svuota();
  copia_ruote();
  // Both rows may stand with several ticks (the price has them all); the slip gets the first.
  copia_prima_spuntata("ChSistemi", 5, s.sel_sistemi);
  copia_prima_spuntata("ChGIO_MULT", 5, s.sel_gio_mult);
  copia_righe_puntata();
  // The two rows of the determined extract go crosswise: the thirteen amount
  // boxes to the six slots of the position table, the five position boxes to
  // the amount table. An amount ticked beyond column 5 overruns its table and
  // ends the copy here, so the rows below stay empty for that print.
  for (int i = 0; i <= 17; ++i) {
    if (spuntata("ChEstratto1", i)) s.sel_det_posizione(i) = selezionato;
  }
  for (int i = 0; i <= 4; ++i) {
    if (spuntata("ChEstrattoPos", i)) s.sel_det_importo(i) = selezionato;
  }
  valore_inutilizzato = 31.5f;
  for (int i = 0; i < colonne_puntata; ++i) {
    if (spuntata("chAmbetto", i)) s.sel_ambetto(i) = selezionato;
  }
  for (int i = 0; i <= 2; ++i) {
    if (spuntata("chkTipoEstrazione", i)) s.sel_tipo_estrazione(i) = selezionato;
  }
  for (int i = 0; i <= 5; ++i) {
    if (spuntata("chk10elottoImporto", i)) s.sel_importo_10elotto(i) = selezionato;
  }
}

void Form_sched_lotto_ambetto::annulla_importi() {
  for (const char* riga : {"ChEstratto", "Chambo", "ChTerno", "Chquaterna", "ChCinquina", "chAmbetto"}) {
    for (int colonna = 0; colonna < colonne_puntata; ++colonna) togli_spunta(riga, colonna);
  }
}

// ---------------------------------------------------------------- events

void Form_sched_lotto_ambetto::ruote_naz_click() {
  // The national wheel stands alone: it clears the other wheels. Ticking a
  // wheel afterwards leaves it ticked, and it holds the count at one.
  bool nazionale = true;
  passa_oltre([&] { nazionale = spuntata("ChRuote_naz"); });
  if (nazionale) {
    for (int i = 0; i < 10; ++i) togli_spunta("ChRuote", i);
    togli_spunta("ChRuotetutte", 10);
    passa_oltre([&] { spunta("ChRuote_naz", -1, 1); });
  }
  passa_oltre([&] { CalcolaImportoTotale(); });
}

void Form_sched_lotto_ambetto::cmdstampa_click() {
  // The caption is read by its leading number, which stops at a decimal
  // comma: in such a locale a play under one euro reads 0 and is refused.
  bool importo_nullo = true;
  passa_oltre([&] { importo_nullo = numero_iniziale(lblimporto().caption) == 0; });
  if (importo_nullo) {
    passa_oltre(
        [&] { s.piattaforma->messaggio("L'importo di giocata non è corretto.", stile_messaggio::solo_ok, ""); });
    return;
  }
  passa_oltre([&] { inizializza_variabili(); });
  prepara_stampa();
  // The driver has no cover of its own: a run that stops half-way ends here, silently.
  passa_oltre([&] { stampa_lotto(s, s.tipo_gioco); });
}

void Form_sched_lotto_ambetto::cmdannulla_click() {
  // Each untick runs the box's rule, so the price follows down to zero.
  // The boxes a row of this form lacks are passed over; the positions of the
  // determined extract and TOTALE columns 11 and 12 keep their ticks.
  for (const char* riga : {"ChEstratto", "Chambo", "ChTerno", "Chquaterna", "ChCinquina", "chAmbetto"}) {
    for (int colonna = 0; colonna < colonne_puntata; ++colonna) togli_spunta(riga, colonna);
  }
  for (int i = 0; i < 10; ++i) togli_spunta("ChRuote", i);
  togli_spunta("ChRuotetutte", 10);
  for (int i = 0; i <= 8; ++i) togli_spunta("ChSistemi", i);
  for (int i = 0; i <= 9; ++i) togli_spunta("ChGIO_MULT", i);
  for (int i = 1; i <= 10; ++i) togli_spunta("ChTotale", i);
  togli_spunta("ChTotale1", 0);
  for (int i = 0; i <= 17; ++i) togli_spunta("ChEstratto1", i);
  togli_spunta("ChRuote_naz");
  for (int i = 0; i <= 2; ++i) togli_spunta("chkTipoEstrazione", i);
  for (int i = 0; i <= 5; ++i) togli_spunta("chk10elottoImporto", i);
}

void Form_sched_lotto_ambetto::cmdexit_click() {
  passa_oltre([&] { scarica(); });
  passa_oltre([&] { moduli("Form1").mostra(); });
}

}  // namespace schedine
