// The price of one slip of the play on Form_sched_lotto_ambetto. It is worked
// out afresh at every click, from the ticks alone. The running total is a
// 32-bit float: each stake goes through currency (rounded to four decimals)
// and back, the multipliers act on the float, and so the price may carry the
// float's rounding. The number of slips in the system plays no part, and no
// limit of the paper is tested.

#include "core/numeri.h"
#include "forms/lotto/Form_sched_lotto_ambetto.h"

namespace schedine {

namespace {

float piu_valuta(float totale, valuta importo) {
  return static_cast<float>((valuta::da_double(totale) + importo).a_double());
}

// The stake rows, in the order they are added up column by column.
constexpr std::array<const char*, 6> righe_del_prezzo = {"ChEstratto", "Chambo",     "ChTerno",
                                                         "Chquaterna", "ChCinquina", "chAmbetto"};

}  // namespace

void Form_sched_lotto_ambetto::CalcolaImportoTotale() {
  int16_t ruote = conta_ruote();
  float totale = somma_puntate();
  totale = applica_moltiplicatori(totale);
  totale = totale * ruote;
  totale = aggiungi_10elotto(totale);
  importo_giocata = valuta::da_double(totale);
  importo_residuo = valuta();
  // No euro sign: it stands in the label beside.
  lblimporto().caption = formatta_numero(totale, "###,##0.00", s.locale);
}

// With no wheel ticked the count is 0, and so is the price of the stakes.
// The national wheel is a play of its own: ticked, it makes the count one.
int16_t Form_sched_lotto_ambetto::conta_ruote() {
  int16_t ruote = 0;
  for (int i = 0; i < 10; ++i) {
    if (spuntata("ChRuote", i)) ++ruote;
  }
  if (spuntata("ChRuotetutte", 10)) ++ruote;
  if (spuntata("ChRuote_naz")) ruote = 1;
  return ruote;
}

float Form_sched_lotto_ambetto::somma_puntate() {
  float totale = 0.0f;
  for (int colonna = 0; colonna <= 12; ++colonna) {
    for (const char* riga : righe_del_prezzo) {
      if (spuntata(riga, colonna)) totale = piu_valuta(totale, importi(colonna));
    }
  }
  // A determined-extract stake is placed on each ticked position; with no
  // position it adds nothing.
  int16_t posizioni = 0;
  for (int i = 0; i <= 4; ++i) {
    if (spuntata("ChEstrattoPos", i)) ++posizioni;
  }
  for (int colonna = 0; colonna <= 12; ++colonna) {
    if (spuntata("ChEstratto1", colonna)) totale = piu_valuta(totale, importi(colonna) * posizioni);
  }
  return totale;
}

// Every ticked box multiplies, so two ticks in one row multiply each other.
float Form_sched_lotto_ambetto::applica_moltiplicatori(float totale) {
  for (int i = 0; i <= 5; ++i) {
    if (spuntata("ChSistemi", i)) totale = totale * moltiplicatori_abbonamento(i);
    if (spuntata("ChGIO_MULT", i)) totale = totale * moltiplicatori_giocate(i);
  }
  return totale;
}

// The 10eLotto amounts, once for each ticked kind of draw, untouched by
// wheels, subscription or multiple plays.
float Form_sched_lotto_ambetto::aggiungi_10elotto(float totale) {
  for (int i = 0; i <= 2; ++i) {
    if (!spuntata("chkTipoEstrazione", i)) continue;
    for (int k = 0; k <= 5; ++k) {
      if (spuntata("chk10elottoImporto", k)) totale = totale + s.importi_10elotto(k);
    }
  }
  return totale;
}

}  // namespace schedine
