#include "evaluations/forms/TW_Grafiken.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

#include "core/globals.h"
#include "data/helpers.h"
#include "platform/controls/Dateidialoge.h"
#include "platform/controls/Diagramm.h"
#include "platform/controls/Druck.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"

TW_Grafiken::TW_Grafiken(QWidget* öffner)
    : Datenformular("TW_Grafiken", "Grafische Auswertungen", öffner) {
  aufbauen();
  verbinden();
}

void TW_Grafiken::verbinden() {
  for (QRadioButton* knopf : m_auswahl)
    Ereignis::wenn(knopf, &QRadioButton::toggled, this, [this](bool an) {
      if (an) lesen();
    });
  for (QRadioButton* knopf : {m_optitorte[0], m_optitorte[1], m_opti3d[0], m_opti3d[1]})
    Ereignis::wenn(knopf, &QRadioButton::toggled, this, [this](bool an) {
      if (an) zeichnen();
    });
  Ereignis::wenn(m_großerTeil, &QCheckBox::toggled, this, [this] { zeichnen(); });
  // One of the two or none.
  for (const size_t i : {0, 1})
    Ereignis::wenn(m_konwertanzeige[i], &QCheckBox::toggled, this, [this, i](bool an) {
      if (an && m_konwertanzeige[1 - i]->isChecked())
        m_konwertanzeige[1 - i]->setChecked(false);
      else
        zeichnen();
    });
  Ereignis::wenn(m_t, &Eingabefeld::verlassen, this, [this] { jahrVerlassen(); });
  Ereignis::wenn(m_t, &Eingabefeld::ausListeGenommen, this, [this] { jahrVerlassen(); });
  Ereignis::wenn(m_drucken, &QPushButton::clicked, this, [this] { drucken(); });
  Ereignis::wenn(m_zwischenablage, &QPushButton::clicked, this, [this] { kopieren(); });
  Ereignis::wenn(m_speichern, &QPushButton::clicked, this, [this] { speichern(); });
}

// The years that are offered are those in which honey was harvested, the last one first.
void TW_Grafiken::füllen() {
  constexpr int HonigJeJahr = 2;
  QStringList jahre;
  for (const auto& punkt : Grafiken::lesen(m_db, HonigJeJahr, {}).punkte)
    if (NurZiffern(punkt.name)) jahre.prepend(punkt.name);
  m_t->setListe(jahre);
  m_t->setInhalt(JahrErgaenzen(JahrErgaenzen(m_t->inhalt())));  // what was left half typed too
  lesen();
  m_auswahl[static_cast<size_t>(auswahl())]->setFocus();
}

int TW_Grafiken::auswahl() const {
  for (size_t i = 0; i < m_auswahl.size(); ++i)
    if (m_auswahl[i]->isChecked()) return static_cast<int>(i);
  return 0;
}

void TW_Grafiken::jahrVerlassen() {
  m_t->setInhalt(JahrErgaenzen(m_t->inhalt()));
  lesen();
}

void TW_Grafiken::lesen() {
  const Ereignis::Sanduhr sanduhr;
  m_t->setEnabled(Grafiken::fürEinJahr(auswahl()));
  m_grafik = Grafiken::lesen(m_db, auswahl(), m_t->inhalt());
  zeichnen();
}

void TW_Grafiken::zeichnen() {
  using Art = Diagramminhalt::Art;
  using Werte = Diagramminhalt::Werte;
  const bool torte = m_optitorte[0]->isChecked();
  m_torte->setEnabled(torte);
  Diagramminhalt inhalt;
  inhalt.art = !torte ? Art::Balken : m_opti3d[0]->isChecked() ? Art::Torte : Art::Torte3D;
  inhalt.werte = m_konwertanzeige[0]->isChecked()   ? Werte::Prozent
                 : m_konwertanzeige[1]->isChecked() ? Werte::Mengen
                                                    : Werte::Keine;
  inhalt.titel = m_grafik.titel;
  inhalt.fuß = m_grafik.fuß;
  for (const auto& punkt : m_grafik.punkte) inhalt.punkte.append({punkt.name, punkt.wert});
  if (torte && m_großerTeil->isChecked()) inhalt.herausgezogen = m_grafik.größter;
  m_graph->setInhalt(inhalt);
  sagen({});
}

void TW_Grafiken::sagen(const QString& text) { m_meldung->setText(text); }

// "Honigernte nach Sorten 2006"
QString TW_Grafiken::dateiname() const {
  const QString name = Grafiken::auswahlen()[auswahl()];
  return Grafiken::fürEinJahr(auswahl()) ? name + u' ' + m_t->inhalt() : name;
}

void TW_Grafiken::drucken() {
  Druck::Auftrag auftrag;
  auftrag.titel = dateiname();
  auftrag.quer = true;
  auftrag.malen = [this](QPainter& maler, const QRectF& feld) { m_graph->malen(maler, feld); };
  Druck::drucken(auftrag, this);
}

void TW_Grafiken::kopieren() {
  QApplication::clipboard()->setImage(m_graph->bild());
  sagen("Die Grafik liegt in der Zwischenablage.");
}

void TW_Grafiken::speichern() {
  const QString pfad = Dateidialoge::speichern(
      this, "Grafik speichern", QDir(Dateidialoge::dokumente()).filePath(dateiname()),
      "PNG-Bild (*.png);;SVG-Zeichnung (*.svg);;PDF-Datei (*.pdf)");
  if (pfad.isEmpty()) return;
  m_graph->speichern(pfad);
  sagen("Gespeichert: " + QDir::toNativeSeparators(pfad));
}
