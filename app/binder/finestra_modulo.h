#pragma once
// The window of one form. The view fills it with widgets named after the
// form's controls; the binder shows and hides it by the form's state. A close
// by the user is handed to the binder, which runs the form's rule for it: the
// window itself never closes on its own.

#include <QPointer>
#include <QPushButton>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <string>

namespace schedine {

class insieme_moduli;
class modulo;
class regia_stampa;

class finestra_modulo : public QWidget {
 public:
  explicit finestra_modulo(std::string nome_modulo);

  const std::string& nome_modulo() const { return nome_modulo_; }

  // Set by the binder: what a close by the user does.
  std::function<void()> alla_chiusura;

  // Choices of the view.
  // The rule a close by the user runs on the form; none means the form's own
  // chiudi_utente.
  std::function<void(modulo&, insieme_moduli&)> regola_chiusura;
  // What the view brings in step with the form after the binder has
  // refreshed the widgets (the window's size, panels the view places itself).
  std::function<void(modulo&)> dopo_aggiornamento;
  // Whether the skin in use covers this window, and the widgets (by
  // objectName) that keep the plain look inside it.
  bool usa_skin = false;
  QStringList esenti_skin;
  // The button Enter presses when the key reaches the window: the focus is
  // on no button of its own. None: Enter does nothing.
  void imposta_pulsante_predefinito(QPushButton* pulsante);
  // The print commands of the program ("Anteprima", "Interrompi"), set by
  // whoever makes the window; without them those buttons do nothing.
  regia_stampa* regia = nullptr;

 protected:
  void closeEvent(QCloseEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  std::string nome_modulo_;
  QPointer<QPushButton> predefinito_;
};

}  // namespace schedine
