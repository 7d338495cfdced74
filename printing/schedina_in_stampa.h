#pragma once
// Which paper slip a print job goes on, for the pictures of the print
// preview: the layout is that of the form whose button started the job.

#include <string>

namespace schedine {

struct stato;

enum class schedina {
  nessuna,
  lotto,
  diecielotto,
  enalotto,   // five panels
  enalotto2,  // two panels, Superstar
  wforlife,   // one panel
  wforlife5,  // five panels
};

// The slip of the form shown on screen that prints: a slip form or a
// calibration form. `nessuna` while no such form is shown.
schedina schedina_in_stampa(const stato& s);

// The slip a form prints on, by its name; `nessuna` for a form that prints none.
schedina schedina_del_modulo(const stato& s, const std::string& nome_modulo);

}  // namespace schedine
