#include <gtest/gtest.h>

#include <algorithm>

#include "calibration/fabbrica.h"
#include "printing/prove_taratura.h"
#include "tests/printing/test_schede_banco.h"

namespace schedine {
namespace {

using test::segno;
using righe_t = std::vector<std::string>;

bool nessuna(const righe_t& righe, const std::string& inizio) {
  return std::none_of(righe.begin(), righe.end(), [&](const auto& r) { return r.rfind(inizio, 0) == 0; });
}

// One page opened as a Lotto job and ended by chiudi_stampa alone; the marks
// in the sheet's order, stake tables to row 12 only, all plain squares.
using ProvaTarLotto = test::con_tabelle<default_tar_lotto>;

TEST_F(ProvaTarLotto, RigheEOrdine) {
  s.carattere_stampa = 2;
  prova_tar_lotto(s);
  std::vector<segno> attesi;
  auto righe_di = [&](const auto& tabella, int da, int a) {
    for (int r = da; r <= a; ++r) {
      float x = tabella(r, asse_x), y = tabella(r, asse_y);
      attesi.push_back(test::quadro(x, y, x - 2, y + 2));
    }
  };
  righe_di(s.tar_numeri, 1, 90);
  righe_di(s.tar_ruote, 0, 10);
  float xn = s.tar_nazionale(asse_x), yn = s.tar_nazionale(asse_y);
  attesi.push_back(test::quadro(xn, yn, xn - 2, yn + 2));
  righe_di(s.tar_ambetto, 0, 12);
  righe_di(s.tar_det_importo, 0, 12);
  righe_di(s.tar_det_posizione, 0, 4);
  righe_di(s.tar_tipo_estrazione, 0, 2);
  righe_di(s.tar_importo_10elotto, 0, 5);
  righe_di(s.tar_sistemi, 0, 5);
  righe_di(s.tar_gio_mult, 0, 5);
  for (const auto* t : {&s.tar_estratto, &s.tar_ambo, &s.tar_terno, &s.tar_quaterna, &s.tar_cinquina}) righe_di(*t, 0, 12);
  auto righe = this->righe();
  EXPECT_EQ(test::segni_di(righe), attesi);
  EXPECT_EQ(righe_t(righe.begin(), righe.begin() + 5), (righe_t{"imposta_modo_pagina 1", "imposta_scala_mm", "imposta_penna 1 1",
                                                               "imposta_riempimento 0 0", "disegna_punto_zero"}));
  EXPECT_EQ(righe_t(righe.end() - 2, righe.end()), (righe_t{"imposta_font dimensione 12", "chiudi_stampa"}));
  EXPECT_EQ(righe.size(), 5 + attesi.size() + 2);
}

// Panels, Superstar grid and subscription boxes, then the slip's renderer on
// the slip form loaded for it and unloaded after.
using ProvaTarEnalotto = test::con_tabelle<default_tar_enalotto>;

TEST_F(ProvaTarEnalotto, PannelliSuperstarERigaDellaScheda) {
  s.numeri_superstar(1) = 7;
  prova_tar_enalotto(s);
  auto righe = this->righe();
  auto segni = test::segni_di(righe);
  ASSERT_EQ(segni.size(), 450u + 90 + 8 + 5);
  EXPECT_EQ(segni[449], su(5, 90));
  EXPECT_NEAR(segni[450].valori[1], 29.11f + 3.51f * 37 + 0.399f, 1e-3);  // number 1, nine lines below panel 5
  EXPECT_NEAR(segni[540].valori[0], 8.94f + 4.99f * 4, 1e-3);             // code 80: column 5 of the last line
  EXPECT_NEAR(segni[540].valori[1], 29.11f + 3.51f * 45 + 0.399f, 1e-3);
  EXPECT_EQ(test::testi_di(righe), righe_t{"Prova Taratura - Sched. n.1 - € 0,00"});
  EXPECT_FALSE(nessuna(righe, "imposta_font grassetto 0"));
  EXPECT_TRUE(nessuna(righe, "nuova_pagina") && nessuna(righe, "imposta_riempimento 1"));
  EXPECT_EQ(righe.back(), "chiudi_stampa");
  EXPECT_EQ(s.numeri_superstar(1), 0);
  EXPECT_TRUE(s.superstar_attiva);
  EXPECT_FALSE(moduli("Form_sched_enalotto").caricato());
}

using ProvaTarEnalotto2 = test::con_tabelle<default_tar_enalotto2>;

TEST_F(ProvaTarEnalotto2, GruppiEAbbonamenti) {
  prova_tar_enalotto2(s);
  auto righe = this->righe();
  auto segni = test::segni_di(righe);
  ASSERT_EQ(segni.size(), 270u + 6 + 3 + 1);
  EXPECT_EQ(segni[269], su(3, 90));
  EXPECT_EQ(segni[270], test::punto(0, 0));  // row 1 of group 4 has no factory value
  EXPECT_EQ(segni[276], su(4, 9));
  EXPECT_EQ(segni[278], su(4, 15));
  EXPECT_EQ(test::testi_di(righe), righe_t{"Prova Taratura - Sched. n.1 - € 0,00"});
  EXPECT_EQ(righe.back(), "chiudi_stampa");
}

TEST(ProvaTarWforlife, SegniETestoDiProva) {
  struct caso {
    void (*fabbrica)(stato&);
    void (*prova)(stato&);
    size_t segni;
    float discesa;
  };
  for (caso c : {caso{default_tar_wforlife, prova_tar_wforlife, 20 + 2 + 5 + 3, 28},
                 caso{default_tar_wforlife5, prova_tar_wforlife5, 100 + 1 + 1 + 105, 31}}) {
    test::banco_schede b;
    c.fabbrica(b.s);
    c.prova(b.s);
    auto righe = b.righe();
    EXPECT_EQ(test::segni_di(righe).size(), c.segni);
    EXPECT_EQ(righe_t(righe.end() - 6, righe.end()),
              (righe_t{"imposta_font grassetto 0", "imposta_font nome \"arial\"",
                       test::posizione_testo(b.s.tab_coord(1, 2, asse_x), b.s.tab_coord(1, 2, asse_y) - c.discesa),
                       "imposta_font dimensione 8", "stampa_testo \" Prova taratura\"", "chiudi_stampa"}));
  }
}

// The first fault ends the sheet there, quietly: no later mark, no text, the job not closed.
TEST(ProvaTarWforlife, SiFermaAlPrimoGuasto) {
  for (auto prova : {prova_tar_wforlife, prova_tar_wforlife5}) {
    test::banco_schede b;
    test::piattaforma_guasta guasta(5);
    b.s.piattaforma = &guasta;
    EXPECT_NO_THROW(prova(b.s));
    auto righe = guasta.dispositivo.righe();
    EXPECT_EQ(test::segni_di(righe).size(), 4u);
    EXPECT_EQ(righe.back(), "disegna_cerchio 0 0 1");
  }
}

}  // namespace
}  // namespace schedine
