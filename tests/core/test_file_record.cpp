#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <system_error>

#include "core/errore_runtime.h"
#include "core/file_record.h"
#include "tests/support/cartella_temporanea.h"
#include "tests/support/numero_errore.h"

namespace schedine {
namespace {

class FileRecord : public ::testing::Test {
 protected:
  test::cartella_temporanea cartella;
  lettore_record apri(const std::string& contenuto) { return lettore_record(cartella.scrivi("f", contenuto)); }
};

using test::numero_errore;

std::vector<std::string> nomi_in(const test::cartella_temporanea& cartella) {
  std::vector<std::string> nomi;
  for (const auto& voce : std::filesystem::directory_iterator(cartella.file(""))) nomi.push_back(voce.path().filename());
  std::sort(nomi.begin(), nomi.end());
  return nomi;
}

TEST_F(FileRecord, FieldsAreTakenRegardlessOfLineEnds) {
  auto f = apri("1,2\r\n3\r\n4,5,\r\n\r\n6");
  std::vector<std::string> campi;
  while (!f.fine_file()) campi.push_back(f.leggi_campo());
  EXPECT_EQ(campi, (std::vector<std::string>{"1", "2", "3", "4", "5", "", "", "6"}));
}

TEST_F(FileRecord, QuotedStringsKeepCommasAndBlanks) {
  auto f = apri("\"0,50\",\"Euro\"\r\n  \" a, b \" ,x\r\n");
  EXPECT_EQ(f.leggi_stringa(), "0,50");
  EXPECT_EQ(f.leggi_stringa(), "Euro");
  EXPECT_EQ(f.leggi_stringa(), " a, b ");
  EXPECT_EQ(f.leggi_stringa(), "x");
  EXPECT_TRUE(f.fine_file());
}

TEST_F(FileRecord, LastLineEndGivesNoExtraField) {
  auto f = apri("7,8\r\n");
  EXPECT_EQ(f.leggi_byte(), 7);
  EXPECT_EQ(f.leggi_byte(), 8);
  EXPECT_TRUE(f.fine_file());
  EXPECT_EQ(numero_errore([&] { f.leggi_byte(); }), codice::input_oltre_fine);
}

TEST_F(FileRecord, NumbersBooleansAndTheirFailures) {
  auto f = apri(" 12 ,-3.5,#TRUE#,#FALSE#,,abc,256,70000,2.5,3.5\n");
  EXPECT_EQ(f.leggi_long(), 12);
  EXPECT_DOUBLE_EQ(f.leggi_double(), -3.5);
  EXPECT_TRUE(f.leggi_booleano());
  EXPECT_FALSE(f.leggi_booleano());
  EXPECT_EQ(f.leggi_long(), 0) << "an empty field reads 0";
  EXPECT_EQ(numero_errore([&] { f.leggi_long(); }), codice::tipo_non_corrispondente);
  EXPECT_EQ(numero_errore([&] { f.leggi_byte(); }), codice::overflow);
  EXPECT_EQ(numero_errore([&] { f.leggi_integer(); }), codice::overflow);
  EXPECT_EQ(f.leggi_integer(), 2) << "half to even";
  EXPECT_EQ(f.leggi_integer(), 4);
}

// A number too large for its type is "Overflow"; a text that is no number,
// however close it comes to one, is "Tipo non corrispondente"; a number too
// small for its type reads as 0.
TEST_F(FileRecord, OnlyANumberTooLargeIsOverflow) {
  struct caso {
    const char* testo;
    int errore_double;
    double come_double;  // when it reads
    int errore_single;   // a Single that reads is 0 in every case here
  };
  const int tipo = codice::tipo_non_corrispondente;
  const caso casi[] = {
      {"1.2.3", tipo, 0, tipo},   {"-", tipo, 0, tipo},
      {"1e", tipo, 0, tipo},      {"+-5", tipo, 0, tipo},
      {"1e103.4e38", tipo, 0, tipo},
      {"1e400", codice::overflow, 0, codice::overflow},
      {"-1e400", codice::overflow, 0, codice::overflow},
      {"3.5e38", 0, 3.5e38, codice::overflow},
      {"1e-400", 0, 0.0, 0},      {"-1e-50", 0, -1e-50, 0},
  };
  std::string contenuto;
  for (const auto& c : casi) contenuto += std::string(c.testo) + "," + c.testo + "\r\n";
  auto f = apri(contenuto);
  for (const auto& c : casi) {
    double d = -1;
    float s = -1;
    EXPECT_EQ(numero_errore([&] { d = f.leggi_double(); }), c.errore_double) << c.testo;
    EXPECT_EQ(numero_errore([&] { s = f.leggi_single(); }), c.errore_single) << c.testo;
    if (c.errore_double == 0) {
      EXPECT_EQ(d, c.come_double) << c.testo;
    }
    if (c.errore_single == 0) {
      EXPECT_EQ(s, 0.0f) << c.testo;
    }
  }
}

TEST_F(FileRecord, SinglesReadBackBitForBit) {
  auto f = apri("12.09,.5,-.4375,1e-7,3.4e39\r\n");
  EXPECT_EQ(f.leggi_single(), 12.09f);
  EXPECT_EQ(f.leggi_single(), 0.5f);
  EXPECT_EQ(f.leggi_single(), -0.4375f);
  EXPECT_EQ(f.leggi_single(), 1e-7f);
  EXPECT_EQ(numero_errore([&] { f.leggi_single(); }), codice::overflow);
}

TEST_F(FileRecord, LineInputTakesRawText) {
  auto f = apri("1,2,3,4,5,6\r\nseconda riga\nterza");
  EXPECT_EQ(f.leggi_riga(), "1,2,3,4,5,6");
  EXPECT_EQ(f.leggi_riga(), "seconda riga");
  EXPECT_EQ(f.leggi_riga(), "terza");
  EXPECT_EQ(numero_errore([&] { f.leggi_riga(); }), codice::input_oltre_fine);
}

// A dropped line is counted as it streams by, also when it is longer than the
// reader's buffer and its CR LF straddles a refill.
TEST_F(FileRecord, DroppedLineCountsItsCharactersAcrossTheBuffer) {
  const size_t blocco = 64 * 1024;  // a multiple of the buffer
  std::string lunga(blocco - 1, ',');
  auto f = apri(lunga + "\r\n7,8\r\r\nx");
  EXPECT_EQ(f.salta_riga(','), blocco - 1);
  EXPECT_EQ(f.salta_riga(','), 1u);
  EXPECT_EQ(f.salta_riga(), 0u);  // the CR alone ended "7,8": an empty line follows
  EXPECT_EQ(f.leggi_riga(), "x");
  EXPECT_EQ(numero_errore([&] { f.salta_riga(); }), codice::input_oltre_fine);
}

TEST_F(FileRecord, MissingFileIsFileNotFoundNamingIt) {
  try {
    lettore_record f(cartella.file("manca"));
    FAIL();
  } catch (const errore_runtime& e) {
    EXPECT_EQ(e.numero(), codice::file_non_trovato);
    EXPECT_NE(e.rapporto().find("manca"), std::string::npos);
  }
}

TEST_F(FileRecord, WriteFormsFieldsAsTheReaderTakesThem) {
  scrittore_record w(cartella.file("w"));
  w.scrivi({std::string("0,50"), std::string("Euro")});
  w.scrivi({true});
  w.scrivi({int64_t{1}, int64_t{-20}, false});
  w.stampa_riga("x,y,");
  w.chiudi();
  EXPECT_EQ(cartella.leggi("w"), "\"0,50\",\"Euro\"\r\n#TRUE#\r\n1,-20,#FALSE#\r\nx,y,\r\n");
}

TEST_F(FileRecord, AnUnfinishedWriteLeavesTheOldFileWhole) {
  cartella.scrivi("w", "vecchio\r\n");
  {
    scrittore_record w(cartella.file("w"));
    w.stampa_riga("nuovo");
  }  // no chiudi(): the write did not end
  EXPECT_EQ(cartella.leggi("w"), "vecchio\r\n");
  EXPECT_EQ(nomi_in(cartella), std::vector<std::string>{"w"});
}

// What a killed save leaves behind, or anything standing where a temporary
// file could go, never blocks the next save.
TEST_F(FileRecord, NoLeftoverBesideTheFileBlocksAWrite) {
  cartella.scrivi("w", "vecchio\r\n");
  std::filesystem::create_directory(cartella.file("w.tmp~"));
  scrittore_record w(cartella.file("w"));
  w.stampa_riga("nuovo");
  w.chiudi();
  EXPECT_EQ(cartella.leggi("w"), "nuovo\r\n");
  EXPECT_EQ(nomi_in(cartella), (std::vector<std::string>{"w", "w.tmp~"}));
}

// Whatever fails, the user reads it in Italian and, for a file, learns which.
TEST(RapportoGuasto, NoLibraryTextReachesTheUser) {
  const std::filesystem::filesystem_error cartella_occupata(
      "cannot create directories", "/programma/stampe", std::make_error_code(std::errc::not_a_directory));
  EXPECT_EQ(rapporto_guasto(cartella_occupata),
            "Errore di run-time '75': Errore di accesso al percorso/file: /programma/stampe");
  EXPECT_EQ(rapporto_guasto(std::system_error(std::make_error_code(std::errc::no_space_on_device))),
            "Errore di run-time '61': Disco pieno");
  EXPECT_EQ(rapporto_guasto(std::bad_alloc()), "Errore di run-time '7': Memoria esaurita");
  EXPECT_EQ(rapporto_guasto(std::logic_error("vector::_M_range_check")), "Errore interno del programma.");
  EXPECT_EQ(rapporto_guasto(errore_runtime(codice::file_non_trovato, "x")),
            "Errore di run-time '53': Impossibile trovare il file: x");
}

TEST_F(FileRecord, AWriteIntoAMissingFolderFailsClearly) {
  EXPECT_EQ(numero_errore([&] { scrittore_record w(cartella.file("manca/w")); }), codice::percorso_non_trovato);
}

}  // namespace
}  // namespace schedine
