#include "forms/enalotto_wforlife/Form_sched_wforlife.h"

#include <array>

#include "calibration/assicura_tar.h"
#include "systems/stampa_pannelli.h"

namespace schedine {

namespace {

constexpr int scelte = 8;
constexpr std::array<const char*, scelte> testi_abbonamento = {"2",  "3",       "4",                "5",
                                                               "10", "di oggi", "di oggi e domani", "per 7 gg"};
// Draws of each choice; the last three are one, two and seven days.
constexpr std::array<int, scelte> concorsi_a_13 = {2, 3, 4, 5, 10, 13, 26, 91};
constexpr std::array<int, scelte> concorsi_a_15 = {2, 3, 4, 5, 10, 15, 30, 105};

}  // namespace

Form_sched_wforlife::Form_sched_wforlife(stato& s, insieme_moduli& moduli)
    : modulo_wforlife("Form_sched_wforlife", s, moduli) {}

int Form_sched_wforlife::concorsi_abbonamento(int indice, bool quindici_al_giorno) {
  const auto& tabella = quindici_al_giorno ? concorsi_a_15 : concorsi_a_13;
  return tabella.at(static_cast<size_t>(indice));
}

void Form_sched_wforlife::crea_controlli() {
  altezza = 5295;
  auto& frame3 = crea_comuni(8895, 4020, "Scheda singolo pannello", false);
  crea_abbonamenti(frame3);
}

void Form_sched_wforlife::crea_abbonamenti(controllo& frame3) {
  crea("Label3", -1, " Abbonamenti", 4800, 240, 1575, 255, &frame3);
  for (int i = 0; i < scelte; ++i) {
    // Two columns: the counts of draws, then the days.
    float sinistra = i < 5 ? 4800.0f : 6360.0f;
    float alto = 600.0f + static_cast<float>(i < 5 ? i : i - 5) * 315.0f;
    crea_opzione("optAbb", i, testi_abbonamento[static_cast<size_t>(i)], sinistra, alto, 1815, 255, &frame3)
        .al_click = [this, i] { optabb_click(i); };
  }
  auto& frame4 = crea_cornice("Frame4", 6240, 1620, 2160, 735, &frame3);
  frame4.caption = "Concorsi Giornalieri";
  crea_opzione("Option4", 0, "13", 120, 330, 855, 255, &frame4).imposta_valore(true);
  crea_opzione("Option4", 1, "15", 1080, 330, 855, 255, &frame4);
  // A change of draws a day takes the choice that stands, as a change of stake does.
  for (int i = 0; i <= 1; ++i) c<pulsante_opzione>("Option4", i).al_click = [this] { mostra_costo_colonna(concorsi_scelti()); };
}

int Form_sched_wforlife::concorsi_scelti() {
  for (int i = 0; i < scelte; ++i) {
    if (opzione("optAbb", i)) return concorsi_abbonamento(i, opzione("Option4", 1));
  }
  return 1;
}

void Form_sched_wforlife::optabb_click(int indice) {
  mostra_costo_colonna(concorsi_abbonamento(indice, opzione("Option4", 1)));
}

void Form_sched_wforlife::option3_click(int) { mostra_costo_colonna(concorsi_scelti()); }

void Form_sched_wforlife::carica_taratura() { assicura_tar_wforlife(s); }

void Form_sched_wforlife::stampa(const std::string& tipo_sistema, float prezzo) {
  stampa_wforlife(s, tipo_sistema, prezzo);
}

}  // namespace schedine
