#pragma once
// How the panel forms take a number out of the texts that show a price.
// Prices are shown as "€ 0,50": the currency sign and a blank, then the
// amount in the user's format. The rules read them back by dropping the sign
// and turning commas into points before taking the leading number, so a
// thousands point would end the number (prices stop at 50,00, so none has one).

#include <string>
#include <string_view>

namespace schedine {

// The text from its (n+1)-th character on, counting characters and not bytes:
// "€" is one character. Shorter texts give "".
std::string dopo_caratteri(std::string_view testo, size_t n);

// Every occurrence of `cosa` replaced with `con`.
std::string sostituisci(std::string_view testo, std::string_view cosa, std::string_view con);

// The price of a column shown in a label as "€ 0,50": the first two
// characters dropped, commas to points, the leading number. "" reads 0.
double prezzo_da_etichetta(std::string_view testo);

// The price picked in the price list: the "€" removed wherever it stands,
// commas to points, the leading number.
double prezzo_da_elenco(std::string_view testo);

// What stands before every amount the panel forms show.
inline constexpr std::string_view segno_euro = "€ ";

}  // namespace schedine
