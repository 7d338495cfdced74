// The rules of the panel calibration forms.

#include "forms/calibration/tar_pannelli.h"

#include <string>

#include "core/stato.h"
#include "forms/calibration/passi_taratura.h"
#include "forms/calibration/spostamenti.h"

namespace schedine {

// ---------------------------------------------------------------- load and unload

void tar_pannelli::al_caricamento() {
  // Factory values when the file is missing, then the file; the layout comes
  // before the start positions are taken, since it makes them.
  v.assicura(s);
  disponi_segni();
  pos_shape7.clear();
  for (int i = 0; i < v.segni; ++i) {
    const auto& segno = c<forma>("Shape7", i);
    pos_shape7.push_back({segno.sinistra, segno.alto});
  }
  mostra_carattere_caricato();
  s.riserva_tarlo = 3;
  adatta_bordo(c<cornice>("Frame1"), c<forma>("Shape1"));
  adatta_bordo(c<cornice>("Frame2"), c<forma>("Shape2"));
  // The interline counted on the forms that have one starts at zero.
  if (v.interlinea != nullptr) {
    s.interlinea_x = 0;
    s.interlinea_y = 0;
  }
}

void tar_pannelli::disponi_segni() {
  if (v.disponi == nullptr) return;
  for (int i = 0; i < v.segni; ++i) {
    auto& segno = c<forma>("Shape7", i);
    if (i < v.disposti) {
      v.disponi(i, segno.sinistra, segno.alto);
    } else {
      segno.visibile = false;
    }
  }
}

void tar_pannelli::allo_scaricamento() { torna_a_form1(); }

void tar_pannelli::cmdesci_click() { scarica(); }

// ---------------------------------------------------------------- panel boxes

void tar_pannelli::Checkpannelli_click(int indice) {
  auto& casella = c<casella_controllo>("Checkpannelli", indice);
  if (casella.valore() == 0) return;
  if (indice != 0) {
    c<casella_controllo>("Checkpannelli", 0).imposta_valore(0);
    return;
  }
  // "All panels" clears the single panels. The loop reaches box 5 on every
  // form; the boxes a form lacks are passed by, so the program goes on.
  for (int j = 1; j <= 5; ++j) {
    if (esiste("Checkpannelli", j)) c<casella_controllo>("Checkpannelli", j).imposta_valore(0);
  }
}

// ---------------------------------------------------------------- arrows

void tar_pannelli::cmddirezione_click(int indice) {
  using sposta = void (tar_pannelli::*)();
  // By arrow: bottom, right, top, left. The two-panel slip runs through the
  // printer crosswise to its picture, so there each arrow moves the tables a
  // quarter turn away from the way its preview goes.
  static constexpr sposta dritte[] = {&tar_pannelli::sposta_sotto_e, &tar_pannelli::sposta_destra_e,
                                      &tar_pannelli::sposta_sopra_e, &tar_pannelli::sposta_sinistra_e};
  static constexpr sposta ruotate[] = {&tar_pannelli::sposta_sinistra_e, &tar_pannelli::sposta_sotto_e,
                                       &tar_pannelli::sposta_destra_e, &tar_pannelli::sposta_sopra_e};
  if (indice < 0 || indice > 3) return;
  const sposta mossa = v.frecce_ruotate ? ruotate[indice] : dritte[indice];
  (this->*mossa)();
  // The preview moves by one unit whether or not a panel moved, the hidden marks too.
  const bool in_x = indice == 1 || indice == 3;
  const float passo = (indice == 0 || indice == 1) ? 1.0f : -1.0f;
  for (int i = 0; i < v.segni; ++i) {
    auto& segno = c<forma>("Shape7", i);
    (in_x ? segno.sinistra : segno.alto) += passo;
  }
}

void tar_pannelli::sposta_sinistra_e() { sposta_e(asse_x, -passo_pannelli_x, -1); }
void tar_pannelli::sposta_destra_e() { sposta_e(asse_x, passo_pannelli_x, +1); }
// The Y counters count up for a move up.
void tar_pannelli::sposta_sopra_e() { sposta_e(asse_y, -passo_pannelli_y, +1); }
void tar_pannelli::sposta_sotto_e() { sposta_e(asse_y, passo_pannelli_y, -1); }

void tar_pannelli::sposta_e(int asse, float passo, int segno) {
  const char* contatore_pannello = asse == asse_x ? "lblxp" : "lblyp";
  // On the Win for Life slips the boxes are not consulted: everything moves,
  // and only the first panel counter counts.
  if (!v.caselle_scelgono) {
    sposta_gruppi(s, 1, v.gruppi, v.righe, asse, passo);
    conta(c<etichetta>(contatore_pannello, 0), segno);
    return;
  }
  if (c<casella_controllo>("Checkpannelli", 0).valore() != 0) {
    sposta_gruppi(s, 1, v.gruppi, v.righe, asse, passo);
    conta(c<etichetta>(asse == asse_x ? "lblx" : "lbly"), segno);
    for (int j = 0; j < v.contatori; ++j) conta(c<etichetta>(contatore_pannello, j), segno);
    return;
  }
  for (int pannello = 1; pannello < v.caselle; ++pannello) {
    if (c<casella_controllo>("Checkpannelli", pannello).valore() == 0) continue;
    sposta_gruppi(s, pannello, pannello, v.righe, asse, passo);
    conta(c<etichetta>(contatore_pannello, pannello - 1), segno);
  }
}

void tar_pannelli::cmdInterlinea_click(int indice) {
  clic_interlinea(indice, *v.interlinea, v.segni, [this](int i) -> forma& { return c<forma>("Shape7", i); },
                  v.ricalcola_interlinea);
}

// ---------------------------------------------------------------- settings

void tar_pannelli::Option1_click() {
  for (int i = 0; i < v.segni; ++i) c<forma>("Shape7", i).tipo = 3;
  imposta_carattere(1);
}

void tar_pannelli::Option2_click() {
  for (int i = 0; i < v.segni; ++i) c<forma>("Shape7", i).tipo = 1;
  imposta_carattere(2);
}

// The moves stay in memory after the test sheet.
void tar_pannelli::cmdstampa_click() { v.prova(s); }

void tar_pannelli::Command1_click(int indice) {
  switch (indice) {
    case 0:  // "Default"
      v.fabbrica(s);
      rimetti();
      break;
    case 1:  // "Salva"
      v.salva(s);
      rimetti();
      break;
    case 2:  // "Annulla"
      ripristina();
      if (v.annulla_azzera_interlinea) {
        azzera(c<etichetta>("lblInterX"));
        azzera(c<etichetta>("lblInterY"));
      }
      break;
    default:
      break;
  }
}

void tar_pannelli::ripristina() {
  v.carica(s);
  rimetti();
}

void tar_pannelli::rimetti() {
  for (int i = 0; i < v.segni; ++i) {
    auto& segno = c<forma>("Shape7", i);
    segno.sinistra = pos_shape7[static_cast<size_t>(i)].sinistra;
    segno.alto = pos_shape7[static_cast<size_t>(i)].alto;
  }
  for (int j = 0; j < v.contatori; ++j) {
    azzera(c<etichetta>("lblxp", j));
    azzera(c<etichetta>("lblyp", j));
  }
  azzera(c<etichetta>("lblx"));
  azzera(c<etichetta>("lbly"));
}

}  // namespace schedine
