#include "core/errore_runtime.h"

#include <cerrno>
#include <filesystem>
#include <new>
#include <system_error>

namespace schedine {

const char* testo_errore(int numero) {
  switch (numero) {
    case codice::chiamata_non_valida: return "Chiamata di routine o argomento non validi";
    case codice::overflow: return "Overflow";
    case codice::memoria_esaurita: return "Memoria esaurita";
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

int codice_da_errno(int numero_errno) {
  switch (numero_errno) {
    case ENOENT: return codice::percorso_non_trovato;
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return codice::disco_pieno;  // no room for the file to grow, whatever the limit
    case EACCES:
    case EPERM:
    case EROFS: return codice::autorizzazione_negata;
    case EISDIR:
    case ENOTDIR:  // a file stands where a folder is needed
    case EEXIST: return codice::errore_accesso;
    default: return codice::errore_io;
  }
}

std::string rapporto_guasto(const std::exception& e) {
  if (const auto* runtime = dynamic_cast<const errore_runtime*>(&e)) return runtime->rapporto();
  if (const auto* file = dynamic_cast<const std::filesystem::filesystem_error*>(&e)) {
    return errore_runtime(codice_da_errno(file->code().value()), file->path1().string()).rapporto();
  }
  if (const auto* sistema = dynamic_cast<const std::system_error*>(&e)) {
    return errore_runtime(codice_da_errno(sistema->code().value())).rapporto();
  }
  if (dynamic_cast<const std::bad_alloc*>(&e) != nullptr) return errore_runtime(codice::memoria_esaurita).rapporto();
  return "Errore interno del programma.";
}

}  // namespace schedine
