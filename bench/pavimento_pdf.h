#pragma once
// The floor of a PDF print run: the marks a run puts on paper, worked out in
// advance, then drawn by a bare QPainter loop on a QPdfWriter with no system
// logic. What the Qt device costs above this loop is its own overhead.
//
// registro_pdf is a printing device that draws nothing: it works out each
// mark the Qt device would draw (same page size, resolution, millimetre
// arithmetic, text baseline and page feeding) and keeps it in a list.
// disegna_pavimento draws that list.

#include <QBrush>
#include <QFont>
#include <QRectF>
#include <QString>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "printing/dispositivo_stampa.h"
#include "printing/qt/misure_mm.h"

class QPdfWriter;

namespace schedine::pavimento {

struct segno {
  enum class tipo : uint8_t { pagina, punto_zero, ellisse, rettangolo, testo };
  tipo t = tipo::pagina;
  int16_t pennello = 0;  // index into segni_pdf::pennelli
  int16_t font = 0;      // index into segni_pdf::font
  int32_t testo = 0;     // index into segni_pdf::testi
  QRectF r;              // the box of a shape; for text, its baseline start
};

struct segni_pdf {
  std::vector<segno> segni;
  std::vector<QBrush> pennelli;
  std::vector<QFont> font;
  std::vector<QString> testi;
};

// A QPdfWriter set up as the Qt device sets up its own: A4, full page.
std::unique_ptr<QPdfWriter> scrittore_pdf(const QString& percorso);

class registro_pdf : public dispositivo_stampa {
 public:
  registro_pdf();
  ~registro_pdf() override;

  void imposta_scala_mm() override {}
  void imposta_modo_pagina(int) override {}
  void imposta_penna(int, int) override {}
  void imposta_riempimento(int stile) override { stile_ = stile; }
  void imposta_riempimento(int stile, int32_t colore) override {
    stile_ = stile;
    colore_ = colore;
  }
  void disegna_punto_zero() override;
  void disegna_cerchio(float x, float y, float raggio) override;
  void disegna_rettangolo(float x1, float y1, float x2, float y2) override;
  void imposta_font_nome(const std::string& nome) override;
  void imposta_font_dimensione(float punti) override;
  void imposta_font_grassetto(bool grassetto) override;
  void posiziona_testo(float x, float y) override {
    testo_x_ = x;
    testo_y_ = y;
  }
  void stampa_testo(const std::string& testo) override;
  int numero_pagina() override { return pagina_; }
  void nuova_pagina() override {
    ++pagina_;
    ++da_alimentare_;
  }
  void chiudi_stampa() override {
    da_alimentare_ = 0;
    pagina_ = 1;
    lavoro_aperto_ = false;
  }

  segni_pdf prendi() { return std::move(esito_); }

 private:
  void pagina_pronta();
  int16_t pennello_corrente();
  int16_t font_corrente();

  std::unique_ptr<QPdfWriter> metriche_;  // resolution and font metrics of a PDF
  misure_mm::scala scala_;
  segni_pdf esito_;
  bool disegnato_ = false;
  bool lavoro_aperto_ = false;
  int da_alimentare_ = 0;
  int pagina_ = 1;
  int stile_ = 1;
  int32_t colore_ = 0;
  QFont font_;
  float testo_x_ = 0.0f;
  float testo_y_ = 0.0f;
};

// Draws the marks into a PDF file: pen set once, brush and font only when
// they change.
void disegna_pavimento(const segni_pdf& segni, const QString& percorso);

}  // namespace schedine::pavimento
