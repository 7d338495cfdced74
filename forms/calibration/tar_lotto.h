#pragma once
// tar_lotto: the calibration form of the Lotto slip. Four arrows shift every
// box of the Lotto set by 0.4375 mm and nudge nine marks over a detail of the
// slip; a strip of its own moves the national wheel alone; the interline
// arrows stretch the grid. "Salva" writes tarlo2, "Default" restores factory
// values, "Annulla" goes back to the file, "Stampa" prints a test sheet and
// then reloads the file, so moves that were not saved are gone from the
// tables while counters and preview still show them.

#include <array>

#include "forms/calibration/modulo_taratura.h"

namespace schedine {

class tar_lotto : public modulo_taratura {
 public:
  tar_lotto(stato& s, insieme_moduli& moduli) : modulo_taratura("tar_lotto", s, moduli, 1) {}

  // Moves of the whole Lotto set by one step.
  void sposta_destra();
  void sposta_sinistra();
  void sposta_sopra();
  void sposta_sotto();
  // Back to the file: tables reloaded, marks and main counters at their start.
  void ripristina();

  // The preview's start: Left and Top of each mark, taken at load.
  std::array<posizione, 9> pos_quadrato{};
  std::array<posizione, 9> pos_punto{};

  // Shapenaz's design place inside Frame3, in twips; "Salva" and "Default" put it back there.
  static constexpr float sinistra_nazionale = 240;
  static constexpr float alto_nazionale = 270;

  // Closing the window leaves as "Esci" does, so the main form comes back
  // and the program never runs on with no window shown.
  void chiudi_utente() override { cmdesci_click(); }

 protected:
  void crea_controlli() override;
  void al_caricamento() override;
  void allo_scaricamento() override;

 private:
  void crea_anteprima();
  void crea_frecce();
  void crea_nazionale();
  void crea_comandi();

  void cmddirezione_click(int indice);
  void cmddirezione_naz_click(int indice);
  void cmdInterlinea_click(int indice);
  void cmdstampa_click();
  void Command1_click(int indice);
  void cmdesci_click();
  void Option1_click();
  void Option2_click();

  // Every mark of the grid back where the load found it.
  void rimetti_segni();
  // Shapenaz back at its design place, its counters at "0".
  void rimetti_nazionale();
};

}  // namespace schedine
