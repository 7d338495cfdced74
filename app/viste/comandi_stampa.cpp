#include "app/viste/comandi_stampa.h"

#include <QEvent>
#include <QProgressBar>
#include <memory>

#include "app/anteprima/finestra_anteprima.h"
#include "app/anteprima/regia_stampa.h"
#include "app/binder/finestra_modulo.h"
#include "app/binder/nomi_widget.h"
#include "printing/registratore.h"

namespace schedine {

namespace {

constexpr int distacco = 6;  // pixels between a button and the one it joins

// Free of the other widgets of the container; one that lies under the
// button's whole place (a frame's border shape) is background.
bool libero(const QRect& r, const QWidget& genitore, const QWidget& escluso) {
  if (!genitore.rect().contains(r)) return false;
  for (QObject* o : genitore.children()) {
    auto* w = qobject_cast<QWidget*>(o);
    if (w == nullptr || w == &escluso || w->isWindow() || w->isHidden()) continue;
    if (w->geometry().contains(escluso.geometry())) continue;
    if (w->geometry().intersects(r)) return false;
  }
  return true;
}

struct posto {
  QWidget* genitore = nullptr;
  QRect rettangolo;
};

// Beside the print button where nothing stands: right, left, below, above
// it, at its size or else at the least a button needs; else the same
// around the frame that holds it, level by level out to the window, in line
// with the button; over it as a last resort.
posto posto_accanto(QPushButton& stampa, QSize misura, QSize minima) {
  for (QWidget* a = &stampa; a->parentWidget() != nullptr && !a->isWindow(); a = a->parentWidget()) {
    QWidget& genitore = *a->parentWidget();
    const QRect s = a->geometry();
    const QPoint b = stampa.mapTo(&genitore, QPoint(0, 0));
    for (QSize m : {misura, minima}) {
      const QRect candidati[] = {
          {QPoint(s.right() + 1 + distacco, b.y()), m},
          {QPoint(s.left() - distacco - m.width(), b.y()), m},
          {QPoint(b.x(), s.bottom() + 1 + distacco), m},
          {QPoint(b.x(), s.top() - distacco - m.height()), m},
      };
      for (const QRect& r : candidati) {
        if (libero(r, genitore, *a)) return {&genitore, r};
      }
    }
  }
  return {stampa.parentWidget(), stampa.geometry()};
}

// Keeps the preview button enabled and shown as its print button is.
class segue_stampa : public QObject {
 public:
  explicit segue_stampa(QPushButton* bottone) : QObject(bottone), bottone_(bottone) {}
  bool eventFilter(QObject* o, QEvent* e) override {
    auto* stampa = static_cast<QWidget*>(o);
    if (e->type() == QEvent::EnabledChange) bottone_->setEnabled(stampa->isEnabled());
    if (e->type() == QEvent::HideToParent || e->type() == QEvent::ShowToParent) bottone_->setHidden(stampa->isHidden());
    return false;
  }

 private:
  QPushButton* bottone_;
};

void aggiungi_anteprima(finestra_modulo& f, QPushButton& stampa) {
  auto* bottone = new QPushButton(QStringLiteral("Anteprima"));
  bottone->setObjectName(QStringLiteral("cmdanteprima"));
  const QSize misura(std::max(stampa.width(), bottone->sizeHint().width()), stampa.height());
  const posto dove = posto_accanto(stampa, misura, bottone->sizeHint());
  bottone->setParent(dove.genitore);
  bottone->setGeometry(dove.rettangolo);
  QObject::connect(bottone, &QPushButton::clicked, &f, [&f, &stampa] { anteprima(f, stampa); });
  bottone->setEnabled(stampa.isEnabled());
  bottone->setHidden(stampa.isHidden());
  // The binder enables and hides the print button by the form's state; the
  // preview button follows it.
  stampa.installEventFilter(new segue_stampa(bottone));
}

void aggiungi_interrompi(finestra_modulo& f, QWidget& pannello) {
  auto* barra = pannello.findChild<QProgressBar*>();
  if (barra == nullptr) return;
  auto* bottone = new QPushButton(QStringLiteral("Interrompi"), &pannello);
  bottone->setObjectName(QStringLiteral("cmdinterrompi"));
  const QSize misura(bottone->sizeHint().width(), std::max(barra->height(), bottone->sizeHint().height()));
  // The bar gives up its right end to the button.
  QRect b = barra->geometry();
  b.setWidth(std::max(40, b.width() - misura.width() - distacco));
  barra->setGeometry(b);
  bottone->setGeometry(QRect(QPoint(b.right() + 1 + distacco, b.center().y() - misura.height() / 2), misura));
  QObject::connect(bottone, &QPushButton::clicked, &f, [&f] {
    if (f.regia != nullptr) f.regia->interrompi();
  });
}

}  // namespace

void anteprima(finestra_modulo& f, QPushButton& stampa) {
  regia_stampa* regia = f.regia;
  if (regia == nullptr || !stampa.isEnabled()) return;
  auto pagine = std::make_unique<registratore>();
  pagine->imposta_schedina(regia->schedina_del_modulo(f.nome_modulo()));
  // A preview asked for while another print runs (its events let the user
  // click) gives the device back to that print when it ends.
  dispositivo_stampa* prima = regia->deviato();
  regia->devia(pagine.get());
  stampa.click();
  regia->devia(prima);
  pagine->concludi();
  // A print its checks refused shows nothing; a run with no slip in it
  // shows that no slip would come out.
  if (!pagine->usato()) return;
  auto* finestra = new finestra_anteprima(std::move(pagine), *regia, &f);
  finestra->show();
}

void aggiungi_comandi_stampa(finestra_modulo& f, const std::vector<QWidget*>& pannelli) {
  for (auto* barra : f.findChildren<QProgressBar*>()) {
    barra->setTextVisible(true);
    barra->setFormat(QStringLiteral("%v di %m"));
    barra->setAlignment(Qt::AlignCenter);
  }
  for (QWidget* pannello : pannelli) aggiungi_interrompi(f, *pannello);
  for (auto* stampa : f.findChildren<QPushButton*>()) {
    const QString nome = stampa->objectName();
    if (nome == QLatin1String("cmdstampa") || nome.startsWith(QLatin1String("cmdstampa_"))) aggiungi_anteprima(f, *stampa);
  }
}

}  // namespace schedine
