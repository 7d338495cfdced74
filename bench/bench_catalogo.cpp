// The list of saved systems: how long the main form takes to list a folder
// of 5,000 SuperEnalotto systems of every kind, and how long the whole
// start-up takes to its first list. The floor of both is a bare scan of the
// same folder that keeps every name: no program could list the systems in
// less.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "core/errore_runtime.h"
#include "core/file_sistema.h"
#include "core/piattaforma.h"
#include "forms/main/Form1.h"
#include "forms/programma/programma.h"

namespace {

using namespace schedine;

class piattaforma_muta : public servizi_piattaforma {
 public:
  void esegui_eventi_in_attesa() override {}
  int messaggio(const std::string&, int, const std::string&) override { return risposta_ok; }
  void avvia_programma(const std::string&) override {}
  void carica_skin(const std::string&) override {}
  dispositivo_stampa& stampante() override { throw errore_runtime(codice::errore_stampante); }
};

// A program folder with 5,000 SuperEnalotto systems: a quarter of each kind.
std::string cartella_con_sistemi() {
  static std::string cartella;
  if (!cartella.empty()) return cartella;
  cartella = (std::filesystem::temp_directory_path() / "schedine-bench-catalogo").string();
  std::filesystem::remove_all(cartella);
  std::filesystem::create_directories(cartella + "/superenalotto");
  std::filesystem::create_directories(cartella + "/skin");
  const char* suffissi[] = {"sye.txt", "cae.txt", "ridae.txt", "nude.txt"};
  for (int i = 0; i < 5000; ++i) {
    char nome[16];
    std::snprintf(nome, sizeof nome, "s%05d", i);
    std::ofstream(cartella + "/superenalotto/" + nome + suffissi[i % 4]) << "1\r\n";
  }
  return cartella;
}

void BM_elenco_5000_sistemi(benchmark::State& stato_bench) {
  piattaforma_muta piattaforma;
  programma p(cartella_con_sistemi(), piattaforma, formato_locale::italiano());
  p.avvia();
  auto& form = p.moduli.di<Form1>("Form1");
  for (auto _ : stato_bench) {
    form.c<pulsante_opzione>("Option1", 4).clic_utente();
    benchmark::DoNotOptimize(form.c<casella_elenco>("List1").conta());
  }
  stato_bench.counters["voci"] = form.c<casella_elenco>("List1").conta();
}
BENCHMARK(BM_elenco_5000_sistemi)->Unit(benchmark::kMillisecond);

void BM_avvio_fino_al_primo_elenco(benchmark::State& stato_bench) {
  piattaforma_muta piattaforma;
  // Making the folder is not part of the start-up.
  const std::string cartella = cartella_con_sistemi();
  for (auto _ : stato_bench) {
    programma p(cartella, piattaforma, formato_locale::italiano());
    p.avvia();
    benchmark::DoNotOptimize(p.moduli("Form1").c<casella_elenco>("List1").conta());
    p.termina();
  }
}
BENCHMARK(BM_avvio_fino_al_primo_elenco)->Unit(benchmark::kMillisecond);

void BM_scansione_5000_sistemi(benchmark::State& stato_bench) {
  const auto cartella = std::filesystem::path(cartella_con_sistemi()) / "superenalotto";
  for (auto _ : stato_bench) {
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(cartella)) nomi.push_back(voce.path().filename().string());
    benchmark::DoNotOptimize(nomi.data());
    stato_bench.counters["voci"] = static_cast<double>(nomi.size());
  }
}
BENCHMARK(BM_scansione_5000_sistemi)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
