#include "calibration/campi_tar.h"

#include "core/errore_runtime.h"
#include "core/file_sistema.h"
#include "core/numeri.h"

namespace schedine {

std::string percorso_tar(const stato& s, const char* nome) { return nel_programma(s.cartella_programma, nome); }

template <class Lettura>
void lettura_tar::esegui(Lettura&& lettura) {
  if (tollerante_) {
    // Past the end every read fails alike and changes nothing: a short file
    // leaves the rest of the tables as they were without a failure per field.
    if (lettore_.fine_file()) return;
    passa_oltre(lettura);
  } else {
    lettura();
  }
}

void lettura_tar::leggi(float& valore) {
  esegui([&] { valore = lettore_.leggi_single(); });
}

void lettura_tar::leggi(uint8_t& valore) {
  esegui([&] { valore = lettore_.leggi_byte(); });
}

void lettura_tar::salta() {
  esegui([&] { lettore_.salta_campo(); });
}

std::string testo_riga(float x, float y) { return testo_single(x) + "," + testo_single(y) + ","; }

std::string testo_carattere(uint8_t carattere_stampa) { return carattere_stampa == 1 ? "1" : "2"; }

}  // namespace schedine
