// Pictures of the main window with skin 1 on a demo program folder, saved in
// the build folder (schermate/) for a person to look at, and checked for the
// skin's colours and for a list in a fixed-pitch font.

#include <gtest/gtest.h>

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSet>
#include <QTest>

#include "app/binder/legame.h"
#include "app/piattaforma_qt/piattaforma_qt.h"
#include "app/viste/registro_viste.h"
#include "app/viste/skin.h"
#include "forms/programma/programma.h"
#include "tests/support/cartella_temporanea.h"
#include "tools/demo/genera_demo.h"

namespace schedine::test {
namespace {

// What is on the screen where there is one, else what the window draws.
QImage fotografa(QWidget& finestra) {
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&finestra));
  QTest::qWait(300);
  if (QGuiApplication::platformName() == QLatin1String("xcb")) {
    QImage schermo = finestra.screen()->grabWindow(finestra.winId()).toImage();
    if (!schermo.isNull()) return schermo;
  }
  return finestra.grab().toImage();
}

QString salva(const QImage& immagine, const QString& nome) {
  QDir().mkpath(QStringLiteral(SCHEDINE_SCHERMATE));
  QString percorso = QStringLiteral(SCHEDINE_SCHERMATE) + QLatin1Char('/') + nome;
  EXPECT_TRUE(immagine.save(percorso)) << percorso.toStdString();
  return percorso;
}

int colori_diversi(const QImage& immagine) {
  QSet<QRgb> colori;
  for (int y = 0; y < immagine.height(); y += 2) {
    for (int x = 0; x < immagine.width(); x += 2) colori.insert(immagine.pixel(x, y));
  }
  return static_cast<int>(colori.size());
}

bool contiene(const QImage& immagine, QColor colore) {
  for (int y = 0; y < immagine.height(); ++y) {
    for (int x = 0; x < immagine.width(); ++x) {
      if (immagine.pixelColor(x, y) == colore) return true;
    }
  }
  return false;
}

TEST(Schermata, MainWindowWithSkinOne) {
  cartella_temporanea cartella;
  demo::genera_demo(cartella.str(), SCHEDINE_SKIN_DIR);
  piattaforma_qt piattaforma(cartella.str());
  programma p(cartella.str(), piattaforma, formato_locale::italiano());
  legame binder(p.moduli, piattaforma, &crea_finestra);
  piattaforma.prima_degli_eventi = [&] { binder.aggiorna(); };
  binder.alla_creazione = [&](finestra_modulo& f) { applica_skin(f, piattaforma.foglio_skin()); };
  binder.al_termine_per_guasto = [] { ADD_FAILURE() << "the program stopped on a fault"; };

  binder.evento([&] { p.avvia(); });
  finestra_modulo* form1 = binder.finestra("Form1");
  ASSERT_NE(form1, nullptr);
  // A Lotto game with a system picked, as a user would leave it before Ok.
  auto* terno = form1->findChild<QRadioButton*>(QStringLiteral("Option1_1"));
  QTest::mouseClick(terno, Qt::LeftButton, {}, QPoint(8, terno->height() / 2));
  auto* lista = form1->findChild<QListWidget*>(QStringLiteral("List1"));
  QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(1)).center());

  QImage immagine = fotografa(*form1);
  QString percorso = salva(immagine, QStringLiteral("form1.png"));
  std::cout << "schermata: " << percorso.toStdString() << "\n";
  EXPECT_GE(immagine.width(), 450);
  EXPECT_GE(immagine.height(), 350);
  EXPECT_GT(colori_diversi(immagine), 20);
  EXPECT_TRUE(contiene(immagine, QColor("#e8f0fa"))) << "skin 1 background";
  EXPECT_TRUE(contiene(immagine, QColor("#1f4e8c"))) << "skin 1 buttons";

  QTest::mouseClick(form1->findChild<QPushButton*>(QStringLiteral("cmdok")), Qt::LeftButton);
  finestra_modulo* scheda = binder.finestra("Form_sched_lotto_ambetto");
  ASSERT_NE(scheda, nullptr);
  salva(fotografa(*scheda), QStringLiteral("scheda_lotto.png"));
  p.termina();
}

}  // namespace
}  // namespace schedine::test
