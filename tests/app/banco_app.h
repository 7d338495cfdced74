#pragma once
// The desktop program without its event loop: a demo program folder, the
// whole program on it, the binder with the real views, and a test platform
// that journals messages instead of showing them.

#include <QWidget>
#include <filesystem>
#include <string>

#include "app/anteprima/regia_stampa.h"
#include "app/binder/legame.h"
#include "app/binder/nomi_widget.h"
#include "app/viste/registro_viste.h"
#include "forms/programma/programma.h"
#include "tests/support/cartella_temporanea.h"
#include "tests/support/piattaforma_prova.h"
#include "tools/demo/genera_demo.h"

namespace schedine::test {

struct banco_app {
  cartella_temporanea cartella;
  piattaforma_prova piattaforma;
  // As in the program, the forms meet the platform through the print commands of the windows.
  regia_stampa regia{piattaforma};
  programma p;
  legame binder;
  bool finito = false;
  bool finito_per_guasto = false;

  banco_app()
      : p(prepara(cartella), regia, formato_locale::italiano()), binder(p.moduli, regia, &crea_finestra) {
    regia.imposta_stato(&p.s);
    binder.alla_creazione = [this](finestra_modulo& f) { f.regia = &regia; };
    binder.al_termine_per_guasto = [this] { finito_per_guasto = true; };
    // As the program's main does: the main form gone is the end.
    binder.dopo_evento = [this] {
      if (binder.profondita() == 0) regia.fine_evento();
      if (p.terminato() || !p.moduli("Form1").caricato()) {
        binder.ferma();
        finito = true;
      }
    };
  }

  void avvia() {
    binder.evento([this] { p.avvia(); });
  }

  finestra_modulo* finestra(const std::string& modulo) { return binder.finestra(modulo); }

  template <class W>
  W* widget(const std::string& modulo, const std::string& nome, int indice = -1) {
    finestra_modulo* f = finestra(modulo);
    return f == nullptr ? nullptr : f->findChild<W*>(nome_widget(nome, indice));
  }

  bool esiste(const std::string& nome) const { return std::filesystem::exists(cartella.file(nome)); }

 private:
  static std::string prepara(const cartella_temporanea& c) {
    demo::genera_demo(c.str(), SCHEDINE_SKIN_DIR);
    return c.str();
  }
};

}  // namespace schedine::test
