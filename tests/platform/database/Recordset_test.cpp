#include "platform/database/Testdatenbank.h"

namespace {
QString s(const char* text) { return QString::fromUtf8(text); }
}  // namespace

class RecordsetTest : public Testdatenbank {
 protected:
  void dreiVölker() {
    volk(s("Anna"));
    volk(s("Berta"));
    volk(s("Cäsar"));
  }
  Recordset alle() { return db.OpenRecordset(s("select * from Bienenvolk order by ID")); }
  static QStringList namen(Recordset& rs) {
    QStringList liste;
    for (rs.MoveFirst(); !rs.AmEnde(); rs.MoveNext()) liste << rs.Wert(s("Volkname")).toString();
    return liste;
  }
};

TEST_F(RecordsetTest, RecordCountNullHeißtKeineZeilen) {
  Recordset rs = alle();
  EXPECT_EQ(rs.RecordCount(), 0);
  EXPECT_TRUE(rs.AmEnde());
  rs.MoveFirst();
  rs.MoveLast();
  rs.MoveNext();
  EXPECT_TRUE(rs.AmEnde());
  ERWARTE_FEHLER(rs.Wert(s("Volkname")), Allgemein, "keinen aktuellen Datensatz");
  ERWARTE_FEHLER(rs.Edit(), Allgemein, "keinen aktuellen Datensatz");
  ERWARTE_FEHLER(rs.Delete(), Allgemein, "keinen aktuellen Datensatz");
}

TEST_F(RecordsetTest, DieErsteZeileIstGleichAktuell) {
  dreiVölker();
  Recordset rs = alle();
  EXPECT_EQ(rs.RecordCount(), 3);
  EXPECT_EQ(rs.Wert(s("Volkname")).toString(), s("Anna"));
  EXPECT_EQ(namen(rs), (QStringList{s("Anna"), s("Berta"), s("Cäsar")}));
  rs.MoveLast();
  EXPECT_EQ(rs.Wert(s("Volkname")).toString(), s("Cäsar"));
  EXPECT_FALSE(rs.AmEnde());
  rs.MoveNext();
  EXPECT_TRUE(rs.AmEnde());
  rs.MoveNext();
  EXPECT_TRUE(rs.AmEnde());
}

TEST_F(RecordsetTest, FelderMitNameUndMitNummer) {
  dreiVölker();
  Recordset rs = alle();
  EXPECT_EQ(rs.FieldCount(), 9);
  EXPECT_EQ(rs.Fields(0).Name(), s("Volkname"));
  EXPECT_EQ(rs.Fields(0).Type(), Feldtyp::Text);
  EXPECT_EQ(rs.Fields(0).Size(), 20);
  EXPECT_EQ(rs.Fields(0).Value().toString(), s("Anna"));
  EXPECT_EQ(rs.Fields(s("VOLKNAME")).Value().toString(), s("Anna"));
  EXPECT_EQ(rs[s("ID")].Value().toLongLong(), 1);
  EXPECT_EQ(rs.Fields(8).Type(), Feldtyp::Zähler);
  ERWARTE_FEHLER(rs.Fields(s("Gewicht")), Anweisung, "Gewicht");
  ERWARTE_FEHLER(rs.Fields(9), Anweisung, "9");
  ERWARTE_FEHLER(rs.Fields(-1), Anweisung, "-1");
}

TEST_F(RecordsetTest, FindFirstSuchtNachNummerUndNachText) {
  dreiVölker();
  Recordset rs = alle();
  rs.FindFirst(s("ID = 3"));
  EXPECT_FALSE(rs.NoMatch());
  EXPECT_EQ(rs.Wert(s("Volkname")).toString(), s("Cäsar"));
  rs.FindFirst(s("Volkname = 'BERTA'"));
  EXPECT_FALSE(rs.NoMatch());
  EXPECT_EQ(rs.Wert(s("ID")).toInt(), 2);
  rs.FindFirst(s("[volkname]='Anna' and ID=1"));
  EXPECT_FALSE(rs.NoMatch());
  EXPECT_EQ(rs.Wert(s("ID")).toInt(), 1);
}

TEST_F(RecordsetTest, OhneTrefferBleibtDieAktuelleZeile) {
  dreiVölker();
  Recordset rs = alle();
  rs.MoveNext();
  rs.FindFirst(s("ID = 99"));
  EXPECT_TRUE(rs.NoMatch());
  EXPECT_EQ(rs.Wert(s("Volkname")).toString(), s("Berta"));
  rs.FindFirst(s("Volkname = 'Berta' and ID = 1"));
  EXPECT_TRUE(rs.NoMatch());
}

TEST_F(RecordsetTest, FindFirstInEinerLeerenMengeHatKeinenTreffer) {
  Recordset rs = alle();
  rs.FindFirst(s("ID = 1"));
  EXPECT_TRUE(rs.NoMatch());
}

TEST_F(RecordsetTest, FindFirstMitDatumNullUndApostroph) {
  Recordset rs = alle();
  rs.AddNew();
  rs[s("Volkname")] = s("Bär's");
  rs[s("Datum")] = QDate(2006, 2, 5);
  rs.Update();
  volk(s("leer"));
  rs = alle();
  rs.FindFirst(s("Volkname = 'Bär''s'"));
  EXPECT_FALSE(rs.NoMatch());
  rs.FindFirst(s("Datum = '05.02.2006'"));
  EXPECT_FALSE(rs.NoMatch());
  rs.FindFirst(s("Datum = Null"));
  EXPECT_FALSE(rs.NoMatch());
  EXPECT_EQ(rs.Wert(s("Volkname")).toString(), s("leer"));
}

TEST_F(RecordsetTest, EineUnlesbareSuchbedingungIstEinFehler) {
  dreiVölker();
  Recordset rs = alle();
  for (const char* text : {"", "ID", "ID =", "ID = 1 or ID = 2", "ID = 'x", "ID > 1", "= 1"}) {
    ERWARTE_FEHLER(rs.FindFirst(s(text)), Anweisung, "Suchbedingung");
  }
  ERWARTE_FEHLER(rs.FindFirst(s("Gewicht = 1")), Anweisung, "Gewicht");
}

TEST_F(RecordsetTest, AddNewOhneUpdateSchreibtNichts) {
  Recordset rs = alle();
  rs.AddNew();
  rs[s("Volkname")] = s("Anna");
  rs.MoveFirst();
  EXPECT_EQ(rs.RecordCount(), 0);
  EXPECT_EQ(anzahl(), 0);
  ERWARTE_FEHLER(rs.Update(), Anweisung, "AddNew");
  EXPECT_EQ(anzahl(), 0);
}

TEST_F(RecordsetTest, EditOhneUpdateSchreibtNichts) {
  dreiVölker();
  Recordset rs = alle();
  rs.Edit();
  rs[s("Volkname")] = s("Zora");
  EXPECT_EQ(rs.Wert(s("Volkname")).toString(), s("Zora"));
  rs.MoveFirst();
  EXPECT_EQ(rs.Wert(s("Volkname")).toString(), s("Anna"));
  EXPECT_EQ(anzahl(s("where Volkname = 'Zora'")), 0);
}

TEST_F(RecordsetTest, NachUpdateIstDieNeueZeileDieLetzteUndDieAktuelleBleibt) {
  dreiVölker();
  Recordset rs = alle();
  rs.MoveNext();
  rs.AddNew();
  rs[s("Volkname")] = s("Dora");
  rs[s("Wabenanzahl")] = 11;
  rs.Update();
  EXPECT_EQ(rs.RecordCount(), 4);
  EXPECT_EQ(rs.Wert(s("Volkname")).toString(), s("Berta"));
  rs.MoveLast();
  EXPECT_EQ(rs.Wert(s("Volkname")).toString(), s("Dora"));
  EXPECT_EQ(rs.Wert(s("Wabenanzahl")).toInt(), 11);
  EXPECT_EQ(rs.Wert(s("ID")).toInt(), 4);
  EXPECT_EQ(db.LetzteID(), 4);
  EXPECT_FALSE(rs.Wert(s("Datum")).isValid());
  rs.FindFirst(s("Volkname = 'dora'"));
  EXPECT_FALSE(rs.NoMatch());
}

TEST_F(RecordsetTest, EineNeueZeileOhneZuweisungIstLeer) {
  Recordset rs = alle();
  rs.AddNew();
  rs.Update();
  EXPECT_EQ(rs.RecordCount(), 1);
  EXPECT_EQ(anzahl(s("where Volkname is null")), 1);
}

TEST_F(RecordsetTest, EditÄndertNurDieZugewiesenenFelder) {
  dreiVölker();
  Recordset rs = alle();
  db.Execute(s("update Bienenvolk set Bemerkung = 'von anderswo' where ID = 1"));
  rs.Edit();
  rs[s("Volkname")] = s("Agnes");
  rs.Update();
  EXPECT_EQ(rs.Wert(s("Volkname")).toString(), s("Agnes"));
  EXPECT_EQ(einWert(s("select Volkname from Bienenvolk where ID = 1")).toString(), s("Agnes"));
  EXPECT_EQ(einWert(s("select Bemerkung from Bienenvolk where ID = 1")).toString(),
            s("von anderswo"));
}

TEST_F(RecordsetTest, FelderMitIhremAltenWertWerdenNichtGeschrieben) {
  dreiVölker();
  Recordset rs = alle();
  db.Execute(s("update Bienenvolk set Volkname = 'neuer' where ID = 1"));
  rs.Edit();
  rs[s("Volkname")] = s("Anna");
  rs[s("Jahre")] = 3;
  rs.Update();
  EXPECT_EQ(einWert(s("select Volkname from Bienenvolk where ID = 1")).toString(), s("neuer"));
  EXPECT_EQ(einWert(s("select Jahre from Bienenvolk where ID = 1")).toInt(), 3);
}

TEST_F(RecordsetTest, AndereSchreibungIstEinAndererWert) {
  dreiVölker();
  Recordset rs = alle();
  rs.Edit();
  rs[s("Volkname")] = s("ANNA");
  rs.Update();
  EXPECT_EQ(einWert(s("select Volkname from Bienenvolk where ID = 1")).toString(), s("ANNA"));
}

TEST_F(RecordsetTest, NullLöschtEinFeld) {
  dreiVölker();
  Recordset rs = alle();
  rs.Edit();
  rs[s("Volkname")] = QVariant();
  rs.Update();
  EXPECT_FALSE(rs.Wert(s("Volkname")).isValid());
  EXPECT_EQ(anzahl(s("where Volkname is null")), 1);
}

TEST_F(RecordsetTest, EinGescheitertesUpdateLässtZeileUndEingabeStehen) {
  dreiVölker();
  Recordset rs = alle();
  rs.Edit();
  rs[s("Jahre")] = 5;
  rs[s("Volkname")] = QString(21, u'x');
  ERWARTE_FEHLER(rs.Update(), Wertebereich, "Volkname");
  EXPECT_EQ(anzahl(s("where Jahre = 5")), 0);
  rs[s("Volkname")] = s("kurz");
  rs.Update();
  EXPECT_EQ(anzahl(s("where Jahre = 5 and Volkname = 'kurz'")), 1);
}

TEST_F(RecordsetTest, EineAngehängteZeileLässtSichÄndernUndLöschen) {
  Recordset rs = alle();
  rs.AddNew();
  rs[s("Volkname")] = s("Anna");
  rs.Update();
  rs.MoveLast();
  rs.Edit();
  rs[s("Volkname")] = s("Agnes");
  rs.Update();
  EXPECT_EQ(rs.Wert(s("Volkname")).toString(), s("Agnes"));
  EXPECT_EQ(anzahl(s("where Volkname = 'Agnes'")), 1);
  rs.Delete();
  EXPECT_EQ(rs.RecordCount(), 0);
  EXPECT_EQ(anzahl(), 0);
}

TEST_F(RecordsetTest, NachDeleteIstDieNächsteZeileAktuell) {
  dreiVölker();
  Recordset rs = alle();
  rs.MoveNext();
  rs.Delete();
  EXPECT_EQ(rs.RecordCount(), 2);
  EXPECT_EQ(rs.Wert(s("Volkname")).toString(), s("Cäsar"));
  EXPECT_EQ(namen(rs), (QStringList{s("Anna"), s("Cäsar")}));
  rs.MoveLast();
  rs.Delete();
  EXPECT_TRUE(rs.AmEnde());
  rs.AddNew();
  rs[s("Volkname")] = s("Dora");
  rs.Update();
  EXPECT_EQ(namen(rs), (QStringList{s("Anna"), s("Dora")}));
  EXPECT_EQ(anzahl(), 2);
}

TEST_F(RecordsetTest, EineZeileDieEinAndererGelöschtHatIstEinFehler) {
  dreiVölker();
  Recordset rs = alle();
  db.Execute(s("delete from Bienenvolk where ID = 1"));
  rs.Edit();
  rs[s("Volkname")] = s("Agnes");
  ERWARTE_FEHLER(rs.Update(), Allgemein, "nicht mehr vorhanden");
  ERWARTE_FEHLER(rs.Delete(), Allgemein, "nicht mehr vorhanden");
  EXPECT_EQ(anzahl(), 2);
}

TEST_F(RecordsetTest, DasAbbildBleibtWieEsBeimÖffnenWar) {
  dreiVölker();
  Recordset rs = alle();
  db.Execute(s("delete from Bienenvolk"));
  EXPECT_EQ(namen(rs), (QStringList{s("Anna"), s("Berta"), s("Cäsar")}));
}

TEST_F(RecordsetTest, OhneIdOderMitRechenergebnisWirdNichtGeschrieben) {
  dreiVölker();
  Recordset ohne = db.OpenRecordset(s("select Volkname from Bienenvolk"));
  ERWARTE_FEHLER(ohne.Edit(), Anweisung, "nur gelesen");
  Recordset gruppiert =
      db.OpenRecordset(s("select Volkname, count(*) as Anzahl from Bienenvolk group by Volkname"));
  ERWARTE_FEHLER(gruppiert.AddNew(), Anweisung, "nur gelesen");
  ERWARTE_FEHLER(gruppiert.Delete(), Anweisung, "nur gelesen");
}

TEST_F(RecordsetTest, EinUmbenanntesFeldSchreibtInSeinEigenes) {
  dreiVölker();
  Recordset rs =
      db.OpenRecordset(s("select Bemerkung as Volkname, ID from Bienenvolk where ID = 1"));
  rs.Edit();
  rs[s("Volkname")] = s("ins Memo");
  rs.Update();
  EXPECT_EQ(einWert(s("select Bemerkung from Bienenvolk where ID = 1")).toString(), s("ins Memo"));
  EXPECT_EQ(einWert(s("select Volkname from Bienenvolk where ID = 1")).toString(), s("Anna"));
}

TEST_F(RecordsetTest, DieNummerLässtSichNichtÄndern) {
  dreiVölker();
  Recordset rs = alle();
  rs.Edit();
  rs[s("ID")] = 77;
  ERWARTE_FEHLER(rs.Update(), Anweisung, "ID");
  EXPECT_EQ(anzahl(s("where ID = 77")), 0);
}

TEST_F(RecordsetTest, ZuweisenOhneEditIstEinFehler) {
  dreiVölker();
  Recordset rs = alle();
  ERWARTE_FEHLER(rs[s("Volkname")] = s("Zora"), Anweisung, "Volkname");
}

TEST_F(RecordsetTest, VonFeldZuFeldGehtDerWert) {
  dreiVölker();
  Recordset von = alle();
  Recordset nach = alle();
  nach.AddNew();
  nach[s("Volkname")] = von[s("Volkname")];
  nach.Update();
  EXPECT_EQ(anzahl(s("where Volkname = 'Anna'")), 2);
}

TEST_F(RecordsetTest, NachCloseIstSchluss) {
  dreiVölker();
  Recordset rs = alle();
  rs.Close();
  rs.Close();
  ERWARTE_FEHLER(rs.RecordCount(), Allgemein, "geschlossen");
  ERWARTE_FEHLER(rs.MoveFirst(), Allgemein, "geschlossen");
  ERWARTE_FEHLER(rs.Fields(0), Allgemein, "geschlossen");
}

TEST_F(RecordsetTest, LesenGehtNachDemSchließenDerDatenbankSchreibenNicht) {
  dreiVölker();
  Recordset rs = alle();
  arbeitsbereich.Close();
  EXPECT_EQ(rs.Wert(s("Volkname")).toString(), s("Anna"));
  rs.Edit();
  rs[s("Volkname")] = s("Zora");
  ERWARTE_FEHLER(rs.Update(), Allgemein, "geschlossen");
}

TEST_F(RecordsetTest, KreuztabelleÜberDieAnweisung) {
  for (const auto& [standort, waben] : std::vector<std::pair<const char*, QVariant>>{
           {"Wald", 10}, {"Wald", 10}, {"Wald", 9}, {"Garten", QVariant()}}) {
    db.Execute(
        s("insert into Bienenvolk (Volkname, Wabenanzahl, Akt_im_Bestand) values (?, ?, 'X')"),
        {s(standort), waben});
  }
  Recordset rs = db.OpenRecordset(
      s("transform count(*) select Volkname, count(*) as Völker from Bienenvolk where "
        "Akt_im_Bestand = 'X' group by Volkname pivot Wabenanzahl;"));
  ASSERT_EQ(rs.RecordCount(), 2);
  ASSERT_EQ(rs.FieldCount(), 5);
  EXPECT_EQ(rs.Fields(1).Name(), s("Völker"));
  EXPECT_EQ(rs.Fields(2).Name(), s("<>"));
  EXPECT_EQ(rs.Fields(3).Name(), s("9"));
  EXPECT_EQ(rs.Fields(4).Name(), s("10"));
  EXPECT_EQ(rs.Wert(s("Volkname")).toString(), s("Garten"));
  EXPECT_EQ(rs.Wert(s("Völker")).toInt(), 1);
  EXPECT_EQ(rs.Wert(s("<>")).toInt(), 1);
  EXPECT_FALSE(rs.Wert(s("9")).isValid());
  rs.MoveNext();
  EXPECT_EQ(rs.Wert(s("Völker")).toInt(), 3);
  EXPECT_EQ(rs.Wert(s("9")).toInt(), 1);
  EXPECT_EQ(rs.Wert(s("10")).toInt(), 2);
  ERWARTE_FEHLER(rs.AddNew(), Anweisung, "nur gelesen");
}
