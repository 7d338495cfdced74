// The demo program folder read back as the program reads it: every head by
// the head readers, every column file by the column reader, and every system
// listed by the main form's catalogue and resolved to its own head file.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>

#include "controls/modulo.h"
#include "core/errore_runtime.h"
#include "core/file_sistema.h"
#include "forms/programma/programma.h"
#include "systems/lettore_colonne.h"
#include "systems/testata.h"
#include "tests/support/cartella_temporanea.h"
#include "tests/support/piattaforma_prova.h"
#include "tools/demo/genera_demo.h"

namespace schedine::test {
namespace {

using demo::sistema_demo;
using demo::sorta_cruciverba;

class Demo : public ::testing::Test {
 protected:
  Demo() { sistemi = demo::genera_demo(cartella.str(), SCHEDINE_SKIN_DIR); }
  std::string percorso(const std::string& relativo) const { return cartella.file(relativo); }

  cartella_temporanea cartella;
  std::vector<sistema_demo> sistemi;
};

TEST_F(Demo, HeadsGiveTheNumberOfColumns) {
  for (const sistema_demo& s : sistemi) {
    SCOPED_TRACE(s.testata);
    if (s.tipo) {
      EXPECT_EQ(colonne_da_testata(percorso(s.testata), *s.tipo), s.colonne);
    } else {
      EXPECT_EQ(primo_long(percorso(s.testata)), s.colonne);
    }
    if (s.cruciverba == sorta_cruciverba::enalotto) {
      EXPECT_EQ(conta_righe(percorso(s.file_colonne)), s.colonne);
    }
  }
}

TEST_F(Demo, ColumnFilesHoldWholeColumnsOfTheGamesNumbers) {
  for (const sistema_demo& s : sistemi) {
    SCOPED_TRACE(s.file_colonne);
    lettore_colonne file(percorso(s.file_colonne));
    if (s.testata_in_colonne) file.salta_testata();
    std::vector<uint8_t> colonna(static_cast<size_t>(s.numeri));
    int lette = 0;
    while (!file.fine_file()) {
      file.leggi_colonna(colonna);
      ++lette;
      EXPECT_TRUE(std::is_sorted(colonna.begin(), colonna.end()));
      EXPECT_EQ(std::adjacent_find(colonna.begin(), colonna.end()), colonna.end()) << "a number twice";
      for (uint8_t n : colonna) {
        EXPECT_GE(n, 1);
        EXPECT_LE(n, s.massimo);
      }
    }
    EXPECT_EQ(lette, s.colonne);
  }
  // The sestine-decine reader counts the numbers of a column on the first line.
  EXPECT_EQ(numeri_prima_riga(percorso("sestine-decine/fortunasyf.txt")), 8);
}

TEST_F(Demo, FolderHasSkinsAndNoHandOver) {
  for (int n = 1; n <= 9; ++n) EXPECT_TRUE(esiste_file(percorso("skin/skin1_" + std::to_string(n) + ".skn"))) << n;
  EXPECT_FALSE(esiste_file(percorso("trans")));
}

TEST_F(Demo, CatalogueListsEverySystemAndResolvesItsHead) {
  piattaforma_prova piattaforma;
  programma p(cartella.str(), piattaforma, formato_locale::italiano());
  p.avvia();
  modulo& form1 = p.moduli("Form1");
  // Option1 index: the game it lists and the demo systems it should show.
  const std::map<int, std::string> giochi = {{0, "ambo"},           {1, "terno"},    {2, "quaterna"},
                                             {3, "cinquina"},       {4, "superenalotto"}, {7, "sestine-decine"},
                                             {8, "10elotto"},       {9, "wforlife"}};
  for (const auto& [opzione, gioco] : giochi) {
    SCOPED_TRACE(gioco);
    form1.c<pulsante_opzione>("Option1", opzione).clic_utente();
    auto& lista = form1.c<casella_elenco>("List1");
    auto attesi = std::count_if(sistemi.begin(), sistemi.end(), [&](const sistema_demo& s) { return s.tipo_gioco == gioco; });
    ASSERT_EQ(lista.conta(), attesi);
    for (int i = 0; i < lista.conta(); ++i) {
      lista.scegli(i);
      std::string testata = gioco + "/" + std::string(togli_blank(p.s.sistema_scelto));
      EXPECT_TRUE(std::any_of(sistemi.begin(), sistemi.end(), [&](const sistema_demo& s) { return s.testata == testata; }))
          << lista.voce(i) << " -> " << testata;
    }
  }
  form1.c<pulsante_opzione>("Option1", 5).clic_utente();
  EXPECT_EQ(form1.c<casella_elenco>("List1").conta(), 1);
  form1.c<pulsante_opzione>("Option1", 6).clic_utente();
  auto& crucilotto = form1.c<casella_elenco>("List1");
  ASSERT_EQ(crucilotto.conta(), 3);
  EXPECT_EQ(crucilotto.voce(1), " cruci4      (Quartine)");
}

}  // namespace
}  // namespace schedine::test
