#include "tools/scenario/esecutore.h"

#include "controls/modulo.h"
#include "core/errore_runtime.h"
#include "core/file_sistema.h"
#include "forms/programma/programma.h"
#include "printing/giornale.h"
#include "tools/scenario/esito.h"
#include "tools/scenario/valore_letto.h"
#include "tools/scenario/variabili.h"

namespace schedine::scenario {

namespace {

bool e_verifica(tipo_azione t) {
  switch (t) {
    case tipo_azione::verifica:
    case tipo_azione::verifica_voce:
    case tipo_azione::verifica_cella:
    case tipo_azione::verifica_colore:
    case tipo_azione::verifica_var:
    case tipo_azione::verifica_file:
      return true;
    default:
      return false;
  }
}

std::string nome_variabile(const azione& a) {
  std::string nome = a.variabile;
  for (size_t i = 0; i < a.indici.size(); ++i) nome += (i == 0 ? "(" : ",") + std::to_string(a.indici[i]);
  return a.indici.empty() ? nome : nome + ")";
}

// A name as the system writes it ("\trans") or as a path ("skin/skn.dat"),
// relative to the program folder.
std::string nome_relativo(std::string nome) {
  for (char& c : nome) {
    if (c == '\\') c = '/';
  }
  size_t primo = nome.find_first_not_of('/');
  return primo == std::string::npos ? std::string() : nome.substr(primo);
}

}  // namespace

esecutore::esecutore(programma& p, giornale& g) : programma_(p), giornale_(g) {}

void esecutore::controlla(const std::vector<azione>& azioni) {
  for (const azione& a : azioni) {
    if (!a.su.modulo.empty()) controlla_modulo(a);
    if (a.tipo != tipo_azione::verifica_var) continue;
    const variabile* v = cerca_variabile(a.variabile);
    if (v == nullptr) throw errore_scenario(a.riga, "unknown variable \"" + a.variabile + "\"");
    if (static_cast<int>(a.indici.size()) != v->indici) {
      throw errore_scenario(a.riga, "\"" + a.variabile + "\" takes " + std::to_string(v->indici) + " indices");
    }
    // The tables have fixed bounds: reading the element now tells whether it exists.
    try {
      v->leggi(programma_.s, a.indici);
    } catch (const errore_runtime&) {
      throw errore_scenario(a.riga, "no element " + nome_variabile(a));
    }
  }
}

void esecutore::esegui(const azione& a) {
  if (programma_.terminato() && !e_verifica(a.tipo) && a.tipo != tipo_azione::fine) {
    throw errore_scenario(a.riga, "the program has ended: only checks can follow");
  }
  switch (a.tipo) {
    case tipo_azione::avvio:
      avvia(a);
      break;
    case tipo_azione::fine:
      // Ending a program that has ended already changes nothing.
      if (!programma_.terminato()) programma_.termina();
      break;
    case tipo_azione::clic:
      if (auto* c = per_utente<controllo>(a, "a control")) c->clic_utente();
      break;
    case tipo_azione::scelta:
      if (auto* elenco = per_utente<casella_elenco>(a, "a list or combo box")) {
        int voce = a.numeri[0];
        if (voce < 0 || voce >= elenco->conta()) {
          throw errore_scenario(a.riga, a.su.scritto + " has no item " + std::to_string(voce));
        }
        elenco->scegli(voce);
      }
      break;
    case tipo_azione::digitazione:
      if (auto* casella = per_utente<casella_testo>(a, "a text box")) casella->digita(a.testo);
      break;
    case tipo_azione::uscita:
      if (auto* casella = per_utente<casella_testo>(a, "a text box")) casella->uscita();
      break;
    case tipo_azione::griglia:
      if (auto* g = per_utente<griglia>(a, "a grid")) {
        const auto& n = a.numeri;
        for (size_t i = 0; i < n.size(); i += 2) {
          if (n[i] < 0 || n[i] >= g->righe() || n[i + 1] < 0 || n[i + 1] >= g->colonne()) {
            throw errore_scenario(a.riga, a.su.scritto + " has no cell (" + std::to_string(n[i]) + ", " +
                                              std::to_string(n[i + 1]) + ")");
          }
        }
        g->selezione_utente(n[0], n[1], n[2], n[3]);
      }
      break;
    case tipo_azione::chiusura:
      chiudi(a);
      break;
    case tipo_azione::apertura:
      modulo_di(a).mostra();
      break;
    case tipo_azione::verifica:
      verifica_proprieta(a);
      break;
    case tipo_azione::verifica_voce:
      verifica_voce(a);
      break;
    case tipo_azione::verifica_cella:
    case tipo_azione::verifica_colore:
      verifica_cella(a);
      break;
    case tipo_azione::verifica_var:
      verifica_var(a);
      break;
    case tipo_azione::verifica_file:
      verifica_file(a);
      break;
  }
}

void esecutore::avvia(const azione& a) {
  if (programma_.moduli("Form1").caricato()) throw errore_scenario(a.riga, "the program is running already");
  programma_.avvia();
}

void esecutore::chiudi(const azione& a) {
  modulo& m = modulo_di(a);
  if (!m.visibile()) {
    giornale_.ignorato(a.su.scritto);
    return;
  }
  m.chiudi_utente();
}

// ---------------------------------------------------------------- lookup

void esecutore::controlla_modulo(const azione& a) const {
  if (!programma_.moduli.conosce(a.su.modulo)) throw errore_scenario(a.riga, "unknown form \"" + a.su.modulo + "\"");
}

modulo& esecutore::modulo_di(const azione& a) {
  controlla_modulo(a);
  return programma_.moduli(a.su.modulo);
}

controllo& esecutore::controllo_di(modulo& m, const azione& a) {
  if (!m.esiste(a.su.controllo, a.su.indice)) throw errore_scenario(a.riga, "unknown control \"" + a.su.scritto + "\"");
  return m.trova(a.su.controllo, a.su.indice);
}

template <class T>
T* esecutore::per_utente(const azione& a, const char* genere) {
  modulo& m = modulo_di(a);
  // A form that is not loaded is not on the screen: nothing of it can be
  // clicked, and its controls don't exist yet to be told apart.
  if (!m.caricato()) {
    giornale_.ignorato(a.su.scritto);
    return nullptr;
  }
  controllo& c = controllo_di(m, a);
  auto* tipizzato = dynamic_cast<T*>(&c);
  if (tipizzato == nullptr) throw errore_scenario(a.riga, a.su.scritto + " is not " + genere);
  if (!m.visibile() || !c.raggiungibile()) {
    giornale_.ignorato(a.su.scritto);
    return nullptr;
  }
  return tipizzato;
}

template <class T>
T& esecutore::da_leggere(const azione& a, const char* genere) {
  modulo& m = modulo_di(a);
  if (!m.caricato()) throw verifica_fallita(a.su.scritto + " " + a.proprieta, a.testo, "(form " + m.nome() + " not loaded)");
  auto* tipizzato = dynamic_cast<T*>(&controllo_di(m, a));
  if (tipizzato == nullptr) throw errore_scenario(a.riga, a.su.scritto + " is not " + genere);
  return *tipizzato;
}

// ---------------------------------------------------------------- checks

void esecutore::confronta(const azione& a, const std::string& cosa, const valore_letto& letto) {
  if (!letto.corrisponde(a.testo)) throw verifica_fallita(cosa, a.testo, letto.come_testo());
}

void esecutore::verifica_proprieta(const azione& a) {
  const std::string cosa = a.su.scritto + " " + a.proprieta;
  const std::string& p = a.proprieta;
  if (a.su.e_modulo()) {
    modulo& m = modulo_di(a);
    confronta(a, cosa, p == "text" ? valore_letto::di_testo(m.caption) : valore_letto::di_intero(m.visibile()));
    return;
  }
  if (p == "count" || p == "index") {
    auto& elenco = da_leggere<casella_elenco>(a, "a list or combo box");
    confronta(a, cosa, valore_letto::di_intero(p == "count" ? elenco.conta() : elenco.indice_selezionato()));
    return;
  }
  auto& c = da_leggere<controllo>(a, "a control");
  if (p == "text") {
    confronta(a, cosa, valore_letto::di_testo(c.testo_visibile()));
  } else if (p == "enabled") {
    confronta(a, cosa, valore_letto::di_intero(c.abilitato));
  } else if (p == "visible") {
    confronta(a, cosa, valore_letto::di_intero(c.visibile));
  } else if (auto* casella = dynamic_cast<casella_controllo*>(&c)) {
    confronta(a, cosa, valore_letto::di_intero(casella->valore()));
  } else if (auto* opzione = dynamic_cast<pulsante_opzione*>(&c)) {
    confronta(a, cosa, valore_letto::di_intero(opzione->valore()));
  } else if (auto* barra = dynamic_cast<barra_avanzamento*>(&c)) {
    confronta(a, cosa, valore_letto::di_intero(barra->valore()));
  } else {
    throw errore_scenario(a.riga, a.su.scritto + " has no value");
  }
}

void esecutore::verifica_voce(const azione& a) {
  auto& elenco = da_leggere<casella_elenco>(a, "a list or combo box");
  confronta(a, a.su.scritto + " item " + std::to_string(a.numeri[0]), valore_letto::di_testo(elenco.voce(a.numeri[0])));
}

void esecutore::verifica_cella(const azione& a) {
  auto& g = da_leggere<griglia>(a, "a grid");
  int r = a.numeri[0];
  int c = a.numeri[1];
  std::string cosa = a.su.scritto + " " + a.proprieta + " " + std::to_string(r) + " " + std::to_string(c);
  if (r < 0 || r >= g.righe() || c < 0 || c >= g.colonne()) throw verifica_fallita(cosa, a.testo, "(no such cell)");
  bool colore = a.tipo == tipo_azione::verifica_colore;
  confronta(a, cosa, colore ? valore_letto::di_intero(g.colore_cella(r, c)) : valore_letto::di_testo(g.testo_cella(r, c)));
}

void esecutore::verifica_var(const azione& a) {
  const variabile* v = cerca_variabile(a.variabile);
  if (v == nullptr || static_cast<int>(a.indici.size()) != v->indici) {
    throw errore_scenario(a.riga, "unknown variable \"" + nome_variabile(a) + "\"");
  }
  valore_letto letto;
  try {
    letto = v->leggi(programma_.s, a.indici);
  } catch (const errore_runtime&) {
    throw errore_scenario(a.riga, "no element " + nome_variabile(a));
  }
  confronta(a, "var " + nome_variabile(a), letto);
}

void esecutore::verifica_file(const azione& a) {
  bool esiste = esiste_file(nel_programma(programma_.s.cartella_programma, nome_relativo(a.file)));
  if (esiste != a.deve_esistere) {
    throw verifica_fallita("file " + a.file, a.deve_esistere ? "exists" : "absent", esiste ? "exists" : "absent");
  }
}

}  // namespace schedine::scenario
