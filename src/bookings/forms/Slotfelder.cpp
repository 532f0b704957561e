#include "bookings/forms/Slotfelder.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <algorithm>

#include "core/globals.h"
#include "data/forms/Feldbeschreibung.h"
#include "platform/controls/Eingabefeld.h"

namespace {

using Verwaltung::Art;

// What stands together under one caption: a slot and those without a caption right of it.
using Zelle = QList<int>;
using Spaltenzellen = QList<Zelle>;

QList<Zelle> zellen(const Buchungstyp& typ) {
  QList<Zelle> alle;
  for (const Buchungsslot& slot : typ.plätze) {
    if (slot.stehtDaneben())
      alle.last().append(slot.nummer);
    else
      alle.append(Zelle{slot.nummer});
  }
  return alle;
}

// The slots behind the date in columns, read from the top down, column by column.
QList<Spaltenzellen> spalten(const Buchungstyp& typ) {
  const QList<Zelle> alle = zellen(typ);
  QList<qsizetype> anfänge{0};
  if (typ.art == 0)  // scores, combs, the rest
    for (qsizetype i = 0; i < alle.size(); ++i) {
      if (alle[i].first() == 10 || alle[i].first() == 20) anfänge.append(i);
    }
  else if (!typ.platz(NotizSlot))
    anfänge.append((alle.size() + 1) / 2);

  QList<Spaltenzellen> ergebnis;
  for (qsizetype i = 0; i < anfänge.size(); ++i) {
    const qsizetype bis = i + 1 < anfänge.size() ? anfänge[i + 1] : alle.size();
    ergebnis.append(alle.mid(anfänge[i], bis - anfänge[i]));
  }
  return ergebnis;
}

QString slotname(int nummer) { return "sevt_" + QString::number(nummer); }

}  // namespace

Slotfelder::Slotfelder(QWidget* eltern)
    : QWidget(eltern),
      m_notiz(new QPlainTextEdit(this)),
      m_bezeingabeart(new QLabel(this)),
      m_bezmw(new QLabel(this)) {
  setObjectName("slots");
  m_bezmw->setObjectName("bezmw");
  m_bezeingabeart->setObjectName("bezeingabeart");
  QFont schrift = m_bezeingabeart->font();
  schrift.setBold(true);
  schrift.setPointSizeF(schrift.pointSizeF() * 1.2);
  m_bezeingabeart->setFont(schrift);
  for (int nummer = 0; nummer < AnzahlSlots; ++nummer) {
    QWidget* eingabe = m_notiz;
    if (nummer != NotizSlot)
      eingabe = m_felder[static_cast<size_t>(nummer)] = new Eingabefeld(this);
    eingabe->setObjectName(slotname(nummer));
    auto* bezeichnung = new QLabel(this);
    bezeichnung->setObjectName("bez" + slotname(nummer));
    bezeichnung->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    bezeichnung->setTextFormat(Qt::PlainText);
    bezeichnung->setBuddy(eingabe);
    m_bezeichnungen[static_cast<size_t>(nummer)] = bezeichnung;
  }
  m_notiz->setTabChangesFocus(true);
  m_notiz->setMinimumHeight(6 * m_notiz->fontMetrics().lineSpacing());
  beschriftung(0)->setText("Datum");
  feld(0)->setAccessibleName("Datum");
  alleVerbergen();
}

QWidget* Slotfelder::eingabe(int nummer) const {
  if (nummer == NotizSlot) return m_notiz;
  return feld(nummer);
}

QString Slotfelder::text(int nummer) const {
  if (nummer == NotizSlot) return m_notiz->toPlainText().replace(u'\n', TZ_Variablen::CRLF);
  return feld(nummer)->inhalt();
}

void Slotfelder::setText(int nummer, const QString& text) {
  if (nummer == NotizSlot)
    m_notiz->setPlainText(QString(text).replace(TZ_Variablen::CRLF, "\n"));
  else
    feld(nummer)->setInhalt(text);
}

Slottexte Slotfelder::texte() const {
  Slottexte texte;
  for (int nummer = 0; nummer < AnzahlSlots; ++nummer)
    texte[static_cast<size_t>(nummer)] = text(nummer);
  return texte;
}

void Slotfelder::zurücksetzen(const QString& datum) {
  for (int nummer = 1; nummer < AnzahlSlots; ++nummer)
    if (nummer != NotizSlot) feld(nummer)->einrichten({});
  m_notiz->clear();
  feld(0)->einrichten(Verwaltung::beschreibung(Verwaltung::datum("Datum", "Datum").vorgabe(datum)));
  feld(0)->setFixedWidth(feld(0)->sizeHint().width());
}

void Slotfelder::alleVerbergen() {
  for (int nummer = 1; nummer < AnzahlSlots; ++nummer) {
    eingabe(nummer)->hide();
    beschriftung(nummer)->hide();
  }
}

void Slotfelder::einrichten(const Buchungsslot& slot, const QStringList& liste) {
  QWidget* ziel = eingabe(slot.nummer);
  if (slot.art == Art::Notiz) {
    m_notiz->clear();
  } else {
    feld(slot.nummer)->einrichten(Verwaltung::beschreibung(slot));
    feld(slot.nummer)->setListe(liste);
    breiteSetzen(slot);
  }
  ziel->setAccessibleName(slot.name());
  beschriftung(slot.nummer)->setText(slot.beschriftung);
  beschriftung(slot.nummer)->setVisible(!slot.beschriftung.isEmpty());
  ziel->show();
}

// Numbers stand in narrow fields; texts take the room that there is, up to their length.
void Slotfelder::breiteSetzen(const Buchungsslot& slot) {
  Eingabefeld* ziel = feld(slot.nummer);
  const bool text = slot.art == Art::Text;
  ziel->setMaximumWidth(text && slot.maxLänge > 40 ? QWIDGETSIZE_MAX : ziel->sizeHint().width());
  ziel->setMinimumWidth(text ? ziel->minimumSizeHint().width() : ziel->sizeHint().width());
}

// The date, the type's name and the comb balance in one row above the columns.
void Slotfelder::kopfSetzen(QGridLayout* raster, int spalten) {
  auto* kopf = new QHBoxLayout;
  kopf->addWidget(feld(0));
  kopf->addSpacing(2 * fontMetrics().averageCharWidth());
  kopf->addWidget(m_bezeingabeart);
  kopf->addStretch();
  kopf->addWidget(m_bezmw);
  raster->addWidget(beschriftung(0), 0, 0);
  raster->addLayout(kopf, 0, 1, 1, spalten - 1);
}

// Numbers keep their width and texts grow, both from the left. Several fields under one caption
// have it above them: beside it there isn't room for all.
void Slotfelder::zelleSetzen(QGridLayout* raster, const Zelle& zelle, int& zeile, int spalte) {
  constexpr int Vorrang = 1000;  // of a field before the empty room behind it
  auto* felder = new QHBoxLayout;
  felder->setSpacing(fontMetrics().averageCharWidth());
  for (const int nummer : zelle) felder->addWidget(eingabe(nummer), Vorrang);
  felder->addStretch(1);
  if (zelle.size() == 1) {
    raster->addWidget(beschriftung(zelle.first()), zeile, spalte);
    raster->addLayout(felder, zeile++, spalte + 1);
  } else {
    raster->addWidget(beschriftung(zelle.first()), zeile++, spalte, 1, 2,
                      Qt::AlignLeft | Qt::AlignBottom);
    raster->addLayout(felder, zeile++, spalte, 1, 2);
  }
}

void Slotfelder::anordnen(const Buchungstyp& typ) {
  delete layout();
  auto* raster = new QGridLayout(this);
  raster->setContentsMargins(0, 0, 0, 0);
  raster->setHorizontalSpacing(fontMetrics().averageCharWidth());
  raster->setVerticalSpacing(fontMetrics().height() / 8);

  const QList<Spaltenzellen> gruppen = spalten(typ);
  const int breite = static_cast<int>(3 * gruppen.size() - 1);  // caption, field, gap
  kopfSetzen(raster, breite);
  int zeilen = 1;
  for (int spalte = 0; const Spaltenzellen& gruppe : gruppen) {
    // A gap between the columns, so that a caption is read with its own field.
    if (spalte > 0) raster->setColumnMinimumWidth(spalte - 1, 2 * fontMetrics().averageCharWidth());
    int zeile = 1;
    for (const Zelle& zelle : gruppe) {
      if (zelle.first() == NotizSlot) {
        raster->addWidget(m_notiz, zeile, 0, 1, breite);
        raster->setRowStretch(zeile++, 1);
      } else {
        zelleSetzen(raster, zelle, zeile, spalte);
      }
    }
    const bool mitText = std::ranges::any_of(
        gruppe, [&](const Zelle& zelle) { return typ.platz(zelle.first())->art == Art::Text; });
    raster->setColumnStretch(spalte + 1, mitText ? 4 : 1);
    zeilen = std::max(zeilen, zeile);
    spalte += 3;
  }
  // With room to spare the rows stay together at the top.
  if (!typ.platz(NotizSlot)) raster->setRowStretch(zeilen, 1);
}
