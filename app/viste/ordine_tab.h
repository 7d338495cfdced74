#pragma once
// Tab walks a window as a person reads it: container by container, each
// from top to bottom and, along a row, from left to right. The forms' own
// order of controls follows how they were made, not where they stand.

#include <QWidget>

namespace schedine {

// Sets the tab order of the widgets inside the window by where they stand.
void ordina_tabulazione(QWidget& finestra);

}  // namespace schedine
