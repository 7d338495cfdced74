#include "app/viste/ordine_tab.h"

#include <algorithm>
#include <vector>

namespace schedine {

namespace {

// Whether w stands on the row that testa begins: their tops less than half
// the lower one's height apart, so a tall frame and the buttons beside its top share a row.
bool sulla_riga_di(const QWidget* testa, const QWidget* w) {
  return std::abs(w->y() - testa->y()) < std::min(w->height(), testa->height()) / 2;
}

bool prende_tab(const QWidget* w) { return (w->focusPolicy() & Qt::TabFocus) != 0; }

// A widget Tab stops at, or a container of such widgets. Shapes, labels and
// pictures are no part of the order: a border around a grid of boxes would
// otherwise make the whole grid one row.
bool conta_per_tab(const QWidget* w) {
  if (w->isWindow()) return false;
  if (prende_tab(w)) return true;
  const auto dentro = w->findChildren<QWidget*>();
  return std::any_of(dentro.begin(), dentro.end(), prende_tab);
}

// The widgets of one container in reading order: row by row from the
// top, each row from the left.
std::vector<QWidget*> in_ordine_di_lettura(const QWidget& contenitore) {
  std::vector<QWidget*> figli;
  for (QWidget* w : contenitore.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (conta_per_tab(w)) figli.push_back(w);
  }
  std::stable_sort(figli.begin(), figli.end(), [](const QWidget* a, const QWidget* b) { return a->y() < b->y(); });
  std::vector<QWidget*> ordine;
  for (size_t inizio = 0; inizio < figli.size();) {
    const QWidget* testa = figli[inizio];
    size_t fine = inizio + 1;
    while (fine < figli.size() && sulla_riga_di(testa, figli[fine])) ++fine;
    std::stable_sort(figli.begin() + static_cast<std::ptrdiff_t>(inizio), figli.begin() + static_cast<std::ptrdiff_t>(fine),
                     [](const QWidget* a, const QWidget* b) { return a->x() < b->x(); });
    ordine.insert(ordine.end(), figli.begin() + static_cast<std::ptrdiff_t>(inizio),
                  figli.begin() + static_cast<std::ptrdiff_t>(fine));
    inizio = fine;
  }
  return ordine;
}

// A widget that takes the focus is one stop, whatever it holds inside.
void raccogli(const QWidget& contenitore, std::vector<QWidget*>& fermate) {
  for (QWidget* w : in_ordine_di_lettura(contenitore)) {
    if (prende_tab(w)) {
      fermate.push_back(w);
    } else {
      raccogli(*w, fermate);
    }
  }
}

}  // namespace

void ordina_tabulazione(QWidget& finestra) {
  std::vector<QWidget*> fermate;
  raccogli(finestra, fermate);
  for (size_t i = 1; i < fermate.size(); ++i) QWidget::setTabOrder(fermate[i - 1], fermate[i]);
}

}  // namespace schedine
