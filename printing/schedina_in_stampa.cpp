#include "printing/schedina_in_stampa.h"

#include "controls/controlli.h"
#include "controls/insieme_moduli.h"
#include "controls/modulo.h"
#include "core/stato.h"

namespace schedine {

namespace {

// The Lotto forms print the 10eLotto slip when that is the game.
schedina del_lotto(const stato& s) { return s.tipo_gioco == "10elotto" ? schedina::diecielotto : schedina::lotto; }

// Form_sched_enalotto prints on the five-panel slip while Option1 is chosen.
schedina dell_enalotto(const stato& s) {
  if (s.moduli == nullptr) return schedina::enalotto;
  modulo& m = (*s.moduli)("Form_sched_enalotto");
  if (!m.caricato() || !m.esiste("Option1")) return schedina::enalotto;
  return m.c<pulsante_opzione>("Option1").valore() ? schedina::enalotto : schedina::enalotto2;
}

}  // namespace

schedina schedina_del_modulo(const stato& s, const std::string& nome_modulo) {
  const std::string& n = nome_modulo;
  if (n == "Form_sched_lotto_ambetto" || n == "Form_sched_10elotto") return del_lotto(s);
  if (n == "Form_sched_enalotto") return dell_enalotto(s);
  if (n == "Form_sched_wforlife") return schedina::wforlife;
  if (n == "Form_sched_wforlife5") return schedina::wforlife5;
  if (n == "tar_lotto") return schedina::lotto;
  if (n == "tar_enalotto") return schedina::enalotto;
  if (n == "tar_enalotto2") return schedina::enalotto2;
  if (n == "tar_wforlife") return schedina::wforlife;
  if (n == "tar_wforlife5") return schedina::wforlife5;
  return schedina::nessuna;
}

schedina schedina_in_stampa(const stato& s) {
  if (s.moduli == nullptr) return schedina::nessuna;
  for (modulo* m : s.moduli->creati()) {
    if (!m->caricato() || !m->visibile()) continue;
    schedina sch = schedina_del_modulo(s, m->nome());
    if (sch != schedina::nessuna) return sch;
  }
  return schedina::nessuna;
}

}  // namespace schedine
