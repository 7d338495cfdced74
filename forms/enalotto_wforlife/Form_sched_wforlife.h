#pragma once
// The single-panel Win for Life slip form, reached from the five-panel one.
// The subscription is one choice among optAbb(0..7): 2, 3, 4, 5 or 10 draws,
// or the draws of today, of today and tomorrow, or of seven days, which
// count 13 or 15 draws a day by Option4. A column costs the stake times the
// draws of the choice, one without a choice.

#include "forms/enalotto_wforlife/modulo_wforlife.h"

namespace schedine {

class Form_sched_wforlife : public modulo_wforlife {
 public:
  Form_sched_wforlife(stato& s, insieme_moduli& moduli);

  // The draws of subscription choice i, at 15 draws a day or at 13.
  static int concorsi_abbonamento(int indice, bool quindici_al_giorno);

 protected:
  void crea_controlli() override;
  std::string altra_scheda() const override { return "Form_sched_wforlife5"; }
  int voce_combo1() const override { return 0; }
  void carica_taratura() override;
  void stampa(const std::string& tipo_sistema, float prezzo) override;
  void option3_click(int indice) override;

 private:
  void crea_abbonamenti(controllo& frame3);
  void optabb_click(int indice);
  // The draws of the choice that stands, or one.
  int concorsi_scelti();
};

}  // namespace schedine
