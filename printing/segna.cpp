#include "printing/segna.h"

#include "core/stato.h"
#include "printing/dispositivo_stampa.h"
#include "printing/lavoro_stampa.h"

namespace schedine {

void segna(dispositivo_stampa& dispositivo, uint8_t carattere_stampa, float x, float y) {
  if (carattere_stampa == carattere_punto) {
    dispositivo.disegna_cerchio(x, y, 1.0f);
  } else {
    dispositivo.disegna_rettangolo(x, y, x - 2.0f, y + 2.0f);
  }
}

void segna(stato& s, float x, float y) { segna(stampante(s), s.carattere_stampa, x, y); }

}  // namespace schedine
