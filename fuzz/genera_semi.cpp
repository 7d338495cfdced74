// Writes the seed files of the calibration fuzz targets with the program's
// own factory and save routines, so that the fuzzer starts from real files:
//
//   genera_semi <corpus folder>
//
// For each slip, in <corpus>/tar_<slip>/: the factory file, the same with
// odd values (signs, tiny and huge Singles), cut in half, and with bare LF
// line ends.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "calibration/fabbrica.h"
#include "calibration/file_tar.h"
#include "core/stato.h"

using namespace schedine;
namespace fs = std::filesystem;

namespace {

struct slip {
  const char* nome;
  const char* file;
  void (*fabbrica)(stato&);
  void (*salva)(const stato&);
};

const slip slips[] = {
    {"lotto", "tarlo2", default_tar_lotto, salva_tar_lotto},
    {"enalotto", "taren", default_tar_enalotto, salva_tar_enalotto},
    {"enalotto2", "taren2", default_tar_enalotto2, salva_tar_enalotto2},
    {"wforlife", "tarwfl", default_tar_wforlife, salva_tar_wforlife},
    {"wforlife5", "tarwfl2", default_tar_wforlife5, salva_tar_wforlife5},
};

std::string leggi(const fs::path& percorso) {
  std::ifstream in(percorso, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

void scrivi(const fs::path& percorso, const std::string& testo) {
  std::ofstream(percorso, std::ios::binary) << testo;
}

std::string senza_cr(std::string testo) {
  std::erase(testo, '\r');
  return testo;
}

// Values whose text is long or unusual: a huge Single has 39 digits.
void valori_strani(stato& s) {
  s.interlinea_x = -0.4375f;
  s.interlinea_y = 1e-30f;
  s.tar_numeri(1, asse_x) = 3.4e38f;
  s.tar_numeri(2, asse_y) = -123.45678f;
  s.tab_coord(1, 1, asse_x) = 3.4e38f;
  s.tab_coord(1, 2, asse_y) = -1e-7f;
  s.carattere_stampa = 7;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: genera_semi <corpus folder>\n");
    return 2;
  }
  const fs::path corpus = argv[1];
  const fs::path lavoro = fs::temp_directory_path() / "schedine-genera-semi";
  fs::create_directories(lavoro);
  for (const slip& sl : slips) {
    auto s = std::make_unique<stato>();
    s->cartella_programma = lavoro.string();
    const fs::path uscita = corpus / (std::string("tar_") + sl.nome);
    fs::create_directories(uscita);

    sl.fabbrica(*s);
    const std::string fabbrica = leggi(lavoro / sl.file);
    scrivi(uscita / "fabbrica", fabbrica);
    scrivi(uscita / "tagliato", fabbrica.substr(0, fabbrica.size() / 2));
    scrivi(uscita / "solo_lf", senza_cr(fabbrica));

    valori_strani(*s);
    sl.salva(*s);
    scrivi(uscita / "strani", leggi(lavoro / sl.file));
  }
  fs::remove_all(lavoro);
  return 0;
}
