#include "printing/qt/dispositivo_qt.h"

#include <QFontMetricsF>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include "core/errore_runtime.h"

#if defined(__GLIBC__)
#include <malloc.h>
#endif
#include <mutex>

namespace schedine {

namespace {

constexpr int riempimento_pieno = 0;
constexpr int modo_verticale = 1;

QPageLayout pagina_intera(const QPageSize& formato, QPageLayout::Orientation orientamento) {
  QPageLayout impaginazione(formato, orientamento, QMarginsF(0, 0, 0, 0));
  impaginazione.setMode(QPageLayout::FullPageMode);
  return impaginazione;
}

[[noreturn]] void errore_stampante(const char* dettaglio) {
  throw errore_runtime(codice::errore_stampante, dettaglio);
}

}  // namespace

void trattieni_memoria_pdf() {
#if defined(__GLIBC__)
  static std::once_flag fatto;
  std::call_once(fatto, [] {
    // Blocks up to 32 MB (glibc's ceiling) come from the heap, not from a
    // mapping of their own, and up to 64 MB free at the top of the heap stay.
    mallopt(M_MMAP_THRESHOLD, 32 * 1024 * 1024);
    mallopt(M_TRIM_THRESHOLD, 64 * 1024 * 1024);
  });
#endif
}

std::unique_ptr<dispositivo_qt> dispositivo_qt::per_pdf(const std::string& percorso) {
  auto pdf = std::make_unique<QPdfWriter>(QString::fromStdString(percorso));
  pdf->setPageLayout(pagina_intera(QPageSize(QPageSize::A4), QPageLayout::Portrait));
  pdf->setCreator(QStringLiteral("schedine"));
  return std::unique_ptr<dispositivo_qt>(new dispositivo_qt(std::move(pdf)));
}

std::unique_ptr<dispositivo_qt> dispositivo_qt::per_stampante_predefinita() {
  return std::unique_ptr<dispositivo_qt>(new dispositivo_qt(nullptr));
}

dispositivo_qt::dispositivo_qt(std::unique_ptr<QPdfWriter> pdf)
    : pdf_(std::move(pdf)), font_(QStringLiteral("arial")) {
  font_.setPointSizeF(8.0);
}

dispositivo_qt::~dispositivo_qt() { termina(); }

void dispositivo_qt::termina() {
  if (pdf_) pdf_finito_ = true;
  if (pittore_.isActive()) pittore_.end();
  stampante_.reset();
  foglio_ = nullptr;
  lavoro_aperto_ = false;
  pagine_da_alimentare_ = 0;
}

// Paper is needed from here on.

QPainter& dispositivo_qt::pagina_pronta() {
  if (!lavoro_aperto_) apri_lavoro();
  for (; pagine_da_alimentare_ > 0; --pagine_da_alimentare_) foglio_->newPage();
  return pittore_;
}

void dispositivo_qt::apri_lavoro() {
  trattieni_memoria_pdf();
  // A new painter or paper may hold another font and another resolution.
  font_applicato_valido_ = false;
  if (pdf_) {
    apri_lavoro_pdf();
  } else {
    apri_lavoro_stampante();
  }
  scala_ = misure_mm::scala_per_dpi(foglio_->logicalDpiX(), foglio_->logicalDpiY());
  lavoro_aperto_ = true;
}

void dispositivo_qt::apri_lavoro_pdf() {
  // Beginning again would overwrite the finished file.
  if (pdf_finito_) errore_stampante("il file PDF è già chiuso");
  if (pittore_.isActive()) {
    // A later job of the same file starts on a page of its own.
    pdf_->setPageOrientation(orientamento_);
    pdf_->newPage();
    return;
  }
  pdf_->setPageOrientation(orientamento_);
  if (!pittore_.begin(pdf_.get())) errore_stampante("impossibile scrivere il file PDF");
  foglio_ = pdf_.get();
}

void dispositivo_qt::apri_lavoro_stampante() {
  if (QPrinterInfo::defaultPrinter().isNull()) errore_stampante("nessuna stampante predefinita");
  auto stampante = std::make_unique<QPrinter>(QPrinter::HighResolution);
  stampante->setFullPage(true);
  stampante->setPageOrientation(orientamento_);
  if (!pittore_.begin(stampante.get())) errore_stampante("impossibile aprire la stampante");
  stampante_ = std::move(stampante);
  foglio_ = stampante_.get();
}

// Device state: kept here and handed to the painter at each drawing, so it
// holds across the pages and jobs of the device.

void dispositivo_qt::imposta_scala_mm() {
  // Coordinates are always millimetres on this device.
}

void dispositivo_qt::imposta_modo_pagina(int modo) {
  // 1 is the upright page; it takes effect from the next job or page.
  if (modo == modo_verticale) orientamento_ = QPageLayout::Portrait;
}

void dispositivo_qt::imposta_penna(int /*stile*/, int spessore) {
  // The only pen the system asks for is the thinnest solid line.
  spessore_penna_ = spessore;
}

void dispositivo_qt::imposta_riempimento(int stile) { stile_riempimento_ = stile; }

void dispositivo_qt::imposta_riempimento(int stile, int32_t colore) {
  stile_riempimento_ = stile;
  colore_riempimento_ = colore;
}

QPen dispositivo_qt::penna() const {
  // Width 0 is Qt's cosmetic hairline: one dot of the device, the thinnest it
  // can draw. Wider pens are counted in device dots.
  QPen penna(Qt::black);
  penna.setWidth(spessore_penna_ <= 1 ? 0 : spessore_penna_);
  penna.setCosmetic(true);
  return penna;
}

QBrush dispositivo_qt::pennello() const {
  if (stile_riempimento_ != riempimento_pieno) return Qt::NoBrush;
  const auto c = misure_mm::colore_da_intero(colore_riempimento_);
  return QBrush(QColor(c.rosso, c.verde, c.blu));
}

void dispositivo_qt::applica_forma(QPainter& p) {
  const QPen voluta = penna();
  if (p.pen() != voluta) p.setPen(voluta);
  const QBrush voluto = pennello();
  if (p.brush() != voluto) p.setBrush(voluto);
}

void dispositivo_qt::disegna_punto_zero() {
  QPainter& p = pagina_pronta();
  // One device dot at the origin, black whatever the fill state.
  p.fillRect(QRectF(0.0, 0.0, 1.0, 1.0), Qt::black);
}

void dispositivo_qt::disegna_cerchio(float x, float y, float raggio) {
  QPainter& p = pagina_pronta();
  const auto r = misure_mm::rettangolo_cerchio(scala_, x, y, raggio);
  applica_forma(p);
  p.drawEllipse(QRectF(r.x, r.y, r.larghezza, r.altezza));
}

void dispositivo_qt::disegna_rettangolo(float x1, float y1, float x2, float y2) {
  QPainter& p = pagina_pronta();
  const auto r = misure_mm::rettangolo_angoli(scala_, x1, y1, x2, y2);
  applica_forma(p);
  p.drawRect(QRectF(r.x, r.y, r.larghezza, r.altezza));
}

// Text.

void dispositivo_qt::imposta_font_nome(const std::string& nome) { font_.setFamily(QString::fromStdString(nome)); }

void dispositivo_qt::imposta_font_dimensione(float punti) {
  if (punti > 0.0f) font_.setPointSizeF(punti);
}

void dispositivo_qt::imposta_font_grassetto(bool grassetto) { font_.setBold(grassetto); }

void dispositivo_qt::posiziona_testo(float x, float y) {
  testo_x_ = x;
  testo_y_ = y;
}

void dispositivo_qt::applica_testo(QPainter& p) {
  if (!font_applicato_valido_ || font_applicato_ != font_) {
    p.setFont(font_);
    const QFontMetricsF metriche(font_, foglio_);
    ascesa_ = metriche.ascent();
    altezza_riga_ = metriche.height();
    font_applicato_ = font_;
    font_applicato_valido_ = true;
  }
  const QPen voluta(Qt::black);
  if (p.pen() != voluta) p.setPen(voluta);
}

void dispositivo_qt::stampa_testo(const std::string& testo) {
  QPainter& p = pagina_pronta();
  applica_testo(p);
  // The text position is the top of the line; the painter wants the baseline.
  const auto inizio = misure_mm::in_punti(scala_, testo_x_, testo_y_);
  p.drawText(QPointF(inizio.x, inizio.y + ascesa_), QString::fromStdString(testo));
  // The next line starts at the left edge, one line lower.
  testo_x_ = 0.0f;
  testo_y_ += static_cast<float>(misure_mm::altezza_in_mm(scala_, altezza_riga_));
}

// Pages and jobs.

int dispositivo_qt::numero_pagina() { return pagina_; }

void dispositivo_qt::nuova_pagina() {
  ++pagina_;
  ++pagine_da_alimentare_;
}

void dispositivo_qt::chiudi_stampa() {
  // Pages ended but never drawn on are not fed.
  pagine_da_alimentare_ = 0;
  pagina_ = 1;
  if (!lavoro_aperto_) return;
  lavoro_aperto_ = false;
  if (stampante_) {
    pittore_.end();  // hands the job to the printer
    stampante_.reset();
    foglio_ = nullptr;
  }
}

}  // namespace schedine
