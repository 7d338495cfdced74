#pragma once
// Option buttons from the keyboard, as on the desktop the forms come from:
// Tab stops once in a group of options, at the chosen one (or the first when
// none is chosen), and the arrow keys choose the next or previous option of
// the group, running its click rule. A group is the options of one frame.
// The program keeps the groups itself, so Qt's own grouping is off and
// would otherwise make every option a stop of its own.

#include <QRadioButton>
#include <QWidget>

namespace schedine {

// Wires the arrow keys of an option button.
void collega_frecce_opzione(QRadioButton& opzione);

// Makes the chosen option of each group in the window its one Tab stop.
void aggiorna_fermate_opzioni(QWidget& finestra);

}  // namespace schedine
