#include "app/piattaforma_qt/piattaforma_qt.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include "app/piattaforma_qt/messaggio_qt.h"
#include "core/errore_runtime.h"
#include "core/file_sistema.h"

namespace schedine {

namespace {

void avvisa_file_pdf(const std::string& percorso) {
  mostra_messaggio("Non è installata alcuna stampante: la stampa è stata salvata nel file\n" + percorso,
                   stile_messaggio::informazione, "");
}

void avvisa_guasto_pdf(const std::string& guasto) {
  mostra_messaggio("Non è installata alcuna stampante e la stampa non è stata salvata:\n" + guasto,
                   stile_messaggio::critico, "");
}

}  // namespace

piattaforma_qt::piattaforma_qt(std::string cartella_programma)
    : stampante_(std::move(cartella_programma), &stampante_app::stampanti_installate, &avvisa_file_pdf,
                 &avvisa_guasto_pdf) {}

void piattaforma_qt::esegui_eventi_in_attesa() {
  if (prima_degli_eventi) prima_degli_eventi();
  QCoreApplication::processEvents();
}

int piattaforma_qt::messaggio(const std::string& testo, int stile, const std::string& titolo) {
  return mostra_messaggio(testo, stile, titolo);
}

void piattaforma_qt::avvia_programma(const std::string& percorso) {
  QString programma = QString::fromStdString(risolvi_percorso(percorso));
  QFileInfo info(programma);
  if (!info.isFile() || !QProcess::startDetached(programma, {}, info.absolutePath())) {
    throw errore_runtime(codice::file_non_trovato, percorso);
  }
}

void piattaforma_qt::carica_skin(const std::string& percorso) {
  QFile file(QString::fromStdString(risolvi_percorso(percorso)));
  if (!file.open(QIODevice::ReadOnly)) throw errore_runtime(codice::file_non_trovato, percorso);
  foglio_skin_ = QString::fromUtf8(file.readAll());
  if (al_cambio_skin) al_cambio_skin(foglio_skin_);
}

}  // namespace schedine
