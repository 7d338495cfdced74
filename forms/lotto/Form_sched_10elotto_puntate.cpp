// The budget of Form_sched_10elotto, box by box: a stake placed beyond what
// the TOTALE row set falls back at once, and the wheel boxes only change how
// many times the two sums are shown. Each box that a rule ticks or unticks
// runs its own rule at once, nested; the steps after it work on the sums
// that the nested rule left.

#include "forms/lotto/Form_sched_10elotto.h"

namespace schedine {

void Form_sched_10elotto::puntata_click(const std::string& riga, int indice) {
  int16_t ruote = conta_ruote_budget();
  if (spuntata(riga, indice)) {
    passa_oltre([&] { importo_usato += importi(indice); });
    // The untick runs this rule again with the box empty, which takes the amount back off.
    if (importo_usato > importo_giocata) togli_spunta(riga, indice);
  } else {
    passa_oltre([&] { importo_usato -= importi(indice); });
  }
  passa_oltre([&] { importo_residuo = importo_giocata - importo_usato; });
  mostra_credito(ruote);
  // With no budget no stake stays.
  if (importo_giocata == valuta()) {
    importo_usato = valuta();
    passa_oltre([&] { annulla_importi(); });
    passa_oltre([&] { importo_residuo = importo_giocata - importo_usato; });
    mostra_credito(ruote);
  }
}

// The sums are shown for the wheels ticked now; when the untick of the
// national wheel runs its own rule, that rule shows them for one wheel last.
void Form_sched_10elotto::ruote_click() {
  mostra_budget(conta_ruote_budget());
  togli_spunta("ChRuote_naz");
}

void Form_sched_10elotto::ruotetutte_click() {
  int16_t ruote = conta_ruote_budget();
  togli_spunta("ChRuote_naz");
  mostra_budget(ruote);
}

void Form_sched_10elotto::ruote_naz_click() {
  if (spuntata("ChRuote_naz")) {
    // Each wheel unticked unticks the national box in turn: it is ticked again after them.
    for (int i = 0; i < 10; ++i) togli_spunta("ChRuote", i);
    togli_spunta("ChRuotetutte", 10);
    passa_oltre([&] { spunta("ChRuote_naz", -1, 1); });
  }
  // The national play is one wheel, ticked or not.
  mostra_budget(1);
}

void Form_sched_10elotto::scelta_unica_click(const std::string& riga, int ultimo, int indice) {
  int spuntate = 0;
  for (int i = 0; i <= ultimo; ++i) {
    if (spuntata(riga, i)) ++spuntate;
  }
  if (spuntate <= 1) return;
  for (int i = 0; i <= ultimo; ++i) {
    if (i != indice && spuntata(riga, i)) togli_spunta(riga, i);
  }
}

}  // namespace schedine
