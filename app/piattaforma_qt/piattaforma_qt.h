#pragma once
// The platform services of the desktop program, with Qt: pending events,
// message boxes, starting another program, the skin, and the printer.

#include <QString>
#include <functional>
#include <string>

#include "app/piattaforma_qt/stampante_app.h"
#include "core/piattaforma.h"

namespace schedine {

class piattaforma_qt : public servizi_piattaforma {
 public:
  explicit piattaforma_qt(std::string cartella_programma);

  // Brings the windows in step with the models (prima_degli_eventi), then
  // lets Qt handle what is waiting once.
  void esegui_eventi_in_attesa() override;
  // A modal message box; the title defaults to the program's caption.
  int messaggio(const std::string& testo, int stile, const std::string& titolo) override;
  // Starts the program detached, in the program folder. A program that
  // isn't there or can't start is the run-time error "file not found" (53).
  void avvia_programma(const std::string& percorso) override;
  // Reads the skin file, a Qt style sheet, and hands it to al_cambio_skin.
  // A missing or unreadable file is the run-time error 53 naming it.
  void carica_skin(const std::string& percorso) override;
  dispositivo_stampa& stampante() override { return stampante_; }

  // The style sheet of the skin loaded last; empty before the first.
  const QString& foglio_skin() const { return foglio_skin_; }

  std::function<void()> prima_degli_eventi;
  std::function<void(const QString& foglio)> al_cambio_skin;

 private:
  QString foglio_skin_;
  stampante_app stampante_;
};

}  // namespace schedine
