#include "app/binder/accessibilita.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QRadioButton>

namespace schedine {

namespace {

class casella_accessibile : public QAccessibleWidget {
 public:
  explicit casella_accessibile(QAbstractButton* bottone)
      : QAccessibleWidget(bottone, qobject_cast<QRadioButton*>(bottone) != nullptr ? QAccessible::RadioButton
                                                                                    : QAccessible::CheckBox) {}

  QString text(QAccessible::Text t) const override {
    if (t == QAccessible::Name && accessibile_senza_nome()) return QString(bottone()->text()).remove(QLatin1Char('&'));
    return QAccessibleWidget::text(t);
  }

  QAccessible::State state() const override {
    QAccessible::State stato = QAccessibleWidget::state();
    stato.checkable = true;
    stato.checked = bottone()->isChecked();
    if (auto* casella = qobject_cast<QCheckBox*>(bottone())) stato.checkStateMixed = casella->checkState() == Qt::PartiallyChecked;
    return stato;
  }

  QStringList actionNames() const override { return QStringList{pressAction()} + QAccessibleWidget::actionNames(); }

  void doAction(const QString& azione) override {
    if (azione != pressAction()) {
      QAccessibleWidget::doAction(azione);
    } else if (bottone()->isEnabled()) {
      bottone()->click();
    }
  }

 private:
  QAbstractButton* bottone() const { return static_cast<QAbstractButton*>(widget()); }
  bool accessibile_senza_nome() const { return bottone()->accessibleName().isEmpty(); }
};

QAccessibleInterface* fabbrica(const QString& classe, QObject* oggetto) {
  if (classe == QLatin1String("QCheckBox") || classe == QLatin1String("QRadioButton")) {
    return new casella_accessibile(static_cast<QAbstractButton*>(oggetto));
  }
  return nullptr;
}

}  // namespace

void installa_accessibilita() { QAccessible::installFactory(&fabbrica); }

}  // namespace schedine
