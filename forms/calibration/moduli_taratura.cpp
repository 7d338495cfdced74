#include "forms/calibration/moduli_taratura.h"

#include "forms/calibration/tar_lotto.h"
#include "forms/calibration/tar_pannelli.h"

namespace schedine {

void registra_moduli_taratura(insieme_moduli& moduli) {
  moduli.registra("tar_lotto", [](stato& s, insieme_moduli& m) { return std::make_unique<tar_lotto>(s, m); });
  for (const variante_pannelli* v :
       {&variante_tar_enalotto, &variante_tar_enalotto2, &variante_tar_wforlife, &variante_tar_wforlife5}) {
    moduli.registra(v->nome, [v](stato& s, insieme_moduli& m) { return std::make_unique<tar_pannelli>(*v, s, m); });
  }
}

}  // namespace schedine
