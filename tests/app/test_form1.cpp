// The main window clicked through as a user would, checked against the models.

#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "controls/modulo.h"
#include "tests/app/banco_app.h"

namespace schedine::test {
namespace {

// A click where a user clicks: an option button on its box, at the left.
void clic(QAbstractButton* w) {
  ASSERT_NE(w, nullptr);
  QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(8, w->height() / 2));
}

void clic_voce(QListWidget* lista, int riga) {
  ASSERT_NE(lista, nullptr);
  QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(riga)).center());
}

QStringList voci(const QListWidget* lista) {
  QStringList risultato;
  for (int i = 0; i < lista->count(); ++i) risultato << lista->item(i)->text();
  return risultato;
}

QStringList voci(const casella_elenco& elenco) {
  QStringList risultato;
  for (int i = 0; i < elenco.conta(); ++i) risultato << QString::fromStdString(elenco.voce(i));
  return risultato;
}

class Form1Finestra : public ::testing::Test {
 protected:
  void SetUp() override {
    b.avvia();
    form1 = b.finestra("Form1");
    ASSERT_NE(form1, nullptr);
    lista = b.widget<QListWidget>("Form1", "List1");
    ASSERT_NE(lista, nullptr);
  }
  casella_elenco& modello_lista() { return b.p.moduli("Form1").c<casella_elenco>("List1"); }

  banco_app b;
  finestra_modulo* form1 = nullptr;
  QListWidget* lista = nullptr;
};

TEST_F(Form1Finestra, OpensOnTheSuperEnalottoListWithTheDesignState) {
  EXPECT_TRUE(form1->isVisible());
  EXPECT_EQ(form1->windowTitle(), "Marendolia - Stampa Schedine");
  EXPECT_EQ(voci(lista), voci(modello_lista()));
  EXPECT_EQ(lista->count(), 5);
  // The first entry is selected at load, while "Ambo" stands ticked.
  EXPECT_EQ(lista->currentRow(), 0);
  EXPECT_TRUE(b.widget<QRadioButton>("Form1", "Option1", 0)->isChecked());
  EXPECT_EQ(b.widget<QRadioButton>("Form1", "Option1", 9)->text(), "Win for Life");
  EXPECT_EQ(b.widget<QPushButton>("Form1", "cmdok")->text(), "Ok");
  EXPECT_EQ(b.widget<QLabel>("Form1", "Label2", 1)->text(),
            QString::fromUtf8("La lista contiene solo i sistemi il cui sviluppo è stato salvato"));
  EXPECT_TRUE(b.widget<QPushButton>("Form1", "Command3")->isHidden());
  EXPECT_FALSE(b.widget<QPushButton>("Form1", "Command7")->isHidden());
  EXPECT_TRUE(b.esiste("sch"));
}

TEST_F(Form1Finestra, OptionsListTheirGameAndStayExclusive) {
  struct caso {
    int opzione;
    const char* tipo_gioco;
    int voci;
  };
  for (caso c : {caso{1, "terno", 4}, caso{0, "ambo", 2}, caso{7, "sestine-decine", 1}, caso{9, "wforlife", 3},
                 caso{5, "cruciverba", 1}, caso{6, "cruciverba", 3}}) {
    SCOPED_TRACE(c.opzione);
    clic(b.widget<QRadioButton>("Form1", "Option1", c.opzione));
    EXPECT_EQ(b.p.s.tipo_gioco, c.tipo_gioco);
    EXPECT_EQ(voci(lista), voci(modello_lista()));
    EXPECT_EQ(lista->count(), c.voci);
    for (int i = 0; i < 10; ++i) EXPECT_EQ(b.widget<QRadioButton>("Form1", "Option1", i)->isChecked(), i == c.opzione);
  }
}

TEST_F(Form1Finestra, PickingAnEntryChoosesItsSystem) {
  clic(b.widget<QRadioButton>("Form1", "Option1", 1));
  clic_voce(lista, 2);
  EXPECT_EQ(modello_lista().indice_selezionato(), 2);
  EXPECT_EQ(b.p.s.sistema_scelto, " riduzridb.txt");
  EXPECT_EQ(b.p.s.tipo_sistema, "ridotto");
  EXPECT_EQ(lista->currentRow(), 2);
}

TEST_F(Form1Finestra, OkHandsOverToTheSlipFormAndHidesTheMainWindow) {
  clic(b.widget<QRadioButton>("Form1", "Option1", 3));
  clic_voce(lista, 0);
  std::string voce = modello_lista().voce(0);
  clic(b.widget<QPushButton>("Form1", "cmdok"));

  EXPECT_FALSE(form1->isVisible());
  EXPECT_FALSE(b.p.moduli("Form1").visibile());
  finestra_modulo* scheda = b.finestra("Form_sched_lotto_ambetto");
  ASSERT_NE(scheda, nullptr);
  EXPECT_TRUE(scheda->isVisible());
  auto* titolo = b.widget<QLabel>("Form_sched_lotto_ambetto", "lbltitolo");
  ASSERT_NE(titolo, nullptr);
  EXPECT_EQ(titolo->text().toStdString(), "Sistema: " + voce + "      - Stampa Schede");
  EXPECT_FALSE(b.finito);
}

TEST_F(Form1Finestra, OkOnAnEmptyListDoesNothing) {
  std::filesystem::remove_all(b.cartella.file("ambo"));
  clic(b.widget<QRadioButton>("Form1", "Option1", 0));
  ASSERT_EQ(lista->count(), 0);
  clic(b.widget<QPushButton>("Form1", "cmdok"));
  EXPECT_TRUE(form1->isVisible());
  EXPECT_EQ(b.finestra("Form_sched_lotto_ambetto"), nullptr);
}

TEST_F(Form1Finestra, EsciEndsTheProgramWithTheUnload) {
  clic(b.widget<QPushButton>("Form1", "cmdcancel"));
  EXPECT_TRUE(b.finito);
  EXPECT_TRUE(b.p.terminato());
  EXPECT_FALSE(b.esiste("sch"));
  EXPECT_FALSE(form1->isVisible());
}

TEST_F(Form1Finestra, ClosingTheMainWindowEndsTheProgramWithTheUnload) {
  form1->close();
  EXPECT_TRUE(b.finito);
  EXPECT_FALSE(b.p.moduli("Form1").caricato());
  EXPECT_FALSE(b.esiste("sch"));
  EXPECT_FALSE(form1->isVisible());
}

}  // namespace
}  // namespace schedine::test
