// The rules of tar_lotto.

#include "forms/calibration/tar_lotto.h"

#include "calibration/assicura_tar.h"
#include "calibration/fabbrica.h"
#include "calibration/file_tar.h"
#include "calibration/interlinea.h"
#include "core/piattaforma.h"
#include "core/stato.h"
#include "forms/calibration/passi_taratura.h"
#include "forms/calibration/spostamenti.h"
#include "printing/prove_taratura.h"

namespace schedine {

namespace {

// Preview units per click: 10 units per mm of the tables.
constexpr float passo_anteprima = 4.375f;
// Shapenaz is moved in a loop of nine passes per click, so it travels nine
// preview steps while tar_nazionale moves by one table step.
constexpr int passate_nazionale = 9;

}  // namespace

// ---------------------------------------------------------------- load and unload

void tar_lotto::al_caricamento() {
  for (int i = 0; i < 9; ++i) {
    const auto& quadrato = c<forma>("Shapequadrato", i);
    const auto& punto = c<forma>("Shapepunto", i);
    pos_quadrato[static_cast<size_t>(i)] = {quadrato.sinistra, quadrato.alto};
    pos_punto[static_cast<size_t>(i)] = {punto.sinistra, punto.alto};
  }
  // Factory values when tarlo2 is missing, then the file.
  assicura_tar_lotto(s);
  mostra_carattere_caricato();
  s.riserva_tarlo = 3;
  adatta_bordo(c<cornice>("Frame1"), c<forma>("Shape1"));
  adatta_bordo(c<cornice>("Frame2"), c<forma>("Shape2"));
  adatta_bordo(c<cornice>("Frame3"), c<forma>("Shape3"), 0, 10);
  // The interline counted on this form starts at zero, whatever the file held.
  s.interlinea_x = 0;
  s.interlinea_y = 0;
}

// The original also dropped its reference to the form here; the main form
// comes back only through cmdesci.
void tar_lotto::allo_scaricamento() {}

void tar_lotto::cmdesci_click() {
  scarica();
  s.piattaforma->esegui_eventi_in_attesa();
  torna_a_form1();
}

// ---------------------------------------------------------------- arrows

void tar_lotto::cmddirezione_click(int indice) {
  // Counter, preview, tables, then the national wheel with the same move.
  struct freccia {
    const char* contatore;
    int segno;
    bool in_x;
    float anteprima;
    void (tar_lotto::*sposta)();
    int nazionale;
  };
  static constexpr freccia frecce[] = {
      {"lbly", -1, false, passo_anteprima, &tar_lotto::sposta_sotto, 3},
      {"lblx", +1, true, passo_anteprima, &tar_lotto::sposta_destra, 1},
      {"lbly", +1, false, -passo_anteprima, &tar_lotto::sposta_sopra, 2},
      {"lblx", -1, true, -passo_anteprima, &tar_lotto::sposta_sinistra, 0},
  };
  if (indice < 0 || indice > 3) return;
  const freccia& f = frecce[indice];
  conta(c<etichetta>(f.contatore), f.segno);
  // Only the round marks move: with the square mark chosen the preview stands still.
  for (int i = 0; i < 9; ++i) {
    auto& punto = c<forma>("Shapepunto", i);
    (f.in_x ? punto.sinistra : punto.alto) += f.anteprima;
  }
  (this->*f.sposta)();
  cmddirezione_naz_click(f.nazionale);
}

// The national wheel's Y counter counts down for a move up: the opposite sign of lbly.
void tar_lotto::cmddirezione_naz_click(int indice) {
  if (indice < 0 || indice > 3) return;
  const bool in_x = indice < 2;
  const int segno = (indice == 0 || indice == 2) ? -1 : 1;
  conta(c<etichetta>(in_x ? "lblx_naz" : "lbly_naz"), segno);
  auto& nazionale = c<forma>("Shapenaz");
  for (int passata = 0; passata < passate_nazionale; ++passata) {
    (in_x ? nazionale.sinistra : nazionale.alto) += passo_anteprima * static_cast<float>(segno);
  }
  aggiungi_passo(s.tar_nazionale(in_x ? 0 : 1), passo_lotto * static_cast<float>(segno));
}

void tar_lotto::cmdInterlinea_click(int indice) {
  clic_interlinea(indice, anteprima_interlinea_lotto, 9, [this](int i) -> forma& { return c<forma>("Shapepunto", i); },
                  ricalcola_interlinea_lotto);
}

void tar_lotto::sposta_destra() { sposta_lotto(s, asse_x, passo_lotto); }
void tar_lotto::sposta_sinistra() { sposta_lotto(s, asse_x, -passo_lotto); }
void tar_lotto::sposta_sopra() { sposta_lotto(s, asse_y, -passo_lotto); }
void tar_lotto::sposta_sotto() { sposta_lotto(s, asse_y, passo_lotto); }

// ---------------------------------------------------------------- settings

void tar_lotto::Option1_click() {
  for (int i = 0; i < 9; ++i) {
    c<forma>("Shapequadrato", i).visibile = false;
    c<forma>("Shapepunto", i).visibile = true;
  }
  c<forma>("Shapenaz").tipo = 3;
  imposta_carattere(1);
}

void tar_lotto::Option2_click() {
  for (int i = 0; i < 9; ++i) {
    c<forma>("Shapequadrato", i).visibile = true;
    c<forma>("Shapepunto", i).visibile = false;
  }
  c<forma>("Shapenaz").tipo = 1;
  imposta_carattere(2);
}

// The test sheet shows the tables as they are in memory; the reload after it
// drops the moves that were not saved.
void tar_lotto::cmdstampa_click() {
  prova_tar_lotto(s);
  carica_tar_lotto(s);
}

void tar_lotto::Command1_click(int indice) {
  switch (indice) {
    case 0:  // "Salva": the saved tables become the new zero of the preview.
      salva_tar_lotto(s);
      rimetti_segni();
      azzera(c<etichetta>("lblx"));
      azzera(c<etichetta>("lbly"));
      azzera(c<etichetta>("lblInterX"));
      azzera(c<etichetta>("lblInterY"));
      rimetti_nazionale();
      carica_tar_lotto(s);
      break;
    case 1:  // "Default": the factory routine saves and reloads by itself.
      default_tar_lotto(s);
      rimetti_segni();
      azzera(c<etichetta>("lblx"));
      azzera(c<etichetta>("lbly"));
      rimetti_nazionale();
      break;
    case 2:  // "Annulla"
      ripristina();
      break;
    default:
      break;
  }
}

// Shapenaz, its counters and the interline counters keep what they show,
// though the tables behind them are reloaded.
void tar_lotto::ripristina() {
  carica_tar_lotto(s);
  rimetti_segni();
  azzera(c<etichetta>("lblx"));
  azzera(c<etichetta>("lbly"));
}

void tar_lotto::rimetti_segni() {
  for (int i = 0; i < 9; ++i) {
    auto& quadrato = c<forma>("Shapequadrato", i);
    auto& punto = c<forma>("Shapepunto", i);
    quadrato.sinistra = pos_quadrato[static_cast<size_t>(i)].sinistra;
    quadrato.alto = pos_quadrato[static_cast<size_t>(i)].alto;
    punto.sinistra = pos_punto[static_cast<size_t>(i)].sinistra;
    punto.alto = pos_punto[static_cast<size_t>(i)].alto;
  }
}

void tar_lotto::rimetti_nazionale() {
  auto& nazionale = c<forma>("Shapenaz");
  nazionale.alto = alto_nazionale;
  nazionale.sinistra = sinistra_nazionale;
  azzera(c<etichetta>("lblx_naz"));
  azzera(c<etichetta>("lbly_naz"));
}

}  // namespace schedine
