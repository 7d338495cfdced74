#include "forms/enalotto_wforlife/conteggio_pannelli.h"

#include <string>

#include "core/errore_runtime.h"
#include "core/stato.h"
#include "systems/nomi_sistema.h"
#include "systems/testata.h"

namespace schedine {

namespace {

std::string nel_cartella(const stato& s, std::string_view cartella) {
  return cartella_sistema_di(s.cartella_programma, cartella) + std::string(togli_blank(s.sistema_scelto));
}

int32_t conta_cruciverba(stato& s, std::string_view gioco) {
  std::string_view testata = gioco == "wforlife" ? "s10" : "sen";
  // The head names a count that the host may not keep in step with the
  // columns: it is read, and the column file's lines rule.
  passa_oltre([&] { s.sistema_scelto = cambia_estensione(s.sistema_scelto, testata); });
  passa_oltre([&] { primo_long(nel_cartella(s, "cruciverba")); });
  passa_oltre([&] { s.sistema_scelto = cambia_estensione(s.sistema_scelto, "col"); });
  return conta_righe(nel_cartella(s, "cruciverba"));
}

}  // namespace

std::optional<int32_t> conta_colonne_pannelli(stato& s, std::string_view gioco) {
  if (s.tipo_sistema == "cruciverba") return conta_cruciverba(s, gioco);
  std::optional<genere> tipo = genere_scelto(s.tipo_sistema, gioco, s.sistema_scelto);
  if (!tipo) return std::nullopt;
  return colonne_da_testata(nel_cartella(s, gioco), *tipo);
}

}  // namespace schedine
