// The Lotto calibration file: the interline correction and tar_numeri row 1
// on the first line, then the table segments, then the tail.

#include <optional>
#include <string>

#include "calibration/campi_tar.h"
#include "calibration/file_tar.h"
#include "calibration/formato_tar.h"
#include "core/errore_runtime.h"
#include "core/numeri.h"

namespace schedine {

namespace {

// The byte written as the file's last line, whatever riserva_tarlo holds.
constexpr const char* riserva_scritta = "3";

void scrivi_segmento(scrittore_record& file, const stato& s, const segmento_lotto& segmento) {
  if (segmento.dopo_riga_vuota) file.stampa_riga("");
  const auto valore = segmento.tabella.valore;
  for (int riga = segmento.prima; riga <= segmento.ultima; ++riga) {
    file.stampa_riga(testo_riga(valore(s, riga, asse_x), valore(s, riga, asse_y)));
  }
}

void leggi_segmento(lettura_tar& lettura, stato& s, const segmento_lotto& segmento) {
  if (segmento.dopo_riga_vuota) lettura.salta();
  const auto cella = segmento.tabella.cella;
  for (int riga = segmento.prima; riga <= segmento.ultima; ++riga) {
    lettura.leggi_riga(cella(s, riga, asse_x), cella(s, riga, asse_y));
  }
}

}  // namespace

void salva_tar_lotto(const stato& s) {
  scrittore_record file(percorso_tar(s, nome_tarlo2));
  // The first line carries the interline correction ahead of tar_numeri row 1.
  const std::string numero_1 = testo_riga(s.tar_numeri(1, asse_x), s.tar_numeri(1, asse_y));
  file.stampa_riga(testo_riga(s.interlinea_x, s.interlinea_y) + numero_1);
  for (const auto& segmento : segmenti_tarlo2()) scrivi_segmento(file, s, segmento);
  // tar_nazionale has no comma behind its Y.
  file.stampa_riga(testo_single(s.tar_nazionale(0)) + "," + testo_single(s.tar_nazionale(1)));
  file.stampa_riga("");
  file.stampa_riga("");
  file.stampa_riga(testo_carattere(s.carattere_stampa));
  file.stampa_riga("");
  file.stampa_riga(riserva_scritta);
  file.chiudi();
}

// Loaded at start and by every Lotto form: a damaged or short file must not
// stop them, so each field that can't be read is passed over.
void carica_tar_lotto(stato& s) {
  std::optional<lettore_record> lettore;
  if (!passa_oltre([&] { lettore.emplace(percorso_tar(s, nome_tarlo2)); })) return;
  lettura_tar lettura(*lettore, true);

  lettura.leggi(s.interlinea_x);
  lettura.leggi(s.interlinea_y);
  lettura.leggi_riga(s.tar_numeri(1, asse_x), s.tar_numeri(1, asse_y));
  for (const auto& segmento : segmenti_tarlo2()) leggi_segmento(lettura, s, segmento);
  lettura.leggi(s.tar_nazionale(0));
  lettura.leggi(s.tar_nazionale(1));
  lettura.salta();
  lettura.salta();
  lettura.leggi(s.carattere_stampa);
  lettura.salta();
  lettura.leggi(s.riserva_tarlo);
}

}  // namespace schedine
