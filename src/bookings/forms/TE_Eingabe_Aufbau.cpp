// The controls of TE_Eingabe and their layout.
#include <QButtonGroup>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "bookings/forms/Slotfelder.h"
#include "bookings/forms/TE_Eingabe.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Rollbereich.h"

using Bauteile::knopf;

namespace {

QString name(const char* stamm, int index) { return QString(stamm) + "_" + QString::number(index); }

QRadioButton* wahl(QButtonGroup* gruppe, const char* stamm, int index, const QString& text) {
  auto* ergebnis = new QRadioButton(text);
  ergebnis->setObjectName(name(stamm, index));
  gruppe->addButton(ergebnis, index);
  return ergebnis;
}

QFrame* linie() {
  auto* ergebnis = new QFrame;
  ergebnis->setFrameShape(QFrame::HLine);
  ergebnis->setFrameShadow(QFrame::Sunken);
  return ergebnis;
}

// A button for what is done a hundred times a day.
void groß(QPushButton* knopf) {
  QFont schrift = knopf->font();
  schrift.setBold(true);
  knopf->setFont(schrift);
  const QFontMetrics metrik(schrift);
  knopf->setMinimumSize(metrik.horizontalAdvance("Löschen") + metrik.height() * 3 / 2,
                        metrik.height() * 7 / 4);
}

}  // namespace

// Above the types, below on the left the colonies, on the right what is booked for them.
TE_Eingabe::TE_Eingabe(QWidget* öffner)
    : Datenformular("TE_Eingabe", "Eingabe (Bewegungsdaten)", öffner) {
  QWidget* völker = baueVölker();
  m_teiler = Bauteile::teiler("teiler", {völker, 1, 300}, {baueBuchung(), 3, 700});
  m_standard[0] =
      knopf("Standard sichern", "standard_0", "Die Eingaben als Maske dieser Eingabeart aufheben");
  m_standard[1] =
      knopf("Standard einlesen", "standard_1", "Die aufgehobene Maske dieser Eingabeart holen");
  zusammensetzen(
      Bauteile::untereinander({{baueArten()}, {linie()}, {m_teiler, 1}}),
      {.links = {m_standard[0], m_standard[1]}, .hilfe = "comhilfe", .schließen = "cmdschließen"});
  tabFolgeSetzen();
  verbinden();
  // Room for long names and a dozen bookings, where the screen has it.
  setWunschgröße(146, 44);
}

QWidget* TE_Eingabe::baueVölker() {
  m_kom = new QComboBox;
  m_kom->setObjectName("kom");
  m_kom->setPlaceholderText("wählen");
  m_kom->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_kom->setMinimumContentsLength(7);
  m_kom->setMinimumWidth(10 * fontMetrics().averageCharWidth());
  m_kom->setMaxVisibleItems(20);

  m_volkli = new Grid;
  m_volkli->setObjectName("volkli");
  m_volkli->setAccessibleName("Völker");
  m_volkli->setLayoutSchlüssel("TE_Eingabe/volkli");
  m_volkli->setMinimumWidth(18 * fontMetrics().averageCharWidth());

  m_nextvolk[0] = knopf("&Voriges", "nextvolk1_0", "Vorheriges Volk");
  m_nextvolk[1] = knopf("Nä&chstes", "nextvolk1_1", "Nächstes Volk");

  auto* wechsel = new QHBoxLayout;
  wechsel->addWidget(m_nextvolk[0]);
  wechsel->addWidget(m_nextvolk[1]);

  auto* standort = new QHBoxLayout;
  standort->addWidget(Formular::beschriften("S&tandort", m_kom));
  m_kom->setAccessibleName("Standort");
  standort->addWidget(m_kom, 1);

  auto* seite = new QWidget;
  auto* spalte = new QVBoxLayout(seite);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->addLayout(standort);
  spalte->addWidget(m_volkli, 1);
  spalte->addLayout(wechsel);
  return seite;
}

QWidget* TE_Eingabe::baueBuchung() {
  m_slots = new Slotfelder(this);
  auto* seite = new QWidget;
  auto* spalte = new QVBoxLayout(seite);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->addWidget(new Rollbereich(m_slots));
  spalte->addWidget(baueKnöpfe());
  spalte->addWidget(baueListe(), 1);
  return seite;
}

QWidget* TE_Eingabe::baueArten() {
  constexpr int JeZeile = 6;
  auto* seite = new QWidget;
  seite->setObjectName("arten");
  seite->setAccessibleName("Art der Eingabe");
  auto* raster = new QGridLayout(seite);
  raster->setContentsMargins(0, 0, 0, 0);
  raster->setVerticalSpacing(fontMetrics().height() / 5);
  m_opti = new QButtonGroup(this);
  for (int art = 0; art < 11; ++art)
    raster->addWidget(wahl(m_opti, "opti", art, buchungstyp(art).beschriftung), art / JeZeile,
                      art % JeZeile);
  return seite;
}

QWidget* TE_Eingabe::baueKnöpfe() {
  m_neu[0] = knopf("&Neu", "neu_0", "Als neue Buchung eintragen (Eingabetaste)");
  m_neu[1] = knopf("&Ändern", "neu_1", "Die in der Liste gewählte Buchung ändern");
  m_löschen = knopf("&Löschen", "löschen", "Die in der Liste gewählte Buchung löschen");
  m_neu[0]->setDefault(true);
  for (QPushButton* k : {m_neu[0], m_neu[1], m_löschen}) groß(k);
  return Bauteile::leiste({m_neu[0], m_neu[1], m_löschen});
}

QWidget* TE_Eingabe::baueListe() {
  m_überschrift = new QLabel;
  m_überschrift->setObjectName("bezbewegungsdaten");
  m_überschrift->setTextFormat(Qt::PlainText);
  // A long name must not widen the window.
  m_überschrift->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  QFont schrift = m_überschrift->font();
  schrift.setBold(true);
  m_überschrift->setFont(schrift);

  auto* kopf = new QHBoxLayout;
  kopf->addWidget(m_überschrift, 1);
  m_anzeige = new QButtonGroup(this);
  kopf->addWidget(wahl(m_anzeige, "anzeige", 0, "Alles"));
  kopf->addWidget(wahl(m_anzeige, "anzeige", 1, "Aktuelles Jahr"));
  kopf->addWidget(wahl(m_anzeige, "anzeige", 2, "Akt. und letztes Jahr"));

  m_li = new Grid;
  m_li->setObjectName("li");
  m_li->setAccessibleName("Bewegungsdaten");
  m_li->setSelectionMode(QAbstractItemView::SingleSelection);

  auto* seite = new QWidget;
  auto* spalte = new QVBoxLayout(seite);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->addLayout(kopf);
  spalte->addWidget(m_li, 1);
  return seite;
}

// The date, the slots in their order, Neu; then what is needed less often.
void TE_Eingabe::tabFolgeSetzen() {
  QList<QWidget*> folge;
  for (int slot = 0; slot < AnzahlSlots; ++slot) folge.append(m_slots->eingabe(slot));
  folge << m_neu[0] << m_neu[1] << m_löschen;
  for (QAbstractButton* k : m_anzeige->buttons()) folge.append(k);
  folge << m_li << m_kom << m_volkli << m_nextvolk[0] << m_nextvolk[1];
  for (QAbstractButton* k : m_opti->buttons()) folge.append(k);
  setTabfolge(folge);
}
