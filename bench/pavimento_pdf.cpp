#include "bench/pavimento_pdf.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <stdexcept>

namespace schedine::pavimento {

namespace {

segno segno_pagina() {
  segno s;
  s.t = segno::tipo::pagina;
  return s;
}

}  // namespace

std::unique_ptr<QPdfWriter> scrittore_pdf(const QString& percorso) {
  auto pdf = std::make_unique<QPdfWriter>(percorso);
  QPageLayout impaginazione(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0));
  impaginazione.setMode(QPageLayout::FullPageMode);
  pdf->setPageLayout(impaginazione);
  pdf->setCreator(QStringLiteral("schedine"));
  return pdf;
}

registro_pdf::registro_pdf() : metriche_(scrittore_pdf(QString())), font_(QStringLiteral("arial")) {
  font_.setPointSizeF(8.0);
  scala_ = misure_mm::scala_per_dpi(metriche_->logicalDpiX(), metriche_->logicalDpiY());
}

registro_pdf::~registro_pdf() = default;

// The Qt device feeds a page only when something is drawn on it, and starts
// each later job of the file on a page of its own.
void registro_pdf::pagina_pronta() {
  if (!lavoro_aperto_) {
    if (disegnato_) esito_.segni.push_back(segno_pagina());
    lavoro_aperto_ = true;
    disegnato_ = true;
  }
  for (; da_alimentare_ > 0; --da_alimentare_) esito_.segni.push_back(segno_pagina());
}

int16_t registro_pdf::pennello_corrente() {
  QBrush pennello(Qt::NoBrush);
  if (stile_ == 0) {
    const auto c = misure_mm::colore_da_intero(colore_);
    pennello = QBrush(QColor(c.rosso, c.verde, c.blu));
  }
  for (size_t i = 0; i < esito_.pennelli.size(); ++i) {
    if (esito_.pennelli[i] == pennello) return static_cast<int16_t>(i);
  }
  esito_.pennelli.push_back(pennello);
  return static_cast<int16_t>(esito_.pennelli.size() - 1);
}

int16_t registro_pdf::font_corrente() {
  for (size_t i = 0; i < esito_.font.size(); ++i) {
    if (esito_.font[i] == font_) return static_cast<int16_t>(i);
  }
  esito_.font.push_back(font_);
  return static_cast<int16_t>(esito_.font.size() - 1);
}

void registro_pdf::disegna_punto_zero() {
  pagina_pronta();
  esito_.segni.push_back({segno::tipo::punto_zero, 0, 0, 0, QRectF(0.0, 0.0, 1.0, 1.0)});
}

void registro_pdf::disegna_cerchio(float x, float y, float raggio) {
  pagina_pronta();
  const auto r = misure_mm::rettangolo_cerchio(scala_, x, y, raggio);
  esito_.segni.push_back({segno::tipo::ellisse, pennello_corrente(), 0, 0, QRectF(r.x, r.y, r.larghezza, r.altezza)});
}

void registro_pdf::disegna_rettangolo(float x1, float y1, float x2, float y2) {
  pagina_pronta();
  const auto r = misure_mm::rettangolo_angoli(scala_, x1, y1, x2, y2);
  esito_.segni.push_back(
      {segno::tipo::rettangolo, pennello_corrente(), 0, 0, QRectF(r.x, r.y, r.larghezza, r.altezza)});
}

void registro_pdf::imposta_font_nome(const std::string& nome) { font_.setFamily(QString::fromStdString(nome)); }

void registro_pdf::imposta_font_dimensione(float punti) {
  if (punti > 0.0f) font_.setPointSizeF(punti);
}

void registro_pdf::imposta_font_grassetto(bool grassetto) { font_.setBold(grassetto); }

void registro_pdf::stampa_testo(const std::string& testo) {
  pagina_pronta();
  const QFontMetricsF metriche(font_, metriche_.get());
  const auto inizio = misure_mm::in_punti(scala_, testo_x_, testo_y_);
  esito_.testi.push_back(QString::fromStdString(testo));
  esito_.segni.push_back({segno::tipo::testo, 0, font_corrente(), static_cast<int32_t>(esito_.testi.size() - 1),
                          QRectF(inizio.x, inizio.y + metriche.ascent(), 0.0, 0.0)});
  testo_x_ = 0.0f;
  testo_y_ += static_cast<float>(misure_mm::altezza_in_mm(scala_, metriche.height()));
}

void disegna_pavimento(const segni_pdf& segni, const QString& percorso) {
  auto pdf = scrittore_pdf(percorso);
  QPainter p;
  if (!p.begin(pdf.get())) throw std::runtime_error("impossibile scrivere il PDF del pavimento");
  QPen penna(Qt::black);
  penna.setWidth(0);
  penna.setCosmetic(true);
  p.setPen(penna);
  int pennello = -1;
  int font = -1;
  for (const segno& s : segni.segni) {
    switch (s.t) {
      case segno::tipo::pagina:
        pdf->newPage();
        break;
      case segno::tipo::punto_zero:
        p.fillRect(s.r, Qt::black);
        break;
      case segno::tipo::ellisse:
      case segno::tipo::rettangolo:
        if (s.pennello != pennello) {
          pennello = s.pennello;
          p.setBrush(segni.pennelli[static_cast<size_t>(pennello)]);
        }
        if (s.t == segno::tipo::ellisse) {
          p.drawEllipse(s.r);
        } else {
          p.drawRect(s.r);
        }
        break;
      case segno::tipo::testo:
        if (s.font != font) {
          font = s.font;
          p.setFont(segni.font[static_cast<size_t>(font)]);
        }
        p.drawText(s.r.topLeft(), segni.testi[static_cast<size_t>(s.testo)]);
        break;
    }
  }
  p.end();
}

}  // namespace schedine::pavimento
