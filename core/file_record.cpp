#include "core/file_record.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <filesystem>

#include "core/errore_runtime.h"
#include "core/file_sistema.h"
#include "core/numeri.h"

namespace schedine {

namespace {

// Large enough that a system file of many megabytes takes few reads, small
// enough that opening one of the many small files costs nothing to speak of.
constexpr size_t dimensione_buffer = 16 * 1024;
constexpr int fine = -1;

bool e_blank(int c) { return c == ' ' || c == '\t'; }
bool e_fine_riga(int c) { return c == '\r' || c == '\n'; }

// What scorri hands over, dropped.
void nessuno(const char*, const char*) {}

// What scorri hands over, appended to a text.
auto aggiungi_a(std::string& testo) {
  return [&testo](const char* da, const char* a) { testo.append(da, a); };
}

}  // namespace

// ---------------------------------------------------------------- reading

lettore_record::lettore_record(const std::string& percorso) : percorso_(risolvi_percorso(percorso)) {
  std::error_code ec;
  if (!std::filesystem::is_regular_file(percorso_, ec)) throw errore_runtime(codice::file_non_trovato, percorso);
  file_ = std::fopen(percorso_.c_str(), "rb");
  if (file_ == nullptr) throw errore_runtime(codice_da_errno(errno), percorso);
  buffer_ = std::make_unique_for_overwrite<char[]>(dimensione_buffer);
}

lettore_record::~lettore_record() {
  if (file_ != nullptr) std::fclose(file_);
}

int lettore_record::guarda() {
  if (inizio_ == fine_) {
    // Once the end is met it stays met: no read of the file is asked again.
    if (finito_) return fine;
    inizio_ = 0;
    fine_ = std::fread(buffer_.get(), 1, dimensione_buffer, file_);
    if (fine_ == 0) {
      if (std::ferror(file_)) errore(codice::errore_io);
      finito_ = true;
      return fine;
    }
  }
  return static_cast<unsigned char>(buffer_[inizio_]);
}

int lettore_record::prossimo() {
  int c = guarda();
  if (c != fine) ++inizio_;
  return c;
}

bool lettore_record::fine_file() { return guarda() == fine; }

void lettore_record::errore(int numero) const { throw errore_runtime(numero, percorso_); }

// Takes the bytes from the next one up to the first for which ferma(byte)
// holds, which stays unread, or to the end of the file, handing them over a
// block of the buffer at a time to prendi(da, a): a field or a line may be
// as long as the file, and a byte at a time would cost a call and a test of
// the buffer for each.
template <class Ferma, class Prendi>
void lettore_record::scorri(Ferma ferma, Prendi prendi) {
  while (guarda() != fine) {
    const char* da = buffer_.get() + inizio_;
    const char* a = buffer_.get() + fine_;
    const char* p = da;
    while (p != a && !ferma(static_cast<unsigned char>(*p))) ++p;
    inizio_ += static_cast<size_t>(p - da);
    prendi(da, p);
    if (p != a) return;
  }
}

// Consumes what ends a field: a comma, or a line end (CR LF, CR or LF).
void lettore_record::salta_fine_campo() {
  int c = prossimo();
  if (c == '\r' && guarda() == '\n') prossimo();
}

std::string lettore_record::leggi_campo_grezzo(bool& tra_virgolette) {
  scorri([](int c) { return !e_blank(c); }, nessuno);
  if (guarda() == fine) errore(codice::input_oltre_fine);
  std::string testo;
  tra_virgolette = guarda() == '"';
  if (tra_virgolette) {
    prossimo();
    scorri([](int c) { return c == '"'; }, aggiungi_a(testo));
    prossimo();
    // Whatever stands between the closing quote and the separator is dropped.
    scorri([](int c) { return c == ',' || e_fine_riga(c); }, nessuno);
    salta_fine_campo();
    return testo;
  }
  scorri([](int c) { return c == ',' || e_fine_riga(c); }, aggiungi_a(testo));
  salta_fine_campo();
  while (!testo.empty() && e_blank(static_cast<unsigned char>(testo.back()))) testo.pop_back();
  return testo;
}

std::string lettore_record::leggi_campo() {
  bool tra_virgolette = false;
  return leggi_campo_grezzo(tra_virgolette);
}

double lettore_record::leggi_double() {
  bool tra_virgolette = false;
  std::string testo = leggi_campo_grezzo(tra_virgolette);
  if (testo.empty() && !tra_virgolette) return 0.0;
  if (testo == "#TRUE#") return -1.0;
  if (testo == "#FALSE#") return 0.0;
  double valore = 0.0;
  if (!leggi_decimale(testo, valore)) errore(codice::tipo_non_corrispondente);
  if (std::isinf(valore)) errore(codice::overflow);
  return valore;
}

float lettore_record::leggi_single() {
  bool tra_virgolette = false;
  std::string testo = leggi_campo_grezzo(tra_virgolette);
  if (testo.empty() && !tra_virgolette) return 0.0f;
  if (testo == "#TRUE#") return -1.0f;
  if (testo == "#FALSE#") return 0.0f;
  // A number too small for a Single reads as 0, one too large is Overflow.
  float valore = 0.0f;
  if (!leggi_decimale(testo, valore)) errore(codice::tipo_non_corrispondente);
  if (std::isinf(valore)) errore(codice::overflow);
  return valore;
}

int32_t lettore_record::leggi_long() {
  double valore = leggi_double();
  try {
    return a_long(valore);
  } catch (const errore_runtime& e) {
    errore(e.numero());
  }
}

int16_t lettore_record::leggi_integer() {
  double valore = leggi_double();
  try {
    return a_integer(valore);
  } catch (const errore_runtime& e) {
    errore(e.numero());
  }
}

uint8_t lettore_record::leggi_byte() {
  double valore = leggi_double();
  try {
    return a_byte(valore);
  } catch (const errore_runtime& e) {
    errore(e.numero());
  }
}

bool lettore_record::leggi_booleano() {
  bool tra_virgolette = false;
  std::string testo = leggi_campo_grezzo(tra_virgolette);
  if (testo == "#TRUE#" || testo == "True" || testo == "TRUE" || testo == "true") return true;
  if (testo == "#FALSE#" || testo == "False" || testo == "FALSE" || testo == "false" || testo.empty()) return false;
  double valore = 0.0;
  if (!leggi_decimale(testo, valore)) errore(codice::tipo_non_corrispondente);
  if (std::isinf(valore)) errore(codice::overflow);
  return valore != 0.0;
}

std::string lettore_record::leggi_riga() {
  if (guarda() == fine) errore(codice::input_oltre_fine);
  std::string riga;
  scorri(e_fine_riga, aggiungi_a(riga));
  if (guarda() != fine) salta_fine_campo();
  return riga;
}

uint64_t lettore_record::salta_riga(char da_contare) {
  if (guarda() == fine) errore(codice::input_oltre_fine);
  uint64_t conta = 0;
  scorri(e_fine_riga, [&](const char* da, const char* a) {
    conta += static_cast<uint64_t>(std::count(da, a, da_contare));
  });
  if (guarda() != fine) salta_fine_campo();
  return conta;
}

// ---------------------------------------------------------------- writing

namespace {

// Opens a new temporary file beside percorso, named NAME.PID-N.tmp~, that no
// other write uses: a leftover of a write that was killed, or anything else
// standing under a name, never blocks a save, as the next name is taken.
// Returns the descriptor (and the name), or -1 with errno set.
int crea_temporaneo(const std::string& percorso, std::string& nome) {
  static std::atomic<unsigned> contatore{0};
  constexpr int tentativi = 1000;
  const std::string prefisso = percorso + "." + std::to_string(::getpid()) + "-";
  for (int i = 0; i < tentativi; ++i) {
    nome = prefisso + std::to_string(contatore++) + ".tmp~";
    const int descrittore = ::open(nome.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descrittore >= 0 || errno != EEXIST) return descrittore;
  }
  return -1;
}

}  // namespace

scrittore_record::scrittore_record(std::string percorso) : percorso_(risolvi_percorso(percorso)) {
  const int descrittore = crea_temporaneo(percorso_, temporaneo_);
  if (descrittore >= 0) file_ = ::fdopen(descrittore, "wb");
  if (file_ == nullptr) {
    const int numero = codice_da_errno(errno);
    if (descrittore >= 0) {
      ::close(descrittore);
      std::remove(temporaneo_.c_str());
    }
    throw errore_runtime(numero, percorso_);
  }
}

scrittore_record::~scrittore_record() {
  if (file_ != nullptr) {
    std::fclose(file_);
    std::remove(temporaneo_.c_str());
  }
}

void scrittore_record::fallisci(int numero) {
  if (file_ != nullptr) {
    std::fclose(file_);
    file_ = nullptr;
  }
  std::remove(temporaneo_.c_str());
  throw errore_runtime(numero, percorso_);
}

void scrittore_record::scrivi_testo(std::string_view testo) {
  if (file_ == nullptr) throw errore_runtime(codice::nome_file_non_valido, percorso_);
  if (std::fwrite(testo.data(), 1, testo.size(), file_) != testo.size()) fallisci(codice_da_errno(errno));
}

namespace {
std::string testo_campo(const campo_record& campo) {
  if (const auto* stringa = std::get_if<std::string>(&campo)) return "\"" + *stringa + "\"";
  if (const auto* intero = std::get_if<int64_t>(&campo)) return std::to_string(*intero);
  if (const auto* booleano = std::get_if<bool>(&campo)) return *booleano ? "#TRUE#" : "#FALSE#";
  char buffer[64];
  auto risultato = std::to_chars(buffer, buffer + sizeof buffer, std::get<double>(campo));
  return std::string(buffer, risultato.ptr);
}
}  // namespace

void scrittore_record::scrivi(std::initializer_list<campo_record> campi) {
  std::string riga;
  for (const auto& campo : campi) {
    if (!riga.empty()) riga += ',';
    riga += testo_campo(campo);
  }
  stampa_riga(riga);
}

void scrittore_record::stampa_riga(std::string_view testo) {
  scrivi_testo(testo);
  scrivi_testo("\r\n");
}

void scrittore_record::chiudi() {
  if (file_ == nullptr) return;
  if (std::fflush(file_) != 0 || ::fsync(::fileno(file_)) != 0) fallisci(codice_da_errno(errno));
  std::FILE* file = file_;
  file_ = nullptr;
  if (std::fclose(file) != 0) {
    int numero = codice_da_errno(errno);
    std::remove(temporaneo_.c_str());
    throw errore_runtime(numero, percorso_);
  }
  if (std::rename(temporaneo_.c_str(), percorso_.c_str()) != 0) {
    int numero = codice_da_errno(errno);
    std::remove(temporaneo_.c_str());
    throw errore_runtime(numero, percorso_);
  }
}

}  // namespace schedine
