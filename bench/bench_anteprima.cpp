// The print preview of large runs, with the factory calibration:
//
//   registra/lotto/N, registra/enalotto/N   the run into the recorder: the
//                                          bytes it holds per mark
//   pronta/lotto/N                         from the run's end to the window
//                                          shown with its first page drawn
//   pagina/lotto/Z, pagina/enalotto/Z      one page (picture and marks) drawn
//                                          as the window draws it, at zoom Z
//                                          percent, over a 900 x 900 view at
//                                          the top left of the page, and the
//                                          whole page at 100 percent
// N is the number of columns of the system (one slip a column on Lotto, five
// on SuperEnalotto). scripts/bench.sh runs them with the other benchmarks.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <memory>

#include "app/anteprima/finestra_anteprima.h"
#include "app/anteprima/pagina_anteprima.h"
#include "app/anteprima/regia_stampa.h"
#include "bench/banco_bench.h"
#include "printing/registratore.h"

namespace {

using namespace schedine;
using namespace schedine::bench;

std::unique_ptr<registratore> registra_corsa(banco_stampa& banco, const sistema_bench& sistema, schedina carta) {
  auto pagine = std::make_unique<registratore>();
  pagine->imposta_schedina(carta);
  banco.stampa_su(sistema, *pagine);
  return pagine;
}

void registra(benchmark::State& state, const sistema_bench& sistema, schedina carta) {
  banco_stampa banco(sistema);
  std::unique_ptr<registratore> pagine;
  for (auto _ : state) {
    pagine = registra_corsa(banco, sistema, carta);
    pagine->concludi();
  }
  state.counters["schede"] = static_cast<double>(pagine->pagine());
  state.counters["segni"] = static_cast<double>(pagine->segni());
  state.counters["byte_per_segno"] = static_cast<double>(pagine->byte_occupati()) / static_cast<double>(pagine->segni());
}

// What follows the run's end on "Anteprima": the open page kept, the
// window made and shown, its first page drawn.
void pronta(benchmark::State& state, const sistema_bench& sistema) {
  banco_stampa banco(sistema);
  registratore nessuna_stampa;  // the preview's own printer, unused here
  piattaforma_bench piattaforma(nessuna_stampa);
  regia_stampa regia(piattaforma);
  for (auto _ : state) {
    state.PauseTiming();
    auto pagine = registra_corsa(banco, sistema, schedina::lotto);
    state.ResumeTiming();
    pagine->concludi();
    finestra_anteprima finestra(std::move(pagine), regia, nullptr);
    finestra.show();
    QImage schermo(finestra.size(), QImage::Format_ARGB32_Premultiplied);
    finestra.render(&schermo);
    benchmark::DoNotOptimize(schermo.constBits());
  }
}

void pagina(benchmark::State& state, const sistema_bench& sistema, schedina carta, double zoom, bool intera) {
  banco_stampa banco(sistema);
  auto pagine = registra_corsa(banco, sistema, carta);
  pagina_anteprima vista(*pagine, nullptr);
  vista.imposta_zoom(zoom);
  vista.mostra_pagina(pagine->pagine() / 2);
  const QSize misura = intera ? vista.sizeHint() : QSize(900, 900);
  QImage schermo(misura, QImage::Format_ARGB32_Premultiplied);
  for (auto _ : state) {
    QPainter p(&schermo);
    vista.disegna(p, QRectF(QPointF(0, 0), misura));
  }
}

void registra_tutti() {
  auto unita = [](benchmark::internal::Benchmark* b) { b->Unit(benchmark::kMillisecond); };
  unita(benchmark::RegisterBenchmark("registra/lotto/10000", [](benchmark::State& s) {
    registra(s, sistema_lotto(10'000), schedina::lotto);
  }));
  unita(benchmark::RegisterBenchmark("registra/enalotto/50000", [](benchmark::State& s) {
    registra(s, sistema_enalotto(50'000), schedina::enalotto);
  }));
  unita(benchmark::RegisterBenchmark("pronta/lotto/10000", [](benchmark::State& s) { pronta(s, sistema_lotto(10'000)); }));
  for (int z : {50, 100, 200, 400}) {
    unita(benchmark::RegisterBenchmark(("pagina/lotto/" + std::to_string(z)).c_str(), [z](benchmark::State& s) {
      pagina(s, sistema_lotto(100), schedina::lotto, z / 100.0, false);
    }));
    unita(benchmark::RegisterBenchmark(("pagina/enalotto/" + std::to_string(z)).c_str(), [z](benchmark::State& s) {
      pagina(s, sistema_enalotto(500), schedina::enalotto, z / 100.0, false);
    }));
  }
  unita(benchmark::RegisterBenchmark("pagina/lotto/intera_100", [](benchmark::State& s) {
    pagina(s, sistema_lotto(100), schedina::lotto, 1.0, true);
  }));
  unita(benchmark::RegisterBenchmark("pagina/enalotto/intera_100", [](benchmark::State& s) {
    pagina(s, sistema_enalotto(500), schedina::enalotto, 1.0, true);
  }));
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication applicazione(argc, argv);
  benchmark::Initialize(&argc, argv);
  registra_tutti();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
