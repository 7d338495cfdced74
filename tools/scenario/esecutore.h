#pragma once
// Applies the actions of a scenario to a running program, as the user's
// events and as checks of what the user would see.

#include <vector>

#include "tools/scenario/azione.h"

namespace schedine {
class controllo;
class giornale;
class modulo;
class programma;
}  // namespace schedine

namespace schedine::scenario {

struct valore_letto;

class esecutore {
 public:
  // The program and the journal must outlive the runner.
  esecutore(programma& p, giornale& g);

  // Checks, before anything runs, that every form and variable the scenario
  // names exists; throws errore_scenario for the first that doesn't.
  void controlla(const std::vector<azione>& azioni);

  // Runs one action. Throws errore_scenario for an action that cannot be
  // understood here, verifica_fallita for a check that doesn't hold, and
  // lets the program's errore_runtime through.
  void esegui(const azione& a);

 private:
  void avvia(const azione& a);
  void chiudi(const azione& a);
  void verifica_proprieta(const azione& a);
  void verifica_voce(const azione& a);
  void verifica_cella(const azione& a);
  void verifica_var(const azione& a);
  void verifica_file(const azione& a);

  // An unknown form throws errore_scenario.
  void controlla_modulo(const azione& a) const;
  modulo& modulo_di(const azione& a);
  // The control of a loaded form; an unknown one throws errore_scenario.
  controllo& controllo_di(modulo& m, const azione& a);
  // The control the user acts on, of kind T; nullptr (and an `ignorato`
  // line) when the user cannot reach it.
  template <class T>
  T* per_utente(const azione& a, const char* genere);
  // The control a check reads, of kind T; a form that is not loaded has no
  // controls to read, which fails the check.
  template <class T>
  T& da_leggere(const azione& a, const char* genere);

  void confronta(const azione& a, const std::string& cosa, const valore_letto& letto);

  programma& programma_;
  giornale& giornale_;
};

}  // namespace schedine::scenario
