#pragma once
// Delimited record files: the text form of the small files and of the saved
// systems. A write puts strings in double quotes, numbers as digits, Booleans
// as #TRUE# or #FALSE#, commas between the fields of one write, CR LF at its
// end. A read takes fields in order, regardless of line ends: a field ends at
// a comma or at a line end, leading blanks are skipped, a quoted string is
// taken as it stands. The reader streams the file: it never holds more than
// a small buffer of it.

#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace schedine {

class lettore_record {
 public:
  // Opens the file for input; a missing file is the run-time error
  // "Impossibile trovare il file" naming it.
  explicit lettore_record(const std::string& percorso);
  ~lettore_record();
  lettore_record(const lettore_record&) = delete;
  lettore_record& operator=(const lettore_record&) = delete;

  // True when nothing is left to read.
  bool fine_file();

  // One field as text: the content of a quoted string, or the bare text
  // between the separators without surrounding blanks. Past the last field:
  // the run-time error "Input oltre la fine del file".
  std::string leggi_campo();
  std::string leggi_stringa() { return leggi_campo(); }
  // One field as a number; a text that is no number is "Tipo non
  // corrispondente", a number that doesn't fit is "Overflow". An empty field reads 0.
  double leggi_double();
  float leggi_single();
  int32_t leggi_long();
  int16_t leggi_integer();
  uint8_t leggi_byte();
  bool leggi_booleano();
  // Takes one field of any form and drops it.
  void salta_campo() { leggi_campo(); }
  // The rest of the current line as raw text, without its line end.
  std::string leggi_riga();
  // The same line dropped, never held: a line may be as long as the file.
  // Tells how many of its characters are `da_contare` (none for the default:
  // a line holds no line end). Past the last field it is "Input oltre la
  // fine del file", as leggi_riga.
  uint64_t salta_riga(char da_contare = '\n');

  const std::string& percorso() const { return percorso_; }

 private:
  int prossimo();    // next byte or EOF, consumed
  int guarda();      // next byte or EOF, not consumed
  void salta_fine_campo();
  template <class Ferma, class Prendi>
  void scorri(Ferma ferma, Prendi prendi);
  [[noreturn]] void errore(int numero) const;
  std::string leggi_campo_grezzo(bool& tra_virgolette);

  std::string percorso_;
  std::FILE* file_ = nullptr;
  std::unique_ptr<char[]> buffer_;
  size_t inizio_ = 0;
  size_t fine_ = 0;
  bool finito_ = false;  // the end of the file was met
};

// One field of a write: a string, a whole number, a decimal number or a Boolean.
using campo_record = std::variant<std::string, int64_t, double, bool>;

class scrittore_record {
 public:
  // Opens the file for output. The text goes to a temporary file of its own
  // beside it, which chiudi() renames over the file: a write that fails
  // halfway leaves the old file whole. A failure names the file written.
  explicit scrittore_record(std::string percorso);
  ~scrittore_record();  // without chiudi(), the temporary file is dropped
  scrittore_record(const scrittore_record&) = delete;
  scrittore_record& operator=(const scrittore_record&) = delete;

  // One write of fields, comma-separated, ended by CR LF.
  void scrivi(std::initializer_list<campo_record> campi);
  // One line of text as it stands, ended by CR LF.
  void stampa_riga(std::string_view testo);
  // Finishes the file. A failure (disk full, no permission) is a run-time
  // error naming the file, and the old file stays as it was.
  void chiudi();

 private:
  void scrivi_testo(std::string_view testo);
  [[noreturn]] void fallisci(int numero);

  std::string percorso_;
  std::string temporaneo_;
  std::FILE* file_ = nullptr;
};

}  // namespace schedine
