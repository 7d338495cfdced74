#pragma once
// What every fuzz target shares. The readers under test open files by path,
// so each input is written to a file in a folder of the run's own first.
// A run-time error is the program's own way of refusing a bad file and is a
// normal outcome; any other exception escapes the target and libFuzzer
// reports it as a crash, like a sanitizer report, a leak or a hang.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/errore_runtime.h"

namespace schedine::fuzz {

// The folder of this run, made at first use and removed at exit.
const std::string& cartella();

// Writes the bytes as the file nome of the run's folder; gives its path.
std::string scrivi_file(std::string_view nome, const uint8_t* dati, size_t dimensione);

// Runs a read; a run-time error ends it as the program's failure path would.
template <class Lettura>
bool esegui(Lettura&& lettura) {
  return passa_oltre(lettura);
}

// A property that must hold whatever the input: its failure is a fault.
inline void richiedi(bool condizione, const char* cosa) {
  if (!condizione) {
    std::fprintf(stderr, "property broken: %s\n", cosa);
    std::abort();
  }
}

}  // namespace schedine::fuzz
