#include "forms/programma/programma.h"

#include "forms/calibration/moduli_taratura.h"
#include "forms/enalotto_wforlife/Form_sched_enalotto.h"
#include "forms/enalotto_wforlife/Form_sched_wforlife.h"
#include "forms/enalotto_wforlife/Form_sched_wforlife5.h"
#include "forms/lotto/Form_sched_10elotto.h"
#include "forms/lotto/Form_sched_lotto_ambetto.h"
#include "forms/main/Form1.h"

namespace schedine {

namespace {

// A form whose model is still to come: it opens and closes and shows its
// title strip, and nothing else.
class modulo_in_attesa : public modulo {
 public:
  using modulo::modulo;

 protected:
  void crea_controlli() override { aggiungi<etichetta>("lbltitolo"); }
};

}  // namespace

const std::vector<std::string>& nomi_moduli() {
  static const std::vector<std::string> nomi = {
      "Form1",          "Form_sched_lotto_ambetto", "Form_sched_10elotto", "Form_sched_enalotto",
      "Form_sched_wforlife5", "Form_sched_wforlife", "tar_lotto",      "tar_enalotto",
      "tar_enalotto2",  "tar_wforlife",             "tar_wforlife5",
  };
  return nomi;
}

programma::programma(std::string cartella, servizi_piattaforma& piattaforma, formato_locale locale) {
  s.cartella_programma = std::move(cartella);
  s.piattaforma = &piattaforma;
  s.locale = locale;
  s.moduli = &moduli;
  moduli.registra("Form1", [](stato& st, insieme_moduli& m) { return std::make_unique<Form1>(st, m); });
  registra_moduli_taratura(moduli);
  moduli.registra("Form_sched_lotto_ambetto",
                  [](stato& st, insieme_moduli& m) { return std::make_unique<Form_sched_lotto_ambetto>(st, m); });
  moduli.registra("Form_sched_10elotto",
                  [](stato& st, insieme_moduli& m) { return std::make_unique<Form_sched_10elotto>(st, m); });
  moduli.registra("Form_sched_enalotto",
                  [](stato& st, insieme_moduli& m) { return std::make_unique<Form_sched_enalotto>(st, m); });
  moduli.registra("Form_sched_wforlife5",
                  [](stato& st, insieme_moduli& m) { return std::make_unique<Form_sched_wforlife5>(st, m); });
  moduli.registra("Form_sched_wforlife",
                  [](stato& st, insieme_moduli& m) { return std::make_unique<Form_sched_wforlife>(st, m); });
  for (const auto& nome : nomi_moduli()) {
    if (moduli.conosce(nome)) continue;
    moduli.registra(nome, [nome](stato& st, insieme_moduli& m) { return std::make_unique<modulo_in_attesa>(nome, st, m); });
  }
}

void programma::avvia() { moduli("Form1").mostra(); }

void programma::termina() {
  moduli("Form1").scarica();
  moduli.programma_terminato = true;
}

}  // namespace schedine
