#include "systems/stampa_lotto.h"

#include <string_view>

#include "controls/modulo.h"
#include "printing/dispositivo_stampa.h"
#include "printing/lavoro_stampa.h"
#include "printing/scheda_controlli.h"
#include "systems/lettura_lotto.h"
#include "systems/nomi_sistema.h"

namespace schedine {

namespace {

constexpr int pagina_verticale = 1;

// The values of tipo_gioco that the Lotto slip prints, each with a folder of its systems.
constexpr std::string_view giochi_lotto[] = {
    "ambo", "terno", "quaterna", "cinquina", "sestine-decine", "terno_c", "quaterna_c", "cinquina_c",
};

bool e_gioco_lotto(std::string_view tipo) {
  for (std::string_view gioco : giochi_lotto) {
    if (gioco == tipo) return true;
  }
  return false;
}

}  // namespace

// No handler here: a reader that stops the run unwinds past the end of the
// job and the hiding of the progress frame.
void stampa_lotto(stato& s, const std::string& tipo) {
  dispositivo_stampa& dispositivo = stampante(s);
  dispositivo.imposta_modo_pagina(pagina_verticale);
  dispositivo.imposta_scala_mm();
  if (e_gioco_lotto(tipo)) {
    s.cartella_sistema = *cartella_sorte(s.cartella_programma, tipo);
    // A pair of sorte and kind with no reader opens and closes an empty job.
    if (const lettore_lotto* lettore = cerca_lettore_lotto(tipo, s.tipo_sistema)) leggi_colonne_lotto(s, *lettore);
  }
  termina_lavoro(dispositivo);
  modulo_di_stampa(s, "Form_sched_lotto_ambetto").c<cornice>("Frame2").visibile = false;
}

}  // namespace schedine
