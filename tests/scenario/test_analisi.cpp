#include <gtest/gtest.h>

#include "tools/scenario/analisi_scenario.h"
#include "tools/scenario/esito.h"

namespace schedine::scenario {
namespace {

TEST(AnalisiScenario, SkipsCommentsBlankLinesAndLineEndsAndKeepsLineNumbers) {
  auto azioni = analizza_scenario("\xEF\xBB\xBF# intro\r\n\r\n   \t\n  # indented comment\n  start\r\nclick Form1.Option1(3)\nend");
  ASSERT_EQ(azioni.size(), 3u);
  EXPECT_EQ(azioni[0].riga, 5);
  EXPECT_EQ(azioni[0].tipo, tipo_azione::avvio);
  EXPECT_EQ(azioni[1].riga, 6);
  EXPECT_EQ(azioni[1].su.modulo, "Form1");
  EXPECT_EQ(azioni[1].su.controllo, "Option1");
  EXPECT_EQ(azioni[1].su.indice, 3);
  EXPECT_EQ(azioni[1].su.scritto, "Form1.Option1(3)");
  EXPECT_EQ(azioni[2].riga, 7);
  EXPECT_EQ(azioni[2].tipo, tipo_azione::fine);
}

TEST(AnalisiScenario, QuotedTextsDoubleTheirQuotes) {
  struct caso {
    const char* riga;
    const char* testo;
  };
  const caso casi[] = {
      {R"(type Form1.txt "a""b")", "a\"b"},
      {R"(type Form1.txt """")", "\""},
      {R"(type Form1.txt "")", ""},
      {R"(type Form1.txt "  two  blanks, # no comment ")", "  two  blanks, # no comment "},
      {R"(type Form1.txt """quoted"" and ""more""")", "\"quoted\" and \"more\""},
  };
  for (const auto& c : casi) {
    auto azioni = analizza_scenario(c.riga);
    ASSERT_EQ(azioni.size(), 1u) << c.riga;
    EXPECT_EQ(azioni[0].testo, c.testo) << c.riga;
  }
}

TEST(AnalisiScenario, ReadsEveryKindOfCheck) {
  auto azioni = analizza_scenario(
      "expect Form1.List1 item 2 \"x\"\n"
      "expect Form_sched_enalotto.Grid1 colour 3 4 \"65535\"\n"
      "expect var tab_coord(1, 90, 1) \"46.66\"\n"
      "expect file \"skin/skn.dat\" absent\n"
      "expect Form1 visible \"0\"\n"
      "grid Form_sched_enalotto.Grid1 1 2\n");
  ASSERT_EQ(azioni.size(), 6u);
  EXPECT_EQ(azioni[0].tipo, tipo_azione::verifica_voce);
  EXPECT_EQ(azioni[0].numeri, std::vector<int>({2}));
  EXPECT_EQ(azioni[1].tipo, tipo_azione::verifica_colore);
  EXPECT_EQ(azioni[1].numeri, std::vector<int>({3, 4}));
  EXPECT_EQ(azioni[2].variabile, "tab_coord");
  EXPECT_EQ(azioni[2].indici, std::vector<int>({1, 90, 1}));
  EXPECT_EQ(azioni[3].file, "skin/skn.dat");
  EXPECT_FALSE(azioni[3].deve_esistere);
  EXPECT_TRUE(azioni[4].su.e_modulo());
  // One cell stands for a selection from the cell to itself.
  EXPECT_EQ(azioni[5].numeri, std::vector<int>({1, 2, 1, 2}));
}

TEST(AnalisiScenario, ALineThatCannotBeUnderstoodNamesItsLine) {
  const char* righe[] = {
      "jump Form1.cmdok",                       // unknown action
      "type Form1.txt \"open",                  // no closing quote
      "type Form1.txt \"a\"b",                  // text glued to a word
      "type Form1.txt a\"b",                    // quote inside a word
      "start now",                              // too many words
      "click",                                  // too few
      "click Form1",                            // a form where a control is meant
      "close Form1.List1",                      // a control where a form is meant
      "select Form1.List1 first",               // no number
      "click Form1.Option1(3",                  // unbalanced
      "click Form1.Option1(1,2)",               // two indices on a control
      "click Form1.Option1(-1)",                // negative index
      "click \"Form1.cmdok\"",                  // a quoted control
      "expect Form1 count \"1\"",               // a form has no count
      "expect Form1.List1 colour 1 \"0\"",      // a colour needs row and column
      "expect Form1.List1 size \"1\"",          // unknown property
      "expect file sch maybe",                  // exists or absent
      "expect var 3d \"1\"",                    // no name
      "grid Form1.Grid1 1 2 3",                 // one cell or two
  };
  for (const char* riga : righe) {
    std::string testo = std::string("start\n\n") + riga + "\nend\n";
    try {
      analizza_scenario(testo);
      ADD_FAILURE() << "accepted: " << riga;
    } catch (const errore_scenario& e) {
      EXPECT_EQ(e.riga(), 3) << riga;
    }
  }
}

}  // namespace
}  // namespace schedine::scenario
