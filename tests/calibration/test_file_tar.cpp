#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <filesystem>
#include <functional>
#include <regex>

#include "calibration/assicura_tar.h"
#include "calibration/fabbrica.h"
#include "calibration/file_tar.h"
#include "core/errore_runtime.h"
#include "core/stato.h"
#include "tests/support/cartella_temporanea.h"
#include "tests/support/numero_errore.h"

namespace schedine {
namespace {

// Values a calibration may hold that a careless number text would not give back.
constexpr float strani[] = {-12.5f,      1e-30f,  1e-7f,   123456.7f, -0.4375f, 0.1f,  1.0f / 3.0f, 3.4e38f,
                            -0.0f,       1e-45f,  7.0f,    0.0f,      99.99f,   -1e6f, 5.7200003f,  1.17549435e-38f,
                            -123.45678f, 16.62f,  2.5e-5f, 1e10f};

float strano(int k) { return strani[static_cast<size_t>(k) % std::size(strani)]; }

template <class F>
void ogni_tabella_lotto(stato& s, F f) {
  f(s.tar_numeri), f(s.tar_numeri_10e), f(s.tar_sistemi), f(s.tar_gio_mult), f(s.tar_totale), f(s.tar_estratto);
  f(s.tar_ambo), f(s.tar_terno), f(s.tar_quaterna), f(s.tar_cinquina), f(s.tar_ruote), f(s.tar_ambetto);
  f(s.tar_det_posizione), f(s.tar_det_importo), f(s.tar_tipo_estrazione), f(s.tar_importo_10elotto);
}

// Every value of the Lotto set and of tab_coord, starting from a different odd value per seme.
void riempi(stato& s, int seme) {
  int k = seme;
  ogni_tabella_lotto(s, [&](auto& t) {
    for (int r = 0; r < t.righe; ++r) {
      t(r, 0) = strano(k++);
      t(r, 1) = strano(k++);
    }
  });
  s.tar_nazionale(0) = strano(k++);
  s.tar_nazionale(1) = strano(k++);
  s.interlinea_x = strano(k++);
  s.interlinea_y = strano(k++);
  for (int g = 0; g < tabella_coord::gruppi; ++g) {
    for (int r = 0; r < tabella_coord::righe; ++r) {
      s.tab_coord(g, r, 0) = strano(k++);
      s.tab_coord(g, r, 1) = strano(k++);
    }
  }
}

template <class T>
bool stessi_bit(const T& a, const T& b) {
  return std::memcmp(&a, &b, sizeof(T)) == 0;
}

bool stessi_bit_lotto(stato& a, stato& b) {
  bool uguali = stessi_bit(a.tar_nazionale, b.tar_nazionale) && stessi_bit(a.interlinea_x, b.interlinea_x) &&
                stessi_bit(a.interlinea_y, b.interlinea_y);
  std::vector<const void*> tabelle_b;
  ogni_tabella_lotto(b, [&](auto& t) { tabelle_b.push_back(&t); });
  size_t i = 0;
  ogni_tabella_lotto(a, [&](auto& t) {
    uguali = uguali && std::memcmp(&t, tabelle_b[i++], sizeof t) == 0;
  });
  return uguali;
}

std::vector<std::string> righe_crlf(const std::string& testo) {
  std::vector<std::string> righe;
  size_t inizio = 0;
  for (size_t fine; (fine = testo.find("\r\n", inizio)) != std::string::npos; inizio = fine + 2) {
    righe.push_back(testo.substr(inizio, fine - inizio));
  }
  EXPECT_EQ(inizio, testo.size()) << "the file must end with CR LF";
  for (const auto& riga : righe) EXPECT_EQ(riga.find_first_of("\r\n"), std::string::npos) << "a bare CR or LF";
  return righe;
}

using test::numero_errore;

class FileTar : public ::testing::Test {
 protected:
  FileTar() { s.cartella_programma = cartella.str(); }
  test::cartella_temporanea cartella;
  stato s;
};

struct file_di_slip {
  const char* nome;
  void (*fabbrica)(stato&);
  void (*salva)(const stato&);
  void (*carica)(stato&);
  size_t righe;
  const char* prima_riga;
  int gruppi;      // panel files only
  int righe_tab;   // panel files only
};

const file_di_slip files[] = {
    {"tarlo2", default_tar_lotto, salva_tar_lotto, carica_tar_lotto, 412, "0,0,5.7200003,24.6,", 0, 0},
    {"taren", default_tar_enalotto, salva_tar_enalotto, carica_tar_enalotto, 452, "8.94,29.11,", 5, 90},
    {"taren2", default_tar_enalotto2, salva_tar_enalotto2, carica_tar_enalotto2, 362, "64.2,22.875,", 4, 90},
    {"tarwfl", default_tar_wforlife, salva_tar_wforlife, carica_tar_wforlife, 362, "12.09,45.18,", 4, 90},
    {"tarwfl2", default_tar_wforlife5, salva_tar_wforlife5, carica_tar_wforlife5, 842, "11.77,47.31,", 8, 105},
};

const std::regex riga_xy(R"(-?[0-9]*\.?[0-9]+,-?[0-9]*\.?[0-9]+,)");

TEST_F(FileTar, FactoryFilesHaveTheirExactLines) {
  for (const auto& f : files) {
    SCOPED_TRACE(f.nome);
    stato fresco;
    fresco.cartella_programma = cartella.str();
    f.fabbrica(fresco);
    const auto righe = righe_crlf(cartella.leggi(f.nome));
    ASSERT_EQ(righe.size(), f.righe);
    EXPECT_EQ(righe.front(), f.prima_riga);
    const size_t ultima_tabella = f.gruppi ? righe.size() - 2 : 406;
    for (size_t i = 1; i < ultima_tabella; ++i) {
      EXPECT_TRUE(righe[i].empty() || std::regex_match(righe[i], riga_xy)) << "line " << i + 1 << ": " << righe[i];
    }
    if (f.gruppi) {
      EXPECT_EQ(righe[righe.size() - 2], "");
      EXPECT_EQ(righe.back(), "1");
    }
  }
}

TEST_F(FileTar, LottoFileHasItsBlankLinesAndTail) {
  default_tar_lotto(s);
  const auto righe = righe_crlf(cartella.leggi("tarlo2"));
  ASSERT_EQ(righe.size(), 412u);
  // Blank lines between the segments, 1-based line numbers.
  for (int n : {181, 191, 202, 224, 246, 268, 290, 312, 334, 346, 368, 372, 379, 401}) {
    EXPECT_EQ(righe[n - 1], "") << n;
  }
  EXPECT_EQ(std::count(righe.begin(), righe.begin() + 406, ""), 14);
  EXPECT_EQ(righe[179], "0,0,");  // tar_numeri_10e row 90, never set by the factory
  EXPECT_EQ(righe[406], "89.33,81.380005");  // 23.3 + 5.28 · 11 in Single
  EXPECT_EQ(righe[407], "");
  EXPECT_EQ(righe[408], "");
  EXPECT_EQ(righe[409], "1");
  EXPECT_EQ(righe[410], "");
  EXPECT_EQ(righe[411], "3");
}

TEST_F(FileTar, LottoSaveAndLoadGiveEveryValueBackBitForBit) {
  riempi(s, 0);
  s.carattere_stampa = 2;
  s.riserva_tarlo = 0;
  salva_tar_lotto(s);
  stato letto;
  letto.cartella_programma = s.cartella_programma;
  carica_tar_lotto(letto);

  // What is in no file stays as a fresh state has it.
  stato atteso = s;
  atteso.tar_numeri(0, 0) = atteso.tar_numeri(0, 1) = 0.0f;
  atteso.tar_numeri_10e(0, 0) = atteso.tar_numeri_10e(0, 1) = 0.0f;
  for (int r = 5; r <= 20; ++r) atteso.tar_det_posizione(r, 0) = atteso.tar_det_posizione(r, 1) = 0.0f;
  for (int r = 6; r <= 20; ++r) atteso.tar_importo_10elotto(r, 0) = atteso.tar_importo_10elotto(r, 1) = 0.0f;
  EXPECT_TRUE(stessi_bit_lotto(letto, atteso));
  EXPECT_EQ(letto.carattere_stampa, 2);
  EXPECT_EQ(letto.riserva_tarlo, 3);
}

TEST_F(FileTar, PanelSaveAndLoadGiveEveryValueBackBitForBit) {
  riempi(s, 3);
  s.carattere_stampa = 2;
  for (const auto& f : files) {
    if (!f.gruppi) continue;
    SCOPED_TRACE(f.nome);
    f.salva(s);
    stato letto;
    letto.cartella_programma = s.cartella_programma;
    f.carica(letto);
    for (int g = 0; g < tabella_coord::gruppi; ++g) {
      for (int r = 0; r < tabella_coord::righe; ++r) {
        const bool nel_file = g >= 1 && g <= f.gruppi && r >= 1 && r <= f.righe_tab;
        for (int a = 0; a < 2; ++a) {
          const float atteso = nel_file ? s.tab_coord(g, r, a) : 0.0f;
          EXPECT_TRUE(stessi_bit(letto.tab_coord(g, r, a), atteso)) << g << "," << r << "," << a;
        }
      }
    }
    EXPECT_EQ(letto.carattere_stampa, 2);
  }
}

TEST_F(FileTar, AnyMarkButTheDotIsSavedAsTwo) {
  for (const auto& f : files) {
    SCOPED_TRACE(f.nome);
    s.carattere_stampa = 7;
    f.salva(s);
    const auto righe = righe_crlf(cartella.leggi(f.nome));
    EXPECT_EQ(righe[f.gruppi ? righe.size() - 1 : 409], "2");
    f.carica(s);
    EXPECT_EQ(s.carattere_stampa, 2);
  }
}

TEST_F(FileTar, ReadsNumbersWithoutLeadingZeroOrWithASign) {
  std::string testo = ".5,-.5,\r\n -0.25 ,+3,\r\n1e1,2.50,\r\n";
  for (int i = 3; i < 450; ++i) testo += "0,0,\r\n";
  cartella.scrivi("taren", testo + "\r\n2\r\n");
  carica_tar_enalotto(s);
  EXPECT_EQ(s.tab_coord(1, 1, 0), 0.5f);
  EXPECT_EQ(s.tab_coord(1, 1, 1), -0.5f);
  EXPECT_EQ(s.tab_coord(1, 2, 0), -0.25f);
  EXPECT_EQ(s.tab_coord(1, 2, 1), 3.0f);
  EXPECT_EQ(s.tab_coord(1, 3, 0), 10.0f);
  EXPECT_EQ(s.carattere_stampa, 2);
}

// The first n lines of a file, with their line ends.
std::string prime_righe(const std::string& testo, int n) {
  size_t fine = 0;
  for (int i = 0; i < n; ++i) fine = testo.find("\r\n", fine) + 2;
  return testo.substr(0, fine);
}

TEST_F(FileTar, ALottoFileCutShortLeavesTheLaterTablesAsTheyWere) {
  riempi(s, 0);
  salva_tar_lotto(s);
  cartella.scrivi("tarlo2", prime_righe(cartella.leggi("tarlo2"), 180));
  stato letto;
  letto.cartella_programma = s.cartella_programma;
  riempi(letto, 5);
  letto.carattere_stampa = 9;
  const stato prima = letto;
  EXPECT_NO_THROW(carica_tar_lotto(letto));
  EXPECT_TRUE(stessi_bit(letto.interlinea_y, s.interlinea_y));
  for (int r = 1; r <= 90; ++r) {
    EXPECT_TRUE(stessi_bit(letto.tar_numeri(r, 1), s.tar_numeri(r, 1)));
    EXPECT_TRUE(stessi_bit(letto.tar_numeri_10e(r, 0), s.tar_numeri_10e(r, 0)));
  }
  EXPECT_TRUE(stessi_bit(letto.tar_sistemi, prima.tar_sistemi));
  EXPECT_TRUE(stessi_bit(letto.tar_det_posizione, prima.tar_det_posizione));
  EXPECT_TRUE(stessi_bit(letto.tar_nazionale, prima.tar_nazionale));
  EXPECT_EQ(letto.carattere_stampa, 9);
}

TEST_F(FileTar, TolerantLoadsPassOverAMissingFile) {
  riempi(s, 1);
  const stato prima = s;
  EXPECT_NO_THROW(carica_tar_lotto(s));
  EXPECT_NO_THROW(carica_tar_wforlife5(s));
  EXPECT_TRUE(stessi_bit_lotto(s, const_cast<stato&>(prima)));
  EXPECT_TRUE(stessi_bit(s.tab_coord, prima.tab_coord));
}

TEST_F(FileTar, AFivePanelWinForLifeFileCutShortKeepsTheRest) {
  riempi(s, 0);
  salva_tar_wforlife5(s);
  cartella.scrivi("tarwfl2", prime_righe(cartella.leggi("tarwfl2"), 105));
  stato letto;
  letto.cartella_programma = s.cartella_programma;
  riempi(letto, 5);
  const stato prima = letto;
  EXPECT_NO_THROW(carica_tar_wforlife5(letto));
  EXPECT_TRUE(stessi_bit(letto.tab_coord(1, 105, 1), s.tab_coord(1, 105, 1)));
  EXPECT_TRUE(stessi_bit(letto.tab_coord(2, 1, 0), prima.tab_coord(2, 1, 0)));
}

TEST_F(FileTar, StrictLoadsFailOnAShortOrMissingFile) {
  default_tar_enalotto(s);
  cartella.scrivi("taren", prime_righe(cartella.leggi("taren"), 100));
  EXPECT_EQ(numero_errore([&] { carica_tar_enalotto(s); }), codice::input_oltre_fine);

  for (auto carica : {carica_tar_enalotto2, carica_tar_wforlife}) {
    try {
      carica(s);
      ADD_FAILURE() << "a missing file must fail";
    } catch (const errore_runtime& e) {
      EXPECT_EQ(e.numero(), codice::file_non_trovato);
      EXPECT_NE(e.dettaglio().find(carica == carica_tar_wforlife ? "tarwfl" : "taren2"), std::string::npos);
    }
  }
}

TEST_F(FileTar, ASaveIntoAMissingFolderFails) {
  s.cartella_programma = cartella.file("manca");
  for (const auto& f : files) EXPECT_NE(numero_errore([&] { f.salva(s); }), 0) << f.nome;
}

// Files may grow no further than limite bytes while it lives: a write past it
// fails as on a full disk.
class limite_file {
 public:
  explicit limite_file(rlim_t limite) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &prima_);
    rlimit nuovo = prima_;
    nuovo.rlim_cur = limite;
    setrlimit(RLIMIT_FSIZE, &nuovo);
  }
  ~limite_file() { setrlimit(RLIMIT_FSIZE, &prima_); }

 private:
  rlimit prima_{};
};

TEST_F(FileTar, AFailedSaveLeavesTheOldFileWhole) {
  for (const auto& f : files) {
    SCOPED_TRACE(f.nome);
    default_tar_wforlife5(s);  // any values
    s.carattere_stampa = 1;
    f.salva(s);
    const std::string vecchio = cartella.leggi(f.nome);
    riempi(s, 2);
    int numero = 0;
    {
      limite_file limite(200);
      numero = numero_errore([&] { f.salva(s); });
    }
    EXPECT_NE(numero, 0);
    EXPECT_EQ(cartella.leggi(f.nome), vecchio);
  }
  size_t file_nella_cartella = 0;
  for ([[maybe_unused]] const auto& voce : std::filesystem::directory_iterator(cartella.str())) ++file_nella_cartella;
  EXPECT_EQ(file_nella_cartella, std::size(files)) << "no temporary file is left behind";
}

// The run-time error number of the action, run as a user without privileges
// when this one has them (a super-user writes into read-only folders): in a
// child process that takes the identity of "nobody" and exits with the number.
int numero_errore_senza_privilegi(const std::function<void()>& azione) {
  if (geteuid() != 0) return numero_errore(azione);
  pid_t figlio = fork();
  if (figlio == 0) {
    constexpr uid_t nessuno = 65534;
    if (setgid(nessuno) != 0 || setuid(nessuno) != 0) _exit(255);
    _exit(numero_errore(azione));
  }
  int stato_figlio = 0;
  if (figlio < 0 || waitpid(figlio, &stato_figlio, 0) != figlio || !WIFEXITED(stato_figlio)) return -1;
  return WEXITSTATUS(stato_figlio);
}

TEST_F(FileTar, ASaveIntoAReadOnlyFolderFailsAndKeepsTheOldFile) {
  for (const auto& f : files) {
    SCOPED_TRACE(f.nome);
    default_tar_enalotto(s);
    f.salva(s);
    const std::string vecchio = cartella.leggi(f.nome);
    // Readable and searchable by anyone, writable by no one.
    namespace fs = std::filesystem;
    fs::permissions(cartella.str(), fs::perms::owner_read | fs::perms::owner_exec | fs::perms::group_read |
                                        fs::perms::group_exec | fs::perms::others_read | fs::perms::others_exec);
    riempi(s, 3);
    EXPECT_EQ(numero_errore_senza_privilegi([&] { f.salva(s); }), codice::autorizzazione_negata);
    std::filesystem::permissions(cartella.str(), std::filesystem::perms::owner_all);
    EXPECT_EQ(cartella.leggi(f.nome), vecchio);
  }
}

TEST_F(FileTar, AFullDiskIsReportedAsSuchNamingTheFile) {
  for (const auto& f : files) {
    SCOPED_TRACE(f.nome);
    limite_file limite(200);
    try {
      f.salva(s);
      ADD_FAILURE() << "a save that does not fit must fail";
    } catch (const errore_runtime& e) {
      EXPECT_EQ(e.numero(), codice::disco_pieno);
      EXPECT_NE(e.dettaglio().find(f.nome), std::string::npos);
    }
  }
}

TEST_F(FileTar, EnsuringACalibrationMakesItOnlyWhenMissing) {
  assicura_tar_wforlife5(s);
  EXPECT_NEAR(s.tab_coord(8, 105, 0), 76.63f, 1e-4);
  s.tab_coord(8, 105, 0) = 1.5f;
  salva_tar_wforlife5(s);
  s.tab_coord(8, 105, 0) = 0.0f;
  assicura_tar_wforlife5(s);
  EXPECT_EQ(s.tab_coord(8, 105, 0), 1.5f);

  assicura_tar_lotto(s);
  EXPECT_EQ(s.riserva_tarlo, 3);
  EXPECT_TRUE(std::filesystem::exists(cartella.file("tarlo2")));
}

}  // namespace
}  // namespace schedine
