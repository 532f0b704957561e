// How the form is laid out and wired.

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>

#include "output/forms/TA_Textausgabe.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Rollbereich.h"

using Bauteile::benannt;
using Bauteile::knopfOhneEnter;

void TA_Textausgabe::aufbauen() {
  m_t = benannt(new QPlainTextEdit, QStringLiteral("t"));
  m_t->setReadOnly(true);
  m_t->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  m_t->setTabChangesFocus(true);
  m_t->setLineWrapMode(QPlainTextEdit::NoWrap);
  m_t->setUndoRedoEnabled(false);
  m_t->setAccessibleName(QStringLiteral("Liste"));
  m_t->viewport()->installEventFilter(this);

  m_drucken = knopfOhneEnter(QStringLiteral("&Text drucken"), QStringLiteral("drucken"));
  m_drucken->setToolTip(QStringLiteral("Druckt, was im Textfeld steht"));
  m_drucken->setDefault(true);
  m_dateidrucken = knopfOhneEnter(QStringLiteral("&Datei drucken"), QStringLiteral("dateidrucken"));
  m_dateidrucken->setToolTip(
      QStringLiteral("Druckt die ganze Datei, auch was nicht mehr in das "
                     "Textfeld gepasst hat"));

  auto* unten = new QWidget;
  auto* zeile = new QHBoxLayout(unten);
  zeile->setContentsMargins(0, 0, 0, 0);
  zeile->addWidget(schriftBauen(), 1);
  zeile->addWidget(seiteBauen());
  zusammensetzen(Bauteile::untereinander({{m_t, 1}, {new Rollbereich(unten)}}),
                 {.links = {m_drucken, m_dateidrucken},
                  .schließen = QStringLiteral("abbv"),
                  .ohneEnter = true});
  setWunschgröße(1000, 1000);  // lists are wide: as large as the screen
}

QWidget* TA_Textausgabe::schriftBauen() {
  auto* gruppe = new QGroupBox(QStringLiteral("Schrift"));
  m_kom = benannt(new QComboBox, QStringLiteral("kom"));
  m_kom->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_kom->setMinimumContentsLength(12);
  m_größe = benannt(new QComboBox, QStringLiteral("größe"));
  for (int g = Textausgabe::KleinsteGröße; g <= Textausgabe::GrößteGröße; ++g)
    m_größe->addItem(QString::number(g));
  m_kon[0] = benannt(new QCheckBox(QStringLiteral("Fett")), QStringLiteral("kon_0"));
  m_kon[1] = benannt(new QCheckBox(QStringLiteral("Kursiv")), QStringLiteral("kon_1"));
  m_plus5[0] = knopfOhneEnter(QStringLiteral("Schriftgröße +5"), QStringLiteral("plus5_0"));
  m_plus1[0] = knopfOhneEnter(QStringLiteral("Schriftgröße +1"), QStringLiteral("plus1_0"));
  m_plus1[1] = knopfOhneEnter(QStringLiteral("Schriftgröße -1"), QStringLiteral("plus1_1"));
  m_plus5[1] = knopfOhneEnter(QStringLiteral("Schriftgröße -5"), QStringLiteral("plus5_1"));

  auto* oben = new QHBoxLayout;
  oben->addWidget(beschriften(QStringLiteral("Schrift&art:"), m_kom));
  oben->addWidget(m_kom, 1);
  oben->addWidget(beschriften(QStringLiteral("&Größe:"), m_größe));
  oben->addWidget(m_größe);
  oben->addWidget(m_kon[0]);
  oben->addWidget(m_kon[1]);
  auto* stufen = new QHBoxLayout;
  for (QPushButton* k : {m_plus5[0], m_plus1[0], m_plus1[1], m_plus5[1]}) stufen->addWidget(k);
  stufen->addStretch(1);
  auto* zeilen = new QVBoxLayout(gruppe);
  zeilen->addLayout(oben);
  zeilen->addLayout(stufen);
  return gruppe;
}

QWidget* TA_Textausgabe::seiteBauen() {
  auto* gruppe = new QGroupBox(QStringLiteral("Seite"));
  m_druckformat[0] =
      benannt(new QRadioButton(QStringLiteral("Hochformat")), QStringLiteral("druckformat_0"));
  m_druckformat[1] =
      benannt(new QRadioButton(QStringLiteral("Querformat")), QStringLiteral("druckformat_1"));
  m_tz = benannt(new QLineEdit, QStringLiteral("tz"));
  static const QRegularExpression ganz(QStringLiteral("-?[0-9]{0,4}"));
  m_tz->setValidator(new QRegularExpressionValidator(ganz, m_tz));
  m_tz->setAlignment(Qt::AlignRight);
  m_tz->setMaximumWidth(m_tz->fontMetrics().horizontalAdvance(QStringLiteral("000000")));

  auto* format = new QHBoxLayout;
  for (QRadioButton* k : m_druckformat) format->addWidget(k);
  format->addStretch(1);
  auto* rand = new QHBoxLayout;
  rand->addWidget(beschriften(QStringLiteral("Linker &Rand:"), m_tz));
  rand->addWidget(m_tz);
  rand->addWidget(new QLabel(QStringLiteral("Zeichen")));
  rand->addStretch(1);
  m_tz->setAccessibleName(QStringLiteral("Linker Rand, Zeichen"));
  auto* zeilen = new QVBoxLayout(gruppe);
  zeilen->addLayout(format);
  zeilen->addLayout(rand);
  return gruppe;
}

void TA_Textausgabe::verbinden() {
  const auto stufe = [this](const QPushButton* k, int schritt) {
    Ereignis::wenn(k, &QPushButton::clicked, this, [this, schritt] {
      schriftgrößeSetzen(Textausgabe::größeNach(schriftgröße(), schritt));
    });
  };
  stufe(m_plus5[0], 5);
  stufe(m_plus1[0], 1);
  stufe(m_plus1[1], -1);
  stufe(m_plus5[1], -5);
  for (QComboBox* wahl : {m_kom, m_größe})
    Ereignis::wenn(wahl, &QComboBox::currentIndexChanged, this, [this] { schriftZeigen(); });
  for (QCheckBox* k : m_kon)
    Ereignis::wenn(k, &QCheckBox::toggled, this, [this] { schriftZeigen(); });
  Ereignis::wenn(m_tz, &QLineEdit::textChanged, this, [this] { randBegrenzen(); });
  Ereignis::wenn(m_drucken, &QPushButton::clicked, this, [this] { textDrucken(); });
  Ereignis::wenn(m_dateidrucken, &QPushButton::clicked, this, [this] { dateiDrucken(); });
}
