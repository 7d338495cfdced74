#include "tests/app/esame_finestra.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTableWidget>
#include <QWidget>
#include <cmath>
#include <functional>

#include "app/binder/widget_forma.h"

namespace schedine::test {

namespace {

double luminanza(QColor c) {
  auto canale = [](double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
  return 0.2126 * canale(c.redF()) + 0.7152 * canale(c.greenF()) + 0.0722 * canale(c.blueF());
}

// A text of the window and how to take it away and give it back.
struct voce_testo {
  QWidget* w;
  QRect area;  // in the window's coordinates
  QString dove;
  std::function<void()> togli, rimetti;
};

bool di_controllo(const QWidget& w) {
  return !w.objectName().isEmpty() && !w.objectName().startsWith(QLatin1String("qt_"));
}

// Not under something the design stacks over it: the widget (or one of its
// own parts) is what the window shows at the text's centre.
bool in_vista(QWidget& finestra, QWidget& w, QRect area) {
  QWidget* sopra = finestra.childAt(area.center());
  return sopra != nullptr && (sopra == &w || w.isAncestorOf(sopra));
}

QRect nella_finestra(QWidget& finestra, QWidget& w, QRect r) {
  return QRect(w.mapTo(&finestra, r.topLeft()), r.size()).intersected(finestra.rect());
}

template <class W, class Leggi, class Scrivi>
void aggiungi(std::vector<voce_testo>& voci, QWidget& finestra, W* w, QRect area, Leggi leggi, Scrivi scrivi) {
  const QString testo = leggi();
  if (testo.trimmed().isEmpty()) return;
  QRect r = nella_finestra(finestra, *w, area);
  if (r.isEmpty() || !in_vista(finestra, *w, r)) return;
  auto imposta = [w, scrivi](const QString& t) {
    QSignalBlocker silenzio(w);
    scrivi(t);
  };
  voci.push_back({w, r, w->objectName() + QStringLiteral(" \"") + testo + QLatin1Char('"'),
                  [imposta] { imposta(QString()); }, [imposta, testo] { imposta(testo); }});
}

template <class Vista, class Voce>
void voci_di_vista(std::vector<voce_testo>& voci, QWidget& finestra, Vista* vista, const std::vector<Voce*>& elementi) {
  for (Voce* e : elementi) {
    QRect r = vista->visualItemRect(e);
    if (!vista->viewport()->rect().intersects(r)) continue;
    aggiungi(voci, finestra, vista->viewport(), r, [e] { return e->text(); }, [e, vista](const QString& t) {
      QSignalBlocker m(vista->model());
      e->setText(t);
    });
    voci.back().dove.prepend(vista->objectName() + QLatin1Char(' '));
  }
}

std::vector<voce_testo> voci_testo(QWidget& finestra) {
  std::vector<voce_testo> voci;
  for (QWidget* w : finestra.findChildren<QWidget*>()) {
    if (!w->isVisibleTo(&finestra) || w->width() <= 0 || w->height() <= 0) continue;
    if (auto* l = qobject_cast<QLabel*>(w); l != nullptr && l->pixmap().isNull()) {
      aggiungi(voci, finestra, l, l->rect(), [l] { return l->text(); }, [l](const QString& t) { l->setText(t); });
    } else if (auto* b = qobject_cast<QAbstractButton*>(w)) {
      aggiungi(voci, finestra, b, b->rect(), [b] { return b->text(); }, [b](const QString& t) { b->setText(t); });
    } else if (auto* g = qobject_cast<QGroupBox*>(w)) {
      QRect titolo(0, 0, g->width(), g->fontMetrics().height() + 8);
      aggiungi(voci, finestra, g, titolo, [g] { return g->title(); }, [g](const QString& t) { g->setTitle(t); });
    } else if (auto* e = qobject_cast<QLineEdit*>(w)) {
      aggiungi(voci, finestra, e, e->rect(), [e] { return e->text(); }, [e](const QString& t) { e->setText(t); });
    } else if (auto* c = qobject_cast<QComboBox*>(w); c != nullptr && c->currentIndex() >= 0) {
      int i = c->currentIndex();
      aggiungi(voci, finestra, c, c->rect(), [c] { return c->currentText(); },
               [c, i](const QString& t) { c->setItemText(i, t); });
    } else if (auto* lista = qobject_cast<QListWidget*>(w)) {
      std::vector<QListWidgetItem*> elementi;
      for (int i = 0; i < lista->count(); ++i) elementi.push_back(lista->item(i));
      voci_di_vista(voci, finestra, lista, elementi);
    } else if (auto* tabella = qobject_cast<QTableWidget*>(w)) {
      std::vector<QTableWidgetItem*> elementi;
      for (int r = 0; r < tabella->rowCount(); ++r) {
        for (int k = 0; k < tabella->columnCount(); ++k) {
          if (tabella->item(r, k) != nullptr) elementi.push_back(tabella->item(r, k));
        }
      }
      voci_di_vista(voci, finestra, tabella, elementi);
    }
  }
  return voci;
}

QColor piu_frequente(const QImage& immagine, QRect area) {
  QHash<QRgb, int> conta;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) ++conta[immagine.pixel(x, y)];
  }
  QRgb migliore = 0;
  int massimo = -1;
  for (auto it = conta.cbegin(); it != conta.cend(); ++it) {
    if (it.value() > massimo) std::tie(migliore, massimo) = std::pair{it.key(), it.value()};
  }
  return QColor(migliore);
}

testo_dipinto misura(const voce_testo& v, const QImage& con, const QImage& senza) {
  testo_dipinto t{v.dove, {}, {}, v.w->isEnabled(), QString::fromLatin1(v.w->metaObject()->className())};
  QRect diversi;
  for (int y = v.area.top(); y <= v.area.bottom(); ++y) {
    for (int x = v.area.left(); x <= v.area.right(); ++x) {
      if (con.pixel(x, y) != senza.pixel(x, y)) diversi |= QRect(x, y, 1, 1);
    }
  }
  t.sfondo = piu_frequente(senza, diversi.isEmpty() ? v.area : diversi);
  t.testo = t.sfondo;
  for (int y = diversi.top(); y <= diversi.bottom() && !diversi.isEmpty(); ++y) {
    for (int x = diversi.left(); x <= diversi.right(); ++x) {
      QColor c = con.pixelColor(x, y);
      if (contrasto(c, t.sfondo) > t.rapporto()) t.testo = c;
    }
  }
  return t;
}

// ---------------------------------------------------------------- layout

bool e_contenitore(const QWidget& w) {
  for (QObject* figlio : w.children()) {
    if (auto* f = qobject_cast<QWidget*>(figlio); f != nullptr && di_controllo(*f)) return true;
  }
  return qobject_cast<const QGroupBox*>(&w) != nullptr;
}

QString testo_che_non_entra(const QWidget& w) {
  const QFontMetrics fm = w.fontMetrics();
  if (auto* l = qobject_cast<const QLabel*>(&w); l != nullptr && l->pixmap().isNull() && !l->text().isEmpty()) {
    bool entra = l->wordWrap() ? l->heightForWidth(l->width()) <= l->height()
                               : l->sizeHint().width() <= l->width() && fm.height() <= l->height();
    return entra ? QString() : l->text();
  }
  if (auto* b = qobject_cast<const QPushButton*>(&w)) {
    int serve = fm.horizontalAdvance(b->text()) + (b->icon().isNull() ? 0 : b->iconSize().width()) + 4;
    return serve <= b->width() ? QString() : b->text();
  }
  if (qobject_cast<const QCheckBox*>(&w) != nullptr || qobject_cast<const QRadioButton*>(&w) != nullptr) {
    auto* b = qobject_cast<const QAbstractButton*>(&w);
    if (b->text().isEmpty()) {
      // A bare tick box: the box itself must be whole.
      QStyleOptionButton opzione;
      opzione.initFrom(b);
      QRect casella = b->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &opzione, b);
      return b->rect().contains(casella) ? QString() : QStringLiteral("its box");
    }
    QSize serve = b->sizeHint();
    bool entra = serve.width() <= b->width() && std::min(serve.height(), fm.height()) <= b->height();
    return entra ? QString() : (b->text().isEmpty() ? QStringLiteral("its box") : b->text());
  }
  if (auto* g = qobject_cast<const QGroupBox*>(&w)) {
    return fm.horizontalAdvance(g->title()) + 16 <= g->width() ? QString() : g->title();
  }
  return {};
}

// A container that draws an edge line: a frame's own, or a border shape in it.
bool con_bordo(const QWidget& w) {
  if (qobject_cast<const QGroupBox*>(&w) != nullptr) return true;
  if (w.metaObject() == &QFrame::staticMetaObject && static_cast<const QFrame&>(w).frameShape() != QFrame::NoFrame) return true;
  for (QObject* figlio : w.children()) {
    if (auto* forma = dynamic_cast<widget_forma*>(figlio); forma != nullptr && forma->tipo() == 0 && forma->width() > 0) return true;
  }
  return false;
}

// A widget that shows nothing (an empty label) or only draws a line or box
// (a plain frame of no controls) may lie under others.
bool mostra_qualcosa(const QWidget& w) {
  if (auto* l = qobject_cast<const QLabel*>(&w)) return !l->text().trimmed().isEmpty() || !l->pixmap().isNull();
  return w.metaObject() != &QFrame::staticMetaObject || e_contenitore(w);
}

bool figura(const QWidget& w) {
  auto* l = qobject_cast<const QLabel*>(&w);
  return l != nullptr && !l->pixmap().isNull();
}

// A panel raised over the form (a print's progress, an editor over a
// panel) covers what lies under it by design.
bool sollevata(const QWidget& w) {
  auto* frame = qobject_cast<const QFrame*>(&w);
  return frame != nullptr && frame->frameShadow() == QFrame::Raised && frame->frameShape() == QFrame::Panel;
}

// Where a widget shows something: a caption shows as far as its text runs
// (left aligned), not over the blank rest of a wide box.
QRect occupato(const QWidget& w) {
  QRect r = w.geometry();
  auto* l = qobject_cast<const QLabel*>(&w);
  bool testo = (l != nullptr && l->pixmap().isNull() && !l->wordWrap() && (l->alignment() & Qt::AlignLeft)) ||
               qobject_cast<const QCheckBox*>(&w) != nullptr || qobject_cast<const QRadioButton*>(&w) != nullptr;
  if (testo) r.setWidth(std::min(r.width(), w.sizeHint().width()));
  return r;
}

int piano(const QWidget& w) { return static_cast<int>(w.parentWidget()->children().indexOf(const_cast<QWidget*>(&w))); }

QString nome(const QWidget& w) {
  QRect r = w.geometry();
  return QStringLiteral("%1 (%2,%3 %4x%5)").arg(w.objectName()).arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

}  // namespace

double contrasto(QColor a, QColor b) {
  double la = luminanza(a), lb = luminanza(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

std::vector<testo_dipinto> testi_dipinti(QWidget& finestra, QImage* dipinto) {
  std::vector<voce_testo> voci = voci_testo(finestra);
  QImage con = finestra.grab().toImage();
  for (voce_testo& v : voci) v.togli();
  QImage senza = finestra.grab().toImage();
  for (voce_testo& v : voci) v.rimetti();
  std::vector<testo_dipinto> testi;
  for (const voce_testo& v : voci) testi.push_back(misura(v, con, senza));
  if (dipinto != nullptr) *dipinto = con;
  return testi;
}

QStringList difetti_di_collocazione(QWidget& finestra) {
  QStringList difetti;
  std::vector<QWidget*> visibili;
  for (QWidget* w : finestra.findChildren<QWidget*>()) {
    if (!di_controllo(*w) || !w->isVisibleTo(&finestra) || w->width() <= 0 || w->height() <= 0) continue;
    // Lines and boxes drawn under the controls, and empty labels, show no
    // text: they only have to stay inside their container.
    const bool testo = dynamic_cast<widget_forma*>(w) == nullptr && mostra_qualcosa(*w);
    if (testo) visibili.push_back(w);
    // Inside its container; a text also off the edge line of a framed one.
    QWidget* genitore = w->parentWidget();
    const int bordo = testo && con_bordo(*genitore);
    // One wholly beyond its container is out of sight until the form widens.
    if (!genitore->rect().intersects(w->geometry())) continue;
    if (!genitore->rect().adjusted(bordo, 0, -bordo, -bordo).contains(w->geometry())) {
      difetti << nome(*w) + QStringLiteral(" leaves ") + (genitore == &finestra ? QStringLiteral("the window") : nome(*genitore));
    }
    if (QString t = testo_che_non_entra(*w); testo && !t.isEmpty()) {
      difetti << QStringLiteral("%1 cuts \"%2\" (%3 by %4, wants %5 by %6)")
                     .arg(nome(*w), t)
                     .arg(w->width())
                     .arg(w->height())
                     .arg(w->sizeHint().width())
                     .arg(w->sizeHint().height());
    }
  }
  for (QWidget* a : visibili) {
    for (QWidget* b : visibili) {
      if (a == b || a->parentWidget() != b->parentWidget() || !occupato(*a).intersects(occupato(*b))) continue;
      bool a_foglia = !e_contenitore(*a), b_foglia = !e_contenitore(*b);
      // Two controls side by side must not overlap; a control drawn over a
      // frame must lie inside it. A frame the design stacks over a control covers it.
      // A picture may stand on a picture: the design puts the icon on the slip.
      if (figura(*a) && figura(*b)) continue;
      if (a_foglia && b_foglia && a->objectName() < b->objectName()) {
        difetti << nome(*a) + QStringLiteral(" overlaps ") + nome(*b);
      } else if (a_foglia && !b_foglia && piano(*a) > piano(*b) && !b->geometry().contains(a->geometry())) {
        difetti << nome(*a) + QStringLiteral(" crosses the edge of ") + nome(*b);
      } else if (!a_foglia && !b_foglia && piano(*a) < piano(*b) && !b->geometry().contains(a->geometry()) &&
                 !a->geometry().contains(b->geometry()) && !sollevata(*b)) {
        difetti << nome(*a) + QStringLiteral(" runs under ") + nome(*b);
      }
    }
  }
  return difetti;
}

}  // namespace schedine::test
