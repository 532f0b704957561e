#include "planning/Jahreslauf.h"

#include <QDir>
#include <QRandomGenerator>

#include "colonies/Testbetrieb.h"
#include "planning/Termine.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;

namespace {

const QString Startfrage =
    "Sie starten TOVA das erste mal im neuen Jahr oder haben die Funktion 'Optionen / "
    "Volkabhängige Termine setzen' gewählt.\r\n\r\nDurch das setzen der Termine werden alle "
    "Termine aus den Arbeitsplanoptionen ab dem heutigen Datum 20.06.2006 allen im Bestand "
    "befindlichen Völkern zugeordnet. Diese Aktion wird nur dann ausgeführt, wenn mindestens ein "
    "Volk und eine Arbeitsplanoption eingegeben wurde und im aktuellen Jahr noch keine variablen "
    "Termine gebucht sind.\r\n\r\nSoll die Aktion jetzt ausgeführt werden?";
const QString Löschfrage =
    "Es befinden sich im Jahr 2006 bereits volkabhängige Termine im Terminkalender. Die Termine "
    "für ein komplettes Jahr können nur dann eingetragen werden, wenn noch keine volkabhängigen "
    "Termine existieren. Sollen die existierenden Termine jetzt gelöscht werden?";
const QString Erfolg =
    "Die volkabhängigen Termine wurden für das Jahr 2006 neu berechnet und im Terminkalender "
    "eingetragen.";
const QString Nicht = "Die Aktion wird nicht ausgeführt, weil...\r\n\r\n";
const QString KeinVolk = "...keine Bienenvölker aktuell im Bestand sind.\r\n";
const QString KeineOption = "...keine volkabhängigen Arbeitsplanoptionen eingetragen sind.\r\n";
const QString SchonGebucht =
    "...im aktuellen Jahr 2006 bereits volkabhängige Termine gebucht sind. Bitte löschen Sie ggf. "
    "alle volkabhängigen Termine, bevor Sie diese Aktion durchführen.\r\n";

class Jahreslauf : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    db().Execute("delete from Arbeitsplanoptionen");
    EinstellungenZahl[Zahlslots.terminjahr] = 2005;
  }

  // Runs with these answers, one for each question that must come.
  void laufe(const QList<bool>& antworten) {
    fragen.clear();
    vorgaben.clear();
    hinweise.clear();
    schritte.clear();
    QList<bool> noch = antworten;
    Terminfragen boxen;
    boxen.frage = [&](const QString& text, bool nein) {
      fragen << text;
      vorgaben << nein;
      termineBeiFrage = anzahl("Termine");
      return !noch.isEmpty() && noch.takeFirst();
    };
    boxen.hinweis = [&](const QString& text) { hinweise << text; };
    boxen.fortschritt = [&](qint64 fertig, qint64 gesamt) {
      schritte << QString("%1/%2").arg(fertig).arg(gesamt);
    };
    const qsizetype erwartet = antworten.size();
    try {
      VolkTermineSetzen(db(), boxen);
    } catch (...) {
      EXPECT_EQ(fragen.size(), erwartet);
      throw;
    }
    EXPECT_EQ(fragen.size(), erwartet);
  }
  // The text with which a run fails.
  QString fehlertext(const QList<bool>& antworten) {
    try {
      laufe(antworten);
    } catch (const Datenbankfehler& fehler) {
      return fehler.text();
    }
    return "kein Fehler";
  }

  static void termin(QDate datum, qint64 volk, const QString& erledigt = "N",
                     const QString& text = "Alt") {
    db().Execute("insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, ?, ?, ?)",
                 {datum, text, erledigt, volk});
  }
  // "volk option dd.mm. erledigt" in the order in which they were written.
  static QStringList termine() {
    const Daten daten =
        db().Lesen("select Volk_ID, Termin, Datum, Erledigt from Termine order by ID");
    QStringList zeilen;
    for (int i = 0; i < daten->zeilen(); ++i)
      zeilen << QString("%1 %2 %3 %4")
                    .arg(daten->ganzzahl(i, 0))
                    .arg(daten->anzeige(i, 1), daten->wert(i, 2).toDate().toString("dd.MM."),
                         daten->anzeige(i, 3));
    return zeilen;
  }
  bool gespeichert() const { return QFile::exists(AppPfad + "Einstellungen.TV2"); }
  QString gespeichertesJahr() const {
    return Textdatei::lesen(AppPfad + "Einstellungen.TV2").value(28);
  }

  QStringList fragen;
  QList<bool> vorgaben;
  QStringList hinweise;
  QStringList schritte;
  qint64 termineBeiFrage = 0;
};

}  // namespace

TEST_F(Jahreslauf, NeinLässtAllesWieEsIst) {
  neuesVolk("1");
  option("Einwinterung", "15.09", 0, "15.09");
  laufe({false});
  EXPECT_EQ(fragen, QStringList(Startfrage));
  EXPECT_EQ(vorgaben, QList<bool>({false}));
  EXPECT_EQ(hinweise, QStringList());
  EXPECT_EQ(anzahl("Termine"), 0);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2005);
  EXPECT_FALSE(gespeichert());
  EXPECT_TRUE(neuesJahr());
}

TEST_F(Jahreslauf, JaSchreibtVolkFürVolkOptionFürOption) {
  const qint64 a = neuesVolk("1");
  const qint64 b = neuesVolk("2");
  option("Einwinterung", "15.09", 0, "15.09");
  option("Honigernte", "01.06", 14, "31.07");
  laufe({true});
  const auto von = [](qint64 volk) {
    return QStringList(
        {QString("%1 Einwinterung 15.09. N").arg(volk), QString("%1 Honigernte 29.06. N").arg(volk),
         QString("%1 Honigernte 13.07. N").arg(volk), QString("%1 Honigernte 27.07. N").arg(volk)});
  };
  EXPECT_EQ(termine(), von(a) + von(b));
  EXPECT_EQ(hinweise, QStringList(Erfolg));
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2006);
  EXPECT_EQ(gespeichertesJahr(), "2006");
  EXPECT_FALSE(neuesJahr());
}

TEST_F(Jahreslauf, NurVölkerImBestandBekommenTermine) {
  const qint64 drin = neuesVolk("1");
  neuesVolk("2", "");
  db().Execute("insert into Bienenvolk(Volknr) values ('3')");
  option("Einwinterung", "15.09", 0, "15.09");
  laufe({true});
  EXPECT_EQ(termine(), QStringList({QString("%1 Einwinterung 15.09. N").arg(drin)}));
}

TEST_F(Jahreslauf, VolkunabhängigeOptionenBleibenUnberührt) {
  const qint64 volk = neuesVolk("1");
  option("Einwinterung", "15.09", 0, "15.09");
  option("Beuten bauen", "01.12", 0, "01.12", "N");
  termin(QDate(2006, 12, 1), 0, "N", "Beuten bauen");
  laufe({true});
  EXPECT_EQ(termine(), QStringList({"0 Beuten bauen 01.12. N",
                                    QString("%1 Einwinterung 15.09. N").arg(volk)}));
}

TEST_F(Jahreslauf, NurJGiltAlsVolkabhängig) {
  const qint64 volk = neuesVolk("1");
  option("Einwinterung", "15.09", 0, "15.09");
  option("Leer", "16.09", 0, "16.09", "");
  option("Anders", "17.09", 0, "17.09", "X");
  const qint64 ohne = option("Ohne Angabe", "18.09", 0, "18.09");
  db().Execute(QString("update Arbeitsplanoptionen set Volkabhängig = ? where ID = ?"),
               {QVariant(), ohne});
  laufe({true});
  EXPECT_EQ(termine(), QStringList(QString("%1 Einwinterung 15.09. N").arg(volk)));
}

TEST_F(Jahreslauf, OhneVolkKommtDerGrundUndDasJahrIstErledigt) {
  option("Einwinterung", "15.09", 0, "15.09");
  laufe({true});
  EXPECT_EQ(hinweise, QStringList(Nicht + KeinVolk));
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2006);
  EXPECT_EQ(gespeichertesJahr(), "2006");
}

TEST_F(Jahreslauf, OhneVolkabhängigeOptionKommtDerGrund) {
  neuesVolk("1");
  option("Beuten bauen", "01.12", 0, "01.12", "N");
  laufe({true});
  EXPECT_EQ(hinweise, QStringList(Nicht + KeineOption));
  EXPECT_EQ(anzahl("Termine"), 0);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2006);
}

TEST_F(Jahreslauf, AlleDreiGründeStehenUntereinander) {
  termin(QDate(2006, 1, 1), 4);
  laufe({true, false});
  EXPECT_EQ(fragen, QStringList({Startfrage, Löschfrage}));
  EXPECT_EQ(hinweise, QStringList(Nicht + KeinVolk + KeineOption + SchonGebucht));
  EXPECT_EQ(anzahl("Termine"), 1);
}

TEST_F(Jahreslauf, ZweimalImJahrOhneLöschenWirdAbgelehnt) {
  neuesVolk("1");
  option("Einwinterung", "15.09", 0, "15.09");
  laufe({true});
  const QStringList vorher = termine();
  laufe({true, false});
  EXPECT_EQ(vorgaben, QList<bool>({false, true}));
  EXPECT_EQ(hinweise, QStringList(Nicht + SchonGebucht));
  EXPECT_EQ(termine(), vorher);
}

TEST_F(Jahreslauf, ZweimalImJahrMitLöschenGibtDieselbenTermine) {
  neuesVolk("1");
  neuesVolk("2");
  option("Honigernte", "01.06", 14, "31.08");
  laufe({true});
  const QStringList vorher = termine();
  laufe({true, true});
  EXPECT_EQ(hinweise, QStringList(Erfolg));
  EXPECT_EQ(termine(), vorher);
}

TEST_F(Jahreslauf, LöschenNimmtOffeneUndErledigteNurDiesesJahresUndNurVonVölkern) {
  neuesVolk("1");
  option("Einwinterung", "15.01", 0, "15.01");  // gone by: gives none
  termin(QDate(2005, 12, 31), 7, "N", "Vorjahr");
  termin(QDate(2006, 1, 1), 7, "N", "Erster Tag");
  termin(QDate(2006, 6, 1), 7, "J", "Erledigt");
  termin(QDate(2006, 12, 31), 7, "N", "Letzter Tag");
  termin(QDate(2007, 1, 1), 7, "N", "Folgejahr");
  termin(QDate(2006, 6, 1), 0, "N", "Ohne Volk");
  laufe({true, true});
  EXPECT_EQ(termine(),
            QStringList({"7 Vorjahr 31.12. N", "7 Folgejahr 01.01. N", "0 Ohne Volk 01.06. N"}));
  EXPECT_EQ(hinweise, QStringList(Erfolg));
}

TEST_F(Jahreslauf, TermineAndererJahreUndOhneVolkFragenNichtNachDemLöschen) {
  neuesVolk("1");
  option("Einwinterung", "15.09", 0, "15.09");
  termin(QDate(2005, 12, 31), 1);
  termin(QDate(2007, 1, 1), 1);
  termin(QDate(2006, 6, 1), 0);
  laufe({true});
  EXPECT_EQ(anzahl("Termine"), 4);
}

TEST_F(Jahreslauf, TermineMitLeererVolknummerGehörenZuKeinemVolk) {
  neuesVolk("1");
  option("Einwinterung", "15.09", 0, "15.09");
  db().Execute("insert into Termine(Datum, Termin, Erledigt) values (?, 'Ohne', 'N')",
               {QDate(2006, 6, 1)});
  laufe({true});
  EXPECT_EQ(anzahl("Termine"), 2);
}

TEST_F(Jahreslauf, LöschfrageKommtAuchOhneVolkUndJaLöscht) {
  option("Einwinterung", "15.09", 0, "15.09");
  termin(QDate(2006, 6, 1), 7);
  laufe({true, true});
  EXPECT_EQ(hinweise, QStringList(Nicht + KeinVolk));
  EXPECT_EQ(anzahl("Termine"), 0);
}

TEST_F(Jahreslauf, AlleFragenKommenVorDemErstenSchreiben) {
  neuesVolk("1");
  option("Einwinterung", "15.09", 0, "15.09");
  termin(QDate(2006, 6, 1), 7);
  laufe({true, true});
  EXPECT_EQ(termineBeiFrage, 1);
}

TEST_F(Jahreslauf, FortschrittZähltDieVölker) {
  for (int i = 0; i < 3; ++i) neuesVolk(QString::number(i));
  option("Einwinterung", "15.09", 0, "15.09");
  laufe({true});
  EXPECT_EQ(schritte, QStringList({"1/3", "2/3", "3/3"}));
}

TEST_F(Jahreslauf, GebuchteHonigernteSchneidetNurDieSerieIhresVolkesAb) {
  const qint64 a = neuesVolk("1");
  const qint64 b = neuesVolk("2");
  option("Honigernte", "01.06", 14, "31.07", "J", "Honigernte");
  db().Execute("insert into Honigernte(Datum, Volk_ID) values (?, ?)", {QDate(2006, 7, 13), a});
  laufe({true});
  EXPECT_EQ(termine(),
            QStringList(
                {QString("%1 Honigernte 13.07. N").arg(a), QString("%1 Honigernte 27.07. N").arg(a),
                 QString("%1 Honigernte 29.06. N").arg(b), QString("%1 Honigernte 13.07. N").arg(b),
                 QString("%1 Honigernte 27.07. N").arg(b)}));
}

TEST_F(Jahreslauf, EineOptionÜberDenJahreswechselGibtKeineTermineUndStörtNicht) {
  neuesVolk("1");
  option("Winterkontrolle", "01.11", 14, "15.05");
  laufe({true});
  EXPECT_EQ(anzahl("Termine"), 0);
  EXPECT_EQ(hinweise, QStringList(Erfolg));
}

// The seed rows' nine colony-dependent options that begin after the 20th of June or reach over it.
TEST_F(Jahreslauf, DieAchtzehnStartoptionenGebenDieTermineDesRestjahres) {
  const Tabelle* optionen = nullptr;
  for (const Tabelle& t : schema())
    if (t.name == "Arbeitsplanoptionen") optionen = &t;
  ASSERT_NE(optionen, nullptr);
  ASSERT_EQ(optionen->startwerte.size(), 18);
  for (const QString& zeile : optionen->startwerte) db().Execute(zeile);
  neuesVolk("1");
  laufe({true});
  const auto zahl = [](const char* text) {
    return wert("select count(*) as n from Termine where Termin = ?", {QString(text)}).toInt();
  };
  EXPECT_EQ(zahl("Schwarmkontrolle"), 1);         // 24.06.
  EXPECT_EQ(zahl("Varroakontrolle"), 11);         // 24.06. to 22.09.
  EXPECT_EQ(zahl("Varroa-Winterbekämpfung"), 1);  // 15.12.
  EXPECT_EQ(zahl("Frühjahrskontrolle"), 0);
  EXPECT_EQ(zahl("Erweiterungskontrolle"), 5);  // 21.06. 30.06. 09.07. 18.07. 27.07.
  EXPECT_EQ(zahl("Honigernte"), 5);             // 29.06. to 24.08.
  EXPECT_EQ(zahl("Fütterung"), 1);              // 01.09.
  EXPECT_EQ(zahl("Drohnenbrutentnahme"), 3);    // 26.06. 10.07. 24.07.
  EXPECT_EQ(zahl("Brutkontrolle"), 8);          // 21.06. to 23.08.
  EXPECT_EQ(zahl("Jahreserstkontrolle"), 0);
  EXPECT_EQ(zahl("Einwinterung"), 1);  // 15.09.
  EXPECT_EQ(zahl("Winterkontrolle"), 0);
  EXPECT_EQ(anzahl("Termine"), 36);
}

TEST_F(Jahreslauf, EinNeunundzwanzigsterFebruarNimmtDieAnderenOptionenNichtMit) {
  const qint64 a = neuesVolk("1");
  const qint64 b = neuesVolk("2");
  option("Schaltjahrarbeit", "29.02", 0, "29.02");
  option("Einwinterung", "15.09", 0, "15.09");
  const QString text = fehlertext({true});
  EXPECT_TRUE(text.contains("'Schaltjahrarbeit'")) << text.toStdString();
  EXPECT_TRUE(text.contains("29.02.2006")) << text.toStdString();
  EXPECT_EQ(text.count("Schaltjahrarbeit"), 1);  // told once, not for each colony
  EXPECT_EQ(termine(), QStringList({QString("%1 Einwinterung 15.09. N").arg(a),
                                    QString("%1 Einwinterung 15.09. N").arg(b)}));
}

TEST_F(Jahreslauf, NachEinemFehlerBleibtDasJahrOffenUndKeinErfolgWirdGemeldet) {
  neuesVolk("1");
  option("Schaltjahrarbeit", "29.02", 0, "29.02");
  EXPECT_NE(fehlertext({true}), "kein Fehler");
  EXPECT_EQ(hinweise, QStringList());
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2005);
  EXPECT_FALSE(gespeichert());
}

TEST_F(Jahreslauf, ZweiUngültigeOptionenWerdenBeideGenannt) {
  neuesVolk("1");
  option("Eins", "29.02", 0, "29.02");
  option("Zwei", "01.05", 0, "31.06");
  const QString text = fehlertext({true});
  EXPECT_TRUE(text.contains("'Eins'") && text.contains("'Zwei'")) << text.toStdString();
}

TEST_F(Jahreslauf, EineOptionMitUnbekannterBuchungWirdGenanntUndNimmtDieAnderenNichtMit) {
  neuesVolk("1");
  option("Seltsam", "01.05", 9, "30.09", "J", "Gibtesnicht");
  option("Einwinterung", "15.09", 0, "15.09");
  const QString text = fehlertext({true});
  EXPECT_TRUE(text.contains("'Seltsam'")) << text.toStdString();
  EXPECT_TRUE(text.contains("'Gibtesnicht'")) << text.toStdString();
  EXPECT_TRUE(text.endsWith("Die Termine aller anderen Arbeitsplan-Optionen wurden eingetragen."));
  EXPECT_EQ(text.count("Seltsam"), 1);
  EXPECT_EQ(anzahl("Termine", "Termin = 'Einwinterung'"), 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2005);
}

TEST_F(Jahreslauf, ImSchaltjahrHatDerNeunundzwanzigsteFebruarSeinenTermin) {
  HeuteText = "01.01.2008";
  const qint64 volk = neuesVolk("1");
  option("Schaltjahrarbeit", "29.02", 0, "29.02");
  laufe({true});
  EXPECT_EQ(termine(), QStringList({QString("%1 Schaltjahrarbeit 29.02. N").arg(volk)}));
}

TEST_F(Jahreslauf, NichtGeschriebeneEinstellungenSindEinFehlerUndDieTermineBleiben) {
  neuesVolk("1");
  option("Einwinterung", "15.09", 0, "15.09");
  ASSERT_TRUE(QDir(AppPfad).mkpath("Einstellungen.TV2/voll"));
  EXPECT_THROW(laufe({true}), Dateifehler);
  EXPECT_EQ(anzahl("Termine"), 1);
}

TEST_F(Jahreslauf, NeuesJahrIstJedesAndereJahrAuchEinFrüheres) {
  HeuteText = "31.12.2006";
  EinstellungenZahl[Zahlslots.terminjahr] = 2006;
  EXPECT_FALSE(neuesJahr());
  HeuteText = "01.01.2007";
  EXPECT_TRUE(neuesJahr());
  HeuteText = "01.01.2005";
  EXPECT_TRUE(neuesJahr());
  EinstellungenZahl[Zahlslots.terminjahr] = 0;
  EXPECT_TRUE(neuesJahr());
}

// Whatever options and colonies there are: the run gives the same rows as one call after the other.
TEST_F(Jahreslauf, GibtDieselbenZeilenWieDieEinzelnenRechnungen) {
  QRandomGenerator zufall(2006);
  for (int runde = 0; runde < 25; ++runde) {
    for (const char* tabelle : {"Bienenvolk", "Arbeitsplanoptionen", "Termine"})
      db().Execute(QString("delete from ") + tabelle);
    QList<qint64> völker;
    for (int i = zufall.bounded(1, 5); i > 0; --i)
      if (const bool drin = zufall.bounded(3) > 0;
          const qint64 id = neuesVolk("1", drin ? "X" : ""))
        if (drin) völker << id;
    QList<qint64> optionen;
    for (int i = zufall.bounded(1, 6); i > 0; --i) {
      const auto tag = [&] {
        return QString("%1.%2")
            .arg(zufall.bounded(1, 29), 2, 10, QChar('0'))
            .arg(zufall.bounded(1, 13), 2, 10, QChar('0'));
      };
      const QString start = tag();
      const bool abhängig = zufall.bounded(4) > 0;
      const qint64 id = option("Arbeit", start, zufall.bounded(0, 40), tag(), abhängig ? "J" : "N");
      if (abhängig) optionen << id;
    }
    if (völker.isEmpty() || optionen.isEmpty()) continue;
    laufe({true});
    const QStringList ist = termine();
    db().Execute("delete from Termine");
    for (const qint64 volk : völker)
      for (const qint64 o : optionen) TermineBerechnen(db(), o, volk);
    EXPECT_EQ(ist, termine()) << runde;
  }
}
