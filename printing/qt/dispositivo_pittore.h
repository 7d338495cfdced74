#pragma once
// The drawings of one recorded page on a painter of one's own, such as a
// window's: the page operations (nuova_pagina, chiudi_stampa) are left to
// whoever holds the painter.

#include "printing/dispositivo_stampa.h"
#include "printing/qt/pittura_mm.h"

namespace schedine {

class dispositivo_pittore : public dispositivo_stampa {
 public:
  // The painter's origin is the top left corner of the page.
  dispositivo_pittore(QPainter& pittore, misure_mm::scala scala) { pittura_.inizia(pittore, scala); }

  void imposta_scala_mm() override {}
  void imposta_modo_pagina(int) override {}
  void imposta_penna(int, int spessore) override { pittura_.imposta_penna(spessore); }
  void imposta_riempimento(int stile) override { pittura_.imposta_riempimento(stile); }
  void imposta_riempimento(int stile, int32_t colore) override { pittura_.imposta_riempimento(stile, colore); }
  void disegna_punto_zero() override { pittura_.punto_zero(); }
  void disegna_cerchio(float x, float y, float raggio) override { pittura_.cerchio(x, y, raggio); }
  void disegna_rettangolo(float x1, float y1, float x2, float y2) override { pittura_.rettangolo(x1, y1, x2, y2); }
  void imposta_font_nome(const std::string& nome) override { pittura_.imposta_font_nome(nome); }
  void imposta_font_dimensione(float punti) override { pittura_.imposta_font_dimensione(punti); }
  void imposta_font_grassetto(bool grassetto) override { pittura_.imposta_font_grassetto(grassetto); }
  void posiziona_testo(float x, float y) override { pittura_.posiziona_testo(x, y); }
  void stampa_testo(const std::string& testo) override { pittura_.testo(testo); }
  int numero_pagina() override { return 1; }
  void nuova_pagina() override {}
  void chiudi_stampa() override {}

 private:
  pittura_mm pittura_;
};

}  // namespace schedine
