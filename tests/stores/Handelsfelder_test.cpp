#include "stores/Handelsbetrieb.h"

using namespace Verwaltung;
using Handel::Seite;

// The inputs of the cash and honey book, and the reasons for not saving them.
namespace {

class Handelsfelder : public Handelsbetrieb {};
class Geschäftsgründe : public Handelsbetrieb {};
class Lagergründe : public Handelsbetrieb {};

const QString KeinDatum = "...das Datum korrekt angegeben werden muß.";
const QString KeinProdukt = "...das Produkt angegeben werden muß.";
const QString KeineMenge = "...die Menge über 0 liegen muß.";
const QString KeineLagermenge =
    "...entweder eine Zugangs- oder Abgangsmenge eingetragen werden muß.";

template <typename Was>
QStringList jeFeld(const Felder& felder, Was was) {
  QStringList alle;
  for (const Feld& feld : felder) alle << was(feld);
  return alle;
}
QStringList namen(const Felder& felder) {
  return jeFeld(felder, [](const Feld& f) { return f.feld; });
}
QStringList beschriftungen(const Felder& felder) {
  return jeFeld(felder, [](const Feld& f) { return f.beschriftung; });
}
QStringList listen(const Felder& felder) {
  return jeFeld(felder, [](const Feld& f) { return f.listenAnweisung; });
}
QStringList längen(const Felder& felder) {
  return jeFeld(felder, [](const Feld& f) {
    return f.art == Art::Text ? QString::number(f.maxLänge) : QString("-");
  });
}

// ---- fields ----

TEST_F(Handelsfelder, EinkaufAchtEingabenInIhrerFolge) {
  const Felder felder = Handel::geschäftsfelder(Seite::Einkauf);
  EXPECT_EQ(namen(felder), QStringList({"Datum", "Produkt", "Qualität", "Lieferant", "Menge",
                                        "Einheit", "Ausgaben", "Charge"}));
  EXPECT_EQ(beschriftungen(felder),
            QStringList({"Datum", "Produkt", "Qualität", "Lieferant", "Menge", "Mengeneinheit",
                         "Ausgaben", "Chargen-Nr"}));
  EXPECT_EQ(jeFeld(felder, [](const Feld& f) { return f.ersterText; }),
            QStringList({"20.06.2006", "", "", "", "0", "", "0", ""}));
  EXPECT_EQ(längen(felder), QStringList({"-", "20", "20", "30", "-", "2", "-", "15"}));
  EXPECT_EQ(listen(felder),
            QStringList(
                {"", "select distinct Produkt from Einkauf order by Produkt",
                 "select distinct Qualität from Einkauf order by Qualität",
                 "select distinct Kundenname from Kunden where Lieferant = 'J' order by Kundenname",
                 "", "", "", "select distinct Charge from Honiglager order by Charge"}));
}

TEST_F(Handelsfelder, VerkaufMitAbnehmerUndEinnahmen) {
  const Felder felder = Handel::geschäftsfelder(Seite::Verkauf);
  EXPECT_EQ(beschriftungen(felder),
            QStringList({"Datum", "Produkt", "Qualität", "Abnehmer", "Menge", "Mengeneinheit",
                         "Einnahmen", "Chargen-Nr"}));
  EXPECT_EQ(namen(felder), QStringList({"Datum", "Produkt", "Qualität", "Abnehmer", "Menge",
                                        "Einheit", "Einnahmen", "Charge"}));
  EXPECT_EQ(listen(felder),
            QStringList(
                {"", "select distinct Produkt from Verkauf order by Produkt",
                 "select distinct Qualität from Verkauf order by Qualität",
                 "select distinct Kundenname from Kunden where Lieferant = 'N' order by Kundenname",
                 "", "", "", "select distinct Charge from Honiglager order by Charge"}));
}

TEST_F(Handelsfelder, HoniglagerSiebenEingabenOhneEvkId) {
  const Felder felder = Handel::lagerfelder();
  EXPECT_EQ(namen(felder), QStringList({"Datum", "Produkt", "Zugang", "Abgang", "Bemerkung",
                                        "Charge", "Abfülldatum"}));
  EXPECT_EQ(beschriftungen(felder),
            QStringList({"Datum", "Produkt (Sorte)", "Eingang (kg)", "Ausgang (kg)", "Bemerkung",
                         "Chargen-Nr", "Abfülldatum"}));
  EXPECT_EQ(jeFeld(felder, [](const Feld& f) { return f.ersterText; }),
            QStringList({"20.06.2006", "", "0", "0", "", "", ""}));
  EXPECT_EQ(längen(felder), QStringList({"-", "20", "-", "-", "30", "15", "-"}));
  EXPECT_EQ(listen(felder),
            QStringList({"", "select distinct Produkt from Honiglager order by Produkt", "", "",
                         "select distinct Bemerkung from Honiglager order by Bemerkung",
                         "select distinct Charge from Honiglager order by Charge", ""}));
}

TEST_F(Handelsfelder, EinheitenInFesterFolgeMitFreiemText) {
  for (const Seite seite : {Seite::Einkauf, Seite::Verkauf}) {
    const Feld einheit = Handel::geschäftsfelder(seite)[5];
    EXPECT_EQ(einheit.art, Art::Text);
    EXPECT_EQ(pickliste(db(), einheit), QStringList({"kg", "g", "l", "ml", "St"}));
  }
}

TEST_F(Handelsfelder, HeuteIstDerTagDesStartsAuchBeimNächstenMal) {
  EXPECT_EQ(Handel::lagerfelder()[0].ersterText, "20.06.2006");
  TZ_Variablen::HeuteText = "21.06.2006";
  EXPECT_EQ(Handel::lagerfelder()[0].ersterText, "21.06.2006");
  EXPECT_EQ(Handel::geschäftsfelder(Seite::Verkauf)[0].ersterText, "21.06.2006");
}

TEST_F(Handelsfelder, MengenZeigenNurDieNötigenStellenGeldZwei) {
  const Felder felder = Handel::geschäftsfelder(Seite::Verkauf);
  EXPECT_EQ(feldtext(felder[4], 12.5), "12,5");
  EXPECT_EQ(feldtext(felder[4], 1000000.0), "1000000");
  EXPECT_EQ(feldtext(felder[4], 1.239), "1,239");
  EXPECT_EQ(feldtext(felder[6], 12.5), "12,50");
  EXPECT_EQ(feldtext(felder[6], QVariant()), "");
}

// ---- reasons ----

TEST_F(Geschäftsgründe, AlleGründeInIhrerFolge) {
  EXPECT_EQ(Handel::geschäftsgründe({}), QStringList({KeinDatum, KeinProdukt, KeineMenge}));
  Texte texte = geschäft(Seite::Verkauf, "   ", "0");
  texte["Datum"] = "31.02.2006";
  EXPECT_EQ(Handel::geschäftsgründe(texte), QStringList({KeinDatum, KeinProdukt, KeineMenge}));
  EXPECT_EQ(Handel::geschäftsgründe(geschäft(Seite::Verkauf, "Wachs", "1")), QStringList());
}

TEST_F(Geschäftsgründe, MengeNullUndMinusEinsWerdenAbgelehnt) {
  for (const char* menge : {"0", "", "-1", " -1,5", "0,0", "kg"})
    EXPECT_EQ(Handel::geschäftsgründe(geschäft(Seite::Verkauf, "Wachs", menge)),
              QStringList(KeineMenge))
        << menge;
  for (const char* menge : {"0,001", "1000000", "1.5"})
    EXPECT_EQ(Handel::geschäftsgründe(geschäft(Seite::Verkauf, "Wachs", menge)), QStringList())
        << menge;
}

TEST_F(Lagergründe, AlleGründeInIhrerFolge) {
  EXPECT_EQ(Handel::lagergründe({}), QStringList({KeinDatum, KeinProdukt, KeineLagermenge}));
}

TEST_F(Lagergründe, BeideMengenGehenBeideNullNichtNegativeGehen) {
  const auto gründe = [](const QString& zugang, const QString& abgang) {
    return Handel::lagergründe(
        {{"Datum", "01.05.2006"}, {"Produkt", "Raps"}, {"Zugang", zugang}, {"Abgang", abgang}});
  };
  EXPECT_EQ(gründe("5", "3"), QStringList());
  EXPECT_EQ(gründe("5", "0"), QStringList());
  EXPECT_EQ(gründe("", "3"), QStringList());
  EXPECT_EQ(gründe("-5", "0"), QStringList());
  EXPECT_EQ(gründe("0", "0"), QStringList(KeineLagermenge));
  EXPECT_EQ(gründe("", ""), QStringList(KeineLagermenge));
}

}  // namespace
