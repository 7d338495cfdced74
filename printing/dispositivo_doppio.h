#pragma once
// Sends every operation to two devices in turn, such as the journal and a PDF
// file. Page numbers are answered by the first.

#include "printing/dispositivo_inoltro.h"

namespace schedine {

class dispositivo_doppio : public dispositivo_inoltro {
 public:
  // Both devices must outlive this one.
  dispositivo_doppio(dispositivo_stampa& primo, dispositivo_stampa& secondo);

  int numero_pagina() override;

 protected:
  void inoltra(const operazione& o) override;

 private:
  dispositivo_stampa& primo_;
  dispositivo_stampa& secondo_;
};

}  // namespace schedine
