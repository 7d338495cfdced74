#include "forms/calibration/modulo_taratura.h"

#include "controls/insieme_moduli.h"
#include "core/stato.h"
#include "forms/calibration/passi_taratura.h"

namespace schedine {

// The option buttons show the two marks as glyphs; the original drew them in a symbol font.
const char* const glifo_punto = "\u25CF";
const char* const glifo_quadrato = "\u25A0";
const char* const titolo_taratura = "Marendolia - Stampa Schedine Lotto e Superenalotto";
const char* const consiglio_lotto =
    "Per ottenere rapidamente una buona taratura spostarsi di pochi  'passi'  per  volta,  procedere  al  "
    "salvataggio delle  impostazioni  e  di verificare con  una  stampa di prova come le modifiche  "
    "abbiano influito sull'output di stampa.  Se non  si  è soddisfatti  del risultato allora si potrà "
    "procedere ad una ulteriore  regolazione secondo le esigenze della schedina.";
const char* const consiglio_wforlife =
    "Per ottenere rapidamente una buona taratura spostarsi di pochi 'passi' per volta, procedere al "
    "salvataggio delle impostazioni e di verificare con una stampa di prova come le modifiche abbiano "
    "influito sull'output di stampa.  Se  non  si  è soddisfatti  del  risultato allora si potrà "
    "procedere ad una ulteriore  regolazione secondo le esigenze della schedina.";

verso modulo_taratura::verso_freccia(const std::string& nome, int indice) const {
  auto trovato = versi_.find({nome, indice});
  if (trovato == versi_.end()) throw errore_runtime(codice::elemento_inesistente, nome_ + "." + nome);
  return trovato->second;
}

void modulo_taratura::colloca(controllo& c, float x, float y, float l, float a) {
  c.sinistra = x;
  c.alto = y;
  c.larghezza = l;
  c.altezza = a;
}

etichetta& modulo_taratura::metti_contatore(const std::string& nome, int indice, controllo* contenitore, float x,
                                            float y) {
  auto& contatore = metti<etichetta>(nome, indice, contenitore, x, y, 615, 255);
  azzera(contatore);
  return contatore;
}

void modulo_taratura::metti_frecce(const std::string& nome, controllo* contenitore, float x, float y, float lato,
                                   const std::array<verso, 4>& versi, std::function<void(int)> clic) {
  for (int i = 0; i < 4; ++i) {
    const verso v = versi[static_cast<size_t>(i)];
    float colonna = v == verso::sinistra ? 0 : v == verso::destra ? 2 : 1;
    float riga = v == verso::su ? 0 : v == verso::giu ? 2 : 1;
    auto& freccia = metti<pulsante>(nome, i, contenitore, x + colonna * lato, y + riga * lato, lato, lato);
    freccia.al_click = [clic, i] { clic(i); };
    versi_[{nome, i}] = v;
  }
}

cornice& modulo_taratura::metti_impostazioni(float x, float y, const char* consiglio) {
  auto& frame2 = metti<cornice>("Frame2", -1, nullptr, x, y, 4455, 2130);
  metti<forma>("Shape2", -1, &frame2, 15, 15, 4440, 2115);
  metti<etichetta>("Label1", 0, &frame2, 120, 435, 2400, 255).caption = "Scegli il carattere di stampa";
  metti<etichetta>("Label2", -1, &frame2, 120, 840, 4215, 1170).caption = consiglio;
  auto& punto = aggiungi_opzione("Option1", -1, &frame2);
  colloca(punto, 2640, 405, 615, 315);
  punto.caption = glifo_punto;
  auto& quadrato = aggiungi_opzione("Option2", -1, &frame2);
  colloca(quadrato, 3360, 405, 615, 315);
  quadrato.caption = glifo_quadrato;
  // Selected at design, before the form attaches its rules.
  punto.imposta_valore(true);
  return frame2;
}

void modulo_taratura::adatta_bordo(const cornice& frame, forma& bordo, float sinistra, float alto) {
  bordo.sinistra = sinistra;
  bordo.alto = alto;
  bordo.larghezza = frame.larghezza - 15;
  bordo.altezza = frame.altezza - 15;
}

void modulo_taratura::clic_interlinea(int indice, const anteprima_interlinea& anteprima, int segni,
                                      const std::function<forma&(int)>& segno, void (*ricalcola)(stato&)) {
  if (indice < 0 || indice > 3) return;
  const bool in_x = indice < 2;
  const int senso = (indice == 0 || indice == 2) ? -1 : 1;
  conta(c<etichetta>(in_x ? "lblInterX" : "lblInterY"), senso);
  aggiungi_passo(in_x ? s.interlinea_x : s.interlinea_y, 0.02f * static_cast<float>(senso));
  for (int i = 0; i < segni; ++i) {
    const int peso = in_x ? anteprima.peso_x(i) : anteprima.peso_y(i);
    if (peso == 0) continue;
    forma& f = segno(i);
    const float quanto = anteprima.base * static_cast<float>(peso * senso);
    (in_x ? f.sinistra : f.alto) += quanto;
  }
  ricalcola(s);
}

void modulo_taratura::imposta_carattere(uint8_t carattere) { s.carattere_stampa = carattere; }

void modulo_taratura::mostra_carattere_caricato() {
  if (s.carattere_stampa == 2) c<pulsante_opzione>("Option2").imposta_valore(true);
}

void modulo_taratura::torna_a_form1() { moduli("Form1").mostra(); }

}  // namespace schedine
