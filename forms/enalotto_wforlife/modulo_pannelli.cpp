#include "forms/enalotto_wforlife/modulo_pannelli.h"

#include "controls/insieme_moduli.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "core/stato.h"
#include "forms/enalotto_wforlife/conteggio_pannelli.h"
#include "forms/enalotto_wforlife/testi_prezzo.h"

namespace schedine {

namespace {

// Key filter of the range boxes: codes 32 to 46 and 58 to 255 are dropped,
// so digits, control keys and "/" get through.
void filtro_intervallo(int& tasto) {
  if ((tasto >= 32 && tasto <= 46) || (tasto >= 58 && tasto <= 255)) tasto = 0;
}

}  // namespace

// ---------------------------------------------------------------- the range

void modulo_pannelli::range_pagine_e() {
  passa_oltre([&] {
    if (auto colonne = conta_colonne_pannelli(s, gioco_)) colonne_form = *colonne;
  });
  passa_oltre([&] { casella("txtalla").imposta_testo(std::to_string(schede_del_sistema())); });
  double prezzo = 0;
  passa_oltre([&] { prezzo = prezzo_per_conteggio(); });
  passa_oltre([&] { c<etichetta>("lbltot").caption = formatta_euro(prezzo * colonne_form); });
  passa_oltre([&] { casella("txtdalla").imposta_testo("1"); });
}

int32_t modulo_pannelli::schede_del_sistema() {
  // Combo1's text by the locale's rule, rounded: an empty box is a type
  // mismatch, and the caller's statement is passed over.
  int32_t per_scheda = a_integer(numero_locale(c<casella_elenco>("Combo1").testo(), s.locale));
  if (per_scheda == 0) throw errore_runtime(codice::divisione_per_zero, nome_ + ".Combo1");
  if (colonne_form % per_scheda == 0) return colonne_form / per_scheda;
  return colonne_form / per_scheda + 1;
}

std::string modulo_pannelli::formatta_euro(double importo) const {
  return std::string(segno_euro) + formatta_numero(importo, "###,##0.00", s.locale);
}

// ---------------------------------------------------------------- rules

void modulo_pannelli::combo1_click() {
  passa_oltre([&] { s.colonne_per_scheda = a_byte(numero_locale(c<casella_elenco>("Combo1").testo(), s.locale)); });
  range_pagine_e();
}

void modulo_pannelli::uscita_txtdalla() {
  passa_oltre([&] {
    auto& dalla = casella("txtdalla");
    auto& alla = casella("txtalla");
    if (numero_iniziale(alla.testo()) < numero_iniziale(dalla.testo())) {
      dalla.imposta_testo(alla.testo());
    } else if (dalla.testo() == "0") {
      dalla.imposta_testo("1");
    }
  });
}

void modulo_pannelli::uscita_txtalla() {
  int32_t massimo = 0;
  passa_oltre([&] { massimo = schede_del_sistema(); });
  passa_oltre([&] {
    auto& dalla = casella("txtdalla");
    auto& alla = casella("txtalla");
    if (numero_iniziale(alla.testo()) > massimo) {
      alla.imposta_testo(std::to_string(massimo));
    } else if (numero_iniziale(dalla.testo()) > numero_iniziale(alla.testo())) {
      alla.imposta_testo(dalla.testo());
    }
  });
}

void modulo_pannelli::cmdexit_click() {
  // Nothing of this form may be touched once it is unloaded: a control
  // asked for would load it again.
  passa_oltre([&] { scarica(); });
  passa_oltre([&] { s.piattaforma->esegui_eventi_in_attesa(); });
  passa_oltre([&] { moduli("Form1").mostra(); });
}

// ---------------------------------------------------------------- print run

void modulo_pannelli::prendi_intervallo() {
  passa_oltre([&] { s.dalla_scheda = a_long(numero_locale(casella("txtdalla").testo(), s.locale)); });
  passa_oltre([&] { s.alla_scheda = a_long(numero_locale(casella("txtalla").testo(), s.locale)); });
}

void modulo_pannelli::mostra_avanzamento() {
  passa_oltre([&] {
    c<barra_avanzamento>("ProgressBar1").massimo = a_long(static_cast<double>(s.alla_scheda) - s.dalla_scheda + 1);
  });
  passa_oltre([&] { c<barra_avanzamento>("ProgressBar1").imposta_valore(0); });
  passa_oltre([&] { c<cornice>("Frame2").visibile = true; });
  passa_oltre([&] { s.piattaforma->esegui_eventi_in_attesa(); });
}

void modulo_pannelli::prendi_colonne_per_scheda() {
  passa_oltre([&] { s.colonne_per_scheda = a_byte(numero_locale(c<casella_elenco>("Combo1").testo(), s.locale)); });
}

// ---------------------------------------------------------------- design

void modulo_pannelli::colloca(controllo& c, float sinistra, float alto, float larghezza, float altezza) {
  c.sinistra = sinistra;
  c.alto = alto;
  c.larghezza = larghezza;
  c.altezza = altezza;
}

cornice& modulo_pannelli::crea_cornice(const std::string& nome, float sinistra, float alto, float larghezza,
                                       float altezza, controllo* contenitore) {
  return crea<cornice>(nome, -1, "", sinistra, alto, larghezza, altezza, contenitore);
}

pulsante_opzione& modulo_pannelli::crea_opzione(const std::string& nome, int indice, const std::string& caption,
                                                float sinistra, float alto, float larghezza, float altezza,
                                                controllo* contenitore) {
  auto& opzione = aggiungi_opzione(nome, indice, contenitore);
  opzione.caption = caption;
  colloca(opzione, sinistra, alto, larghezza, altezza);
  return opzione;
}

void modulo_pannelli::crea_bordo(cornice& frame, const std::string& nome) {
  auto& bordo = aggiungi<forma>(nome, -1, &frame);
  colloca(bordo, 0, 0, frame.larghezza, frame.altezza);
}

void modulo_pannelli::crea_titolo(float larghezza) {
  auto& frame6 = crea_cornice("Frame6", 120, 60, larghezza, 465);
  crea_bordo(frame6, "Shape3");
  crea("lbltitolo", -1, "", 120, 120, larghezza - 240, 255, &frame6);
}

casella_elenco& modulo_pannelli::crea_combo1(float sinistra, float alto, controllo* contenitore) {
  auto& combo1 = aggiungi<casella_elenco>("Combo1", -1, contenitore);
  colloca(combo1, sinistra, alto, 735, 315);
  for (const char* voce : {"1", "2", "3", "4", "5"}) combo1.aggiungi(voce);
  combo1.al_click = [this] { combo1_click(); };
  return combo1;
}

void modulo_pannelli::crea_costo(float sinistra, float alto, controllo* contenitore) {
  crea("Label4", -1, "Costo Sistema:", sinistra, alto, 1215, 255, contenitore);
  crea("lbltot", -1, "", sinistra + 1260, alto, 1935, 255, contenitore);
}

void modulo_pannelli::crea_intervallo(float sinistra, float alto, controllo* contenitore) {
  crea("Label1", 44, "Stampa schedine", sinistra, alto, 1335, 255, contenitore);
  crea("Label1", 45, "dalla", sinistra + 1380, alto, 435, 255, contenitore);
  crea("Label1", 46, "alla", sinistra + 2580, alto, 375, 255, contenitore);
  auto& dalla = aggiungi<casella_testo>("txtdalla", -1, contenitore);
  colloca(dalla, sinistra + 1860, alto - 45, 615, 315);
  auto& alla = aggiungi<casella_testo>("txtalla", -1, contenitore);
  colloca(alla, sinistra + 3000, alto - 45, 615, 315);
  dalla.al_tasto = filtro_intervallo;
  alla.al_tasto = filtro_intervallo;
  dalla.all_uscita = [this] { uscita_txtdalla(); };
  alla.all_uscita = [this] { uscita_txtalla(); };
}

void modulo_pannelli::crea_avanzamento(float sinistra, float alto) {
  auto& frame2 = crea_cornice("Frame2", sinistra, alto, 4335, 1095);
  frame2.visibile = false;
  crea_bordo(frame2, "Shape2");
  crea("Label2", -1, "Invio dati alla stampante. Attendere prego", 240, 180, 3855, 255, &frame2);
  auto& barra = aggiungi<barra_avanzamento>("ProgressBar1", -1, &frame2);
  colloca(barra, 240, 540, 3855, 315);
}

void modulo_pannelli::adatta_bordi() {
  constexpr std::pair<const char*, const char*> bordi[] = {{"Frame2", "Shape2"}, {"Frame3", "Shape1"}, {"Frame6", "Shape3"}};
  for (const auto& [frame, bordo] : bordi) {
    passa_oltre([&] {
      auto& f = c<cornice>(frame);
      colloca(c<forma>(bordo), 15, 15, f.larghezza - 15, f.altezza - 15);
    });
  }
}

}  // namespace schedine
