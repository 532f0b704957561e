#include "mainform/Listenersatz.h"

#include "Umfeld.h"

using namespace TZ_Variablen;

namespace {

const QString Eigene = QStringLiteral("select Volknr, Futterwaben, Selektiert, ID from Bienenvolk");

class Listenersatz : public Umfeld {
 protected:
  void SetUp() override {
    Umfeld::SetUp();
    datenbank();
    listenfelderPrüfen();
    m_standard = EinstellungenText[Textslots.volkfelder];
    neu("Bienenvolk", {{"Volknr", "1"}, {"Volkname", "Zita"}, {"Akt_im_Bestand", "X"}});
    neu("Bienenvolk", {{"Volknr", "2"}, {"Volkname", "Anna"}, {"Akt_im_Bestand", "X"}});
  }
  static QStringList nummern(const Volkzeilen& zeilen) {
    QStringList liste;
    for (int i = 0; i < zeilen.daten->zeilen(); ++i)
      liste << zeilen.daten->anzeige(i, zeilen.daten->spaltenNummer(u"Volknr"));
    return liste;
  }

  QString m_standard;
};

}  // namespace

TEST_F(Listenersatz, BrauchbareEinstellungenBleibenOhneMeldung) {
  EinstellungenText[Textslots.volkfelder] = Eigene;
  EinstellungenText[Textslots.sortierung1] = QStringLiteral("Volkname");
  const Volkzeilen zeilen = volklisteMitErsatz(DB, Volkfilter::Bestand);
  EXPECT_EQ(nummern(zeilen), QStringList({"2", "1"}));
  EXPECT_EQ(zeilen.meldung, QString());
  EXPECT_EQ(EinstellungenText[Textslots.volkfelder], Eigene);
  EXPECT_EQ(EinstellungenText[Textslots.sortierung1], QStringLiteral("Volkname"));
}

TEST_F(Listenersatz, AbgelehnteFeldlisteWirdDerStandardUndDieSortierungBleibt) {
  EinstellungenText[Textslots.sortierung1] = QStringLiteral("Volkname");
  for (const char* anweisung :
       {"select Gibtsnicht, Futterwaben, Selektiert, ID from Bienenvolk",
        "select Futterwaben from from", "Futterwaben", "select Futterwaben, ? from Bienenvolk",
        "delete from Bienenvolk; select Futterwaben, Selektiert, ID from Bienenvolk",
        "update Bienenvolk set Futterwaben = 1",
        "select Futterwaben, Selektiert, ID from Bienenvolk where Volknr = '1'"}) {
    EinstellungenText[Textslots.volkfelder] = QString::fromUtf8(anweisung);
    const Volkzeilen zeilen = volklisteMitErsatz(DB, Volkfilter::Bestand);
    EXPECT_EQ(nummern(zeilen), QStringList({"2", "1"})) << anweisung;
    EXPECT_TRUE(
        zeilen.meldung.startsWith("Die eingestellten Felder der Völkerliste können nicht "
                                  "benutzt werden:\r\n"))
        << qPrintable(zeilen.meldung);
    EXPECT_EQ(EinstellungenText[Textslots.volkfelder], m_standard) << anweisung;
    EXPECT_EQ(EinstellungenText[Textslots.sortierung1], QStringLiteral("Volkname")) << anweisung;
  }
}

TEST_F(Listenersatz, DieMeldungNenntDasFeldDasEsNichtGibt) {
  EinstellungenText[Textslots.volkfelder] =
      QStringLiteral("select Gibtsnicht, Futterwaben, Selektiert, ID from Bienenvolk");
  EXPECT_TRUE(volklisteMitErsatz(DB, Volkfilter::Alles).meldung.contains("Gibtsnicht"));
}

TEST_F(Listenersatz, FeldlisteOhneSelektiertOderIDWirdDerStandard) {
  for (const auto& [anweisung, feld] :
       {std::pair("select Volknr, Futterwaben, ID from Bienenvolk", "Selektiert"),
        {"select Volknr, Futterwaben, Selektiert from Bienenvolk", "ID"}}) {
    EinstellungenText[Textslots.volkfelder] = QString::fromUtf8(anweisung);
    const Volkzeilen zeilen = volklisteMitErsatz(DB, Volkfilter::Bestand);
    EXPECT_TRUE(zeilen.meldung.contains(QStringLiteral("Das Feld %1 fehlt.").arg(feld)))
        << qPrintable(zeilen.meldung);
    EXPECT_EQ(EinstellungenText[Textslots.volkfelder], m_standard);
    EXPECT_GE(zeilen.daten->spaltenNummer(u"ID"), 0);
  }
}

TEST_F(Listenersatz, AbgelehnteSortierungWirdAufgehobenUndDieFelderBleiben) {
  EinstellungenText[Textslots.volkfelder] = Eigene;
  EinstellungenText[Textslots.sortierung1] = QStringLiteral("Gibtsnicht");
  EinstellungenText[Textslots.sortierung2] = QStringLiteral("Volknr");
  const Volkzeilen zeilen = volklisteMitErsatz(DB, Volkfilter::Bestand);
  EXPECT_EQ(nummern(zeilen), QStringList({"1", "2"}));
  EXPECT_TRUE(
      zeilen.meldung.startsWith("Die eingestellte Sortierung der Völkerliste kann nicht "
                                "benutzt werden:\r\n"))
      << qPrintable(zeilen.meldung);
  EXPECT_EQ(EinstellungenText[Textslots.volkfelder], Eigene);
  EXPECT_EQ(EinstellungenText[Textslots.sortierung1] + EinstellungenText[Textslots.sortierung2],
            QString());
}

TEST_F(Listenersatz, BeidesUnbrauchbarWirdBeidesErsetzt) {
  EinstellungenText[Textslots.volkfelder] = QStringLiteral("select Futterwaben");
  EinstellungenText[Textslots.sortierung1] = QStringLiteral("order");
  const Volkzeilen zeilen = volklisteMitErsatz(DB, Volkfilter::Bestand);
  EXPECT_EQ(nummern(zeilen), QStringList({"1", "2"}));
  EXPECT_TRUE(zeilen.meldung.contains("Die eingestellten Felder"));
  EXPECT_TRUE(zeilen.meldung.contains("Die eingestellte Sortierung"));
  EXPECT_EQ(EinstellungenText[Textslots.volkfelder], m_standard);
  EXPECT_EQ(EinstellungenText[Textslots.sortierung1], QString());
}

TEST_F(Listenersatz, FehlendeTabelleIstEinFehlerUndLässtDieEinstellungen) {
  EinstellungenText[Textslots.volkfelder] = Eigene;
  EinstellungenText[Textslots.sortierung1] = QStringLiteral("Volkname");
  DB.Execute("drop table Bienenvolk");
  EXPECT_THROW(volklisteMitErsatz(DB, Volkfilter::Alles), Datenbankfehler);
  EXPECT_EQ(EinstellungenText[Textslots.volkfelder], Eigene);
  EXPECT_EQ(EinstellungenText[Textslots.sortierung1], QStringLiteral("Volkname"));
}

TEST_F(Listenersatz, GeschlosseneDatenbankIstEinFehlerUndLässtDieEinstellungen) {
  EinstellungenText[Textslots.volkfelder] = Eigene;
  DB.Close();
  EXPECT_THROW(volklisteMitErsatz(DB, Volkfilter::Alles), Datenbankfehler);
  EXPECT_EQ(EinstellungenText[Textslots.volkfelder], Eigene);
}

TEST_F(Listenersatz, BrauchbareStockkartenfelderBleibenOhneMeldung) {
  const QString eigene = QStringLiteral("select Datum, Futterwaben, Volk_ID, ID from Stockkarte");
  EinstellungenText[Textslots.stockkartenfelder] = eigene;
  EXPECT_EQ(stockkartenfelderErsetzen(DB), QString());
  EXPECT_EQ(EinstellungenText[Textslots.stockkartenfelder], eigene);
  EinstellungenText[Textslots.stockkartenfelder].clear();
  stockkartenfelderPrüfen();
  EXPECT_EQ(stockkartenfelderErsetzen(DB), QString());  // the default itself
}

TEST_F(Listenersatz, UnbrauchbareStockkartenfelderWerdenDerStandard) {
  EinstellungenText[Textslots.stockkartenfelder].clear();
  stockkartenfelderPrüfen();
  const QString standard = EinstellungenText[Textslots.stockkartenfelder];
  for (const char* anweisung :
       {"select Datum, Gibtsnicht, Futterwaben, Volk_ID, ID from Stockkarte", "Futterwaben",
        "select Futterwaben, Volk_ID, ID from Stockkarte",
        "select Datum, Futterwaben, ID from Stockkarte",
        "select Datum, Futterwaben, Volk_ID from Stockkarte",
        "select Volknr, Futterwaben, Selektiert, ID from Bienenvolk"}) {
    EinstellungenText[Textslots.stockkartenfelder] = QString::fromUtf8(anweisung);
    EXPECT_TRUE(stockkartenfelderErsetzen(DB).startsWith(
        "Die eingestellten Felder der Stockkartenliste können nicht benutzt werden:\r\n"))
        << anweisung;
    EXPECT_EQ(EinstellungenText[Textslots.stockkartenfelder], standard) << anweisung;
  }
}
