#pragma once
// Money: the platform's currency type, a 64-bit fixed-point number with four
// decimals. Conversions into it round half to even at the fourth decimal.

#include <compare>
#include <cstdint>

namespace schedine {

class valuta {
 public:
  constexpr valuta() = default;
  // Throws errore_runtime "Overflow" beyond the type's range.
  static valuta da_double(double valore);
  static constexpr valuta da_decimillesimi(int64_t unita) { return valuta(unita); }

  double a_double() const { return static_cast<double>(unita_) / 10000.0; }
  int64_t decimillesimi() const { return unita_; }

  valuta operator+(valuta altra) const;
  valuta operator-(valuta altra) const;
  valuta operator*(double fattore) const { return da_double(a_double() * fattore); }
  valuta& operator+=(valuta altra) { return *this = *this + altra; }
  valuta& operator-=(valuta altra) { return *this = *this - altra; }
  auto operator<=>(const valuta&) const = default;

 private:
  constexpr explicit valuta(int64_t unita) : unita_(unita) {}
  int64_t unita_ = 0;
};

}  // namespace schedine
