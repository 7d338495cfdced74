// Slips printed for real: the program's forms driven as a user drives them,
// the job sent by the desktop program's own printer to the machine's print
// scheduler, and the PDF that the scheduler's PDF queue writes read back as
// a person checking the paper would: every mark where the program put it,
// nothing else inked, and the text line saying what it should.
//
// Run through tests/stampante/con_cups.sh, which makes that queue the default
// printer and names its output folder in SCHEDINE_PDF_STAMPANTE.

#include <gtest/gtest.h>

#include <QString>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "core/errore_runtime.h"
#include "forms/programma/programma.h"
#include "printing/giornale.h"
#include "tests/printing/strumenti_pdf.h"
#include "tests/stampante/attesa_pdf.h"
#include "tests/stampante/pagine_attese.h"
#include "tests/stampante/piattaforma_stampa_reale.h"
#include "tests/support/cartella_temporanea.h"
#include "tools/scenario/analisi_scenario.h"
#include "tools/scenario/esecutore.h"

namespace schedine {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr int dpi = 300;
constexpr double scarto_massimo_mm = 0.2;   // from a mark's place to the centre of its ink
constexpr double margine_mm = 0.5;          // around a mark, where its ink may spread
constexpr double inchiostro_estraneo_mm2 = 0.05;
constexpr auto attesa_massima = 60s;

// ------------------------------------------------------------ the paper

struct zona {
  double x0, y0, x1, y1;
};

zona zona_del_segno(const prova::segno_atteso& s) {
  return {s.x - s.mezza_larghezza - margine_mm, s.y - s.mezza_altezza - margine_mm,
          s.x + s.mezza_larghezza + margine_mm, s.y + s.mezza_altezza + margine_mm};
}

// Where a line of text may ink: generously wide (every character as wide as
// the font is high) and a line and a half high.
zona zona_della_riga(const prova::riga_attesa& r) {
  const double altezza = r.punti * 25.4 / 72.0;
  return {r.x - margine_mm, r.y - margine_mm, r.x + altezza * static_cast<double>(r.testo.size()),
          r.y + 1.5 * altezza};
}

// The ink of the page outside the given zones: its area (mm²) and centre.
prova::macchia inchiostro_fuori(const prova::immagine_grigia& pagina, const std::vector<zona>& zone) {
  const double px_per_mm = pagina.dpi / 25.4;
  std::vector<bool> atteso(pagina.pixel.size(), false);
  for (const zona& z : zone) {
    const int c0 = std::max(0, static_cast<int>(z.x0 * px_per_mm));
    const int r0 = std::max(0, static_cast<int>(z.y0 * px_per_mm));
    const int c1 = std::min(pagina.larghezza, static_cast<int>(z.x1 * px_per_mm) + 1);
    const int r1 = std::min(pagina.altezza, static_cast<int>(z.y1 * px_per_mm) + 1);
    for (int r = r0; r < r1; ++r) {
      for (int c = c0; c < c1; ++c) atteso[static_cast<size_t>(r) * pagina.larghezza + c] = true;
    }
  }
  double peso = 0, sx = 0, sy = 0;
  for (int r = 0; r < pagina.altezza; ++r) {
    for (int c = 0; c < pagina.larghezza; ++c) {
      const size_t i = static_cast<size_t>(r) * pagina.larghezza + c;
      if (atteso[i]) continue;
      const double scuro = (255 - pagina.pixel[i]) / 255.0;
      peso += scuro;
      sx += scuro * (c + 0.5);
      sy += scuro * (r + 0.5);
    }
  }
  if (peso == 0) return {};
  return {sx / peso / px_per_mm, sy / peso / px_per_mm, peso / (px_per_mm * px_per_mm)};
}

void verifica_segni(const prova::immagine_grigia& pagina, const prova::pagina_attesa& attesa) {
  for (const prova::segno_atteso& s : attesa.segni) {
    SCOPED_TRACE(s.descrizione);
    const zona z = zona_del_segno(s);
    const prova::macchia m = prova::misura(pagina, z.x0, z.y0, z.x1, z.y1);
    ASSERT_GT(m.area, 0.0) << "nothing inked there";
    EXPECT_LE(std::hypot(m.x - s.x, m.y - s.y), scarto_massimo_mm) << "ink centred at (" << m.x << ", " << m.y << ")";
    // A mark of the wrong size is as wrong as one in the wrong place.
    if (s.pieno) {
      EXPECT_NEAR(m.area, s.area, 0.1 * s.area);
    }
  }
}

// Nothing is inked but the marks, the text lines and the dot at the origin
// that opens each page.
void verifica_nient_altro(const prova::immagine_grigia& pagina, const prova::pagina_attesa& attesa) {
  std::vector<zona> zone{{0, 0, 0.2, 0.2}};
  for (const auto& s : attesa.segni) zone.push_back(zona_del_segno(s));
  for (const auto& r : attesa.righe) {
    ASSERT_TRUE(r.posizione_nota) << "a text line printed without its position: " << r.testo;
    zone.push_back(zona_della_riga(r));
  }
  const prova::macchia fuori = inchiostro_fuori(pagina, zone);
  EXPECT_LT(fuori.area, inchiostro_estraneo_mm2)
      << "ink where nothing was printed, centred at (" << fuori.x << ", " << fuori.y << ") mm";
}

void verifica_righe(const prova::immagine_grigia& pagina, const prova::pagina_attesa& attesa) {
  for (const prova::riga_attesa& r : attesa.righe) {
    const zona z = zona_della_riga(r);
    EXPECT_GT(prova::misura(pagina, z.x0, z.y0, z.x1, z.y1).area, 0.5) << "the line \"" << r.testo << "\" is not inked";
  }
}

// The lines of text that pdftotext reads on each page, blanks trimmed and
// empty lines left out.
std::vector<std::vector<std::string>> righe_lette(const fs::path& pdf) {
  std::vector<std::vector<std::string>> pagine(1);
  std::istringstream testo(prova::testo_pdf(QString::fromStdString(pdf.string())));
  for (std::string riga; std::getline(testo, riga);) {
    for (size_t salto; (salto = riga.find('\f')) != std::string::npos;) {
      pagine.emplace_back();
      riga.erase(0, salto + 1);
    }
    const auto inizio = riga.find_first_not_of(" \t\r");
    if (inizio == std::string::npos) continue;
    pagine.back().push_back(riga.substr(inizio, riga.find_last_not_of(" \t\r") - inizio + 1));
  }
  return pagine;
}

void verifica_carta(const fs::path& pdf, const prova::lavoro_atteso& lavoro) {
  const QString file = QString::fromStdString(pdf.string());
  ASSERT_EQ(prova::conta_pagine(file), static_cast<int>(lavoro.size())) << pdf;
  const auto lette = righe_lette(pdf);
  for (size_t i = 0; i < lavoro.size(); ++i) {
    SCOPED_TRACE("page " + std::to_string(i + 1) + " of " + pdf.string());
    const prova::pagina_attesa& attesa = lavoro[i];
    std::vector<std::string> testi;
    for (const auto& r : attesa.righe) testi.push_back(r.testo);
    ASSERT_LT(i, lette.size());
    EXPECT_EQ(lette[i], testi);

    const prova::immagine_grigia pagina = prova::rasterizza(file, static_cast<int>(i) + 1, dpi);
    // A4 upright, the paper of the slips.
    EXPECT_NEAR(pagina.larghezza * 25.4 / dpi, 210.0, 0.5);
    EXPECT_NEAR(pagina.altezza * 25.4 / dpi, 297.0, 0.5);
    verifica_segni(pagina, attesa);
    verifica_righe(pagina, attesa);
    verifica_nient_altro(pagina, attesa);
  }
}

// ------------------------------------------------------------ the run

class StampaSuCups : public ::testing::Test {
 public:
  // How the job reaches the printer: at once, or recorded and printed from the preview.
  enum class via { diretta, anteprima };

 protected:
  void SetUp() override {
    const char* uscita = std::getenv("SCHEDINE_PDF_STAMPANTE");
    ASSERT_TRUE(uscita != nullptr && *uscita != '\0')
        << "no PDF printer set up: run this test through tests/stampante/con_cups.sh";
    cartella_pdf_ = uscita;
    ASSERT_TRUE(fs::is_directory(cartella_pdf_)) << cartella_pdf_;
    fs::create_directories(cartella_.file("skin"));
    for (const auto& skin : fs::directory_iterator(SCHEDINE_SKIN_DIR)) {
      fs::copy_file(skin.path(), fs::path(cartella_.file("skin")) / skin.path().filename());
    }
  }

  // Runs the user's actions on the program in the folder, then waits for the
  // one job they print to come out of the queue, and checks it.
  void stampa_e_verifica(const std::string& azioni, via strada = via::diretta) {
    const auto prima = prova::pdf_presenti(cartella_pdf_);
    if (strada == via::anteprima) piattaforma_.registra_come_anteprima();
    esegui(azioni);
    if (HasFatalFailure()) return;
    if (strada == via::anteprima) piattaforma_.stampa_registrato();
    ASSERT_EQ(annotazioni_.lavori().size(), 1u) << "the actions must print one job\n" << giornale_testo_.str();
    fs::path pdf;
    try {
      pdf = prova::attendi_pdf(cartella_pdf_, prima, attesa_massima);
    } catch (const std::exception& e) {
      FAIL() << e.what();
    }
    verifica_carta(pdf, annotazioni_.lavori()[0]);
  }

  const prova::lavoro_atteso& lavoro() const { return annotazioni_.lavori().at(0); }

  test::cartella_temporanea cartella_;

 private:
  void esegui(const std::string& testo) {
    const std::vector<scenario::azione> azioni = scenario::analizza_scenario(testo);
    programma p(cartella_.str(), piattaforma_, formato_locale::italiano());
    scenario::esecutore e(p, giornale_);
    e.controlla(azioni);
    for (const scenario::azione& a : azioni) {
      try {
        e.esegui(a);
      } catch (const errore_runtime& x) {
        FAIL() << "line " << a.riga << ": the program stopped: " << x.rapporto() << "\n" << giornale_testo_.str();
      } catch (const std::exception& x) {
        FAIL() << "line " << a.riga << ": " << x.what() << "\n" << giornale_testo_.str();
      }
    }
  }

  fs::path cartella_pdf_;
  std::ostringstream giornale_testo_;
  giornale giornale_{giornale_testo_};
  prova::pagine_attese annotazioni_;
  prova::piattaforma_stampa_reale piattaforma_{cartella_.str(), giornale_, annotazioni_};
};

size_t conta_segni(const prova::lavoro_atteso& lavoro) {
  size_t n = 0;
  for (const auto& p : lavoro) n += p.segni.size();
  return n;
}

// A conditioned cinquina system of three columns, one slip each, reaching
// the corners of the number grid; a stake, an extra bet and two wheels.
constexpr const char* cinquina_in_tre_schede = R"(
start
click Form1.Option1(3)
select Form1.List1 0
expect var sistema_scelto " lprovanud.txt"
click Form1.cmdok
click Form_sched_lotto_ambetto.ChCinquina(7)
click Form_sched_lotto_ambetto.ChEstratto(7)
click Form_sched_lotto_ambetto.ChRuote(0)
click Form_sched_lotto_ambetto.ChRuote(8)
click Form_sched_lotto_ambetto.cmdstampa(1)
)";

class StampaDelLotto : public StampaSuCups, public ::testing::WithParamInterface<StampaSuCups::via> {};

TEST_P(StampaDelLotto, SistemaInTreSchede) {
  cartella_.scrivi("cinquina/lprovanud.txt", "\"prova\",\"cups\",3\r\n");
  cartella_.scrivi("cinquina/lprovasyd.txt", "1,10,45,81,90\r\n2,19,37,64,83\r\n5,6,55,56,88\r\n");
  stampa_e_verifica(cinquina_in_tre_schede, GetParam());
  if (HasFatalFailure()) return;
  ASSERT_EQ(lavoro().size(), 3u);
  // Five numbers a slip, plus the slip's own marks.
  for (const auto& pagina : lavoro()) EXPECT_GT(pagina.segni.size(), 5u);
}

// Printed at once, and from the preview: the same paper either way.
INSTANTIATE_TEST_SUITE_P(Strade, StampaDelLotto, ::testing::Values(StampaSuCups::via::diretta, StampaSuCups::via::anteprima),
                         [](const auto& info) {
                           return info.param == StampaSuCups::via::diretta ? std::string("Diretta") : "DallAnteprima";
                         });

// A conditioned SuperEnalotto system of ten columns on the five-panel slip:
// two slips of five panels.
TEST_F(StampaSuCups, SistemaSuperEnalottoACinquePannelli) {
  cartella_.scrivi("superenalotto/eprovanue.txt", "\"prova\",\"cups\",10\r\n");
  cartella_.scrivi("superenalotto/eprovasye.txt",
                   "1,10,11,20,81,90\r\n5,15,25,35,45,55\r\n2,13,24,36,47,58\r\n60,69,70,79,80,89\r\n"
                   "3,14,26,38,50,62\r\n7,18,29,40,51,73\r\n8,19,30,41,52,74\r\n9,21,32,43,54,65\r\n"
                   "12,23,34,46,57,68\r\n4,16,27,39,61,85\r\n");
  stampa_e_verifica(R"(
start
click Form1.Option1(4)
select Form1.List1 0
expect var sistema_scelto " eprovanue.txt"
click Form1.cmdok
select Form_sched_enalotto.Combo1 4
click Form_sched_enalotto.cmdstampa(1)
)");
  if (HasFatalFailure()) return;
  ASSERT_EQ(lavoro().size(), 2u);
  EXPECT_EQ(conta_segni(lavoro()), 60u);
}

}  // namespace
}  // namespace schedine
