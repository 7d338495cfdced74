#include "core/numeri.h"

#include <locale.h>
#include <stdlib.h>

#include <cctype>
#include <charconv>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/errore_runtime.h"

namespace schedine {

namespace {

bool e_blank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
bool e_cifra(char c) { return c >= '0' && c <= '9'; }

// Reads "[sign]digits[.digits][(e|E|d|D)[sign]digits]" from the characters that
// accept() lets through, stopping at the first one that doesn't fit. The text
// gathered is in C form, ready for strtod.
template <class Accetta>
std::string raccogli_numero(std::string_view testo, Accetta accetta, char decimale, char migliaia) {
  std::string numero;
  size_t i = 0;
  auto prossimo = [&]() -> int {
    while (i < testo.size() && accetta(testo[i])) ++i;
    return i < testo.size() ? static_cast<unsigned char>(testo[i]) : -1;
  };
  int c = prossimo();
  if (c == '+' || c == '-') {
    numero += static_cast<char>(c);
    ++i;
    c = prossimo();
  }
  bool punto = false;
  bool cifre = false;
  while (c != -1) {
    if (e_cifra(static_cast<char>(c))) {
      numero += static_cast<char>(c);
      cifre = true;
    } else if (c == decimale && !punto) {
      numero += '.';
      punto = true;
    } else if (migliaia != 0 && c == migliaia && !punto) {
      // a thousands separator is passed over
    } else {
      break;
    }
    ++i;
    c = prossimo();
  }
  if (cifre && (c == 'e' || c == 'E' || c == 'd' || c == 'D')) {
    std::string esponente = "e";
    ++i;
    c = prossimo();
    if (c == '+' || c == '-') {
      esponente += static_cast<char>(c);
      ++i;
      c = prossimo();
    }
    bool cifre_esponente = false;
    while (c != -1 && e_cifra(static_cast<char>(c))) {
      esponente += static_cast<char>(c);
      cifre_esponente = true;
      ++i;
      c = prossimo();
    }
    if (cifre_esponente) numero += esponente;
  }
  if (!cifre) return {};
  return numero;
}

// The C library's reading of a number in the "C" locale, whatever locale the
// process runs in: a desktop toolkit sets the user's at start, and an
// Italian one would take the comma as the decimal mark and stop at the point.
locale_t locale_c() {
  static const locale_t c = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
  return c;
}
double strtod_c(const char* testo, char** fine) { return strtod_l(testo, fine, locale_c()); }
float strtof_c(const char* testo, char** fine) { return strtof_l(testo, fine, locale_c()); }

double converti_c(const std::string& numero) {
  if (numero.empty()) return 0.0;
  double valore = strtod_c(numero.c_str(), nullptr);
  if (std::isinf(valore)) throw errore_runtime(codice::overflow);
  return valore;
}

// Digits of a value rounded half away from zero to a number of decimals,
// taken from its 15 significant digits as the platform's formatting does.
std::string cifre_arrotondate(double assoluto, int decimali) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.14e", assoluto);
  // buffer: d.dddddddddddddde[+-]xx
  std::string mantissa;
  mantissa += buffer[0];
  mantissa.append(buffer + 2, 14);
  int esponente = std::atoi(std::strchr(buffer, 'e') + 1);
  // Value = 0.mantissa * 10^(esponente+1). Number of digits kept: those up to
  // the decimal place asked for.
  int intere = esponente + 1;  // digits before the point (may be <= 0)
  int tenute = intere + decimali;
  std::string cifre;
  if (tenute < 0) return std::string(static_cast<size_t>(decimali) + 1, '0');
  cifre = mantissa.substr(0, std::min<size_t>(static_cast<size_t>(tenute), mantissa.size()));
  while (static_cast<int>(cifre.size()) < tenute) cifre += '0';
  bool arrotonda = static_cast<size_t>(tenute) < mantissa.size() && mantissa[static_cast<size_t>(tenute)] >= '5';
  if (arrotonda) {
    int k = static_cast<int>(cifre.size()) - 1;
    while (k >= 0 && cifre[static_cast<size_t>(k)] == '9') cifre[static_cast<size_t>(k--)] = '0';
    if (k >= 0) {
      ++cifre[static_cast<size_t>(k)];
    } else {
      cifre.insert(cifre.begin(), '1');
    }
  }
  // Make sure there is at least one integer digit position in the text.
  while (static_cast<int>(cifre.size()) < decimali + 1) cifre.insert(cifre.begin(), '0');
  return cifre;
}

}  // namespace

double numero_iniziale(std::string_view testo) {
  return converti_c(raccogli_numero(testo, e_blank, '.', 0));
}

double numero_locale(std::string_view testo, const formato_locale& locale) {
  size_t inizio = 0;
  size_t fine = testo.size();
  while (inizio < fine && e_blank(testo[inizio])) ++inizio;
  while (fine > inizio && e_blank(testo[fine - 1])) --fine;
  std::string_view nucleo = testo.substr(inizio, fine - inizio);
  // The whole text must be the number: anything left over is no number.
  std::string numero;
  size_t i = 0;
  if (i < nucleo.size() && (nucleo[i] == '+' || nucleo[i] == '-')) numero += nucleo[i++];
  bool punto = false;
  bool cifre = false;
  for (; i < nucleo.size(); ++i) {
    char c = nucleo[i];
    if (e_cifra(c)) {
      numero += c;
      cifre = true;
    } else if (c == locale.decimale && !punto) {
      numero += '.';
      punto = true;
    } else if (c == locale.migliaia && !punto) {
      continue;
    } else {
      break;
    }
  }
  if (cifre && i < nucleo.size() && (nucleo[i] == 'e' || nucleo[i] == 'E')) {
    size_t j = i + 1;
    std::string esponente = "e";
    if (j < nucleo.size() && (nucleo[j] == '+' || nucleo[j] == '-')) esponente += nucleo[j++];
    size_t prima = j;
    while (j < nucleo.size() && e_cifra(nucleo[j])) esponente += nucleo[j++];
    if (j > prima) {
      numero += esponente;
      i = j;
    }
  }
  if (!cifre || i != nucleo.size()) throw errore_runtime(codice::tipo_non_corrispondente);
  return converti_c(numero);
}

int32_t a_long(double valore) {
  double arrotondato = std::nearbyint(valore);
  if (!(arrotondato >= -2147483648.0 && arrotondato <= 2147483647.0)) throw errore_runtime(codice::overflow);
  return static_cast<int32_t>(arrotondato);
}

int16_t a_integer(double valore) {
  double arrotondato = std::nearbyint(valore);
  if (!(arrotondato >= -32768.0 && arrotondato <= 32767.0)) throw errore_runtime(codice::overflow);
  return static_cast<int16_t>(arrotondato);
}

uint8_t a_byte(double valore) {
  double arrotondato = std::nearbyint(valore);
  if (!(arrotondato >= 0.0 && arrotondato <= 255.0)) throw errore_runtime(codice::overflow);
  return static_cast<uint8_t>(arrotondato);
}

float a_single(double valore) {
  if (std::isnan(valore)) return std::numeric_limits<float>::quiet_NaN();
  if (std::fabs(valore) > static_cast<double>(FLT_MAX)) throw errore_runtime(codice::overflow);
  return static_cast<float>(valore);
}

std::string formatta_numero(double valore, std::string_view schema, const formato_locale& locale) {
  size_t punto = schema.find('.');
  std::string_view parte_intera = schema.substr(0, punto);
  int decimali = 0;
  if (punto != std::string_view::npos) {
    for (char c : schema.substr(punto + 1)) {
      if (c == '0' || c == '#') ++decimali;
    }
  }
  int minime_intere = 0;
  for (char c : parte_intera) {
    if (c == '0') ++minime_intere;
  }
  bool raggruppa = parte_intera.find(',') != std::string_view::npos;

  std::string cifre = cifre_arrotondate(std::fabs(valore), decimali);
  std::string intere = cifre.substr(0, cifre.size() - static_cast<size_t>(decimali));
  std::string frazione = cifre.substr(cifre.size() - static_cast<size_t>(decimali));
  size_t primo = intere.find_first_not_of('0');
  intere = primo == std::string::npos ? std::string() : intere.substr(primo);
  while (static_cast<int>(intere.size()) < minime_intere) intere.insert(intere.begin(), '0');

  std::string testo;
  if (raggruppa) {
    for (size_t k = 0; k < intere.size(); ++k) {
      if (k > 0 && (intere.size() - k) % 3 == 0) testo += locale.migliaia;
      testo += intere[k];
    }
  } else {
    testo = intere;
  }
  if (decimali > 0) {
    testo += locale.decimale;
    testo += frazione;
  }
  bool zero = cifre.find_first_not_of('0') == std::string::npos;
  if (valore < 0 && !zero) testo.insert(testo.begin(), '-');
  return testo;
}

std::string testo_single(float valore) {
  char buffer[64];
  auto risultato = std::to_chars(buffer, buffer + sizeof buffer, valore, std::chars_format::fixed);
  return std::string(buffer, risultato.ptr);
}

namespace {
template <class T>
bool leggi_decimale_in(std::string_view testo, T& valore) {
  const bool piu = !testo.empty() && testo.front() == '+';
  if (piu) testo.remove_prefix(1);
  // One sign at most: "+-5" and "++5" are no numbers.
  if (testo.empty() || testo.front() == '+' || (piu && testo.front() == '-')) return false;
  // Only digits, sign, point and exponent: "inf" and "nan" are no numbers here.
  if (testo.find_first_not_of("+-.0123456789eE") != std::string_view::npos) return false;
  const char* fine = testo.data() + testo.size();
  auto risultato = std::from_chars(testo.data(), fine, valore, std::chars_format::general);
  if (risultato.ptr != fine) return false;
  if (risultato.ec == std::errc::result_out_of_range) {
    // A number all the same, beyond the type's range either way: the C
    // library tells which, giving an infinity or 0 (or a subnormal).
    const std::string numero(testo);
    if constexpr (std::is_same_v<T, float>) {
      valore = strtof_c(numero.c_str(), nullptr);
    } else {
      valore = strtod_c(numero.c_str(), nullptr);
    }
    return true;
  }
  return risultato.ec == std::errc();
}
}  // namespace

bool leggi_decimale(std::string_view testo, double& valore) { return leggi_decimale_in(testo, valore); }
bool leggi_decimale(std::string_view testo, float& valore) { return leggi_decimale_in(testo, valore); }

}  // namespace schedine
