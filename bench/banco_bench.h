#pragma once
// What the print benchmarks share: a bench folder with a large system in it,
// the program state and slip forms a print run needs, and a platform whose
// printer is the device being measured. The systems are a cinquina of one
// slip a column and a SuperEnalotto of five columns a slip, factory calibrated.

#include <QtGlobal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <random>
#include <string>

#include "calibration/assicura_tar.h"
#include "controls/insieme_moduli.h"
#include "controls/modulo.h"
#include "core/piattaforma.h"
#include "core/stato.h"
#include "systems/stampa_lotto.h"
#include "systems/stampa_pannelli.h"

namespace schedine::bench {

// The controls of the slip forms that a run touches.
class modulo_scheda_bench : public modulo {
 public:
  using modulo::modulo;

 protected:
  void crea_controlli() override {
    aggiungi<etichetta>("lblimporto").caption = "1,00";
    for (int i = 0; i <= 2; ++i) aggiungi<casella_controllo>("chkTipoEstrazione", i);
    auto& superstar = aggiungi<griglia>("MSHFlexGrid1");
    superstar.dimensiona(9, 11);
    aggiungi<casella_elenco>("Combo3");
    auto& frame = aggiungi<cornice>("Frame2");
    aggiungi<barra_avanzamento>("ProgressBar1", -1, &frame).massimo = 1 << 30;
  }
};

class piattaforma_bench : public servizi_piattaforma {
 public:
  explicit piattaforma_bench(dispositivo_stampa& d) : dispositivo_(d) {}
  void esegui_eventi_in_attesa() override {}
  int messaggio(const std::string&, int, const std::string&) override { return risposta_ok; }
  void avvia_programma(const std::string&) override {}
  void carica_skin(const std::string&) override {}
  dispositivo_stampa& stampante() override { return dispositivo_; }

 private:
  dispositivo_stampa& dispositivo_;
};

class cartella_bench {
 public:
  cartella_bench() {
    std::random_device caso;
    percorso_ = std::filesystem::temp_directory_path() / ("schedine-bench-stampa-" + std::to_string(caso()));
    std::filesystem::create_directories(percorso_);
  }
  // SCHEDINE_BENCH_CONSERVA=1 keeps the folder, to look at what a run wrote.
  ~cartella_bench() {
    if (!qEnvironmentVariableIsEmpty("SCHEDINE_BENCH_CONSERVA")) {
      std::fprintf(stderr, "cartella conservata: %s\n", percorso_.c_str());
      return;
    }
    std::error_code ec;
    std::filesystem::remove_all(percorso_, ec);
  }
  std::string str() const { return percorso_.string(); }
  std::string file(const std::string& nome) const { return (percorso_ / nome).string(); }

  // A column file of `colonne` lines of n numbers from 1 to 90.
  void scrivi_colonne(const std::string& nome, int colonne, int n) const {
    std::filesystem::create_directories((percorso_ / nome).parent_path());
    std::ofstream out(percorso_ / nome, std::ios::binary);
    std::mt19937 caso(7);
    std::uniform_int_distribution<int> numero(1, 90);
    for (int c = 0; c < colonne; ++c) {
      for (int j = 0; j < n; ++j) out << numero(caso) << (j + 1 < n ? "," : "\r\n");
    }
  }

 private:
  std::filesystem::path percorso_;
};

// One system to print: how many slips it makes, how its folder and state are
// made ready, and the print itself.
struct sistema_bench {
  int64_t schede = 0;
  std::function<void(stato&, const cartella_bench&)> prepara;
  std::function<void(stato&)> stampa;
};

inline sistema_bench sistema_lotto(int colonne) {
  return {colonne,
          [colonne](stato& s, const cartella_bench& c) {
            assicura_tar_lotto(s);
            c.scrivi_colonne("cinquina/benchcad.txt", colonne, 5);
            s.tipo_gioco = "cinquina";
            s.tipo_sistema = "casuale";
            s.sistema_scelto = " benchcud.txt";
            s.dalla_scheda = 1;
            s.alla_scheda = 0;
          },
          [](stato& s) { stampa_lotto(s, s.tipo_gioco); }};
}

inline sistema_bench sistema_enalotto(int colonne) {
  return {(colonne + 4) / 5,
          [colonne](stato& s, const cartella_bench& c) {
            assicura_tar_enalotto(s);
            c.scrivi_colonne("superenalotto/benchsye.txt", colonne, 6);
            s.tipo_gioco = "superenalotto";
            s.tipo_sistema = "condizionato";
            s.sistema_scelto = " benchnue.txt";
            s.colonne_sistema = colonne;
            s.colonne_per_scheda = 5;
            s.dalla_scheda = 1;
            s.alla_scheda = 0;
          },
          [](stato& s) { stampa_enalotto(s, s.tipo_sistema, 1.0f); }};
}

// One slip form under every name, so the forms cost the same in both games.
inline void registra_moduli(insieme_moduli& moduli) {
  for (const char* nome : {"Form_sched_lotto_ambetto", "Form_sched_enalotto"}) {
    moduli.registra(nome, [nome](stato& s, insieme_moduli& m) { return std::make_unique<modulo_scheda_bench>(nome, s, m); });
  }
}

// A program state over a bench folder with the system ready to print.
struct banco_stampa {
  explicit banco_stampa(const sistema_bench& sistema) : moduli(s) {
    s.cartella_programma = cartella.str();
    registra_moduli(moduli);
    s.moduli = &moduli;
    sistema.prepara(s, cartella);
  }

  // Prints the system once on the device.
  void stampa_su(const sistema_bench& sistema, dispositivo_stampa& dispositivo) {
    piattaforma_bench piattaforma(dispositivo);
    s.piattaforma = &piattaforma;
    sistema.stampa(s);
    s.piattaforma = nullptr;
  }

  cartella_bench cartella;
  stato s;
  insieme_moduli moduli;
};

}  // namespace schedine::bench
