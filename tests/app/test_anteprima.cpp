// "Anteprima" and "Interrompi" on the windows of the printing forms, clicked
// as a user clicks them: the preview runs the very print rule of "Stampa"
// into its recorder and prints from it what "Stampa" prints; a stop leaves
// whole slips in a closed job and tells the user how many went out.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <filesystem>
#include <functional>

#include "app/anteprima/finestra_anteprima.h"
#include "app/anteprima/pagina_anteprima.h"
#include "printing/registratore.h"
#include "tests/printing/strumenti_pdf.h"
#include "tests/app/banco_app.h"

namespace schedine::test {
namespace {

constexpr const char* lotto = "Form_sched_lotto_ambetto";

void clic(QAbstractButton* w) {
  ASSERT_NE(w, nullptr);
  QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(std::min(8, w->width() / 2), w->height() / 2));
}

// What reaches paper, without the device settings each page of a replay
// restates: the drawings and the page ends.
std::vector<std::string> disegni(const std::vector<std::string>& righe) {
  std::vector<std::string> scelte;
  for (const std::string& r : righe) {
    for (const char* op : {"disegna_cerchio", "disegna_rettangolo", "stampa_testo", "nuova_pagina", "chiudi_stampa"}) {
      if (r.rfind(op, 0) == 0) scelte.push_back(r);
    }
  }
  // The run's last page end leaves an empty page that no printer feeds.
  auto fine = std::find(scelte.rbegin(), scelte.rend(), "nuova_pagina");
  if (fine != scelte.rend() && fine == scelte.rbegin() + 1) scelte.erase(std::next(fine).base());
  return scelte;
}

int conta(const std::vector<std::string>& righe, const std::string& riga) {
  return static_cast<int>(std::count(righe.begin(), righe.end(), riga));
}

finestra_anteprima* anteprima_aperta() {
  for (QWidget* w : QApplication::topLevelWidgets()) {
    if (auto* f = dynamic_cast<finestra_anteprima*>(w); f != nullptr && f->isVisible()) return f;
  }
  return nullptr;
}

class Anteprima : public ::testing::Test {
 public:
  void SetUp() override { b.avvia(); }
  void TearDown() override {
    if (auto* f = anteprima_aperta()) delete f;
  }

  template <class W = QAbstractButton>
  W* w(const std::string& modulo, const std::string& nome, int indice = -1) {
    return b.widget<W>(modulo, nome, indice);
  }
  QPushButton* bottone(const std::string& modulo, const char* nome) {
    return b.finestra(modulo)->findChild<QPushButton*>(QString::fromLatin1(nome));
  }
  // The first Ambo system of the list, made `colonne` columns long (both
  // demo Ambo systems are), on its slip form with Bari and an ambo stake.
  void apri_ambo(int colonne) {
    std::string testa = std::to_string(colonne) + "," + std::to_string(colonne) + "\r\n", righe;
    for (int k = 0; k < colonne; ++k) righe += std::to_string(k % 89 + 1) + "," + std::to_string(k % 89 + 2) + "\r\n";
    b.cartella.scrivi("ambo/azzardocua.txt", testa);
    b.cartella.scrivi("ambo/azzardocaa.txt", righe);
    b.cartella.scrivi("ambo/fortunanua.txt", "\"fortuna\"," + testa);
    b.cartella.scrivi("ambo/fortunasya.txt", righe);
    clic(w<QRadioButton>("Form1", "Option1", 0));
    auto* lista = w<QListWidget>("Form1", "List1");
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(0)).center());
    clic(w("Form1", "cmdok"));
    clic(w(lotto, "ChRuote", 0));
    clic(w(lotto, "Chambo", 8));
    nuove_righe();  // what came before the print
  }

  // The journal since the last call.
  std::vector<std::string> nuove_righe() {
    auto righe = b.piattaforma.righe();
    std::vector<std::string> nuove(righe.begin() + static_cast<std::ptrdiff_t>(lette_), righe.end());
    lette_ = righe.size();
    return nuove;
  }

  banco_app b;
  size_t lette_ = 0;
};

TEST_F(Anteprima, PreviewRunsThePrintRuleAndPrintsWhatStampaPrints) {
  apri_ambo(12);
  clic(bottone(lotto, "cmdanteprima"));
  finestra_anteprima* f = anteprima_aperta();
  ASSERT_NE(f, nullptr);
  EXPECT_TRUE(disegni(nuove_righe()).empty()) << "nothing reaches the printer";
  // The form ends as after "Stampa": the bar full, the progress frame hidden.
  EXPECT_EQ(b.p.moduli(lotto).c<barra_avanzamento>("ProgressBar1").valore(), 12);
  EXPECT_TRUE(w<QWidget>(lotto, "Frame2")->isHidden());
  ASSERT_EQ(f->pagine().pagine(), 12u);
  EXPECT_EQ(f->pagine().pagina_n(0).carta, schedina::lotto);
  auto* numero = f->findChild<QLabel*>(QStringLiteral("numero"));
  EXPECT_EQ(numero->text(), QStringLiteral("Scheda 1 di 12"));
  clic(f->findChild<QToolButton*>(QStringLiteral("successiva")));
  clic(f->findChild<QToolButton*>(QStringLiteral("successiva")));
  EXPECT_EQ(numero->text(), QStringLiteral("Scheda 3 di 12"));
  EXPECT_EQ(f->pagina().pagina(), 2u);

  // "Salva PDF" writes the recorded slips, with the slip's picture as the window shows them or without.
  for (bool figura : {true, false}) {
    const std::string file = b.cartella.file(figura ? "con_figura.pdf" : "senza_figura.pdf");
    f->chiedi_file_pdf = [&] { return QString::fromStdString(file); };
    f->findChild<QCheckBox*>(QStringLiteral("figura"))->setChecked(figura);
    clic(f->findChild<QPushButton*>(QStringLiteral("salva_pdf")));
    EXPECT_EQ(prova::conta_pagine(QString::fromStdString(file)), 12);
  }
  EXPECT_GT(std::filesystem::file_size(b.cartella.file("con_figura.pdf")),
            std::filesystem::file_size(b.cartella.file("senza_figura.pdf")) + 10'000)
      << "the picture's boxes";
  // A file that can't be written whole is no save: the user is told the file and why.
  f->chiedi_file_pdf = [] { return QStringLiteral("/dev/full"); };
  clic(f->findChild<QPushButton*>(QStringLiteral("salva_pdf")));
  EXPECT_EQ(conta(nuove_righe(), "messaggio \"Il file PDF non è stato salvato: impossibile scrivere il file PDF "
                                 "/dev/full: Disco pieno\""),
            1);

  // "Stampa" of the preview sends the recorded slips, the rule does not run again.
  clic(f->findChild<QPushButton*>(QStringLiteral("stampa")));
  const auto dall_anteprima = disegni(nuove_righe());
  EXPECT_EQ(b.p.moduli(lotto).c<barra_avanzamento>("ProgressBar1").valore(), 12);
  clic(w(lotto, "cmdstampa", 1));
  const auto diretta = disegni(nuove_righe());
  EXPECT_EQ(conta(diretta, "nuova_pagina"), 11);
  EXPECT_EQ(dall_anteprima, diretta);
}

TEST_F(Anteprima, PreviewOfARefusedPrintShowsTheRuleMessageAndNoWindow) {
  apri_ambo(3);
  clic(w(lotto, "Chambo", 8));  // no stake: the amount check refuses the run
  clic(bottone(lotto, "cmdanteprima"));
  const auto righe = nuove_righe();
  EXPECT_EQ(conta(righe, "messaggio \"L'importo di giocata non è corretto.\""), 1);
  EXPECT_EQ(anteprima_aperta(), nullptr);
}

TEST_F(Anteprima, InterrompiClosesTheJobAfterTheSlipInCourse) {
  apri_ambo(60);
  // The user presses "Interrompi" while the third slip is being printed.
  auto& barra = b.p.moduli(lotto).c<barra_avanzamento>("ProgressBar1");
  int eventi_dopo = 0;
  b.piattaforma.durante_eventi = [&] {
    if (barra.valore() == 3) clic(bottone(lotto, "cmdinterrompi"));
    if (barra.valore() > 3) ++eventi_dopo;
  };
  clic(w(lotto, "cmdstampa", 1));
  const auto righe = nuove_righe();
  EXPECT_EQ(eventi_dopo, 0) << "after the stop the rule runs through without pausing";
  EXPECT_EQ(conta(righe, "nuova_pagina"), 3);
  EXPECT_EQ(conta(righe, "chiudi_stampa"), 1);
  // The job closes on the third slip's page end: nothing follows but the message.
  auto chiusa = std::find(righe.begin(), righe.end(), "chiudi_stampa");
  ASSERT_NE(chiusa, righe.end());
  EXPECT_EQ(*(chiusa - 1), "imposta_riempimento 1");
  EXPECT_EQ(*(chiusa - 2), "nuova_pagina");
  ASSERT_EQ(righe.end() - chiusa, 2);
  EXPECT_EQ(righe.back(), "messaggio \"Stampa interrotta: 3 schede inviate alla stampante.\"");
  // The rule itself went to its end: the bar full, the frame hidden.
  EXPECT_EQ(b.p.moduli(lotto).c<barra_avanzamento>("ProgressBar1").valore(), 60);
  EXPECT_TRUE(w<QWidget>(lotto, "Frame2")->isHidden());

  // The next run is whole again.
  b.piattaforma.durante_eventi = nullptr;
  clic(w(lotto, "cmdstampa", 1));
  EXPECT_EQ(conta(nuove_righe(), "nuova_pagina"), 60);
}

TEST_F(Anteprima, ProgressBarCountsSlips) {
  apri_ambo(5);
  QString visto;
  b.piattaforma.durante_eventi = [&] {
    auto* barra = w<QProgressBar>(lotto, "ProgressBar1");
    b.binder.aggiorna();
    if (visto.isEmpty() && barra->value() == 2) visto = barra->text();
  };
  clic(w(lotto, "cmdstampa", 1));
  EXPECT_EQ(visto, QStringLiteral("2 di 5"));
}

// Every window that prints has its preview, over the slip it prints on, and
// prints from it what the rule drew.
struct finestra_che_stampa {
  const char* nome;
  const char* modulo;
  schedina carta;
  std::function<void(Anteprima&)> apri;
};

class OgniFinestra : public Anteprima, public ::testing::WithParamInterface<finestra_che_stampa> {
 public:
  // The first system of a game, chosen on Form1.
  void scegli(int gioco) {
    clic(w<QRadioButton>("Form1", "Option1", gioco));
    auto* lista = w<QListWidget>("Form1", "List1");
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(0)).center());
  }
  // ... and its slip form.
  void scheda(int gioco) {
    scegli(gioco);
    clic(w("Form1", "cmdok"));
  }
  void clic_su(const char* modulo, const char* nome, int indice = -1) { clic(w(modulo, nome, indice)); }
};

TEST_P(OgniFinestra, PreviewsOverItsSlipAndPrintsFromThePreview) {
  const finestra_che_stampa& caso = GetParam();
  caso.apri(*this);
  nuove_righe();
  clic(bottone(caso.modulo, "cmdanteprima"));
  finestra_anteprima* f = anteprima_aperta();
  ASSERT_NE(f, nullptr);
  ASSERT_GE(f->pagine().pagine(), 1u);
  for (size_t i = 0; i < f->pagine().pagine(); ++i) EXPECT_EQ(f->pagine().pagina_n(i).carta, caso.carta);
  EXPECT_TRUE(disegni(nuove_righe()).empty());
  clic(f->findChild<QPushButton*>(QStringLiteral("stampa")));
  const auto righe = nuove_righe();
  const auto stampate = disegni(righe);
  EXPECT_EQ(conta(stampate, "nuova_pagina") + 1, static_cast<int>(f->pagine().pagine()));
  EXPECT_GT(std::count_if(stampate.begin(), stampate.end(), [](const std::string& r) { return r.rfind("disegna_", 0) == 0; }), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Tutte, OgniFinestra,
    ::testing::Values(
        finestra_che_stampa{"Lotto", lotto, schedina::lotto,
                            [](Anteprima& t) {
                              auto& o = static_cast<OgniFinestra&>(t);
                              o.scheda(1);
                              o.clic_su(lotto, "ChRuote", 0);
                              o.clic_su(lotto, "ChTerno", 8);
                            }},
        finestra_che_stampa{"DieciELotto", "Form_sched_10elotto", schedina::diecielotto,
                            [](Anteprima& t) {
                              auto& o = static_cast<OgniFinestra&>(t);
                              o.scegli(8);
                              o.b.binder.evento([&] {
                                o.b.p.moduli("Form1").nascondi();
                                o.b.p.moduli("Form_sched_10elotto").mostra();
                              });
                              o.clic_su("Form_sched_10elotto", "chkTipoEstrazione", 1);
                              o.clic_su("Form_sched_10elotto", "chk10elottoImporto", 2);
                            }},
        finestra_che_stampa{"SuperEnalotto", "Form_sched_enalotto", schedina::enalotto,
                            [](Anteprima& t) { static_cast<OgniFinestra&>(t).scheda(4); }},
        finestra_che_stampa{"SuperEnalottoSuperstar", "Form_sched_enalotto", schedina::enalotto2,
                            [](Anteprima& t) {
                              auto& o = static_cast<OgniFinestra&>(t);
                              o.scheda(4);
                              o.clic_su("Form_sched_enalotto", "Option2");
                            }},
        finestra_che_stampa{"WinForLife5", "Form_sched_wforlife5", schedina::wforlife5,
                            [](Anteprima& t) { static_cast<OgniFinestra&>(t).scheda(9); }},
        finestra_che_stampa{"WinForLife", "Form_sched_wforlife", schedina::wforlife,
                            [](Anteprima& t) {
                              auto& o = static_cast<OgniFinestra&>(t);
                              o.scheda(9);
                              o.clic_su("Form_sched_wforlife5", "Option2");
                            }},
        finestra_che_stampa{"TarLotto", "tar_lotto", schedina::lotto,
                            [](Anteprima& t) { static_cast<OgniFinestra&>(t).clic_su("Form1", "Command7"); }},
        finestra_che_stampa{"TarEnalotto", "tar_enalotto", schedina::enalotto,
                            [](Anteprima& t) { static_cast<OgniFinestra&>(t).clic_su("Form1", "Command2"); }},
        finestra_che_stampa{"TarEnalotto2", "tar_enalotto2", schedina::enalotto2,
                            [](Anteprima& t) { static_cast<OgniFinestra&>(t).clic_su("Form1", "Command4"); }},
        finestra_che_stampa{"TarWforlife", "tar_wforlife", schedina::wforlife,
                            [](Anteprima& t) { static_cast<OgniFinestra&>(t).clic_su("Form1", "Command5"); }},
        finestra_che_stampa{"TarWforlife5", "tar_wforlife5", schedina::wforlife5,
                            [](Anteprima& t) { static_cast<OgniFinestra&>(t).clic_su("Form1", "Command6"); }}),
    [](const auto& info) { return std::string(info.param.nome); });

}  // namespace
}  // namespace schedine::test
