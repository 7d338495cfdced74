#include "printing/dispositivo_doppio.h"

namespace schedine {

dispositivo_doppio::dispositivo_doppio(dispositivo_stampa& primo, dispositivo_stampa& secondo)
    : primo_(primo), secondo_(secondo) {}

void dispositivo_doppio::imposta_scala_mm() {
  a_entrambi([](dispositivo_stampa& d) { d.imposta_scala_mm(); });
}

void dispositivo_doppio::imposta_modo_pagina(int modo) {
  a_entrambi([=](dispositivo_stampa& d) { d.imposta_modo_pagina(modo); });
}

void dispositivo_doppio::imposta_penna(int stile, int spessore) {
  a_entrambi([=](dispositivo_stampa& d) { d.imposta_penna(stile, spessore); });
}

void dispositivo_doppio::imposta_riempimento(int stile) {
  a_entrambi([=](dispositivo_stampa& d) { d.imposta_riempimento(stile); });
}

void dispositivo_doppio::imposta_riempimento(int stile, int32_t colore) {
  a_entrambi([=](dispositivo_stampa& d) { d.imposta_riempimento(stile, colore); });
}

void dispositivo_doppio::disegna_punto_zero() {
  a_entrambi([](dispositivo_stampa& d) { d.disegna_punto_zero(); });
}

void dispositivo_doppio::disegna_cerchio(float x, float y, float raggio) {
  a_entrambi([=](dispositivo_stampa& d) { d.disegna_cerchio(x, y, raggio); });
}

void dispositivo_doppio::disegna_rettangolo(float x1, float y1, float x2, float y2) {
  a_entrambi([=](dispositivo_stampa& d) { d.disegna_rettangolo(x1, y1, x2, y2); });
}

void dispositivo_doppio::imposta_font_nome(const std::string& nome) {
  a_entrambi([&](dispositivo_stampa& d) { d.imposta_font_nome(nome); });
}

void dispositivo_doppio::imposta_font_dimensione(float punti) {
  a_entrambi([=](dispositivo_stampa& d) { d.imposta_font_dimensione(punti); });
}

void dispositivo_doppio::imposta_font_grassetto(bool grassetto) {
  a_entrambi([=](dispositivo_stampa& d) { d.imposta_font_grassetto(grassetto); });
}

void dispositivo_doppio::posiziona_testo(float x, float y) {
  a_entrambi([=](dispositivo_stampa& d) { d.posiziona_testo(x, y); });
}

void dispositivo_doppio::stampa_testo(const std::string& testo) {
  a_entrambi([&](dispositivo_stampa& d) { d.stampa_testo(testo); });
}

int dispositivo_doppio::numero_pagina() { return primo_.numero_pagina(); }

void dispositivo_doppio::nuova_pagina() {
  a_entrambi([](dispositivo_stampa& d) { d.nuova_pagina(); });
}

void dispositivo_doppio::chiudi_stampa() {
  a_entrambi([](dispositivo_stampa& d) { d.chiudi_stampa(); });
}

}  // namespace schedine
