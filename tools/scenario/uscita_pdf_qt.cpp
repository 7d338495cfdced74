#include <QGuiApplication>

#include "printing/qt/dispositivo_qt.h"
#include "tools/scenario/uscita_pdf.h"

namespace schedine::scenario {

namespace {

// Text needs fonts, and fonts need an application object. The run has no
// screen, so the offscreen platform serves unless the caller chose one.
class uscita_pdf_qt : public uscita_pdf {
 public:
  explicit uscita_pdf_qt(const std::string& percorso) : applicazione_(crea_applicazione()) {
    dispositivo_ = dispositivo_qt::per_pdf(percorso);
  }
  dispositivo_stampa& dispositivo() override { return *dispositivo_; }
  void termina() override { dispositivo_->termina(); }

 private:
  static std::unique_ptr<QGuiApplication> crea_applicazione() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char nome[] = "schedine-scenario";
    static char* argv[] = {nome, nullptr};
    return std::make_unique<QGuiApplication>(argc, argv);
  }

  // Declared first, so it goes last: the device finishes its file while the application still stands.
  std::unique_ptr<QGuiApplication> applicazione_;
  std::unique_ptr<dispositivo_qt> dispositivo_;
};

}  // namespace

bool pdf_disponibile() { return true; }

std::unique_ptr<uscita_pdf> apri_uscita_pdf(const std::string& percorso) {
  return std::make_unique<uscita_pdf_qt>(percorso);
}

}  // namespace schedine::scenario
