#pragma once
// The ordinary controls: label, command button, frame, check box, option
// button, text box, combo box, list box, progress bar, shape, image, timer.

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "controls/controllo.h"

namespace schedine {

// A label, command button, frame or picture: a caption and a click.
class etichetta : public controllo {
 public:
  using controllo::controllo;
  std::string caption;
  std::string testo_visibile() const override { return caption; }
};

// The four behave alike; their kinds tell a window how to show them.
class pulsante : public etichetta {
 public:
  using etichetta::etichetta;
};
class cornice : public etichetta {
 public:
  using etichetta::etichetta;
};
class immagine : public etichetta {
 public:
  using etichetta::etichetta;
};

class casella_controllo : public controllo {
 public:
  using controllo::controllo;
  std::string caption;

  int valore() const { return valore_; }
  // From code: the click rule runs when the tick really changes.
  void imposta_valore(int valore);
  // The user's click toggles the tick, then the rule runs.
  void clic_utente() override { imposta_valore(valore_ == 0 ? 1 : 0); }
  std::string testo_visibile() const override { return caption; }

 private:
  int valore_ = 0;
};

// An option button: selecting it unselects the other option buttons of its
// group (those with the same container and the same group name).
class pulsante_opzione : public controllo {
 public:
  pulsante_opzione(std::string nome, int indice, std::vector<pulsante_opzione*>* gruppo)
      : controllo(std::move(nome), indice), gruppo_(gruppo) {}
  std::string caption;

  bool valore() const { return valore_; }
  // From code: True selects it and unselects its siblings; the click rule runs
  // when it becomes selected. False only unselects it.
  void imposta_valore(bool valore);
  void clic_utente() override;
  std::string testo_visibile() const override { return caption; }

 private:
  bool valore_ = false;
  std::vector<pulsante_opzione*>* gruppo_;
};

class casella_testo : public controllo {
 public:
  using controllo::controllo;

  const std::string& testo() const { return testo_; }
  // From code: the change rule runs when the text changes.
  void imposta_testo(const std::string& testo);
  // The user selects all the text and types it key by key: each key goes
  // through the key filter, which may drop it by setting it to 0.
  void digita(const std::string& testo);
  void uscita() {
    if (all_uscita) all_uscita();
  }
  std::string testo_visibile() const override { return testo_; }

  std::function<void(int& tasto)> al_tasto;
  std::function<void()> al_cambio;
  std::function<void()> all_uscita;

 private:
  std::string testo_;
};

// A list box or a combo box: entries, the selected one, its text.
class casella_elenco : public controllo {
 public:
  // A combo box drops its entries down under a box of its own text; a list
  // box shows them. The forms name every combo box "Combo...", so the design
  // name sets the kind unless the form says otherwise.
  casella_elenco(std::string nome, int indice)
      : controllo(std::move(nome), indice), a_tendina(this->nome().rfind("Combo", 0) == 0) {}
  bool a_tendina;

  int conta() const { return static_cast<int>(voci_.size()); }
  // Entry i; an index outside the list reads empty, as the platform's list does.
  std::string voce(int i) const;
  void aggiungi(const std::string& voce) { voci_.push_back(voce); }
  // Removes entry i; outside the list it is a run-time error.
  void rimuovi(int i);
  void svuota();
  int indice_selezionato() const { return selezionato_; }
  // From code: the click rule runs when the selection moves to an entry.
  void seleziona(int indice);
  // The user picks an entry: the click rule runs.
  void scegli(int indice);
  // The selected entry's text (a combo box's own text when it has one typed).
  std::string testo() const;
  void imposta_testo(const std::string& testo) { testo_proprio_ = testo; }
  std::string testo_visibile() const override { return testo(); }
  // First entry from the top that begins with the text, without regard to case; -1 for none.
  int cerca_prefisso(const std::string& prefisso) const;

 private:
  std::vector<std::string> voci_;
  int selezionato_ = -1;
  std::string testo_proprio_;
  bool testo_impostato_ = false;
};

class barra_avanzamento : public controllo {
 public:
  using controllo::controllo;
  int minimo = 0;
  int massimo = 100;
  // Beyond the bar's range the value is the run-time error "Chiamata di routine o argomento non validi".
  void imposta_valore(int valore);
  int valore() const { return valore_; }
  std::string testo_visibile() const override { return std::to_string(valore_); }

 private:
  int valore_ = 0;
};

// A shape: its position is all the rules move.
class forma : public controllo {
 public:
  using controllo::controllo;
  int tipo = 0;  // 0 rectangle, 1 square, 2 oval, 3 circle
};

class temporizzatore : public controllo {
 public:
  using controllo::controllo;
  int intervallo = 0;
  std::function<void()> al_tempo;
};

}  // namespace schedine

namespace schedine {

// A grid of cells with a current cell, a selection rectangle and a background
// colour per cell. Colours are numbers in the platform's form (65535 yellow,
// 16777215 white).
class griglia : public controllo {
 public:
  using controllo::controllo;

  inline static constexpr int32_t bianco = 16777215;
  inline static constexpr int32_t giallo = 65535;

  int righe() const { return righe_; }
  int colonne() const { return colonne_; }
  // Resizes the grid; new cells are empty and white.
  void dimensiona(int righe, int colonne);

  // The current cell: Row and Col. Outside the grid it is a run-time error.
  int riga = 0;
  int colonna = 0;
  void imposta_cella_corrente(int r, int c);
  // The selection: from the current cell to (riga_fine, colonna_fine).
  int riga_fine = 0;
  int colonna_fine = 0;

  // Text and background colour of a cell; outside the grid a run-time error.
  const std::string& testo_cella(int r, int c) const;
  void imposta_testo_cella(int r, int c, const std::string& testo);
  int32_t colore_cella(int r, int c) const;
  void imposta_colore_cella(int r, int c, int32_t colore);
  // Column widths in twips: 0 hides a column; one the form never sized
  // keeps the grid's own width.
  inline static constexpr float larghezza_propria = -1;
  std::vector<float> larghezze_colonne;

  // The user selects from (r1, c1) to (r2, c2) and lets the mouse button up.
  void selezione_utente(int r1, int c1, int r2, int c2);
  std::function<void()> al_rilascio_mouse;

 private:
  size_t posizione(int r, int c) const;
  int righe_ = 0;
  int colonne_ = 0;
  std::vector<std::string> testi_;
  std::vector<int32_t> colori_;
};

}  // namespace schedine
