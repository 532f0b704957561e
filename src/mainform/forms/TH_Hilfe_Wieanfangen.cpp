#include "mainform/forms/TH_Hilfe_Wieanfangen.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "mainform/forms/Symbol.h"
#include "platform/controls/Rollbereich.h"

namespace {

struct Schritttext {
  const char* symbol;
  const char* titel;
  const char* text;
  const char* knopf;
  const char* eintrag;  // of the menu
};

constexpr Schritttext Texte[] = {
    {"standort", "Standorte anlegen",
     "Tragen Sie ein, wo Ihre Völker stehen. Die Standorte stehen danach bei jedem Volk und bei "
     "jeder Wanderung zur Auswahl.",
     "&Standorte eingeben", "XV_standorte"},
    {"planung", "Arbeitsplan festlegen",
     "Wählen Sie die Arbeiten, die im Bienenjahr wiederkehren. TOVA berechnet daraus die Termine "
     "für jedes Volk.",
     "&Arbeitsplan öffnen", "XV_Arbeitsplanoptionen"},
    {"volk_neu", "Völker eingeben",
     "Legen Sie Ihre Völker mit Nummer, Standort und Königin an. Danach können Sie Stockkarten, "
     "Ernten und alle anderen Arbeiten buchen.",
     "&Völker eingeben", "XV_neuevölker"},
};

QLabel* titelzeile(const QString& text, double faktor, QWidget* eltern) {
  auto* label = new QLabel(text, eltern);
  QFont schrift = label->font();
  schrift.setBold(true);
  schrift.setPointSizeF(schrift.pointSizeF() * faktor);
  label->setFont(schrift);
  return label;
}

// Wraps the text in at least that many characters a line and keeps the height it needs then; left
// to themselves, nested layouts cut it off.
void umbrechen(QLabel* label, int zeichen) {
  label->setWordWrap(true);
  label->setMinimumWidth(label->fontMetrics().averageCharWidth() * zeichen);
  label->setMinimumHeight(label->heightForWidth(label->minimumWidth()));
  QSizePolicy verhalten = label->sizePolicy();
  verhalten.setHeightForWidth(false);
  label->setSizePolicy(verhalten);
}

}  // namespace

TH_Hilfe_Wieanfangen::TH_Hilfe_Wieanfangen(QWidget* öffner)
    : Formular(QStringLiteral("TH_Hilfe_Wieanfangen"),
               QStringLiteral("Die ersten Schritte in TOVA"), öffner) {
  auto* inhalt = new QWidget;
  auto* seite = new QVBoxLayout(inhalt);
  seite->setContentsMargins(0, 0, 0, 0);
  seite->setSpacing(12);
  seite->addWidget(titelzeile(QStringLiteral("Willkommen bei TOVA"), 1.4, this));
  auto* einleitung = new QLabel(
      QStringLiteral(
          "In drei Schritten ist Ihre Imkerei eingerichtet. Nur der dritte ist nötig, die anderen "
          "können Sie jederzeit nachholen."),
      this);
  umbrechen(einleitung, 72);
  seite->addWidget(einleitung);
  for (int i = 0; i < 3; ++i) seite->addWidget(schrittBauen(i));
  seite->addStretch();

  zusammensetzen(new Rollbereich(inhalt), {.hilfe = {},
                                           .schließen = QStringLiteral("schliessen"),
                                           .wort = QStringLiteral("S&chließen")});
  m_schritt[2]->setDefault(true);
  m_schritt[2]->setFocus();
}

QWidget* TH_Hilfe_Wieanfangen::schrittBauen(int nummer) {
  const Schritttext& inhalt = Texte[nummer];
  auto* karte = new QFrame(this);
  karte->setFrameShape(QFrame::StyledPanel);
  auto* raster = new QGridLayout(karte);
  raster->setHorizontalSpacing(14);
  raster->setColumnStretch(1, 1);

  auto* bild = new QLabel(karte);
  const int größe = fontMetrics().height() * 2;
  bild->setPixmap(symbol(QLatin1String(inhalt.symbol)).pixmap(größe, größe));
  raster->addWidget(bild, 0, 0, 2, 1, Qt::AlignTop);
  raster->addWidget(
      titelzeile(QStringLiteral("%1. %2").arg(nummer + 1).arg(QString::fromUtf8(inhalt.titel)), 1.1,
                 karte),
      0, 1);
  auto* text = new QLabel(QString::fromUtf8(inhalt.text), karte);
  umbrechen(text, 48);
  raster->addWidget(text, 1, 1);

  auto* knopf = new QPushButton(QString::fromUtf8(inhalt.knopf), karte);
  knopf->setObjectName(QStringLiteral("schritt_%1").arg(nummer));
  knopf->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
  führtZu(knopf, QString::fromUtf8(inhalt.eintrag));
  knopf->setAutoDefault(knopf->isEnabled());
  raster->addWidget(knopf, 0, 2, 2, 1, Qt::AlignVCenter);
  m_schritt[static_cast<size_t>(nummer)] = knopf;
  return karte;
}
