#include "printing/dispositivo_interrompibile.h"

namespace schedine {

dispositivo_interrompibile::dispositivo_interrompibile(std::function<dispositivo_stampa&()> destinazione)
    : destinazione_(std::move(destinazione)) {}

void dispositivo_interrompibile::interrompi() {
  if (fase_ == fase::normale) fase_ = fase::chiesta;
}

void dispositivo_interrompibile::fine_corsa() {
  fase_ = fase::normale;
  schede_ = 0;
}

void dispositivo_interrompibile::imposta_scala_mm() {
  inoltra([](dispositivo_stampa& d) { d.imposta_scala_mm(); });
}

void dispositivo_interrompibile::imposta_modo_pagina(int modo) {
  inoltra([=](dispositivo_stampa& d) { d.imposta_modo_pagina(modo); });
}

void dispositivo_interrompibile::imposta_penna(int stile, int spessore) {
  inoltra([=](dispositivo_stampa& d) { d.imposta_penna(stile, spessore); });
}

void dispositivo_interrompibile::imposta_riempimento(int stile) {
  inoltra([=](dispositivo_stampa& d) { d.imposta_riempimento(stile); });
}

void dispositivo_interrompibile::imposta_riempimento(int stile, int32_t colore) {
  inoltra([=](dispositivo_stampa& d) { d.imposta_riempimento(stile, colore); });
}

void dispositivo_interrompibile::disegna_punto_zero() {
  inoltra([](dispositivo_stampa& d) { d.disegna_punto_zero(); });
}

void dispositivo_interrompibile::disegna_cerchio(float x, float y, float raggio) {
  inoltra([=](dispositivo_stampa& d) { d.disegna_cerchio(x, y, raggio); });
}

void dispositivo_interrompibile::disegna_rettangolo(float x1, float y1, float x2, float y2) {
  inoltra([=](dispositivo_stampa& d) { d.disegna_rettangolo(x1, y1, x2, y2); });
}

void dispositivo_interrompibile::imposta_font_nome(const std::string& nome) {
  inoltra([&](dispositivo_stampa& d) { d.imposta_font_nome(nome); });
}

void dispositivo_interrompibile::imposta_font_dimensione(float punti) {
  inoltra([=](dispositivo_stampa& d) { d.imposta_font_dimensione(punti); });
}

void dispositivo_interrompibile::imposta_font_grassetto(bool grassetto) {
  inoltra([=](dispositivo_stampa& d) { d.imposta_font_grassetto(grassetto); });
}

void dispositivo_interrompibile::posiziona_testo(float x, float y) {
  inoltra([=](dispositivo_stampa& d) { d.posiziona_testo(x, y); });
}

void dispositivo_interrompibile::stampa_testo(const std::string& testo) {
  inoltra([&](dispositivo_stampa& d) { d.stampa_testo(testo); });
}

int dispositivo_interrompibile::numero_pagina() {
  // Nothing drawn after the stop is seen: any number serves.
  return fase_ == fase::scartando ? 1 : destinazione_().numero_pagina();
}

void dispositivo_interrompibile::nuova_pagina() {
  if (fase_ == fase::scartando) return;
  dispositivo_stampa& d = destinazione_();
  d.nuova_pagina();
  ++schede_;
  if (fase_ != fase::chiesta) return;
  // The slip is whole: the job ends here.
  fase_ = fase::scartando;
  d.imposta_riempimento(1);
  d.chiudi_stampa();
}

void dispositivo_interrompibile::chiudi_stampa() {
  inoltra([](dispositivo_stampa& d) { d.chiudi_stampa(); });
}

}  // namespace schedine
