// The delimited record reader on any bytes, with every kind of read.
//
// Input: the first byte tells how many of the next bytes (0 to 15) are the
// plan, one read kind each; the rest is the file. The plan is run over and
// over until the file ends or a read fails as the program's own failure.
//
// A second reader walks the same file in step, taking every field as text
// and dropping, with its commas counted, every line the first reads,
// and the numbers read are held against a plain reading of that text: a
// value where it is a number, "Overflow" where it is one beyond the type,
// "Tipo non corrispondente" where it is none.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

#include "core/file_record.h"
#include "fuzz/comune.h"

using namespace schedine;

namespace {

enum class lettura { campo, stringa, doppio, singolo, lungo, intero, byte, booleano, salta, riga, fine_file, quante };

// What a numeric read of a field must give: a value, or the number of the run-time error.
struct risultato {
  double valore = 0.0;
  int errore = 0;
  bool operator==(const risultato&) const = default;
};

// The field's text as a number of the C form, read by the C library; nothing
// for texts of other characters (names, blanks inside quotes, "inf").
std::optional<double> numero_c(const std::string& testo, bool singolo) {
  if (testo.empty() || testo.find_first_not_of("+-.0123456789eE") != std::string::npos) return std::nullopt;
  char* fine = nullptr;
  double valore = singolo ? std::strtof(testo.c_str(), &fine) : std::strtod(testo.c_str(), &fine);
  if (fine != testo.c_str() + testo.size()) return std::nullopt;
  return valore;
}

// The reference reading of a field's text by a read kind; nothing when the
// text is one this check leaves alone (an empty field, which may have been quoted).
std::optional<risultato> atteso(lettura tipo, const std::string& testo) {
  if (testo.empty() || testo.find_first_not_of("+-.0123456789eE#TRUEFALS") != std::string::npos) return std::nullopt;
  risultato r;
  if (testo == "#TRUE#" || testo == "#FALSE#") {
    r.valore = testo == "#TRUE#" ? -1.0 : 0.0;
  } else if (auto numero = numero_c(testo, tipo == lettura::singolo)) {
    r.valore = *numero;
    if (std::isinf(r.valore)) return risultato{0.0, codice::overflow};
  } else {
    return risultato{0.0, codice::tipo_non_corrispondente};
  }
  double limite_basso = 0.0, limite_alto = 0.0;
  switch (tipo) {
    case lettura::lungo: limite_basso = -2147483648.0, limite_alto = 2147483647.0; break;
    case lettura::intero: limite_basso = -32768.0, limite_alto = 32767.0; break;
    case lettura::byte: limite_alto = 255.0; break;
    default: return r;
  }
  r.valore = std::nearbyint(r.valore);
  if (r.valore < limite_basso || r.valore > limite_alto) return risultato{0.0, codice::overflow};
  return r;
}

template <class Lettura>
risultato misura(Lettura&& leggi) {
  try {
    return {static_cast<double>(leggi()), 0};
  } catch (const errore_runtime& e) {
    return {0.0, e.numero()};
  }
}

risultato leggi_numero(lettore_record& file, lettura tipo) {
  switch (tipo) {
    case lettura::doppio: return misura([&] { return file.leggi_double(); });
    case lettura::singolo: return misura([&] { return file.leggi_single(); });
    case lettura::lungo: return misura([&] { return file.leggi_long(); });
    case lettura::intero: return misura([&] { return file.leggi_integer(); });
    default: return misura([&] { return file.leggi_byte(); });
  }
}

void rilancia(const risultato& r, const std::string& percorso) {
  if (r.errore != 0) throw errore_runtime(r.errore, percorso);
}

// One read by the plan on the file, the same field as text on the twin.
void leggi_una(lettore_record& file, lettore_record& gemello, lettura tipo) {
  switch (tipo) {
    case lettura::campo: file.leggi_campo(); gemello.leggi_campo(); break;
    case lettura::stringa: file.leggi_stringa(); gemello.leggi_campo(); break;
    case lettura::booleano: file.leggi_booleano(); gemello.leggi_campo(); break;
    case lettura::salta: file.salta_campo(); gemello.leggi_campo(); break;
    case lettura::riga: {
      std::string riga = file.leggi_riga();
      const uint64_t virgole = gemello.salta_riga(',');
      fuzz::richiedi(riga.find_first_of("\r\n") == std::string::npos, "leggi_riga gives no line end");
      fuzz::richiedi(virgole == static_cast<uint64_t>(std::count(riga.begin(), riga.end(), ',')),
                     "a line dropped counts the commas of the line read");
      break;
    }
    case lettura::fine_file: fuzz::richiedi(file.fine_file() == gemello.fine_file(), "twin readers stay in step"); break;
    default: {
      risultato letto = leggi_numero(file, tipo);
      std::string testo;
      risultato come_testo = misura([&] { testo = gemello.leggi_campo(); return 0; });
      if (come_testo.errore != 0) {
        fuzz::richiedi(letto.errore == come_testo.errore, "a number past the end fails as a field does");
        rilancia(letto, file.percorso());
      }
      if (auto r = atteso(tipo, testo)) {
        if (!(letto == *r)) {
          std::fprintf(stderr, "field \"%s\": read %.17g error %d, expected %.17g error %d\n", testo.c_str(),
                       letto.valore, letto.errore, r->valore, r->errore);
        }
        fuzz::richiedi(letto == *r, "a number reads as the C library reads its text");
      }
      rilancia(letto, file.percorso());
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t dimensione) {
  if (dimensione == 0) return 0;
  const size_t lunghezza_piano = std::min<size_t>(dati[0] % 16, dimensione - 1);
  const uint8_t* piano = dati + 1;
  const size_t dimensione_file = dimensione - 1 - lunghezza_piano;
  const std::string percorso = fuzz::scrivi_file("record", piano + lunghezza_piano, dimensione_file);
  const int tipi = static_cast<int>(lettura::quante);
  auto tipo_di = [&](size_t k) { return static_cast<lettura>(piano[k] % tipi); };
  bool consuma = false;
  for (size_t k = 0; k < lunghezza_piano; ++k) consuma = consuma || tipo_di(k) != lettura::fine_file;

  fuzz::esegui([&] {
    lettore_record file(percorso);
    lettore_record gemello(percorso);
    if (lunghezza_piano == 0) {
      // No plan: the file is read field by field, as the column readers do.
      while (!file.fine_file()) file.leggi_campo();
      return;
    }
    for (size_t giro = 0; giro <= dimensione_file && !file.fine_file(); ++giro) {
      for (size_t k = 0; k < lunghezza_piano; ++k) leggi_una(file, gemello, tipo_di(k));
    }
    // Every read but fine_file takes at least one byte or fails: a read that
    // took nothing would keep the program's "until the end" loops going forever.
    if (consuma) fuzz::richiedi(file.fine_file(), "every read takes at least one byte");
  });
  return 0;
}
