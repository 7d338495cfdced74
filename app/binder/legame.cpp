#include "app/binder/legame.h"

#include <QSignalBlocker>

#include "app/binder/aggiorna_widget.h"
#include "app/binder/collega_widget.h"
#include "app/binder/gruppi_opzioni.h"
#include "app/binder/nomi_widget.h"
#include "controls/insieme_moduli.h"
#include "core/errore_runtime.h"
#include "core/piattaforma.h"

namespace schedine {

legame::legame(insieme_moduli& moduli, servizi_piattaforma& piattaforma, fabbrica_finestra fabbrica)
    : moduli_(moduli), piattaforma_(piattaforma), fabbrica_(std::move(fabbrica)) {}

legame::~legame() = default;

void legame::evento(const std::function<void()>& regola) {
  if (fermato_) return;
  ++profondita_;
  try {
    regola();
  } catch (const std::exception& e) {
    // A run-time error ends the program with its report; any other failure
    // ends it the same way, reported in the program's own words.
    --profondita_;
    guasto(rapporto_guasto(e));
    return;
  }
  --profondita_;
  aggiorna();
  if (dopo_evento && !fermato_) dopo_evento();
}

void legame::guasto(const std::string& rapporto) {
  // Nothing of the program runs after its run-time error: no refresh, no
  // event, no unload; only the report.
  ferma();
  guasto_ = true;
  piattaforma_.messaggio(rapporto, stile_messaggio::critico, "");
  if (al_termine_per_guasto) al_termine_per_guasto();
}

void legame::ferma() {
  fermato_ = true;
  for (auto& [nome, legata] : finestre_) legata.finestra->hide();
}

finestra_modulo* legame::finestra(const std::string& nome_modulo) const {
  auto it = finestre_.find(nome_modulo);
  return it == finestre_.end() ? nullptr : it->second.finestra.get();
}

// ---------------------------------------------------------------- refresh

void legame::aggiorna() {
  // Refreshing moves widgets, which may stir events of their own (a box that
  // loses its focus as it hides): they are not the user's and run nothing.
  if (aggiornando_ || fermato_) return;
  aggiornando_ = true;
  std::vector<modulo*> moduli = moduli_.creati();
  // Windows go before others come, so that a hand-over never shows two.
  for (modulo* m : moduli) {
    auto it = finestre_.find(m->nome());
    if (it != finestre_.end() && !(m->caricato() && m->visibile())) {
      it->second.finestra->hide();
    }
  }
  for (modulo* m : moduli) {
    if (!(m->caricato() && m->visibile())) continue;
    auto it = finestre_.find(m->nome());
    finestra_legata& legata = it != finestre_.end() ? it->second : crea_finestra(*m);
    aggiorna_finestra(legata, *m);
    if (!legata.finestra->isVisible()) {
      legata.finestra->show();
      legata.finestra->raise();
      legata.finestra->activateWindow();
    }
  }
  aggiornando_ = false;
}

void legame::aggiorna_finestra(finestra_legata& legata, modulo& m) {
  QString titolo = QString::fromStdString(m.caption.empty() ? std::string(titolo_programma) : m.caption);
  if (legata.finestra->windowTitle() != titolo) legata.finestra->setWindowTitle(titolo);
  for (const widget_legato& w : legata.widget) {
    if (w.widget.isNull() || !m.esiste(w.nome, w.indice)) continue;
    // Setting a widget from the model is no user action: its signals stay quiet.
    QSignalBlocker silenzio(w.widget.data());
    aggiorna_widget(*w.widget, m.trova(w.nome, w.indice));
  }
  if (legata.finestra->dopo_aggiornamento) legata.finestra->dopo_aggiornamento(m);
  aggiorna_fermate_opzioni(*legata.finestra);
}

// ---------------------------------------------------------------- wiring

legame::finestra_legata& legame::crea_finestra(modulo& m) {
  finestra_legata& legata = finestre_[m.nome()];
  legata.finestra = fabbrica_(m);
  std::string nome_modulo = m.nome();
  legata.finestra->alla_chiusura = [this, nome_modulo] { chiusura_utente(nome_modulo); };
  collega(legata, m);
  if (alla_creazione) alla_creazione(*legata.finestra);
  return legata;
}

void legame::collega(finestra_legata& legata, modulo& m) {
  const std::string nome_modulo = m.nome();
  for (QWidget* w : legata.finestra->findChildren<QWidget*>()) {
    if (w->objectName().isEmpty() || w->objectName().startsWith(QLatin1String("qt_"))) continue;
    nome_controllo nome = controllo_di_widget(w->objectName());
    // A widget of the view that shows no control of the form is the view's own.
    if (!m.esiste(nome.nome, nome.indice)) continue;
    legata.widget.push_back({w, nome.nome, nome.indice});
    collega_widget(*w, m.trova(nome.nome, nome.indice),
                   [this, nome_modulo, nome](const std::function<void(controllo&)>& azione) {
                     su_controllo(nome_modulo, nome.nome, nome.indice, azione);
                   });
  }
}

void legame::su_controllo(const std::string& nome_modulo, const std::string& nome, int indice,
                          const std::function<void(controllo&)>& azione) {
  if (aggiornando_) return;
  evento([&] {
    modulo& m = moduli_(nome_modulo);
    if (!m.caricato() || !m.esiste(nome, indice)) return;
    azione(m.trova(nome, indice));
  });
}

void legame::chiusura_utente(const std::string& nome_modulo) {
  if (aggiornando_) return;
  evento([&] {
    modulo& m = moduli_(nome_modulo);
    if (!m.caricato()) return;
    finestra_modulo* f = finestra(nome_modulo);
    if (f != nullptr && f->regola_chiusura) {
      f->regola_chiusura(m, moduli_);
    } else {
      m.chiudi_utente();
    }
  });
}

}  // namespace schedine
