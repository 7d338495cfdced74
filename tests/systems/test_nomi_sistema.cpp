#include <gtest/gtest.h>

#include <array>

#include "core/errore_runtime.h"
#include "systems/nomi_sistema.h"
#include "tests/support/cartella_temporanea.h"

namespace schedine {
namespace {

constexpr genere tutti_i_generi[] = {genere::casuale, genere::condizionato, genere::autoridotto,
                                     genere::ridotto_un_file, genere::ridotto_due_file};

TEST(Sorti, FolderAndNumbersInAColumn) {
  struct caso {
    const char* tipo_gioco;
    const char* cartella;
    int min, max;
  } casi[] = {
      {"ambo", "ambo", 2, 2},
      {"terno", "terno", 3, 3},
      {"quaterna", "quaterna", 4, 4},
      {"cinquina", "cinquina", 5, 5},
      {"sestine-decine", "sestine-decine", 6, 10},
      {"superenalotto", "superenalotto", 6, 6},
      {"10elotto", "10elotto", 10, 10},
      {"wforlife", "wforlife", 10, 10},
      {"cruciverba", "cruciverba", 6, 6},
      {"terno_c", "cruciverba", 3, 3},
      {"quaterna_c", "cruciverba", 4, 4},
      {"cinquina_c", "cruciverba", 5, 5},
  };
  for (const auto& c : casi) {
    const sorte_sistema* sorte = cerca_sorte(c.tipo_gioco);
    ASSERT_NE(sorte, nullptr) << c.tipo_gioco;
    EXPECT_EQ(sorte->cartella, c.cartella) << c.tipo_gioco;
    EXPECT_EQ(sorte->numeri_min, c.min) << c.tipo_gioco;
    EXPECT_EQ(sorte->numeri_max, c.max) << c.tipo_gioco;
    EXPECT_EQ(cartella_sorte("/prog", c.tipo_gioco), std::string("/prog/") + c.cartella + "/");
  }
  // Values are matched exactly: no folder for an unknown or differently cased game.
  for (const char* ignoto : {"", "Ambo", "lotto", "sestine"}) {
    EXPECT_EQ(cerca_sorte(ignoto), nullptr) << ignoto;
    EXPECT_FALSE(cartella_sorte("/prog", ignoto).has_value());
  }
  EXPECT_EQ(cartella_sistema_di("/prog/", "ambo"), "/prog/ambo/");
}

// One row a sorte: head and column suffix of casuale, condizionato,
// autoridotto, ridotto one-file, ridotto two-file ("-": no such file).
TEST(Suffissi, HeadAndColumnFilesOfEverySorteAndKind) {
  struct caso {
    const char* tipo_gioco;
    std::array<const char*, 10> file;
  } casi[] = {
      {"ambo", {"cua", "caa", "nua", "sya", "-", "-", "-", "-", "-", "-"}},
      {"terno", {"cub", "cab", "nub", "syb", "ridab", "rib", "ridb", "ridb", "-", "-"}},
      {"quaterna", {"cuc", "cac", "nuc", "syc", "ridac", "ric", "ridc", "ridc", "-", "-"}},
      {"cinquina", {"cud", "cad", "nud", "syd", "ridad", "rid", "ridd", "ridd", "-", "-"}},
      {"sestine-decine", {"cuf", "-", "nuf", "syf", "ridaf", "-", "ridf", "-", "-", "-"}},
      {"superenalotto", {"cue", "cae", "nue", "sye", "ridae", "rie", "ride", "ride", "rifae", "rife"}},
      {"10elotto", {"cu10", "ca10", "nu10", "sy10", "rida10", "ri10", "rid10", "rid10", "rifa10", "rif10"}},
      {"wforlife", {"cu10", "ca10", "nu10", "sy10", "rida10", "ri10", "rid10", "rid10", "rifa10", "rif10"}},
  };
  auto nome = [](const char* radice) { return std::string(radice) == "-" ? std::string() : radice + std::string(".txt"); };
  for (const auto& c : casi) {
    for (size_t k = 0; k < std::size(tutti_i_generi); ++k) {
      genere g = tutti_i_generi[k];
      auto s = suffissi(c.tipo_gioco, g);
      ASSERT_TRUE(s.has_value()) << c.tipo_gioco;
      SCOPED_TRACE(std::string(c.tipo_gioco) + " kind " + std::to_string(k));
      EXPECT_EQ(s->testata, nome(c.file[2 * k]));
      EXPECT_EQ(s->colonne, nome(c.file[2 * k + 1]));
      // Only the one-file ridotto that is read opens with the three head fields.
      EXPECT_EQ(s->testata_in_colonne, g == genere::ridotto_un_file && !s->colonne.empty());
    }
  }
  EXPECT_FALSE(suffissi("terno_c", genere::casuale).has_value());
  EXPECT_FALSE(suffissi("cruciverba", genere::condizionato).has_value());
}

// A reader cuts a fixed count of characters and never looks at them: the count
// must stay the length of the head suffix in every sorte, or the base name
// comes out wrong.
TEST(Suffissi, CutAlwaysEqualsHeadSuffixLength) {
  for (const char* tipo_gioco :
       {"ambo", "terno", "quaterna", "cinquina", "sestine-decine", "superenalotto", "10elotto", "wforlife"}) {
    for (genere g : tutti_i_generi) {
      auto s = suffissi(tipo_gioco, g);
      ASSERT_TRUE(s.has_value());
      EXPECT_EQ(static_cast<size_t>(s->taglio), s->testata.size()) << tipo_gioco << " " << static_cast<int>(g);
      if (!s->testata.empty()) {
        EXPECT_EQ(nome_base(" pippo" + std::string(s->testata), s->taglio), "pippo") << tipo_gioco;
      }
    }
  }
}

TEST(Genere, RidottoFormToldByTheExactEndOfTheChosenName) {
  struct caso {
    const char* tipo_sistema;
    const char* tipo_gioco;
    const char* sistema_scelto;
    std::optional<genere> atteso;
  } casi[] = {
      {"casuale", "ambo", " pippocua.txt", genere::casuale},
      {"condizionato", "terno", " pipponub.txt", genere::condizionato},
      {"autoridotto", "superenalotto", " pippo ridae.txt", genere::autoridotto},
      {"ridotto", "superenalotto", " pipporide.txt", genere::ridotto_un_file},
      {"ridotto", "superenalotto", " pipporifae.txt", genere::ridotto_due_file},
      {"ridotto", "superenalotto", " pipporifae.txt ", genere::ridotto_un_file},  // a trailing blank spoils it
      {"ridotto", "superenalotto", " pippoRIFAE.TXT", genere::ridotto_un_file},   // case counts
      {"ridotto", "10elotto", " pipporifa10.txt", genere::ridotto_due_file},
      {"ridotto", "wforlife", " pipporifa10.txt", genere::ridotto_due_file},
      {"ridotto", "wforlife", " pipporid10.txt", genere::ridotto_un_file},
      {"ridotto", "terno", " pipporifae.txt", genere::ridotto_un_file},  // terno knows one form only
      {"ridotto", "10elotto", " pipporifae.txt", genere::ridotto_un_file},
      {"cruciverba", "cruciverba", " nome.col", std::nullopt},
      {"Casuale", "ambo", " pippocua.txt", std::nullopt},
      {"", "ambo", "", std::nullopt},
  };
  for (const auto& c : casi) {
    EXPECT_EQ(genere_scelto(c.tipo_sistema, c.tipo_gioco, c.sistema_scelto), c.atteso)
        << c.tipo_sistema << " " << c.tipo_gioco << " '" << c.sistema_scelto << "'";
  }
  EXPECT_EQ(testo_tipo_sistema(genere::ridotto_due_file), "ridotto");
  EXPECT_EQ(testo_tipo_sistema(genere::autoridotto), "autoridotto");
}

TEST(Genere, RidottoFormOnDiskFollowsTheMarkerFile) {
  test::cartella_temporanea c;
  c.scrivi("superenalotto/dueNUFE.TXT", "");
  c.scrivi("10elotto/diecinuf10.txt", "");
  c.scrivi("terno/tnufe.txt", "");
  EXPECT_EQ(genere_ridotto_su_disco(c.str(), "superenalotto", "due"), genere::ridotto_due_file);  // any case
  EXPECT_EQ(genere_ridotto_su_disco(c.str(), "superenalotto", "uno"), genere::ridotto_un_file);
  EXPECT_EQ(genere_ridotto_su_disco(c.str(), "10elotto", "dieci"), genere::ridotto_due_file);
  EXPECT_EQ(genere_ridotto_su_disco(c.str(), "wforlife", "dieci"), genere::ridotto_un_file);  // other folder
  EXPECT_EQ(genere_ridotto_su_disco(c.str(), "terno", "t"), genere::ridotto_un_file);  // no second family
}

TEST(NomeBase, CutFromTheUntrimmedValueThenTrimmed) {
  struct caso {
    const char* sistema_scelto;
    int taglio;
    const char* atteso;
  } casi[] = {
      {" pipponua.txt", 7, "pippo"},
      {" pippo", 0, "pippo"},
      {"pippocu10.txt", 8, "pippo"},
      {" nua.txt", 7, ""},                 // a file named by the suffix alone
      {" pippo nua.txt", 7, "pippo"},      // blanks before the suffix go with the trim
      {" pipponua.txt ", 7, "pippon"},     // the cut counts a trailing blank as a character
      {" pipporifae.txt", 8, "pippor"},    // a wrong cut is not corrected
      {"\tpippo\tnua.txt", 7, "\tpippo\t"},  // only blanks are trimmed
      {"nome.sel", 3, "nome."},
      {" nome.col", 4, "nome"},
      {"", 0, ""},
  };
  for (const auto& c : casi) EXPECT_EQ(nome_base(c.sistema_scelto, c.taglio), c.atteso) << c.sistema_scelto;

  try {
    nome_base("abc", 4);
    FAIL() << "a cut longer than the name must fail";
  } catch (const errore_runtime& e) {
    EXPECT_EQ(e.numero(), codice::chiamata_non_valida);
  }
  EXPECT_EQ(togli_blank("   "), "");
}

TEST(Cruciverba, ColumnFilesOfTheCrosswords) {
  struct caso {
    const char* tipo_gioco;
    const char* sistema_scelto;
    int numeri;
    const char* file_colonne;
  } casi[] = {
      {"cruciverba", " croce.col", 6, "croce.col"},
      {"terno_c", "croce.sel", 3, "croce.lot"},
      {"quaterna_c", "croce.sel", 4, "croce.lot"},
      {"cinquina_c", "croce.sel", 5, "croce.lot"},
  };
  for (const auto& c : casi) {
    const cruciverba_sistema* cv = cerca_cruciverba(c.tipo_gioco);
    ASSERT_NE(cv, nullptr) << c.tipo_gioco;
    EXPECT_EQ(cv->numeri, c.numeri);
    EXPECT_EQ(nome_base(c.sistema_scelto, cv->taglio) + std::string(cv->colonne), c.file_colonne);
  }
  EXPECT_EQ(cerca_cruciverba("terno"), nullptr);
  EXPECT_EQ(cambia_estensione(" croce.col", "sen"), " croce.sen");
  EXPECT_EQ(cambia_estensione(" croce.col", "s10"), " croce.s10");
  EXPECT_THROW(cambia_estensione("co", "sen"), errore_runtime);
}

// One row a sorte: the search of each run as pattern and cut, "" where the
// run has none: condizionato, casuale, autoridotto, ridotto, second family.
TEST(Elenco, PatternsAndCutsOfEachRun) {
  struct caso {
    const char* tipo_gioco;
    std::array<const char*, 5> ricerche;
  } casi[] = {
      {"ambo", {"*sy*.txt 7", "*caa.txt 7", "", "", ""}},
      {"terno", {"*sy*.txt 7", "*cab.txt 7", "*ridab.txt 9", "*nudb.txt 8", ""}},
      {"quaterna", {"*sy*.txt 7", "*cac.txt 7", "*ridac.txt 9", "*nudc.txt 8", ""}},
      {"cinquina", {"*sy*.txt 7", "*cad.txt 7", "*ridad.txt 9", "*nudd.txt 8", ""}},
      {"sestine-decine", {"*sy*.txt 7", "", "", "", ""}},
      {"superenalotto", {"*sy*.txt 7", "*cae.txt 7", "*ridae.txt 9", "*nude.txt 8", "*nufe.txt 8"}},
      {"10elotto", {"*sy*.txt 8", "*ca10.txt 8", "*rida10.txt 10", "*nud10.txt 9", "*nuf10.txt 9"}},
      {"wforlife", {"*sy*.txt 8", "*ca10.txt 8", "*rida10.txt 10", "", ""}},
  };
  using f = famiglia_elenco;
  const famiglia_elenco famiglie[] = {f::condizionato, f::casuale, f::autoridotto, f::ridotto,
                                      f::ridotto_seconda_famiglia};
  for (const auto& c : casi) {
    for (size_t k = 0; k < std::size(famiglie); ++k) {
      auto s = schema_di(famiglie[k], c.tipo_gioco);
      std::string trovato = s ? std::string(s->schema) + " " + std::to_string(s->taglio) : "";
      EXPECT_EQ(trovato, c.ricerche[k]) << c.tipo_gioco << " run " << k;
    }
  }
  EXPECT_EQ(schema_di(f::cruciverba_enalotto, "cruciverba")->schema, "*.sen");
  EXPECT_EQ(schema_di(f::cruciverba_lotto, "cruciverba")->taglio, 4);
}

}  // namespace
}  // namespace schedine
