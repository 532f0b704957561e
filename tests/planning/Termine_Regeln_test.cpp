// The rules by which the days of a series are found, one by one and all together.
#include <QRandomGenerator>
#include <algorithm>
#include <functional>

#include "colonies/Testbetrieb.h"
#include "planning/Optionen.h"
#include "planning/Termine.h"

using namespace TZ_Variablen;

namespace {

constexpr int Volk = 7;

QString tage() {
  const Daten daten = DB.Lesen("select Datum from Termine order by ID");
  QStringList texte;
  for (int i = 0; i < daten->zeilen(); ++i) texte << daten->wert(i, 0).toDate().toString("dd.MM.");
  return texte.join(' ');
}

class Terminregeln : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    db().Execute("delete from Arbeitsplanoptionen");
  }
  static void buche(const QString& tabelle, const QVariant& datum, qint64 volk = Volk) {
    db().Execute("insert into " + tabelle + "(Datum, Volk_ID) values (?, ?)", {datum, volk});
  }
  static void arbeite(const QString& art, QDate datum, qint64 volk = Volk) {
    db().Execute("insert into Arbeiten(Datum, Arbeitsart, Volk_ID) values (?, ?, ?)",
                 {datum, art, volk});
  }
  static QString fehlertext(qint64 id) {
    try {
      TermineBerechnen(db(), id, Volk);
    } catch (const Datenbankfehler& fehler) {
      return fehler.text();
    }
    return "kein Fehler";
  }
};

// --- the booking that settles an option ---

class Erledigung : public Terminregeln, public testing::WithParamInterface<QString> {};

TEST_P(Erledigung, EineBuchungSchneidetDenAnfangDerSerieAb) {
  buche(GetParam(), QDate(2006, 6, 30));
  TermineBerechnen(db(), option("Arbeit", "01.06", 14, "31.07", "J", GetParam()), Volk);
  EXPECT_EQ(tage(), "13.07. 27.07.");
}

TEST_P(Erledigung, EineBuchungAmSerientagLässtDiesenTagStehen) {
  buche(GetParam(), QDate(2006, 7, 13));
  TermineBerechnen(db(), option("Arbeit", "01.06", 14, "31.07", "J", GetParam()), Volk);
  EXPECT_EQ(tage(), "13.07. 27.07.");
}

std::string testname(const testing::TestParamInfo<QString>& info) {
  return QString(info.param).replace(QString("ö"), "oe").toStdString();
}

// The seven on offer, and those that stand in options of other origin.
INSTANTIATE_TEST_SUITE_P(ImAngebot, Erledigung, testing::ValuesIn(erledigtBuchungen().mid(1)),
                         testname);
INSTANTIATE_TEST_SUITE_P(NichtImAngebot, Erledigung,
                         testing::Values("Stockkarte", "Sonstigeernte", "Arbeiten", "Notizen"),
                         testname);

TEST_F(Terminregeln, OptionOhneVolkBeachtetKeineArbeitsart) {
  arbeite("Schied", QDate(2006, 7, 20), 0);
  arbeite("Schied", QDate(2006, 7, 20));
  TermineBerechnen(db(), option("Arbeit", "01.06", 14, "31.07", "N", "", "Schied"), 0);
  EXPECT_EQ(tage(), "29.06. 13.07. 27.07.");
}

TEST_F(Terminregeln, OptionMitLeererVolkabhängigkeitBeachtetWederBuchungNochArbeitsart) {
  buche("Honigernte", QDate(2006, 7, 20));
  arbeite("Schied", QDate(2006, 7, 20));
  TermineBerechnen(db(), option("Arbeit", "01.06", 14, "31.07", "", "Honigernte", "Schied"), Volk);
  EXPECT_EQ(tage(), "29.06. 13.07. 27.07.");
  EXPECT_EQ(anzahl("Termine", "Volk_ID = 7"), 3);
}

TEST_F(Terminregeln, EineBuchungAmHeutigenTagLässtDenHeutigenTerminStehen) {
  HeuteText = "15.06.2006";
  buche("Honigernte", QDate(2006, 6, 15));
  TermineBerechnen(db(), option("Arbeit", "01.06", 14, "30.06", "J", "Honigernte"), Volk);
  EXPECT_EQ(tage(), "15.06. 29.06.");
}

TEST_F(Terminregeln, EineBuchungVorDemBeginnÄndertNichts) {
  buche("Honigernte", QDate(2006, 6, 25));
  TermineBerechnen(db(), option("Arbeit", "01.07", 14, "31.07", "J", "Honigernte"), Volk);
  EXPECT_EQ(tage(), "01.07. 15.07. 29.07.");
}

TEST_F(Terminregeln, EineBuchungNachDemEndeOderImFolgejahrLässtKeinenTag) {
  buche("Honigernte", QDate(2007, 1, 2));
  TermineBerechnen(db(), option("Arbeit", "01.06", 14, "31.07", "J", "Honigernte"), Volk);
  EXPECT_EQ(tage(), "");
}

TEST_F(Terminregeln, EineBuchungOhneDatumZähltNicht) {
  buche("Honigernte", QVariant());
  TermineBerechnen(db(), option("Arbeit", "01.07", 14, "31.07", "J", "Honigernte"), Volk);
  EXPECT_EQ(tage(), "01.07. 15.07. 29.07.");
}

TEST_F(Terminregeln, DieArbeitsartGiltOhneGroßUndKlein) {
  arbeite("SCHIED", QDate(2006, 7, 2));
  TermineBerechnen(db(), option("Arbeit", "01.07", 14, "31.07", "J", "", "Schied"), Volk);
  EXPECT_EQ(tage(), "15.07. 29.07.");
}

TEST_F(Terminregeln, BeiFristNullNimmtEineBuchungNachDemBeginnDenTermin) {
  const qint64 id = option("Arbeit", "25.06", 0, "31.07", "J", "Honigernte");
  buche("Honigernte", QDate(2006, 6, 25));
  TermineBerechnen(db(), id, Volk);
  EXPECT_EQ(tage(), "25.06.");
  db().Execute("delete from Termine");
  buche("Honigernte", QDate(2006, 6, 26));
  TermineBerechnen(db(), id, Volk);
  EXPECT_EQ(tage(), "");
}

// --- a booking table that is none: the message names the option ---

TEST_F(Terminregeln, EineFehlendeBuchungstabelleNenntDieOptionUndDieBuchung) {
  for (const char* tabelle :
       {"Gibtesnicht", "Gibt es nicht", "Standorte", "select", "Arbeiten, Stoc", "("}) {
    const QString text = fehlertext(option("Seltsam", "01.06", 14, "31.08", "J", tabelle));
    EXPECT_EQ(text,
              "Die Termine der Arbeitsplan-Option 'Seltsam' können nicht berechnet werden, "
              "weil ihre Buchung '" +
                  QString(tabelle) +
                  "' nicht gelesen werden kann. Bitte löschen Sie diese Option in den "
                  "Arbeitsplanoptionen und legen Sie sie neu an.");
  }
  EXPECT_EQ(tage(), "");
}

TEST_F(Terminregeln, OhneTabelleArbeitenWirdDieOptionMitIhrerArbeitsartGenannt) {
  const qint64 id = option("Seltsam", "01.06", 14, "31.08", "J", "", "Schied");
  db().Execute("drop table Arbeiten");
  const QString text = fehlertext(id);
  EXPECT_TRUE(text.contains("'Seltsam'")) << text.toStdString();
  EXPECT_TRUE(text.contains("Arbeitsart 'Schied'")) << text.toStdString();
}

TEST_F(Terminregeln, EineOptionOhneVolkStörtSichNichtAnEinerFehlendenBuchungstabelle) {
  TermineBerechnen(db(), option("Arbeit", "01.07", 0, "01.07", "N", "Gibtesnicht"), 0);
  EXPECT_EQ(tage(), "01.07.");
}

// --- intervals and periods ---

TEST_F(Terminregeln, FristEinsGibtJedenTag) {
  HeuteText = "29.06.2006";
  TermineBerechnen(db(), option("Arbeit", "27.06", 1, "02.07"), Volk);
  EXPECT_EQ(tage(), "29.06. 30.06. 01.07. 02.07.");
}

TEST_F(Terminregeln, FristNeunundneunzigGibtVierTageImJahr) {
  HeuteText = "01.01.2006";
  TermineBerechnen(db(), option("Arbeit", "01.01", 99, "31.12"), Volk);
  EXPECT_EQ(tage(), "01.01. 10.04. 18.07. 25.10.");
}

TEST_F(Terminregeln, FristNeunundneunzigÜberDenSchalttag) {
  HeuteText = "01.01.2008";
  TermineBerechnen(db(), option("Arbeit", "01.01", 99, "31.12"), Volk);
  EXPECT_EQ(tage(), "01.01. 09.04. 17.07. 24.10.");
}

TEST_F(Terminregeln, EinZeitraumVonEinemTagGibtBeiJederFristEinenTermin) {
  for (const int frist : {0, 1, 99})
    TermineBerechnen(db(), option("Arbeit", "31.12", frist, "31.12"), Volk);
  EXPECT_EQ(tage(), "31.12. 31.12. 31.12.");
}

TEST_F(Terminregeln, DasEndeVorDemBeginnGibtBeiKeinerFristEinenTermin) {
  HeuteText = "01.01.2006";
  for (const int frist : {0, 1, 99})
    TermineBerechnen(db(), option("Winterkontrolle", "01.11", frist, "15.05"), Volk);
  EXPECT_EQ(tage(), "");
}

TEST_F(Terminregeln, FristEinsLäuftÜberDenSchalttag) {
  HeuteText = "01.01.2008";
  TermineBerechnen(db(), option("Arbeit", "28.02", 1, "01.03"), Volk);
  EXPECT_EQ(tage(), "28.02. 29.02. 01.03.");
}

TEST_F(Terminregeln, DerSchalttagAlsBeginnIstImGemeinjahrEinFehlerDerIhnNennt) {
  const QString text = fehlertext(option("Arbeit", "29.02", 9, "30.06"));
  EXPECT_TRUE(text.contains("'Arbeit'") && text.contains("Beginn '29.02.2006'"))
      << text.toStdString();
}

TEST_F(Terminregeln, DieTermineLiegenImJahrVonHeute) {
  HeuteText = "31.12.2011";
  TermineBerechnen(db(), option("Arbeit", "01.01", 1, "31.12"), Volk);
  const Daten termine = db().Lesen("select Datum from Termine");
  ASSERT_EQ(termine->zeilen(), 1);
  EXPECT_EQ(termine->wert(0, 0).toDate(), QDate(2011, 12, 31));
}

// --- all together: any option, any bookings, any day ---

struct Zufallsbuchung {
  QString tabelle;
  QString arbeit;
  QDate datum;
  int volk;
};

struct Zufallsfall {
  QDate heute, beginn, ende;
  int frist;
  QString volkabhängig, buchung, arbeit;
  QList<Zufallsbuchung> buchungen;
};

const QStringList arbeitsarten = {"", "Schied", "Absperren"};

Zufallsfall würfle(QRandomGenerator& zufall) {
  const auto eines = [&](const QStringList& liste) {
    return liste[zufall.bounded(static_cast<int>(liste.size()))];
  };
  const QDate neujahr(zufall.bounded(2) == 0 ? 2006 : 2008, 1, 1);
  const auto tag = [&] { return neujahr.addDays(zufall.bounded(neujahr.daysInYear())); };
  Zufallsfall f{tag(), tag(), tag(), 0, {}, {}, {}, {}};
  // Mostly periods that end behind their start, a day of today that lies within.
  if (f.ende < f.beginn && zufall.bounded(4) > 0) std::swap(f.beginn, f.ende);
  if (zufall.bounded(8) == 0) f.ende = f.beginn;
  f.frist = QList<int>{0, 1, 99}.value(zufall.bounded(6), zufall.bounded(100));
  f.volkabhängig = eines({"J", "J", "J", "N", ""});
  f.buchung = eines(erledigtBuchungen());
  f.arbeit = eines(arbeitsarten);
  for (int i = zufall.bounded(8); i > 0; --i) {
    Zufallsbuchung b{f.buchung, {}, tag().addDays(zufall.bounded(-40, 41)), 7 + zufall.bounded(2)};
    if (zufall.bounded(3) == 0 || b.tabelle.isEmpty()) b.tabelle = "Arbeiten";
    if (zufall.bounded(6) == 0) b.tabelle = eines(erledigtBuchungen().mid(1));
    if (b.tabelle == "Arbeiten") b.arbeit = eines(arbeitsarten);
    f.buchungen << b;
  }
  return f;
}

// Day by day, without a series: is it one, and does the colony still need it?
QList<QDate> vonHand(const Zufallsfall& f, int volk) {
  QDate schwelle = std::max(f.beginn, f.heute);
  for (const Zufallsbuchung& b : f.buchungen) {
    const bool diese = !f.buchung.isEmpty() && b.tabelle == f.buchung;
    const bool jene = !f.arbeit.isEmpty() && b.tabelle == "Arbeiten" && b.arbeit == f.arbeit;
    if (f.volkabhängig == "J" && b.volk == volk && (diese || jene))
      schwelle = std::max(schwelle, b.datum);
  }
  QList<QDate> tage;
  for (QDate tag = f.beginn; tag <= f.ende; tag = tag.addDays(1)) {
    const qint64 abstand = f.beginn.daysTo(tag);
    const bool inDerSerie = f.frist == 0 ? abstand == 0 : abstand % f.frist == 0;
    if (inDerSerie && tag >= schwelle) tage << tag;
  }
  return tage;
}

QString beschreibe(const Zufallsfall& f) {
  QStringList teile{f.heute.toString("dd.MM.yyyy"),
                    f.beginn.toString("dd.MM."),
                    f.ende.toString("dd.MM."),
                    QString::number(f.frist),
                    f.volkabhängig,
                    f.buchung,
                    f.arbeit};
  for (const Zufallsbuchung& b : f.buchungen)
    teile << b.tabelle + ' ' + b.arbeit + ' ' + b.datum.toString("dd.MM.") + ' ' +
                 QString::number(b.volk);
  return teile.join(" | ");
}

// The appointments that the program writes for a colony of this case, with nothing else there.
QList<QDate> geschrieben(const Zufallsfall& f, int volk, const std::function<qint64()>& option) {
  for (const QString& tabelle : buchungstabellen()) DB.Execute("delete from " + tabelle);
  for (const char* tabelle : {"Arbeitsplanoptionen", "Termine"})
    DB.Execute(QString("delete from ") + tabelle);
  for (const Zufallsbuchung& b : f.buchungen) {
    DB.Execute("insert into " + b.tabelle + "(Datum, Volk_ID) values (?, ?)", {b.datum, b.volk});
    if (b.tabelle == "Arbeiten")
      DB.Execute("update Arbeiten set Arbeitsart = ? where ID = ?", {b.arbeit, DB.LetzteID()});
  }
  HeuteText = f.heute.toString("dd.MM.yyyy");
  TermineBerechnen(DB, option(), volk);
  const Daten daten = DB.Lesen("select Datum, Volk_ID from Termine order by ID");
  QList<QDate> tage;
  for (int i = 0; i < daten->zeilen(); ++i) {
    tage << daten->wert(i, 0).toDate();
    EXPECT_EQ(daten->ganzzahl(i, 1), volk);
  }
  return tage;
}

TEST_F(Terminregeln, JedeOptionGibtGenauDieTageDieTagFürTagGezähltGelten) {
  QRandomGenerator zufall(19990227);
  int mitTagen = 0;
  db().Sammelschreiben([&] {  // one commit for all, for speed
    for (int runde = 0; runde < 800; ++runde) {
      const Zufallsfall f = würfle(zufall);
      const auto anlegen = [&] {
        return option("Arbeit", f.beginn.toString("dd.MM"), f.frist, f.ende.toString("dd.MM"),
                      f.volkabhängig, f.buchung, f.arbeit);
      };
      for (const int volk : {7, 8}) {
        const QList<QDate> soll = vonHand(f, volk);
        ASSERT_EQ(geschrieben(f, volk, anlegen), soll) << beschreibe(f).toStdString();
        if (!soll.isEmpty()) ++mitTagen;
      }
    }
  });
  EXPECT_GT(mitTagen, 300);  // the cases are worth something
}

}  // namespace
