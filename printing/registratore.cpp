#include "printing/registratore.h"

#include <algorithm>
#include <cstring>

namespace schedine {

namespace {

// One byte for each operation, then its arguments: floats and integers in
// four bytes, a text as two bytes of length and its bytes. A mark is thus
// 13 bytes (circle) or 17 (box).
enum op : uint8_t {
  op_scala,
  op_modo,
  op_penna,
  op_riempimento1,
  op_riempimento2,
  op_punto_zero,
  op_cerchio,
  op_rettangolo,
  op_font_nome,
  op_font_dimensione,
  op_font_grassetto,
  op_posiziona,
  op_testo,
};

// Reads the operations of a page back, in order.
class lettore {
 public:
  lettore(const std::vector<uint8_t>& dati, size_t da) : dati_(dati), pos_(da) {}
  uint8_t byte() { return dati_[pos_++]; }
  float numero() {
    float v;
    std::memcpy(&v, &dati_[pos_], sizeof v);
    pos_ += sizeof v;
    return v;
  }
  int32_t intero() {
    int32_t v;
    std::memcpy(&v, &dati_[pos_], sizeof v);
    pos_ += sizeof v;
    return v;
  }
  std::string testo() {
    const size_t n = static_cast<size_t>(byte()) | (static_cast<size_t>(byte()) << 8);
    std::string t(reinterpret_cast<const char*>(&dati_[pos_]), n);
    pos_ += n;
    return t;
  }
  size_t posizione() const { return pos_; }

 private:
  const std::vector<uint8_t>& dati_;
  size_t pos_;
};

void esegui(lettore& l, dispositivo_stampa& d, const std::vector<std::string>& font) {
  switch (l.byte()) {
    case op_scala: d.imposta_scala_mm(); break;
    case op_modo: d.imposta_modo_pagina(l.intero()); break;
    case op_penna: {
      const int32_t stile = l.intero();
      d.imposta_penna(stile, l.intero());
      break;
    }
    case op_riempimento1: d.imposta_riempimento(l.intero()); break;
    case op_riempimento2: {
      const int32_t stile = l.intero();
      d.imposta_riempimento(stile, l.intero());
      break;
    }
    case op_punto_zero: d.disegna_punto_zero(); break;
    case op_cerchio: {
      const float x = l.numero(), y = l.numero();
      d.disegna_cerchio(x, y, l.numero());
      break;
    }
    case op_rettangolo: {
      const float x1 = l.numero(), y1 = l.numero(), x2 = l.numero();
      d.disegna_rettangolo(x1, y1, x2, l.numero());
      break;
    }
    case op_font_nome: d.imposta_font_nome(font[static_cast<size_t>(l.intero())]); break;
    case op_font_dimensione: d.imposta_font_dimensione(l.numero()); break;
    case op_font_grassetto: d.imposta_font_grassetto(l.byte() != 0); break;
    case op_posiziona: {
      const float x = l.numero();
      d.posiziona_testo(x, l.numero());
      break;
    }
    case op_testo: d.stampa_testo(l.testo()); break;
    default: break;
  }
}

}  // namespace

size_t registratore::byte_occupati() const {
  size_t testi = 0;
  for (const std::string& f : font_) testi += sizeof f + f.capacity();
  return sizeof *this + dati_.capacity() + pagine_.capacity() * sizeof(pagina) + testi;
}

void registratore::codice(uint8_t c) { dati_.push_back(c); }

void registratore::operazione(uint8_t c) {
  usato_ = true;
  codice(c);
}

void registratore::numero(float v) {
  uint8_t b[sizeof v];
  std::memcpy(b, &v, sizeof v);
  dati_.insert(dati_.end(), b, b + sizeof v);
}

void registratore::intero(int32_t v) {
  uint8_t b[sizeof v];
  std::memcpy(b, &v, sizeof v);
  dati_.insert(dati_.end(), b, b + sizeof v);
}

void registratore::disegnata() { disegno_ = true; }

void registratore::chiudi_pagina() {
  const auto fine = static_cast<uint32_t>(dati_.size());
  if (disegno_) {
    pagine_.push_back({inizio_, fine, inizio_pagina_, schedina_});
  } else {
    // Nothing on it reaches paper: only the state it set is kept, in the
    // state the next page begins with.
    dati_.resize(inizio_);
  }
  inizio_ = static_cast<uint32_t>(dati_.size());
  inizio_pagina_ = corrente_;
  disegno_ = false;
}

void registratore::concludi() {
  if (disegno_) chiudi_pagina();
  // The recording is complete: what the vectors kept for growth goes.
  dati_.shrink_to_fit();
  pagine_.shrink_to_fit();
}

void registratore::imposta_scala_mm() { operazione(op_scala); }

void registratore::imposta_modo_pagina(int modo) {
  operazione(op_modo);
  intero(modo);
}

void registratore::imposta_penna(int stile, int spessore) {
  corrente_.penna_stile = static_cast<int16_t>(stile);
  corrente_.penna_spessore = static_cast<int16_t>(spessore);
  operazione(op_penna);
  intero(stile);
  intero(spessore);
}

void registratore::imposta_riempimento(int stile) {
  corrente_.riempimento_stile = static_cast<int16_t>(stile);
  operazione(op_riempimento1);
  intero(stile);
}

void registratore::imposta_riempimento(int stile, int32_t colore) {
  corrente_.riempimento_stile = static_cast<int16_t>(stile);
  corrente_.riempimento_colore = colore;
  operazione(op_riempimento2);
  intero(stile);
  intero(colore);
}

void registratore::disegna_punto_zero() {
  operazione(op_punto_zero);
  disegnata();
}

void registratore::disegna_cerchio(float x, float y, float raggio) {
  operazione(op_cerchio);
  numero(x);
  numero(y);
  numero(raggio);
  ++segni_;
  disegnata();
}

void registratore::disegna_rettangolo(float x1, float y1, float x2, float y2) {
  operazione(op_rettangolo);
  numero(x1);
  numero(y1);
  numero(x2);
  numero(y2);
  ++segni_;
  disegnata();
}

void registratore::imposta_font_nome(const std::string& nome) {
  auto it = std::find(font_.begin(), font_.end(), nome);
  if (it == font_.end()) it = font_.insert(font_.end(), nome);
  corrente_.font_nome = static_cast<uint16_t>(it - font_.begin());
  operazione(op_font_nome);
  intero(corrente_.font_nome);
}

void registratore::imposta_font_dimensione(float punti) {
  if (punti > 0.0f) corrente_.font_dimensione = punti;
  operazione(op_font_dimensione);
  numero(punti);
}

void registratore::imposta_font_grassetto(bool grassetto) {
  corrente_.font_grassetto = grassetto;
  operazione(op_font_grassetto);
  codice(grassetto ? 1 : 0);
}

void registratore::posiziona_testo(float x, float y) {
  corrente_.testo_x = x;
  corrente_.testo_y = y;
  operazione(op_posiziona);
  numero(x);
  numero(y);
}

void registratore::stampa_testo(const std::string& testo) {
  // The slip's line is short; a longer text is kept to its first 65,535 bytes.
  const size_t n = std::min<size_t>(testo.size(), 0xFFFF);
  operazione(op_testo);
  codice(static_cast<uint8_t>(n & 0xFF));
  codice(static_cast<uint8_t>(n >> 8));
  dati_.insert(dati_.end(), testo.begin(), testo.begin() + static_cast<std::ptrdiff_t>(n));
  disegnata();
}

void registratore::nuova_pagina() {
  usato_ = true;
  ++numero_;
  chiudi_pagina();
}

void registratore::chiudi_stampa() {
  usato_ = true;
  numero_ = 1;
  chiudi_pagina();
}

void registratore::riproduci_pagina(size_t i, dispositivo_stampa& d) const {
  const pagina& p = pagine_[i];
  const stato_iniziale& s = p.stato;
  d.imposta_penna(s.penna_stile, s.penna_spessore);
  d.imposta_riempimento(s.riempimento_stile, s.riempimento_colore);
  if (s.font_nome < font_.size()) d.imposta_font_nome(font_[s.font_nome]);
  d.imposta_font_dimensione(s.font_dimensione);
  d.imposta_font_grassetto(s.font_grassetto);
  d.posiziona_testo(s.testo_x, s.testo_y);
  lettore l(dati_, p.inizio);
  while (l.posizione() < p.fine) esegui(l, d, font_);
}

void registratore::riproduci_tutto(dispositivo_stampa& d) const {
  for (size_t i = 0; i < pagine_.size(); ++i) {
    if (i > 0) d.nuova_pagina();
    riproduci_pagina(i, d);
  }
  d.chiudi_stampa();
}

}  // namespace schedine
