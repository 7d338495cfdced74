#pragma once
// The PDF beside the journal: every print job of the run drawn into one file.
// Builds without Qt have no PDF output.

#include <memory>
#include <string>

namespace schedine {
class dispositivo_stampa;
struct stato;
}

namespace schedine::scenario {

class uscita_pdf {
 public:
  virtual ~uscita_pdf() = default;
  virtual dispositivo_stampa& dispositivo() = 0;
  // Finishes the file; nothing is drawn after it. Empty, or why the file
  // could not be written whole.
  virtual std::string termina() = 0;
  // The program whose forms tell the slip under each page of a preview PDF.
  virtual void collega_stato(const stato&) {}
};

// False in a build without Qt.
bool pdf_disponibile();
// Opens the PDF output of the run; nullptr when the build has none.
std::unique_ptr<uscita_pdf> apri_uscita_pdf(const std::string& percorso);
// The same drawn as the print preview draws it: each page over the picture
// of the slip of the form that prints it.
std::unique_ptr<uscita_pdf> apri_uscita_anteprima(const std::string& percorso);

}  // namespace schedine::scenario
