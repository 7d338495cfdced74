#include "app/viste/skin.h"

#include <QApplication>
#include <QRegularExpression>
#include <QVariant>

#include "app/binder/finestra_modulo.h"

namespace schedine {

namespace {

const QString attributo = QStringLiteral("[skin=\"true\"]");

// The selector narrowed in its last compound, the one the rule styles.
QString delimita_selettore(const QString& selettore) {
  QString s = selettore.trimmed();
  if (s.isEmpty()) return s;
  qsizetype inizio = 0;
  for (qsizetype i = 0; i < s.size(); ++i) {
    QChar c = s[i];
    if (c.isSpace() || c == QLatin1Char('>') || c == QLatin1Char('+') || c == QLatin1Char('~')) inizio = i + 1;
  }
  qsizetype punto = inizio;
  while (punto < s.size() && s[punto] != QLatin1Char(':') && s[punto] != QLatin1Char('[')) ++punto;
  return s.left(punto) + attributo + s.mid(punto);
}

// A widget that names a control is skinned unless exempted; one that names
// none (a list's viewport, a scroll bar) goes with the widget it belongs to.
void marca(QWidget* widget, bool skin_del_genitore, const QStringList& esenti) {
  QString nome = widget->objectName();
  bool di_controllo = !nome.isEmpty() && !nome.startsWith(QLatin1String("qt_"));
  bool skin = di_controllo ? !esenti.contains(nome) : skin_del_genitore;
  widget->setProperty("skin", skin);
  // An exempted control keeps the plain look whole: its own background and
  // the desktop's colours, not the skin's background showing through under
  // text of the plain colour.
  if (di_controllo && !skin) {
    QPalette semplice = QApplication::palette();
    // The desktop's selection blue is too light under white text.
    semplice.setColor(QPalette::Highlight, semplice.color(QPalette::Highlight).darker(150));
    widget->setPalette(semplice);
    widget->setAutoFillBackground(true);
  }
  for (QObject* figlio : widget->children()) {
    if (auto* w = qobject_cast<QWidget*>(figlio); w != nullptr && !w->isWindow()) marca(w, skin, esenti);
  }
}

}  // namespace

QString foglio_delimitato(const QString& foglio) {
  static const QRegularExpression commenti(QStringLiteral("/\\*.*?\\*/"), QRegularExpression::DotMatchesEverythingOption);
  QString testo = foglio;
  testo.remove(commenti);
  QString risultato;
  qsizetype posizione = 0;
  while (true) {
    qsizetype apertura = testo.indexOf(QLatin1Char('{'), posizione);
    if (apertura < 0) break;
    qsizetype chiusura = testo.indexOf(QLatin1Char('}'), apertura);
    if (chiusura < 0) chiusura = testo.size() - 1;
    QStringList selettori = testo.mid(posizione, apertura - posizione).split(QLatin1Char(','));
    for (QString& selettore : selettori) selettore = delimita_selettore(selettore);
    risultato += selettori.join(QStringLiteral(", ")) + QLatin1Char(' ') + testo.mid(apertura, chiusura - apertura + 1) +
                 QLatin1Char('\n');
    posizione = chiusura + 1;
  }
  return risultato;
}

void applica_skin(finestra_modulo& finestra, const QString& foglio) {
  if (!finestra.usa_skin) return;
  // The window paints its own background from the sheet.
  finestra.setAttribute(Qt::WA_StyledBackground, true);
  marca(&finestra, true, finestra.esenti_skin);
  finestra.setStyleSheet(foglio_delimitato(foglio));
}

}  // namespace schedine
