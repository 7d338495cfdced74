// The TOTALE row: the user sets a budget per wheel box by box, up to 200,
// and the two labels show the budget and what is left of it times the wheels.
// Each box that a rule unticks runs its own rule at once, nested; the steps
// after it work on the sums that the nested rule left.

#include "core/numeri.h"
#include "forms/lotto/modulo_lotto.h"

namespace schedine {

namespace {

constexpr valuta limite_budget = valuta::da_decimillesimi(2000000);

}  // namespace

int16_t modulo_lotto::conta_ruote_budget() {
  int16_t ruote = 0;
  for (int i = 0; i < 10; ++i) {
    if (spuntata("ChRuote", i)) ++ruote;
  }
  if (spuntata("ChRuotetutte", 10)) ++ruote;
  return ruote == 0 ? int16_t{1} : ruote;
}

std::string modulo_lotto::in_euro(valuta importo, int16_t ruote) const {
  return "€ " + formatta_numero((importo * ruote).a_double(), "###,##0.00", s.locale);
}

void modulo_lotto::mostra_budget(int16_t ruote) {
  passa_oltre([&] { lblimporto().caption = in_euro(importo_giocata, ruote); });
  mostra_credito(ruote);
}

void modulo_lotto::mostra_credito(int16_t ruote) {
  passa_oltre([&] { c<etichetta>("lblcredito").caption = in_euro(importo_residuo, ruote); });
}

void modulo_lotto::chtotale_click(int indice) {
  togli_spunta("Check1");
  passa_oltre([&] { c<casella_elenco>("Combo1").imposta_testo(""); });

  // Taking any part of the budget away takes every stake away.
  bool spunta_tolta = !spuntata("ChTotale", indice);
  if (spunta_tolta) {
    for (const char* riga : righe_puntata) {
      for (int colonna = 0; colonna < colonne_puntata; ++colonna) togli_spunta(riga, colonna);
    }
    for (const char* riga : {"ChEstratto1", "ChEstratto2", "ChEstratto3", "ChEstratto4", "ChEstratto5"}) {
      for (int colonna = 0; colonna <= 17; ++colonna) togli_spunta(riga, colonna);
    }
  }

  int16_t ruote = conta_ruote_budget();
  if (!spunta_tolta) {
    if (spuntata("ChTotale1", 0)) togli_spunta("ChTotale1", 0);
    passa_oltre([&] { importo_giocata += importi(indice); });
    // Beyond the limit the tick falls back, and its own rule takes the amount off again.
    if (importo_giocata > limite_budget) togli_spunta("ChTotale", indice);
  } else {
    passa_oltre([&] { importo_giocata -= importi(indice); });
  }
  passa_oltre([&] { importo_residuo = importo_giocata - importo_usato; });
  mostra_budget(ruote);
}

void modulo_lotto::chtotale1_click() {
  int16_t ruote = conta_ruote_budget();
  if (spuntata("ChTotale1", 0)) {
    // Columns 12 to 17 keep their ticks, though their amounts no longer count.
    for (int colonna = 1; colonna <= 11; ++colonna) togli_spunta("ChTotale", colonna);
    passa_oltre([&] { importo_giocata = importi(0); });
    passa_oltre([&] { importo_residuo = importo_giocata - importo_usato; });
    mostra_budget(ruote);
  } else {
    importo_giocata = valuta();
    mostra_budget(ruote);
  }
  if (importo_giocata == valuta()) {
    importo_usato = valuta();
    passa_oltre([&] { annulla_importi(); });
    passa_oltre([&] { importo_residuo = importo_giocata - importo_usato; });
    mostra_budget(ruote);
  }
}

}  // namespace schedine
