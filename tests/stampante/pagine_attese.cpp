#include "tests/stampante/pagine_attese.h"

#include <cmath>
#include <numbers>
#include <sstream>

namespace schedine::prova {

void pagine_attese::imposta_riempimento(int stile, int32_t colore) {
  colore_ = colore;
  pieno_ = stile == 0 && colore == 0;
}

pagina_attesa& pagine_attese::pagina() {
  if (!pagina_aperta_) {
    lavoro_.emplace_back();
    pagina_aperta_ = true;
  }
  return lavoro_.back();
}

void pagine_attese::disegna_cerchio(float x, float y, float raggio) {
  const double r = std::abs(raggio);
  std::ostringstream d;
  d << "disegna_cerchio " << x << ' ' << y << ' ' << raggio;
  pagina().segni.push_back({x, y, r, r, pieno_, std::numbers::pi * r * r, d.str()});
}

void pagine_attese::disegna_rettangolo(float x1, float y1, float x2, float y2) {
  const double mezza_l = std::abs(x2 - x1) / 2.0;
  const double mezza_a = std::abs(y2 - y1) / 2.0;
  std::ostringstream d;
  d << "disegna_rettangolo " << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
  pagina().segni.push_back({(x1 + x2) / 2.0, (y1 + y2) / 2.0, mezza_l, mezza_a, pieno_, 4.0 * mezza_l * mezza_a, d.str()});
}

void pagine_attese::posiziona_testo(float x, float y) {
  testo_x_ = x;
  testo_y_ = y;
  posizione_nota_ = true;
}

void pagine_attese::stampa_testo(const std::string& testo) {
  pagina().righe.push_back({testo, posizione_nota_, testo_x_, testo_y_, punti_});
  // The device moves down by a line height of its font, which is its own business.
  posizione_nota_ = false;
}

void pagine_attese::nuova_pagina() {
  pagina_aperta_ = false;
  ++numero_pagina_;
}

void pagine_attese::chiudi_stampa() {
  if (!lavoro_.empty()) lavori_.push_back(std::move(lavoro_));
  lavoro_.clear();
  pagina_aperta_ = false;
  numero_pagina_ = 1;
}

}  // namespace schedine::prova
