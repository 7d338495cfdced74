// Pictures of every window of the program on a demo program folder with
// skin 1, saved in the build folder (schermate/<form>.png) for a person to
// look at: on a real X server under Xvfb where there is one, else drawn off
// screen. Each is checked for what a person would first notice: the
// skin's colours, a fixed-pitch list, windows of the form's size that hold
// all their visible frames, slip pictures with their marks on them.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSet>
#include <QTest>
#include <functional>

#include "app/anteprima/finestra_anteprima.h"
#include "app/anteprima/pagina_anteprima.h"
#include "app/anteprima/regia_stampa.h"
#include "app/binder/legame.h"
#include "app/binder/nomi_widget.h"
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
  QTest::qWait(200);
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

// The whole program on a demo folder, with the platform of the desktop.
class Schermata : public ::testing::Test {
 protected:
  Schermata() : piattaforma(prepara(cartella)), regia(piattaforma), p(cartella.str(), regia, formato_locale::italiano()),
                binder(p.moduli, regia, &crea_finestra) {
    regia.imposta_stato(&p.s);
    piattaforma.prima_degli_eventi = [this] { binder.aggiorna(); };
    binder.alla_creazione = [this](finestra_modulo& f) {
      f.regia = &regia;
      applica_skin(f, piattaforma.foglio_skin());
    };
    binder.al_termine_per_guasto = [] { ADD_FAILURE() << "the program stopped on a fault"; };
    binder.evento([this] { p.avvia(); });
  }
  ~Schermata() override { p.termina(); }

  template <class W = QWidget>
  W* widget(const std::string& modulo, const std::string& nome, int indice = -1) {
    finestra_modulo* f = binder.finestra(modulo);
    return f == nullptr ? nullptr : f->findChild<W*>(nome_widget(nome, indice));
  }
  void clic(const std::string& modulo, const std::string& nome, int indice = -1) {
    auto* bottone = widget<QAbstractButton>(modulo, nome, indice);
    ASSERT_NE(bottone, nullptr) << modulo << "." << nome;
    QTest::mouseClick(bottone, Qt::LeftButton, {}, QPoint(std::min(8, bottone->width() / 2), bottone->height() / 2));
  }
  void scegli_sistema(int gioco, int voce) {
    clic("Form1", "Option1", gioco);
    auto* lista = widget<QListWidget>("Form1", "List1");
    ASSERT_NE(lista, nullptr);
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(voce)).center());
  }
  QImage fotografa_modulo(const std::string& modulo, const std::string& nome_file) {
    finestra_modulo* f = binder.finestra(modulo);
    EXPECT_NE(f, nullptr) << modulo;
    if (f == nullptr) return {};
    EXPECT_TRUE(f->isVisible()) << modulo;
    QImage immagine = fotografa(*f);
    std::cout << "schermata: " << salva(immagine, QString::fromStdString(nome_file + ".png")).toStdString() << "\n";
    // A window of the program is never an empty or one-coloured square.
    EXPECT_GE(immagine.width(), 300) << modulo;
    EXPECT_GE(immagine.height(), 200) << modulo;
    EXPECT_GT(colori_diversi(immagine), 20) << modulo;
    EXPECT_TRUE(contiene(immagine, QColor("#e8f0fa"))) << modulo << ": skin 1 background";
    return immagine;
  }
  // Every visible widget of the window lies inside it: nothing cut off.
  void tutto_dentro(const std::string& modulo) {
    finestra_modulo* f = binder.finestra(modulo);
    ASSERT_NE(f, nullptr);
    for (QWidget* w : f->findChildren<QWidget*>()) {
      if (!w->isVisibleTo(f) || w->parentWidget() != f || w->width() == 0 || w->height() == 0) continue;
      EXPECT_LE(w->geometry().bottom(), f->height()) << modulo << "." << w->objectName().toStdString();
    }
  }

  static std::string prepara(const cartella_temporanea& c) {
    demo::genera_demo(c.str(), SCHEDINE_SKIN_DIR);
    return c.str();
  }

  cartella_temporanea cartella;
  piattaforma_qt piattaforma;
  regia_stampa regia;
  programma p;
  legame binder;
};

TEST_F(Schermata, MainWindow) {
  // A Lotto game with a system picked, as a user would leave it before Ok.
  scegli_sistema(1, 1);
  QImage immagine = fotografa_modulo("Form1", "form1");
  EXPECT_GE(immagine.width(), 450);
  EXPECT_GE(immagine.height(), 350);
  EXPECT_TRUE(contiene(immagine, QColor("#1f4e8c"))) << "skin 1 buttons";
}

TEST_F(Schermata, LottoSlipFormWithStakesAndItsProgressFrame) {
  scegli_sistema(1, 1);
  clic("Form1", "cmdok");
  clic("Form_sched_lotto_ambetto", "ChRuote", 0);
  clic("Form_sched_lotto_ambetto", "ChTerno", 8);
  clic("Form_sched_lotto_ambetto", "chAmbetto", 9);
  fotografa_modulo("Form_sched_lotto_ambetto", "Form_sched_lotto_ambetto");
  tutto_dentro("Form_sched_lotto_ambetto");
  // Every amount head shows its amount; the 10eLotto panel has its picture.
  for (int colonna = 0; colonna <= 12; ++colonna) {
    auto* testa = widget<QLabel>("Form_sched_lotto_ambetto", "Image1", colonna);
    ASSERT_NE(testa, nullptr) << colonna;
    EXPECT_FALSE(testa->pixmap().isNull()) << colonna;
  }
  EXPECT_FALSE(widget<QLabel>("Form_sched_lotto_ambetto", "Image2")->pixmap().isNull());
  // The frame of the heads covers the TOTALE boxes the first display shows under it.
  QWidget* totale = widget("Form_sched_lotto_ambetto", "ChTotale", 11);
  ASSERT_TRUE(totale->isVisible());
  EXPECT_NE(totale->parentWidget()->childAt(totale->geometry().center()), totale);

  // The progress frame of a run stands over the form, inside the window.
  binder.evento([&] { p.moduli("Form_sched_lotto_ambetto").c<cornice>("Frame2").visibile = true; });
  auto* frame2 = widget("Form_sched_lotto_ambetto", "Frame2");
  finestra_modulo* f = binder.finestra("Form_sched_lotto_ambetto");
  ASSERT_NE(frame2, nullptr);
  EXPECT_TRUE(frame2->isVisible());
  EXPECT_TRUE(f->rect().contains(frame2->geometry()));
  fotografa_modulo("Form_sched_lotto_ambetto", "Form_sched_lotto_ambetto_stampa");
}

TEST_F(Schermata, OlderLottoForm) {
  scegli_sistema(1, 1);
  binder.evento([&] {
    p.moduli("Form1").nascondi();
    p.moduli("Form_sched_10elotto").mostra();
  });
  fotografa_modulo("Form_sched_10elotto", "Form_sched_10elotto");
  tutto_dentro("Form_sched_10elotto");
}

TEST_F(Schermata, SuperEnalottoFormOnBothSlips) {
  scegli_sistema(4, 0);
  clic("Form1", "cmdok");
  QImage cinque = fotografa_modulo("Form_sched_enalotto", "Form_sched_enalotto");
  tutto_dentro("Form_sched_enalotto");
  // The two-panel slip widens the form over the Superstar grid.
  clic("Form_sched_enalotto", "Option2");
  QImage due = fotografa_modulo("Form_sched_enalotto", "Form_sched_enalotto_superstar");
  EXPECT_GT(due.width(), cinque.width() + 200);
  EXPECT_TRUE(widget("Form_sched_enalotto", "MSHFlexGrid1")->isVisible());
}

TEST_F(Schermata, WinForLifeFormsBothWays) {
  scegli_sistema(9, 0);
  clic("Form1", "cmdok");
  fotografa_modulo("Form_sched_wforlife5", "Form_sched_wforlife5");
  tutto_dentro("Form_sched_wforlife5");
  clic("Form_sched_wforlife5", "Option2");
  fotografa_modulo("Form_sched_wforlife", "Form_sched_wforlife");
  tutto_dentro("Form_sched_wforlife");
}

// The preview of a run: the first slip over its picture, then the third at
// twice the size, and a calibration form's test sheet.
TEST_F(Schermata, PrintPreviewOfASlipAndOfATestSheet) {
  scegli_sistema(1, 1);
  clic("Form1", "cmdok");
  clic("Form_sched_lotto_ambetto", "ChRuote", 0);
  clic("Form_sched_lotto_ambetto", "ChTerno", 8);
  auto* anteprima = binder.finestra("Form_sched_lotto_ambetto")->findChild<QPushButton*>(QStringLiteral("cmdanteprima"));
  ASSERT_NE(anteprima, nullptr);
  QTest::mouseClick(anteprima, Qt::LeftButton);
  auto* f = dynamic_cast<finestra_anteprima*>(
      binder.finestra("Form_sched_lotto_ambetto")->findChild<QWidget*>(QStringLiteral("anteprima")));
  ASSERT_NE(f, nullptr);
  QImage immagine = fotografa(*f);
  std::cout << "schermata: " << salva(immagine, QStringLiteral("anteprima_lotto.png")).toStdString() << "\n";
  EXPECT_TRUE(contiene(immagine, Qt::white)) << "the paper";
  f->vai_a(2);
  f->findChild<QComboBox*>(QStringLiteral("zoom"))->setCurrentIndex(4);
  EXPECT_EQ(f->pagina().zoom(), 2.0);
  std::cout << "schermata: " << salva(fotografa(*f), QStringLiteral("anteprima_lotto_zoom.png")).toStdString() << "\n";
  f->close();
  clic("Form_sched_lotto_ambetto", "cmdexit", 3);
  clic("Form1", "Command2");
  auto* prova = binder.finestra("tar_enalotto")->findChild<QPushButton*>(QStringLiteral("cmdanteprima"));
  ASSERT_NE(prova, nullptr);
  QTest::mouseClick(prova, Qt::LeftButton);
  f = dynamic_cast<finestra_anteprima*>(binder.finestra("tar_enalotto")->findChild<QWidget*>(QStringLiteral("anteprima")));
  ASSERT_NE(f, nullptr);
  std::cout << "schermata: " << salva(fotografa(*f), QStringLiteral("anteprima_tar_enalotto.png")).toStdString() << "\n";
  f->close();
}

class SchermataTaratura : public Schermata, public ::testing::WithParamInterface<std::pair<const char*, const char*>> {};

TEST_P(SchermataTaratura, CalibrationFormOverItsSlip) {
  auto [comando, modulo] = GetParam();
  clic("Form1", comando);
  QImage immagine = fotografa_modulo(modulo, modulo);
  tutto_dentro(modulo);
  // The slip picture is drawn, at the size of the form's picture.
  const char* nome_figura = std::string(modulo) == "tar_lotto" ? "Image1" : "Image2";
  auto* figura = widget<QLabel>(modulo, nome_figura);
  ASSERT_NE(figura, nullptr);
  ASSERT_FALSE(figura->pixmap().isNull());
  EXPECT_EQ(figura->pixmap().size(), figura->size());
  EXPECT_TRUE(contiene(immagine, QColor(0xfd, 0xfa, 0xf0))) << "the slip's paper";
}

INSTANTIATE_TEST_SUITE_P(Tutte, SchermataTaratura,
                         ::testing::Values(std::pair{"Command7", "tar_lotto"}, std::pair{"Command2", "tar_enalotto"},
                                           std::pair{"Command4", "tar_enalotto2"}, std::pair{"Command5", "tar_wforlife"},
                                           std::pair{"Command6", "tar_wforlife5"}));

}  // namespace
}  // namespace schedine::test
