#include "stores/Handel.h"

#include "core/globals.h"
#include "data/helpers.h"
#include "platform/database/Recordset.h"
#include "platform/locale/Deutsch.h"
#include "platform/locale/Dezimalsumme.h"

using namespace Verwaltung;

namespace Handel {

namespace {

constexpr int Zahllänge = 10;

Feld menge(const QString& feld, const QString& beschriftung) {
  return dezimal(feld, beschriftung, Zahllänge, 3).knapp().vorgabe("0");
}

Feld tag(const QString& feld, const QString& beschriftung) {
  return datum(feld, beschriftung).vorgabe(TZ_Variablen::HeuteText);
}

Feld charge() {
  return text("Charge", "Chargen-Nr", 15)
      .liste("select distinct Charge from Honiglager order by Charge");
}

QStringList datumUndProdukt(const Texte& texte) {
  QStringList gründe;
  if (!IstDatum(texte["Datum"])) gründe << "...das Datum korrekt angegeben werden muß.";
  if (TextLesen(texte["Produkt"]).isEmpty()) gründe << "...das Produkt angegeben werden muß.";
  return gründe;
}

}  // namespace

QString tabelle(Seite seite) {
  return seite == Seite::Einkauf ? QStringLiteral("Einkauf") : QStringLiteral("Verkauf");
}

QString partnerfeld(Seite seite) {
  return seite == Seite::Einkauf ? QStringLiteral("Lieferant") : QStringLiteral("Abnehmer");
}

QString geldfeld(Seite seite) {
  return seite == Seite::Einkauf ? QStringLiteral("Ausgaben") : QStringLiteral("Einnahmen");
}

QString geschäftsliste(Seite seite) {
  return seite == Seite::Einkauf ? QStringLiteral("select * from Einkauf order by Datum")
                                 : QStringLiteral("select * from Verkauf order by Datum");
}

QString lagerliste() { return QStringLiteral("select * from Honiglager order by Datum"); }

// ---- fields ----

Felder geschäftsfelder(Seite seite) {
  const bool einkauf = seite == Seite::Einkauf;
  return {
      tag("Datum", "Datum"),
      text("Produkt", "Produkt", 20)
          .liste(einkauf ? "select distinct Produkt from Einkauf order by Produkt"
                         : "select distinct Produkt from Verkauf order by Produkt"),
      text("Qualität", "Qualität", 20)
          .liste(einkauf ? "select distinct Qualität from Einkauf order by Qualität"
                         : "select distinct Qualität from Verkauf order by Qualität"),
      text(partnerfeld(seite), partnerfeld(seite), 30)
          .liste(einkauf ? "select distinct Kundenname from Kunden where Lieferant = 'J' order by "
                           "Kundenname"
                         : "select distinct Kundenname from Kunden where Lieferant = 'N' order by "
                           "Kundenname"),
      menge("Menge", "Menge"),
      text("Einheit", "Mengeneinheit", 2).angebot({"kg", "g", "l", "ml", "St"}),
      dezimal(geldfeld(seite), geldfeld(seite), Zahllänge, 2)
          .vorgabe("0")
          .einheit(QStringLiteral("€")),
      charge(),
  };
}

Felder lagerfelder() {
  return {
      tag("Datum", "Datum"),
      text("Produkt", "Produkt (Sorte)", 20)
          .liste("select distinct Produkt from Honiglager order by Produkt"),
      menge("Zugang", "Eingang (kg)"),
      menge("Abgang", "Ausgang (kg)"),
      text("Bemerkung", "Bemerkung", 30)
          .liste("select distinct Bemerkung from Honiglager order by Bemerkung"),
      charge(),
      datum("Abfülldatum", "Abfülldatum"),
  };
}

// ---- reasons ----

// A minus sign is what ZahlLesen drops, so it is looked at by itself.
QStringList geschäftsgründe(const Texte& texte) {
  QStringList gründe = datumUndProdukt(texte);
  const QString menge = texte["Menge"].trimmed();
  if (menge.startsWith(u'-') || ZahlLesen(menge) <= 0) gründe << "...die Menge über 0 liegen muß.";
  return gründe;
}

QStringList lagergründe(const Texte& texte) {
  QStringList gründe = datumUndProdukt(texte);
  if (ZahlLesen(texte["Zugang"]) == 0 && ZahlLesen(texte["Abgang"]) == 0)
    gründe << "...entweder eine Zugangs- oder Abgangsmenge eingetragen werden muß.";
  return gründe;
}

// ---- saving and deleting ----

bool istHonig(const QString& produkt) {
  return TextLesen(produkt).toUpper().contains(QStringLiteral("HONIG"));
}

qint64 geschäftSpeichern(Database& datenbank, Seite seite, const Texte& texte,
                         std::optional<qint64> id) {
  qint64 gespeichert = 0;
  datenbank.Sammelschreiben([&] {
    gespeichert = speichern(datenbank, tabelle(seite), geschäftsfelder(seite), texte, id);
    partnerSichern(datenbank, seite, texte[partnerfeld(seite)]);
    bewegungBuchen(datenbank, seite, texte, gespeichert);
  });
  return gespeichert;
}

void partnerSichern(Database& datenbank, Seite seite, const QString& name) {
  const QString sauber = TextLesen(name);
  if (sauber.isEmpty()) return;
  Recordset kunde = datenbank.OpenRecordset("select * from Kunden where Kundenname = ?", {sauber});
  if (kunde.RecordCount() > 0) return;
  kunde.AddNew();
  kunde["Kundenname"] = sauber;
  kunde["Lieferant"] = seite == Seite::Einkauf ? QStringLiteral("J") : QStringLiteral("N");
  for (const char* feld : {"Firma", "Strasse", "PLZ", "Ort", "Kontoinhaber", "Bank", "BLZ", "Konto",
                           "Telefon", "FAX", "Handy", "Web", "Mail", "Bemerkung"})
    kunde[feld] = QString("");
  kunde.Update();
}

void bewegungBuchen(Database& datenbank, Seite seite, const Texte& texte, qint64 id) {
  if (!istHonig(texte["Produkt"])) return;
  const bool zu = seite == Seite::Einkauf;
  Recordset lager =
      datenbank.OpenRecordset(zu ? "select * from honiglager where evk_id = ? and Abgang = 0"
                                 : "select * from honiglager where evk_id = ? and Zugang = 0",
                              {id});
  QVariant abgefüllt;
  if (lager.RecordCount() > 0) {
    lager.MoveFirst();
    abgefüllt = lager.Wert("Abfülldatum");
    lager.Delete();
  }
  lager.AddNew();
  lager["Datum"] = DatumLesen(texte["Datum"]);
  lager["Produkt"] = TextLesen(texte["Produkt"]);
  lager["Zugang"] = 0;
  lager["Abgang"] = 0;
  lager[zu ? "Zugang" : "Abgang"] = ZahlLesen(ZahlFormat(ZahlLesen(texte["Menge"]), 2));
  lager["EVK_ID"] = id;
  lager["Bemerkung"] = QString("");
  lager["Charge"] = TextLesen(texte["Charge"]);
  lager["Abfülldatum"] = abgefüllt;
  lager.Update();
}

void bewegungLöschen(Database& datenbank, Seite seite, const QString& datum, const QString& produkt,
                     qint64 id) {
  if (!IstDatum(datum))
    throw Datenbankfehler(Datenbankfehler::Art::Allgemein,
                          "Der Datensatz wird nicht gelöscht, weil im Feld \"Datum\" kein gültiges "
                          "Datum steht. Bitte wählen Sie den Datensatz noch einmal in der Liste.");
  datenbank.Execute(seite == Seite::Verkauf
                        ? "delete from Honiglager where Datum = ? and Produkt = ? and Abgang <> 0 "
                          "and EVK_ID = ?"
                        : "delete from Honiglager where Datum = ? and Produkt = ? and Zugang <> 0 "
                          "and EVK_ID = ?",
                    {DatumLesen(datum), TextLesen(produkt), id});
}

// ---- stock and sums ----

Daten bestand(Database& datenbank) {
  return datenbank.Lesen(
      "select Produkt, Charge, sum(Zugang - Abgang) as Summe, count(*) as Anzahl, sum(Zugang) as "
      "Zugänge, sum(Abgang) as Abgänge from Honiglager group by Produkt, Charge");
}

QString summenzeile(Database& datenbank) {
  const auto summe = [&](const QString& anweisung) {
    const Daten zeilen = datenbank.Lesen(anweisung);
    return zeilen->zeilen() == 0 ? 0.0 : ZahlLesen(zeilen->wert(0, 0));
  };
  const double einkauf = summe("select sum(Ausgaben) as summe from Einkauf");
  const double verkauf = summe("select sum(Einnahmen) as summe from Verkauf");
  return "Einkauf: " + Deutsch::währung(einkauf) + "   Verkauf: " + Deutsch::währung(verkauf) +
         "   Summe: " + Deutsch::währung(Dezimalsumme::von({verkauf, -einkauf}));
}

}  // namespace Handel
