#pragma once
// What the models ask of the platform they run on. The desktop program
// answers with Qt; the scenario runner journals each request.

#include <string>

namespace schedine {

class dispositivo_stampa;

// Buttons and icons of a message box, as the system asks for them.
namespace stile_messaggio {
inline constexpr int solo_ok = 0;
inline constexpr int critico = 16;
inline constexpr int domanda = 32;
inline constexpr int esclamativo = 48;
inline constexpr int informazione = 64;
}  // namespace stile_messaggio

inline constexpr int risposta_ok = 1;

// The caption of the program: the main form's, and the title of a message
// box or a window that names none of its own.
inline constexpr const char* titolo_programma = "Marendolia - Stampa Schedine";

class servizi_piattaforma {
 public:
  virtual ~servizi_piattaforma() = default;

  // Lets the user interface handle what is waiting (clicks, repaints) once.
  virtual void esegui_eventi_in_attesa() = 0;
  // Shows a message box and answers the button pressed.
  virtual int messaggio(const std::string& testo, int stile, const std::string& titolo) = 0;
  // Starts another program by its path, without waiting for it. Throws
  // errore_runtime when the program cannot be started.
  virtual void avvia_programma(const std::string& percorso) = 0;
  // Gives the main window the look of a skin file. Throws errore_runtime
  // (file not found) when the file is not there.
  virtual void carica_skin(const std::string& percorso) = 0;
  // The printing device of the run: the system's default printer. The same
  // device serves the whole run, so a job left open stays open.
  virtual dispositivo_stampa& stampante() = 0;
};

}  // namespace schedine
