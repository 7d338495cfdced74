// What the record writer writes, the record reader gives back: strings,
// whole and decimal numbers and Booleans through scrittore_record::scrivi,
// Singles as the calibration files write them (testo_single on a line).
//
// Input: a run of fields, each a kind byte and its payload. The kind byte's
// top bit puts the field on the same write as the one before it.

#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <variant>
#include <vector>

#include "core/file_record.h"
#include "core/numeri.h"
#include "fuzz/comune.h"

using namespace schedine;

namespace {

class ingresso {
 public:
  ingresso(const uint8_t* dati, size_t dimensione) : dati_(dati), resto_(dimensione) {}
  bool vuoto() const { return resto_ == 0; }
  uint8_t byte() {
    if (resto_ == 0) return 0;
    --resto_;
    return *dati_++;
  }
  template <class T>
  T valore() {
    T v{};
    unsigned char bytes[sizeof(T)] = {};
    for (auto& b : bytes) b = byte();
    std::memcpy(&v, bytes, sizeof(T));
    return v;
  }

 private:
  const uint8_t* dati_;
  size_t resto_;
};

// A Single as the calibration files keep it, alone on its line.
struct single_in_riga {
  float valore;
};

using campo = std::variant<std::string, int64_t, double, bool, single_in_riga>;

campo leggi_campo_ingresso(ingresso& in, uint8_t tipo) {
  switch (tipo % 5) {
    case 0: {
      std::string testo(in.byte() % 32, ' ');
      // A quote inside a string has no place in the format: it would end it.
      for (char& c : testo) c = static_cast<char>(in.byte()), c = c == '"' ? '\'' : c;
      return testo;
    }
    case 1: return in.valore<int64_t>();
    case 2: {
      double d = in.valore<double>();
      return std::isfinite(d) ? d : 0.5;
    }
    case 3: return (in.byte() & 1) != 0;
    default: {
      float f = in.valore<float>();
      return single_in_riga{std::isfinite(f) ? f : 0.25f};
    }
  }
}

campo_record come_record(const campo& c) {
  if (const auto* s = std::get_if<std::string>(&c)) return *s;
  if (const auto* i = std::get_if<int64_t>(&c)) return *i;
  if (const auto* d = std::get_if<double>(&c)) return *d;
  return std::get<bool>(c);
}

template <class T>
bool stessi_bit(T a, T b) {
  return std::memcmp(&a, &b, sizeof(T)) == 0;
}

void verifica(lettore_record& file, const campo& atteso) {
  if (const auto* s = std::get_if<std::string>(&atteso)) {
    fuzz::richiedi(file.leggi_stringa() == *s, "a string reads back as written");
  } else if (const auto* i = std::get_if<int64_t>(&atteso)) {
    fuzz::richiedi(file.leggi_double() == static_cast<double>(*i), "a whole number reads back as written");
  } else if (const auto* d = std::get_if<double>(&atteso)) {
    fuzz::richiedi(stessi_bit(file.leggi_double(), *d), "a decimal number reads back bit for bit");
  } else if (const auto* b = std::get_if<bool>(&atteso)) {
    fuzz::richiedi(file.leggi_booleano() == *b, "a Boolean reads back as written");
  } else {
    float f = std::get<single_in_riga>(atteso).valore;
    fuzz::richiedi(stessi_bit(file.leggi_single(), f), "a Single reads back bit for bit");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t dimensione) {
  ingresso in(dati, dimensione);
  // Writes of one or two fields; a Single is always a line of its own.
  std::vector<std::vector<campo>> scritture;
  while (!in.vuoto() && scritture.size() < 256) {
    uint8_t tipo = in.byte();
    campo c = leggi_campo_ingresso(in, tipo);
    bool accoda = (tipo & 0x80) != 0 && !scritture.empty() && scritture.back().size() == 1 &&
                  !std::holds_alternative<single_in_riga>(scritture.back().front()) &&
                  !std::holds_alternative<single_in_riga>(c);
    if (accoda) {
      scritture.back().push_back(std::move(c));
    } else {
      scritture.push_back({std::move(c)});
    }
  }

  const std::string percorso = fuzz::cartella() + "/andata_ritorno";
  try {
    scrittore_record file(percorso);
    for (const auto& scrittura : scritture) {
      if (const auto* s = std::get_if<single_in_riga>(&scrittura.front())) {
        file.stampa_riga(testo_single(s->valore));
      } else if (scrittura.size() == 1) {
        file.scrivi({come_record(scrittura[0])});
      } else {
        file.scrivi({come_record(scrittura[0]), come_record(scrittura[1])});
      }
    }
    file.chiudi();

    lettore_record lettore(percorso);
    for (const auto& scrittura : scritture) {
      for (const auto& c : scrittura) verifica(lettore, c);
    }
    fuzz::richiedi(lettore.fine_file(), "nothing is left behind the last field");
  } catch (const errore_runtime& e) {
    // Nothing written here is out of the format: a failure is a fault.
    std::fprintf(stderr, "%s\n", e.what());
    fuzz::richiedi(false, "a written file reads back without a run-time error");
  }
  return 0;
}
