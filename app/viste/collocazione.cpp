#include "app/viste/collocazione.h"

#include <QFontInfo>
#include <QMargins>
#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVariant>
#include <algorithm>

#include "app/binder/aggiorna_widget.h"
#include "app/binder/nomi_widget.h"
#include "app/binder/widget_forma.h"
#include "app/figure/testa_colonna.h"
#include "controls/modulo.h"
#include "forms/enalotto_wforlife/modulo_pannelli.h"
#include "forms/lotto/modulo_lotto.h"

namespace schedine {

namespace {

constexpr int margine = 6;
// Where the row heads of a frame begin (60 twips).
constexpr int margine_testo = 4;
// Properties of a label: the design gives it no size; the text it was last fitted to.
constexpr const char* misura_libera = "misura_libera";
constexpr const char* testo_adattato = "testo_adattato";
// The smallest a text is set to make it fit its place, in pixels.
constexpr int carattere_ridotto = 8;
// A form's outer size holds its borders and title bar: this much is not client area.
constexpr int bordi_twips = 120;
constexpr int titolo_twips = 345;

bool ha_posto(const controllo& c) { return c.sinistra != 0 || c.alto != 0 || c.larghezza != 0 || c.altezza != 0; }
bool ha_misura(const controllo& c) { return c.larghezza > 0 && c.altezza > 0; }

int primo_rigo(const QWidget& contenitore) {
  // A frame's caption stands on its top edge: the flow begins below it.
  auto* cornice = qobject_cast<const QGroupBox*>(&contenitore);
  return cornice != nullptr && !cornice->title().isEmpty() ? 18 : margine;
}

// A text that would run into the next control of its row, or out of its
// container, is set a little smaller; one that still doesn't fit wraps at that edge.
void adatta_testo(QLabel& etichetta, int limite) {
  const int disponibile = std::max(limite - etichetta.x(), 24);
  const QFont normale = etichetta.font();
  QFont font = normale;
  for (int pixel = QFontInfo(normale).pixelSize(); pixel >= carattere_ridotto; --pixel) {
    font.setPixelSize(pixel);
    etichetta.setFont(font);
    if (etichetta.sizeHint().width() <= disponibile) {
      etichetta.resize(etichetta.sizeHint());
      return;
    }
  }
  etichetta.setFont(normale);
  etichetta.setWordWrap(true);
  etichetta.resize(disponibile, etichetta.heightForWidth(disponibile));
}

// The left edge of the nearest widget to the right of w on w's row.
int bordo_a_destra(const QWidget& w, const std::vector<QRect>& occupati, int larghezza_contenitore) {
  int limite = larghezza_contenitore - 2;
  int alto = w.y(), basso = w.y() + std::max(w.sizeHint().height(), 12);
  for (const QRect& r : occupati) {
    if (r.left() > w.x() + 2 && r.top() < basso && r.bottom() > alto) limite = std::min(limite, r.left() - 2);
  }
  return limite;
}

QSize naturale(QWidget& w, int larghezza_utile) {
  if (qobject_cast<QProgressBar*>(&w) != nullptr) return {larghezza_utile, 14};
  if (auto* etichetta = qobject_cast<QLabel*>(&w); etichetta != nullptr && !etichetta->pixmap().isNull()) {
    return etichetta->pixmap().deviceIndependentSize().toSize();
  }
  return w.sizeHint();
}

// The controls the design leaves without a place follow one another,
// stepping around the placed ones.
void scorri(QWidget& contenitore, const std::vector<QWidget*>& liberi, std::vector<QRect>& occupati) {
  const int destra = contenitore.width() - margine;
  int x = margine, y = primo_rigo(contenitore), altezza_riga = 0;
  auto a_capo = [&] {
    x = margine;
    y += altezza_riga + 4;
    altezza_riga = 0;
  };
  for (QWidget* w : liberi) {
    QSize misura = naturale(*w, destra - margine);
    auto* etichetta = qobject_cast<QLabel*>(w);
    for (int tentativi = 0; tentativi < 64; ++tentativi) {
      int spazio = destra - x;
      if (etichetta != nullptr && etichetta->pixmap().isNull() && misura.width() > spazio && spazio >= 60) {
        etichetta->setWordWrap(true);
        misura = QSize(spazio, etichetta->heightForWidth(spazio));
      }
      if (misura.width() > spazio && x > margine) {
        a_capo();
        continue;
      }
      QRect voluto(QPoint(x, y), misura);
      auto urto = std::find_if(occupati.begin(), occupati.end(), [&](const QRect& r) { return r.intersects(voluto); });
      if (urto == occupati.end()) break;
      x = urto->right() + 1 + margine;
      if (x >= destra) {
        x = margine;
        y = urto->bottom() + 1 + 4;
      }
    }
    w->setGeometry(QRect(QPoint(x, y), misura));
    w->setProperty(misura_libera, true);
    occupati.push_back(w->geometry());
    x += misura.width() + margine;
    altezza_riga = std::max(altezza_riga, misura.height());
  }
}

constexpr int carattere_minimo = 8;

bool entra(const QLabel& etichetta) {
  if (etichetta.wordWrap()) return etichetta.heightForWidth(etichetta.width()) <= etichetta.height();
  return etichetta.sizeHint().width() <= etichetta.width();
}

// A widget fitted by the view: the change from the design's place is kept
// for the binder, which applies it again wherever the model moves it.
void ritocca(QWidget& w, QRect nuova) {
  QRect progetto = w.property(posizione_modello).toRect();
  if (progetto.isValid()) {
    w.setProperty(ritocco, QVariant::fromValue(QMargins(progetto.left() - nuova.left(), progetto.top() - nuova.top(),
                                                         nuova.right() - progetto.right(), nuova.bottom() - progetto.bottom())));
  }
  w.setGeometry(nuova);
}

// A frame that draws an edge: its own, or a border shape inside it.
bool a_riquadro(const QWidget& w) {
  if (qobject_cast<const QGroupBox*>(&w) != nullptr) return true;
  for (QObject* figlio : w.children()) {
    if (auto* bordo = dynamic_cast<widget_forma*>(figlio); bordo != nullptr && bordo->tipo() == 0) return true;
  }
  auto* frame = qobject_cast<const QFrame*>(&w);
  return frame != nullptr && frame->metaObject() == &QFrame::staticMetaObject && frame->frameShape() != QFrame::NoFrame;
}

// A text the design puts on its frame's very edge is moved in to where the
// frame's other row heads begin, clear of the edge line.
void stacca_dal_bordo(const QWidget& contenitore, QWidget& w) {
  if (qobject_cast<QLabel*>(&w) != nullptr && a_riquadro(contenitore) && w.x() < margine_testo) {
    ritocca(w, w.geometry().adjusted(margine_testo - w.x(), 0, 0, 0));  // its right edge stays where it was
  }
}

// A check box or option button that the design makes a little too narrow for
// its caption takes its natural width where nothing stands in the way.
void allarga_casella(const QWidget& contenitore, QWidget& w, const std::vector<QRect>& occupati) {
  auto* bottone = qobject_cast<QAbstractButton*>(&w);
  if (bottone == nullptr || qobject_cast<QPushButton*>(&w) != nullptr || bottone->text().isEmpty()) return;
  QRect voluto(w.pos(), QSize(std::max(w.width(), w.sizeHint().width()), w.height()));
  if (voluto.size() == w.size() || voluto.right() >= contenitore.width() - 1) return;
  for (const QRect& r : occupati) {
    if (r != w.geometry() && r.intersects(voluto)) return;
  }
  ritocca(w, voluto);
}

// A column head gives way to a heading above it and to its frame's edge
// below it: its text stands at its foot, so it begins below the heading.
void sotto_al_titolo(const QWidget& contenitore, QWidget& testa, const std::vector<QWidget*>& fratelli) {
  if (a_riquadro(contenitore) && testa.geometry().bottom() > contenitore.height() - 3) {
    ritocca(testa, testa.geometry().adjusted(0, 0, 0, contenitore.height() - 3 - testa.geometry().bottom()));
  }
  for (QWidget* altro : fratelli) {
    auto* titolo = qobject_cast<QLabel*>(altro);
    if (titolo == nullptr || altro == &testa || dynamic_cast<testa_colonna*>(altro) != nullptr) continue;
    QRect t = altro->geometry(), r = testa.geometry();
    if (!t.intersects(r) || t.top() > r.top() + r.height() / 2) continue;
    ritocca(testa, r.adjusted(0, t.bottom() + 1 - r.top(), 0, 0));
  }
}

bool e_cornice(const QWidget& w) {
  return qobject_cast<const QGroupBox*>(&w) != nullptr ||
         (qobject_cast<const QFrame*>(&w) != nullptr && qobject_cast<const QLabel*>(&w) == nullptr);
}

// A frame that runs on into a frame beside or below it ends where that one begins: on
// its row, before it; above it, over it.
void ferma_prima_della_cornice(QWidget& cornice, const std::vector<QWidget*>& fratelli) {
  for (QWidget* altra : fratelli) {
    QRect a = cornice.geometry(), b = altra->geometry();
    if (altra == &cornice || altra->isHidden() || !e_cornice(*altra) || !a.intersects(b) || a.contains(b) || b.contains(a)) continue;
    if (b.left() > a.left() && b.top() <= a.top() + a.height() / 2) {
      ritocca(cornice, QRect(a.topLeft(), QSize(b.left() - 2 - a.left(), a.height())));
    } else if (b.top() > a.top()) {
      ritocca(cornice, QRect(a.topLeft(), QSize(a.width(), b.top() - 2 - a.top())));
    }
  }
}

// A frame grows to hold the controls the design puts inside it.
void contiene_i_figli(QWidget& contenitore, const std::vector<posto_widget>& figli) {
  if (!e_cornice(contenitore) || contenitore.isWindow()) return;
  int basso = 0;
  for (const posto_widget& f : figli) {
    if (f.w->isHidden() || f.w->height() <= 0 || dynamic_cast<widget_forma*>(f.w) != nullptr) continue;
    // A text's box may run on below its last line: what counts is the text.
    int altezza = f.w->height();
    if (auto* l = qobject_cast<QLabel*>(f.w); l != nullptr && l->pixmap().isNull()) {
      altezza = std::min(altezza, l->wordWrap() ? l->heightForWidth(l->width()) : l->sizeHint().height());
    }
    basso = std::max(basso, f.w->y() + altezza);
  }
  const int prima = contenitore.height();
  if (basso + 3 <= prima) return;
  ritocca(contenitore, QRect(contenitore.pos(), QSize(contenitore.width(), basso + 3)));
  // The border shape that outlined the frame outlines it still.
  for (const posto_widget& f : figli) {
    auto* bordo = dynamic_cast<widget_forma*>(f.w);
    if (bordo != nullptr && bordo->tipo() == 0 && bordo->geometry().bottom() >= prima - 3) {
      ritocca(*bordo, bordo->geometry().adjusted(0, 0, 0, contenitore.height() - prima));
    }
  }
}

// A line or box drawn in a frame that the view made smaller ends at its edge.
void forme_nella_cornice(const QWidget& contenitore, const std::vector<posto_widget>& figli) {
  const QRect dentro = contenitore.rect();
  for (const posto_widget& f : figli) {
    if (dynamic_cast<widget_forma*>(f.w) != nullptr && f.w->width() > 0 && !dentro.contains(f.w->geometry())) {
      ritocca(*f.w, f.w->geometry().intersected(dentro));
    }
  }
}

void rifinisci(QWidget& contenitore, const std::vector<posto_widget>& figli) {
  std::vector<QWidget*> widget;
  std::vector<QRect> occupati;
  for (const posto_widget& f : figli) {
    widget.push_back(f.w);
    if (!f.w->isHidden()) occupati.push_back(f.w->geometry());
  }
  for (QWidget* w : widget) {
    stacca_dal_bordo(contenitore, *w);
    allarga_casella(contenitore, *w, occupati);
    if (dynamic_cast<testa_colonna*>(w) != nullptr) sotto_al_titolo(contenitore, *w, widget);
    if (e_cornice(*w)) ferma_prima_della_cornice(*w, widget);
  }
  contiene_i_figli(contenitore, figli);
  if (!contenitore.isWindow()) forme_nella_cornice(contenitore, figli);
}

}  // namespace

void adatta_etichetta(QLabel& etichetta) {
  if (!etichetta.pixmap().isNull() || etichetta.property(testo_adattato).toString() == etichetta.text()) return;
  etichetta.setProperty(testo_adattato, etichetta.text());
  if (etichetta.property(misura_libera).toBool()) {
    // Its natural size: a wrapping text keeps its width and takes the lines it needs.
    if (etichetta.wordWrap()) {
      etichetta.resize(etichetta.width(), etichetta.heightForWidth(etichetta.width()));
    } else {
      etichetta.resize(etichetta.sizeHint());
    }
    return;
  }
  // The box the design gives: a text too long for it is set smaller.
  QFont font = etichetta.parentWidget() != nullptr ? etichetta.parentWidget()->font() : etichetta.font();
  int pixel = QFontInfo(font).pixelSize();
  font.setPixelSize(pixel);
  etichetta.setFont(font);
  while (!entra(etichetta) && pixel > carattere_minimo) {
    font.setPixelSize(--pixel);
    etichetta.setFont(font);
  }
}

int pixel_nel_contenitore(const QWidget& contenitore, float twips) {
  QVariant scala = contenitore.property(scala_contenitore);
  return pixel_da_twips(scala.isValid() ? twips * scala.toFloat() : twips);
}

void colloca_contenuto(QWidget& contenitore, const std::vector<posto_widget>& figli) {
  auto px = [&](float t) { return pixel_nel_contenitore(contenitore, t); };
  std::vector<QRect> occupati;
  std::vector<QWidget*> liberi, senza_misura;
  for (const posto_widget& f : figli) {
    const controllo& c = *f.c;
    if (ha_misura(c)) {
      f.w->setGeometry(px(c.sinistra), px(c.alto), px(c.larghezza), px(c.altezza));
    } else if (dynamic_cast<widget_forma*>(f.w) != nullptr) {
      f.w->setGeometry(px(c.sinistra), px(c.alto), 0, 0);  // a shape of no size draws nothing
      continue;
    } else if (ha_posto(c)) {
      QSize misura = naturale(*f.w, contenitore.width());
      f.w->setGeometry(px(c.sinistra), px(c.alto), c.larghezza > 0 ? px(c.larghezza) : misura.width(),
                       c.altezza > 0 ? px(c.altezza) : misura.height());
      senza_misura.push_back(f.w);
    } else {
      liberi.push_back(f.w);
      continue;
    }
    // A column head leaves room above its text for the heading of its frame.
    auto* picture = dynamic_cast<const immagine*>(&c);
    bool testa = picture != nullptr && !picture->caption.empty();
    if (dynamic_cast<widget_forma*>(f.w) == nullptr && !testa) occupati.push_back(f.w->geometry());
  }
  for (QWidget* w : senza_misura) {
    if (auto* etichetta = qobject_cast<QLabel*>(w); etichetta != nullptr && etichetta->pixmap().isNull()) {
      etichetta->setProperty(misura_libera, true);
      std::vector<QRect> altri;
      for (const QRect& r : occupati) {
        if (r != w->geometry()) altri.push_back(r);
      }
      adatta_testo(*etichetta, bordo_a_destra(*w, altri, contenitore.width()));
    }
  }
  scorri(contenitore, liberi, occupati);
  rifinisci(contenitore, figli);
  for (const posto_widget& f : figli) {
    if (auto* etichetta = qobject_cast<QLabel*>(f.w)) adatta_etichetta(*etichetta);
  }
}

QSize dimensione_finestra(modulo& m, const std::vector<QWidget*>& di_primo_livello) {
  int larghezza = 0, altezza = 0;
  if (auto* lotto = dynamic_cast<modulo_lotto*>(&m)) {
    larghezza = pixel_da_twips(static_cast<float>(lotto->larghezza_client));
    altezza = pixel_da_twips(static_cast<float>(lotto->altezza_client));
  } else if (auto* pannelli = dynamic_cast<modulo_pannelli*>(&m)) {
    larghezza = pixel_da_twips(static_cast<float>(pannelli->larghezza - bordi_twips));
    altezza = pixel_da_twips(static_cast<float>(pannelli->altezza - bordi_twips - titolo_twips));
  }
  // What the form shows of its frames is shown whole: the window grows to
  // hold each frame that begins inside it. One that begins beyond the width
  // the form gives stays out of sight until the form widens.
  // A panel the view places itself is no part of the design.
  const bool larghezza_data = larghezza > 0;
  const int larghezza_di_progetto = larghezza;
  for (QWidget* w : di_primo_livello) {
    nome_controllo nome = controllo_di_widget(w->objectName());
    if (w->property(posizione_libera).toBool() || !m.esiste(nome.nome, nome.indice)) continue;
    const controllo& c = m.trova(nome.nome, nome.indice);
    if (!c.visibile || !ha_misura(c)) continue;
    QRect r = w->geometry();
    if (larghezza_data && r.left() >= larghezza_di_progetto) continue;
    altezza = std::max(altezza, r.bottom() + 1 + margine);
    larghezza = std::max(larghezza, r.right() + 1 + margine);
  }
  return {larghezza, altezza};
}

}  // namespace schedine
