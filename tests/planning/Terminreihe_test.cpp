// Closing one appointment, and the rest of its series.

#include "planning/Starttermine.h"
#include "planning/Terminbestand.h"

namespace {

using namespace Starttermine;

class Reihenerledigung : public Terminbestand {};

TEST_F(Reihenerledigung, KennzeichenNLaesstDenGeplantenTagUndDieReihe) {
  const qint64 id = termin(tag(6, 10), "A", 7);
  termin(tag(6, 24), "A", 7);
  option("A", "01.06", 14, "31.08");
  TerminErledigen(db(), id, "N", "A", {"20.06.2006", true});
  EXPECT_EQ(termine(), "10.06. A J 7; 24.06. A N 7");
}

TEST_F(Reihenerledigung, KennzeichenJSetztDenTagDerArbeit) {
  const qint64 id = termin(tag(6, 10), "A", 7);
  termin(tag(6, 24), "A", 7);
  option("A", "01.06", 14, "31.08");
  TerminErledigen(db(), id, "J", "A", {"20.06.2006", false});
  EXPECT_EQ(termine(), "20.06. A J 7; 24.06. A N 7");
}

TEST_F(Reihenerledigung, ReiheLaeuftAbDemTagDerArbeitBisZumEndeDesZeitraums) {
  const qint64 id = termin(tag(6, 15), "A", 7);
  termin(tag(6, 29), "A", 7);
  termin(tag(7, 13), "A", 7);
  option("A", "01.06", 14, "31.07");
  TerminErledigen(db(), id, "J", "A", {"20.06.2006", true});
  EXPECT_EQ(termine(), "20.06. A J 7; 04.07. A N 7; 18.07. A N 7");
}

TEST_F(Reihenerledigung, LetzterTagDesZeitraumsGehoertZurNeuenReihe) {
  const qint64 id = termin(tag(6, 15), "A", 7);
  option("A", "01.06", 14, "18.07");
  TerminErledigen(db(), id, "J", "A", {"20.06.2006", true});
  EXPECT_EQ(termine("Erledigt = 'N'"), "04.07. A N 7; 18.07. A N 7");
}

TEST_F(Reihenerledigung, NurDieOffenenDerselbenReiheDesselbenVolkesGehen) {
  const qint64 id = termin(tag(6, 15), "A", 7);
  termin(tag(6, 1), "A", 7, "J");
  termin(tag(6, 29), "A", 8);
  termin(tag(6, 29), "B", 7);
  termin(QDate(2007, 6, 29), "A", 7);
  TerminErledigen(db(), id, "J", "A", {"20.06.2006", true});
  EXPECT_EQ(termine(), "20.06. A J 7; 01.06. A J 7; 29.06. A N 8; 29.06. B N 7");
}

TEST_F(Reihenerledigung, OhneOptionSindDieOffenenWegUndNichtsErsetztSie) {
  const qint64 id = termin(tag(6, 15), "A", 7);
  termin(tag(6, 29), "A", 7);
  TerminErledigen(db(), id, "J", "A", {"20.06.2006", true});
  EXPECT_EQ(termine(), "20.06. A J 7");
}

TEST_F(Reihenerledigung, FristNullErsetztNichts) {
  const qint64 id = termin(tag(6, 15), "A", 7);
  termin(tag(6, 29), "A", 7);
  option("A", "01.06", 0, "31.08");
  TerminErledigen(db(), id, "J", "A", {"20.06.2006", true});
  EXPECT_EQ(termine(), "20.06. A J 7");
}

TEST_F(Reihenerledigung, AmLetztenTagDesZeitraumsErledigtBleibtKeinWeitererTermin) {
  const qint64 id = termin(tag(6, 15), "A", 7);
  termin(tag(6, 29), "A", 7);
  option("A", "01.06", 14, "20.06");
  TerminErledigen(db(), id, "J", "A", {"20.06.2006", true});
  EXPECT_EQ(termine(), "20.06. A J 7");
}

TEST_F(Reihenerledigung, LeeresEndeDesZeitraumsGibtKeineReihe) {
  const qint64 id = termin(tag(6, 15), "A", 7);
  option("A", "01.06", 14, "");
  TerminErledigen(db(), id, "J", "A", {"20.06.2006", true});
  EXPECT_EQ(termine(), "20.06. A J 7");
}

// The period ends in this year, whatever the year of the work.
TEST_F(Reihenerledigung, TagDerArbeitImVorjahrFuehrtDieReiheBisZumEndeInDiesemJahr) {
  const qint64 id = termin(tag(1, 5), "A", 7);
  option("A", "01.01", 14, "31.01");
  TerminErledigen(db(), id, "J", "A", {"28.12.2005", true});
  EXPECT_EQ(termine(), "28.12. A J 7; 11.01. A N 7; 25.01. A N 7");
  EXPECT_EQ(anzahl("Termine", "Datum >= #01/01/2006# and Erledigt = 'N'"), 2);
}

TEST_F(Reihenerledigung, TagDerArbeitImNaechstenJahrGibtKeineReihe) {
  const qint64 id = termin(tag(6, 15), "A", 7);
  termin(tag(6, 29), "A", 7);
  option("A", "01.01", 14, "31.12");
  TerminErledigen(db(), id, "J", "A", {"02.01.2007", true});
  EXPECT_EQ(termine(), "02.01. A J 7");
}

TEST_F(Reihenerledigung, ZeitraumUeberNeujahrEndetMitSeinemEndeInDiesemJahr) {
  option("A", "01.10", 14, "28.02");
  const qint64 januar = termin(tag(1, 8), "A", 7);
  TerminErledigen(db(), januar, "J", "A", {"10.01.2006", true});
  EXPECT_EQ(termine(), "10.01. A J 7; 24.01. A N 7; 07.02. A N 7; 21.02. A N 7");
  const qint64 november = termin(tag(11, 20), "A", 8);
  TerminErledigen(db(), november, "J", "A", {"20.11.2006", true});
  EXPECT_EQ(termine("Volk_ID = 8"), "20.11. A J 8");
}

TEST_F(Reihenerledigung, EndeAm29FebruarGiltAuchImJahrOhneDiesenTag) {
  const qint64 id = termin(tag(1, 20), "A", 7);
  option("A", "01.01", 14, "29.02");
  TerminErledigen(db(), id, "J", "A", {"20.01.2006", true});
  EXPECT_EQ(termine("Erledigt = 'N'"), "03.02. A N 7; 17.02. A N 7");
}

TEST_F(Reihenerledigung, AllgemeinerTerminMitReiheLoeschtSeineOffenenBruederOhneVolk) {
  const qint64 id = termin(tag(6, 15), "Schau");
  termin(tag(6, 29), "Schau");
  termin(tag(6, 29), "Schau", 7);
  TerminErledigen(db(), id, "J", "Schau", {"20.06.2006", true});
  EXPECT_EQ(termine(), "20.06. Schau J 0; 29.06. Schau N 7");
}

TEST_F(Reihenerledigung, LeereVolkIdHatKeineReihe) {
  const qint64 id = termin(tag(6, 15), "A", QVariant());
  termin(tag(6, 29), "A", QVariant());
  TerminErledigen(db(), id, "J", "A", {"20.06.2006", true});
  EXPECT_EQ(termine(), "20.06. A J ; 29.06. A N ");
}

TEST_F(Reihenerledigung, VerschwundeneZeileTutNichts) {
  termin(tag(6, 29), "A", 7);
  TerminErledigen(db(), 4711, "J", "A", {"20.06.2006", true});
  EXPECT_EQ(termine(), "29.06. A N 7");
}

}  // namespace
