#include <gtest/gtest.h>

#include "calibration/fabbrica.h"
#include "printing/dispositivo_stampa.h"
#include "printing/lavoro_stampa.h"
#include "printing/scheda_10elotto.h"
#include "printing/scheda_lotto.h"
#include "tests/printing/test_schede_banco.h"

namespace schedine {
namespace {

using test::punto;
using test::segno;
using segni_t = std::vector<segno>;

struct SchedaLotto : test::con_tabelle<default_tar_lotto> {
  SchedaLotto() { importo("15,00"); }
  void importo(const char* caption) { moduli("Form_sched_lotto_ambetto").c<etichetta>("lblimporto").caption = caption; }
};

TEST_F(SchedaLotto, SenzaSceltaSoloPuntoZeroERigaDiTesto) {
  scheda_lotto(s, "Ambo 10 numeri");
  EXPECT_EQ(righe(), (std::vector<std::string>{
                         "imposta_penna 1 1", "imposta_riempimento 0 0", "disegna_punto_zero", "imposta_font nome \"arial\"",
                         test::posizione_testo(s.tar_numeri(1, asse_x), 24.6f - 12), "imposta_font dimensione 8",
                         "stampa_testo \"Ambo 10 numeri - Sched. n.1 - € 15,00\"", "imposta_font dimensione 8"}));
}

// One row in every table: the marks come in the renderer's order, only 100
// selects, the stake rows stop at 17 while the other tables go on.
TEST_F(SchedaLotto, SegniNellOrdineDelleTabelle) {
  for (auto* riga : {&s.sel_ruote(0), &s.sel_ruote(10), &s.sel_sistemi(8), &s.sel_gio_mult(9), &s.sel_estratto(17),
                     &s.sel_ambo(18), &s.sel_quaterna(0), &s.sel_cinquina(20), &s.sel_totale(3), &s.sel_estratto1(3),
                     &s.sel_det_importo(20), &s.sel_det_posizione(4), &s.sel_det_posizione(5), &s.sel_ambetto(20),
                     &s.sel_tipo_estrazione(2), &s.sel_importo_10elotto(5), &s.sel_importo_10elotto(6)}) {
    *riga = 100;
  }
  s.sel_ruote(4) = 99;
  s.sel_terno(1) = 1;
  scheda_lotto(s, "x");
  EXPECT_EQ(segni(), (segni_t{su(s.tar_ruote, 0), su(s.tar_ruote, 10), su(s.tar_sistemi, 8), su(s.tar_gio_mult, 9),
                              su(s.tar_estratto, 17), su(s.tar_quaterna, 0), su(s.tar_det_importo, 20),
                              su(s.tar_det_posizione, 4), su(s.tar_ambetto, 20), su(s.tar_tipo_estrazione, 2),
                              su(s.tar_importo_10elotto, 5)}));
}

TEST_F(SchedaLotto, RuotaNazionaleEscludeLeAltre) {
  s.sel_ruote(3) = s.sel_ruote(10) = s.sel_ruote(11) = 100;
  scheda_lotto(s, "x");
  EXPECT_EQ(segni(), segni_t{punto(s.tar_nazionale(asse_x), s.tar_nazionale(asse_y))});
}

// In the square style the determined-position box is a bar up to the amount
// row; the dot style keeps the ordinary dot.
TEST_F(SchedaLotto, PosizioneDeterminataABarra) {
  s.sel_det_posizione(2) = 100;
  s.carattere_stampa = 2;
  scheda_lotto(s, "x");
  s.carattere_stampa = 1;
  scheda_lotto(s, "x");
  float x = s.tar_det_posizione(2, asse_x), y = s.tar_det_posizione(2, asse_y);
  EXPECT_EQ(segni(), (segni_t{test::quadro(x, s.tar_det_importo(2, asse_y), x - 2, y + 2), punto(x, y)}));
}

// The running number follows the first slip of the range; faults are passed
// over one statement at a time: a failing mark and a caption that is no
// number lose just that mark and that line.
TEST_F(SchedaLotto, NumerazioneEGuastiIgnorati) {
  s.dalla_scheda = 7;
  importo("1.234,5");
  scheda_lotto(s, "S");
  stampante(s).nuova_pagina();
  scheda_lotto(s, "S");
  EXPECT_EQ(testi(), (std::vector<std::string>{"S - Sched. n.7 - € 1.234,50", "S - Sched. n.8 - € 1.234,50"}));

  test::piattaforma_guasta guasta(1);
  s.piattaforma = &guasta;
  importo("quindici");
  s.sel_ambo(2) = s.sel_ambo(3) = 100;
  scheda_lotto(s, "S");
  auto righe = guasta.dispositivo.righe();
  EXPECT_EQ(test::segni_di(righe), segni_t{su(s.tar_ambo, 3)});
  EXPECT_TRUE(test::testi_di(righe).empty());
  EXPECT_EQ(righe.back(), "imposta_font dimensione 8");
}

struct Scheda10eLotto : ::testing::Test, test::banco_schede {
  Scheda10eLotto() {
    // A grid of pitch 7 by 6 from (5, 100); number 87 stands 11 mm right of 86.
    for (int n = 1; n <= 90; ++n) {
      s.tar_numeri_10e(n, asse_x) = 5.0f + 7.0f * ((n - 1) % 10);
      s.tar_numeri_10e(n, asse_y) = 100.0f + 6.0f * ((n - 1) / 10);
    }
    s.tar_numeri_10e(87, asse_x) = 51.0f;
    s.tipo_gioco = "10elotto";
  }
  void spunta(int i) { moduli("Form_sched_lotto_ambetto").c<casella_controllo>("chkTipoEstrazione", i).imposta_valore(1); }
};

TEST_F(Scheda10eLotto, DueEstrazioniRaddoppianoLeColonne) {
  spunta(0);
  scheda_10elotto(s, "D", 1.0f, 3);
  spunta(1);
  scheda_10elotto(s, "D", 1.0f, 3);
  EXPECT_EQ(testi(), (std::vector<std::string>{"D - Sched. n.1 - € 3,00", "D - Sched. n.1 - € 6,00"}));
  EXPECT_EQ(righe()[1], "posiziona_testo 61 -37");
}

// Kind of draw in the column of 76, two and three lines down and 0.9 more;
// amounts from X(85) + 3.21 by the box step; flag entry 0 is no box.
TEST_F(Scheda10eLotto, CaselleDerivateDallaGriglia) {
  s.tipo_gioco = "lotto";
  s.estrazione_lotto = s.estrazione_immediata = true;
  s.importo_10elotto_flag(0) = s.importo_10elotto_flag(1) = s.importo_10elotto_flag(7) = true;
  scheda_10elotto(s, "D", 1.0f, 3);
  EXPECT_TRUE(testi().empty());
  auto segni = this->segni();
  const float attesi[][2] = {{40.0f, 154.9f}, {40.0f, 160.9f}, {36.21f, 166.9f}, {92.85f, 166.9f}};
  ASSERT_EQ(segni.size(), 4u);
  for (size_t i = 0; i < segni.size(); ++i) {
    EXPECT_NEAR(segni[i].valori[0], attesi[i][0], 1e-4) << i;
    EXPECT_NEAR(segni[i].valori[1], attesi[i][1], 1e-4) << i;
  }
}

TEST(Segna10eLottoExtra, CasellaDeiConcorsiSottoLaCinquina) {
  const int casi[][2] = {{0, -1}, {-3, -1}, {1, 0}, {7, 0}, {2, 8}, {4, 12}, {6, 16}};  // draws, row (-1 no mark)
  for (const auto& c : casi) {
    test::banco_schede b;
    for (int i = 0; i <= 20; ++i) b.s.tar_cinquina(i, asse_x) = 10.0f + i, b.s.tar_cinquina(i, asse_y) = 125.32f;
    b.s.abbonamento_concorsi = static_cast<int16_t>(c[0]);
    segna_10elotto_extra(b.s);
    EXPECT_EQ(b.segni(), c[1] < 0 ? segni_t{} : segni_t{punto(10.0f + c[1], 143.32f)}) << c[0];
  }
}

}  // namespace
}  // namespace schedine
