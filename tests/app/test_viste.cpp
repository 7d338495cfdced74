// The windows made from the form models, clicked through as a user would
// and checked against the models: the widget of each kind where the design
// puts it, a Lotto play from the stakes to the journal, the way back to the
// main window, the calibration arrows moving the tables and the preview
// together, and the slip pictures under the preview marks.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>
#include <algorithm>
#include <map>

#include "app/binder/widget_forma.h"
#include "app/figure/figura_schedina.h"
#include "controls/modulo.h"
#include "forms/calibration/tar_lotto.h"
#include "forms/calibration/tar_pannelli.h"
#include "printing/giornale.h"
#include "tests/app/banco_app.h"

namespace schedine::test {
namespace {

void clic(QAbstractButton* w) {
  ASSERT_NE(w, nullptr);
  QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(std::min(8, w->width() / 2), w->height() / 2));
}

void clic_voce(QListWidget* lista, int riga) {
  ASSERT_NE(lista, nullptr);
  QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(riga)).center());
}

QString qt(const std::string& testo) { return QString::fromStdString(testo); }

bool nel_giornale(const std::vector<std::string>& righe, const std::string& riga) {
  return std::find(righe.begin(), righe.end(), riga) != righe.end();
}

std::string cerchio(float x, float y) {
  return riga_giornale("disegna_cerchio").numero(x).numero(y).numero(1).str();
}

class Viste : public ::testing::Test {
 protected:
  void SetUp() override { b.avvia(); }

  template <class W = QWidget>
  W* w(const std::string& modulo, const std::string& nome, int indice = -1) {
    return b.widget<W>(modulo, nome, indice);
  }
  void apri_scheda(int gioco, int voce) {
    clic(w<QRadioButton>("Form1", "Option1", gioco));
    clic_voce(w<QListWidget>("Form1", "List1"), voce);
    clic(w<QPushButton>("Form1", "cmdok"));
  }
  modulo& m(const std::string& nome) { return b.p.moduli(nome); }

  banco_app b;
};

constexpr const char* lotto = "Form_sched_lotto_ambetto";

TEST_F(Viste, EachControlIsAWidgetOfItsKindWhereTheDesignPutsIt) {
  apri_scheda(4, 0);
  const char* enalotto = "Form_sched_enalotto";
  struct caso {
    const char* nome;
    int indice;
    const char* classe;
    const char* contenitore;
  };
  for (caso c : {caso{"Frame3", -1, "QFrame", enalotto}, caso{"Option2", -1, "QRadioButton", "Frame3"},
                 caso{"Combo1", -1, "QComboBox", "Frame3"}, caso{"Combo3", -1, "QComboBox", "Frame3"},
                 caso{"cmdstampa", 1, "QPushButton", "Frame3"}, caso{"txtalla", -1, "QLineEdit", "Frame3"},
                 caso{"MSHFlexGrid1", -1, "QTableWidget", "Frame4"}, caso{"Check2", -1, "QCheckBox", "Frame4"},
                 caso{"ProgressBar1", -1, "QProgressBar", "Frame2"}, caso{"Shape1", -1, "QWidget", "Frame3"}}) {
    SCOPED_TRACE(c.nome);
    QWidget* widget = w(enalotto, c.nome, c.indice);
    ASSERT_NE(widget, nullptr);
    EXPECT_STREQ(widget->metaObject()->className(), c.classe);
    EXPECT_EQ(widget->parentWidget()->objectName(), c.contenitore);
    const controllo& modello = m(enalotto).trova(c.nome, c.indice);
    if (modello.larghezza > 0) {
      QRect progetto(pixel_da_twips(modello.sinistra), pixel_da_twips(modello.alto), pixel_da_twips(modello.larghezza),
                     pixel_da_twips(modello.altezza));
      // The progress bar gives the right end of its place to "Interrompi".
      if (std::string(c.nome) == "ProgressBar1") progetto.setRight(widget->geometry().right());
      EXPECT_EQ(widget->geometry(), progetto);
    }
  }
  EXPECT_NE(dynamic_cast<widget_forma*>(w(enalotto, "Shape1")), nullptr) << "a border shape";
  // The list of the main form stays a list; the grid's hidden first column stays hidden.
  EXPECT_NE(w<QListWidget>("Form1", "List1"), nullptr);
  EXPECT_TRUE(w<QTableWidget>(enalotto, "MSHFlexGrid1")->isColumnHidden(0));
  EXPECT_EQ(w<QComboBox>(enalotto, "Combo1")->currentText(), qt(m(enalotto).c<casella_elenco>("Combo1").testo()));
}

TEST_F(Viste, LottoStakesAndWheelsMakeTheTotalAndThePrint) {
  apri_scheda(1, 0);
  auto* importo = w<QLabel>(lotto, "lblimporto");
  ASSERT_NE(importo, nullptr);
  EXPECT_EQ(importo->text(), "0,00");
  // The column heads show their amounts: column 8 is 1 euro, column 9 fifty cents.
  EXPECT_EQ(m(lotto).c<immagine>("Image1", 9).caption, "0,50");
  EXPECT_EQ(w<QLabel>(lotto, "Image1", 9)->text(), "0,50");

  clic(w<QCheckBox>(lotto, "ChTerno", 8));
  EXPECT_EQ(importo->text(), "0,00") << "no wheel, no price";
  clic(w<QCheckBox>(lotto, "ChRuote", 0));
  EXPECT_EQ(importo->text(), "1,00");
  clic(w<QCheckBox>(lotto, "chAmbetto", 9));
  clic(w<QCheckBox>(lotto, "ChRuote", 5));
  EXPECT_EQ(importo->text(), "3,00");
  EXPECT_EQ(importo->text(), qt(m(lotto).c<etichetta>("lblimporto").caption));
  EXPECT_TRUE(m(lotto).c<casella_controllo>("ChTerno", 8).valore());

  clic(w<QPushButton>(lotto, "cmdstampa", 1));
  auto righe = b.piattaforma.righe();
  const stato& s = b.p.s;
  EXPECT_TRUE(nel_giornale(righe, cerchio(s.tar_ruote(0, asse_x), s.tar_ruote(0, asse_y))));
  EXPECT_TRUE(nel_giornale(righe, cerchio(s.tar_ruote(5, asse_x), s.tar_ruote(5, asse_y))));
  EXPECT_TRUE(nel_giornale(righe, cerchio(s.tar_terno(8, asse_x), s.tar_terno(8, asse_y))));
  EXPECT_TRUE(nel_giornale(righe, cerchio(s.tar_ambetto(9, asse_x), s.tar_ambetto(9, asse_y))));
  EXPECT_EQ(righe.back(), "chiudi_stampa");
  // The run is over: its progress frame is gone and the form stays for another print.
  EXPECT_TRUE(w(lotto, "Frame2")->isHidden());
  EXPECT_TRUE(b.finestra(lotto)->isVisible());
}

TEST_F(Viste, EsciLeadsBackToTheMainWindowAndClosingDoesToo) {
  apri_scheda(1, 0);
  clic(w<QPushButton>(lotto, "cmdexit", 3));
  EXPECT_TRUE(b.finestra("Form1")->isVisible());
  EXPECT_FALSE(b.finestra(lotto)->isVisible());
  apri_scheda(4, 0);
  b.finestra("Form_sched_enalotto")->close();
  EXPECT_FALSE(m("Form_sched_enalotto").caricato());
  EXPECT_TRUE(b.finestra("Form1")->isVisible()) << "never a program with no window";
}

// ---------------------------------------------------------------- calibration

QPoint posto(QWidget* w) { return w->geometry().topLeft(); }

TEST_F(Viste, PanelArrowMovesTheTablesAndThePreviewByOnePixel) {
  clic(w<QPushButton>("Form1", "Command5"));
  const char* wfl = "tar_wforlife";
  auto* destra = w<QPushButton>(wfl, "cmddirezione", 1);
  ASSERT_NE(destra, nullptr);
  EXPECT_FALSE(destra->icon().isNull()) << "an arrow";
  QWidget* segno = w(wfl, "Shape7", 7);
  QWidget* nascosto = w(wfl, "Shape7", 40);
  const QPoint prima = posto(segno);
  const float x = b.p.s.tab_coord(2, 1, asse_x);

  clic(destra);
  EXPECT_FLOAT_EQ(b.p.s.tab_coord(2, 1, asse_x), x + 0.3125f);
  EXPECT_EQ(posto(segno), prima + QPoint(1, 0));
  EXPECT_EQ(w<QLabel>(wfl, "lblxp", 0)->text(), "1");
  EXPECT_TRUE(nascosto->isHidden());

  clic(w<QPushButton>(wfl, "cmddirezione", 0));
  EXPECT_EQ(posto(segno), prima + QPoint(1, 1));
  // "Salva" (index 1 here) puts the preview back at its start.
  clic(w<QPushButton>(wfl, "Command1", 1));
  EXPECT_EQ(posto(segno), prima);
  EXPECT_EQ(w<QLabel>(wfl, "lblxp", 0)->text(), "0");
}

TEST_F(Viste, LottoPreviewMovesInTwipsAndTheMarkChoiceShowsOnIt) {
  clic(w<QPushButton>("Form1", "Command7"));
  const char* tar = "tar_lotto";
  QWidget* punto = w(tar, "Shapepunto", 4);
  QWidget* naz = w(tar, "Shapenaz");
  const QPoint prima = posto(punto), prima_naz = posto(naz);
  const float x = b.p.s.tar_numeri(45, asse_x);
  // 4.375 twips a click: four clicks make a pixel, more or less.
  for (int i = 0; i < 4; ++i) clic(w<QPushButton>(tar, "cmddirezione", 1));
  EXPECT_FLOAT_EQ(b.p.s.tar_numeri(45, asse_x), x + 4 * 0.4375f);
  const forma& modello = m(tar).c<forma>("Shapepunto", 4);
  EXPECT_EQ(posto(punto), QPoint(pixel_da_twips(modello.sinistra), pixel_da_twips(modello.alto)));
  EXPECT_EQ(posto(punto).x(), prima.x() + 1);
  // The national mark runs nine steps a click: well over a pixel.
  EXPECT_GT(posto(naz).x(), prima_naz.x() + 5);
  EXPECT_EQ(w<QLabel>(tar, "lblx")->text(), "4");

  clic(w<QRadioButton>(tar, "Option2"));
  EXPECT_TRUE(punto->isHidden());
  EXPECT_FALSE(w(tar, "Shapequadrato", 4)->isHidden());
  EXPECT_EQ(static_cast<widget_forma*>(naz)->tipo(), 1) << "a square";
  EXPECT_EQ(b.p.s.carattere_stampa, 2);
}

// Each calibration form over its slip: every preview mark starts on a box
// of the picture, and the picture is blank paper where the slip has no box.
struct figura_caso {
  const char* comando;
  const char* modulo;
  const char* figura;
  const char* segno;
  int segni;
  QSize misura;
};

void PrintTo(const figura_caso& c, std::ostream* os) { *os << c.modulo; }

class FiguraTaratura : public Viste, public ::testing::WithParamInterface<figura_caso> {};

TEST_P(FiguraTaratura, MarksStartOnTheBoxesOfTheirSlip) {
  const figura_caso& c = GetParam();
  clic(w<QPushButton>("Form1", c.comando));
  auto* figura = w<QLabel>(c.modulo, c.figura);
  ASSERT_NE(figura, nullptr);
  ASSERT_EQ(figura->pixmap().size(), c.misura);
  ASSERT_EQ(figura->pos(), QPoint(0, 0)) << "the picture fills its picture box";
  const QImage immagine = figura->pixmap().toImage();
  const QColor carta(0xfd, 0xfa, 0xf0);
  for (int i = 0; i < c.segni; ++i) {
    QPoint centro = w(c.modulo, c.segno, i)->geometry().center();
    if (!immagine.rect().contains(centro)) continue;  // a mark beyond the picture's edge
    EXPECT_NE(immagine.pixelColor(centro), carta) << c.segno << "(" << i << ")";
  }
  int bianchi = 0;
  for (int x = 0; x < immagine.width(); ++x) bianchi += immagine.pixelColor(x, immagine.height() / 2) == carta;
  EXPECT_GT(bianchi, 0) << "paper between the boxes";
}

// The five-panel Win for Life picture: each panel shows its numbers 1 to 20,
// one to a box, whole inside the picture, and no line beyond them.
TEST_F(Viste, FivePanelWinForLifePictureShowsEachPanelsNumbersWhole) {
  clic(w<QPushButton>("Form1", "Command6"));
  auto& t = dynamic_cast<tar_pannelli&>(m("tar_wforlife5"));
  const disegno_schedina d = disegno_pannelli(t);
  const QRectF figura(QPointF(0, 0), QSizeF(w("tar_wforlife5", "Image2")->size()));
  const QSizeF lato = lato_casella(d.segno);
  std::map<std::string, int> volte;
  for (const casella_schedina& c : d.caselle) {
    const QPointF centro = d.mappa.in_pixel(c.mm);
    const QRectF box(centro - QPointF(lato.width() / 2, lato.height() / 2), lato);
    if (figura.contains(box) && !c.testo.empty()) ++volte[c.testo];
  }
  ASSERT_EQ(volte.size(), 20u);
  for (int n = 1; n <= 20; ++n) EXPECT_EQ(volte[std::to_string(n)], 5) << n;
}

INSTANTIATE_TEST_SUITE_P(Tutte, FiguraTaratura,
                         ::testing::Values(figura_caso{"Command7", "tar_lotto", "Image1", "Shapepunto", 9, {153, 150}},
                                           figura_caso{"Command2", "tar_enalotto", "Image2", "Shape7", 90, {396, 120}},
                                           figura_caso{"Command4", "tar_enalotto2", "Image2", "Shape7", 90, {450, 172}},
                                           figura_caso{"Command5", "tar_wforlife", "Image2", "Shape7", 20, {275, 193}},
                                           figura_caso{"Command6", "tar_wforlife5", "Image2", "Shape7", 100, {350, 230}}));

}  // namespace
}  // namespace schedine::test
