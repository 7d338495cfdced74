#include "app/binder/finestra_modulo.h"

#include <QCloseEvent>

namespace schedine {

finestra_modulo::finestra_modulo(std::string nome_modulo) : nome_modulo_(std::move(nome_modulo)) {
  setObjectName(QString::fromStdString(nome_modulo_));
}

void finestra_modulo::closeEvent(QCloseEvent* evento) {
  // Whether the window goes is the form's business: the binder hides it when
  // the form's rule has hidden or unloaded the form.
  evento->ignore();
  if (alla_chiusura) alla_chiusura();
}

}  // namespace schedine
