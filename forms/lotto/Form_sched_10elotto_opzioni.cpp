// The 10eLotto options of Form_sched_10elotto (the kind of draw, the amount,
// the number picker and its random pick) and the subscription boxes.

#include <algorithm>
#include <array>
#include <cmath>

#include "core/numeri.h"
#include "core/piattaforma.h"
#include "forms/lotto/Form_sched_10elotto.h"

namespace schedine {

namespace {

// The amounts of chk10elottoImporto(0..6), in ten-thousandths of a euro.
constexpr std::array<int64_t, 7> importi_10elotto_scelta = {100000, 50000, 40000, 30000, 20000, 10000, 5000};

// The amounts the paper offers for a subscription, one box each.
constexpr std::array<float, 13> tagli_abbonamento = {200, 100, 50, 40, 30, 20, 10, 5, 4, 3, 2, 1, 0.5f};

constexpr int righe_griglia = 9;
constexpr int colonne_griglia = 11;

bool continuazione_utf8(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

}  // namespace

// ---------------------------------------------------------------- kind of draw and amount

// Both kinds may stand ticked; nothing keeps them apart.
void Form_sched_10elotto::tipo_estrazione_click() {
  s.estrazione_lotto = false;
  s.estrazione_immediata = false;
  if (spuntata("chkTipoEstrazione", 0)) s.estrazione_lotto = true;
  if (spuntata("chkTipoEstrazione", 1)) s.estrazione_immediata = true;
}

// The flags keep only the box clicked last (and nothing once it is
// unticked), while the sum keeps every ticked box: a print then marks one
// box and is told the sum.
void Form_sched_10elotto::importo_10elotto_click(int indice) {
  s.importo_10elotto_flag.azzera();
  s.importo_10elotto_flag(indice + 1) = spuntata("chk10elottoImporto", indice);
  importo_10elotto = valuta();
  for (int k = 0; k <= 6; ++k) {
    if (spuntata("chk10elottoImporto", k)) {
      importo_10elotto += valuta::da_decimillesimi(importi_10elotto_scelta[static_cast<size_t>(k)]);
    }
  }
}

// ---------------------------------------------------------------- number picker

// Nine rows of ten numbers, 1 to 90; column 0 has no width and no number.
void Form_sched_10elotto::costruisci_griglia() {
  passa_oltre([&] {
    auto& g = c<griglia>("MSHFlexGrid1");
    g.dimensiona(righe_griglia, colonne_griglia);
    g.larghezze_colonne[0] = 0;
    for (int colonna = 1; colonna < colonne_griglia; ++colonna) {
      g.larghezze_colonne[static_cast<size_t>(colonna)] = g.larghezza / 10 - 3;
    }
    for (int riga = 0; riga < righe_griglia; ++riga) {
      for (int colonna = 1; colonna < colonne_griglia; ++colonna) {
        g.imposta_testo_cella(riga, colonna, std::to_string(riga * 10 + colonna));
      }
    }
  });
}

// A click or a drag flips every numbered cell of the block between picked
// (yellow) and free (white); then the picked numbers are collected by rows.
void Form_sched_10elotto::griglia_rilascio_mouse() {
  auto& g = c<griglia>("MSHFlexGrid1");
  g.visibile = false;
  int riga_alta = std::max(g.riga, g.riga_fine);
  int riga_bassa = std::min(g.riga, g.riga_fine);
  int colonna_alta = std::max(g.colonna, g.colonna_fine);
  int colonna_bassa = std::min(g.colonna, g.colonna_fine);
  s.numeri_scelti.azzera();
  s.numeri_scelti_n = 0;
  for (int colonna = colonna_alta; colonna >= colonna_bassa; --colonna) {
    for (int riga = riga_alta; riga >= riga_bassa; --riga) {
      if (g.testo_cella(riga, colonna).empty()) continue;
      bool scelta = g.colore_cella(riga, colonna) == griglia::giallo;
      g.imposta_colore_cella(riga, colonna, scelta ? griglia::bianco : griglia::giallo);
    }
  }
  g.visibile = true;
  if (raccogli_numeri(true)) return;
  // Only the cell at the block's low corner goes back to white, whichever
  // number came eleventh, and the numbers are not collected again.
  s.numeri_scelti_n = 10;
  passa_oltre([&] { g.imposta_cella_corrente(riga_bassa, colonna_bassa); });
  passa_oltre([&] { g.imposta_colore_cella(riga_bassa, colonna_bassa, griglia::bianco); });
  passa_oltre([&] { s.piattaforma->messaggio("Max 10 numeri", stile_messaggio::esclamativo, ""); });
}

bool Form_sched_10elotto::raccogli_numeri(bool al_massimo_dieci) {
  auto& g = c<griglia>("MSHFlexGrid1");
  s.numeri_scelti_n = 0;
  for (int riga = 0; riga < righe_griglia; ++riga) {
    for (int colonna = 0; colonna < colonne_griglia; ++colonna) {
      if (g.colore_cella(riga, colonna) != griglia::giallo) continue;
      ++s.numeri_scelti_n;
      if (al_massimo_dieci && s.numeri_scelti_n > 10) return false;
      passa_oltre([&] { s.numeri_scelti(s.numeri_scelti_n) = static_cast<int16_t>(riga * 10 + colonna); });
    }
  }
  return true;
}

// Ten numbers drawn afresh. A draw j that ends in 0 lands on the tenth cell
// of the next row (10 on the cell of 20, ..., 80 on 90) and 90 is held to the
// last row: so 10 never comes up, and 90 twice as often as the others.
void Form_sched_10elotto::scelta_casuale_click() {
  auto& g = c<griglia>("MSHFlexGrid1");
  for (int riga = 0; riga < righe_griglia; ++riga) {
    for (int colonna = 0; colonna < colonne_griglia; ++colonna) g.imposta_colore_cella(riga, colonna, griglia::bianco);
  }
  for (int volta = 0; volta < 10; ++volta) {
    for (;;) {
      int j = static_cast<int>(casuale() * 90) + 1;
      int riga = std::clamp(j / 10, 0, righe_griglia - 1);
      int colonna = j % 10 == 0 ? 10 : j % 10;
      if (g.colore_cella(riga, colonna) == griglia::giallo) continue;
      g.imposta_colore_cella(riga, colonna, griglia::giallo);
      break;
    }
  }
  raccogli_numeri(false);
}

// ---------------------------------------------------------------- subscription

void Form_sched_10elotto::combo2_click() {
  s.abbonamento_concorsi = a_integer(numero_iniziale(c<casella_elenco>("Combo2").testo()));
}

std::string Form_sched_10elotto::importo_senza_estremi() {
  const std::string& testo = lblimporto().caption;
  size_t inizio = 0;
  if (inizio < testo.size()) ++inizio;
  while (inizio < testo.size() && continuazione_utf8(testo[inizio])) ++inizio;
  size_t fine = testo.size();
  while (fine > inizio && continuazione_utf8(testo[fine - 1])) --fine;
  if (fine > inizio) --fine;
  return testo.substr(inizio, fine - inizio);
}

// Check1, Combo1 and their label are hidden by design: these rules serve
// the code that sets them.
void Form_sched_10elotto::check1_click() {
  if (numero_iniziale(importo_senza_estremi()) == 0) {
    togli_spunta("Check1");
    return;
  }
  s.abbonamento_attivo = false;
  if (spuntata("Check1")) {
    s.abbonamento_attivo = true;
    auto& combo1 = c<casella_elenco>("Combo1");
    if (combo1.testo().empty()) passa_oltre([&] { combo1.seleziona(0); });
  }
}

// The subscription amount is held to the play's amount, then split greedily
// into the amounts of the paper, each used at most once. A comparison with a
// text that is no number fails, and the rule goes on inside its branch.
void Form_sched_10elotto::combo1_click() {
  auto& combo1 = c<casella_elenco>("Combo1");
  auto valore_combo = [&] { return numero_locale(combo1.testo(), s.locale); };
  float importo = 0.0f;
  passa_oltre([&] { importo = a_single(numero_locale(importo_senza_estremi(), s.locale)); });
  bool sotto = true;
  passa_oltre([&] { sotto = importo < valore_combo(); });
  // (An amount beyond any a play can reach leaves the text as it is.)
  if (sotto && std::fabs(importo) < 1e15f) {
    combo1.imposta_testo(std::to_string(static_cast<int64_t>(std::floor(importo))) + ",00");
  }
  s.abbonamento_tagli.azzera();
  float somma = 0.0f;
  for (int i = 0; i < 13; ++i) {
    float taglio = tagli_abbonamento[static_cast<size_t>(i)];
    bool entra = true;
    passa_oltre([&] { entra = !(somma + taglio > valore_combo()); });
    if (!entra) continue;
    somma += taglio;
    s.abbonamento_tagli(i) = true;
  }
}

}  // namespace schedine
