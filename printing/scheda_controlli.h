#pragma once
// The few controls of the slip forms that the renderers read while they
// print. They are read at print time, through the one instance of each form,
// so a slip carries what the form shows at that moment. Asking for a control
// loads its form if it isn't loaded, and a control the form doesn't have is
// the run-time error 340.

#include <string>

#include "core/stato.h"

namespace schedine {

class modulo;

// The tick of a check box that prints its box.
inline constexpr int casella_spuntata = 1;

// A slip form by name. A state without forms is "object not set".
modulo& modulo_di_stampa(stato& s, const std::string& nome_modulo);

// The value of a check box: 0 unticked, 1 ticked, 2 greyed.
int valore_casella(stato& s, const std::string& nome_modulo, const std::string& nome, int indice);
// Whether an option button is the chosen one of its group.
bool opzione_scelta(stato& s, const std::string& nome_modulo, const std::string& nome, int indice);

}  // namespace schedine
