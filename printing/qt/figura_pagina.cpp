#include "printing/qt/figura_pagina.h"

#include <QTemporaryDir>
#include <map>
#include <memory>

#include "calibration/fabbrica.h"
#include "core/stato.h"
#include "printing/scheda_enalotto_geometria.h"

namespace schedine {

std::unique_ptr<stato> stato_di_fabbrica(void (*fabbrica)(stato&)) {
  QTemporaryDir cartella;
  auto s = std::make_unique<stato>();
  s->cartella_programma = cartella.path().toStdString();
  fabbrica(*s);
  return s;
}

namespace {

class raccolta {
 public:
  explicit raccolta(figura_schedina_mm& f) : f_(f) {}
  // A box centred on (x, y); a point at the page's corner is a row with no box.
  void metti(double x, double y, std::string testo = {}) {
    if (x == 0 && y == 0) return;
    f_.caselle.push_back({QRectF(x - larghezza_casella_mm / 2, y - altezza_casella_mm / 2, larghezza_casella_mm,
                                 altezza_casella_mm),
                          std::move(testo)});
  }
  template <class Tabella>
  void righe(const Tabella& t, int prima, int ultima) {
    for (int i = prima; i <= ultima; ++i) metti(t(i, 0), t(i, 1));
  }

 private:
  figura_schedina_mm& f_;
};

void caselle_lotto(figura_schedina_mm& f, bool dieci) {
  auto s = stato_di_fabbrica(&default_tar_lotto);
  raccolta r(f);
  const auto& numeri = dieci ? s->tar_numeri_10e : s->tar_numeri;
  for (int n = 1; n <= 90; ++n) r.metti(numeri(n, 0), numeri(n, 1), std::to_string(n));
  r.righe(s->tar_ruote, 0, 10);
  for (const auto* t : {&s->tar_estratto, &s->tar_ambo, &s->tar_terno, &s->tar_quaterna, &s->tar_cinquina,
                        &s->tar_ambetto, &s->tar_det_importo, &s->tar_det_posizione, &s->tar_importo_10elotto,
                        &s->tar_totale}) {
    r.righe(*t, 0, 20);
  }
  r.righe(s->tar_sistemi, 0, 8);
  r.righe(s->tar_gio_mult, 0, 9);
  r.righe(s->tar_tipo_estrazione, 0, 2);
  r.metti(s->tar_nazionale(0), s->tar_nazionale(1));
}

// The numbers of the panels, and of the boxes below panel 5 on the
// five-panel SuperEnalotto slip (Superstar grid, subscriptions, and the
// Superstar box beside number 15 of each panel).
void caselle_pannelli(figura_schedina_mm& f, schedina sch) {
  void (*fabbrica)(stato&) = sch == schedina::enalotto    ? &default_tar_enalotto
                             : sch == schedina::enalotto2 ? &default_tar_enalotto2
                             : sch == schedina::wforlife  ? &default_tar_wforlife
                                                          : &default_tar_wforlife5;
  auto s = stato_di_fabbrica(fabbrica);
  const tabella_coord& t = s->tab_coord;
  raccolta r(f);
  for (int g = 1; g < tabella_coord::gruppi; ++g) {
    for (int riga = 1; riga < tabella_coord::righe; ++riga) r.metti(t(g, riga, 0), t(g, riga, 1), std::to_string(riga));
  }
  if (sch != schedina::enalotto) return;
  const double dx = static_cast<double>(t(1, 15, 0)) - t(1, 14, 0);
  for (int g = 1; g <= 5; ++g) r.metti(t(g, 15, 0) + dx, t(g, 15, 1));
  const double superstar = discesa_pannello5(*s, righe_sotto_superstar);
  for (int n = 1; n <= 90; ++n) r.metti(t(5, n, 0), t(5, n, 1) + superstar, std::to_string(n));
  const double abbonamento = discesa_pannello5(*s, righe_sotto_abbonamento);
  for (int c = 80; c <= 87; ++c) r.metti(t(5, c, 0), t(5, c, 1) + abbonamento);
}

QRectF area_di(const std::vector<casella_mm>& caselle) {
  QRectF area;
  for (const casella_mm& c : caselle) area = area.isNull() ? c.mm : area.united(c.mm);
  // A margin round the boxes, within the page.
  area.adjust(-5, -5, 5, 5);
  return area.intersected(QRectF(0.5, 0.5, 209, 296));
}

figura_schedina_mm componi(schedina s) {
  figura_schedina_mm f;
  const bool lotto = s == schedina::lotto || s == schedina::diecielotto;
  const bool wfl = s == schedina::wforlife || s == schedina::wforlife5;
  f.nome = s == schedina::lotto ? "LOTTO" : s == schedina::diecielotto ? "10eLOTTO" : wfl ? "WIN FOR LIFE" : "SUPERENALOTTO";
  f.inchiostro = lotto ? QColor(0xc0, 0x1c, 0x28) : wfl ? QColor(0x00, 0x7a, 0x3d) : QColor(0x1d, 0x4f, 0xa8);
  f.fondo = QColor::fromRgbF(1 - 0.08 * (1 - f.inchiostro.redF()), 1 - 0.08 * (1 - f.inchiostro.greenF()),
                             1 - 0.08 * (1 - f.inchiostro.blueF()));
  f.casella = QColor::fromRgbF(1 - 0.25 * (1 - f.inchiostro.redF()), 1 - 0.25 * (1 - f.inchiostro.greenF()),
                               1 - 0.25 * (1 - f.inchiostro.blueF()));
  if (lotto) {
    caselle_lotto(f, s == schedina::diecielotto);
  } else {
    caselle_pannelli(f, s);
  }
  f.area = area_di(f.caselle);
  return f;
}

QRectF in_punti(misure_mm::scala scala, const QRectF& mm) {
  return {mm.x() * scala.x, mm.y() * scala.y, mm.width() * scala.x, mm.height() * scala.y};
}

}  // namespace

const figura_schedina_mm& figura_di(schedina s) {
  static std::map<schedina, figura_schedina_mm> fatte;
  auto it = fatte.find(s);
  if (it == fatte.end()) it = fatte.emplace(s, componi(s)).first;
  return it->second;
}

void disegna_figura(QPainter& p, misure_mm::scala scala, schedina s, const QRectF& visibile) {
  if (s == schedina::nessuna) return;
  const figura_schedina_mm& f = figura_di(s);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(f.inchiostro, 0.2 * scala.x));
  p.setBrush(f.fondo);
  p.drawRoundedRect(in_punti(scala, f.area), 2 * scala.x, 2 * scala.y);
  QFont font(QStringLiteral("arial"));
  font.setPixelSize(std::max(1, static_cast<int>(1.6 * scala.y)));
  p.setFont(font);
  const QPen bordo(f.inchiostro, 0.12 * scala.x);
  for (const casella_mm& c : f.caselle) {
    const QRectF r = in_punti(scala, c.mm);
    if (!visibile.isEmpty() && !visibile.intersects(r)) continue;
    p.setPen(bordo);
    p.setBrush(f.casella);
    p.drawRect(r);
    if (!c.testo.empty()) p.drawText(r, Qt::AlignCenter, QString::fromStdString(c.testo));
  }
  QFont titolo(QStringLiteral("arial"));
  titolo.setBold(true);
  titolo.setPixelSize(std::max(1, static_cast<int>(3.5 * scala.y)));
  p.setFont(titolo);
  p.setPen(f.inchiostro);
  const QRectF area = in_punti(scala, f.area.adjusted(2, 1, -2, -0.5));
  p.drawText(area, Qt::AlignRight | Qt::AlignBottom, QString::fromStdString(f.nome));
}

}  // namespace schedine
