#include <gtest/gtest.h>

#include <sstream>

#include "printing/giornale.h"
#include "tests/support/cartella_temporanea.h"
#include "tools/scenario/esecuzione.h"
#include "tools/scenario/esito.h"
#include "tools/scenario/valore_letto.h"

namespace schedine::scenario {
namespace {

struct corsa {
  risultato r;
  std::string giornale;
};

class Esecutore : public ::testing::Test {
 protected:
  void SetUp() override { cartella.scrivi("skin/skin1_1.skn", ""); }

  corsa esegui(const std::string& testo) {
    std::ostringstream uscita;
    risultato r;
    {
      giornale g(uscita);
      r = esegui_testo_scenario(testo, cartella.str(), formato_locale::italiano(), g);
    }
    return {r, uscita.str()};
  }

  bool esiste(const std::string& nome) { return std::filesystem::exists(cartella.file(nome)); }

  test::cartella_temporanea cartella;
};

TEST_F(Esecutore, ExitStatusAndTheLineWhereTheRunStopped) {
  struct caso {
    const char* scenario;
    int stato;
    int riga;
  };
  const caso casi[] = {
      {"start\nexpect var tipo_gioco \"superenalotto\"\nend\nexpect file sch absent\n", esito::riuscito, 0},
      // Esci ends the program; a later end changes nothing, checks still read.
      {"start\nclick Form1.cmdcancel\nend\nexpect Form1 visible \"0\"\nexpect file sch absent\n", esito::riuscito, 0},
      {"start\nclick Form1.cmdnessuno\n", esito::non_valido, 2},
      {"start\nexpect Form1.Label1 value \"1\"\n", esito::non_valido, 2},
      {"start\nselect Form1.cmdok 0\n", esito::non_valido, 2},
      {"start\nselect Form1.List1 0\n", esito::non_valido, 2},
      {"start\ntype Form1.List1 \"x\"\n", esito::non_valido, 2},
      {"start\nstart\n", esito::non_valido, 2},
      {"start\nend\nclick Form1.cmdok\n", esito::non_valido, 3},
      {"start\nend\nshow tar_lotto\n", esito::non_valido, 3},
      {"expect var nessuna \"1\"\n", esito::non_valido, 1},
      {"expect var sel_ruote \"0\"\n", esito::non_valido, 1},
      {"expect var sel_ruote(12) \"0\"\n", esito::non_valido, 1},
      {"expect var tipo_gioco(1) \"\"\n", esito::non_valido, 1},
      {"start\nexpect Form1.Option1(0) value \"0\"\n", esito::verifica_fallita, 2},
      {"start\nexpect Form1.Option1(0) value \"yes\"\n", esito::verifica_fallita, 2},
      {"start\nexpect Form1.Option1(0) text \"ambo\"\n", esito::verifica_fallita, 2},
      // A form that is not loaded has no controls to read.
      {"expect Form1.List1 count \"0\"\n", esito::verifica_fallita, 1},
      {"start\nexpect file skin/skin1_9.skn exists\n", esito::verifica_fallita, 2},
  };
  for (const auto& c : casi) {
    corsa risultato = esegui(c.scenario);
    EXPECT_EQ(risultato.r.stato, c.stato) << c.scenario << risultato.r.messaggio;
    EXPECT_EQ(risultato.r.riga, c.riga) << c.scenario;
    std::filesystem::remove_all(cartella.file("sch"));
  }
}

TEST_F(Esecutore, UnknownFormsAndVariablesStopTheRunBeforeAnythingHappens) {
  for (const char* scenario : {"start\nshow Form_nessuno\n", "start\nexpect var nessuna \"1\"\n"}) {
    corsa risultato = esegui(scenario);
    EXPECT_EQ(risultato.r.stato, esito::non_valido) << scenario;
    EXPECT_EQ(risultato.r.riga, 2) << scenario;
    EXPECT_FALSE(esiste("sch")) << "the program started: " << scenario;
  }
}

TEST_F(Esecutore, AFailedCheckStopsTheRunAndSaysWhatItFound) {
  corsa risultato = esegui("start\nexpect var tipo_gioco \"ambo\"\nend\n");
  EXPECT_EQ(risultato.r.stato, esito::verifica_fallita);
  EXPECT_NE(risultato.r.messaggio.find("expected \"ambo\""), std::string::npos) << risultato.r.messaggio;
  EXPECT_NE(risultato.r.messaggio.find("actual \"superenalotto\""), std::string::npos) << risultato.r.messaggio;
  EXPECT_TRUE(esiste("sch")) << "the run went on after the failed check";
}

TEST_F(Esecutore, ARunTimeErrorEndsTheProgramWithItsReport) {
  cartella.scrivi("skin/skn.dat", "2\r\n");
  corsa risultato = esegui("start\nend\n");
  EXPECT_EQ(risultato.r.stato, esito::errore_programma);
  EXPECT_EQ(risultato.r.riga, 1);
  EXPECT_EQ(risultato.giornale,
            "errore \"Errore di run-time '53': Impossibile trovare il file: " + cartella.str() + "/skin/skin1_2.skn\"\n");
}

TEST_F(Esecutore, ClicksTheUserCannotMakeAreJournaledAndChangeNothing) {
  corsa risultato = esegui(
      "click Form1.cmdok\n"          // the program has not started: no form on screen
      "start\n"
      "click Form1.Command3\n"       // invisible by design
      "click Form1.Command7\n"       // opens a calibration form and hides Form1
      "expect Form1 visible \"0\"\n"
      "click Form1.Option1(4)\n"     // Form1 is hidden
      "close Form1\n"
      "expect Form1.Option1(0) value \"1\"\n");
  EXPECT_EQ(risultato.r.stato, esito::riuscito) << risultato.r.messaggio;
  EXPECT_EQ(risultato.giornale,
            "ignorato Form1.cmdok\n"
            "ignorato Form1.Command3\n"
            "ignorato Form1.Option1(4)\n"
            "ignorato Form1\n");
}

TEST(ValoreLetto, NumbersCompareAsNumbersAndTextsExactly) {
  struct caso {
    valore_letto valore;
    const char* atteso;
    bool corrisponde;
  };
  const caso casi[] = {
      {valore_letto::di_single(68.9f), "68.9", true},
      {valore_letto::di_single(68.9f), "68.90009", true},
      {valore_letto::di_single(68.9f), "68.9002", false},
      {valore_letto::di_single(68.9f), "68,9", false},
      {valore_letto::di_single(-0.4375f), "-0.4375", true},
      {valore_letto::di_intero(100), "100", true},
      {valore_letto::di_intero(100), "100.0", true},
      {valore_letto::di_intero(100), "100.00001", false},
      {valore_letto::di_intero(0), "", false},
      {valore_letto::di_booleano(true), "True", true},
      {valore_letto::di_booleano(false), "False", true},
      {valore_letto::di_booleano(true), "true", false},
      {valore_letto::di_booleano(true), "1", false},
      {valore_letto::di_testo("Ambo"), "Ambo", true},
      {valore_letto::di_testo("Ambo"), "ambo", false},
      {valore_letto::di_testo("0,50"), "0.50", false},
  };
  for (const auto& c : casi) {
    EXPECT_EQ(c.valore.corrisponde(c.atteso), c.corrisponde) << c.valore.come_testo() << " vs " << c.atteso;
  }
}

}  // namespace
}  // namespace schedine::scenario
