// The windows of the slip and calibration forms, made from their models: a
// widget for each control by its kind, named after it, inside the widget of
// its container, where the design puts it. The pictures the forms hold as
// assets are drawn by the program (app/figure). The binder does the rest.

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <map>

#include "app/binder/aggiorna_widget.h"
#include "app/binder/finestra_modulo.h"
#include "app/binder/widget_forma.h"
#include "app/figure/figure.h"
#include "app/figure/testa_colonna.h"
#include "app/viste/collocazione.h"
#include "app/viste/comandi_stampa.h"
#include "app/viste/ordine_tab.h"
#include "app/viste/registro_viste.h"
#include "app/viste/strumenti_vista.h"
#include "controls/insieme_moduli.h"
#include "controls/modulo.h"
#include "forms/calibration/modulo_taratura.h"

namespace schedine {

namespace {

// A label box taller than this holds more than one line of text.
constexpr float riga_e_mezza = 400;
// The rows an open drop-down list shows at a time.
constexpr int righe_tendina = 16;
// A check box narrower than this, in pixels, has room for its tick box only.
constexpr int casella_nuda = 20;

QSize misura_di_progetto(const controllo& c) { return {pixel_da_twips(c.larghezza), pixel_da_twips(c.altezza)}; }

bool ha_bordo(const std::vector<const controllo*>& figli) {
  for (const controllo* f : figli) {
    if (auto* bordo = dynamic_cast<const forma*>(f); bordo != nullptr && bordo->tipo == 0) return true;
  }
  return false;
}

// A frame with a caption is a group box; one without draws no edge of its
// own where a border shape inside it draws one.
QWidget* crea_cornice(QWidget* genitore, const cornice& c, const std::vector<const controllo*>& figli) {
  if (!c.caption.empty()) return crea<QGroupBox>(genitore, c.nome(), c.indice());
  auto* frame = crea<QFrame>(genitore, c.nome(), c.indice());
  frame->setFrameShape(ha_bordo(figli) ? QFrame::NoFrame : QFrame::Box);
  frame->setFrameShadow(QFrame::Plain);
  return frame;
}

// A picture box that holds controls, or a picture.
QWidget* crea_immagine(QWidget* genitore, modulo& m, const immagine& c, bool contenitore) {
  if (contenitore) {
    auto* box = crea<QFrame>(genitore, c.nome(), c.indice());
    box->setFrameShape(QFrame::NoFrame);
    return box;
  }
  // A picture captioned with an amount is the head of its column.
  if (!c.caption.empty()) {
    auto* testa = crea<testa_colonna>(genitore, c.nome(), c.indice());
    testa->setText(QString::fromStdString(c.caption));
    testa->setStyleSheet(QStringLiteral("background: transparent;"));
    return testa;
  }
  auto* figura = crea<QLabel>(genitore, c.nome(), c.indice());
  QSize misura = dimensione_naturale(m, c);
  if (c.larghezza > 0) misura = {pixel_nel_contenitore(*genitore, c.larghezza), pixel_nel_contenitore(*genitore, c.altezza)};
  QPixmap disegno = misura.isEmpty() ? QPixmap() : figura_controllo(m, c, misura);
  if (!disegno.isNull()) figura->setPixmap(disegno);
  // What a picture leaves blank shows what lies under it.
  figura->setStyleSheet(QStringLiteral("background: transparent;"));
  return figura;
}

QWidget* crea_griglia(QWidget* genitore, const griglia& g) {
  auto* tabella = crea<QTableWidget>(genitore, g.nome(), g.indice());
  tabella->horizontalHeader()->hide();
  tabella->verticalHeader()->hide();
  tabella->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  tabella->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  tabella->verticalHeader()->setMinimumSectionSize(8);
  // The rows share the grid's height, as its cells fill it on the form.
  int righe = std::max(g.righe(), 1);
  tabella->verticalHeader()->setDefaultSectionSize(std::max(12, (pixel_da_twips(g.altezza) - 2) / righe));
  tabella->setFocusPolicy(Qt::NoFocus);
  return tabella;
}

QWidget* crea_widget(QWidget* genitore, modulo& m, const controllo& c, const std::vector<const controllo*>& figli) {
  const std::string& n = c.nome();
  const int i = c.indice();
  if (auto* f = dynamic_cast<const cornice*>(&c)) return crea_cornice(genitore, *f, figli);
  if (auto* p = dynamic_cast<const immagine*>(&c)) return crea_immagine(genitore, m, *p, !figli.empty());
  if (auto* p = dynamic_cast<const pulsante*>(&c)) {
    auto* bottone = crea<QPushButton>(genitore, n, i);
    QSize lato = misura_di_progetto(c) - QSize(6, 6);
    QIcon icona = lato.isEmpty() ? QIcon() : icona_pulsante(m, *p, lato);
    if (!icona.isNull()) {
      bottone->setIcon(icona);
      bottone->setIconSize(lato);
    }
    return bottone;
  }
  if (dynamic_cast<const etichetta*>(&c) != nullptr) {
    auto* etichetta_w = crea<QLabel>(genitore, n, i);
    etichetta_w->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // A label the design gives a box to wraps its text inside it.
    etichetta_w->setWordWrap(c.larghezza > 0 && c.altezza >= riga_e_mezza);
    return etichetta_w;
  }
  if (dynamic_cast<const casella_controllo*>(&c) != nullptr) {
    auto* casella = crea<QCheckBox>(genitore, n, i);
    casella->setProperty(solo_casella, c.larghezza > 0 && pixel_da_twips(c.larghezza) < casella_nuda);
    return casella;
  }
  if (dynamic_cast<const pulsante_opzione*>(&c) != nullptr) return crea<QRadioButton>(genitore, n, i);
  if (dynamic_cast<const casella_testo*>(&c) != nullptr) return crea<QLineEdit>(genitore, n, i);
  if (auto* e = dynamic_cast<const casella_elenco*>(&c)) {
    if (e->a_tendina) {
      auto* combo = crea<QComboBox>(genitore, n, i);
      // A list of thousands of prices opens as a list of a few rows, not a column the height of the screen.
      combo->setMaxVisibleItems(righe_tendina);
      // Styles that open the list over the combo take no row count; this one does.
      combo->setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
      return combo;
    }
    return crea<QListWidget>(genitore, n, i);
  }
  if (auto* g = dynamic_cast<const griglia*>(&c)) return crea_griglia(genitore, *g);
  if (dynamic_cast<const barra_avanzamento*>(&c) != nullptr) {
    auto* barra = crea<QProgressBar>(genitore, n, i);
    barra->setTextVisible(false);
    return barra;
  }
  if (dynamic_cast<const forma*>(&c) != nullptr) return crea<widget_forma>(genitore, n, i);
  return nullptr;  // a timer shows nothing
}

// The frame that shows a print's progress stands over the form during a
// run: raised above the rest, and centred on the window where its design
// place lies outside it.
bool mostra_avanzamento(const controllo& c, const std::vector<const controllo*>& figli) {
  if (dynamic_cast<const cornice*>(&c) == nullptr) return false;
  for (const controllo* f : figli) {
    if (dynamic_cast<const barra_avanzamento*>(f) != nullptr) return true;
  }
  return false;
}

// What a window's widgets are to the view after it is made.
struct parti_finestra {
  std::vector<QWidget*> primo_livello;
  std::vector<QWidget*> cornici;
  std::vector<QWidget*> pannelli;  // the frames of a print's progress
};

// A frame that a rule shows comes up over what it covers (the price editor
// over the slip panel).
void porta_sopra_le_cornici_mostrate(const std::vector<QWidget*>& cornici) {
  static constexpr const char* mostrata = "cornice_mostrata";
  for (QWidget* cornice_w : cornici) {
    const bool ora = !cornice_w->isHidden();
    if (ora && cornice_w->property(mostrata).isValid() && !cornice_w->property(mostrata).toBool()) cornice_w->raise();
    cornice_w->setProperty(mostrata, ora);
  }
}

void aggiorna_finestra(finestra_modulo& f, modulo& m, const parti_finestra& parti) {
  for (QLabel* etichetta : f.findChildren<QLabel*>()) adatta_etichetta(*etichetta);
  QSize misura = dimensione_finestra(m, parti.primo_livello);
  if (f.size() != misura) f.setFixedSize(misura);
  porta_sopra_le_cornici_mostrate(parti.cornici);
  for (QWidget* pannello : parti.pannelli) {
    if (pannello->isHidden()) continue;
    if (pannello->property(posizione_libera).toBool()) {
      pannello->move((f.width() - pannello->width()) / 2, (f.height() - pannello->height()) / 2);
    }
    pannello->raise();
  }
}

// The widgets of a window while it is made, by the control each shows.
struct costruzione {
  std::map<const controllo*, std::vector<const controllo*>> figli;  // by container; nullptr the form
  std::map<const controllo*, QWidget*> widget;
  std::vector<QWidget*> pannelli;
  std::vector<QWidget*> cornici;

  std::vector<QWidget*> widget_di(const controllo* contenitore) {
    std::vector<QWidget*> risultato;
    for (const controllo* c : figli[contenitore]) {
      if (widget.count(c) != 0) risultato.push_back(widget[c]);
    }
    return risultato;
  }
};

void crea_widget_del_modulo(finestra_modulo& f, modulo& m, costruzione& k) {
  for (const auto& c : m.controlli()) k.figli[c->contenitore].push_back(c.get());
  k.widget[nullptr] = &f;
  auto* taratura = dynamic_cast<modulo_taratura*>(&m);
  for (const auto& c : m.controlli()) {
    QWidget* genitore = k.widget[c->contenitore];
    QWidget* w = crea_widget(genitore, m, *c, k.figli[c.get()]);
    if (w == nullptr) continue;
    k.widget[c.get()] = w;
    // The preview's picture box places its marks in units of its own.
    if (taratura != nullptr && c->nome() == "Picture1") w->setProperty(scala_contenitore, taratura->twip_per_unita_anteprima);
    if (mostra_avanzamento(*c, k.figli[c.get()])) k.pannelli.push_back(w);
    // A group box draws its own edge: a border shape inside it would draw a second.
    if (auto* bordo = dynamic_cast<const forma*>(c.get());
        bordo != nullptr && bordo->tipo == 0 && qobject_cast<QGroupBox*>(genitore) != nullptr) {
      w->setProperty(posizione_libera, true);
      w->setFixedSize(0, 0);
    }
    if (dynamic_cast<const cornice*>(c.get()) != nullptr) k.cornici.push_back(w);
  }
  // A frame inside a frame covers the other controls of its container
  // where they meet, as the amount heads cover the TOTALE row.
  for (const auto& c : m.controlli()) {
    if (dynamic_cast<const cornice*>(c.get()) != nullptr && dynamic_cast<const cornice*>(c->contenitore) != nullptr) {
      k.widget[c.get()]->raise();
    }
  }
  // The widgets show the form as it stands before they are placed, so that
  // each text has its size.
  for (const auto& c : m.controlli()) {
    if (k.widget.count(c.get()) == 0) continue;
    QSignalBlocker silenzio(k.widget[c.get()]);
    aggiorna_widget(*k.widget[c.get()], *c);
  }
}

// Container by container, outer ones first, so that each knows its size.
void colloca_widget_del_modulo(modulo& m, costruzione& k) {
  std::vector<const controllo*> ordine{nullptr};
  for (const auto& c : m.controlli()) ordine.push_back(c.get());
  for (const controllo* contenitore : ordine) {
    if (k.widget.count(contenitore) == 0 || k.figli.count(contenitore) == 0) continue;
    std::vector<posto_widget> posti;
    for (const controllo* figlio : k.figli[contenitore]) {
      if (k.widget.count(figlio) != 0) posti.push_back({figlio, k.widget[figlio]});
    }
    colloca_contenuto(*k.widget[contenitore], posti);
  }
}

void prepara_pannelli(const std::vector<QWidget*>& pannelli, QSize finestra) {
  for (QWidget* pannello : pannelli) {
    if (!QRect(QPoint(), finestra).contains(pannello->geometry())) pannello->setProperty(posizione_libera, true);
    if (auto* frame = qobject_cast<QFrame*>(pannello)) {
      frame->setFrameShape(QFrame::Panel);
      frame->setFrameShadow(QFrame::Raised);
      frame->setLineWidth(2);
    }
  }
}

// Closing a slip window leaves the form as its rules say; should no window
// be left, the main one comes back, so the program never runs on unseen.
void chiusura(modulo& form, insieme_moduli& moduli) {
  form.chiudi_utente();
  bool visibile = false;
  for (modulo* altro : moduli.creati()) visibile = visibile || (altro->caricato() && altro->visibile());
  if (!visibile) moduli("Form1").mostra();
}

void costruisci(finestra_modulo& f, modulo& m) {
  f.setFont(QFont(QStringLiteral("Arial"), 8));
  costruzione k;
  crea_widget_del_modulo(f, m, k);
  colloca_widget_del_modulo(m, k);
  parti_finestra parti{k.widget_di(nullptr), k.cornici, k.pannelli};
  const QSize progetto = dimensione_finestra(m, parti.primo_livello);
  prepara_pannelli(parti.pannelli, progetto);
  f.setFixedSize(progetto);
  porta_sopra_le_cornici_mostrate(parti.cornici);
  aggiungi_comandi_stampa(f, parti.pannelli);
  ordina_tabulazione(f);
  f.dopo_aggiornamento = [&f, parti](modulo& form) { aggiorna_finestra(f, form, parti); };
  f.regola_chiusura = &chiusura;
  f.usa_skin = true;
}

const bool registrate = [] {
  for (const char* nome : {"Form_sched_lotto_ambetto", "Form_sched_10elotto", "Form_sched_enalotto",
                           "Form_sched_wforlife5", "Form_sched_wforlife", "tar_lotto", "tar_enalotto", "tar_enalotto2",
                           "tar_wforlife", "tar_wforlife5"}) {
    registra_vista(nome, &costruisci);
  }
  return true;
}();

}  // namespace

}  // namespace schedine
