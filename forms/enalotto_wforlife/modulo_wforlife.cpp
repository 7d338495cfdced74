#include "forms/enalotto_wforlife/modulo_wforlife.h"

#include "controls/insieme_moduli.h"
#include "core/numeri.h"
#include "core/stato.h"

namespace schedine {

modulo_wforlife::modulo_wforlife(std::string nome, stato& s, insieme_moduli& moduli)
    : modulo_pannelli(std::move(nome), s, moduli, "wforlife") {
  caption = "Marendolia - Stampa Schedine Win For Life";
}

// ---------------------------------------------------------------- design

cornice& modulo_wforlife::crea_comuni(float larghezza_form, float altezza_frame3, const std::string& caption_option2,
                                      bool cinque_pannelli) {
  larghezza = static_cast<int>(larghezza_form);
  crea_titolo(larghezza_form - 360);
  crea_scelta_scheda(caption_option2, cinque_pannelli);
  auto& frame3 = crea_cornice("Frame3", 120, 960, larghezza_form - 360, altezza_frame3);
  crea_bordo(frame3, "Shape1");
  crea_costo_colonna(frame3);
  crea("Label1", 0, "Numero di Pannelli per Schedina", 240, 1545, 2535, 255, &frame3).visibile = false;
  crea_combo1(2820, 1500, &frame3).visibile = false;
  crea_costo(240, 1545, &frame3);
  crea_intervallo(240, altezza_frame3 - 555, &frame3);
  float alto_comandi = altezza_frame3 - 1200;
  crea<pulsante>("cmdstampa", 1, "Stampa", 240, alto_comandi, 1095, 495, &frame3).al_click = [this] {
    cmdstampa_click();
  };
  crea<pulsante>("cmdexit", 3, "Esci", 1440, alto_comandi, 1095, 495, &frame3).al_click = [this] { cmdexit_click(); };
  crea_avanzamento(2280, 1560);
  return frame3;
}

void modulo_wforlife::crea_scelta_scheda(const std::string& caption_option2, bool cinque_pannelli) {
  // On the form itself, apart from the option groups of the frames. The
  // choice of the other slip leads to the other form; that of this form's
  // own slip does nothing.
  crea_opzione("Option1", -1, "Scheda a 5 Pannelli", 240, 615, 2175, 255, nullptr).imposta_valore(cinque_pannelli);
  crea_opzione("Option2", -1, caption_option2, 2640, 615, 2175, 255, nullptr).imposta_valore(!cinque_pannelli);
  c<pulsante_opzione>(cinque_pannelli ? "Option2" : "Option1").al_click = [this] { cambia_scheda(); };
}

void modulo_wforlife::crea_costo_colonna(controllo& frame3) {
  auto& frame1 = crea_cornice("Frame1", 240, 240, 1815, 675, &frame3);
  crea_opzione("Option3", 0, "1 €", 120, 270, 735, 255, &frame1).imposta_valore(true);
  crea_opzione("Option3", 1, "2 €", 960, 270, 735, 255, &frame1);
  for (int i = 0; i <= 1; ++i) c<pulsante_opzione>("Option3", i).al_click = [this, i] { option3_click(i); };

  crea("Label1", 1, "Costo singola colonna", 240, 1125, 1935, 255, &frame3);
  auto& text1 = aggiungi<casella_testo>("Text1", -1, &frame3);
  colloca(text1, 2220, 1080, 855, 315);
  // Locked: only the rules write the cost of a column.
  text1.al_tasto = [](int& tasto) { tasto = 0; };
  text1.al_cambio = [this] { range_pagine_e(); };
}

// ---------------------------------------------------------------- load

void modulo_wforlife::al_caricamento() {
  adatta_bordi();
  // Picking the columns of the slip runs Combo1's rule, and so the first count.
  passa_oltre([&] { c<casella_elenco>("Combo1").seleziona(voce_combo1()); });
}

double modulo_wforlife::prezzo_per_conteggio() {
  // An empty cost of a column becomes 1; the change runs the count again first.
  auto& text1 = casella("Text1");
  passa_oltre([&] {
    if (text1.testo().empty()) text1.imposta_testo("1");
  });
  return numero_iniziale(text1.testo());
}

// ---------------------------------------------------------------- rules

void modulo_wforlife::mostra_costo_colonna(int concorsi) {
  if (opzione("Option3", 0)) casella("Text1").imposta_testo(std::to_string(concorsi));
  if (opzione("Option3", 1)) casella("Text1").imposta_testo(std::to_string(2 * concorsi));
}

void modulo_wforlife::cambia_scheda() {
  // The choices of this form are lost. Nothing of it may be touched once it
  // is unloaded: a control asked for would load it again.
  modulo& altra = moduli(altra_scheda());
  altra.c<etichetta>("lbltitolo").caption = c<etichetta>("lbltitolo").caption;
  altra.mostra();
  scarica();
}

void modulo_wforlife::cmdstampa_click() {
  // No check of the price: an empty cost of a column has become "1" already.
  passa_oltre([&] { carica_taratura(); });
  prendi_intervallo();
  mostra_avanzamento();
  prendi_colonne_per_scheda();
  float prezzo = 0;
  passa_oltre([&] { prezzo = static_cast<float>(numero_iniziale(casella("Text1").testo())); });
  std::string tipo_sistema = s.tipo_sistema;
  passa_oltre([&] { stampa(tipo_sistema, prezzo); });
  passa_oltre([&] { c<cornice>("Frame2").visibile = false; });
}

}  // namespace schedine
