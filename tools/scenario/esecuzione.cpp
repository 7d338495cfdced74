#include "tools/scenario/esecuzione.h"

#include <optional>

#include "core/errore_runtime.h"
#include "forms/programma/programma.h"
#include "printing/dispositivo_doppio.h"
#include "printing/dispositivo_giornale.h"
#include "printing/giornale.h"
#include "tools/scenario/analisi_scenario.h"
#include "tools/scenario/esecutore.h"
#include "tools/scenario/esito.h"
#include "tools/scenario/piattaforma_giornale.h"

namespace schedine::scenario {

namespace {

risultato esegui_azioni(esecutore& e, const std::vector<azione>& azioni, giornale& g) {
  try {
    e.controlla(azioni);
  } catch (const errore_scenario& x) {
    return {esito::non_valido, x.riga(), x.what()};
  }
  for (const azione& a : azioni) {
    try {
      e.esegui(a);
    } catch (const errore_scenario& x) {
      return {esito::non_valido, a.riga, x.what()};
    } catch (const verifica_fallita& x) {
      return {esito::verifica_fallita, a.riga, x.what()};
    } catch (const errore_runtime& x) {
      // An error that reaches the event loop ends the program with its report.
      g.errore(x.rapporto());
      return {esito::errore_programma, a.riga, x.rapporto()};
    } catch (const std::exception& x) {
      return {esito::guasto_interno, a.riga, std::string("internal fault: ") + x.what()};
    }
  }
  return {};
}

}  // namespace

risultato esegui_scenario(const std::vector<azione>& azioni, const std::string& cartella, const formato_locale& locale,
                          giornale& g, dispositivo_stampa* altro_dispositivo, const al_programma& al_via) {
  dispositivo_giornale su_giornale(g);
  std::optional<dispositivo_doppio> doppio;
  if (altro_dispositivo != nullptr) doppio.emplace(su_giornale, *altro_dispositivo);
  dispositivo_stampa& stampante = doppio ? static_cast<dispositivo_stampa&>(*doppio) : su_giornale;

  piattaforma_giornale piattaforma(g, stampante);
  programma p(cartella, piattaforma, locale);
  if (al_via) al_via(p.s);
  esecutore e(p, g);
  risultato r = esegui_azioni(e, azioni, g);
  g.svuota();
  return r;
}

risultato esegui_testo_scenario(std::string_view testo, const std::string& cartella, const formato_locale& locale,
                                giornale& g, dispositivo_stampa* altro_dispositivo, const al_programma& al_via) {
  std::vector<azione> azioni;
  try {
    azioni = analizza_scenario(testo);
  } catch (const errore_scenario& x) {
    return {esito::non_valido, x.riga(), x.what()};
  }
  return esegui_scenario(azioni, cartella, locale, g, altro_dispositivo, al_via);
}

}  // namespace schedine::scenario
