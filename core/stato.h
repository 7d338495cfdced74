#pragma once
// The program-wide state: every variable and table that the forms, the print
// drivers, the renderers and the calibration share, and the program folder.
// One object lives for the whole run; routines reach it through an argument.

#include <cstdint>
#include <string>

#include "core/formato_locale.h"
#include "core/tabelle.h"

namespace schedine {

class servizi_piattaforma;
class insieme_moduli;

struct stato {
  // The folder that holds the program and all its data files.
  std::string cartella_programma;
  formato_locale locale = formato_locale::italiano();
  servizi_piattaforma* piattaforma = nullptr;
  // The forms of the program: the print code reads a few of their controls
  // at print time and moves the progress bar of the form that runs the print.
  insieme_moduli* moduli = nullptr;

  // Shared variables of the run.
  std::string tipo_gioco;
  std::string tipo_sistema;
  std::string sistema_scelto;
  std::string cartella_sistema;
  int32_t dalla_scheda = 0;
  int32_t alla_scheda = 0;
  int32_t colonne_sistema = 0;
  uint8_t colonne_per_scheda = 0;
  uint8_t carattere_stampa = 0;
  bool superstar_attiva = false;
  vettore<uint8_t, 13> numeri_superstar;  // entries 1 to 12 in use
  int16_t abbonamento_concorsi = 0;
  float interlinea_x = 0.0f;
  float interlinea_y = 0.0f;

  // The Lotto calibration set (millimetres).
  tabella_xy<91> tar_numeri;
  tabella_xy<91> tar_numeri_10e;
  tabella_xy<9> tar_sistemi;
  tabella_xy<10> tar_gio_mult;
  tabella_xy<21> tar_totale;
  tabella_xy<21> tar_estratto;
  tabella_xy<21> tar_ambo;
  tabella_xy<21> tar_terno;
  tabella_xy<21> tar_quaterna;
  tabella_xy<21> tar_cinquina;
  tabella_xy<11> tar_ruote;
  vettore<float, 2> tar_nazionale;  // (0) X, (1) Y
  tabella_xy<21> tar_ambetto;
  tabella_xy<21> tar_det_posizione;
  tabella_xy<21> tar_det_importo;
  tabella_xy<3> tar_tipo_estrazione;
  tabella_xy<21> tar_importo_10elotto;
  uint8_t riserva_tarlo = 0;

  // The one table of the panel slips, holding one slip's calibration at a time.
  tabella_coord tab_coord;

  // Selection tables: a box is printed when its byte holds exactly 100.
  vettore<uint8_t, 12> sel_ruote;
  vettore<uint8_t, 9> sel_sistemi;
  vettore<uint8_t, 10> sel_gio_mult;
  vettore<uint8_t, 21> sel_totale;
  vettore<uint8_t, 21> sel_estratto;
  vettore<uint8_t, 21> sel_ambo;
  vettore<uint8_t, 21> sel_terno;
  vettore<uint8_t, 21> sel_quaterna;
  vettore<uint8_t, 21> sel_cinquina;
  vettore<uint8_t, 18> sel_estratto1;
  vettore<uint8_t, 18> sel_estratto2;
  vettore<uint8_t, 18> sel_estratto3;
  vettore<uint8_t, 18> sel_estratto4;
  vettore<uint8_t, 18> sel_estratto5;
  vettore<uint8_t, 21> sel_ambetto;
  vettore<uint8_t, 6> sel_det_posizione;
  vettore<uint8_t, 21> sel_det_importo;
  vettore<uint8_t, 3> sel_tipo_estrazione;
  vettore<uint8_t, 7> sel_importo_10elotto;

  // What the Lotto slip forms keep program-wide for the 10eLotto play.
  bool estrazione_lotto = false;
  bool estrazione_immediata = false;
  vettore<bool, 8> importo_10elotto_flag;
  vettore<int16_t, 11> numeri_scelti;
  int16_t numeri_scelti_n = 0;
  bool abbonamento_attivo = false;
  vettore<bool, 13> abbonamento_tagli;
  vettore<int16_t, 6> importi_10elotto;
};

inline constexpr uint8_t selezionato = 100;

}  // namespace schedine
