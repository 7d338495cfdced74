#include "systems/nomi_sistema.h"

#include <array>
#include <filesystem>

#include "core/errore_runtime.h"
#include "core/file_sistema.h"

namespace schedine {

namespace {

constexpr sorte_sistema sorti[] = {
    {"ambo", "ambo", 2, 2},
    {"terno", "terno", 3, 3},
    {"quaterna", "quaterna", 4, 4},
    {"cinquina", "cinquina", 5, 5},
    {"sestine-decine", "sestine-decine", 6, 10},
    {"superenalotto", "superenalotto", 6, 6},
    {"10elotto", "10elotto", 10, 10},
    {"wforlife", "wforlife", 10, 10},
    {"cruciverba", "cruciverba", 6, 6},
    {"terno_c", "cruciverba", 3, 3},
    {"quaterna_c", "cruciverba", 4, 4},
    {"cinquina_c", "cruciverba", 5, 5},
};

constexpr int numero_generi = 5;
constexpr suffissi_sistema nessuno{"", "", 0, false};

// The files of one sorte, by kind in the order of genere, and the marker
// whose presence makes a ridotto system the two-file form.
struct riga_suffissi {
  std::string_view tipo_gioco;
  std::array<suffissi_sistema, numero_generi> per_genere;
  std::string_view marcatore_due_file;
};

// In every row the cut equals the length of the head suffix: a reader cuts
// that many characters without looking at them.
constexpr riga_suffissi tabella_suffissi[] = {
    {"ambo",
     {{{"cua.txt", "caa.txt", 7, false}, {"nua.txt", "sya.txt", 7, false}, nessuno, nessuno, nessuno}},
     ""},
    {"terno",
     {{{"cub.txt", "cab.txt", 7, false},
       {"nub.txt", "syb.txt", 7, false},
       {"ridab.txt", "rib.txt", 9, false},
       {"ridb.txt", "ridb.txt", 8, true},
       nessuno}},
     ""},
    {"quaterna",
     {{{"cuc.txt", "cac.txt", 7, false},
       {"nuc.txt", "syc.txt", 7, false},
       {"ridac.txt", "ric.txt", 9, false},
       {"ridc.txt", "ridc.txt", 8, true},
       nessuno}},
     ""},
    {"cinquina",
     {{{"cud.txt", "cad.txt", 7, false},
       {"nud.txt", "syd.txt", 7, false},
       {"ridad.txt", "rid.txt", 9, false},
       {"ridd.txt", "ridd.txt", 8, true},
       nessuno}},
     ""},
    // Only the conditioned systems of sestine-decine are ever read; the other
    // kinds have a head name and nothing more.
    {"sestine-decine",
     {{{"cuf.txt", "", 7, false},
       {"nuf.txt", "syf.txt", 7, false},
       {"ridaf.txt", "", 9, false},
       {"ridf.txt", "", 8, false},
       nessuno}},
     ""},
    {"superenalotto",
     {{{"cue.txt", "cae.txt", 7, false},
       {"nue.txt", "sye.txt", 7, false},
       {"ridae.txt", "rie.txt", 9, false},
       {"ride.txt", "ride.txt", 8, true},
       {"rifae.txt", "rife.txt", 9, false}}},
     "nufe.txt"},
    {"10elotto",
     {{{"cu10.txt", "ca10.txt", 8, false},
       {"nu10.txt", "sy10.txt", 8, false},
       {"rida10.txt", "ri10.txt", 10, false},
       {"rid10.txt", "rid10.txt", 9, true},
       {"rifa10.txt", "rif10.txt", 10, false}}},
     "nuf10.txt"},
    {"wforlife",
     {{{"cu10.txt", "ca10.txt", 8, false},
       {"nu10.txt", "sy10.txt", 8, false},
       {"rida10.txt", "ri10.txt", 10, false},
       {"rid10.txt", "rid10.txt", 9, true},
       {"rifa10.txt", "rif10.txt", 10, false}}},
     "nuf10.txt"},
};

constexpr cruciverba_sistema cruciverba[] = {
    {"cruciverba", 6, 4, ".col"},
    {"terno_c", 3, 3, "lot"},
    {"quaterna_c", 4, 3, "lot"},
    {"cinquina_c", 5, 3, "lot"},
};

// A row of the catalogue's searches; "*" stands for any tipo_gioco. The first
// matching row wins, so rows of one game stand before the row for any game.
struct riga_elenco {
  famiglia_elenco famiglia;
  std::string_view tipo_gioco;
  schema_elenco ricerca;
};

constexpr std::string_view qualsiasi = "*";

constexpr riga_elenco tabella_elenco[] = {
    {famiglia_elenco::condizionato, "10elotto", {"*sy*.txt", 8}},
    {famiglia_elenco::condizionato, "wforlife", {"*sy*.txt", 8}},
    {famiglia_elenco::condizionato, qualsiasi, {"*sy*.txt", 7}},

    {famiglia_elenco::casuale, "ambo", {"*caa.txt", 7}},
    {famiglia_elenco::casuale, "terno", {"*cab.txt", 7}},
    {famiglia_elenco::casuale, "quaterna", {"*cac.txt", 7}},
    {famiglia_elenco::casuale, "cinquina", {"*cad.txt", 7}},
    {famiglia_elenco::casuale, "superenalotto", {"*cae.txt", 7}},
    {famiglia_elenco::casuale, "10elotto", {"*ca10.txt", 8}},
    {famiglia_elenco::casuale, "wforlife", {"*ca10.txt", 8}},

    {famiglia_elenco::autoridotto, "terno", {"*ridab.txt", 9}},
    {famiglia_elenco::autoridotto, "quaterna", {"*ridac.txt", 9}},
    {famiglia_elenco::autoridotto, "cinquina", {"*ridad.txt", 9}},
    {famiglia_elenco::autoridotto, "superenalotto", {"*ridae.txt", 9}},
    {famiglia_elenco::autoridotto, "10elotto", {"*rida10.txt", 10}},
    {famiglia_elenco::autoridotto, "wforlife", {"*rida10.txt", 10}},

    // Win for Life ridotto systems are never listed, though their files are known.
    {famiglia_elenco::ridotto, "terno", {"*nudb.txt", 8}},
    {famiglia_elenco::ridotto, "quaterna", {"*nudc.txt", 8}},
    {famiglia_elenco::ridotto, "cinquina", {"*nudd.txt", 8}},
    {famiglia_elenco::ridotto, "superenalotto", {"*nude.txt", 8}},
    {famiglia_elenco::ridotto, "10elotto", {"*nud10.txt", 9}},

    {famiglia_elenco::ridotto_seconda_famiglia, "superenalotto", {"*nufe.txt", 8}},
    {famiglia_elenco::ridotto_seconda_famiglia, "10elotto", {"*nuf10.txt", 9}},

    {famiglia_elenco::cruciverba_enalotto, qualsiasi, {"*.sen", 4}},
    {famiglia_elenco::cruciverba_lotto, qualsiasi, {"*.sel", 4}},
};

const riga_suffissi* cerca_suffissi(std::string_view tipo_gioco) {
  for (const auto& riga : tabella_suffissi) {
    if (riga.tipo_gioco == tipo_gioco) return &riga;
  }
  return nullptr;
}

// Left of the platform with a length of Len - n: fails on a negative length.
std::string_view senza_ultimi(std::string_view testo, int n) {
  if (n < 0 || static_cast<size_t>(n) > testo.size()) throw errore_runtime(codice::chiamata_non_valida);
  return testo.substr(0, testo.size() - static_cast<size_t>(n));
}

}  // namespace

const sorte_sistema* cerca_sorte(std::string_view tipo_gioco) {
  for (const auto& sorte : sorti) {
    if (sorte.tipo_gioco == tipo_gioco) return &sorte;
  }
  return nullptr;
}

std::string cartella_sistema_di(const std::string& cartella_programma, std::string_view cartella) {
  std::string percorso = nel_programma(cartella_programma, cartella);
  percorso += static_cast<char>(std::filesystem::path::preferred_separator);
  return percorso;
}

std::optional<std::string> cartella_sorte(const std::string& cartella_programma, std::string_view tipo_gioco) {
  const sorte_sistema* sorte = cerca_sorte(tipo_gioco);
  if (sorte == nullptr) return std::nullopt;
  return cartella_sistema_di(cartella_programma, sorte->cartella);
}

std::string_view testo_tipo_sistema(genere g) {
  switch (g) {
    case genere::casuale: return "casuale";
    case genere::condizionato: return "condizionato";
    case genere::autoridotto: return "autoridotto";
    case genere::ridotto_un_file:
    case genere::ridotto_due_file: return "ridotto";
  }
  return "";
}

std::optional<suffissi_sistema> suffissi(std::string_view tipo_gioco, genere g) {
  const riga_suffissi* riga = cerca_suffissi(tipo_gioco);
  if (riga == nullptr) return std::nullopt;
  return riga->per_genere[static_cast<size_t>(g)];
}

bool e_ridotto_due_file(std::string_view tipo_gioco, std::string_view sistema_scelto) {
  const riga_suffissi* riga = cerca_suffissi(tipo_gioco);
  if (riga == nullptr) return false;
  std::string_view testata = riga->per_genere[static_cast<size_t>(genere::ridotto_due_file)].testata;
  return !testata.empty() && sistema_scelto.ends_with(testata);
}

std::optional<genere> genere_scelto(std::string_view tipo_sistema, std::string_view tipo_gioco,
                                    std::string_view sistema_scelto) {
  if (tipo_sistema == "casuale") return genere::casuale;
  if (tipo_sistema == "condizionato") return genere::condizionato;
  if (tipo_sistema == "autoridotto") return genere::autoridotto;
  if (tipo_sistema == "ridotto") {
    return e_ridotto_due_file(tipo_gioco, sistema_scelto) ? genere::ridotto_due_file : genere::ridotto_un_file;
  }
  return std::nullopt;
}

genere genere_ridotto_su_disco(const std::string& cartella_programma, std::string_view tipo_gioco,
                               std::string_view nome) {
  const riga_suffissi* riga = cerca_suffissi(tipo_gioco);
  if (riga == nullptr || riga->marcatore_due_file.empty()) return genere::ridotto_un_file;
  std::string marcatore = std::string(tipo_gioco) + '/' + std::string(nome) + std::string(riga->marcatore_due_file);
  return esiste_file(nel_programma(cartella_programma, marcatore)) ? genere::ridotto_due_file
                                                                   : genere::ridotto_un_file;
}

std::string_view togli_blank(std::string_view testo) {
  size_t inizio = testo.find_first_not_of(' ');
  if (inizio == std::string_view::npos) return {};
  size_t fine = testo.find_last_not_of(' ');
  return testo.substr(inizio, fine - inizio + 1);
}

std::string nome_base(std::string_view sistema_scelto, int taglio) {
  return std::string(togli_blank(senza_ultimi(sistema_scelto, taglio)));
}

const cruciverba_sistema* cerca_cruciverba(std::string_view tipo_gioco) {
  for (const auto& riga : cruciverba) {
    if (riga.tipo_gioco == tipo_gioco) return &riga;
  }
  return nullptr;
}

std::string cambia_estensione(std::string_view sistema_scelto, std::string_view estensione) {
  return std::string(senza_ultimi(sistema_scelto, 3)) + std::string(estensione);
}

std::optional<schema_elenco> schema_di(famiglia_elenco famiglia, std::string_view tipo_gioco) {
  for (const auto& riga : tabella_elenco) {
    if (riga.famiglia != famiglia) continue;
    if (riga.tipo_gioco == tipo_gioco || riga.tipo_gioco == qualsiasi) return riga.ricerca;
  }
  return std::nullopt;
}

}  // namespace schedine
