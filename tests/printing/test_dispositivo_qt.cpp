#include <gtest/gtest.h>

#include <QFile>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <cmath>

#include "core/errore_runtime.h"
#include "printing/lavoro_stampa.h"
#include "printing/qt/dispositivo_qt.h"
#include "printing/segna.h"
#include "strumenti_pdf.h"

namespace schedine {
namespace {

using prova::macchia;
using prova::misura;

class DispositivoQt : public ::testing::Test {
 protected:
  QString percorso(const char* nome) const { return cartella_.filePath(nome); }
  static std::unique_ptr<dispositivo_qt> pdf(const QString& file) {
    return dispositivo_qt::per_pdf(file.toStdString());
  }

  QTemporaryDir cartella_;
};

struct caso_segno {
  const char* nome;
  uint8_t carattere_stampa;
  int riempimento;
  float x, y;                  // the point given to segna
  double centro_x, centro_y;   // where the mark's centre must fall
  double area_min, area_max;   // inked mm²: solid dot π, solid square 4, outline well under 1.5
};

// Each mark lands where its table puts it: dots centred on the point, squares
// to the left of and below it; solid with fill 0, outline only with fill 1.
TEST_F(DispositivoQt, SegniNelPuntoGiustoDellaPagina) {
  const caso_segno casi[] = {
      {"dot", 1, 0, 5.72f, 24.6f, 5.72, 24.6, 2.9, 3.6},
      {"square", 2, 0, 30.5f, 40.25f, 29.5, 41.25, 3.7, 4.6},
      {"dot far", 1, 0, 187.3f, 280.15f, 187.3, 280.15, 2.9, 3.6},
      {"outline square", 2, 1, 60.0f, 100.0f, 59.0, 101.0, 0.2, 1.5},
  };
  const QString file = percorso("segni.pdf");
  {
    auto d = pdf(file);
    prepara_lavoro(*d);
    for (const auto& c : casi) {
      d->imposta_riempimento(c.riempimento);
      segna(*d, c.carattere_stampa, c.x, c.y);
    }
    termina_lavoro(*d);
  }
  const auto pagina = prova::rasterizza(file, 1, 300);
  for (const auto& c : casi) {
    SCOPED_TRACE(c.nome);
    const macchia m = misura(pagina, c.centro_x - 3, c.centro_y - 3, c.centro_x + 3, c.centro_y + 3);
    EXPECT_NEAR(m.x, c.centro_x, 0.1);
    EXPECT_NEAR(m.y, c.centro_y, 0.1);
    EXPECT_GT(m.area, c.area_min);
    EXPECT_LT(m.area, c.area_max);
  }
}

// Two slips end with nuova_pagina each, the job closes on the empty page that
// follows, and a second job goes on in the same file: three pages, each
// holding its own mark.
TEST_F(DispositivoQt, LaPaginaVuotaInFondoAlLavoroNonEsce) {
  const QString file = percorso("pagine.pdf");
  {
    auto d = pdf(file);
    prepara_lavoro(*d);
    for (float posizione : {20.0f, 40.0f}) {
      d->disegna_punto_zero();
      segna(*d, 1, posizione, posizione);
      d->nuova_pagina();
    }
    EXPECT_EQ(d->numero_pagina(), 3);
    termina_lavoro(*d);
    EXPECT_EQ(d->numero_pagina(), 1);
    prepara_lavoro(*d);
    segna(*d, 1, 60.0f, 60.0f);
    termina_lavoro(*d);
  }
  ASSERT_EQ(prova::conta_pagine(file), 3);
  const float attese[] = {20.0f, 40.0f, 60.0f};
  for (int pagina = 1; pagina <= 3; ++pagina) {
    SCOPED_TRACE(pagina);
    const auto immagine = prova::rasterizza(file, pagina, 100);
    for (float posizione : attese) {
      const macchia m = misura(immagine, posizione - 2, posizione - 2, posizione + 2, posizione + 2);
      if (posizione == attese[pagina - 1]) {
        EXPECT_GT(m.area, 2.5);
      } else {
        EXPECT_EQ(m.area, 0.0);
      }
    }
  }
}

TEST_F(DispositivoQt, UnLavoroSenzaDisegniNonScriveNulla) {
  const QString file = percorso("vuoto.pdf");
  {
    auto d = pdf(file);
    d->imposta_scala_mm();
    d->imposta_penna(1, 1);
    d->nuova_pagina();
    termina_lavoro(*d);
  }
  EXPECT_FALSE(QFile::exists(file));
}

// The text can be read back from the PDF; its line starts at the text
// position with the top of the line there, and the next line starts at the
// left edge one line lower.
TEST_F(DispositivoQt, TestoLeggibileDallaPosizione) {
  const QString file = percorso("testo.pdf");
  {
    auto d = pdf(file);
    prepara_lavoro(*d);
    d->imposta_font_nome("arial");
    d->posiziona_testo(20.0f, 50.0f);
    d->imposta_font_dimensione(8.0f);
    d->stampa_testo("Sistema - Sched. n.3 - € 12,50");
    d->stampa_testo("Seconda");
    termina_lavoro(*d);
  }
  const std::string testo = prova::testo_pdf(file);
  EXPECT_NE(testo.find("Sistema - Sched. n.3 - € 12,50"), std::string::npos) << testo;

  const auto parole = prova::parole_pdf(file);
  const auto trova = [&](const std::string& cercata) {
    for (const auto& p : parole) {
      if (p.testo == cercata) return p;
    }
    ADD_FAILURE() << "no word " << cercata;
    return prova::parola_pdf{};
  };
  const auto prima = trova("Sistema");
  const auto seconda = trova("Seconda");
  const double punto_mm = 25.4 / 72.0;
  EXPECT_NEAR(prima.x_min, 20.0, 0.3);
  EXPECT_NEAR(prima.y_min, 50.0, 0.3);
  EXPECT_NEAR(prima.y_max - prima.y_min, 8 * punto_mm * 1.1, 0.6);  // an 8-point line
  EXPECT_NEAR(seconda.x_min, 0.0, 0.3);
  EXPECT_NEAR(seconda.y_min, prima.y_max, 0.3);
}

// Without a default printer the job fails as a run-time error of the printer
// at its first drawing, so the callers' failure rules apply; the settings and
// the close go through.
TEST(DispositivoQtStampante, SenzaStampantePredefinitaErroreDiStampa) {
  if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this machine has a default printer";
  auto d = dispositivo_qt::per_stampante_predefinita();
  d->imposta_modo_pagina(1);
  try {
    prepara_lavoro(*d);
    FAIL() << "no error";
  } catch (const errore_runtime& e) {
    EXPECT_EQ(e.numero(), codice::errore_stampante);
  }
  EXPECT_THROW(d->stampa_testo("x"), errore_runtime);
  EXPECT_NO_THROW(termina_lavoro(*d));
}

}  // namespace
}  // namespace schedine
