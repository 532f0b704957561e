// How the list generator is laid out.

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>

#include "evaluations/Listengenerator.h"
#include "evaluations/forms/TW_Listengenerator.h"
#include "output/Schriftliste.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"

using Bauteile::benannt;
using Bauteile::knopf;

void TW_Listengenerator::aufbauen() {
  QWidget* text = textBauen();
  QWidget* felder = felderBauen();
  m_drucken = knopf(u'&' + QStringLiteral("Listen (markierte Völker)"), "drucken",
                    "Den Text für jedes Volk listen, das im Hauptmodul markiert ist");
  m_drucken->setDefault(true);
  m_sevText1 = benannt(new Eingabefeld, "sevText1");
  Eingabefeld::Beschreibung zahl;
  zahl.art = Eingabefeld::Art::Ganzzahl;
  zahl.bis = 999;
  m_sevText1->einrichten(zahl);
  m_sevText1->setToolTip(
      "Nach so vielen Völkern beginnt beim Drucken eine neue Seite; leer oder 0: fortlaufend");
  auto* jeSeite = beschriften("Ausgaben je Seite", m_sevText1);

  zusammensetzen(
      Bauteile::untereinander({{Bauteile::teiler("teiler", {text, 3, 700}, {felder, 1, 300}), 1}}),
      {.links = {m_drucken, jeSeite, m_sevText1}});
  setTabfolge({m_neu, m_laden, m_speichern, m_speichernUnter, m_textfeld, m_kom, m_einfügen});
  setWunschgröße(150, 40);
}

QWidget* TW_Listengenerator::textBauen() {
  m_neu = knopf("&Neu", "neu", "Einen leeren Text beginnen");
  m_laden = knopf("La&den", "laden", "Einen gesicherten Text holen, auch eines der Beispiele");
  m_speichern = knopf("S&peichern", "speichern");
  m_speichernUnter = knopf("Speichern &unter", "speichernunter");
  m_dateiname = benannt(new QLabel, "dateiname");
  // A long name may be cut rather than widen the window.
  m_dateiname->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  m_textfeld = benannt(new QPlainTextEdit, "t");
  m_textfeld->setAccessibleName("Text");
  m_textfeld->setPlaceholderText(
      "Hier steht der Text, der für jedes markierte Volk gelistet wird.\n"
      "Die Datenfelder rechts fügen Sie mit einem Doppelklick ein.\n"
      "Zwei Beispiele holen Sie mit „Laden“.");
  m_textfeld->setTabChangesFocus(true);
  m_textfeld->setLineWrapMode(QPlainTextEdit::NoWrap);
  QFont schrift = m_textfeld->font();
  schrift.setFamily(QString::fromLatin1(ÜblicheSchrift));
  schrift.setStyleHint(QFont::Monospace);
  schrift.setKerning(false);
  m_textfeld->setFont(schrift);
  auto* knöpfe = Bauteile::leiste({m_neu, m_laden, m_speichern, m_speichernUnter});
  dateiZeigen();
  return Bauteile::untereinander({{knöpfe}, {m_dateiname}, {m_textfeld, 1}});
}

QWidget* TW_Listengenerator::felderBauen() {
  m_kom = benannt(new QListWidget, "kom");
  for (const auto& feld : Listengenerator::datenfelder())
    m_kom->addItem(Listengenerator::eintrag(feld));
  m_kom->setUniformItemSizes(true);
  m_kom->setCurrentRow(0);
  m_kom->setToolTip(
      "Ein Doppelklick oder die Eingabetaste fügt das Feld an der Schreibmarke in den Text ein");
  m_einfügen = knopf("&Einfügen", "einfügen", "Das gewählte Feld in den Text einfügen");
  return Bauteile::untereinander(
      {{beschriften(u'&' + QStringLiteral("Auswahlfeld für Datenfelder"), m_kom)},
       {m_kom, 1},
       {Bauteile::leiste({m_einfügen})}});
}
