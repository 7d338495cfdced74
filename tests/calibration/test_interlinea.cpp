#include <gtest/gtest.h>

#include <functional>

#include "calibration/interlinea.h"
#include "core/stato.h"

namespace schedine {
namespace {

// With every value starting at 0, dx = 1 and dy = 0.5, a box moves to
// (a, b / 2): its weights show directly and exactly.
constexpr float dx = 1.0f;
constexpr float dy = 0.5f;

struct peso_atteso {
  const char* nome;
  std::function<float&(stato&, int asse)> cella;
  int a;
  int b;
};

template <auto membro>
std::function<float&(stato&, int)> riga(int r) {
  return [r](stato& s, int asse) -> float& { return (s.*membro)(r, asse); };
}

TEST(InterlineaLotto, EachBoxMovesByItsWeights) {
  stato s;
  s.interlinea_x = dx;
  s.interlinea_y = dy;
  ricalcola_interlinea_lotto(s);
  const std::vector<peso_atteso> casi{
      {"numero 1", riga<&stato::tar_numeri>(1), 1, 0},
      {"numero 90", riga<&stato::tar_numeri>(90), 10, 8},
      {"numero 0", riga<&stato::tar_numeri>(0), 0, 0},
      {"numero 10e", riga<&stato::tar_numeri_10e>(90), 0, 0},
      {"sistemi 0", riga<&stato::tar_sistemi>(0), 8, 20},
      {"sistemi 8", riga<&stato::tar_sistemi>(8), 16, 20},
      {"gio_mult 9", riga<&stato::tar_gio_mult>(9), 17, 22},
      {"totale 0", riga<&stato::tar_totale>(0), 0, 12},
      {"totale 20", riga<&stato::tar_totale>(20), 20, 12},
      {"estratto 0", riga<&stato::tar_estratto>(0), 0, 13},
      {"estratto 1 jumps to 2", riga<&stato::tar_estratto>(1), 2, 13},
      {"estratto 20", riga<&stato::tar_estratto>(20), 21, 13},
      {"ambo 1", riga<&stato::tar_ambo>(1), 2, 14},
      {"terno 0", riga<&stato::tar_terno>(0), 0, 15},
      {"quaterna 4", riga<&stato::tar_quaterna>(4), 5, 16},
      {"cinquina 5", riga<&stato::tar_cinquina>(5), 6, 17},
      {"ambetto 3", riga<&stato::tar_ambetto>(3), 4, 20},
      {"det_importo 0", riga<&stato::tar_det_importo>(0), 0, 19},
      {"det_importo 2", riga<&stato::tar_det_importo>(2), 3, 19},
      {"det_posizione 20", riga<&stato::tar_det_posizione>(20), 45, 18},
      {"tipo_estrazione 2", riga<&stato::tar_tipo_estrazione>(2), 13, 22},
      {"importo_10elotto 20", riga<&stato::tar_importo_10elotto>(20), 28, 24},
      {"ruote 0", riga<&stato::tar_ruote>(0), 13, 0},
      {"ruote 10", riga<&stato::tar_ruote>(10), 13, 10},
  };
  for (const auto& caso : casi) {
    EXPECT_EQ(caso.cella(s, 0), static_cast<float>(caso.a)) << caso.nome;
    EXPECT_EQ(caso.cella(s, 1), static_cast<float>(caso.b) * dy) << caso.nome;
  }
  EXPECT_EQ(s.tar_nazionale(0), 13.0f);
  EXPECT_EQ(s.tar_nazionale(1), 5.5f);
}

TEST(InterlineaLotto, ASecondCallAddsTheCorrectionAgain) {
  stato s;
  s.tar_numeri(12, 0) = 10.0f;
  s.interlinea_x = 0.02f;
  ricalcola_interlinea_lotto(s);
  ricalcola_interlinea_lotto(s);
  // Number 12 is column 1: weight 2, twice.
  EXPECT_EQ(s.tar_numeri(12, 0), (10.0f + 2.0f * 0.02f) + 2.0f * 0.02f);
}

TEST(InterlineaLotto, AnOverflowingBoxKeepsItsValueAndTheRestMoves) {
  stato s;
  s.tar_numeri(90, 0) = 3e38f;
  s.interlinea_x = 1e38f;
  ricalcola_interlinea_lotto(s);
  EXPECT_EQ(s.tar_numeri(90, 0), 3e38f);
  EXPECT_EQ(s.tar_numeri(4, 0), 0.0f);  // 4 · 1e38 is beyond a Single
  EXPECT_EQ(s.tar_numeri(1, 0), 1e38f);
  EXPECT_EQ(s.tar_numeri(2, 0), 2e38f);
}

// tab_coord starts at 1000 everywhere, so rows the rule leaves alone show as (1000, 1000).
struct peso_coord {
  int gruppo;
  int riga;
  int a;
  int b;
  bool ferma = false;
};

void verifica_pesi(void (*ricalcola)(stato&), const std::vector<peso_coord>& casi) {
  stato s;
  for (int g = 0; g < tabella_coord::gruppi; ++g) {
    for (int r = 0; r < tabella_coord::righe; ++r) s.tab_coord(g, r, 0) = s.tab_coord(g, r, 1) = 1000.0f;
  }
  s.interlinea_x = dx;
  s.interlinea_y = dy;
  ricalcola(s);
  for (const auto& caso : casi) {
    const float x = caso.ferma ? 1000.0f : 1000.0f + static_cast<float>(caso.a) * dx;
    const float y = caso.ferma ? 1000.0f : 1000.0f + static_cast<float>(caso.b) * dy;
    EXPECT_EQ(s.tab_coord(caso.gruppo, caso.riga, 0), x) << caso.gruppo << "," << caso.riga;
    EXPECT_EQ(s.tab_coord(caso.gruppo, caso.riga, 1), y) << caso.gruppo << "," << caso.riga;
  }
}

TEST(InterlineaWinForLife, EachBoxMovesByItsWeights) {
  verifica_pesi(ricalcola_interlinea_wforlife, {
                                                   {1, 1, 0, 0},
                                                   {1, 7, 1, 1},
                                                   {1, 15, 4, 2},
                                                   {1, 16, 0, 5},
                                                   {1, 20, 8, 5},
                                                   {1, 21, 0, 0, true},
                                                   {2, 1, 0, 0, true},
                                                   {2, 2, 0, 1},
                                                   {3, 1, 0, 0},
                                                   {3, 5, 4, 0},
                                                   {3, 6, 0, 0, true},
                                                   {4, 1, 0, 1},
                                                   {4, 2, 2, 1},
                                                   {4, 3, 4, 1},
                                                   {5, 1, 0, 0, true},
                                               });
}

TEST(InterlineaWinForLifeCinque, EachBoxMovesByItsWeights) {
  verifica_pesi(ricalcola_interlinea_wforlife5, {
                                                    {1, 1, 0, 0},
                                                    {1, 2, 1, 0},
                                                    {1, 20, 1, 9},
                                                    {1, 21, 0, 0, true},
                                                    {3, 3, 4, 1},
                                                    {5, 20, 9, 9},
                                                    {6, 1, 1, 0},
                                                    {6, 2, 0, 0, true},
                                                    {7, 1, 0, 0, true},
                                                    {7, 2, 1, 1},
                                                    {8, 1, -1, 1},
                                                    {8, 13, -1, 13},
                                                    {8, 14, 0, 1},
                                                    {8, 27, 1, 1},
                                                    {8, 91, 5, 13},
                                                    {8, 92, 0, 0, true},
                                                    {8, 105, 0, 0, true},
                                                });
}

}  // namespace
}  // namespace schedine
