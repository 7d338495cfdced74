#pragma once
// The PDF beside the journal: every print job of the run drawn into one file.
// Builds without Qt have no PDF output.

#include <memory>
#include <string>

namespace schedine {
class dispositivo_stampa;
}

namespace schedine::scenario {

class uscita_pdf {
 public:
  virtual ~uscita_pdf() = default;
  virtual dispositivo_stampa& dispositivo() = 0;
  // Finishes the file; nothing is drawn after it.
  virtual void termina() = 0;
};

// False in a build without Qt.
bool pdf_disponibile();
// Opens the PDF output of the run; nullptr when the build has none.
std::unique_ptr<uscita_pdf> apri_uscita_pdf(const std::string& percorso);

}  // namespace schedine::scenario
