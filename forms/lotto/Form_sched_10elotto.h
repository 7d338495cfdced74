#pragma once
// The older Lotto slip form, with a budget: the user first sets on the TOTALE
// row what the play is to stake per wheel (up to 200), then places that
// budget box by box on the stake rows; a tick beyond it falls back. The form
// shows the budget and what is left of it, times the wheels, and "Stampa"
// runs only once the budget is placed in full. Beside the Lotto play it holds
// the 10eLotto options: the kind of draw, the amount, a picker of up to ten
// numbers with a random pick, and the subscription. On a 10eLotto system the
// print goes to the 10eLotto driver with the ticked amount as the price.

#include <cstdint>
#include <functional>
#include <random>
#include <string>

#include "forms/lotto/modulo_lotto.h"

namespace schedine {

class Form_sched_10elotto : public modulo_lotto {
 public:
  Form_sched_10elotto(stato& s, insieme_moduli& moduli);

  // Sum of the ticked 10eLotto amounts: the price handed to the 10eLotto driver.
  valuta importo_10elotto;

  // The source of the random pick, a number in [0, 1). It starts as a
  // generator seeded from the clock when the form object is made; a test
  // puts a source of its own here.
  std::function<double()> casuale;

  // Fills the selection tables from the ticks, at each Lotto print.
  void inizializza_variabili();
  void annulla_importi() override;
  void svuota() override;

 protected:
  void crea_controlli() override;
  void al_caricamento() override;
  void all_attivazione() override;
  void allo_scaricamento() override;

 private:
  // ---- design (Form_sched_10elotto_controlli.cpp)
  void crea_griglia_puntate();
  void crea_estratti_per_posizione();
  void crea_sistemi_e_multiple();
  void crea_importo_e_comandi();
  void crea_abbonamento(controllo& frame1);
  void crea_10elotto();
  void collega_regole();
  void collega_puntate();

  // ---- load
  void disattiva_per_10elotto();
  void riempi_combo1();
  void costruisci_griglia();

  // ---- budget rules (Form_sched_10elotto_puntate.cpp)
  void puntata_click(const std::string& riga, int indice);
  void ruote_click();
  void ruotetutte_click();
  void ruote_naz_click();
  // ChSistemi and ChGIO_MULT: one choice at most per row.
  void scelta_unica_click(const std::string& riga, int ultimo, int indice);

  // ---- print, clear, leave
  void cmdstampa_click();
  bool importo_10elotto_scelto();
  void cmdannulla_click();
  void cmdexit_click();

  // ---- 10eLotto options (Form_sched_10elotto_opzioni.cpp)
  void tipo_estrazione_click();
  void importo_10elotto_click(int indice);
  void griglia_rilascio_mouse();
  // Collects the yellow cells into numeri_scelti by rows; with the limit on,
  // stops at an eleventh number and answers false.
  bool raccogli_numeri(bool al_massimo_dieci);
  void scelta_casuale_click();
  void combo2_click();
  void check1_click();
  void combo1_click();
  // The lblimporto caption without its first and last character.
  std::string importo_senza_estremi();

  std::mt19937 generatore_;
};

}  // namespace schedine
