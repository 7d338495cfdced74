#include "tools/scenario/analisi_scenario.h"

#include <cctype>
#include <charconv>

#include "tools/scenario/esito.h"

namespace schedine::scenario {

namespace {

bool blank(char c) { return c == ' ' || c == '\t'; }

bool carattere_nome(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

bool nome_valido(std::string_view nome) {
  if (nome.empty() || std::isdigit(static_cast<unsigned char>(nome.front()))) return false;
  for (char c : nome) {
    if (!carattere_nome(c)) return false;
  }
  return true;
}

std::string senza_blank(std::string_view testo) {
  std::string risultato;
  for (char c : testo) {
    if (!blank(c)) risultato += c;
  }
  return risultato;
}

// Reads a quoted word starting at the opening quote; moves i past the closing one.
std::string leggi_tra_virgolette(std::string_view riga, size_t& i, int numero_riga) {
  std::string testo;
  for (++i; i < riga.size(); ++i) {
    if (riga[i] != '"') {
      testo += riga[i];
    } else if (i + 1 < riga.size() && riga[i + 1] == '"') {
      testo += '"';
      ++i;
    } else {
      ++i;
      if (i < riga.size() && !blank(riga[i])) throw errore_scenario(numero_riga, "a quoted text must be followed by a blank");
      return testo;
    }
  }
  throw errore_scenario(numero_riga, "a quoted text has no closing quote");
}

std::string leggi_parola_nuda(std::string_view riga, size_t& i, int numero_riga) {
  std::string testo;
  int profondita = 0;
  for (; i < riga.size(); ++i) {
    char c = riga[i];
    if (blank(c) && profondita == 0) break;
    if (c == '"') throw errore_scenario(numero_riga, "a quote inside a word");
    if (c == '(') ++profondita;
    if (c == ')') --profondita;
    testo += c;
  }
  if (profondita != 0) throw errore_scenario(numero_riga, "unbalanced parentheses in \"" + testo + "\"");
  return testo;
}

int intero(const parola& p, int numero_riga, const char* cosa) {
  int valore = 0;
  const char* inizio = p.testo.data();
  const char* fine = inizio + p.testo.size();
  auto [fermo, errore] = std::from_chars(inizio, fine, valore);
  if (p.tra_virgolette || p.testo.empty() || errore != std::errc() || fermo != fine) {
    throw errore_scenario(numero_riga, std::string(cosa) + " must be a whole number, not \"" + p.testo + "\"");
  }
  return valore;
}

// "Name" or "Name(1,2,3)": the name and its indices.
void nome_e_indici(const std::string& parola_intera, int numero_riga, std::string& nome, std::vector<int>& indici) {
  std::string testo = senza_blank(parola_intera);
  size_t aperta = testo.find('(');
  nome = testo.substr(0, aperta);
  indici.clear();
  if (!nome_valido(nome)) throw errore_scenario(numero_riga, "\"" + parola_intera + "\" is no name");
  if (aperta == std::string::npos) return;
  if (testo.back() != ')' || testo.find('(', aperta + 1) != std::string::npos) {
    throw errore_scenario(numero_riga, "\"" + parola_intera + "\" is no name with indices");
  }
  std::string dentro = testo.substr(aperta + 1, testo.size() - aperta - 2);
  size_t inizio = 0;
  while (true) {
    size_t virgola = dentro.find(',', inizio);
    parola indice{dentro.substr(inizio, virgola - inizio)};
    indici.push_back(intero(indice, numero_riga, "an index"));
    if (virgola == std::string::npos) break;
    inizio = virgola + 1;
  }
}

// "Form", "Form.Control" or "Form.Control(Index)".
bersaglio leggi_bersaglio(const parola& p, int numero_riga, bool solo_modulo, bool solo_controllo) {
  if (p.tra_virgolette) throw errore_scenario(numero_riga, "a form or control is written without quotes");
  bersaglio b;
  b.scritto = p.testo;
  std::string testo = senza_blank(p.testo);
  size_t punto = testo.find('.');
  b.modulo = testo.substr(0, punto);
  if (!nome_valido(b.modulo)) throw errore_scenario(numero_riga, "\"" + p.testo + "\" is no form name");
  if (punto != std::string::npos) {
    std::vector<int> indici;
    nome_e_indici(testo.substr(punto + 1), numero_riga, b.controllo, indici);
    if (indici.size() > 1) throw errore_scenario(numero_riga, "a control has at most one index: \"" + p.testo + "\"");
    if (!indici.empty()) {
      if (indici.front() < 0) throw errore_scenario(numero_riga, "a control index is not negative: \"" + p.testo + "\"");
      b.indice = indici.front();
    }
  }
  if (solo_modulo && !b.e_modulo()) throw errore_scenario(numero_riga, "a form is expected here, not \"" + p.testo + "\"");
  if (solo_controllo && b.e_modulo()) throw errore_scenario(numero_riga, "a control is expected here, not \"" + p.testo + "\"");
  return b;
}

void conta_parole(const std::vector<parola>& parole, size_t minimo, size_t massimo, int numero_riga) {
  if (parole.size() < minimo || parole.size() > massimo) {
    throw errore_scenario(numero_riga, "wrong number of words for \"" + parole.front().testo + "\"");
  }
}

bool e_parola(const parola& p, std::string_view chiave) { return !p.tra_virgolette && p.testo == chiave; }

bool proprieta_semplice(const std::string& nome) {
  return nome == "text" || nome == "value" || nome == "enabled" || nome == "visible" || nome == "count" || nome == "index";
}

void leggi_verifica(const std::vector<parola>& parole, azione& a) {
  const int r = a.riga;
  conta_parole(parole, 4, 6, r);
  const parola& primo = parole[1];
  if (e_parola(primo, "var")) {
    conta_parole(parole, 4, 4, r);
    a.tipo = tipo_azione::verifica_var;
    if (parole[2].tra_virgolette) throw errore_scenario(r, "a variable is written without quotes");
    nome_e_indici(parole[2].testo, r, a.variabile, a.indici);
    a.testo = parole[3].testo;
    return;
  }
  if (e_parola(primo, "file")) {
    conta_parole(parole, 4, 4, r);
    a.tipo = tipo_azione::verifica_file;
    a.file = parole[2].testo;
    if (e_parola(parole[3], "exists")) {
      a.deve_esistere = true;
    } else if (e_parola(parole[3], "absent")) {
      a.deve_esistere = false;
    } else {
      throw errore_scenario(r, "expect file ends with exists or absent");
    }
    return;
  }
  a.su = leggi_bersaglio(primo, r, false, false);
  const parola& proprieta = parole[2];
  if (proprieta.tra_virgolette) throw errore_scenario(r, "a property is written without quotes");
  a.proprieta = proprieta.testo;
  if (proprieta_semplice(a.proprieta)) {
    conta_parole(parole, 4, 4, r);
    if (a.su.e_modulo() && a.proprieta != "text" && a.proprieta != "visible") {
      throw errore_scenario(r, "a form has only text and visible to check");
    }
    a.tipo = tipo_azione::verifica;
    a.testo = parole[3].testo;
    return;
  }
  if (a.su.e_modulo()) throw errore_scenario(r, "a form has only text and visible to check");
  if (a.proprieta == "item") {
    conta_parole(parole, 5, 5, r);
    a.tipo = tipo_azione::verifica_voce;
    a.numeri = {intero(parole[3], r, "an item")};
    a.testo = parole[4].testo;
    return;
  }
  if (a.proprieta == "cell" || a.proprieta == "colour") {
    conta_parole(parole, 6, 6, r);
    a.tipo = a.proprieta == "cell" ? tipo_azione::verifica_cella : tipo_azione::verifica_colore;
    a.numeri = {intero(parole[3], r, "a row"), intero(parole[4], r, "a column")};
    a.testo = parole[5].testo;
    return;
  }
  throw errore_scenario(r, "unknown property \"" + a.proprieta + "\"");
}

azione leggi_azione(const std::vector<parola>& parole, int numero_riga) {
  azione a;
  a.riga = numero_riga;
  const parola& verbo = parole.front();
  if (verbo.tra_virgolette) throw errore_scenario(numero_riga, "a line begins with an action, not a quoted text");
  const std::string& v = verbo.testo;
  if (v == "start" || v == "end") {
    conta_parole(parole, 1, 1, numero_riga);
    a.tipo = v == "start" ? tipo_azione::avvio : tipo_azione::fine;
  } else if (v == "click" || v == "leave") {
    conta_parole(parole, 2, 2, numero_riga);
    a.tipo = v == "click" ? tipo_azione::clic : tipo_azione::uscita;
    a.su = leggi_bersaglio(parole[1], numero_riga, false, true);
  } else if (v == "select") {
    conta_parole(parole, 3, 3, numero_riga);
    a.tipo = tipo_azione::scelta;
    a.su = leggi_bersaglio(parole[1], numero_riga, false, true);
    a.numeri = {intero(parole[2], numero_riga, "an item")};
  } else if (v == "type") {
    conta_parole(parole, 3, 3, numero_riga);
    a.tipo = tipo_azione::digitazione;
    a.su = leggi_bersaglio(parole[1], numero_riga, false, true);
    a.testo = parole[2].testo;
  } else if (v == "grid") {
    if (parole.size() != 4 && parole.size() != 6) throw errore_scenario(numero_riga, "grid takes one cell or two");
    a.tipo = tipo_azione::griglia;
    a.su = leggi_bersaglio(parole[1], numero_riga, false, true);
    for (size_t i = 2; i < parole.size(); ++i) a.numeri.push_back(intero(parole[i], numero_riga, "a row or column"));
    if (a.numeri.size() == 2) a.numeri.insert(a.numeri.end(), {a.numeri[0], a.numeri[1]});
  } else if (v == "close" || v == "show") {
    conta_parole(parole, 2, 2, numero_riga);
    a.tipo = v == "close" ? tipo_azione::chiusura : tipo_azione::apertura;
    a.su = leggi_bersaglio(parole[1], numero_riga, true, false);
  } else if (v == "expect") {
    leggi_verifica(parole, a);
  } else {
    throw errore_scenario(numero_riga, "unknown action \"" + v + "\"");
  }
  return a;
}

}  // namespace

std::vector<parola> dividi_riga(std::string_view riga, int numero_riga) {
  std::vector<parola> parole;
  size_t i = 0;
  while (true) {
    while (i < riga.size() && blank(riga[i])) ++i;
    if (i >= riga.size()) break;
    if (riga[i] == '"') {
      parole.push_back({leggi_tra_virgolette(riga, i, numero_riga), true});
    } else {
      parole.push_back({leggi_parola_nuda(riga, i, numero_riga), false});
    }
  }
  return parole;
}

std::vector<azione> analizza_scenario(std::string_view testo) {
  // A byte-order mark at the start is no part of the first line.
  if (testo.substr(0, 3) == "\xEF\xBB\xBF") testo.remove_prefix(3);
  std::vector<azione> azioni;
  int numero_riga = 0;
  while (!testo.empty()) {
    size_t fine = testo.find('\n');
    std::string_view riga = testo.substr(0, fine);
    testo.remove_prefix(fine == std::string_view::npos ? testo.size() : fine + 1);
    ++numero_riga;
    if (!riga.empty() && riga.back() == '\r') riga.remove_suffix(1);
    size_t primo = riga.find_first_not_of(" \t");
    if (primo == std::string_view::npos || riga[primo] == '#') continue;
    azioni.push_back(leggi_azione(dividi_riga(riga, numero_riga), numero_riga));
  }
  return azioni;
}

}  // namespace schedine::scenario
