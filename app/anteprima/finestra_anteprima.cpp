#include "app/anteprima/finestra_anteprima.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/anteprima/pagina_anteprima.h"
#include "app/anteprima/regia_stampa.h"
#include "core/errore_runtime.h"
#include "printing/qt/esporta_pdf.h"
#include "printing/registratore.h"

namespace schedine {

namespace {

constexpr int zoom_di_partenza = 2;  // 100%
constexpr double zoom_possibili[] = {0.5, 0.75, 1.0, 1.5, 2.0, 3.0, 4.0};

QString file_pdf_dal_dialogo(QWidget* genitore) {
  return QFileDialog::getSaveFileName(genitore, QStringLiteral("Salva PDF"), QStringLiteral("anteprima.pdf"),
                                      QStringLiteral("PDF (*.pdf)"));
}

template <class W>
W* nominato(W* w, const char* nome) {
  w->setObjectName(QString::fromLatin1(nome));
  return w;
}

}  // namespace

QString testo_numero_pagina(size_t pagina, size_t pagine) {
  return QStringLiteral("Scheda %1 di %2").arg(pagine == 0 ? 0 : pagina + 1).arg(pagine);
}

finestra_anteprima::finestra_anteprima(std::unique_ptr<registratore> pagine, regia_stampa& regia, QWidget* genitore)
    : QWidget(genitore, Qt::Window), pagine_(std::move(pagine)), regia_(regia) {
  setObjectName(QStringLiteral("anteprima"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(QStringLiteral("Anteprima di stampa"));
  chiedi_file_pdf = [this] { return file_pdf_dal_dialogo(this); };
  pagina_ = new pagina_anteprima(*pagine_, nullptr);
  scorrimento_ = nominato(new QScrollArea, "scorrimento");
  scorrimento_->setWidget(pagina_);
  scorrimento_->setAlignment(Qt::AlignHCenter);
  scorrimento_->setBackgroundRole(QPalette::Dark);
  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(crea_comandi());
  colonna->addWidget(scorrimento_, 1);
  resize(900, 960);
  aggiorna_comandi();
}

finestra_anteprima::~finestra_anteprima() = default;

QWidget* finestra_anteprima::crea_comandi() {
  auto* riga = new QWidget;
  auto* disposizione = new QHBoxLayout(riga);
  disposizione->setContentsMargins(0, 0, 0, 0);
  precedente_ = nominato(new QToolButton, "precedente");
  precedente_->setArrowType(Qt::LeftArrow);
  successiva_ = nominato(new QToolButton, "successiva");
  successiva_->setArrowType(Qt::RightArrow);
  numero_ = nominato(new QLabel, "numero");
  zoom_ = nominato(new QComboBox, "zoom");
  for (double z : zoom_possibili) zoom_->addItem(QStringLiteral("%1%").arg(z * 100));
  zoom_->setCurrentIndex(zoom_di_partenza);
  figura_ = nominato(new QCheckBox(QStringLiteral("Figura della schedina")), "figura");
  figura_->setChecked(true);
  auto* stampa = nominato(new QPushButton(QStringLiteral("Stampa")), "stampa");
  auto* salva = nominato(new QPushButton(QStringLiteral("Salva PDF")), "salva_pdf");
  auto* chiudi = nominato(new QPushButton(QStringLiteral("Chiudi")), "chiudi");
  for (QWidget* w : std::initializer_list<QWidget*>{precedente_, numero_, successiva_, zoom_, figura_}) {
    disposizione->addWidget(w);
  }
  disposizione->addStretch(1);
  for (QWidget* w : std::initializer_list<QWidget*>{stampa, salva, chiudi}) disposizione->addWidget(w);
  connect(precedente_, &QToolButton::clicked, this, [this] { vai_a(pagina_->pagina() - 1); });
  connect(successiva_, &QToolButton::clicked, this, [this] { vai_a(pagina_->pagina() + 1); });
  connect(zoom_, &QComboBox::currentIndexChanged, this, [this](int i) {
    if (i >= 0) pagina_->imposta_zoom(zoom_possibili[i]);
  });
  connect(figura_, &QCheckBox::toggled, this, [this](bool si) { pagina_->mostra_figura(si); });
  connect(stampa, &QPushButton::clicked, this, [this] { this->stampa(); });
  connect(salva, &QPushButton::clicked, this, [this] { salva_pdf(); });
  connect(chiudi, &QPushButton::clicked, this, &QWidget::close);
  return riga;
}

void finestra_anteprima::aggiorna_comandi() {
  const size_t n = pagine_->pagine();
  numero_->setText(testo_numero_pagina(pagina_->pagina(), n));
  precedente_->setEnabled(pagina_->pagina() > 0);
  successiva_->setEnabled(pagina_->pagina() + 1 < n);
}

void finestra_anteprima::vai_a(size_t pagina) {
  pagina_->mostra_pagina(pagina);
  aggiorna_comandi();
}

void finestra_anteprima::keyPressEvent(QKeyEvent* evento) {
  if (evento->key() == Qt::Key_PageDown || evento->key() == Qt::Key_Right) {
    vai_a(pagina_->pagina() + 1);
  } else if ((evento->key() == Qt::Key_PageUp || evento->key() == Qt::Key_Left) && pagina_->pagina() > 0) {
    vai_a(pagina_->pagina() - 1);
  } else if (evento->key() == Qt::Key_Home) {
    vai_a(0);
  } else if (evento->key() == Qt::Key_End && pagine_->pagine() > 0) {
    vai_a(pagine_->pagine() - 1);
  } else {
    QWidget::keyPressEvent(evento);
  }
}

void finestra_anteprima::stampa() {
  // The pages as recorded, never the picture: paper has the slip on it.
  try {
    pagine_->riproduci_tutto(regia_.stampante_reale());
  } catch (const errore_runtime& e) {
    regia_.messaggio(e.rapporto(), stile_messaggio::esclamativo, "");
  }
}

void finestra_anteprima::salva_pdf() {
  const QString percorso = chiedi_file_pdf ? chiedi_file_pdf() : QString();
  if (percorso.isEmpty()) return;
  try {
    esporta_pdf(*pagine_, percorso.toStdString(), figura_->isChecked());
  } catch (const errore_runtime& e) {
    regia_.messaggio("Il file PDF non è stato salvato: " + e.dettaglio(), stile_messaggio::esclamativo, "");
  }
}

}  // namespace schedine
