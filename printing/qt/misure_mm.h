#pragma once
// Millimetre-to-device arithmetic of the Qt device, kept free of Qt so that it
// can be checked on its own. Device units are the paint device's dots, counted
// from the top left corner of the paper; the painter draws with no transform.

#include <cmath>
#include <cstdint>

namespace schedine::misure_mm {

inline constexpr double mm_per_pollice = 25.4;

// Device dots per millimetre on each axis.
struct scala {
  double x = 1.0;
  double y = 1.0;
};

constexpr scala scala_per_dpi(double dpi_x, double dpi_y) {
  return {dpi_x / mm_per_pollice, dpi_y / mm_per_pollice};
}

struct punto {
  double x = 0.0;
  double y = 0.0;
  bool operator==(const punto&) const = default;
};

struct rettangolo {
  double x = 0.0;
  double y = 0.0;
  double larghezza = 0.0;
  double altezza = 0.0;
  bool operator==(const rettangolo&) const = default;
};

constexpr punto in_punti(scala s, float x_mm, float y_mm) {
  return {static_cast<double>(x_mm) * s.x, static_cast<double>(y_mm) * s.y};
}

// A vertical distance in dots back to millimetres, such as a text line's height.
constexpr double altezza_in_mm(scala s, double punti) { return punti / s.y; }

// The box that holds the circle of the given centre and radius.
inline rettangolo rettangolo_cerchio(scala s, float x, float y, float raggio) {
  const double r = std::fabs(static_cast<double>(raggio));
  const punto centro = in_punti(s, x, y);
  return {centro.x - r * s.x, centro.y - r * s.y, 2.0 * r * s.x, 2.0 * r * s.y};
}

// The box between two opposite corners given in any order.
inline rettangolo rettangolo_angoli(scala s, float x1, float y1, float x2, float y2) {
  const punto a = in_punti(s, x1, y1);
  const punto b = in_punti(s, x2, y2);
  return {std::fmin(a.x, b.x), std::fmin(a.y, b.y), std::fabs(b.x - a.x), std::fabs(b.y - a.y)};
}

// A colour as the system passes it, 0x00BBGGRR (red in the low byte).
struct colore_rgb {
  int rosso = 0;
  int verde = 0;
  int blu = 0;
  bool operator==(const colore_rgb&) const = default;
};

constexpr colore_rgb colore_da_intero(int32_t colore) {
  const auto c = static_cast<uint32_t>(colore);
  return {static_cast<int>(c & 0xFFu), static_cast<int>((c >> 8) & 0xFFu), static_cast<int>((c >> 16) & 0xFFu)};
}

}  // namespace schedine::misure_mm
