#pragma once
// The platform services as the forms see them in the desktop program, with
// the two print commands the windows add to a form's own: "Anteprima", which
// runs the form's print rule into a recorder in place of the printer, and
// "Interrompi", which stops a run at the end of the slip in course. All else
// goes to the platform underneath unchanged, so that when neither command is
// used the forms meet exactly the platform they would meet without this.

#include <string>

#include "core/piattaforma.h"
#include "printing/dispositivo_interrompibile.h"
#include "printing/schedina_in_stampa.h"

namespace schedine {

struct stato;

class regia_stampa : public servizi_piattaforma {
 public:
  // The platform must outlive this object.
  explicit regia_stampa(servizi_piattaforma& base);

  // After a stop only the rule's own bookkeeping is left to run: it runs
  // through without pausing for events.
  void esegui_eventi_in_attesa() override;
  int messaggio(const std::string& testo, int stile, const std::string& titolo) override;
  void avvia_programma(const std::string& percorso) override;
  void carica_skin(const std::string& percorso) override;
  // The device of the print rules: the printer, or the recorder of a preview.
  dispositivo_stampa& stampante() override { return interruttore_; }

  // The printer itself, for the pages printed from a preview.
  dispositivo_stampa& stampante_reale() { return base_.stampante(); }

  // While set, print rules draw on this device instead of the printer.
  void devia(dispositivo_stampa* dispositivo) { deviato_ = dispositivo; }
  dispositivo_stampa* deviato() const { return deviato_; }
  bool in_anteprima() const { return deviato_ != nullptr; }

  // "Interrompi": the run ends its job after the slip in course.
  void interrompi() { interruttore_.interrompi(); }
  // At the end of each of the user's events: a run that was stopped is told
  // to the user with the slips that went out, and the next run starts afresh.
  void fine_evento();

  // The program state, from which the slip of a print is known.
  void imposta_stato(const stato* s) { stato_ = s; }
  // The slip a form prints on.
  schedina schedina_del_modulo(const std::string& nome_modulo) const;

 private:
  servizi_piattaforma& base_;
  dispositivo_stampa* deviato_ = nullptr;
  dispositivo_interrompibile interruttore_;
  const stato* stato_ = nullptr;
};

// The text that tells of a stopped run.
std::string testo_interruzione(int schede, bool anteprima);

}  // namespace schedine
