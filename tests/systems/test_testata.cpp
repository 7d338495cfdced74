#include <gtest/gtest.h>

#include <functional>

#include "core/errore_runtime.h"
#include "core/stato.h"
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

class ContaSistema : public ::testing::Test {
 protected:
  std::optional<int32_t> conta(const char* tipo_gioco, const char* tipo_sistema, const char* sistema_scelto,
                               modulo_scheda modulo) {
    s.cartella_programma = cartella.str();
    s.tipo_gioco = tipo_gioco;
    s.tipo_sistema = tipo_sistema;
    s.sistema_scelto = sistema_scelto;
    return conta_colonne_sistema(s, modulo);
  }
  test::cartella_temporanea cartella;
  stato s;
};

TEST_F(ContaSistema, HeadOfTheChosenSystemInItsFolder) {
  cartella.scrivi("terno/pippocub.txt", "3,17\r\n");
  cartella.scrivi("terno/pipponub.txt", "\"x\",\"y\",44\r\n");
  cartella.scrivi("terno/pippoRIDB.TXT", "9,5,0\r\n1,2,3\r\n");
  cartella.scrivi("superenalotto/pipporifae.txt", "6\r\n");
  cartella.scrivi("superenalotto/pipporide.txt", "1,11,0\r\n");
  cartella.scrivi("10elotto/pipporifa10.txt", "4,8\r\n");
  cartella.scrivi("cruciverba/croce.sel", "25,1,1,\"a\",1,1,1,3\r\n");
  cartella.scrivi("cruciverba/croce.sen", "99\r\n");
  cartella.scrivi("cruciverba/croce.col", "1,2,3,4,5,6\r\n7,8,9,10,11,12\r\n13,14,15,16,17,18\r\n");

  const auto lotto = modulo_scheda::lotto;
  const auto pannelli = modulo_scheda::pannelli;
  struct caso {
    const char* tipo_gioco;
    const char* tipo_sistema;
    const char* sistema_scelto;
    modulo_scheda modulo;
    std::optional<int32_t> atteso;
  } casi[] = {
      {"terno", "casuale", " pippocub.txt", lotto, 17},
      {"terno", "condizionato", " pipponub.txt ", lotto, 44},
      {"terno", "ridotto", " pipporidb.txt", lotto, 5},  // names resolve without regard to case
      {"superenalotto", "ridotto", " pipporifae.txt", pannelli, 6},
      {"superenalotto", "ridotto", " pipporide.txt", pannelli, 11},
      // The Lotto form reads every ridotto head as two Longs, the two-file form included.
      {"10elotto", "ridotto", " pipporifa10.txt", lotto, 8},
      {"10elotto", "ridotto", " pipporifa10.txt", pannelli, 4},
      // A Lotto crossword is counted by the rule of whatever kind stands in tipo_sistema.
      {"terno_c", "autoridotto", "croce.sel", lotto, 25},
      // A SuperEnalotto crossword: the lines of its columns, not the head's number.
      {"cruciverba", "cruciverba", " croce.col", pannelli, 3},
      {"cruciverba", "cruciverba", " croce.col", lotto, std::nullopt},
      {"terno", "", " pippocub.txt", lotto, std::nullopt},
      {"lotto", "casuale", " pippocub.txt", lotto, std::nullopt},
  };
  for (const auto& k : casi) {
    EXPECT_EQ(conta(k.tipo_gioco, k.tipo_sistema, k.sistema_scelto, k.modulo), k.atteso)
        << k.tipo_gioco << " " << k.tipo_sistema << " " << k.sistema_scelto;
  }
}

TEST_F(ContaSistema, FailuresReachTheCaller) {
  cartella.scrivi("ambo/cortocua.txt", "5\r\n");
  cartella.scrivi("cruciverba/solohead.sen", "7\r\n");
  cartella.scrivi("cruciverba/solocol.col", "1,2,3,4,5,6\r\n");
  EXPECT_EQ(numero_errore([&] { conta("ambo", "casuale", " cortocua.txt", modulo_scheda::lotto); }),
            codice::input_oltre_fine);
  EXPECT_EQ(numero_errore([&] { conta("ambo", "casuale", " mancacua.txt", modulo_scheda::lotto); }),
            codice::file_non_trovato);
  // A crossword without its column file fails; one without its head is still counted.
  EXPECT_EQ(numero_errore([&] { conta("cruciverba", "cruciverba", " solohead.col", modulo_scheda::pannelli); }),
            codice::file_non_trovato);
  EXPECT_EQ(conta("cruciverba", "cruciverba", " solocol.col", modulo_scheda::pannelli), 1);
}

}  // namespace
}  // namespace schedine
