#include "app/binder/nomi_widget.h"

#include <cmath>

namespace schedine {

QString nome_widget(const std::string& nome, int indice) {
  QString risultato = QString::fromStdString(nome);
  if (indice >= 0) risultato += QLatin1Char('_') + QString::number(indice);
  return risultato;
}

nome_controllo controllo_di_widget(const QString& nome_oggetto) {
  qsizetype trattino = nome_oggetto.lastIndexOf(QLatin1Char('_'));
  if (trattino > 0 && trattino + 1 < nome_oggetto.size()) {
    bool numero = false;
    int indice = nome_oggetto.mid(trattino + 1).toInt(&numero);
    // Only plain digits make an index: "ChRuote_naz" stays a name.
    bool solo_cifre = true;
    for (QChar c : nome_oggetto.mid(trattino + 1)) solo_cifre = solo_cifre && c.isDigit();
    if (numero && solo_cifre) return {nome_oggetto.left(trattino).toStdString(), indice};
  }
  return {nome_oggetto.toStdString(), -1};
}

int pixel_da_twips(float twips) { return static_cast<int>(std::lround(twips / 15.0f)); }

}  // namespace schedine
