#include "app/figure/testa_colonna.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

namespace schedine {

namespace {

constexpr qreal pixel_massimi = 12;
constexpr qreal pixel_minimi = 6;

}  // namespace

testa_colonna::testa_colonna(QWidget* genitore) : QLabel(genitore) {}

// The largest bold face up to 12 pixels whose text runs along the box's
// height and stands within its width.
QFont testa_colonna::carattere_che_entra() const {
  QFont font = this->font();
  font.setBold(true);
  const qreal lunghezza = height() - 2;
  qreal pixel = std::min<qreal>(pixel_massimi, width() - 3);
  for (; pixel > pixel_minimi; pixel -= 0.5) {
    font.setPixelSize(static_cast<int>(pixel));
    if (QFontMetricsF(font).horizontalAdvance(text()) <= lunghezza) break;
  }
  font.setPixelSize(static_cast<int>(std::max(pixel, pixel_minimi)));
  return font;
}

// Turned, the text's length is the box's height and its height the box's width.
QSize testa_colonna::sizeHint() const {
  QFontMetricsF misure(carattere_che_entra());
  return QSizeF(misure.height(), misure.horizontalAdvance(text()) + 2).toSize();
}

void testa_colonna::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  pittore.setRenderHint(QPainter::TextAntialiasing);
  pittore.setFont(carattere_che_entra());
  pittore.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
  pittore.translate(0, height());
  pittore.rotate(-90);
  // Now x runs up the box from its foot and y across it.
  pittore.drawText(QRectF(1, 0, height() - 2, width()), Qt::AlignLeft | Qt::AlignVCenter, text());
}

}  // namespace schedine
