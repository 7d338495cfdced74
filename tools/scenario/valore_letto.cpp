#include "tools/scenario/valore_letto.h"

#include <cmath>

#include "core/numeri.h"

namespace schedine::scenario {

namespace {
constexpr double tolleranza_single = 1e-4;
}

std::string valore_letto::come_testo() const {
  switch (tipo) {
    case genere::testo:
      return testo;
    case genere::intero:
      return std::to_string(static_cast<int64_t>(numero));
    case genere::single:
      return testo_single(static_cast<float>(numero));
    case genere::booleano:
      return numero != 0 ? "True" : "False";
  }
  return testo;
}

bool valore_letto::corrisponde(const std::string& atteso) const {
  if (tipo == genere::testo || tipo == genere::booleano) return come_testo() == atteso;
  double letto = 0;
  if (!leggi_decimale(atteso, letto)) return false;
  if (tipo == genere::intero) return letto == numero;
  return std::fabs(letto - numero) <= tolleranza_single;
}

}  // namespace schedine::scenario
