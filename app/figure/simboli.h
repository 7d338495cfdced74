#pragma once
// The small pictures of the forms, drawn by the program: the arrows of the calibration crosses, the 10eLotto
// and Win for Life marks and the calibration icon.

#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace schedine {

enum class verso;

// An arrow pointing the given way, for a button of that size.
QIcon freccia(verso direzione, QSize dimensione);

// The 10eLotto panel picture, 120 by 69 pixels at design.
QPixmap marchio_10elotto(QSize dimensione);
// The Win for Life logo of the calibration forms.
QPixmap marchio_wforlife(QSize dimensione);
// The 32 by 32 icon of the slip pictures: a mark in its sights.
QPixmap icona_taratura(QSize dimensione);

}  // namespace schedine
