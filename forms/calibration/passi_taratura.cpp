#include "forms/calibration/passi_taratura.h"

#include <cmath>
#include <string>

#include "core/numeri.h"

namespace schedine {

void aggiungi_passo(float& valore, float passo) {
  // The sum of two Singles taken in double and rounded once is the Single sum.
  valore = a_single(static_cast<double>(valore) + static_cast<double>(passo));
}

void conta(etichetta& contatore, int segno) {
  double numero = numero_iniziale(contatore.caption) + segno;
  contatore.caption = std::to_string(std::llround(numero));
}

}  // namespace schedine
