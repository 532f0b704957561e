#include "stores/Handel.h"

#include "platform/database/verbindung/Verbindung.h"
#include "stores/Handelsbetrieb.h"

using namespace Verwaltung;
using Handel::Seite;

namespace {

class Geschäft : public Handelsbetrieb {};
class Bewegung : public Handelsbetrieb {};
class Partner : public Handelsbetrieb {};
class BewegungLöschen : public Handelsbetrieb {};
class Lagerzeile : public Handelsbetrieb {};
class Bestandsliste : public Handelsbetrieb {};
class Summenzeile : public Handelsbetrieb {};

// ---- deals ----

TEST_F(Geschäft, EinkaufSchreibtAlleFelder) {
  Texte texte = geschäft(Seite::Einkauf, " Gläser ", "1,239", "Imkerbedarf Süd", "B7");
  texte["Datum"] = "1.5.06";
  texte["Qualität"] = "500 g";
  texte["Einheit"] = "St";
  texte["Ausgaben"] = "24,5";
  const qint64 id = Handel::geschäftSpeichern(db(), Seite::Einkauf, texte, {});
  EXPECT_EQ(
      zeilen("select * from Einkauf"),
      QStringList(QString("01.05.2006|Gläser|500 g|Imkerbedarf Süd|1,239|St|24,50|B7|%1").arg(id)));
}

TEST_F(Geschäft, ÄndernSchreibtNurDieseZeile) {
  const qint64 erste = verkaufe("Wachs", "1");
  const qint64 zweite = verkaufe("Wachs", "2");
  ändere(Seite::Verkauf, zweite, geschäft(Seite::Verkauf, "Kerzen", "5"));
  EXPECT_EQ(zeilen("select Produkt, Menge, ID from Verkauf order by ID"),
            QStringList({QString("Wachs|1|%1").arg(erste), QString("Kerzen|5|%1").arg(zweite)}));
}

TEST_F(Geschäft, EineMillionKommtGanzAn) {
  verkaufe("Honig", "1000000");
  EXPECT_EQ(wert("select Menge from Verkauf").toDouble(), 1e6);
  EXPECT_EQ(wert("select Abgang from Honiglager").toDouble(), 1e6);
}

// An eighth lies between neighbours of single precision there: 1234567.875 reads as 1234567.9.
TEST_F(Geschäft, GeldKommtInEinfacherGenauigkeitAn) {
  Texte texte = geschäft(Seite::Verkauf, "Wachs", "1");
  texte["Einnahmen"] = "1234567,89";
  Handel::geschäftSpeichern(db(), Seite::Verkauf, texte, {});
  EXPECT_EQ(wert("select Einnahmen from Verkauf").toDouble(), 1234567.9);
}

TEST_F(Geschäft, ApostropheWerdenGravis) {
  verkaufe("Honig 'D'", "1", "O'Neill", "A'1");
  EXPECT_EQ(zeilen("select Produkt, Abnehmer, Charge from Verkauf"),
            QStringList("Honig `D`|O`Neill|A`1"));
  EXPECT_EQ(zeilen("select Produkt, Charge from Honiglager"), QStringList("Honig `D`|A`1"));
  EXPECT_EQ(zeilen("select Kundenname from Kunden"), QStringList("O`Neill"));
  verkaufe("Honig 'D'", "1", "O'Neill", "A'1");
  EXPECT_EQ(anzahl("Kunden"), 1);
}

TEST_F(Geschäft, EinundzwanzigZeichenSindEinFehlerUndSchreibenNichts) {
  EXPECT_THROW(verkaufe("Honigbrot mit Walnuss", "1", "Meier"), Datenbankfehler);
  EXPECT_EQ(anzahl("Verkauf") + anzahl("Kunden") + anzahl("Honiglager"), 0);
}

TEST_F(Geschäft, EineVerschwundeneZeileKannNichtGeändertWerden) {
  const qint64 id = verkaufe("Honig", "1");
  db().Execute("delete from Verkauf");
  EXPECT_THROW(Handel::geschäftSpeichern(db(), Seite::Verkauf,
                                         geschäft(Seite::Verkauf, "Honig", "2", "Meier"), id),
               Datenbankfehler);
  EXPECT_EQ(anzahl("Kunden"), 0);
  EXPECT_EQ(zeilen("select Abgang from Honiglager"), QStringList("1"));
}

TEST_F(Geschäft, WasVorEinemFehlerGeschriebenWurdeBleibt) {
  db().Execute("drop table Honiglager");
  EXPECT_THROW(verkaufe("Honig", "1", "Meier"), Datenbankfehler);
  EXPECT_EQ(zeilen("select Produkt from Verkauf"), QStringList("Honig"));
  EXPECT_EQ(zeilen("select Kundenname from Kunden"), QStringList("Meier"));
}

TEST_F(Geschäft, VolleFestplatteVerwirftAllesUndSagtEs) {
  Verbindung* verbindung = Verbindung::zu(TZ_Variablen::DatenbankPfad);
  const QByteArray seiten = verbindung->steuere("pragma page_count");
  verbindung->steuere("pragma max_page_count = " + seiten);
  bool verworfen = false;
  int gespeichert = 0;
  while (!verworfen && gespeichert < 500) {
    try {
      verkaufe("Honig", "1", QString("Kunde mit langem Namen %1").arg(gespeichert), "C");
      ++gespeichert;
    } catch (const Datenbankfehler& fehler) {
      verworfen = true;
      EXPECT_EQ(fehler.art(), Datenbankfehler::Art::Voll);
      EXPECT_TRUE(fehler.allesVerworfen());
    }
  }
  ASSERT_TRUE(verworfen);
  verbindung->steuere("pragma max_page_count = 1000000");
  EXPECT_EQ(anzahl("Verkauf"), gespeichert);
  EXPECT_EQ(anzahl("Kunden"), gespeichert);
  EXPECT_EQ(anzahl("Honiglager"), gespeichert);
}

// ---- the other party ----

TEST_F(Partner, UnbekannterAbnehmerWirdKundeMitLeerenFeldern) {
  verkaufe("Wachs", "1", "  Meier, Anna ");
  EXPECT_EQ(zeilen("select Kundenname, Lieferant, Firma, Strasse, PLZ, Ort, Kontoinhaber, Bank, "
                   "BLZ, Konto, Telefon, FAX, Handy, Web, Mail, Bemerkung, Geburtsdatum from "
                   "Kunden"),
            QStringList("Meier, Anna|N" + QString("|").repeated(15) + "<null>"));
}

TEST_F(Partner, UnbekannterLieferantBekommtJ) {
  kaufe("Gläser", "1", "Glashütte");
  EXPECT_EQ(zeilen("select Kundenname, Lieferant from Kunden"), QStringList("Glashütte|J"));
  EXPECT_EQ(pickliste(db(), Handel::geschäftsfelder(Seite::Einkauf)[3]), QStringList("Glashütte"));
  EXPECT_EQ(pickliste(db(), Handel::geschäftsfelder(Seite::Verkauf)[3]), QStringList());
}

TEST_F(Partner, AbnehmerWirdAlsLieferantNichtZweimalAngelegt) {
  verkaufe("Wachs", "1", "Meier");
  kaufe("Gläser", "1", "Meier");
  EXPECT_EQ(zeilen("select Kundenname, Lieferant from Kunden"), QStringList("Meier|N"));
  EXPECT_EQ(pickliste(db(), Handel::geschäftsfelder(Seite::Einkauf)[3]), QStringList());
  EXPECT_EQ(pickliste(db(), Handel::geschäftsfelder(Seite::Verkauf)[3]), QStringList("Meier"));
}

TEST_F(Partner, GroßUndKleinschreibungMachtKeinenZweiten) {
  verkaufe("Wachs", "1", "Meier");
  verkaufe("Wachs", "1", "MEIER");
  EXPECT_EQ(zeilen("select Kundenname from Kunden"), QStringList("Meier"));
  EXPECT_EQ(zeilen("select Abnehmer from Verkauf order by ID"), QStringList({"Meier", "MEIER"}));
}

TEST_F(Partner, LeererNameLegtNiemandenAn) {
  verkaufe("Wachs", "1", "");
  kaufe("Gläser", "1", "   ");
  EXPECT_EQ(anzahl("Kunden"), 0);
}

// ---- movements ----

TEST_F(Bewegung, VerkaufVonWaldhonigGehtAusDemLager) {
  const qint64 id = verkaufe("Waldhonig", "12,5", "Meier", "A1");
  EXPECT_EQ(bewegungen(), QStringList(QString("20.06.2006|Waldhonig|0|12,5|A1||%1").arg(id)));
  EXPECT_TRUE(wert("select Abfülldatum from Honiglager").isNull());
}

TEST_F(Bewegung, EinkaufVonHonigGehtInsLager) {
  const qint64 id = kaufe("Honig", "40");
  EXPECT_EQ(bewegungen(), QStringList(QString("20.06.2006|Honig|40|0|||%1").arg(id)));
}

TEST_F(Bewegung, ÄndernErsetztSieUndBehältDasAbfülldatum) {
  const qint64 id = verkaufe("Waldhonig", "12,5", "Meier", "A1");
  db().Execute("update Honiglager set Abfülldatum = ?, Bemerkung = 'alt'", {QDate(2006, 6, 1)});
  Texte texte = geschäft(Seite::Verkauf, "Sommerhonig", "10", "Meier", "A2");
  texte["Datum"] = "21.06.2006";
  ändere(Seite::Verkauf, id, texte);
  EXPECT_EQ(bewegungen(), QStringList(QString("21.06.2006|Sommerhonig|0|10|A2||%1").arg(id)));
  EXPECT_EQ(wert("select Abfülldatum from Honiglager").toDate(), QDate(2006, 6, 1));
}

TEST_F(Bewegung, GleicheNummerInBeidenTabellenZweiBewegungen) {
  const qint64 verkauf = verkaufe("Honig", "3");
  const qint64 einkauf = kaufe("Honig", "8");
  ASSERT_EQ(verkauf, einkauf);
  ändere(Seite::Verkauf, verkauf, geschäft(Seite::Verkauf, "Honig", "4"));
  EXPECT_EQ(zeilen("select Zugang, Abgang from Honiglager order by Abgang"),
            QStringList({"8|0", "0|4"}));
  Handel::bewegungLöschen(db(), Seite::Einkauf, "20.06.2006", "Honig", einkauf);
  EXPECT_EQ(zeilen("select Zugang, Abgang from Honiglager"), QStringList("0|4"));
}

// The movement to be replaced isn't simply the first one that bears the number.
TEST_F(Bewegung, GleicheNummerDieDesAnderenGeschäftsStehtDavor) {
  const qint64 einkauf = kaufe("Honig", "8");
  const qint64 verkauf = verkaufe("Honig", "3");
  ASSERT_EQ(verkauf, einkauf);
  ändere(Seite::Verkauf, verkauf, geschäft(Seite::Verkauf, "Honig", "4"));
  EXPECT_EQ(zeilen("select Zugang, Abgang from Honiglager order by Abgang"),
            QStringList({"8|0", "0|4"}));
  db().Execute("delete from Honiglager where Zugang = 8");
  ändere(Seite::Einkauf, einkauf, geschäft(Seite::Einkauf, "Honig", "9"));
  EXPECT_EQ(zeilen("select Zugang, Abgang from Honiglager order by Abgang"),
            QStringList({"9|0", "0|4"}));
}

TEST_F(Bewegung, WachsSchreibtKeine) {
  verkaufe("Wachs", "3");
  EXPECT_EQ(anzahl("Honiglager"), 0);
}

TEST_F(Bewegung, DasWortHonigZähltÜberallUndInJederSchreibung) {
  for (const char* produkt : {"Waldhonig", "Honig", "honigwein", "HONIG", "Met (Honigwein)"})
    EXPECT_TRUE(Handel::istHonig(produkt)) << produkt;
  for (const char* produkt : {"Wachs", "Hon ig", "", "Honi'g"})
    EXPECT_FALSE(Handel::istHonig(produkt)) << produkt;
}

TEST_F(Bewegung, DieEinheitSpieltKeineRolle) {
  Texte texte = geschäft(Seite::Verkauf, "Honig", "500");
  texte["Einheit"] = "g";
  Handel::geschäftSpeichern(db(), Seite::Verkauf, texte, {});
  EXPECT_EQ(wert("select Abgang from Honiglager").toDouble(), 500);
}

TEST_F(Bewegung, MengeWieGetipptInDerBewegungAufZweiStellen) {
  verkaufe("Honig", "1,239");
  EXPECT_EQ(wert("select Menge from Verkauf").toDouble(), 1.239);
  EXPECT_EQ(wert("select Abgang from Honiglager").toDouble(), 1.24);
}

TEST_F(Bewegung, AusHonigWirdKerzenUndDieAlteBleibt) {
  const qint64 id = verkaufe("Honig", "3", "", "A1");
  ändere(Seite::Verkauf, id, geschäft(Seite::Verkauf, "Kerzen", "7"));
  EXPECT_EQ(bewegungen(), QStringList(QString("20.06.2006|Honig|0|3|A1||%1").arg(id)));
}

TEST_F(Bewegung, AusKerzenWirdHonigUndEineNeueKommtDazu) {
  const qint64 id = verkaufe("Kerzen", "3");
  ändere(Seite::Verkauf, id, geschäft(Seite::Verkauf, "Honig", "7"));
  EXPECT_EQ(bewegungen(), QStringList(QString("20.06.2006|Honig|0|7|||%1").arg(id)));
}

TEST_F(Bewegung, NurDieErsteWirdErsetzt) {
  const qint64 id = verkaufe("Honig", "3");
  lager("Honig", 0, 2, "B", id);
  ändere(Seite::Verkauf, id, geschäft(Seite::Verkauf, "Honig", "4"));
  EXPECT_EQ(zeilen("select Abgang from Honiglager order by ID"), QStringList({"2", "4"}));
}

TEST_F(Bewegung, ImLagerGelöschtKommtSieBeimÄndernNeu) {
  const qint64 id = verkaufe("Honig", "3");
  db().Execute("delete from Honiglager");
  ändere(Seite::Verkauf, id, geschäft(Seite::Verkauf, "Honig", "4"));
  EXPECT_EQ(bewegungen(), QStringList(QString("20.06.2006|Honig|0|4|||%1").arg(id)));
}

TEST_F(Bewegung, BuchungenOhneGeschäftBleibenUnberührt) {
  lager("Honig", 0, 5, "A");  // typed in
  lager("Honig", 7, 0, "A");  // a harvest
  verkaufe("Honig", "3");
  kaufe("Honig", "4");
  EXPECT_EQ(anzahl("Honiglager"), 4);
}

// ---- deleting ----

TEST_F(BewegungLöschen, MitTagUndProduktWieGebucht) {
  const qint64 id = verkaufe("Honig", "3");
  Handel::bewegungLöschen(db(), Seite::Verkauf, "20.06.2006", "Honig", id);
  EXPECT_EQ(anzahl("Honiglager"), 0);
}

// The other deals of that day, before and after it, keep theirs.
TEST_F(BewegungLöschen, NurDieDesGeschäftsNichtDieGleichenDesTages) {
  for (const Seite seite : {Seite::Verkauf, Seite::Einkauf}) {
    db().Execute("delete from Honiglager");
    QList<qint64> ids;
    for (const char* menge : {"1", "2", "3"})
      ids << (seite == Seite::Verkauf ? verkaufe("Honig", menge) : kaufe("Honig", menge));
    Handel::bewegungLöschen(db(), seite, "20.06.2006", "Honig", ids[1]);
    EXPECT_EQ(zeilen("select Zugang + Abgang from Honiglager order by ID"),
              QStringList({"1", "3"}));
  }
}

TEST_F(BewegungLöschen, AndererTagOderAnderesProduktLässtSieStehen) {
  const qint64 id = verkaufe("Honig", "3");
  Handel::bewegungLöschen(db(), Seite::Verkauf, "21.06.2006", "Honig", id);
  Handel::bewegungLöschen(db(), Seite::Verkauf, "20.06.2006", "Kerzen", id);
  EXPECT_EQ(anzahl("Honiglager"), 1);
}

TEST_F(BewegungLöschen, KeinDatumWirdGesagtUndLöschtNichts) {
  const qint64 id = verkaufe("Honig", "3");
  EXPECT_THROW(Handel::bewegungLöschen(db(), Seite::Verkauf, "", "Honig", id), Datenbankfehler);
  EXPECT_EQ(anzahl("Honiglager"), 1);
}

TEST_F(BewegungLöschen, ApostrophImProdukt) {
  const qint64 id = kaufe("Honig 'D'", "3");
  Handel::bewegungLöschen(db(), Seite::Einkauf, "20.06.2006", "Honig 'D'", id);
  EXPECT_EQ(anzahl("Honiglager"), 0);
}

// ---- rows of the store ----

TEST_F(Lagerzeile, NeuOhneGeschäftGeändertMitSeinem) {
  Texte texte = vorgaben(Handel::lagerfelder());
  texte["Produkt"] = "Raps";
  texte["Zugang"] = "5";
  texte["Abgang"] = "3";
  texte["Abfülldatum"] = "31.02.2006";
  speichern(db(), "Honiglager", Handel::lagerfelder(), texte, {}, {{"EVK_ID", 0}});
  EXPECT_EQ(bewegungen(), QStringList("20.06.2006|Raps|5|3|||0"));
  EXPECT_TRUE(wert("select Abfülldatum from Honiglager").isNull());
  const qint64 id = lager("Honig", 0, 2, "B", 17);
  texte["Abfülldatum"] = "01.06.2006";
  speichern(db(), "Honiglager", Handel::lagerfelder(), texte, id);
  EXPECT_EQ(bewegungen().last(), "20.06.2006|Raps|5|3|||17");
  EXPECT_EQ(wert("select Abfülldatum from Honiglager where EVK_ID = 17").toDate(),
            QDate(2006, 6, 1));
}

// ---- stock and sums ----

TEST_F(Bestandsliste, JeProduktUndCharge) {
  lager("Raps", 10, 0, "A1");
  lager("Raps", 0, 2.5, "A1");
  lager("Raps", 4, 0, "A2");
  lager("Wald", 3, 1, "A1");
  const Daten d = Handel::bestand(db());
  QStringList spalten;
  for (int i = 0; i < d->spalten(); ++i) spalten << d->spalte(i).name;
  EXPECT_EQ(spalten, QStringList({"Produkt", "Charge", "Summe", "Anzahl", "Zugänge", "Abgänge"}));
  QStringList zeilen;
  for (int i = 0; i < d->zeilen(); ++i) {
    QStringList zellen;
    for (int j = 0; j < d->spalten(); ++j) zellen << d->anzeige(i, j);
    zeilen << zellen.join("|");
  }
  zeilen.sort();
  EXPECT_EQ(zeilen, QStringList({"Raps|A1|7,5|2|10|2,5", "Raps|A2|4|1|4|0", "Wald|A1|2|1|3|1"}));
}

TEST_F(Bestandsliste, LeereChargeIstEineGruppeFürSichOhneChargeEineZweite) {
  lager("Raps", 10, 0, "A1");
  lager("Raps", 1, 0, QString(""));
  lager("Raps", 2, 0, QString(""));
  lager("Raps", 4, 0, QVariant());
  const Daten d = Handel::bestand(db());
  ASSERT_EQ(d->zeilen(), 3);
  QStringList summen;
  for (int i = 0; i < 3; ++i)
    summen << (d->istNull(i, 1) ? "null" : d->anzeige(i, 1)) + "=" + d->anzeige(i, 2);
  summen.sort();
  EXPECT_EQ(summen, QStringList({"=3", "A1=10", "null=4"}));
}

TEST_F(Bestandsliste, EineGeleerteChargeHatNull) {
  lager("Raps", 10, 0, "A1");
  for (const double menge : {3.3, 3.3, 3.4}) lager("Raps", 0, menge, "A1");
  const Daten d = Handel::bestand(db());
  ASSERT_EQ(d->zeilen(), 1);
  EXPECT_EQ(d->anzeige(0, 2), "0");
  EXPECT_EQ(d->anzeige(0, 4) + " " + d->anzeige(0, 5), "10 10");
}

TEST_F(Bestandsliste, OhneBuchungenLeer) { EXPECT_EQ(Handel::bestand(db())->zeilen(), 0); }

TEST_F(Summenzeile, OhneGeschäfteDreimalNull) {
  EXPECT_EQ(Handel::summenzeile(db()), "Einkauf: 0,00 €   Verkauf: 0,00 €   Summe: 0,00 €");
}

TEST_F(Summenzeile, VerkaufWenigerEinkauf) {
  db().Execute("insert into Einkauf(Ausgaben) values (?)", {1500.5});
  db().Execute("insert into Einkauf(Ausgaben) values (?)", {QVariant()});
  db().Execute("insert into Verkauf(Einnahmen) values (?)", {200.25});
  db().Execute("insert into Verkauf(Einnahmen) values (?)", {65.5});
  EXPECT_EQ(Handel::summenzeile(db()),
            "Einkauf: 1.500,50 €   Verkauf: 265,75 €   Summe: -1.234,75 €");
}

}  // namespace
