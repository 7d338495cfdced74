// schedine-scenario: runs a scenario of user events on the program in a
// folder, without a screen, and writes the journal of what it did.
//
//   schedine-scenario [--folder DIR] [--journal FILE] [--pdf FILE] [--anteprima FILE] [--locale NAME] SCENARIO
//
// Exit status: 0 ran and every check held, 1 a check failed, 2 a line not
// understood or naming an unknown form, control or variable, 3 a run-time
// error ended the program, 4 the runner could not do its job (a PDF that
// can't be written whole, a fault of its own).

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <sstream>
#include <string>

#include "printing/dispositivo_doppio.h"
#include "printing/giornale.h"
#include "tools/scenario/esecuzione.h"
#include "tools/scenario/esito.h"
#include "tools/scenario/uscita_pdf.h"

namespace {

using namespace schedine;
using namespace schedine::scenario;

struct opzioni {
  std::string cartella = ".";
  std::optional<std::string> giornale;
  std::optional<std::string> pdf;
  std::optional<std::string> anteprima;
  std::string locale = "it_IT";
  std::string scenario;
};

constexpr const char* uso =
    "usage: schedine-scenario [--folder DIR] [--journal FILE] [--pdf FILE] [--anteprima FILE] [--locale NAME] "
    "SCENARIO\n";

// Reads "--name VALUE" or "--name=VALUE"; false when argv[i] is another option.
bool opzione(const char* nome, int argc, char** argv, int& i, std::string& valore) {
  std::string argomento = argv[i];
  std::string lungo = std::string("--") + nome;
  if (argomento.rfind(lungo + "=", 0) == 0) {
    valore = argomento.substr(lungo.size() + 1);
    return true;
  }
  if (argomento != lungo) return false;
  if (i + 1 >= argc) throw std::invalid_argument(lungo + " needs a value");
  valore = argv[++i];
  return true;
}

opzioni leggi_opzioni(int argc, char** argv) {
  opzioni o;
  for (int i = 1; i < argc; ++i) {
    std::string valore;
    if (opzione("folder", argc, argv, i, valore)) {
      o.cartella = valore;
    } else if (opzione("journal", argc, argv, i, valore)) {
      o.giornale = valore;
    } else if (opzione("pdf", argc, argv, i, valore)) {
      o.pdf = valore;
    } else if (opzione("anteprima", argc, argv, i, valore)) {
      o.anteprima = valore;
    } else if (opzione("locale", argc, argv, i, valore)) {
      o.locale = valore;
    } else if (std::string(argv[i]).rfind("--", 0) == 0 || !o.scenario.empty()) {
      throw std::invalid_argument(std::string("unexpected argument ") + argv[i]);
    } else {
      o.scenario = argv[i];
    }
  }
  if (o.scenario.empty()) throw std::invalid_argument("no scenario given");
  return o;
}

std::optional<std::string> leggi_file(const std::string& percorso) {
  std::ifstream ingresso(percorso, std::ios::binary);
  if (!ingresso) return std::nullopt;
  std::ostringstream contenuto;
  contenuto << ingresso.rdbuf();
  return contenuto.str();
}

// What keeps a file from being written, told before the run so that a PDF
// that can't be written never changes what the program does; empty when nothing does.
std::string ostacolo_alla_scrittura(const std::string& percorso) {
  namespace fs = std::filesystem;
  std::error_code ec;
  fs::path cartella = fs::path(percorso).parent_path();
  if (cartella.empty()) cartella = ".";
  if (!fs::is_directory(cartella, ec)) return "no such folder";
  const bool esiste = fs::exists(percorso, ec);
  if (::access((esiste ? fs::path(percorso) : cartella).c_str(), W_OK) != 0) return std::strerror(errno);
  if (esiste && fs::is_directory(percorso, ec)) return "it is a folder";
  return {};
}

int esegui(const opzioni& o) {
  std::optional<std::string> testo = leggi_file(o.scenario);
  if (!testo) {
    std::cerr << o.scenario << ": cannot read the scenario\n";
    return esito::non_valido;
  }
  std::error_code ec;
  if (!std::filesystem::is_directory(o.cartella, ec)) {
    std::cerr << o.cartella << ": no such folder\n";
    return esito::non_valido;
  }
  if ((o.pdf || o.anteprima) && !pdf_disponibile()) {
    std::cerr << (o.pdf ? "--pdf" : "--anteprima") << " is not available: this build has no Qt\n";
    return esito::non_valido;
  }
  for (const auto& file : {o.pdf, o.anteprima}) {
    if (!file) continue;
    if (std::string perche = ostacolo_alla_scrittura(*file); !perche.empty()) {
      std::cerr << *file << ": cannot write the PDF: " << perche << "\n";
      return esito::guasto_interno;
    }
  }
  std::unique_ptr<uscita_pdf> pdf;
  if (o.pdf) pdf = apri_uscita_pdf(*o.pdf);
  // Made after the plain PDF, so that it goes first and the application it shares stays to the end.
  std::unique_ptr<uscita_pdf> anteprima;
  if (o.anteprima) anteprima = apri_uscita_anteprima(*o.anteprima);
  std::optional<dispositivo_doppio> entrambi;
  if (pdf && anteprima) entrambi.emplace(pdf->dispositivo(), anteprima->dispositivo());
  dispositivo_stampa* altro = entrambi ? &*entrambi : pdf ? &pdf->dispositivo() : anteprima ? &anteprima->dispositivo() : nullptr;
  std::ofstream file_giornale;
  if (o.giornale) {
    file_giornale.open(*o.giornale, std::ios::binary | std::ios::trunc);
    if (!file_giornale) {
      std::cerr << *o.giornale << ": cannot write the journal\n";
      return esito::non_valido;
    }
  }
  std::ostream& uscita = o.giornale ? static_cast<std::ostream&>(file_giornale) : std::cout;

  risultato r;
  {
    giornale g(uscita);
    r = esegui_testo_scenario(*testo, o.cartella, formato_locale::da_nome(o.locale), g, altro,
                              [&anteprima](const stato& s) {
                                if (anteprima) anteprima->collega_stato(s);
                              });
  }
  // Both files are finished; one not written whole fails the run.
  std::string guasto_pdf;
  for (auto [uscita, file] : {std::pair{pdf.get(), o.pdf}, std::pair{anteprima.get(), o.anteprima}}) {
    if (uscita == nullptr) continue;
    std::string perche = uscita->termina();
    if (!perche.empty() && guasto_pdf.empty()) guasto_pdf = *file + ": " + perche;
  }
  if (!guasto_pdf.empty()) {
    std::cerr << guasto_pdf << "\n";
    return esito::guasto_interno;
  }
  if (r.stato != esito::riuscito) {
    std::cerr << o.scenario << ":" << r.riga << ": ";
    if (r.stato == esito::errore_programma) std::cerr << "run-time error: ";
    std::cerr << r.messaggio << "\n";
  }
  return r.stato;
}

}  // namespace

int main(int argc, char** argv) {
  opzioni o;
  try {
    o = leggi_opzioni(argc, argv);
  } catch (const std::invalid_argument& e) {
    std::cerr << e.what() << "\n" << uso;
    return esito::non_valido;
  }
  try {
    return esegui(o);
  } catch (const std::exception& e) {
    std::cerr << "internal fault: " << e.what() << "\n";
    return esito::guasto_interno;
  }
}
