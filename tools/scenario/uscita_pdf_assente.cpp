#include "tools/scenario/uscita_pdf.h"

namespace schedine::scenario {

bool pdf_disponibile() { return false; }

std::unique_ptr<uscita_pdf> apri_uscita_pdf(const std::string&) { return nullptr; }

std::unique_ptr<uscita_pdf> apri_uscita_anteprima(const std::string&) { return nullptr; }

}  // namespace schedine::scenario
