#include <gtest/gtest.h>

#include "core/errore_runtime.h"
#include "core/file_sistema.h"
#include "tests/support/cartella_temporanea.h"

namespace schedine {
namespace {

TEST(Schema, WildcardsWithoutRegardToCase) {
  struct caso {
    const char* nome;
    const char* schema;
    bool atteso;
  } casi[] = {
      {"pippsy.txt", "*sy*.txt", true},  {"PIPPSYE.TXT", "*sy*.txt", true}, {"sy.txt", "*sy*.txt", true},
      {"pippo.txt", "*sy*.txt", false},  {"abcaa.txt", "*caa.txt", true},   {"abcaa.txt.bak", "*caa.txt", false},
      {"a.sen", "*.sen", true},          {"abc", "a?c", true},              {"ac", "a?c", false},
      {"x.col.col", "*.col", true},      {"", "*", true},                   {"abc", "", false},
  };
  for (const auto& c : casi) EXPECT_EQ(corrisponde_schema(c.nome, c.schema), c.atteso) << c.nome << " " << c.schema;
}

TEST(Ricerca, NamesOfPlainFilesInCaseInsensitiveOrder) {
  test::cartella_temporanea c;
  for (const char* nome : {"Bsya.txt", "asya.txt", "Csya.TXT", "dcaa.txt"}) c.scrivi(std::string("ambo/") + nome, "");
  std::filesystem::create_directories(c.file("ambo/esy.txt"));  // a folder is not listed
  EXPECT_EQ(cerca_file(c.file("ambo/*sy*.txt")), (std::vector<std::string>{"asya.txt", "Bsya.txt", "Csya.TXT"}));
  EXPECT_TRUE(cerca_file(c.file("manca/*sy*.txt")).empty());
}

TEST(Percorsi, NamesResolveWithoutRegardToCase) {
  test::cartella_temporanea c;
  c.scrivi("Terno/PippoCAB.txt", "1");
  EXPECT_TRUE(esiste_file(c.file("terno/pippocab.txt")));
  EXPECT_FALSE(esiste_file(c.file("terno/altro.txt")));
  EXPECT_EQ(nel_programma(c.str(), "trans"), c.str() + "/trans");
  EXPECT_EQ(cartella_skin("/x/"), "/x/skin/");
  EXPECT_EQ(cartella_skin("/x"), "/x/skin/");
}

TEST(Percorsi, CreateEmptyAndDelete) {
  test::cartella_temporanea c;
  c.scrivi("sch", "vecchio contenuto");
  crea_vuoto(c.file("sch"));
  EXPECT_EQ(c.leggi("sch"), "");
  elimina_file(c.file("sch"));
  EXPECT_FALSE(esiste_file(c.file("sch")));
  EXPECT_THROW(elimina_file(c.file("sch")), errore_runtime);
}

}  // namespace
}  // namespace schedine
