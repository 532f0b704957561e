#include <QMap>

#include "Betriebsfall.h"

namespace {

class Kalender : public Betriebsfall {};

struct Termin {
  QDate tag;
  QString text;
  bool erledigt;
  qint64 volk;
};

QList<Termin> termine() {
  const Daten zeilen = DB.Lesen("select Datum, Termin, Erledigt, Volk_ID from Termine order by ID");
  QList<Termin> alle;
  for (int i = 0; i < zeilen->zeilen(); ++i)
    alle << Termin{zeilen->wert(i, 0).toDate(), zeilen->anzeige(i, 1), zeilen->anzeige(i, 2) == "J",
                   zeilen->ganzzahl(i, 3)};
  return alle;
}

struct Zeitraum {
  QString von;  // "mmdd"
  QString bis;
  bool jeVolk;
};

QMap<QString, Zeitraum> optionen() {
  const Daten zeilen =
      DB.Lesen(QString("select Arbeitsart, Startzeitraum, Endzeitraum, Volkabhängig from "
                       "Arbeitsplanoptionen"));
  const auto mmdd = [](const QString& ttmm) { return ttmm.mid(3, 2) + ttmm.left(2); };
  QMap<QString, Zeitraum> alle;
  for (int i = 0; i < zeilen->zeilen(); ++i)
    alle[zeilen->anzeige(i, 0)] = {mmdd(zeilen->anzeige(i, 1)), mmdd(zeilen->anzeige(i, 2)),
                                   zeilen->anzeige(i, 3) == "J"};
  return alle;
}

TEST_F(Kalender, JedeOptionHatEinenZeitraumInnerhalbDesJahres) {
  standard();
  const QMap<QString, Zeitraum> alle = optionen();
  EXPECT_GE(alle.size(), 15);
  for (auto option = alle.begin(); option != alle.end(); ++option)
    EXPECT_LE(option->von, option->bis) << option.key().toStdString();
}

TEST_F(Kalender, KeinTerminLiegtVorDemZeitraumSeinerOption) {
  standard();
  const QMap<QString, Zeitraum> alle = optionen();
  int geprüft = 0;
  for (const Termin& termin : termine()) {
    if (!alle.contains(termin.text)) continue;
    const Zeitraum zeitraum = alle[termin.text];
    EXPECT_GE(termin.tag.toString("MMdd"), zeitraum.von) << termin.text.toStdString();
    if (!termin.erledigt) {
      EXPECT_LE(termin.tag.toString("MMdd"), zeitraum.bis) << termin.text.toStdString();
    }
    EXPECT_EQ(termin.volk != 0, zeitraum.jeVolk) << termin.text.toStdString();
    ++geprüft;
  }
  EXPECT_GT(geprüft, 1000);
}

TEST_F(Kalender, JedesVolkImBestandHatAlleVolkabhängigenArbeiten) {
  standard();
  const QMap<QString, Zeitraum> alle = optionen();
  for (auto option = alle.begin(); option != alle.end(); ++option) {
    if (!option->jeVolk) continue;
    const Daten völker =
        DB.Lesen("select distinct Volk_ID from Termine where Termin = ?", {option.key()});
    EXPECT_EQ(völker->zeilen(), 21) << option.key().toStdString();
  }
}

TEST_F(Kalender, AbgegangeneVölkerUndVölkerVorDemZugangHabenKeineTermine) {
  standard();
  EXPECT_EQ(DB.Lesen("select Termine.ID from Termine, Bienenvolk where Volk_ID = Bienenvolk.ID and "
                     "Akt_im_Bestand <> 'X'")
                ->zeilen(),
            0);
  Betriebsgröße eineSaison = klein(3);
  eineSaison.jahre = 1;
  anlegen(eineSaison);
  EXPECT_GT(anzahl("Termine", "Volk_ID > 0"), 0);
  EXPECT_EQ(DB.Lesen("select Termine.ID from Termine, Bienenvolk where Volk_ID = Bienenvolk.ID and "
                     "Datum < Volk_Zugangsdatum")
                ->zeilen(),
            0);
}

TEST_F(Kalender, DasVergangeneIstMeistErledigtUndEinRestIstFällig) {
  standard();
  int erledigt = 0;
  int fällig = 0;
  for (const Termin& termin : termine()) {
    if (termin.tag >= Heute) {
      EXPECT_FALSE(termin.erledigt && termin.tag > Heute) << termin.text.toStdString();
      continue;
    }
    if (termin.erledigt) {
      ++erledigt;
      continue;
    }
    ++fällig;
    EXPECT_GE(termin.tag, Heute.addDays(-9)) << termin.text.toStdString();
  }
  EXPECT_GE(fällig, 5);
  EXPECT_LE(fällig, 60);
  EXPECT_GT(erledigt, 10 * fällig);
}

TEST_F(Kalender, DieNächstenVierzehnTageBringenTermineMitUndOhneVolk) {
  standard();
  int mitVolk = 0;
  int ohneVolk = 0;
  for (const Termin& termin : termine())
    if (!termin.erledigt && termin.tag >= Heute && termin.tag <= Heute.addDays(14))
      ++(termin.volk ? mitVolk : ohneVolk);
  EXPECT_GE(mitVolk, 20);
  EXPECT_GE(ohneVolk, 3);
}

TEST_F(Kalender, AmStandortEingetragenesGiltFürAlleVölkerDort) {
  standard();
  const Daten orte = DB.Lesen(
      "select distinct Standort from Termine, Bienenvolk where Volk_ID = Bienenvolk.ID and Termin "
      "= ?",
      {QString("Gras mähen, Tränke füllen")});
  ASSERT_EQ(orte->zeilen(), 1);
  const Daten dort = DB.Lesen("select ID from Bienenvolk where Standort = ?", {orte->wert(0, 0)});
  EXPECT_EQ(anzahl("Termine", QString("Termin = 'Gras mähen, Tränke füllen'")), dort->zeilen());
}

TEST_F(Kalender, GleicherTerminAmGleichenTagStehtBeiEinemVolkNurEinmal) {
  standard();
  const Daten tage =
      DB.Lesen("select count(*) as n from Termine group by Datum, Termin, Volk_ID order by n desc");
  ASSERT_GT(tage->zeilen(), 0);
  EXPECT_EQ(tage->ganzzahl(0, 0), 1);
}

// A booking settles what was due until its day.
TEST_F(Kalender, EineGebuchteErnteHatDieErntetermineBisDahinErledigt) {
  Betriebsgröße größe;
  größe.heute = QDate(2026, 8, 31);
  anlegen(größe);
  const Daten offen = DB.Lesen(
      "select Termine.ID from Termine, Honigernte where Termin = 'Honigernte' and Erledigt = 'N' "
      "and Honigernte.Volk_ID = Termine.Volk_ID and Honigernte.Datum >= Termine.Datum");
  EXPECT_EQ(offen->zeilen(), 0);
  EXPECT_GT(anzahl("Termine", "Termin = 'Honigernte' and Erledigt = 'J'"), 20);
}

TEST_F(Kalender, ZumJahreswechselKommtKeineFrageMehr) {
  standard();
  EXPECT_EQ(TZ_Variablen::EinstellungenZahl[Zahlslots.terminjahr], 2026);
  EXPECT_EQ(TZ_Variablen::HeuteText, "15.06.2026");
}

TEST_F(Kalender, ImWinterStehtKeineSommerarbeitAn) {
  Betriebsgröße größe = klein(4);
  größe.heute = QDate(2026, 1, 20);
  anlegen(größe);
  EXPECT_EQ(anzahl("Termine",
                   "Erledigt = 'N' and Datum <= #02/03/2026# and Termin = 'Ableger "
                   "bilden'"),
            0);
  EXPECT_EQ(anzahl("Termine",
                   "Erledigt = 'N' and Datum <= #02/03/2026# and Termin = 'Gemüll "
                   "untersuchen'"),
            1);
}

// Whatever the day, the operation can be made: the first day of a year, the winter, a leap day.
TEST_F(Kalender, JederTagDesJahresGeht) {
  for (const QDate tag :
       {QDate(2026, 1, 1), QDate(2026, 2, 3), QDate(2024, 2, 29), QDate(2026, 12, 31)}) {
    Betriebsgröße größe = klein(5);
    größe.heute = tag;
    anlegen(größe);
    EXPECT_EQ(anzahl("Bienenvolk"), 6) << tag.toString().toStdString();
    EXPECT_GT(anzahl("Termine", "Erledigt = 'N'"), 0) << tag.toString().toStdString();
  }
}

}  // namespace
