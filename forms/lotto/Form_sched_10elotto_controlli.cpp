// The controls of Form_sched_10elotto in their design state, and the rules
// attached to their events. Positions and sizes are in twips inside the
// container; where the design fixes none (the boxes of the lower frames, the
// texts of Frame5 and Frame8, the picker) the controls are laid out evenly.

#include <array>

#include "forms/lotto/Form_sched_10elotto.h"

namespace schedine {

namespace {

constexpr int prima_colonna_nascosta = 19;  // columns 19 and 20 of the bet rows have no amount here

constexpr std::array<const char*, 5> righe_per_posizione = {"ChEstratto1", "ChEstratto2", "ChEstratto3", "ChEstratto4",
                                                            "ChEstratto5"};
constexpr std::array<float, 5> alto_per_posizione = {910, 1200, 1470, 1750, 2032};

constexpr std::array<const char*, 9> testi_sistemi = {"Ge", "Ca", "De", "Fi", "Ra", "Co", "Si", "Di", "Ve"};
constexpr std::array<const char*, 10> testi_multiple = {"2", "3", "4", "5", "6", "7", "8", "9", "10", "20"};
constexpr std::array<const char*, 7> testi_10elotto = {"10", "5", "4", "3", "2", "1", "0,50"};
constexpr std::array<const char*, 2> tipi_estrazione = {"Estrazione del Lotto", "Estrazione immediata"};

}  // namespace

void Form_sched_10elotto::crea_controlli() {
  inizia_disegno();
  larghezza_client = 12735;
  altezza_client = 8610;
  crea_titolo();
  auto& frame1 = crea_cornice("Frame1", 128, 540, 1425, 7185);
  crea_ruote(frame1);
  crea_abbonamento(frame1);
  crea_griglia_puntate();
  crea_estratti_per_posizione();
  crea_sistemi_e_multiple();
  crea_importo_e_comandi();
  crea_10elotto();
  crea_avanzamento();
  crea_forme_evidenza();
  collega_regole();
}

void Form_sched_10elotto::crea_abbonamento(controllo& frame1) {
  auto& testa = aggiungi<etichetta>("Label1", 58, &frame1);
  testa.caption = "              ABBONAMENTI";
  testa.alto = 4560;
  auto& concorsi = aggiungi<casella_elenco>("Combo2", -1, &frame1);
  for (const char* voce : {"", "2", "3", "4", "5", "6"}) concorsi.aggiungi(voce);
  concorsi.sinistra = 240;
  concorsi.alto = 4920;
  concorsi.larghezza = 900;
  // The subscription by amount: never shown.
  auto& importo = aggiungi<etichetta>("Label1", 59, &frame1);
  importo.caption = "IMPORTO";
  importo.alto = 5400;
  importo.visibile = false;
  auto& tagli = aggiungi<casella_elenco>("Combo1", -1, &frame1);
  tagli.sinistra = 240;
  tagli.alto = 5700;
  tagli.larghezza = 900;
  tagli.visibile = false;
  auto& check1 = crea_casella("Check1", -1, 240, 6120, 900, 255, &frame1);
  check1.caption = "Check1";
  check1.visibile = false;
}

void Form_sched_10elotto::crea_griglia_puntate() {
  auto& frame3 = crea_cornice("Frame3", 1628, 525, 7545, 2595);
  // The amount heads cover the upper columns of the TOTALE row until the form is first displayed.
  auto& frameeuro = crea_cornice("Frameeuro", 1065, 120, 6390, 705, &frame3);
  frameeuro.visibile = false;
  crea_testo("Importi espressi in Euro", 120, 0, &frameeuro);
  crea_teste_colonne(frameeuro, importi_colonne_10elotto);

  crea_riga_totale(frame3, 11);
  crea_testo("TOTALE", 60, 915, &frame3);
  // An element of the TOTALE array that stands hidden outside the frames.
  crea_casella("ChTotale", 0, 0, 0, 195, 240, nullptr).visibile = false;
  constexpr std::array<const char*, 5> testi_righe = {"ESTRATTO", "AMBO", "TERNO", "QUATERNA", "CINQUINA"};
  constexpr std::array<float, 5> alto_righe = {1185, 1455, 1725, 1995, 2265};
  for (size_t riga = 0; riga < righe_puntata.size(); ++riga) {
    crea_riga(righe_puntata[riga], alto_righe[riga], frame3, 20, prima_colonna_nascosta);
    crea_testo(testi_righe[riga], 60, alto_righe[riga], &frame3);
  }
}

void Form_sched_10elotto::crea_estratti_per_posizione() {
  auto& frame7 = crea_cornice("Frame7", 1628, 3480, 7545, 2355);
  auto& frameeuro2 = crea_cornice("FrameEuro2", 1065, 120, 6390, 705, &frame7);
  frameeuro2.visibile = false;
  crea_teste_colonne(frameeuro2, importi_colonne_10elotto, "Image3");
  for (size_t riga = 0; riga < righe_per_posizione.size(); ++riga) {
    crea_riga(righe_per_posizione[riga], alto_per_posizione[riga], frame7, 17, 18, "Check1");
    for (int colonna = 0; colonna <= 17; ++colonna) {
      auto& casella = c<casella_controllo>(righe_per_posizione[riga], colonna);
      casella.larghezza = 255;
      casella.altezza = 255;
    }
    crea_testo(std::to_string(riga + 1) + "° ESTRATTO", 60, alto_per_posizione[riga], &frame7);
  }
}

void Form_sched_10elotto::crea_sistemi_e_multiple() {
  auto& frame4 = crea_cornice("Frame4", 1635, 5925, 3180, 1785);
  crea_testo("SISTEMI", 120, 120, &frame4);
  for (int i = 0; i <= 8; ++i) {
    float sinistra = 120 + 330 * static_cast<float>(i);
    crea_testo(testi_sistemi[static_cast<size_t>(i)], sinistra, 360, &frame4);
    crea_casella("ChSistemi", i, sinistra, 600, 195, 240, &frame4);
  }
  crea_testo("GIOCATE MULTIPLE", 120, 960, &frame4);
  for (int i = 0; i <= 9; ++i) {
    float sinistra = 120 + 300 * static_cast<float>(i);
    crea_testo(testi_multiple[static_cast<size_t>(i)], sinistra, 1200, &frame4);
    crea_casella("ChGIO_MULT", i, sinistra, 1440, 195, 240, &frame4);
  }
}

void Form_sched_10elotto::crea_importo_e_comandi() {
  auto& frame5 = crea_cornice("Frame5", 4935, 5925, 4245, 2550);
  struct testo_fisso {
    const char* nome;
    int indice;
    const char* caption;
  };
  for (const auto& t : {testo_fisso{"Label1", 43, "Importo di Giocata"}, testo_fisso{"lblimporto", -1, ""},
                        testo_fisso{"Label1", 42, "Credito"}, testo_fisso{"lblcredito", -1, ""}}) {
    aggiungi<etichetta>(t.nome, t.indice, &frame5).caption = t.caption;
  }
  crea_intervallo(frame5);
  colloca({{"Label1", 43, 120, 240, 1800, 255}, {"lblimporto", -1, 2040, 240, 1800, 255},
           {"Label1", 42, 120, 600, 1800, 255}, {"lblcredito", -1, 2040, 600, 1800, 255},
           {"Label1", 44, 120, 1000, 1800, 255}, {"Label1", 45, 120, 1360, 480, 255},
           {"txtdalla", -1, 600, 1300, 900, 315}, {"Label1", 46, 1620, 1360, 360, 255},
           {"txtalla", -1, 2040, 1300, 900, 315}});
  crea_comandi(frame5, 1900, 1200, 1500, 2880);
}

void Form_sched_10elotto::crea_10elotto() {
  auto& frame9 = crea_cornice("Frame9", 9240, 60, 3465, 1335);
  auto& figura = aggiungi<immagine>("Image2", -1, &frame9);
  figura.larghezza = 120 * 15;
  figura.altezza = 69 * 15;

  auto& frame8 = crea_cornice("Frame8", 9240, 1150, 3465, 7320);
  crea_testo("Scegli l'estrazione", 240, 360, &frame8);
  for (int i = 0; i < 2; ++i) {
    auto& casella = crea_casella("chkTipoEstrazione", i, 240, 660 + 360 * static_cast<float>(i), 3000, 315, &frame8);
    casella.caption = tipi_estrazione[static_cast<size_t>(i)];
  }
  crea_testo("Scegli l'importo di giocata €", 240, 1500, &frame8);
  for (int k = 0; k <= 6; ++k) {
    float sinistra = 240 + 450 * static_cast<float>(k);
    auto& testa = aggiungi<immagine>("Image1", 79 + k, &frame8);
    testa.caption = testi_10elotto[static_cast<size_t>(k)];
    testa.sinistra = sinistra;
    testa.alto = 1800;
    testa.larghezza = 17 * 15;
    testa.altezza = 47 * 15;
    auto& casella = crea_casella("chk10elottoImporto", k, sinistra, 2580, 195, 240, &frame8);
    casella.caption = "Check2";
    // 10 and 0.50 are not played here.
    casella.abilitato = k != 0 && k != 6;
  }
  auto& picker = aggiungi<griglia>("MSHFlexGrid1", -1, &frame8);
  picker.sinistra = 120;
  picker.alto = 3000;
  picker.larghezza = 3225;
  picker.altezza = 2700;
  auto& casuale_btn = aggiungi<pulsante>("Command1", -1, &frame8);
  casuale_btn.caption = "Scelta Casuale";
  casuale_btn.sinistra = 120;
  casuale_btn.alto = 5880;
  casuale_btn.larghezza = 3225;
  casuale_btn.altezza = 495;
  casuale_btn.visibile = false;
}

// ---------------------------------------------------------------- rules

void Form_sched_10elotto::collega_regole() {
  collega_puntate();
  c<casella_controllo>("ChTotale1", 0).al_click = [this] { passa_oltre([this] { chtotale1_click(); }); };
  for (int i = 0; i <= 17; ++i) {
    c<casella_controllo>("ChTotale", i).al_click = [this, i] { passa_oltre([this, i] { chtotale_click(i); }); };
  }
  for (int i = 0; i < 10; ++i) {
    c<casella_controllo>("ChRuote", i).al_click = [this] { passa_oltre([this] { ruote_click(); }); };
  }
  c<casella_controllo>("ChRuotetutte", 10).al_click = [this] { passa_oltre([this] { ruotetutte_click(); }); };
  c<casella_controllo>("ChRuote_naz").al_click = [this] { passa_oltre([this] { ruote_naz_click(); }); };
  for (int i = 0; i <= 8; ++i) {
    c<casella_controllo>("ChSistemi", i).al_click = [this, i] {
      passa_oltre([this, i] { scelta_unica_click("ChSistemi", 8, i); });
    };
  }
  for (int i = 0; i <= 9; ++i) {
    c<casella_controllo>("ChGIO_MULT", i).al_click = [this, i] {
      passa_oltre([this, i] { scelta_unica_click("ChGIO_MULT", 9, i); });
    };
  }
  c<pulsante>("cmdstampa", 1).al_click = [this] { passa_oltre([this] { cmdstampa_click(); }); };
  c<pulsante>("cmdannulla", 3).al_click = [this] { passa_oltre([this] { cmdannulla_click(); }); };
  c<pulsante>("cmdexit", 3).al_click = [this] { passa_oltre([this] { cmdexit_click(); }); };

  for (int i = 0; i < 2; ++i) {
    c<casella_controllo>("chkTipoEstrazione", i).al_click = [this] {
      passa_oltre([this] { tipo_estrazione_click(); });
    };
  }
  for (int k = 0; k <= 6; ++k) {
    c<casella_controllo>("chk10elottoImporto", k).al_click = [this, k] {
      passa_oltre([this, k] { importo_10elotto_click(k); });
    };
  }
  c<griglia>("MSHFlexGrid1").al_rilascio_mouse = [this] { passa_oltre([this] { griglia_rilascio_mouse(); }); };
  c<pulsante>("Command1").al_click = [this] { passa_oltre([this] { scelta_casuale_click(); }); };
  c<casella_elenco>("Combo2").al_click = [this] { passa_oltre([this] { combo2_click(); }); };
  c<casella_elenco>("Combo1").al_click = [this] { passa_oltre([this] { combo1_click(); }); };
  c<casella_controllo>("Check1").al_click = [this] { passa_oltre([this] { check1_click(); }); };
}

// One rule serves every stake box: the five bet rows and the five rows of
// extracts by position.
void Form_sched_10elotto::collega_puntate() {
  for (const char* riga : righe_puntata) {
    for (int colonna = 0; colonna < colonne_puntata; ++colonna) {
      c<casella_controllo>(riga, colonna).al_click = [this, riga, colonna] {
        passa_oltre([this, riga, colonna] { puntata_click(riga, colonna); });
      };
    }
  }
  for (const char* riga : righe_per_posizione) {
    for (int colonna = 0; colonna <= 17; ++colonna) {
      c<casella_controllo>(riga, colonna).al_click = [this, riga, colonna] {
        passa_oltre([this, riga, colonna] { puntata_click(riga, colonna); });
      };
    }
  }
}

}  // namespace schedine
