// Closing one appointment, and the rest of its series.

#include <optional>

#include "data/helpers.h"
#include "planning/Starttermine.h"
#include "planning/Terminbestand.h"

namespace {

using namespace Starttermine;

class Reihenerledigung : public Terminbestand {};

// The work plan option of the series.
struct Zeitraum {
  const char* von;
  int frist;
  const char* bis;
};

// Open appointments "A" of colony 7; the first of them is closed.
struct Reihenfall {
  const char* name;
  QStringList offen;  // "dd.mm." of 2006
  std::optional<Zeitraum> option;
  const char* kennzeichen;
  Erledigung erledigung;
  const char* danach;  // "dd.mm. flag; ..."
};

void PrintTo(const Reihenfall& fall, std::ostream* aus) { *aus << fall.name; }

class Reihe : public Reihenerledigung, public testing::WithParamInterface<Reihenfall> {};

TEST_P(Reihe, NachDerErledigung) {
  const Reihenfall& fall = GetParam();
  QList<qint64> ids;
  for (const QString& geplant : fall.offen) ids << termin(DatumLesen(geplant + "2006"), "A", 7);
  if (fall.option) option("A", fall.option->von, fall.option->frist, fall.option->bis);
  TerminErledigen(db(), ids.first(), fall.kennzeichen, "A", fall.erledigung);
  QString danach = fall.danach;
  danach.replace(" J", " A J 7").replace(" N", " A N 7");
  EXPECT_EQ(termine(), danach.toStdString());
}

constexpr bool mitReihe = true;

// The period ends in this year, whatever the year of the work.
// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Fälle, Reihe,
    testing::Values(
        Reihenfall{"KennzeichenNLaesstDenGeplantenTagUndDieReihe",
            {"10.06.", "24.06."}, Zeitraum{"01.06", 14, "31.08"}, "N", {"20.06.2006", mitReihe},
            "10.06. J; 24.06. N"},
        Reihenfall{"KennzeichenJSetztDenTagDerArbeit",
            {"10.06.", "24.06."}, Zeitraum{"01.06", 14, "31.08"}, "J", {"20.06.2006", false},
            "20.06. J; 24.06. N"},
        Reihenfall{"KeinDatumGiltAlsKennzeichenN",
            {"10.06.", "24.06."}, Zeitraum{"01.06", 14, "31.08"}, "J", {"31.06.2006", mitReihe},
            "10.06. J; 24.06. N"},
        Reihenfall{"DieReiheLaeuftAbDemTagDerArbeitBisZumEndeDesZeitraums",
            {"15.06.", "29.06.", "13.07."},
            Zeitraum{"01.06", 14, "31.07"}, "J", {"20.06.2006", mitReihe},
            "20.06. J; 04.07. N; 18.07. N"},
        Reihenfall{"DerLetzteTagDesZeitraumsGehoertZurNeuenReihe",
            {"15.06."}, Zeitraum{"01.06", 14, "18.07"}, "J", {"20.06.2006", mitReihe},
            "20.06. J; 04.07. N; 18.07. N"},
        Reihenfall{"OhneOptionSindDieOffenenWegUndNichtsErsetztSie",
            {"15.06.", "29.06."}, std::nullopt, "J", {"20.06.2006", mitReihe}, "20.06. J"},
        Reihenfall{"FristNullErsetztNichts",
            {"15.06.", "29.06."}, Zeitraum{"01.06", 0, "31.08"}, "J", {"20.06.2006", mitReihe},
            "20.06. J"},
        Reihenfall{"AmLetztenTagDesZeitraumsErledigtBleibtKeinWeitererTermin",
            {"15.06.", "29.06."}, Zeitraum{"01.06", 14, "20.06"}, "J", {"20.06.2006", mitReihe},
            "20.06. J"},
        Reihenfall{"LeeresEndeDesZeitraumsGibtKeineReihe",
            {"15.06."}, Zeitraum{"01.06", 14, ""}, "J", {"20.06.2006", mitReihe},
            "20.06. J"},
        Reihenfall{"TagDerArbeitImNaechstenJahrGibtKeineReihe",
            {"15.06.", "29.06."}, Zeitraum{"01.01", 14, "31.12"}, "J", {"02.01.2007", mitReihe},
            "02.01. J"},
        Reihenfall{"ZeitraumUeberNeujahrEndetImJanuarMitSeinemEnde",
            {"08.01."}, Zeitraum{"01.10", 14, "28.02"}, "J", {"10.01.2006", mitReihe},
            "10.01. J; 24.01. N; 07.02. N; 21.02. N"},
        Reihenfall{"ZeitraumUeberNeujahrGibtImNovemberKeineReihe",
            {"20.11."}, Zeitraum{"01.10", 14, "28.02"}, "J", {"20.11.2006", mitReihe},
            "20.11. J"},
        Reihenfall{"EndeAm29FebruarGiltAuchImJahrOhneDiesenTag",
            {"20.01."}, Zeitraum{"01.01", 14, "29.02"}, "J", {"20.01.2006", mitReihe},
            "20.01. J; 03.02. N; 17.02. N"}),
    [](const auto& fall) { return std::string(fall.param.name); });
// clang-format on

TEST_F(Reihenerledigung, NurDieOffenenDerselbenReiheDesselbenVolkesGehen) {
  const qint64 id = termin(tag(6, 15), "A", 7);
  termin(tag(6, 1), "A", 7, "J");
  termin(tag(6, 29), "A", 8);
  termin(tag(6, 29), "B", 7);
  termin(QDate(2007, 6, 29), "A", 7);
  TerminErledigen(db(), id, "J", "A", {"20.06.2006", true});
  EXPECT_EQ(termine(), "20.06. A J 7; 01.06. A J 7; 29.06. A N 8; 29.06. B N 7");
}

// The period ends in this year, whatever the year of the work.
TEST_F(Reihenerledigung, TagDerArbeitImVorjahrFührtDieReiheBisZumEndeInDiesemJahr) {
  const qint64 id = termin(tag(1, 5), "A", 7);
  option("A", "01.01", 14, "31.01");
  TerminErledigen(db(), id, "J", "A", {"28.12.2005", true});
  EXPECT_EQ(termine(), "28.12. A J 7; 11.01. A N 7; 25.01. A N 7");
  EXPECT_EQ(anzahl("Termine", "Datum >= #01/01/2006# and Erledigt = 'N'"), 2);
}

TEST_F(Reihenerledigung, AllgemeinerTerminMitReiheLöschtSeineOffenenBrüderOhneVolk) {
  const qint64 id = termin(tag(6, 15), "Schau");
  termin(tag(6, 29), "Schau");
  termin(tag(6, 29), "Schau", 7);
  TerminErledigen(db(), id, "J", "Schau", {"20.06.2006", true});
  EXPECT_EQ(termine(), "20.06. Schau J 0; 29.06. Schau N 7");
}

TEST_F(Reihenerledigung, LeereVolkIdHatKeineReihe) {
  option("A", "01.06", 14, "31.08");
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
