// The platform services with Qt: message boxes, other programs, skins,
// locale separators, and where print jobs go.

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <filesystem>

#include "app/piattaforma_qt/messaggio_qt.h"
#include "app/piattaforma_qt/piattaforma_qt.h"
#include "app/piattaforma_qt/stampante_app.h"
#include "core/errore_runtime.h"
#include "tests/support/cartella_temporanea.h"

namespace schedine::test {
namespace {

std::vector<int> risposte(const forma_messaggio& f) {
  std::vector<int> r;
  for (const auto& p : f.pulsanti) r.push_back(p.risposta);
  return r;
}

TEST(Messaggio, StyleGivesButtonsIconAndDefault) {
  struct caso {
    int stile;
    std::vector<int> pulsanti;
    QMessageBox::Icon icona;
    int predefinito;
  };
  const caso casi[] = {
      {0, {1}, QMessageBox::NoIcon, 0},
      {16, {1}, QMessageBox::Critical, 0},
      {1 + 32, {1, 2}, QMessageBox::Question, 0},
      {2 + 48, {3, 4, 5}, QMessageBox::Warning, 0},
      {3 + 256, {6, 7, 2}, QMessageBox::NoIcon, 1},
      {4 + 64 + 256, {6, 7}, QMessageBox::Information, 1},
      {5 + 512, {4, 2}, QMessageBox::NoIcon, 0},  // no third button: the first
      {2 + 512, {3, 4, 5}, QMessageBox::NoIcon, 2},
  };
  for (const caso& c : casi) {
    SCOPED_TRACE(c.stile);
    forma_messaggio f = forma_di(c.stile);
    EXPECT_EQ(risposte(f), c.pulsanti);
    EXPECT_EQ(f.icona, c.icona);
    EXPECT_EQ(f.predefinito, c.predefinito);
  }
}

TEST(Messaggio, AnswersTheButtonPressedUnderTheProgramsCaption) {
  QString titolo;
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    titolo = box->windowTitle();
    for (QAbstractButton* b : box->buttons()) {
      if (b->text() == "No") b->click();
    }
  });
  EXPECT_EQ(mostra_messaggio("Continuare?", 4 + 32, ""), 7);
  EXPECT_EQ(titolo, "Marendolia - Stampa Schedine");
}

class Piattaforma : public ::testing::Test {
 protected:
  cartella_temporanea cartella;
  piattaforma_qt piattaforma{cartella.str()};
};

TEST_F(Piattaforma, ProgramStartsInTheProgramFolderOrIsFileNotFound) {
  std::string programma = cartella.scrivi("ravelin_lotto_10elotto.exe", "#!/bin/sh\ntouch avviato\n");
  std::filesystem::permissions(programma, std::filesystem::perms::owner_exec, std::filesystem::perm_options::add);
  piattaforma.avvia_programma(programma);
  for (int i = 0; i < 200 && !std::filesystem::exists(cartella.file("avviato")); ++i) QThread::msleep(10);
  EXPECT_TRUE(std::filesystem::exists(cartella.file("avviato")));

  std::string mancante = cartella.file("ravelin_classica.exe");
  try {
    piattaforma.avvia_programma(mancante);
    FAIL() << "no error";
  } catch (const errore_runtime& e) {
    EXPECT_EQ(e.numero(), codice::file_non_trovato);
    EXPECT_EQ(e.dettaglio(), mancante);
  }
}

TEST_F(Piattaforma, SkinIsReadAndHandedOnOrMissing) {
  QString ricevuto;
  piattaforma.al_cambio_skin = [&](const QString& foglio) { ricevuto = foglio; };
  cartella.scrivi("skin/skin1_2.skn", "QPushButton { color: red; }");
  piattaforma.carica_skin(cartella.file("skin/skin1_2.skn"));
  EXPECT_EQ(ricevuto, "QPushButton { color: red; }");
  EXPECT_EQ(piattaforma.foglio_skin(), ricevuto);
  try {
    piattaforma.carica_skin(cartella.file("skin/skin1_3.skn"));
    FAIL() << "no error";
  } catch (const errore_runtime& e) {
    EXPECT_EQ(e.numero(), codice::file_non_trovato);
  }
}

// ---------------------------------------------------------------- print jobs

class Stampante : public ::testing::Test {
 protected:
  std::vector<std::string> file_pdf() const {
    std::vector<std::string> nomi;
    std::error_code ec;
    for (const auto& f : std::filesystem::directory_iterator(cartella.file("stampe"), ec)) nomi.push_back(f.path().string());
    std::sort(nomi.begin(), nomi.end());
    return nomi;
  }
  void lavoro(dispositivo_stampa& d, bool disegna) {
    d.imposta_scala_mm();
    d.imposta_riempimento(0, 0);
    if (disegna) d.disegna_cerchio(20, 30, 1);
    d.nuova_pagina();
    d.imposta_riempimento(1);
    d.chiudi_stampa();
  }

  cartella_temporanea cartella;
  std::vector<std::string> avvisi;
};

TEST_F(Stampante, WithoutPrintersEachJobGoesToItsOwnPdfAndTheUserIsTold) {
  stampante_app s(cartella.str(), [] { return false; }, [&](const std::string& p) { avvisi.push_back(p); });
  lavoro(s, true);
  lavoro(s, true);
  auto pdf = file_pdf();
  ASSERT_EQ(pdf.size(), 2u);
  EXPECT_EQ(avvisi.size(), 2u);
  for (const auto& p : pdf) {
    EXPECT_NE(std::find(avvisi.begin(), avvisi.end(), p), avvisi.end()) << p;
    EXPECT_GT(std::filesystem::file_size(p), 200u);
    EXPECT_EQ(std::filesystem::path(p).extension(), ".pdf");
  }
  // A job that draws nothing leaves no file and no word to the user.
  lavoro(s, false);
  EXPECT_EQ(file_pdf().size(), 2u);
  EXPECT_EQ(avvisi.size(), 2u);
}

TEST_F(Stampante, WithPrintersJobsGoToTheDefaultPrinter) {
  // Never send a test page to a real printer.
  if (stampante_app::stampanti_installate()) GTEST_SKIP() << "a printer is installed here";
  stampante_app s(cartella.str(), [] { return true; }, [&](const std::string& p) { avvisi.push_back(p); });
  s.imposta_scala_mm();
  // Told there are printers, on a machine with no default one: the printer's own error, and no PDF.
  try {
    s.disegna_cerchio(20, 30, 1);
    FAIL() << "no printer error";
  } catch (const errore_runtime& e) {
    EXPECT_EQ(e.numero(), codice::errore_stampante);
  }
  EXPECT_TRUE(file_pdf().empty());
}

}  // namespace
}  // namespace schedine::test
