#include "printing/qt/dispositivo_qt.h"

#include <QPageSize>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <cerrno>

#include "core/errore_runtime.h"
#include "printing/qt/file_pdf.h"

#if defined(__GLIBC__)
#include <malloc.h>
#endif
#include <mutex>

namespace schedine {

namespace {

constexpr int modo_verticale = 1;

QPageLayout pagina_intera(const QPageSize& formato, QPageLayout::Orientation orientamento) {
  QPageLayout impaginazione(formato, orientamento, QMarginsF(0, 0, 0, 0));
  impaginazione.setMode(QPageLayout::FullPageMode);
  return impaginazione;
}

[[noreturn]] void errore_stampante(const char* dettaglio) {
  throw errore_runtime(codice::errore_stampante, dettaglio);
}

// A PDF file that can't be written, or was not written whole, is the printer
// error naming the file and the cause.
[[noreturn]] void errore_file(const file_pdf& file) {
  const int causa = file.guasto() != 0 ? file.guasto() : EIO;
  throw errore_runtime(codice::errore_stampante,
                       "impossibile scrivere il file PDF " + file.percorso() + ": " + testo_errore(codice_da_errno(causa)));
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
  auto file = std::make_unique<file_pdf>(percorso);
  auto pdf = std::make_unique<QPdfWriter>(file.get());
  pdf->setPageLayout(pagina_intera(QPageSize(QPageSize::A4), QPageLayout::Portrait));
  pdf->setCreator(QStringLiteral("schedine"));
  return std::unique_ptr<dispositivo_qt>(new dispositivo_qt(std::move(file), std::move(pdf)));
}

std::unique_ptr<dispositivo_qt> dispositivo_qt::per_stampante_predefinita() {
  return std::unique_ptr<dispositivo_qt>(new dispositivo_qt(nullptr, nullptr));
}

dispositivo_qt::dispositivo_qt(std::unique_ptr<file_pdf> file, std::unique_ptr<QPdfWriter> pdf)
    : file_(std::move(file)), pdf_(std::move(pdf)) {}

dispositivo_qt::~dispositivo_qt() { finisci(); }

void dispositivo_qt::termina() {
  finisci();
  if (file_ && file_->guasto() != 0) errore_file(*file_);
}

void dispositivo_qt::finisci() {
  if (pdf_) pdf_finito_ = true;
  if (pittore_.isActive()) pittore_.end();
  if (file_) file_->close();
  stampante_.reset();
  foglio_ = nullptr;
  lavoro_aperto_ = false;
  pagine_da_alimentare_ = 0;
}

// Paper is needed from here on.

QPainter& dispositivo_qt::pagina_pronta() {
  bool pagina_nuova = !lavoro_aperto_ || pagine_da_alimentare_ > 0;
  if (!lavoro_aperto_) apri_lavoro();
  for (; pagine_da_alimentare_ > 0; --pagine_da_alimentare_) foglio_->newPage();
  if (pagina_nuova && sfondo_) {
    pittore_.save();
    sfondo_(pittore_, pittura_.scala());
    pittore_.restore();
  }
  return pittore_;
}

void dispositivo_qt::apri_lavoro() {
  trattieni_memoria_pdf();
  if (pdf_) {
    apri_lavoro_pdf();
  } else {
    apri_lavoro_stampante();
  }
  pittura_.inizia(pittore_, misure_mm::scala_per_dpi(foglio_->logicalDpiX(), foglio_->logicalDpiY()));
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
  if (!file_->apri() || !pittore_.begin(pdf_.get())) errore_file(*file_);
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
  pittura_.imposta_penna(spessore);
}

void dispositivo_qt::imposta_riempimento(int stile) { pittura_.imposta_riempimento(stile); }

void dispositivo_qt::imposta_riempimento(int stile, int32_t colore) { pittura_.imposta_riempimento(stile, colore); }

void dispositivo_qt::disegna_punto_zero() {
  pagina_pronta();
  pittura_.punto_zero();
}

void dispositivo_qt::disegna_cerchio(float x, float y, float raggio) {
  pagina_pronta();
  pittura_.cerchio(x, y, raggio);
}

void dispositivo_qt::disegna_rettangolo(float x1, float y1, float x2, float y2) {
  pagina_pronta();
  pittura_.rettangolo(x1, y1, x2, y2);
}

void dispositivo_qt::imposta_font_nome(const std::string& nome) { pittura_.imposta_font_nome(nome); }
void dispositivo_qt::imposta_font_dimensione(float punti) { pittura_.imposta_font_dimensione(punti); }
void dispositivo_qt::imposta_font_grassetto(bool grassetto) { pittura_.imposta_font_grassetto(grassetto); }
void dispositivo_qt::posiziona_testo(float x, float y) { pittura_.posiziona_testo(x, y); }

void dispositivo_qt::stampa_testo(const std::string& testo) {
  pagina_pronta();
  pittura_.testo(testo);
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
