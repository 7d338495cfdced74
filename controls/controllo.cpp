#include "controls/controllo.h"

namespace schedine {

std::string controllo::nome_completo() const {
  return indice_ < 0 ? nome_ : nome_ + "(" + std::to_string(indice_) + ")";
}

bool controllo::raggiungibile() const {
  for (const controllo* c = this; c != nullptr; c = c->contenitore) {
    if (!c->abilitato || !c->visibile) return false;
  }
  return true;
}

}  // namespace schedine
