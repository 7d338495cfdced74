#pragma once
// Message boxes as the system asks for them: a style number that joins a
// button set (low three bits), an icon (16 critical, 32 question, 48
// exclamation, 64 information) and a default button (256, 512), and an
// answer that is the number of the button pressed (OK 1, Cancel 2, Abort 3,
// Retry 4, Ignore 5, Yes 6, No 7).

#include <QMessageBox>
#include <string>
#include <vector>

#include "core/piattaforma.h"

namespace schedine {

struct pulsante_messaggio {
  int risposta;      // the number the system gets back
  const char* testo; // the button's text, in Italian
  QMessageBox::ButtonRole ruolo;
};

struct forma_messaggio {
  QMessageBox::Icon icona;
  std::vector<pulsante_messaggio> pulsanti;  // left to right
  int predefinito;                           // index into pulsanti
  int annullamento;                          // index of the button Esc presses
};

forma_messaggio forma_di(int stile);

// Shows the message box and answers the button pressed (Esc or closing the
// box answers the Cancel or No of the set, or its only button).
int mostra_messaggio(const std::string& testo, int stile, const std::string& titolo);

}  // namespace schedine
