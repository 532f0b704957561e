// How the form is laid out and wired.

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include "data/forms/Feldbeschreibung.h"
#include "mainform/forms/Symbol.h"
#include "mainform/forms/TO_Einstellungen.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Rollbereich.h"

using Bauteile::benannt;

namespace {

// A check box or an entry field by its index.
struct Platz {
  bool schalter;
  int index;
};
constexpr Platz K(int index) { return {true, index}; }
constexpr Platz S(int index) { return {false, index}; }

struct Gruppe {
  QString titel;
  QList<Platz> plätze;
};
struct Reiter {
  QString titel;
  QList<Gruppe> gruppen;
};

const QList<Reiter>& reiterliste() {
  static const QList<Reiter> liste = {
      {"All&gemein",
       {{"Beim Programmstart", {K(0), S(1), S(0)}},
        {"Völkerliste im Hauptmodul", {K(6), S(13), S(14)}}}},
      {"E&ingabe",
       {{"Eingeben und Löschen", {K(3), K(5), K(7), S(15)}},
        {"Buchungen", {K(10), K(8), K(11), S(12)}}}},
      {"&Werte und Kosten",
       {{"Werte der Ernten", {S(5), S(6), S(7), S(8)}},
        {"Arbeitszeit", {S(9)}},
        {"Taschenrechner", {S(10), S(11)}}}},
      {"A&uswertungen",
       {{"Alle Auswertungen", {K(4), S(2), S(3)}}, {"Explorer-Auswertung", {K(1), K(2), S(4)}}}},
  };
  return liste;
}

// A check box doesn't wrap by itself.
QString umbrochen(const QString& text, qsizetype zeichen) {
  QString ergebnis;
  qsizetype länge = 0;
  for (const QString& wort : text.split(u' ')) {
    const bool neueZeile = länge > 0 && länge + 1 + wort.size() > zeichen;
    if (länge > 0) ergebnis += neueZeile ? u'\n' : u' ';
    länge = neueZeile || länge == 0 ? wort.size() : länge + 1 + wort.size();
    ergebnis += wort;
  }
  return ergebnis;
}

// Enough for the longest entry but not for the long texts: numbers look alike in all groups.
void breiteSetzen(Eingabefeld* feld, const Einstellungen::Eingabe& e) {
  if (!e.istZahl() && !e.istListenfeld() && !e.feld.hatPickliste()) return;
  constexpr int Knopf = 44;
  feld->ensurePolished();
  feld->setFixedWidth(feld->fontMetrics().horizontalAdvance(u'0') * (e.istZahl() ? 14 : 26) +
                      Knopf);
}

}  // namespace

void TO_Einstellungen::aufbauen() {
  m_reiter = benannt(new QTabWidget, "reiter");
  m_reiter->setAccessibleName("Reiter der Einstellungen");
  for (int i = 0; i < reiterliste().size(); ++i)
    m_reiter->addTab(new Rollbereich(reiterBauen(i)), reiterliste().at(i).titel);
  m_reiter->addTab(new Rollbereich(felderBauen()), "&Datenfelder-Reihenfolge");

  m_ok = benannt(new QPushButton("&OK"), "ok");
  m_standard = benannt(new QPushButton("Standard-&Einstellung"), "standard");
  zusammensetzen(m_reiter, {.links = {m_ok, m_standard},
                            .hilfe = "comhilfe",
                            .schließen = "cmdabbrechen",
                            .wort = "&Abbrechen"});
  for (QPushButton* knopf : {m_alle, m_keine}) knopf->setAutoDefault(false);
  m_ok->setDefault(true);  // in the window only: before, another button would take it
  verbinden();
  reihenfolgeSetzen();
}

QWidget* TO_Einstellungen::reiterBauen(int nummer) {
  auto* seite = new QWidget;
  auto* spalte = new QVBoxLayout(seite);
  QList<QLabel*> schilder;
  for (const Gruppe& gruppe : reiterliste().at(nummer).gruppen) {
    auto* rahmen = new QGroupBox(gruppe.titel);
    auto* zeilen = new QFormLayout(rahmen);
    zeilen->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (const Platz& platz : gruppe.plätze)
      if (platz.schalter)
        zeilen->addRow(schalterBauen(Einstellungen::schalter(platz.index)));
      else
        eingabeBauen(Einstellungen::eingabe(platz.index), zeilen);
    for (int i = 0; i < zeilen->rowCount(); ++i)
      if (auto* stelle = zeilen->itemAt(i, QFormLayout::LabelRole))
        schilder << qobject_cast<QLabel*>(stelle->widget());
    spalte->addWidget(rahmen);
  }
  spalte->addStretch(1);
  // The fields of all groups stand below one another.
  int breite = 0;
  for (QLabel* schild : std::as_const(schilder)) {
    schild->ensurePolished();
    breite = std::max(breite, schild->sizeHint().width());
  }
  for (QLabel* schild : std::as_const(schilder)) schild->setMinimumWidth(breite);
  return seite;
}

QWidget* TO_Einstellungen::schalterBauen(const Einstellungen::Schalter& s) {
  constexpr qsizetype Zeilenlänge = 70;
  auto* knopf = benannt(new QCheckBox(umbrochen(s.beschriftung, Zeilenlänge)),
                        QStringLiteral("kon_%1").arg(s.index));
  knopf->setAccessibleName(s.beschriftung);
  m_kon[s.index] = knopf;
  return knopf;
}

void TO_Einstellungen::eingabeBauen(const Einstellungen::Eingabe& e, QFormLayout* zeilen) {
  auto* feld = benannt(new Eingabefeld, QStringLiteral("sevt_%1").arg(e.index));
  feld->einrichten(Verwaltung::beschreibung(e.feld));
  feld->setListe(e.feld.art == Verwaltung::Art::Text ? e.feld.texte : QStringList());
  breiteSetzen(feld, e);
  QLabel* schild = beschriften(e.feld.beschriftung, feld);
  if (feld->maximumWidth() < QWIDGETSIZE_MAX) {
    zeilen->addRow(schild, feld);
  } else {
    zeilen->addRow(schild);
    zeilen->addRow(feld);
  }
  m_sevt[e.index] = feld;
}

QWidget* TO_Einstellungen::felderBauen() {
  auto* seite = new QWidget;
  auto* zeile = new QHBoxLayout(seite);
  zeile->addWidget(anzeigeBauen(), 1);
  zeile->addWidget(reihenfolgeBauen(), 1);
  return seite;
}

QWidget* TO_Einstellungen::anzeigeBauen() {
  auto* rahmen = new QGroupBox("Zu listende Daten im Info-Fenster");
  auto* spalte = new QVBoxLayout(rahmen);
  auto* listen = new QHBoxLayout;
  spalte->addLayout(listen, 1);
  m_litext1 = hakenliste("litext1", "Volkdaten", Einstellungen::zeilentexte(), listen);
  m_litext2 = hakenliste("litext2", "Buchungen", Einstellungen::buchungstexte(), listen);
  m_alle = benannt(new QPushButton("Al&le anhaken"), "alle");
  m_keine = benannt(new QPushButton("&Keinen anhaken"), "keine");
  auto* knöpfe = new QHBoxLayout;
  knöpfe->addWidget(m_alle);
  knöpfe->addWidget(m_keine);
  knöpfe->addStretch(1);
  spalte->addLayout(knöpfe);
  return rahmen;
}

QListWidget* TO_Einstellungen::hakenliste(const QString& name, const QString& titel,
                                          const QStringList& texte, QBoxLayout* ziel) {
  auto* liste = benannt(new QListWidget, name);
  liste->addItems(texte);
  for (int i = 0; i < liste->count(); ++i) {
    liste->item(i)->setFlags(liste->item(i)->flags() | Qt::ItemIsUserCheckable);
    liste->item(i)->setCheckState(Qt::Unchecked);
  }
  liste->setTabKeyNavigation(false);
  constexpr int Zeichen = 18;  // it scrolls where there isn't room for the longest text
  liste->setMinimumWidth(Zeichen * fontMetrics().averageCharWidth());
  auto* spalte = new QVBoxLayout;
  spalte->addWidget(beschriften(titel, liste));
  spalte->addWidget(liste, 1);
  liste->setAccessibleName("Zu listende Daten im Info-Fenster: " + titel);
  ziel->addLayout(spalte);
  return liste;
}

QWidget* TO_Einstellungen::reihenfolgeBauen() {
  auto* rahmen = new QGroupBox("Reihenfolge der Datenfelder in den Listen");
  auto* listen = new QHBoxLayout(rahmen);
  for (size_t nummer : {size_t{0}, size_t{1}}) feldlisteBauen(nummer, listen);
  return rahmen;
}

void TO_Einstellungen::feldlisteBauen(size_t nummer, QBoxLayout* ziel) {
  const bool volk = nummer == 0;
  Feldliste& f = m_feldlisten[nummer];
  const QString titel = volk ? QString("Völkerliste") : QString("Stockkarte");
  f.liste = benannt(new QListWidget, volk ? "lifelder" : "listock");
  constexpr int Bildlauf = 48;  // scroll bar, frame and air
  f.liste->setMinimumWidth(fontMetrics().horizontalAdvance("Königin_Zugangsdatum") + Bildlauf);
  auto* knöpfe = new QHBoxLayout;
  for (int i : {0, 1}) {
    auto* knopf = benannt(
        new QToolButton,
        (volk ? QStringLiteral("aufwaerts_%1") : QStringLiteral("aufwaertsstock_%1")).arg(i));
    const QString text =
        i == 0 ? QString("Nach oben verschieben") : QString("Nach unten verschieben");
    knopf->setIcon(symbol(i == 0 ? "pfeil_hoch" : "pfeil_runter"));
    const int kante = fontMetrics().height() * 5 / 4;
    knopf->setIconSize(QSize(kante, kante));
    knopf->setToolTip(text);
    knopf->setAccessibleName(titel + ": " + text);
    knopf->setFocusPolicy(Qt::StrongFocus);
    knopf->setAutoRepeat(true);
    knöpfe->addWidget(knopf);
    f.knopf[static_cast<size_t>(i)] = knopf;
  }
  knöpfe->addStretch(1);
  auto* spalte = new QVBoxLayout;
  spalte->addWidget(beschriften(titel, f.liste));
  spalte->addWidget(f.liste, 1);
  spalte->addLayout(knöpfe);
  f.liste->setAccessibleName("Reihenfolge der Datenfelder: " + titel);
  ziel->addLayout(spalte);
}

void TO_Einstellungen::verbinden() {
  Ereignis::wenn(m_ok, &QPushButton::clicked, this, [this] { speichern(); });
  Ereignis::wenn(m_standard, &QPushButton::clicked, this, [this] { standardSetzen(); });
  Ereignis::wenn(m_alle, &QPushButton::clicked, this, [this] { alleAnhaken(true); });
  Ereignis::wenn(m_keine, &QPushButton::clicked, this, [this] { alleAnhaken(false); });
  for (size_t nummer : {size_t{0}, size_t{1}})
    for (int i : {0, 1}) {
      const auto tun = [this, nummer, i] { verschieben(nummer, i == 0 ? -1 : 1); };
      const Feldliste& f = m_feldlisten[nummer];
      Ereignis::wenn(f.knopf[static_cast<size_t>(i)], &QToolButton::clicked, this, tun);
      auto* taste = new QShortcut(QKeySequence(i == 0 ? "Alt+Up" : "Alt+Down"), f.liste);
      taste->setContext(Qt::WidgetShortcut);
      Ereignis::wenn(taste, &QShortcut::activated, this, tun);
    }
}

// Through the groups of each tab in their order, then the buttons.
void TO_Einstellungen::reihenfolgeSetzen() {
  QList<QWidget*> folge;
  for (const Reiter& r : reiterliste())
    for (const Gruppe& gruppe : r.gruppen)
      for (const Platz& platz : gruppe.plätze) {
        if (platz.schalter)
          folge << m_kon[platz.index];
        else
          folge << m_sevt[platz.index];
      }
  folge << m_litext1 << m_litext2 << m_alle << m_keine;
  for (const Feldliste& f : m_feldlisten) folge << f.liste << f.knopf[0] << f.knopf[1];
  setTabfolge(folge, {m_reiter->tabBar()});
}
