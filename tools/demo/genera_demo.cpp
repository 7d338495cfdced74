#include "tools/demo/genera_demo.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <numeric>

#include "core/file_record.h"
#include "core/file_sistema.h"

namespace schedine::demo {

namespace {

namespace fs = std::filesystem;

// A small fixed generator: the same demo on every machine.
class caso {
 public:
  explicit caso(uint32_t seme) : stato_(seme) {}
  uint32_t prossimo() {
    stato_ = stato_ * 1664525u + 1013904223u;
    return stato_ >> 8;
  }
  int tra(int minimo, int massimo) { return minimo + static_cast<int>(prossimo() % static_cast<uint32_t>(massimo - minimo + 1)); }

 private:
  uint32_t stato_;
};

struct gioco_demo {
  const char* tipo_gioco;
  int numeri;   // numbers in a column
  int massimo;  // highest number of the game
  int colonne;  // columns of each system
  std::vector<genere> generi;
};

// Every kind the catalogue lists in each game.
const std::vector<gioco_demo>& giochi() {
  using g = genere;
  static const std::vector<gioco_demo> tabella = {
      {"ambo", 2, 90, 6, {g::condizionato, g::casuale}},
      {"terno", 3, 90, 8, {g::condizionato, g::casuale, g::autoridotto, g::ridotto_un_file}},
      {"quaterna", 4, 90, 8, {g::condizionato, g::casuale, g::autoridotto, g::ridotto_un_file}},
      {"cinquina", 5, 90, 7, {g::condizionato, g::casuale, g::autoridotto, g::ridotto_un_file}},
      {"sestine-decine", 8, 90, 6, {g::condizionato}},
      {"superenalotto", 6, 90, 12, {g::condizionato, g::casuale, g::autoridotto, g::ridotto_un_file, g::ridotto_due_file}},
      {"10elotto", 10, 90, 6, {g::condizionato, g::casuale, g::autoridotto, g::ridotto_un_file, g::ridotto_due_file}},
      {"wforlife", 10, 20, 7, {g::condizionato, g::casuale, g::autoridotto}},
  };
  return tabella;
}

// Base names: at most 8 characters, no blank, and never the letters "sy",
// which would list the system twice.
const char* nome_di(genere tipo) {
  switch (tipo) {
    case genere::condizionato: return "fortuna";
    case genere::casuale: return "azzardo";
    case genere::autoridotto: return "autorid";
    case genere::ridotto_un_file: return "riduz";
    case genere::ridotto_due_file: return "ridfam";
  }
  return "demo";
}

std::string in_cartella(const std::string& cartella, const std::string& nome) { return cartella + "/" + nome; }

// The numbers the system is developed on: as many as a column needs and a few more.
std::vector<int> numeri_in_gioco(caso& c, int numeri, int massimo) {
  int quanti = std::min(massimo, numeri + std::max(4, numeri / 2));
  std::vector<int> tutti(static_cast<size_t>(massimo));
  std::iota(tutti.begin(), tutti.end(), 1);
  for (size_t i = tutti.size() - 1; i > 0; --i) std::swap(tutti[i], tutti[c.prossimo() % (i + 1)]);
  tutti.resize(static_cast<size_t>(quanti));
  std::sort(tutti.begin(), tutti.end());
  return tutti;
}

void scrivi_colonne(scrittore_record& file, caso& c, const std::vector<int>& gioco, int numeri, int colonne) {
  for (int k = 0; k < colonne; ++k) {
    std::vector<int> scelta = gioco;
    for (size_t i = scelta.size() - 1; i > 0; --i) std::swap(scelta[i], scelta[c.prossimo() % (i + 1)]);
    scelta.resize(static_cast<size_t>(numeri));
    std::sort(scelta.begin(), scelta.end());
    // One write per column: one line, the numbers separated by commas.
    std::string riga;
    for (size_t i = 0; i < scelta.size(); ++i) {
      if (i > 0) riga += ',';
      riga += std::to_string(scelta[i]);
    }
    file.stampa_riga(riga);
  }
}

std::string suffisso_elenco(famiglia_elenco famiglia, const std::string& tipo_gioco) {
  auto schema = schema_di(famiglia, tipo_gioco);
  return schema ? std::string(schema->schema.substr(1)) : std::string();  // the pattern less its "*"
}

void scrivi_sistema(const std::string& programma, const sistema_demo& s, caso& c) {
  const int64_t colonne = s.colonne;
  std::vector<int> gioco = numeri_in_gioco(c, s.numeri, s.massimo);
  const int64_t in_gioco = static_cast<int64_t>(gioco.size());
  const std::string cartella = programma + "/" + s.tipo_gioco;
  fs::create_directories(cartella);
  auto apri = [&](const std::string& relativo) { return scrittore_record(programma + "/" + relativo); };

  switch (*s.tipo) {
    case genere::casuale: {
      auto testa = apri(s.testata);
      testa.scrivi({in_gioco, colonne});
      testa.chiudi();
      break;
    }
    case genere::condizionato: {
      auto testa = apri(s.testata);
      testa.scrivi({s.nome, in_gioco, colonne});
      testa.chiudi();
      break;
    }
    case genere::autoridotto:
    case genere::ridotto_due_file: {
      auto testa = apri(s.testata);
      testa.scrivi({colonne, in_gioco});
      testa.chiudi();
      break;
    }
    case genere::ridotto_un_file:
      break;  // the head opens the column file below
  }
  auto file = apri(s.file_colonne);
  if (s.testata_in_colonne) file.scrivi({in_gioco, colonne, int64_t{2}});
  scrivi_colonne(file, c, gioco, s.numeri, s.colonne);
  file.chiudi();

  // The list files that make the catalogue show the ridotto systems.
  if (*s.tipo == genere::ridotto_un_file || *s.tipo == genere::ridotto_due_file) {
    auto famiglia = *s.tipo == genere::ridotto_un_file ? famiglia_elenco::ridotto : famiglia_elenco::ridotto_seconda_famiglia;
    scrittore_record elenco(in_cartella(cartella, s.nome + suffisso_elenco(famiglia, s.tipo_gioco)));
    elenco.scrivi({in_gioco, colonne});
    elenco.chiudi();
  }
}

void scrivi_cruciverba(const std::string& programma, const sistema_demo& s, caso& c) {
  const std::string cartella = programma + "/cruciverba";
  fs::create_directories(cartella);
  std::vector<int> gioco = numeri_in_gioco(c, s.numeri, s.massimo);
  scrittore_record testa(programma + "/" + s.testata);
  if (s.cruciverba == sorta_cruciverba::enalotto) {
    testa.scrivi({int64_t{s.colonne}, int64_t{s.numeri}});
  } else {
    // Count, numbers in play, guarantee, title, three settings, column size.
    testa.scrivi({int64_t{s.colonne}, static_cast<int64_t>(gioco.size()), int64_t{1}, std::string("Cruciverba"),
                  int64_t{0}, int64_t{0}, int64_t{0}, int64_t{s.numeri}});
  }
  testa.chiudi();
  scrittore_record file(programma + "/" + s.file_colonne);
  scrivi_colonne(file, c, gioco, s.numeri, s.colonne);
  file.chiudi();
  if (s.cruciverba == sorta_cruciverba::enalotto) {
    // The catalogue keeps a SuperEnalotto crossword only when a file of the
    // doubled name "name.col.col" stands beside it.
    fs::copy_file(programma + "/" + s.file_colonne, programma + "/" + s.file_colonne + ".col",
                  fs::copy_options::overwrite_existing);
  }
}

}  // namespace

std::vector<sistema_demo> sistemi_demo() {
  std::vector<sistema_demo> sistemi;
  for (const gioco_demo& g : giochi()) {
    for (genere tipo : g.generi) {
      auto suffisso = suffissi(g.tipo_gioco, tipo);
      if (!suffisso) continue;
      sistema_demo s;
      s.tipo_gioco = g.tipo_gioco;
      s.tipo = tipo;
      s.nome = nome_di(tipo);
      s.colonne = g.colonne;
      s.numeri = g.numeri;
      s.massimo = g.massimo;
      s.testata = s.tipo_gioco + "/" + s.nome + std::string(suffisso->testata);
      s.file_colonne = s.tipo_gioco + "/" + s.nome + std::string(suffisso->colonne);
      s.testata_in_colonne = suffisso->testata_in_colonne;
      sistemi.push_back(s);
    }
  }
  sistema_demo enalotto;
  enalotto.tipo_gioco = "cruciverba";
  enalotto.cruciverba = sorta_cruciverba::enalotto;
  enalotto.nome = "incrocio";
  enalotto.colonne = 9;
  enalotto.numeri = 6;
  enalotto.testata = "cruciverba/incrocio.sen";
  enalotto.file_colonne = "cruciverba/incrocio.col";
  sistemi.push_back(enalotto);
  for (int misura = 3; misura <= 5; ++misura) {
    sistema_demo lotto;
    lotto.tipo_gioco = "cruciverba";
    lotto.cruciverba = sorta_cruciverba::lotto;
    // Seven characters at most: the catalogue looks at no more of the name.
    lotto.nome = "cruci" + std::to_string(misura);
    lotto.colonne = 6;
    lotto.numeri = misura;
    lotto.testata = "cruciverba/" + lotto.nome + ".sel";
    lotto.file_colonne = "cruciverba/" + lotto.nome + ".lot";
    sistemi.push_back(lotto);
  }
  return sistemi;
}

std::vector<sistema_demo> genera_demo(const std::string& cartella_programma, const std::string& cartella_skin) {
  fs::create_directories(cartella_programma);
  std::vector<sistema_demo> sistemi = sistemi_demo();
  caso c(20240501u);
  for (const sistema_demo& s : sistemi) {
    if (s.cruciverba == sorta_cruciverba::nessuna) {
      scrivi_sistema(cartella_programma, s, c);
    } else {
      scrivi_cruciverba(cartella_programma, s, c);
    }
  }
  // The program opens on its own list, not on a system the host handed over.
  std::error_code ignorato;
  fs::remove(nel_programma(cartella_programma, "trans"), ignorato);

  fs::path skin = fs::path(cartella_programma) / "skin";
  fs::create_directories(skin);
  if (fs::is_directory(cartella_skin)) {
    for (const auto& voce : fs::directory_iterator(cartella_skin)) {
      if (voce.path().extension() == ".skn") {
        fs::copy_file(voce.path(), skin / voce.path().filename(), fs::copy_options::overwrite_existing);
      }
    }
  }
  return sistemi;
}

}  // namespace schedine::demo
