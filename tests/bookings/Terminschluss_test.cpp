// Which appointments a booking closes.
#include "Bestand.h"

namespace {

class Terminschluss : public Bestand {
 protected:
  static void option(const QString& arbeitsart, const QString& buchungstabelle,
                     const QString& arbeit = "") {
    schreibe(
        "insert into Arbeitsplanoptionen (Arbeitsart, Auto_erledigt_Buchung, "
        "Auto_erledigt_Arbeitsart) values (?, ?, ?)",
        {arbeitsart, buchungstabelle, arbeit});
  }
  static void termin(const QString& text, QDate datum, int volk = 1) {
    schreibe("insert into Termine (Datum, Termin, Erledigt, Volk_ID) values (?, ?, 'N', ?)",
             {datum, text, volk});
  }
  // The flags of all appointments in the order they were made.
  static QString erledigt() { return spalte("select Erledigt from Termine order by ID"); }
};

const QDate Juni5(2026, 6, 5);

}  // namespace

TEST_F(Terminschluss, NurBisZumTagDerBuchung) {
  option("Varroa", "Behandlung");
  termin("Varroa", Juni5.addDays(-1));
  termin("Varroa", Juni5);
  termin("Varroa", Juni5.addDays(1));
  neu(buchung(8, "05.06.2026", {}));
  EXPECT_EQ(erledigt(), "J|J|N");
}

TEST_F(Terminschluss, NurBeimGebuchtenVolkNieVolkunabhängige) {
  option("Varroa", "Behandlung");
  termin("Varroa", Juni5, 1);
  termin("Varroa", Juni5, 2);
  termin("Varroa", Juni5, 0);
  neu(buchung(8, "05.06.2026", {}), "1");
  EXPECT_EQ(erledigt(), "J|N|N");
}

TEST_F(Terminschluss, NurDieTermineDerOption) {
  option("Varroa", "Behandlung");
  option("Schleudern", "Honigernte");
  termin("Varroa", Juni5);
  termin("Schleudern", Juni5);
  termin("anderes", Juni5);
  neu(buchung(8, "05.06.2026", {}));
  EXPECT_EQ(erledigt(), "J|N|N");
}

TEST_F(Terminschluss, MehrereOptionenEinerBuchung) {
  option("Sommer", "Behandlung");
  option("Winter", "Behandlung");
  termin("Sommer", Juni5);
  termin("Winter", Juni5);
  neu(buchung(8, "05.06.2026", {}));
  EXPECT_EQ(erledigt(), "J|J");
}

TEST_F(Terminschluss, JederBuchungstypSchließtDieSeinen) {
  for (int art = 0; art <= 10; ++art) {
    const QString tabelle = buchungstyp(art).tabelle;
    schreibe("delete from Termine");
    option("T" + QString::number(art), tabelle);
    termin("T" + QString::number(art), Juni5);
    neu(buchung(art, "05.06.2026", {}));
    EXPECT_EQ(erledigt(), "J") << tabelle.toStdString();
  }
}

TEST_F(Terminschluss, ArbeitsartSchließtDieOptionDieSieNennt) {
  option("Drohnenbrut", "", "Drohnen schneiden");
  option("Füttern", "", "Zuckerwasser geben");
  termin("Drohnenbrut", Juni5);
  termin("Füttern", Juni5);
  neu(buchung(5, "05.06.2026", {{1, "drohnen schneiden"}}));
  EXPECT_EQ(erledigt(), "J|N");
}

TEST_F(Terminschluss, TabelleUndArbeitsartZusammen) {
  option("Durchsicht", "Arbeiten");
  option("Drohnenbrut", "", "Schneiden");
  termin("Durchsicht", Juni5);
  termin("Drohnenbrut", Juni5);
  neu(buchung(5, "05.06.2026", {{1, "Schneiden"}}));
  EXPECT_EQ(erledigt(), "J|J");
}

TEST_F(Terminschluss, LeereArbeitsartSchließtNichtDieOptionenOhneArbeitsart) {
  option("Varroa", "Behandlung", "");
  termin("Varroa", Juni5);
  neu(buchung(5, "05.06.2026", {{1, ""}}));
  neu(buchung(5, "05.06.2026", {{1, "  "}}));
  EXPECT_EQ(erledigt(), "N");
}

TEST_F(Terminschluss, NurArbeitenFragtNachDerArbeitsart) {
  option("Raps", "", "Rapsfeld");
  termin("Raps", Juni5);
  neu(buchung(6, "05.06.2026", {{1, "Rapsfeld"}}));
  EXPECT_EQ(erledigt(), "N");
}

TEST_F(Terminschluss, ApostrophInDerArbeitsart) {
  option("Anna`s Tag", "", "Anna`s Stock");
  termin("Anna`s Tag", Juni5);
  neu(buchung(5, "05.06.2026", {{1, "Anna's Stock"}}));
  EXPECT_EQ(erledigt(), "J");
}

TEST_F(Terminschluss, OptionMitApostrophWirdWieGelesenVerglichen) {
  option(" Anna's Tag ", "Arbeiten");
  termin("Anna`s Tag", Juni5);
  neu(buchung(5, "05.06.2026", {{1, "a"}}));
  EXPECT_EQ(erledigt(), "J");
}

TEST_F(Terminschluss, ÄndernSchließtZumNeuenDatumUndÖffnetNichts) {
  option("Varroa", "Behandlung");
  termin("Varroa", Juni5);
  termin("Varroa", Juni5.addDays(10));
  neu(buchung(8, "05.06.2026", {}));
  ASSERT_EQ(erledigt(), "J|N");
  Buchung später = buchung(8, "20.06.2026", {});
  BuchungSpeichern(db(), später, "1", "1", m_kontext);
  EXPECT_EQ(erledigt(), "J|J");
  Buchung früher = buchung(8, "01.01.2026", {});
  BuchungSpeichern(db(), früher, "1", "1", m_kontext);
  EXPECT_EQ(erledigt(), "J|J");
}

TEST_F(Terminschluss, LöschenLässtSieErledigt) {
  option("Varroa", "Behandlung");
  termin("Varroa", Juni5);
  neu(buchung(8, "05.06.2026", {}));
  schreibe("delete from Behandlung");
  EXPECT_EQ(erledigt(), "J");
}

TEST_F(Terminschluss, LaufSchließtBeiJedemVolk) {
  option("Varroa", "Behandlung");
  for (const int volk : {1, 2, 3}) termin("Varroa", Juni5, volk);
  lauf(buchung(8, "05.06.2026", {}), {"1", "3"});
  EXPECT_EQ(erledigt(), "J|N|J");
}
