#include "app/binder/finestra_modulo.h"

#include <QCloseEvent>
#include <QKeyEvent>

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

void finestra_modulo::imposta_pulsante_predefinito(QPushButton* pulsante) {
  if (predefinito_ != nullptr) predefinito_->setDefault(false);
  predefinito_ = pulsante;
  if (pulsante != nullptr) pulsante->setDefault(true);
}

// Outside a dialog Qt gives Enter to no button: a focused button takes it
// as a click, any other Enter the window's default button takes, as in a
// dialog. A disabled or hidden default is not pressed.
void finestra_modulo::keyPressEvent(QKeyEvent* evento) {
  const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  if (!invio || evento->modifiers() & ~Qt::KeypadModifier) {
    QWidget::keyPressEvent(evento);
    return;
  }
  QPushButton* pulsante = qobject_cast<QPushButton*>(focusWidget());
  if (pulsante == nullptr) pulsante = predefinito_;
  if (pulsante != nullptr && pulsante->isVisibleTo(this) && pulsante->isEnabled()) {
    pulsante->click();
  } else {
    evento->ignore();
  }
}

}  // namespace schedine
