#pragma once
// What the windows of the printing forms add to the forms' own controls: an
// "Anteprima" button beside each print button, an "Interrompi" button in the
// frame of a print's progress, and the count "n di N" on its bar. They work
// through the window's regia_stampa and leave the form's rules as they are.

#include <QPushButton>
#include <vector>

namespace schedine {

class finestra_modulo;

// pannelli: the frames of a print's progress.
void aggiungi_comandi_stampa(finestra_modulo& f, const std::vector<QWidget*>& pannelli);

// "Anteprima": the print button's own click, into a recorder, then the
// preview window of what was recorded (none when the print did not start).
void anteprima(finestra_modulo& f, QPushButton& stampa);

}  // namespace schedine
