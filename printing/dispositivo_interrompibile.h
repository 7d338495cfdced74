#pragma once
// The printing device between a print run and the printer, able to stop the
// run at a slip's end. Until a stop is asked it hands every operation on as
// it comes. Once asked, the next page end closes the job at once, so that
// the printer holds whole slips only; from then on nothing reaches the
// printer until the run is over (fine_corsa). The print rule itself goes on
// to its end untouched, so the forms end as after any run.

#include <functional>

#include "printing/dispositivo_inoltro.h"

namespace schedine {

class dispositivo_interrompibile : public dispositivo_inoltro {
 public:
  // The device that gets the operations; asked at each operation, so it may change between runs.
  explicit dispositivo_interrompibile(std::function<dispositivo_stampa&()> destinazione);

  // Asks to stop at the end of the slip in course.
  void interrompi();
  bool interruzione_chiesta() const { return fase_ != fase::normale; }
  // The job is closed and the rest of the run goes nowhere.
  bool scarta() const { return fase_ == fase::scartando; }
  // Slips that reached the printer since the last fine_corsa.
  int schede_inviate() const { return schede_; }
  // The run is over: back to handing everything on.
  void fine_corsa();

  int numero_pagina() override;
  void nuova_pagina() override;

 protected:
  void inoltra(const operazione& o) override;

 private:
  enum class fase { normale, chiesta, scartando };

  std::function<dispositivo_stampa&()> destinazione_;
  fase fase_ = fase::normale;
  int schede_ = 0;
};

}  // namespace schedine
