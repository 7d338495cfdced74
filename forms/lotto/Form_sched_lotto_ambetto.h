#pragma once
// The slip form of every Lotto-side play: thirteen stake amounts on the bet
// rows, Ambetto and the determined extract, subscription and multiple plays,
// the wheels, and the same numbers on 10eLotto. There is no budget: each
// tick works the play's price out afresh (CalcolaImportoTotale). "Stampa"
// copies the ticks into the selection tables and runs the Lotto print driver
// on the range of slips set in txtdalla and txtalla.

#include <array>
#include <cstdint>

#include "forms/lotto/modulo_lotto.h"

namespace schedine {

class Form_sched_lotto_ambetto : public modulo_lotto {
 public:
  Form_sched_lotto_ambetto(stato& s, insieme_moduli& moduli);

  // Subscription and multiple plays: what each box of the two rows multiplies by.
  vettore<uint8_t, 7> moltiplicatori_abbonamento;
  vettore<uint8_t, 7> moltiplicatori_giocate;

  // The price of one slip of the play, into importo_giocata and lblimporto.
  void CalcolaImportoTotale();
  // Fills the selection tables from the ticks, at each print.
  void inizializza_variabili();
  void annulla_importi() override;
  void svuota() override;

 protected:
  void crea_controlli() override;
  void al_caricamento() override;
  void all_attivazione() override;
  void allo_scaricamento() override;

 private:
  // ---- design
  void crea_griglia();
  void crea_estratto_determinato(controllo& frame3);
  void crea_abbonamento();
  void crea_importo_e_comandi();
  void crea_10elotto();
  void collega_regole();

  // ---- rules
  void riempi_tabelle();
  void ruote_naz_click();
  void cmdstampa_click();
  void cmdannulla_click();
  void cmdexit_click();

  // ---- parts of CalcolaImportoTotale
  int16_t conta_ruote();
  float somma_puntate();
  float applica_moltiplicatori(float totale);
  float aggiungi_10elotto(float totale);
};

}  // namespace schedine
