#pragma once
// The mark primitive through which nearly every mark of a slip goes.

#include <cstdint>

namespace schedine {

class dispositivo_stampa;
struct stato;

// The value of carattere_stampa that draws round dots; any other draws squares.
inline constexpr uint8_t carattere_punto = 1;

// Marks the box whose reference point is (x, y), in millimetres.
// A dot is a circle of radius 1 mm centred on the point. A square has side
// 2 mm and hangs to the left of and below the point, which is its top right
// corner: the calibration tables are measured with that offset in them.
// The mark comes out solid only while the fill style is 0.
void segna(dispositivo_stampa& dispositivo, uint8_t carattere_stampa, float x, float y);

// The same on the run's printer, with the run's carattere_stampa.
void segna(stato& s, float x, float y);

}  // namespace schedine
