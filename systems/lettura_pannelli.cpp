#include "systems/lettura_pannelli.h"

#include "core/stato.h"
#include "printing/dispositivo_stampa.h"
#include "printing/lavoro_stampa.h"
#include "printing/scheda_10elotto.h"
#include "printing/segna.h"
#include "systems/lettura_comune.h"
#include "systems/nomi_sistema.h"

namespace schedine {

namespace {

constexpr int massimo_numeri = 10;
constexpr int colonne_cinque_pannelli = 5;

class lettura {
 public:
  lettura(stato& s, const famiglia_pannelli& famiglia, float prezzo_colonna)
      : s_(s), f_(famiglia), prezzo_(prezzo_colonna), dispositivo_(stampante(s)) {}

  void esegui(const file_pannelli& dati) {
    prepara_lavoro(dispositivo_);
    nome_ = nome_base(s_.sistema_scelto, dati.taglio);
    file_.apri(percorso_colonne(s_, nome_, dati.finale), dati.testata);
    int32_t conta_schede = 0;
    while (!file_.fine_file()) {
      ++conta_schede;
      const int32_t lette_prima = colonne_lette_;
      if (conta_schede < s_.dalla_scheda) {
        salta_scheda();
      } else if (!stampa_scheda()) {
        return;
      }
      if (conta_schede == s_.alla_scheda) break;
      // A slip that took no column from the file, in a run whose stop test
      // can no longer be met (alla_scheda 0 or less), would repeat for ever.
      if (colonne_lette_ == lette_prima && conta_schede > s_.alla_scheda) break;
    }
    file_.chiudi();
    termina_lavoro_senza_grassetto(dispositivo_);
  }

 private:
  int colonne_su_scheda() const {
    switch (f_.colonne) {
      case colonne_scheda_famiglia::colonne_per_scheda: return s_.colonne_per_scheda;
      case colonne_scheda_famiglia::una: return 1;
      case colonne_scheda_famiglia::cinque: return colonne_cinque_pannelli;
    }
    return 0;
  }

  void leggi_colonna() {
    file_.leggi_colonna(colonna_, f_.numeri);
    ++colonne_lette_;
  }

  void salta_scheda() {
    for (int i = 1; i <= colonne_su_scheda(); ++i) leggi_colonna();
  }

  // The last panel stays empty when it would leave one column alone for the next slip.
  bool lascia_vuoto(int pannello) const {
    return f_.regola_due_colonne && s_.colonne_sistema - colonne_lette_ == 2 && pannello == s_.colonne_per_scheda;
  }

  // Marks and finishes one slip; false when the file ended inside it and the job is closed.
  bool stampa_scheda() {
    dispositivo_.disegna_punto_zero();
    int pannello = 1;
    for (; pannello <= colonne_su_scheda(); ++pannello) {
      if (lascia_vuoto(pannello)) break;
      if (file_.fine_file()) {
        chiudi_parziale(pannello - 1);
        return false;
      }
      leggi_colonna();
      segna_colonna(pannello);
    }
    if (f_.extra_10elotto) segna_10elotto_extra(s_);
    f_.renderer(s_, nome_, prezzo_, colonne_consegnate(pannello - 1));
    chiudi_scheda(s_, f_.modulo, istruzioni(su_errore::ferma));
    return true;
  }

  void segna_colonna(int pannello) {
    for (int j = 0; j < f_.numeri; ++j) {
      const int numero = colonna_(j);
      if (f_.griglia == griglia_numeri::tar_numeri_10e) {
        segna(s_, s_.tar_numeri_10e(numero, asse_x), s_.tar_numeri_10e(numero, asse_y));
      } else {
        const int gruppo = f_.griglia == griglia_numeri::pannello_corrente ? pannello : 1;
        segna(s_, s_.tab_coord(gruppo, numero, asse_x), s_.tab_coord(gruppo, numero, asse_y));
      }
    }
  }

  uint8_t colonne_consegnate(int segnate) const {
    switch (f_.consegna) {
      case colonne_al_renderer::segnate: return static_cast<uint8_t>(segnate);
      case colonne_al_renderer::colonne_per_scheda: return s_.colonne_per_scheda;
      case colonne_al_renderer::una: return 1;
    }
    return 0;
  }

  // The file ended inside a printed slip: the slip goes out with the panels
  // filled so far and the job ends on its page, with no further step.
  void chiudi_parziale(int segnate) {
    file_.chiudi();
    f_.renderer(s_, nome_, prezzo_, static_cast<uint8_t>(segnate));
    dispositivo_.chiudi_stampa();
  }

  stato& s_;
  const famiglia_pannelli& f_;
  const float prezzo_;
  dispositivo_stampa& dispositivo_;
  std::string nome_;
  file_colonne file_;
  vettore<uint8_t, massimo_numeri> colonna_;
  int32_t colonne_lette_ = 0;
};

}  // namespace

void leggi_colonne_pannelli(stato& s, const famiglia_pannelli& famiglia, const file_pannelli& file,
                            float prezzo_colonna) {
  lettura(s, famiglia, prezzo_colonna).esegui(file);
}

}  // namespace schedine
