#include "core/file_sistema.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <map>
#include <mutex>
#include <optional>

#include "core/errore_runtime.h"

namespace fs = std::filesystem;

namespace schedine {

namespace {

char minuscola(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

// The names of a folder by their lower-case form, kept while the folder
// stays unchanged: a search for a name in another case then costs a lookup,
// not a walk of the folder, which matters for folders of thousands of systems.
struct voce_cartella {
  std::string nome;
  bool file;  // a plain file, not a folder
};
struct elenco_cartella {
  fs::file_time_type modifica;
  bool letto = false;
  // By lower-case name, so also in case-insensitive name order.
  std::multimap<std::string, voce_cartella> per_minuscolo;
};

std::string in_minuscolo(std::string testo) {
  for (char& c : testo) c = minuscola(c);
  return testo;
}

const elenco_cartella* elenco_di(const fs::path& cartella) {
  static std::mutex guardia;
  static std::map<std::string, elenco_cartella> cache;
  std::error_code ec;
  auto modifica = fs::last_write_time(cartella, ec);
  if (ec) return nullptr;
  std::lock_guard<std::mutex> blocco(guardia);
  auto& voce = cache[cartella.string()];
  // A folder's time may not move for changes a few milliseconds apart, so a
  // folder changed in the last seconds is read again every time.
  bool recente = fs::file_time_type::clock::now() - modifica < std::chrono::seconds(2);
  if (!voce.letto || voce.modifica != modifica || recente) {
    voce.modifica = modifica;
    voce.letto = true;
    voce.per_minuscolo.clear();
    for (fs::directory_iterator it(cartella, ec), fine; !ec && it != fine; it.increment(ec)) {
      std::error_code ec_tipo;
      std::string nome = it->path().filename().string();
      voce.per_minuscolo.emplace(in_minuscolo(nome), voce_cartella{nome, it->is_regular_file(ec_tipo)});
    }
  }
  return &voce;
}

// The entry of a folder whose name equals the given one without regard to case.
std::optional<fs::path> trova_in_cartella(const fs::path& cartella, const std::string& nome) {
  const elenco_cartella* elenco = elenco_di(cartella);
  if (elenco == nullptr) return std::nullopt;
  auto trovato = elenco->per_minuscolo.find(in_minuscolo(nome));
  if (trovato == elenco->per_minuscolo.end()) return std::nullopt;
  return cartella / trovato->second.nome;
}

}  // namespace

std::string nel_programma(const std::string& cartella, std::string_view nome) {
  std::string percorso = cartella;
  if (percorso.empty() || percorso.back() != '/') percorso += '/';
  percorso += nome;
  return percorso;
}

std::string cartella_skin(const std::string& cartella) {
  std::string percorso = cartella;
  if (percorso.empty() || percorso.back() != '/') percorso += '/';
  return percorso + "skin/";
}

std::string risolvi_percorso(const std::string& percorso) {
  std::error_code ec;
  if (percorso.empty() || fs::exists(percorso, ec)) return percorso;
  // Walk the path from the first part that isn't there, matching each part
  // without regard to case, as the system's own platform does.
  fs::path richiesto(percorso);
  fs::path trovato;
  for (const auto& parte : richiesto) {
    fs::path candidato = trovato / parte;
    if (fs::exists(candidato, ec)) {
      trovato = candidato;
      continue;
    }
    auto corrispondente = trovato.empty() ? std::nullopt : trova_in_cartella(trovato, parte.string());
    if (!corrispondente) return percorso;
    trovato = *corrispondente;
  }
  return trovato.string();
}

bool esiste_file(const std::string& percorso) {
  std::error_code ec;
  return fs::is_regular_file(risolvi_percorso(percorso), ec);
}

void elimina_file(const std::string& percorso) {
  std::string reale = risolvi_percorso(percorso);
  std::error_code ec;
  if (!fs::is_regular_file(reale, ec)) throw errore_runtime(codice::file_non_trovato, percorso);
  if (!fs::remove(reale, ec)) throw errore_runtime(codice::autorizzazione_negata, percorso);
}

void crea_vuoto(const std::string& percorso) {
  std::string reale = risolvi_percorso(percorso);
  std::FILE* file = std::fopen(reale.c_str(), "wb");
  if (file == nullptr) {
    throw errore_runtime(errno == ENOENT ? codice::percorso_non_trovato : codice::autorizzazione_negata, percorso);
  }
  std::fclose(file);
}

bool corrisponde_schema(std::string_view nome, std::string_view schema) {
  // Iterative wildcard match with backtracking to the last "*".
  size_t n = 0, s = 0, stella = std::string_view::npos, ripresa = 0;
  while (n < nome.size()) {
    if (s < schema.size() && (schema[s] == '?' || minuscola(schema[s]) == minuscola(nome[n]))) {
      ++n;
      ++s;
    } else if (s < schema.size() && schema[s] == '*') {
      stella = s++;
      ripresa = n;
    } else if (stella != std::string_view::npos) {
      s = stella + 1;
      n = ++ripresa;
    } else {
      return false;
    }
  }
  while (s < schema.size() && schema[s] == '*') ++s;
  return s == schema.size();
}

std::vector<std::string> cerca_file(const std::string& percorso_con_schema) {
  fs::path percorso(percorso_con_schema);
  std::string schema = percorso.filename().string();
  fs::path cartella = risolvi_percorso(percorso.parent_path().string());
  std::vector<std::string> nomi;
  const elenco_cartella* elenco = elenco_di(cartella);
  if (elenco == nullptr) return nomi;
  for (const auto& [minuscolo, voce] : elenco->per_minuscolo) {
    if (voce.file && corrisponde_schema(voce.nome, schema)) nomi.push_back(voce.nome);
  }
  return nomi;  // the index is in case-insensitive name order already
}

}  // namespace schedine
