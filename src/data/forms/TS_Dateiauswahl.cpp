#include "data/forms/TS_Dateiauswahl.h"

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/globals.h"
#include "platform/controls/Bauteile.h"
#include "platform/files/Dateimuster.h"

TS_Dateiauswahl::TS_Dateiauswahl(const QString& muster, QWidget* öffner)
    : Formular(QStringLiteral("TS_Dateiauswahl"), QStringLiteral("Datei-Auswahl"), öffner) {
  auto* seite = new QVBoxLayout(this);
  m_datei1 = new QListWidget(this);
  m_datei1->setObjectName(QStringLiteral("Datei1"));
  m_datei1->addItems(Dateimuster::namen(muster));
  m_datei1->setUniformItemSizes(true);
  m_datei1->setMinimumSize(fontMetrics().averageCharWidth() * 50, fontMetrics().height() * 14);

  const QString ordner = Dateimuster::ordner(muster);
  auto* kopf =
      beschriften(m_datei1->count() == 0 ? QStringLiteral("Es gibt keine passende Datei.")
                                         : QStringLiteral("&Bitte wählen Sie eine Datei aus:"),
                  m_datei1);
  kopf->setToolTip(QDir::toNativeSeparators(ordner));
  seite->addWidget(kopf);
  seite->addWidget(m_datei1);

  m_ok = Bauteile::okUndSchließen(this, seite);
  connect(m_datei1, &QListWidget::itemDoubleClicked, this, [this] { accept(); });
  connect(m_datei1, &QListWidget::currentRowChanged, this, [this] { knopfStellen(); });
  m_datei1->setCurrentRow(0);
  m_datei1->setFocus();
  knopfStellen();
}

void TS_Dateiauswahl::knopfStellen() { m_ok->setEnabled(m_datei1->currentItem() != nullptr); }

void TS_Dateiauswahl::done(int ergebnis) {
  const QListWidgetItem* gewählt = ergebnis == Accepted ? m_datei1->currentItem() : nullptr;
  TZ_Variablen::DateiErgebnis = gewählt != nullptr ? gewählt->text() : QString();
  Formular::done(ergebnis);
}
