#pragma once
// The printing device on paper: QPainter on a QPagedPaintDevice, in
// millimetres from the top left corner of the paper, full page, no margins.
// One painting path serves both destinations: QPrinter on the system's default
// printer (no dialog) and QPdfWriter for a PDF file. A QGuiApplication must
// exist while the device draws text.
//
// A job begins at its first drawing or text, not before, so a job that draws
// nothing sends nothing. nuova_pagina only notes that a page has ended: the
// fresh page is fed when something is drawn on it, so the empty page left by
// the last slip's nuova_pagina never reaches the paper.

#include <QPainter>
#include <QPageLayout>
#include <functional>
#include <memory>
#include <string>

#include "printing/dispositivo_stampa.h"
#include "printing/qt/misure_mm.h"
#include "printing/qt/pittura_mm.h"

class QPagedPaintDevice;
class QPdfWriter;
class QPrinter;

namespace schedine {

class file_pdf;

// Qt's PDF engine (behind QPdfWriter and, on Linux, QPrinter) takes two 16 MB
// buffers to compress each page and frees them at once. With glibc's default
// thresholds that memory goes back to the system after every page and comes
// back, page faults and all, at the next: up to half the time of a print.
// This keeps such blocks in the process instead (the pages touched stay few,
// so the resident size does not grow). The device applies it at its first
// job; it is public so that a bare QPdfWriter loop can run under the same
// conditions. Applies once per process; does nothing off glibc.
void trattieni_memoria_pdf();

class dispositivo_qt : public dispositivo_stampa {
 public:
  // Every job of the device goes into the one PDF file, each job from a new
  // page. The file is written when the first job draws, and finished by
  // termina() or the device's end; a device that drew nothing writes no file.
  static std::unique_ptr<dispositivo_qt> per_pdf(const std::string& percorso);
  // Each job goes to the default printer at chiudi_stampa. Without a default
  // printer the first operation that needs paper throws errore_runtime
  // (printer error), and so does a printer that cannot be opened.
  static std::unique_ptr<dispositivo_qt> per_stampante_predefinita();

  // Finishes the PDF file, or sends a printer job left open. A PDF device
  // draws nothing more after it. termina() then tells a PDF file that could
  // not be written whole (a full disk, say): the printer error naming the
  // file and the cause. The device's end finishes without a word.
  ~dispositivo_qt() override;
  void termina();

  // What each page shows under the drawings, painted as the page begins (the
  // picture of the slip in a preview). None for paper, which has its own.
  using sfondo_pagina = std::function<void(QPainter&, misure_mm::scala)>;
  void imposta_sfondo(sfondo_pagina sfondo) { sfondo_ = std::move(sfondo); }

  void imposta_scala_mm() override;
  void imposta_modo_pagina(int modo) override;
  void imposta_penna(int stile, int spessore) override;
  void imposta_riempimento(int stile) override;
  void imposta_riempimento(int stile, int32_t colore) override;
  void disegna_punto_zero() override;
  void disegna_cerchio(float x, float y, float raggio) override;
  void disegna_rettangolo(float x1, float y1, float x2, float y2) override;
  void imposta_font_nome(const std::string& nome) override;
  void imposta_font_dimensione(float punti) override;
  void imposta_font_grassetto(bool grassetto) override;
  void posiziona_testo(float x, float y) override;
  void stampa_testo(const std::string& testo) override;
  int numero_pagina() override;
  void nuova_pagina() override;
  void chiudi_stampa() override;

 private:
  dispositivo_qt(std::unique_ptr<file_pdf> file, std::unique_ptr<QPdfWriter> pdf);
  void finisci();

  // The painter, ready on the page being drawn: opens the job and feeds the
  // pages ended since the last drawing.
  QPainter& pagina_pronta();
  void apri_lavoro();
  void apri_lavoro_pdf();
  void apri_lavoro_stampante();
  std::unique_ptr<file_pdf> file_;           // the PDF's file; null for the printer
  std::unique_ptr<QPdfWriter> pdf_;          // PDF destination, writing into file_
  std::unique_ptr<QPrinter> stampante_;      // the printer of the open job
  QPagedPaintDevice* foglio_ = nullptr;      // what the painter is on
  QPainter pittore_;

  bool pdf_finito_ = false;
  bool lavoro_aperto_ = false;
  int pagine_da_alimentare_ = 0;
  int pagina_ = 1;

  QPageLayout::Orientation orientamento_ = QPageLayout::Portrait;
  pittura_mm pittura_;
  sfondo_pagina sfondo_;
};

}  // namespace schedine
