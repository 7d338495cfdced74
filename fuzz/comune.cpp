#include "fuzz/comune.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace schedine::fuzz {

namespace {

// A folder in memory when the machine has one: every input is a file
// written and read again, and a disk would make that the slowest step.
std::filesystem::path base() {
  std::error_code ec;
  if (std::filesystem::is_directory("/dev/shm", ec) && ::access("/dev/shm", W_OK) == 0) return "/dev/shm";
  return std::filesystem::temp_directory_path();
}

class cartella_run {
 public:
  cartella_run() {
    std::string modello = (base() / "schedine-fuzz-XXXXXX").string();
    if (::mkdtemp(modello.data()) == nullptr) {
      std::perror("mkdtemp");
      std::abort();
    }
    percorso_ = modello;
  }
  ~cartella_run() {
    std::error_code ec;
    std::filesystem::remove_all(percorso_, ec);
  }
  const std::string& percorso() const { return percorso_; }

 private:
  std::string percorso_;
};

}  // namespace

const std::string& cartella() {
  static const cartella_run run;
  return run.percorso();
}

std::string scrivi_file(std::string_view nome, const uint8_t* dati, size_t dimensione) {
  std::string percorso = cartella() + "/" + std::string(nome);
  // A new file rather than the old one emptied, which some file systems
  // flush to disk when it is closed.
  std::remove(percorso.c_str());
  std::ofstream file(percorso, std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(dati), static_cast<std::streamsize>(dimensione));
  file.close();
  richiedi(!file.fail(), "the input file could not be written");
  return percorso;
}

}  // namespace schedine::fuzz
