// The four panel-slip calibration files: one shape, rows of tab_coord group
// by group, the row running fastest, then a blank line and carattere_stampa.

#include <optional>

#include "calibration/campi_tar.h"
#include "calibration/file_tar.h"
#include "calibration/formato_tar.h"
#include "core/errore_runtime.h"

namespace schedine {

namespace {

void salva_pannelli(const stato& s, const formato_pannelli& formato) {
  scrittore_record file(percorso_tar(s, formato.nome));
  for (int gruppo = 1; gruppo <= formato.gruppi; ++gruppo) {
    for (int riga = 1; riga <= formato.righe; ++riga) {
      file.stampa_riga(testo_riga(s.tab_coord(gruppo, riga, asse_x), s.tab_coord(gruppo, riga, asse_y)));
    }
  }
  file.stampa_riga("");
  file.stampa_riga(testo_carattere(s.carattere_stampa));
  file.chiudi();
}

void leggi_pannelli(lettore_record& lettore, stato& s, const formato_pannelli& formato, bool tollerante) {
  lettura_tar lettura(lettore, tollerante);
  for (int gruppo = 1; gruppo <= formato.gruppi; ++gruppo) {
    for (int riga = 1; riga <= formato.righe; ++riga) {
      lettura.leggi_riga(s.tab_coord(gruppo, riga, asse_x), s.tab_coord(gruppo, riga, asse_y));
    }
  }
  lettura.salta();
  lettura.leggi(s.carattere_stampa);
}

void carica_pannelli(stato& s, const formato_pannelli& formato) {
  lettore_record lettore(percorso_tar(s, formato.nome));
  leggi_pannelli(lettore, s, formato, false);
}

}  // namespace

void salva_tar_enalotto(const stato& s) { salva_pannelli(s, formato_taren); }
void carica_tar_enalotto(stato& s) { carica_pannelli(s, formato_taren); }

void salva_tar_enalotto2(const stato& s) { salva_pannelli(s, formato_taren2); }
void carica_tar_enalotto2(stato& s) { carica_pannelli(s, formato_taren2); }

void salva_tar_wforlife(const stato& s) { salva_pannelli(s, formato_tarwfl); }
void carica_tar_wforlife(stato& s) { carica_pannelli(s, formato_tarwfl); }

void salva_tar_wforlife5(const stato& s) { salva_pannelli(s, formato_tarwfl2); }

// The 5-panel Win for Life load passes over what it can't read, like the
// Lotto one: a missing or short file leaves the table as it was.
void carica_tar_wforlife5(stato& s) {
  std::optional<lettore_record> lettore;
  if (!passa_oltre([&] { lettore.emplace(percorso_tar(s, formato_tarwfl2.nome)); })) return;
  leggi_pannelli(*lettore, s, formato_tarwfl2, true);
}

}  // namespace schedine
