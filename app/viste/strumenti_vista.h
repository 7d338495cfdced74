#pragma once
// Small helpers for laying out a view: widgets made with the name of their
// control, and widgets placed at a form's positions in twips.

#include <QFont>
#include <QWidget>
#include <string>

#include "app/binder/nomi_widget.h"

namespace schedine {

// A widget of kind W inside the parent, named after control nome(indice).
template <class W>
W* crea(QWidget* genitore, const std::string& nome, int indice = -1) {
  auto* widget = new W(genitore);
  widget->setObjectName(nome_widget(nome, indice));
  return widget;
}

// Places a widget inside its parent at a position and size given in twips.
void posiziona_twips(QWidget* widget, int sinistra, int alto, int larghezza, int altezza);

// The fixed-pitch font of the lists ("Courier New", or its metric twin
// Liberation Mono where it isn't installed).
QFont font_fisso(int punti = 10);

}  // namespace schedine
