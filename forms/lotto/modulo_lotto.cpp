#include "forms/lotto/modulo_lotto.h"

#include <string>

namespace schedine {

namespace {

// Left edge (twips) of the stake box of each column, inside the grid's frame.
constexpr std::array<float, colonne_puntata> sinistra_colonna = {
    1095, 1395, 1695, 2010, 2310, 2610, 2910, 3210, 3525, 3825, 4125,
    4425, 4725, 5040, 5340, 5640, 5940, 6240, 6555, 6855, 7170,
};
constexpr float larghezza_casella = 195;
constexpr float altezza_casella = 240;

constexpr std::array<const char*, 10> nomi_ruote = {"Bari",   "Cagliari", "Firenze", "Genova", "Milano",
                                                    "Napoli", "Palermo",  "Roma",    "Torino", "Venezia"};
constexpr std::array<float, 10> alto_ruota = {742, 1035, 1335, 1635, 1935, 2235, 2535, 2835, 3135, 3435};
constexpr float sinistra_ruote = 1140;

// What a column head shows: whole euros as they are, cents with a comma.
std::string testo_testa(valuta importo) {
  int64_t centesimi = importo.decimillesimi() / 100;
  if (centesimi % 100 == 0) return std::to_string(centesimi / 100);
  std::string decimali = std::to_string(centesimi % 100);
  if (decimali.size() < 2) decimali.insert(0, "0");
  return std::to_string(centesimi / 100) + "," + decimali;
}

}  // namespace

// ---------------------------------------------------------------- design

cornice& modulo_lotto::crea_cornice(const std::string& nome, float sinistra, float alto, float larghezza, float altezza,
                                    controllo* contenitore) {
  auto& frame = aggiungi<cornice>(nome, -1, contenitore);
  frame.sinistra = sinistra;
  frame.alto = alto;
  frame.larghezza = larghezza;
  frame.altezza = altezza;
  crea_bordo(frame);
  return frame;
}

etichetta& modulo_lotto::crea_testo(const std::string& caption, float sinistra, float alto, controllo* contenitore) {
  auto& testo = aggiungi<etichetta>("Label5", prossimo_testo_++, contenitore);
  testo.caption = caption;
  testo.sinistra = sinistra;
  testo.alto = alto;
  return testo;
}

casella_controllo& modulo_lotto::crea_casella(const std::string& nome, int indice, float sinistra, float alto,
                                              float larghezza, float altezza, controllo* contenitore) {
  auto& casella = aggiungi<casella_controllo>(nome, indice, contenitore);
  casella.sinistra = sinistra;
  casella.alto = alto;
  casella.larghezza = larghezza;
  casella.altezza = altezza;
  return casella;
}

void modulo_lotto::crea_riga(const std::string& nome, float alto, controllo& griglia, int ultima, int prima_nascosta,
                             const std::string& caption) {
  for (int colonna = 0; colonna <= ultima; ++colonna) {
    auto& casella = crea_casella(nome, colonna, sinistra_colonna[static_cast<size_t>(colonna)], alto, larghezza_casella,
                                 altezza_casella, &griglia);
    casella.caption = caption;
    casella.visibile = colonna < prima_nascosta;
  }
}

void modulo_lotto::crea_riga_totale(controllo& griglia, int prima_nascosta) {
  constexpr float alto_totale = 915;
  crea_casella("ChTotale1", 0, sinistra_colonna[0], alto_totale, larghezza_casella, altezza_casella, &griglia)
      .visibile = prima_nascosta > 0;
  for (int colonna = 1; colonna <= 17; ++colonna) {
    auto& casella = crea_casella("ChTotale", colonna, sinistra_colonna[static_cast<size_t>(colonna)], alto_totale,
                                 larghezza_casella, altezza_casella, &griglia);
    casella.visibile = colonna < prima_nascosta;
  }
}

void modulo_lotto::crea_teste_colonne(controllo& frameeuro, const tabella_importi& tabella, const std::string& nome) {
  // Each head is a picture of its amount, a quarter turn, over its column.
  for (int colonna = 0; colonna < colonne_puntata; ++colonna) {
    valuta importo = tabella[static_cast<size_t>(colonna)];
    if (importo == valuta()) continue;
    auto& testa = aggiungi<immagine>(nome, colonna, &frameeuro);
    testa.caption = testo_testa(importo);
    testa.sinistra = sinistra_colonna[static_cast<size_t>(colonna)] - frameeuro.sinistra;
    testa.larghezza = 17 * 15;
    testa.altezza = 47 * 15;
  }
}

void modulo_lotto::crea_ruote(controllo& frame1) {
  for (int i = 0; i < 10; ++i) {
    float alto = alto_ruota[static_cast<size_t>(i)];
    crea_casella("ChRuote", i, sinistra_ruote, alto, larghezza_casella, altezza_casella, &frame1);
    auto& nome = aggiungi<etichetta>("Label1", 30 + i, &frame1);
    nome.caption = nomi_ruote[static_cast<size_t>(i)];
    nome.sinistra = 120;
    nome.alto = alto;
  }
  crea_casella("ChRuotetutte", 10, sinistra_ruote, 3860, larghezza_casella, altezza_casella, &frame1);
  crea_testo("TUTTE", 120, 3860, &frame1);
  crea_casella("ChRuote_naz", -1, sinistra_ruote, 4150, larghezza_casella, altezza_casella, &frame1);
  crea_testo("Nazionale", 120, 4150, &frame1);
}

void modulo_lotto::crea_titolo() {
  auto& frame6 = crea_cornice("Frame6", 135, 60, 9045, 405);
  aggiungi<etichetta>("lbltitolo", -1, &frame6);
}

void modulo_lotto::colloca(std::initializer_list<posto> posti) {
  for (const auto& p : posti) {
    controllo& cc = trova(p.nome, p.indice);
    cc.sinistra = p.sinistra;
    cc.alto = p.alto;
    cc.larghezza = p.larghezza;
    cc.altezza = p.altezza;
  }
}

void modulo_lotto::crea_comandi(controllo& frame5, float alto, float larghezza, float sinistra_annulla,
                                float sinistra_esci) {
  struct comando {
    const char* nome;
    int indice;
    const char* caption;
    float sinistra;
  };
  for (const auto& p : {comando{"cmdstampa", 1, "Stampa", 120}, comando{"cmdannulla", 3, "Annulla", sinistra_annulla},
                        comando{"cmdexit", 3, "Esci", sinistra_esci}}) {
    auto& bottone = aggiungi<pulsante>(p.nome, p.indice, &frame5);
    bottone.caption = p.caption;
    bottone.sinistra = p.sinistra;
    bottone.alto = alto;
    bottone.larghezza = larghezza;
    bottone.altezza = 495;
  }
}

void modulo_lotto::crea_intervallo(controllo& frame5) {
  aggiungi<etichetta>("Label1", 44, &frame5).caption = "Stampa schedine";
  aggiungi<etichetta>("Label1", 45, &frame5).caption = "dalla";
  aggiungi<etichetta>("Label1", 46, &frame5).caption = "alla";
  auto& dalla = aggiungi<casella_testo>("txtdalla", -1, &frame5);
  dalla.al_tasto = filtro_intervallo;
  dalla.all_uscita = [this] { uscita_txtdalla(); };
  auto& alla = aggiungi<casella_testo>("txtalla", -1, &frame5);
  alla.al_tasto = filtro_intervallo;
  alla.all_uscita = [this] { uscita_txtalla(); };
}

void modulo_lotto::crea_avanzamento() {
  auto& frame2 = crea_cornice("Frame2", 135, 7815, 4680, 660);
  frame2.visibile = false;
  aggiungi<etichetta>("Label3", -1, &frame2).caption = "Invio dati alla stampante. Attendere prego";
  aggiungi<barra_avanzamento>("ProgressBar1", -1, &frame2);
}

void modulo_lotto::crea_bordo(cornice& frame) { aggiungi<forma>("Shape2", prossimo_bordo_++, &frame); }

void modulo_lotto::crea_forme_evidenza() {
  for (int i = 0; i < 3; ++i) aggiungi<forma>("Shape1", i);
}

// ---------------------------------------------------------------- load and first display

void modulo_lotto::adatta_bordi() {
  for (const auto& controllo_forma : controlli()) {
    auto* bordo = dynamic_cast<forma*>(controllo_forma.get());
    if (bordo == nullptr || bordo->nome() != "Shape2" || bordo->contenitore == nullptr) continue;
    bordo->sinistra = 15;
    bordo->alto = 15;
    bordo->larghezza = bordo->contenitore->larghezza - 15;
    bordo->altezza = bordo->contenitore->altezza - 15;
  }
}

void modulo_lotto::sposta_forme_evidenza() {
  passa_oltre([&] { c<forma>("Shape1", 0).visibile = false; });
  passa_oltre([&] { c<forma>("Shape1", 0).sinistra = 6150; });
  passa_oltre([&] { c<forma>("Shape1", 2).larghezza = 870; });
  passa_oltre([&] { c<forma>("Shape1", 2).sinistra = 7968; });
  passa_oltre([&] { c<forma>("Shape1", 1).sinistra = c<forma>("Shape1", 2).sinistra; });
  passa_oltre([&] { c<forma>("Shape1", 1).larghezza = c<forma>("Shape1", 2).larghezza; });
}

void modulo_lotto::nascondi_colonna_18() {
  for (const char* riga : righe_puntata) passa_oltre([&] { c<casella_controllo>(riga, 18).visibile = false; });
}

void modulo_lotto::disattiva_righe_per_gioco() {
  const std::string& gioco = s.tipo_gioco;
  int prima_disattivata = 5;  // index in righe_puntata of the first row the sorte can't play
  if (gioco == "ambo") prima_disattivata = 2;
  if (gioco == "terno" || gioco == "terno_c") prima_disattivata = 3;
  if (gioco == "quaterna" || gioco == "quaterna_c") prima_disattivata = 4;
  for (size_t riga = static_cast<size_t>(prima_disattivata); riga < righe_puntata.size(); ++riga) {
    for (int colonna = 0; colonna < colonne_puntata; ++colonna) {
      passa_oltre([&] { c<casella_controllo>(righe_puntata[riga], colonna).abilitato = false; });
    }
  }
}

// ---------------------------------------------------------------- shared statements

bool modulo_lotto::spuntata(const std::string& nome, int indice) {
  return c<casella_controllo>(nome, indice).valore() != 0;
}

void modulo_lotto::spunta(const std::string& nome, int indice, int valore) {
  c<casella_controllo>(nome, indice).imposta_valore(valore);
}

void modulo_lotto::togli_spunta(const std::string& nome, int indice) {
  passa_oltre([&] { spunta(nome, indice, 0); });
}

}  // namespace schedine
