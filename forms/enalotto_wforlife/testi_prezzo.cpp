#include "forms/enalotto_wforlife/testi_prezzo.h"

#include "core/numeri.h"

namespace schedine {

std::string dopo_caratteri(std::string_view testo, size_t n) {
  size_t posizione = 0;
  for (size_t saltati = 0; saltati < n && posizione < testo.size(); ++saltati) {
    ++posizione;
    // Continuation bytes of a UTF-8 sequence belong to the character before.
    while (posizione < testo.size() && (static_cast<unsigned char>(testo[posizione]) & 0xC0) == 0x80) ++posizione;
  }
  return std::string(testo.substr(posizione));
}

std::string sostituisci(std::string_view testo, std::string_view cosa, std::string_view con) {
  std::string risultato;
  size_t inizio = 0;
  for (size_t trovato = testo.find(cosa); !cosa.empty() && trovato != std::string_view::npos;
       trovato = testo.find(cosa, inizio)) {
    risultato.append(testo.substr(inizio, trovato - inizio)).append(con);
    inizio = trovato + cosa.size();
  }
  return risultato.append(testo.substr(inizio));
}

double prezzo_da_etichetta(std::string_view testo) {
  return numero_iniziale(sostituisci(dopo_caratteri(testo, 2), ",", "."));
}

double prezzo_da_elenco(std::string_view testo) {
  return numero_iniziale(sostituisci(sostituisci(testo, "€", ""), ",", "."));
}

}  // namespace schedine
