#include "forms/calibration/varianti_pannelli.h"

#include "calibration/assicura_tar.h"
#include "calibration/fabbrica.h"
#include "calibration/file_tar.h"
#include "calibration/interlinea.h"
#include "forms/calibration/modulo_taratura.h"
#include "printing/prove_taratura.h"

namespace schedine {

const char* const caselle_pannelli[6] = {"Tutti i pannelli", "Primo Pannello",  "Secondo Pannello",
                                         "Terzo Pannello",   "Quarto Pannello", "Quinto Pannello"};

namespace {

// The layouts are written as the forms compute them: in double, kept as Single.
float singola(double valore) { return static_cast<float>(valore); }

// Six rows of fifteen, read along the rows.
void disponi_enalotto2(int i, float& sinistra, float& alto) {
  const int riga = i / 15;
  const int colonna = i % 15;
  sinistra = singola(2 + 14.9 * colonna);
  alto = singola(2 + 19.3 * riga);
}

// The twenty numbers of the panel, four rows of five.
void disponi_wforlife(int i, float& sinistra, float& alto) {
  const int riga = i / 5;
  const int colonna = i % 5;
  sinistra = singola(11 + 30.5 * colonna);
  alto = singola(2.5 + 48 * riga);
}

// Five panels of ten rows of two.
void disponi_wforlife5(int i, float& sinistra, float& alto) {
  const int pannello = i / 20;
  const int riga = (i % 20) / 2;
  const int colonna = i % 2;
  sinistra = singola(8.3 + 40 * pannello + 13.5 * colonna);
  alto = singola(33 + 17.7 * riga);
}

}  // namespace

const variante_pannelli variante_tar_enalotto{
    .nome = "tar_enalotto",
    .fabbrica = default_tar_enalotto,
    .salva = salva_tar_enalotto,
    .carica = carica_tar_enalotto,
    .assicura = assicura_tar_enalotto,
    .prova = prova_tar_enalotto,
    .segni = 90,
    .larghezza_segno = 240,
    .altezza_segno = 225,
    .disponi = nullptr,
    .disposti = 0,
    .caselle = 6,
    .caselle_scelgono = true,
    .contatori = 5,
    .gruppi = 5,
    .righe = 90,
    .frecce_ruotate = false,
    .interlinea = nullptr,
    .ricalcola_interlinea = nullptr,
    .annulla_azzera_interlinea = false,
    .larghezza_figura = 396,
    .altezza_figura = 120,
    .twip_per_unita = 1,
    .consiglio = consiglio_lotto,
    .intestazione = "Taratura schedina SuperEnalotto - 5 pannelli",
    .logo = false,
};

// "All panels" reaches four groups on a two-panel slip: the Superstar grid
// and the subscription boxes move with the two panels.
const variante_pannelli variante_tar_enalotto2{
    .nome = "tar_enalotto2",
    .fabbrica = default_tar_enalotto2,
    .salva = salva_tar_enalotto2,
    .carica = carica_tar_enalotto2,
    .assicura = assicura_tar_enalotto2,
    .prova = prova_tar_enalotto2,
    .segni = 90,
    .larghezza_segno = 12,
    .altezza_segno = 12,
    .disponi = disponi_enalotto2,
    .disposti = 90,
    .caselle = 3,
    .caselle_scelgono = true,
    .contatori = 2,
    .gruppi = 4,
    .righe = 90,
    .frecce_ruotate = true,
    .interlinea = nullptr,
    .ricalcola_interlinea = nullptr,
    .annulla_azzera_interlinea = false,
    .larghezza_figura = 450,
    .altezza_figura = 172,
    .twip_per_unita = 15,
    .consiglio = consiglio_lotto,
    .intestazione = "Taratura schedina SuperEnalotto Superstar - 2 pannelli",
    .logo = false,
};

const variante_pannelli variante_tar_wforlife{
    .nome = "tar_wforlife",
    .fabbrica = default_tar_wforlife,
    .salva = salva_tar_wforlife,
    .carica = carica_tar_wforlife,
    .assicura = assicura_tar_wforlife,
    .prova = prova_tar_wforlife,
    .segni = 90,
    .larghezza_segno = 16,
    .altezza_segno = 16,
    .disponi = disponi_wforlife,
    .disposti = 20,
    .caselle = 2,
    .caselle_scelgono = false,
    .contatori = 1,
    .gruppi = 4,
    .righe = 90,
    .frecce_ruotate = false,
    .interlinea = &anteprima_interlinea_wforlife,
    .ricalcola_interlinea = ricalcola_interlinea_wforlife,
    .annulla_azzera_interlinea = false,
    .larghezza_figura = 275,
    .altezza_figura = 193,
    .twip_per_unita = 15,
    .consiglio = consiglio_wforlife,
    .intestazione = "Taratura schedina Win for Life - 1 pannello",
    .logo = true,
};

const variante_pannelli variante_tar_wforlife5{
    .nome = "tar_wforlife5",
    .fabbrica = default_tar_wforlife5,
    .salva = salva_tar_wforlife5,
    .carica = carica_tar_wforlife5,
    .assicura = assicura_tar_wforlife5,
    .prova = prova_tar_wforlife5,
    .segni = 100,
    .larghezza_segno = 11,
    .altezza_segno = 11,
    .disponi = disponi_wforlife5,
    .disposti = 100,
    .caselle = 2,
    .caselle_scelgono = false,
    .contatori = 1,
    .gruppi = 8,
    .righe = 105,
    .frecce_ruotate = false,
    .interlinea = &anteprima_interlinea_wforlife5,
    .ricalcola_interlinea = ricalcola_interlinea_wforlife5,
    .annulla_azzera_interlinea = true,
    .larghezza_figura = 350,
    .altezza_figura = 230,
    .twip_per_unita = 15,
    .consiglio = consiglio_wforlife,
    .intestazione = "Taratura schedina Win for Life - 5 pannelli",
    .logo = true,
};

}  // namespace schedine
