// Clearing the selection tables and copying the form's ticks into them, the
// part both Lotto slip forms share. These statements are not passed over: a
// failure ends the copy where it stands, and the print click goes on.

#include "forms/lotto/modulo_lotto.h"

namespace schedine {

namespace {

vettore<uint8_t, colonne_puntata>& tabella_riga(stato& s, size_t riga) {
  switch (riga) {
    case 0:
      return s.sel_estratto;
    case 1:
      return s.sel_ambo;
    case 2:
      return s.sel_terno;
    case 3:
      return s.sel_quaterna;
    default:
      return s.sel_cinquina;
  }
}

}  // namespace

void modulo_lotto::svuota_selezioni_base() {
  s.sel_ruote.azzera();
  s.sel_sistemi.azzera();
  s.sel_gio_mult.azzera();
  s.sel_totale.azzera();
  for (size_t riga = 0; riga < righe_puntata.size(); ++riga) tabella_riga(s, riga).azzera();
}

void modulo_lotto::svuota_selezioni() {
  svuota_selezioni_base();
  s.sel_estratto1.azzera();
  s.sel_estratto2.azzera();
  s.sel_estratto3.azzera();
  s.sel_estratto4.azzera();
  s.sel_estratto5.azzera();
}

void modulo_lotto::copia_ruote() {
  for (int i = 0; i < 10; ++i) {
    if (spuntata("ChRuote", i)) s.sel_ruote(i) = selezionato;
  }
  if (spuntata("ChRuotetutte", 10)) s.sel_ruote(10) = selezionato;
  if (spuntata("ChRuote_naz")) s.sel_ruote(11) = selezionato;
}

// Only the first ticked box of the row reaches the slip.
template <class Tabella>
void modulo_lotto::copia_prima(const std::string& nome, int ultimo, Tabella& tabella) {
  for (int i = 0; i <= ultimo; ++i) {
    if (spuntata(nome, i)) {
      tabella(i) = selezionato;
      return;
    }
  }
}

void modulo_lotto::copia_prima_spuntata(const std::string& nome, int ultimo, vettore<uint8_t, 9>& tabella) {
  copia_prima(nome, ultimo, tabella);
}

void modulo_lotto::copia_prima_spuntata(const std::string& nome, int ultimo, vettore<uint8_t, 10>& tabella) {
  copia_prima(nome, ultimo, tabella);
}

void modulo_lotto::copia_righe_puntata() {
  for (int colonna = 0; colonna < colonne_puntata; ++colonna) {
    for (size_t riga = 0; riga < righe_puntata.size(); ++riga) {
      if (spuntata(righe_puntata[riga], colonna)) tabella_riga(s, riga)(colonna) = selezionato;
    }
  }
}

}  // namespace schedine
