#pragma once
// The bench of the renderer tests: a state with the test platform, the test
// slip forms and a program folder, and readers of the journal's marks.

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "controls/insieme_moduli.h"
#include "core/stato.h"
#include "printing/dispositivo_giornale.h"
#include "printing/giornale.h"
#include "tests/printing/moduli_prova.h"
#include "tests/support/cartella_temporanea.h"
#include "tests/support/piattaforma_prova.h"

namespace schedine::test {

// A mark as the journal shows it: a dot with its centre and radius, or a box with two corners.
struct segno {
  std::string tipo;
  std::vector<float> valori;
  bool operator==(const segno&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const segno& s) {
    out << s.tipo;
    for (float v : s.valori) out << ' ' << numero_giornale(v);
    return out;
  }
};

inline segno punto(float x, float y) { return {"disegna_cerchio", {x, y, 1.0f}}; }
inline segno quadro(float x1, float y1, float x2, float y2) { return {"disegna_rettangolo", {x1, y1, x2, y2}}; }
inline std::string posizione_testo(float x, float y) {
  return "posiziona_testo " + numero_giornale(x) + " " + numero_giornale(y);
}

// The marks of a journal in order (the zero dot is no mark), and its printed texts.
inline std::vector<segno> segni_di(const std::vector<std::string>& righe) {
  std::vector<segno> risultato;
  for (const auto& riga : righe) {
    std::istringstream in(riga);
    segno s;
    in >> s.tipo;
    if (s.tipo != "disegna_cerchio" && s.tipo != "disegna_rettangolo") continue;
    for (std::string numero; in >> numero;) s.valori.push_back(std::stof(numero));
    risultato.push_back(s);
  }
  return risultato;
}
inline std::vector<std::string> testi_di(const std::vector<std::string>& righe) {
  std::vector<std::string> risultato;
  const std::string inizio = "stampa_testo \"";
  for (const auto& riga : righe) {
    if (riga.rfind(inizio, 0) == 0) risultato.push_back(riga.substr(inizio.size(), riga.size() - inizio.size() - 1));
  }
  return risultato;
}

struct banco_schede {
  banco_schede() {
    s.cartella_programma = cartella.str();
    s.piattaforma = &piattaforma;
    s.moduli = &moduli;
    s.carattere_stampa = 1;
    s.dalla_scheda = 1;
    registra_moduli_prova(moduli);
  }
  std::vector<std::string> righe() { return piattaforma.righe(); }
  std::vector<segno> segni() { return segni_di(righe()); }
  std::vector<std::string> testi() { return testi_di(righe()); }
  segno su(int gruppo, int riga) const { return punto(s.tab_coord(gruppo, riga, asse_x), s.tab_coord(gruppo, riga, asse_y)); }
  template <class Tabella>
  segno su(const Tabella& tabella, int riga) const {
    return punto(tabella(riga, asse_x), tabella(riga, asse_y));
  }

  cartella_temporanea cartella;
  piattaforma_prova piattaforma;
  stato s;
  insieme_moduli moduli{s};
};

// A test fixture whose tables start from a slip's factory values.
template <void (*fabbrica)(stato&)>
struct con_tabelle : ::testing::Test, banco_schede {
  con_tabelle() {
    fabbrica(s);
    righe();  // the factory routine's output is no part of the test
  }
};

// A journal printer that fails at its n-th dot, as a device may fail mid-page.
struct registro_giornale {
  std::ostringstream testo;
  giornale destinazione{testo};
};
class dispositivo_guasto : private registro_giornale, public dispositivo_giornale {
 public:
  explicit dispositivo_guasto(int guasto_al) : dispositivo_giornale(destinazione), guasto_al_(guasto_al) {}
  void disegna_cerchio(float x, float y, float raggio) override {
    if (++cerchi_ == guasto_al_) throw errore_runtime(codice::errore_stampante);
    dispositivo_giornale::disegna_cerchio(x, y, raggio);
  }
  std::vector<std::string> righe() {
    destinazione.svuota();
    std::vector<std::string> risultato;
    std::istringstream in(testo.str());
    for (std::string riga; std::getline(in, riga);) risultato.push_back(riga);
    return risultato;
  }

 private:
  int guasto_al_;
  int cerchi_ = 0;
};

class piattaforma_guasta : public piattaforma_prova {
 public:
  explicit piattaforma_guasta(int guasto_al) : dispositivo(guasto_al) {}
  dispositivo_stampa& stampante() override { return dispositivo; }
  dispositivo_guasto dispositivo;
};

}  // namespace schedine::test
