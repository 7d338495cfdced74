#include "app/binder/aggiorna_widget.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMargins>
#include <QProgressBar>
#include <QTableWidget>
#include <QVariant>

#include "app/binder/nomi_widget.h"
#include "app/binder/widget_forma.h"
#include "controls/controlli.h"

namespace schedine {

namespace {

QString testo(const std::string& t) { return QString::fromStdString(t); }

bool nel_layout(const QLayout* layout, const QWidget* widget) {
  if (layout == nullptr) return false;
  for (int i = 0; i < layout->count(); ++i) {
    QLayoutItem* voce = layout->itemAt(i);
    if (voce->widget() == widget) return true;
    if (nel_layout(voce->layout(), widget)) return true;
  }
  return false;
}

// A widget that no layout places stands where the model says, once the
// model gives it a size (shapes and marks moved by the forms' rules), in the
// units of its container (see scala_contenitore). The view may keep a
// widget's place to itself (posizione_libera).
void aggiorna_posizione(QWidget& w, const controllo& c) {
  if (c.larghezza <= 0 || c.altezza <= 0) return;
  if (w.isWindow() || w.property(posizione_libera).toBool()) return;
  QWidget* genitore = w.parentWidget();
  if (nel_layout(genitore ? genitore->layout() : nullptr, &w)) return;
  float scala = 1;
  if (genitore != nullptr && genitore->property(scala_contenitore).isValid()) {
    scala = genitore->property(scala_contenitore).toFloat();
  }
  QRect voluta(pixel_da_twips(c.sinistra * scala), pixel_da_twips(c.alto * scala), pixel_da_twips(c.larghezza * scala),
               pixel_da_twips(c.altezza * scala));
  // Only a move of the model moves the widget, keeping what the view
  // fitted it by (a caption's width, a frame's contents).
  if (w.property(posizione_modello).toRect() == voluta) return;
  w.setProperty(posizione_modello, voluta);
  voluta = voluta.marginsAdded(w.property(ritocco).value<QMargins>());
  if (w.geometry() != voluta) w.setGeometry(voluta);
}

void aggiorna_comune(QWidget& w, const controllo& c) {
  if (w.isWindow()) return;
  // The widget's own flags: a disabled or hidden container does the rest, as on the form.
  if (w.testAttribute(Qt::WA_Disabled) == c.abilitato) w.setEnabled(c.abilitato);
  if (w.isHidden() == c.visibile) w.setHidden(!c.visibile);
  if (w.toolTip() != testo(c.suggerimento)) w.setToolTip(testo(c.suggerimento));
  aggiorna_posizione(w, c);
}

void imposta_testo_bottone(QAbstractButton& b, const std::string& caption) {
  // A box the view shows as a bare tick box keeps its caption in the model only.
  const QString voluto = b.property(solo_casella).toBool() ? QString() : testo(caption);
  if (b.text() != voluto) b.setText(voluto);
}

void aggiorna_etichetta(QWidget& w, const etichetta& e) {
  if (auto* cornice = qobject_cast<QGroupBox*>(&w)) {
    if (cornice->title() != testo(e.caption)) cornice->setTitle(testo(e.caption));
  } else if (auto* bottone = qobject_cast<QAbstractButton*>(&w)) {
    imposta_testo_bottone(*bottone, e.caption);
  } else if (auto* label = qobject_cast<QLabel*>(&w)) {
    if (label->pixmap().isNull() && label->text() != testo(e.caption)) label->setText(testo(e.caption));
  }
}

void aggiorna_casella(QWidget& w, const casella_controllo& c) {
  auto* bottone = qobject_cast<QAbstractButton*>(&w);
  if (bottone == nullptr) return;
  imposta_testo_bottone(*bottone, c.caption);
  if (auto* casella = qobject_cast<QCheckBox*>(&w)) {
    // 2 is the grey tick of the platform's check box.
    Qt::CheckState voluto = c.valore() == 0 ? Qt::Unchecked : c.valore() == 2 ? Qt::PartiallyChecked : Qt::Checked;
    if (voluto == Qt::PartiallyChecked) casella->setTristate(true);
    if (casella->checkState() != voluto) casella->setCheckState(voluto);
  } else if (bottone->isChecked() != (c.valore() != 0)) {
    bottone->setChecked(c.valore() != 0);
  }
}

void aggiorna_opzione(QWidget& w, const pulsante_opzione& o) {
  auto* bottone = qobject_cast<QAbstractButton*>(&w);
  if (bottone == nullptr) return;
  imposta_testo_bottone(*bottone, o.caption);
  if (bottone->isChecked() != o.valore()) bottone->setChecked(o.valore());
}

void aggiorna_testo(QWidget& w, const casella_testo& t) {
  auto* riga = qobject_cast<QLineEdit*>(&w);
  if (riga != nullptr && riga->text() != testo(t.testo())) riga->setText(testo(t.testo()));
}

QStringList voci_di(const casella_elenco& e) {
  QStringList voci;
  voci.reserve(e.conta());
  for (int i = 0; i < e.conta(); ++i) voci << testo(e.voce(i));
  return voci;
}

void aggiorna_lista(QListWidget& lista, const casella_elenco& e) {
  QStringList voci = voci_di(e);
  bool uguali = lista.count() == voci.size();
  for (int i = 0; uguali && i < voci.size(); ++i) uguali = lista.item(i)->text() == voci[i];
  if (!uguali) {
    lista.clear();
    lista.addItems(voci);
  }
  int indice = e.indice_selezionato();
  if (lista.currentRow() != indice) lista.setCurrentRow(indice);
  if (indice < 0) {
    lista.clearSelection();
  } else if (!lista.item(indice)->isSelected()) {
    lista.item(indice)->setSelected(true);
  }
}

void aggiorna_combo(QComboBox& combo, const casella_elenco& e) {
  QStringList voci = voci_di(e);
  bool uguali = combo.count() == voci.size();
  for (int i = 0; uguali && i < voci.size(); ++i) uguali = combo.itemText(i) == voci[i];
  if (!uguali) {
    combo.clear();
    combo.addItems(voci);
  }
  if (combo.currentIndex() != e.indice_selezionato()) combo.setCurrentIndex(e.indice_selezionato());
  if (combo.isEditable() && combo.currentText() != testo(e.testo())) combo.setEditText(testo(e.testo()));
}

void aggiorna_griglia(QTableWidget& tabella, const griglia& g) {
  if (tabella.rowCount() != g.righe()) tabella.setRowCount(g.righe());
  if (tabella.columnCount() != g.colonne()) tabella.setColumnCount(g.colonne());
  for (int r = 0; r < g.righe(); ++r) {
    for (int c = 0; c < g.colonne(); ++c) {
      QTableWidgetItem* cella = tabella.item(r, c);
      if (cella == nullptr) {
        cella = new QTableWidgetItem;
        cella->setFlags(Qt::ItemIsEnabled);
        tabella.setItem(r, c, cella);
      }
      if (cella->text() != testo(g.testo_cella(r, c))) cella->setText(testo(g.testo_cella(r, c)));
      QBrush sfondo(colore_da_modello(g.colore_cella(r, c)));
      if (cella->background() != sfondo) cella->setBackground(sfondo);
      // A cell paints its own background, so its text takes the ink that
      // reads on it, whatever the skin's text colour.
      QBrush inchiostro(sfondo.color().lightnessF() > 0.5 ? Qt::black : Qt::white);
      if (cella->foreground() != inchiostro) cella->setForeground(inchiostro);
    }
  }
  for (int c = 0; c < g.colonne() && c < static_cast<int>(g.larghezze_colonne.size()); ++c) {
    float larghezza = g.larghezze_colonne[static_cast<size_t>(c)];
    // A column of width 0 is there, and out of sight.
    if (tabella.isColumnHidden(c) != (larghezza == 0)) tabella.setColumnHidden(c, larghezza == 0);
    if (larghezza > 0 && tabella.columnWidth(c) != pixel_da_twips(larghezza)) tabella.setColumnWidth(c, pixel_da_twips(larghezza));
  }
  if (g.righe() > 0 && g.colonne() > 0 && (tabella.currentRow() != g.riga || tabella.currentColumn() != g.colonna)) {
    tabella.setCurrentCell(g.riga, g.colonna, QItemSelectionModel::NoUpdate);
  }
}

void aggiorna_elenco(QWidget& w, const casella_elenco& e) {
  if (auto* lista = qobject_cast<QListWidget*>(&w)) aggiorna_lista(*lista, e);
  if (auto* combo = qobject_cast<QComboBox*>(&w)) aggiorna_combo(*combo, e);
}

void aggiorna_barra(QWidget& w, const barra_avanzamento& b) {
  auto* barra = qobject_cast<QProgressBar*>(&w);
  if (barra == nullptr) return;
  if (barra->minimum() != b.minimo || barra->maximum() != b.massimo) barra->setRange(b.minimo, b.massimo);
  if (barra->value() != b.valore()) barra->setValue(b.valore());
}

}  // namespace

QColor colore_da_modello(int32_t colore) {
  auto u = static_cast<uint32_t>(colore);
  return QColor(static_cast<int>(u & 0xFF), static_cast<int>((u >> 8) & 0xFF), static_cast<int>((u >> 16) & 0xFF));
}

void aggiorna_widget(QWidget& widget, const controllo& c) {
  aggiorna_comune(widget, c);
  if (auto* e = dynamic_cast<const etichetta*>(&c)) {
    aggiorna_etichetta(widget, *e);
  } else if (auto* casella = dynamic_cast<const casella_controllo*>(&c)) {
    aggiorna_casella(widget, *casella);
  } else if (auto* opzione = dynamic_cast<const pulsante_opzione*>(&c)) {
    aggiorna_opzione(widget, *opzione);
  } else if (auto* t = dynamic_cast<const casella_testo*>(&c)) {
    aggiorna_testo(widget, *t);
  } else if (auto* elenco = dynamic_cast<const casella_elenco*>(&c)) {
    aggiorna_elenco(widget, *elenco);
  } else if (auto* g = dynamic_cast<const griglia*>(&c)) {
    if (auto* tabella = qobject_cast<QTableWidget*>(&widget)) aggiorna_griglia(*tabella, *g);
  } else if (auto* barra = dynamic_cast<const barra_avanzamento*>(&c)) {
    aggiorna_barra(widget, *barra);
  } else if (auto* f = dynamic_cast<const forma*>(&c)) {
    if (auto* disegno = dynamic_cast<widget_forma*>(&widget)) disegno->imposta_tipo(f->tipo);
  }
}

}  // namespace schedine
