// The controls of Form_sched_enalotto in their design state, and the rules
// attached to their events. Positions and sizes are in twips inside the
// container. The form stands 8895 wide at design: the Superstar panel
// Frame4, to the right of that, comes into view when the two-panel slip
// widens the form.

#include "forms/enalotto_wforlife/Form_sched_enalotto.h"

namespace schedine {

void Form_sched_enalotto::crea_controlli() {
  larghezza = 8895;
  altezza = 4350;
  crea_titolo(8535);
  auto& frame3 = crea_cornice("Frame3", 120, 600, 8535, 3000);
  crea_bordo(frame3, "Shape1");
  crea_scelta_scheda(frame3);
  crea_prezzo(frame3);
  crea_costo(240, 1845, &frame3);
  crea_intervallo(240, 2445, &frame3);
  crea_comandi(frame3);
  crea_superstar_dormiente(frame3);
  crea_editor_prezzo();
  crea_avanzamento(4185, 495);
  crea_superstar();
}

void Form_sched_enalotto::crea_scelta_scheda(controllo& frame3) {
  crea_opzione("Option1", -1, "Scheda a 5 Pannelli", 240, 300, 2175, 255, &frame3).imposta_valore(true);
  crea_opzione("Option2", -1, "Scheda a 2 Pannelli", 240, 600, 2175, 255, &frame3);
  c<pulsante_opzione>("Option1").al_click = [this] { option1_click(); };
  c<pulsante_opzione>("Option2").al_click = [this] { option2_click(); };

  crea("Label1", 0, "Numero di Pannelli per Schedina", 240, 1005, 2535, 255, &frame3);
  crea_combo1(2820, 960, &frame3);

  crea("Label3", -1, "  ABBONAMENTI PER NUMERO CONCORSI", 5280, 300, 3015, 255, &frame3);
  auto& combo3 = aggiungi<casella_elenco>("Combo3", -1, &frame3);
  colloca(combo3, 5280, 600, 1335, 315);
  for (const char* voce : {"", "2", "3", "4", "5", "6", "9", "12", "15"}) combo3.aggiungi(voce);
  combo3.al_click = [this] { combo3_click(); };
}

void Form_sched_enalotto::crea_prezzo(controllo& frame3) {
  crea("Label1", 1, "Costo singola colonna", 240, 1425, 2535, 255, &frame3);
  crea("Text1", -1, "", 2820, 1425, 1215, 255, &frame3);
  crea<pulsante>("Command1", -1, "Modifica", 4140, 1365, 1095, 375, &frame3).al_click = [this] { command1_click(); };
}

void Form_sched_enalotto::crea_editor_prezzo() {
  // Shown over the main panel by "Modifica", at the place it stands at design.
  auto& frame1 = crea_cornice("Frame1", 4275, 765, 4215, 1215);
  frame1.visibile = false;
  auto& combo2 = aggiungi<casella_elenco>("Combo2", -1, &frame1);
  colloca(combo2, 120, 240, 1935, 315);
  crea<pulsante>("Command2", -1, "Salva", 2160, 195, 975, 375, &frame1).al_click = [this] { command2_click(); };
  crea<pulsante>("Command3", -1, "Annulla", 3180, 195, 975, 375, &frame1).al_click = [this] { command3_click(); };
  crea<pulsante>("Command4", -1, "Default", 2160, 660, 975, 375, &frame1).al_click = [this] { command4_click(); };
}

void Form_sched_enalotto::crea_comandi(controllo& frame3) {
  crea<pulsante>("cmdstampa", 1, "Stampa", 4800, 2280, 1095, 495, &frame3).al_click = [this] { cmdstampa_click(); };
  crea<pulsante>("cmdannulla", 3, "Annulla", 5940, 2280, 1095, 495, &frame3).al_click = [this] {
    cmdannulla_click();
  };
  crea<pulsante>("cmdexit", 3, "Esci", 7080, 2280, 1095, 495, &frame3).al_click = [this] { cmdexit_click(); };
}

void Form_sched_enalotto::crea_superstar_dormiente(controllo& frame3) {
  // A Superstar switch that nothing shows or sets: Superstar is chosen on the grid.
  auto& bordo = aggiungi<forma>("Shape6", -1, &frame3);
  colloca(bordo, 5220, 1020, 2295, 375);
  bordo.visibile = false;
  auto& check1 = crea<casella_controllo>("Check1", -1, "", 5280, 1080, 255, 255, &frame3);
  check1.visibile = false;
  check1.al_click = [this] { check1_click(); };
  crea("Label1", 2, "Gioca SUPERSTAR", 5580, 1080, 1815, 255, &frame3).visibile = false;
}

void Form_sched_enalotto::crea_superstar() {
  auto& frame4 = crea_cornice("Frame4", 8880, 600, 4215, 3000);
  auto& grid = aggiungi<griglia>("MSHFlexGrid1", -1, &frame4);
  colloca(grid, 120, 240, 3975, 2235);
  grid.al_rilascio_mouse = [this] { rilascio_griglia(); };
  grid.suggerimento = suggerimento_griglia;
  auto& check2 = crea<casella_controllo>("Check2", -1, "", 120, 2610, 255, 255, &frame4);
  check2.al_click = [this] { check2_click(); };
  check2.suggerimento = suggerimento_check2;
  crea("Label5", -1, "N.Casuale", 420, 2610, 1095, 255, &frame4);
}

}  // namespace schedine
