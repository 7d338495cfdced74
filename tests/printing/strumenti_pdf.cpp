#include "strumenti_pdf.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace schedine::prova {

namespace {

constexpr double mm_per_punto_pdf = 25.4 / 72.0;

QByteArray esegui(const QString& programma, const QStringList& argomenti) {
  QProcess processo;
  processo.start(programma, argomenti);
  if (!processo.waitForFinished(60000) || processo.exitStatus() != QProcess::NormalExit ||
      processo.exitCode() != 0) {
    throw std::runtime_error((programma + " failed (poppler-utils installed?): " +
                              QString::fromUtf8(processo.readAllStandardError()))
                                 .toStdString());
  }
  return processo.readAllStandardOutput();
}

// Reads a binary PGM (P5) with 8-bit samples.
immagine_grigia leggi_pgm(const QByteArray& dati) {
  immagine_grigia immagine;
  int campi[3] = {0, 0, 0};
  qsizetype i = 2;
  for (int& campo : campi) {
    while (i < dati.size() && std::isspace(static_cast<unsigned char>(dati[i]))) ++i;
    while (i < dati.size() && std::isdigit(static_cast<unsigned char>(dati[i]))) campo = campo * 10 + (dati[i++] - '0');
  }
  ++i;  // the single blank after the maximum value
  if (!dati.startsWith("P5") || campi[2] != 255) throw std::runtime_error("not an 8-bit PGM");
  immagine.larghezza = campi[0];
  immagine.altezza = campi[1];
  const auto* inizio = reinterpret_cast<const uint8_t*>(dati.constData()) + i;
  immagine.pixel.assign(inizio, inizio + static_cast<size_t>(immagine.larghezza) * immagine.altezza);
  return immagine;
}

}  // namespace

int conta_pagine(const QString& pdf) {
  const QString info = QString::fromUtf8(esegui("pdfinfo", {pdf}));
  const auto trovato = QRegularExpression(R"(Pages:\s+(\d+))").match(info);
  if (!trovato.hasMatch()) throw std::runtime_error("pdfinfo gave no page count");
  return trovato.captured(1).toInt();
}

std::string testo_pdf(const QString& pdf) { return esegui("pdftotext", {pdf, "-"}).toStdString(); }

std::vector<parola_pdf> parole_pdf(const QString& pdf) {
  const QString html = QString::fromUtf8(esegui("pdftotext", {"-bbox", pdf, "-"}));
  static const QRegularExpression parola(
      R"re(<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">([^<]*)</word>)re");
  std::vector<parola_pdf> parole;
  for (auto it = parola.globalMatch(html); it.hasNext();) {
    const auto m = it.next();
    parole.push_back({m.captured(5).toStdString(), m.captured(1).toDouble() * mm_per_punto_pdf,
                      m.captured(2).toDouble() * mm_per_punto_pdf, m.captured(3).toDouble() * mm_per_punto_pdf,
                      m.captured(4).toDouble() * mm_per_punto_pdf});
  }
  return parole;
}

immagine_grigia rasterizza(const QString& pdf, int pagina, int dpi) {
  QTemporaryDir cartella;
  const QString radice = cartella.filePath("pagina");
  const QString numero = QString::number(pagina);
  esegui("pdftoppm", {"-r", QString::number(dpi), "-gray", "-f", numero, "-l", numero, "-singlefile", pdf, radice});
  QFile file(radice + ".pgm");
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("pdftoppm wrote no image");
  immagine_grigia immagine = leggi_pgm(file.readAll());
  immagine.dpi = dpi;
  return immagine;
}

macchia misura(const immagine_grigia& immagine, double x0, double y0, double x1, double y1) {
  const double pixel_per_mm = immagine.dpi / 25.4;
  const int c0 = std::max(0, static_cast<int>(x0 * pixel_per_mm));
  const int r0 = std::max(0, static_cast<int>(y0 * pixel_per_mm));
  const int c1 = std::min(immagine.larghezza, static_cast<int>(x1 * pixel_per_mm) + 1);
  const int r1 = std::min(immagine.altezza, static_cast<int>(y1 * pixel_per_mm) + 1);
  double peso = 0, somma_x = 0, somma_y = 0;
  for (int r = r0; r < r1; ++r) {
    for (int c = c0; c < c1; ++c) {
      const double scuro = (255 - immagine.pixel[static_cast<size_t>(r) * immagine.larghezza + c]) / 255.0;
      peso += scuro;
      somma_x += scuro * (c + 0.5);  // a pixel's ink sits at its centre
      somma_y += scuro * (r + 0.5);
    }
  }
  if (peso == 0) return {};
  return {somma_x / peso / pixel_per_mm, somma_y / peso / pixel_per_mm, peso / (pixel_per_mm * pixel_per_mm)};
}

}  // namespace schedine::prova
