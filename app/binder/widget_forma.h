#pragma once
// The widget of a shape control. The forms draw their borders as
// rectangles (and ovals) in outline, and their marks, the dots and squares
// that stand for what the printer will put on a slip, as filled squares and
// circles; the binder gives the widget the shape its control has now.

#include <QColor>
#include <QWidget>

namespace schedine {

class widget_forma : public QWidget {
 public:
  explicit widget_forma(QWidget* genitore = nullptr);

  // The platform's shape codes: 0 rectangle, 1 square, 2 oval, 3 circle.
  int tipo() const { return tipo_; }
  void imposta_tipo(int tipo);
  // A mark: a filled square or circle.
  bool segno() const { return tipo_ == 1 || tipo_ == 3; }

  QColor colore_bordo{0x50, 0x50, 0x50};
  QColor colore_segno{0x10, 0x10, 0x10, 200};

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  int tipo_ = 0;
};

}  // namespace schedine
