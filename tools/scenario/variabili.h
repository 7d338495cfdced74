#pragma once
// The program-wide variables and tables that `expect var` can read, by the
// names the system gives them: "tipo_gioco", "sel_ruote(3)",
// "tar_numeri(90,0)", "tab_coord(1,90,1)".

#include <functional>
#include <string>
#include <vector>

#include "core/stato.h"
#include "tools/scenario/valore_letto.h"

namespace schedine::scenario {

struct variabile {
  int indici = 0;  // 0 for a plain variable, 1 to 3 for a table element
  // Reads the element; an index outside the table throws errore_runtime.
  std::function<valore_letto(const stato&, const std::vector<int>&)> leggi;
};

// The variable of that name (exactly as the system writes it), or nullptr.
const variabile* cerca_variabile(const std::string& nome);

}  // namespace schedine::scenario
