#include "core/formato_locale.h"

namespace schedine {

formato_locale formato_locale::da_nome(const std::string& nome) {
  // Languages that write a decimal point; all others take the decimal comma.
  static const char* const con_punto[] = {"en", "C", "POSIX", "ja", "zh", "ko", "he", "th"};
  for (const char* lingua : con_punto) {
    std::string prefisso(lingua);
    if (nome.compare(0, prefisso.size(), prefisso) == 0) return inglese();
  }
  return italiano();
}

}  // namespace schedine
