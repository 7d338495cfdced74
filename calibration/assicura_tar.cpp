#include "calibration/assicura_tar.h"

#include "calibration/campi_tar.h"
#include "calibration/fabbrica.h"
#include "calibration/file_tar.h"
#include "calibration/formato_tar.h"
#include "core/file_sistema.h"

namespace schedine {

namespace {

void assicura(stato& s, const char* nome, void (*fabbrica)(stato&), void (*carica)(stato&)) {
  if (!esiste_file(percorso_tar(s, nome))) fabbrica(s);
  carica(s);
}

}  // namespace

void assicura_tar_lotto(stato& s) { assicura(s, nome_tarlo2, default_tar_lotto, carica_tar_lotto); }
void assicura_tar_enalotto(stato& s) { assicura(s, formato_taren.nome, default_tar_enalotto, carica_tar_enalotto); }
void assicura_tar_enalotto2(stato& s) { assicura(s, formato_taren2.nome, default_tar_enalotto2, carica_tar_enalotto2); }
void assicura_tar_wforlife(stato& s) { assicura(s, formato_tarwfl.nome, default_tar_wforlife, carica_tar_wforlife); }
void assicura_tar_wforlife5(stato& s) {
  assicura(s, formato_tarwfl2.nome, default_tar_wforlife5, carica_tar_wforlife5);
}

}  // namespace schedine
