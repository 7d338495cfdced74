#pragma once
// One recorded page of a print preview, on screen: the paper at true scale
// times the zoom, the picture of its slip under it when wanted, and the
// page's drawings through the same painting code as paper and PDF.

#include <QWidget>

namespace schedine {

class registratore;

class pagina_anteprima : public QWidget {
 public:
  // The page of an A4 sheet, the paper every job goes on.
  static constexpr double larghezza_mm = 210.0;
  static constexpr double altezza_mm = 297.0;

  pagina_anteprima(const registratore& pagine, QWidget* genitore);

  void mostra_pagina(size_t i);
  size_t pagina() const { return pagina_; }
  // 1 is true scale: a millimetre of the page is a millimetre of the screen.
  void imposta_zoom(double zoom);
  double zoom() const { return zoom_; }
  void mostra_figura(bool si);
  bool figura() const { return figura_; }

  // Dots of the screen for a millimetre of the page.
  double punti_per_mm() const;
  QSize sizeHint() const override;

  // Paints the page with its top left corner at the painter's origin;
  // `visibile` (in dots) limits the work to what will be seen.
  void disegna(QPainter& p, const QRectF& visibile) const;

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  const registratore& pagine_;
  size_t pagina_ = 0;
  double zoom_ = 1.0;
  bool figura_ = true;
};

}  // namespace schedine
