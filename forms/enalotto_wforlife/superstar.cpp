// The Superstar choice on Form_sched_enalotto: a grid of the numbers 1 to 90
// on which a yellow cell is a chosen number, at most twelve; or Check2,
// which leaves the number to the retailer. The colours are the whole state
// of the choice; numeri_superstar is refilled from them.

#include <algorithm>

#include "core/numeri.h"
#include "core/piattaforma.h"
#include "core/stato.h"
#include "forms/enalotto_wforlife/Form_sched_enalotto.h"

namespace schedine {

namespace {

constexpr int righe_superstar = 9;
constexpr int colonne_superstar = 11;  // column 0 is hidden and empty
constexpr int numeri_al_massimo = 12;

}  // namespace

void Form_sched_enalotto::costruisci_griglia() {
  // Cell (r, c) holds 10 r + c: the numbers run along the rows.
  auto& g = superstar();
  g.dimensiona(righe_superstar, colonne_superstar);
  g.larghezze_colonne[0] = 0;
  for (int col = 1; col < colonne_superstar; ++col) {
    g.larghezze_colonne[static_cast<size_t>(col)] = static_cast<float>(a_long(g.larghezza / 10 - 5.5));
    for (int r = 0; r < righe_superstar; ++r) g.imposta_testo_cella(r, col, std::to_string(10 * r + col));
  }
}

int Form_sched_enalotto::riempi_numeri_superstar() {
  s.numeri_superstar.azzera();
  auto& g = superstar();
  int gialle = 0;
  for (int col = 0; col < g.colonne(); ++col) {
    for (int r = 0; r < g.righe(); ++r) {
      if (g.colore_cella(r, col) != griglia::giallo) continue;
      ++gialle;
      // The table holds twelve: a thirteenth number fails to be stored, and is passed over.
      passa_oltre([&] { s.numeri_superstar(gialle) = a_byte(numero_iniziale(g.testo_cella(r, col))); });
    }
  }
  return gialle;
}

int Form_sched_enalotto::conta_gialle() {
  auto& g = superstar();
  int gialle = 0;
  for (int r = 0; r < g.righe(); ++r) {
    for (int col = 0; col < g.colonne(); ++col) {
      if (g.colore_cella(r, col) == griglia::giallo) ++gialle;
    }
  }
  return gialle;
}

void Form_sched_enalotto::imbianca_griglia() {
  auto& g = superstar();
  for (int r = 0; r < g.righe(); ++r) {
    for (int col = 0; col < g.colonne(); ++col) g.imposta_colore_cella(r, col, griglia::bianco);
  }
}

void Form_sched_enalotto::inverti_selezione() {
  // Every cell of the rectangle flips, so a click (a one-cell rectangle) on
  // a chosen number removes it; the empty cells of column 0 never change.
  auto& g = superstar();
  const int riga_alta = std::max(g.riga, g.riga_fine);
  const int riga_bassa = std::min(g.riga, g.riga_fine);
  const int colonna_alta = std::max(g.colonna, g.colonna_fine);
  const int colonna_bassa = std::min(g.colonna, g.colonna_fine);
  for (int col = colonna_alta; col >= colonna_bassa; --col) {
    for (int r = riga_alta; r >= riga_bassa; --r) {
      g.imposta_cella_corrente(r, col);
      if (g.testo_cella(r, col).empty()) continue;
      g.imposta_colore_cella(r, col, g.colore_cella(r, col) == griglia::giallo ? griglia::bianco : griglia::giallo);
    }
  }
}

void Form_sched_enalotto::rilascio_griglia() {
  // Hidden while it changes, so that it doesn't redraw cell by cell.
  passa_oltre([&] { superstar().visibile = false; });
  passa_oltre([&] { inverti_selezione(); });
  passa_oltre([&] { superstar().visibile = true; });
  int numeri = 0;
  passa_oltre([&] { numeri = riempi_numeri_superstar(); });
  s.superstar_attiva = numeri > 0;
  if (numeri <= numeri_al_massimo) {
    passa_oltre([&] { c<pulsante>("cmdstampa", 1).abilitato = true; });
  } else {
    passa_oltre([&] {
      s.piattaforma->messaggio(
          "I numeri superstar selezionati non possono essere più di 12! Eliminare i numeri in eccesso per proseguire.",
          stile_messaggio::informazione, "");
    });
    passa_oltre([&] { c<pulsante>("cmdstampa", 1).abilitato = false; });
  }
  range_pagine_e();
  applica_costo(numeri, precisione::singola);
}

// Check2's rule doesn't pass over a fault: one in the cost reaches the user.
void Form_sched_enalotto::check2_click() {
  range_pagine_e();
  // An earlier choice on the grid is lost; numeri_superstar keeps it until the next refill.
  imbianca_griglia();
  bool casuale = c<casella_controllo>("Check2").valore() == 1;
  superstar().abilitato = !casuale;
  s.superstar_attiva = casuale;
  applica_costo(casuale ? 1 : 0, precisione::doppia);
}

}  // namespace schedine
