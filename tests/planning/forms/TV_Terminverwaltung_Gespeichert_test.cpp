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
    feld(10)->setFocus();
    QTest::keyClicks(feld(10), anfang);
  }
};

constexpr auto Ausgeblendet = "Gespeichert. Die Einschränkung oben blendet den Termin aus.";

TEST_F(TVTerminverwaltungGespeichert, TerminFuerEinVolkZeigtDieVolkansicht) {
  oeffne();
  tippe(0, "24.06.2006");
  tippe(1, "Umlarven");
  tippe(8, "7");
  neu();
  EXPECT_TRUE(ansicht(1));
  EXPECT_EQ(spalte("Termin"), "Durchsicht Umlarven");
  EXPECT_EQ(li()->aktuelleZeile(), 1);
  EXPECT_EQ(ausgeblendet(), "");
}

TEST_F(TVTerminverwaltungGespeichert, TerminAmStandortZeigtDieVolkansicht) {
  oeffne();
  tippe(0, "24.06.2006");
  tippe(1, "Zarge");
  standort("H");
  boxen.frageMit("Soll der Termin wirklich bei allen Völkern am Standort 'Heide'", true);
  neu();
  EXPECT_TRUE(ansicht(1));
  EXPECT_EQ(spalte("Termin"), "Durchsicht Zarge Zarge");
  EXPECT_GE(li()->aktuelleZeile(), 1);
}

TEST_F(TVTerminverwaltungGespeichert, AllgemeinerTerminZeigtDieAllgemeinen) {
  oeffne();
  volkansicht();
  tippe(0, "24.06.2006");
  tippe(1, "Markt");
  neu();
  EXPECT_TRUE(ansicht(0));
  EXPECT_EQ(spalte("Termin"), "Schau Steuer Markt");
  EXPECT_EQ(li()->aktuelleZeile(), 2);
}

TEST_F(TVTerminverwaltungGespeichert, AusserhalbDesZeitraumsWirdEsGesagtBisNeuGelesenWird) {
  oeffne();
  EXPECT_EQ(ausgeblendet(), "");
  tippe(0, "24.12.2006");
  tippe(1, "Weihnachtsmarkt");
  neu();
  EXPECT_EQ(termine("Termin = 'Weihnachtsmarkt'"), "24.12. Weihnachtsmarkt N 0");
  EXPECT_EQ(li()->aktuelleZeile(), -1);
  EXPECT_EQ(ausgeblendet(), Ausgeblendet);
  klicke("opti_1");
  EXPECT_EQ(ausgeblendet(), "");
}

// Who works through a list isn't taken out of it.
TEST_F(TVTerminverwaltungGespeichert, AendernLaesstDieAnsichtStehenUndSagtEs) {
  oeffne();
  volkansicht();
  klickeZeile(0);
  tippe(8, "");
  aendern();
  EXPECT_TRUE(ansicht(1));
  EXPECT_EQ(li()->zeilen(), 0);
  EXPECT_EQ(ausgeblendet(), Ausgeblendet);
}

TEST_F(TVTerminverwaltungGespeichert, WoNichtsEingetragenWurdeWirdAuchNichtsGesagt) {
  oeffne();
  tippe(1, "Zarge");
  standort("H");
  db().Execute("update Bienenvolk set Standort = 'Hof'");
  boxen.frageMit("Soll der Termin wirklich bei allen Völkern am Standort 'Heide'", true);
  neu();
  EXPECT_TRUE(ansicht(0));
  EXPECT_EQ(ausgeblendet(), "");
}

// Down the left column, then down the right one, as they are read.
TEST_F(TVTerminverwaltungGespeichert, DieTabulatortasteGehtSpalteFuerSpalte) {
  oeffne();
  feld(0)->setFocus();
  for (const int naechstes : {9, 2, 1, 8, 10}) {
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(feld(naechstes)->hasFocus()) << naechstes;
  }
}

TEST_F(TVTerminverwaltungGespeichert, EinAbgelehnterLaesstDieAnsichtStehen) {
  oeffne();
  tippe(1, "");
  tippe(8, "7");
  boxen.hinweisMit("Die Daten werden nicht gespeichert, weil...");
  neu();
  EXPECT_TRUE(ansicht(0));
  EXPECT_EQ(ausgeblendet(), "");
}

}  // namespace
