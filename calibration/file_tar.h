#pragma once
// The five calibration files, one per slip, in the program folder: tarlo2
// (Lotto), taren (SuperEnalotto, 5 panels), taren2 (SuperEnalotto, 2 panels),
// tarwfl (Win for Life, 1 panel), tarwfl2 (Win for Life, 5 panels).
//
// A save rewrites the whole file from the tables (through a temporary file, so
// a failed save leaves the old file whole) and throws errore_runtime when it
// fails. A load fills the tables and carattere_stampa from the file.
// carica_tar_lotto and carica_tar_wforlife5 pass over what they can't read,
// leaving those values as they were; the other loads throw errore_runtime
// (53 for a missing file, 62 for a file cut short).

#include "core/stato.h"

namespace schedine {

void salva_tar_lotto(const stato& s);
void carica_tar_lotto(stato& s);

void salva_tar_enalotto(const stato& s);
void carica_tar_enalotto(stato& s);

void salva_tar_enalotto2(const stato& s);
void carica_tar_enalotto2(stato& s);

void salva_tar_wforlife(const stato& s);
void carica_tar_wforlife(stato& s);

void salva_tar_wforlife5(const stato& s);
void carica_tar_wforlife5(stato& s);

}  // namespace schedine
