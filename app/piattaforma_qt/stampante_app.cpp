#include "app/piattaforma_qt/stampante_app.h"

#include <QDateTime>
#include <QPrinterInfo>
#include <filesystem>

#include "core/file_sistema.h"
#include "printing/qt/dispositivo_qt.h"

namespace schedine {

stampante_app::stampante_app(std::string cartella_programma, std::function<bool()> ci_sono_stampanti,
                             std::function<void(const std::string&)> avvisa_pdf)
    : cartella_programma_(std::move(cartella_programma)),
      ci_sono_stampanti_(std::move(ci_sono_stampanti)),
      avvisa_pdf_(std::move(avvisa_pdf)) {}

stampante_app::~stampante_app() = default;

bool stampante_app::stampanti_installate() { return !QPrinterInfo::availablePrinters().isEmpty(); }

std::string stampante_app::nuovo_file_pdf() const {
  std::filesystem::path cartella = nel_programma(cartella_programma_, "stampe");
  std::filesystem::create_directories(cartella);
  std::string base = "stampa-" + QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd-HHmmss")).toStdString();
  std::filesystem::path percorso = cartella / (base + ".pdf");
  // Two jobs in one second each keep their own file.
  for (int n = 2; std::filesystem::exists(percorso); ++n) percorso = cartella / (base + "-" + std::to_string(n) + ".pdf");
  return percorso.string();
}

dispositivo_stampa& stampante_app::lavoro() {
  if (in_corso_ != nullptr) return *in_corso_;
  if (ci_sono_stampanti_()) {
    if (!stampante_) stampante_ = dispositivo_qt::per_stampante_predefinita();
    in_corso_ = stampante_.get();
    return *in_corso_;
  }
  percorso_pdf_ = nuovo_file_pdf();
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

void stampante_app::imposta_scala_mm() { lavoro().imposta_scala_mm(); }

void stampante_app::imposta_modo_pagina(int modo) {
  impostazioni_.modo_pagina = modo;
  lavoro().imposta_modo_pagina(modo);
}

void stampante_app::imposta_penna(int stile, int spessore) {
  impostazioni_.penna = {stile, spessore};
  lavoro().imposta_penna(stile, spessore);
}

void stampante_app::imposta_riempimento(int stile) {
  impostazioni_.stile_riempimento = stile;
  lavoro().imposta_riempimento(stile);
}

void stampante_app::imposta_riempimento(int stile, int32_t colore) {
  impostazioni_.stile_riempimento = stile;
  impostazioni_.colore_riempimento = colore;
  lavoro().imposta_riempimento(stile, colore);
}

void stampante_app::disegna_punto_zero() { lavoro().disegna_punto_zero(); }
void stampante_app::disegna_cerchio(float x, float y, float raggio) { lavoro().disegna_cerchio(x, y, raggio); }
void stampante_app::disegna_rettangolo(float x1, float y1, float x2, float y2) { lavoro().disegna_rettangolo(x1, y1, x2, y2); }

void stampante_app::imposta_font_nome(const std::string& nome) {
  impostazioni_.font_nome = nome;
  lavoro().imposta_font_nome(nome);
}

void stampante_app::imposta_font_dimensione(float punti) {
  impostazioni_.font_dimensione = punti;
  lavoro().imposta_font_dimensione(punti);
}

void stampante_app::imposta_font_grassetto(bool grassetto) {
  impostazioni_.font_grassetto = grassetto;
  lavoro().imposta_font_grassetto(grassetto);
}

void stampante_app::posiziona_testo(float x, float y) { lavoro().posiziona_testo(x, y); }
void stampante_app::stampa_testo(const std::string& testo) { lavoro().stampa_testo(testo); }
int stampante_app::numero_pagina() { return lavoro().numero_pagina(); }
void stampante_app::nuova_pagina() { lavoro().nuova_pagina(); }

void stampante_app::chiudi_stampa() {
  dispositivo_stampa& dispositivo = lavoro();
  in_corso_ = nullptr;
  dispositivo.chiudi_stampa();
  if (!pdf_) return;
  // The file is finished now; a job that drew nothing left no file to tell of.
  pdf_->termina();
  pdf_.reset();
  if (std::filesystem::exists(percorso_pdf_) && avvisa_pdf_) avvisa_pdf_(percorso_pdf_);
}

}  // namespace schedine
