#include <gtest/gtest.h>

#include <functional>

#include "calibration/fabbrica.h"
#include "core/file_sistema.h"
#include "core/stato.h"
#include "tests/support/cartella_temporanea.h"

namespace schedine {
namespace {

class Fabbrica : public ::testing::Test {
 protected:
  Fabbrica() { s.cartella_programma = cartella.str(); }
  test::cartella_temporanea cartella;
  stato s;
};

// A value of the tables that the slip's own measures name.
struct valore_noto {
  const char* nome;
  std::function<float(const stato&)> valore;
  float atteso;
};

void verifica(const stato& s, const std::vector<valore_noto>& casi) {
  for (const auto& caso : casi) EXPECT_NEAR(caso.valore(s), caso.atteso, 1e-4) << caso.nome;
}

std::function<float(const stato&)> coord(int g, int r, int a) {
  return [=](const stato& s) { return s.tab_coord(g, r, a); };
}

TEST_F(Fabbrica, LottoBoxesSitWhereTheSlipHasThem) {
  default_tar_lotto(s);
  verifica(s, {
      {"numero 1 X", [](const stato& s) { return s.tar_numeri(1, 0); }, 5.72f},
      {"numero 1 Y", [](const stato& s) { return s.tar_numeri(1, 1); }, 24.6f},
      {"numero 90 X", [](const stato& s) { return s.tar_numeri(90, 0); }, 68.9f},
      {"numero 90 Y", [](const stato& s) { return s.tar_numeri(90, 1); }, 79.64f},
      {"ruota 0 X", [](const stato& s) { return s.tar_ruote(0, 0); }, 89.33f},
      {"ruota 10 Y", [](const stato& s) { return s.tar_ruote(10, 1); }, 75.9f},
      {"nazionale X", [](const stato& s) { return s.tar_nazionale(0); }, 89.33f},
      {"nazionale Y", [](const stato& s) { return s.tar_nazionale(1); }, 81.38f},
      {"sistemi 5 X", [](const stato& s) { return s.tar_sistemi(5, 0); }, 89.4f},
      {"sistemi 5 Y", [](const stato& s) { return s.tar_sistemi(5, 1); }, 155.9625f},
      {"gio_mult 0 Y", [](const stato& s) { return s.tar_gio_mult(0, 1); }, 165.9625f},
      {"estratto 20 X", [](const stato& s) { return s.tar_estratto(20, 0); }, 134.91f},
      {"estratto Y", [](const stato& s) { return s.tar_estratto(3, 1); }, 98.61f},
      {"ambo Y", [](const stato& s) { return s.tar_ambo(3, 1); }, 105.288f},
      {"cinquina Y", [](const stato& s) { return s.tar_cinquina(3, 1); }, 125.322f},
      {"det_importo Y from 98.91", [](const stato& s) { return s.tar_det_importo(0, 1); }, 132.3f},
      {"ambetto Y", [](const stato& s) { return s.tar_ambetto(20, 1); }, 145.356f},
      {"det_posizione 4 X", [](const stato& s) { return s.tar_det_posizione(4, 0); }, 88.91f},
      {"det_posizione Y", [](const stato& s) { return s.tar_det_posizione(4, 1); }, 138.21f},
      {"tipo_estrazione 2 X", [](const stato& s) { return s.tar_tipo_estrazione(2, 0); }, 89.2f},
      {"tipo_estrazione Y", [](const stato& s) { return s.tar_tipo_estrazione(2, 1); }, 176.4325f},
      {"importo_10elotto 5 X", [](const stato& s) { return s.tar_importo_10elotto(5, 0); }, 89.15f},
      {"importo_10elotto Y", [](const stato& s) { return s.tar_importo_10elotto(5, 1); }, 182.1425f},
  });
  EXPECT_EQ(s.carattere_stampa, 1);
  EXPECT_EQ(s.riserva_tarlo, 3);
  EXPECT_TRUE(esiste_file(cartella.file("tarlo2")));
}

// The number columns are a running total, not a product: compare bit for bit.
TEST_F(Fabbrica, LottoValuesAreTheSingleArithmeticBitForBit) {
  default_tar_lotto(s);
  for (int r = 0; r < 9; ++r) {
    float x = -1.3f;
    for (int c = 0; c < 10; ++c) {
      x += 7.02f;
      const int n = 10 * r + c + 1;
      EXPECT_EQ(s.tar_numeri(n, 0), x) << n;
      EXPECT_EQ(s.tar_numeri(n, 1), 24.6f + 6.88f * static_cast<float>(r)) << n;
    }
  }
  for (int i = 0; i <= 10; ++i) EXPECT_EQ(s.tar_ruote(i, 1), 23.3f + 5.26f * static_cast<float>(i));
  EXPECT_EQ(s.tar_nazionale(1), 23.3f + 5.28f * 11.0f);
  for (int i = 0; i <= 20; ++i) {
    EXPECT_EQ(s.tar_ambetto(i, 0), 19.91f + 5.75f * static_cast<float>(i));
    EXPECT_EQ(s.tar_quaterna(i, 1), 98.61f + 6.678f * 3.0f);
  }
}

TEST_F(Fabbrica, LottoLeavesRowsWithoutBoxesAndClearsInterline) {
  s.interlinea_x = 0.5f;
  s.interlinea_y = -0.5f;
  s.tar_numeri(0, 0) = 7.5f;
  s.tar_numeri_10e(45, 1) = 7.5f;
  s.tar_totale(20, 0) = 7.5f;
  s.tar_sistemi(6, 0) = 7.5f;
  s.tar_gio_mult(9, 1) = 7.5f;
  s.tar_det_posizione(5, 0) = 7.5f;
  s.tar_importo_10elotto(6, 1) = 7.5f;
  s.riserva_tarlo = 0;
  default_tar_lotto(s);
  EXPECT_EQ(s.interlinea_x, 0.0f);
  EXPECT_EQ(s.interlinea_y, 0.0f);
  for (float v : {s.tar_numeri(0, 0), s.tar_numeri_10e(45, 1), s.tar_totale(20, 0), s.tar_sistemi(6, 0),
                  s.tar_gio_mult(9, 1), s.tar_det_posizione(5, 0), s.tar_importo_10elotto(6, 1)}) {
    EXPECT_EQ(v, 7.5f);
  }
  EXPECT_EQ(s.tar_numeri(0, 1), 0.0f);
}

TEST_F(Fabbrica, LottoPassesOverAFailedSave) {
  s.cartella_programma = cartella.file("manca");
  EXPECT_NO_THROW(default_tar_lotto(s));
  EXPECT_NEAR(s.tar_numeri(90, 0), 68.9f, 1e-4);
}

TEST_F(Fabbrica, EnalottoClearsTheWholeTableFirst) {
  s.tab_coord(8, 105, 0) = 7.5f;
  s.tab_coord(1, 91, 1) = 7.5f;
  default_tar_enalotto(s);
  EXPECT_EQ(s.tab_coord(8, 105, 0), 0.0f);
  EXPECT_EQ(s.tab_coord(1, 91, 1), 0.0f);
  EXPECT_EQ(s.tab_coord(1, 0, 0), 0.0f);
  verifica(s, {{"g1 n1 X", coord(1, 1, 0), 8.94f},
               {"g1 n1 Y", coord(1, 1, 1), 29.11f},
               {"g2 top", coord(2, 1, 1), 53.68f},
               {"g3 top", coord(3, 15, 1), 78.25f},
               {"g4 top", coord(4, 1, 1), 102.82f},
               {"g5 top", coord(5, 1, 1), 127.39f},
               {"g5 n90 X", coord(5, 90, 0), 78.8f},
               {"g5 n90 Y", coord(5, 90, 1), 144.94f}});
  for (int g = 1; g <= 5; ++g) {
    for (int n = 1; n <= 90; ++n) {
      const int r = (n - 1) / 15;
      const int c = (n - 1) % 15;
      EXPECT_EQ(s.tab_coord(g, n, 0), 8.94f + 4.99f * static_cast<float>(c));
      EXPECT_EQ(s.tab_coord(g, n, 1), 29.11f + 3.51f * static_cast<float>(7 * (g - 1) + r));
    }
  }
  EXPECT_EQ(s.carattere_stampa, 1);
  EXPECT_TRUE(esiste_file(cartella.file("taren")));
}

TEST_F(Fabbrica, EnalottoTwoPanelsReadsDownColumnsRightToLeft) {
  s.tab_coord(5, 1, 0) = 7.5f;
  default_tar_enalotto2(s);
  EXPECT_EQ(s.tab_coord(5, 1, 0), 7.5f);
  verifica(s, {{"p1 n1 X", coord(1, 1, 0), 64.2f},
               {"p1 n1 Y", coord(1, 1, 1), 22.875f},
               {"p1 n90 X", coord(1, 90, 0), 39.2f},
               {"p1 n90 Y", coord(1, 90, 1), 85.875f},
               {"p2 n16 X", coord(2, 16, 0), 24.2f},
               {"p2 n16 Y", coord(2, 16, 1), 22.875f},
               {"superstar 1 X", coord(3, 1, 0), 54.2f},
               {"superstar 90 X", coord(3, 90, 0), 14.2f},
               {"superstar 90 Y", coord(3, 90, 1), 135.375f},
               {"abbonamento 2", coord(4, 2, 1), 103.875f},
               {"abbonamento 9 X", coord(4, 9, 0), 4.2f},
               {"abbonamento 9 Y", coord(4, 9, 1), 126.375f},
               {"abbonamento 15", coord(4, 15, 1), 135.375f}});
  EXPECT_EQ(s.tab_coord(4, 7, 0), 0.0f);
  EXPECT_TRUE(esiste_file(cartella.file("taren2")));
}

TEST_F(Fabbrica, WinForLifeKeepsTheRowsOfAnotherSlip) {
  s.tab_coord(1, 21, 0) = 7.5f;
  s.tab_coord(2, 3, 1) = 7.5f;
  default_tar_wforlife(s);
  EXPECT_EQ(s.tab_coord(1, 21, 0), 7.5f);
  EXPECT_EQ(s.tab_coord(2, 3, 1), 7.5f);
  verifica(s, {{"n1 X", coord(1, 1, 0), 12.09f},
               {"n1 Y", coord(1, 1, 1), 45.18f},
               {"n20 X", coord(1, 20, 0), 72.45f},
               {"n20 Y", coord(1, 20, 1), 85.41f},
               {"option 1", coord(2, 1, 1), 103.777f},
               {"option 2", coord(2, 2, 1), 108.477f},
               {"abb 5 X", coord(3, 5, 0), 77.484f},
               {"abb 5 Y", coord(3, 5, 1), 134.89f},
               {"abb 3 of 4 X", coord(4, 3, 0), 77.484f},
               {"abb 3 of 4 Y", coord(4, 3, 1), 139.89f}});
}

TEST_F(Fabbrica, WinForLifeFivePanelsAddsItsStepsOneByOne) {
  default_tar_wforlife5(s);
  verifica(s, {{"g1 r1 X", coord(1, 1, 0), 11.77f},
               {"g1 r2 X", coord(1, 2, 0), 16.62f},
               {"g1 r1 Y", coord(1, 1, 1), 47.31f},
               {"g5 r40 X", coord(5, 40, 0), 77.02f},
               {"g5 r40 Y", coord(5, 40, 1), 123.69f},
               {"g6 r1 X", coord(6, 1, 0), 16.49f},
               {"g6 r1 Y", coord(6, 1, 1), 91.41f},
               {"g7 r2 Y", coord(7, 2, 1), 95.41f},
               {"g8 r1 X", coord(8, 1, 0), 16.51f},
               {"g8 r105 X", coord(8, 105, 0), 76.63f},
               {"g8 r105 Y", coord(8, 105, 1), 171.59f}});
  float x = 16.62f;
  for (int g = 1; g <= 5; ++g, x += 15.1f) {
    float y = 47.31f;
    for (int r = 0; r < 20; ++r, y += 4.02f) {
      EXPECT_EQ(s.tab_coord(g, 2 * r + 2, 0), x);
      EXPECT_EQ(s.tab_coord(g, 2 * r + 2, 1), y);
    }
  }
  x = 16.51f;
  for (int c = 0; c < 7; ++c, x += 10.02f) {
    float y = 115.31f;
    for (int r = 0; r < 15; ++r, y += 4.02f) {
      EXPECT_EQ(s.tab_coord(8, 15 * c + r + 1, 0), x);
      EXPECT_EQ(s.tab_coord(8, 15 * c + r + 1, 1), y);
    }
  }
}

}  // namespace
}  // namespace schedine
