#pragma once
// A bench for print runs: a program folder, the journal as printer, the slip
// forms with what a run touches (Frame2 with ProgressBar1 inside), number
// grids whose coordinates tell the number and the panel back, and a reading
// of the journal slip by slip.

#include <cstdio>
#include <string>
#include <vector>

#include "controls/insieme_moduli.h"
#include "core/stato.h"
#include "tests/printing/moduli_prova.h"
#include "tests/support/cartella_temporanea.h"
#include "tests/support/piattaforma_prova.h"

namespace schedine::test {

// A test slip form with the progress frame of a run, hidden as at design.
template <class M>
class con_avanzamento : public M {
 public:
  using M::M;

 protected:
  void crea_controlli() override {
    M::crea_controlli();
    auto& frame = this->template aggiungi<cornice>("Frame2");
    frame.visibile = false;
    this->template aggiungi<barra_avanzamento>("ProgressBar1", -1, &frame);
  }
};

class modulo_vuoto : public modulo {
 public:
  using modulo::modulo;
};

// X of a mark tells where it is: 1000 * panel + number on tab_coord (panel 0
// for the Lotto and 10eLotto grids, where X is the number itself).
constexpr float x_di(int gruppo, int numero) { return static_cast<float>(1000 * gruppo + numero); }

class banco_stampa {
 public:
  banco_stampa() {
    s.cartella_programma = cartella.str();
    s.piattaforma = &piattaforma;
    s.moduli = &moduli;
    s.carattere_stampa = 1;
    moduli.registra("Form_sched_lotto_ambetto", fabbrica_di<con_avanzamento<modulo_lotto_prova>>("Form_sched_lotto_ambetto"));
    moduli.registra("Form_sched_enalotto", fabbrica_di<con_avanzamento<modulo_enalotto_prova>>("Form_sched_enalotto"));
    moduli.registra("Form_sched_wforlife", fabbrica_di<con_avanzamento<modulo_wforlife_prova>>("Form_sched_wforlife"));
    moduli.registra("Form_sched_wforlife5", fabbrica_di<con_avanzamento<modulo_wforlife5_prova>>("Form_sched_wforlife5"));
    moduli.registra("Form_sched_10elotto", fabbrica_di<con_avanzamento<modulo_vuoto>>("Form_sched_10elotto"));
    for (int n = 0; n <= 90; ++n) {
      s.tar_numeri(n, asse_x) = x_di(0, n);
      s.tar_numeri(n, asse_y) = 100.0f + static_cast<float>(n);
      s.tar_numeri_10e(n, asse_x) = x_di(0, n);
      s.tar_numeri_10e(n, asse_y) = 200.0f + static_cast<float>(n);
    }
    for (int g = 0; g < tabella_coord::gruppi; ++g) {
      for (int n = 0; n < tabella_coord::righe; ++n) s.tab_coord(g, n, asse_x) = x_di(g, n);
    }
    modulo_di_stampa("Form_sched_lotto_ambetto").c<etichetta>("lblimporto").caption = "1,00";
    // No stake chosen on the Win for Life slips: their only marks are then the numbers.
    modulo_di_stampa("Form_sched_wforlife").c<pulsante_opzione>("Option3", 0).imposta_valore(false);
    modulo_di_stampa("Form_sched_wforlife5").c<pulsante_opzione>("Option3", 0).imposta_valore(false);
  }

  modulo& modulo_di_stampa(const std::string& nome) { return moduli(nome); }
  barra_avanzamento& barra(const std::string& nome) { return moduli(nome).c<barra_avanzamento>("ProgressBar1"); }
  bool frame2_visibile(const std::string& nome) { return moduli(nome).c<cornice>("Frame2").visibile; }

  // What the print button does before it calls the driver.
  void prepara_corsa(const std::string& nome_modulo, int dalla, int alla) {
    s.dalla_scheda = dalla;
    s.alla_scheda = alla;
    barra(nome_modulo).massimo = alla - dalla + 1;
    passa_oltre([&] { barra(nome_modulo).imposta_valore(0); });
    moduli(nome_modulo).c<cornice>("Frame2").visibile = true;
  }

  cartella_temporanea cartella;
  piattaforma_prova piattaforma;
  stato s;
  insieme_moduli moduli{s};
};

// The journal read back slip by slip: "n.K €A: numbers", where the numbers
// are those of the Lotto grid, or "panel:number" on the panel slips. A slip
// is closed by its new page; a last slip without one (a job ended inside a
// slip, or left open) is read as well. The amount is left out when the slip
// has no text line.
inline std::vector<std::string> schede(const std::vector<std::string>& righe) {
  std::vector<std::string> risultato;
  std::string testo, numeri;
  auto chiudi = [&] {
    risultato.push_back(testo + ":" + numeri);
    testo.clear();
    numeri.clear();
  };
  for (const auto& riga : righe) {
    float x = 0, y = 0, r = 0;
    if (std::sscanf(riga.c_str(), "disegna_cerchio %f %f %f", &x, &y, &r) == 3) {
      int gruppo = static_cast<int>(x) / 1000, numero = static_cast<int>(x) % 1000;
      numeri += " " + (gruppo > 0 ? std::to_string(gruppo) + ":" : "") + std::to_string(numero);
    } else if (riga.starts_with("stampa_testo")) {
      size_t n = riga.find("Sched. n.") + 9, e = riga.find("€ ") + 4;
      testo = "n." + riga.substr(n, riga.find(' ', n) - n) + " €" + riga.substr(e, riga.size() - e - 1);
    } else if (riga == "nuova_pagina") {
      chiudi();
    }
  }
  if (!testo.empty() || !numeri.empty()) chiudi();
  return risultato;
}

// How the job stands at the end of the journal.
inline std::string esito(const std::vector<std::string>& righe) {
  size_t n = righe.size();
  if (n == 0 || righe[n - 1] != "chiudi_stampa") return "aperto";
  return n >= 2 && righe[n - 2] == "imposta_riempimento 1" ? "chiuso" : "troncato";
}

}  // namespace schedine::test
