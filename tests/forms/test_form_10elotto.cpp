// Form_sched_10elotto on its own: the budget rules at their corners, the
// copy of the ticks into the selection tables, Annulla, the shortfall
// message, and the 10eLotto options that no user can reach (the number
// picker, its random pick, the hidden subscription by amount).

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "core/stato.h"
#include "forms/lotto/Form_sched_10elotto.h"
#include "forms/programma/programma.h"
#include "tests/support/cartella_temporanea.h"
#include "tests/support/piattaforma_prova.h"

namespace schedine {
namespace {

using clic_lista = std::vector<std::pair<const char*, int>>;

class Form10eLotto : public ::testing::Test {
 protected:
  void SetUp() override {
    cartella.scrivi("skin/skin1_1.skn", "");
    cartella.scrivi("terno/provacub.txt", "84,3\r\n");
  }

  programma& prog() {
    if (!p) p = std::make_unique<programma>(cartella.str(), piattaforma, locale);
    return *p;
  }
  stato& s() { return prog().s; }

  Form_sched_10elotto& apri(const std::string& gioco = "terno") {
    s().tipo_gioco = gioco;
    s().tipo_sistema = "casuale";
    s().sistema_scelto = " provacub.txt";
    f().mostra();
    return f();
  }
  Form_sched_10elotto& f() { return prog().moduli.di<Form_sched_10elotto>("Form_sched_10elotto"); }
  void clic(const std::string& nome, int indice = -1) { f().c<controllo>(nome, indice).clic_utente(); }
  void clic(const clic_lista& lista) {
    for (const auto& [nome, indice] : lista) clic(nome, indice);
  }
  int valore(const std::string& nome, int indice = -1) { return f().c<casella_controllo>(nome, indice).valore(); }
  std::string testo(const std::string& nome) { return f().c<etichetta>(nome).caption; }
  griglia& picker() { return f().c<griglia>("MSHFlexGrid1"); }
  std::vector<int> scelti() {
    std::vector<int> numeri;
    for (int i = 1; i <= s().numeri_scelti_n && i <= 10; ++i) numeri.push_back(s().numeri_scelti(i));
    return numeri;
  }
  std::vector<std::string> messaggi() {
    std::vector<std::string> righe;
    for (const auto& riga : piattaforma.righe()) {
      if (riga.rfind("messaggio", 0) == 0) righe.push_back(riga);
    }
    return righe;
  }

  test::cartella_temporanea cartella;
  test::piattaforma_prova piattaforma;
  formato_locale locale = formato_locale::italiano();
  std::unique_ptr<programma> p;
};

// ---------------------------------------------------------------- budget

struct caso_budget {
  const char* descrizione;
  clic_lista clic;
  const char* importo;
  const char* credito;
};

class Budget : public Form10eLotto, public ::testing::WithParamInterface<caso_budget> {};

TEST_P(Budget, ShowsBudgetAndCreditTimesTheWheels) {
  apri();
  clic(GetParam().clic);
  EXPECT_EQ(testo("lblimporto"), GetParam().importo) << GetParam().descrizione;
  EXPECT_EQ(testo("lblcredito"), GetParam().credito) << GetParam().descrizione;
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Budget,
    ::testing::Values(caso_budget{"a TOTALE box after ChTotale1(0) clears the budget and the stakes first",
                                  {{"ChTotale1", 0}, {"Chambo", 0}, {"ChTotale", 3}},
                                  "€ 40,00",
                                  "€ 40,00"},
                      caso_budget{"after the national wheel a second wheel multiplies again",
                                  {{"ChTotale", 6}, {"ChRuote_naz", -1}, {"ChRuote", 1}, {"ChRuote", 2}},
                                  "€ 20,00",
                                  "€ 20,00"},
                      caso_budget{"a position row counts against the budget, beyond it a stake falls back",
                                  {{"ChTotale", 6}, {"ChEstratto4", 6}, {"Chambo", 11}},
                                  "€ 10,00",
                                  "€ 0,00"}));

TEST_F(Form10eLotto, AnnullaKeepsTheBudgetOfTheUpperTotaleColumns) {
  apri("10elotto");
  // On a 10eLotto system the budget row is disabled for the user only.
  f().c<casella_controllo>("ChTotale", 11).imposta_valore(1);
  f().c<casella_controllo>("ChTotale", 6).imposta_valore(1);
  clic({{"Chambo", 11}, {"ChEstratto2", 6}, {"chk10elottoImporto", 2}});
  ASSERT_EQ(testo("lblcredito"), "€ 0,00");
  clic("cmdannulla", 3);
  EXPECT_EQ(valore("ChTotale", 6), 0);
  EXPECT_EQ(valore("ChTotale", 11), 1);
  EXPECT_EQ(valore("Chambo", 11), 0);
  EXPECT_EQ(valore("ChEstratto2", 6), 0);
  EXPECT_EQ(valore("chkTipoEstrazione", 0), 1) << "the 10eLotto frame is left as it is";
  EXPECT_EQ(valore("chk10elottoImporto", 2), 1);
  EXPECT_EQ(testo("lblimporto"), "€ 1,00");
  EXPECT_EQ(testo("lblcredito"), "€ 1,00");
}

TEST_F(Form10eLotto, LeavingTheFormClearsTheSums) {
  apri();
  clic({{"ChTotale", 5}, {"Chambo", 7}});
  ASSERT_EQ(testo("lblcredito"), "€ 15,00");
  clic("cmdexit", 3);
  EXPECT_TRUE(prog().moduli("Form1").visibile());
  apri();
  EXPECT_EQ(testo("lblimporto"), "€ 0,00");
  EXPECT_EQ(f().importo_usato, valuta());
}

// ---------------------------------------------------------------- print

TEST_F(Form10eLotto, ShortfallIsReadBackByTheLocaleBeforeItIsFormatted) {
  // A budget of 2.50 with nothing placed. Its text " 2.5" reads 25 where the
  // point groups thousands.
  for (auto [loc, atteso] : {std::pair{formato_locale::italiano(), "messaggio \"Mancano € 25,00 per completare\""},
                             std::pair{formato_locale::inglese(), "messaggio \"Mancano € 2.50 per completare\""}}) {
    p.reset();
    locale = loc;
    apri();
    clic({{"ChTotale", 10}, {"ChTotale", 12}});
    auto prima = messaggi().size();
    clic("cmdstampa", 1);
    auto dopo = messaggi();
    ASSERT_EQ(dopo.size(), prima + 1);
    EXPECT_EQ(dopo.back(), atteso);
    EXPECT_FALSE(f().c<cornice>("Frame2").visibile);
  }
}

TEST_F(Form10eLotto, TenPickedNumbersAskForAnAmountOnALottoSystemToo) {
  apri();
  s().numeri_scelti_n = 10;
  clic("cmdstampa", 1);
  ASSERT_EQ(messaggi().size(), 1u);
  EXPECT_EQ(messaggi()[0], "messaggio \"Selezionare un importo di giocata per le combinazioni 10 e lotto \"");
  EXPECT_FALSE(f().c<cornice>("Frame2").visibile);
}

TEST_F(Form10eLotto, SelectionTablesFollowTheTicks) {
  apri();
  clic({{"ChTotale", 15},
        {"ChTotale1", 0},
        {"ChRuote", 4},
        {"ChRuote_naz", -1},
        {"ChGIO_MULT", 9},
        {"ChEstratto3", 4},
        {"ChEstratto5", 17},
        {"ChTerno", 12}});
  ASSERT_EQ(valore("ChTerno", 12), 1);
  s().sel_ambo(3) = selezionato;  // left over from an earlier print
  f().inizializza_variabili();
  EXPECT_EQ(s().sel_totale(0), selezionato);
  EXPECT_EQ(s().sel_totale(15), 0) << "ChTotale1 hides the other TOTALE ticks";
  EXPECT_EQ(s().sel_ruote(4), 0);
  EXPECT_EQ(s().sel_ruote(11), selezionato);
  EXPECT_EQ(s().sel_gio_mult(9), selezionato);
  EXPECT_EQ(s().sel_estratto3(4), selezionato);
  EXPECT_EQ(s().sel_estratto5(17), selezionato);
  EXPECT_EQ(s().sel_terno(12), selezionato);
  EXPECT_EQ(s().sel_ambo(3), 0);

  // Without ChTotale1 the TOTALE ticks are copied, the loop running past the row's last box.
  clic("ChTotale1", 0);
  f().inizializza_variabili();
  EXPECT_EQ(s().sel_totale(0), 0);
  EXPECT_EQ(s().sel_totale(15), selezionato);
  EXPECT_EQ(s().sel_estratto3(4), selezionato) << "the copy goes on after the TOTALE row";
  EXPECT_FLOAT_EQ(f().valore_inutilizzato, 31.5f);
}

// ---------------------------------------------------------------- number picker

TEST_F(Form10eLotto, PickerFlipsCellsAndCollectsByRows) {
  apri();
  picker().selezione_utente(4, 7, 4, 7);
  EXPECT_EQ(picker().colore_cella(4, 7), griglia::giallo);
  EXPECT_EQ(scelti(), (std::vector<int>{47}));
  // A drag over a block, corners in any order, column 0 included: its cells have no number.
  picker().selezione_utente(1, 2, 0, 0);
  EXPECT_EQ(scelti(), (std::vector<int>{1, 2, 11, 12, 47}));
  EXPECT_EQ(picker().colore_cella(0, 0), griglia::bianco);
  // Picking a number again frees it.
  picker().selezione_utente(4, 7, 4, 7);
  EXPECT_EQ(scelti(), (std::vector<int>{1, 2, 11, 12}));
  EXPECT_TRUE(picker().visibile);
  EXPECT_TRUE(messaggi().empty());
}

TEST_F(Form10eLotto, AnEleventhNumberWhitensTheBlocksLowCorner) {
  apri();
  picker().selezione_utente(8, 1, 8, 8);  // 81 to 88
  picker().selezione_utente(0, 3, 0, 4);  // 3 and 4: ten numbers
  ASSERT_EQ(s().numeri_scelti_n, 10);
  ASSERT_TRUE(messaggi().empty());
  picker().selezione_utente(5, 6, 5, 5);  // 55 and 56
  EXPECT_EQ(messaggi(), (std::vector<std::string>{"messaggio \"Max 10 numeri\""}));
  EXPECT_EQ(s().numeri_scelti_n, 10);
  EXPECT_EQ(scelti(), (std::vector<int>{3, 4, 55, 56, 81, 82, 83, 84, 85, 86})) << "the first ten by rows";
  EXPECT_EQ(picker().colore_cella(5, 5), griglia::bianco);
  EXPECT_EQ(picker().colore_cella(5, 6), griglia::giallo) << "more than ten cells stay yellow";
  EXPECT_EQ(picker().riga, 5);
  EXPECT_EQ(picker().colonna, 5);
}

TEST_F(Form10eLotto, RandomPickMapsEndingZerosToTheNextRow) {
  apri();
  picker().selezione_utente(0, 9, 0, 9);  // cleared by the pick
  // Draws of j = 10, 20, 90, 80 (a cell already picked: drawn again), 1 .. 7.
  std::vector<int> estrazioni = {10, 20, 90, 80, 1, 2, 3, 4, 5, 6, 7};
  size_t prossima = 0;
  f().casuale = [&] { return (estrazioni.at(prossima++) - 0.5) / 90.0; };
  f().c<pulsante>("Command1").clic_utente();
  EXPECT_EQ(prossima, estrazioni.size());
  EXPECT_EQ(scelti(), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 20, 30, 90}));
  EXPECT_EQ(picker().colore_cella(0, 9), griglia::bianco);
}

TEST_F(Form10eLotto, TheClockSeededPickDrawsTenNumbersButNeverTen) {
  apri();
  for (int volta = 0; volta < 50; ++volta) {
    f().c<pulsante>("Command1").clic_utente();
    auto numeri = scelti();
    ASSERT_EQ(numeri.size(), 10u);
    EXPECT_TRUE(std::is_sorted(numeri.begin(), numeri.end()));
    EXPECT_EQ(std::adjacent_find(numeri.begin(), numeri.end()), numeri.end());
    EXPECT_EQ(std::count(numeri.begin(), numeri.end(), 10), 0);
    EXPECT_GE(numeri.front(), 1);
    EXPECT_LE(numeri.back(), 90);
  }
}

// ---------------------------------------------------------------- subscription

TEST_F(Form10eLotto, SubscriptionByAmountIsHeldToThePlayAndSplitGreedily) {
  apri();
  auto& combo1 = f().c<casella_elenco>("Combo1");
  ASSERT_EQ(combo1.conta(), 400);
  EXPECT_EQ(combo1.voce(0), "0,50");
  EXPECT_EQ(combo1.voce(399), "200,00");

  // With no play the box falls back.
  f().c<casella_controllo>("Check1").imposta_valore(1);
  EXPECT_EQ(valore("Check1"), 0);
  EXPECT_FALSE(s().abbonamento_attivo);

  clic({{"ChTotale", 4}, {"ChTotale", 7}, {"ChTotale", 9}, {"ChTotale", 16}});  // 30 + 5 + 3 + 0.10
  ASSERT_EQ(testo("lblimporto"), "€ 38,10");
  combo1.scegli(99);  // 50,00: held to the play's whole euros
  EXPECT_EQ(combo1.testo(), "38,00");
  std::vector<int> tagli;
  for (int i = 0; i < 13; ++i) {
    if (s().abbonamento_tagli(i)) tagli.push_back(i);
  }
  EXPECT_EQ(tagli, (std::vector<int>{4, 7, 9})) << "30 + 5 + 3";

  // Ticked with no amount chosen, it picks the first, 0.50.
  clic("ChTotale", 16);  // clears the amount's text
  f().c<casella_controllo>("Check1").imposta_valore(1);
  EXPECT_TRUE(s().abbonamento_attivo);
  EXPECT_EQ(combo1.testo(), "0,50");
  EXPECT_TRUE(s().abbonamento_tagli(12));
  EXPECT_FALSE(s().abbonamento_tagli(4));

  // Combo2 gives the number of draws; each activation returns it to none.
  f().c<casella_elenco>("Combo2").scegli(3);
  EXPECT_EQ(s().abbonamento_concorsi, 4);
  f().nascondi();
  f().mostra();
  EXPECT_EQ(s().abbonamento_concorsi, 0);
}

}  // namespace
}  // namespace schedine
