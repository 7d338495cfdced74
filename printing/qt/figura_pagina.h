#pragma once
// The picture of a paper slip under the drawings of a print preview: every
// box where the factory tables put it, in the slip's colour, at true scale.
// It is painted only for the preview and for the preview's PDF: paper has
// the slip printed on it already.

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <memory>
#include <string>
#include <vector>

#include "printing/qt/misure_mm.h"
#include "printing/schedina_in_stampa.h"

namespace schedine {

struct stato;

// A box of the slip: its rectangle in millimetres and the text printed in it.
struct casella_mm {
  QRectF mm;
  std::string testo;
};

struct figura_schedina_mm {
  std::string nome;           // the game, printed in a corner of the slip
  QColor inchiostro;          // the slip's ink: box edges and texts
  QColor fondo;               // the slip's area
  QColor casella;             // the inside of a box
  QRectF area;                // the slip's area on the page, in millimetres
  std::vector<casella_mm> caselle;
};

// A box is this large, centred on its table point, where the round mark falls.
inline constexpr double larghezza_casella_mm = 3.4;
inline constexpr double altezza_casella_mm = 3.0;

// The picture of a slip, computed once from its factory tables.
const figura_schedina_mm& figura_di(schedina s);

// The factory tables of a slip, on a scratch state whose file goes to a
// folder of its own, never the user's.
std::unique_ptr<stato> stato_di_fabbrica(void (*fabbrica)(stato&));

// Paints the picture at the scale (dots a millimetre); nothing for `nessuna`.
// Boxes wholly outside `visibile` (in dots; empty for all) are not drawn.
void disegna_figura(QPainter& p, misure_mm::scala scala, schedina s, const QRectF& visibile = {});

}  // namespace schedine
