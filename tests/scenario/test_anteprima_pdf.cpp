// The runner's preview PDF against its plain PDF, on a Lotto run and a
// five-panel SuperEnalotto run at factory calibration: in the preview every
// round mark stands inside a box of the slip's picture, and the plain PDF,
// which is what paper gets, holds no pixel of any picture.

#include <gtest/gtest.h>

#include <QColor>
#include <QDir>
#include <QImage>
#include <QProcess>
#include <cmath>
#include <filesystem>
#include <vector>

#include "printing/qt/figura_pagina.h"
#include "tests/support/cartella_temporanea.h"

namespace schedine {
namespace {

constexpr int dpi = 300;
constexpr double punti_per_mm = dpi / 25.4;

struct uscite {
  test::cartella_temporanea cartella;
  std::string pdf, anteprima;
};

// Runs tests/scenarios/NAME.txt on a copy of its fixture with both outputs.
void esegui(const std::string& nome, uscite& u) {
  namespace fs = std::filesystem;
  const fs::path scenari = SCHEDINE_SCENARI;
  fs::copy(scenari / nome, u.cartella.str(), fs::copy_options::recursive);
  fs::create_directories(u.cartella.file("skin"));
  for (const auto& skin : fs::directory_iterator(SCHEDINE_SKIN_DIR)) {
    fs::copy(skin.path(), fs::path(u.cartella.file("skin")) / skin.path().filename());
  }
  u.pdf = u.cartella.file("carta.pdf");
  u.anteprima = u.cartella.file("anteprima.pdf");
  QProcess runner;
  runner.start(QStringLiteral(SCHEDINE_RUNNER),
               {"--folder", QString::fromStdString(u.cartella.str()), "--journal", QString::fromStdString(u.cartella.file("giornale")),
                "--pdf", QString::fromStdString(u.pdf), "--anteprima", QString::fromStdString(u.anteprima),
                QString::fromStdString((scenari / (nome + ".txt")).string())});
  ASSERT_TRUE(runner.waitForFinished(60000));
  ASSERT_EQ(runner.exitCode(), 0) << runner.readAllStandardError().toStdString();
}

std::vector<QImage> pagine(const std::string& pdf, int risoluzione = dpi) {
  const QString base = QString::fromStdString(pdf) + QStringLiteral("-pagina");
  QProcess::execute(QStringLiteral("pdftoppm"), {"-r", QString::number(risoluzione), QString::fromStdString(pdf), base});
  std::vector<QImage> immagini;
  QDir cartella = QFileInfo(base).dir();
  for (const QString& f : cartella.entryList({QFileInfo(base).fileName() + "*.ppm"}, QDir::Files, QDir::Name)) {
    immagini.push_back(QImage(cartella.filePath(f)).convertToFormat(QImage::Format_RGB32));
  }
  return immagini;
}

bool nero(QRgb c) { return qRed(c) < 90 && qGreen(c) < 90 && qBlue(c) < 90; }

struct segno {
  double x, y;
};

// Round marks: dark blots about 2 mm across that fill their box as a disc does.
// Text glyphs are narrower or hollower.
std::vector<segno> segni_tondi(const QImage& im) {
  const int larghezza = im.width();
  std::vector<uint8_t> scuro(static_cast<size_t>(larghezza) * im.height(), 0);
  for (int y = 0; y < im.height(); ++y) {
    const auto* riga = reinterpret_cast<const QRgb*>(im.constScanLine(y));
    for (int x = 0; x < larghezza; ++x) scuro[y * larghezza + x] = nero(riga[x]);
  }
  std::vector<segno> segni;
  std::vector<int> pila;
  for (int i = 0; i < static_cast<int>(scuro.size()); ++i) {
    if (scuro[i] != 1) continue;
    int x0 = larghezza, x1 = 0, y0 = im.height(), y1 = 0, n = 0;
    double sx = 0, sy = 0;
    scuro[i] = 2;
    pila.push_back(i);
    while (!pila.empty()) {
      const int p = pila.back();
      pila.pop_back();
      const int x = p % larghezza, y = p / larghezza;
      ++n, sx += x, sy += y;
      x0 = std::min(x0, x), x1 = std::max(x1, x), y0 = std::min(y0, y), y1 = std::max(y1, y);
      for (int q : {x > 0 ? p - 1 : -1, x + 1 < larghezza ? p + 1 : -1, p - larghezza, p + larghezza}) {
        if (q < 0 || q >= static_cast<int>(scuro.size()) || scuro[q] != 1) continue;
        scuro[q] = 2;
        pila.push_back(q);
      }
    }
    const double w = (x1 - x0 + 1) / punti_per_mm, h = (y1 - y0 + 1) / punti_per_mm;
    const double pieno = n / double((x1 - x0 + 1) * (y1 - y0 + 1));
    if (w > 1.7 && w < 2.4 && h > 1.7 && h < 2.4 && pieno > 0.65) segni.push_back({sx / n, sy / n});
  }
  return segni;
}

double distanza(QRgb a, const QColor& b) {
  return std::hypot(qRed(a) - b.red(), qGreen(a) - b.green(), qBlue(a) - b.blue());
}

// All round just outside the mark lies a box of the picture: its inside,
// or its ink (edge, number).
void segni_nelle_caselle(const std::string& pdf, schedina carta) {
  const figura_schedina_mm& figura = figura_di(carta);
  const auto immagini = pagine(pdf);
  ASSERT_FALSE(immagini.empty());
  for (const QImage& im : immagini) {
    const auto segni = segni_tondi(im);
    EXPECT_GE(segni.size(), 5u);
    for (const segno& s : segni) {
      for (int k = 0; k < 16; ++k) {
        const double a = k * M_PI / 8, r = 1.25 * punti_per_mm;
        const QRgb c = im.pixel(int(std::lround(s.x + r * std::cos(a))), int(std::lround(s.y + r * std::sin(a))));
        EXPECT_TRUE(distanza(c, figura.casella) < 40 || distanza(c, figura.inchiostro) < 90)
            << "mark at " << s.x / punti_per_mm << ", " << s.y / punti_per_mm << " mm outside its box";
      }
    }
  }
}

// Paper gets black marks and text on white: not one coloured pixel.
void senza_figura(const std::string& pdf) {
  // The picture's smallest parts, box edges, are wider than a dot at this resolution.
  const auto immagini = pagine(pdf, 100);
  ASSERT_FALSE(immagini.empty());
  for (const QImage& im : immagini) {
    int colorati = 0;
    for (int y = 0; y < im.height(); ++y) {
      const auto* riga = reinterpret_cast<const QRgb*>(im.constScanLine(y));
      for (int x = 0; x < im.width(); ++x) {
        const QRgb c = riga[x];
        colorati += std::max({qRed(c), qGreen(c), qBlue(c)}) - std::min({qRed(c), qGreen(c), qBlue(c)}) > 12;
      }
    }
    EXPECT_EQ(colorati, 0);
  }
}

TEST(AnteprimaPdf, LottoMarksInTheirBoxesAndPaperWithoutPicture) {
  uscite u;
  esegui("lotto_cinquina", u);
  segni_nelle_caselle(u.anteprima, schedina::lotto);
  senza_figura(u.pdf);
}

TEST(AnteprimaPdf, FivePanelSuperEnalottoMarksInTheirBoxesAndPaperWithoutPicture) {
  uscite u;
  esegui("enalotto_cinque_pannelli", u);
  segni_nelle_caselle(u.anteprima, schedina::enalotto);
  senza_figura(u.pdf);
}

}  // namespace
}  // namespace schedine
