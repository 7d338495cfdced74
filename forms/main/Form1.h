#pragma once
// The main form: start-up and end of the program, the list of saved systems
// of a game, the choice of one, and the buttons that open the slip and
// calibration forms or start a sibling program.

#include <string>

#include "controls/modulo.h"

namespace schedine {

class Form1 : public modulo {
 public:
  Form1(stato& s, insieme_moduli& moduli) : modulo("Form1", s, moduli) {}

  // Fields of the form used by the catalogue's second pass.
  bool in_verifica = false;
  std::string nome_verifica;

  // The list builders and the turn of an entry back into a stored name.
  void trova_sistemi();
  void trova_sistemi_cas();
  void trova_sistemi_r();
  std::string nomesistema(const std::string& voce);
  void trova_cruciverba();
  void trova_cruciverba_lotto();
  // Loads skin number 1 to 9 and remembers the number in skn.dat.
  void carica_skin(int numero);
  // Closing the main window ends the program, with the unload as its clean-up.
  void chiudi_utente() override { termina_programma(); }

 protected:
  void crea_controlli() override;
  void al_caricamento() override;
  void allo_scaricamento() override;

 private:
  void crea_catalogo();
  void crea_taratura();
  void leggi_trans(std::string& da_cercare);
  void option1_click(int indice);
  void list1_click();
  void cmdok_click();
  void apri_taratura(const std::string& nome_modulo);
  void avvia_fratello(const std::string& nome_programma, bool errore_se_manca);
  void termina_programma();
  // Runs one list builder's search and adds an entry for each name found.
  template <class Voce>
  void aggiungi_trovati(const std::string& schema, size_t taglio, Voce&& voce);
  std::string cartella_gioco() const;
};

}  // namespace schedine
