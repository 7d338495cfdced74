#include "printing/dispositivo_giornale.h"

#include "printing/giornale.h"

namespace schedine {

dispositivo_giornale::dispositivo_giornale(giornale& destinazione) : giornale_(destinazione) {}

void dispositivo_giornale::imposta_scala_mm() { giornale_.scrivi(riga_giornale("imposta_scala_mm")); }

void dispositivo_giornale::imposta_modo_pagina(int modo) {
  giornale_.scrivi(riga_giornale("imposta_modo_pagina").intero(modo));
}

void dispositivo_giornale::imposta_penna(int stile, int spessore) {
  giornale_.scrivi(riga_giornale("imposta_penna").intero(stile).intero(spessore));
}

void dispositivo_giornale::imposta_riempimento(int stile) {
  giornale_.scrivi(riga_giornale("imposta_riempimento").intero(stile));
}

void dispositivo_giornale::imposta_riempimento(int stile, int32_t colore) {
  giornale_.scrivi(riga_giornale("imposta_riempimento").intero(stile).intero(colore));
}

void dispositivo_giornale::disegna_punto_zero() { giornale_.scrivi(riga_giornale("disegna_punto_zero")); }

void dispositivo_giornale::disegna_cerchio(float x, float y, float raggio) {
  giornale_.scrivi(riga_giornale("disegna_cerchio").numero(x).numero(y).numero(raggio));
}

void dispositivo_giornale::disegna_rettangolo(float x1, float y1, float x2, float y2) {
  giornale_.scrivi(riga_giornale("disegna_rettangolo").numero(x1).numero(y1).numero(x2).numero(y2));
}

void dispositivo_giornale::imposta_font_nome(const std::string& nome) {
  giornale_.scrivi(riga_giornale("imposta_font").parola("nome").testo(nome));
}

void dispositivo_giornale::imposta_font_dimensione(float punti) {
  giornale_.scrivi(riga_giornale("imposta_font").parola("dimensione").numero(punti));
}

void dispositivo_giornale::imposta_font_grassetto(bool grassetto) {
  giornale_.scrivi(riga_giornale("imposta_font").parola("grassetto").intero(grassetto ? 1 : 0));
}

void dispositivo_giornale::posiziona_testo(float x, float y) {
  giornale_.scrivi(riga_giornale("posiziona_testo").numero(x).numero(y));
}

void dispositivo_giornale::stampa_testo(const std::string& testo) {
  giornale_.scrivi(riga_giornale("stampa_testo").testo(testo));
}

int dispositivo_giornale::numero_pagina() { return pagina_; }

void dispositivo_giornale::nuova_pagina() {
  giornale_.scrivi(riga_giornale("nuova_pagina"));
  ++pagina_;
}

void dispositivo_giornale::chiudi_stampa() {
  giornale_.scrivi(riga_giornale("chiudi_stampa"));
  pagina_ = 1;  // the next job counts its pages from 1 again
}

}  // namespace schedine
