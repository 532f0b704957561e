// The stock cards of the sample operation, read in one go, beside the way with one statement a
// colony and one for each inspection before.

#include "data/helpers.h"
#include "evaluations/Probelauf.h"
#include "evaluations/Stockkarten.h"
#include "examples/Betriebsfall.h"
#include "platform/database/Recordset.h"

namespace {

class Stockkartenvergleich : public Betriebsfall {
 protected:
  void SetUp() override { standard(); }

  struct Spalte {
    const char* feld;
    int stellen;
    int breite;
  };
  static constexpr Spalte Spalten[] = {{"Volkstärke", 1, 4},
                                       {"Brutstand", 1, 4},
                                       {"Wabensitz", 1, 4},
                                       {"Sanftmut", 1, 4},
                                       {"Schwarmtrieb", 1, 4},
                                       {"Frühjahrsentw", 1, 4},
                                       {"Winterfestigkeit", 1, 4},
                                       {"Varroabefall", 1, 4},
                                       {"Belagert", 1, 4},
                                       {"Magazine", 0, 3},
                                       {"Waben", 0, 3},
                                       {"Honigwaben", 0, 3},
                                       {"Brutwaben", 0, 3},
                                       {"Pollenwaben", 0, 3},
                                       {"Drohnenwaben", 0, 3},
                                       {"Leerwaben", 0, 3},
                                       {"Futterwaben", 0, 3},
                                       {"Mittelwände", 0, 3},
                                       {"HW_verdeckelt", 0, 4},
                                       {"BW_Stift", 0, 4},
                                       {"BW_offen", 0, 4},
                                       {"BW_verdeckelt", 0, 4},
                                       {"Futter_flüssig_l", 1, 4},
                                       {"Futter_Teig_kg", 1, 4},
                                       {"Eigener_Futtervorrat", 1, 4}};

  static QString änderung(Recordset& neu, const QVariant& id) {
    Recordset alt = DB.OpenRecordset("select * from Stockkarte where ID = " + id.toString());
    QString zeile =
        QString(10, ' ') + '|' + TextLinks(TextLesen(neu.Fields("Datum").Value()), 10) + '|';
    for (const Spalte& s : Spalten) {
      const double wert =
          ZahlLesen(neu.Fields(s.feld).Value()) - ZahlLesen(alt.Fields(s.feld).Value());
      const int plus = QString(s.feld) == "Mittelwände" ? 0 : 1;
      // Differences of short decimals, without the noise of the subtraction.
      zeile += ZahlFormatBreite(QString::number(wert, 'f', 6), s.stellen, s.breite, plus) + '|';
    }
    return zeile + TextLesen(neu.Fields("Bemerkung").Value());
  }

  static QString voll(Recordset& satz, const QString& volknr) {
    QString zeile =
        TextLinks(volknr, 10) + '|' + TextLinks(TextLesen(satz.Fields("Datum").Value()), 10) + '|';
    for (const Spalte& s : Spalten)
      zeile +=
          ZahlFormatBreite(ZahlLesen(satz.Fields(s.feld).Value()), s.stellen, s.breite, 0) + '|';
    return zeile + TextLesen(satz.Fields("Bemerkung").Value());
  }

  static QStringList nachBuchstaben(const Auswertung::Eingaben& e) {
    QStringList zeilen;
    Recordset völker =
        DB.OpenRecordset("select Volknr, Volkname, ID from Bienenvolk order by Volknr");
    for (; !völker.AmEnde(); völker.MoveNext()) {
      QString anweisung = "select";
      if (e.wahl("optibuch") == 2) anweisung += " top 1";
      anweisung += " * from Stockkarte where Volk_ID = " + völker.Fields("ID").Value().toString();
      if (e.wahl("optibuch") == 1)
        anweisung += " and Datum >= " + SqlDatum(e.text("tdat", 0)) +
                     " and Datum <= " + SqlDatum(e.text("tdat", 1));
      Recordset satz = DB.OpenRecordset(anweisung + " order by Datum");
      const int anzahl = satz.RecordCount();
      QVariant davor;
      for (int n = 1; n <= anzahl; ++n, satz.MoveNext()) {
        if (e.an("konseparat") && n != 1) zeilen += änderung(satz, davor);
        if (n == 1 || !e.an("konseparat") || n == anzahl)
          zeilen += voll(satz, n == 1 ? TextLesen(völker.Fields("Volknr").Value()) : QString());
        davor = satz.Fields("ID").Value();
      }
      if (anzahl > 0 && e.an("tierleer", 0)) zeilen += QString();
    }
    return zeilen;
  }
};

TEST_F(Stockkartenvergleich, JedeZeileGleichtDerAusEinzelnenAnweisungen) {
  for (const bool änderungen : {false, true})
    for (int optibuch = 0; optibuch < 3; ++optibuch) {
      Probelauf a(Stockkarten::beschreibung());
      a.e.setAn("konseparat", änderungen);
      a.e.setAn("tierleer", 0, true);
      a.e.setAn("tierleer", 1, false);
      a.e.setAn("kontrennlinie", false);
      a.e.setAn("kondetails", false);
      a.e.setWahl("optibuch", optibuch);
      a.e.setText("tdat", 0, "01.04.2025");
      a.e.setText("tdat", 1, "30.06.2025");
      const QStringList soll = nachBuchstaben(a.e);
      ASSERT_GT(soll.size(), 20);
      EXPECT_EQ(a.drücke("ok").text->mid(4), soll) << änderungen << optibuch;
    }
}

}  // namespace
