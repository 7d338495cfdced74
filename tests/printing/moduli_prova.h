#pragma once
// Minimal slip forms for tests: each holds, in its design state, just the
// controls that the renderers read at print time, so print code can be
// tested before and apart from the real forms.

#include <memory>
#include <string>

#include "controls/insieme_moduli.h"
#include "controls/modulo.h"

namespace schedine::test {

// Form_sched_lotto_ambetto: the amount label and the kinds of draw.
class modulo_lotto_prova : public modulo {
 public:
  using modulo::modulo;

 protected:
  void crea_controlli() override {
    aggiungi<etichetta>("lblimporto");
    for (int i = 0; i <= 2; ++i) aggiungi<casella_controllo>("chkTipoEstrazione", i);
  }
};

// Form_sched_enalotto: the Superstar grid as the form builds it at load
// (9 rows, 11 columns, column 0 empty, cell (r, c) holds 10 r + c, all
// white) and the subscription list.
class modulo_enalotto_prova : public modulo {
 public:
  using modulo::modulo;

  // Paints the cell of a Superstar number yellow, as the user's click does.
  void scegli_superstar(int numero) {
    c<griglia>("MSHFlexGrid1").imposta_colore_cella((numero - 1) / 10, (numero - 1) % 10 + 1, griglia::giallo);
  }

 protected:
  void crea_controlli() override {
    auto& superstar = aggiungi<griglia>("MSHFlexGrid1");
    superstar.dimensiona(9, 11);
    for (int r = 0; r < 9; ++r) {
      for (int col = 1; col <= 10; ++col) superstar.imposta_testo_cella(r, col, std::to_string(10 * r + col));
    }
    auto& concorsi = aggiungi<casella_elenco>("Combo3");
    for (const char* voce : {"", "2", "3", "4", "5", "6", "9", "12", "15"}) concorsi.aggiungi(voce);
  }
};

// Form_sched_wforlife: the stake, 1 € chosen at design, and the subscription choice.
class modulo_wforlife_prova : public modulo {
 public:
  using modulo::modulo;

 protected:
  void crea_controlli() override {
    auto& puntata = aggiungi<cornice>("Frame1");
    aggiungi_opzione("Option3", 0, &puntata).imposta_valore(true);
    aggiungi_opzione("Option3", 1, &puntata);
    auto& abbonamenti = aggiungi<cornice>("Frame3");
    for (int i = 0; i <= 7; ++i) aggiungi_opzione("optAbb", i, &abbonamenti);
  }
};

// Form_sched_wforlife5: the stake and the calendar of 105 draws.
class modulo_wforlife5_prova : public modulo {
 public:
  using modulo::modulo;

 protected:
  void crea_controlli() override {
    auto& puntata = aggiungi<cornice>("Frame1");
    aggiungi_opzione("Option3", 0, &puntata).imposta_valore(true);
    aggiungi_opzione("Option3", 1, &puntata);
    for (int i = 0; i <= 104; ++i) aggiungi<casella_controllo>("chkAbbonamenti", i);
  }
};

template <class M>
insieme_moduli::fabbrica fabbrica_di(const std::string& nome) {
  return [nome](stato& s, insieme_moduli& moduli) { return std::make_unique<M>(nome, s, moduli); };
}

// Registers the four test forms under the names of the slip forms.
inline void registra_moduli_prova(insieme_moduli& moduli) {
  moduli.registra("Form_sched_lotto_ambetto", fabbrica_di<modulo_lotto_prova>("Form_sched_lotto_ambetto"));
  moduli.registra("Form_sched_enalotto", fabbrica_di<modulo_enalotto_prova>("Form_sched_enalotto"));
  moduli.registra("Form_sched_wforlife", fabbrica_di<modulo_wforlife_prova>("Form_sched_wforlife"));
  moduli.registra("Form_sched_wforlife5", fabbrica_di<modulo_wforlife5_prova>("Form_sched_wforlife5"));
}

}  // namespace schedine::test
