// Time of saving and loading each of the five calibration files, in a fresh
// folder under the system's temporary folder. A save ends with the file made
// durable on disk, so it measures the disk as much as the program.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <string>

#include "calibration/fabbrica.h"
#include "calibration/file_tar.h"
#include "core/stato.h"

namespace {

using namespace schedine;

struct file_tar {
  const char* nome;
  void (*fabbrica)(stato&);
  void (*salva)(const stato&);
  void (*carica)(stato&);
};

constexpr file_tar files[] = {
    {"tarlo2", default_tar_lotto, salva_tar_lotto, carica_tar_lotto},
    {"taren", default_tar_enalotto, salva_tar_enalotto, carica_tar_enalotto},
    {"taren2", default_tar_enalotto2, salva_tar_enalotto2, carica_tar_enalotto2},
    {"tarwfl", default_tar_wforlife, salva_tar_wforlife, carica_tar_wforlife},
    {"tarwfl2", default_tar_wforlife5, salva_tar_wforlife5, carica_tar_wforlife5},
};

class cartella_bench {
 public:
  cartella_bench() {
    std::random_device caso;
    percorso_ = std::filesystem::temp_directory_path() / ("schedine-bench-" + std::to_string(caso()));
    std::filesystem::create_directories(percorso_);
  }
  ~cartella_bench() {
    std::error_code ec;
    std::filesystem::remove_all(percorso_, ec);
  }
  std::string str() const { return percorso_.string(); }

 private:
  std::filesystem::path percorso_;
};

stato stato_di_fabbrica(const std::string& cartella, const file_tar& f) {
  stato s;
  s.cartella_programma = cartella;
  f.fabbrica(s);
  return s;
}

void salva(benchmark::State& state, const file_tar& f) {
  cartella_bench cartella;
  const stato s = stato_di_fabbrica(cartella.str(), f);
  for (auto _ : state) f.salva(s);
}

void carica(benchmark::State& state, const file_tar& f) {
  cartella_bench cartella;
  stato s = stato_di_fabbrica(cartella.str(), f);
  for (auto _ : state) {
    f.carica(s);
    benchmark::DoNotOptimize(s.tab_coord);
  }
}

const bool registrati = [] {
  for (const auto& f : files) {
    benchmark::RegisterBenchmark((std::string("salva/") + f.nome).c_str(), salva, f)
        ->Repetitions(5)
        ->ReportAggregatesOnly(true)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark((std::string("carica/") + f.nome).c_str(), carica, f)
        ->Repetitions(5)
        ->ReportAggregatesOnly(true)
        ->Unit(benchmark::kMicrosecond);
  }
  return true;
}();

}  // namespace

BENCHMARK_MAIN();
