#pragma once
// The amount head of a stake column: its text turned a quarter (read from
// the bottom up) at the foot of its box, so that a heading may run above it,
// painted in the text colour of the window's skin on what lies under it.

#include <QLabel>

namespace schedine {

class testa_colonna : public QLabel {
 public:
  explicit testa_colonna(QWidget* genitore = nullptr);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  QFont carattere_che_entra() const;
};

}  // namespace schedine
