// The calibration forms driven as the user drives them, through the main
// form's buttons, for what the scenario checks can't see: where the preview
// marks stand, their shape, which are hidden, and the way out of tar_lotto.

#include <gtest/gtest.h>

#include <string>

#include "core/stato.h"
#include "forms/calibration/tar_lotto.h"
#include "forms/calibration/tar_pannelli.h"
#include "forms/programma/programma.h"
#include "tests/support/cartella_temporanea.h"
#include "tests/support/piattaforma_prova.h"

namespace schedine {
namespace {

class Taratura : public ::testing::Test {
 protected:
  Taratura() {
    cartella.scrivi("skin/skin1_1.skn", "");
    p.avvia();
  }

  // Opens a calibration form with its button on the main form.
  modulo& apri(const std::string& comando, const std::string& nome) {
    p.moduli("Form1").c<pulsante>(comando).clic_utente();
    return p.moduli(nome);
  }
  static void clic(modulo& m, const std::string& nome, int indice = -1) { m.trova(nome, indice).clic_utente(); }
  static forma& segno(modulo& m, const std::string& nome, int indice = -1) { return m.c<forma>(nome, indice); }
  static std::string testo(modulo& m, const std::string& nome, int indice = -1) {
    return m.c<etichetta>(nome, indice).caption;
  }

  test::cartella_temporanea cartella;
  test::piattaforma_prova piattaforma;
  programma p{cartella.str(), piattaforma, formato_locale::italiano()};
  stato& s = p.s;
};

// ---------------------------------------------------------------- tar_lotto

TEST_F(Taratura, LottoArrowsMoveOnlyTheRoundMarksAndTheNationalWheelNineSteps) {
  modulo& f = apri("Command7", "tar_lotto");
  EXPECT_FALSE(p.moduli("Form1").visibile());
  clic(f, "cmddirezione", 1);
  for (int i = 0; i < 9; ++i) {
    const float colonna = i == 3 ? 150 : (i % 3 == 0 ? 165 : i % 3 == 1 ? 930 : 1680);
    EXPECT_FLOAT_EQ(segno(f, "Shapepunto", i).sinistra, colonna + 4.375f) << i;
    EXPECT_FLOAT_EQ(segno(f, "Shapequadrato", i).sinistra, colonna) << i;
  }
  EXPECT_FLOAT_EQ(segno(f, "Shapenaz").sinistra, 240 + 39.375f);
  clic(f, "cmddirezione", 2);
  clic(f, "cmddirezione", 2);
  EXPECT_FLOAT_EQ(segno(f, "Shapepunto", 6).alto, 1695 - 8.75f);
  EXPECT_FLOAT_EQ(segno(f, "Shapenaz").alto, 270 - 78.75f);

  // With the square mark the grid the user sees stands still; Shapenaz goes on moving.
  clic(f, "Option2");
  EXPECT_EQ(s.carattere_stampa, 2);
  EXPECT_TRUE(segno(f, "Shapequadrato", 4).visibile);
  EXPECT_FALSE(segno(f, "Shapepunto", 4).visibile);
  EXPECT_EQ(segno(f, "Shapenaz").tipo, 1);
  clic(f, "cmddirezione", 3);
  EXPECT_FLOAT_EQ(segno(f, "Shapequadrato", 4).sinistra, 930);
  EXPECT_FLOAT_EQ(segno(f, "Shapenaz").sinistra, 240);

  // "Salva" puts every mark and Shapenaz back at their start.
  clic(f, "Command1", 0);
  EXPECT_FLOAT_EQ(segno(f, "Shapepunto", 6).alto, 1695);
  EXPECT_FLOAT_EQ(segno(f, "Shapepunto", 3).sinistra, 150);
  EXPECT_FLOAT_EQ(segno(f, "Shapenaz").alto, 270);
}

TEST_F(Taratura, LottoInterlinePreviewMovesEachColumnAndRowByItsWeight) {
  modulo& f = apri("Command7", "tar_lotto");
  clic(f, "cmdInterlinea", 1);
  EXPECT_FLOAT_EQ(segno(f, "Shapepunto", 0).sinistra, 165);
  EXPECT_FLOAT_EQ(segno(f, "Shapepunto", 4).sinistra, 930 + 2.375f);
  EXPECT_FLOAT_EQ(segno(f, "Shapepunto", 8).sinistra, 1680 + 4.75f);
  clic(f, "cmdInterlinea", 2);
  EXPECT_FLOAT_EQ(segno(f, "Shapepunto", 2).alto, 195);
  EXPECT_FLOAT_EQ(segno(f, "Shapepunto", 3).alto, 960 - 2.375f);
  EXPECT_FLOAT_EQ(segno(f, "Shapepunto", 7).alto, 1695 - 4.75f);
  // "Annulla" puts the marks back but leaves the interline counters.
  clic(f, "Command1", 2);
  EXPECT_FLOAT_EQ(segno(f, "Shapepunto", 8).sinistra, 1680);
  EXPECT_EQ(testo(f, "lblInterX"), "1");
  EXPECT_EQ(testo(f, "lblInterY"), "-1");
}

TEST_F(Taratura, LottoLeavesByEsciAndByClosingItsWindow) {
  modulo& f = apri("Command7", "tar_lotto");
  const int eventi = piattaforma.eventi;
  clic(f, "cmdesci");
  EXPECT_FALSE(f.caricato());
  EXPECT_GT(piattaforma.eventi, eventi);
  EXPECT_TRUE(p.moduli("Form1").visibile());

  // Closing the window leaves as Esci does: the main form comes back.
  modulo& di_nuovo = apri("Command7", "tar_lotto");
  EXPECT_FALSE(p.moduli("Form1").visibile());
  di_nuovo.chiudi_utente();
  EXPECT_FALSE(di_nuovo.caricato());
  EXPECT_TRUE(p.moduli("Form1").visibile());
}

// ---------------------------------------------------------------- panel forms

TEST_F(Taratura, Enalotto2LaysOutItsMarksAndTurnsItsArrows) {
  auto& f = dynamic_cast<tar_pannelli&>(apri("Command4", "tar_enalotto2"));
  EXPECT_FLOAT_EQ(segno(f, "Shape7", 16).sinistra, 16.9f);
  EXPECT_FLOAT_EQ(segno(f, "Shape7", 16).alto, 21.3f);
  EXPECT_FLOAT_EQ(segno(f, "Shape7", 89).sinistra, static_cast<float>(2 + 14.9 * 14));
  EXPECT_FLOAT_EQ(f.pos_shape7[89].alto, static_cast<float>(2 + 19.3 * 5));

  // The bottom arrow moves the preview down and the tables to the left.
  const float x = s.tab_coord(4, 9, asse_x);
  const float y = s.tab_coord(4, 9, asse_y);
  clic(f, "cmddirezione", 0);
  EXPECT_FLOAT_EQ(segno(f, "Shape7", 16).alto, 22.3f);
  EXPECT_FLOAT_EQ(s.tab_coord(4, 9, asse_x), x - 0.3125f);
  EXPECT_FLOAT_EQ(s.tab_coord(4, 9, asse_y), y);
}

TEST_F(Taratura, WforlifeHidesAllButTwentyMarksAndMovesTheHiddenOnesToo) {
  modulo& f = apri("Command5", "tar_wforlife");
  EXPECT_TRUE(segno(f, "Shape7", 19).visibile);
  EXPECT_FALSE(segno(f, "Shape7", 20).visibile);
  EXPECT_FLOAT_EQ(segno(f, "Shape7", 7).sinistra, 72);
  EXPECT_FLOAT_EQ(segno(f, "Shape7", 7).alto, 50.5f);
  const float nascosto = segno(f, "Shape7", 45).sinistra;
  clic(f, "cmddirezione", 3);
  EXPECT_FLOAT_EQ(segno(f, "Shape7", 45).sinistra, nascosto - 1);
  EXPECT_FLOAT_EQ(segno(f, "Shape7", 7).sinistra, 71);
  clic(f, "Command1", 1);
  EXPECT_FLOAT_EQ(segno(f, "Shape7", 45).sinistra, nascosto);
  EXPECT_FLOAT_EQ(segno(f, "Shape7", 7).sinistra, 72);
}

TEST_F(Taratura, Wforlife5InterlinePreviewStretchesPanelsAndAnnullaClearsItsCounters) {
  modulo& f = apri("Command6", "tar_wforlife5");
  // Mark 21: panel 1, row 0, column 1, the fourth column across the slip.
  const float sinistra = segno(f, "Shape7", 21).sinistra;
  const float alto = segno(f, "Shape7", 99).alto;
  clic(f, "cmdInterlinea", 1);
  clic(f, "cmdInterlinea", 3);
  EXPECT_FLOAT_EQ(segno(f, "Shape7", 21).sinistra, sinistra + 1.125f);
  EXPECT_FLOAT_EQ(segno(f, "Shape7", 99).alto, alto + 3.375f);
  EXPECT_FLOAT_EQ(segno(f, "Shape7", 0).sinistra, 8.3f);
  clic(f, "Command1", 2);
  EXPECT_EQ(testo(f, "lblInterX"), "0");
  EXPECT_EQ(testo(f, "lblInterY"), "0");
  EXPECT_FLOAT_EQ(segno(f, "Shape7", 21).sinistra, sinistra);

  // On the one-panel form the interline counters outlive "Annulla".
  clic(f, "cmdesci");
  modulo& uno = apri("Command5", "tar_wforlife");
  clic(uno, "cmdInterlinea", 1);
  clic(uno, "Command1", 2);
  EXPECT_EQ(testo(uno, "lblInterX"), "1");
}

TEST_F(Taratura, AllPanelsUnchecksTheBoxesThatExistAndGoesOn) {
  const std::pair<const char*, const char*> forms[] = {{"Command2", "tar_enalotto"},
                                                       {"Command4", "tar_enalotto2"},
                                                       {"Command5", "tar_wforlife"},
                                                       {"Command6", "tar_wforlife5"}};
  for (const auto& [comando, nome] : forms) {
    modulo& f = apri(comando, nome);
    auto casella = [&](int j) { return f.c<casella_controllo>("Checkpannelli", j).valore(); };
    clic(f, "Checkpannelli", 1);
    EXPECT_EQ(casella(0), 0) << nome;
    EXPECT_NO_THROW(clic(f, "Checkpannelli", 0)) << nome;
    EXPECT_EQ(casella(0), 1) << nome;
    EXPECT_EQ(casella(1), 0) << nome;
    EXPECT_TRUE(f.visibile()) << nome;
    clic(f, "cmdesci");
  }
}

TEST_F(Taratura, SavedSquareMarkSquaresThePreviewAtLoad) {
  modulo& f = apri("Command6", "tar_wforlife5");
  clic(f, "Option2");
  clic(f, "Command1", 1);
  clic(f, "cmdesci");
  s.carattere_stampa = 1;
  modulo& di_nuovo = apri("Command6", "tar_wforlife5");
  EXPECT_EQ(s.carattere_stampa, 2);
  EXPECT_TRUE(di_nuovo.c<pulsante_opzione>("Option2").valore());
  EXPECT_EQ(segno(di_nuovo, "Shape7", 57).tipo, 1);
  clic(di_nuovo, "Option1");
  EXPECT_EQ(segno(di_nuovo, "Shape7", 57).tipo, 3);
}

}  // namespace
}  // namespace schedine
