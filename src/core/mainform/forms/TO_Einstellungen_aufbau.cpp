// How the form is laid out and wired.

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include "core/mainform/forms/Symbol.h"
#include "core/mainform/forms/TO_Einstellungen.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"

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
  QList<Platz> plaetze;
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

// A page that scrolls when the window is too small for it, and asks for room for all of it.
class Seite : public QScrollArea {
 public:
  explicit Seite(QWidget* inhalt) {
    setWidget(inhalt);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    inhalt->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
  }
  QSize sizeHint() const override {
    return widget()->sizeHint() + QSize(verticalScrollBar()->sizeHint().width(), 2);
  }
  // Narrower than its text it would hide half of it; lower it may be.
  QSize minimumSizeHint() const override {
    constexpr int Hoechstbreite = 1280;
    const int breite =
        widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    return {std::min(breite, Hoechstbreite), fontMetrics().height() * 12};
  }
};

// A check box doesn't wrap by itself.
QString umbrochen(const QString& text, qsizetype zeichen) {
  QString ergebnis;
  qsizetype laenge = 0;
  for (const QString& wort : text.split(u' ')) {
    const bool neueZeile = laenge > 0 && laenge + 1 + wort.size() > zeichen;
    if (laenge > 0) ergebnis += neueZeile ? u'\n' : u' ';
    laenge = neueZeile || laenge == 0 ? wort.size() : laenge + 1 + wort.size();
    ergebnis += wort;
  }
  return ergebnis;
}

// Enough for the longest entry but not for the long texts: numbers look alike in all groups.
void breiteSetzen(Eingabefeld* feld, const Einstellungen::Eingabe& e) {
  if (e.ablage == Einstellungen::Ablage::Text && e.slot == 0) return;
  constexpr int Knopf = 44;
  const bool zahl =
      e.ablage == Einstellungen::Ablage::Zahl || e.ablage == Einstellungen::Ablage::Wert;
  feld->ensurePolished();
  feld->setFixedWidth(feld->fontMetrics().horizontalAdvance(u'0') * (zahl ? 14 : 26) + Knopf);
}

Eingabefeld::Beschreibung beschreibung(const Einstellungen::Eingabe& e) {
  Eingabefeld::Beschreibung b;
  b.einheit = e.einheit;
  switch (e.ablage) {
    case Einstellungen::Ablage::Zahl:
      b.art = Eingabefeld::Art::Ganzzahl;
      b.bis = 9999;
      break;
    case Einstellungen::Ablage::Wert:
      b.art = Eingabefeld::Art::Dezimal;
      b.nachkommastellen = 2;
      b.maxLaenge = 8;
      break;
    case Einstellungen::Ablage::Text:
      b.art = Eingabefeld::Art::Text;
      break;
    case Einstellungen::Ablage::Feld:
      b.art = Eingabefeld::Art::Auswahl;
      break;
  }
  return b;
}

}  // namespace

void TO_Einstellungen::aufbauen() {
  reiter = benannt(new QTabWidget, "reiter");
  reiter->setAccessibleName("Reiter der Einstellungen");
  for (int i = 0; i < reiterliste().size(); ++i)
    reiter->addTab(new Seite(reiterBauen(i)), reiterliste().at(i).titel);
  reiter->addTab(new Seite(felderBauen()), "&Datenfelder-Reihenfolge");

  auto* spalte = new QVBoxLayout(this);
  spalte->addWidget(reiter, 1);
  spalte->addWidget(knoepfeBauen());
  for (QPushButton* knopf : {alle, keine}) knopf->setAutoDefault(false);
  ok->setDefault(true);  // in the window only: before, another button would take it
  verbinden();
  reihenfolgeSetzen();
  resize(sizeHint().boundedTo(screen()->availableSize() - QSize(20, 60)));
}

QWidget* TO_Einstellungen::reiterBauen(int nummer) {
  auto* seite = new QWidget;
  auto* spalte = new QVBoxLayout(seite);
  QList<QLabel*> schilder;
  for (const Gruppe& gruppe : reiterliste().at(nummer).gruppen) {
    auto* rahmen = new QGroupBox(gruppe.titel);
    auto* zeilen = new QFormLayout(rahmen);
    zeilen->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (const Platz& platz : gruppe.plaetze)
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
  constexpr qsizetype Zeilenlaenge = 70;
  auto* knopf = benannt(new QCheckBox(umbrochen(s.beschriftung, Zeilenlaenge)),
                        QStringLiteral("kon_%1").arg(s.index));
  knopf->setAccessibleName(s.beschriftung);
  kon[s.index] = knopf;
  return knopf;
}

void TO_Einstellungen::eingabeBauen(const Einstellungen::Eingabe& e, QFormLayout* zeilen) {
  auto* feld = benannt(new Eingabefeld, QStringLiteral("sevt_%1").arg(e.index));
  feld->einrichten(beschreibung(e));
  if (e.index == 3) feld->setListe(Einstellungen::trennzeichen());
  breiteSetzen(feld, e);
  QLabel* schild = beschriften(e.beschriftung, feld);
  if (feld->maximumWidth() < QWIDGETSIZE_MAX) {
    zeilen->addRow(schild, feld);
  } else {
    zeilen->addRow(schild);
    zeilen->addRow(feld);
  }
  sevt[e.index] = feld;
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
  litext1 = hakenliste("litext1", "Volkdaten", Einstellungen::zeilentexte(), listen);
  litext2 = hakenliste("litext2", "Buchungen", Einstellungen::buchungstexte(), listen);
  alle = benannt(new QPushButton("Al&le anhaken"), "alle");
  keine = benannt(new QPushButton("&Keinen anhaken"), "keine");
  auto* knoepfe = new QHBoxLayout;
  knoepfe->addWidget(alle);
  knoepfe->addWidget(keine);
  knoepfe->addStretch(1);
  spalte->addLayout(knoepfe);
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
  liste->setMinimumWidth(liste->sizeHintForColumn(0) + 40);
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
  auto* knoepfe = new QHBoxLayout;
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
    knoepfe->addWidget(knopf);
    f.knopf[static_cast<size_t>(i)] = knopf;
  }
  knoepfe->addStretch(1);
  auto* spalte = new QVBoxLayout;
  spalte->addWidget(beschriften(titel, f.liste));
  spalte->addWidget(f.liste, 1);
  spalte->addLayout(knoepfe);
  f.liste->setAccessibleName("Reihenfolge der Datenfelder: " + titel);
  ziel->addLayout(spalte);
}

QWidget* TO_Einstellungen::knoepfeBauen() {
  ok = benannt(new QPushButton("&OK"), "ok");
  standard = benannt(new QPushButton("Standard-&Einstellung"), "standard");
  comhilfe = benannt(new QPushButton("&Hilfe"), "comhilfe");
  cmdabbrechen = benannt(new QPushButton("&Abbrechen"), "cmdabbrechen");
  auto* leiste = new QWidget;
  auto* zeile = new QHBoxLayout(leiste);
  zeile->setContentsMargins(0, 0, 0, 0);
  zeile->addWidget(ok);
  zeile->addWidget(standard);
  zeile->addStretch(1);
  zeile->addWidget(comhilfe);
  zeile->addWidget(cmdabbrechen);
  return leiste;
}

void TO_Einstellungen::verbinden() {
  Ereignis::wenn(ok, &QPushButton::clicked, this, [this] { speichern(); });
  Ereignis::wenn(standard, &QPushButton::clicked, this, [this] { standardSetzen(); });
  Ereignis::wenn(comhilfe, &QPushButton::clicked, this, [this] { hilfeZeigen(); });
  Ereignis::wenn(cmdabbrechen, &QPushButton::clicked, this, [this] { reject(); });
  Ereignis::wenn(alle, &QPushButton::clicked, this, [this] { alleAnhaken(true); });
  Ereignis::wenn(keine, &QPushButton::clicked, this, [this] { alleAnhaken(false); });
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
      for (const Platz& platz : gruppe.plaetze) {
        if (platz.schalter)
          folge << kon[platz.index];
        else
          folge << sevt[platz.index];
      }
  folge << litext1 << litext2 << alle << keine;
  for (const Feldliste& f : m_feldlisten) folge << f.liste << f.knopf[0] << f.knopf[1];
  folge << ok << standard << comhilfe << cmdabbrechen << reiter->tabBar();
  Bauteile::tabfolge(folge);
}
