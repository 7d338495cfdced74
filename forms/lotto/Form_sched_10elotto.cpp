#include "forms/lotto/Form_sched_10elotto.h"

#include <array>
#include <chrono>

#include "calibration/file_tar.h"
#include "controls/insieme_moduli.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "systems/stampa_lotto.h"
#include "systems/stampa_pannelli.h"

namespace schedine {

namespace {

// The five rows of extracts by position, columns 0 to 17.
constexpr std::array<const char*, 5> righe_per_posizione = {"ChEstratto1", "ChEstratto2", "ChEstratto3", "ChEstratto4",
                                                            "ChEstratto5"};

// The shortfall as the platform's plain number-to-text step writes it: a
// blank for the sign, a point as the decimal mark, no trailing zeros and no
// zero before the point (" 2.5", " 12", " .5").
std::string testo_semplice(valuta importo) {
  int64_t unita = importo.decimillesimi();
  std::string segno = unita < 0 ? "-" : " ";
  if (unita < 0) unita = -unita;
  std::string intero = unita / 10000 == 0 ? "" : std::to_string(unita / 10000);
  std::string decimali = std::to_string(10000 + unita % 10000).substr(1);
  while (!decimali.empty() && decimali.back() == '0') decimali.pop_back();
  if (decimali.empty()) return segno + (intero.empty() ? "0" : intero);
  return segno + intero + "." + decimali;
}

}  // namespace

Form_sched_10elotto::Form_sched_10elotto(stato& s, insieme_moduli& moduli)
    : modulo_lotto("Form_sched_10elotto", s, moduli),
      generatore_(static_cast<uint32_t>(std::chrono::system_clock::now().time_since_epoch().count())) {
  casuale = [this] { return std::uniform_real_distribution<double>(0.0, 1.0)(generatore_); };
}

// ---------------------------------------------------------------- load, display, unload

void Form_sched_10elotto::al_caricamento() {
  // Off a 10eLotto play the whole 10eLotto frame is out of reach; on one,
  // only the picker and its random pick are.
  if (s.tipo_gioco != "10elotto") {
    passa_oltre([&] { c<cornice>("Frame8").abilitato = false; });
    for (int i = 0; i < 2; ++i) passa_oltre([&] { c<casella_controllo>("chkTipoEstrazione", i).abilitato = false; });
    for (int k = 0; k <= 6; ++k) passa_oltre([&] { c<casella_controllo>("chk10elottoImporto", k).abilitato = false; });
    passa_oltre([&] { carica_tar_lotto(s); });
  } else {
    passa_oltre([&] { c<griglia>("MSHFlexGrid1").abilitato = false; });
    passa_oltre([&] { spunta("chkTipoEstrazione", 0, 1); });
    passa_oltre([&] { carica_tar_lotto(s); });
    passa_oltre([&] { c<pulsante>("Command1").abilitato = false; });
  }
  s.numeri_scelti.azzera();
  s.numeri_scelti_n = 0;
  riempi_importi(importi, importi_colonne_10elotto);
  svuota_selezioni_base();
  range_pagine();
  disattiva_righe_per_gioco();
  if (s.tipo_gioco == "10elotto") disattiva_per_10elotto();
  // The two sums are kept by the form object across loads; only an unload resets them.
  passa_oltre([&] { importo_residuo = importo_giocata - importo_usato; });
  mostra_budget(conta_ruote_budget());
  // The skin of the slip forms is the desktop program's to apply.
  passa_oltre([&] { adatta_bordi(); });
  riempi_combo1();
  costruisci_griglia();
}

// A 10eLotto play has no budget and no wheels: the TOTALE row is out of
// reach, so a tick on the rows left enabled doesn't stay.
void Form_sched_10elotto::disattiva_per_10elotto() {
  auto disattiva = [&](const std::string& nome, int indice) {
    passa_oltre([&] { c<casella_controllo>(nome, indice).abilitato = false; });
  };
  for (const char* riga : {"ChTerno", "Chquaterna", "ChCinquina", "ChTotale"}) {
    for (int colonna = 0; colonna < colonne_puntata; ++colonna) disattiva(riga, colonna);
  }
  disattiva("ChTotale1", 0);
  for (int i = 0; i < 10; ++i) disattiva("ChRuote", i);
  for (int i = 0; i <= 9; ++i) disattiva("ChGIO_MULT", i);
  disattiva("ChRuote_naz", -1);
  disattiva("ChRuotetutte", 10);
  disattiva("Check1", -1);
}

// The subscription amounts: 0.50 to 200.00 in steps of 0.50.
void Form_sched_10elotto::riempi_combo1() {
  passa_oltre([&] {
    auto& combo1 = c<casella_elenco>("Combo1");
    combo1.svuota();
    for (int centesimi = 50; centesimi <= 20000; centesimi += 50) {
      combo1.aggiungi(formatta_numero(centesimi / 100.0, "###0.00", s.locale));
    }
  });
}

void Form_sched_10elotto::all_attivazione() {
  passa_oltre([&] { c<cornice>("Frameeuro").visibile = true; });
  passa_oltre([&] { c<cornice>("FrameEuro2").visibile = true; });
  for (int i = 11; i <= 17; ++i) passa_oltre([&] { c<casella_controllo>("ChTotale", i).visibile = true; });
  // Each activation brings the subscription back to no draws.
  passa_oltre([&] { c<casella_elenco>("Combo2").seleziona(0); });
  sposta_forme_evidenza();
  nascondi_colonna_18();
}

void Form_sched_10elotto::allo_scaricamento() {
  importo_giocata = valuta();
  importo_usato = valuta();
}

// ---------------------------------------------------------------- selection tables

void Form_sched_10elotto::svuota() {
  riempi_importi(importi, importi_colonne_10elotto);
  svuota_selezioni();
}

void Form_sched_10elotto::inizializza_variabili() {
  svuota();
  copia_ruote();
  // The rows are kept to one choice, so the first tick is the only one.
  copia_prima_spuntata("ChSistemi", 8, s.sel_sistemi);
  copia_prima_spuntata("ChGIO_MULT", 9, s.sel_gio_mult);
  if (spuntata("ChTotale1", 0)) {
    s.sel_totale(0) = selezionato;
  } else {
    // The loop names columns up to 20, which the row doesn't have: those are passed over.
    for (int i = 1; i <= 20; ++i) {
      passa_oltre([&] {
        if (spuntata("ChTotale", i)) s.sel_totale(i) = selezionato;
      });
    }
  }
  copia_righe_puntata();
  vettore<uint8_t, 18>* tabelle[] = {&s.sel_estratto1, &s.sel_estratto2, &s.sel_estratto3, &s.sel_estratto4,
                                     &s.sel_estratto5};
  for (int colonna = 0; colonna <= 17; ++colonna) {
    for (size_t riga = 0; riga < righe_per_posizione.size(); ++riga) {
      if (spuntata(righe_per_posizione[riga], colonna)) (*tabelle[riga])(colonna) = selezionato;
    }
  }
  valore_inutilizzato = 31.5f;
}

void Form_sched_10elotto::annulla_importi() {
  for (const char* riga : righe_puntata) {
    for (int colonna = 0; colonna < colonne_puntata; ++colonna) togli_spunta(riga, colonna);
  }
}

// ---------------------------------------------------------------- print, clear, leave

void Form_sched_10elotto::cmdstampa_click() {
  // The whole budget must be placed.
  if (importo_usato < importo_giocata) {
    // The shortfall goes to text with a point and is read back by the
    // locale's rules before it is formatted: with a decimal comma the point
    // reads as a thousands separator, so 2.50 shows as 25,00.
    passa_oltre([&] {
      double mancante = numero_locale(testo_semplice(importo_giocata - importo_usato), s.locale);
      s.piattaforma->messaggio("Mancano € " + formatta_numero(mancante, "###,##0.00", s.locale) + " per completare",
                               stile_messaggio::solo_ok, "");
    });
    return;
  }
  bool dieci_e_lotto = s.tipo_gioco == "10elotto";
  if ((dieci_e_lotto || s.numeri_scelti_n == 10) && !importo_10elotto_scelto()) {
    passa_oltre([&] {
      s.piattaforma->messaggio("Selezionare un importo di giocata per le combinazioni 10 e lotto ",
                               stile_messaggio::esclamativo, "");
    });
    return;
  }
  if (!dieci_e_lotto) {
    passa_oltre([&] { inizializza_variabili(); });
    prepara_stampa();
    passa_oltre([&] { stampa_lotto(s, s.tipo_gioco); });
    return;
  }
  // The 10eLotto slip takes no stakes from the grid: the ticked amount is the price of its column.
  prepara_stampa();
  passa_oltre([&] { stampa_10elotto(s, s.tipo_sistema, static_cast<float>(importo_10elotto.a_double())); });
  // The frame hidden at the end is the other Lotto form's, so this one's stays up.
  passa_oltre([&] { moduli("Form_sched_lotto_ambetto").c<cornice>("Frame2").visibile = false; });
}

bool Form_sched_10elotto::importo_10elotto_scelto() {
  bool scelto = false;
  for (int k = 0; k <= 6; ++k) {
    passa_oltre([&] {
      if (spuntata("chk10elottoImporto", k)) scelto = true;
    });
  }
  return scelto;
}

void Form_sched_10elotto::cmdannulla_click() {
  // Each untick runs the box's rule, so the sums follow. TOTALE columns 11
  // to 17 are not in the list: a budget set there survives.
  annulla_importi();
  for (int i = 0; i < 10; ++i) togli_spunta("ChRuote", i);
  togli_spunta("ChRuotetutte", 10);
  for (int i = 0; i <= 8; ++i) togli_spunta("ChSistemi", i);
  for (int i = 0; i <= 9; ++i) togli_spunta("ChGIO_MULT", i);
  for (int i = 1; i <= 10; ++i) togli_spunta("ChTotale", i);
  togli_spunta("ChTotale1", 0);
  for (const char* riga : righe_per_posizione) {
    for (int colonna = 0; colonna <= 17; ++colonna) togli_spunta(riga, colonna);
  }
  togli_spunta("ChRuote_naz");
}

void Form_sched_10elotto::cmdexit_click() {
  passa_oltre([&] { scarica(); });
  passa_oltre([&] { moduli("Form1").mostra(); });
}

}  // namespace schedine
