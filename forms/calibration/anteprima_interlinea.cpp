#include "forms/calibration/anteprima_interlinea.h"

namespace schedine {

namespace {

int colonna_lotto(int i) { return i % 3; }
int riga_lotto(int i) { return i / 3; }

int colonna_wforlife(int i) { return i < 20 ? i % 5 : 0; }
int riga_wforlife(int i) { return i < 20 ? i / 5 : 0; }

// The column across the five panels: two per panel.
int colonna_wforlife5(int i) { return 2 * (i / 20) + i % 2; }
int riga_wforlife5(int i) { return (i % 20) / 2; }

}  // namespace

const anteprima_interlinea anteprima_interlinea_lotto{2.375f, colonna_lotto, riga_lotto};
const anteprima_interlinea anteprima_interlinea_wforlife{1.375f, colonna_wforlife, riga_wforlife};
const anteprima_interlinea anteprima_interlinea_wforlife5{0.375f, colonna_wforlife5, riga_wforlife5};

}  // namespace schedine
