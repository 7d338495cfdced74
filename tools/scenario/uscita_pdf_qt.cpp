#include <QGuiApplication>

#include "core/errore_runtime.h"
#include "printing/qt/dispositivo_qt.h"
#include "printing/qt/figura_pagina.h"
#include "printing/schedina_in_stampa.h"
#include "tools/scenario/uscita_pdf.h"

namespace schedine::scenario {

namespace {

// Text needs fonts, and fonts need an application object. The run has no
// screen, so the offscreen platform serves unless the caller chose one.
class uscita_pdf_qt : public uscita_pdf {
 public:
  uscita_pdf_qt(const std::string& percorso, bool anteprima)
      : applicazione_(crea_applicazione()), percorso_(percorso), anteprima_(anteprima) {
    dispositivo_ = dispositivo_qt::per_pdf(percorso);
  }
  dispositivo_stampa& dispositivo() override { return *dispositivo_; }
  std::string termina() override {
    try {
      dispositivo_->termina();
    } catch (const errore_runtime& e) {
      return "the PDF could not be written whole (" + e.dettaglio() + ")";
    }
    return {};
  }
  // Each page begins with the picture of the slip of the form that prints.
  void collega_stato(const stato& s) override {
    if (!anteprima_) return;
    dispositivo_->imposta_sfondo(
        [&s](QPainter& p, misure_mm::scala scala) { disegna_figura(p, scala, schedina_in_stampa(s)); });
  }

 private:
  // The first output makes the application; a second one shares it.
  static std::unique_ptr<QGuiApplication> crea_applicazione() {
    if (QCoreApplication::instance() != nullptr) return nullptr;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char nome[] = "schedine-scenario";
    static char* argv[] = {nome, nullptr};
    return std::make_unique<QGuiApplication>(argc, argv);
  }

  // Declared first, so it goes last: the device finishes its file while the application still stands.
  std::unique_ptr<QGuiApplication> applicazione_;
  std::string percorso_;
  bool anteprima_;
  std::unique_ptr<dispositivo_qt> dispositivo_;
};

}  // namespace

bool pdf_disponibile() { return true; }

std::unique_ptr<uscita_pdf> apri_uscita_pdf(const std::string& percorso) {
  return std::make_unique<uscita_pdf_qt>(percorso, false);
}

std::unique_ptr<uscita_pdf> apri_uscita_anteprima(const std::string& percorso) {
  return std::make_unique<uscita_pdf_qt>(percorso, true);
}

}  // namespace schedine::scenario
