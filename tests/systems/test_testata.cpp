#include <gtest/gtest.h>

#include <functional>

#include "core/errore_runtime.h"
#include "systems/testata.h"
#include "tests/support/cartella_temporanea.h"
#include "tests/support/numero_errore.h"

namespace schedine {
namespace {

using test::numero_errore;

TEST(Testata, CountStandsWhereTheKindKeepsIt) {
  struct caso {
    genere tipo;
    const char* contenuto;
    int32_t atteso;
  } casi[] = {
      {genere::casuale, "12,34\r\n", 34},
      {genere::casuale, "12\r\n34", 34},                               // fields regardless of lines
      {genere::casuale, "1,250,\"il resto\"\r\n9,9,9\r\n", 250},       // what follows is not read
      {genere::condizionato, "\"a,b\",\"x\",7\r\n", 7},                // a quoted comma is text
      {genere::condizionato, "testo,#TRUE#,7,8\r\n", 7},               // any form before the count
      {genere::condizionato, "1\r\n2\r\n 40000\r\n", 40000},
      {genere::ridotto_un_file, "3,9,\"x\"\r\n1,2,3\r\n", 9},
      {genere::ridotto_due_file, "15\r\n", 15},
      {genere::ridotto_due_file, "15,\"altro\",2", 15},
      {genere::autoridotto, "8,99,100", 8},
      {genere::autoridotto, "  21 \r\n", 21},
  };
  test::cartella_temporanea c;
  for (const auto& k : casi) {
    std::string percorso = c.scrivi("testata.txt", k.contenuto);
    EXPECT_EQ(colonne_da_testata(percorso, k.tipo), k.atteso) << k.contenuto;
  }
}

TEST(Testata, FailuresAreThrownWithThePlatformNumber) {
  struct caso {
    genere tipo;
    const char* contenuto;
    int errore;
  } casi[] = {
      {genere::casuale, "12\r\n", codice::input_oltre_fine},
      {genere::condizionato, "\"a\",\"b\"\r\n", codice::input_oltre_fine},
      {genere::ridotto_un_file, "7", codice::input_oltre_fine},
      {genere::autoridotto, "", codice::input_oltre_fine},
      {genere::ridotto_due_file, "", codice::input_oltre_fine},
      {genere::casuale, "\"nome\",12\r\n", codice::tipo_non_corrispondente},  // the first field is a Long too
      {genere::condizionato, "a,b,c\r\n", codice::tipo_non_corrispondente},
      {genere::autoridotto, "99999999999\r\n", codice::overflow},
  };
  test::cartella_temporanea c;
  for (const auto& k : casi) {
    std::string percorso = c.scrivi("testata.txt", k.contenuto);
    EXPECT_EQ(numero_errore([&] { colonne_da_testata(percorso, k.tipo); }), k.errore) << k.contenuto;
  }
  EXPECT_EQ(numero_errore([&] { colonne_da_testata(c.file("manca.txt"), genere::casuale); }),
            codice::file_non_trovato);
}

TEST(Testata, CrosswordHeadsAndLineCount) {
  test::cartella_temporanea c;
  EXPECT_EQ(primo_long(c.scrivi("croce.sel", "12,3,4,\"x\",1,2,3,5\r\n")), 12);
  EXPECT_EQ(primo_long(c.scrivi("croce.sen", "30\r\n")), 30);

  struct caso {
    const char* contenuto;
    int32_t righe;
  } casi[] = {
      {"", 0},
      {"1,2,3,4,5,6", 1},
      {"1,2,3,4,5,6\r\n", 1},
      {"1,2,3,4,5,6\r\n7,8,9,10,11,12", 2},
      {"1,2,3,4,5,6\r\n\r\n", 2},  // an empty line is a line
      {"a\nb\nc\n", 3},
  };
  for (const auto& k : casi) EXPECT_EQ(conta_righe(c.scrivi("croce.col", k.contenuto)), k.righe) << k.contenuto;
  EXPECT_THROW(conta_righe(c.file("manca.col")), errore_runtime);
}

}  // namespace
}  // namespace schedine
