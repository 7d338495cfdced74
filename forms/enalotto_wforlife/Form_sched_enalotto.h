#pragma once
// The SuperEnalotto slip form: the slip (five panels, or two with
// Superstar), the columns on a slip, the price of a column kept in the file
// cst and changed in a small editor, the cost of the system, the
// subscription of 2 to 15 draws, the Superstar numbers picked on a grid of
// 1 to 90, and the range of slips. "Stampa" checks the choice, reloads the
// slip's calibration and runs the print driver of the slip.
//
// The price of a column lives only as text: in Text1 ("€ 0,50"), in the
// price list Combo2, and in cst. The Superstar choice lives only as the
// colours of the grid's cells; numeri_superstar is refilled from them.

#include <cstdint>

#include "forms/enalotto_wforlife/modulo_pannelli.h"

namespace schedine {

class Form_sched_enalotto : public modulo_pannelli {
 public:
  Form_sched_enalotto(stato& s, insieme_moduli& moduli);

  static constexpr const char* suggerimento_griglia = "Seleziona fino a 12 numeri Superstar!";
  static constexpr const char* suggerimento_check2 =
      "Attiva questa casella se vuoi un numero scelto in automatico dalla ricevitoria";

  // Empties numeri_superstar and stores the yellow cells' numbers in scan
  // order (column by column, top to bottom), the first twelve. Answers how
  // many cells are yellow, a thirteenth and later included.
  int riempi_numeri_superstar();

 protected:
  void crea_controlli() override;
  void al_caricamento() override;
  void allo_scaricamento() override;
  double prezzo_per_conteggio() override;

 private:
  // ---- design
  void crea_scelta_scheda(controllo& frame3);
  void crea_prezzo(controllo& frame3);
  void crea_editor_prezzo();
  void crea_superstar();
  void crea_comandi(controllo& frame3);
  void crea_superstar_dormiente(controllo& frame3);

  // ---- load
  void riempi_elenco_prezzi();
  void costruisci_griglia();

  // ---- price of a column
  // Reads cst: the price text, then the Superstar flag. When the file is
  // missing it is made with the factory price and `se_manca` is answered.
  std::string leggi_cst(const std::string& se_manca);
  void scrivi_cst();
  // Makes the entry "€ " + price the text of Combo2, when there is one.
  void cerca_prezzo(const std::string& prezzo);
  void command1_click();
  void command2_click();
  void command3_click();
  void command4_click();
  void check1_click();

  // ---- cost of the system
  enum class precisione { singola, doppia };
  // The cost of the system with k Superstar numbers and the subscription on
  // top of the plain cost that range_pagine_e has just shown.
  void applica_costo(int k, precisione p);
  template <class T, class Esegui>
  void calcola_costo(int k, Esegui&& esegui);

  // ---- Superstar
  griglia& superstar() { return c<griglia>("MSHFlexGrid1"); }
  int conta_gialle();
  void imbianca_griglia();
  void rilascio_griglia();
  void inverti_selezione();
  void check2_click();

  // ---- the other rules
  void option1_click();
  void option2_click();
  void combo3_click();
  void cmdannulla_click();
  void cmdstampa_click();
  // Combo1 set from code to one of its entries: its Change rule runs when the text changes.
  void imposta_combo1(int voce);
};

}  // namespace schedine
