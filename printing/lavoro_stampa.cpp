#include "printing/lavoro_stampa.h"

#include "core/errore_runtime.h"
#include "core/piattaforma.h"
#include "core/stato.h"
#include "printing/dispositivo_stampa.h"

namespace schedine {

namespace {
constexpr int stile_penna_continua = 1;
constexpr int spessore_minimo = 1;
constexpr int riempimento_pieno = 0;
constexpr int riempimento_vuoto = 1;
constexpr int32_t nero = 0;
constexpr int pagina_verticale = 1;
}  // namespace

dispositivo_stampa& stampante(stato& s) {
  if (s.piattaforma == nullptr) throw errore_runtime(codice::oggetto_non_impostato, "stampante");
  return s.piattaforma->stampante();
}

void prepara_lavoro(dispositivo_stampa& dispositivo) {
  dispositivo.imposta_scala_mm();
  dispositivo.imposta_penna(stile_penna_continua, spessore_minimo);
  dispositivo.imposta_riempimento(riempimento_pieno, nero);
  dispositivo.disegna_punto_zero();
}

void prepara_lavoro_lotto(dispositivo_stampa& dispositivo) {
  dispositivo.imposta_modo_pagina(pagina_verticale);
  prepara_lavoro(dispositivo);
}

void termina_lavoro(dispositivo_stampa& dispositivo) {
  dispositivo.imposta_riempimento(riempimento_vuoto);
  dispositivo.chiudi_stampa();
}

void termina_lavoro_senza_grassetto(dispositivo_stampa& dispositivo) {
  dispositivo.imposta_font_grassetto(false);
  termina_lavoro(dispositivo);
}

}  // namespace schedine
