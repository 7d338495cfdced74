#pragma once
// Which picture a control of a form shows. The forms hold their pictures as
// assets; the program draws them: slip pictures on the calibration forms,
// the amount heads of the stake columns, the game marks, and the arrows of
// the calibration crosses.

#include <QIcon>
#include <QPixmap>
#include <QSize>

namespace schedine {

class controllo;
class modulo;

// The picture of a picture control at its size; null when it shows none
// (a picture box that only holds other controls).
QPixmap figura_controllo(modulo& m, const controllo& c, QSize dimensione);

// The picture on a button with no caption (the arrows of the calibration
// forms); a null icon for a button that has none.
QIcon icona_pulsante(modulo& m, const controllo& c, QSize dimensione);

// The design size in pixels of a picture the form gives no size for.
QSize dimensione_naturale(modulo& m, const controllo& c);

}  // namespace schedine
