#pragma once
// The print preview window: the recorded slips one at a time ("Scheda 3 di
// 120"), a zoom, the slip's picture on or off, and "Stampa", "Salva PDF" and
// "Chiudi". "Stampa" sends the recorded pages to the printer as they are:
// the print rule does not run again.

#include <QWidget>
#include <functional>
#include <memory>

class QCheckBox;
class QComboBox;
class QLabel;
class QScrollArea;
class QToolButton;

namespace schedine {

class pagina_anteprima;
class registratore;
class regia_stampa;

class finestra_anteprima : public QWidget {
 public:
  // The window closes itself and goes when the user closes it.
  finestra_anteprima(std::unique_ptr<registratore> pagine, regia_stampa& regia, QWidget* genitore);
  ~finestra_anteprima() override;

  void vai_a(size_t pagina);
  const registratore& pagine() const { return *pagine_; }
  pagina_anteprima& pagina() { return *pagina_; }

  // Asks where "Salva PDF" writes; empty for nowhere. Tests set their own.
  std::function<QString()> chiedi_file_pdf;

  void stampa();
  void salva_pdf();

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  QWidget* crea_comandi();
  void aggiorna_comandi();

  std::unique_ptr<registratore> pagine_;
  regia_stampa& regia_;
  pagina_anteprima* pagina_ = nullptr;
  QScrollArea* scorrimento_ = nullptr;
  QLabel* numero_ = nullptr;
  QToolButton* precedente_ = nullptr;
  QToolButton* successiva_ = nullptr;
  QComboBox* zoom_ = nullptr;
  QCheckBox* figura_ = nullptr;
};

// The text above the page: "Scheda 3 di 120".
QString testo_numero_pagina(size_t pagina, size_t pagine);

}  // namespace schedine
