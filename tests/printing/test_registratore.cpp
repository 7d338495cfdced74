// The recorder of the print preview: what it replays is what the run drew,
// page by page, each page on its own with the state it began with.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "printing/dispositivo_giornale.h"
#include "printing/giornale.h"
#include "printing/registratore.h"

namespace schedine {
namespace {

// A job as a reader draws it: three slips, the state changed on the way
// (fill colour on slip 1, bold on slip 2), and the empty page end of the last.
void tre_schede(dispositivo_stampa& d) {
  d.imposta_modo_pagina(1);
  d.imposta_scala_mm();
  d.imposta_penna(1, 1);
  d.imposta_riempimento(0, 0);
  d.disegna_punto_zero();
  for (int scheda = 1; scheda <= 3; ++scheda) {
    d.disegna_punto_zero();
    d.disegna_cerchio(5.72f * scheda, 24.6f, 1);
    d.disegna_rettangolo(10, 20, 8, 22);
    if (scheda == 1) d.imposta_riempimento(0, 255);
    if (scheda == 2) d.imposta_font_grassetto(true);
    d.imposta_font_nome("arial");
    d.posiziona_testo(5.72f, 9.6f);
    d.imposta_font_dimensione(8);
    d.stampa_testo("di \"prova\" - Sched. n." + std::to_string(d.numero_pagina()) + " - € 1,50");
    d.nuova_pagina();
  }
  d.imposta_riempimento(1);
  d.chiudi_stampa();
}

std::vector<std::string> righe(const std::string& testo) {
  std::vector<std::string> r;
  std::istringstream in(testo);
  for (std::string riga; std::getline(in, riga);) r.push_back(riga);
  return r;
}

std::vector<std::string> giornale_di(const std::function<void(dispositivo_stampa&)>& lavoro) {
  std::ostringstream testo;
  {
    giornale g(testo);
    dispositivo_giornale d(g);
    lavoro(d);
  }
  return righe(testo.str());
}

// What reaches paper: drawings, texts and page ends.
std::vector<std::string> disegni(const std::vector<std::string>& r) {
  std::vector<std::string> scelte;
  for (const std::string& riga : r) {
    for (const char* op : {"disegna_", "stampa_testo", "nuova_pagina"}) {
      if (riga.rfind(op, 0) == 0) scelte.push_back(riga);
    }
  }
  return scelte;
}

TEST(Registratore, ReplaysTheDrawingsOfTheRunPageByPage) {
  registratore pagine;
  tre_schede(pagine);
  ASSERT_EQ(pagine.pagine(), 3u) << "the empty page after the last slip is no page";
  EXPECT_EQ(pagine.segni(), 6u);
  auto diretto = disegni(giornale_di(tre_schede));
  diretto.pop_back();  // that empty page's end
  EXPECT_EQ(disegni(giornale_di([&](dispositivo_stampa& d) { pagine.riproduci_tutto(d); })), diretto);
  // The running number came from the recorder's page numbers, as from a printer's.
  EXPECT_NE(std::find(diretto.begin(), diretto.end(), "stampa_testo \"di \"\"prova\"\" - Sched. n.3 - € 1,50\""),
            diretto.end());
}

TEST(Registratore, APageAloneBeginsWithTheStateItWasDrawnIn) {
  registratore pagine;
  tre_schede(pagine);
  const auto terza = giornale_di([&](dispositivo_stampa& d) { pagine.riproduci_pagina(2, d); });
  ASSERT_GE(terza.size(), 7u);
  const std::vector<std::string> stato(terza.begin(), terza.begin() + 6);
  EXPECT_EQ(stato, (std::vector<std::string>{"imposta_penna 1 1", "imposta_riempimento 0 255", "imposta_font nome \"arial\"",
                                             "imposta_font dimensione 8", "imposta_font grassetto 1",
                                             "posiziona_testo 5.72 9.6"}));
  EXPECT_EQ(terza[6], "disegna_punto_zero");
  EXPECT_EQ(terza.back(), "stampa_testo \"di \"\"prova\"\" - Sched. n.3 - € 1,50\"");
}

TEST(Registratore, PagesOfSeveralJobsAndARunLeftOpen) {
  registratore pagine;
  pagine.imposta_schedina(schedina::lotto);
  tre_schede(pagine);
  EXPECT_EQ(pagine.numero_pagina(), 1) << "a new job counts from 1";
  // A test sheet, one page with no page end, then a run that stops with its job open.
  pagine.imposta_schedina(schedina::wforlife);
  pagine.disegna_cerchio(1, 2, 1);
  pagine.chiudi_stampa();
  pagine.disegna_punto_zero();
  pagine.nuova_pagina();
  pagine.disegna_cerchio(3, 4, 1);
  EXPECT_EQ(pagine.pagine(), 5u);
  pagine.concludi();
  ASSERT_EQ(pagine.pagine(), 6u);
  EXPECT_EQ(pagine.pagina_n(0).carta, schedina::lotto);
  EXPECT_EQ(pagine.pagina_n(3).carta, schedina::wforlife);
  EXPECT_EQ(giornale_di([&](dispositivo_stampa& d) { pagine.riproduci_pagina(5, d); }).back(), "disegna_cerchio 3 4 1");
}

}  // namespace
}  // namespace schedine
