#include "printing/qt/esporta_pdf.h"

#include <QFileInfo>

#include "core/errore_runtime.h"
#include "printing/qt/dispositivo_qt.h"
#include "printing/qt/figura_pagina.h"
#include "printing/registratore.h"

namespace schedine {

bool esporta_pdf(const registratore& pagine, const std::string& percorso, bool con_figura) {
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
    return false;
  }
  const QFileInfo file(QString::fromStdString(percorso));
  return file.exists() && file.size() > 0;
}

}  // namespace schedine
