#include "app/viste/strumenti_vista.h"

namespace schedine {

void posiziona_twips(QWidget* widget, int sinistra, int alto, int larghezza, int altezza) {
  widget->setGeometry(pixel_da_twips(static_cast<float>(sinistra)), pixel_da_twips(static_cast<float>(alto)),
                      pixel_da_twips(static_cast<float>(larghezza)), pixel_da_twips(static_cast<float>(altezza)));
}

QFont font_fisso(int punti) {
  QFont font(QStringLiteral("Courier New"), punti);
  // fontconfig maps Courier New to Liberation Mono; the hints keep a fixed
  // pitch on a system that maps it to nothing.
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  return font;
}

}  // namespace schedine
