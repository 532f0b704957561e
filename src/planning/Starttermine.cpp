#include "planning/Starttermine.h"

#include <numeric>

#include "core/globals.h"
#include "data/Pickliste.h"
#include "data/helpers.h"
#include "platform/database/Recordset.h"
#include "platform/database/werte/Kollation.h"
#include "platform/database/werte/Zeilenordnung.h"
#include "platform/locale/Deutsch.h"

using TZ_Variablen::EinstellungenZahl;
using TZ_Variablen::HeuteText;

namespace Starttermine {

namespace {

// The columns of the list.
enum Spaltennummer { Datum, Termin, Volknr, Volkname, Standort, ID };

void zelle(Datenblock::Bauer& bauer, const Datenblock& block, int zeile, int spalte) {
  if (block.istText(zeile, spalte)) {
    const QByteArrayView text = block.rohtext(zeile, spalte);
    bauer.text(text.data(), text.size());
  } else {
    bauer.wert(block.wert(zeile, spalte));
  }
}

int vergleiche(QByteArrayView links, QByteArrayView rechts) {
  return links == rechts ? 0 : Kollation::vergleicheUtf8(links, rechts);
}

// The rows of both blocks, one behind the other; general ones have no colony.
Daten zusammen(const Datenblock& völker, const Datenblock& allgemein) {
  std::vector<Spalte> spalten;
  spalten.reserve(static_cast<size_t>(völker.spalten()));
  for (int i = 0; i < völker.spalten(); ++i) spalten.push_back(völker.spalte(i));
  const size_t breite = spalten.size();
  Datenblock::Bauer bauer(std::move(spalten));
  bauer.reserviere(static_cast<size_t>(völker.zeilen() + allgemein.zeilen()) * breite,
                   völker.textbytes() + allgemein.textbytes());
  for (int zeile = 0; zeile < völker.zeilen(); ++zeile)
    for (const int spalte : {Datum, Termin, Volknr, Volkname, Standort, ID})
      zelle(bauer, völker, zeile, spalte);
  for (int zeile = 0; zeile < allgemein.zeilen(); ++zeile) {
    zelle(bauer, allgemein, zeile, Datum);
    zelle(bauer, allgemein, zeile, Termin);
    for (int leer = 0; leer < 3; ++leer) bauer.null();
    zelle(bauer, allgemein, zeile, 2);
  }
  return bauer.fertig();
}

// The rest of the series from the day of the work on.
void reiheEintragen(Database& db, const QString& termin, qint64 volkId, QDate tag) {
  Recordset option =
      db.OpenRecordset("select * from Arbeitsplanoptionen where Arbeitsart = ?", {termin});
  if (option.RecordCount() == 0) return;
  const auto frist =
      static_cast<qint64>(ZahlLesen(option.Wert(QStringLiteral("Wiederholungsfrist_Tage"))));
  if (frist <= 0) return;
  const QString ende = DatumSortiert(TextLesen(option.Wert("Endzeitraum")) + HeuteText.mid(5, 5));

  Recordset termine = db.OpenRecordset("select * from Termine where Volk_ID = -1");
  const auto schlüssel = [](QDate lauf) { return DatumSortiert(Deutsch::datumText(lauf)); };
  for (QDate lauf = tag; schlüssel(lauf) <= ende; lauf = lauf.addDays(frist)) {
    if (lauf <= tag) continue;
    termine.AddNew();
    termine["Datum"] = lauf;
    termine["Termin"] = termin;
    termine["Erledigt"] = "N";
    termine["Volk_ID"] = volkId;
    termine.Update();
  }
}

}  // namespace

QString titel() {
  return QString("Aktuelle offene Termine (bis %1 Tage ab heute)")
      .arg(EinstellungenZahl[Zahlslots.termintage]);
}

QDate grenze() { return DatumLesen(HeuteText).addDays(EinstellungenZahl[Zahlslots.termintage]); }

Daten liste(Database& db) {
  const Daten völker = db.Lesen(
      "select Datum, Termin, Volknr, Volkname, Standort, Termine.ID from Termine, Bienenvolk where "
      "Datum <= ? and Bienenvolk.ID = Volk_ID and Erledigt = 'N'",
      {grenze()});
  const Daten allgemein = db.Lesen(
      "select Datum, Termin, ID from Termine where Datum <= ? and Volk_ID = 0 and Erledigt = 'N' "
      "order by Datum",
      {grenze()});
  const Daten alle = zusammen(*völker, *allgemein);
  std::vector<int> folge(static_cast<size_t>(alle->zeilen()));
  std::iota(folge.begin(), folge.end(), 0);
  for (const int spalte : {Volknr, Termin, Datum})
    Zeilenordnung::sortiere(folge, Zeilenordnung::schlüssel(*alle, spalte));
  return alle->geordnet(folge);
}

Daten gruppiert(Database& db) {
  return db.Lesen(
      QString("select Standort, Datum, Termin, count(*) as Anz_Völker from Termine, Bienenvolk "
              "where Datum <= ? and Bienenvolk.ID = Volk_ID and Erledigt = 'N' "
              "group by Standort, Datum, Termin"),
      {grenze()});
}

QStringList arbeitsarten(Database& db) {
  return Pickliste::lesen(db, "select Arbeitsart from Arbeitsplanoptionen order by Arbeitsart");
}

void TerminErledigen(Database& db, qint64 id, const QString& kennzeichen, const QString& termin,
                     const Erledigung& erledigung) {
  const QDate tag = DatumLesen(erledigung.datum);
  if (kennzeichen == QLatin1String("N") || !tag.isValid()) {
    db.Execute("UPDATE Termine SET Erledigt = 'J' where ID = ?", {id});
    return;
  }
  Recordset zeile = db.OpenRecordset("select * from Termine where ID = ?", {id});
  if (zeile.RecordCount() == 0) return;
  const QVariant volk = zeile.Wert("Volk_ID");
  zeile.Edit();
  zeile["Erledigt"] = "J";
  zeile["Datum"] = tag;
  zeile.Update();
  if (volk.isNull() || !erledigung.reiheAnpassen) return;
  db.Execute("delete from Termine where Erledigt = 'N' and Volk_ID = ? and Termin = ?",
             {volk, termin});
  reiheEintragen(db, termin, volk.toLongLong(), tag);
}

void aktuellenErledigen(Database& db, qint64 id, const QString& termin,
                        const Erledigung& erledigung) {
  const QString kennzeichen = IstDatum(erledigung.datum) ? "J" : "N";
  db.Sammelschreiben([&] { TerminErledigen(db, id, kennzeichen, termin, erledigung); });
}

void markierteErledigen(Database& db, const std::vector<qint64>& ids) {
  db.Sammelschreiben([&] {
    for (const qint64 id : ids) TerminErledigen(db, id, "N", {}, {});
  });
}

void bisHeuteErledigen(Database& db) {
  db.Execute("UPDATE Termine SET Erledigt = 'J' where Datum <= ?", {DatumLesen(HeuteText)});
}

bool unvollständig(const Standortauftrag& auftrag) {
  return TextLesen(auftrag.termin).isEmpty() || TextLesen(auftrag.standort).isEmpty() ||
         !IstDatum(auftrag.bis);
}

int gefunden(Database& db, const Standortauftrag& auftrag) {
  return db
      .Lesen(
          "select Datum, Termin, Standort, Volk_ID, Termine.ID from Termine, Bienenvolk where "
          "Datum <= ? and Bienenvolk.ID = Volk_ID and Erledigt = 'N' and Standort = ? and "
          "Termin = ?",
          {DatumLesen(auftrag.bis), TextLesen(auftrag.standort), TextLesen(auftrag.termin)})
      ->zeilen();
}

void amStandortErledigen(Database& db, const Standortauftrag& auftrag, const Daten& liste,
                         const std::vector<int>& ordnung, const Erledigung& erledigung) {
  const QDate bis = DatumLesen(auftrag.bis);
  const QByteArray termin = TextLesen(auftrag.termin).toUtf8();
  const QByteArray standort = TextLesen(auftrag.standort).toUtf8();
  db.Sammelschreiben([&] {
    for (const int zeile : ordnung) {
      if (vergleiche(liste->rohtext(zeile, Termin), termin) != 0 ||
          vergleiche(liste->rohtext(zeile, Standort), standort) != 0 ||
          liste->wert(zeile, Datum).toDate() > bis)
        continue;
      TerminErledigen(db, liste->ganzzahl(zeile, ID), "J", liste->wert(zeile, Termin).toString(),
                      erledigung);
    }
  });
}

QString markierteFrage(qsizetype anzahl) {
  return QString("Sollen die %1 Termine wirklich als erledigt markiert werden?").arg(anzahl);
}

QString bisHeuteFrage() {
  return "Sollen wirklich alle Termine bis einschließlich zum " + HeuteText +
         " als erledigt markiert werden?";
}

QString unvollständigText() {
  return QString(
      "Die Terminart, der betroffene Standort und der Zeitraum (bis wann eine Erledigung "
      "gewünscht wird) muss angegeben werden!");
}

QString standortFrage(int anzahl) {
  return QString("Es wurden %1 Termine gefunden. Sollen diese wirklich erledigt werden?")
      .arg(anzahl);
}

}  // namespace Starttermine
