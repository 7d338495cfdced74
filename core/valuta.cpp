#include "core/valuta.h"

#include <cmath>

#include "core/errore_runtime.h"

namespace schedine {

namespace {
// The range of the 64-bit currency: about 922,337,203,685,477.5807.
constexpr double limite_unita = 9.2233720368547758e18;

int64_t controlla(double unita) {
  if (!(unita < limite_unita && unita >= -limite_unita)) throw errore_runtime(codice::overflow);
  return static_cast<int64_t>(unita);
}
}  // namespace

valuta valuta::da_double(double valore) {
  if (std::isnan(valore)) throw errore_runtime(codice::overflow);
  // Half to even at the fourth decimal, as the platform rounds into currency.
  // The product is taken in double, as the platform's conversion does.
  double scalato = valore * 10000.0;
  return valuta(controlla(std::nearbyint(scalato)));
}

valuta valuta::operator+(valuta altra) const {
  int64_t somma = 0;
  if (__builtin_add_overflow(unita_, altra.unita_, &somma)) throw errore_runtime(codice::overflow);
  return valuta(somma);
}

valuta valuta::operator-(valuta altra) const {
  int64_t differenza = 0;
  if (__builtin_sub_overflow(unita_, altra.unita_, &differenza)) throw errore_runtime(codice::overflow);
  return valuta(differenza);
}

}  // namespace schedine
