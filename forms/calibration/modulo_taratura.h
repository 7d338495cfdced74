#pragma once
// What the five calibration forms share: their design pieces (arrow crosses,
// click counters, the settings panel, frames with an inset border), the
// choice of the mark, the interline arrows and the way back to the main form.

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <string>

#include "controls/modulo.h"
#include "forms/calibration/anteprima_interlinea.h"

namespace schedine {

// Left and Top of a preview mark, as the form takes them at load to put the mark back later.
struct posizione {
  float sinistra = 0;
  float alto = 0;
};

// Where an arrow of a cross points; its picture is drawn from this.
enum class verso { giu, destra, su, sinistra };

class modulo_taratura : public modulo {
 public:
  // twip_per_unita: the scale of Picture1, which holds the preview marks: 1
  // when its positions are twips, 15 when they are pixels of the slip picture.
  modulo_taratura(std::string nome, stato& s, insieme_moduli& moduli, float twip_per_unita)
      : modulo(std::move(nome), s, moduli), twip_per_unita_anteprima(twip_per_unita) {}

  // Twips per unit of Picture1's positions: the desktop view multiplies by it.
  const float twip_per_unita_anteprima;
  // The direction of each arrow button of the form's crosses, by name and index.
  verso verso_freccia(const std::string& nome, int indice) const;

 protected:
  // A control placed in its container, in that container's units.
  template <class T>
  T& metti(const std::string& nome, int indice, controllo* contenitore, float x, float y, float l, float a) {
    T& c = aggiungi<T>(nome, indice, contenitore);
    colloca(c, x, y, l, a);
    return c;
  }
  static void colloca(controllo& c, float x, float y, float l, float a);
  // A label that counts clicks, starting at "0".
  etichetta& metti_contatore(const std::string& nome, int indice, controllo* contenitore, float x, float y);
  // Four arrow buttons nome(0..3) in a cross whose top-left corner is (x, y);
  // versi tells where arrow i points. A click calls clic(i).
  void metti_frecce(const std::string& nome, controllo* contenitore, float x, float y, float lato,
                    const std::array<verso, 4>& versi, std::function<void(int)> clic);
  // The settings panel Frame2: the mark choice under Label1(0) and the advice Label2.
  cornice& metti_impostazioni(float x, float y, const char* consiglio);
  // A frame's inset border: a shape inside it, 15 twips in from its corner
  // and 15 twips smaller, fitted at load.
  static void adatta_bordo(const cornice& frame, forma& bordo, float sinistra = 15, float alto = 15);

  // The interline arrows cmdInterlinea(indice): 0 narrows X, 1 widens X, 2
  // narrows Y, 3 widens Y. Counter and correction first, then the preview
  // marks segno(0) to segno(segni - 1), then the recomputation, which adds the
  // whole current correction again.
  void clic_interlinea(int indice, const anteprima_interlinea& anteprima, int segni,
                       const std::function<forma&(int)>& segno, void (*ricalcola)(stato&));
  // The mark all slips receive: 1 the dot, 2 the square.
  void imposta_carattere(uint8_t carattere);
  // Selects Option2 when the loaded calibration holds the square mark: its click then runs.
  void mostra_carattere_caricato();
  void torna_a_form1();

 private:
  std::map<std::pair<std::string, int>, verso> versi_;
};

// The mark glyphs of Option1 and Option2, and the advice texts of Label2.
extern const char* const glifo_punto;
extern const char* const glifo_quadrato;
extern const char* const consiglio_lotto;
extern const char* const consiglio_wforlife;
extern const char* const titolo_taratura;

}  // namespace schedine
