// How the form of the charts is laid out.

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "evaluations/forms/TW_Grafiken.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Diagramm.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Rollbereich.h"

using Bauteile::benannt;
using Bauteile::knopfOhneEnter;

namespace {

// A frame with the inputs one below the other.
QGroupBox* rahmen(const QString& titel, const QList<QWidget*>& inhalt) {
  auto* gruppe = new QGroupBox(titel);
  auto* spalte = new QVBoxLayout(gruppe);
  for (QWidget* control : inhalt) spalte->addWidget(control);
  return gruppe;
}

template <typename Knopf>
Knopf* glied(const QString& text, const QString& feld, size_t index) {
  return benannt(new Knopf(text), feld + u'_' + QString::number(index));
}

}  // namespace

void TW_Grafiken::aufbauen() {
  m_graph = benannt(new Diagramm, "graph");
  m_meldung = benannt(new QLabel, "meldung");
  m_meldung->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // a path may be long
  QWidget* eingaben = Bauteile::untereinander(
      {{auswahlBauen()}, {artBauen()}, {torteBauen()}, {werteBauen()}, {new QWidget, 1}});
  m_drucken = knopfOhneEnter("&Drucken", "drucken");
  m_drucken->setToolTip("Die Grafik auf einem Blatt im Querformat drucken, auch in eine PDF-Datei");
  m_zwischenablage = knopfOhneEnter("In die &Zwischenablage", "zwischenablage");
  m_zwischenablage->setToolTip("Die Grafik als Bild kopieren, zum Einfügen in einen Text");
  m_speichern = knopfOhneEnter("S&peichern", "speichern");
  m_speichern->setToolTip("Die Grafik als Bild (PNG), Zeichnung (SVG) oder PDF-Datei speichern");

  auto* inhalt = new QWidget;
  auto* zeile = new QHBoxLayout(inhalt);
  zeile->setContentsMargins(0, 0, 0, 0);
  zeile->addWidget(new Rollbereich(eingaben));
  zeile->addWidget(Bauteile::untereinander({{m_graph, 1}, {m_meldung}}), 1);
  zusammensetzen(inhalt, {.links = {m_drucken, m_zwischenablage, m_speichern}, .ohneEnter = true});
  QList<QWidget*> folge(m_auswahl.begin(), m_auswahl.end());
  folge << m_t << m_optitorte[0] << m_optitorte[1] << m_opti3d[0] << m_opti3d[1] << m_großerTeil
        << m_konwertanzeige[0] << m_konwertanzeige[1];
  setTabfolge(folge);
  setWunschgröße(150, 40);
}

QWidget* TW_Grafiken::auswahlBauen() {
  m_t = benannt(new Eingabefeld, "t");
  Eingabefeld::Beschreibung jahr;
  jahr.art = Eingabefeld::Art::Ganzzahl;
  jahr.bis = 9999;
  m_t->einrichten(jahr);
  m_t->setToolTip("Das Jahr der Honigernte nach Sorten");
  auto* einzug = new QWidget;
  einzug->setFixedWidth(2 * fontMetrics().averageCharWidth());
  QWidget* jahreszeile = Bauteile::leiste({einzug, beschriften("&Jahr:", m_t), m_t});

  QList<QWidget*> inhalt;
  for (size_t i = 0; i < m_auswahl.size(); ++i) {
    const auto nummer = static_cast<int>(i);
    m_auswahl[i] = glied<QRadioButton>(Grafiken::auswahlen()[nummer], "auswahl", i);
    inhalt << m_auswahl[i];
    if (Grafiken::fürEinJahr(nummer)) inhalt << jahreszeile;
  }
  m_auswahl[0]->setChecked(true);
  return rahmen("Auswertung", inhalt);
}

QWidget* TW_Grafiken::artBauen() {
  m_optitorte = {glied<QRadioButton>("Tortengrafik", "optitorte", 0),
                 glied<QRadioButton>("Balkengrafik", "optitorte", 1)};
  m_optitorte[0]->setChecked(true);
  return rahmen("Grafikart", {m_optitorte[0], m_optitorte[1]});
}

QWidget* TW_Grafiken::torteBauen() {
  m_opti3d = {glied<QRadioButton>("2D-Grafik (Tortengrafik)", "opti3d", 0),
              glied<QRadioButton>("3D-Grafik (Tortengrafik)", "opti3d", 1)};
  m_opti3d[0]->setChecked(true);
  m_großerTeil = benannt(new QCheckBox("Größter Ausschnitt hervorheben"), "kongrosserteil");
  m_torte = rahmen("Torte", {m_opti3d[0], m_opti3d[1], m_großerTeil});
  return m_torte;
}

QWidget* TW_Grafiken::werteBauen() {
  m_konwertanzeige = {glied<QCheckBox>("Prozent-Anzeige", "konwertanzeige", 0),
                      glied<QCheckBox>("Mengen-Anzeige", "konwertanzeige", 1)};
  m_konwertanzeige[1]->setChecked(true);
  return rahmen("Werte", {m_konwertanzeige[0], m_konwertanzeige[1]});
}
