#include "printing/dispositivo_inoltro.h"

namespace schedine {

void dispositivo_inoltro::imposta_scala_mm() {
  inoltra([](dispositivo_stampa& d) { d.imposta_scala_mm(); });
}

void dispositivo_inoltro::imposta_modo_pagina(int modo) {
  inoltra([=](dispositivo_stampa& d) { d.imposta_modo_pagina(modo); });
}

void dispositivo_inoltro::imposta_penna(int stile, int spessore) {
  inoltra([=](dispositivo_stampa& d) { d.imposta_penna(stile, spessore); });
}

void dispositivo_inoltro::imposta_riempimento(int stile) {
  inoltra([=](dispositivo_stampa& d) { d.imposta_riempimento(stile); });
}

void dispositivo_inoltro::imposta_riempimento(int stile, int32_t colore) {
  inoltra([=](dispositivo_stampa& d) { d.imposta_riempimento(stile, colore); });
}

void dispositivo_inoltro::disegna_punto_zero() {
  inoltra([](dispositivo_stampa& d) { d.disegna_punto_zero(); });
}

void dispositivo_inoltro::disegna_cerchio(float x, float y, float raggio) {
  inoltra([=](dispositivo_stampa& d) { d.disegna_cerchio(x, y, raggio); });
}

void dispositivo_inoltro::disegna_rettangolo(float x1, float y1, float x2, float y2) {
  inoltra([=](dispositivo_stampa& d) { d.disegna_rettangolo(x1, y1, x2, y2); });
}

void dispositivo_inoltro::imposta_font_nome(const std::string& nome) {
  inoltra([&](dispositivo_stampa& d) { d.imposta_font_nome(nome); });
}

void dispositivo_inoltro::imposta_font_dimensione(float punti) {
  inoltra([=](dispositivo_stampa& d) { d.imposta_font_dimensione(punti); });
}

void dispositivo_inoltro::imposta_font_grassetto(bool grassetto) {
  inoltra([=](dispositivo_stampa& d) { d.imposta_font_grassetto(grassetto); });
}

void dispositivo_inoltro::posiziona_testo(float x, float y) {
  inoltra([=](dispositivo_stampa& d) { d.posiziona_testo(x, y); });
}

void dispositivo_inoltro::stampa_testo(const std::string& testo) {
  inoltra([&](dispositivo_stampa& d) { d.stampa_testo(testo); });
}

void dispositivo_inoltro::nuova_pagina() {
  inoltra([](dispositivo_stampa& d) { d.nuova_pagina(); });
}

void dispositivo_inoltro::chiudi_stampa() {
  inoltra([](dispositivo_stampa& d) { d.chiudi_stampa(); });
}

}  // namespace schedine
