#include <gtest/gtest.h>

#include "core/errore_runtime.h"
#include "systems/stampa_lotto.h"
#include "tests/systems/banco_stampa.h"

namespace schedine {
namespace {

using test::banco_stampa;
using righe = std::vector<std::string>;
constexpr const char* modulo_lotto = "Form_sched_lotto_ambetto";

struct corsa {
  righe giornale;
  std::vector<std::string> schede;
  std::string esito;
  int errore = 0;  // the run-time error that stopped the run
};

// A run of the Lotto print button: the driver for tipo_gioco over one system file.
corsa stampa(banco_stampa& b, const std::string& tipo_gioco, const std::string& tipo_sistema,
             const std::string& sistema_scelto, int dalla = 1, int alla = 0) {
  b.s.tipo_gioco = tipo_gioco;
  b.s.tipo_sistema = tipo_sistema;
  b.s.sistema_scelto = sistema_scelto;
  b.prepara_corsa(modulo_lotto, dalla, alla);
  corsa c;
  try {
    stampa_lotto(b.s, tipo_gioco);
  } catch (const errore_runtime& e) {
    c.errore = e.numero();
  }
  c.giornale = b.piattaforma.righe();
  c.schede = test::schede(c.giornale);
  c.esito = test::esito(c.giornale);
  return c;
}

TEST(StampaLotto, WholeRunOfTwoSlipsInOrder) {
  banco_stampa b;
  b.cartella.scrivi("ambo/provacaa.txt", "3,17\r\n45,90\r\n");
  corsa c = stampa(b, "ambo", "casuale", " provacua.txt", 1, 2);
  auto scheda = [](const char* a, const char* b, const char* n) {
    return righe{"disegna_punto_zero", a, b,
                 "imposta_penna 1 1", "imposta_riempimento 0 0", "disegna_punto_zero",
                 "imposta_font nome \"arial\"", "posiziona_testo 1 89", "imposta_font dimensione 8",
                 std::string("stampa_testo \"prova - Sched. n.") + n + " - € 1,00\"", "imposta_font dimensione 8",
                 "nuova_pagina"};
  };
  righe attese = {"imposta_modo_pagina 1", "imposta_scala_mm", "imposta_scala_mm", "imposta_penna 1 1",
                  "imposta_riempimento 0 0", "disegna_punto_zero"};
  for (const auto& parte : {scheda("disegna_cerchio 3 103 1", "disegna_cerchio 17 117 1", "1"),
                            scheda("disegna_cerchio 45 145 1", "disegna_cerchio 90 190 1", "2"),
                            righe{"imposta_riempimento 1", "chiudi_stampa"}}) {
    attese.insert(attese.end(), parte.begin(), parte.end());
  }
  EXPECT_EQ(c.giornale, attese);
  EXPECT_EQ(b.barra(modulo_lotto).valore(), 2);
  EXPECT_EQ(b.piattaforma.eventi, 2);
  EXPECT_FALSE(b.frame2_visibile(modulo_lotto));
  EXPECT_EQ(b.s.cartella_sistema, b.cartella.file("ambo") + "/");
}

// Every member of the family finds its file by its own name, cut and head.
TEST(StampaLotto, EachSorteAndKindReadsItsOwnFile) {
  struct caso {
    const char* tipo_gioco;
    const char* tipo_sistema;
    const char* scelto;
    const char* file;  // nullptr: no reader, an empty job
    int numeri;
    bool testata;
  } casi[] = {
      {"ambo", "casuale", " aacua.txt", "ambo/aacaa.txt", 2, false},
      {"ambo", "condizionato", " aanua.txt", "ambo/aasya.txt", 2, false},
      {"ambo", "ridotto", " aaridb.txt", nullptr, 0, false},
      {"terno", "casuale", " bbcub.txt", "terno/bbcab.txt", 3, false},
      {"terno", "condizionato", " bbnub.txt", "terno/bbsyb.txt", 3, false},
      {"terno", "ridotto", " bbridb.txt", "terno/bbridb.txt", 3, true},
      {"terno", "autoridotto", " bbridab.txt", "terno/bbrib.txt", 3, false},
      {"quaterna", "casuale", " cccuc.txt", "quaterna/cccac.txt", 4, false},
      {"quaterna", "condizionato", " ccnuc.txt", "quaterna/ccsyc.txt", 4, false},
      {"quaterna", "ridotto", " ccridc.txt", "quaterna/ccridc.txt", 4, true},
      {"quaterna", "autoridotto", " ccridac.txt", "quaterna/ccric.txt", 4, false},
      {"cinquina", "casuale", " ddcud.txt", "cinquina/ddcad.txt", 5, false},
      {"cinquina", "condizionato", " ddnud.txt", "cinquina/ddsyd.txt", 5, false},
      {"cinquina", "ridotto", " ddridd.txt", "cinquina/ddridd.txt", 5, true},
      {"cinquina", "autoridotto", " ddridad.txt", "cinquina/ddrid.txt", 5, false},
      {"sestine-decine", "condizionato", " eenuf.txt", "sestine-decine/eesyf.txt", 6, false},
      {"sestine-decine", "casuale", " eecuf.txt", nullptr, 0, false},
      {"terno_c", "casuale", "ff.sel", "cruciverba/ff.lot", 3, false},
      {"quaterna_c", "", "ff.sel", "cruciverba/ff.lot", 4, false},
      {"cinquina_c", "ridotto", "ff.sel", "cruciverba/ff.lot", 5, false},
      {"10elotto", "casuale", " ggcu10.txt", nullptr, 0, false},
  };
  for (const auto& k : casi) {
    banco_stampa b;
    std::string colonna, numeri;
    for (int n = 1; n <= k.numeri; ++n) {
      colonna += (n > 1 ? "," : "") + std::to_string(n);
      numeri += " " + std::to_string(n);
    }
    if (k.file) b.cartella.scrivi(k.file, std::string(k.testata ? "\"testa\",2,1\r\n" : "") + colonna + "\r\n");
    corsa c = stampa(b, k.tipo_gioco, k.tipo_sistema, k.scelto);
    EXPECT_EQ(c.errore, 0) << k.scelto;
    EXPECT_EQ(c.schede, k.file ? righe{"n.1 €1,00:" + numeri} : righe{}) << k.scelto;
    EXPECT_EQ(c.esito, "chiuso") << k.scelto;
    if (!k.file) {
      EXPECT_EQ(c.giornale.size(), 4u) << k.scelto;  // mode, scale, fill off, close
    }
  }
}

TEST(StampaLotto, SlipRangeCountsLinesOfTheFile) {
  struct caso {
    int dalla, alla;
    bool coda_illeggibile;  // lines 6 to 10 can't be read: the run must not reach them
    std::vector<int> stampate;
  } casi[] = {
      {1, 10, false, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
      {3, 5, true, {3, 4, 5}},
      {12, 0, false, {}},
      {5, 3, false, {}},
      {7, 0, false, {7, 8, 9, 10}},
      {8, 15, false, {8, 9, 10}},
  };
  for (const auto& k : casi) {
    banco_stampa b;
    std::string file;
    for (int r = 1; r <= 10; ++r) {
      file += r > 5 && k.coda_illeggibile ? "x,x,x\r\n" : std::to_string(r) + ",0," + std::to_string(r + 10) + "\r\n";
    }
    b.cartella.scrivi("terno/tcab.txt", file);
    corsa c = stampa(b, "terno", "casuale", " tcub.txt", k.dalla, k.alla);
    righe attese;
    for (int r : k.stampate) {
      attese.push_back("n." + std::to_string(r) + " €1,00: " + std::to_string(r) + " 0 " + std::to_string(r + 10));
    }
    EXPECT_EQ(c.schede, attese) << k.dalla << ".." << k.alla;
    EXPECT_EQ(c.esito, "chiuso") << k.dalla << ".." << k.alla;
    EXPECT_EQ(b.barra(modulo_lotto).valore(), static_cast<int>(std::min<size_t>(attese.size(), std::max(0, k.alla - k.dalla + 1))));
  }
}

// Columns are groups of N fields whatever the lines say; a failure stops a
// member that has no handler, with the job left open and the frame shown.
TEST(StampaLotto, ColumnContentAndFailuresThatStopTheRun) {
  struct caso {
    const char* contenuto;  // nullptr: no file
    righe attese;
    int errore;
  } casi[] = {
      {"1,2,3\r\n4,5\r\n6,7,8,9\r\n", {"n.1 €1,00: 1 2 3", "n.2 €1,00: 4 5 6", "n.3 €1,00: 7 8 9"}, 0},
      {"0,5,5\r\n", {"n.1 €1,00: 0 5 5"}, 0},
      {"1,2,3\r\n4,91,6\r\n7,8,9\r\n", {"n.1 €1,00: 1 2 3", ": 4"}, codice::indice_fuori_intervallo},
      {"1,2,3\r\n4,256,6\r\n", {"n.1 €1,00: 1 2 3"}, codice::overflow},
      {"1,x,3\r\n", {}, codice::tipo_non_corrispondente},
      {"1,2,3\r\n4,5\r\n", {"n.1 €1,00: 1 2 3"}, codice::input_oltre_fine},
      {nullptr, {}, codice::file_non_trovato},
  };
  for (const auto& k : casi) {
    banco_stampa b;
    if (k.contenuto) b.cartella.scrivi("terno/tcab.txt", k.contenuto);
    corsa c = stampa(b, "terno", "casuale", " tcub.txt");
    const char* nome = k.contenuto ? k.contenuto : "(no file)";
    EXPECT_EQ(c.schede, k.attese) << nome;
    EXPECT_EQ(c.errore, k.errore) << nome;
    EXPECT_EQ(c.esito, k.errore ? "aperto" : "chiuso") << nome;
    EXPECT_EQ(b.frame2_visibile(modulo_lotto), k.errore != 0) << nome;
  }
}

// Conditioned cinquina passes over what fails; the other cinquina kinds stop.
TEST(StampaLotto, PassedOverReprintsThePreviousColumn) {
  const char* file = "1,2,3,4,5\r\nx\r\n6,7,8,91,10\r\n";
  struct caso {
    const char* tipo_sistema;
    const char* scelto;
    const char* nome_file;
    righe attese;
    const char* esito;
  } casi[] = {
      {"condizionato", " qnud.txt", "cinquina/qsyd.txt",
       {"n.1 €1,00: 1 2 3 4 5", "n.2 €1,00: 1 2 3 4 5", "n.3 €1,00: 6 7 8 10"}, "chiuso"},
      {"casuale", " qcud.txt", "cinquina/qcad.txt", {"n.1 €1,00: 1 2 3 4 5"}, "aperto"},
      {"condizionato", " qnud.txt", nullptr, {}, "chiuso"},
  };
  for (const auto& k : casi) {
    banco_stampa b;
    if (k.nome_file) b.cartella.scrivi(k.nome_file, file);
    corsa c = stampa(b, "cinquina", k.tipo_sistema, k.scelto);
    EXPECT_EQ(c.schede, k.attese) << k.tipo_sistema;
    EXPECT_EQ(c.esito, k.esito) << k.tipo_sistema;
  }
}

TEST(StampaLotto, SestineDecineTakesItsWidthFromTheFirstLine) {
  struct caso {
    const char* contenuto;
    int alla;
    righe attese;
  } casi[] = {
      {"1,2,3,4,5,6\r\n7,8,9,10,11,12\r\n", 0, {"n.1 €1,00: 1 2 3 4 5 6", "n.2 €1,00: 7 8 9 10 11 12"}},
      {"1,2,3,4,5,6,7,8,9,10\r\n", 0, {"n.1 €1,00: 1 2 3 4 5 6 7 8 9 10"}},
      // Another width reads no number: each line is a slip of zeros, and the run
      // ends at the end of the file even when alla_scheda can't stop it.
      {"1,2,3,4,5\r\n6,7,8,9,10\r\n11,12,13,14,15\r\n", 0,
       {"n.1 €1,00: 0 0 0 0 0", "n.2 €1,00: 0 0 0 0 0", "n.3 €1,00: 0 0 0 0 0"}},
      {"1,2,3,4,5\r\n6,7,8,9,10\r\n11,12,13,14,15\r\n", 2, {"n.1 €1,00: 0 0 0 0 0", "n.2 €1,00: 0 0 0 0 0"}},
  };
  for (const auto& k : casi) {
    banco_stampa b;
    b.cartella.scrivi("sestine-decine/ssyf.txt", k.contenuto);
    corsa c = stampa(b, "sestine-decine", "condizionato", " snuf.txt", 1, k.alla);
    EXPECT_EQ(c.schede, k.attese) << k.contenuto;
    EXPECT_EQ(c.esito, "chiuso") << k.contenuto;
  }
}

// A first line of a million numbers prints what one of eleven prints: the
// column still holds ten, and the run takes no longer for the numbers it can't
// hold (the ctest time limit of this executable catches a run that does).
TEST(StampaLotto, SestineDecineFirstLineOfAMillionNumbersPrintsAsOneOfEleven) {
  auto sistema = [](int numeri_prima_riga) {
    std::string testo;
    for (int i = 0; i < numeri_prima_riga; ++i) {
      testo += std::to_string(1 + i % 90) + (i + 1 < numeri_prima_riga ? "," : "\r\n");
    }
    for (int riga = 2; riga <= 21; ++riga) testo += "1,2,3,4,5,6,7,8,9,10,11\r\n";
    return testo;
  };
  banco_stampa grande, piccolo;
  grande.cartella.scrivi("sestine-decine/ssyf.txt", sistema(1'000'000));
  piccolo.cartella.scrivi("sestine-decine/ssyf.txt", sistema(11));
  corsa c = stampa(grande, "sestine-decine", "condizionato", " snuf.txt", 1, 0);
  corsa attesa = stampa(piccolo, "sestine-decine", "condizionato", " snuf.txt", 1, 0);
  EXPECT_EQ(c.giornale, attesa.giornale);
  ASSERT_EQ(c.schede.size(), 21u);
  EXPECT_EQ(c.schede.back(), "n.21 €1,00: 0 0 0 0 0 0 0 0 0 0");
  EXPECT_EQ(c.esito, "chiuso");
}

// A crossword ".lot" is read in the size of the bet, whatever its lines hold.
TEST(StampaLotto, CrosswordLotReadInThreesSlidesOverItsLines) {
  banco_stampa b;
  b.cartella.scrivi("cruciverba/croce.lot", "1,2,3,4\r\n5,6,7,8\r\n");
  b.cartella.scrivi("cruciverba/croce.sel", "2,0,0,\"x\",0,0,0,3\r\n");
  corsa terno = stampa(b, "terno_c", "condizionato", "croce.sel");
  EXPECT_EQ(terno.schede, (righe{"n.1 €1,00: 1 2 3", "n.2 €1,00: 4 5 6"}));
  EXPECT_EQ(terno.errore, codice::input_oltre_fine);
  EXPECT_NE(std::find(terno.giornale.begin(), terno.giornale.end(), "stampa_testo \"croce. - Sched. n.1 - € 1,00\""),
            terno.giornale.end());
  // The cinquina crossword passes over the short last read and prints what it holds.
  banco_stampa b5;
  b5.cartella.scrivi("cruciverba/croce.lot", "1,2,3,4\r\n5,6,7,8\r\n");
  corsa cinquina = stampa(b5, "cinquina_c", "condizionato", "croce.sel");
  EXPECT_EQ(cinquina.schede, (righe{"n.1 €1,00: 1 2 3 4 5", "n.2 €1,00: 6 7 8 4 5"}));
  EXPECT_EQ(cinquina.esito, "chiuso");
}

}  // namespace
}  // namespace schedine
