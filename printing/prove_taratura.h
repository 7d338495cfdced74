#pragma once
// Test sheets: one page with the marks of all, or nearly all, the boxes of a
// slip, from the tables as they stand in memory, so the user sees how far
// off each group of boxes is.

#include "core/stato.h"

namespace schedine {

void prova_tar_lotto(stato& s);
void prova_tar_enalotto(stato& s);
void prova_tar_enalotto2(stato& s);
void prova_tar_wforlife(stato& s);
void prova_tar_wforlife5(stato& s);

}  // namespace schedine
