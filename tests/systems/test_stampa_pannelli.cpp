#include <gtest/gtest.h>

#include <sstream>

#include "systems/stampa_pannelli.h"
#include "tests/systems/banco_stampa.h"

namespace schedine {
namespace {

using test::banco_stampa;
using righe = std::vector<std::string>;
using driver = void (*)(stato&, const std::string&, float);

constexpr const char* enalotto = "Form_sched_enalotto";

// A slip with each run of equal marks written once: a column whose numbers
// all equal its place in the file reads "panel:column".
std::string compatta(const std::string& scheda) {
  std::istringstream parole(scheda);
  std::string risultato, parola, ultima;
  while (parole >> parola) {
    if (parola != ultima) risultato += (risultato.empty() ? "" : " ") + parola;
    ultima = parola;
  }
  return risultato;
}

struct corsa {
  righe giornale;
  righe schede;
  std::string esito;
};

// A column file of `colonne` columns of n numbers, column c holding c n times.
std::string file_colonne(int colonne, int n, bool testata = false) {
  std::string file = testata ? "\"testa\",0,0\r\n" : "";
  for (int c = 1; c <= colonne; ++c) {
    for (int j = 0; j < n; ++j) file += std::to_string(c) + (j + 1 < n ? "," : "\r\n");
  }
  return file;
}

corsa stampa(banco_stampa& b, driver d, const std::string& modulo, const std::string& tipo_sistema,
             const std::string& scelto, int per_scheda, int dalla = 1, int alla = 0) {
  b.s.sistema_scelto = scelto;
  b.s.colonne_per_scheda = static_cast<uint8_t>(per_scheda);
  b.prepara_corsa(modulo, dalla, alla);
  d(b.s, tipo_sistema, 1.0f);
  corsa c{b.piattaforma.righe(), {}, ""};
  for (const auto& scheda : test::schede(c.giornale)) c.schede.push_back(compatta(scheda));
  c.esito = test::esito(c.giornale);
  return c;
}

// A file that ends inside a printed slip sends that slip out and closes the
// job on its page: no bold off, no fill off.
TEST(StampaPannelli, PartialLastSlipEndsTheJobOnItsPage) {
  banco_stampa b;
  b.s.tipo_gioco = "superenalotto";
  b.cartella.scrivi("superenalotto/dcae.txt", file_colonne(3, 6));
  corsa c = stampa(b, stampa_enalotto2, enalotto, "casuale", " dcue.txt", 2, 1, 2);
  righe attese = {"imposta_scala_mm", "imposta_penna 1 1", "imposta_riempimento 0 0", "disegna_punto_zero"};
  auto scheda = [&](std::vector<std::pair<int, int>> pannelli, const std::string& coda) {
    attese.push_back("disegna_punto_zero");
    for (auto [pannello, numero] : pannelli) {
      for (int j = 0; j < 6; ++j) attese.push_back("disegna_cerchio " + std::to_string(1000 * pannello + numero) + " 0 1");
    }
    for (const char* riga : {"imposta_font nome \"arial\"", "posiziona_testo 2061 -13", "imposta_font dimensione 8"}) {
      attese.push_back(riga);
    }
    attese.push_back(coda);
  };
  scheda({{1, 1}, {2, 2}}, "stampa_testo \"d - Sched. n.1 - € 2,00\"");
  attese.push_back("nuova_pagina");
  scheda({{1, 3}}, "stampa_testo \"d - Sched. n.2 - € 1,00\"");
  attese.push_back("chiudi_stampa");
  EXPECT_EQ(c.giornale, attese);
  EXPECT_EQ(b.barra(enalotto).valore(), 1);
  EXPECT_FALSE(b.frame2_visibile(enalotto));
}

// The five-panel SuperEnalotto slip never leaves one column alone for the next slip.
TEST(StampaPannelli, TwoColumnRuleAndSlipRange) {
  struct caso {
    int per_scheda, colonne, dalla, alla;
    righe attese;
    const char* esito;
  } casi[] = {
      {5, 7, 1, 0, {"n.1 €5,00: 1:1 2:2 3:3 4:4 5:5", "n.2 €2,00: 1:6 2:7"}, "troncato"},
      {5, 6, 1, 0, {"n.1 €4,00: 1:1 2:2 3:3 4:4", "n.2 €2,00: 1:5 2:6"}, "troncato"},
      {3, 4, 1, 0, {"n.1 €2,00: 1:1 2:2", "n.2 €2,00: 1:3 2:4"}, "troncato"},
      {5, 10, 1, 0, {"n.1 €5,00: 1:1 2:2 3:3 4:4 5:5", "n.2 €5,00: 1:6 2:7 3:8 4:9 5:10"}, "chiuso"},
      // Columns read while skipping count for the rule.
      {5, 11, 2, 0, {"n.2 €4,00: 1:6 2:7 3:8 4:9", "n.3 €2,00: 1:10 2:11"}, "troncato"},
      {5, 12, 2, 2, {"n.2 €5,00: 1:6 2:7 3:8 4:9 5:10"}, "chiuso"},
      // The file ends inside a skipped slip: a failure, the job stays open.
      {5, 7, 3, 0, {}, "aperto"},
      // One column a slip with two left: the rule leaves every later slip
      // empty; the run stops at alla_scheda, or after the first empty slip
      // when alla_scheda can't stop it.
      {1, 3, 1, 3, {"n.1 €1,00: 1:1", "n.2 €0,00:", "n.3 €0,00:"}, "chiuso"},
      {1, 3, 1, 0, {"n.1 €1,00: 1:1", "n.2 €0,00:"}, "chiuso"},
  };
  for (const auto& k : casi) {
    banco_stampa b;
    b.cartella.scrivi("superenalotto/rsye.txt", file_colonne(k.colonne, 6));
    b.s.colonne_sistema = k.colonne;
    corsa c = stampa(b, stampa_enalotto, enalotto, "condizionato", " rnue.txt", k.per_scheda, k.dalla, k.alla);
    std::string nome = std::to_string(k.colonne) + " at " + std::to_string(k.per_scheda) + " from " + std::to_string(k.dalla);
    EXPECT_EQ(c.schede, k.attese) << nome;
    EXPECT_EQ(c.esito, k.esito) << nome;
    EXPECT_FALSE(b.frame2_visibile(enalotto)) << nome;
  }
}

// Every driver with every kind of system: its folder, file, head, panels and
// the column count its renderer is told (the amount at 1 € a column).
TEST(StampaPannelli, EachDriverAndKindReadsItsOwnFile) {
  struct caso {
    driver d;
    const char* modulo;
    const char* tipo_gioco;
    const char* tipo_sistema;
    const char* scelto;
    const char* file;  // nullptr: no reader
    std::string contenuto;
    int per_scheda;
    righe attese;
    const char* esito;
  } casi[] = {
      {stampa_enalotto, enalotto, "superenalotto", "condizionato", " snue.txt", "superenalotto/ssye.txt", file_colonne(2, 6), 2, {"n.1 €2,00: 1:1 2:2"}, "chiuso"},
      {stampa_enalotto, enalotto, "superenalotto", "casuale", " scue.txt", "superenalotto/scae.txt", file_colonne(2, 6), 2, {"n.1 €2,00: 1:1 2:2"}, "chiuso"},
      {stampa_enalotto, enalotto, "superenalotto", "autoridotto", " sridae.txt", "superenalotto/srie.txt", file_colonne(2, 6), 2, {"n.1 €2,00: 1:1 2:2"}, "chiuso"},
      {stampa_enalotto, enalotto, "superenalotto", "ridotto", " sride.txt", "superenalotto/sride.txt", file_colonne(2, 6, true), 2, {"n.1 €2,00: 1:1 2:2"}, "chiuso"},
      {stampa_enalotto, enalotto, "superenalotto", "ridotto", " srifae.txt", "superenalotto/srife.txt", file_colonne(2, 6), 2, {"n.1 €2,00: 1:1 2:2"}, "chiuso"},
      {stampa_enalotto, enalotto, "cruciverba", "cruciverba", " sc.col", "cruciverba/sc.col", file_colonne(2, 6), 2, {"n.1 €2,00: 1:1 2:2"}, "chiuso"},
      {stampa_enalotto, enalotto, "superenalotto", "boh", " snue.txt", nullptr, "", 2, {}, "aperto"},
      {stampa_enalotto, enalotto, "superenalotto", "condizionato", " snue.txt", "superenalotto/ssye.txt", "1,2,3,4,5,6\r\n7,8,9,10,11,106\r\n", 2, {": 1:1 1:2 1:3 1:4 1:5 1:6 2:7 2:8 2:9 2:10 2:11"}, "aperto"},
      {stampa_enalotto2, enalotto, "superenalotto", "condizionato", " snue.txt", "superenalotto/ssye.txt", file_colonne(4, 6), 2, {"n.1 €2,00: 1:1 2:2", "n.2 €2,00: 1:3 2:4"}, "chiuso"},
      {stampa_enalotto2, enalotto, "cruciverba", "cruciverba", " sc.col", "cruciverba/sc.col", file_colonne(2, 6), 2, {"n.1 €2,00: 1:1 2:2"}, "chiuso"},
      {stampa_10elotto, "Form_sched_10elotto", "10elotto", "condizionato", " tnu10.txt", "10elotto/tsy10.txt", file_colonne(2, 10), 5, {"n.1 €1,00: 1", "n.2 €1,00: 2"}, "chiuso"},
      {stampa_10elotto, "Form_sched_10elotto", "10elotto", "casuale", " tcu10.txt", "10elotto/tca10.txt", file_colonne(1, 10), 5, {"n.1 €1,00: 1"}, "chiuso"},
      {stampa_10elotto, "Form_sched_10elotto", "10elotto", "autoridotto", " trida10.txt", "10elotto/tri10.txt", file_colonne(1, 10), 5, {"n.1 €1,00: 1"}, "chiuso"},
      {stampa_10elotto, "Form_sched_10elotto", "10elotto", "ridotto", " trid10.txt", "10elotto/trid10.txt", file_colonne(1, 10, true), 5, {"n.1 €1,00: 1"}, "chiuso"},
      {stampa_10elotto, "Form_sched_10elotto", "10elotto", "ridotto", " trifa10.txt", "10elotto/trif10.txt", file_colonne(1, 10), 5, {"n.1 €1,00: 1"}, "chiuso"},
      {stampa_10elotto, "Form_sched_10elotto", "10elotto", "condizionato", " tnu10.txt", "10elotto/tsy10.txt", "1,2,3,4,5,6,7,8,9,91\r\n", 5, {": 1 2 3 4 5 6 7 8 9"}, "aperto"},
      {stampa_10elotto, "Form_sched_10elotto", "10elotto", "cruciverba", " t.col", nullptr, "", 5, {}, "aperto"},
      {stampa_wforlife, "Form_sched_wforlife", "wforlife", "condizionato", " wnu10.txt", "wforlife/wsy10.txt", file_colonne(2, 10), 5, {"n.1 €1,00: 1:1", "n.2 €1,00: 1:2"}, "chiuso"},
      {stampa_wforlife, "Form_sched_wforlife", "wforlife", "ridotto", " wrid10.txt", "wforlife/wrid10.txt", file_colonne(1, 10, true), 5, {"n.1 €1,00: 1:1"}, "chiuso"},
      {stampa_wforlife, "Form_sched_wforlife", "wforlife", "casuale", " wcu10.txt", nullptr, "", 5, {}, "aperto"},
      // Five panels to a slip whatever the form says; the renderer is told the form's count.
      {stampa_wforlife5, "Form_sched_wforlife5", "wforlife", "autoridotto", " wrida10.txt", "wforlife/wri10.txt", file_colonne(6, 10), 3, {"n.1 €3,00: 1:1 2:2 3:3 4:4 5:5", "n.2 €1,00: 1:6"}, "troncato"},
      {stampa_wforlife5, "Form_sched_wforlife5", "wforlife", "ridotto", " wrifa10.txt", "wforlife/wrif10.txt", file_colonne(5, 10), 3, {"n.1 €3,00: 1:1 2:2 3:3 4:4 5:5"}, "chiuso"},
  };
  for (const auto& k : casi) {
    banco_stampa b;
    b.s.tipo_gioco = k.tipo_gioco;
    b.s.colonne_sistema = 99;
    if (k.file) b.cartella.scrivi(k.file, k.contenuto);
    corsa c = stampa(b, k.d, k.modulo, k.tipo_sistema, k.scelto, k.per_scheda);
    std::string nome = std::string(k.modulo) + " " + k.tipo_sistema + k.scelto;
    EXPECT_EQ(c.schede, k.attese) << nome;
    EXPECT_EQ(c.esito, k.esito) << nome;
    if (!k.file) {
      EXPECT_EQ(c.giornale.size(), k.tipo_sistema == std::string("casuale") ? 4u : 0u) << nome;
    }
    // Only the SuperEnalotto drivers hide the progress frame, also after a failure.
    EXPECT_EQ(b.frame2_visibile(k.modulo), k.modulo != std::string(enalotto)) << nome;
  }
}

TEST(StampaPannelli, TenELottoMarksTheDrawsBeforeItsRenderer) {
  banco_stampa b;
  b.s.tipo_gioco = "10elotto";
  b.s.abbonamento_concorsi = 3;
  b.s.tar_cinquina(10, asse_x) = 50.0f;
  b.s.tar_cinquina(10, asse_y) = 60.0f;
  b.cartella.scrivi("10elotto/tsy10.txt", file_colonne(2, 10));
  corsa c = stampa(b, stampa_10elotto, "Form_sched_10elotto", "condizionato", " tnu10.txt", 5, 1, 2);
  EXPECT_EQ(c.schede, (righe{"n.1 €1,00: 1 50", "n.2 €1,00: 2 50"}));
  EXPECT_NE(std::find(c.giornale.begin(), c.giornale.end(), "disegna_cerchio 50 78 1"), c.giornale.end());
  EXPECT_EQ(b.barra("Form_sched_10elotto").valore(), 2);
}

}  // namespace
}  // namespace schedine
