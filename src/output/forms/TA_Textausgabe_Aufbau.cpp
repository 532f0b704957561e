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

using Bauteile::benannt;
using Bauteile::knopfOhneEnter;

void TA_Textausgabe::aufbauen() {
  t = benannt(new QPlainTextEdit, QStringLiteral("t"));
  t->setReadOnly(true);
  t->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  t->setTabChangesFocus(true);
  t->setLineWrapMode(QPlainTextEdit::NoWrap);
  t->setUndoRedoEnabled(false);
  t->setAccessibleName(QStringLiteral("Liste"));
  t->viewport()->installEventFilter(this);

  auto* unten = new QHBoxLayout;
  unten->addWidget(schriftBauen(), 1);
  unten->addWidget(seiteBauen());
  auto* spalte = new QVBoxLayout(this);
  spalte->addWidget(t, 1);
  spalte->addLayout(unten);
  spalte->addLayout(knoepfeBauen());
}

QWidget* TA_Textausgabe::schriftBauen() {
  auto* gruppe = new QGroupBox(QStringLiteral("Schrift"));
  kom = benannt(new QComboBox, QStringLiteral("kom"));
  kom->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  kom->setMinimumContentsLength(12);
  größe = benannt(new QComboBox, QStringLiteral("größe"));
  for (int g = Textausgabe::KleinsteGroesse; g <= Textausgabe::GroessteGroesse; ++g)
    größe->addItem(QString::number(g));
  kon[0] = benannt(new QCheckBox(QStringLiteral("Fett")), QStringLiteral("kon_0"));
  kon[1] = benannt(new QCheckBox(QStringLiteral("Kursiv")), QStringLiteral("kon_1"));
  plus5[0] = knopfOhneEnter(QStringLiteral("Schriftgröße +5"), QStringLiteral("plus5_0"));
  plus1[0] = knopfOhneEnter(QStringLiteral("Schriftgröße +1"), QStringLiteral("plus1_0"));
  plus1[1] = knopfOhneEnter(QStringLiteral("Schriftgröße -1"), QStringLiteral("plus1_1"));
  plus5[1] = knopfOhneEnter(QStringLiteral("Schriftgröße -5"), QStringLiteral("plus5_1"));

  auto* oben = new QHBoxLayout;
  oben->addWidget(beschriften(QStringLiteral("Schrift&art:"), kom));
  oben->addWidget(kom, 1);
  oben->addWidget(beschriften(QStringLiteral("&Größe:"), größe));
  oben->addWidget(größe);
  oben->addWidget(kon[0]);
  oben->addWidget(kon[1]);
  auto* stufen = new QHBoxLayout;
  for (QPushButton* k : {plus5[0], plus1[0], plus1[1], plus5[1]}) stufen->addWidget(k);
  stufen->addStretch(1);
  auto* zeilen = new QVBoxLayout(gruppe);
  zeilen->addLayout(oben);
  zeilen->addLayout(stufen);
  return gruppe;
}

QWidget* TA_Textausgabe::seiteBauen() {
  auto* gruppe = new QGroupBox(QStringLiteral("Seite"));
  druckformat[0] =
      benannt(new QRadioButton(QStringLiteral("Hochformat")), QStringLiteral("druckformat_0"));
  druckformat[1] =
      benannt(new QRadioButton(QStringLiteral("Querformat")), QStringLiteral("druckformat_1"));
  tz = benannt(new QLineEdit, QStringLiteral("tz"));
  static const QRegularExpression ganz(QStringLiteral("-?[0-9]{0,4}"));
  tz->setValidator(new QRegularExpressionValidator(ganz, tz));
  tz->setAlignment(Qt::AlignRight);
  tz->setMaximumWidth(tz->fontMetrics().horizontalAdvance(QStringLiteral("000000")));

  auto* format = new QHBoxLayout;
  for (QRadioButton* k : druckformat) format->addWidget(k);
  format->addStretch(1);
  auto* rand = new QHBoxLayout;
  rand->addWidget(beschriften(QStringLiteral("Linker &Rand:"), tz));
  rand->addWidget(tz);
  rand->addWidget(new QLabel(QStringLiteral("Zeichen")));
  rand->addStretch(1);
  tz->setAccessibleName(QStringLiteral("Linker Rand, Zeichen"));
  auto* zeilen = new QVBoxLayout(gruppe);
  zeilen->addLayout(format);
  zeilen->addLayout(rand);
  return gruppe;
}

QHBoxLayout* TA_Textausgabe::knoepfeBauen() {
  drucken = knopfOhneEnter(QStringLiteral("&Text drucken"), QStringLiteral("drucken"));
  drucken->setToolTip(QStringLiteral("Druckt, was im Textfeld steht"));
  drucken->setDefault(true);
  dateidrucken = knopfOhneEnter(QStringLiteral("&Datei drucken"), QStringLiteral("dateidrucken"));
  dateidrucken->setToolTip(
      QStringLiteral("Druckt die ganze Datei, auch was nicht mehr in das "
                     "Textfeld gepasst hat"));
  hilfe = knopfOhneEnter(QStringLiteral("&Hilfe"), QStringLiteral("hilfe"));
  abbv = knopfOhneEnter(QStringLiteral("&Schließen"), QStringLiteral("abbv"));
  auto* leiste = new QHBoxLayout;
  leiste->addWidget(drucken);
  leiste->addWidget(dateidrucken);
  leiste->addStretch(1);
  leiste->addWidget(hilfe);
  leiste->addWidget(abbv);
  return leiste;
}

void TA_Textausgabe::verbinden() {
  const auto stufe = [this](const QPushButton* k, int schritt) {
    Ereignis::wenn(k, &QPushButton::clicked, this, [this, schritt] {
      schriftgroesseSetzen(Textausgabe::groesseNach(schriftgroesse(), schritt));
    });
  };
  stufe(plus5[0], 5);
  stufe(plus1[0], 1);
  stufe(plus1[1], -1);
  stufe(plus5[1], -5);
  for (QComboBox* wahl : {kom, größe})
    Ereignis::wenn(wahl, &QComboBox::currentIndexChanged, this, [this] { schriftZeigen(); });
  for (QCheckBox* k : kon)
    Ereignis::wenn(k, &QCheckBox::toggled, this, [this] { schriftZeigen(); });
  Ereignis::wenn(tz, &QLineEdit::textChanged, this, [this] { randBegrenzen(); });
  Ereignis::wenn(drucken, &QPushButton::clicked, this, [this] { textDrucken(); });
  Ereignis::wenn(dateidrucken, &QPushButton::clicked, this, [this] { dateiDrucken(); });
  Ereignis::wenn(hilfe, &QPushButton::clicked, this, [this] { hilfeZeigen(); });
  Ereignis::wenn(abbv, &QPushButton::clicked, this, [this] { reject(); });
}
