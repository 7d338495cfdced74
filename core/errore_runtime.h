#pragma once
// Run-time errors of the program, with the error numbers and texts of the
// platform the system was designed on. A statement that would fail there
// throws errore_runtime; where a routine goes on after a failing statement,
// that statement runs under passa_oltre.

#include <stdexcept>
#include <string>

namespace schedine {

namespace codice {
inline constexpr int chiamata_non_valida = 5;
inline constexpr int overflow = 6;
inline constexpr int memoria_esaurita = 7;
inline constexpr int divisione_per_zero = 11;
inline constexpr int indice_fuori_intervallo = 9;
inline constexpr int tipo_non_corrispondente = 13;
inline constexpr int nome_file_non_valido = 52;
inline constexpr int file_non_trovato = 53;
inline constexpr int errore_io = 57;
inline constexpr int disco_pieno = 61;
inline constexpr int input_oltre_fine = 62;
inline constexpr int autorizzazione_negata = 70;
inline constexpr int errore_accesso = 75;
inline constexpr int percorso_non_trovato = 76;
inline constexpr int oggetto_non_impostato = 91;
inline constexpr int elemento_inesistente = 340;
inline constexpr int errore_stampante = 482;
}  // namespace codice

// The platform's text for an error number ("Overflow", "Impossibile trovare il file", ...).
const char* testo_errore(int numero);

// The platform's error number for a failed operation on a file, from the C
// library's error (errno): a full disk, no permission, a missing folder, ...
int codice_da_errno(int numero_errno);

class errore_runtime : public std::runtime_error {
 public:
  // dettaglio names what failed, such as the file being read; it may be empty.
  explicit errore_runtime(int numero, std::string dettaglio = {});

  int numero() const { return numero_; }
  const std::string& dettaglio() const { return dettaglio_; }
  // The report that ends the program: "Errore di run-time '53': Impossibile trovare il file: <dettaglio>".
  std::string rapporto() const { return what(); }

 private:
  int numero_;
  std::string dettaglio_;
};

// The report of any failure that ends the program, in the program's
// language: a run-time error as it stands, a failure of the system's file
// calls as the run-time error it amounts to (naming the file), anything else
// as an internal fault; never a library's own English text.
std::string rapporto_guasto(const std::exception& e);

// Runs one statement and drops a run-time error it raises, as a routine does
// that goes on with the next statement after a failure. Tells whether it ran through.
template <class Istruzione>
bool passa_oltre(Istruzione&& istruzione) {
  try {
    istruzione();
    return true;
  } catch (const errore_runtime&) {
    return false;
  }
}

}  // namespace schedine
