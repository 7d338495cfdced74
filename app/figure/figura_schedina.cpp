#include "app/figure/figura_schedina.h"

#include <QFont>
#include <QPainter>
#include <algorithm>
#include <memory>

#include "calibration/fabbrica.h"
#include "core/stato.h"
#include "forms/calibration/tar_lotto.h"
#include "forms/calibration/tar_pannelli.h"
#include "printing/qt/figura_pagina.h"

namespace schedine {

namespace {

constexpr double twip_per_pixel = 15;

// One axis of the fit: pixel = scala · mm + origine.
void retta(const std::vector<double>& mm, const std::vector<double>& px, double& scala, double& origine) {
  const double n = static_cast<double>(mm.size());
  double sm = 0, sp = 0, smm = 0, smp = 0;
  for (size_t i = 0; i < mm.size(); ++i) {
    sm += mm[i];
    sp += px[i];
    smm += mm[i] * mm[i];
    smp += mm[i] * px[i];
  }
  const double varianza = n * smm - sm * sm;
  scala = varianza == 0 ? 1 : (n * smp - sm * sp) / varianza;
  origine = n == 0 ? 0 : (sp - scala * sm) / n;
}

// Every box of the Lotto slip, the numbers with their number.
std::vector<casella_schedina> caselle_lotto(const stato& s) {
  std::vector<casella_schedina> caselle;
  for (int n = 1; n <= 90; ++n) caselle.push_back({{s.tar_numeri(n, 0), s.tar_numeri(n, 1)}, std::to_string(n)});
  auto riga = [&](const auto& tabella, int ultima) {
    for (int i = 0; i <= ultima; ++i) caselle.push_back({{tabella(i, 0), tabella(i, 1)}, {}});
  };
  riga(s.tar_ruote, 10);
  riga(s.tar_estratto, 20);
  riga(s.tar_ambo, 20);
  riga(s.tar_terno, 20);
  riga(s.tar_quaterna, 20);
  riga(s.tar_cinquina, 20);
  riga(s.tar_ambetto, 20);
  riga(s.tar_det_importo, 20);
  riga(s.tar_sistemi, 5);
  riga(s.tar_gio_mult, 5);
  caselle.push_back({{s.tar_nazionale(0), s.tar_nazionale(1)}, {}});
  return caselle;
}

QPixmap figura_lotto(tar_lotto& t, QSize dimensione) {
  auto s = stato_di_fabbrica(&default_tar_lotto);
  // The detail shows the corner of the number grid: the nine marks, three
  // rows of three, stand on numbers 1 to 3, 11 to 13 and 21 to 23.
  std::vector<riscontro> riscontri;
  QSizeF segno;
  for (int i = 0; i < 9; ++i) {
    const forma& f = t.c<forma>("Shapepunto", i);
    segno = QSizeF(f.larghezza / twip_per_pixel, f.altezza / twip_per_pixel);
    const posizione& p = t.pos_punto[static_cast<size_t>(i)];
    const QPointF centro((p.sinistra + f.larghezza / 2) / twip_per_pixel, (p.alto + f.altezza / 2) / twip_per_pixel);
    const int n = 10 * (i / 3) + i % 3 + 1;
    riscontri.push_back({centro, {s->tar_numeri(n, 0), s->tar_numeri(n, 1)}});
  }
  return disegna_schedina(dimensione, caselle_lotto(*s), adatta_mappa(riscontri, false), segno,
                          QColor(0xc0, 0x1c, 0x28));
}

// The box a mark of a panel form stands for: group and row of tab_coord.
std::pair<int, int> casella_del_segno(const std::string& modulo, int i) {
  if (modulo == "tar_enalotto") return {1, 15 * (i % 6) + i / 6 + 1};  // marks down columns of six
  if (modulo == "tar_wforlife5") return {i / 20 + 1, i % 20 + 1};      // twenty boxes a panel
  return {1, i + 1};
}

// Whether the slip has a box for a row of a group: a Win for Life panel
// holds the numbers 1 to 20, two to a line, though its table runs on.
bool sulla_schedina(const std::string& modulo, int gruppo, int riga) {
  return !(modulo == "tar_wforlife5" && gruppo <= 5 && riga > 20);
}

// The text of a box of a panel slip: the number it stands for; on the
// one-panel Win for Life slip only the panel's numbers are shown.
std::string testo_casella(const std::string& modulo, int gruppo, int riga) {
  if (modulo == "tar_wforlife5") return gruppo <= 5 ? std::to_string(riga) : std::string();
  if (modulo == "tar_wforlife") return gruppo == 1 ? std::to_string(riga) : std::string();
  if (modulo == "tar_enalotto2" && gruppo == 4) return {};
  return std::to_string(riga);
}

QColor inchiostro_di(const std::string& modulo) {
  if (modulo.rfind("tar_wforlife", 0) == 0) return QColor(0x00, 0x7a, 0x3d);
  return QColor(0x1d, 0x4f, 0xa8);
}

QPixmap figura_pannelli(tar_pannelli& t, QSize dimensione) {
  disegno_schedina d = disegno_pannelli(t);
  // The five-panel Win for Life picture shows its panels whole; the others
  // are details of their slips, cut by the picture's edge.
  const bool pannelli_interi = t.variante().nome == "tar_wforlife5";
  return disegna_schedina(dimensione, d.caselle, d.mappa, d.segno, inchiostro_di(t.variante().nome), pannelli_interi);
}

}  // namespace

QPointF mappa_figura::in_pixel(QPointF mm) const {
  const double a = ruotata ? mm.y() : mm.x();
  const double b = ruotata ? mm.x() : mm.y();
  return {scala_x * a + origine_x, scala_y * b + origine_y};
}

mappa_figura adatta_mappa(const std::vector<riscontro>& riscontri, bool ruotata) {
  std::vector<double> mm_x, mm_y, px_x, px_y;
  for (const riscontro& r : riscontri) {
    mm_x.push_back(ruotata ? r.mm.y() : r.mm.x());
    mm_y.push_back(ruotata ? r.mm.x() : r.mm.y());
    px_x.push_back(r.centro_pixel.x());
    px_y.push_back(r.centro_pixel.y());
  }
  mappa_figura mappa;
  mappa.ruotata = ruotata;
  retta(mm_x, px_x, mappa.scala_x, mappa.origine_x);
  retta(mm_y, px_y, mappa.scala_y, mappa.origine_y);
  return mappa;
}

QPixmap disegna_schedina(QSize dimensione, const std::vector<casella_schedina>& caselle, const mappa_figura& mappa,
                         QSizeF casella_pixel, QColor inchiostro, bool solo_intere) {
  QPixmap figura(dimensione.expandedTo(QSize(1, 1)));
  figura.fill(QColor(0xfd, 0xfa, 0xf0));  // the slip's paper
  QPainter pittore(&figura);
  pittore.setRenderHint(QPainter::Antialiasing);
  QColor tinta = inchiostro;
  tinta.setAlpha(40);
  const QSizeF lato = lato_casella(casella_pixel);
  QFont font(QStringLiteral("Arial"));
  font.setPixelSize(std::max(6, static_cast<int>(std::min(lato.height() * 0.55, lato.width() * 0.5))));
  pittore.setFont(font);
  const QRectF carta(figura.rect());
  const QRectF visibile = carta.adjusted(-lato.width(), -lato.height(), lato.width(), lato.height());
  for (const casella_schedina& c : caselle) {
    const QPointF centro = mappa.in_pixel(c.mm);
    if (!visibile.contains(centro)) continue;
    const QRectF box(centro.x() - lato.width() / 2, centro.y() - lato.height() / 2, lato.width(), lato.height());
    if (solo_intere && !carta.contains(box)) continue;
    pittore.setPen(QPen(inchiostro, 1));
    pittore.setBrush(tinta);
    pittore.drawRoundedRect(box, 2, 2);
    if (!c.testo.empty()) {
      pittore.setPen(inchiostro);
      pittore.drawText(box, Qt::AlignCenter, QString::fromStdString(c.testo));
    }
  }
  pittore.setPen(QPen(inchiostro, 1));
  pittore.setBrush(Qt::NoBrush);
  pittore.drawRect(QRectF(figura.rect()).adjusted(0.5, 0.5, -0.5, -0.5));
  return figura;
}

disegno_schedina disegno_pannelli(tar_pannelli& t) {
  const variante_pannelli& v = t.variante();
  auto s = stato_di_fabbrica(v.fabbrica);
  const double scala = t.twip_per_unita_anteprima / twip_per_pixel;
  const int segni = v.disposti > 0 ? v.disposti : v.segni;
  std::vector<riscontro> riscontri;
  for (int i = 0; i < segni && i < static_cast<int>(t.pos_shape7.size()); ++i) {
    const posizione& p = t.pos_shape7[static_cast<size_t>(i)];
    const QPointF centro((p.sinistra + v.larghezza_segno / 2) * scala, (p.alto + v.altezza_segno / 2) * scala);
    auto [gruppo, riga] = casella_del_segno(v.nome, i);
    riscontri.push_back({centro, {s->tab_coord(gruppo, riga, 0), s->tab_coord(gruppo, riga, 1)}});
  }
  disegno_schedina d;
  for (int g = 1; g < tabella_coord::gruppi; ++g) {
    for (int r = 1; r < tabella_coord::righe; ++r) {
      QPointF mm(s->tab_coord(g, r, 0), s->tab_coord(g, r, 1));
      // A row the slip has no box for holds nothing.
      if ((mm.x() != 0 || mm.y() != 0) && sulla_schedina(v.nome, g, r)) d.caselle.push_back({mm, testo_casella(v.nome, g, r)});
    }
  }
  d.segno = QSizeF(v.larghezza_segno * scala, v.altezza_segno * scala);
  d.mappa = adatta_mappa(riscontri, v.frecce_ruotate);
  return d;
}

QPixmap figura_taratura(modulo& m, QSize dimensione) {
  if (auto* lotto = dynamic_cast<tar_lotto*>(&m)) return figura_lotto(*lotto, dimensione);
  if (auto* pannelli = dynamic_cast<tar_pannelli*>(&m)) return figura_pannelli(*pannelli, dimensione);
  return {};
}

}  // namespace schedine
