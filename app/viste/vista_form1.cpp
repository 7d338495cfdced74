// The main window: the games on the left, the list of saved systems and the
// Ok and Esci buttons on the right, the calibration buttons below.

#include <QFontMetrics>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/binder/finestra_modulo.h"
#include "app/viste/registro_viste.h"
#include "app/viste/strumenti_vista.h"
#include "controls/modulo.h"

namespace schedine {

namespace {

constexpr int opzioni_gioco = 10;

QGroupBox* crea_giochi(QWidget* genitore) {
  auto* frame1 = crea<QGroupBox>(genitore, "Frame1");
  auto* colonna = new QVBoxLayout(frame1);
  for (int i = 0; i < opzioni_gioco; ++i) colonna->addWidget(crea<QRadioButton>(frame1, "Option1", i));
  colonna->addStretch();
  return frame1;
}

QGroupBox* crea_pulsanti_ok(QWidget* genitore, modulo& m) {
  auto* frame2 = crea<QGroupBox>(genitore, "Frame2");
  // The frame keeps the size of the form's design, which Shape4 is fitted to at load.
  const controllo& disegno = m.trova("Frame2");
  frame2->setFixedSize(pixel_da_twips(disegno.larghezza), pixel_da_twips(disegno.altezza));
  auto* bordo = crea<QFrame>(frame2, "Shape4");
  bordo->setFrameShape(QFrame::Box);
  bordo->setFrameShadow(QFrame::Plain);
  bordo->setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* riga = new QHBoxLayout(frame2);
  riga->setContentsMargins(10, 8, 10, 8);
  riga->addWidget(crea<QPushButton>(frame2, "cmdok"));
  riga->addWidget(crea<QPushButton>(frame2, "cmdcancel"));
  return frame2;
}

QWidget* crea_elenco(QWidget* genitore, modulo& m) {
  auto* colonna_widget = new QWidget(genitore);
  auto* colonna = new QVBoxLayout(colonna_widget);
  colonna->setContentsMargins(0, 0, 0, 0);
  auto* titolo = crea<QLabel>(colonna_widget, "Label1");
  QFont grassetto = titolo->font();
  grassetto.setBold(true);
  titolo->setFont(grassetto);
  colonna->addWidget(titolo);

  auto* lista = crea<QListWidget>(colonna_widget, "List1");
  // Entries are padded with blanks into columns: they need a fixed pitch.
  lista->setFont(font_fisso(10));
  lista->setMinimumWidth(QFontMetrics(lista->font()).horizontalAdvance(QString(40, QLatin1Char('M'))));
  lista->setMinimumHeight(QFontMetrics(lista->font()).height() * 12);
  colonna->addWidget(lista, 1);

  for (int i = 0; i < 2; ++i) {
    auto* nota = crea<QLabel>(colonna_widget, "Label2", i);
    nota->setWordWrap(true);
    colonna->addWidget(nota);
  }
  colonna->addWidget(crea_pulsanti_ok(colonna_widget, m), 0, Qt::AlignRight);
  return colonna_widget;
}

QGroupBox* crea_gruppo_taratura(QWidget* genitore, const char* cornice, std::initializer_list<const char*> pulsanti) {
  auto* frame = crea<QGroupBox>(genitore, cornice);
  auto* colonna = new QVBoxLayout(frame);
  for (const char* nome : pulsanti) colonna->addWidget(crea<QPushButton>(frame, nome));
  colonna->addStretch();
  return frame;
}

QGroupBox* crea_taratura(QWidget* genitore) {
  auto* frame6 = crea<QGroupBox>(genitore, "Frame6");
  auto* riga = new QHBoxLayout(frame6);
  riga->addWidget(crea_gruppo_taratura(frame6, "Frame3", {"Command7", "Command1", "Command3"}));
  riga->addWidget(crea_gruppo_taratura(frame6, "Frame4", {"Command2", "Command4"}));
  riga->addWidget(crea_gruppo_taratura(frame6, "Frame5", {"Command5", "Command6"}));
  return frame6;
}

void costruisci(finestra_modulo& f, modulo& m) {
  auto* pagina = new QVBoxLayout(&f);
  auto* sopra = new QHBoxLayout;
  sopra->addWidget(crea_giochi(&f));
  sopra->addWidget(crea_elenco(&f, m), 1);
  pagina->addLayout(sopra, 1);
  pagina->addWidget(crea_taratura(&f));

  // The skin covers the window but for the games, the list and the Ok frame.
  // Enter opens the system chosen in the list, as Ok does.
  f.imposta_pulsante_predefinito(f.findChild<QPushButton*>(QStringLiteral("cmdok")));
  f.usa_skin = true;
  f.esenti_skin = {QStringLiteral("Frame1"), QStringLiteral("Frame2"), QStringLiteral("List1")};
  for (int i = 0; i < opzioni_gioco; ++i) f.esenti_skin << nome_widget("Option1", i);
}

const bool registrata = registra_vista("Form1", &costruisci);

}  // namespace

}  // namespace schedine
