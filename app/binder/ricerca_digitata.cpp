#include "app/binder/ricerca_digitata.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QKeyEvent>

namespace schedine {

namespace {

// The digits and the decimal comma of a text, in order.
QString numero_di(const QString& testo) {
  QString numero;
  for (QChar c : testo) {
    if (c.isDigit() || c == QLatin1Char(',')) numero += c;
  }
  return numero;
}

bool carattere_di_numero(QChar c) { return c.isDigit() || c == QLatin1Char(',') || c == QLatin1Char('.'); }

class filtro_ricerca : public QObject {
 public:
  filtro_ricerca(QComboBox& combo, std::function<void(int)> scegli)
      : QObject(&combo), combo_(combo), scegli_(std::move(scegli)) {}

  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (evento->type() != QEvent::KeyPress) return false;
    const QString scritto = static_cast<QKeyEvent*>(evento)->text();
    if (scritto.size() != 1 || !carattere_di_numero(scritto[0])) return false;
    const bool aperto = oggetto != &combo_;
    int voce = cerca(scritto[0] == QLatin1Char('.') ? QLatin1Char(',') : scritto[0]);
    if (voce < 0) return true;
    if (aperto) {
      combo_.view()->setCurrentIndex(combo_.model()->index(voce, combo_.modelColumn()));
    } else if (voce != combo_.currentIndex()) {
      combo_.setCurrentIndex(voce);
      scegli_(voce);
    }
    return true;
  }

 private:
  // Keys typed in quick succession make one text; after a pause a new one begins.
  int cerca(QChar c) {
    if (!ultimo_.isValid() || ultimo_.elapsed() > QApplication::keyboardInputInterval()) digitato_.clear();
    ultimo_.start();
    digitato_ += c;
    int voce = voce_con_numero(combo_, digitato_);
    if (voce < 0 && digitato_.size() > 1) {
      digitato_ = c;
      voce = voce_con_numero(combo_, digitato_);
    }
    return voce;
  }

  QComboBox& combo_;
  std::function<void(int)> scegli_;
  QString digitato_;
  QElapsedTimer ultimo_;
};

}  // namespace

int voce_con_numero(const QComboBox& combo, const QString& digitato) {
  QString cercato = digitato;
  cercato.replace(QLatin1Char('.'), QLatin1Char(','));
  for (int i = 0; i < combo.count(); ++i) {
    if (numero_di(combo.itemText(i)).startsWith(cercato)) return i;
  }
  return -1;
}

void attiva_ricerca_digitata(QComboBox& combo, std::function<void(int)> scegli) {
  auto* filtro = new filtro_ricerca(combo, std::move(scegli));
  combo.installEventFilter(filtro);
  combo.view()->installEventFilter(filtro);
}

}  // namespace schedine
