#include "printing/dispositivo_doppio.h"

namespace schedine {

dispositivo_doppio::dispositivo_doppio(dispositivo_stampa& primo, dispositivo_stampa& secondo)
    : primo_(primo), secondo_(secondo) {}

int dispositivo_doppio::numero_pagina() { return primo_.numero_pagina(); }

void dispositivo_doppio::inoltra(const operazione& o) {
  o(primo_);
  o(secondo_);
}

}  // namespace schedine
