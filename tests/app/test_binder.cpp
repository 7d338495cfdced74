// The binder on a form with one control of each kind and a view made here:
// every kind refreshed from the model, every user action reaching the model,
// and a run-time error ending the program with its report.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>
#include <QVBoxLayout>

#include "app/binder/aggiorna_widget.h"
#include "app/binder/legame.h"
#include "app/viste/strumenti_vista.h"
#include "controls/insieme_moduli.h"
#include "core/stato.h"
#include "tests/support/piattaforma_prova.h"

namespace schedine::test {
namespace {

// A click where the user clicks a check box or option button: on its box, at the left.
void clic(QAbstractButton* bottone) {
  ASSERT_NE(bottone, nullptr);
  QTest::mouseClick(bottone, Qt::LeftButton, {}, QPoint(8, bottone->height() / 2));
}

class modulo_prova : public modulo {
 public:
  modulo_prova(stato& s, insieme_moduli& m) : modulo("Prova", s, m) {}
  int clic_casella = 0, clic_opzione = 0, uscite = 0, scelte = 0, scelte_combo = 0, rilasci = 0, clic_nota = 0;
  std::function<void()> al_vai;

 protected:
  void crea_controlli() override {
    caption = "Finestra di prova";
    auto& cornice1 = aggiungi<cornice>("Frame1");
    cornice1.caption = "Cornice";
    aggiungi<etichetta>("lblnota", -1, &cornice1).al_click = [this] { ++clic_nota; };
    auto& vai = aggiungi<pulsante>("cmdvai", -1, &cornice1);
    vai.caption = "Vai";
    vai.al_click = [this] { if (al_vai) al_vai(); };
    aggiungi<casella_controllo>("Check1", 0).al_click = [this] { ++clic_casella; };
    for (int i = 0; i < 2; ++i) aggiungi_opzione("Option2", i).al_click = [this] { ++clic_opzione; };
    auto& testo = aggiungi<casella_testo>("txtnum");
    // Digits and backspace pass, "x" becomes "*", anything else is dropped.
    testo.al_tasto = [](int& tasto) {
      if (tasto == 'x') tasto = '*';
      else if ((tasto < '0' || tasto > '9') && tasto != 8) tasto = 0;
    };
    testo.all_uscita = [this] { ++uscite; };
    auto& lista = aggiungi<casella_elenco>("List1");
    for (const char* v : {"primo", "secondo", "terzo"}) lista.aggiungi(v);
    lista.al_click = [this] { ++scelte; };
    auto& combo = aggiungi<casella_elenco>("Combo1");
    for (const char* v : {"1", "2", "3"}) combo.aggiungi(v);
    combo.al_click = [this] { ++scelte_combo; };
    auto& g = aggiungi<griglia>("Grid1");
    g.dimensiona(3, 4);
    g.al_rilascio_mouse = [this] { ++rilasci; };
    aggiungi<barra_avanzamento>("ProgressBar1");
    aggiungi<forma>("Shape1");
  }
};

void vista_prova(finestra_modulo& f) {
  auto* colonna = new QVBoxLayout(&f);
  auto* cornice = crea<QGroupBox>(&f, "Frame1");
  auto* dentro = new QVBoxLayout(cornice);
  dentro->addWidget(crea<QLabel>(cornice, "lblnota"));
  dentro->addWidget(crea<QPushButton>(cornice, "cmdvai"));
  colonna->addWidget(cornice);
  colonna->addWidget(crea<QCheckBox>(&f, "Check1", 0));
  colonna->addWidget(crea<QRadioButton>(&f, "Option2", 0));
  colonna->addWidget(crea<QRadioButton>(&f, "Option2", 1));
  colonna->addWidget(crea<QLineEdit>(&f, "txtnum"));
  colonna->addWidget(crea<QListWidget>(&f, "List1"));
  colonna->addWidget(crea<QComboBox>(&f, "Combo1"));
  colonna->addWidget(crea<QTableWidget>(&f, "Grid1"));
  colonna->addWidget(crea<QProgressBar>(&f, "ProgressBar1"));
  // A shape placed by the model, outside the layout.
  crea<QFrame>(&f, "Shape1");
  // A widget of the view's own, named after no control.
  colonna->addWidget(new QLabel(QStringLiteral("nota della vista"), &f));
  f.resize(400, 700);
}

class Legame : public ::testing::Test {
 protected:
  Legame() {
    moduli.registra("Prova", [](stato& st, insieme_moduli& m) { return std::make_unique<modulo_prova>(st, m); });
    binder.al_termine_per_guasto = [this] { ++termini; };
    binder.evento([this] { moduli("Prova").mostra(); });
  }

  modulo_prova& form() { return moduli.di<modulo_prova>("Prova"); }
  template <class T>
  T& c(const std::string& nome, int indice = -1) { return form().c<T>(nome, indice); }
  template <class W>
  W* w(const std::string& nome, int indice = -1) {
    W* widget = binder.finestra("Prova")->findChild<W*>(nome_widget(nome, indice));
    EXPECT_NE(widget, nullptr) << nome;
    return widget;
  }
  void nel_modello(const std::function<void()>& cambio) { binder.evento(cambio); }

  stato s;
  insieme_moduli moduli{s};
  piattaforma_prova piattaforma;
  legame binder{moduli, piattaforma, [](modulo& m) {
                  auto f = std::make_unique<finestra_modulo>(m.nome());
                  vista_prova(*f);
                  return f;
                }};
  int termini = 0;
};

// ---------------------------------------------------------------- refresh

TEST_F(Legame, CaptionsFlagsAndFreePositionsFollowTheModel) {
  EXPECT_EQ(binder.finestra("Prova")->windowTitle(), "Finestra di prova");
  EXPECT_EQ(w<QGroupBox>("Frame1")->title(), "Cornice");
  EXPECT_EQ(w<QPushButton>("cmdvai")->text(), "Vai");
  nel_modello([&] {
    c<etichetta>("lblnota").caption = "è cambiata";
    c<pulsante>("cmdvai").abilitato = false;
    c<casella_controllo>("Check1", 0).visibile = false;
    auto& f = c<forma>("Shape1");
    f.sinistra = 150, f.alto = 300, f.larghezza = 1500, f.altezza = 450;
    c<pulsante>("cmdvai").larghezza = 3000;  // in a layout: the layout places it
    c<pulsante>("cmdvai").altezza = 3000;
  });
  EXPECT_EQ(w<QLabel>("lblnota")->text(), QString::fromUtf8("è cambiata"));
  EXPECT_FALSE(w<QPushButton>("cmdvai")->isEnabled());
  EXPECT_TRUE(w<QCheckBox>("Check1", 0)->isHidden());
  EXPECT_EQ(w<QFrame>("Shape1")->geometry(), QRect(10, 20, 100, 30));
  EXPECT_NE(w<QPushButton>("cmdvai")->width(), 200);
  // A disabled frame disables what it holds, as on the form.
  nel_modello([&] { c<cornice>("Frame1").abilitato = false; c<pulsante>("cmdvai").abilitato = true; });
  EXPECT_FALSE(w<QPushButton>("cmdvai")->isEnabled());
}

TEST_F(Legame, TicksAndOptionsFollowTheModel) {
  nel_modello([&] { c<casella_controllo>("Check1", 0).imposta_valore(1); });
  EXPECT_EQ(w<QCheckBox>("Check1", 0)->checkState(), Qt::Checked);
  nel_modello([&] { c<casella_controllo>("Check1", 0).imposta_valore(2); });
  EXPECT_EQ(w<QCheckBox>("Check1", 0)->checkState(), Qt::PartiallyChecked);
  nel_modello([&] { c<pulsante_opzione>("Option2", 1).imposta_valore(true); });
  EXPECT_FALSE(w<QRadioButton>("Option2", 0)->isChecked());
  EXPECT_TRUE(w<QRadioButton>("Option2", 1)->isChecked());
}

TEST_F(Legame, TextListsAndCombosFollowTheModel) {
  nel_modello([&] {
    c<casella_testo>("txtnum").imposta_testo("42");
    c<casella_elenco>("List1").aggiungi("quarto");
    c<casella_elenco>("List1").seleziona(3);
    c<casella_elenco>("Combo1").seleziona(2);
  });
  EXPECT_EQ(w<QLineEdit>("txtnum")->text(), "42");
  auto* lista = w<QListWidget>("List1");
  ASSERT_EQ(lista->count(), 4);
  EXPECT_EQ(lista->item(3)->text(), "quarto");
  EXPECT_EQ(lista->currentRow(), 3);
  EXPECT_EQ(w<QComboBox>("Combo1")->currentIndex(), 2);
  // Setting the selection from code runs the list's rule once, from the model:
  // the widget's own signal, stirred by the refresh, runs nothing more.
  EXPECT_EQ(form().scelte, 1);
  nel_modello([&] { c<casella_elenco>("List1").svuota(); });
  EXPECT_EQ(lista->count(), 0);
  EXPECT_EQ(lista->currentRow(), -1);
}

TEST_F(Legame, GridCellsColoursAndWidthsFollowTheModel) {
  nel_modello([&] {
    auto& g = c<griglia>("Grid1");
    g.imposta_testo_cella(1, 2, "17");
    g.imposta_colore_cella(1, 2, griglia::giallo);
    g.larghezze_colonne[0] = 600;
  });
  auto* tabella = w<QTableWidget>("Grid1");
  ASSERT_EQ(tabella->rowCount(), 3);
  ASSERT_EQ(tabella->columnCount(), 4);
  EXPECT_EQ(tabella->item(1, 2)->text(), "17");
  EXPECT_EQ(tabella->item(1, 2)->background().color(), QColor(255, 255, 0));
  EXPECT_EQ(tabella->item(0, 0)->background().color(), QColor(255, 255, 255));
  EXPECT_EQ(tabella->columnWidth(0), 40);
  nel_modello([&] { c<griglia>("Grid1").dimensiona(2, 2); });
  EXPECT_EQ(tabella->rowCount(), 2);
}

TEST_F(Legame, ProgressFollowsTheModel) {
  nel_modello([&] {
    auto& barra = c<barra_avanzamento>("ProgressBar1");
    barra.massimo = 8;
    barra.imposta_valore(3);
  });
  EXPECT_EQ(w<QProgressBar>("ProgressBar1")->maximum(), 8);
  EXPECT_EQ(w<QProgressBar>("ProgressBar1")->value(), 3);
}

TEST_F(Legame, WindowIsShownAndHiddenByItsForm) {
  finestra_modulo* f = binder.finestra("Prova");
  EXPECT_TRUE(f->isVisible());
  nel_modello([&] { form().nascondi(); });
  EXPECT_FALSE(f->isVisible());
  nel_modello([&] { form().mostra(); });
  EXPECT_TRUE(f->isVisible());
  // Reloaded: fresh controls, found again by name.
  nel_modello([&] { form().scarica(); form().mostra(); c<pulsante>("cmdvai").caption = "Ancora"; });
  EXPECT_EQ(binder.finestra("Prova"), f);
  EXPECT_EQ(w<QPushButton>("cmdvai")->text(), "Ancora");
}

TEST_F(Legame, ClicksReachTheModel) {
  clic(w<QCheckBox>("Check1", 0));
  EXPECT_EQ(c<casella_controllo>("Check1", 0).valore(), 1);
  EXPECT_EQ(form().clic_casella, 1);
  EXPECT_TRUE(w<QCheckBox>("Check1", 0)->isChecked());

  clic(w<QRadioButton>("Option2", 1));
  clic(w<QRadioButton>("Option2", 0));
  EXPECT_TRUE(c<pulsante_opzione>("Option2", 0).valore());
  EXPECT_FALSE(c<pulsante_opzione>("Option2", 1).valore());
  EXPECT_FALSE(w<QRadioButton>("Option2", 1)->isChecked());
  // A click on the selected option keeps it and runs its rule again.
  clic(w<QRadioButton>("Option2", 0));
  EXPECT_TRUE(w<QRadioButton>("Option2", 0)->isChecked());
  EXPECT_EQ(form().clic_opzione, 3);

  QTest::mouseClick(w<QLabel>("lblnota"), Qt::LeftButton);
  EXPECT_EQ(form().clic_nota, 1);
}

TEST_F(Legame, TypedKeysGoThroughTheKeyFilter) {
  auto* riga = w<QLineEdit>("txtnum");
  riga->setFocus();
  QTest::keyClicks(riga, "1a2x3");
  EXPECT_EQ(c<casella_testo>("txtnum").testo(), "12*3");
  EXPECT_EQ(riga->text(), "12*3");
  QTest::keyClick(riga, Qt::Key_Backspace);
  EXPECT_EQ(c<casella_testo>("txtnum").testo(), "12*");
}

TEST_F(Legame, LeavingATextBoxRunsItsLeaveRule) {
  finestra_modulo* f = binder.finestra("Prova");
  QApplication::setActiveWindow(f);
  w<QLineEdit>("txtnum")->setFocus(Qt::OtherFocusReason);
  w<QComboBox>("Combo1")->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(form().uscite, 1);
}

TEST_F(Legame, PicksReachTheModel) {
  auto* lista = w<QListWidget>("List1");
  QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(1)).center());
  EXPECT_EQ(c<casella_elenco>("List1").indice_selezionato(), 1);
  EXPECT_EQ(c<casella_elenco>("List1").testo(), "secondo");
  EXPECT_EQ(form().scelte, 1);

  emit w<QComboBox>("Combo1")->activated(2);
  EXPECT_EQ(c<casella_elenco>("Combo1").testo(), "3");
  EXPECT_EQ(form().scelte_combo, 1);
}

TEST_F(Legame, GridSelectionRunsFromPressToRelease) {
  auto* tabella = w<QTableWidget>("Grid1");
  QPoint da = tabella->visualItemRect(tabella->item(0, 1)).center();
  QPoint a = tabella->visualItemRect(tabella->item(2, 3)).center();
  QTest::mousePress(tabella->viewport(), Qt::LeftButton, {}, da);
  QTest::mouseRelease(tabella->viewport(), Qt::LeftButton, {}, a);
  auto& g = c<griglia>("Grid1");
  EXPECT_EQ(form().rilasci, 1);
  EXPECT_EQ((std::array{g.riga, g.colonna, g.riga_fine, g.colonna_fine}), (std::array{0, 1, 2, 3}));
}

TEST_F(Legame, ClosingTheWindowRunsTheFormsCloseRule) {
  binder.finestra("Prova")->close();
  EXPECT_FALSE(form().caricato());
  EXPECT_FALSE(binder.finestra("Prova")->isVisible());

  // A view may give the close a rule of its own.
  nel_modello([&] { form().mostra(); });
  binder.finestra("Prova")->regola_chiusura = [](modulo& m, insieme_moduli&) { m.nascondi(); };
  binder.finestra("Prova")->close();
  EXPECT_TRUE(form().caricato());
  EXPECT_FALSE(binder.finestra("Prova")->isVisible());
}

// ---------------------------------------------------------------- faults

TEST_F(Legame, RunTimeErrorEndsTheProgramWithItsReport) {
  form().al_vai = [] { throw errore_runtime(codice::file_non_trovato, "skin1_1.skn"); };
  QTest::mouseClick(w<QPushButton>("cmdvai"), Qt::LeftButton);

  auto righe = piattaforma.righe();
  ASSERT_EQ(righe.size(), 1u);
  EXPECT_NE(righe[0].find("messaggio"), std::string::npos);
  EXPECT_NE(righe[0].find("53"), std::string::npos);
  EXPECT_NE(righe[0].find("skin1_1.skn"), std::string::npos);
  EXPECT_EQ(termini, 1);
  EXPECT_TRUE(binder.fermato_per_guasto());
  EXPECT_FALSE(binder.finestra("Prova")->isVisible());
  // Nothing runs after the report.
  nel_modello([&] { c<casella_controllo>("Check1", 0).imposta_valore(1); });
  EXPECT_EQ(form().clic_casella, 0);
}

}  // namespace
}  // namespace schedine::test
