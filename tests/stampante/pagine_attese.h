#pragma once
// What the paper must show, taken from the print jobs as the program sends
// them: a printing device that draws nothing and keeps, page by page, each
// mark with its place and size and each text line with its position. Put
// beside the real printer, it tells a test where to look on the printed page.

#include <string>
#include <vector>

#include "printing/dispositivo_stampa.h"

namespace schedine::prova {

// A dot or a box, by its centre and half sizes in millimetres. Only a solid
// black one has a known inked area; an outline shows just its centre.
struct segno_atteso {
  double x = 0, y = 0;
  double mezza_larghezza = 0, mezza_altezza = 0;
  bool pieno = false;
  double area = 0;          // mm², when pieno
  std::string descrizione;  // the operation, for failure messages
};

// A line of text; the position is known when the line follows posiziona_testo.
struct riga_attesa {
  std::string testo;
  bool posizione_nota = false;
  double x = 0, y = 0;
  double punti = 0;  // font size
};

struct pagina_attesa {
  std::vector<segno_atteso> segni;
  std::vector<riga_attesa> righe;
};

// The pages of one job that reach the paper: a page nothing was drawn on is
// never fed, and a job that drew nothing sends nothing.
using lavoro_atteso = std::vector<pagina_attesa>;

class pagine_attese : public dispositivo_stampa {
 public:
  const std::vector<lavoro_atteso>& lavori() const { return lavori_; }

  void imposta_scala_mm() override {}
  void imposta_modo_pagina(int) override {}
  void imposta_penna(int, int) override {}
  void imposta_riempimento(int stile) override { pieno_ = stile == 0 && colore_ == 0; }
  void imposta_riempimento(int stile, int32_t colore) override;
  void disegna_punto_zero() override { pagina(); }
  void disegna_cerchio(float x, float y, float raggio) override;
  void disegna_rettangolo(float x1, float y1, float x2, float y2) override;
  void imposta_font_nome(const std::string&) override {}
  void imposta_font_dimensione(float punti) override { punti_ = punti; }
  void imposta_font_grassetto(bool) override {}
  void posiziona_testo(float x, float y) override;
  void stampa_testo(const std::string& testo) override;
  int numero_pagina() override { return numero_pagina_; }
  void nuova_pagina() override;
  void chiudi_stampa() override;

 private:
  // The page being drawn, begun at its first drawing.
  pagina_attesa& pagina();

  std::vector<lavoro_atteso> lavori_;
  lavoro_atteso lavoro_;
  bool pagina_aperta_ = false;
  int numero_pagina_ = 1;
  int32_t colore_ = 0;
  bool pieno_ = false;
  double punti_ = 8.0;
  bool posizione_nota_ = false;
  double testo_x_ = 0, testo_y_ = 0;
};

}  // namespace schedine::prova
