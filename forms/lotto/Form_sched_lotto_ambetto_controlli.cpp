// The controls of Form_sched_lotto_ambetto in their design state, and the
// rules attached to their events. Positions and sizes are in twips inside the
// container; where the design fixes none (the boxes of the lower frames, the
// texts of Frame5 and Frame8) the controls are laid out evenly.

#include <array>

#include "forms/lotto/Form_sched_lotto_ambetto.h"

namespace schedine {

namespace {

constexpr int ultima_colonna_visibile = 12;  // columns 13 to 20 have no amount here
constexpr std::array<const char*, 6> testi_moltiplicatori = {"2", "3", "5", "10", "15", "20"};
constexpr std::array<const char*, 6> testi_10elotto = {"1", "2", "3", "5", "10", "100"};
constexpr std::array<const char*, 3> tipi_estrazione = {"Ogni 5 Minuti", "Estrazione del Lotto",
                                                        "Estrazione immediata"};

// The boxes whose click does nothing but work the price out again.
constexpr std::array<const char*, 14> caselle_del_prezzo = {
    "ChEstratto",    "Chambo",  "ChTerno",      "Chquaterna", "ChCinquina", "chAmbetto",         "ChEstratto1",
    "ChEstrattoPos", "ChRuote", "ChRuotetutte", "ChSistemi",  "ChGIO_MULT", "chkTipoEstrazione", "chk10elottoImporto",
};

}  // namespace

void Form_sched_lotto_ambetto::crea_controlli() {
  inizia_disegno();
  larghezza_client = 11880;
  altezza_client = 7125;
  crea_titolo();
  c<etichetta>("lbltitolo").sinistra = 60;
  crea_ruote(crea_cornice("Frame1", 128, 540, 1425, 7185));
  crea_griglia();
  crea_abbonamento();
  crea_importo_e_comandi();
  crea_10elotto();
  crea_avanzamento();
  crea_forme_evidenza();
  collega_regole();
}

void Form_sched_lotto_ambetto::crea_griglia() {
  auto& frame3 = crea_cornice("Frame3", 1628, 525, 6825, 3780);
  // The amount heads cover the TOTALE row once the form is first displayed.
  auto& frameeuro = crea_cornice("Frameeuro", 1080, 430, 4950, 705, &frame3);
  frameeuro.visibile = false;
  aggiungi<etichetta>("Label1", 47, &frameeuro).caption = "Importi espressi in Euro";
  crea_teste_colonne(frameeuro, importi_colonne_ambetto);

  crea_riga_totale(frame3, 0);
  crea_testo("TOTALE", 60, 915, &frame3).visibile = false;
  constexpr std::array<const char*, 5> testi_righe = {"ESTRATTO", "AMBO", "TERNO", "QUATERNA", "CINQUINA"};
  constexpr std::array<float, 5> alto_righe = {1185, 1455, 1725, 1995, 2265};
  for (size_t riga = 0; riga < righe_puntata.size(); ++riga) {
    crea_riga(righe_puntata[riga], alto_righe[riga], frame3, 20, ultima_colonna_visibile + 1);
    crea_testo(testi_righe[riga], 60, alto_righe[riga], &frame3);
  }
  crea_estratto_determinato(frame3);
  crea_riga("chAmbetto", 3330, frame3, 20, ultima_colonna_visibile + 1, "Check2");
  aggiungi<etichetta>("Label1", 60, &frame3).caption = "AMBETTO";
  c<etichetta>("Label1", 60).alto = 3330;
}

void Form_sched_lotto_ambetto::crea_estratto_determinato(controllo& frame3) {
  crea_riga("ChEstratto1", 2680, frame3, 17, ultima_colonna_visibile + 1, "Check1");
  auto& testa = aggiungi<etichetta>("Label1", 41, &frame3);
  testa.caption = "ESTRATTO DETERM. POSIZIONE";
  testa.alto = 2680;
  constexpr std::array<float, 5> sinistra_posizione = {1100, 1710, 2320, 2910, 3530};
  for (int posizione = 0; posizione < 5; ++posizione) {
    auto& casella = crea_casella("ChEstrattoPos", posizione, sinistra_posizione[static_cast<size_t>(posizione)], 2990,
                                 495, 255, &frame3);
    casella.caption = std::to_string(posizione + 1) + "°";
  }
}

void Form_sched_lotto_ambetto::crea_abbonamento() {
  auto& frame4 = crea_cornice("Frame4", 1635, 4440, 3180, 1785);
  struct riga_moltiplicatori {
    const char* nome;
    int etichetta;
    const char* testa;
    float alto;
  };
  for (const auto& riga : {riga_moltiplicatori{"ChSistemi", 2, "ABBONAMENTO", 240},
                           riga_moltiplicatori{"ChGIO_MULT", 3, "GIOCATE MULTIPLE", 960}}) {
    auto& testa = aggiungi<etichetta>("Label1", riga.etichetta, &frame4);
    testa.caption = riga.testa;
    testa.sinistra = 120;
    testa.alto = riga.alto;
    for (int i = 0; i < 6; ++i) {
      float sinistra = 240 + 480 * static_cast<float>(i);
      crea_testo(testi_moltiplicatori[static_cast<size_t>(i)], sinistra, riga.alto + 240, &frame4);
      crea_casella(riga.nome, i, sinistra, riga.alto + 480, 195, 240, &frame4);
    }
  }
}

void Form_sched_lotto_ambetto::crea_importo_e_comandi() {
  // Frame5's width is not fixed by design: it is held within the client area.
  auto& frame5 = crea_cornice("Frame5", 4920, 4440, 3405, 2550);
  auto& testa = aggiungi<etichetta>("Label1", 43, &frame5);
  testa.caption = "Importo di Giocata €";
  testa.sinistra = 120;
  testa.alto = 240;
  auto& importo = aggiungi<etichetta>("lblimporto", -1, &frame5);
  importo.sinistra = 2040;
  importo.alto = 240;
  crea_intervallo(frame5);
  colloca({{"Label1", 44, 120, 720, 1800, 255}, {"Label1", 45, 120, 1080, 480, 255},
           {"txtdalla", -1, 600, 1020, 900, 315}, {"Label1", 46, 1620, 1080, 360, 255},
           {"txtalla", -1, 2040, 1020, 900, 315}});
  crea_comandi(frame5, 1800, 1000, 1200, 2280);
}

void Form_sched_lotto_ambetto::crea_10elotto() {
  auto& frame9 = crea_cornice("Frame9", 8400, 60, 3945, 1935);
  aggiungi<immagine>("Image2", -1, &frame9);
  aggiungi<etichetta>("Label4", 2, &frame9).caption = "SE VUOI GIOCARE GLI STESSI NUMERI AL 10eLOTTO";

  auto& frame8 = crea_cornice("Frame8", 8400, 1150, 4305, 5830);
  auto& estrazione = aggiungi<etichetta>("Label4", 0, &frame8);
  estrazione.caption = "Scegli l'estrazione";
  estrazione.sinistra = 240;
  estrazione.alto = 960;
  for (int i = 0; i < 3; ++i) {
    auto& casella = crea_casella("chkTipoEstrazione", i, 240, 1320 + 420 * static_cast<float>(i), 3000, 315, &frame8);
    casella.caption = tipi_estrazione[static_cast<size_t>(i)];
  }
  auto& importo = aggiungi<etichetta>("Label4", 1, &frame8);
  importo.caption = "Scegli l'importo di giocata €";
  importo.sinistra = 240;
  importo.alto = 2760;
  for (int k = 0; k < 6; ++k) {
    float sinistra = 240 + 600 * static_cast<float>(k);
    crea_testo(testi_10elotto[static_cast<size_t>(k)], sinistra, 3120, &frame8);
    crea_casella("chk10elottoImporto", k, sinistra, 3420, 195, 240, &frame8).caption = "Check2";
  }
}

void Form_sched_lotto_ambetto::collega_regole() {
  for (const auto& cc : controlli()) {
    for (const char* nome : caselle_del_prezzo) {
      if (cc->nome() == nome) cc->al_click = [this] { passa_oltre([this] { CalcolaImportoTotale(); }); };
    }
  }
  c<casella_controllo>("ChRuote_naz").al_click = [this] { ruote_naz_click(); };
  c<casella_controllo>("ChTotale1", 0).al_click = [this] { chtotale1_click(); };
  for (int i = 1; i <= 17; ++i) c<casella_controllo>("ChTotale", i).al_click = [this, i] { chtotale_click(i); };
  c<pulsante>("cmdstampa", 1).al_click = [this] { cmdstampa_click(); };
  c<pulsante>("cmdannulla", 3).al_click = [this] { cmdannulla_click(); };
  c<pulsante>("cmdexit", 3).al_click = [this] { cmdexit_click(); };
}

}  // namespace schedine
