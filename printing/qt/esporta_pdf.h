#pragma once
// The recorded pages of a preview into a PDF file, drawn as the Qt device
// draws them on paper, with or without the picture of each page's slip.

#include <string>

namespace schedine {

class registratore;

// False when the file could not be written.
bool esporta_pdf(const registratore& pagine, const std::string& percorso, bool con_figura);

}  // namespace schedine
