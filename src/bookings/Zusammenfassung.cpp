#include "bookings/Zusammenfassung.h"

#include <QStringList>
#include <utility>

#include "data/helpers.h"
#include "platform/database/Recordset.h"

namespace {

// Summary field of Bienenvolk and the field of Stockkarte that it copies.
const QList<std::pair<QString, QString>>& stockkartenfelder() {
  static const QList<std::pair<QString, QString>> felder = [] {
    QList<std::pair<QString, QString>> paare;
    for (const char* gleich :
         {"Volkstärke",   "Magazine",     "Honigwaben",    "Brutwaben",        "Pollenwaben",
          "Drohnenwaben", "Leerwaben",    "Mittelwände",   "Brutstand",        "Wabensitz",
          "Sanftmut",     "Schwarmtrieb", "Frühjahrsentw", "Winterfestigkeit", "Varroabefall",
          "Belagert",     "Futterwaben",  "HW_verdeckelt", "BW_Stift",         "BW_offen",
          "BW_verdeckelt"})
      paare.emplaceBack(gleich, gleich);
    paare.emplaceBack("Wabenanzahl", "Waben");
    paare.emplaceBack("Futtervorrat_flüssig", "Futter_flüssig_l");
    paare.emplaceBack("Futtervorrat_Teig", "Futter_Teig_kg");
    paare.emplaceBack("Futtervorrat_eigen", "Eigener_Futtervorrat");
    return paare;
  }();
  return felder;
}

// Numbers of the summary are never null.
QVariant zahl(const QVariant& wert) { return wert.isNull() ? QVariant(0) : wert; }

Recordset neueste(Database& datenbank, const QString& tabelle, qint64 volkId) {
  return datenbank.OpenRecordset(
      "select top 1 * from " + tabelle + " where Volk_ID = ? order by Datum DESC", {volkId});
}

void stockkarteNachziehen(Database& datenbank, Recordset& volk, qint64 id) {
  Recordset karte = neueste(datenbank, "Stockkarte", id);
  const bool da = karte.RecordCount() > 0;
  for (const auto& [ziel, quelle] : stockkartenfelder())
    volk[ziel] = da ? zahl(karte.Wert(quelle)) : QVariant(0);
}

void honigNachziehen(Database& datenbank, Recordset& volk, qint64 id) {
  Recordset letzte = neueste(datenbank, "Honigernte", id);
  const bool da = letzte.RecordCount() > 0;
  volk["L_Honigernte"] = da ? letzte.Wert("Datum") : QVariant();
  volk["L_Honigmenge_kg"] = da ? zahl(letzte.Wert("Menge_kg")) : QVariant(0);
  Recordset summe = datenbank.OpenRecordset(
      "select sum(Menge_kg) as xsumme from Honigernte where Volk_ID = ?", {id});
  volk["Honigmenge_Gesamt"] = zahl(summe.Wert("xsumme"));
}

// The site and the queen are kept when there is no such booking: they can come from the colony
// record itself.
void standortNachziehen(Database& datenbank, Recordset& volk, qint64 id) {
  Recordset letzte = neueste(datenbank, "Wanderung", id);
  if (letzte.RecordCount() > 0) volk["Standort"] = TextLesen(letzte.Wert("Standort"));
}

void behandlungNachziehen(Database& datenbank, Recordset& volk, qint64 id) {
  Recordset letzte = datenbank.OpenRecordset(
      "select top 1 Datum from Behandlung where Volk_ID = ? order by Datum DESC", {id});
  volk["L_Behandlung"] = letzte.RecordCount() > 0 ? letzte.Wert("Datum") : QVariant();
}

void königinNachziehen(Database& datenbank, Recordset& volk, qint64 id) {
  Recordset letzte = neueste(datenbank, "Königinwechsel", id);
  if (letzte.RecordCount() == 0) return;
  volk["Königin_Zugangsdatum"] = letzte.Wert("Datum");
  volk["Königin_Nr"] = TextLesen(letzte.Wert("Nummer"));
  volk["Königin_Farbe"] = TextLesen(letzte.Wert("Farbe"));
}

void streichen(Database& datenbank, qint64 volkId) {
  datenbank.Execute("delete from Zusammenfassung_offen where Volk_ID = ?", {volkId});
}

void volkNachziehen(Database& datenbank, Recordset& volk) {
  const qint64 id = volk.Wert("ID").toLongLong();
  volk.Edit();
  stockkarteNachziehen(datenbank, volk, id);
  honigNachziehen(datenbank, volk, id);
  standortNachziehen(datenbank, volk, id);
  behandlungNachziehen(datenbank, volk, id);
  königinNachziehen(datenbank, volk, id);
  volk.Update();
  streichen(datenbank, id);
}

}  // namespace

void ZusammenfassungVormerken(Database& datenbank, qint64 volkId) {
  datenbank.Execute("insert into Zusammenfassung_offen (Volk_ID) values (?)", {volkId});
}

bool ZusammenfassungenOffen(Database& datenbank) {
  return datenbank.Lesen("select top 1 ID from Zusammenfassung_offen")->zeilen() > 0;
}

bool ZusammenfassungenNachholen(Database& datenbank) {
  if (!ZusammenfassungenOffen(datenbank)) return false;
  datenbank.Sammelschreiben([&] {
    const Daten offene = datenbank.Lesen("select distinct Volk_ID from Zusammenfassung_offen");
    QString völker;
    for (int i = 0; i < offene->zeilen(); ++i)
      völker += u'/' + QString::number(offene->ganzzahl(i, 0)) + u'/';
    VolkfelderNachziehen(datenbank, völker);
    datenbank.Execute("delete from Zusammenfassung_offen");  // what is left was of deleted colonies
  });
  return true;
}

void VolkfelderNachziehen(Database& datenbank, const QString& geänderteVölker) {
  const QStringList ids = geänderteVölker.split(u'/', Qt::SkipEmptyParts);
  constexpr qsizetype AufEinmal = 200;  // bound values of one statement
  datenbank.Sammelschreiben([&] {
    for (qsizetype ab = 0; ab < ids.size(); ab += AufEinmal) {
      const QStringList teil = ids.mid(ab, AufEinmal);
      QStringList platzhalter;
      QVariantList werte;
      for (const QString& id : teil) {
        platzhalter.append("?");
        werte.append(id.toLongLong());
      }
      Recordset völker = datenbank.OpenRecordset(
          "select * from Bienenvolk where ID in (" + platzhalter.join(", ") + ")", werte);
      for (; !völker.AmEnde(); völker.MoveNext()) volkNachziehen(datenbank, völker);
    }
  });
}
