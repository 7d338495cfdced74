#pragma once
// The printing device of the desktop program. Each job goes to the system's
// default printer, without a dialog. On a machine with no printer installed
// at all, each job goes instead to a PDF file of its own in the folder
// "stampe" of the program folder, named by date and time, so that nothing
// printed is lost; when such a job closes, the user is told the file.
//
// A PDF job that can't reach its file (the folder can't be made, the file
// can't be written, the disk fills up) fails as a printer fails: the
// operation throws the printer error (482), naming the file and the cause,
// and so does every later operation of the job until the job closes or the
// next job is prepared. The user is told once, with the file and the cause;
// a file left unfinished is removed, as it holds no readable print.
//
// The choice is made at the first operation of each job. Device settings
// (pen, fill, font, page mode) hold from one job to the next, as on a printer
// that stays the same for the whole run.

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/errore_runtime.h"
#include "printing/dispositivo_stampa.h"

namespace schedine {

class dispositivo_qt;

class stampante_app : public dispositivo_stampa {
 public:
  // ci_sono_stampanti: whether any printer is installed (asked at each job).
  // avvisa_pdf: tells the user the file a job went to.
  // avvisa_guasto: tells the user that a job's file could not be written.
  stampante_app(std::string cartella_programma, std::function<bool()> ci_sono_stampanti,
                std::function<void(const std::string& percorso)> avvisa_pdf,
                std::function<void(const std::string& guasto)> avvisa_guasto = {});
  ~stampante_app() override;

  // The printer check of a desktop with Qt: any installed printer at all.
  static bool stampanti_installate();

  void imposta_scala_mm() override;
  void imposta_modo_pagina(int modo) override;
  void imposta_penna(int stile, int spessore) override;
  void imposta_riempimento(int stile) override;
  void imposta_riempimento(int stile, int32_t colore) override;
  void disegna_punto_zero() override;
  void disegna_cerchio(float x, float y, float raggio) override;
  void disegna_rettangolo(float x1, float y1, float x2, float y2) override;
  void imposta_font_nome(const std::string& nome) override;
  void imposta_font_dimensione(float punti) override;
  void imposta_font_grassetto(bool grassetto) override;
  void posiziona_testo(float x, float y) override;
  void stampa_testo(const std::string& testo) override;
  int numero_pagina() override;
  void nuova_pagina() override;
  void chiudi_stampa() override;

 private:
  // The device of the job in course, chosen at the job's first operation.
  dispositivo_stampa& lavoro();
  dispositivo_stampa& apri_pdf();
  std::string nuovo_file_pdf() const;
  // Runs one operation on the job's device; a failure of the job's PDF file
  // fails the job (see above).
  template <class Operazione>
  auto nel_lavoro(Operazione&& operazione);
  // Drops the failed PDF job and its unfinished file, and tells the user.
  void abbandona_pdf(const errore_runtime& errore);

  std::string cartella_programma_;
  std::function<bool()> ci_sono_stampanti_;
  std::function<void(const std::string&)> avvisa_pdf_;
  std::function<void(const std::string&)> avvisa_guasto_;
  std::optional<errore_runtime> guasto_;  // the failure of the PDF job in course

  std::unique_ptr<dispositivo_qt> stampante_;  // the default printer, kept for the run
  std::unique_ptr<dispositivo_qt> pdf_;        // the PDF of the job in course
  std::string percorso_pdf_;
  dispositivo_stampa* in_corso_ = nullptr;

  // Settings to carry over to the fresh device of a PDF job.
  struct impostazioni {
    std::optional<int> modo_pagina;
    std::optional<std::pair<int, int>> penna;
    std::optional<int> stile_riempimento;
    std::optional<int32_t> colore_riempimento;
    std::optional<std::string> font_nome;
    std::optional<float> font_dimensione;
    std::optional<bool> font_grassetto;
  } impostazioni_;
};

}  // namespace schedine
