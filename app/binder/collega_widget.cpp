#include "app/binder/collega_widget.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QRadioButton>
#include <QTableWidget>

#include "app/binder/gruppi_opzioni.h"
#include "app/binder/ricerca_digitata.h"
#include "controls/controlli.h"

namespace schedine {

namespace {

// Runs f on the control when it is of the kind the widget was wired for.
template <class T, class F>
void esegui_su(const azione_controllo& esegui, F&& f) {
  esegui([&f](controllo& c) {
    if (auto* tipizzato = dynamic_cast<T*>(&c)) f(*tipizzato);
  });
}

// Keys typed in a text box go through the box's key filter first, as on the
// original platform: the filter may drop a key (0) or change it. Leaving the
// box runs its leave rule; a window that merely loses activation is no leave.
class filtro_casella_testo : public QObject {
 public:
  filtro_casella_testo(QLineEdit& riga, azione_controllo esegui) : QObject(&riga), riga_(riga), esegui_(std::move(esegui)) {}

  bool eventFilter(QObject*, QEvent* evento) override {
    if (evento->type() == QEvent::KeyPress) return tasto(*static_cast<QKeyEvent*>(evento));
    if (evento->type() == QEvent::FocusOut) {
      auto motivo = static_cast<QFocusEvent*>(evento)->reason();
      if (motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason) {
        esegui_su<casella_testo>(esegui_, [](casella_testo& casella) { casella.uscita(); });
      }
    }
    return false;
  }

 private:
  // True when the key is used up here.
  bool tasto(const QKeyEvent& evento) {
    // Tab moves the focus on: it never reaches the box's key filter.
    if (evento.key() == Qt::Key_Tab || evento.key() == Qt::Key_Backtab) return false;
    QString scritto = evento.text();
    // The filter sees characters of one byte, as the platform's KeyPress does.
    if (scritto.size() != 1 || scritto[0].unicode() > 255) return false;
    int originale = scritto[0].unicode();
    int tasto = originale;
    esegui_su<casella_testo>(esegui_, [&tasto](casella_testo& casella) {
      if (casella.al_tasto) casella.al_tasto(tasto);
    });
    if (tasto == 0) return true;
    if (tasto == originale) return false;  // the box takes the key as typed
    // The filter changed the key: the box takes the new one.
    if (tasto == 8) {
      riga_.backspace();
    } else {
      riga_.insert(QString(QChar(tasto)));
    }
    std::string nuovo = riga_.text().toStdString();
    esegui_su<casella_testo>(esegui_, [&nuovo](casella_testo& casella) { casella.imposta_testo(nuovo); });
    return true;
  }

  QLineEdit& riga_;
  azione_controllo esegui_;
};

// A grid reports the cells between the press and the release of the mouse.
class filtro_griglia : public QObject {
 public:
  filtro_griglia(QTableWidget& tabella, azione_controllo esegui)
      : QObject(&tabella), tabella_(tabella), esegui_(std::move(esegui)) {}

  bool eventFilter(QObject*, QEvent* evento) override {
    if (evento->type() == QEvent::MouseButtonPress) {
      inizio_ = tabella_.indexAt(static_cast<QMouseEvent*>(evento)->position().toPoint());
    } else if (evento->type() == QEvent::MouseButtonRelease && inizio_.isValid()) {
      QModelIndex fine = tabella_.indexAt(static_cast<QMouseEvent*>(evento)->position().toPoint());
      if (!fine.isValid()) fine = inizio_;
      int r1 = inizio_.row(), c1 = inizio_.column(), r2 = fine.row(), c2 = fine.column();
      inizio_ = QModelIndex();
      esegui_su<griglia>(esegui_, [=](griglia& g) { g.selezione_utente(r1, c1, r2, c2); });
    }
    return false;
  }

 private:
  QTableWidget& tabella_;
  azione_controllo esegui_;
  QModelIndex inizio_;
};

// A label reports a click when the mouse button comes up over it.
class filtro_clic : public QObject {
 public:
  filtro_clic(QWidget& widget, azione_controllo esegui) : QObject(&widget), esegui_(std::move(esegui)) {}
  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (evento->type() == QEvent::MouseButtonRelease) {
      auto* widget = static_cast<QWidget*>(oggetto);
      if (widget->rect().contains(static_cast<QMouseEvent*>(evento)->position().toPoint())) {
        esegui_([](controllo& c) { c.clic_utente(); });
      }
    }
    return false;
  }

 private:
  azione_controllo esegui_;
};

void collega_bottone(QAbstractButton& bottone, azione_controllo esegui) {
  // Option buttons are kept apart by the model, not by Qt.
  if (auto* opzione = qobject_cast<QRadioButton*>(&bottone)) {
    opzione->setAutoExclusive(false);
    collega_frecce_opzione(*opzione);
  }
  QObject::connect(&bottone, &QAbstractButton::clicked, &bottone,
                   [esegui] { esegui([](controllo& c) { c.clic_utente(); }); });
}

void collega_testo(QLineEdit& riga, azione_controllo esegui) {
  riga.installEventFilter(new filtro_casella_testo(riga, esegui));
  // Edits that come without a key (paste, delete) reach the model as they are.
  QObject::connect(&riga, &QLineEdit::textEdited, &riga, [esegui](const QString& testo) {
    std::string nuovo = testo.toStdString();
    esegui_su<casella_testo>(esegui, [&nuovo](casella_testo& casella) { casella.imposta_testo(nuovo); });
  });
}

void collega_elenco(QWidget& widget, azione_controllo esegui) {
  auto scegli = [esegui](int indice) {
    if (indice < 0) return;
    esegui_su<casella_elenco>(esegui, [indice](casella_elenco& elenco) {
      if (indice < elenco.conta()) elenco.scegli(indice);
    });
  };
  if (auto* lista = qobject_cast<QListWidget*>(&widget)) {
    QObject::connect(lista, &QListWidget::currentRowChanged, lista, scegli);
  } else if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
    QObject::connect(combo, &QComboBox::activated, combo, scegli);
    attiva_ricerca_digitata(*combo, scegli);
  }
}

void collega_griglia(QTableWidget& tabella, azione_controllo esegui) {
  // The model keeps the selection as cell colours; Qt's own highlight would hide them.
  tabella.setSelectionMode(QAbstractItemView::NoSelection);
  tabella.setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabella.viewport()->installEventFilter(new filtro_griglia(tabella, std::move(esegui)));
}

}  // namespace

void collega_widget(QWidget& widget, const controllo& c, azione_controllo esegui) {
  if (dynamic_cast<const casella_testo*>(&c) != nullptr) {
    if (auto* riga = qobject_cast<QLineEdit*>(&widget)) collega_testo(*riga, std::move(esegui));
  } else if (dynamic_cast<const casella_elenco*>(&c) != nullptr) {
    collega_elenco(widget, std::move(esegui));
  } else if (dynamic_cast<const griglia*>(&c) != nullptr) {
    if (auto* tabella = qobject_cast<QTableWidget*>(&widget)) collega_griglia(*tabella, std::move(esegui));
  } else if (auto* bottone = qobject_cast<QAbstractButton*>(&widget)) {
    collega_bottone(*bottone, std::move(esegui));
  } else if (qobject_cast<QLabel*>(&widget) != nullptr) {
    widget.installEventFilter(new filtro_clic(widget, std::move(esegui)));
  }
}

}  // namespace schedine
