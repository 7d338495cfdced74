#pragma once
// Looks at PDF files the way a person with poppler's tools would: page count,
// extracted text, word boxes, and a grey raster in which marks are measured.

#include <QString>
#include <cstdint>
#include <string>
#include <vector>

namespace schedine::prova {

int conta_pagine(const QString& pdf);
std::string testo_pdf(const QString& pdf);

// A word's box on a page, in millimetres from the top left corner.
struct parola_pdf {
  std::string testo;
  double x_min = 0, y_min = 0, x_max = 0, y_max = 0;
};
std::vector<parola_pdf> parole_pdf(const QString& pdf);

struct immagine_grigia {
  int larghezza = 0;
  int altezza = 0;
  int dpi = 0;
  std::vector<uint8_t> pixel;  // 0 black, 255 white
};
// Page `pagina` (from 1), rendered by pdftoppm in grey.
immagine_grigia rasterizza(const QString& pdf, int pagina, int dpi);

// What is dark inside a window of the page: its centre (darkness-weighted
// centroid) and its inked area, in millimetres.
struct macchia {
  double x = 0;
  double y = 0;
  double area = 0;
};
macchia misura(const immagine_grigia& immagine, double x0, double y0, double x1, double y1);

}  // namespace schedine::prova
