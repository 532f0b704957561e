#include "evaluations/Qualitaetsindex.h"

#include <cmath>
#include <random>

#include "evaluations/Standortbetrieb.h"
#include "platform/locale/Deutsch.h"

// The points of sites, worked out by hand, and all of them once more one statement after the other.

namespace {

using Qualitätsindex::Parameter;
using Qualitätsindex::Punkte;
using Qualitätsindex::Standort;

const Parameter Standardwerte{5, 5, 5, 15, 30, 50, 3};
constexpr int ErsterMai = 501;

class QualitätsindexTest : public Standortbetrieb {
 protected:
  static Punkte punkte(const Standort& o, int tag = ErsterMai, const Parameter& p = Standardwerte) {
    return Qualitätsindex::Trachten(db(), p).punkte(o, tag);
  }
  static Standort nur(qint64 id) { return {.id = id, .name = "Hof"}; }
  // Points of one plant that blooms all the year, at 5000 m and without a share unless given.
  static qint64 einePflanze(const Parameter& p, int nektar, int pollen, int anteil = 0,
                            int entfernung = 5000) {
    const qint64 id = ort({});
    const QString name = "P" + QString::number(id);
    blume({name, "01.01.2003", "31.12.2003", nektar, pollen});
    tracht(id, name, anteil, entfernung);
    return punkte(nur(id), ErsterMai, p).pflanze;
  }
};

TEST_F(QualitätsindexTest, DerTagIstMonatUndTag) {
  EXPECT_EQ(Qualitätsindex::tagesschlüssel(QDate(2006, 4, 5)), 405);
  EXPECT_EQ(Qualitätsindex::tagesschlüssel(QDate(1999, 12, 31)), 1231);
}

// ---- a plant's points ----

TEST_F(QualitätsindexTest, LöwenzahnBringtMitDenStandardparametern2940Punkte) {
  löwenzahn();
  const qint64 hof = standort("Hof");
  tracht(hof, "Löwenzahn", 40, 200);
  EXPECT_EQ(punkte(nur(hof)), (Punkte{2940, 0, 2940}));
}

TEST_F(QualitätsindexTest, StufenMalIhrePunkte) {
  EXPECT_EQ(einePflanze({.nektar = 5, .pollen = 5}, 6, 8), 70);
  EXPECT_EQ(einePflanze({.nektar = 2, .pollen = 3}, 6, 8), 36);
  EXPECT_EQ(einePflanze({.pollen = 3}, 6, 8), 24);
}

TEST_F(QualitätsindexTest, DerAnteilErhöhtUndOhneIhnBleibtEsDabei) {
  const Parameter p{.nektar = 5, .pollen = 5, .anteil = 5};
  EXPECT_EQ(einePflanze(p, 6, 8, 40), 210);
  EXPECT_EQ(einePflanze(p, 6, 8, 0), 70);
  EXPECT_EQ(einePflanze({.nektar = 5, .pollen = 5}, 6, 8, 40), 70);
}

TEST_F(QualitätsindexTest, EineHälfteGehtZurGeradenZahl) {
  const Parameter p{.nektar = 1, .pollen = 1, .anteil = 5};
  EXPECT_EQ(einePflanze(p, 2, 1, 10), 4);  // 3 + 3 x 0.5 = 4.5
  EXPECT_EQ(einePflanze(p, 2, 3, 10), 8);  // 5 + 5 x 0.5 = 7.5
  EXPECT_EQ(einePflanze({.nektar = 0.5}, 5, 0), 2);
  EXPECT_EQ(einePflanze({.nektar = 0.5}, 7, 0), 4);
}

TEST_F(QualitätsindexTest, DieEntfernungZähltBis2999Meter) {
  const Parameter p{.nektar = 10, .entfernung = 15};
  EXPECT_EQ(einePflanze(p, 10, 0, 0, 2800), 100);  // the factor is 1 there
  EXPECT_EQ(einePflanze(p, 10, 0, 0, 10), 1495);   // 14.95
  EXPECT_EQ(einePflanze(p, 10, 0, 0, 2900), 50);
  EXPECT_EQ(einePflanze(p, 10, 0, 0, 2999), 0);    // 0.5, a little less in single precision
  EXPECT_EQ(einePflanze(p, 10, 0, 0, 3000), 100);  // more than nearer by
  EXPECT_EQ(einePflanze(p, 10, 0, 0, 0), 100);
  EXPECT_EQ(einePflanze({.nektar = 10}, 10, 0, 0, 10), 100);
}

// 15 / 3000 lies a little below 0.005 in single precision, 30 / 3000 a little below 0.01: what
// would go up from a half to the even number stays below it.
TEST_F(QualitätsindexTest, DerEntfernungsfaktorHatEinfacheGenauigkeit) {
  EXPECT_EQ(einePflanze({.nektar = 3, .entfernung = 15}, 1, 0, 0, 2500), 7);  // below 7.5
  EXPECT_EQ(einePflanze({.nektar = 3, .entfernung = 30}, 1, 0, 0, 2950), 1);  // below 1.5
}

// ---- the bloom ----

TEST_F(QualitätsindexTest, AußerhalbAllerWeidezeitenSindAlleDreiNull) {
  löwenzahn();
  Standort hof{.id = standort("Hof"), .name = "Hof", .pkw = true, .wasser_m = 300, .prämie = 20};
  tracht(hof.id, "Löwenzahn", 40, 200);
  EXPECT_EQ(punkte(hof, 331), (Punkte{0, 0, 0}));
  EXPECT_EQ(punkte(hof, 521), (Punkte{0, 0, 0}));
  EXPECT_GT(punkte(hof, 401).gesamt, 0);
  EXPECT_GT(punkte(hof, 520).gesamt, 0);
}

TEST_F(QualitätsindexTest, EinTagWeidezeitGiltNurAnDiesemTag) {
  blume({"Eintag", "15.03.2006", "15.03.2006"});
  const qint64 hof = standort("Hof");
  tracht(hof, "Eintag", 100, 5000);
  EXPECT_EQ(punkte(nur(hof), 314).pflanze, 0);
  EXPECT_GT(punkte(nur(hof), 315).pflanze, 0);
  EXPECT_EQ(punkte(nur(hof), 316).pflanze, 0);
}

TEST_F(QualitätsindexTest, EineWeidezeitÜberDenJahreswechselGiltNie) {
  blume({"Christrose", "01.11.2006", "28.02.2007"});
  const qint64 hof = standort("Hof");
  tracht(hof, "Christrose", 100, 5000);
  for (int tag : {101, 228, 615, 1101, 1231}) EXPECT_EQ(punkte(nur(hof), tag).pflanze, 0);
}

TEST_F(QualitätsindexTest, DasJahrDerWeidezeitZähltNicht) {
  blume({"Raps", "20.04.2009", "20.05.1999"});
  const qint64 hof = standort("Hof");
  tracht(hof, "Raps", 100, 5000);
  EXPECT_GT(punkte(nur(hof)).pflanze, 0);
}

TEST_F(QualitätsindexTest, EineFehlendeWeidezeitBringtNichts) {
  blume({"Anfang", "", "20.05.2003"});
  blume({"Ende", "01.01.2003", ""});
  const qint64 hof = standort("Hof");
  tracht(hof, "Anfang", 50);
  tracht(hof, "Ende", 50);
  EXPECT_EQ(punkte(nur(hof)), Punkte());
}

// ---- which plant ----

TEST_F(QualitätsindexTest, EineUnbekanntePflanzeWirdÜbergangen) {
  löwenzahn();
  const qint64 hof = standort("Hof");
  tracht(hof, "Wunderkraut", 60, 200);
  tracht(hof, "Löwenzahn", 40, 200);
  EXPECT_EQ(punkte(nur(hof)).pflanze, 2940);
}

TEST_F(QualitätsindexTest, NamenGeltenOhneGroßUndKleinUndMitScharfemS) {
  blume({"Weißdorn", "01.05.2003", "30.05.2003"});
  const qint64 hof = standort("Hof");
  tracht(hof, "WEISSDORN ", 0, 5000);
  tracht(hof, "Weisdorn", 0, 5000);
  EXPECT_EQ(punkte(nur(hof)).pflanze, 50);
}

TEST_F(QualitätsindexTest, EinNameMitApostrophFindetKeinePflanze) {
  blume({"Jupiter's Bart", "01.05.2003", "30.05.2003"});
  const qint64 hof = standort("Hof");
  tracht(hof, "Jupiter's Bart", 0, 5000);
  EXPECT_EQ(punkte(nur(hof)), Punkte());
}

TEST_F(QualitätsindexTest, VonZweiPflanzenEinesNamensZähltDieErste) {
  blume({"Klee", "01.05.2003", "30.05.2003", 1, 0});
  blume({"klee", "01.05.2003", "30.05.2003", 9, 9});
  const qint64 hof = standort("Hof");
  tracht(hof, "Klee", 0, 5000);
  EXPECT_EQ(punkte(nur(hof)).pflanze, 5);
}

TEST_F(QualitätsindexTest, JederStandortHatSeineEigenenPflanzen) {
  löwenzahn();
  const qint64 hof = standort("Hof");
  const qint64 wald = standort("Wald");
  tracht(hof, "Löwenzahn", 40, 200);
  tracht(wald, "Löwenzahn", 0, 5000);
  tracht(wald, "Löwenzahn", 0, 5000);
  EXPECT_EQ(punkte(nur(hof)).pflanze, 2940);
  EXPECT_EQ(punkte(nur(wald)).pflanze, 140);
}

// ---- access, water, premium ----

class Zuschlag : public QualitätsindexTest {
 protected:
  // A site whose plants bring 100 points.
  void SetUp() override {
    QualitätsindexTest::SetUp();
    blume({"Hundert", "01.05.2003", "30.05.2003", 10, 10});
    hof = {.id = standort("Hof"), .name = "Hof"};
    tracht(hof.id, "Hundert", 0, 5000);
  }
  Standort hof;
};

TEST_F(Zuschlag, AnfahrbarMit30Prozent) {
  hof.pkw = true;
  EXPECT_EQ(punkte(hof), (Punkte{100, 30, 130}));
}

TEST_F(Zuschlag, Wasser300MeterUnd50Sind35Prozent) {
  hof.wasser_m = 300;
  EXPECT_EQ(punkte(hof), (Punkte{100, 35, 135}));
}

TEST_F(Zuschlag, WasserAmStandOderAb1000MeterBringtNichts) {
  for (int m : {0, 1000, 1001}) {
    hof.wasser_m = m;
    EXPECT_EQ(punkte(hof), (Punkte{100, 0, 100})) << m;
  }
  hof.wasser_m = 1;
  EXPECT_EQ(punkte(hof).gesamt, 150);  // 49.95 %
}

TEST_F(Zuschlag, Prämie20EuroUnd3Sind6Prozent) {
  hof.prämie = 20;
  EXPECT_EQ(punkte(hof), (Punkte{100, 6, 106}));
}

TEST_F(Zuschlag, JederKommtAufDasWasDerVorigeErgab) {
  hof.pkw = true;
  hof.wasser_m = 300;
  hof.prämie = 20;
  // 130, 130 + 45.5 = 175.5 goes to 176, 176 + 10.56 = 186.56
  EXPECT_EQ(punkte(hof), (Punkte{100, 87, 187}));
}

TEST_F(Zuschlag, NullSchaltetDenSchrittAus) {
  hof.pkw = true;
  hof.wasser_m = 300;
  hof.prämie = 20;
  EXPECT_EQ(punkte(hof, ErsterMai, {.nektar = 5, .pollen = 5}), (Punkte{100, 0, 100}));
}

// ---- too much ----

TEST_F(QualitätsindexTest, Über32BitScheitertUndNenntDenStandort) {
  blume({"Riese", "01.05.2003", "30.05.2003", 10, 0});
  const Standort hof{.id = standort("Hof"), .name = "Hof"};
  tracht(hof.id, "Riese", 0, 5000);
  const Parameter p{.nektar = 214748364.8};  // one more than fits
  EXPECT_EQ(punkte(hof, ErsterMai, {.nektar = 214748364.7}).gesamt, 2147483647);
  EXPECT_EQ(punkte(hof, 401, p), Punkte());  // not in bloom
  try {
    punkte(hof, ErsterMai, p);
    FAIL();
  } catch (const Datenbankfehler& fehler) {
    EXPECT_TRUE(fehler.text().contains("des Standorts \"Hof\"")) << fehler.text().toStdString();
    EXPECT_TRUE(fehler.text().contains("2147483647"));
  }
}

TEST_F(QualitätsindexTest, AuchSummeUndZuschlagKönnenZuGroßSein) {
  blume({"Riese", "01.05.2003", "30.05.2003", 10, 0});
  const Parameter p{.nektar = 200000000, .pkw = 30};
  Standort hof{.id = standort("Hof"), .name = "Hof"};
  tracht(hof.id, "Riese", 0, 5000);
  EXPECT_EQ(punkte(hof, ErsterMai, p).gesamt, 2000000000);
  hof.pkw = true;
  EXPECT_THROW(punkte(hof, ErsterMai, p), Datenbankfehler);
  hof.pkw = false;
  tracht(hof.id, "Riese", 0, 5000);
  EXPECT_THROW(punkte(hof, ErsterMai, p), Datenbankfehler);
}

// ---- the same, one statement after the other ----

qint64 ganz(double wert) { return static_cast<qint64>(std::nearbyint(wert)); }

// mmdd as four characters.
QString monatUndTag(const QVariant& datum) {
  const QString text = Deutsch::datumText(datum.toDate());
  return text.mid(3, 2) + text.left(2);
}

qint64 pflanzenpunkte(const Parameter& p, qint64 standort, const QString& tag) {
  Database& db = TZ_Variablen::DB;
  qint64 summe = 0;
  const Daten orte =
      db.Lesen(QString("select Pflanze, Entfernung_m, Proz_Anteil from Standorte_Pflanzen where "
                       "Standort_Kennung = %1")
                   .arg(standort));
  for (int i = 0; i < orte->zeilen(); ++i) {
    Recordset pflanze = db.OpenRecordset("select * from Pflanzen where Pflanze = '" +
                                         TextLesen(orte->wert(i, 0)) + "'");
    if (pflanze.RecordCount() == 0) continue;
    const QVariant von = pflanze.Wert("Weidezeit_von");
    const QVariant bis = pflanze.Wert("Weidezeit_bis");
    if (von.isNull() || bis.isNull() || tag < monatUndTag(von) || tag > monatUndTag(bis)) continue;
    qint64 w = ganz(pflanze.Wert("Nektarstufe").toInt() * p.nektar +
                    pflanze.Wert("Pollenstufe").toInt() * p.pollen);
    const double entfernung = orte->zahl(i, 1);
    const double anteil = orte->zahl(i, 2);
    if (anteil > 0 && p.anteil > 0)
      w = ganz(static_cast<double>(w) + static_cast<double>(w) * (anteil * p.anteil / 100));
    if (entfernung > 0 && entfernung < 3000 && p.entfernung > 0) {
      const float faktor = static_cast<float>(p.entfernung / 3000);
      w = ganz((3000 - entfernung) * static_cast<double>(faktor) * static_cast<double>(w));
    }
    summe += w;
  }
  return summe;
}

qint64 gesamtpunkte(const Parameter& p, const Recordset& ort, qint64 summe) {
  if (summe <= 0) return summe;
  qint64 gesamt = summe;
  const auto dazu = [&](double prozent) {
    gesamt = ganz(static_cast<double>(gesamt) + prozent * static_cast<double>(gesamt) / 100);
  };
  if (ort.Wert("Pkw_anfahrbar").toString() == "J") dazu(p.pkw);
  const double wasser = ort.Wert("Entfernung_Wasser_m").toDouble();
  if (wasser > 0 && wasser < 1000 && p.wasser > 0)
    dazu(static_cast<double>(static_cast<float>((1000 - wasser) * (p.wasser / 1000))));
  const double prämie = ort.Wert(QString("Standortprämie_Volk")).toDouble();
  if (p.prämie > 0 && prämie > 0)
    dazu(static_cast<double>(static_cast<float>(prämie / 10 * p.prämie)));
  return gesamt;
}

class DichteTracht : public Standortbetrieb {
 protected:
  void SetUp() override {
    Standortbetrieb::SetUp();
    db().Sammelschreiben([this] { füllen(); });
  }
  int würfel(int bis) { return static_cast<int>(m_zufall() % static_cast<unsigned>(bis)); }
  QString tagIm(int jahr) { return Deutsch::datumText(QDate(jahr, 1, 1).addDays(würfel(365))); }
  // Periods in any order, names in other letter case, unknown and doubled ones.
  void füllen() {
    for (int i = 0; i < 30; ++i)
      blume({QString("Pflanze %1").arg(i), i % 9 == 0 ? QString() : tagIm(2003 + i % 3),
             tagIm(2003), würfel(11), würfel(11)});
    for (int i = 0; i < 40; ++i) {
      const qint64 id = ort({QString("Ort %1").arg(i % 35), QString::number(würfel(3)),
                             QString("JNj").at(würfel(3)), würfel(1200),
                             würfel(4) == 0 ? 0 : würfel(10000) / 100.0});
      for (int n = würfel(12); n > 0; --n)
        tracht(id, QString(würfel(2) == 0 ? "PFLANZE %1" : "Pflanze %1 ").arg(würfel(33)),
               würfel(101), würfel(3500));
    }
  }
  std::mt19937 m_zufall{20060620};
};

TEST_F(DichteTracht, JedeZelleIstWieMitEinerAnweisungJeZelle) {
  Probelauf probe(Standortauswertung::beschreibung());
  const Ausgabeliste wochen = probe.liste("rolisten_5");
  ASSERT_EQ(wochen.zeilen(), 40);
  Recordset ort = db().OpenRecordset("select * from Standorte order by Standort");
  int mitPunkten = 0;
  for (int zeile = 0; !ort.AmEnde(); ort.MoveNext(), ++zeile) {
    const QStringList zellen = Probelauf::zeile(wochen, zeile);
    EXPECT_EQ(zellen[0], ort.Wert("Standort").toString());
    QDate tag(2006, 3, 1);
    for (int spalte = 1; spalte < zellen.size(); ++spalte, tag = tag.addDays(7)) {
      const qint64 summe =
          pflanzenpunkte(Standardwerte, ort.Wert("ID").toLongLong(), monatUndTag(tag));
      EXPECT_EQ(zellen[spalte], QString::number(gesamtpunkte(Standardwerte, ort, summe)));
      mitPunkten += summe > 0 ? 1 : 0;
    }
  }
  EXPECT_GT(mitPunkten, 200);
}

TEST_F(DichteTracht, DieDreiPunkteEinesTagesSindWieEineAnweisungNachDerAnderen) {
  Probelauf probe(Standortauswertung::beschreibung());
  const QStringList werte{"7", "3", "4", "21", "17", "33", "9"};
  for (int i = 0; i < 7; ++i) probe.tippe(QString("sevt_%1").arg(i), werte[i]);
  probe.tippe("sevt_7", "12.06.2001");
  const Ausgabeliste liste = probe.liste("rolisten_4");
  const Parameter p{7, 3, 4, 21, 17, 33, 9};
  Recordset ort =
      db().OpenRecordset("select * from Standorte order by Standort, Zusatzortshinweis");
  for (int zeile = 0; !ort.AmEnde(); ort.MoveNext(), ++zeile) {
    const qint64 summe = pflanzenpunkte(p, ort.Wert("ID").toLongLong(), "0612");
    const qint64 gesamt = gesamtpunkte(p, ort, summe);
    EXPECT_EQ(Probelauf::zeile(liste, zeile),
              QStringList({ort.Wert("Standort").toString(), QString::number(summe),
                           QString::number(gesamt - summe), QString::number(gesamt)}));
  }
}

}  // namespace
