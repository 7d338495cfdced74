#include <gtest/gtest.h>

#include "controls/insieme_moduli.h"
#include "core/errore_runtime.h"
#include "core/stato.h"

namespace schedine {
namespace {

TEST(CasellaControllo, CodeRunsTheClickRuleOnlyWhenTheTickChanges) {
  casella_controllo casella("Check1", -1);
  int click = 0;
  casella.al_click = [&] { ++click; };
  casella.imposta_valore(0);
  EXPECT_EQ(click, 0);
  casella.imposta_valore(1);
  casella.imposta_valore(1);
  EXPECT_EQ(click, 1);
  casella.clic_utente();
  EXPECT_EQ(casella.valore(), 0);
  EXPECT_EQ(click, 2);
}

TEST(CasellaControllo, ARuleThatUnticksNestsInTheRunningRule) {
  casella_controllo a("a", -1), b("b", -1);
  std::vector<std::string> ordine;
  a.al_click = [&] {
    ordine.push_back("a inizio");
    b.imposta_valore(0);
    ordine.push_back("a fine");
  };
  b.al_click = [&] { ordine.push_back("b"); };
  b.imposta_valore(1);
  a.clic_utente();
  EXPECT_EQ(ordine, (std::vector<std::string>{"b", "a inizio", "b", "a fine"}));
}

class modulo_prova : public modulo {
 public:
  using modulo::modulo;
  int caricamenti = 0;

 protected:
  void crea_controlli() override {
    auto& cornice1 = aggiungi<cornice>("Frame1");
    for (int i = 0; i < 3; ++i) aggiungi_opzione("Option1", i, &cornice1);
    aggiungi_opzione("Option2", -1);
    aggiungi<casella_testo>("txtdalla").al_tasto = [](int& tasto) {
      if (tasto < '0' || tasto > '9') tasto = 0;
    };
    aggiungi<casella_controllo>("Chambo", 4, &cornice1);
  }
  void al_caricamento() override { ++caricamenti; }
};

class Modulo : public ::testing::Test {
 protected:
  stato s;
  insieme_moduli moduli{s};
  modulo_prova& form() {
    if (!moduli.conosce("Prova")) {
      moduli.registra("Prova", [](stato& st, insieme_moduli& m) { return std::make_unique<modulo_prova>("Prova", st, m); });
    }
    return moduli.di<modulo_prova>("Prova");
  }
};

TEST_F(Modulo, OptionButtonsUnselectTheirGroupOnly) {
  auto& f = form();
  f.c<pulsante_opzione>("Option2").imposta_valore(true);
  f.c<pulsante_opzione>("Option1", 0).imposta_valore(true);
  f.c<pulsante_opzione>("Option1", 2).clic_utente();
  EXPECT_FALSE(f.c<pulsante_opzione>("Option1", 0).valore());
  EXPECT_TRUE(f.c<pulsante_opzione>("Option1", 2).valore());
  EXPECT_TRUE(f.c<pulsante_opzione>("Option2").valore()) << "another container is another group";
}

TEST_F(Modulo, AMissingControlIsRunTimeError340) {
  auto& f = form();
  try {
    f.trova("Chambo", 18);
    FAIL();
  } catch (const errore_runtime& e) {
    EXPECT_EQ(e.numero(), codice::elemento_inesistente);
    EXPECT_NE(e.rapporto().find("Chambo(18)"), std::string::npos);
  }
}

TEST_F(Modulo, ReloadGivesTheDesignStateBackAndTheFormObjectStays) {
  auto& f = form();
  f.mostra();
  f.c<casella_controllo>("Chambo", 4).imposta_valore(1);
  f.scarica();
  EXPECT_FALSE(f.visibile());
  f.mostra();
  EXPECT_EQ(f.c<casella_controllo>("Chambo", 4).valore(), 0);
  EXPECT_EQ(f.caricamenti, 2);
  EXPECT_EQ(&form(), &f);
}

TEST_F(Modulo, ADisabledContainerMakesItsControlsUnreachable) {
  auto& f = form();
  auto& casella = f.c<casella_controllo>("Chambo", 4);
  EXPECT_TRUE(casella.raggiungibile());
  f.c<cornice>("Frame1").abilitato = false;
  EXPECT_FALSE(casella.raggiungibile());
}

TEST_F(Modulo, TypingReplacesTheTextKeyByKeyThroughTheFilter) {
  auto& testo = form().c<casella_testo>("txtdalla");
  int cambi = 0;
  testo.al_cambio = [&] { ++cambi; };
  testo.imposta_testo("12");
  testo.digita("3a4");
  EXPECT_EQ(testo.testo(), "34");
  EXPECT_EQ(cambi, 3);
  testo.digita("xyz");
  EXPECT_EQ(testo.testo(), "34") << "no key got through: the old text stands";
}

TEST(CasellaElenco, SelectionSearchAndRemoval) {
  casella_elenco lista("List1", -1);
  int click = 0;
  lista.al_click = [&] { ++click; };
  for (const char* voce : {" pippo      (Casuale)", " pippolino   (Condizionato)", " alfa"}) lista.aggiungi(voce);
  EXPECT_EQ(lista.cerca_prefisso(" PIPPO"), 0);
  EXPECT_EQ(lista.cerca_prefisso(" alfa"), 2);
  EXPECT_EQ(lista.cerca_prefisso(""), 0);
  EXPECT_EQ(lista.cerca_prefisso(" beta"), -1);
  lista.seleziona(-1);
  EXPECT_EQ(click, 0);
  lista.seleziona(1);
  EXPECT_EQ(click, 1);
  EXPECT_EQ(lista.testo(), " pippolino   (Condizionato)");
  lista.rimuovi(0);
  EXPECT_EQ(lista.indice_selezionato(), 0);
  EXPECT_EQ(lista.voce(5), "") << "past the end reads empty";
  EXPECT_THROW(lista.rimuovi(5), errore_runtime);
}

TEST(Griglia, CellsOutsideTheGridAreRunTimeErrors) {
  griglia g("MSHFlexGrid1", -1);
  g.dimensiona(9, 11);
  g.imposta_colore_cella(8, 10, griglia::giallo);
  EXPECT_EQ(g.colore_cella(8, 10), griglia::giallo);
  EXPECT_EQ(g.colore_cella(0, 0), griglia::bianco);
  EXPECT_THROW(g.testo_cella(9, 0), errore_runtime);
  EXPECT_THROW(g.selezione_utente(0, 0, 0, 11), errore_runtime);
}

}  // namespace
}  // namespace schedine
