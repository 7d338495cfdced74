#pragma once
// What the SuperEnalotto and Win for Life slip forms share: the title strip,
// the count of the chosen system and the range of slips it fills
// (range_pagine_e), the cost label, the range boxes with their key filter and
// leaving rules, the progress frame of a print run, and the way back to the
// main form. A slip here holds up to five columns (Combo1), so the range
// counts slips of that many columns.
//
// Rules run their statements one by one and pass over the one that fails,
// as the forms' event handlers do; the few that don't say so.

#include <cstdint>
#include <string>
#include <string_view>

#include "controls/modulo.h"

namespace schedine {

class modulo_pannelli : public modulo {
 public:
  // gioco is the folder the form counts its systems in: "superenalotto" or "wforlife".
  modulo_pannelli(std::string nome, stato& s, insieme_moduli& moduli, std::string_view gioco)
      : modulo(std::move(nome), s, moduli), gioco_(gioco) {}

  // Columns of the chosen system, as the last count found them.
  int32_t colonne_form = 0;
  // The form's outer size in twips; some rules widen the form.
  int larghezza = 0;
  int altezza = 0;

  // Counts the system again (a count that can't be read leaves the last
  // one), sets txtalla to its slips and txtdalla to 1, and lbltot to the
  // plain cost of its columns at the form's price of a column.
  void range_pagine_e();

 protected:
  // The price of one column as range_pagine_e reads it from the form.
  virtual double prezzo_per_conteggio() = 0;

  // ---- design
  cornice& crea_cornice(const std::string& nome, float sinistra, float alto, float larghezza, float altezza,
                        controllo* contenitore = nullptr);
  // A label, or any control that has a caption, at its place.
  template <class T = etichetta>
  T& crea(const std::string& nome, int indice, const std::string& caption, float sinistra, float alto,
          float larghezza, float altezza, controllo* contenitore) {
    T& nuovo = aggiungi<T>(nome, indice, contenitore);
    nuovo.caption = caption;
    colloca(nuovo, sinistra, alto, larghezza, altezza);
    return nuovo;
  }
  pulsante_opzione& crea_opzione(const std::string& nome, int indice, const std::string& caption, float sinistra,
                                 float alto, float larghezza, float altezza, controllo* contenitore);
  static void colloca(controllo& c, float sinistra, float alto, float larghezza, float altezza);
  // Frame6 with lbltitolo, the name of the system, which Form1 sets.
  void crea_titolo(float larghezza);
  // Combo1 with "1" to "5": columns on a slip. Its Click (and Change) rule
  // takes the count into colonne_per_scheda and resets the range.
  casella_elenco& crea_combo1(float sinistra, float alto, controllo* contenitore);
  // Label4 "Costo Sistema:" and lbltot.
  void crea_costo(float sinistra, float alto, controllo* contenitore);
  // Label1(44..46), txtdalla and txtalla with their rules.
  void crea_intervallo(float sinistra, float alto, controllo* contenitore);
  // Frame2 with Label2 and ProgressBar1, hidden until a print run.
  void crea_avanzamento(float sinistra, float alto);
  // The decorative border shape drawn inside a frame.
  void crea_bordo(cornice& frame, const std::string& nome);
  // Border shapes at 15 twips inside Frame2, Frame3 and Frame6.
  void adatta_bordi();

  // ---- rules
  void combo1_click();
  // Leaving txtdalla: kept (by leading number) from passing txtalla; "0" becomes "1".
  void uscita_txtdalla();
  // Leaving txtalla: held to the slips of the system, then kept from falling below txtdalla.
  void uscita_txtalla();
  // Unloads the form and shows the main form again.
  void cmdexit_click();

  // ---- steps of a print run
  // dalla_scheda and alla_scheda from the range boxes.
  void prendi_intervallo();
  // The progress bar over the slips of the range, then Frame2 shown and the
  // events let run, so that it appears before the run starts.
  void mostra_avanzamento();
  // colonne_per_scheda from Combo1.
  void prendi_colonne_per_scheda();

  bool opzione(const std::string& nome, int indice = -1) { return c<pulsante_opzione>(nome, indice).valore(); }
  casella_testo& casella(const std::string& nome) { return c<casella_testo>(nome); }
  std::string formatta_euro(double importo) const;

 private:
  // Slips of the system at Combo1's columns a slip: a last slip that isn't
  // full counts as one.
  int32_t schede_del_sistema();

  std::string_view gioco_;
};

}  // namespace schedine
