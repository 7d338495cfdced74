// schedine-demo DIR: fills DIR with sample saved systems of every game and
// kind, the skin folder and no hand-over file, ready for the desktop program
// or the scenario runner to open.

#include <filesystem>
#include <iostream>
#include <system_error>

#include "tools/demo/genera_demo.h"

namespace {

// The skins shipped beside this program when it is installed, else those of
// the source tree it was built from.
std::filesystem::path cartella_skin() {
  std::error_code ec;
  auto eseguibile = std::filesystem::canonical("/proc/self/exe", ec);
  if (!ec && std::filesystem::is_directory(eseguibile.parent_path() / "skin")) return eseguibile.parent_path() / "skin";
  return SCHEDINE_SKIN_SORGENTE;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: schedine-demo DIR\n";
    return 2;
  }
  try {
    auto sistemi = schedine::demo::genera_demo(argv[1], cartella_skin().string());
    std::cout << "Sistemi di esempio in " << argv[1] << ":\n";
    for (const auto& s : sistemi) {
      std::cout << "  " << s.testata << "  (" << s.colonne << " colonne di " << s.numeri << " numeri)\n";
    }
  } catch (const std::exception& e) {
    std::cerr << "schedine-demo: " << e.what() << "\n";
    return 1;
  }
  return 0;
}
