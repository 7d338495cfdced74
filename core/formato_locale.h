#pragma once
// The separators of the user's locale, which number formats and the locale
// number rule follow.

#include <string>

namespace schedine {

struct formato_locale {
  char decimale = ',';
  char migliaia = '.';

  // "it_IT" (decimal comma) and "en_US" (decimal point); any name whose
  // language uses a decimal point takes the English form.
  static formato_locale da_nome(const std::string& nome);
  static formato_locale italiano() { return {',', '.'}; }
  static formato_locale inglese() { return {'.', ','}; }
};

}  // namespace schedine
