#include <gtest/gtest.h>

#include <sstream>

#include "core/piattaforma.h"
#include "core/stato.h"
#include "printing/dispositivo_giornale.h"
#include "printing/giornale.h"
#include "printing/lavoro_stampa.h"
#include "printing/segna.h"

namespace schedine {
namespace {

struct caso_segno {
  uint8_t carattere_stampa;
  float x;
  float y;
  const char* riga;
};

class Segna : public ::testing::TestWithParam<caso_segno> {};

// A dot is centred on its point; a square hangs to the left of and below it.
TEST_P(Segna, DisegnaIlSegnoDelCarattere) {
  std::ostringstream uscita;
  giornale g(uscita);
  dispositivo_giornale d(g);
  segna(d, GetParam().carattere_stampa, GetParam().x, GetParam().y);
  EXPECT_EQ(uscita.str(), std::string(GetParam().riga) + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    Tabella, Segna,
    ::testing::Values(caso_segno{1, 5.72f, 24.6f, "disegna_cerchio 5.72 24.6 1"},
                      caso_segno{2, 30.5f, 40.25f, "disegna_rettangolo 30.5 40.25 28.5 42.25"},
                      caso_segno{0, 12.6f, 7.0f, "disegna_rettangolo 12.6 7 10.6 9"},
                      caso_segno{255, 1.5f, 0.0f, "disegna_rettangolo 1.5 0 -0.5 2"},
                      caso_segno{1, 0.0f, 0.0f, "disegna_cerchio 0 0 1"}));

class piattaforma_di_prova : public servizi_piattaforma {
 public:
  explicit piattaforma_di_prova(dispositivo_stampa& d) : dispositivo_(d) {}
  void esegui_eventi_in_attesa() override {}
  int messaggio(const std::string&, int, const std::string&) override { return risposta_ok; }
  void avvia_programma(const std::string&) override {}
  void carica_skin(const std::string&) override {}
  dispositivo_stampa& stampante() override { return dispositivo_; }

 private:
  dispositivo_stampa& dispositivo_;
};

TEST(SegnaSuStato, UsaLaStampanteEIlCarattereDelloStato) {
  std::ostringstream uscita;
  giornale g(uscita);
  dispositivo_giornale d(g);
  piattaforma_di_prova piattaforma(d);
  stato s;
  s.piattaforma = &piattaforma;
  s.carattere_stampa = 1;
  segna(s, 10.0f, 20.0f);
  s.carattere_stampa = 2;
  segna(s, 10.0f, 20.0f);
  EXPECT_EQ(uscita.str(), "disegna_cerchio 10 20 1\ndisegna_rettangolo 10 20 8 22\n");
}

TEST(LavoroStampa, AperturaEChiusuraNellOrdineDelDispositivo) {
  std::ostringstream uscita;
  giornale g(uscita);
  dispositivo_giornale d(g);
  prepara_lavoro_lotto(d);
  termina_lavoro(d);
  prepara_lavoro(d);
  termina_lavoro_senza_grassetto(d);
  EXPECT_EQ(uscita.str(),
            "imposta_modo_pagina 1\n"
            "imposta_scala_mm\nimposta_penna 1 1\nimposta_riempimento 0 0\ndisegna_punto_zero\n"
            "imposta_riempimento 1\nchiudi_stampa\n"
            "imposta_scala_mm\nimposta_penna 1 1\nimposta_riempimento 0 0\ndisegna_punto_zero\n"
            "imposta_font grassetto 0\nimposta_riempimento 1\nchiudi_stampa\n");
}

}  // namespace
}  // namespace schedine
