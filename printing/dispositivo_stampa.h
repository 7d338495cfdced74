#pragma once
// The printing device: exactly the operations the system asks of a printer.
// Coordinates and sizes are millimetres from the top left corner of the page,
// X to the right, Y downward, once imposta_scala_mm has been called.
// Implementations: the journal (dispositivo_giornale), the Qt device for the
// default printer and for PDF files (dispositivo_qt), and dispositivo_doppio,
// which feeds two devices at once.

#include <cstdint>
#include <string>

namespace schedine {

class dispositivo_stampa {
 public:
  virtual ~dispositivo_stampa() = default;

  // Later coordinates and sizes of the job are in millimetres.
  virtual void imposta_scala_mm() = 0;
  // Page property; 1 keeps the slip upright on the page.
  virtual void imposta_modo_pagina(int modo) = 0;
  // Outline of circles and boxes: the system always asks (1, 1), the
  // thinnest solid black line the device can draw.
  virtual void imposta_penna(int stile, int spessore) = 0;
  // Inside of circles and boxes: style 0 solid, 1 none. The one-argument form
  // keeps the colour already set; colours are 0x00BBGGRR, 0 is black.
  virtual void imposta_riempimento(int stile) = 0;
  virtual void imposta_riempimento(int stile, int32_t colore) = 0;
  // A filled black box from (0, 0) to (0, 0), whatever the fill state: it
  // opens the page so that the device state is in force.
  virtual void disegna_punto_zero() = 0;
  virtual void disegna_cerchio(float x, float y, float raggio) = 0;
  // A box between two opposite corners, in either order.
  virtual void disegna_rettangolo(float x1, float y1, float x2, float y2) = 0;
  virtual void imposta_font_nome(const std::string& nome) = 0;
  virtual void imposta_font_dimensione(float punti) = 0;
  virtual void imposta_font_grassetto(bool grassetto) = 0;
  // Where the next stampa_testo begins: (x, y) is the top left of the line.
  virtual void posiziona_testo(float x, float y) = 0;
  // Prints the text (UTF-8) at the text position and moves it to the next line.
  virtual void stampa_testo(const std::string& testo) = 0;
  // The current page within the job, from 1.
  virtual int numero_pagina() = 0;
  // Ends the page: the next drawing goes on a fresh one.
  virtual void nuova_pagina() = 0;
  // Ends the job and hands it to the printer.
  virtual void chiudi_stampa() = 0;
};

}  // namespace schedine
