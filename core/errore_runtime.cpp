#include "core/errore_runtime.h"

namespace schedine {

const char* testo_errore(int numero) {
  switch (numero) {
    case codice::chiamata_non_valida: return "Chiamata di routine o argomento non validi";
    case codice::overflow: return "Overflow";
    case codice::divisione_per_zero: return "Divisione per zero";
    case codice::indice_fuori_intervallo: return "Indice non compreso nell'intervallo";
    case codice::tipo_non_corrispondente: return "Tipo non corrispondente";
    case codice::nome_file_non_valido: return "Nome o numero di file non valido";
    case codice::file_non_trovato: return "Impossibile trovare il file";
    case codice::errore_io: return "Errore di I/O sulla periferica";
    case codice::disco_pieno: return "Disco pieno";
    case codice::input_oltre_fine: return "Input oltre la fine del file";
    case codice::autorizzazione_negata: return "Autorizzazione negata";
    case codice::errore_accesso: return "Errore di accesso al percorso/file";
    case codice::percorso_non_trovato: return "Impossibile trovare il percorso";
    case codice::oggetto_non_impostato: return "Variabile oggetto o variabile del blocco With non impostata";
    case codice::elemento_inesistente: return "L'elemento della matrice di controlli non esiste";
    case codice::errore_stampante: return "Errore di stampa";
    default: return "Errore definito dall'applicazione o dall'oggetto";
  }
}

static std::string componi(int numero, const std::string& dettaglio) {
  std::string testo = "Errore di run-time '" + std::to_string(numero) + "': " + testo_errore(numero);
  if (!dettaglio.empty()) testo += ": " + dettaglio;
  return testo;
}

errore_runtime::errore_runtime(int numero, std::string dettaglio)
    : std::runtime_error(componi(numero, dettaglio)), numero_(numero), dettaglio_(std::move(dettaglio)) {}

}  // namespace schedine
