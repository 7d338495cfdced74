#include "printing/giornale.h"

#include <charconv>
#include <ostream>

namespace schedine {

std::string numero_giornale(float valore) {
  // Shortest round-trip form; 64 characters hold any float in either notation.
  char testo[64];
  auto [fine, errore] = std::to_chars(testo, testo + sizeof testo, valore);
  (void)errore;
  return std::string(testo, fine);
}

namespace {

// A character of a text as the journal writes it: control characters and
// the backslash escaped, so one event stays one line.
void aggiungi_carattere(std::string& risultato, char c) {
  switch (c) {
    case '"': risultato += "\"\""; return;
    case '\\': risultato += "\\\\"; return;
    case '\n': risultato += "\\n"; return;
    case '\r': risultato += "\\r"; return;
    case '\t': risultato += "\\t"; return;
    default: break;
  }
  const auto codice = static_cast<unsigned char>(c);
  if (codice >= 0x20) {
    risultato += c;
    return;
  }
  constexpr char cifre[] = "0123456789abcdef";
  risultato += "\\x";
  risultato += cifre[codice >> 4];
  risultato += cifre[codice & 0xf];
}

}  // namespace

std::string testo_giornale(std::string_view testo) {
  std::string risultato;
  risultato.reserve(testo.size() + 2);
  risultato += '"';
  for (char c : testo) aggiungi_carattere(risultato, c);
  risultato += '"';
  return risultato;
}

riga_giornale::riga_giornale(std::string_view nome) : riga_(nome) {}

riga_giornale& riga_giornale::numero(float valore) { return parola(numero_giornale(valore)); }

riga_giornale& riga_giornale::intero(int64_t valore) { return parola(std::to_string(valore)); }

riga_giornale& riga_giornale::testo(std::string_view valore) { return parola(testo_giornale(valore)); }

riga_giornale& riga_giornale::parola(std::string_view valore) {
  riga_ += ' ';
  riga_ += valore;
  return *this;
}

giornale::giornale(std::ostream& uscita) : uscita_(uscita) {}

giornale::~giornale() { svuota(); }

void giornale::scrivi(const riga_giornale& riga) { uscita_ << riga.str() << '\n'; }

void giornale::messaggio(std::string_view testo) { scrivi(riga_giornale("messaggio").testo(testo)); }

void giornale::ignorato(std::string_view controllo) { scrivi(riga_giornale("ignorato").parola(controllo)); }

void giornale::avvia(std::string_view nome) { scrivi(riga_giornale("avvia").testo(nome)); }

void giornale::errore(std::string_view testo) { scrivi(riga_giornale("errore").testo(testo)); }

void giornale::svuota() { uscita_.flush(); }

}  // namespace schedine
