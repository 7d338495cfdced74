#pragma once
// How an interline click moves the preview: each mark by a fixed amount per
// click, in proportion to its column (X) or row (Y) in the picture's grid, as
// the boxes of the slip stretch in proportion to theirs.

namespace schedine {

struct anteprima_interlinea {
  // Preview units moved per click by a mark of weight 1.
  float base;
  // The weight of mark i on each axis; 0 leaves the mark where it is.
  int (*peso_x)(int segno);
  int (*peso_y)(int segno);
};

// Shapepunto(0..8) of tar_lotto: three rows of three, i = 3 · row + column.
extern const anteprima_interlinea anteprima_interlinea_lotto;
// Shape7(0..19) of tar_wforlife: four rows of five, i = 5 · row + column; the hidden marks stay.
extern const anteprima_interlinea anteprima_interlinea_wforlife;
// Shape7(0..99) of tar_wforlife5: five panels of ten rows of two, i = 20 · panel + 2 · row + column.
extern const anteprima_interlinea anteprima_interlinea_wforlife5;

}  // namespace schedine
