// System files made to hurt, of about 10 MB each, through the print to the
// journal: slips 1 to 21 of a run, as a user asks for a short range of a
// system that someone else wrote. Whatever a file holds, a run must print or
// end in a time that follows the slips asked for and the bytes read, never a
// product of the two.
//
//   stampa/LETTORE/CONTENUTO   the print of slips 1 to 21 into a journal file
//   testate/CONTENUTO          the readers of head files over the same file
//   record/CONTENUTO           the record reader to the end of the file, one
//                              byte field at a time, going on after failures
//
// LETTORE: sestine (sestine-decine condizionato, which passes over failures
// and takes its column size from the first line), cinquina (cinquina
// condizionato, passing over failures too), croce (cinquina crossword),
// enalotto (SuperEnalotto condizionato, five columns a slip, which stops at a
// failure).
// CONTENUTO: prima_riga (one line of comma-separated numbers, then 20 short
// lines), cifre (one field of digits), spazi (blanks), stringa (one quoted
// string), virgole (commas only), righe (line ends only), binario (random bytes).
//
// SCHEDINE_BENCH_MB sets the size of the files in MB (default 10), for
// measuring a slow reader on a smaller file. Only the run is timed.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "bench/banco_bench.h"
#include "core/errore_runtime.h"
#include "core/file_record.h"
#include "printing/dispositivo_giornale.h"
#include "printing/giornale.h"
#include "systems/lettore_colonne.h"
#include "systems/testata.h"

namespace {

using namespace schedine;
using namespace schedine::bench;

size_t dimensione() {
  const char* mb = std::getenv("SCHEDINE_BENCH_MB");
  const double valore = mb != nullptr ? std::atof(mb) : 10.0;
  return static_cast<size_t>((valore > 0 ? valore : 10.0) * 1024 * 1024);
}

constexpr const char* contenuti[] = {"prima_riga", "cifre", "spazi", "stringa", "virgole", "righe", "binario"};

std::string contenuto(const std::string& tipo) {
  const size_t n = dimensione();
  if (tipo == "cifre") return std::string(n, '7');
  if (tipo == "spazi") return std::string(n, ' ');
  if (tipo == "stringa") return '"' + std::string(n, 'a') + '"';
  if (tipo == "virgole") return std::string(n, ',');
  if (tipo == "righe") {
    std::string testo;
    while (testo.size() < n) testo += "\r\n";
    return testo;
  }
  if (tipo == "binario") {
    std::mt19937 caso(11);
    std::string testo(n, '\0');
    for (char& c : testo) c = static_cast<char>(caso());
    return testo;
  }
  // prima_riga
  std::string testo;
  for (int i = 0; testo.size() < n; ++i) testo += std::to_string(1 + i % 90) + ',';
  testo += "90\r\n";
  for (int riga = 0; riga < 20; ++riga) testo += "1,2,3,4,5,6,7,8,9,10,11\r\n";
  return testo;
}

void scrivi(const cartella_bench& c, const std::string& nome, const std::string& testo) {
  std::filesystem::create_directories(std::filesystem::path(c.file(nome)).parent_path());
  std::ofstream(c.file(nome), std::ios::binary) << testo;
}

struct lettore_bench {
  const char* nome;
  const char* file;  // the column file, in the program folder
  const char* tipo_gioco;
  const char* tipo_sistema;
  const char* sistema_scelto;
  bool enalotto;
};

constexpr lettore_bench lettori[] = {
    {"sestine", "sestine-decine/ostilesyf.txt", "sestine-decine", "condizionato", " ostilenuf.txt", false},
    {"cinquina", "cinquina/ostilesyd.txt", "cinquina", "condizionato", " ostilenud.txt", false},
    {"croce", "cruciverba/ostile.lot", "cinquina_c", "condizionato", "ostile.sel", false},
    {"enalotto", "superenalotto/ostilesye.txt", "superenalotto", "condizionato", " ostilenue.txt", true},
};

sistema_bench sistema_ostile(const lettore_bench& l, const std::string& tipo) {
  return {21,
          [l, tipo](stato& s, const cartella_bench& c) {
            if (l.enalotto) {
              assicura_tar_enalotto(s);
            } else {
              assicura_tar_lotto(s);
            }
            scrivi(c, l.file, contenuto(tipo));
            s.tipo_gioco = l.tipo_gioco;
            s.tipo_sistema = l.tipo_sistema;
            s.sistema_scelto = l.sistema_scelto;
            s.colonne_sistema = 105;
            s.colonne_per_scheda = 5;
            s.dalla_scheda = 1;
            s.alla_scheda = 21;
          },
          [l](stato& s) {
            // A reader that stops the run lets its error out of the driver,
            // and the print button passes over it.
            passa_oltre([&] {
              if (l.enalotto) {
                stampa_enalotto(s, s.tipo_sistema, 1.0f);
              } else {
                stampa_lotto(s, s.tipo_gioco);
              }
            });
          }};
}

void stampa_ostile(benchmark::State& state, const lettore_bench& l, const std::string& tipo) {
  const sistema_bench sistema = sistema_ostile(l, tipo);
  banco_stampa banco(sistema);
  const std::string file = banco.cartella.file("corsa.giornale");
  for (auto _ : state) {
    std::ofstream uscita(file, std::ios::binary);
    giornale g(uscita);
    dispositivo_giornale su_giornale(g);
    banco.stampa_su(sistema, su_giornale);
  }
  state.counters["byte_giornale"] = static_cast<double>(std::filesystem::file_size(file));
}

void testate_ostili(benchmark::State& state, const std::string& tipo) {
  cartella_bench c;
  scrivi(c, "testata", contenuto(tipo));
  const std::string percorso = c.file("testata");
  int64_t somma = 0;
  for (auto _ : state) {
    for (genere g : {genere::casuale, genere::condizionato, genere::autoridotto, genere::ridotto_un_file,
                     genere::ridotto_due_file}) {
      passa_oltre([&] { somma += colonne_da_testata(percorso, g); });
    }
    passa_oltre([&] { somma += primo_long(percorso); });
    passa_oltre([&] { somma += conta_righe(percorso); });
    passa_oltre([&] { somma += numeri_prima_riga(percorso); });
  }
  benchmark::DoNotOptimize(somma);
}

void record_ostile(benchmark::State& state, const std::string& tipo) {
  cartella_bench c;
  scrivi(c, "record", contenuto(tipo));
  int64_t campi = 0;
  for (auto _ : state) {
    lettore_record file(c.file("record"));
    campi = 0;
    while (!file.fine_file()) {
      passa_oltre([&] { file.leggi_byte(); });
      ++campi;
    }
  }
  state.counters["campi"] = static_cast<double>(campi);
}

void registra_tutti() {
  for (const std::string tipo : contenuti) {
    for (const auto& l : lettori) {
      benchmark::RegisterBenchmark(("stampa/" + std::string(l.nome) + "/" + tipo).c_str(),
                                   [l, tipo](benchmark::State& state) { stampa_ostile(state, l, tipo); })
          ->Iterations(1)
          ->Unit(benchmark::kMillisecond);
    }
    benchmark::RegisterBenchmark(("testate/" + tipo).c_str(),
                                 [tipo](benchmark::State& state) { testate_ostili(state, tipo); })
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(("record/" + tipo).c_str(),
                                 [tipo](benchmark::State& state) { record_ostile(state, tipo); })
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  registra_tutti();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
