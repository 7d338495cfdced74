#pragma once
// A printing device that draws nothing and writes each operation to the
// journal, by name and with its arguments, in the order it is called.

#include "printing/dispositivo_stampa.h"

namespace schedine {

class giornale;

class dispositivo_giornale : public dispositivo_stampa {
 public:
  // The journal must outlive the device.
  explicit dispositivo_giornale(giornale& destinazione);

  void imposta_scala_mm() override;
  void imposta_modo_pagina(int modo) override;
  void imposta_penna(int stile, int spessore) override;
  void imposta_riempimento(int stile) override;
  void imposta_riempimento(int stile, int32_t colore) override;
  void disegna_punto_zero() override;
  void disegna_cerchio(float x, float y, float raggio) override;
  void disegna_rettangolo(float x1, float y1, float x2, float y2) override;
  void imposta_font_nome(const std::string& nome) override;
  void imposta_font_dimensione(float punti) override;
  void imposta_font_grassetto(bool grassetto) override;
  void posiziona_testo(float x, float y) override;
  void stampa_testo(const std::string& testo) override;
  // A question to the device: not journaled.
  int numero_pagina() override;
  void nuova_pagina() override;
  void chiudi_stampa() override;

 private:
  giornale& giornale_;
  int pagina_ = 1;
};

}  // namespace schedine
