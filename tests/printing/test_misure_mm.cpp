#include <gtest/gtest.h>

#include "printing/qt/misure_mm.h"

namespace schedine::misure_mm {
namespace {

void atteso(const rettangolo& r, double x, double y, double larghezza, double altezza) {
  EXPECT_NEAR(r.x, x, 1e-3);
  EXPECT_NEAR(r.y, y, 1e-3);
  EXPECT_NEAR(r.larghezza, larghezza, 1e-3);
  EXPECT_NEAR(r.altezza, altezza, 1e-3);
}

TEST(MisureMm, MillimetriInPuntiPerAsse) {
  const scala s = scala_per_dpi(1200, 600);
  const punto p = in_punti(s, 25.4f, 50.8f);
  EXPECT_NEAR(p.x, 1200.0, 1e-3);
  EXPECT_NEAR(p.y, 1200.0, 1e-3);
  EXPECT_NEAR(altezza_in_mm(s, 600.0), 25.4, 1e-9);
}

// 254 dpi is 10 dots to the mm. The square of a mark comes with its corners
// right to left; a negative X stays for the device to clip.
TEST(MisureMm, CerchioERettangoli) {
  const scala s = scala_per_dpi(254, 254);
  atteso(rettangolo_cerchio(s, 5.5f, 24.5f, 1.0f), 45, 235, 20, 20);
  atteso(rettangolo_angoli(s, 30.5f, 40.5f, 28.5f, 42.5f), 285, 405, 20, 20);
  atteso(rettangolo_angoli(s, 28.5f, 42.5f, 30.5f, 40.5f), 285, 405, 20, 20);
  atteso(rettangolo_angoli(s, 1.0f, 0.0f, -1.0f, 2.0f), -10, 0, 20, 20);
}

TEST(MisureMm, ColoreConIlRossoNelByteBasso) {
  EXPECT_EQ(colore_da_intero(0), (colore_rgb{0, 0, 0}));
  EXPECT_EQ(colore_da_intero(0x0000FF), (colore_rgb{255, 0, 0}));
  EXPECT_EQ(colore_da_intero(0x00FF8000), (colore_rgb{0, 128, 255}));
}

}  // namespace
}  // namespace schedine::misure_mm
