#include "calibration/formato_tar.h"

#include <array>

namespace schedine {

namespace {

// tar_det_posizione rows 5 to 20 and tar_importo_10elotto rows 6 to 20 are in
// no file: only the boxes of the slip are kept.
constexpr std::array segmenti{
    segmento_lotto{tabella_lotto_di<&stato::tar_numeri>, 2, 90, false},
    segmento_lotto{tabella_lotto_di<&stato::tar_numeri_10e>, 1, 90, false},
    segmento_lotto{tabella_lotto_di<&stato::tar_sistemi>, 0, 8, true},
    segmento_lotto{tabella_lotto_di<&stato::tar_gio_mult>, 0, 9, true},
    segmento_lotto{tabella_lotto_di<&stato::tar_totale>, 0, 20, true},
    segmento_lotto{tabella_lotto_di<&stato::tar_estratto>, 0, 20, true},
    segmento_lotto{tabella_lotto_di<&stato::tar_ambo>, 0, 20, true},
    segmento_lotto{tabella_lotto_di<&stato::tar_terno>, 0, 20, true},
    segmento_lotto{tabella_lotto_di<&stato::tar_quaterna>, 0, 20, true},
    segmento_lotto{tabella_lotto_di<&stato::tar_cinquina>, 0, 20, true},
    segmento_lotto{tabella_lotto_di<&stato::tar_ruote>, 0, 10, true},
    segmento_lotto{tabella_lotto_di<&stato::tar_ambetto>, 0, 20, true},
    segmento_lotto{tabella_lotto_di<&stato::tar_tipo_estrazione>, 0, 2, true},
    segmento_lotto{tabella_lotto_di<&stato::tar_importo_10elotto>, 0, 5, true},
    segmento_lotto{tabella_lotto_di<&stato::tar_det_importo>, 0, 20, true},
    segmento_lotto{tabella_lotto_di<&stato::tar_det_posizione>, 0, 4, true},
};

}  // namespace

std::span<const segmento_lotto> segmenti_tarlo2() { return segmenti; }

}  // namespace schedine
