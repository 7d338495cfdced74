#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <limits>
#include <string>

#include "core/errore_runtime.h"
#include "core/numeri.h"
#include "tests/support/cartella_temporanea.h"

namespace schedine {
namespace {

struct caso_iniziale {
  const char* testo;
  double atteso;
};

TEST(NumeroIniziale, StopsAtTheFirstCharacterThatIsNoNumber) {
  const caso_iniziale casi[] = {
      {"0,50", 0.0},       {"1.234", 1.234},   {"1.234,50", 1.234}, {"  12abc", 12.0}, {"", 0.0},
      {"abc", 0.0},        {"-3.5", -3.5},     {"15", 15.0},         {"1 2", 12.0},     {"2e3x", 2000.0},
      {"€ 5", 0.0},        {".5", 0.5},        {"3 per completare", 3.0},
  };
  for (const auto& c : casi) EXPECT_DOUBLE_EQ(numero_iniziale(c.testo), c.atteso) << c.testo;
}

TEST(NumeroLocale, FollowsTheLocaleSeparators) {
  EXPECT_DOUBLE_EQ(numero_locale("0,50", formato_locale::italiano()), 0.5);
  EXPECT_DOUBLE_EQ(numero_locale("1.234,50", formato_locale::italiano()), 1234.5);
  EXPECT_DOUBLE_EQ(numero_locale(" 1,234.50 ", formato_locale::inglese()), 1234.5);
  EXPECT_DOUBLE_EQ(numero_locale("0.50", formato_locale::inglese()), 0.5);
  for (const char* non_numero : {"", "abc", "1,2,3", "12 euro"}) {
    try {
      numero_locale(non_numero, formato_locale::italiano());
      ADD_FAILURE() << non_numero;
    } catch (const errore_runtime& e) {
      EXPECT_EQ(e.numero(), codice::tipo_non_corrispondente);
    }
  }
}

TEST(Conversioni, RoundHalfToEvenAndOverflow) {
  EXPECT_EQ(a_long(2.5), 2);
  EXPECT_EQ(a_long(3.5), 4);
  EXPECT_EQ(a_byte(255.4), 255);
  EXPECT_EQ(a_integer(-32768), -32768);
  for (double fuori : {-0.6, 255.5, 1e300}) EXPECT_THROW(a_byte(fuori), errore_runtime) << fuori;
  EXPECT_THROW(a_integer(32767.5), errore_runtime);
  EXPECT_THROW(a_long(3e9), errore_runtime);
  EXPECT_THROW(a_single(1e39), errore_runtime);
}

struct caso_formato {
  double valore;
  const char* schema;
  const char* italiano;
  const char* inglese;
};

TEST(Formato, PatternsInBothLocales) {
  const caso_formato casi[] = {
      {15, "###,##0.00", "15,00", "15.00"},
      {1234.5, "###,##0.00", "1.234,50", "1,234.50"},
      {1234567.891, "###,##0.00", "1.234.567,89", "1,234,567.89"},
      {0.5, "###,#0.00", "0,50", "0.50"},
      {0, "###,#0.00", "0,00", "0.00"},
      {0.125, "0.00", "0,13", "0.13"},
      {2.675, "###,##0.00", "2,68", "2.68"},
      {-42, "###,##0.00", "-42,00", "-42.00"},
      {999.999, "###,##0.00", "1.000,00", "1,000.00"},
      {200, "###0.00", "200,00", "200.00"},
      {1234.5, "###0.00", "1234,50", "1234.50"},
  };
  for (const auto& c : casi) {
    EXPECT_EQ(formatta_numero(c.valore, c.schema, formato_locale::italiano()), c.italiano) << c.valore;
    EXPECT_EQ(formatta_numero(c.valore, c.schema, formato_locale::inglese()), c.inglese) << c.valore;
  }
}

TEST(TestoSingle, ShortestTextReadsBackBitForBit) {
  const std::pair<float, const char*> noti[] = {{12.09f, "12.09"}, {155.9625f, "155.9625"}, {0.0f, "0"},
                                                {-0.4375f, "-0.4375"}, {68.9f, "68.9"}};
  for (const auto& [valore, testo] : noti) EXPECT_EQ(testo_single(valore), testo);
  for (float valore : {1e-7f, 123456.7f, 3.4e38f, -1.17549435e-38f, 0.1f + 0.2f, 76.63f}) {
    std::string testo = testo_single(valore);
    EXPECT_EQ(testo.find('e'), std::string::npos) << testo;
    float riletto = 0;
    ASSERT_TRUE(leggi_decimale(testo, riletto)) << testo;
    EXPECT_EQ(riletto, valore) << testo;
  }
}

TEST(LeggiDecimale, AcceptsTheFormsOfTheFiles) {
  double v = 0;
  EXPECT_TRUE(leggi_decimale(".5", v));
  EXPECT_EQ(v, 0.5);
  EXPECT_TRUE(leggi_decimale("-.5", v));
  EXPECT_EQ(v, -0.5);
  EXPECT_TRUE(leggi_decimale("+3", v));
  EXPECT_EQ(v, 3);
  for (const char* no : {"", "+", "1,5", "abc", "1.2.3", "++1", "+-1", "inf", "nan", "-infinity"}) EXPECT_FALSE(leggi_decimale(no, v)) << no;
}

TEST(LeggiDecimale, ANumberBeyondTheTypeIsInfiniteOrZero) {
  double d = 1;
  EXPECT_TRUE(leggi_decimale("1e400", d));
  EXPECT_EQ(d, std::numeric_limits<double>::infinity());
  EXPECT_TRUE(leggi_decimale("-1e400", d));
  EXPECT_EQ(d, -std::numeric_limits<double>::infinity());
  EXPECT_TRUE(leggi_decimale("1e-400", d));
  EXPECT_EQ(d, 0.0);
  float f = 1;
  EXPECT_TRUE(leggi_decimale("3.5e38", f));
  EXPECT_EQ(f, std::numeric_limits<float>::infinity());
  EXPECT_TRUE(leggi_decimale("1e-50", f));
  EXPECT_EQ(f, 0.0f);
}

// Sets LC_NUMERIC to a locale whose decimal mark is the comma, as a desktop
// toolkit does at start for an Italian user, and puts the old one back.
// Without one installed, builds it_IT in a folder of its own if the machine
// has the locale sources.
class locale_con_virgola {
 public:
  locale_con_virgola() {
    prima_ = std::setlocale(LC_NUMERIC, nullptr);
    if (prova()) return;
    if (std::system(("localedef -i it_IT -f UTF-8 " + cartella_.file("it_IT.UTF-8") + " >/dev/null 2>&1").c_str()) == 0) {
      setenv("LOCPATH", cartella_.str().c_str(), 1);
      prova();
    }
  }
  ~locale_con_virgola() {
    std::setlocale(LC_NUMERIC, prima_.c_str());
    unsetenv("LOCPATH");
  }
  bool attivo() const { return attivo_; }

 private:
  bool prova() {
    for (const char* nome : {"it_IT.UTF-8", "it_IT.utf8", "de_DE.UTF-8", "fr_FR.UTF-8"}) {
      if (std::setlocale(LC_NUMERIC, nome) != nullptr && std::localeconv()->decimal_point[0] == ',') return attivo_ = true;
    }
    return false;
  }
  std::string prima_;
  test::cartella_temporanea cartella_;
  bool attivo_ = false;
};

TEST(NumeriNelLocaleDelProcesso, ThePointStaysTheDecimalMarkWhateverTheProcessLocale) {
  locale_con_virgola locale;
  if (!locale.attivo()) GTEST_SKIP() << "no locale with a decimal comma on this machine";
  EXPECT_DOUBLE_EQ(numero_iniziale("12.50"), 12.5);
  EXPECT_DOUBLE_EQ(numero_iniziale("0.75 euro"), 0.75);
  EXPECT_DOUBLE_EQ(numero_locale("1.234,50", formato_locale::italiano()), 1234.5);
  EXPECT_DOUBLE_EQ(numero_locale("0.50", formato_locale::inglese()), 0.5);
  double d = 0;
  EXPECT_TRUE(leggi_decimale("1e-400", d));
  EXPECT_EQ(d, 0.0);
}

}  // namespace
}  // namespace schedine
