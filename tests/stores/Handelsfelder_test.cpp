#include "stores/Handelsbetrieb.h"

using namespace Verwaltung;
using Handel::Seite;

// The inputs of the cash and honey book, and the reasons for not saving them.
namespace {

class Handelsfelder : public Handelsbetrieb {};
class Geschaeftsgruende : public Handelsbetrieb {};
class Lagergruende : public Handelsbetrieb {};

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
QStringList laengen(const Felder& felder) {
  return jeFeld(felder, [](const Feld& f) {
    return f.art == Art::Text ? QString::number(f.maxLaenge) : QString("-");
  });
}

// ---- fields ----

TEST_F(Handelsfelder, EinkaufAchtEingabenInIhrerFolge) {
  const Felder felder = Handel::geschaeftsfelder(Seite::Einkauf);
  EXPECT_EQ(namen(felder), QStringList({"Datum", "Produkt", "Qualität", "Lieferant", "Menge",
                                        "Einheit", "Ausgaben", "Charge"}));
  EXPECT_EQ(beschriftungen(felder),
            QStringList({"Datum", "Produkt", "Qualität", "Lieferant", "Menge", "Mengeneinheit",
                         "Ausgaben", "Chargen-Nr"}));
  EXPECT_EQ(jeFeld(felder, [](const Feld& f) { return f.ersterText; }),
            QStringList({"20.06.2006", "", "", "", "0", "", "0", ""}));
  EXPECT_EQ(laengen(felder), QStringList({"-", "20", "20", "30", "-", "2", "-", "15"}));
  EXPECT_EQ(listen(felder),
            QStringList(
                {"", "select distinct Produkt from Einkauf order by Produkt",
                 "select distinct Qualität from Einkauf order by Qualität",
                 "select distinct Kundenname from Kunden where Lieferant = 'J' order by Kundenname",
                 "", "", "", "select distinct Charge from Honiglager order by Charge"}));
}

TEST_F(Handelsfelder, VerkaufMitAbnehmerUndEinnahmen) {
  const Felder felder = Handel::geschaeftsfelder(Seite::Verkauf);
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
  EXPECT_EQ(laengen(felder), QStringList({"-", "20", "-", "-", "30", "15", "-"}));
  EXPECT_EQ(listen(felder),
            QStringList({"", "select distinct Produkt from Honiglager order by Produkt", "", "",
                         "select distinct Bemerkung from Honiglager order by Bemerkung",
                         "select distinct Charge from Honiglager order by Charge", ""}));
}

TEST_F(Handelsfelder, EinheitenInFesterFolgeMitFreiemText) {
  for (const Seite seite : {Seite::Einkauf, Seite::Verkauf}) {
    const Feld einheit = Handel::geschaeftsfelder(seite)[5];
    EXPECT_EQ(einheit.art, Art::Text);
    EXPECT_EQ(pickliste(db(), einheit), QStringList({"kg", "g", "l", "ml", "St"}));
  }
}

TEST_F(Handelsfelder, HeuteIstDerTagDesStartsAuchBeimNaechstenMal) {
  EXPECT_EQ(Handel::lagerfelder()[0].ersterText, "20.06.2006");
  TZ_Variablen::HeuteText = "21.06.2006";
  EXPECT_EQ(Handel::lagerfelder()[0].ersterText, "21.06.2006");
  EXPECT_EQ(Handel::geschaeftsfelder(Seite::Verkauf)[0].ersterText, "21.06.2006");
}

TEST_F(Handelsfelder, MengenZeigenNurDieNoetigenStellenGeldZwei) {
  const Felder felder = Handel::geschaeftsfelder(Seite::Verkauf);
  EXPECT_EQ(feldtext(felder[4], 12.5), "12,5");
  EXPECT_EQ(feldtext(felder[4], 1000000.0), "1000000");
  EXPECT_EQ(feldtext(felder[4], 1.239), "1,239");
  EXPECT_EQ(feldtext(felder[6], 12.5), "12,50");
  EXPECT_EQ(feldtext(felder[6], QVariant()), "");
}

// ---- reasons ----

TEST_F(Geschaeftsgruende, AlleGruendeInIhrerFolge) {
  EXPECT_EQ(Handel::geschaeftsgruende({}), QStringList({KeinDatum, KeinProdukt, KeineMenge}));
  Texte texte = geschaeft(Seite::Verkauf, "   ", "0");
  texte["Datum"] = "31.02.2006";
  EXPECT_EQ(Handel::geschaeftsgruende(texte), QStringList({KeinDatum, KeinProdukt, KeineMenge}));
  EXPECT_EQ(Handel::geschaeftsgruende(geschaeft(Seite::Verkauf, "Wachs", "1")), QStringList());
}

TEST_F(Geschaeftsgruende, MengeNullUndMinusEinsWerdenAbgelehnt) {
  for (const char* menge : {"0", "", "-1", " -1,5", "0,0", "kg"})
    EXPECT_EQ(Handel::geschaeftsgruende(geschaeft(Seite::Verkauf, "Wachs", menge)),
              QStringList(KeineMenge))
        << menge;
  for (const char* menge : {"0,001", "1000000", "1.5"})
    EXPECT_EQ(Handel::geschaeftsgruende(geschaeft(Seite::Verkauf, "Wachs", menge)), QStringList())
        << menge;
}

TEST_F(Lagergruende, AlleGruendeInIhrerFolge) {
  EXPECT_EQ(Handel::lagergruende({}), QStringList({KeinDatum, KeinProdukt, KeineLagermenge}));
}

TEST_F(Lagergruende, BeideMengenGehenBeideNullNichtNegativeGehen) {
  const auto gruende = [](const QString& zugang, const QString& abgang) {
    return Handel::lagergruende(
        {{"Datum", "01.05.2006"}, {"Produkt", "Raps"}, {"Zugang", zugang}, {"Abgang", abgang}});
  };
  EXPECT_EQ(gruende("5", "3"), QStringList());
  EXPECT_EQ(gruende("5", "0"), QStringList());
  EXPECT_EQ(gruende("", "3"), QStringList());
  EXPECT_EQ(gruende("-5", "0"), QStringList());
  EXPECT_EQ(gruende("0", "0"), QStringList(KeineLagermenge));
  EXPECT_EQ(gruende("", ""), QStringList(KeineLagermenge));
}

}  // namespace
