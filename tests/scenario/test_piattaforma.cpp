#include <gtest/gtest.h>

#include <sstream>

#include "core/errore_runtime.h"
#include "printing/dispositivo_giornale.h"
#include "printing/giornale.h"
#include "tests/support/cartella_temporanea.h"
#include "tools/scenario/piattaforma_giornale.h"

namespace schedine::scenario {
namespace {

TEST(PiattaformaGiornale, MessageBoxesAnswerTheirDefaultButton) {
  struct caso {
    int stile;
    int risposta;
  };
  const caso casi[] = {
      {0, 1},          // OK
      {64, 1},         // OK with the information icon
      {1, 1},          // OK, Cancel
      {1 + 256, 2},    // OK, Cancel with Cancel as default
      {2, 3},          // Abort, Retry, Ignore
      {2 + 512, 5},
      {3 + 512, 2},    // Yes, No, Cancel with Cancel as default
      {4, 6},          // Yes, No
      {4 + 32, 6},     // with the question icon
      {4 + 256, 7},
      {4 + 512, 6},    // no third button: the first
      {5, 4},          // Retry, Cancel
  };
  for (const auto& c : casi) EXPECT_EQ(risposta_predefinita(c.stile), c.risposta) << c.stile;
}

class PiattaformaSuGiornale : public ::testing::Test {
 protected:
  std::ostringstream uscita;
  giornale g{uscita};
  dispositivo_giornale dispositivo{g};
  piattaforma_giornale piattaforma{g, dispositivo};
  test::cartella_temporanea cartella;
};

TEST_F(PiattaformaSuGiornale, JournalsMessagesAndProgramsByTheNameTheSystemGives) {
  cartella.scrivi("Ravelin_Classica.EXE", "");
  EXPECT_EQ(piattaforma.messaggio("Mancano € 1,00 per \"completare\"", 48, "titolo"), 1);
  piattaforma.avvia_programma(cartella.file("ravelin_classica.exe"));
  EXPECT_EQ(uscita.str(),
            "messaggio \"Mancano € 1,00 per \"\"completare\"\"\"\n"
            "avvia \"ravelin_classica.exe\"\n");
}

TEST_F(PiattaformaSuGiornale, AMissingProgramOrSkinIsTheFileNotFoundError) {
  for (const char* nome : {"ravelin_lotto_10elotto.exe", "skin/skin1_3.skn"}) {
    std::string percorso = cartella.file(nome);
    try {
      if (std::string(nome).ends_with(".exe")) {
        piattaforma.avvia_programma(percorso);
      } else {
        piattaforma.carica_skin(percorso);
      }
      ADD_FAILURE() << "no error for " << nome;
    } catch (const errore_runtime& e) {
      EXPECT_EQ(e.numero(), codice::file_non_trovato);
      EXPECT_EQ(e.dettaglio(), percorso);
    }
  }
  EXPECT_EQ(uscita.str(), "") << "nothing was started";
  cartella.scrivi("skin/skin1_3.skn", "");
  EXPECT_NO_THROW(piattaforma.carica_skin(cartella.file("skin/skin1_3.skn")));
}

}  // namespace
}  // namespace schedine::scenario
