#pragma once
// Text to number and number to text, by the rules of the original platform.

#include <cstdint>
#include <string>
#include <string_view>

#include "core/formato_locale.h"

namespace schedine {

// The leading number of a text: blanks are skipped, then an optional sign,
// digits with "." as the only decimal mark and an optional exponent; the
// first other character ends it. A text with no number reads 0. So "0,50"
// reads 0 and "1.234,50" reads 1.234, whatever the locale.
double numero_iniziale(std::string_view testo);

// A number by the locale's rules: the locale's decimal mark, its thousands
// separator ignored, surrounding blanks allowed. A text that is no number is
// the run-time error "Tipo non corrispondente".
double numero_locale(std::string_view testo, const formato_locale& locale);

// Conversions into the platform's integer types: rounding half to even, and
// the run-time error "Overflow" outside the type's range.
int32_t a_long(double valore);
int16_t a_integer(double valore);
uint8_t a_byte(double valore);
// Into a Single: "Overflow" beyond its range.
float a_single(double valore);

// Formats a number with a pattern of the form "###,##0.00", "###,#0.00",
// "###0.00" or "0.00": as many decimals as the pattern has after its point
// (rounded half away from zero), grouping of thousands when a comma stands
// among the integer digits, at least as many integer digits as the pattern
// has zeros before its point; separators of the locale.
std::string formatta_numero(double valore, std::string_view schema, const formato_locale& locale);

// The shortest decimal text that reads back as the same Single, with a point
// and without exponent ("12.09", "155.9625", "-0.4375", "0").
std::string testo_single(float valore);

// Reads a decimal text with a point, as written by testo_single and also in
// the forms ".5", "-.5", "+3" and with an exponent. Returns false when the
// text is no number. A number beyond the type's range reads as an infinity
// of its sign, one too small for it as 0 or the nearest subnormal.
bool leggi_decimale(std::string_view testo, double& valore);
// The same straight into a Single, so that testo_single's text reads back bit for bit.
bool leggi_decimale(std::string_view testo, float& valore);

}  // namespace schedine
