#pragma once
// Connects the user's actions on one widget to the events of the control it
// shows: clicks, ticks and option picks, typed keys and leaving a box, list
// and combo picks, grid selections. The control is named, not held: forms
// make their controls anew at each load, so each event looks it up again.

#include <functional>

class QWidget;

namespace schedine {

class controllo;

// Runs an action on the widget's control as one event of the user (the
// binder's event: the rule, then the refresh). Nothing runs when the form or
// the control is gone.
using azione_controllo = std::function<void(const std::function<void(controllo&)>&)>;

// Wires the widget by its kind and by the kind of the control it shows now.
void collega_widget(QWidget& widget, const controllo& c, azione_controllo esegui);

}  // namespace schedine
