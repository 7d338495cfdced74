#pragma once
// What the two Win for Life slip forms share: the stake of a play (Option3,
// 1 or 2 euro), the cost of a column in Text1, which the user can't type
// into and whose every change resets the range and the cost of the system,
// Combo1 hidden with the columns of the slip, the swap with the other form,
// and the print run.

#include <string>

#include "forms/enalotto_wforlife/modulo_pannelli.h"

namespace schedine {

class modulo_wforlife : public modulo_pannelli {
 public:
  modulo_wforlife(std::string nome, stato& s, insieme_moduli& moduli);

 protected:
  void al_caricamento() override;
  double prezzo_per_conteggio() override;

  // ---- what tells the two forms apart
  // The form the slip choice swaps to.
  virtual std::string altra_scheda() const = 0;
  // Combo1's entry chosen at load: the columns of the slip.
  virtual int voce_combo1() const = 0;
  // The slip's calibration, loaded afresh (made from factory values when missing).
  virtual void carica_taratura() = 0;
  virtual void stampa(const std::string& tipo_sistema, float prezzo) = 0;
  virtual void option3_click(int indice) = 0;

  // ---- design
  // The title strip, the slip choice (Option1 and Option2, the one of this
  // form selected), Frame3 with the stake, the cost of a column and of the
  // system, the range and the commands, and the progress frame.
  cornice& crea_comuni(float larghezza_form, float altezza_frame3, const std::string& caption_option2,
                       bool cinque_pannelli);
  void crea_scelta_scheda(const std::string& caption_option2, bool cinque_pannelli);
  // Frame1 with the stake, and Text1 with its heading.
  void crea_costo_colonna(controllo& frame3);

  // ---- rules
  // Text1 shows the cost of a column: n draws at the chosen stake.
  void mostra_costo_colonna(int concorsi);
  // The title goes to the other form, which is shown; this one is unloaded.
  void cambia_scheda();
  void cmdstampa_click();
};

}  // namespace schedine
