#include "app/piattaforma_qt/stampante_app.h"

#include <QDateTime>
#include <QPrinterInfo>
#include <filesystem>

#include "core/file_sistema.h"
#include "printing/qt/dispositivo_qt.h"

namespace schedine {

stampante_app::stampante_app(std::string cartella_programma, std::function<bool()> ci_sono_stampanti,
                             std::function<void(const std::string&)> avvisa_pdf,
                             std::function<void(const std::string&)> avvisa_guasto)
    : cartella_programma_(std::move(cartella_programma)),
      ci_sono_stampanti_(std::move(ci_sono_stampanti)),
      avvisa_pdf_(std::move(avvisa_pdf)),
      avvisa_guasto_(std::move(avvisa_guasto)) {}

stampante_app::~stampante_app() = default;

bool stampante_app::stampanti_installate() { return !QPrinterInfo::availablePrinters().isEmpty(); }

std::string stampante_app::nuovo_file_pdf() const {
  const std::filesystem::path cartella = nel_programma(cartella_programma_, "stampe");
  std::error_code errore;
  std::filesystem::create_directories(cartella, errore);
  if (errore) {
    // The likeliest fault by far: a file of that name stands in the way.
    const bool file_al_posto = errore == std::errc::not_a_directory || errore == std::errc::file_exists;
    const std::string causa = file_al_posto ? "al suo posto c'è un file con lo stesso nome"
                                            : testo_errore(codice_da_errno(errore.value()));
    throw errore_runtime(codice::errore_stampante, "impossibile creare la cartella " + cartella.string() + ": " + causa);
  }
  std::string base = "stampa-" + QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd-HHmmss")).toStdString();
  std::filesystem::path percorso = cartella / (base + ".pdf");
  // Two jobs in one second each keep their own file.
  for (int n = 2; std::filesystem::exists(percorso, errore); ++n) percorso = cartella / (base + "-" + std::to_string(n) + ".pdf");
  return percorso.string();
}

dispositivo_stampa& stampante_app::lavoro() {
  if (guasto_) throw *guasto_;
  if (in_corso_ != nullptr) return *in_corso_;
  if (ci_sono_stampanti_()) {
    if (!stampante_) stampante_ = dispositivo_qt::per_stampante_predefinita();
    in_corso_ = stampante_.get();
    return *in_corso_;
  }
  return apri_pdf();
}

dispositivo_stampa& stampante_app::apri_pdf() {
  try {
    percorso_pdf_ = nuovo_file_pdf();
  } catch (const errore_runtime& e) {
    abbandona_pdf(e);
    throw;
  }
  pdf_ = dispositivo_qt::per_pdf(percorso_pdf_);
  const impostazioni& i = impostazioni_;
  if (i.modo_pagina) pdf_->imposta_modo_pagina(*i.modo_pagina);
  if (i.penna) pdf_->imposta_penna(i.penna->first, i.penna->second);
  if (i.stile_riempimento) pdf_->imposta_riempimento(*i.stile_riempimento, i.colore_riempimento.value_or(0));
  if (i.font_nome) pdf_->imposta_font_nome(*i.font_nome);
  if (i.font_dimensione) pdf_->imposta_font_dimensione(*i.font_dimensione);
  if (i.font_grassetto) pdf_->imposta_font_grassetto(*i.font_grassetto);
  in_corso_ = pdf_.get();
  return *in_corso_;
}

template <class Operazione>
auto stampante_app::nel_lavoro(Operazione&& operazione) {
  dispositivo_stampa& dispositivo = lavoro();
  if (&dispositivo != pdf_.get()) return operazione(dispositivo);
  try {
    return operazione(dispositivo);
  } catch (const errore_runtime& e) {
    abbandona_pdf(e);
    throw;
  }
}

void stampante_app::abbandona_pdf(const errore_runtime& errore) {
  if (pdf_) {
    pdf_.reset();
    std::error_code nessuno;
    if (std::filesystem::is_regular_file(percorso_pdf_, nessuno)) std::filesystem::remove(percorso_pdf_, nessuno);
  }
  in_corso_ = nullptr;
  guasto_ = errore;
  if (avvisa_guasto_) avvisa_guasto_(errore.dettaglio());
}

// The operations that prepare a job begin it afresh after a failed one.
void stampante_app::imposta_scala_mm() {
  guasto_.reset();
  nel_lavoro([](dispositivo_stampa& d) { d.imposta_scala_mm(); });
}

void stampante_app::imposta_modo_pagina(int modo) {
  guasto_.reset();
  impostazioni_.modo_pagina = modo;
  nel_lavoro([&](dispositivo_stampa& d) { d.imposta_modo_pagina(modo); });
}

void stampante_app::imposta_penna(int stile, int spessore) {
  impostazioni_.penna = {stile, spessore};
  nel_lavoro([&](dispositivo_stampa& d) { d.imposta_penna(stile, spessore); });
}

void stampante_app::imposta_riempimento(int stile) {
  impostazioni_.stile_riempimento = stile;
  nel_lavoro([&](dispositivo_stampa& d) { d.imposta_riempimento(stile); });
}

void stampante_app::imposta_riempimento(int stile, int32_t colore) {
  impostazioni_.stile_riempimento = stile;
  impostazioni_.colore_riempimento = colore;
  nel_lavoro([&](dispositivo_stampa& d) { d.imposta_riempimento(stile, colore); });
}

void stampante_app::disegna_punto_zero() {
  nel_lavoro([](dispositivo_stampa& d) { d.disegna_punto_zero(); });
}

void stampante_app::disegna_cerchio(float x, float y, float raggio) {
  nel_lavoro([&](dispositivo_stampa& d) { d.disegna_cerchio(x, y, raggio); });
}

void stampante_app::disegna_rettangolo(float x1, float y1, float x2, float y2) {
  nel_lavoro([&](dispositivo_stampa& d) { d.disegna_rettangolo(x1, y1, x2, y2); });
}

void stampante_app::imposta_font_nome(const std::string& nome) {
  impostazioni_.font_nome = nome;
  nel_lavoro([&](dispositivo_stampa& d) { d.imposta_font_nome(nome); });
}

void stampante_app::imposta_font_dimensione(float punti) {
  impostazioni_.font_dimensione = punti;
  nel_lavoro([&](dispositivo_stampa& d) { d.imposta_font_dimensione(punti); });
}

void stampante_app::imposta_font_grassetto(bool grassetto) {
  impostazioni_.font_grassetto = grassetto;
  nel_lavoro([&](dispositivo_stampa& d) { d.imposta_font_grassetto(grassetto); });
}

void stampante_app::posiziona_testo(float x, float y) {
  nel_lavoro([&](dispositivo_stampa& d) { d.posiziona_testo(x, y); });
}

void stampante_app::stampa_testo(const std::string& testo) {
  nel_lavoro([&](dispositivo_stampa& d) { d.stampa_testo(testo); });
}

int stampante_app::numero_pagina() {
  return nel_lavoro([](dispositivo_stampa& d) { return d.numero_pagina(); });
}

void stampante_app::nuova_pagina() {
  nel_lavoro([](dispositivo_stampa& d) { d.nuova_pagina(); });
}

void stampante_app::chiudi_stampa() {
  if (guasto_) {
    // A failed job ends here; its failure is this operation's too.
    errore_runtime errore = *guasto_;
    guasto_.reset();
    throw errore;
  }
  dispositivo_stampa& dispositivo = lavoro();
  in_corso_ = nullptr;
  if (!pdf_) {
    dispositivo.chiudi_stampa();
    return;
  }
  try {
    dispositivo.chiudi_stampa();
    // The file is finished now, and known to be whole or not.
    pdf_->termina();
  } catch (const errore_runtime& e) {
    abbandona_pdf(e);
    guasto_.reset();  // the job is over all the same
    throw;
  }
  pdf_.reset();
  // A job that drew nothing left no file to tell of.
  if (std::filesystem::exists(percorso_pdf_) && avvisa_pdf_) avvisa_pdf_(percorso_pdf_);
}

}  // namespace schedine
