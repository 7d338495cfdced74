#include "forms/lotto/testata_lotto.h"

#include <string>
#include <string_view>

#include "core/stato.h"
#include "systems/nomi_sistema.h"
#include "systems/testata.h"

namespace schedine {

namespace {

struct cartella_gioco {
  std::string_view tipo_gioco;
  std::string_view cartella;
};

// The games the Lotto forms count, and their folders.
constexpr cartella_gioco cartelle[] = {
    {"ambo", "ambo"},
    {"terno", "terno"},
    {"quaterna", "quaterna"},
    {"cinquina", "cinquina"},
    {"sestine-decine", "sestine-decine"},
    {"10elotto", "10elotto"},
    {"terno_c", "cruciverba"},
    {"quaterna_c", "cruciverba"},
    {"cinquina_c", "cruciverba"},
};

std::optional<genere> genere_da_contare(const std::string& tipo_sistema, const std::string& tipo_gioco) {
  if (tipo_sistema == "casuale") return genere::casuale;
  if (tipo_sistema == "condizionato") return genere::condizionato;
  if (tipo_gioco == "ambo") return std::nullopt;
  if (tipo_sistema == "ridotto") return genere::ridotto_un_file;
  if (tipo_sistema == "autoridotto") return genere::autoridotto;
  return std::nullopt;
}

}  // namespace

std::optional<int32_t> conta_schede_lotto(const stato& s) {
  for (const auto& voce : cartelle) {
    if (voce.tipo_gioco != s.tipo_gioco) continue;
    std::string percorso =
        cartella_sistema_di(s.cartella_programma, voce.cartella) + std::string(togli_blank(s.sistema_scelto));
    if (voce.cartella == "cruciverba") return primo_long(percorso);
    std::optional<genere> tipo = genere_da_contare(s.tipo_sistema, s.tipo_gioco);
    if (!tipo) return std::nullopt;
    return colonne_da_testata(percorso, *tipo);
  }
  return std::nullopt;
}

}  // namespace schedine
