#pragma once
// The views of the forms. A view is one file: a function that lays out the
// widgets of a form's window, each named after its control, and one line
// that registers it under the form's name:
//
//   namespace {
//   void costruisci(finestra_modulo& f, modulo& m) { ... }
//   const bool registrata = registra_vista("Form_sched_enalotto", &costruisci);
//   }
//
// The binder does the rest. A form with no view of its own gets the stand-in
// view, which shows its title strip `lbltitolo` and a note.

#include <memory>
#include <string>

namespace schedine {

class finestra_modulo;
class modulo;

using costruttore_vista = void (*)(finestra_modulo& finestra, modulo& m);

// Registers the view of a form; answers true so that it can initialise a constant.
bool registra_vista(const std::string& nome_modulo, costruttore_vista costruttore);

// The registered view of a form, or nullptr.
costruttore_vista vista_di(const std::string& nome_modulo);

// The window of a form, laid out by its view or by the stand-in view.
std::unique_ptr<finestra_modulo> crea_finestra(modulo& m);

// The stand-in view, for a form still to be given its own.
void costruisci_vista_in_attesa(finestra_modulo& finestra, modulo& m);

}  // namespace schedine
