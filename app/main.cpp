// stampa-schedine: the desktop program. Its folder is the program folder,
// where it finds and keeps all its data. It opens with the main form, runs
// the forms' rules on the user's events, and ends when the main form goes.

#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "app/anteprima/regia_stampa.h"
#include "app/binder/accessibilita.h"
#include "app/binder/legame.h"
#include "app/piattaforma_qt/piattaforma_qt.h"
#include "app/viste/registro_viste.h"
#include "app/viste/skin.h"
#include "core/formato_locale.h"
#include "forms/programma/programma.h"

using namespace schedine;

int main(int argc, char** argv) {
  QApplication applicazione(argc, argv);
  // Windows come and go with their forms; the program ends with the main form.
  applicazione.setQuitOnLastWindowClosed(false);
  installa_accessibilita();

  const std::string cartella = QCoreApplication::applicationDirPath().toStdString();
  piattaforma_qt piattaforma(cartella);
  // The forms print through the preview and stop commands of the windows.
  regia_stampa regia(piattaforma);
  // The program and its files are Italian: numbers are shown and read the
  // Italian way whatever the system's locale.
  programma p(cartella, regia, formato_locale::italiano());
  regia.imposta_stato(&p.s);
  legame binder(p.moduli, regia, &crea_finestra);

  // A rule that lets pending events run shows its progress first.
  piattaforma.prima_degli_eventi = [&binder] { binder.aggiorna(); };
  piattaforma.al_cambio_skin = [&binder](const QString& foglio) {
    for (const std::string& nome : nomi_moduli()) {
      if (finestra_modulo* f = binder.finestra(nome)) applica_skin(*f, foglio);
    }
  };
  binder.alla_creazione = [&piattaforma, &regia](finestra_modulo& f) {
    f.regia = &regia;
    if (!piattaforma.foglio_skin().isEmpty()) applica_skin(f, piattaforma.foglio_skin());
  };
  binder.al_termine_per_guasto = [&binder] {
    if (binder.profondita() == 0) {
      QCoreApplication::exit(3);
    } else {
      // The fault came up inside a rule that is still running: the program
      // ends here and now, as after the original's run-time error report.
      std::fflush(nullptr);
      std::_Exit(3);
    }
  };
  binder.dopo_evento = [&binder, &p, &regia] {
    if (binder.profondita() == 0) regia.fine_evento();
    if (p.terminato() || !p.moduli("Form1").caricato()) {
      binder.ferma();
      QCoreApplication::quit();
    }
  };

  binder.evento([&p] { p.avvia(); });
  if (binder.fermato_per_guasto()) return 3;
  if (binder.fermato()) return 0;
  int esito = applicazione.exec();
  // Ended by the desktop session rather than by the main form: it unloads now.
  if (!binder.fermato_per_guasto() && p.moduli("Form1").caricato()) p.termina();
  return esito;
}
