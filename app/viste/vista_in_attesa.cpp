// The stand-in window of a form that has no view of its own yet: its title
// strip and a note. Closing it leads back to the main window, as every slip
// and calibration form does when it is left.

#include <QFont>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/binder/finestra_modulo.h"
#include "app/viste/registro_viste.h"
#include "app/viste/strumenti_vista.h"
#include "controls/insieme_moduli.h"
#include "controls/modulo.h"

namespace schedine {

void costruisci_vista_in_attesa(finestra_modulo& f, modulo& m) {
  auto* pagina = new QVBoxLayout(&f);
  auto* titolo = crea<QLabel>(&f, "lbltitolo");
  QFont grande = titolo->font();
  grande.setBold(true);
  grande.setPointSize(grande.pointSize() + 2);
  titolo->setFont(grande);
  pagina->addWidget(titolo);

  auto* nota = new QLabel(QString::fromUtf8("La finestra «%1» non è ancora disponibile in questa versione del programma.")
                              .arg(QString::fromStdString(m.nome())),
                          &f);
  nota->setWordWrap(true);
  pagina->addWidget(nota, 1);

  auto* chiudi = new QPushButton(QStringLiteral("Torna all'elenco dei sistemi"), &f);
  QObject::connect(chiudi, &QPushButton::clicked, &f, [&f] { f.close(); });
  pagina->addWidget(chiudi, 0, Qt::AlignRight);
  f.setMinimumSize(460, 160);

  f.regola_chiusura = [](modulo& form, insieme_moduli& moduli) {
    form.chiudi_utente();
    moduli("Form1").mostra();
  };
}

}  // namespace schedine
