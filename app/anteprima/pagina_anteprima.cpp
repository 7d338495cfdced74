#include "app/anteprima/pagina_anteprima.h"

#include <QPaintEvent>
#include <QPainter>

#include "printing/qt/dispositivo_pittore.h"
#include "printing/qt/figura_pagina.h"
#include "printing/registratore.h"

namespace schedine {

namespace {
constexpr int margine = 12;  // dots of grey around the sheet
}

pagina_anteprima::pagina_anteprima(const registratore& pagine, QWidget* genitore)
    : QWidget(genitore), pagine_(pagine) {
  setObjectName(QStringLiteral("pagina"));
  resize(sizeHint());
}

void pagina_anteprima::mostra_pagina(size_t i) {
  if (i >= pagine_.pagine() || i == pagina_) return;
  pagina_ = i;
  update();
}

void pagina_anteprima::imposta_zoom(double zoom) {
  zoom_ = zoom;
  resize(sizeHint());
  update();
}

void pagina_anteprima::mostra_figura(bool si) {
  figura_ = si;
  update();
}

double pagina_anteprima::punti_per_mm() const { return logicalDpiX() / misure_mm::mm_per_pollice * zoom_; }

QSize pagina_anteprima::sizeHint() const {
  const double k = punti_per_mm();
  return {static_cast<int>(larghezza_mm * k) + 2 * margine, static_cast<int>(altezza_mm * k) + 2 * margine};
}

void pagina_anteprima::disegna(QPainter& p, const QRectF& visibile) const {
  const double k = punti_per_mm();
  const misure_mm::scala scala{k, k};
  p.fillRect(QRectF(0, 0, larghezza_mm * k, altezza_mm * k), Qt::white);
  if (pagine_.pagine() == 0) return;
  p.setClipRect(QRectF(0, 0, larghezza_mm * k, altezza_mm * k).intersected(visibile));
  if (figura_) {
    p.save();
    disegna_figura(p, scala, pagine_.pagina_n(pagina_).carta, visibile);
    p.restore();
  }
  // Marks are drawn smooth on screen; paper gets them at its own resolution.
  p.setRenderHint(QPainter::Antialiasing);
  dispositivo_pittore dispositivo(p, scala);
  pagine_.riproduci_pagina(pagina_, dispositivo);
}

void pagina_anteprima::paintEvent(QPaintEvent* evento) {
  QPainter p(this);
  p.fillRect(evento->rect(), palette().color(QPalette::Dark));
  p.translate(margine, margine);
  disegna(p, QRectF(evento->rect()).translated(-margine, -margine));
}

}  // namespace schedine
