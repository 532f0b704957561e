#pragma once

// A small operation on which every shape of statement that the program gives to its database is
// run. One row a shape; where the result says something, it stands beside it.

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <optional>
#include <vector>

#include "platform/database/Datenbank.h"
#include "platform/database/Probebank.h"

struct Fall {
  const char* name;
  QString anweisung;
  // The rows expected; none given: it only has to run.
  std::optional<QStringList> zeilen = std::nullopt;
};

inline QStringList zeilen(std::initializer_list<const char*> liste) {
  QStringList ergebnis;
  for (const char* zeile : liste) ergebnis += QString(zeile);
  return ergebnis;
}

inline const QStringList buchungstabellen = {
    "Stockkarte", "Honigernte",      "Wachsernte", "Pollenernte",    "Sonstigeernte", "Arbeiten",
    "Wanderung",  "Gewichtsmessung", "Behandlung", "Königinwechsel", "Notizen"};

inline constexpr const char* listenfelder =
    "select Volknr, Volkname, Volkstärke, Magazine, Wabenanzahl, Honigwaben, Brutwaben, "
    "Pollenwaben, Drohnenwaben, Leerwaben, Mittelwände, Futterwaben, HW_verdeckelt, BW_Stift, "
    "BW_offen, BW_verdeckelt, Brutstand, Wabensitz, Sanftmut, Schwarmtrieb, Frühjahrsentw, "
    "Winterfestigkeit, Varroabefall, Belagert, Belegstelle, Zuchtbuchnr, L_Honigernte, "
    "L_Honigmenge_kg, Honigmenge_Gesamt, L_Behandlung, Standort, Königin_Nr, Königin_Farbe, "
    "Königin_Zugangsdatum, Futtervorrat_eigen, Futtervorrat_flüssig, Futtervorrat_Teig, Beuteart, "
    "Waben_je_Magazin, Bienenrasse, Volk_Zugangsdatum, Volk_Herkunft, Volk_Einkaufspreis, "
    "Akt_im_Bestand, Abgangsdatum, Abgangsgrund, Abnehmer, Volk_Verkaufspreis, Selektiert, ID "
    "from Bienenvolk";

inline constexpr const char* stockkartenfelder =
    "select Datum, Volkstärke, Brutstand, Wabensitz, Sanftmut, Schwarmtrieb, Frühjahrsentw, "
    "Winterfestigkeit, Varroabefall, Belagert, Magazine, Waben, Honigwaben, Brutwaben, "
    "Pollenwaben, Drohnenwaben, Leerwaben, Mittelwände, Futterwaben, HW_verdeckelt, BW_Stift, "
    "BW_offen, BW_verdeckelt, Futter_flüssig_l, Futter_Teig_kg, Eigener_Futtervorrat, Volk_ID, "
    "Bemerkung, ID from Stockkarte";

// Colonies 1 to 3 are held, 4 has left, of 5 nobody ever said.
inline constexpr const char* betrieb[] = {
    "insert into Bienenvolk(Volknr, Volkname, Standort, Akt_im_Bestand, Wabenanzahl, Mittelwände, "
    "Volk_Zugangsdatum, Selektiert, Beuteart, Abgangsgrund, Abnehmer) values "
    "('1', 'Anna', 'Wald', 'X', 10, 2, #12/24/2005#, 'X', 'Zander', '', ''), "
    "('2', 'Berta', 'Wald', 'X', 10, 3, #06/01/2006#, '', 'Dadant', '', ''), "
    "('10', 'Carla', 'Wiese', 'X', 8, Null, Null, '', 'zander', '', ''), "
    "('4', 'Dora', 'Wiese', '', 12, 0, #01/01/2004#, '', 'Zander', 'verkauft', 'Meier'), "
    "('5', 'Emma', Null, Null, Null, Null, Null, Null, Null, 'Winter', Null)",
    "insert into Honigernte(Datum, Menge_kg, Honigsorte, Qualität, Kosten, Honig_Wert, Zeit_h, "
    "Charge, Bemerkung, Volk_ID) values "
    "(#06/01/2006#, 10, 'Raps', 'gut', 5, 50, 1, 'R1', '', 1), "
    "(#07/15/2006#, 20, 'Linde', 'gut', 7, 120, 2, 'L1', 'nass', 1), "
    "(#07/15/2006#, 12.5, 'Linde', 'sehr gut', 3, 75, 0.5, 'L1', '', 2), "
    "(#06/01/2005#, 8, 'Raps', 'gut', 4, 40, 1, '', '', 1), "
    "(#06/01/2006#, 100, 'Wald', '', 0, 0, 0, '', '', 99)",
    "insert into Wanderung(Datum, Standort, Standortprämie, Prämie_erhalten, Kosten, Volk_ID) "
    "values "
    "(#05/01/2006#, 'Raps am Berg', 20, 'J', 6, 1), (#07/01/2006#, 'Wald', 30, 'N', 6, 1), "
    "(#07/01/2006#, 'Wald', 25, 'J', 6, 2)",
    "insert into Arbeiten(Datum, Arbeitsart, Zeit_h, Kosten, Volk_ID) values "
    "(#04/01/2006#, 'Durchsicht', 1.5, 3, 1), (#04/02/2006#, 'Durchsicht', 0.5, 1, 2), "
    "(#04/01/2005#, 'Einwinterung', 2, 4, 1)",
    "insert into Stockkarte(Datum, Volkstärke, Brutstand, Waben, Volk_ID) values "
    "(#03/01/2006#, 2.5, 3, 8, 1), (#04/01/2006#, 3.5, 4, 10, 1), (#04/01/2006#, 1, 2, 9, 1)",
    "insert into Behandlung(Datum, Behandlungsart, Mittel, Menge_g, Anz_Varroen, Volk_ID) values "
    "(#08/01/2006#, 'Varroa', 'Ameisensäure', 20, 30, 1), "
    "(#12/20/2006#, 'Varroa', 'Oxalsäure', 30, Null, 1)",
    "insert into Termine(Datum, Termin, Erledigt, Volk_ID) values "
    "(#05/01/2006#, 'Schwarmkontrolle', 'N', 1), (#05/01/2006#, 'Schwarmkontrolle', 'J', 2), "
    "(#05/10/2006#, 'Schwarmkontrolle', 'N', 2), (#08/01/2006#, 'Waben schmelzen', 'N', 0), "
    "(#05/01/2006#, 'Fütterung', 'N', 4)",
    "insert into Arbeitsplanoptionen(Arbeitsart, Startzeitraum, Wiederholungsfrist_Tage, "
    "Endzeitraum, Volkabhängig, Auto_erledigt_Buchung, Auto_erledigt_Arbeitsart) values "
    "('Schwarmkontrolle', '01.05', 9, '30.06', 'J', '', ''), "
    "('Honigernte', '01.06', 14, '31.08', 'J', 'Honigernte', '')",
    "insert into Pflanzen(Pflanze, Weidezeit_von, Weidezeit_bis, Nektarstufe, Pollenstufe) values "
    "('Efeu', '15.09.2006', '20.11.2006', 5, 2)",
    "insert into Pflanzen(Pflanze, Weidezeit_von, Weidezeit_bis, Nektarstufe, Pollenstufe) values "
    "('Haselnuss', '15.01.2006', '10.03.2006', 0, 4)",
    "insert into Standorte(Standort, Zusatzortshinweis, Max_Völker, PTop, PLeft) values "
    "('Wiese', '', 5, 250, 0), ('Wald', 'am Bach', 10, 10, 20)",
    "insert into Standorte_Pflanzen(Pflanze, Entfernung_m, Proz_Anteil, Standort_Kennung) values "
    "('Haselnuss', 100, 60, 2), ('Efeu', 300, 40, 2), ('efeu', 50, 10, 1)",
    "insert into Honiglager(Datum, Produkt, Zugang, Abgang, Charge, EVK_ID) values "
    "(#06/01/2006#, 'Raps', 10, 0, 'R1', 0), (#07/15/2006#, 'Linde', 32.5, 0, 'L1', 0), "
    "(#08/01/2006#, 'Raps', 0, 4, 'R1', 1), (#08/02/2006#, 'raps', 5, 0, 'R2', Null)",
    "insert into Verkauf(Datum, Produkt, Qualität, Abnehmer, Menge, Einheit, Einnahmen, Charge) "
    "values (#08/01/2006#, 'Raps', 'gut', 'Meier', 4, 'kg', 32, 'R1'), "
    "(#08/05/2006#, 'Kerzen', '', 'Schulz', 3, 'St', 9, ''), "
    "(#09/01/2005#, 'Raps', 'gut', 'Meier', 1, 'kg', 8, '')",
    "insert into Einkauf(Datum, Produkt, Lieferant, Menge, Einheit, Ausgaben) values "
    "(#03/01/2006#, 'Gläser', 'Glashaus', 100, 'St', 40)",
    "insert into Kunden(Kundenname, Lieferant, Ort) values ('Meier', 'N', 'Ulm'), "
    "('Glashaus', 'J', 'Bonn'), ('Schulz', 'N', 'ulm')",
    "insert into Lagerartikel(Artikel, Bestand, Mindestbestand) values ('Zucker', 5, 10), "
    "('Gläser', 10, 10), ('Deckel', 0, 0)",
    "insert into Lagerbuchungen(Datum, Artikel, Eingang, Ausgang, An_Von) values "
    "(#03/01/2006#, 'Zucker', 20, 0, 'Glashaus'), (#09/01/2006#, 'Zucker', 0, 15, ''), "
    "(#09/01/2006#, 'Gläser', 10, 0, Null)",
    "insert into Wetterdaten(Datum, Wetter, Temperatur, Niederschlag_mm, Windrichtung, Windstärke) "
    "values (#05/01/2006#, 'sonnig', 20, 0, 'W', 2), (#05/02/2006#, 'Regen', 11, 12, 'W', 5), "
    "(#05/03/2005#, 'sonnig', 23, Null, 'SO', 1)",
    "insert into Zuchtbuch(Jahr, Zuchtbuchnr, Rasse, Sanftmut, LJ1_Summe) values "
    "('2005', '7', 'Carnica', 3, 20), ('2006', '12', 'Carnica', 4, Null), "
    "('2006', '3', 'Buckfast', 2, 30)",
    "insert into DIBVerschluss(Verschlussnr, Charge, Kunde) values ('A00002', '', ''), "
    "('A00001', 'R1', 'Meier')",
    "insert into Inventar(Objekt, Kaufpreis, Erstes_Jahr, Letztes_Jahr) values "
    "('Schleuder', 400, 2005, 2010), ('Auto', 9000, 2000, 2006)",
};

class Anweisungsprobe : public testing::Test {
 protected:
  Anweisungsprobe() {
    bank.legeTabellenAn();
    for (const char* anweisung : betrieb) bank.lies(anweisung);
    Funktionen::setzeUhr([] { return QDateTime(QDate(2007, 1, 15), QTime(12, 0)); });
  }
  ~Anweisungsprobe() override { Funktionen::setzeUhr({}); }

  void prüfe(const std::vector<Fall>& fälle) {
    for (const Fall& fall : fälle) {
      try {
        const QStringList ergebnis = bank.lies(fall.anweisung);
        if (fall.zeilen) {
          EXPECT_EQ(ergebnis.join('\n').toStdString(), fall.zeilen->join('\n').toStdString())
              << fall.name << ": " << fall.anweisung.toStdString();
        }
      } catch (const Datenbankfehler& fehler) {
        ADD_FAILURE() << fall.name << ": " << fehler.what();
      }
    }
  }

  Probebank bank;
};
