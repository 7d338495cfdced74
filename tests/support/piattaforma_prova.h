#pragma once
// A platform for tests: a journal in memory for the printing device and for
// messages, no events to run, programs never started.

#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "core/errore_runtime.h"
#include "core/file_sistema.h"
#include "core/piattaforma.h"
#include "printing/dispositivo_giornale.h"
#include "printing/giornale.h"

namespace schedine::test {

class piattaforma_prova : public servizi_piattaforma {
 public:
  piattaforma_prova() : giornale_(testo_), dispositivo_(giornale_) {}

  void esegui_eventi_in_attesa() override {
    ++eventi;
    if (durante_eventi) durante_eventi();
  }
  int messaggio(const std::string& testo, int, const std::string&) override {
    giornale_.messaggio(testo);
    return risposta_ok;
  }
  void avvia_programma(const std::string& percorso) override { giornale_.avvia(percorso); }
  void carica_skin(const std::string& percorso) override {
    if (!esiste_file(percorso)) throw errore_runtime(codice::file_non_trovato, percorso);
  }
  dispositivo_stampa& stampante() override { return dispositivo_; }

  // The journal so far, one entry per line.
  std::vector<std::string> righe() {
    giornale_.svuota();
    std::vector<std::string> risultato;
    std::istringstream in(testo_.str());
    for (std::string riga; std::getline(in, riga);) risultato.push_back(riga);
    return risultato;
  }

  int eventi = 0;
  // What the user does while pending events run (a click in the middle of a print).
  std::function<void()> durante_eventi;

 private:
  std::ostringstream testo_;
  giornale giornale_;
  dispositivo_giornale dispositivo_;
};

}  // namespace schedine::test
