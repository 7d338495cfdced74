#pragma once
// Skins are Qt style sheets. A skin covers a window and the widgets inside
// it, except those the view exempts, which keep the plain look of the
// desktop. The sheet is scoped to the widgets marked as skinned: each rule's
// selector is narrowed to widgets with the property skin="true", and the
// view's exemptions get skin="false".

#include <QString>

namespace schedine {

class finestra_modulo;

// The sheet with every selector narrowed to skinned widgets:
// "QPushButton:hover" becomes "QPushButton[skin="true"]:hover".
QString foglio_delimitato(const QString& foglio);

// Marks the window's widgets and gives the window the scoped sheet; an
// empty sheet takes the skin away. A window whose view uses no skin is left alone.
void applica_skin(finestra_modulo& finestra, const QString& foglio);

}  // namespace schedine
