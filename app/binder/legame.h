#pragma once
// The binder between the form models and their windows. It is the same for
// every form: a window's widgets are matched to the form's controls by name
// (nomi_widget.h), each user action runs as one event on the model, and after
// every event every window is brought in step with its form: captions,
// values, lists, grids, enabled and visible flags, and whether the window is
// shown at all. Nothing is decided here that the models decide. The forms'
// timers are not run: none of them does any work of the system.
//
// A run-time error that escapes an event ends the program, as the original
// platform's run-time error report does: a critical message box names the
// fault, the windows go, and al_termine_per_guasto ends the process.

#include <QPointer>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "app/binder/finestra_modulo.h"

namespace schedine {

class controllo;
class insieme_moduli;
class modulo;
class servizi_piattaforma;

class legame {
 public:
  // Makes the window of a form, its widgets named after the form's controls.
  using fabbrica_finestra = std::function<std::unique_ptr<finestra_modulo>(modulo&)>;

  // The forms and the platform must outlive the binder.
  legame(insieme_moduli& moduli, servizi_piattaforma& piattaforma, fabbrica_finestra fabbrica);
  ~legame();
  legame(const legame&) = delete;
  legame& operator=(const legame&) = delete;

  // One event of the user: the rule runs on the models, then every window is
  // refreshed. Events nest when a rule lets pending events run.
  void evento(const std::function<void()>& regola);

  // Brings every window in step with its form: makes the window of a form
  // shown for the first time, refreshes the widgets of loaded forms, shows
  // and hides windows.
  void aggiorna();

  // The window of a form, once made.
  finestra_modulo* finestra(const std::string& nome_modulo) const;

  // Events currently running (nested ones included).
  int profondita() const { return profondita_; }

  // The program has stopped: every window is hidden and no event runs any more.
  void ferma();
  bool fermato() const { return fermato_; }
  bool fermato_per_guasto() const { return guasto_; }

  // After the report of a fault: how the process ends.
  std::function<void()> al_termine_per_guasto;
  // After every event that reached its end.
  std::function<void()> dopo_evento;
  // A window just made and wired, before it is first shown.
  std::function<void(finestra_modulo&)> alla_creazione;

 private:
  struct widget_legato {
    QPointer<QWidget> widget;
    std::string nome;
    int indice;
  };
  struct finestra_legata {
    std::unique_ptr<finestra_modulo> finestra;
    std::vector<widget_legato> widget;
  };

  finestra_legata& crea_finestra(modulo& m);
  void collega(finestra_legata& legata, modulo& m);
  void aggiorna_finestra(finestra_legata& legata, modulo& m);
  // Runs the action on a control of a loaded form, as one event.
  void su_controllo(const std::string& nome_modulo, const std::string& nome, int indice,
                    const std::function<void(controllo&)>& azione);
  void chiusura_utente(const std::string& nome_modulo);
  void guasto(const std::string& rapporto);

  insieme_moduli& moduli_;
  servizi_piattaforma& piattaforma_;
  fabbrica_finestra fabbrica_;
  std::map<std::string, finestra_legata> finestre_;
  int profondita_ = 0;
  bool aggiornando_ = false;
  bool fermato_ = false;
  bool guasto_ = false;
};

}  // namespace schedine
