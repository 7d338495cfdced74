#pragma once
// A device that hands each operation on to other devices. The device made on
// it says where each operation goes (inoltra) and answers the page number;
// it may take other operations itself.

#include <functional>

#include "printing/dispositivo_stampa.h"

namespace schedine {

class dispositivo_inoltro : public dispositivo_stampa {
 public:
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
  void nuova_pagina() override;
  void chiudi_stampa() override;

 protected:
  using operazione = std::function<void(dispositivo_stampa&)>;
  // Runs the operation on the devices it goes to.
  virtual void inoltra(const operazione& o) = 0;
};

}  // namespace schedine
