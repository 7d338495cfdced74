#include "printing/qt/esporta_pdf.h"

#include <filesystem>

#include "core/errore_runtime.h"
#include "printing/qt/dispositivo_qt.h"
#include "printing/qt/figura_pagina.h"
#include "printing/registratore.h"

namespace schedine {

void esporta_pdf(const registratore& pagine, const std::string& percorso, bool con_figura) {
  if (pagine.pagine() == 0) throw errore_runtime(codice::errore_stampante, "l'anteprima non ha pagine");
  try {
    auto pdf = dispositivo_qt::per_pdf(percorso);
    for (size_t i = 0; i < pagine.pagine(); ++i) {
      if (i > 0) pdf->nuova_pagina();
      const schedina carta = pagine.pagina_n(i).carta;
      // The picture goes under the page as it begins, at its first drawing.
      if (con_figura) pdf->imposta_sfondo([carta](QPainter& p, misure_mm::scala s) { disegna_figura(p, s, carta); });
      pagine.riproduci_pagina(i, *pdf);
    }
    pdf->chiudi_stampa();
    pdf->termina();
  } catch (const errore_runtime&) {
    // A file left half-written holds no readable page; a device (such as
    // /dev/full) is no file of ours to remove.
    std::error_code nessuno;
    if (std::filesystem::is_regular_file(percorso, nessuno)) std::filesystem::remove(percorso, nessuno);
    throw;
  }
}

}  // namespace schedine
