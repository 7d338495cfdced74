#pragma once
// Fixed-size tables with the bounds check of the original platform: an index
// outside the table is the run-time error "Indice non compreso nell'intervallo",
// never a stray memory access.

#include <array>
#include <cstdint>

#include "core/errore_runtime.h"

namespace schedine {

[[noreturn]] inline void fuori_intervallo() { throw errore_runtime(codice::indice_fuori_intervallo); }

// A one-index table, indices 0 to N-1.
template <class T, int N>
class vettore {
 public:
  static constexpr int dimensione = N;

  T& operator()(int i) { return dati_[indice(i)]; }
  const T& operator()(int i) const { return dati_[indice(i)]; }
  void azzera() { dati_.fill(T{}); }
  bool operator==(const vettore&) const = default;

 private:
  static int indice(int i) {
    if (i < 0 || i >= N) fuori_intervallo();
    return i;
  }
  std::array<T, N> dati_{};
};

// Axes of a coordinate: X grows to the right, Y downward, in millimetres.
inline constexpr int asse_x = 0;
inline constexpr int asse_y = 1;

// A Lotto coordinate table: rows 0 to R-1, each with an X and a Y.
template <int R>
class tabella_xy {
 public:
  static constexpr int righe = R;

  float& operator()(int riga, int asse) { return dati_[indice(riga, asse)]; }
  float operator()(int riga, int asse) const { return dati_[indice(riga, asse)]; }
  void azzera() { dati_.fill(0.0f); }
  bool operator==(const tabella_xy&) const = default;

 private:
  static int indice(int riga, int asse) {
    if (riga < 0 || riga >= R || asse < 0 || asse > 1) fuori_intervallo();
    return riga * 2 + asse;
  }
  std::array<float, R * 2> dati_{};
};

// The shared table of the panel slips: group 0 to 8, row 0 to 105, axis 0 or 1.
class tabella_coord {
 public:
  static constexpr int gruppi = 9;
  static constexpr int righe = 106;

  float& operator()(int gruppo, int riga, int asse) { return dati_[indice(gruppo, riga, asse)]; }
  float operator()(int gruppo, int riga, int asse) const { return dati_[indice(gruppo, riga, asse)]; }
  void azzera() { dati_.fill(0.0f); }
  bool operator==(const tabella_coord&) const = default;

 private:
  static int indice(int gruppo, int riga, int asse) {
    if (gruppo < 0 || gruppo >= gruppi || riga < 0 || riga >= righe || asse < 0 || asse > 1) fuori_intervallo();
    return (gruppo * righe + riga) * 2 + asse;
  }
  std::array<float, gruppi * righe * 2> dati_{};
};

}  // namespace schedine
