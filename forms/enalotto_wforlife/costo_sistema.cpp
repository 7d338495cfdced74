// The cost of the system on Form_sched_enalotto with the Superstar numbers
// and the subscription on top: range_pagine_e has just shown the plain cost
// of the columns, from which the number of columns is taken back.

#include "core/errore_runtime.h"
#include "core/numeri.h"
#include "core/stato.h"
#include "forms/enalotto_wforlife/Form_sched_enalotto.h"
#include "forms/enalotto_wforlife/testi_prezzo.h"

namespace schedine {

namespace {

// A division as the platform does it: 0 / 0 overflows and any other
// number over 0 is a division by zero, both run-time errors.
template <class T>
T dividi(T dividendo, T divisore) {
  if (divisore == 0) throw errore_runtime(dividendo == 0 ? codice::overflow : codice::divisione_per_zero);
  return dividendo / divisore;
}

}  // namespace

// The same steps in Single or in Double, each run by `esegui`, which passes
// over a failing step or lets its fault go up to the caller.
template <class T, class Esegui>
void Form_sched_enalotto::calcola_costo(int k, Esegui&& esegui) {
  T prezzo = 0;
  T colonne = 0;
  T costo = 0;
  auto& lbltot = c<etichetta>("lbltot");
  // The price picked in the list (not the one saved, in Text1): the columns
  // come out as the cost divided by it, and the cost as columns times it again.
  esegui([&] { prezzo = static_cast<T>(prezzo_da_elenco(c<casella_elenco>("Combo2").testo())); });
  esegui([&] {
    colonne = dividi(static_cast<T>(numero_locale(sostituisci(lbltot.caption, "€", ""), s.locale)), prezzo);
  });
  esegui([&] { costo = colonne * prezzo + static_cast<T>(k) * colonne * prezzo; });
  esegui([&] {
    double concorsi = numero_iniziale(c<casella_elenco>("Combo3").testo());
    if (concorsi > 0) costo = static_cast<T>(costo * concorsi);
  });
  esegui([&] { lbltot.caption = formatta_euro(costo); });
}

void Form_sched_enalotto::applica_costo(int k, precisione p) {
  if (p == precisione::singola) {
    calcola_costo<float>(k, [](auto&& passo) { passa_oltre(passo); });
  } else {
    calcola_costo<double>(k, [](auto&& passo) { passo(); });
  }
}

}  // namespace schedine
