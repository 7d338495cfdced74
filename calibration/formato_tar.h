#pragma once
// The layout of the calibration files, kept in one place: which tables, which
// rows, in which order. The Lotto file is a run of table segments with blank
// lines between them; the four panel files dump groups of tab_coord.

#include <span>

#include "core/stato.h"

namespace schedine {

// One Lotto coordinate table, reached by row and axis, whatever its size.
struct tabella_lotto {
  float& (*cella)(stato& s, int riga, int asse);
  float (*valore)(const stato& s, int riga, int asse);
};

namespace formato_tar_interno {
template <auto membro>
float& cella_di(stato& s, int riga, int asse) { return (s.*membro)(riga, asse); }
template <auto membro>
float valore_di(const stato& s, int riga, int asse) { return (s.*membro)(riga, asse); }
}  // namespace formato_tar_interno

// The table stato::*membro as a tabella_lotto: tabella_lotto_di<&stato::tar_ambo>.
template <auto membro>
inline constexpr tabella_lotto tabella_lotto_di{&formato_tar_interno::cella_di<membro>,
                                               &formato_tar_interno::valore_di<membro>};

// Rows prima to ultima of one Lotto table, one row a line, after a blank line
// when dopo_riga_vuota is set.
struct segmento_lotto {
  tabella_lotto tabella;
  int prima;
  int ultima;
  bool dopo_riga_vuota;
};

// The segments of \tarlo2 that stand between its first line (the interline
// correction and tar_numeri row 1) and its tail (tar_nazionale,
// carattere_stampa, the reserved byte).
std::span<const segmento_lotto> segmenti_tarlo2();

// A panel file: rows 1 to righe of groups 1 to gruppi of tab_coord, then a
// blank line and carattere_stampa.
struct formato_pannelli {
  const char* nome;
  int gruppi;
  int righe;
};

inline constexpr const char* nome_tarlo2 = "tarlo2";
inline constexpr formato_pannelli formato_taren{"taren", 5, 90};
inline constexpr formato_pannelli formato_taren2{"taren2", 4, 90};
inline constexpr formato_pannelli formato_tarwfl{"tarwfl", 4, 90};
inline constexpr formato_pannelli formato_tarwfl2{"tarwfl2", 8, 105};

}  // namespace schedine
