#pragma once
// Where the widgets of a model-driven window go. A control stands where its
// form's design puts it (twips, 15 to a pixel, in the units of its
// container). Where the design gives a place and no size, the widget takes
// its natural size, a text wrapping before it runs into the next control of
// its row; where the design gives neither, the widgets of a container follow
// one another in reading order around the placed ones. The window takes the
// size the form gives, grown to hold its visible frames.

#include <QSize>
#include <map>
#include <vector>

class QLabel;
class QWidget;

namespace schedine {

class controllo;
class modulo;

// A control and the widget that shows it, while the window is made.
struct posto_widget {
  const controllo* c;
  QWidget* w;
};

// Places every widget of a container (or of the window, for controls of no
// container): the placed ones first, then the others around them.
void colloca_contenuto(QWidget& contenitore, const std::vector<posto_widget>& figli);

// Fits a label to its text, as it is now: one the design gives no size
// takes its natural size (a wrapping one the lines it needs); in the box the
// design gives, a text too long for it is set smaller. Nothing is done
// while the text stays the same.
void adatta_etichetta(QLabel& etichetta);

// The window's client size for the form as it stands now, in pixels.
QSize dimensione_finestra(modulo& m, const std::vector<QWidget*>& di_primo_livello);

// Twips of a control's design, as pixels in its container's units.
int pixel_nel_contenitore(const QWidget& contenitore, float twips_o_unita);

}  // namespace schedine
