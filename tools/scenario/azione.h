#pragma once
// One line of a scenario, understood: what the user does or what is checked.

#include <string>
#include <vector>

namespace schedine::scenario {

// A form ("Form1") or a control of it ("Form1.Option1(3)").
struct bersaglio {
  std::string modulo;
  std::string controllo;  // empty when the form itself is meant
  int indice = -1;        // -1 for a control that is no array element
  std::string scritto;    // as the scenario writes it, for the journal and messages

  bool e_modulo() const { return controllo.empty(); }
};

enum class tipo_azione {
  avvio,           // start
  fine,            // end
  clic,            // click CONTROL
  scelta,          // select CONTROL N
  digitazione,     // type CONTROL "TEXT"
  uscita,          // leave CONTROL
  griglia,         // grid CONTROL R1 C1 [R2 C2]
  chiusura,        // close FORM
  apertura,        // show FORM
  verifica,        // expect CONTROL|FORM PROPERTY "VALUE"
  verifica_voce,   // expect CONTROL item N "VALUE"
  verifica_cella,  // expect CONTROL cell R C "VALUE"
  verifica_colore, // expect CONTROL colour R C "VALUE"
  verifica_var,    // expect var NAME "VALUE"
  verifica_file,   // expect file NAME exists|absent
};

struct azione {
  int riga = 0;
  tipo_azione tipo = tipo_azione::avvio;
  bersaglio su;
  std::string proprieta;     // text, value, enabled, visible, count, index
  std::vector<int> numeri;   // item, rows and columns, the list entry to select
  std::string testo;         // text typed, or the value expected
  std::string variabile;     // expect var: the name without indices
  std::vector<int> indici;   // expect var: the indices of a table element
  std::string file;          // expect file: name relative to the program folder
  bool deve_esistere = true; // expect file: exists or absent
};

}  // namespace schedine::scenario
