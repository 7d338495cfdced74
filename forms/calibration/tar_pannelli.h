#pragma once
// The calibration forms of the four panel slips: tar_enalotto, tar_enalotto2,
// tar_wforlife and tar_wforlife5, one model told apart by its variant. Four
// arrows shift the slip's groups of tab_coord by 0.3125 mm across and
// 0.1875 mm down and nudge the Shape7 marks over the slip's picture by one
// unit; on the SuperEnalotto slips the Checkpannelli boxes choose the panels
// that move. "Salva", "Default" and "Annulla" (at indices 1, 0, 2) write the
// file, restore factory values or go back to the file; the test print keeps
// the moves in memory. Leaving, by any way, shows the main form again.

#include <vector>

#include "forms/calibration/modulo_taratura.h"
#include "forms/calibration/varianti_pannelli.h"

namespace schedine {

class tar_pannelli : public modulo_taratura {
 public:
  tar_pannelli(const variante_pannelli& variante, stato& s, insieme_moduli& moduli)
      : modulo_taratura(variante.nome, s, moduli, variante.twip_per_unita), v(variante) {}

  const variante_pannelli& variante() const { return v; }

  // Moves of the panels by one step.
  void sposta_sinistra_e();
  void sposta_destra_e();
  void sposta_sopra_e();
  void sposta_sotto_e();
  // Back to the file: tables reloaded, marks and counters at their start.
  void ripristina();

  // The preview's start: Left and Top of each Shape7 mark, taken at load.
  std::vector<posizione> pos_shape7;

 protected:
  void crea_controlli() override;
  void al_caricamento() override;
  void allo_scaricamento() override;

 private:
  void crea_anteprima();
  void crea_frecce(float alto);
  void crea_pannelli(float alto);
  void crea_comandi(float alto);
  void disponi_segni();

  void Checkpannelli_click(int indice);
  void cmddirezione_click(int indice);
  void cmdesci_click();
  void cmdInterlinea_click(int indice);
  void cmdstampa_click();
  void Command1_click(int indice);
  void Option1_click();
  void Option2_click();

  // One step on one axis: the panels the boxes choose, or all of them.
  void sposta_e(int asse, float passo, int segno);
  // Marks back at pos_shape7 and every panel and main counter at "0".
  void rimetti();

  const variante_pannelli& v;
};

}  // namespace schedine
