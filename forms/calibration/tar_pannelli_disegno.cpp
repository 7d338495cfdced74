// The design of the panel calibration forms: every control at its design
// place, in twips, but for the marks inside Picture1, which are in Picture1's
// own units (twips on tar_enalotto, pixels of the slip picture on the others).

#include <algorithm>
#include <cmath>

#include "forms/calibration/tar_pannelli.h"

namespace schedine {

namespace {

constexpr float twip_per_pixel = 15;

// The design grid of the marks: fifteen columns of six, i = 6 · column + row,
// from Left 98 to 5609 and Top 95 to 1501 twips. tar_enalotto keeps it; the
// other forms lay their marks out anew at load.
posizione posto_di_progetto(int i) {
  const int colonna = i / 6;
  const int riga = i % 6;
  return {std::round(98.0f + (5609.0f - 98.0f) * static_cast<float>(colonna) / 14.0f),
          std::round(95.0f + (1501.0f - 95.0f) * static_cast<float>(riga) / 5.0f)};
}

// The height of Frame1: its heading and one row for each panel box.
float altezza_riquadro_pannelli(int caselle) { return 720 + 330 * static_cast<float>(caselle); }

constexpr std::array<verso, 4> versi_direzione{verso::giu, verso::destra, verso::su, verso::sinistra};
constexpr std::array<verso, 4> versi_interlinea{verso::sinistra, verso::destra, verso::su, verso::giu};

}  // namespace

void tar_pannelli::crea_controlli() {
  caption = titolo_taratura;
  metti<etichetta>("SkinLabel1", -1, nullptr, 120, 60, 6000, 300).caption = v.intestazione;
  if (v.logo) metti<immagine>("Image3", -1, nullptr, 6240, 0, 900, 420);
  crea_anteprima();
  const float sotto_la_figura = 420 + static_cast<float>(v.altezza_figura) * twip_per_pixel + 120;
  crea_frecce(sotto_la_figura);
  crea_pannelli(sotto_la_figura);
  // The settings and the buttons stand below the arrows and below the panel
  // boxes, whichever reaches lower, so no button covers a box.
  const float sotto = sotto_la_figura + std::max(2370.0f, altezza_riquadro_pannelli(v.caselle) + 90);
  metti_impostazioni(120, sotto, v.consiglio);
  crea_comandi(sotto);
}

void tar_pannelli::crea_anteprima() {
  const float larghezza = static_cast<float>(v.larghezza_figura) * twip_per_pixel;
  const float altezza = static_cast<float>(v.altezza_figura) * twip_per_pixel;
  auto& picture1 = metti<immagine>("Picture1", -1, nullptr, 120, 420, larghezza, altezza);
  // Inside Picture1, positions are in its own units.
  const float scala = v.twip_per_unita;
  metti<immagine>("Image2", -1, &picture1, 0, 0, larghezza / scala, altezza / scala);
  const float icona = 32 * twip_per_pixel / scala;
  metti<immagine>("Image1", -1, &picture1, (larghezza / scala) - icona, 0, icona, icona);
  for (int i = 0; i < v.segni; ++i) {
    const posizione posto = posto_di_progetto(i);
    metti<forma>("Shape7", i, &picture1, posto.sinistra / scala, posto.alto / scala, v.larghezza_segno,
                 v.altezza_segno)
        .tipo = 3;
  }
}

void tar_pannelli::crea_frecce(float alto) {
  auto& picture2 = metti<immagine>("Picture2", -1, nullptr, 120, alto, 4455, 2250);
  metti_frecce("cmddirezione", &picture2, 240, 240, 375, versi_direzione, [this](int i) { cmddirezione_click(i); });
  metti_contatore("lblx", -1, &picture2, 615, 1560);
  metti_contatore("lbly", -1, &picture2, 615, 1860);
  if (v.interlinea == nullptr) return;
  metti<etichetta>("Label8", -1, &picture2, 2280, 60, 1935, 255).caption = "Interlinea X-Y";
  metti_frecce("cmdInterlinea", &picture2, 2520, 360, 375, versi_interlinea,
               [this](int i) { cmdInterlinea_click(i); });
  metti_contatore("lblInterX", -1, &picture2, 2895, 1560);
  metti_contatore("lblInterY", -1, &picture2, 2895, 1860);
}

void tar_pannelli::crea_pannelli(float alto) {
  const float altezza = altezza_riquadro_pannelli(v.caselle);
  auto& frame1 = metti<cornice>("Frame1", -1, nullptr, 4695, alto, 3735, altezza);
  frame1.caption = "Taratura";
  metti<forma>("Shape1", -1, &frame1, 15, 15, 3720, altezza - 15);
  metti<etichetta>("Label4", -1, &frame1, 120, 240, 2200, 255).caption = "Applica modifiche a . . . ";
  metti<etichetta>("Label3", 0, &frame1, 2400, 240, 615, 255).caption = " X ";
  metti<etichetta>("Label3", 1, &frame1, 3000, 240, 615, 255).caption = " Y ";
  for (int j = 0; j < v.caselle; ++j) {
    const float riga = 600 + 330 * static_cast<float>(j);
    auto& casella = metti<casella_controllo>("Checkpannelli", j, &frame1, 120, riga, 2200, 255);
    casella.caption = caselle_pannelli[j];
    // Beside each panel's box, the counters of that panel.
    if (j >= 1 && j - 1 < v.contatori) {
      metti_contatore("lblxp", j - 1, &frame1, 2400, riga);
      metti_contatore("lblyp", j - 1, &frame1, 3000, riga);
    }
  }
  // Checked at design, so a freshly opened form moves all panels.
  c<casella_controllo>("Checkpannelli", 0).imposta_valore(1);
  for (int j = 0; j < v.caselle; ++j) {
    c<casella_controllo>("Checkpannelli", j).al_click = [this, j] { Checkpannelli_click(j); };
  }
}

void tar_pannelli::crea_comandi(float alto) {
  // The order of these three differs from tar_lotto's.
  const char* const azioni[] = {"Default", "Salva", "Annulla"};
  for (int i = 0; i < 3; ++i) {
    auto& comando = metti<pulsante>("Command1", i, nullptr, 4695, alto + 540 * static_cast<float>(i), 1335, 420);
    comando.caption = azioni[i];
    comando.al_click = [this, i] { Command1_click(i); };
  }
  auto& stampa = metti<pulsante>("cmdstampa", -1, nullptr, 6150, alto, 1335, 420);
  stampa.caption = "Stampa Prova";
  stampa.al_click = [this] { cmdstampa_click(); };
  auto& esci = metti<pulsante>("cmdesci", -1, nullptr, 6150, alto + 1080, 1335, 420);
  esci.caption = "Esci";
  esci.al_click = [this] { cmdesci_click(); };
  c<pulsante_opzione>("Option1").al_click = [this] { Option1_click(); };
  c<pulsante_opzione>("Option2").al_click = [this] { Option2_click(); };
}

}  // namespace schedine
