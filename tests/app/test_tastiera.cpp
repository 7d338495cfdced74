// The windows from the keyboard and under a resting mouse: Enter on the main
// form opens the system chosen with the arrow keys, Tab reaches every button
// of every window in reading order, the price list opens as a list of a few
// rows and jumps to a typed price, and every hover text of the forms shows.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTest>
#include <QToolTip>
#include <functional>
#include <map>

#include "controls/controlli.h"
#include "controls/modulo.h"
#include "tests/app/banco_app.h"

namespace schedine::test {
namespace {

std::string nome_di(const QWidget* w) {
  if (w == nullptr) return "(none)";
  const QRect r = w->geometry();
  return w->objectName().toStdString() + " at " + std::to_string(r.x()) + "," + std::to_string(r.y()) + " " +
         std::to_string(r.width()) + "x" + std::to_string(r.height());
}

class Tastiera : public ::testing::Test {
 protected:
  void SetUp() override { b.avvia(); }

  template <class W = QWidget>
  W* w(const std::string& modulo, const std::string& nome, int indice = -1) {
    return b.widget<W>(modulo, nome, indice);
  }
  // The window in front with the keyboard's focus, as after a user's click on it.
  finestra_modulo* attiva(const std::string& modulo) {
    finestra_modulo* f = b.finestra(modulo);
    EXPECT_TRUE(f != nullptr && f->isVisible()) << modulo;
    if (f == nullptr) return nullptr;
    f->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(f)) << modulo;
    return f;
  }
  void clic(const std::string& modulo, const std::string& nome, int indice = -1) {
    auto* bottone = w<QAbstractButton>(modulo, nome, indice);
    ASSERT_NE(bottone, nullptr) << modulo << "." << nome;
    bottone->click();
  }
  void apri_scheda(int gioco) {
    clic("Form1", "Option1", gioco);
    w<QListWidget>("Form1", "List1")->setCurrentRow(0);
    clic("Form1", "cmdok");
  }

  banco_app b;
};

TEST_F(Tastiera, EnterOpensTheSystemChosenWithTheArrowKeys) {
  clic("Form1", "Option1", 4);
  finestra_modulo* form1 = attiva("Form1");
  auto* lista = w<QListWidget>("Form1", "List1");
  ASSERT_GT(lista->count(), 1);
  lista->setFocus();
  QTest::keyClick(lista, Qt::Key_Down);
  QTest::keyClick(lista, Qt::Key_Down);
  EXPECT_EQ(b.p.moduli("Form1").c<casella_elenco>("List1").indice_selezionato(), lista->currentRow());
  QTest::keyClick(lista, Qt::Key_Return);
  EXPECT_FALSE(form1->isVisible());
  ASSERT_NE(b.finestra("Form_sched_enalotto"), nullptr);
  EXPECT_TRUE(b.finestra("Form_sched_enalotto")->isVisible());
  // On a slip form Enter presses nothing: it would print.
  finestra_modulo* scheda = attiva("Form_sched_enalotto");
  QTest::keyClick(scheda, Qt::Key_Return);
  EXPECT_TRUE(scheda->isVisible());
  EXPECT_TRUE(b.piattaforma.righe().empty());
}

TEST_F(Tastiera, ArrowKeysChooseTheNextOptionOfTheGroupAndRunItsRule) {
  attiva("Form1");
  auto* ambo = w<QRadioButton>("Form1", "Option1", 0);
  ambo->setFocus();
  auto& form1 = b.p.moduli("Form1");
  QTest::keyClick(ambo, Qt::Key_Down);
  EXPECT_TRUE(form1.c<pulsante_opzione>("Option1", 1).valore());
  EXPECT_FALSE(form1.c<pulsante_opzione>("Option1", 0).valore());
  EXPECT_EQ(QApplication::focusWidget(), w("Form1", "Option1", 1));
  EXPECT_EQ(b.p.s.tipo_gioco, "terno");
  // Up from the first option comes round to the last.
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
  EXPECT_TRUE(form1.c<pulsante_opzione>("Option1", 9).valore());
  EXPECT_EQ(b.p.s.tipo_gioco, "wforlife");
}

TEST_F(Tastiera, EnterOnAFocusedButtonPressesThatButton) {
  attiva("Form1");
  auto* esci = w<QPushButton>("Form1", "cmdcancel");
  esci->setFocus();
  QTest::keyClick(esci, Qt::Key_Return);
  EXPECT_TRUE(b.finito);
}

// The stops of Tab from the window's focus until it comes round again.
std::vector<QWidget*> giro_di_tab(QWidget& finestra) {
  // From no focus, Tab goes to the first stop of the window.
  if (QApplication::focusWidget() != nullptr) QApplication::focusWidget()->clearFocus();
  std::vector<QWidget*> fermate;
  for (int passo = 0; passo < 600; ++passo) {
    QTest::keyClick(QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : &finestra, Qt::Key_Tab);
    QWidget* ora = QApplication::focusWidget();
    if (ora == nullptr || (!fermate.empty() && ora == fermate.front())) break;
    fermate.push_back(ora);
  }
  return fermate;
}

// b follows a as a person reads: on a's row (tops less than half a height
// apart) to its right, or on a row below.
bool in_ordine_di_lettura(const QWidget* a, const QWidget* b) {
  const int scarto = b->y() - a->y();
  if (std::abs(scarto) < std::min(a->height(), b->height()) / 2) return b->x() >= a->x();
  return scarto > 0;
}

void controlla_tab(QWidget& finestra, const std::string& modulo) {
  std::vector<QWidget*> fermate = giro_di_tab(finestra);
  for (QPushButton* bottone : finestra.findChildren<QPushButton*>()) {
    if (!bottone->isVisibleTo(&finestra) || !bottone->isEnabled()) continue;
    EXPECT_NE(std::find(fermate.begin(), fermate.end(), bottone), fermate.end())
        << modulo << ": Tab never reaches " << nome_di(bottone);
  }
  for (size_t i = 1; i < fermate.size(); ++i) {
    const QWidget* a = fermate[i - 1];
    const QWidget* b = fermate[i];
    if (a->parentWidget() != b->parentWidget()) continue;
    EXPECT_TRUE(in_ordine_di_lettura(a, b)) << modulo << ": Tab goes back from " << nome_di(a) << " to " << nome_di(b);
  }
  // A group of options is one stop, at the chosen option.
  std::map<const QWidget*, int> opzioni_per_gruppo;
  for (const QWidget* fermata : fermate) {
    if (auto* opzione = qobject_cast<const QRadioButton*>(fermata)) {
      ++opzioni_per_gruppo[fermata->parentWidget()];
      const bool altra_scelta = !opzione->isChecked() && std::any_of(fermate.begin(), fermate.end(), [&](const QWidget* w) {
        auto* altra = qobject_cast<const QRadioButton*>(w);
        return altra != nullptr && altra->parentWidget() == fermata->parentWidget() && altra->isChecked();
      });
      EXPECT_FALSE(altra_scelta) << modulo << ": Tab stops at " << nome_di(fermata) << ", not the chosen option";
    }
  }
  for (const auto& [gruppo, quante] : opzioni_per_gruppo) EXPECT_EQ(quante, 1) << modulo << ": " << nome_di(gruppo);
  // The controls of one frame are visited together: Tab may go into a frame
  // inside it and come back, but once it has gone elsewhere it stays away.
  std::vector<const QWidget*> lasciati;
  for (size_t i = 1; i < fermate.size(); ++i) {
    const QWidget* prima = fermate[i - 1]->parentWidget();
    if (prima == fermate[i]->parentWidget() || prima->isAncestorOf(fermate[i])) continue;
    lasciati.push_back(prima);
    EXPECT_EQ(std::find(lasciati.begin(), lasciati.end(), fermate[i]->parentWidget()), lasciati.end())
        << modulo << ": Tab comes back into " << nome_di(fermate[i]->parentWidget()) << " at " << nome_di(fermate[i]);
  }
}

TEST_F(Tastiera, TabReachesEveryButtonOfEveryWindowInReadingOrder) {
  struct finestra_da_aprire {
    const char* modulo;
    std::function<void()> apri;
  };
  auto scheda = [this](int gioco) { return [this, gioco] { apri_scheda(gioco); }; };
  auto taratura = [this](const char* comando) { return [this, comando] { clic("Form1", comando); }; };
  const std::vector<finestra_da_aprire> finestre{
      {"Form1", [] {}},
      {"Form_sched_lotto_ambetto", scheda(1)},
      {"Form_sched_enalotto", scheda(4)},
      {"Form_sched_wforlife5", scheda(9)},
      {"Form_sched_wforlife",
       [this] {
         apri_scheda(9);
         clic("Form_sched_wforlife5", "Option2");
       }},
      {"Form_sched_10elotto",
       [this] {
         clic("Form1", "Option1", 8);
         b.binder.evento([this] {
           b.p.moduli("Form1").nascondi();
           b.p.moduli("Form_sched_10elotto").mostra();
         });
       }},
      {"tar_lotto", taratura("Command7")},
      {"tar_enalotto", taratura("Command2")},
      {"tar_enalotto2", taratura("Command4")},
      {"tar_wforlife", taratura("Command5")},
      {"tar_wforlife5", taratura("Command6")},
  };
  for (const auto& [modulo, apri] : finestre) {
    apri();
    QWidget* f = attiva(modulo);
    ASSERT_NE(f, nullptr) << modulo;
    controlla_tab(*f, modulo);
    if (std::string(modulo) != "Form1") f->close();
    ASSERT_TRUE(b.finestra("Form1")->isVisible()) << "after " << modulo;
  }
}

TEST_F(Tastiera, PriceListOpensAsAFewRowsAndJumpsToATypedPrice) {
  apri_scheda(4);
  auto* prezzi = w<QComboBox>("Form_sched_enalotto", "Combo2");
  ASSERT_NE(prezzi, nullptr);
  ASSERT_GT(prezzi->count(), 1000);
  attiva("Form_sched_enalotto");

  prezzi->showPopup();
  QWidget* tendina = prezzi->view()->window();
  ASSERT_TRUE(tendina->isVisible());
  const int riga = prezzi->view()->sizeHintForRow(0);
  EXPECT_GE(tendina->height(), 10 * riga);
  EXPECT_LE(tendina->height(), 24 * riga);
  // In the open list a typed price is where Enter chooses.
  QTest::keyClicks(prezzi->view(), "3");
  QTest::keyClick(prezzi->view(), Qt::Key_Return);
  EXPECT_FALSE(tendina->isVisible());
  EXPECT_EQ(prezzi->currentText().toStdString(), "€ 3,00");
  auto& combo2 = b.p.moduli("Form_sched_enalotto").c<casella_elenco>("Combo2");
  EXPECT_EQ(combo2.testo(), "€ 3,00");

  // On the closed list the typed price is chosen at once; a point stands for the comma.
  QTest::qWait(QApplication::keyboardInputInterval() + 50);
  prezzi->setFocus();
  QTest::keyClicks(prezzi, "12.5");
  EXPECT_EQ(prezzi->currentText().toStdString(), "€ 12,50");
  EXPECT_EQ(combo2.testo(), "€ 12,50");
  QTest::qWait(QApplication::keyboardInputInterval() + 50);
  QTest::keyClicks(prezzi, "49,99");
  EXPECT_EQ(prezzi->currentText().toStdString(), "€ 49,99");
}

TEST_F(Tastiera, EveryHoverTextOfTheFormsShows) {
  apri_scheda(4);
  clic("Form_sched_enalotto", "Option2");
  finestra_modulo* f = attiva("Form_sched_enalotto");
  int mostrati = 0;
  for (const auto& c : b.p.moduli("Form_sched_enalotto").controlli()) {
    if (c->suggerimento.empty()) continue;
    QWidget* widget = f->findChild<QWidget*>(nome_widget(c->nome(), c->indice()));
    ASSERT_NE(widget, nullptr) << c->nome();
    ASSERT_TRUE(widget->isVisible()) << c->nome();
    QPoint punto = widget->rect().center();
    QHelpEvent sosta(QEvent::ToolTip, punto, widget->mapToGlobal(punto));
    QApplication::sendEvent(widget, &sosta);
    EXPECT_TRUE(QToolTip::isVisible()) << c->nome();
    EXPECT_EQ(QToolTip::text().toStdString(), c->suggerimento) << c->nome();
    QToolTip::hideText();
    ++mostrati;
  }
  EXPECT_EQ(mostrati, 2);
}

}  // namespace
}  // namespace schedine::test
