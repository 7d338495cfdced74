#pragma once
// A fresh folder for one test, removed at its end.

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace schedine::test {

class cartella_temporanea {
 public:
  cartella_temporanea() {
    std::random_device caso;
    percorso_ = std::filesystem::temp_directory_path() / ("schedine-" + std::to_string(caso()) + std::to_string(caso()));
    std::filesystem::create_directories(percorso_);
  }
  ~cartella_temporanea() {
    std::error_code ec;
    std::filesystem::permissions(percorso_, std::filesystem::perms::owner_all, std::filesystem::perm_options::add, ec);
    std::filesystem::remove_all(percorso_, ec);
  }
  cartella_temporanea(const cartella_temporanea&) = delete;
  cartella_temporanea& operator=(const cartella_temporanea&) = delete;

  std::string str() const { return percorso_.string(); }
  std::string file(const std::string& nome) const { return (percorso_ / nome).string(); }

  // Writes a file with exactly the given bytes, making its folders.
  std::string scrivi(const std::string& nome, const std::string& contenuto) const {
    auto percorso = percorso_ / nome;
    std::filesystem::create_directories(percorso.parent_path());
    std::ofstream(percorso, std::ios::binary) << contenuto;
    return percorso.string();
  }

  std::string leggi(const std::string& nome) const {
    std::ifstream in(percorso_ / nome, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  }

 private:
  std::filesystem::path percorso_;
};

}  // namespace schedine::test
