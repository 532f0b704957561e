#include <QMap>

#include "Betriebsfall.h"

namespace {

class Handelsbuch : public Betriebsfall {};

struct Bewegung {
  QDate tag;
  QString posten;  // product and batch
  double kg = 0;   // in, or out below 0
};

QList<Bewegung> bewegungen() {
  const Daten zeilen =
      DB.Lesen("select Datum, Produkt, Charge, Zugang, Abgang from Honiglager order by Datum, ID");
  QList<Bewegung> alle;
  for (int i = 0; i < zeilen->zeilen(); ++i)
    alle << Bewegung{zeilen->wert(i, 0).toDate(),
                     zeilen->anzeige(i, 1) + " " + zeilen->anzeige(i, 2),
                     zeilen->zahl(i, 3) - zeilen->zahl(i, 4)};
  return alle;
}

// Day by day, not only at the end.
void erwarteNieNegativ() {
  QMap<QString, double> bestand;
  for (const Bewegung& bewegung : bewegungen()) {
    bestand[bewegung.posten] += bewegung.kg;
    EXPECT_GT(bestand[bewegung.posten], -0.001)
        << bewegung.posten.toStdString() << " " << bewegung.tag.toString().toStdString();
  }
}

TEST_F(Handelsbuch, DerBestandWirdAnKeinemTagNegativ) {
  standard();
  EXPECT_GT(bewegungen().size(), 150);
  erwarteNieNegativ();
}

TEST_F(Handelsbuch, AuchBeiEinemEinzigenVolkWirdDerBestandNichtNegativ) {
  Betriebsgröße größe = klein(2);
  größe.völker = 1;
  anlegen(größe);
  EXPECT_GT(anzahl("Honiglager", "Abgang > 0"), 0);
  erwarteNieNegativ();
}

TEST_F(Handelsbuch, JederHonigverkaufHatGenauEineBewegung) {
  standard();
  const Daten verkäufe = DB.Lesen("select ID, Datum, Produkt, Menge, Charge from Verkauf");
  int honig = 0;
  for (int i = 0; i < verkäufe->zeilen(); ++i) {
    const bool istHonig = verkäufe->anzeige(i, 2).contains("honig", Qt::CaseInsensitive);
    const Daten bewegung = DB.Lesen(
        "select Datum, Produkt, Abgang, Charge, Abfülldatum from Honiglager where EVK_ID = ? and "
        "Zugang = 0",
        {verkäufe->ganzzahl(i, 0)});
    ASSERT_EQ(bewegung->zeilen(), istHonig ? 1 : 0) << i;
    if (!istHonig) continue;
    ++honig;
    EXPECT_EQ(bewegung->wert(0, 0), verkäufe->wert(i, 1)) << i;
    EXPECT_EQ(bewegung->anzeige(0, 1), verkäufe->anzeige(i, 2)) << i;
    EXPECT_NEAR(bewegung->zahl(0, 2), verkäufe->zahl(i, 3), 0.005) << i;
    EXPECT_EQ(bewegung->anzeige(0, 3), verkäufe->anzeige(i, 4)) << i;
  }
  EXPECT_GT(honig, 60);
}

TEST_F(Handelsbuch, JederHonigeinkaufHatGenauEineBewegung) {
  standard();
  const Daten einkäufe = DB.Lesen("select ID, Produkt, Menge from Einkauf");
  int honig = 0;
  for (int i = 0; i < einkäufe->zeilen(); ++i) {
    const bool istHonig = einkäufe->anzeige(i, 1).contains("honig", Qt::CaseInsensitive);
    const Daten bewegung = DB.Lesen("select Zugang from Honiglager where EVK_ID = ? and Abgang = 0",
                                    {einkäufe->ganzzahl(i, 0)});
    ASSERT_EQ(bewegung->zeilen(), istHonig ? 1 : 0) << i;
    if (!istHonig) continue;
    ++honig;
    EXPECT_NEAR(bewegung->zahl(0, 0), einkäufe->zahl(i, 2), 0.005) << i;
  }
  EXPECT_EQ(honig, 2);  // in October 2024 and 2025
}

TEST_F(Handelsbuch, DieErntenLiegenAlsZugängeImLager) {
  standard();
  const Daten ernten = DB.Lesen(
      "select Honigsorte, Charge, sum(Menge_kg) as kg from Honigernte group by Honigsorte, Charge");
  EXPECT_EQ(ernten->zeilen(), 7);  // three sorts in 2024 and 2025, rape in 2026
  for (int i = 0; i < ernten->zeilen(); ++i) {
    const Daten lager = DB.Lesen(
        "select sum(Zugang) as kg from Honiglager where Produkt = ? and Charge = ? and EVK_ID = 0",
        {ernten->wert(i, 0), ernten->wert(i, 1)});
    EXPECT_NEAR(lager->zahl(0, 0), ernten->zahl(i, 2), 0.01) << i;
  }
}

TEST_F(Handelsbuch, AbgefülltWirdNachDerErnteUndVorDemVerkauf) {
  standard();
  EXPECT_GT(anzahl("Honiglager", QString("Abfülldatum is not null")), 60);
  EXPECT_EQ(anzahl("Honiglager", QString("Abfülldatum > Datum")), 0);
  EXPECT_EQ(anzahl("Honiglager", QString("Abgang > 0 and EVK_ID > 0 and Abfülldatum is null")), 0);
  const Daten zuFrüh = DB.Lesen(
      "select Ab.ID from Honiglager as Ab, Honiglager as Zu where Zu.Zugang > 0 and Zu.Produkt = "
      "Ab.Produkt and Zu.Charge = Ab.Charge and Ab.Abfülldatum <= Zu.Datum");
  EXPECT_EQ(zuFrüh->zeilen(), 0);
}

TEST_F(Handelsbuch, NichtsIstMorgenGehandelt) {
  standard();
  for (const char* tabelle : {"Einkauf", "Verkauf", "Honiglager"})
    EXPECT_EQ(
        DB.Lesen("select ID from " + QString(tabelle) + " where Datum > ?", {Heute})->zeilen(), 0)
        << tabelle;
}

TEST_F(Handelsbuch, JederPartnerStehtEinmalUnterDenKunden) {
  standard();
  EXPECT_GE(anzahl("Kunden", "Lieferant = 'N'"), 12);
  EXPECT_GE(anzahl("Kunden", "Lieferant = 'J'"), 5);
  const Daten namen =
      DB.Lesen("select count(*) as n from Kunden group by Kundenname order by n desc");
  EXPECT_EQ(namen->ganzzahl(0, 0), 1);
  const auto ohneKunden = [](const QString& tabelle, const QString& feld) {
    const Daten partner = DB.Lesen("select distinct " + feld + " from " + tabelle);
    int fehlende = 0;
    for (int i = 0; i < partner->zeilen(); ++i)
      fehlende +=
          DB.Lesen("select ID from Kunden where Kundenname = ?", {partner->wert(i, 0)})->zeilen() ==
                  0
              ? 1
              : 0;
    return fehlende;
  };
  EXPECT_EQ(ohneKunden("Verkauf", "Abnehmer"), 0);
  EXPECT_EQ(ohneKunden("Einkauf", "Lieferant"), 0);
}

TEST_F(Handelsbuch, ZuckerGläserMittelwändeUndHonigSindEingekauft) {
  standard();
  for (const char* produkt :
       {"Zucker", "Gläser 500 g", "Mittelwände Zander", "Futterteig", "Waldhonig"})
    EXPECT_GT(DB.Lesen("select ID from Einkauf where Produkt = ?", {QString(produkt)})->zeilen(), 0)
        << produkt;
}

// The number of deals belongs to the years, not to the colonies.
TEST_F(Handelsbuch, EinDreimalSoGroßerBetriebHatNichtMehrGeschäfte) {
  standard();
  const qint64 vierundzwanzig = anzahl("Verkauf");
  Betriebsgröße größe;
  größe.völker = 72;
  größe.heute = Heute;
  anlegen(größe);
  EXPECT_LT(anzahl("Verkauf"), 2 * vierundzwanzig);
  EXPECT_GT(anzahl("Verkauf"), vierundzwanzig / 2);
  erwarteNieNegativ();
}

}  // namespace
