#include "systems/stampa_pannelli.h"

#include <string_view>

#include "controls/modulo.h"
#include "core/errore_runtime.h"
#include "printing/scheda_10elotto.h"
#include "printing/scheda_controlli.h"
#include "printing/scheda_enalotto.h"
#include "printing/scheda_wforlife.h"
#include "systems/lettura_comune.h"
#include "systems/lettura_pannelli.h"
#include "systems/nomi_sistema.h"

namespace schedine {

namespace {

using griglia = griglia_numeri;
using colonne = colonne_scheda_famiglia;
using consegna = colonne_al_renderer;

// One driver and the family of its readers (one reader for each kind of system).
struct driver_pannelli {
  famiglia_pannelli famiglia;
  bool cruciverba;       // also prints SuperEnalotto crossword systems
  bool nasconde_frame2;  // hides the progress frame of its slip form after the reader
};

const driver_pannelli driver_enalotto{
    {"leggi_colonne_enalotto", "Form_sched_enalotto", "superenalotto", 6, griglia::pannello_corrente,
     colonne::colonne_per_scheda, true, consegna::segnate, false, scheda_enalotto},
    true, true};

const driver_pannelli driver_enalotto2{
    {"leggi_colonne_enalotto2", "Form_sched_enalotto", "superenalotto", 6, griglia::pannello_corrente,
     colonne::colonne_per_scheda, false, consegna::colonne_per_scheda, false, scheda_enalotto2},
    true, true};

const driver_pannelli driver_10elotto{
    {"leggi_colonne_10elotto", "Form_sched_10elotto", "10elotto", 10, griglia::tar_numeri_10e, colonne::una, false,
     consegna::una, true, scheda_10elotto},
    false, false};

const driver_pannelli driver_wforlife{
    {"leggi_colonne_wforlife", "Form_sched_wforlife", "wforlife", 10, griglia::primo_pannello, colonne::una, false,
     consegna::segnate, false, scheda_wforlife},
    false, false};

const driver_pannelli driver_wforlife5{
    {"leggi_colonne_wforlife5", "Form_sched_wforlife5", "wforlife", 10, griglia::pannello_corrente, colonne::cinque,
     false, consegna::colonne_per_scheda, false, scheda_wforlife5},
    false, false};

constexpr std::string_view cruciverba = "cruciverba";
constexpr std::string_view generi_con_lettore[] = {"condizionato", "autoridotto", "casuale", "ridotto"};

bool ha_lettore(std::string_view tipo_sistema) {
  for (std::string_view tipo : generi_con_lettore) {
    if (tipo == tipo_sistema) return true;
  }
  return false;
}

// The column file of a kind of system in the driver's game. A ridotto
// system is told by the end of sistema_scelto: one file that opens with the
// head, or a head with its columns in a file apart.
file_pannelli file_di(const stato& s, const famiglia_pannelli& famiglia, std::string_view tipo_sistema) {
  genere g = *genere_scelto(tipo_sistema, famiglia.tipo_gioco, s.sistema_scelto);
  suffissi_sistema file = *suffissi(famiglia.tipo_gioco, g);
  return {std::string(file.colonne), file.taglio, file.testata_in_colonne};
}

file_pannelli file_cruciverba() {
  const cruciverba_sistema& c = *cerca_cruciverba(cruciverba);
  return {std::string(c.colonne), c.taglio, false};
}

// Every statement of a driver goes on after a failure: a reader that fails
// ends there, and the driver carries on with hiding the progress frame.
void stampa_pannelli(stato& s, const driver_pannelli& driver, const std::string& tipo_sistema, float prezzo) {
  const famiglia_pannelli& famiglia = driver.famiglia;
  passa_oltre([&] { s.cartella_sistema = *cartella_sorte(s.cartella_programma, famiglia.tipo_gioco); });
  passa_oltre([&] {
    if (ha_lettore(tipo_sistema)) {
      leggi_colonne_pannelli(s, famiglia, file_di(s, famiglia, tipo_sistema), prezzo);
    } else if (driver.cruciverba && tipo_sistema == cruciverba) {
      s.cartella_sistema = *cartella_sorte(s.cartella_programma, cruciverba);
      leggi_colonne_pannelli(s, famiglia, file_cruciverba(), prezzo);
    }
  });
  if (driver.nasconde_frame2) {
    passa_oltre([&] { modulo_di_stampa(s, std::string(famiglia.modulo)).c<cornice>("Frame2").visibile = false; });
  }
}

}  // namespace

void stampa_enalotto(stato& s, const std::string& tipo_sistema, float prezzo_colonna) {
  stampa_pannelli(s, driver_enalotto, tipo_sistema, prezzo_colonna);
}

void stampa_enalotto2(stato& s, const std::string& tipo_sistema, float prezzo_colonna) {
  stampa_pannelli(s, driver_enalotto2, tipo_sistema, prezzo_colonna);
}

void stampa_10elotto(stato& s, const std::string& tipo_sistema, float prezzo_colonna) {
  stampa_pannelli(s, driver_10elotto, tipo_sistema, prezzo_colonna);
}

void stampa_wforlife(stato& s, const std::string& tipo_sistema, float prezzo_colonna) {
  stampa_pannelli(s, driver_wforlife, tipo_sistema, prezzo_colonna);
}

void stampa_wforlife5(stato& s, const std::string& tipo_sistema, float prezzo_colonna) {
  stampa_pannelli(s, driver_wforlife5, tipo_sistema, prezzo_colonna);
}

}  // namespace schedine
