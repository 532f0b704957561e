#include "mainform/Volkanzeige.h"

#include <QDate>

#include "core/globals.h"
#include "data/helpers.h"
#include "platform/locale/Deutsch.h"
#include "platform/locale/Dezimalsumme.h"

using namespace TZ_Variablen;

namespace Volkanzeige {

namespace {

bool gezeigt(int position) {
  return EinstellungenText[Textslots.infofenster].mid(position - 1, 1) == u'1';
}

int diesesJahr() { return DatumLesen(HeuteText).year(); }

// One row of bookings, with its fields by name.
class Buchungszeile {
 public:
  Buchungszeile(const Datenblock& daten, int zeile) : m_daten(daten), m_zeile(zeile) {}

  bool vorhanden() const { return m_zeile < m_daten.zeilen(); }
  QVariant wert(const QString& feld) const {
    const int spalte = m_daten.spaltenNummer(feld);
    return spalte < 0 ? QVariant() : m_daten.wert(m_zeile, spalte);
  }
  QString text(const QString& feld) const { return TextLesen(wert(feld)); }
  double zahl(const QString& feld) const { return ZahlLesen(wert(feld)); }
  QString datum() const { return Deutsch::datumText(wert(QStringLiteral("Datum")).toDate()); }

 private:
  const Datenblock& m_daten;
  int m_zeile;
};

QString spaltentext(const Spaltenform& form, const Buchungszeile& zeile,
                    const Buchungszeile& ältere) {
  switch (form.art) {
    case Spaltenform::Art::Rechts:
      return TextRechts(form.nachkommastellen < 0
                            ? zeile.text(form.feld)
                            : ZahlFormat(zeile.wert(form.feld), form.nachkommastellen),
                        form.breite);
    case Spaltenform::Art::Links:
      return TextLinks(zeile.text(form.feld), form.breite);
    case Spaltenform::Art::Lücke:
      return QString(form.breite, u' ');
    case Spaltenform::Art::Differenz:
      if (!ältere.vorhanden()) return QString(form.breite, u' ');
      return TextRechts(
          Deutsch::schlicht(Dezimalsumme::von({zeile.zahl(form.feld), -ältere.zahl(form.feld)})),
          form.breite);
    case Spaltenform::Art::Wabensumme:
      return TextRechts(
          Deutsch::schlicht(Dezimalsumme::von(
              {zeile.zahl(QStringLiteral("Waben")), zeile.zahl(QStringLiteral("Mittelwände"))})),
          form.breite);
  }
  return {};
}

QString notiztext(const Buchungszeile& zeile) {
  QString notiz = zeile.text(QStringLiteral("NOTIZ"));
  notiz.replace(CRLF, QStringLiteral("\n")).replace(u'\n', CRLF);
  return QStringLiteral("Datum: ") + zeile.datum() + CRLF + notiz + CRLF + CRLF;
}

QString blocktext(const Block& block, const Datenblock& daten) {
  QString text = CRLF + CRLF + block.titel + CRLF;
  if (!block.kopf.isEmpty()) text += block.kopf + CRLF + QString(block.kopf.size(), u'-') + CRLF;
  for (int i = 0; i < daten.zeilen(); ++i) {
    const Buchungszeile zeile(daten, i);
    if (block.kopf.isEmpty()) {
      text += notiztext(zeile);
      continue;
    }
    const Buchungszeile ältere(daten, i + 1);
    text += zeile.datum();
    for (const Spaltenform& form : block.spalten) text += spaltentext(form, zeile, ältere);
    text += zeile.text(QStringLiteral("Bemerkung")) + CRLF;
  }
  return text;
}

Daten buchungen(Database& db, const QString& tabelle, qint64 volkId, bool nurJahr) {
  QString anweisung =
      QStringLiteral("select * from ") + tabelle + QStringLiteral(" where Volk_ID = ?");
  QVariantList werte{volkId};
  if (nurJahr) {
    anweisung += QStringLiteral(" and Datum >= ?");
    werte << QDate(diesesJahr(), 1, 1);
  }
  return db.Lesen(anweisung + QStringLiteral(" order by Datum DESC"), werte);
}

// The one value of a statement in kg; "0,0" when there is none.
QString menge(const Daten& daten, const QString& spalte) {
  const int nummer = daten->spaltenNummer(spalte);
  return ZahlFormat(daten->zeilen() > 0 ? daten->wert(0, nummer) : QVariant(), 1);
}

}  // namespace

QString text(Database& db, const Zelle& zelle, bool nurJahr) {
  QString text = QStringLiteral("VOLKDATEN") + CRLF + QStringLiteral("Volknummer:        ") +
                 zelle(QStringLiteral("Volknr")) + CRLF;
  for (const Zeile& zeile : zeilen()) {
    if (!gezeigt(zeile.position)) continue;
    const QString wert = zeile.spalte.isEmpty()
                             ? Deutsch::schlicht(Dezimalsumme::von(
                                   {ZahlLesen(zelle(QStringLiteral("Wabenanzahl"))),
                                    ZahlLesen(zelle(QStringLiteral("Mittelwände")))}))
                             : zelle(zeile.spalte);
    text += zeile.beschriftung + wert + CRLF;
  }
  const qint64 volkId = GanzLesen(zelle(QStringLiteral("ID")));
  for (const Block& block : blöcke()) {
    if (!gezeigt(block.position)) continue;
    const Daten daten = buchungen(db, block.tabelle, volkId, nurJahr);
    if (daten->zeilen() > 0) text += blocktext(block, *daten);
  }
  return text;
}

Honig honig(Database& db, const QString& volkId) {
  const qint64 id = GanzLesen(volkId);
  const int jahr = diesesJahr();
  Honig honig;
  honig.letzte = menge(
      db.Lesen(
          QStringLiteral("select top 1 * from Honigernte where Volk_ID = ? order by Datum DESC"),
          {id}),
      QStringLiteral("Menge_kg"));
  honig.jahr = menge(
      db.Lesen(QStringLiteral("select sum(Menge_kg) as xsumme from Honigernte where Datum >= ? and "
                              "Datum <= ? and Volk_ID = ?"),
               {QDate(jahr, 1, 1), QDate(jahr, 12, 31), id}),
      QStringLiteral("xsumme"));
  honig.alles = menge(
      db.Lesen(QStringLiteral("select sum(Menge_kg) as xsumme from Honigernte where Volk_ID = ?"),
               {id}),
      QStringLiteral("xsumme"));
  return honig;
}

QString honigjahrBeschriftung() {
  return QStringLiteral("Honig (") + QString::number(diesesJahr()) + QStringLiteral("):");
}

}  // namespace Volkanzeige
