// Form_sched_lotto_ambetto driven as Form1 opens it: the price of the play,
// the copy of the ticks into the selection tables, the slip count and the
// range boxes, and the print button.

#include <gtest/gtest.h>

#include <algorithm>

#include "core/stato.h"
#include "forms/lotto/Form_sched_lotto_ambetto.h"
#include "forms/lotto/testata_lotto.h"
#include "forms/programma/programma.h"
#include "tests/support/cartella_temporanea.h"
#include "tests/support/piattaforma_prova.h"

namespace schedine {
namespace {

class FormLotto : public ::testing::Test {
 protected:
  void SetUp() override {
    cartella.scrivi("skin/skin1_1.skn", "");
    // Eleven slips of an ambo system, one column a line.
    cartella.scrivi("ambo/provacua.txt", "45,11\r\n");
    std::string colonne;
    for (int i = 1; i <= 11; ++i) colonne += std::to_string(i) + "," + std::to_string(i + 20) + "\r\n";
    cartella.scrivi("ambo/provacaa.txt", colonne);
  }

  programma& prog() {
    if (!p) p = std::make_unique<programma>(cartella.str(), piattaforma, locale);
    return *p;
  }
  stato& s() { return prog().s; }

  // As Form1's "Ok" does: the choice is in the shared state, the title is set, the form is shown.
  Form_sched_lotto_ambetto& apri(const std::string& gioco = "ambo", const std::string& tipo = "casuale",
                                 const std::string& sistema = " provacua.txt") {
    s().tipo_gioco = gioco;
    s().tipo_sistema = tipo;
    s().sistema_scelto = sistema;
    auto& f = prog().moduli.di<Form_sched_lotto_ambetto>("Form_sched_lotto_ambetto");
    f.c<etichetta>("lbltitolo").caption = "Sistema: prova";
    f.mostra();
    return f;
  }
  Form_sched_lotto_ambetto& f() { return prog().moduli.di<Form_sched_lotto_ambetto>("Form_sched_lotto_ambetto"); }
  void clic(const std::string& nome, int indice = -1) { f().c<controllo>(nome, indice).clic_utente(); }
  int valore(const std::string& nome, int indice = -1) { return f().c<casella_controllo>(nome, indice).valore(); }
  std::string importo() { return f().c<etichetta>("lblimporto").caption; }
  casella_testo& box(const std::string& nome) { return f().c<casella_testo>(nome); }
  void stampa() { clic("cmdstampa", 1); }
  bool nel_giornale(const std::string& riga) {
    auto righe = piattaforma.righe();
    return std::find(righe.begin(), righe.end(), riga) != righe.end();
  }

  test::cartella_temporanea cartella;
  test::piattaforma_prova piattaforma;
  formato_locale locale = formato_locale::italiano();
  std::unique_ptr<programma> p;
};

// ---------------------------------------------------------------- price of the play

struct caso_prezzo {
  const char* descrizione;
  std::vector<std::pair<const char*, int>> clic;
  const char* atteso;
};

class PrezzoDellaGiocata : public FormLotto, public ::testing::WithParamInterface<caso_prezzo> {};

TEST_P(PrezzoDellaGiocata, FollowsTheTicks) {
  apri("cinquina");
  for (const auto& [nome, indice] : GetParam().clic) clic(nome, indice);
  EXPECT_EQ(importo(), GetParam().atteso) << GetParam().descrizione;
}

INSTANTIATE_TEST_SUITE_P(
    Casi, PrezzoDellaGiocata,
    ::testing::Values(
        caso_prezzo{"TUTTE alone is one wheel", {{"ChCinquina", 3}, {"ChRuotetutte", 10}}, "20,00"},
        caso_prezzo{"TUTTE beside two wheels is three",
                    {{"ChEstratto", 5}, {"ChRuote", 1}, {"ChRuote", 2}, {"ChRuotetutte", 10}},
                    "15,00"},
        caso_prezzo{"a wheel after the national one leaves the count at one",
                    {{"ChTerno", 4}, {"ChRuote_naz", -1}, {"ChRuote", 3}, {"ChRuote", 4}},
                    "10,00"},
        caso_prezzo{"the national wheel clears the others",
                    {{"ChTerno", 4}, {"ChRuote", 3}, {"ChRuote", 4}, {"ChRuote_naz", -1}},
                    "10,00"},
        caso_prezzo{"two subscription ticks multiply each other",
                    {{"Chambo", 8}, {"ChRuote", 0}, {"ChSistemi", 0}, {"ChSistemi", 1}},
                    "6,00"},
        caso_prezzo{"subscription and multiple plays multiply",
                    {{"Chambo", 8}, {"ChRuote", 0}, {"ChSistemi", 5}, {"ChGIO_MULT", 3}},
                    "200,00"},
        caso_prezzo{
            "a determined extract with no position costs nothing", {{"ChEstratto1", 6}, {"ChRuote", 0}}, "0,00"},
        caso_prezzo{"a determined extract is staked on each position",
                    {{"ChEstratto1", 6}, {"ChEstrattoPos", 0}, {"ChEstrattoPos", 4}, {"ChRuote", 0}, {"ChRuote", 9}},
                    "12,00"},
        caso_prezzo{"each kind of draw adds the 10eLotto amount once, wheels or not",
                    {{"chkTipoEstrazione", 0}, {"chkTipoEstrazione", 1}, {"chk10elottoImporto", 3}},
                    "10,00"},
        caso_prezzo{"an amount with no kind of draw adds nothing", {{"chk10elottoImporto", 5}}, "0,00"},
        caso_prezzo{"the last 10eLotto amount is 100", {{"chk10elottoImporto", 5}, {"chkTipoEstrazione", 2}}, "100,00"},
        caso_prezzo{"an untick takes its stake off again",
                    {{"Chambo", 0}, {"Chambo", 12}, {"ChRuote", 0}, {"Chambo", 0}},
                    "0,05"}));

TEST_F(FormLotto, TheRunningTotalIsASingle) {
  apri();
  // Column by column, each stake through currency and back to a Single.
  for (const char* riga : {"ChEstratto", "Chambo", "ChTerno", "Chquaterna", "ChCinquina", "chAmbetto"}) {
    for (int c = 0; c <= 12; ++c) f().c<casella_controllo>(riga, c).imposta_valore(1);
  }
  clic("ChRuote", 0);
  EXPECT_EQ(importo(), "2.351,10");
  EXPECT_EQ(f().importo_giocata.decimillesimi(), 23511006);

  // The multipliers act on the Single: 0.50 times 90000 squared isn't 4050000000 there.
  f().c<pulsante>("cmdannulla", 3).clic_utente();
  clic("Chambo", 9);
  clic("ChRuote", 0);
  for (int i = 0; i <= 5; ++i) {
    clic("ChSistemi", i);
    clic("ChGIO_MULT", i);
  }
  EXPECT_EQ(importo(), "4.049.999.872,00");
}

TEST_F(FormLotto, AnnullaUnticksAllButThePositionsAndThePriceFollows) {
  apri();
  for (auto [nome, indice] : std::vector<std::pair<const char*, int>>{{"ChRuote", 2},
                                                                      {"ChRuotetutte", 10},
                                                                      {"ChRuote_naz", -1},
                                                                      {"Chambo", 4},
                                                                      {"chAmbetto", 20},
                                                                      {"ChEstratto1", 3},
                                                                      {"ChEstrattoPos", 2},
                                                                      {"ChSistemi", 5},
                                                                      {"ChGIO_MULT", 0},
                                                                      {"chkTipoEstrazione", 2},
                                                                      {"chk10elottoImporto", 0}}) {
    clic(nome, indice);
  }
  ASSERT_NE(importo(), "0,00");
  clic("cmdannulla", 3);
  EXPECT_EQ(importo(), "0,00");
  for (auto [nome, indice] : std::vector<std::pair<const char*, int>>{{"ChRuote_naz", -1},
                                                                      {"Chambo", 4},
                                                                      {"chAmbetto", 20},
                                                                      {"ChEstratto1", 3},
                                                                      {"ChSistemi", 5},
                                                                      {"ChGIO_MULT", 0},
                                                                      {"chkTipoEstrazione", 2},
                                                                      {"chk10elottoImporto", 0}}) {
    EXPECT_EQ(valore(nome, indice), 0) << nome << indice;
  }
  EXPECT_EQ(valore("ChEstrattoPos", 2), 1) << "the positions are left as they are";
}

// The TOTALE row is hidden but for columns 11 and 12, which the first display
// shows under the amount heads. Its rules are the budget rules of the twin form.
TEST_F(FormLotto, TotaleBoxesShowABudgetUntilTheNextPrice) {
  apri();
  clic("ChRuote", 0);
  clic("ChRuote", 7);
  clic("Chambo", 8);
  clic("chAmbetto", 8);
  clic("ChEstratto1", 2);
  clic("ChEstrattoPos", 0);
  EXPECT_EQ(importo(), "104,00");
  // The budget grows from the price worked out last, and is shown per wheel times the wheels.
  clic("ChTotale", 11);
  EXPECT_EQ(importo(), "€ 208,20");
  clic("ChRuote", 1);
  EXPECT_EQ(importo(), "156,00");
  // Taking a budget box away takes the stakes away, Ambetto aside.
  clic("ChTotale", 11);
  EXPECT_EQ(valore("Chambo", 8), 0);
  EXPECT_EQ(valore("ChEstratto1", 2), 0);
  EXPECT_EQ(valore("chAmbetto", 8), 1);
}

// ---------------------------------------------------------------- load and display

TEST_F(FormLotto, LoadDisablesOnlyTheRowsTheSorteCantPlay) {
  const std::vector<std::pair<std::string, int>> casi = {{"ambo", 2},       {"terno", 3},          {"terno_c", 3},
                                                         {"quaterna", 4},   {"quaterna_c", 4},     {"cinquina", 5},
                                                         {"cinquina_c", 5}, {"sestine-decine", 5}, {"10elotto", 5}};
  const char* righe[] = {"ChEstratto", "Chambo", "ChTerno", "Chquaterna", "ChCinquina"};
  for (const auto& [gioco, prima_disattivata] : casi) {
    apri(gioco);
    for (int riga = 0; riga < 5; ++riga) {
      for (int colonna : {0, 12, 20}) {
        EXPECT_EQ(f().c<casella_controllo>(righe[riga], colonna).abilitato, riga < prima_disattivata)
            << gioco << " " << righe[riga] << colonna;
      }
    }
    EXPECT_TRUE(f().c<casella_controllo>("chAmbetto", 0).abilitato);
    EXPECT_TRUE(f().c<casella_controllo>("chk10elottoImporto", 0).abilitato);
    clic("cmdexit", 3);
  }
}

TEST_F(FormLotto, FirstDisplayShowsTheAmountHeadsOverTheTotaleRow) {
  apri();
  EXPECT_TRUE(f().c<cornice>("Frameeuro").visibile);
  EXPECT_TRUE(f().c<casella_controllo>("ChTotale", 11).visibile);
  EXPECT_TRUE(f().c<casella_controllo>("ChTotale", 12).visibile);
  EXPECT_FALSE(f().c<casella_controllo>("ChTotale", 10).visibile);
  EXPECT_FALSE(f().c<casella_controllo>("ChTotale1", 0).visibile);
  EXPECT_TRUE(f().c<casella_controllo>("Chambo", 12).visibile);
  EXPECT_FALSE(f().c<casella_controllo>("Chambo", 13).visibile);
  EXPECT_FALSE(f().c<cornice>("Frame2").visibile);
  EXPECT_EQ(f().c<forma>("Shape1", 1).sinistra, 7968);
}

TEST_F(FormLotto, LeavingKeepsTheSlipCountAndClearsThePrice) {
  apri();
  clic("Chambo", 8);
  clic("ChRuote", 0);
  clic("cmdexit", 3);
  EXPECT_FALSE(f().caricato());
  EXPECT_TRUE(prog().moduli("Form1").visibile());
  EXPECT_EQ(f().importo_giocata, valuta());
  // A system whose head is gone: the count of the one before stands.
  apri("ambo", "casuale", " sparitocua.txt");
  EXPECT_EQ(box("txtalla").testo(), "11");
  EXPECT_EQ(importo(), "0,00");
  EXPECT_EQ(valore("Chambo", 8), 0);
}

// ---------------------------------------------------------------- slip count and range

struct caso_testata {
  const char* gioco;
  const char* tipo;
  const char* file;  // relative to the program folder
  const char* contenuto;
  std::optional<int32_t> atteso;
};

TEST(ContaSchedeLotto, ReadsTheHeadByFolderAndKind) {
  const caso_testata casi[] = {
      {"ambo", "casuale", "ambo/xcua.txt", "7,12\r\n", 12},
      {"ambo", "condizionato", "ambo/xnua.txt", "\"a\",\"b\",13\r\n", 13},
      {"ambo", "ridotto", "ambo/xridb.txt", "7,12\r\n", std::nullopt},
      {"ambo", "autoridotto", "ambo/xridab.txt", "12\r\n", std::nullopt},
      {"terno", "ridotto", "terno/xridb.txt", "7,14,0\r\n1,2,3\r\n", 14},
      {"quaterna", "autoridotto", "quaterna/xridac.txt", "15\r\n", 15},
      {"sestine-decine", "condizionato", "sestine-decine/xnuf.txt", "1,2,16\r\n", 16},
      {"10elotto", "ridotto", "10elotto/xrifa10.txt", "17,18\r\n", 18},
      {"quaterna_c", "condizionato", "cruciverba/x.sel", "19,1,1,\"n\",1,1,1,4\r\n", 19},
      {"cinquina_c", "", "cruciverba/x.sel", "20,1,1,\"n\",1,1,1,5\r\n", 20},
      {"superenalotto", "casuale", "superenalotto/xcue.txt", "1,21\r\n", std::nullopt},
      {"cruciverba", "cruciverba", "cruciverba/x.sel", "22\r\n", std::nullopt},
      {"cinquina", "casuale", "cinquina/xcud.txt", "1,23\r\n", 23},
      {"cinquina", "sconosciuto", "cinquina/xcud.txt", "1,24\r\n", std::nullopt},
  };
  for (const auto& caso : casi) {
    test::cartella_temporanea cartella;
    cartella.scrivi(caso.file, caso.contenuto);
    stato s;
    s.cartella_programma = cartella.str();
    s.tipo_gioco = caso.gioco;
    s.tipo_sistema = caso.tipo;
    std::string nome = caso.file;
    s.sistema_scelto = " " + nome.substr(nome.find('/') + 1) + " ";
    EXPECT_EQ(conta_schede_lotto(s), caso.atteso) << caso.gioco << " " << caso.tipo;
  }
}

TEST(ContaSchedeLotto, AHeadThatCantBeReadThrows) {
  test::cartella_temporanea cartella;
  cartella.scrivi("terno/xcub.txt", "7\r\n");
  stato s;
  s.cartella_programma = cartella.str();
  s.tipo_gioco = "terno";
  s.tipo_sistema = "casuale";
  s.sistema_scelto = " xcub.txt";
  EXPECT_THROW(conta_schede_lotto(s), errore_runtime);
  s.sistema_scelto = " mancacub.txt";
  EXPECT_THROW(conta_schede_lotto(s), errore_runtime);
}

TEST_F(FormLotto, RangeBoxesFilterKeysAndHoldTheirBounds) {
  apri();
  EXPECT_EQ(box("txtdalla").testo(), "1");
  EXPECT_EQ(box("txtalla").testo(), "11");

  box("txtalla").digita("1a2 ,.-/");
  EXPECT_EQ(box("txtalla").testo(), "12/") << "digits and \"/\" get through";

  struct caso {
    const char* dalla;
    const char* alla;
    const char* esce;
    const char* dalla_dopo;
    const char* alla_dopo;
  } casi[] = {
      {"1", "30", "txtalla", "1", "11"},                                         // above the count
      {"1", "", "txtalla", "1", "11"},                                           // no number: the count
      {"1", "7/", "txtalla", "1", "11"},                                         // no number either
      {"5", "10", "txtalla", "5", "5"},                                          // "10" sorts before "5"
      {"3", "9", "txtalla", "3", "9"},      {"9", "10", "txtdalla", "9", "10"},  // numbers here: 9 < 10
      {"12", "10", "txtdalla", "10", "10"}, {"0", "10", "txtdalla", "1", "10"},
      {"00", "10", "txtdalla", "00", "10"},  // only the exact "0" is corrected
  };
  for (const auto& c : casi) {
    box("txtdalla").imposta_testo(c.dalla);
    box("txtalla").imposta_testo(c.alla);
    box(c.esce).uscita();
    EXPECT_EQ(box("txtdalla").testo(), c.dalla_dopo) << c.dalla << ".." << c.alla << " leaving " << c.esce;
    EXPECT_EQ(box("txtalla").testo(), c.alla_dopo) << c.dalla << ".." << c.alla << " leaving " << c.esce;
  }
}

// ---------------------------------------------------------------- print

TEST_F(FormLotto, APlayUnderOneEuroIsRefusedOnlyWithADecimalComma) {
  const std::string rifiuto = "messaggio \"L'importo di giocata non è corretto.\"";
  for (auto loc : {formato_locale::italiano(), formato_locale::inglese()}) {
    p.reset();
    locale = loc;
    apri();
    clic("Chambo", 9);  // 0.50
    clic("ChRuote", 0);
    auto prima = piattaforma.righe();
    stampa();
    auto dopo = piattaforma.righe();
    bool rifiutata = std::count(dopo.begin(), dopo.end(), rifiuto) > std::count(prima.begin(), prima.end(), rifiuto);
    EXPECT_EQ(rifiutata, loc.decimale == ',') << importo();
  }
}

TEST_F(FormLotto, PrintCopiesTheTicksReloadsCalibrationAndRunsTheRange) {
  apri();
  clic("Chambo", 8);
  clic("ChRuote", 0);
  clic("ChRuote_naz");
  clic("ChSistemi", 4);
  clic("ChSistemi", 1);
  clic("ChGIO_MULT", 2);
  clic("chAmbetto", 9);
  clic("ChEstratto1", 3);  // the amount box goes to the position table
  clic("ChEstrattoPos", 1);
  clic("chkTipoEstrazione", 1);
  clic("chk10elottoImporto", 4);
  box("txtdalla").digita("3");
  box("txtalla").digita("5");
  s().tar_numeri(1, asse_x) = 99;  // not saved: the print reloads the file
  stampa();

  EXPECT_EQ(s().sel_ruote(0), 0) << "the national wheel cleared it";
  EXPECT_EQ(s().sel_ruote(11), selezionato);
  EXPECT_EQ(s().sel_sistemi(1), selezionato) << "the first tick of the row";
  EXPECT_EQ(s().sel_sistemi(4), 0);
  EXPECT_EQ(s().sel_gio_mult(2), selezionato);
  EXPECT_EQ(s().sel_ambo(8), selezionato);
  EXPECT_EQ(s().sel_ambetto(9), selezionato);
  EXPECT_EQ(s().sel_det_posizione(3), selezionato);
  EXPECT_EQ(s().sel_det_importo(1), selezionato);
  EXPECT_EQ(s().sel_tipo_estrazione(1), selezionato);
  EXPECT_EQ(s().sel_importo_10elotto(4), selezionato);
  EXPECT_NE(s().tar_numeri(1, asse_x), 99);
  EXPECT_EQ(s().dalla_scheda, 3);
  EXPECT_EQ(s().alla_scheda, 5);
  EXPECT_EQ(f().c<barra_avanzamento>("ProgressBar1").massimo, 3);
  EXPECT_EQ(f().c<barra_avanzamento>("ProgressBar1").valore(), 3);
  EXPECT_FALSE(f().c<cornice>("Frame2").visibile) << "the driver hides it at the end";
  auto righe = piattaforma.righe();
  EXPECT_EQ(std::count(righe.begin(), righe.end(), "nuova_pagina"), 3);
  EXPECT_EQ(valore("Chambo", 8), 1) << "the ticks stand for another print";

  // A second print starts from clean tables.
  clic("Chambo", 8);
  clic("Chambo", 7);
  stampa();
  EXPECT_EQ(s().sel_ambo(8), 0);
  EXPECT_EQ(s().sel_ambo(7), selezionato);
}

TEST_F(FormLotto, MissingCalibrationIsMadeFromFactoryValuesBeforeThePrint) {
  apri();
  std::filesystem::remove(cartella.file("tarlo2"));
  clic("Chambo", 8);
  clic("ChRuote", 0);
  stampa();
  EXPECT_TRUE(std::filesystem::exists(cartella.file("tarlo2")));
}

TEST_F(FormLotto, AFailingRunIsPassedOverSilently) {
  apri();
  std::filesystem::remove(cartella.file("ambo/provacaa.txt"));
  clic("Chambo", 8);
  clic("ChRuote", 0);
  EXPECT_NO_THROW(stampa());
  EXPECT_TRUE(f().c<cornice>("Frame2").visibile) << "the run stopped before the driver could hide it";
  EXPECT_FALSE(nel_giornale("chiudi_stampa"));
}

}  // namespace
}  // namespace schedine
