#include "planning/Optionen.h"

#include "colonies/Testbetrieb.h"

using namespace TZ_Variablen;

namespace {

const QString Kopf = "Die Daten werden nicht gespeichert, weil...\r\n\r\n";
const QString OhneName = "...die Arbeitsart angegeben werden muß.\r\n";
const QString OhneZeit = "...der Start- und Endzeitraum angegeben werden muß.\r\n";
const QString Verkehrt = "...der Startzeitraum nicht hinter dem Endzeitraum liegen darf.\r\n";

class Optionen : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    db().Execute("delete from Arbeitsplanoptionen");
  }
  static Optionseingabe eingabe(const QString& name, const QString& start, const QString& ende,
                                const QString& frist = "0", const QString& volk = "J",
                                const QString& buchung = {}, const QString& arbeit = {}) {
    return {name, start, ende, frist, volk, buchung, arbeit};
  }
  static QString prüfe(const QString& name, const QString& start, const QString& ende) {
    return optionPrüfen(eingabe(name, start, ende));
  }
  static void termin(const QString& text, QDate datum, const QString& erledigt = "N",
                     qint64 volk = 1) {
    db().Execute("insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, ?, ?, ?)",
                 {datum, text, erledigt, volk});
  }
  static QStringList termine() {
    const Daten daten = db().Lesen("select Volk_ID, Termin, Datum from Termine order by ID");
    QStringList zeilen;
    for (int i = 0; i < daten->zeilen(); ++i)
      zeilen << QString("%1 %2 %3")
                    .arg(daten->ganzzahl(i, 0))
                    .arg(daten->anzeige(i, 1), daten->anzeige(i, 2));
    return zeilen;
  }
  static QList<Optionszeile> alle() {
    const Daten daten = db().Lesen(QString(
        "select ID, Arbeitsart, Volkabhängig from Arbeitsplanoptionen order by Arbeitsart"));
    QList<Optionszeile> zeilen;
    for (int i = 0; i < daten->zeilen(); ++i)
      zeilen.append({daten->ganzzahl(i, 0), daten->anzeige(i, 1), daten->anzeige(i, 2)});
    return zeilen;
  }
};

}  // namespace

TEST_F(Optionen, EineVollständigeEingabeIstGut) { EXPECT_EQ(prüfe("A", "01.05", "30.06"), ""); }

TEST_F(Optionen, OhneArbeitsartKommtDerGrund) {
  EXPECT_EQ(prüfe("", "01.05", "30.06"), Kopf + OhneName);
  EXPECT_EQ(prüfe("   ", "01.05", "30.06"), Kopf + OhneName);
}

TEST_F(Optionen, OhneStartOderEndeKommtDerGrund) {
  EXPECT_EQ(prüfe("A", "", "30.06"), Kopf + OhneZeit);
  EXPECT_EQ(prüfe("A", "", ""), Kopf + OhneZeit);
  EXPECT_EQ(prüfe("A", "31.06", "30.07"), Kopf + OhneZeit);
  EXPECT_EQ(prüfe("A", "01.06", "31.06"), Kopf + OhneZeit);
}

// The days are compared as texts, whether they are days or not: nothing comes before something.
TEST_F(Optionen, StartOhneEndeNenntBeideGründe) {
  EXPECT_EQ(prüfe("A", "01.05", ""), Kopf + OhneZeit + Verkehrt);
}

TEST_F(Optionen, StartHinterEndeKommtDerGrund) {
  EXPECT_EQ(prüfe("A", "01.11", "15.05"), Kopf + Verkehrt);
  EXPECT_EQ(prüfe("A", "02.05", "01.05"), Kopf + Verkehrt);
}

TEST_F(Optionen, DerMonatZähltVorDemTag) { EXPECT_EQ(prüfe("A", "31.01", "01.02"), ""); }

TEST_F(Optionen, StartGleichEndeIstGut) { EXPECT_EQ(prüfe("A", "15.09", "15.09"), ""); }

TEST_F(Optionen, AlleGründeStehenInIhrerOrdnung) {
  EXPECT_EQ(prüfe("", "31.12", "30.02"), Kopf + OhneName + OhneZeit + Verkehrt);
}

TEST_F(Optionen, NeunundzwanzigsterFebruarWirdOhneSchalttagAbgelehnt) {
  HeuteText = "20.06.2006";
  EXPECT_EQ(prüfe("A", "29.02", "30.06"), Kopf + OhneZeit);
  HeuteText = "20.06.2008";
  EXPECT_EQ(prüfe("A", "29.02", "30.06"), "");
}

TEST_F(Optionen, NameEinerAnderenOptionIstVergeben) {
  const qint64 a = option("Honigernte", "01.06", 14, "31.08");
  option("Fütterung", "01.09", 0, "01.09");
  const QString text = "Es existiert bereits ein Arbeitsplan mit dem Namen Fütterung.";
  EXPECT_EQ(optionsnamePrüfen(db(), "Fütterung", 0), text);
  EXPECT_EQ(optionsnamePrüfen(db(), "Fütterung", a), text);
  EXPECT_EQ(optionsnamePrüfen(db(), "Neu", 0), "");
}

TEST_F(Optionen, GroßUndKleinIstDerselbeName) {
  option("Fütterung", "01.09", 0, "01.09");
  EXPECT_EQ(optionsnamePrüfen(db(), "fütterung", 0),
            "Es existiert bereits ein Arbeitsplan mit dem Namen fütterung.");
}

TEST_F(Optionen, EigenerNameIstBeimUmbenennenFrei) {
  const qint64 a = option("Honigernte", "01.06", 14, "31.08");
  EXPECT_EQ(optionsnamePrüfen(db(), "Honigernte", a), "");
}

TEST_F(Optionen, DieWahlDerBuchungHatIhreOrdnungUndKeineStockkarte) {
  EXPECT_EQ(erledigtBuchungen(),
            QStringList({"", "Honigernte", "Wachsernte", "Pollenernte", "Wanderung",
                         "Gewichtsmessung", "Behandlung", "Königinwechsel"}));
}

TEST_F(Optionen, DieWahlDerArbeitsartKommtAusDenArbeiten) {
  EXPECT_EQ(erledigtArbeitsarten(db()), QStringList({""}));
  for (const char* art : {"Schied", "Absperren", "Schied", ""})
    db().Execute("insert into Arbeiten(Arbeitsart, Volk_ID) values (?, 1)", {QString(art)});
  db().Execute("insert into Arbeiten(Volk_ID) values (1)");
  EXPECT_EQ(erledigtArbeitsarten(db()), QStringList({"", "Absperren", "Schied"}));
}

TEST_F(Optionen, ArbeitsartenDieGelesenGleichSindStehenEinmalDa) {
  for (const char* art : {" Schied", "Schied", "SCHIED", "Rund um's Volk", "Rund um`s Volk", "  "})
    db().Execute("insert into Arbeiten(Arbeitsart, Volk_ID) values (?, 1)", {QString(art)});
  const QStringList arten = erledigtArbeitsarten(db());
  ASSERT_EQ(arten.size(), 3);
  EXPECT_EQ(arten[0], "");
  EXPECT_EQ(arten.count("Schied"), 1);
  EXPECT_EQ(arten.count("Rund um`s Volk"), 1);
}

TEST_F(Optionen, EineNeueOptionMitLeererVolkabhängigkeitGibtJedemVolkIhreTermine) {
  const qint64 a = neuesVolk("1");
  const qint64 b = neuesVolk("2");
  db().Execute("insert into Honigernte(Datum, Volk_ID) values (?, ?)", {QDate(2006, 7, 10), a});
  const qint64 id =
      optionAnlegen(db(), eingabe("Kontrolle", "01.07", "15.07", "14", "", "Honigernte"));
  EXPECT_EQ(wert(QString("select Volkabhängig from Arbeitsplanoptionen where ID = ?"), {id}), "");
  // Not being "J", it heeds no booking.
  EXPECT_EQ(termine(), QStringList({QString("%1 Kontrolle 01.07.2006").arg(a),
                                    QString("%1 Kontrolle 15.07.2006").arg(a),
                                    QString("%1 Kontrolle 01.07.2006").arg(b),
                                    QString("%1 Kontrolle 15.07.2006").arg(b)}));
}

TEST_F(Optionen, UmbenennenUndLöschenNehmenDenNamenWieErInDerTabelleSteht) {
  const qint64 id = option("Rund um's Volk", "01.06", 14, "31.08");
  termin("Rund um's Volk", QDate(2006, 7, 1));
  termin("Rund um`s Volk", QDate(2006, 7, 2));
  optionUmbenennen(db(), id, "Um's Volk", "Rund um's Volk");
  EXPECT_EQ(termine(), QStringList({"1 Um`s Volk 01.07.2006", "1 Rund um`s Volk 02.07.2006"}));
}

TEST_F(Optionen, NeuSetzenRechnetDieOptionenInIhrerReihenfolge) {
  const qint64 a = option("A", "01.07", 0, "01.07", "N");
  const qint64 b = option("B", "01.07", 0, "01.07", "N");
  alleTermineBerechnen(db(), {{b, "B", "N"}, {a, "A", "N"}});
  EXPECT_EQ(termine(), QStringList({"0 B 01.07.2006", "0 A 01.07.2006"}));
}

TEST_F(Optionen, NeuSetzenNenntEineOptionMitUnbekannterBuchungUndSetztDieAnderen) {
  neuesVolk("1");
  option("Seltsam", "01.07", 0, "01.07", "J", "Gibtesnicht");
  option("Kontrolle", "01.07", 0, "01.07");
  QString text;
  try {
    alleTermineBerechnen(db(), alle());
  } catch (const Datenbankfehler& fehler) {
    text = fehler.text();
  }
  EXPECT_TRUE(text.contains("'Seltsam'")) << text.toStdString();
  EXPECT_EQ(anzahl("Termine", "Termin = 'Kontrolle'"), 1);
}

TEST_F(Optionen, AnlegenSchreibtAlleSiebenFelder) {
  const qint64 id = optionAnlegen(
      db(), eingabe(" Honig's ", "01.06", "31.08", "14", "J", "Honigernte", "Schleudern"));
  const Daten zeile = db().Lesen("select * from Arbeitsplanoptionen where ID = ?", {id});
  ASSERT_EQ(zeile->zeilen(), 1);
  QStringList texte;
  for (int i = 0; i < 7; ++i) texte << zeile->anzeige(0, i);
  EXPECT_EQ(texte,
            QStringList({"Honig`s", "01.06", "31.08", "14", "J", "Honigernte", "Schleudern"}));
}

TEST_F(Optionen, EinTagOhneFührendeNullWirdAufgefüllt) {
  EXPECT_EQ(prüfe("A", "1.6", "15.10"), "");
  const qint64 id = optionAnlegen(db(), eingabe("A", "1.6", "15.10"));
  EXPECT_EQ(wert("select Startzeitraum from Arbeitsplanoptionen where ID = ?", {id}), "01.06");
}

TEST_F(Optionen, EineNeueVolkabhängigeOptionGibtJedemVolkImBestandSeineReihe) {
  const qint64 a = neuesVolk("1");
  neuesVolk("2", "");
  const qint64 c = neuesVolk("3");
  optionAnlegen(db(), eingabe("Kontrolle", "01.07", "15.07", "14"));
  EXPECT_EQ(termine(), QStringList({QString("%1 Kontrolle 01.07.2006").arg(a),
                                    QString("%1 Kontrolle 15.07.2006").arg(a),
                                    QString("%1 Kontrolle 01.07.2006").arg(c),
                                    QString("%1 Kontrolle 15.07.2006").arg(c)}));
}

TEST_F(Optionen, EineNeueVolkunabhängigeOptionGibtEineReiheOhneVolk) {
  neuesVolk("1");
  neuesVolk("2");
  optionAnlegen(db(), eingabe("Beuten bauen", "01.12", "01.12", "0", "N"));
  EXPECT_EQ(termine(), QStringList({"0 Beuten bauen 01.12.2006"}));
}

TEST_F(Optionen, OhneVolkImBestandWirdNurDieOptionGespeichert) {
  neuesVolk("1", "");
  optionAnlegen(db(), eingabe("Kontrolle", "01.07", "15.07"));
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 1);
  EXPECT_EQ(anzahl("Termine"), 0);
}

TEST_F(Optionen, UmbenennenÄndertNurDenNamenUndAlleSeineTermine) {
  const qint64 id = option("Alt", "01.06", 14, "31.08", "J", "Honigernte", "Art");
  termin("Alt", QDate(1999, 5, 1), "J");
  termin("Alt", QDate(2006, 7, 1));
  termin("Anders", QDate(2006, 7, 1));
  optionUmbenennen(db(), id, "Neu", "Alt");
  EXPECT_EQ(termine(),
            QStringList({"1 Neu 01.05.1999", "1 Neu 01.07.2006", "1 Anders 01.07.2006"}));
  const Daten zeile = db().Lesen("select * from Arbeitsplanoptionen where ID = ?", {id});
  QStringList texte;
  for (int i = 0; i < 7; ++i) texte << zeile->anzeige(0, i);
  EXPECT_EQ(texte, QStringList({"Neu", "01.06", "31.08", "14", "J", "Honigernte", "Art"}));
  EXPECT_EQ(anzahl("Termine", "Erledigt = 'J'"), 1);
}

TEST_F(Optionen, UmbenennenEinerVerschwundenenOptionNenntSieUndÄndertKeineTermine) {
  const qint64 id = option("Alt", "01.06", 14, "31.08");
  termin("Alt", QDate(2006, 7, 1));
  db().Execute("delete from Arbeitsplanoptionen");
  EXPECT_THROW(optionUmbenennen(db(), id, "Neu", "Alt"), Datenbankfehler);
  EXPECT_EQ(termine(), QStringList({"1 Alt 01.07.2006"}));
}

TEST_F(Optionen, LöschenNimmtDieTermineAllerJahreUndDieVonHand) {
  const qint64 id = option("Alt", "01.06", 14, "31.08");
  termin("Alt", QDate(1999, 5, 1), "J");
  termin("Alt", QDate(2006, 7, 1));
  termin("ALT", QDate(2007, 7, 1), "N", 0);
  termin("Anders", QDate(2006, 7, 1));
  optionLöschen(db(), "Alt",
                [&] { db().Execute("delete from Arbeitsplanoptionen where ID = ?", {id}); });
  EXPECT_EQ(termine(), QStringList({"1 Anders 01.07.2006"}));
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 0);
}

TEST_F(Optionen, LöscheNichtsWennDieZeileNichtGeht) {
  option("Alt", "01.06", 14, "31.08");
  termin("Alt", QDate(2006, 7, 1));
  EXPECT_THROW(optionLöschen(db(), "Alt", [] { throw Datenbankfehler({}, "nein"); }),
               Datenbankfehler);
  EXPECT_EQ(anzahl("Termine"), 1);
}

TEST_F(Optionen, NeuSetzenLöschtAuchFrühereJahreUndErledigte) {
  const qint64 volk = neuesVolk("1");
  option("Kontrolle", "01.07", 0, "01.07");
  option("Werkstatt", "01.12", 0, "01.12", "N");
  termin("Kontrolle", QDate(1999, 5, 1), "J");
  termin("Kontrolle", QDate(2006, 5, 1), "J");
  termin("Von Hand", QDate(2006, 5, 1));
  QStringList schritte;
  alleTermineBerechnen(db(), alle(), [&](qint64 fertig, qint64 gesamt) {
    schritte << QString("%1/%2").arg(fertig).arg(gesamt);
  });
  EXPECT_EQ(termine(),
            QStringList({"1 Von Hand 01.05.2006", QString("%1 Kontrolle 01.07.2006").arg(volk),
                         "0 Werkstatt 01.12.2006"}));
  EXPECT_EQ(schritte, QStringList({"1/2", "2/2"}));
}

TEST_F(Optionen, NeuSetzenZweimalGibtDieselbenTermine) {
  neuesVolk("1");
  neuesVolk("2");
  option("Kontrolle", "01.06", 9, "01.09");
  alleTermineBerechnen(db(), alle());
  const QStringList einmal = termine();
  alleTermineBerechnen(db(), alle());
  EXPECT_EQ(termine(), einmal);
  EXPECT_EQ(einmal.size(), 2 * 8);  // 28.06. (27 days on) to 30.08.
}

TEST_F(Optionen, NeuSetzenLässtEineUngültigeOptionAusUndNenntSie) {
  neuesVolk("1");
  option("Arbeit", "29.02", 0, "29.02");
  option("Kontrolle", "01.07", 0, "01.07");
  termin("Arbeit", QDate(2004, 2, 29), "J");
  QString text;
  try {
    alleTermineBerechnen(db(), alle());
  } catch (const Datenbankfehler& fehler) {
    text = fehler.text();
  }
  EXPECT_TRUE(text.contains("'Arbeit'")) << text.toStdString();
  EXPECT_EQ(anzahl("Termine", "Termin = 'Kontrolle'"), 1);
  EXPECT_EQ(anzahl("Termine"), 1);
}

TEST_F(Optionen, NeuSetzenNimmtAllesAußerNAlsVolkabhängig) {
  const qint64 volk = neuesVolk("1");
  const qint64 id = option("Kontrolle", "01.07", 0, "01.07");
  alleTermineBerechnen(db(), {{id, "Kontrolle", ""}});
  EXPECT_EQ(termine(), QStringList({QString("%1 Kontrolle 01.07.2006").arg(volk)}));
}
