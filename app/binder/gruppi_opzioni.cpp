#include "app/binder/gruppi_opzioni.h"

#include <QKeyEvent>
#include <algorithm>
#include <map>
#include <vector>

namespace schedine {

namespace {

// The options that share a frame with this one, the user can reach, in reading order.
std::vector<QRadioButton*> gruppo_di(const QWidget* contenitore) {
  std::vector<QRadioButton*> gruppo;
  for (QRadioButton* o : contenitore->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly)) {
    if (!o->isHidden() && o->isEnabled()) gruppo.push_back(o);
  }
  std::stable_sort(gruppo.begin(), gruppo.end(), [](const QWidget* a, const QWidget* b) {
    return a->y() != b->y() ? a->y() < b->y() : a->x() < b->x();
  });
  return gruppo;
}

class frecce_opzione : public QObject {
 public:
  explicit frecce_opzione(QRadioButton& opzione) : QObject(&opzione), opzione_(opzione) {}

  bool eventFilter(QObject*, QEvent* evento) override {
    if (evento->type() != QEvent::KeyPress || opzione_.parentWidget() == nullptr) return false;
    int passo = 0;
    switch (static_cast<QKeyEvent*>(evento)->key()) {
      case Qt::Key_Down:
      case Qt::Key_Right: passo = 1; break;
      case Qt::Key_Up:
      case Qt::Key_Left: passo = -1; break;
      default: return false;
    }
    std::vector<QRadioButton*> gruppo = gruppo_di(opzione_.parentWidget());
    auto qui = std::find(gruppo.begin(), gruppo.end(), &opzione_);
    if (qui == gruppo.end() || gruppo.size() < 2) return true;
    const auto n = static_cast<std::ptrdiff_t>(gruppo.size());
    QRadioButton* prossima = gruppo[static_cast<size_t>(((qui - gruppo.begin()) + passo + n) % n)];
    prossima->setFocus(Qt::OtherFocusReason);
    prossima->click();
    return true;
  }

 private:
  QRadioButton& opzione_;
};

}  // namespace

void collega_frecce_opzione(QRadioButton& opzione) { opzione.installEventFilter(new frecce_opzione(opzione)); }

void aggiorna_fermate_opzioni(QWidget& finestra) {
  std::map<QWidget*, bool> contenitori;
  for (QRadioButton* o : finestra.findChildren<QRadioButton*>()) contenitori[o->parentWidget()] = true;
  for (const auto& [contenitore, _] : contenitori) {
    std::vector<QRadioButton*> gruppo = gruppo_di(contenitore);
    auto scelta = std::find_if(gruppo.begin(), gruppo.end(), [](const QRadioButton* o) { return o->isChecked(); });
    QRadioButton* fermata = scelta != gruppo.end() ? *scelta : (gruppo.empty() ? nullptr : gruppo.front());
    for (QRadioButton* o : contenitore->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly)) {
      const Qt::FocusPolicy voluta = o == fermata ? Qt::StrongFocus : Qt::ClickFocus;
      if (o->focusPolicy() != voluta) o->setFocusPolicy(voluta);
    }
  }
}

}  // namespace schedine
