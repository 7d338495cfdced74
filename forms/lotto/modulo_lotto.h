#pragma once
// What the two Lotto slip forms (Form_sched_lotto_ambetto and
// Form_sched_10elotto) have in common: the form-level sums, the stake grid,
// the wheels, the range boxes and the progress frame, the clearing and the
// copying of the ticks into the selection tables, the count of slips of the
// chosen system, and the rules of the TOTALE row.
//
// Every rule here runs its statements one by one and passes over the one
// that fails, as the forms' event handlers do: a control that one of the two
// forms lacks is simply skipped.

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>

#include "controls/modulo.h"
#include "core/stato.h"
#include "core/valuta.h"
#include "forms/lotto/importi_lotto.h"

namespace schedine {

// The five bet rows, in the order the rules walk them.
inline constexpr std::array<const char*, 5> righe_puntata = {"ChEstratto", "Chambo", "ChTerno", "Chquaterna",
                                                             "ChCinquina"};

class modulo_lotto : public modulo {
 public:
  using modulo::modulo;

  // Form-level state: it lives with the form object, so it outlasts an
  // unload unless a rule resets it.
  vettore<valuta, colonne_puntata> importi;
  valuta importo_giocata;
  valuta importo_usato;
  valuta importo_residuo;
  int32_t schede_totali = 0;
  // A float both forms set when they fill the selection tables; nothing reads it.
  float valore_inutilizzato = 0.0f;

  // Client area of the form, in twips.
  int larghezza_client = 0;
  int altezza_client = 0;

  virtual void svuota() = 0;
  virtual void annulla_importi() = 0;

  // Reads the slip count of the chosen system (kept when it can't be read)
  // and sets the range boxes to 1 .. that count.
  void range_pagine();

  // Key filter of txtdalla and txtalla: drops codes 32 to 46 and 58 to 255,
  // so digits, control keys and "/" get through.
  static void filtro_intervallo(int& tasto);
  // Leaving txtalla: held to the slip count, then kept from sorting (as
  // text) before txtdalla.
  void uscita_txtalla();
  // Leaving txtdalla: kept (as a number) from exceeding txtalla; "0" becomes "1".
  void uscita_txtdalla();

  // The rules of the TOTALE row: a budget per wheel set box by box.
  void chtotale_click(int indice);
  void chtotale1_click();

 protected:
  // ---- design
  // Called first by each form's design: restarts the running indices of the
  // unnamed labels and border shapes, which are made again at each load.
  void inizia_disegno() { prossimo_testo_ = prossimo_bordo_ = 0; }
  cornice& crea_cornice(const std::string& nome, float sinistra, float alto, float larghezza, float altezza,
                        controllo* contenitore = nullptr);
  // A label whose text the rules never read; the system names none of them.
  etichetta& crea_testo(const std::string& caption, float sinistra, float alto, controllo* contenitore);
  casella_controllo& crea_casella(const std::string& nome, int indice, float sinistra, float alto, float larghezza,
                                  float altezza, controllo* contenitore);
  // A row of stake boxes at columns 0 .. ultima; from prima_nascosta on they are hidden.
  void crea_riga(const std::string& nome, float alto, controllo& griglia, int ultima, int prima_nascosta,
                 const std::string& caption = {});
  // The TOTALE row: ChTotale1(0) and ChTotale(1..17), hidden from column prima_nascosta on.
  void crea_riga_totale(controllo& griglia, int prima_nascosta);
  // The amount heads of the columns that have an amount, as the pictures
  // nome(column) inside the frame of the heads.
  void crea_teste_colonne(controllo& frameeuro, const tabella_importi& tabella, const std::string& nome = "Image1");
  void crea_ruote(controllo& frame1);
  void crea_titolo();
  // Label1(44..46), txtdalla and txtalla, with their rules.
  void crea_intervallo(controllo& frame5);
  // Places controls already made: name, index, and their box in twips.
  struct posto {
    const char* nome;
    int indice;
    float sinistra, alto, larghezza, altezza;
  };
  void colloca(std::initializer_list<posto> posti);
  // "Stampa", "Annulla" and "Esci" in a row at the foot of Frame5.
  void crea_comandi(controllo& frame5, float alto, float larghezza, float sinistra_annulla, float sinistra_esci);
  // Frame2 with Label3 and ProgressBar1, hidden until a print run.
  void crea_avanzamento();
  // The border shape drawn inside a frame.
  void crea_bordo(cornice& frame);
  // Shape1(0..2), which the first display moves.
  void crea_forme_evidenza();

  // ---- load and first display
  // Border shapes at 15 twips inside their frames.
  void adatta_bordi();
  void sposta_forme_evidenza();
  // Column 18 of the bet rows, shown by design on the grid, is hidden again.
  void nascondi_colonna_18();
  // Disables the bet rows that the sorte of the system can't play.
  void disattiva_righe_per_gioco();

  // ---- selection tables
  // Clears the tables of the wheels, ChSistemi, ChGIO_MULT, TOTALE and the
  // five bet rows, as both forms do at load.
  void svuota_selezioni_base();
  // The same and the five rows of extracts by position, as svuota does.
  void svuota_selezioni();
  // The tables of the wheels, of the first ticked box of ChSistemi (0 ..
  // ultimo_sistemi) and of ChGIO_MULT (0 .. ultimo_multiple), and of the five bet rows.
  void copia_ruote();
  void copia_prima_spuntata(const std::string& nome, int ultimo, vettore<uint8_t, 9>& tabella);
  void copia_prima_spuntata(const std::string& nome, int ultimo, vettore<uint8_t, 10>& tabella);
  void copia_righe_puntata();

  // ---- print
  // What every print run does before its driver: the calibration of the
  // slip reloaded (made from factory values when its file is missing), the
  // range read from the boxes, the progress bar reset and its frame shown.
  void prepara_stampa();

  // ---- budget display
  // "TUTTE" counts as one wheel and the national wheel not at all; with no
  // wheel the sums are shown for one.
  int16_t conta_ruote_budget();
  // lblimporto and lblcredito: the budget and what is left of it, times the wheels.
  void mostra_budget(int16_t ruote);
  void mostra_credito(int16_t ruote);

  // ---- shared statements
  bool spuntata(const std::string& nome, int indice = -1);
  void spunta(const std::string& nome, int indice, int valore);
  // Unticks a box, passing over one that doesn't exist.
  void togli_spunta(const std::string& nome, int indice = -1);
  etichetta& lblimporto() { return c<etichetta>("lblimporto"); }

 private:
  template <class Tabella>
  void copia_prima(const std::string& nome, int ultimo, Tabella& tabella);
  std::string in_euro(valuta importo, int16_t ruote) const;
  int prossimo_testo_ = 0;
  int prossimo_bordo_ = 0;
};

}  // namespace schedine
