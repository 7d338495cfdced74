#include <gtest/gtest.h>

#include "calibration/fabbrica.h"
#include "printing/scheda_enalotto.h"
#include "printing/scheda_wforlife.h"
#include "tests/printing/test_schede_banco.h"

namespace schedine {
namespace {

using test::punto;
using test::segno;
using segni_t = std::vector<segno>;

void vicino(const segno& s, float x, float y) {
  EXPECT_NEAR(s.valori.at(0), x, 1e-3) << s;
  EXPECT_NEAR(s.valori.at(1), y, 1e-3) << s;
}

struct SchedaEnalotto : test::con_tabelle<default_tar_enalotto> {
  test::modulo_enalotto_prova& modulo() { return moduli.di<test::modulo_enalotto_prova>("Form_sched_enalotto"); }
};

// Superstar on with no number chosen counts one for the retailer: twice the
// price, a box right of number 15 of each panel in play, no number.
TEST_F(SchedaEnalotto, SuperstarSenzaNumeri) {
  s.superstar_attiva = true;
  scheda_enalotto(s, "E", 1.0f, 2);
  EXPECT_EQ(testi(), std::vector<std::string>{"E - Sched. n.1 - € 4,00"});
  EXPECT_EQ(righe()[1], test::posizione_testo(8.94f, 29.11f - 15));
  auto segni = this->segni();
  ASSERT_EQ(segni.size(), 2u);
  vicino(segni[0], 83.79f, 29.11f);
  vicino(segni[1], 83.79f, 53.68f);
}

// The grid is read along its rows (2 before 11) into entries 1 to 12; all
// thirteen cells are paid, the thirteenth isn't printed. Numbers go on panel
// 5's geometry nine lines and 0.399 mm lower.
TEST_F(SchedaEnalotto, NumeriSuperstarDallaGriglia) {
  for (int numero : {21, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1}) modulo().scegli_superstar(numero);
  s.superstar_attiva = true;
  scheda_enalotto(s, "E", 1.0f, 1);
  EXPECT_EQ(testi(), std::vector<std::string>{"E - Sched. n.1 - € 14,00"});
  EXPECT_EQ(s.numeri_superstar(2), 2);
  EXPECT_EQ(s.numeri_superstar(12), 12);
  auto segni = this->segni();
  ASSERT_EQ(segni.size(), 13u);
  vicino(segni[12], 63.83f, 159.379f);
}

TEST_F(SchedaEnalotto, ConcorsiDiCombo3EAbbonamento) {
  const std::pair<int, const char*> casi[] = {{0, "3,00"}, {2, "9,00"}, {8, "45,00"}};  // "", "3", "15"
  for (auto [voce, importo] : casi) {
    modulo().c<casella_elenco>("Combo3").seleziona(voce);
    scheda_enalotto(s, "E", 1.5f, 2);
    EXPECT_EQ(testi().back(), std::string("E - Sched. n.1 - € ") + importo);
  }
  // Code 82 is column 7 of panel 5's last line, twelve lines lower.
  s.abbonamento_concorsi = 82;
  scheda_enalotto(s, "E", 1.0f, 5);
  auto segni = this->segni();
  ASSERT_EQ(segni.size(), 1u);
  vicino(segni[0], 38.88f, 187.459f);
}

struct SchedaEnalotto2 : test::con_tabelle<default_tar_enalotto2> {
  SchedaEnalotto2() { s.superstar_attiva = true; }
};

// The Superstar box: the usual dot, but a square right of and above its point.
TEST_F(SchedaEnalotto2, CasellaSuperstarNonSegueSegna) {
  scheda_enalotto2(s, "E2", 1.0f, 2);
  s.carattere_stampa = 2;
  scheda_enalotto2(s, "E2", 1.0f, 2);
  EXPECT_EQ(segni(), (segni_t{punto(64.2f, 130.875f), test::quadro(64.2f, 130.875f, 66.2f, 128.875f)}));
  EXPECT_EQ(testi().front(), "E2 - Sched. n.1 - € 2,00");
  EXPECT_EQ(righe()[1], test::posizione_testo(s.tab_coord(2, 61, asse_x), 22.875f - 13));
}

// At most ten Superstar numbers; code 82 has no factory value in group 4,
// so its mark falls on the page's corner.
TEST_F(SchedaEnalotto2, DieciNumeriEAbbonamentoAllAngolo) {
  for (int e = 1; e <= 12; ++e) s.numeri_superstar(e) = static_cast<uint8_t>(e + 30);
  s.abbonamento_concorsi = 82;
  scheda_enalotto2(s, "E2", 1.0f, 2);
  auto segni = this->segni();
  ASSERT_EQ(segni.size(), 12u);
  EXPECT_EQ(segni[1], su(3, 31));
  EXPECT_EQ(segni[10], su(3, 40));
  EXPECT_EQ(segni[11], punto(0, 0));
}

TEST(SceltaWforlife, PuntataEPrimoAbbonamento) {
  // optAbb chosen (-1 none), stake option chosen (-1 none), marks as (group, row).
  struct caso {
    int abbonamento, puntata;
    std::vector<std::pair<int, int>> segni;
  };
  for (const auto& c : {caso{-1, 0, {{2, 1}}}, caso{0, 1, {{2, 2}, {3, 1}}}, caso{4, -1, {{3, 5}}},
                        caso{5, 0, {{2, 1}, {4, 1}}}, caso{7, 0, {{2, 1}, {4, 3}}}}) {
    test::banco_schede b;
    default_tar_wforlife(b.s);
    auto& modulo = b.moduli("Form_sched_wforlife");
    if (c.puntata < 0) modulo.c<pulsante_opzione>("Option3", 0).imposta_valore(false);
    if (c.puntata > 0) modulo.c<pulsante_opzione>("Option3", c.puntata).imposta_valore(true);
    if (c.abbonamento >= 0) modulo.c<pulsante_opzione>("optAbb", c.abbonamento).imposta_valore(true);
    scheda_wforlife(b.s, "W", 1.0f, 1);
    segni_t attesi;
    for (auto [gruppo, riga] : c.segni) attesi.push_back(b.su(gruppo, riga));
    EXPECT_EQ(b.segni(), attesi) << c.abbonamento;
  }
}

using SchedaWforlife = test::con_tabelle<default_tar_wforlife>;

TEST_F(SchedaWforlife, RigaSoloPerWinForLife) {
  s.tipo_gioco = "wforlife";
  scheda_wforlife(s, "W", 2.0f, 3);
  s.tipo_gioco = "superenalotto";
  scheda_wforlife(s, "W", 2.0f, 3);
  EXPECT_EQ(testi(), std::vector<std::string>{"W - Sched. n.1 - € 6,00"});
  EXPECT_EQ(righe()[1], test::posizione_testo(s.tab_coord(1, 2, asse_x), 45.18f - 28));
}

using SchedaWforlife5 = test::con_tabelle<default_tar_wforlife5>;

TEST_F(SchedaWforlife5, OgniAbbonamentoSpuntatoHaIlSuoSegno) {
  auto& modulo = moduli("Form_sched_wforlife5");
  modulo.c<pulsante_opzione>("Option3", 1).imposta_valore(true);
  for (int i = 0; i <= 104; ++i) modulo.c<casella_controllo>("chkAbbonamenti", i).imposta_valore(1);
  s.tipo_gioco = "wforlife";
  scheda_wforlife5(s, "W5", 1.0f, 5);
  segni_t attesi{su(7, 2)};
  for (int riga = 1; riga <= 105; ++riga) attesi.push_back(su(8, riga));
  EXPECT_EQ(segni(), attesi);
  EXPECT_EQ(testi(), std::vector<std::string>{"W5 - Sched. n.1 - € 5,00"});
  EXPECT_EQ(righe()[1], test::posizione_testo(16.62f, 47.31f - 31));
}

TEST_F(SchedaWforlife5, ControlloMancanteFermaLaStampa) {
  struct vuoto : modulo {
    using modulo::modulo;
  };
  moduli.registra("Form_sched_wforlife5", test::fabbrica_di<vuoto>("Form_sched_wforlife5"));
  try {
    scheda_wforlife5(s, "W5", 1.0f, 5);
    FAIL() << "no fault";
  } catch (const errore_runtime& e) {
    EXPECT_EQ(e.numero(), codice::elemento_inesistente);
  }
  EXPECT_EQ(righe().back(), "disegna_punto_zero");
}

}  // namespace
}  // namespace schedine
