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

void dispositivo_interrompibile::inoltra(const operazione& o) {
  if (fase_ != fase::scartando) o(destinazione_());
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

}  // namespace schedine
