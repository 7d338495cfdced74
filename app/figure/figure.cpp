#include "app/figure/figure.h"

#include "app/figure/figura_schedina.h"
#include "app/figure/simboli.h"
#include "controls/modulo.h"
#include "forms/calibration/modulo_taratura.h"
#include "forms/calibration/tar_lotto.h"
#include "forms/calibration/tar_pannelli.h"
#include "forms/lotto/modulo_lotto.h"

namespace schedine {

namespace {

bool di_lotto(modulo& m) { return dynamic_cast<modulo_lotto*>(&m) != nullptr; }
bool di_taratura_pannelli(modulo& m) { return dynamic_cast<tar_pannelli*>(&m) != nullptr; }

}  // namespace

QPixmap figura_controllo(modulo& m, const controllo& c, QSize dimensione) {
  const auto* picture = dynamic_cast<const immagine*>(&c);
  if (picture == nullptr) return {};
  const std::string& nome = c.nome();
  if (dynamic_cast<tar_lotto*>(&m) != nullptr && nome == "Image1") return figura_taratura(m, dimensione);
  if (di_taratura_pannelli(m)) {
    if (nome == "Image2") return figura_taratura(m, dimensione);
    if (nome == "Image1") return icona_taratura(dimensione);
    if (nome == "Image3") return marchio_wforlife(dimensione);
  }
  if (di_lotto(m) && nome == "Image2") return marchio_10elotto(dimensione);
  return {};
}

QIcon icona_pulsante(modulo& m, const controllo& c, QSize dimensione) {
  const auto* bottone = dynamic_cast<const pulsante*>(&c);
  auto* taratura = dynamic_cast<modulo_taratura*>(&m);
  if (bottone == nullptr || taratura == nullptr || !bottone->caption.empty()) return {};
  try {
    return freccia(taratura->verso_freccia(c.nome(), c.indice()), dimensione);
  } catch (const errore_runtime&) {
    return {};  // a button of no cross
  }
}

QSize dimensione_naturale(modulo& m, const controllo& c) {
  // The 10eLotto panel picture, sized to stand whole in its panel above the
  // options frame that the design lays over the panel's foot.
  if (di_lotto(m) && c.nome() == "Image2") return {104, 60};
  return {};
}

}  // namespace schedine
