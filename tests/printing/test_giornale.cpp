#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "printing/dispositivo_doppio.h"
#include "printing/dispositivo_giornale.h"
#include "printing/giornale.h"

namespace schedine {
namespace {

struct caso_numero {
  float valore;
  const char* atteso;
};

class NumeroGiornale : public ::testing::TestWithParam<caso_numero> {};

TEST_P(NumeroGiornale, ScriveIlPiuCortoCheRileggeLoStessoFloat) {
  EXPECT_EQ(numero_giornale(GetParam().valore), GetParam().atteso);
}

INSTANTIATE_TEST_SUITE_P(
    Tabella, NumeroGiornale,
    ::testing::Values(caso_numero{5.72f, "5.72"}, caso_numero{12.6f, "12.6"},  // not the double's 12.600000381...
                      caso_numero{-0.4375f, "-0.4375"}, caso_numero{0.0f, "0"}, caso_numero{8.0f, "8"},
                      caso_numero{24.6f - 15.0f, "9.6"}, caso_numero{0.1f, "0.1"}, caso_numero{208.3f, "208.3"},
                      caso_numero{1e10f, "1e+10"}));

// A system's name can hold anything its file name holds: one event stays one line.
TEST(TestoGiornale, RaddoppiaLeVirgoletteEScriveICaratteriDiControllo) {
  EXPECT_EQ(testo_giornale(""), "\"\"");
  EXPECT_EQ(testo_giornale("di \"prova\""), "\"di \"\"prova\"\"\"");
  EXPECT_EQ(testo_giornale("Sistema - Sched. n.3 - € 1,50"), "\"Sistema - Sched. n.3 - € 1,50\"");
  EXPECT_EQ(testo_giornale("a\nb\rc\td"), R"("a\nb\rc\td")");
  EXPECT_EQ(testo_giornale(std::string_view("\0\x01\x1b\x1f \x7f", 6)), "\"\\x00\\x01\\x1b\\x1f \x7f\"");
  EXPECT_EQ(testo_giornale(R"(C:\sistemi\n1)"), R"("C:\\sistemi\\n1")");
  EXPECT_EQ(testo_giornale("\"\n\""), R"("""\n""")");
}

TEST(Giornale, RigheDelRunner) {
  std::ostringstream uscita;
  {
    giornale g(uscita);
    g.messaggio("L'importo di giocata non è corretto.");
    g.ignorato("Form1.Option1(3)");
    g.avvia("ravelin_classica.exe");
    g.errore("Errore di run-time '53': \"x\"");
  }
  EXPECT_EQ(uscita.str(),
            "messaggio \"L'importo di giocata non è corretto.\"\n"
            "ignorato Form1.Option1(3)\n"
            "avvia \"ravelin_classica.exe\"\n"
            "errore \"Errore di run-time '53': \"\"x\"\"\"\n");
}

struct caso_operazione {
  const char* nome;
  std::function<void(dispositivo_stampa&)> operazione;
  const char* riga;
};

class OperazioneGiornale : public ::testing::TestWithParam<caso_operazione> {};

// Counts pages of its own, so the test can tell which device answers.
class dispositivo_contatore : public dispositivo_giornale {
 public:
  dispositivo_contatore(giornale& g, int pagina) : dispositivo_giornale(g), pagina_(pagina) {}
  int numero_pagina() override { return pagina_; }

 private:
  int pagina_;
};

// Each operation writes its one line, and the double device passes it to both
// of its devices, answering the page number from the first.
TEST_P(OperazioneGiornale, UnaRigaPerOperazioneAnchePerIlDoppio) {
  std::ostringstream solo, primo, secondo;
  giornale g(solo), g1(primo), g2(secondo);
  dispositivo_giornale d(g);
  dispositivo_contatore d1(g1, 7), d2(g2, 2);
  dispositivo_doppio doppio(d1, d2);
  GetParam().operazione(d);
  GetParam().operazione(doppio);
  const std::string riga = GetParam().riga;
  const std::string atteso = riga.empty() ? "" : riga + "\n";
  EXPECT_EQ(solo.str(), atteso);
  EXPECT_EQ(primo.str(), atteso);
  EXPECT_EQ(secondo.str(), atteso);
  EXPECT_EQ(doppio.numero_pagina(), 7);
}

INSTANTIATE_TEST_SUITE_P(
    Tabella, OperazioneGiornale,
    ::testing::Values(
        caso_operazione{"scala", [](dispositivo_stampa& d) { d.imposta_scala_mm(); }, "imposta_scala_mm"},
        caso_operazione{"modo", [](dispositivo_stampa& d) { d.imposta_modo_pagina(1); }, "imposta_modo_pagina 1"},
        caso_operazione{"penna", [](dispositivo_stampa& d) { d.imposta_penna(1, 1); }, "imposta_penna 1 1"},
        caso_operazione{"riempimento_colore", [](dispositivo_stampa& d) { d.imposta_riempimento(0, 0); },
                        "imposta_riempimento 0 0"},
        caso_operazione{"riempimento_solo_stile", [](dispositivo_stampa& d) { d.imposta_riempimento(1); },
                        "imposta_riempimento 1"},
        caso_operazione{"punto_zero", [](dispositivo_stampa& d) { d.disegna_punto_zero(); }, "disegna_punto_zero"},
        caso_operazione{"cerchio", [](dispositivo_stampa& d) { d.disegna_cerchio(5.72f, 24.6f, 1.0f); },
                        "disegna_cerchio 5.72 24.6 1"},
        caso_operazione{"rettangolo", [](dispositivo_stampa& d) { d.disegna_rettangolo(1.5f, 0, -0.5f, 2.0f); },
                        "disegna_rettangolo 1.5 0 -0.5 2"},
        caso_operazione{"font_nome", [](dispositivo_stampa& d) { d.imposta_font_nome("arial"); },
                        "imposta_font nome \"arial\""},
        caso_operazione{"font_dimensione", [](dispositivo_stampa& d) { d.imposta_font_dimensione(8.0f); },
                        "imposta_font dimensione 8"},
        caso_operazione{"font_grassetto_no", [](dispositivo_stampa& d) { d.imposta_font_grassetto(false); },
                        "imposta_font grassetto 0"},
        caso_operazione{"font_grassetto_si", [](dispositivo_stampa& d) { d.imposta_font_grassetto(true); },
                        "imposta_font grassetto 1"},
        caso_operazione{"posiziona", [](dispositivo_stampa& d) { d.posiziona_testo(12.6f, -0.4375f); },
                        "posiziona_testo 12.6 -0.4375"},
        caso_operazione{"testo", [](dispositivo_stampa& d) { d.stampa_testo(" Prova \"taratura\""); },
                        "stampa_testo \" Prova \"\"taratura\"\"\""},
        caso_operazione{"nuova_pagina", [](dispositivo_stampa& d) { d.nuova_pagina(); }, "nuova_pagina"},
        caso_operazione{"chiudi", [](dispositivo_stampa& d) { d.chiudi_stampa(); }, "chiudi_stampa"},
        caso_operazione{"numero_pagina_non_scritto", [](dispositivo_stampa& d) { d.numero_pagina(); }, ""}),
    [](const auto& info) { return std::string(info.param.nome); });

TEST(DispositivoGiornale, ContaLePagineDelLavoroDaUno) {
  std::ostringstream uscita;
  giornale g(uscita);
  dispositivo_giornale d(g);
  EXPECT_EQ(d.numero_pagina(), 1);
  d.nuova_pagina();
  d.nuova_pagina();
  EXPECT_EQ(d.numero_pagina(), 3);
  d.chiudi_stampa();
  EXPECT_EQ(d.numero_pagina(), 1);
}

}  // namespace
}  // namespace schedine
