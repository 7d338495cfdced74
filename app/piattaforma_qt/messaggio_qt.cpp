#include "app/piattaforma_qt/messaggio_qt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPushButton>

#include "core/piattaforma.h"

namespace schedine {

namespace {

constexpr pulsante_messaggio ok{1, "OK", QMessageBox::AcceptRole};
constexpr pulsante_messaggio annulla{2, "Annulla", QMessageBox::RejectRole};
constexpr pulsante_messaggio interrompi{3, "Interrompi", QMessageBox::RejectRole};
constexpr pulsante_messaggio riprova{4, "Riprova", QMessageBox::AcceptRole};
constexpr pulsante_messaggio ignora{5, "Ignora", QMessageBox::AcceptRole};
constexpr pulsante_messaggio si{6, "Sì", QMessageBox::YesRole};
constexpr pulsante_messaggio no{7, "No", QMessageBox::NoRole};

}  // namespace

forma_messaggio forma_di(int stile) {
  forma_messaggio forma{};
  switch (stile & 7) {
    case 1: forma.pulsanti = {ok, annulla}; forma.annullamento = 1; break;
    case 2: forma.pulsanti = {interrompi, riprova, ignora}; forma.annullamento = 0; break;
    case 3: forma.pulsanti = {si, no, annulla}; forma.annullamento = 2; break;
    case 4: forma.pulsanti = {si, no}; forma.annullamento = 1; break;
    case 5: forma.pulsanti = {riprova, annulla}; forma.annullamento = 1; break;
    default: forma.pulsanti = {ok}; forma.annullamento = 0; break;
  }
  switch (stile & 0x70) {
    case stile_messaggio::critico: forma.icona = QMessageBox::Critical; break;
    case stile_messaggio::domanda: forma.icona = QMessageBox::Question; break;
    case stile_messaggio::esclamativo: forma.icona = QMessageBox::Warning; break;
    case stile_messaggio::informazione: forma.icona = QMessageBox::Information; break;
    default: forma.icona = QMessageBox::NoIcon; break;
  }
  // A default button beyond the set falls back to the first.
  int predefinito = (stile >> 8) & 3;
  forma.predefinito = predefinito < static_cast<int>(forma.pulsanti.size()) ? predefinito : 0;
  return forma;
}

int mostra_messaggio(const std::string& testo, int stile, const std::string& titolo) {
  forma_messaggio forma = forma_di(stile);
  QMessageBox box(forma.icona, QString::fromStdString(titolo.empty() ? std::string(titolo_programma) : titolo),
                  QString::fromStdString(testo), QMessageBox::NoButton, QApplication::activeWindow());
  std::vector<QPushButton*> bottoni;
  for (const pulsante_messaggio& p : forma.pulsanti) bottoni.push_back(box.addButton(QString::fromUtf8(p.testo), p.ruolo));
  box.setDefaultButton(bottoni[static_cast<size_t>(forma.predefinito)]);
  box.setEscapeButton(bottoni[static_cast<size_t>(forma.annullamento)]);
  box.exec();
  for (size_t i = 0; i < bottoni.size(); ++i) {
    if (box.clickedButton() == bottoni[i]) return forma.pulsanti[i].risposta;
  }
  return forma.pulsanti[static_cast<size_t>(forma.annullamento)].risposta;
}

}  // namespace schedine
