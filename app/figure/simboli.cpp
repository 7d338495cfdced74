#include "app/figure/simboli.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "forms/calibration/modulo_taratura.h"

namespace schedine {

namespace {

QPixmap trasparente(QSize dimensione) {
  QPixmap figura(dimensione.expandedTo(QSize(1, 1)));
  figura.fill(Qt::transparent);
  return figura;
}

QFont carattere(qreal pixel, bool grassetto) {
  QFont font(QStringLiteral("Arial"));
  font.setPixelSize(std::max(6, static_cast<int>(pixel)));
  font.setBold(grassetto);
  return font;
}

// The largest pixel size (up to massimo) at which the text fits the width.
qreal adatta(const QString& testo, qreal larghezza, qreal massimo, bool grassetto) {
  qreal pixel = massimo;
  while (pixel > 6 && QFontMetricsF(carattere(pixel, grassetto)).horizontalAdvance(testo) > larghezza) pixel -= 0.5;
  return pixel;
}

}  // namespace

QIcon freccia(verso direzione, QSize dimensione) {
  QPixmap figura = trasparente(dimensione);
  QPainter pittore(&figura);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.translate(dimensione.width() / 2.0, dimensione.height() / 2.0);
  // Drawn pointing right, then turned.
  const qreal gradi[] = {90, 0, -90, 180};  // giu, destra, su, sinistra
  pittore.rotate(gradi[static_cast<int>(direzione)]);
  const qreal r = std::min(dimensione.width(), dimensione.height()) * 0.42;
  QPainterPath punta;
  punta.moveTo(r, 0);
  punta.lineTo(-r * 0.2, -r * 0.8);
  punta.lineTo(-r * 0.2, -r * 0.3);
  punta.lineTo(-r, -r * 0.3);
  punta.lineTo(-r, r * 0.3);
  punta.lineTo(-r * 0.2, r * 0.3);
  punta.lineTo(-r * 0.2, r * 0.8);
  punta.closeSubpath();
  pittore.setPen(QPen(QColor(0x10, 0x30, 0x60), 1));
  pittore.setBrush(QColor(0x2e, 0x7d, 0x32));
  pittore.drawPath(punta);
  return QIcon(figura);
}

QPixmap marchio_10elotto(QSize dimensione) {
  QPixmap figura = trasparente(dimensione);
  QPainter pittore(&figura);
  pittore.setRenderHint(QPainter::Antialiasing);
  QRectF area = QRectF(figura.rect()).adjusted(1, 1, -1, -1);
  pittore.setPen(QPen(QColor(0x0b, 0x5e, 0x2b), 2));
  pittore.setBrush(QColor(0xf6, 0xd3, 0x2a));
  pittore.drawRoundedRect(area, 10, 10);
  // "10" large on the left, "e Lotto" beside it.
  QRectF dieci = area.adjusted(4, 0, -area.width() * 0.48, 0);
  pittore.setFont(carattere(area.height() * 0.62, true));
  pittore.setPen(QColor(0xc6, 0x28, 0x28));
  pittore.drawText(dieci, Qt::AlignCenter, QStringLiteral("10"));
  QRectF lotto = area.adjusted(area.width() * 0.5, 0, -2, 0);
  pittore.setFont(carattere(adatta(QStringLiteral("eLotto"), lotto.width(), area.height() * 0.36, true), true));
  pittore.setPen(QColor(0x0b, 0x5e, 0x2b));
  pittore.drawText(lotto, Qt::AlignCenter, QStringLiteral("eLotto"));
  return figura;
}

QPixmap marchio_wforlife(QSize dimensione) {
  QPixmap figura = trasparente(dimensione);
  QPainter pittore(&figura);
  pittore.setRenderHint(QPainter::Antialiasing);
  QRectF area = QRectF(figura.rect()).adjusted(1, 1, -1, -1);
  pittore.setPen(Qt::NoPen);
  pittore.setBrush(QColor(0x00, 0x8c, 0x45));
  pittore.drawRoundedRect(area, area.height() / 3, area.height() / 3);
  const QString testo = QStringLiteral("Win for Life");
  pittore.setFont(carattere(adatta(testo, area.width() - 6, area.height() * 0.6, true), true));
  pittore.setPen(Qt::white);
  pittore.drawText(area, Qt::AlignCenter, testo);
  return figura;
}

QPixmap icona_taratura(QSize dimensione) {
  QPixmap figura = trasparente(dimensione);
  QPainter pittore(&figura);
  pittore.setRenderHint(QPainter::Antialiasing);
  const QRectF area = QRectF(figura.rect()).adjusted(2, 2, -2, -2);
  const QPointF centro = area.center();
  pittore.setBrush(QColor(255, 255, 255, 210));
  pittore.setPen(QPen(QColor(0x1f, 0x4e, 0x8c), 2));
  pittore.drawEllipse(area);
  pittore.drawLine(QPointF(area.left(), centro.y()), QPointF(area.right(), centro.y()));
  pittore.drawLine(QPointF(centro.x(), area.top()), QPointF(centro.x(), area.bottom()));
  pittore.setPen(Qt::NoPen);
  pittore.setBrush(QColor(0x10, 0x10, 0x10));
  pittore.drawEllipse(centro, area.width() / 7, area.width() / 7);
  return figura;
}

}  // namespace schedine
