#include "systems/lettura_comune.h"

#include "controls/controlli.h"
#include "controls/modulo.h"
#include "core/piattaforma.h"
#include "core/stato.h"
#include "printing/dispositivo_stampa.h"
#include "printing/lavoro_stampa.h"
#include "printing/scheda_controlli.h"

namespace schedine {

void file_colonne::apri(const std::string& percorso, bool con_testata) {
  file_.emplace(percorso);
  if (con_testata) file_->salta_testata();
}

lettore_colonne& file_colonne::aperto() {
  if (!file_) throw errore_runtime(codice::nome_file_non_valido);
  return *file_;
}

bool colonne_finite(file_colonne& file, const istruzioni& esegui) {
  bool finito = true;
  esegui([&] { finito = file.fine_file(); });
  return finito;
}

std::string percorso_colonne(const stato& s, const std::string& nome_base, std::string_view finale) {
  return s.cartella_sistema + nome_base + std::string(finale);
}

void chiudi_scheda(stato& s, std::string_view nome_modulo, const istruzioni& esegui) {
  passa_oltre([&] {
    auto& barra = modulo_di_stampa(s, std::string(nome_modulo)).c<barra_avanzamento>("ProgressBar1");
    barra.imposta_valore(barra.valore() + 1);
  });
  esegui([&] {
    if (s.piattaforma == nullptr) throw errore_runtime(codice::oggetto_non_impostato);
    s.piattaforma->esegui_eventi_in_attesa();
  });
  esegui([&] { stampante(s).nuova_pagina(); });
}

}  // namespace schedine
