#pragma once
// The one painting code of the printing device's drawings: marks, boxes and
// the text line, in millimetres from the top left corner of the page, on a
// QPainter. The printer, the PDF files and the print preview on screen all
// draw through it; only the painter and its scale differ.
//
// On paper the scale is the paper's own resolution; on screen it is the
// zoom, so the text is sized to the scale rather than to the screen's
// resolution, and a page looks on screen as it comes out on paper.

#include <QFont>
#include <QPainter>
#include <cstdint>
#include <string>

#include "printing/qt/misure_mm.h"

namespace schedine {

class pittura_mm {
 public:
  pittura_mm();

  // Paints from now on with this painter, at this many dots a millimetre.
  void inizia(QPainter& pittore, misure_mm::scala scala);
  misure_mm::scala scala() const { return scala_; }

  // Device state, kept from one page and one painter to the next.
  void imposta_penna(int spessore) { spessore_penna_ = spessore; }
  void imposta_riempimento(int stile) { stile_riempimento_ = stile; }
  void imposta_riempimento(int stile, int32_t colore);
  void imposta_font_nome(const std::string& nome);
  void imposta_font_dimensione(float punti);
  void imposta_font_grassetto(bool grassetto);
  void posiziona_testo(float x, float y);

  void punto_zero();
  void cerchio(float x, float y, float raggio);
  void rettangolo(float x1, float y1, float x2, float y2);
  void testo(const std::string& testo);

 private:
  QPen penna() const;
  QBrush pennello() const;
  // Pen, brush and font go to the painter only when they differ from what it
  // holds: every change costs the PDF engine a state update.
  void applica_forma();
  void applica_testo();

  QPainter* pittore_ = nullptr;
  misure_mm::scala scala_;
  int spessore_penna_ = 1;
  int stile_riempimento_ = 1;  // none, until a job sets it
  int32_t colore_riempimento_ = 0;
  QFont font_;
  // The font the painter holds and its metrics; stale when false.
  bool font_applicato_valido_ = false;
  QFont font_applicato_;
  double ascesa_ = 0.0;        // dots from the top of a line to its baseline
  double altezza_riga_ = 0.0;  // dots from one line to the next
  float testo_x_ = 0.0f;
  float testo_y_ = 0.0f;
};

}  // namespace schedine
