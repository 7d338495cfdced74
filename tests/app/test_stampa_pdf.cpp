// A demo Lotto system printed from the program as a user prints it, on a
// machine with no printer: the job goes to a PDF file in stampe/, and every
// mark of the first slip lands on the PDF page within 0.1 mm of the box of
// the calibration table it stands for.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <sys/resource.h>

#include <csignal>
#include <cmath>
#include <filesystem>
#include <sstream>

#include "app/binder/legame.h"
#include "app/binder/nomi_widget.h"
#include "app/piattaforma_qt/stampante_app.h"
#include "app/viste/registro_viste.h"
#include "core/piattaforma.h"
#include "forms/programma/programma.h"
#include "printing/dispositivo_doppio.h"
#include "printing/dispositivo_giornale.h"
#include "printing/giornale.h"
#include "tests/printing/strumenti_pdf.h"
#include "tests/support/cartella_temporanea.h"
#include "tools/demo/genera_demo.h"

namespace schedine::test {
namespace {

// The desktop's printer on a machine without printers, and beside it a
// journal of what the program asked of it.
class piattaforma_pdf : public servizi_piattaforma {
 public:
  explicit piattaforma_pdf(const std::string& cartella)
      : giornale_(testo_),
        dispositivo_giornale_(giornale_),
        stampante_(
            cartella, [] { return false; }, [this](const std::string& p) { file_pdf.push_back(p); },
            [this](const std::string& g) { guasti.push_back(g); }),
        doppio_(dispositivo_giornale_, stampante_) {}

  void esegui_eventi_in_attesa() override {}
  int messaggio(const std::string& testo, int, const std::string&) override {
    messaggi.push_back(testo);
    return risposta_ok;
  }
  void avvia_programma(const std::string&) override {}
  void carica_skin(const std::string&) override {}
  dispositivo_stampa& stampante() override { return doppio_; }

  std::vector<std::string> righe() {
    giornale_.svuota();
    std::vector<std::string> risultato;
    std::istringstream in(testo_.str());
    for (std::string riga; std::getline(in, riga);) risultato.push_back(riga);
    return risultato;
  }

  std::vector<std::string> file_pdf;
  std::vector<std::string> guasti;
  std::vector<std::string> messaggi;

 private:
  std::ostringstream testo_;
  giornale giornale_;
  dispositivo_giornale dispositivo_giornale_;
  stampante_app stampante_;
  dispositivo_doppio doppio_;
};

struct punto_mm {
  float x, y;
};

// The marks of the first slip, as the journal has them.
std::vector<punto_mm> cerchi_prima_scheda(const std::vector<std::string>& righe) {
  std::vector<punto_mm> cerchi;
  for (const std::string& riga : righe) {
    if (riga == "nuova_pagina") break;
    std::istringstream in(riga);
    std::string nome;
    float x = 0, y = 0;
    if (in >> nome >> x >> y && nome == "disegna_cerchio") cerchi.push_back({x, y});
  }
  return cerchi;
}

void clic(QAbstractButton* w) {
  ASSERT_NE(w, nullptr);
  QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(std::min(8, w->width() / 2), w->height() / 2));
}

// The program on a demo folder, printing the first Lotto system (a terno on
// Bari) as a user does, with the mouse.
class StampaPdf : public ::testing::Test {
 protected:
  StampaPdf() {
    demo::genera_demo(cartella.str(), SCHEDINE_SKIN_DIR);
    binder.al_termine_per_guasto = [this] { fermato = true; };
  }
  ~StampaPdf() override { p.termina(); }

  QAbstractButton* w(const char* modulo, const char* nome, int indice = -1) {
    finestra_modulo* f = binder.finestra(modulo);
    return f == nullptr ? nullptr : f->findChild<QAbstractButton*>(nome_widget(nome, indice));
  }

  void stampa_terno_su_bari(const std::function<void()>& prima_di_stampare = [] {}) {
    binder.evento([&] { p.avvia(); });
    clic(w("Form1", "Option1", 1));
    auto* lista = binder.finestra("Form1")->findChild<QListWidget*>(QStringLiteral("List1"));
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(0)).center());
    clic(w("Form1", "cmdok"));
    const char* lotto = "Form_sched_lotto_ambetto";
    clic(w(lotto, "ChRuote", 0));
    clic(w(lotto, "ChTerno", 8));
    prima_di_stampare();
    clic(w(lotto, "cmdstampa", 1));
  }

  std::vector<std::string> stampe() const {
    std::vector<std::string> nomi;
    std::error_code nessuno;
    for (const auto& f : std::filesystem::directory_iterator(cartella.file("stampe"), nessuno)) nomi.push_back(f.path());
    return nomi;
  }

  cartella_temporanea cartella;
  piattaforma_pdf piattaforma{cartella.str()};
  programma p{cartella.str(), piattaforma, formato_locale::italiano()};
  legame binder{p.moduli, piattaforma, &crea_finestra};
  bool fermato = false;
};

TEST_F(StampaPdf, LottoMarksLandOnTheirTables) {
  stampa_terno_su_bari();
  EXPECT_FALSE(fermato);
  EXPECT_TRUE(piattaforma.guasti.empty());
  ASSERT_EQ(piattaforma.file_pdf.size(), 1u) << "one job, one file, and the user told of it";
  const std::filesystem::path pdf = piattaforma.file_pdf[0];
  EXPECT_EQ(pdf.parent_path(), std::filesystem::path(cartella.file("stampe")));
  EXPECT_GE(prova::conta_pagine(QString::fromStdString(pdf.string())), 1);

  // Each mark of the first slip is a box of a table: a number, Bari, terno at 1 euro.
  const stato& s = p.s;
  std::vector<punto_mm> tabelle;
  for (int n = 1; n <= 90; ++n) tabelle.push_back({s.tar_numeri(n, asse_x), s.tar_numeri(n, asse_y)});
  tabelle.push_back({s.tar_ruote(0, asse_x), s.tar_ruote(0, asse_y)});
  tabelle.push_back({s.tar_terno(8, asse_x), s.tar_terno(8, asse_y)});
  const auto cerchi = cerchi_prima_scheda(piattaforma.righe());
  ASSERT_GE(cerchi.size(), 5u);
  int numeri = 0;
  for (const punto_mm& c : cerchi) {
    auto uguale = [&](const punto_mm& t) { return t.x == c.x && t.y == c.y; };
    auto trovata = std::find_if(tabelle.begin(), tabelle.end(), uguale);
    ASSERT_NE(trovata, tabelle.end()) << c.x << " " << c.y << " is no box of the tables";
    if (trovata - tabelle.begin() < 90) ++numeri;
  }
  EXPECT_GE(numeri, 3) << "the numbers of the column";
  EXPECT_EQ(cerchi.size(), static_cast<size_t>(numeri) + 2) << "Bari and the terno stake";

  const auto pagina = prova::rasterizza(QString::fromStdString(pdf.string()), 1, 400);
  ASSERT_GT(pagina.larghezza, 0);
  for (const punto_mm& c : cerchi) {
    SCOPED_TRACE(testing::Message() << "mark at " << c.x << ", " << c.y);
    const prova::macchia m = prova::misura(pagina, c.x - 2.5, c.y - 2.5, c.x + 2.5, c.y + 2.5);
    EXPECT_NEAR(m.x, c.x, 0.1);
    EXPECT_NEAR(m.y, c.y, 0.1);
    EXPECT_NEAR(m.area, 3.14159, 0.6) << "a dot of radius 1 mm";
  }
}

// A print that can't reach its file is no success: the user is told once,
// in Italian, which file and why; no broken file stays behind; the print
// fails as any print fails (the Lotto form goes on) and the next one works.
TEST_F(StampaPdf, AFileInPlaceOfTheFolderIsToldAndTheNextPrintWorks) {
  cartella.scrivi("stampe", "");
  stampa_terno_su_bari();
  EXPECT_FALSE(fermato);
  EXPECT_TRUE(piattaforma.file_pdf.empty());
  ASSERT_EQ(piattaforma.guasti.size(), 1u);
  EXPECT_EQ(piattaforma.guasti[0],
            "impossibile creare la cartella " + cartella.file("stampe") + ": al suo posto c'è un file con lo stesso nome");

  std::filesystem::remove(cartella.file("stampe"));
  clic(w("Form_sched_lotto_ambetto", "cmdstampa", 1));
  EXPECT_EQ(piattaforma.file_pdf.size(), 1u);
  EXPECT_EQ(piattaforma.guasti.size(), 1u);
}

// A full disk, made by a limit on the size of the files this process writes.
TEST_F(StampaPdf, AFullDiskIsToldAndLeavesNoFile) {
  rlimit prima{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &prima), 0);
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit piccolo = prima;
  piccolo.rlim_cur = 1024;
  stampa_terno_su_bari([&] { ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &piccolo), 0); });
  setrlimit(RLIMIT_FSIZE, &prima);

  EXPECT_FALSE(fermato);
  EXPECT_TRUE(piattaforma.file_pdf.empty()) << "no word of a saved print";
  ASSERT_EQ(piattaforma.guasti.size(), 1u);
  EXPECT_TRUE(piattaforma.guasti[0].starts_with("impossibile scrivere il file PDF " + cartella.file("stampe/stampa-")));
  EXPECT_TRUE(piattaforma.guasti[0].ends_with(".pdf: Disco pieno")) << piattaforma.guasti[0];
  EXPECT_TRUE(stampe().empty());
}

}  // namespace
}  // namespace schedine::test
