#pragma once
// The five-panel SuperEnalotto slip has no calibration rows for its Superstar
// grid and its subscription boxes: both are panel 5 moved down by whole line
// pitches and a little more. The renderer and the test sheet share the rule.

#include "core/stato.h"

namespace schedine {

// Superstar numbers lie nine lines below panel 5, subscription codes twelve.
inline constexpr int righe_sotto_superstar = 9;
inline constexpr int righe_sotto_abbonamento = 12;

// How far below panel 5 a box lies, `righe` line pitches down, in double:
// the point is rounded to Single only when it reaches the device.
inline double discesa_pannello5(const stato& s, int righe) {
  double passo = static_cast<double>(s.tab_coord(5, 76, asse_y)) - s.tab_coord(5, 61, asse_y);
  return passo * righe + 0.399;
}

}  // namespace schedine
