#include "tests/stampante/attesa_pdf.h"

#include <QProcess>
#include <algorithm>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace schedine::prova {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto passo = 100ms;
constexpr int passi_fermi = 3;  // the size unchanged this many steps running

bool finisce_come_pdf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  in.seekg(0, std::ios::end);
  const auto dimensione = static_cast<std::streamoff>(in.tellg());
  const std::streamoff coda = std::min<std::streamoff>(dimensione, 64);
  std::string fine(static_cast<size_t>(coda), '\0');
  in.seekg(dimensione - coda);
  in.read(fine.data(), coda);
  return in && fine.find("%%EOF") != std::string::npos;
}

std::vector<fs::path> nuovi(const fs::path& cartella, const std::set<fs::path>& prima) {
  std::vector<fs::path> trovati;
  for (const fs::path& f : pdf_presenti(cartella)) {
    if (!prima.contains(f)) trovati.push_back(f);
  }
  return trovati;
}

// What the scheduler still has to do, for the failure message.
std::string lavori_in_coda() {
  QProcess lpstat;
  lpstat.start("lpstat", {"-o"});
  if (!lpstat.waitForFinished(10000)) return "(lpstat gave no answer)";
  const QByteArray uscita = lpstat.readAllStandardOutput().trimmed();
  return uscita.isEmpty() ? "no job left in the queue" : "jobs in the queue:\n" + uscita.toStdString();
}

}  // namespace

std::set<fs::path> pdf_presenti(const fs::path& cartella) {
  std::set<fs::path> presenti;
  std::error_code ec;
  for (const auto& voce : fs::directory_iterator(cartella, ec)) {
    if (voce.path().extension() == ".pdf") presenti.insert(voce.path());
  }
  return presenti;
}

fs::path attendi_pdf(const fs::path& cartella, const std::set<fs::path>& prima, std::chrono::milliseconds limite) {
  const auto scadenza = std::chrono::steady_clock::now() + limite;
  std::uintmax_t dimensione = 0;
  int fermi = 0;
  while (std::chrono::steady_clock::now() < scadenza) {
    const std::vector<fs::path> trovati = nuovi(cartella, prima);
    if (trovati.size() > 1) throw std::runtime_error("the job gave more than one PDF file in " + cartella.string());
    if (trovati.size() == 1) {
      std::error_code ec;
      const std::uintmax_t ora = fs::file_size(trovati[0], ec);
      fermi = (!ec && ora > 0 && ora == dimensione) ? fermi + 1 : 0;
      dimensione = ec ? 0 : ora;
      if (fermi >= passi_fermi && finisce_come_pdf(trovati[0])) return trovati[0];
    }
    std::this_thread::sleep_for(passo);
  }
  const auto secondi = std::chrono::duration_cast<std::chrono::seconds>(limite).count();
  throw std::runtime_error("no complete PDF in " + cartella.string() + " within " + std::to_string(secondi) +
                           " s; " + lavori_in_coda());
}

}  // namespace schedine::prova
