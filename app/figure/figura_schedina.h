#pragma once
// The pictures of the slips on the calibration forms, drawn from the
// factory tables: each picture is the part of its slip over which the
// form's preview marks stand, scaled so that every mark's start falls on
// the box it stands for. The factory values are computed on a scratch state
// in a folder of its own, never on the user's tables or files.

#include <QColor>
#include <QPixmap>
#include <QPointF>
#include <QSize>
#include <QSizeF>
#include <string>
#include <vector>

namespace schedine {

class modulo;
class tar_pannelli;

// A box of a slip: its centre in millimetres and the text printed in it.
struct casella_schedina {
  QPointF mm;
  std::string testo;
};

// A preview mark at its start, matched to the box it stands for.
struct riscontro {
  QPointF centro_pixel;  // the mark's centre in pixels of the picture
  QPointF mm;            // the box's centre on the slip
};

// From millimetres on the slip to pixels of the picture, axis by axis. A
// turned picture shows the slip crosswise: its X follows the slip's Y, and
// its Y the slip's X.
struct mappa_figura {
  double scala_x = 1, origine_x = 0;
  double scala_y = 1, origine_y = 0;
  bool ruotata = false;
  QPointF in_pixel(QPointF mm) const;
};

// The least-squares map that takes each box onto its mark.
mappa_figura adatta_mappa(const std::vector<riscontro>& riscontri, bool ruotata);

// The picture: the boxes drawn through the map, each of the given size in
// pixels, in the slip's ink, on paper. A detail of a slip shows the boxes
// its edges cut; a whole panel shows only whole boxes.
QPixmap disegna_schedina(QSize dimensione, const std::vector<casella_schedina>& caselle, const mappa_figura& mappa,
                         QSizeF casella_pixel, QColor inchiostro, bool solo_intere = false);

// What the picture of a panel calibration form shows: the slip's boxes
// with their texts, the map onto the picture, and the size of a mark.
struct disegno_schedina {
  std::vector<casella_schedina> caselle;
  mappa_figura mappa;
  QSizeF segno;
};
disegno_schedina disegno_pannelli(tar_pannelli& t);

// The box drawn for a mark of the given size: a little larger, so that a
// mark in place sits inside it.
inline QSizeF lato_casella(QSizeF segno) { return segno + QSizeF(4, 4); }

// The slip picture of a calibration form (tar_lotto's Image1, the Image2 of
// the panel forms), at the given size; null for any other form.
QPixmap figura_taratura(modulo& m, QSize dimensione);

}  // namespace schedine
