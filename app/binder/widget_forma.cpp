#include "app/binder/widget_forma.h"

#include <QPainter>
#include <algorithm>

namespace schedine {

widget_forma::widget_forma(QWidget* genitore) : QWidget(genitore) {
  // A shape is drawn over what lies under it and never takes a click.
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAttribute(Qt::WA_NoSystemBackground);
}

void widget_forma::imposta_tipo(int tipo) {
  if (tipo == tipo_) return;
  tipo_ = tipo;
  update();
}

void widget_forma::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  pittore.setRenderHint(QPainter::Antialiasing, segno());
  QRectF area = QRectF(rect());
  // A square and a circle take the shorter side, centred, as the platform draws them.
  if (tipo_ == 1 || tipo_ == 3) {
    qreal lato = std::min(area.width(), area.height());
    area = QRectF(area.center().x() - lato / 2, area.center().y() - lato / 2, lato, lato);
  }
  if (segno()) {
    pittore.setPen(Qt::NoPen);
    pittore.setBrush(colore_segno);
  } else {
    pittore.setPen(QPen(colore_bordo, 1));
    pittore.setBrush(Qt::NoBrush);
    area.adjust(0.5, 0.5, -0.5, -0.5);
  }
  if (tipo_ == 2 || tipo_ == 3) {
    pittore.drawEllipse(area);
  } else {
    pittore.drawRect(area);
  }
}

}  // namespace schedine
