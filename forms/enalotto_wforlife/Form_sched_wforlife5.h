#pragma once
// The five-panel Win for Life slip form, which the main form opens. The
// subscription is a calendar of the week's draws, chkAbbonamenti(0..104):
// box 15 d + h is day d (Monday 0) at hour h (8.00 is 0, 22.00 is 14). A
// column costs the stake times the draws ticked, at least one.

#include "forms/enalotto_wforlife/modulo_wforlife.h"

namespace schedine {

class Form_sched_wforlife5 : public modulo_wforlife {
 public:
  Form_sched_wforlife5(stato& s, insieme_moduli& moduli);

  static constexpr int giorni = 7;
  static constexpr int ore = 15;

 protected:
  void crea_controlli() override;
  std::string altra_scheda() const override { return "Form_sched_wforlife"; }
  int voce_combo1() const override { return 4; }
  void carica_taratura() override;
  void stampa(const std::string& tipo_sistema, float prezzo) override;
  void option3_click(int indice) override;

 private:
  void crea_calendario(controllo& frame3);
  void chkabbonamenti_click();
  // The ticked boxes among 0 .. ultima; none counts as one draw.
  int conta_concorsi(int ultima);
};

}  // namespace schedine
