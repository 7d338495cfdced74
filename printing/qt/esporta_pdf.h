#pragma once
// The recorded pages of a preview into a PDF file, drawn as the Qt device
// draws them on paper, with or without the picture of each page's slip.

#include <string>

namespace schedine {

class registratore;

// Writes the file; a file that could not be written whole is the printer
// error naming the file and the cause, and no such file is left behind.
void esporta_pdf(const registratore& pagine, const std::string& percorso, bool con_figura);

}  // namespace schedine
