#include "forms/enalotto_wforlife/Form_sched_enalotto.h"

#include "core/numeri.h"
#include "core/stato.h"
#include "forms/enalotto_wforlife/testi_prezzo.h"

namespace schedine {

namespace {

constexpr int voce_cinque_colonne = 4;  // Combo1's entry "5"
constexpr int voce_due_colonne = 1;     // Combo1's entry "2"
// Combo3's entries past the empty one ("2" ... "15") are told to the slip as 80 ... 87.
constexpr int base_abbonamento = 79;

}  // namespace

Form_sched_enalotto::Form_sched_enalotto(stato& s, insieme_moduli& moduli)
    : modulo_pannelli("Form_sched_enalotto", s, moduli, "superenalotto") {
  caption = "Marendolia - Stampa Schedine Lotto e Superenalotto";
}

// ---------------------------------------------------------------- load and unload

void Form_sched_enalotto::al_caricamento() {
  passa_oltre([&] { riempi_elenco_prezzi(); });
  // A cst made here gives the price as a plain number in the user's format,
  // "0,5", which no entry of the list matches: the price then stays unset
  // until the user picks one, and a print asks for it.
  std::string prezzo;
  passa_oltre([&] { prezzo = leggi_cst(std::string("0") + s.locale.decimale + "5"); });
  cerca_prezzo(prezzo);
  passa_oltre([&] { c<cornice>("Frame1").visibile = false; });
  passa_oltre([&] { c<etichetta>("Text1").caption = c<casella_elenco>("Combo2").testo(); });
  passa_oltre([&] { imposta_combo1(voce_cinque_colonne); });
  passa_oltre([&] { c<cornice>("Frame3").altezza = 3000; });
  altezza = 4350;
  // The skin of the slip forms is the desktop program's to apply.
  adatta_bordi();
  passa_oltre([&] { costruisci_griglia(); });
  // Only a form that loads with the two-panel slip on gets here disabled.
  passa_oltre([&] {
    if (opzione("Option2")) {
      superstar().abilitato = false;
      c<casella_elenco>("Combo3").abilitato = false;
    }
  });
  s.superstar_attiva = false;
  s.abbonamento_concorsi = 0;
}

void Form_sched_enalotto::allo_scaricamento() {
  // The form's instance goes with its unload: the next one starts with no count.
  colonne_form = 0;
}

void Form_sched_enalotto::riempi_elenco_prezzi() {
  // Every price from 0,30 to 50,00 by the cent, in the user's number format.
  auto& combo2 = c<casella_elenco>("Combo2");
  for (int centesimi = 30; centesimi <= 5000; ++centesimi) combo2.aggiungi(formatta_euro(centesimi / 100.0));
}

double Form_sched_enalotto::prezzo_per_conteggio() { return prezzo_da_etichetta(c<etichetta>("Text1").caption); }

void Form_sched_enalotto::imposta_combo1(int voce) {
  // Click and Change run the same rule, and Change runs only when the text changes.
  c<casella_elenco>("Combo1").seleziona(voce);
}

// ---------------------------------------------------------------- slip choice

// The two slip choices don't pass over a fault: it would reach the user.
void Form_sched_enalotto::option1_click() {
  if (!opzione("Option1")) return;
  c<casella_elenco>("Combo1").abilitato = true;
  imbianca_griglia();
  superstar().abilitato = false;
  imposta_combo1(voce_cinque_colonne);
  auto& combo3 = c<casella_elenco>("Combo3");
  combo3.abilitato = false;
  combo3.seleziona(0);
  // The focus then goes to txtdalla, which the desktop program does.
}

void Form_sched_enalotto::option2_click() {
  if (!opzione("Option2")) return;
  c<casella_elenco>("Combo1").abilitato = false;
  // The Superstar panel comes into view.
  larghezza = 13360;
  superstar().abilitato = true;
  imposta_combo1(voce_due_colonne);
  c<casella_elenco>("Combo3").abilitato = true;
}

// ---------------------------------------------------------------- subscription

void Form_sched_enalotto::combo3_click() {
  passa_oltre([&] {
    int voce = c<casella_elenco>("Combo3").indice_selezionato();
    s.abbonamento_concorsi = voce > 0 ? a_integer(voce + base_abbonamento) : int16_t{0};
  });
  int numeri = 0;
  passa_oltre([&] { numeri = riempi_numeri_superstar(); });
  range_pagine_e();
  // The retailer's number counts as one.
  passa_oltre([&] {
    if (c<casella_controllo>("Check2").valore() == 1) numeri = 1;
  });
  applica_costo(numeri, precisione::singola);
}

// ---------------------------------------------------------------- reset

void Form_sched_enalotto::cmdannulla_click() {
  // The slip choice stays: with the two-panel slip on, the form now stands
  // at 5 columns a slip with Combo1 disabled, and the print uses 2 all the same.
  passa_oltre([&] { s.abbonamento_concorsi = 0; });
  passa_oltre([&] { s.superstar_attiva = false; });
  passa_oltre([&] { imposta_combo1(voce_cinque_colonne); });
  passa_oltre([&] { s.colonne_per_scheda = a_byte(numero_locale(c<casella_elenco>("Combo1").testo(), s.locale)); });
  passa_oltre([&] { c<casella_elenco>("Combo3").seleziona(0); });
  passa_oltre([&] { imbianca_griglia(); });
  passa_oltre([&] { s.numeri_superstar.azzera(); });
  // Unticking runs Check2's rule, whose fault ends here.
  passa_oltre([&] { c<casella_controllo>("Check2").imposta_valore(0); });
  range_pagine_e();
}

}  // namespace schedine
