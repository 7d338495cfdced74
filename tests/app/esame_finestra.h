#pragma once
// What a person sees of a window, judged over the window as it is painted:
// every visible text legible against what lies under it, a disabled control
// told apart from an enabled one, and every text whole, inside its frame
// and clear of its neighbours.

#include <QImage>
#include <QString>
#include <QStringList>

class QWidget;

namespace schedine::test {

// The WCAG contrast ratio of two colours, 1 to 21.
double contrasto(QColor a, QColor b);

// One visible text of a window as painted: the widget (and item) it
// belongs to, its strongest colour and the background under it.
struct testo_dipinto {
  QString dove;
  QColor testo;
  QColor sfondo;
  bool attivo = true;
  QString classe;
  double rapporto() const { return contrasto(testo, sfondo); }
};

// Paints the window twice, with its texts and without them: the pixels that
// differ are the texts, the second picture what lies under them. A text
// hidden by what the design stacks over it is left out; one that paints no
// pixel at all comes back with its background as text colour.
std::vector<testo_dipinto> testi_dipinti(QWidget& finestra, QImage* dipinto = nullptr);

// What is wrong with the window's layout, one line a fault: a text larger
// than its widget, a widget out of its container or the window, two
// controls side by side that overlap, a control crossing a frame's edge.
QStringList difetti_di_collocazione(QWidget& finestra);

}  // namespace schedine::test
