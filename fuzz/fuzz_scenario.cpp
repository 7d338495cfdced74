// The scenario reader on any text. A line it can't understand is refused
// with errore_scenario, which is its normal answer; anything else escaping
// is a fault. What it does accept must be well formed.

#include <cstdint>
#include <string_view>

#include "fuzz/comune.h"
#include "tools/scenario/analisi_scenario.h"
#include "tools/scenario/esito.h"

using namespace schedine;
using namespace schedine::scenario;

namespace {

void verifica(const azione& a, int righe) {
  fuzz::richiedi(a.riga >= 1 && a.riga <= righe, "an action carries the number of a line of the text");
  switch (a.tipo) {
    case tipo_azione::clic:
    case tipo_azione::scelta:
    case tipo_azione::digitazione:
    case tipo_azione::uscita:
    case tipo_azione::griglia:
      fuzz::richiedi(!a.su.modulo.empty() && !a.su.e_modulo(), "a control action names a control of a form");
      break;
    case tipo_azione::chiusura:
    case tipo_azione::apertura:
      fuzz::richiedi(!a.su.modulo.empty() && a.su.e_modulo(), "a form action names a form");
      break;
    default: break;
  }
  if (a.tipo == tipo_azione::griglia) fuzz::richiedi(a.numeri.size() == 4, "a grid action has both corners");
  fuzz::richiedi(a.su.indice >= -1, "a control index is not negative");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t dimensione) {
  std::string_view testo(reinterpret_cast<const char*>(dati), dimensione);
  int righe = 1;
  for (char c : testo) righe += c == '\n';
  try {
    for (const azione& a : analizza_scenario(testo)) verifica(a, righe);
  } catch (const errore_scenario& e) {
    fuzz::richiedi(e.riga() >= 1 && e.riga() <= righe, "a refused line is named by its number");
  }
  return 0;
}
