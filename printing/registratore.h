#pragma once
// A printing device that keeps the pages of a run instead of printing them,
// for the print preview: each page is a compact list of the operations drawn
// on it, with the device state in force when it began, so that any page can
// be drawn again on its own, on screen, on paper or into a PDF.
//
// A page is what lies between two page ends (nuova_pagina, chiudi_stampa);
// one on which nothing was drawn is not kept, as no printer feeds it. Page
// numbers are answered as a printer answers them, from 1 in each job.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "printing/dispositivo_stampa.h"
#include "printing/schedina_in_stampa.h"

namespace schedine {

class registratore : public dispositivo_stampa {
 public:
  // The device state a page begins with.
  struct stato_iniziale {
    int16_t penna_stile = 1, penna_spessore = 1;
    int16_t riempimento_stile = 1;
    int32_t riempimento_colore = 0;
    float font_dimensione = 8.0f;
    uint16_t font_nome = 0;  // index into the names of fonts
    bool font_grassetto = false;
    float testo_x = 0.0f, testo_y = 0.0f;
  };
  struct pagina {
    uint32_t inizio = 0, fine = 0;  // bytes of the operations
    stato_iniziale stato;
    schedina carta = schedina::nessuna;
  };

  // The slip the pages from now on are drawn for (the picture under them).
  void imposta_schedina(schedina s) { schedina_ = s; }

  // The run is over: keeps the page in course when something was drawn on
  // it (a run that stopped without closing its job), and gives back the
  // room kept for growth.
  void concludi();

  size_t pagine() const { return pagine_.size(); }
  // Whether any operation came at all: a run that opened a job with no slip
  // in it, unlike a print its checks refused.
  bool usato() const { return usato_; }
  const pagina& pagina_n(size_t i) const { return pagine_[i]; }
  // Marks kept (circles and boxes), and the bytes the recording holds.
  size_t segni() const { return segni_; }
  size_t byte_occupati() const;

  // Draws page i (from 0) on a device: its state first, then its operations.
  // No page end is sent.
  void riproduci_pagina(size_t i, dispositivo_stampa& d) const;
  // All pages as one job: each page after the first begins with nuova_pagina,
  // and chiudi_stampa ends it.
  void riproduci_tutto(dispositivo_stampa& d) const;

  void imposta_scala_mm() override;
  void imposta_modo_pagina(int modo) override;
  void imposta_penna(int stile, int spessore) override;
  void imposta_riempimento(int stile) override;
  void imposta_riempimento(int stile, int32_t colore) override;
  void disegna_punto_zero() override;
  void disegna_cerchio(float x, float y, float raggio) override;
  void disegna_rettangolo(float x1, float y1, float x2, float y2) override;
  void imposta_font_nome(const std::string& nome) override;
  void imposta_font_dimensione(float punti) override;
  void imposta_font_grassetto(bool grassetto) override;
  void posiziona_testo(float x, float y) override;
  void stampa_testo(const std::string& testo) override;
  int numero_pagina() override { return numero_; }
  void nuova_pagina() override;
  void chiudi_stampa() override;

 private:
  void codice(uint8_t c);
  void operazione(uint8_t c);
  void numero(float v);
  void intero(int32_t v);
  void disegnata();
  void chiudi_pagina();

  std::vector<uint8_t> dati_;
  std::vector<pagina> pagine_;
  std::vector<std::string> font_;  // names of fonts in use, by index
  stato_iniziale corrente_;        // the state as the operations leave it
  stato_iniziale inizio_pagina_;   // the state when the open page began
  uint32_t inizio_ = 0;            // where the open page's operations begin
  bool disegno_ = false;           // whether anything was drawn on the open page
  schedina schedina_ = schedina::nessuna;
  size_t segni_ = 0;
  int numero_ = 1;
  bool usato_ = false;
};

}  // namespace schedine
