#include "colonies/Volk.h"

#include <QStringList>

#include "core/globals.h"
#include "data/helpers.h"
#include "planning/Optionsfehler.h"
#include "planning/Termine.h"
#include "platform/database/Recordset.h"

using TZ_Variablen::CRLF;

namespace {

enum Sevt {
  Volknr = 0,
  Standort = 3,
  KöniginNr,
  KöniginFarbe,
  KöniginZugang,
  Mittelwände = 8,
  Wabenanzahl = 9,
  Abgangsdatum = 13
};

// What the questions decided; the writes follow it.
struct Vorhaben {
  qint64 id = 0;
  bool neu = false;
  bool imBestand = false;
  bool warLeer = false;  // Akt_im_Bestand was empty before
  QString standort;
  bool wanderungEintragen = false;
  bool buchungenLöschen = false;
  // How far the writes came, for the notes that follow them.
  bool buchungenGelöscht = false;
  bool volkGeschrieben = false;
  QString optionsfehler;

  bool zurückgekehrt() const { return imBestand && !neu && warLeer; }
};

bool sechsGeändert(const Volkeingabe& eingabe, const Volkeingabe& geladen) {
  for (const size_t i :
       {Standort, KöniginNr, KöniginFarbe, KöniginZugang, Mittelwände, Wabenanzahl})
    if (eingabe.sevt[i] != geladen.sevt[i]) return true;
  return false;
}

// The site of the last migration against the one entered: Yes books a migration today, No keeps
// the old site.
void frageStandort(Database& db, Vorhaben& v, const Volkfragen& fragen) {
  if (v.standort.isEmpty()) return;
  Recordset rs = db.OpenRecordset(
      "select top 1 * from Wanderung where Volk_ID = ? order by Datum DESC", {v.id});
  if (rs.RecordCount() == 0) return;
  const QString alt = TextLesen(rs.Wert("Standort"));
  if (alt == v.standort) return;
  v.wanderungEintragen = fragen.frage(
      "Sie haben den neuen Standort " + v.standort +
      " eingetragen. Lt. den Wanderungs-Buchungen ist der letzte Standort " + alt + " (vom " +
      TextLesen(rs.Wert("Datum")) +
      "). Soll der neue Standort mit dem heutigen Datum in den Wanderungsplan eingetragen werden?" +
      CRLF + CRLF + "Falls Sie [Nein] auswählen, wird die Standort-Änderung nicht übernommen.");
  if (!v.wanderungEintragen) v.standort = alt;
}

void frageÄnderung(Database& db, Vorhaben& v, const Volkeingabe& eingabe,
                   const Volkeingabe& geladen, const Volkfragen& fragen) {
  Recordset rs = db.OpenRecordset("select * from Bienenvolk where ID = ?", {v.id});
  if (rs.RecordCount() == 0)
    throw Datenbankfehler(Datenbankfehler::Art::Allgemein,
                          "Das Volk kann nicht geändert werden, weil es in der Datenbank nicht "
                          "mehr vorhanden ist.");
  v.warLeer = TextLesen(rs.Wert("Akt_im_Bestand")).isEmpty();
  rs.Close();
  if (sechsGeändert(eingabe, geladen))
    fragen.hinweis(
        "Sie haben Werte geändert, die auch über den Hauptmenuepunkt 'Eingabe' eingetragen werden "
        "könnten. Dies bezieht sich auf die Werte Standort, Königing-Nr, Königin-Farbe, "
        "Zugangsdatum Königin, Mittelwände und Wabenanzahl. Falls in den Eingaben zu diesen "
        "Datenfeldern auch Eintragungen gemacht wurden, werden Ihre aktuellen Eintragungen ggf. "
        "wieder rückgängig gemacht.");
  frageStandort(db, v, fragen);
  if (v.zurückgekehrt())
    v.buchungenLöschen = fragen.frage(
        "Das Volk wurde neu in den Bestand aufgenommen. Sollen ggf. existierende alte Buchungen "
        "(Stockkarten, Ernten, Wanderungen etc.) von diesem Volk gelöscht werden?");
}

void schreibeWanderung(Database& db, const Vorhaben& v) {
  Recordset rs = db.OpenRecordset("select top 1 * from Wanderung");
  rs.AddNew();
  rs["Datum"] = DatumLesen(TZ_Variablen::HeuteText);
  rs["Standort"] = v.standort;
  rs["Zeit_h"] = 0;
  rs["Kosten"] = 0;
  rs[QString("Standortprämie")] = 0;
  rs[QString("Prämie_erhalten")] = "N";
  rs["Bemerkung"] = "";
  rs["Volk_ID"] = v.id;
  rs.Update();
}

void schreibeVolk(Database& db, Vorhaben& v, const Volkeingabe& eingabe) {
  Recordset rs = v.neu ? db.OpenRecordset("select top 1 * from Bienenvolk")
                       : db.OpenRecordset("select * from Bienenvolk where ID = ?", {v.id});
  if (v.neu) {
    rs.AddNew();
    rs["Selektiert"] = "";
    rs["STop"] = 0;
    rs["SLeft"] = 0;
  } else {
    rs.Edit();
  }
  for (const Volkfeld& feld : volkfelder())
    rs[feld.feld] = Verwaltung::feldwert(feld, eingabe[feld]);
  rs["Standort"] = v.standort;
  rs["Akt_im_Bestand"] = v.imBestand ? "X" : "";
  rs.Update();
  if (v.neu) {
    rs.MoveLast();
    v.id = rs.Wert("ID").toLongLong();
  }
  v.volkGeschrieben = true;
}

// An option that can't be computed is left out. Gives the text that names it; empty when all went
// well.
QString berechneTermine(Database& db, qint64 volkId) {
  Optionsfehler fehler;
  Recordset rs = db.OpenRecordset("select * from Arbeitsplanoptionen");
  for (; !rs.AmEnde(); rs.MoveNext()) {
    if (TextLesen(rs.Wert(QString("Volkabhängig"))) != QLatin1String("J")) continue;
    const qint64 option = rs.Wert("ID").toLongLong();
    fehler.versuche(option, [&] { TermineBerechnen(db, option, volkId); });
  }
  return fehler.text(QString("Das Volk ist gespeichert."));
}

void schreibe(Database& db, Vorhaben& v, const Volkeingabe& eingabe) {
  if (v.wanderungEintragen) schreibeWanderung(db, v);
  schreibeVolk(db, v, eingabe);
  if (!v.imBestand) db.Execute("delete from termine where Volk_ID = ?", {v.id});
  if (v.buchungenLöschen) {
    VolkLoeschen(db, v.id);
    v.buchungenGelöscht = true;
  }
  if (v.imBestand && (v.neu || v.warLeer)) v.optionsfehler = berechneTermine(db, v.id);
}

void zeigeHinweise(const Vorhaben& v, const Volkfragen& fragen) {
  if (v.buchungenGelöscht)
    fragen.hinweis(
        "Die letzten Stockkartendaten sind im Hauptmodul noch sichtbar, bis eine neue Stockkarte "
        "eingetragen wurde.");
  if (v.volkGeschrieben && v.zurückgekehrt())
    fragen.hinweis(
        "Das Volk war vorher nicht im Bestand und wurde neu als 'Aktuell im Bestand' markiert. "
        "Deshalb werden die Termine für dieses Volk neu berechnet.");
  if (!v.optionsfehler.isEmpty()) fragen.hinweis(v.optionsfehler);
}

bool nummerVergeben(Database& db, qint64 id, const QString& nummer) {
  QString anweisung = "select Volknr from Bienenvolk where Volknr = ?";
  QVariantList werte{nummer};
  if (id != 0) {
    anweisung += " and ID <> ?";
    werte << id;
  }
  return db.OpenRecordset(anweisung, werte).RecordCount() > 0;
}

}  // namespace

QString volkPrüfen(Database& db, qint64 id, const Volkeingabe& eingabe) {
  const QString nummer = TextLesen(eingabe.sevt[Volknr]);
  QStringList gründe;
  if (nummer.isEmpty()) gründe << "...die Volknummer angegeben werden muß.";
  if (nummerVergeben(db, id, nummer)) gründe << "...die Volknummer bereits existiert.";
  if (eingabe.kon && !TextLesen(eingabe.sevt[Abgangsdatum]).isEmpty())
    gründe << "...das Volk als im Bestand markiert ist und gleichzeitig ein Abgangsdatum "
              "eingetragen wurde. Bitte entfernen Sie entweder das Abgangsdatum oder deaktivieren "
              "Sie das Feld 'Volk aktuell im Bestand'";
  if (gründe.isEmpty()) return {};
  return "Die Eingabe kann nicht übernommen werden, weil..." + CRLF + CRLF + gründe.join(CRLF);
}

qint64 volkSpeichern(Database& db, qint64 id, const Volkeingabe& eingabe,
                     const Volkeingabe& geladen, const Volkfragen& fragen) {
  TZ_Variablen::ListeNeuLesen = 1;
  Vorhaben v;
  v.id = id;
  v.neu = id == 0;
  v.imBestand = eingabe.kon;
  v.standort = TextLesen(eingabe.sevt[Standort]);
  if (!v.neu) frageÄnderung(db, v, eingabe, geladen, fragen);
  try {
    db.Sammelschreiben([&] { schreibe(db, v, eingabe); });
  } catch (const Datenbankfehler& fehler) {
    // What was written before the failure stands, so its notes are due before the failure is told.
    if (!fehler.allesVerworfen()) zeigeHinweise(v, fragen);
    throw;
  }
  zeigeHinweise(v, fragen);
  return v.id;
}

void VolkLoeschen(Database& db, qint64 id) {
  db.Sammelschreiben([&] {
    for (const char* anweisung :
         {"delete from Stockkarte", "delete from Honigernte", "delete from Wachsernte",
          "delete from Pollenernte", "delete from Sonstigeernte", "delete from Arbeiten",
          "delete from Wanderung", "delete from Gewichtsmessung", "delete from Behandlung",
          "delete from Königinwechsel", "delete from Notizen", "delete from Termine"})
      db.Execute(QString::fromUtf8(anweisung) + " where Volk_ID = ?", {id});
  });
}
