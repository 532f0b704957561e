#include <gtest/gtest.h>

#include <QLabel>

#include "planning/forms/Terminverwaltungsprobe.h"

// What was saved is to be seen, or the form says why it isn't.
namespace {

class TVTerminverwaltungGespeichert : public TVTerminverwaltung {
 protected:
  std::string ausgeblendet() { return kind<QLabel>("ausgeblendet")->text().toStdString(); }
  bool ansicht(int index) {
    return kind<QRadioButton>("opti_" + QString::number(index))->isChecked();
  }
  void standort(const QString& anfang) {
    feld("oder alle Völker am Standort")->setFocus();
    QTest::keyClicks(feld("oder alle Völker am Standort"), anfang);
  }
};

constexpr auto Ausgeblendet = "Gespeichert. Die Einschränkung oben blendet den Termin aus.";

TEST_F(TVTerminverwaltungGespeichert, TerminFürEinVolkZeigtDieVolkansicht) {
  öffne();
  tippe("Datum", "24.06.2006");
  tippe("Termin", "Umlarven");
  tippe("Volknummer", "7");
  neu();
  EXPECT_TRUE(ansicht(1));
  EXPECT_EQ(spalte("Termin"), "Durchsicht Umlarven");
  EXPECT_EQ(li()->aktuelleZeile(), 1);
  EXPECT_EQ(ausgeblendet(), "");
}

TEST_F(TVTerminverwaltungGespeichert, TerminAmStandortZeigtDieVolkansicht) {
  öffne();
  tippe("Datum", "24.06.2006");
  tippe("Termin", "Zarge");
  standort("H");
  boxen.frageMit("Soll der Termin wirklich bei allen Völkern am Standort 'Heide'", true);
  neu();
  EXPECT_TRUE(ansicht(1));
  EXPECT_EQ(spalte("Termin"), "Durchsicht Zarge Zarge");
  EXPECT_GE(li()->aktuelleZeile(), 1);
}

TEST_F(TVTerminverwaltungGespeichert, AllgemeinerTerminZeigtDieAllgemeinen) {
  öffne();
  volkansicht();
  tippe("Datum", "24.06.2006");
  tippe("Termin", "Markt");
  neu();
  EXPECT_TRUE(ansicht(0));
  EXPECT_EQ(spalte("Termin"), "Schau Steuer Markt");
  EXPECT_EQ(li()->aktuelleZeile(), 2);
}

TEST_F(TVTerminverwaltungGespeichert, AußerhalbDesZeitraumsWirdEsGesagtBisNeuGelesenWird) {
  öffne();
  EXPECT_EQ(ausgeblendet(), "");
  tippe("Datum", "24.12.2006");
  tippe("Termin", "Weihnachtsmarkt");
  neu();
  EXPECT_EQ(termine("Termin = 'Weihnachtsmarkt'"), "24.12. Weihnachtsmarkt N 0");
  EXPECT_EQ(li()->aktuelleZeile(), -1);
  EXPECT_EQ(ausgeblendet(), Ausgeblendet);
  klicke("opti_1");
  EXPECT_EQ(ausgeblendet(), "");
}

// Who works through a list isn't taken out of it.
TEST_F(TVTerminverwaltungGespeichert, ÄndernLässtDieAnsichtStehenUndSagtEs) {
  öffne();
  volkansicht();
  klickeZeile(0);
  tippe("Volknummer", "");
  ändern();
  EXPECT_TRUE(ansicht(1));
  EXPECT_EQ(li()->zeilen(), 0);
  EXPECT_EQ(ausgeblendet(), Ausgeblendet);
}

TEST_F(TVTerminverwaltungGespeichert, WoNichtsEingetragenWurdeWirdAuchNichtsGesagt) {
  öffne();
  tippe("Termin", "Zarge");
  standort("H");
  db().Execute("update Bienenvolk set Standort = 'Hof'");
  boxen.frageMit("Soll der Termin wirklich bei allen Völkern am Standort 'Heide'", true);
  neu();
  EXPECT_TRUE(ansicht(0));
  EXPECT_EQ(ausgeblendet(), "");
}

// Down the left column, then down the right one, as they are read.
TEST_F(TVTerminverwaltungGespeichert, DieTabulatortasteGehtSpalteFürSpalte) {
  öffne();
  feld("Datum")->setFocus();
  for (const int nächstes : {9, 2, 1, 8, 10}) {
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(feld(nächstes)->hasFocus()) << nächstes;
  }
}

TEST_F(TVTerminverwaltungGespeichert, EinAbgelehnterLässtDieAnsichtStehen) {
  öffne();
  tippe("Termin", "");
  tippe("Volknummer", "7");
  boxen.hinweisMit("Die Daten werden nicht gespeichert, weil...");
  neu();
  EXPECT_TRUE(ansicht(0));
  EXPECT_EQ(ausgeblendet(), "");
}

}  // namespace
