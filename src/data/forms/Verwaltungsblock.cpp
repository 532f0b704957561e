#include "data/forms/Verwaltungsblock.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/globals.h"
#include "data/forms/Feldbeschreibung.h"
#include "data/forms/helpers_forms.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Formular.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"
#include "platform/controls/Rollbereich.h"

using namespace Verwaltung;
using Bauteile::knopf;
using TZ_Variablen::CRLF;

Verwaltungsblock::Verwaltungsblock(const Plan& plan, QWidget* eltern)
    : QWidget(eltern), m_plan(plan) {
  aufbauen();
  verbinden();
}

// ---- layout ----

void Verwaltungsblock::aufbauen() {
  m_neu[0] = knopf("&Neu", m_plan.neu + "_0", "Die Eingaben als neuen Datensatz eintragen");
  m_neu[1] = knopf("&Ändern", m_plan.neu + "_1", "Den in der Liste gewählten Datensatz ändern");
  m_löschen = knopf("&Löschen", m_plan.löschen, "Den in der Liste gewählten Datensatz löschen");
  m_knopfzeile = new QHBoxLayout;
  for (QPushButton* k : {m_neu[0], m_neu[1], m_löschen}) m_knopfzeile->addWidget(k);
  m_knopfzeile->addStretch(1);

  m_liste = new Grid;
  m_liste->setObjectName(m_plan.liste);
  m_liste->setAccessibleName(m_plan.listentitel);
  m_liste->setLayoutSchlüssel(m_plan.schlüssel);
  m_liste->setSelectionMode(QAbstractItemView::SingleSelection);
  m_listenkopf = new QHBoxLayout;

  auto* spalte = new QVBoxLayout(this);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->addWidget(new Rollbereich(eingabenBauen()));
  spalte->addLayout(m_knopfzeile);
  spalte->addLayout(m_listenkopf);
  spalte->addWidget(m_liste, 1);
}

// Two columns of captions and inputs, read downwards; what is only shown stands below.
QWidget* Verwaltungsblock::eingabenBauen() {
  constexpr int Vorrang = 1000;  // of a long text before the empty room on the right
  auto* rahmen = new QGroupBox(m_plan.titel);
  auto* raster = new QGridLayout(rahmen);
  raster->setColumnMinimumWidth(2, 2 * fontMetrics().averageCharWidth());
  raster->setColumnStretch(5, 1);
  int anzahl = 0;
  for (const Feld& feld : m_plan.felder) anzahl += feld.nurAnzeige || feld.stehtDaneben() ? 0 : 1;
  const int höhe = (anzahl + 1) / 2;
  int getippt = 0;
  int gezeigt = 0;
  QHBoxLayout* reihe = nullptr;  // of several inputs under one caption
  for (int i = 0; i < m_plan.felder.size(); ++i) {
    const Feld& feld = m_plan.felder[i];
    Eingabefeld* eingabe = feldBauen(i);
    if (feld.stehtDaneben()) {  // under the caption of the field before
      Q_ASSERT(reihe != nullptr);
      reihe->addWidget(eingabe);
      continue;
    }
    const int platz = feld.nurAnzeige ? gezeigt++ : getippt++;
    const int zeile = feld.nurAnzeige ? höhe + 1 + platz / 2 : platz % höhe;
    const int spalte = 3 * (feld.nurAnzeige ? platz % 2 : platz / höhe);
    raster->addWidget(Formular::beschriften(feld.beschriftung, eingabe), zeile, spalte);
    const bool breit = feld.art == Art::Text && feld.maxLänge > 40;
    if (breit) raster->setColumnStretch(spalte + 1, Vorrang);
    reihe = nullptr;
    if (i + 1 < m_plan.felder.size() && m_plan.felder[i + 1].stehtDaneben()) {
      reihe = new QHBoxLayout;
      reihe->addWidget(eingabe);
      raster->addLayout(reihe, zeile, spalte + 1, Qt::AlignLeft);
    } else {
      raster->addWidget(eingabe, zeile, spalte + 1, breit ? Qt::Alignment() : Qt::AlignLeft);
    }
  }
  if (!m_plan.hinweis.isEmpty()) {
    auto* hinweis = new QLabel(m_plan.hinweis);
    hinweis->setWordWrap(true);
    raster->addWidget(hinweis, höhe, 0, 1, 5);
  }
  return rahmen;
}

Eingabefeld* Verwaltungsblock::feldBauen(int nummer) {
  auto* eingabe = new Eingabefeld;
  eingabe->setObjectName(m_plan.eingabe + "_" + QString::number(nummer));
  eingabe->einrichten(beschreibung(m_plan.felder[nummer]));
  eingabe->setAccessibleName(m_plan.felder[nummer].name());
  if (m_plan.felder[nummer].nurAnzeige) {
    eingabe->setReadOnly(true);
    QPalette farben = eingabe->palette();  // on the form's own ground: nothing to type here
    farben.setBrush(QPalette::Base, farben.window());
    eingabe->setPalette(farben);
  }
  m_eingaben << eingabe;
  return eingabe;
}

void Verwaltungsblock::verbinden() {
  for (const int i : {0, 1})
    Ereignis::wenn(m_neu[i], &QPushButton::clicked, this, [this, i] { speichern(i == 1); });
  Ereignis::wenn(m_löschen, &QPushButton::clicked, this, [this] { löschen(); });
  for (const auto signal : {&Grid::zeileGewechselt, &Grid::zeileAngeklickt})
    Ereignis::wenn(m_liste, signal, this, [this](int zeile) { zeigeZeile(zeile); });
}

QList<QWidget*> Verwaltungsblock::tabfolge() const {
  QList<QWidget*> folge;
  for (Eingabefeld* eingabe : m_eingaben) folge << eingabe;
  folge << m_neu[0] << m_neu[1] << m_löschen;
  for (int i = 0; i < m_knopfzeile->count(); ++i)
    if (QWidget* weiterer = m_knopfzeile->itemAt(i)->widget(); !folge.contains(weiterer))
      if (weiterer != nullptr) folge << weiterer;
  return folge << m_liste;
}

// ---- reading and showing ----

void Verwaltungsblock::laden(const Database& datenbank) {
  öffnen(datenbank);
  picklistenLesen();
  listeLesen();
}

void Verwaltungsblock::öffnen(const Database& datenbank) {
  m_datenbank = datenbank;
  leeren();
}

void Verwaltungsblock::picklistenLesen() {
  for (int i = 0; i < m_plan.felder.size(); ++i)
    if (m_plan.felder[i].hatPickliste())
      m_eingaben[i]->setListe(pickliste(m_datenbank, m_plan.felder[i]));
}

void Verwaltungsblock::listeLesen() {
  m_liste->setDaten(m_datenbank.Lesen(m_plan.anweisung, listenwerte()));
  nachListe();
}

Eingabefeld* Verwaltungsblock::eingabe(const QString& feld) const {
  for (int i = 0; i < m_plan.felder.size(); ++i)
    if (m_plan.felder[i].feld == feld) return m_eingaben[i];
  return nullptr;
}

Texte Verwaltungsblock::texte() const {
  Texte texte;
  for (int i = 0; i < m_plan.felder.size(); ++i)
    texte[m_plan.felder[i].feld] = m_eingaben[i]->inhalt();
  return texte;
}

std::optional<qint64> Verwaltungsblock::aktuelleId() const {
  const int zeile = m_liste->aktuelleZeile();
  if (zeile < 0) return std::nullopt;
  return m_liste->wert(zeile, "ID").toLongLong();
}

void Verwaltungsblock::zeigeDatensatz(qint64 id) {
  const int zeile = m_liste->findeZeile("ID = " + QString::number(id));
  if (zeile < 0) return;
  m_liste->setAktuelleZeile(zeile);
  zeigeZeile(zeile);
}

void Verwaltungsblock::zeigeZeile(int zeile) {
  if (zeile < 0) return;
  for (int i = 0; i < m_plan.felder.size(); ++i) {
    const Feld& feld = m_plan.felder[i];
    m_eingaben[i]->setInhalt(feldtext(feld, m_liste->wert(zeile, feld.feld)));
  }
  m_gezeigt = m_liste->wert(zeile, "ID").toLongLong();
}

void Verwaltungsblock::leeren() {
  m_gezeigt.reset();
  for (int i = 0; i < m_plan.felder.size(); ++i)
    m_eingaben[i]->setInhalt(m_plan.felder[i].ersterText);
}

void Verwaltungsblock::fokusAufErstesFeld() { m_eingaben.first()->fokussieren(); }

// ---- saving and deleting ----

QStringList Verwaltungsblock::prüfe(const Texte&, bool) { return {}; }

QString Verwaltungsblock::vorSpeichern(const Texte&, std::optional<qint64>, QVariantHash&) {
  return {};
}

QString Verwaltungsblock::meldung(const QStringList& gründe) const { return ablehnung(gründe); }

qint64 Verwaltungsblock::schreiben(const Texte& texte, std::optional<qint64> id,
                                   const QVariantHash& weitere) {
  return Verwaltung::speichern(m_datenbank, m_plan.tabelle, m_plan.felder, texte, id, weitere);
}

void Verwaltungsblock::nachSpeichern(qint64, bool) {}

// The row for a question: its first values that aren't empty.
QString Verwaltungsblock::benennung(int zeile) const {
  constexpr qsizetype Höchstens = 4;
  QStringList teile;
  for (const Feld& feld : m_plan.felder) {
    if (feld.nurAnzeige || teile.size() == Höchstens) continue;
    const QString wert = feldtext(feld, m_liste->wert(zeile, feld.feld));
    if (!wert.trimmed().isEmpty()) teile << feld.beschriftung + ": " + wert;
  }
  return teile.join(", ");
}

// A row that became current by itself was never in the inputs: what they hold was meant for another
// one, most likely for a new one.
bool Verwaltungsblock::überschreibenErfragt(int zeile) {
  if (m_gezeigt == aktuelleId()) return true;
  return Meldungen::Frage(
      QString("Der gewählte Datensatz steht nicht in den Eingabefeldern:") + CRLF + CRLF +
          benennung(zeile) + CRLF + CRLF +
          QString("Soll er wirklich mit den jetzigen Eingaben überschrieben werden?"),
      Meldungen::Vorgabe::Nein, this);
}

// What goes along with a row is told by the inputs, so they show it first.
bool Verwaltungsblock::löschenErfragt(int zeile) {
  if (m_gezeigt == aktuelleId()) return LoeschenBestaetigt();
  if (!LöschenErfragt(benennung(zeile))) return false;
  zeigeZeile(zeile);
  return true;
}

void Verwaltungsblock::speichern(bool ändern) {
  const Texte eingaben = texte();
  if (const QStringList gründe = prüfe(eingaben, ändern); !gründe.isEmpty()) {
    Meldungen::Hinweis(meldung(gründe), this);
    return;
  }
  const std::optional<qint64> id = ändern ? aktuelleId() : std::nullopt;
  if (ändern && !id) {
    Meldungen::Hinweis(m_plan.zuerstMarkieren, this);
    return;
  }
  if (id && !überschreibenErfragt(m_liste->aktuelleZeile())) return;
  QVariantHash weitere;
  if (const QString einwand = vorSpeichern(eingaben, id, weitere); !einwand.isEmpty()) {
    Meldungen::Hinweis(einwand, this);
    return;
  }
  const qint64 gespeichert = schreiben(eingaben, id, weitere);
  nachSpeichern(gespeichert, !id);
  picklistenLesen();
  listeLesen();
  zeigeDatensatz(gespeichert);
  fokusAufErstesFeld();
}

void Verwaltungsblock::löschen() {
  const int zeile = m_liste->aktuelleZeile();
  if (zeile < 0) {
    Meldungen::Hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.", this);
    return;
  }
  if (!löschenErfragt(zeile)) return;
  try {
    m_datenbank.Sammelschreiben([&] {
      vorLöschen(*aktuelleId());
      m_liste->löscheZeile(zeile, m_datenbank, m_plan.tabelle);  // shows the row now at that place
    });
  } catch (...) {
    m_liste->setAktuelleZeile(-1);
    throw;
  }
  if (m_liste->zeilen() == 0) leeren();
  nachLöschen();
}
