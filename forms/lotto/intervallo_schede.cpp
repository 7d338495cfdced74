// The range of slips to print: the slip count of the system read at load,
// and the two boxes txtdalla and txtalla in which the user narrows it.

#include <string>

#include "core/numeri.h"
#include "forms/lotto/modulo_lotto.h"
#include "forms/lotto/testata_lotto.h"

namespace schedine {

void modulo_lotto::range_pagine() {
  // A head that can't be read leaves the count of the system seen before.
  passa_oltre([&] {
    if (auto schede = conta_schede_lotto(s)) schede_totali = *schede;
  });
  passa_oltre([&] { c<casella_testo>("txtalla").imposta_testo(std::to_string(schede_totali)); });
  passa_oltre([&] { c<casella_testo>("txtdalla").imposta_testo("1"); });
}

void modulo_lotto::filtro_intervallo(int& tasto) {
  // The upper bound of the first span stops at 46, so "/" (47) gets through with the digits.
  if ((tasto >= 32 && tasto <= 46) || (tasto >= 58 && tasto <= 255)) tasto = 0;
}

void modulo_lotto::uscita_txtalla() {
  // The box is compared with the count as a number by the locale's rules; a
  // text that is no number fails the comparison, and the handler, resuming
  // with the next statement, lands inside the branch: the count is shown.
  bool oltre = true;
  passa_oltre([&] { oltre = numero_locale(c<casella_testo>("txtalla").testo(), s.locale) > schede_totali; });
  if (oltre) {
    passa_oltre([&] { c<casella_testo>("txtalla").imposta_testo(std::to_string(schede_totali)); });
    return;
  }
  // Here the two boxes are compared as text: "100" sorts before "20".
  passa_oltre([&] {
    auto& alla = c<casella_testo>("txtalla");
    auto& dalla = c<casella_testo>("txtdalla");
    if (alla.testo() < dalla.testo()) alla.imposta_testo(dalla.testo());
  });
}

void modulo_lotto::uscita_txtdalla() {
  // Here the two boxes are compared by their leading numbers.
  passa_oltre([&] {
    auto& alla = c<casella_testo>("txtalla");
    auto& dalla = c<casella_testo>("txtdalla");
    if (numero_iniziale(alla.testo()) < numero_iniziale(dalla.testo())) {
      dalla.imposta_testo(alla.testo());
    } else if (dalla.testo() == "0") {
      dalla.imposta_testo("1");
    }
  });
}

}  // namespace schedine
