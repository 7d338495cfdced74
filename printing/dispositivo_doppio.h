#pragma once
// Sends every operation to two devices in turn, such as the journal and a PDF
// file. Page numbers are answered by the first.

#include "printing/dispositivo_stampa.h"

namespace schedine {

class dispositivo_doppio : public dispositivo_stampa {
 public:
  // Both devices must outlive this one.
  dispositivo_doppio(dispositivo_stampa& primo, dispositivo_stampa& secondo);

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
  int numero_pagina() override;
  void nuova_pagina() override;
  void chiudi_stampa() override;

 private:
  template <class Operazione>
  void a_entrambi(Operazione&& operazione) {
    operazione(primo_);
    operazione(secondo_);
  }

  dispositivo_stampa& primo_;
  dispositivo_stampa& secondo_;
};

}  // namespace schedine
