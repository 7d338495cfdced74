#pragma once
// How a widget names the control it shows. A widget carries the design name
// of its control as its objectName; an element of a control array carries
// the name, an underscore and the index ("Option1_3" is Option1(3)). Design
// names never end in an underscore and digits, so the two forms can't meet.

#include <QString>
#include <string>

namespace schedine {

struct nome_controllo {
  std::string nome;
  int indice = -1;  // -1 for a control that is no array element
};

// "cmdok" for ("cmdok", -1), "Option1_3" for ("Option1", 3).
QString nome_widget(const std::string& nome, int indice = -1);

// The control a widget's objectName names; the reverse of nome_widget.
nome_controllo controllo_di_widget(const QString& nome_oggetto);

// Pixels of a length in twips: the forms' positions are in twips, 15 to a pixel.
int pixel_da_twips(float twips);

}  // namespace schedine
