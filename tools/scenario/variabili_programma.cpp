// The table of the variables a scenario can check. A variable added to
// `stato` becomes checkable by adding its line here.

#include <map>

#include "tools/scenario/accesso_variabili.h"

namespace schedine::scenario {

namespace {

std::map<std::string, variabile> crea_tabella() {
  using accesso::di;
  return {
      // Shared variables of the run.
      {"tipo_gioco", di(&stato::tipo_gioco)},
      {"tipo_sistema", di(&stato::tipo_sistema)},
      {"sistema_scelto", di(&stato::sistema_scelto)},
      {"cartella_sistema", di(&stato::cartella_sistema)},
      {"dalla_scheda", di(&stato::dalla_scheda)},
      {"alla_scheda", di(&stato::alla_scheda)},
      {"colonne_sistema", di(&stato::colonne_sistema)},
      {"colonne_per_scheda", di(&stato::colonne_per_scheda)},
      {"carattere_stampa", di(&stato::carattere_stampa)},
      {"superstar_attiva", di(&stato::superstar_attiva)},
      {"numeri_superstar", di(&stato::numeri_superstar)},
      {"abbonamento_concorsi", di(&stato::abbonamento_concorsi)},
      {"interlinea_x", di(&stato::interlinea_x)},
      {"interlinea_y", di(&stato::interlinea_y)},

      // The Lotto calibration set.
      {"tar_numeri", di(&stato::tar_numeri)},
      {"tar_numeri_10e", di(&stato::tar_numeri_10e)},
      {"tar_sistemi", di(&stato::tar_sistemi)},
      {"tar_gio_mult", di(&stato::tar_gio_mult)},
      {"tar_totale", di(&stato::tar_totale)},
      {"tar_estratto", di(&stato::tar_estratto)},
      {"tar_ambo", di(&stato::tar_ambo)},
      {"tar_terno", di(&stato::tar_terno)},
      {"tar_quaterna", di(&stato::tar_quaterna)},
      {"tar_cinquina", di(&stato::tar_cinquina)},
      {"tar_ruote", di(&stato::tar_ruote)},
      {"tar_nazionale", di(&stato::tar_nazionale)},
      {"tar_ambetto", di(&stato::tar_ambetto)},
      {"tar_det_posizione", di(&stato::tar_det_posizione)},
      {"tar_det_importo", di(&stato::tar_det_importo)},
      {"tar_tipo_estrazione", di(&stato::tar_tipo_estrazione)},
      {"tar_importo_10elotto", di(&stato::tar_importo_10elotto)},
      {"riserva_tarlo", di(&stato::riserva_tarlo)},

      // The panel slips' table.
      {"tab_coord", di(&stato::tab_coord)},

      // Selection tables.
      {"sel_ruote", di(&stato::sel_ruote)},
      {"sel_sistemi", di(&stato::sel_sistemi)},
      {"sel_gio_mult", di(&stato::sel_gio_mult)},
      {"sel_totale", di(&stato::sel_totale)},
      {"sel_estratto", di(&stato::sel_estratto)},
      {"sel_ambo", di(&stato::sel_ambo)},
      {"sel_terno", di(&stato::sel_terno)},
      {"sel_quaterna", di(&stato::sel_quaterna)},
      {"sel_cinquina", di(&stato::sel_cinquina)},
      {"sel_estratto1", di(&stato::sel_estratto1)},
      {"sel_estratto2", di(&stato::sel_estratto2)},
      {"sel_estratto3", di(&stato::sel_estratto3)},
      {"sel_estratto4", di(&stato::sel_estratto4)},
      {"sel_estratto5", di(&stato::sel_estratto5)},
      {"sel_ambetto", di(&stato::sel_ambetto)},
      {"sel_det_posizione", di(&stato::sel_det_posizione)},
      {"sel_det_importo", di(&stato::sel_det_importo)},
      {"sel_tipo_estrazione", di(&stato::sel_tipo_estrazione)},
      {"sel_importo_10elotto", di(&stato::sel_importo_10elotto)},

      // What the Lotto slip forms keep for the 10eLotto play.
      {"estrazione_lotto", di(&stato::estrazione_lotto)},
      {"estrazione_immediata", di(&stato::estrazione_immediata)},
      {"importo_10elotto_flag", di(&stato::importo_10elotto_flag)},
      {"numeri_scelti", di(&stato::numeri_scelti)},
      {"numeri_scelti_n", di(&stato::numeri_scelti_n)},
      {"abbonamento_attivo", di(&stato::abbonamento_attivo)},
      {"abbonamento_tagli", di(&stato::abbonamento_tagli)},
      {"importi_10elotto", di(&stato::importi_10elotto)},
  };
}

}  // namespace

const variabile* cerca_variabile(const std::string& nome) {
  static const std::map<std::string, variabile> tabella = crea_tabella();
  auto trovata = tabella.find(nome);
  return trovata == tabella.end() ? nullptr : &trovata->second;
}

}  // namespace schedine::scenario
