// Every window of the program on a demo program folder, under each of the
// nine skins, as a person sees it: a picture of each is saved in the build
// folder (schermate/skin<N>/<window>.png), on a real X server under Xvfb
// where there is one, else drawn off screen. Each window is judged over its
// painted pixels: every visible text legible (contrast at least 4.5:1), a
// disabled control told from an enabled one, every text whole, inside its
// frame and the window, clear of its neighbours; and for what a person would
// first notice: windows of the form's size, slip pictures with their marks.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
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
#include "tests/app/esame_finestra.h"
#include "tests/support/cartella_temporanea.h"
#include "tools/demo/genera_demo.h"

namespace schedine::test {
namespace {

constexpr double contrasto_minimo = 4.5;

// What is on the screen where there is one, else what the window draws.
QImage fotografa(QWidget& finestra) {
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&finestra));
  QTest::qWait(100);
  if (QGuiApplication::platformName() == QLatin1String("xcb")) {
    QImage schermo = finestra.screen()->grabWindow(finestra.winId()).toImage();
    if (!schermo.isNull()) return schermo;
  }
  return finestra.grab().toImage();
}

// Into the build folder, or where SCHEDINE_SCHERMATE says (scripts/schermate.sh).
void salva(const QImage& immagine, int skin, const std::string& nome) {
  QString radice = qEnvironmentVariable("SCHEDINE_SCHERMATE", QStringLiteral(SCHEDINE_SCHERMATE));
  QString cartella = radice + QStringLiteral("/skin%1").arg(skin);
  QDir().mkpath(cartella);
  QString percorso = cartella + QLatin1Char('/') + QString::fromStdString(nome) + QStringLiteral(".png");
  EXPECT_TRUE(immagine.save(percorso)) << percorso.toStdString();
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

std::string elenco(const QStringList& righe) { return righe.join(QStringLiteral("\n  ")).toStdString(); }

// Legible texts, and disabled ones that look disabled: apart from the
// colour most enabled texts of their kind show in the window.
void giudica_testi(const std::vector<testo_dipinto>& testi, const std::string& dove) {
  QStringList illeggibili, come_attivi;
  QHash<QString, QHash<QRgb, int>> colori_attivi;
  for (const testo_dipinto& t : testi) {
    if (t.rapporto() < contrasto_minimo) {
      illeggibili << QStringLiteral("%1: %2 on %3, %4:1").arg(t.dove, t.testo.name(), t.sfondo.name()).arg(t.rapporto(), 0, 'f', 2);
    }
    if (t.attivo) ++colori_attivi[t.classe][t.testo.rgb()];
  }
  for (const testo_dipinto& t : testi) {
    const QHash<QRgb, int>& colori = colori_attivi[t.classe];
    if (t.attivo || colori.isEmpty()) continue;
    QRgb solito = colori.begin().key();
    for (auto it = colori.begin(); it != colori.end(); ++it) {
      if (it.value() > colori[solito]) solito = it.key();
    }
    if (contrasto(QColor(solito), t.testo) < 1.5) come_attivi << t.dove + QStringLiteral(" in ") + QColor(solito).name();
  }
  EXPECT_TRUE(illeggibili.isEmpty()) << dove << ", texts below " << contrasto_minimo << ":1:\n  " << elenco(illeggibili);
  EXPECT_TRUE(come_attivi.isEmpty()) << dove << ", disabled looking enabled:\n  " << elenco(come_attivi);
}

// The whole program on a demo folder with the given skin, with the platform of the desktop.
class Schermata {
 public:
  explicit Schermata(int skin)
      : piattaforma(prepara(cartella, skin)), regia(piattaforma), p(cartella.str(), regia, formato_locale::italiano()),
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
  ~Schermata() { p.termina(); }

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
  // The slip form a system opens, as Ok opens it.
  void apri_sistema(int gioco, int voce) {
    scegli_sistema(gioco, voce);
    clic("Form1", "cmdok");
  }
  void mostra_solo(const std::string& modulo) {
    binder.evento([&] {
      p.moduli("Form1").nascondi();
      p.moduli(modulo).mostra();
    });
  }

  cartella_temporanea cartella;
  piattaforma_qt piattaforma;
  regia_stampa regia;
  programma p;
  legame binder;

 private:
  static std::string prepara(const cartella_temporanea& c, int skin) {
    demo::genera_demo(c.str(), SCHEDINE_SKIN_DIR);
    QFile numero(QString::fromStdString(c.file("skin/skn.dat")));
    EXPECT_TRUE(numero.open(QIODevice::WriteOnly));
    numero.write(QByteArray::number(skin) + "\r\n");
    return c.str();
  }
};

// A window of the program as a user brings it up, and what else it must show.
struct finestra_provata {
  const char* file;
  const char* modulo;
  std::function<void(Schermata&)> apri;
  std::function<void(Schermata&, const QImage&)> verifica = [](Schermata&, const QImage&) {};
};

void apri_lotto(Schermata& s) {
  s.apri_sistema(1, 1);
  s.clic("Form_sched_lotto_ambetto", "ChRuote", 0);
  s.clic("Form_sched_lotto_ambetto", "ChTerno", 8);
  s.clic("Form_sched_lotto_ambetto", "chAmbetto", 9);
}

void verifica_lotto(Schermata& s, const QImage&) {
  // Every amount head shows its amount; the 10eLotto panel has its picture.
  for (int colonna = 0; colonna <= 12; ++colonna) {
    auto* testa = s.widget<QLabel>("Form_sched_lotto_ambetto", "Image1", colonna);
    ASSERT_NE(testa, nullptr) << colonna;
    EXPECT_FALSE(testa->text().isEmpty()) << colonna;
  }
  EXPECT_FALSE(s.widget<QLabel>("Form_sched_lotto_ambetto", "Image2")->pixmap().isNull());
  // The frame of the heads covers the TOTALE boxes the first display shows under it.
  QWidget* totale = s.widget("Form_sched_lotto_ambetto", "ChTotale", 11);
  ASSERT_TRUE(totale->isVisible());
  EXPECT_NE(totale->parentWidget()->childAt(totale->geometry().center()), totale);
}

void apri_calibrazione(Schermata& s, const char* comando) { s.clic("Form1", comando); }

void verifica_calibrazione(Schermata& s, const char* modulo, const QImage& immagine) {
  // The slip picture is drawn, at the size of the form's picture.
  const char* nome_figura = std::string(modulo) == "tar_lotto" ? "Image1" : "Image2";
  auto* figura = s.widget<QLabel>(modulo, nome_figura);
  ASSERT_NE(figura, nullptr);
  ASSERT_FALSE(figura->pixmap().isNull());
  EXPECT_EQ(figura->pixmap().size(), figura->size());
  EXPECT_TRUE(contiene(immagine, QColor(0xfd, 0xfa, 0xf0))) << "the slip's paper";
}

finestra_provata calibrazione(const char* comando, const char* modulo) {
  return {modulo, modulo, [comando](Schermata& s) { apri_calibrazione(s, comando); },
          [modulo](Schermata& s, const QImage& i) { verifica_calibrazione(s, modulo, i); }};
}

const std::vector<finestra_provata>& finestre() {
  static const std::vector<finestra_provata> tutte{
      // A Lotto game with a system picked, as a user would leave it before Ok.
      {"form1", "Form1", [](Schermata& s) { s.scegli_sistema(1, 1); },
       [](Schermata&, const QImage& i) {
         EXPECT_GE(i.width(), 450);
         EXPECT_GE(i.height(), 350);
       }},
      {"Form_sched_lotto_ambetto", "Form_sched_lotto_ambetto", &apri_lotto, &verifica_lotto},
      // The progress frame of a run stands over the form, inside the window.
      {"Form_sched_lotto_ambetto_stampa", "Form_sched_lotto_ambetto",
       [](Schermata& s) {
         apri_lotto(s);
         s.binder.evento([&] { s.p.moduli("Form_sched_lotto_ambetto").c<cornice>("Frame2").visibile = true; });
       },
       [](Schermata& s, const QImage&) {
         QWidget* frame2 = s.widget("Form_sched_lotto_ambetto", "Frame2");
         ASSERT_TRUE(frame2->isVisible());
         EXPECT_TRUE(frame2->parentWidget()->rect().contains(frame2->geometry()));
       }},
      {"Form_sched_10elotto", "Form_sched_10elotto",
       [](Schermata& s) {
         s.scegli_sistema(1, 1);
         s.mostra_solo("Form_sched_10elotto");
       }},
      {"Form_sched_enalotto", "Form_sched_enalotto",
       [](Schermata& s) { s.apri_sistema(4, 0); }},
      // The two-panel slip widens the form over the Superstar grid.
      {"Form_sched_enalotto_superstar", "Form_sched_enalotto",
       [](Schermata& s) {
         s.apri_sistema(4, 0);
         s.clic("Form_sched_enalotto", "Option2");
       },
       [](Schermata& s, const QImage& i) {
         EXPECT_GT(i.width(), 800);
         EXPECT_TRUE(s.widget("Form_sched_enalotto", "MSHFlexGrid1")->isVisible());
       }},
      {"Form_sched_wforlife5", "Form_sched_wforlife5",
       [](Schermata& s) { s.apri_sistema(9, 0); }},
      {"Form_sched_wforlife", "Form_sched_wforlife",
       [](Schermata& s) {
         s.apri_sistema(9, 0);
         s.clic("Form_sched_wforlife5", "Option2");
       }},
      calibrazione("Command7", "tar_lotto"),
      calibrazione("Command2", "tar_enalotto"),
      calibrazione("Command4", "tar_enalotto2"),
      calibrazione("Command5", "tar_wforlife"),
      calibrazione("Command6", "tar_wforlife5"),
  };
  return tutte;
}

class Finestra : public ::testing::TestWithParam<std::tuple<int, size_t>> {};

TEST_P(Finestra, LegibleWholeAndInPlaceUnderEverySkin) {
  auto [skin, indice] = GetParam();
  const finestra_provata& prova = finestre()[indice];
  Schermata s(skin);
  prova.apri(s);
  finestra_modulo* f = s.binder.finestra(prova.modulo);
  ASSERT_NE(f, nullptr) << prova.modulo;
  ASSERT_TRUE(f->isVisible()) << prova.modulo;
  QImage immagine = fotografa(*f);
  salva(immagine, skin, prova.file);
  // A window of the program is never an empty or one-coloured square.
  EXPECT_GE(immagine.width(), 300);
  EXPECT_GE(immagine.height(), 200);
  EXPECT_GT(colori_diversi(immagine), 20);
  const std::string dove = std::string(prova.file) + " skin " + std::to_string(skin);
  giudica_testi(testi_dipinti(*f), dove);
  QStringList difetti = difetti_di_collocazione(*f);
  EXPECT_TRUE(difetti.isEmpty()) << dove << ":\n  " << elenco(difetti);
  prova.verifica(s, immagine);
}

INSTANTIATE_TEST_SUITE_P(Tutte, Finestra,
                         ::testing::Combine(::testing::Range(1, 10), ::testing::Range<size_t>(0, 13)),
                         [](const auto& info) {
                           return std::string(finestre()[std::get<1>(info.param)].file) + "_skin" +
                                  std::to_string(std::get<0>(info.param));
                         });

// The preview of a run: the first slip over its picture, then the third at
// twice the size, and a calibration form's test sheet.
TEST(Anteprima, PicturesOfASlipAndOfATestSheet) {
  Schermata s(1);
  apri_lotto(s);
  auto anteprima_di = [&s](const char* modulo) {
    auto* bottone = s.binder.finestra(modulo)->findChild<QPushButton*>(QStringLiteral("cmdanteprima"));
    EXPECT_NE(bottone, nullptr) << modulo;
    if (bottone != nullptr) QTest::mouseClick(bottone, Qt::LeftButton);
    return dynamic_cast<finestra_anteprima*>(s.binder.finestra(modulo)->findChild<QWidget*>(QStringLiteral("anteprima")));
  };
  finestra_anteprima* f = anteprima_di("Form_sched_lotto_ambetto");
  ASSERT_NE(f, nullptr);
  QImage immagine = fotografa(*f);
  salva(immagine, 1, "anteprima_lotto");
  EXPECT_TRUE(contiene(immagine, Qt::white)) << "the paper";
  f->vai_a(2);
  f->findChild<QComboBox*>(QStringLiteral("zoom"))->setCurrentIndex(4);
  EXPECT_EQ(f->pagina().zoom(), 2.0);
  salva(fotografa(*f), 1, "anteprima_lotto_zoom");
  f->close();
  s.clic("Form_sched_lotto_ambetto", "cmdexit", 3);
  apri_calibrazione(s, "Command2");
  f = anteprima_di("tar_enalotto");
  ASSERT_NE(f, nullptr);
  salva(fotografa(*f), 1, "anteprima_tar_enalotto");
  f->close();
}

}  // namespace
}  // namespace schedine::test
