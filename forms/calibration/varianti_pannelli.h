#pragma once
// What sets the four panel-slip calibration forms apart: their slip's
// routines, their marks and how they are laid out, their panel boxes and
// counters, how far "all panels" reaches, the arrows' turn and the interline.

#include "core/stato.h"
#include "forms/calibration/anteprima_interlinea.h"

namespace schedine {

struct variante_pannelli {
  const char* nome;

  // The slip's calibration routines.
  void (*fabbrica)(stato&);
  void (*salva)(const stato&);
  void (*carica)(stato&);
  void (*assicura)(stato&);
  void (*prova)(stato&);

  // The preview marks Shape7(0) to Shape7(segni - 1), and their size in Picture1's units.
  int segni;
  float larghezza_segno;
  float altezza_segno;
  // The layout made at load, in pixels of the slip picture: marks 0 to
  // disposti - 1 go where disponi puts them, the others are hidden. Without
  // it the marks keep their design places.
  void (*disponi)(int i, float& sinistra, float& alto);
  int disposti;

  // Checkpannelli(0) to Checkpannelli(caselle - 1), and whether they choose
  // which panels a move reaches (otherwise every group moves).
  int caselle;
  bool caselle_scelgono;
  // lblxp(j), lblyp(j) for j from 0 to contatori - 1.
  int contatori;
  // The groups 1 to gruppi and rows 1 to righe of tab_coord that a move of all panels reaches.
  int gruppi;
  int righe;
  // The slip runs through the printer crosswise to its picture: the arrows are turned a quarter.
  bool frecce_ruotate;

  // The interline arrows; nullptr on the slips that have none.
  const anteprima_interlinea* interlinea;
  void (*ricalcola_interlinea)(stato&);
  // "Annulla" also puts the interline counters back at "0".
  bool annulla_azzera_interlinea;

  // The slip picture in pixels, and the scale of Picture1: 1 when the marks
  // are placed in twips, 15 when in pixels of the picture.
  int larghezza_figura;
  int altezza_figura;
  float twip_per_unita;
  const char* consiglio;
  const char* intestazione;
  // The small Win for Life logo Image3.
  bool logo;
};

extern const variante_pannelli variante_tar_enalotto;
extern const variante_pannelli variante_tar_enalotto2;
extern const variante_pannelli variante_tar_wforlife;
extern const variante_pannelli variante_tar_wforlife5;

// Captions of Checkpannelli(0) to Checkpannelli(5).
extern const char* const caselle_pannelli[6];

}  // namespace schedine
