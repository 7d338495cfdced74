#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <functional>
#include <vector>

#include "core/errore_runtime.h"
#include "systems/lettore_colonne.h"
#include "tests/support/cartella_temporanea.h"
#include "tests/support/numero_errore.h"

namespace schedine {
namespace {

using colonne = std::vector<std::vector<int>>;

// All columns of n numbers until the end of the file.
colonne leggi_tutte(const std::string& percorso, size_t n, bool con_testata = false) {
  lettore_colonne file(percorso);
  if (con_testata) file.salta_testata();
  colonne lette;
  std::array<uint8_t, 10> colonna{};
  while (!file.fine_file()) {
    file.leggi_colonna(std::span(colonna.data(), n));
    lette.emplace_back(colonna.begin(), colonna.begin() + static_cast<std::ptrdiff_t>(n));
  }
  return lette;
}

using test::numero_errore;

TEST(LettoreColonne, ColumnsAreGroupsOfFieldsWhateverTheLines) {
  struct caso {
    const char* nome;
    const char* contenuto;
    size_t n;
    bool con_testata;
    colonne attese;
  } casi[] = {
      {"one a line with CR LF", "1,2,3\r\n4,5,6\r\n", 3, false, {{1, 2, 3}, {4, 5, 6}}},
      {"last line without line end", "1,2,3\r\n4,5,6", 3, false, {{1, 2, 3}, {4, 5, 6}}},
      {"bare LF", "1,2\n3,4\n", 2, false, {{1, 2}, {3, 4}}},
      {"columns across lines", "1,2,3\r\n4,5,6\r\n", 2, false, {{1, 2}, {3, 4}, {5, 6}}},
      {"blanks around numbers", " 7 , 8\r\n", 2, false, {{7, 8}}},
      {"numbers 0 and 255 fit", "0,255\r\n", 2, false, {{0, 255}}},
      {"one-file ridotto head skipped", "\"x,y\",12,0\r\n1,2,3\r\n4,5,6\r\n", 3, true, {{1, 2, 3}, {4, 5, 6}}},
      {"head on the first line with a column", "5,2,1,10,20\r\n30,40\r\n", 2, true, {{10, 20}, {30, 40}}},
      {"empty file", "", 6, false, {}},
  };
  test::cartella_temporanea c;
  for (const auto& k : casi) {
    std::string percorso = c.scrivi("colonne.txt", k.contenuto);
    EXPECT_EQ(leggi_tutte(percorso, k.n, k.con_testata), k.attese) << k.nome;
  }
}

TEST(LettoreColonne, ShortLineSlidesLaterColumnsAndTheLastOneFails) {
  test::cartella_temporanea c;
  lettore_colonne file(c.scrivi("colonne.txt", "1,2,3\r\n4,5\r\n6,7,8\r\n9,10,11\r\n"));
  std::array<uint8_t, 3> colonna{};
  file.leggi_colonna(colonna);
  EXPECT_EQ(colonna, (std::array<uint8_t, 3>{1, 2, 3}));
  file.leggi_colonna(colonna);
  EXPECT_EQ(colonna, (std::array<uint8_t, 3>{4, 5, 6}));
  file.leggi_colonna(colonna);
  EXPECT_EQ(colonna, (std::array<uint8_t, 3>{7, 8, 9}));
  ASSERT_FALSE(file.fine_file());
  EXPECT_EQ(numero_errore([&] { file.leggi_colonna(colonna); }), codice::input_oltre_fine);
  // The numbers read before the failure are stored; the rest keep the previous column.
  EXPECT_EQ(colonna, (std::array<uint8_t, 3>{10, 11, 9}));
}

TEST(LettoreColonne, BadNumbersFailAtTheirRead) {
  struct caso {
    const char* contenuto;
    int errore;
  } casi[] = {
      {"1,256,3\r\n", codice::overflow},
      {"1,-1,3\r\n", codice::overflow},
      {"1,due,3\r\n", codice::tipo_non_corrispondente},
      {"1,\"x\",3\r\n", codice::tipo_non_corrispondente},
      {"1,2\r\n", codice::input_oltre_fine},
  };
  test::cartella_temporanea c;
  for (const auto& k : casi) {
    lettore_colonne file(c.scrivi("colonne.txt", k.contenuto));
    std::array<uint8_t, 3> colonna{};
    EXPECT_EQ(numero_errore([&] { file.leggi_colonna(colonna); }), k.errore) << k.contenuto;
    EXPECT_EQ(colonna[0], 1) << k.contenuto;
  }
  EXPECT_EQ(numero_errore([&] { lettore_colonne file(c.file("manca.txt")); }), codice::file_non_trovato);
}

TEST(LettoreColonne, BoundedTableTakesTheCountOfTheFile) {
  test::cartella_temporanea c;
  std::string percorso = c.scrivi("pipposyf.txt", "1,2,3,4,5,6,7\r\n8,9,10,11,12,13,14\r\n");
  int n = numeri_prima_riga(percorso);
  ASSERT_EQ(n, 7);

  lettore_colonne file(percorso);
  vettore<uint8_t, 10> colonna;
  file.leggi_colonna(colonna, n);
  EXPECT_EQ(colonna(6), 7);
  EXPECT_EQ(colonna(7), 0);
  file.leggi_colonna(colonna, n);
  EXPECT_EQ(colonna(0), 8);
  EXPECT_TRUE(file.fine_file());

  lettore_colonne troppi(percorso);
  vettore<uint8_t, 6> piccola;
  EXPECT_EQ(numero_errore([&] { troppi.leggi_colonna(piccola, 7); }), codice::indice_fuori_intervallo);

  EXPECT_EQ(numeri_prima_riga(c.scrivi("uno.txt", "42")), 1);
  EXPECT_EQ(numeri_prima_riga(c.scrivi("vuota.txt", "\r\n1,2\r\n")), 1);
  EXPECT_EQ(numero_errore([&] { numeri_prima_riga(c.scrivi("niente.txt", "")); }), codice::input_oltre_fine);
}

// A big system is streamed: 200,000 columns read end to end, every number checked.
TEST(LettoreColonne, BigFileReadToTheEnd) {
  constexpr int righe = 200000;
  constexpr size_t n = 6;
  test::cartella_temporanea c;
  std::string percorso = c.file("grandesye.txt");
  {
    std::FILE* f = std::fopen(percorso.c_str(), "wb");
    ASSERT_NE(f, nullptr);
    for (int r = 0; r < righe; ++r) {
      for (size_t j = 0; j < n; ++j) std::fprintf(f, j == 0 ? "%d" : ",%d", static_cast<int>((r + j * 7) % 91));
      std::fputs("\r\n", f);
    }
    std::fclose(f);
  }
  lettore_colonne file(percorso);
  std::array<uint8_t, n> colonna{};
  int lette = 0;
  int sbagliate = 0;
  while (!file.fine_file()) {
    file.leggi_colonna(colonna);
    for (size_t j = 0; j < n; ++j) sbagliate += colonna[j] != (lette + j * 7) % 91;
    ++lette;
  }
  EXPECT_EQ(lette, righe);
  EXPECT_EQ(sbagliate, 0);
}

}  // namespace
}  // namespace schedine
