#include "forms/enalotto_wforlife/Form_sched_wforlife5.h"

#include <array>

#include "calibration/assicura_tar.h"
#include "systems/stampa_pannelli.h"

namespace schedine {

namespace {

constexpr std::array<const char*, Form_sched_wforlife5::giorni> nomi_giorni = {"lun", "mar", "mer", "gio",
                                                                               "ven", "sab", "dom"};
// Boxes 0 .. 90 are what a change of stake counts: the last draw of
// Saturday and the whole of Sunday are left out until a box is clicked again.
constexpr int ultima_per_puntata = 90;
constexpr int ultima_casella = Form_sched_wforlife5::giorni * Form_sched_wforlife5::ore - 1;

constexpr float sinistra_calendario = 5520;
constexpr float alto_calendario = 720;
constexpr float passo_giorno = 420;
constexpr float passo_ora = 255;

}  // namespace

Form_sched_wforlife5::Form_sched_wforlife5(stato& s, insieme_moduli& moduli)
    : modulo_wforlife("Form_sched_wforlife5", s, moduli) {}

void Form_sched_wforlife5::crea_controlli() {
  altezza = 5790;
  auto& frame3 = crea_comuni(9135, 4515, "Scheda Singolo pannello", true);
  crea_calendario(frame3);
}

void Form_sched_wforlife5::crea_calendario(controllo& frame3) {
  crea("Label3", -1, " Abbonamenti per ogni giocata in schedina", sinistra_calendario - 600, 120, 3495, 255, &frame3);
  crea("Label5", 0, "ora", sinistra_calendario - 600, alto_calendario - 300, 495, 255, &frame3);
  for (int d = 0; d < giorni; ++d) {
    float sinistra = sinistra_calendario + d * passo_giorno;
    crea("Label5", d + 1, nomi_giorni[static_cast<size_t>(d)], sinistra, alto_calendario - 300, 375, 255, &frame3);
  }
  for (int h = 0; h < ore; ++h) {
    float alto = alto_calendario + h * passo_ora;
    crea("Label6", h, std::to_string(8 + h) + ".00", sinistra_calendario - 600, alto, 555, 255, &frame3);
    for (int d = 0; d < giorni; ++d) {
      auto& casella = crea<casella_controllo>("chkAbbonamenti", ore * d + h, "", sinistra_calendario + d * passo_giorno,
                                              alto, 255, 255, &frame3);
      casella.al_click = [this] { chkabbonamenti_click(); };
    }
  }
}

int Form_sched_wforlife5::conta_concorsi(int ultima) {
  int spuntate = 0;
  for (int i = 0; i <= ultima; ++i) {
    if (c<casella_controllo>("chkAbbonamenti", i).valore() == 1) ++spuntate;
  }
  return spuntate == 0 ? 1 : spuntate;
}

void Form_sched_wforlife5::chkabbonamenti_click() { mostra_costo_colonna(conta_concorsi(ultima_casella)); }

void Form_sched_wforlife5::option3_click(int indice) {
  casella("Text1").imposta_testo(std::to_string((indice + 1) * conta_concorsi(ultima_per_puntata)));
}

void Form_sched_wforlife5::carica_taratura() { assicura_tar_wforlife5(s); }

void Form_sched_wforlife5::stampa(const std::string& tipo_sistema, float prezzo) {
  stampa_wforlife5(s, tipo_sistema, prezzo);
}

}  // namespace schedine
