#include "controls/controlli.h"

#include <algorithm>
#include <cctype>

#include "core/errore_runtime.h"

namespace schedine {

void casella_controllo::imposta_valore(int valore) {
  if (valore == valore_) return;
  valore_ = valore;
  esegui_click();
}

void pulsante_opzione::imposta_valore(bool valore) {
  if (!valore) {
    valore_ = false;
    return;
  }
  if (gruppo_ != nullptr) {
    for (auto* fratello : *gruppo_) {
      if (fratello != this) fratello->valore_ = false;
    }
  }
  if (valore_) return;
  valore_ = true;
  esegui_click();
}

void pulsante_opzione::clic_utente() {
  // A click on the selected button runs its rule again, as the platform does.
  if (valore_) {
    esegui_click();
  } else {
    imposta_valore(true);
  }
}

void casella_testo::imposta_testo(const std::string& testo) {
  if (testo == testo_) return;
  testo_ = testo;
  if (al_cambio) al_cambio();
}

void casella_testo::digita(const std::string& testo) {
  // Typing over the selected text first replaces it with the first key that
  // gets through; until then the old text stands.
  bool sostituito = false;
  for (unsigned char carattere : testo) {
    int tasto = carattere;
    if (al_tasto) al_tasto(tasto);
    if (tasto == 0) continue;
    std::string nuovo = sostituito ? testo_ : std::string();
    if (tasto == 8) {
      if (!nuovo.empty()) nuovo.pop_back();
    } else {
      nuovo += static_cast<char>(tasto);
    }
    sostituito = true;
    imposta_testo(nuovo);
  }
}

std::string casella_elenco::voce(int i) const {
  if (i < 0 || i >= conta()) return {};
  return voci_[static_cast<size_t>(i)];
}

void casella_elenco::rimuovi(int i) {
  if (i < 0 || i >= conta()) throw errore_runtime(codice::chiamata_non_valida, nome_completo());
  voci_.erase(voci_.begin() + i);
  if (selezionato_ == i) {
    selezionato_ = -1;
  } else if (selezionato_ > i) {
    --selezionato_;
  }
}

void casella_elenco::svuota() {
  voci_.clear();
  selezionato_ = -1;
  testo_proprio_.clear();
}

void casella_elenco::seleziona(int indice) {
  if (indice < -1 || indice >= conta()) throw errore_runtime(codice::chiamata_non_valida, nome_completo());
  if (indice == selezionato_) return;
  selezionato_ = indice;
  testo_proprio_ = voce(indice);
  if (indice >= 0) esegui_click();
}

void casella_elenco::scegli(int indice) {
  if (indice < 0 || indice >= conta()) throw errore_runtime(codice::chiamata_non_valida, nome_completo());
  selezionato_ = indice;
  testo_proprio_ = voce(indice);
  esegui_click();
}

std::string casella_elenco::testo() const { return testo_proprio_; }

int casella_elenco::cerca_prefisso(const std::string& prefisso) const {
  auto minuscolo = [](std::string t) {
    std::transform(t.begin(), t.end(), t.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return t;
  };
  std::string cercato = minuscolo(prefisso);
  for (int i = 0; i < conta(); ++i) {
    if (minuscolo(voci_[static_cast<size_t>(i)]).compare(0, cercato.size(), cercato) == 0) return i;
  }
  return -1;
}

void barra_avanzamento::imposta_valore(int valore) {
  if (valore < minimo || valore > massimo) throw errore_runtime(codice::chiamata_non_valida, nome_completo());
  valore_ = valore;
}

void griglia::dimensiona(int righe, int colonne) {
  righe_ = std::max(righe, 0);
  colonne_ = std::max(colonne, 0);
  testi_.assign(static_cast<size_t>(righe_ * colonne_), std::string());
  colori_.assign(static_cast<size_t>(righe_ * colonne_), bianco);
  larghezze_colonne.assign(static_cast<size_t>(colonne_), larghezza_propria);
  riga = colonna = riga_fine = colonna_fine = 0;
}

size_t griglia::posizione(int r, int c) const {
  if (r < 0 || r >= righe_ || c < 0 || c >= colonne_) throw errore_runtime(codice::indice_fuori_intervallo, nome_completo());
  return static_cast<size_t>(r * colonne_ + c);
}

void griglia::imposta_cella_corrente(int r, int c) {
  posizione(r, c);
  riga = r;
  colonna = c;
}

const std::string& griglia::testo_cella(int r, int c) const { return testi_[posizione(r, c)]; }
void griglia::imposta_testo_cella(int r, int c, const std::string& testo) { testi_[posizione(r, c)] = testo; }
int32_t griglia::colore_cella(int r, int c) const { return colori_[posizione(r, c)]; }
void griglia::imposta_colore_cella(int r, int c, int32_t colore) { colori_[posizione(r, c)] = colore; }

void griglia::selezione_utente(int r1, int c1, int r2, int c2) {
  posizione(r1, c1);
  posizione(r2, c2);
  riga = r1;
  colonna = c1;
  riga_fine = r2;
  colonna_fine = c2;
  if (al_rilascio_mouse) al_rilascio_mouse();
}

}  // namespace schedine
