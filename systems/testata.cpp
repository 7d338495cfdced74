#include "systems/testata.h"

#include "core/errore_runtime.h"
#include "core/file_record.h"
#include "core/stato.h"

namespace schedine {

namespace {

// Where the count stands in a head: the fields before it, read as Long (so
// they must be numbers) or taken in any form, then the count as a Long.
struct lettura_testata {
  genere tipo;
  int long_prima;
  int qualsiasi_prima;
};

constexpr lettura_testata letture[] = {
    {genere::casuale, 1, 0},
    {genere::condizionato, 0, 2},
    {genere::autoridotto, 0, 0},
    {genere::ridotto_un_file, 1, 0},
    {genere::ridotto_due_file, 0, 0},
};

const lettura_testata& lettura_di(genere g) {
  for (const auto& lettura : letture) {
    if (lettura.tipo == g) return lettura;
  }
  throw errore_runtime(codice::chiamata_non_valida);
}

// The crossword branch of the panel forms: the head's Long is read and
// dropped (a failure there is passed over), and the column file's lines are
// the count.
int32_t conta_cruciverba(const stato& s, const std::string& cartella) {
  std::string_view estensione = s.tipo_gioco == "wforlife" ? "s10" : "sen";
  passa_oltre([&] { primo_long(cartella + std::string(togli_blank(cambia_estensione(s.sistema_scelto, estensione)))); });
  return conta_righe(cartella + std::string(togli_blank(cambia_estensione(s.sistema_scelto, "col"))));
}

}  // namespace

int32_t colonne_da_testata(const std::string& percorso, genere g) {
  const lettura_testata& lettura = lettura_di(g);
  lettore_record file(percorso);
  for (int i = 0; i < lettura.long_prima; ++i) file.leggi_long();
  for (int i = 0; i < lettura.qualsiasi_prima; ++i) file.salta_campo();
  return file.leggi_long();
}

int32_t primo_long(const std::string& percorso) {
  lettore_record file(percorso);
  return file.leggi_long();
}

int32_t conta_righe(const std::string& percorso) {
  lettore_record file(percorso);
  int32_t righe = 0;
  while (!file.fine_file()) {
    file.leggi_riga();
    ++righe;
  }
  return righe;
}

std::optional<int32_t> conta_colonne_sistema(const stato& s, modulo_scheda modulo) {
  if (modulo == modulo_scheda::pannelli && s.tipo_sistema == "cruciverba") {
    return conta_cruciverba(s, cartella_sistema_di(s.cartella_programma, "cruciverba"));
  }
  std::optional<std::string> cartella = cartella_sorte(s.cartella_programma, s.tipo_gioco);
  std::optional<genere> tipo = genere_scelto(s.tipo_sistema, s.tipo_gioco, s.sistema_scelto);
  if (!cartella || !tipo) return std::nullopt;
  if (modulo == modulo_scheda::lotto && *tipo == genere::ridotto_due_file) tipo = genere::ridotto_un_file;
  return colonne_da_testata(*cartella + std::string(togli_blank(s.sistema_scelto)), *tipo);
}

}  // namespace schedine
