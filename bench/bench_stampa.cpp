// Print runs of large systems, with the factory calibration: a cinquina
// system of one column a line (one slip a line) and a SuperEnalotto system
// at 5 columns a slip, each at two sizes, printed to the journal (a file) and
// to a PDF through the Qt device; and, for each, its floor: the same output
// made with no system logic.
//
//   lotto/giornale/N, enalotto/giornale/N   the run into a journal file
//   lotto/pdf/N, enalotto/pdf/N             the run into a PDF (Qt device)
//   */pavimento_giornale/N                  the run's journal lines, made in
//                                           advance, written to the same file
//   */pavimento_pdf/N                       the run's marks, worked out in
//                                           advance, drawn by a bare QPainter
//                                           loop on a QPdfWriter, under the
//                                           allocator setting of the device
// N is the number of columns of the system. Only the print (or the floor's
// drawing) is timed; the system file and the floor's marks are made before.
//
// Counters: slips per CPU second of the print, and the peak resident memory
// of the process (getrusage ru_maxrss, in KiB). The peak only ever grows
// within a process, so run one benchmark per process (--benchmark_filter) to
// compare sizes: the readers stream the file and a page is forgotten once it
// is ended, so the peak should not follow the number of slips. The floors
// hold all their marks in memory: their peak is not a floor. The allocator
// setting holds for the rest of a process once made, another reason to run
// one benchmark per process.
//
// The timed body of an iteration is corsa_misurata, so that
// `valgrind --tool=callgrind --toggle-collect='*corsa_misurata*'` counts the
// instructions of the print alone. scripts/bench.sh runs them all.

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <QGuiApplication>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "bench/banco_bench.h"
#include "bench/pavimento_pdf.h"
#include "core/stato.h"
#include "printing/dispositivo_giornale.h"
#include "printing/giornale.h"
#include "printing/qt/dispositivo_qt.h"

namespace {

using namespace schedine;
using namespace schedine::bench;

long picco_kib() {
  rusage uso{};
  getrusage(RUSAGE_SELF, &uso);
  return uso.ru_maxrss;
}

// The timed body of every iteration, kept out of line so that callgrind can
// count it alone.
[[gnu::noinline]] void corsa_misurata(const std::function<void()>& corpo) { corpo(); }

void conta(benchmark::State& state, int64_t schede) {
  state.counters["schede_al_s"] =
      benchmark::Counter(static_cast<double>(schede * state.iterations()), benchmark::Counter::kIsRate);
  state.counters["schede"] = static_cast<double>(schede);
  state.counters["picco_kib"] = static_cast<double>(picco_kib());
}

// The runs.

void giornale_di(benchmark::State& state, const sistema_bench& sistema) {
  banco_stampa banco(sistema);
  const std::string file = banco.cartella.file("corsa.giornale");
  for (auto _ : state) {
    corsa_misurata([&] {
      std::ofstream uscita(file, std::ios::binary);
      giornale g(uscita);
      dispositivo_giornale su_giornale(g);
      banco.stampa_su(sistema, su_giornale);
    });
  }
  conta(state, sistema.schede);
}

void pdf_di(benchmark::State& state, const sistema_bench& sistema) {
  banco_stampa banco(sistema);
  const std::string file = banco.cartella.file("corsa.pdf");
  for (auto _ : state) {
    corsa_misurata([&] {
      auto su_pdf = dispositivo_qt::per_pdf(file);
      banco.stampa_su(sistema, *su_pdf);
      su_pdf->termina();
    });
  }
  conta(state, sistema.schede);
}

// The floors.

std::vector<std::string> righe_del_giornale(banco_stampa& banco, const sistema_bench& sistema) {
  std::ostringstream testo;
  {
    giornale g(testo);
    dispositivo_giornale su_giornale(g);
    banco.stampa_su(sistema, su_giornale);
  }
  std::vector<std::string> righe;
  std::istringstream lettura(testo.str());
  for (std::string riga; std::getline(lettura, riga);) righe.push_back(std::move(riga));
  return righe;
}

void pavimento_giornale_di(benchmark::State& state, const sistema_bench& sistema) {
  banco_stampa banco(sistema);
  const auto righe = righe_del_giornale(banco, sistema);
  const std::string file = banco.cartella.file("pavimento.giornale");
  for (auto _ : state) {
    corsa_misurata([&] {
      std::ofstream uscita(file, std::ios::binary);
      for (const auto& riga : righe) uscita << riga << '\n';
      uscita.flush();
    });
  }
  conta(state, sistema.schede);
}

// The floor runs under the allocator setting that the Qt device applies at
// its first job. Left to glibc's defaults, the same loop is up to twice as
// slow or not, depending on where the marks it holds sit in the heap.
void pavimento_pdf_di(benchmark::State& state, const sistema_bench& sistema) {
  trattieni_memoria_pdf();
  banco_stampa banco(sistema);
  pavimento::registro_pdf registro;
  banco.stampa_su(sistema, registro);
  const auto segni = registro.prendi();
  const QString file = QString::fromStdString(banco.cartella.file("pavimento.pdf"));
  for (auto _ : state) {
    corsa_misurata([&] { pavimento::disegna_pavimento(segni, file); });
  }
  conta(state, sistema.schede);
}

using misura_bench = void (*)(benchmark::State&, const sistema_bench&);
using sistema_di = sistema_bench (*)(int);

void registra(const std::string& gioco, sistema_di sistema, const std::string& uscita, misura_bench misura) {
  for (int colonne : {10'000, 100'000}) {
    benchmark::RegisterBenchmark((gioco + "/" + uscita + "/" + std::to_string(colonne)).c_str(),
                                 [=](benchmark::State& state) { misura(state, sistema(colonne)); })
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
  }
}

void registra_tutti() {
  const std::pair<const char*, sistema_di> giochi[] = {{"lotto", sistema_lotto}, {"enalotto", sistema_enalotto}};
  for (const auto& [gioco, sistema] : giochi) {
    registra(gioco, sistema, "giornale", giornale_di);
    registra(gioco, sistema, "pavimento_giornale", pavimento_giornale_di);
    registra(gioco, sistema, "pdf", pdf_di);
    registra(gioco, sistema, "pavimento_pdf", pavimento_pdf_di);
  }
}

}  // namespace

int main(int argc, char** argv) {
  // The Qt device draws text, which needs a GUI application; no screen is needed.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication applicazione(argc, argv);
  benchmark::Initialize(&argc, argv);
  registra_tutti();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
