#include "systems/lettura_lotto.h"

#include <algorithm>

#include "core/stato.h"
#include "printing/dispositivo_stampa.h"
#include "printing/lavoro_stampa.h"
#include "printing/scheda_lotto.h"
#include "printing/segna.h"
#include "systems/nomi_sistema.h"

namespace schedine {

namespace {

constexpr su_errore ferma = su_errore::ferma;
constexpr su_errore oltre = su_errore::passa_oltre;

// The family. Two members pass over their failures: they have always run so,
// and a conditioned cinquina or sestine-decine system with a bad line prints
// that slip with the column before it.
constexpr lettore_lotto lettori[] = {
    {"ambo", "casuale", ferma},         {"ambo", "condizionato", ferma},
    {"terno", "casuale", ferma},        {"terno", "condizionato", ferma},
    {"terno", "ridotto", ferma},        {"terno", "autoridotto", ferma},
    {"quaterna", "casuale", ferma},     {"quaterna", "condizionato", ferma},
    {"quaterna", "ridotto", ferma},     {"quaterna", "autoridotto", ferma},
    {"cinquina", "casuale", ferma},     {"cinquina", "condizionato", oltre},
    {"cinquina", "ridotto", ferma},     {"cinquina", "autoridotto", ferma},
    {"sestine-decine", "condizionato", oltre},
    // Crossword systems: the size of the slip's bet picks the reader, the kind plays no part.
    {"terno_c", "", ferma},             {"quaterna_c", "", ferma},
    {"cinquina_c", "", oltre},
};

constexpr std::string_view sestine = "sestine-decine";
constexpr int massimo_numeri = 10;
using colonna_lotto = vettore<uint8_t, massimo_numeri>;

// The walk of one run, shared by every member.
class lettura {
 public:
  lettura(stato& s, const lettore_lotto& lettore)
      : s_(s), dati_(file_di(lettore)), esegui_(lettore.errore), dispositivo_(stampante(s)) {}

  void esegui() {
    esegui_([&] { prepara_lavoro(dispositivo_); });
    esegui_([&] { nome_ = nome_base(s_.sistema_scelto, dati_.taglio); });
    std::string percorso = percorso_colonne(s_, nome_, dati_.finale);
    numeri_ = dati_.numeri;
    if (numeri_ == 0) conta_numeri(percorso);
    esegui_([&] { file_.apri(percorso, dati_.testata); });
    int32_t conta_schede = 0;
    while (!colonne_finite(file_, esegui_)) {
      ++conta_schede;
      leggi_riga();
      if (conta_schede >= s_.dalla_scheda) stampa_scheda();
      if (conta_schede == s_.alla_scheda) break;
    }
    file_.chiudi();
  }

 private:
  // A sestine-decine file tells its column size by the commas of its first line.
  void conta_numeri(const std::string& percorso) {
    numeri_ = 1;
    esegui_([&] { numeri_ = numeri_prima_riga(percorso); });
    legge_numeri_ = numeri_ >= sestine_minimo && numeri_ <= sestine_massimo;
  }

  // All the numbers of a line are read, also for a line that is not printed:
  // that is how a line is skipped.
  void leggi_riga() {
    if (legge_numeri_) {
      esegui_([&] { file_.leggi_colonna(colonna_, numeri_); });
    } else {
      esegui_([&] { file_.salta_riga(); });
    }
  }

  // The numbers in the order of the file, neither sorted nor tested for doubles.
  void stampa_scheda() {
    esegui_([&] { dispositivo_.disegna_punto_zero(); });
    // A mark is asked for each of the numeri_ numbers of a column, but the
    // column holds massimo_numeri: a mark past them fails on its index before
    // anything is drawn. The first such mark is run and fails as it always
    // has (stopping the run, or passed over); the others would only fail the
    // same way with nothing done, once per number the first line of a
    // sestine-decine file claims, so they are not run.
    const int segnabili = std::min(numeri_, colonna_lotto::dimensione);
    for (int j = 0; j < segnabili; ++j) {
      esegui_([&] { segna(s_, s_.tar_numeri(colonna_(j), asse_x), s_.tar_numeri(colonna_(j), asse_y)); });
    }
    if (numeri_ > segnabili) esegui_([&] { static_cast<void>(colonna_(segnabili)); });
    esegui_([&] { scheda_lotto(s_, nome_); });
    chiudi_scheda(s_, "Form_sched_lotto_ambetto", esegui_);
  }

  stato& s_;
  const file_lotto dati_;
  const istruzioni esegui_;
  dispositivo_stampa& dispositivo_;
  std::string nome_;
  int numeri_ = 0;
  bool legge_numeri_ = true;
  colonna_lotto colonna_;
  file_colonne file_;
};

}  // namespace

const lettore_lotto* cerca_lettore_lotto(std::string_view tipo_gioco, std::string_view tipo_sistema) {
  for (const auto& lettore : lettori) {
    if (lettore.tipo_gioco != tipo_gioco) continue;
    if (lettore.tipo_sistema.empty() || lettore.tipo_sistema == tipo_sistema) return &lettore;
  }
  return nullptr;
}

file_lotto file_di(const lettore_lotto& lettore) {
  if (const cruciverba_sistema* cruciverba = cerca_cruciverba(lettore.tipo_gioco)) {
    return {std::string(cruciverba->colonne), cruciverba->numeri, cruciverba->taglio, false};
  }
  // A Lotto ridotto system is always the one-file form.
  std::optional<genere> g = genere_scelto(lettore.tipo_sistema, lettore.tipo_gioco, "");
  std::optional<suffissi_sistema> file = g ? suffissi(lettore.tipo_gioco, *g) : std::nullopt;
  const sorte_sistema* sorte = cerca_sorte(lettore.tipo_gioco);
  if (!file || sorte == nullptr) throw errore_runtime(codice::chiamata_non_valida, std::string(lettore.tipo_gioco));
  int numeri = lettore.tipo_gioco == sestine ? 0 : sorte->numeri_min;
  return {std::string(file->colonne), numeri, file->taglio, file->testata_in_colonne};
}

void leggi_colonne_lotto(stato& s, const lettore_lotto& lettore) { lettura(s, lettore).esegui(); }

}  // namespace schedine
