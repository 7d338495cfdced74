// The price of a column on Form_sched_enalotto: the file cst that keeps it
// between runs, and the editor Frame1 ("Modifica") in which the user picks
// it from the list Combo2. Only "Salva" writes the file and changes the
// price in use (Text1); "Default" only moves the list to "€ 0,50".

#include <memory>

#include "core/file_record.h"
#include "core/file_sistema.h"
#include "core/stato.h"
#include "forms/enalotto_wforlife/Form_sched_enalotto.h"
#include "forms/enalotto_wforlife/testi_prezzo.h"

namespace schedine {

namespace {

constexpr int voce_prezzo_di_fabbrica = 20;  // "€ 0,50"

}  // namespace

std::string Form_sched_enalotto::leggi_cst(const std::string& se_manca) {
  std::string percorso = nel_programma(s.cartella_programma, "cst");
  if (!esiste_file(percorso)) {
    passa_oltre([&] {
      scrittore_record file(percorso);
      file.scrivi({std::string("0,50"), std::string("Euro")});
      file.scrivi({int64_t{0}});
      file.chiudi();
    });
    return se_manca;
  }
  // Price, currency word, Superstar flag. The word is read into the flag
  // and fails, so the flag that stays is the third field; a file of one
  // line (as the main form makes it) leaves the flag as it was.
  std::string prezzo;
  std::unique_ptr<lettore_record> file;
  passa_oltre([&] { file = std::make_unique<lettore_record>(percorso); });
  if (!file) return prezzo;
  passa_oltre([&] { prezzo = file->leggi_stringa(); });
  passa_oltre([&] { s.superstar_attiva = file->leggi_booleano(); });
  passa_oltre([&] { s.superstar_attiva = file->leggi_booleano(); });
  return prezzo;
}

void Form_sched_enalotto::scrivi_cst() {
  scrittore_record file(nel_programma(s.cartella_programma, "cst"));
  file.scrivi({dopo_caratteri(c<casella_elenco>("Combo2").testo(), 2), std::string("Euro")});
  file.scrivi({s.superstar_attiva});
  file.chiudi();
}

void Form_sched_enalotto::cerca_prezzo(const std::string& prezzo) {
  // The entries are in the user's number format and the file holds the
  // price as it was saved: a price saved in another format is not found.
  passa_oltre([&] {
    auto& combo2 = c<casella_elenco>("Combo2");
    std::string cercato = std::string(segno_euro) + prezzo;
    for (int i = 0; i < combo2.conta(); ++i) {
      if (combo2.voce(i) == cercato) combo2.seleziona(i);
    }
  });
}

void Form_sched_enalotto::command1_click() {
  passa_oltre([&] {
    auto& frame1 = c<cornice>("Frame1");
    frame1.alto = 765;
    frame1.sinistra = 4275;
    frame1.visibile = true;
  });
}

void Form_sched_enalotto::command2_click() {
  passa_oltre([&] { scrivi_cst(); });
  passa_oltre([&] { c<etichetta>("Text1").caption = c<casella_elenco>("Combo2").testo(); });
  passa_oltre([&] { c<cornice>("Frame1").visibile = false; });
  int numeri = 0;
  passa_oltre([&] { numeri = riempi_numeri_superstar(); });
  range_pagine_e();
  applica_costo(numeri, precisione::singola);
}

void Form_sched_enalotto::command3_click() {
  // Back to the saved price. Made afresh, the file gives "3", which matches
  // no entry: the list then keeps what it shows. Text1 and the cost are not
  // touched, and the Superstar flag takes the file's value.
  std::string prezzo;
  passa_oltre([&] { prezzo = leggi_cst("3"); });
  cerca_prezzo(prezzo);
  passa_oltre([&] { c<cornice>("Frame1").visibile = false; });
}

void Form_sched_enalotto::command4_click() {
  passa_oltre([&] { c<casella_elenco>("Combo2").seleziona(voce_prezzo_di_fabbrica); });
}

void Form_sched_enalotto::check1_click() {
  // Nothing shows Check1; its rule stands as the form has it.
  passa_oltre([&] {
    if (c<casella_controllo>("Check1").valore() == 1) {
      larghezza = 13210;
    } else {
      c<casella_elenco>("Combo2").seleziona(voce_prezzo_di_fabbrica);
      larghezza = 8895;
    }
  });
  command2_click();
}

}  // namespace schedine
