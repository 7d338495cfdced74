#include "forms/main/Form1.h"

#include <array>

#include "calibration/assicura_tar.h"
#include "controls/insieme_moduli.h"
#include "core/file_record.h"
#include "core/file_sistema.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "core/stato.h"
#include "systems/nomi_sistema.h"

namespace schedine {

namespace {

struct opzione_gioco {
  const char* caption;
  const char* tipo_gioco;
};

// Option1 by index: caption and the game it lists.
constexpr std::array<opzione_gioco, 10> opzioni{{
    {"Ambo", "ambo"},
    {"Terno", "terno"},
    {"Quaterna", "quaterna"},
    {"Cinquina", "cinquina"},
    {"SuperEnalotto", "superenalotto"},
    {"Cruciverba SuperEnalotto", "cruciverba"},
    {"Cruciverba Lotto", "cruciverba"},
    {"Sestine/Decine", "sestine-decine"},
    {"10 e Lotto", "10elotto"},
    {"Win for Life", "wforlife"},
}};

// The hand-over's game and the option it ticks; "cruciverba" is always the
// SuperEnalotto crossword here.
int opzione_di_trans(const std::string& gioco) {
  static const std::pair<const char*, int> tabella[] = {
      {"ambo", 0},       {"terno", 1},          {"quaterna", 2},  {"cinquina", 3},  {"superenalotto", 4},
      {"cruciverba", 5}, {"sestine-decine", 7}, {"10elotto", 8},  {"wforlife", 9},
  };
  for (const auto& [nome, indice] : tabella) {
    if (gioco == nome) return indice;
  }
  return -1;
}

// The platform's Left$, Space$ and Mid$: a negative length is a run-time error.
std::string sinistra(const std::string& testo, long lunghezza, const std::string& nome_file) {
  if (lunghezza < 0) throw errore_runtime(codice::chiamata_non_valida, nome_file);
  return testo.substr(0, static_cast<size_t>(lunghezza));
}

std::string spazi(long quanti, const std::string& nome_file) {
  if (quanti < 0) throw errore_runtime(codice::chiamata_non_valida, nome_file);
  return std::string(static_cast<size_t>(quanti), ' ');
}

std::string destra_maiuscola(const std::string& testo, size_t quanti) {
  std::string coda = testo.size() <= quanti ? testo : testo.substr(testo.size() - quanti);
  for (char& c : coda) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return coda;
}

std::string taglia(std::string_view testo) { return std::string(togli_blank(testo)); }

// An entry of the list: a blank, the name, padding to a width of 8, the label.
std::string voce_sistema(const std::string& nome, const std::string& etichetta, const std::string& file) {
  if (nome.size() == 8) return " " + nome + etichetta;
  return " " + nome + spazi(8 - static_cast<long>(nome.size()), file) + etichetta;
}

const char* const etichetta_condizionato = "   (Condizionato)";
const char* const etichetta_casuale = "   (Casuale)";
const char* const etichetta_ridotto = "   (Ridotto)";

}  // namespace

// ---------------------------------------------------------------- design

void Form1::crea_controlli() {
  caption = titolo_programma;
  auto& frame1 = aggiungi<cornice>("Frame1");
  for (int i = 0; i < static_cast<int>(opzioni.size()); ++i) {
    auto& opzione = aggiungi_opzione("Option1", i, &frame1);
    opzione.caption = opzioni[static_cast<size_t>(i)].caption;
    opzione.al_click = [this, i] { option1_click(i); };
  }
  // "Ambo" stands ticked from the form's design, without running its rule.
  c<pulsante_opzione>("Option1", 0).al_click = nullptr;
  c<pulsante_opzione>("Option1", 0).imposta_valore(true);
  c<pulsante_opzione>("Option1", 0).al_click = [this] { option1_click(0); };

  aggiungi<etichetta>("Label1").caption = "Elenco dei Sistemi";
  aggiungi<etichetta>("Label2", 0).caption = "Seleziona il Sistema che vuoi stampare";
  aggiungi<etichetta>("Label2", 1).caption = "La lista contiene solo i sistemi il cui sviluppo è stato salvato";
  crea_catalogo();
  crea_taratura();

  auto& timer1 = aggiungi<temporizzatore>("Timer1");
  timer1.abilitato = false;
  timer1.intervallo = 300;
  timer1.al_tempo = [this] {
    auto& primo = c<immagine>("Image1", 0);
    auto& secondo = c<immagine>("Image1", 1);
    bool primo_visibile = primo.visibile;
    primo.visibile = !primo_visibile;
    secondo.visibile = primo_visibile;
  };
  auto& timer2 = aggiungi<temporizzatore>("Timer2");
  timer2.intervallo = 3000;
  aggiungi<immagine>("Image1", 0);
  aggiungi<immagine>("Image1", 1).visibile = false;
}

void Form1::crea_catalogo() {
  aggiungi<casella_elenco>("List1").al_click = [this] { list1_click(); };
  auto& frame2 = aggiungi<cornice>("Frame2");
  frame2.larghezza = 2895;
  frame2.altezza = 855;
  auto& ok = aggiungi<pulsante>("cmdok", -1, &frame2);
  ok.caption = "Ok";
  ok.al_click = [this] { cmdok_click(); };
  auto& esci = aggiungi<pulsante>("cmdcancel", -1, &frame2);
  esci.caption = "Esci";
  esci.al_click = [this] { termina_programma(); };
  aggiungi<forma>("Shape4", -1, &frame2);
}

void Form1::crea_taratura() {
  auto& frame6 = aggiungi<cornice>("Frame6");
  frame6.caption = "TARATURA SCHEDE";
  auto& frame3 = aggiungi<cornice>("Frame3", -1, &frame6);
  frame3.caption = "LOTTO";
  auto& frame4 = aggiungi<cornice>("Frame4", -1, &frame6);
  frame4.caption = "SUPERENALOTTO";
  auto& frame5 = aggiungi<cornice>("Frame5", -1, &frame6);
  frame5.caption = "WIN FOR LIFE";

  struct pulsante_taratura {
    const char* nome;
    const char* caption;
    cornice* contenitore;
    const char* modulo_taratura;
  };
  const pulsante_taratura pulsanti[] = {
      {"Command7", "Scheda Lotto + ambetto", &frame3, "tar_lotto"},
      {"Command2", "Schedina 5 pannelli", &frame4, "tar_enalotto"},
      {"Command4", "Schedina Superstar 2pan.", &frame4, "tar_enalotto2"},
      {"Command5", "1 Pannello", &frame5, "tar_wforlife"},
      {"Command6", "5 Pannelli", &frame5, "tar_wforlife5"},
  };
  for (const auto& p : pulsanti) {
    auto& bottone = aggiungi<pulsante>(p.nome, -1, p.contenitore);
    bottone.caption = p.caption;
    std::string nome_modulo = p.modulo_taratura;
    bottone.al_click = [this, nome_modulo] { apri_taratura(nome_modulo); };
  }
  auto& lotto10 = aggiungi<pulsante>("Command1", -1, &frame3);
  lotto10.caption = "Scheda Lotto e 10elotto";
  lotto10.al_click = [this] { avvia_fratello("ravelin_lotto_10elotto.exe", false); };
  auto& classica = aggiungi<pulsante>("Command3", -1, &frame3);
  classica.caption = "Usa schedina lotto classica";
  classica.visibile = false;
  classica.al_click = [this] { avvia_fratello("ravelin_classica.exe", true); };
}

// ---------------------------------------------------------------- load and unload

void Form1::al_caricamento() {
  std::string skin = cartella_skin(s.cartella_programma);
  std::string skn = skin + "skn.dat";
  int numero = 1;
  if (esiste_file(skn)) {
    lettore_record file(skn);
    numero = file.leggi_integer();
  } else {
    scrittore_record file(skn);
    file.scrivi({int64_t{1}});
    file.chiudi();
  }
  carica_skin(numero);

  assicura_tar_lotto(s);
  assicura_tar_enalotto(s);

  // The first list is SuperEnalotto's, although "Ambo" stands ticked.
  s.tipo_gioco = "superenalotto";
  trova_sistemi();
  trova_sistemi_r();
  trova_sistemi_cas();

  std::string da_cercare;
  leggi_trans(da_cercare);
  crea_vuoto(nel_programma(s.cartella_programma, "sch"));

  auto& lista = c<casella_elenco>("List1");
  lista.seleziona(lista.cerca_prefisso(da_cercare));

  std::string cst = nel_programma(s.cartella_programma, "cst");
  if (!esiste_file(cst)) {
    scrittore_record file(cst);
    file.scrivi({std::string("0,50"), std::string("Euro")});
    file.chiudi();
  }

  auto& frame2 = c<cornice>("Frame2");
  auto& bordo = c<forma>("Shape4");
  bordo.sinistra = 15;
  bordo.alto = 15;
  bordo.larghezza = frame2.larghezza - 15;
  bordo.altezza = frame2.altezza - 15;
}

void Form1::leggi_trans(std::string& da_cercare) {
  std::string trans = nel_programma(s.cartella_programma, "trans");
  if (!esiste_file(trans)) return;
  std::string nome;
  {
    lettore_record file(trans);
    s.tipo_gioco = file.leggi_stringa();
    nome = file.leggi_stringa();
  }
  int indice = opzione_di_trans(s.tipo_gioco);
  if (indice >= 0) {
    c<pulsante_opzione>("Option1", indice).imposta_valore(true);
    option1_click(indice);
  }
  da_cercare = " " + nome;
}

void Form1::allo_scaricamento() {
  std::string sch = nel_programma(s.cartella_programma, "sch");
  if (esiste_file(sch)) elimina_file(sch);
}

void Form1::carica_skin(int numero) {
  std::string cartella = cartella_skin(s.cartella_programma);
  if (numero >= 1 && numero <= 9) {
    s.piattaforma->carica_skin(cartella + "skin1_" + std::to_string(numero) + ".skn");
  }
  scrittore_record file(cartella + "skn.dat");
  file.scrivi({int64_t{numero}});
  file.chiudi();
  s.piattaforma->esegui_eventi_in_attesa();
}

// ---------------------------------------------------------------- catalogue

std::string Form1::cartella_gioco() const { return nel_programma(s.cartella_programma, s.tipo_gioco); }

template <class Voce>
void Form1::aggiungi_trovati(const std::string& schema, size_t taglio, Voce&& voce) {
  auto& lista = c<casella_elenco>("List1");
  for (const std::string& trovato : cerca_file(nel_programma(cartella_gioco(), schema))) {
    std::string nome = sinistra(trovato, static_cast<long>(trovato.size()) - static_cast<long>(taglio), trovato);
    lista.aggiungi(voce(nome, trovato));
  }
}

void Form1::trova_sistemi() {
  auto& lista = c<casella_elenco>("List1");
  lista.svuota();
  auto schema = schema_di(famiglia_elenco::condizionato, s.tipo_gioco);
  if (schema) {
    aggiungi_trovati(std::string(schema->schema), static_cast<size_t>(schema->taglio),
                     [](const std::string& nome, const std::string& file) {
                       return voce_sistema(nome, etichetta_condizionato, file);
                     });
  }
  // Second pass: a ".nn" file beside a conditioned system hides it. The end
  // of the loop is fixed at the start, so after a removal the last steps read
  // past the list, where the entry is empty and nothing is removed.
  in_verifica = true;
  int fine = lista.conta() - 1;
  for (int j = 0; j <= fine; ++j) {
    nome_verifica = nomesistema(lista.voce(j));
    if (esiste_file(nel_programma(cartella_gioco(), taglia(nome_verifica) + std::string(marcatore_nascosto)))) {
      lista.rimuovi(j);
      --j;
    }
  }
  in_verifica = false;
}

void Form1::trova_sistemi_cas() {
  auto schema = schema_di(famiglia_elenco::casuale, s.tipo_gioco);
  if (!schema) return;
  aggiungi_trovati(std::string(schema->schema), static_cast<size_t>(schema->taglio),
                   [](const std::string& nome, const std::string& file) {
                     return voce_sistema(nome, etichetta_casuale, file);
                   });
}

void Form1::trova_sistemi_r() {
  if (auto schema = schema_di(famiglia_elenco::autoridotto, s.tipo_gioco)) {
    aggiungi_trovati(std::string(schema->schema), static_cast<size_t>(schema->taglio),
                     [](const std::string& nome, const std::string& file) {
                       // Both spellings of the label are the list's own.
                       return voce_sistema(nome, nome.size() == 8 ? "   (Autoridotto)" : "   (AutoRidotto)", file);
                     });
  }
  for (auto famiglia : {famiglia_elenco::ridotto, famiglia_elenco::ridotto_seconda_famiglia}) {
    if (auto schema = schema_di(famiglia, s.tipo_gioco)) {
      aggiungi_trovati(std::string(schema->schema), static_cast<size_t>(schema->taglio),
                       [](const std::string& nome, const std::string& file) {
                         return voce_sistema(nome, etichetta_ridotto, file);
                       });
    }
  }
}

std::string Form1::nomesistema(const std::string& voce) {
  genere tipo;
  size_t senza_blank;  // characters dropped when the entry has no blank
  if (destra_maiuscola(voce, 9) == "(CASUALE)") {
    tipo = genere::casuale;
    senza_blank = 10;
  } else if (destra_maiuscola(voce, 13) == "(AUTORIDOTTO)") {
    tipo = genere::autoridotto;
    senza_blank = 14;
  } else if (destra_maiuscola(voce, 14) == "(CONDIZIONATO)") {
    tipo = genere::condizionato;
    senza_blank = 14;
  } else if (destra_maiuscola(voce, 9) == "(RIDOTTO)") {
    tipo = genere::ridotto_un_file;
    senza_blank = 14;
  } else {
    s.tipo_sistema = "cruciverba";
    return voce + ".col";
  }

  size_t blank = voce.find(' ', 1);
  std::string nome = blank != std::string::npos
                         ? voce.substr(0, blank)
                         : sinistra(voce, static_cast<long>(voce.size()) - static_cast<long>(senza_blank), voce);
  if (tipo == genere::condizionato && in_verifica) return nome;

  if (tipo == genere::ridotto_un_file && cerca_sorte(s.tipo_gioco) != nullptr) {
    tipo = genere_ridotto_su_disco(s.cartella_programma, s.tipo_gioco, taglia(nome));
  }
  s.tipo_sistema = std::string(testo_tipo_sistema(tipo));
  if (auto suffisso = suffissi(s.tipo_gioco, tipo)) return nome + std::string(suffisso->testata);
  return nome;
}

void Form1::trova_cruciverba() {
  auto& lista = c<casella_elenco>("List1");
  passa_oltre([&] { lista.svuota(); });
  passa_oltre([&] {
    auto schema = schema_di(famiglia_elenco::cruciverba_enalotto, s.tipo_gioco);
    if (!schema) return;
    for (const std::string& trovato : cerca_file(nel_programma(cartella_gioco(), std::string(schema->schema)))) {
      passa_oltre([&] {
        lista.aggiungi(" " + sinistra(trovato, static_cast<long>(trovato.size()) - schema->taglio, trovato));
      });
    }
  });
  // Only a system with a columns file of the double name "name.col.col" stays.
  in_verifica = true;
  int fine = lista.conta() - 1;
  for (int j = 0; j <= fine; ++j) {
    passa_oltre([&] {
      nome_verifica = nomesistema(lista.voce(j));
      if (!esiste_file(nel_programma(cartella_gioco(), taglia(nome_verifica) + ".col"))) {
        lista.rimuovi(j);
        --j;
      }
    });
  }
  in_verifica = false;
}

void Form1::trova_cruciverba_lotto() {
  auto& lista = c<casella_elenco>("List1");
  passa_oltre([&] { lista.svuota(); });
  int16_t misura = 0;  // a .sel that fails to read keeps the size of the one before
  passa_oltre([&] {
    auto schema = schema_di(famiglia_elenco::cruciverba_lotto, s.tipo_gioco);
    if (!schema) return;
    for (const std::string& trovato : cerca_file(nel_programma(cartella_gioco(), std::string(schema->schema)))) {
      passa_oltre([&] {
        std::string nome = sinistra(trovato, static_cast<long>(trovato.size()) - schema->taglio, trovato);
        passa_oltre([&] {
          lettore_record sel(nel_programma(cartella_gioco(), trovato));
          for (int campo = 0; campo < 7; ++campo) passa_oltre([&] { sel.salta_campo(); });
          passa_oltre([&] { misura = sel.leggi_integer(); });
        });
        const char* sorta = misura == 3 ? "  (Terzine)" : misura == 4 ? "  (Quartine)" : misura == 5 ? "  (Cinquine)" : nullptr;
        if (sorta != nullptr) lista.aggiungi(" " + nome + spazi(10 - static_cast<long>(nome.size()), trovato) + sorta);
      });
    }
  });
  // Drop, one at a time, the entries whose ".lot" is missing. Only the first
  // 8 characters of an entry are looked at, the leading blank included.
  in_verifica = true;
  passa_oltre([&] {
    while (lista.conta() > 0) {
      int mancante = -1;
      for (int j = 0; j < lista.conta(); ++j) {
        std::string nome = taglia(lista.voce(j).substr(0, 8));
        if (!esiste_file(nel_programma(cartella_gioco(), nome + ".lot"))) {
          mancante = j;
          break;
        }
      }
      if (mancante < 0) break;
      lista.rimuovi(mancante);
    }
  });
  in_verifica = false;
}

// ---------------------------------------------------------------- events

void Form1::option1_click(int indice) {
  s.tipo_gioco = opzioni[static_cast<size_t>(indice)].tipo_gioco;
  if (indice == 5) {
    trova_cruciverba();
  } else if (indice == 6) {
    trova_cruciverba_lotto();
  } else {
    trova_sistemi();
    trova_sistemi_r();
    trova_sistemi_cas();
  }
}

void Form1::list1_click() {
  auto& ok = c<pulsante>("cmdok");
  ok.tag.clear();
  std::string voce = c<casella_elenco>("List1").testo();
  if (!c<pulsante_opzione>("Option1", 6).valore()) {
    s.sistema_scelto = nomesistema(voce);
    return;
  }
  std::string sorta = voce.size() > 10 ? taglia(voce.substr(10)) : std::string();
  s.sistema_scelto = taglia(voce.substr(0, 8)) + ".sel";
  if (sorta == "(Terzine)") ok.tag = "3";
  if (sorta == "(Quartine)") ok.tag = "4";
  if (sorta == "(Cinquine)") ok.tag = "5";
}

void Form1::cmdok_click() {
  std::string voce = c<casella_elenco>("List1").testo();
  if (voce.empty()) return;
  auto opzione = [this](int i) { return c<pulsante_opzione>("Option1", i).valore(); };
  std::string scheda;
  std::string titolo = "Sistema: " + voce;
  if (opzione(4) || opzione(5)) {
    scheda = "Form_sched_enalotto";
  } else if (opzione(9)) {
    scheda = "Form_sched_wforlife5";
  } else {
    if (opzione(6)) {
      double misura = numero_iniziale(c<pulsante>("cmdok").tag);
      if (misura == 3) s.tipo_gioco = "terno_c";
      if (misura == 4) s.tipo_gioco = "quaterna_c";
      if (misura == 5) s.tipo_gioco = "cinquina_c";
    }
    scheda = "Form_sched_lotto_ambetto";
    titolo += "      - Stampa Schede";
  }
  modulo& form = moduli(scheda);
  form.c<etichetta>("lbltitolo").caption = titolo;
  form.mostra();
  nascondi();
}

void Form1::apri_taratura(const std::string& nome_modulo) {
  moduli(nome_modulo).mostra();
  nascondi();
}

void Form1::avvia_fratello(const std::string& nome_programma, bool errore_se_manca) {
  std::string percorso = nel_programma(s.cartella_programma, nome_programma);
  if (errore_se_manca) {
    s.piattaforma->avvia_programma(percorso);
  } else {
    passa_oltre([&] { s.piattaforma->avvia_programma(percorso); });
  }
  termina_programma();
}

void Form1::termina_programma() {
  scarica();
  moduli.programma_terminato = true;
}

}  // namespace schedine
