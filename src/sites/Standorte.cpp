#include "sites/Standorte.h"

#include <algorithm>

#include "data/helpers.h"
#include "platform/database/Recordset.h"
#include "platform/locale/Deutsch.h"

using namespace Verwaltung;

namespace Standorte {

const Felder& standortfelder() {
  static const Felder felder = {
      text("Standort", "Standort", 100),
      text("Zusatzortshinweis", "Zusatz-Orthinweis", 50)
          .liste("select distinct Zusatzortshinweis from Standorte order by Zusatzortshinweis"),
      auswahl("Wintertauglich", "Wintertauglich", {"J", "N"}).vorgabe("J"),
      text("Klima", "Klima", 20).liste("select distinct Klima from Standorte order by Klima"),
      auswahl("Pkw_anfahrbar", "PKW anfahrbar", {"J", "N"}).vorgabe("J"),
      ganzzahl("Entfernung_Wasser_m", "Wasserentfernung m", 9999).vorgabe("0"),
      text("Flugrichtung", "Flugrichtung", 10)
          .liste("select distinct Flugrichtung from Standorte order by Flugrichtung"),
      ganzzahl("Max_Völker", "Max. Anzahl Völker", 999).vorgabe("10"),
      dezimal("Standortprämie_Volk", "Standortprämie je Volk", 8, 2)
          .vorgabe("0,00")
          .einheit(QString("€")),
      datum("Trachtzeit_von", "Trachtzeit von").gezeigt(),
      datum("Trachtzeit_bis", "Trachtzeit bis").gezeigt(),
  };
  return felder;
}

const Felder& pflanzenfelder() {
  static const Felder felder = {
      text("Pflanze", "Pflanze", 20)
          .liste("select distinct Pflanze from Pflanzen order by Pflanze"),
      datum("Weidezeit_von", "Weidezeit von"),
      datum("Weidezeit_bis", "Weidezeit bis"),
      ganzzahl("Nektarstufe", "Nektarstufe (0..10)", 10).vorgabe("5"),
      ganzzahl("Pollenstufe", "Pollenstufe (0..10)", 10).vorgabe("5"),
  };
  return felder;
}

const Felder& trachtfelder() {
  static const Felder felder = {
      pflanzenfelder().first(),  // the plant by name, from the same pick list
      ganzzahl("Entfernung_m", "Entfernung m", 9999),
      ganzzahl("Proz_Anteil", "Anteil in %", 100).ab(1),
  };
  return felder;
}

QString standortliste() { return "select * from Standorte order by Standort"; }

QString pflanzenliste() { return "select * from Pflanzen order by Pflanze"; }

QString trachtliste() {
  return "select * from Standorte_Pflanzen where Standort_Kennung = ? order by Pflanze";
}

Daten standortnamen(Database& datenbank) {
  return datenbank.Lesen("select Standort from Standorte order by Standort");
}

QStringList standortGründe(const Texte& texte) {
  if (!TextLesen(texte["Standort"]).isEmpty()) return {};
  return {"...der Standort angegeben werden muß."};
}

QStringList pflanzenGründe(const Texte& texte) {
  QStringList gründe;
  if (TextLesen(texte["Pflanze"]).isEmpty()) gründe << "...die Pflanze angegeben werden muß.";
  if (!IstDatum(texte["Weidezeit_von"]) || !IstDatum(texte["Weidezeit_bis"]))
    gründe << "...die Weidezeit von...bis korrekt angegeben werden muß.";
  return gründe;
}

// Read with their signs: a row from elsewhere may have numbers below 0.
QStringList trachtGründe(const Texte& texte, qint64 anteilSonst) {
  const qint64 anteil = GanzLesen(texte["Proz_Anteil"]);
  QStringList gründe;
  if (TextLesen(texte["Pflanze"]).isEmpty()) gründe << "...die Pflanze angegeben werden muß.";
  if (GanzLesen(texte["Entfernung_m"]) <= 0)
    gründe << "...die Entfernung muß größer als 0 Meter sein.";
  if (anteil <= 0) gründe << "...der prozentuale Anteil müß größer als 0 % sein.";
  if (anteilSonst + anteil > 100)
    gründe << "...der prozentuale Anteil bei den Pflanzen am Standort nicht über 100 sein darf.";
  return gründe;
}

QVariantHash neuerPlatz() { return {{"PTop", 250}, {"PLeft", 250}}; }

qint64 anteilSumme(Database& datenbank, qint64 standortId) {
  const Daten summe = datenbank.Lesen(
      "select sum(Proz_Anteil) as xsumme from Standorte_Pflanzen where Standort_Kennung = ?",
      {standortId});
  return summe->zeilen() == 0 ? 0 : summe->ganzzahl(0, 0);
}

namespace {

// The first value of a select; null when it has no rows.
QVariant ersterWert(Database& datenbank, const QString& anweisung, qint64 standortId) {
  const Daten zeilen = datenbank.Lesen(anweisung, {standortId});
  return zeilen->zeilen() == 0 ? QVariant() : zeilen->wert(0, 0);
}

void trachtzeitErmitteln(Database& datenbank, const QVariant& name) {
  Recordset ort = datenbank.OpenRecordset(
      "select Trachtzeit_von, Trachtzeit_bis, ID from Standorte where Standort = ?", {name});
  if (ort.RecordCount() == 0) return;
  const qint64 id = ort.Wert("ID").toLongLong();
  ort.Edit();
  ort["Trachtzeit_von"] = ersterWert(
      datenbank,
      "select top 1 Weidezeit_von from Pflanzen, Standorte_Pflanzen where Standort_Kennung = ? "
      "and Standorte_Pflanzen.Pflanze = Pflanzen.Pflanze order by Weidezeit_von",
      id);
  ort["Trachtzeit_bis"] = ersterWert(
      datenbank,
      "select top 1 Weidezeit_bis from Pflanzen, Standorte_Pflanzen where Standort_Kennung = ? "
      "and Standorte_Pflanzen.Pflanze = Pflanzen.Pflanze order by Weidezeit_bis DESC",
      id);
  ort.Update();
}

QDate verschoben(QDate tag, int jahre, const QString& pflanze) {
  const QString alt = Deutsch::datumText(tag);
  const int jahr = std::clamp(alt.mid(6).toInt() + jahre, 1901, 2099);
  const QString neu = alt.left(6) + QString::number(jahr);
  if (!IstDatum(neu))
    throw Datenbankfehler(Datenbankfehler::Art::Allgemein,
                          "Die Weidezeit der Pflanze \"" + pflanze +
                              "\" kann nicht verschoben werden, weil es den " + neu +
                              " nicht gibt. Die vor ihr eingetragenen Pflanzen sind bereits "
                              "verschoben, sie selbst und die später eingetragenen noch nicht. In "
                              "der Liste ist das am Jahr zu sehen.");
  return DatumLesen(neu);
}

}  // namespace

void trachtzeitenErmitteln(Database& datenbank) {
  const Daten orte = datenbank.Lesen(standortliste());
  const int spalte = orte->spaltenNummer(u"Standort");
  datenbank.Sammelschreiben([&] {
    for (int i = 0; i < orte->zeilen(); ++i) trachtzeitErmitteln(datenbank, orte->wert(i, spalte));
  });
}

void weidezeitenVerschieben(Database& datenbank, int jahre) {
  datenbank.Sammelschreiben([&] {
    Recordset pflanzen = datenbank.OpenRecordset("select * from Pflanzen");
    for (; !pflanzen.AmEnde(); pflanzen.MoveNext()) {
      pflanzen.Edit();
      for (const char* feld : {"Weidezeit_von", "Weidezeit_bis"}) {
        const QDate tag = pflanzen.Wert(feld).toDate();
        if (tag.isValid())
          pflanzen[feld] = verschoben(tag, jahre, TextLesen(pflanzen.Wert("Pflanze")));
      }
      pflanzen.Update();
    }
  });
}

}  // namespace Standorte
