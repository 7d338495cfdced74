// The steps that open every print run of the Lotto slip forms, between the
// check of the play and the print driver.

#include "calibration/fabbrica.h"
#include "calibration/file_tar.h"
#include "core/file_sistema.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "forms/lotto/modulo_lotto.h"

namespace schedine {

void modulo_lotto::prepara_stampa() {
  // A print always reloads the slip's calibration, so that only what was saved reaches paper.
  if (!esiste_file(nel_programma(s.cartella_programma, "tarlo2"))) passa_oltre([&] { default_tar_lotto(s); });
  passa_oltre([&] { carica_tar_lotto(s); });
  // A box that holds no number leaves the shared value as it was.
  passa_oltre([&] { s.dalla_scheda = a_long(numero_locale(c<casella_testo>("txtdalla").testo(), s.locale)); });
  passa_oltre([&] { s.alla_scheda = a_long(numero_locale(c<casella_testo>("txtalla").testo(), s.locale)); });
  passa_oltre([&] {
    c<barra_avanzamento>("ProgressBar1").massimo = a_long(static_cast<double>(s.alla_scheda) - s.dalla_scheda + 1);
  });
  passa_oltre([&] { c<barra_avanzamento>("ProgressBar1").imposta_valore(0); });
  // The progress frame stands over the form; the screen gets a chance to paint it.
  passa_oltre([&] { c<cornice>("Frame2").visibile = true; });
  passa_oltre([&] { s.piattaforma->esegui_eventi_in_attesa(); });
}

}  // namespace schedine
