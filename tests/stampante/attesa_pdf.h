#pragma once
// Waiting for what a PDF printer queue writes. The queue writes its file some
// time after the job is handed over, and writes it bit by bit, so a file is
// taken only once it ends as a PDF ends and its size holds still.

#include <chrono>
#include <filesystem>
#include <set>

namespace schedine::prova {

std::set<std::filesystem::path> pdf_presenti(const std::filesystem::path& cartella);

// The one PDF file that appears in `cartella` beside those in `prima`, once
// complete. Throws std::runtime_error, telling what the queue still holds,
// when none is complete within `limite`, or when more than one appears.
std::filesystem::path attendi_pdf(const std::filesystem::path& cartella, const std::set<std::filesystem::path>& prima,
                                  std::chrono::milliseconds limite);

}  // namespace schedine::prova
