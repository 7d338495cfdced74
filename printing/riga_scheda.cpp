#include "printing/riga_scheda.h"

#include "core/numeri.h"
#include "printing/dispositivo_stampa.h"
#include "printing/lavoro_stampa.h"

namespace schedine {

std::string riga_scheda(stato& s, const std::string& nome_scheda, double importo) {
  // Page and first slip add up in the platform's Long: beyond it, Overflow.
  int32_t numero = a_long(static_cast<double>(stampante(s).numero_pagina()) - 1.0 + s.dalla_scheda);
  return nome_scheda + " - Sched. n." + std::to_string(numero) + " - " + "€ " +
         formatta_numero(importo, "###,#0.00", s.locale);
}

void apri_riga_scheda(stato& s, float x, float y) {
  dispositivo_stampa& d = stampante(s);
  d.imposta_font_nome(font_scheda);
  d.posiziona_testo(x, y);
  d.imposta_font_dimensione(punti_scheda);
}

void stampa_riga_scheda(stato& s, const std::string& nome_scheda, double importo, float x, float y) {
  apri_riga_scheda(s, x, y);
  stampante(s).stampa_testo(riga_scheda(s, nome_scheda, importo));
}

}  // namespace schedine
