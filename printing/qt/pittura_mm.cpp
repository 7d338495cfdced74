#include "printing/qt/pittura_mm.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <cmath>

namespace schedine {

namespace {

constexpr int riempimento_pieno = 0;

// The font at the size that makes its points true millimetres at the
// painter's scale. On paper the scale is the device's own resolution and
// the font stays as it is.
QFont font_in_scala(const QFont& font, const QPaintDevice& foglio, misure_mm::scala scala) {
  const double dpi = foglio.logicalDpiY();
  const double fattore = dpi > 0 ? scala.y * misure_mm::mm_per_pollice / dpi : 1.0;
  if (std::fabs(fattore - 1.0) < 1e-9) return font;
  QFont scalato = font;
  scalato.setPointSizeF(font.pointSizeF() * fattore);
  return scalato;
}

}  // namespace

pittura_mm::pittura_mm() : font_(QStringLiteral("arial")) { font_.setPointSizeF(8.0); }

void pittura_mm::inizia(QPainter& pittore, misure_mm::scala scala) {
  pittore_ = &pittore;
  scala_ = scala;
  // A new painter or paper may hold another font and another resolution.
  font_applicato_valido_ = false;
}

void pittura_mm::imposta_riempimento(int stile, int32_t colore) {
  stile_riempimento_ = stile;
  colore_riempimento_ = colore;
}

void pittura_mm::imposta_font_nome(const std::string& nome) { font_.setFamily(QString::fromStdString(nome)); }

void pittura_mm::imposta_font_dimensione(float punti) {
  if (punti > 0.0f) font_.setPointSizeF(punti);
}

void pittura_mm::imposta_font_grassetto(bool grassetto) { font_.setBold(grassetto); }

void pittura_mm::posiziona_testo(float x, float y) {
  testo_x_ = x;
  testo_y_ = y;
}

QPen pittura_mm::penna() const {
  // Width 0 is Qt's cosmetic hairline: one dot of the device, the thinnest it
  // can draw. Wider pens are counted in device dots.
  QPen penna(Qt::black);
  penna.setWidth(spessore_penna_ <= 1 ? 0 : spessore_penna_);
  penna.setCosmetic(true);
  return penna;
}

QBrush pittura_mm::pennello() const {
  if (stile_riempimento_ != riempimento_pieno) return Qt::NoBrush;
  const auto c = misure_mm::colore_da_intero(colore_riempimento_);
  return QBrush(QColor(c.rosso, c.verde, c.blu));
}

void pittura_mm::applica_forma() {
  const QPen voluta = penna();
  if (pittore_->pen() != voluta) pittore_->setPen(voluta);
  const QBrush voluto = pennello();
  if (pittore_->brush() != voluto) pittore_->setBrush(voluto);
}

void pittura_mm::punto_zero() {
  // One device dot at the origin, black whatever the fill state.
  pittore_->fillRect(QRectF(0.0, 0.0, 1.0, 1.0), Qt::black);
}

void pittura_mm::cerchio(float x, float y, float raggio) {
  const auto r = misure_mm::rettangolo_cerchio(scala_, x, y, raggio);
  applica_forma();
  pittore_->drawEllipse(QRectF(r.x, r.y, r.larghezza, r.altezza));
}

void pittura_mm::rettangolo(float x1, float y1, float x2, float y2) {
  const auto r = misure_mm::rettangolo_angoli(scala_, x1, y1, x2, y2);
  applica_forma();
  pittore_->drawRect(QRectF(r.x, r.y, r.larghezza, r.altezza));
}

void pittura_mm::applica_testo() {
  if (!font_applicato_valido_ || font_applicato_ != font_) {
    const QFont in_scala = font_in_scala(font_, *pittore_->device(), scala_);
    pittore_->setFont(in_scala);
    const QFontMetricsF metriche(in_scala, pittore_->device());
    ascesa_ = metriche.ascent();
    altezza_riga_ = metriche.height();
    font_applicato_ = font_;
    font_applicato_valido_ = true;
  }
  const QPen voluta(Qt::black);
  if (pittore_->pen() != voluta) pittore_->setPen(voluta);
}

void pittura_mm::testo(const std::string& testo) {
  applica_testo();
  // The text position is the top of the line; the painter wants the baseline.
  const auto inizio = misure_mm::in_punti(scala_, testo_x_, testo_y_);
  pittore_->drawText(QPointF(inizio.x, inizio.y + ascesa_), QString::fromStdString(testo));
  // The next line starts at the left edge, one line lower.
  testo_x_ = 0.0f;
  testo_y_ += static_cast<float>(misure_mm::altezza_in_mm(scala_, altezza_riga_));
}

}  // namespace schedine
