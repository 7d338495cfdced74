// Form_sched_enalotto driven as Form1 opens it: the count of the system and
// the range boxes, the Superstar grid and Check2, the slip choice, the price
// of a column and cst, and the shared state a print run sets. Whole runs,
// and the Win for Life forms, are told by the scenarios enalotto_* and wforlife_*.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "core/stato.h"
#include "forms/enalotto_wforlife/Form_sched_enalotto.h"
#include "forms/programma/programma.h"
#include "tests/support/cartella_temporanea.h"
#include "tests/support/piattaforma_prova.h"

namespace schedine {
namespace {

// N columns of six numbers, one a line.
std::string colonne(int n) {
  std::string testo;
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < 6; ++j) testo += std::to_string((6 * i + j) % 90 + 1) + (j < 5 ? "," : "\r\n");
  }
  return testo;
}

class FormPannelli : public ::testing::Test {
 protected:
  void SetUp() override {
    cartella.scrivi("skin/skin1_1.skn", "");
    cartella.scrivi("superenalotto/provacue.txt", "1,84\r\n");
    cartella.scrivi("superenalotto/provacae.txt", colonne(84));
    cartella.scrivi("cst", "\"0,50\",\"Euro\"\r\n");
  }

  programma& prog() {
    if (!p) p = std::make_unique<programma>(cartella.str(), piattaforma, locale);
    return *p;
  }
  stato& s() { return prog().s; }

  // As Form1's "Ok" does: the choice is in the shared state, the title is set, the form is shown.
  Form_sched_enalotto& apri() {
    s().tipo_gioco = "superenalotto";
    s().tipo_sistema = "casuale";
    s().sistema_scelto = " provacue.txt";
    auto& f = prog().moduli.di<Form_sched_enalotto>("Form_sched_enalotto");
    f.c<etichetta>("lbltitolo").caption = "Sistema: prova";
    f.mostra();
    return f;
  }
  modulo& m() { return prog().moduli("Form_sched_enalotto"); }
  controllo& ctl(const std::string& nome, int indice = -1) { return m().trova(nome, indice); }
  void clic(const std::string& nome, int indice = -1) { ctl(nome, indice).clic_utente(); }
  std::string testo(const std::string& nome) { return ctl(nome).testo_visibile(); }
  griglia& superstar() { return m().c<griglia>("MSHFlexGrid1"); }
  // The user's click on the cell of a Superstar number.
  void scegli_numero(int numero) {
    int r = (numero - 1) / 10;
    int c = (numero - 1) % 10 + 1;
    superstar().selezione_utente(r, c, r, c);
  }
  bool stampato() {
    auto righe = piattaforma.righe();
    return std::find(righe.begin(), righe.end(), "chiudi_stampa") != righe.end();
  }

  test::cartella_temporanea cartella;
  test::piattaforma_prova piattaforma;
  formato_locale locale = formato_locale::italiano();
  std::unique_ptr<programma> p;
};

// ---------------------------------------------------------------- count and range

struct caso_conteggio {
  const char* tipo;
  const char* sistema;  // sistema_scelto
  const char* file;
  const char* contenuto;
  int32_t atteso;
};

TEST_F(FormPannelli, CountsEachKindOfSystem) {
  const caso_conteggio casi[] = {
      {"condizionato", " xnue.txt", "superenalotto/xnue.txt", "\"a\",\"b\",13\r\n", 13},
      {"ridotto", " xride.txt", "superenalotto/xride.txt", "9,14,0\r\n1,2,3,4,5,6\r\n", 14},
      {"ridotto", " xrifae.txt", "superenalotto/xrifae.txt", "15,99\r\n", 15},
      {"autoridotto", " xridae.txt", "superenalotto/xridae.txt", "16\r\n", 16},
      // A head that can't be read leaves the count before.
      {"casuale", " sparitocue.txt", "superenalotto/altro.txt", "", 16},
      {"sconosciuto", " xcue.txt", "superenalotto/xcue.txt", "1,40\r\n", 16},
  };
  auto& f = apri();
  for (const auto& caso : casi) {
    cartella.scrivi(caso.file, caso.contenuto);
    s().tipo_sistema = caso.tipo;
    s().sistema_scelto = caso.sistema;
    f.range_pagine_e();
    EXPECT_EQ(f.colonne_form, caso.atteso) << caso.tipo << caso.sistema;
  }
}

TEST_F(FormPannelli, RangeBoxesKeepARangeOfTheSystem) {
  apri();  // 84 columns, 5 a slip: 17 slips
  auto& dalla = m().c<casella_testo>("txtdalla");
  auto& alla = m().c<casella_testo>("txtalla");
  alla.digita("9a9");
  EXPECT_EQ(alla.testo(), "99") << "letters are dropped";
  alla.uscita();
  EXPECT_EQ(alla.testo(), "17");
  alla.digita("2");
  dalla.digita("3");
  dalla.uscita();
  EXPECT_EQ(dalla.testo(), "2");
  dalla.digita("0");
  dalla.uscita();
  EXPECT_EQ(dalla.testo(), "1");
  dalla.digita("5");
  alla.uscita();
  EXPECT_EQ(alla.testo(), "5") << "the end is raised to the start";
}

// ---------------------------------------------------------------- Superstar

TEST_F(FormPannelli, DragFlipsTheRectangle) {
  apri();
  scegli_numero(13);
  superstar().selezione_utente(2, 4, 0, 2);  // 2 .. 24, dragged upwards
  EXPECT_EQ(superstar().colore_cella(1, 3), griglia::bianco) << "13 was chosen: the drag removes it";
  EXPECT_EQ(superstar().colore_cella(0, 2), griglia::giallo);
  EXPECT_EQ(superstar().colore_cella(2, 4), griglia::giallo);
  EXPECT_EQ(m().c<etichetta>("lbltot").caption, "€ 378,00") << "eight numbers: nine times the columns";
}

TEST_F(FormPannelli, RetailersNumberClearsTheGridAndCountsOne) {
  apri();
  scegli_numero(7);
  scegli_numero(8);
  clic("Check2");
  EXPECT_FALSE(superstar().abilitato);
  EXPECT_EQ(superstar().colore_cella(0, 7), griglia::bianco);
  EXPECT_EQ(s().numeri_superstar(1), 7) << "left until the next refill";
  EXPECT_TRUE(s().superstar_attiva);
  EXPECT_EQ(testo("lbltot"), "€ 84,00");
  m().c<casella_elenco>("Combo3").scegli(1);
  EXPECT_EQ(testo("lbltot"), "€ 168,00") << "the subscription keeps the retailer's number";
  EXPECT_EQ(s().numeri_superstar(1), 0);
  clic("Check2");
  EXPECT_TRUE(superstar().abilitato);
  EXPECT_FALSE(s().superstar_attiva);
  EXPECT_EQ(testo("lbltot"), "€ 84,00") << "no Superstar, the subscription of 2 draws stays";
}

TEST_F(FormPannelli, SlipChoiceAndReset) {
  auto& f = apri();
  clic("Option2");
  EXPECT_EQ(f.larghezza, 13360);
  EXPECT_FALSE(ctl("Combo1").abilitato);
  EXPECT_EQ(testo("Combo1"), "2");
  EXPECT_EQ(testo("txtalla"), "42");
  scegli_numero(3);
  m().c<casella_elenco>("Combo3").scegli(8);
  EXPECT_EQ(testo("lbltot"), "€ 1.260,00");
  clic("Option1");
  EXPECT_FALSE(superstar().abilitato);
  EXPECT_EQ(superstar().colore_cella(0, 3), griglia::bianco);
  EXPECT_FALSE(ctl("Combo3").abilitato);
  EXPECT_EQ(testo("Combo3"), "");
  EXPECT_EQ(s().abbonamento_concorsi, 0);
  EXPECT_TRUE(s().superstar_attiva) << "the five-panel slip leaves the flag as it was";
  EXPECT_EQ(testo("lbltot"), "€ 42,00");

  clic("Option2");
  scegli_numero(4);
  clic("cmdannulla", 3);
  EXPECT_FALSE(s().superstar_attiva);
  EXPECT_EQ(s().numeri_superstar(1), 0);
  EXPECT_EQ(testo("Combo1"), "5");
  EXPECT_FALSE(ctl("Combo1").abilitato) << "the two-panel slip stays chosen";
  EXPECT_EQ(testo("txtalla"), "17");
}

// ---------------------------------------------------------------- price of a column

TEST_F(FormPannelli, RetailersNumberWithoutAPriceIsAFault) {
  std::filesystem::remove(cartella.file("cst"));
  apri();
  ASSERT_EQ(testo("Text1"), "");
  // Nought by nought in the cost, a fault that Check2's rule doesn't pass over.
  EXPECT_THROW(clic("Check2"), errore_runtime);
}

TEST_F(FormPannelli, PriceListFollowsTheUsersNumberFormat) {
  locale = formato_locale::inglese();
  apri();
  auto& combo2 = m().c<casella_elenco>("Combo2");
  EXPECT_EQ(combo2.conta(), 4971);
  EXPECT_EQ(combo2.voce(0), "€ 0.30");
  EXPECT_EQ(combo2.voce(4970), "€ 50.00");
  EXPECT_EQ(testo("Text1"), "") << "\"0,50\" from cst is no entry of this list";
}

TEST_F(FormPannelli, OnlySalvaSavesAndChangesThePrice) {
  apri();
  for (int numero : {1, 2}) scegli_numero(numero);
  clic("Command1");
  EXPECT_TRUE(ctl("Frame1").visibile);
  m().c<casella_elenco>("Combo2").scegli(70);  // € 1,00
  clic("Command3");
  EXPECT_EQ(testo("Combo2"), "€ 0,50") << "Annulla goes back to the saved price";
  EXPECT_FALSE(ctl("Frame1").visibile);
  clic("Command1");
  m().c<casella_elenco>("Combo2").scegli(70);
  clic("Command4");
  EXPECT_EQ(testo("Combo2"), "€ 0,50");
  EXPECT_EQ(testo("lbltot"), "€ 126,00") << "Default changes no cost";
  m().c<casella_elenco>("Combo2").scegli(120);
  clic("Command2");
  EXPECT_EQ(testo("Text1"), "€ 1,50");
  EXPECT_EQ(testo("lbltot"), "€ 378,00");
  EXPECT_EQ(cartella.leggi("cst"), "\"1,50\",\"Euro\"\r\n#TRUE#\r\n");
  // The flag of the file is read back by Annulla.
  s().superstar_attiva = false;
  clic("Command3");
  EXPECT_TRUE(s().superstar_attiva);
}

// ---------------------------------------------------------------- print run

TEST_F(FormPannelli, PrintRunSetsTheSharedStateOfEachSlip) {
  auto& f = apri();
  clic("Option2");
  clic("cmdannulla", 3);  // back to 5 a slip on the two-panel slip
  s().colonne_sistema = 3;
  m().c<casella_testo>("txtalla").digita("2");
  clic("cmdstampa", 1);
  EXPECT_EQ(s().colonne_per_scheda, 2);
  EXPECT_EQ(s().colonne_sistema, 3) << "the two-panel run leaves it";
  EXPECT_EQ(s().alla_scheda, 2);
  EXPECT_TRUE(std::filesystem::exists(cartella.file("taren2"))) << "made from factory values by the run";
  EXPECT_EQ(m().c<barra_avanzamento>("ProgressBar1").massimo, 2);
  EXPECT_FALSE(ctl("Frame2").visibile) << "the driver hides it";
  EXPECT_TRUE(stampato());

  clic("Option1");
  clic("cmdstampa", 1);
  EXPECT_EQ(s().colonne_per_scheda, 5);
  EXPECT_EQ(s().colonne_sistema, f.colonne_form);
  EXPECT_TRUE(std::filesystem::exists(cartella.file("taren")));
}

}  // namespace
}  // namespace schedine
