#pragma once
// Puts what a control model holds on the widget that shows it: caption,
// value, enabled and visible flags, list entries and selection, grid cells
// and colours, progress, and the position where the view leaves it to the
// model. Only what differs is touched, so a refresh after every event costs
// little and doesn't disturb a list's scroll position or a box's cursor.

#include <QColor>
#include <cstdint>

class QWidget;

namespace schedine {

class controllo;

void aggiorna_widget(QWidget& widget, const controllo& c);

// Widget properties a view may set. On a container: how many twips one unit
// of its children's positions is (a picture box whose marks are placed in
// pixels of its picture has 15); without it a unit is a twip. On a widget:
// true when the view places it itself and the model's position is not applied.
inline constexpr const char* scala_contenitore = "twip_per_unita";
inline constexpr const char* posizione_libera = "posizione_libera";
// The design's place last applied to a widget, in pixels, and how far the
// view has fitted the widget beyond it (QMargins), kept when the model moves it.
inline constexpr const char* posizione_modello = "posizione_modello";
inline constexpr const char* ritocco = "ritocco";
// On a check box: true when its box has no room for a caption, so it shows
// the tick box alone, as a narrow box on the form does.
inline constexpr const char* solo_casella = "solo_casella";

// A colour of the models (0x00BBGGRR, as the original platform writes colours).
QColor colore_da_modello(int32_t colore);

}  // namespace schedine
