// The design of tar_lotto: every control at its design place, in twips.

#include "forms/calibration/tar_lotto.h"

namespace schedine {

namespace {

// The nine marks stand in three rows of three, i = 3 · row + column.
constexpr float colonne_segni[] = {165, 930, 1680};
constexpr float righe_segni[] = {195, 960, 1695};
// Mark 3 stands a little to the left of its column.
constexpr float sinistra_segno_3 = 150;
constexpr float larghezza_segno = 375;
constexpr float altezza_segno = 285;

// Arrow crosses: cmddirezione points the way the marks go; the interline and
// national-wheel arrows narrow to the left and upward.
constexpr std::array<verso, 4> versi_direzione{verso::giu, verso::destra, verso::su, verso::sinistra};
constexpr std::array<verso, 4> versi_assi{verso::sinistra, verso::destra, verso::su, verso::giu};

}  // namespace

void tar_lotto::crea_controlli() {
  caption = titolo_taratura;
  crea_anteprima();
  crea_frecce();
  crea_nazionale();
  metti_impostazioni(2535, 2490, consiglio_lotto);
  metti<etichetta>("Label1", 1, &c<cornice>("Frame2"), 120, 120, 4215, 255).caption = "Impostazioni di stampa";
  crea_comandi();
}

void tar_lotto::crea_anteprima() {
  auto& picture1 = metti<immagine>("Picture1", -1, nullptr, 120, 120, 2295, 2250);
  // The detail of a slip, 153 by 150 pixels.
  metti<immagine>("Image1", -1, &picture1, 0, 0, 2295, 2250);
  for (int i = 0; i < 9; ++i) {
    float sinistra = i == 3 ? sinistra_segno_3 : colonne_segni[i % 3];
    float alto = righe_segni[i / 3];
    auto& quadrato = metti<forma>("Shapequadrato", i, &picture1, sinistra, alto, larghezza_segno, altezza_segno);
    quadrato.tipo = 1;
    quadrato.visibile = false;
    metti<forma>("Shapepunto", i, &picture1, sinistra, alto, larghezza_segno, altezza_segno).tipo = 3;
  }
}

void tar_lotto::crea_frecce() {
  auto& picture2 = metti<immagine>("Picture2", -1, nullptr, 2535, 120, 4455, 2250);
  metti_frecce("cmddirezione", &picture2, 240, 240, 375, versi_direzione, [this](int i) { cmddirezione_click(i); });
  metti<etichetta>("Label3", 0, &picture2, 240, 1560, 375, 255).caption = " X ";
  metti_contatore("lblx", -1, &picture2, 615, 1560);
  metti<etichetta>("Label3", 1, &picture2, 240, 1860, 375, 255).caption = " Y ";
  metti_contatore("lbly", -1, &picture2, 615, 1860);

  metti<etichetta>("Label8", -1, &picture2, 2280, 60, 1935, 255).caption = "Interlinea X-Y";
  metti_frecce("cmdInterlinea", &picture2, 2520, 360, 375, versi_assi, [this](int i) { cmdInterlinea_click(i); });
  metti<etichetta>("Label3", 2, &picture2, 2520, 1560, 375, 255).caption = " X ";
  metti_contatore("lblInterX", -1, &picture2, 2895, 1560);
  metti<etichetta>("Label3", 3, &picture2, 2520, 1860, 375, 255).caption = " Y ";
  metti_contatore("lblInterY", -1, &picture2, 2895, 1860);
}

void tar_lotto::crea_nazionale() {
  auto& frame1 = metti<cornice>("Frame1", -1, nullptr, 120, 2490, 2295, 2130);
  metti<forma>("Shape1", -1, &frame1, 15, 15, 2280, 2115);
  metti<etichetta>("Label4", -1, &frame1, 120, 120, 2055, 255).caption = "Ruota Nazionale";
  // The small picture of the national wheel's box; its units are twips.
  auto& frame3 = metti<cornice>("Frame3", -1, &frame1, 120, 435, 1005, 855);
  metti<forma>("Shape3", -1, &frame3, 0, 10, 990, 840);
  metti<forma>("Shapenaz", -1, &frame3, sinistra_nazionale, alto_nazionale, larghezza_segno, altezza_segno).tipo = 3;
  metti_frecce("cmddirezione_naz", &frame1, 1230, 435, 285, versi_assi, [this](int i) { cmddirezione_naz_click(i); });
  metti<etichetta>("Label3", 4, &frame1, 120, 1440, 375, 255).caption = " X ";
  metti_contatore("lblx_naz", -1, &frame1, 495, 1440);
  metti<etichetta>("Label3", 5, &frame1, 120, 1740, 375, 255).caption = " Y ";
  metti_contatore("lbly_naz", -1, &frame1, 495, 1740);
}

void tar_lotto::crea_comandi() {
  const char* const azioni[] = {"Salva", "Default", "Annulla"};
  for (int i = 0; i < 3; ++i) {
    auto& comando = metti<pulsante>("Command1", i, nullptr, 7110, 240 + 540 * static_cast<float>(i), 1335, 420);
    comando.caption = azioni[i];
    comando.al_click = [this, i] { Command1_click(i); };
  }
  auto& stampa = metti<pulsante>("cmdstampa", -1, nullptr, 7110, 2610, 1335, 420);
  stampa.caption = "Stampa";
  stampa.al_click = [this] { cmdstampa_click(); };
  auto& esci = metti<pulsante>("cmdesci", -1, nullptr, 7110, 4200, 1335, 420);
  esci.caption = "Esci";
  esci.al_click = [this] { cmdesci_click(); };
  c<pulsante_opzione>("Option1").al_click = [this] { Option1_click(); };
  c<pulsante_opzione>("Option2").al_click = [this] { Option2_click(); };
}

}  // namespace schedine
