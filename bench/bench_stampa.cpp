// Print runs of large systems, with the factory calibration: a cinquina
// system of one column a line (one slip a line) and a SuperEnalotto system
// at 5 columns a slip, each at two sizes, printed to the journal (into a
// stream that drops it) and to a PDF through the Qt device.
//
// Counters: slips per second, and the peak resident memory of the process
// (getrusage ru_maxrss, in KiB). The peak only ever grows within a process,
// so run one benchmark per process (--benchmark_filter) to compare sizes:
// the readers stream the file and a page is forgotten once it is ended, so
// the peak should not follow the number of slips.

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <QGuiApplication>
#include <filesystem>
#include <fstream>
#include <memory>
#include <ostream>
#include <random>
#include <string>

#include "calibration/assicura_tar.h"
#include "core/piattaforma.h"
#include "core/stato.h"
#include "forms/controls/insieme_moduli.h"
#include "forms/controls/modulo.h"
#include "printing/dispositivo_giornale.h"
#include "printing/giornale.h"
#include "printing/qt/dispositivo_qt.h"
#include "systems/stampa_lotto.h"
#include "systems/stampa_pannelli.h"

namespace {

using namespace schedine;

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
  ~cartella_bench() {
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

enum class uscita { giornale, pdf };

// One slip form under every name, so the forms cost the same in both games.
void registra_moduli(insieme_moduli& moduli) {
  for (const char* nome : {"Form_sched_lotto_ambetto", "Form_sched_enalotto"}) {
    moduli.registra(nome, [nome](stato& s, insieme_moduli& m) { return std::make_unique<modulo_scheda_bench>(nome, s, m); });
  }
}

long picco_kib() {
  rusage uso{};
  getrusage(RUSAGE_SELF, &uso);
  return uso.ru_maxrss;
}

// Runs one print per iteration on a fresh device; the system file is made once.
template <class Prepara, class Stampa>
void misura(benchmark::State& state, uscita dove, int64_t schede, Prepara prepara, Stampa stampa) {
  cartella_bench cartella;
  stato s;
  s.cartella_programma = cartella.str();
  insieme_moduli moduli(s);
  registra_moduli(moduli);
  s.moduli = &moduli;
  prepara(s, cartella);
  for (auto _ : state) {
    std::ostream scarto(nullptr);
    giornale g(scarto);
    dispositivo_giornale su_giornale(g);
    std::unique_ptr<dispositivo_qt> su_pdf;
    if (dove == uscita::pdf) su_pdf = dispositivo_qt::per_pdf(cartella.file("corsa.pdf"));
    piattaforma_bench piattaforma(su_pdf ? static_cast<dispositivo_stampa&>(*su_pdf) : su_giornale);
    s.piattaforma = &piattaforma;
    stampa(s);
    if (su_pdf) su_pdf->termina();
    s.piattaforma = nullptr;
  }
  state.counters["schede_al_s"] = benchmark::Counter(static_cast<double>(schede * state.iterations()),
                                                     benchmark::Counter::kIsRate);
  state.counters["picco_kib"] = static_cast<double>(picco_kib());
}

void lotto(benchmark::State& state, uscita dove) {
  const int righe = static_cast<int>(state.range(0));
  misura(state, dove, righe,
         [&](stato& s, const cartella_bench& c) {
           assicura_tar_lotto(s);
           c.scrivi_colonne("cinquina/benchcad.txt", righe, 5);
           s.tipo_gioco = "cinquina";
           s.tipo_sistema = "casuale";
           s.sistema_scelto = " benchcud.txt";
           s.dalla_scheda = 1;
           s.alla_scheda = 0;
         },
         [](stato& s) { stampa_lotto(s, s.tipo_gioco); });
}

void enalotto(benchmark::State& state, uscita dove) {
  const int colonne = static_cast<int>(state.range(0));
  misura(state, dove, (colonne + 4) / 5,
         [&](stato& s, const cartella_bench& c) {
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
         [](stato& s) { stampa_enalotto(s, s.tipo_sistema, 1.0f); });
}

void imposta(benchmark::internal::Benchmark* b, int piccolo, int grande, int ripetizioni) {
  b->Arg(piccolo)->Arg(grande)->Iterations(1)->Repetitions(ripetizioni)->ReportAggregatesOnly(true)->Unit(
      benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(lotto, giornale, uscita::giornale)->Apply([](benchmark::internal::Benchmark* b) { imposta(b, 10'000, 100'000, 5); });
BENCHMARK_CAPTURE(enalotto, giornale, uscita::giornale)->Apply([](benchmark::internal::Benchmark* b) { imposta(b, 10'000, 100'000, 5); });
BENCHMARK_CAPTURE(lotto, pdf, uscita::pdf)->Apply([](benchmark::internal::Benchmark* b) { imposta(b, 10'000, 100'000, 3); });
BENCHMARK_CAPTURE(enalotto, pdf, uscita::pdf)->Apply([](benchmark::internal::Benchmark* b) { imposta(b, 10'000, 100'000, 3); });

}  // namespace

int main(int argc, char** argv) {
  // The Qt device draws text, which needs a GUI application; no screen is needed.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication applicazione(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
