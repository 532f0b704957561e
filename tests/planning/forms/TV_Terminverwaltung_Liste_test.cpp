// What the calendar shows: views, filters, sort, the current row.

#include "planning/forms/Terminverwaltungsprobe.h"

namespace {

TEST_F(TVTerminverwaltung, JedesOeffnenBeginntMitDenAllgemeinenTerminen) {
  oeffne();
  klicke("opti_1");
  form->close();
  form->laden();
  EXPECT_TRUE(kind<QAbstractButton>("opti_0")->isChecked());
}

TEST_F(TVTerminverwaltung, DieZweiAnsichtenWechselnPerKlick) {
  oeffne();
  volkansicht();
  EXPECT_EQ(spalte("Termin"), "Durchsicht");
  EXPECT_EQ(spalte("Volknr"), "7");
  klicke("opti_0");
  EXPECT_EQ(spalte("Termin"), "Schau Steuer");
}

TEST_F(TVTerminverwaltung, GeaenderterFilterWirktBeimVerlassen) {
  oeffne();
  tippe(4, "Steuer");
  EXPECT_EQ(spalte("Termin"), "Schau Steuer");
  feld(0)->setFocus();
  EXPECT_EQ(spalte("Termin"), "Steuer");
  tippe(4, "");
  tippe(7, "1.8.06");
  feld(0)->setFocus();
  EXPECT_EQ(spalte("Termin"), "Schau Steuer Fest");
}

// As when the user looks something up in another program while he types.
TEST_F(TVTerminverwaltung, FilterWirktAuchNachEinemBlickInEinAnderesFenster) {
  oeffne();
  tippe(4, "Steuer");
  QFocusEvent hinaus(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  QApplication::sendEvent(feld(4), &hinaus);
  QFocusEvent herein(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
  QApplication::sendEvent(feld(4), &herein);
  EXPECT_EQ(spalte("Termin"), "Schau Steuer");
  feld(0)->setFocus();
  EXPECT_EQ(spalte("Termin"), "Steuer");
}

// Saving by its key reads the list with the filter that is just being typed.
TEST_F(TVTerminverwaltung, NachDemSpeichernAusEinemFilterBleibtDieNeueZeileAktuell) {
  oeffne();
  tippe(1, "Markt");
  tippe(4, "Markt");
  QTest::keyClick(feld(4), Qt::Key_N, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return spalte("Termin") == "Markt"; }));
  ASSERT_EQ(li()->aktuelleZeile(), 0);
  feld(0)->setFocus();
  EXPECT_EQ(li()->aktuelleZeile(), 0);
}

TEST_F(TVTerminverwaltung, UnveraenderterFilterLiestNichtNeu) {
  oeffne();
  klickeZeile(1);
  feld(4)->setFocus();
  feld(0)->setFocus();
  EXPECT_EQ(li()->aktuelleZeile(), 1);
}

TEST_F(TVTerminverwaltung, EingabetasteImFilterZeigtDieListeUndSpeichertNichts) {
  oeffne();
  tippe(1, "Neues");
  tippe(4, "Steuer");
  QTest::keyClick(feld(4), Qt::Key_Return);
  EXPECT_EQ(spalte("Termin"), "Steuer");
  EXPECT_EQ(anzahl("Termine"), 4);
}

TEST_F(TVTerminverwaltung, LeeresVomDatumWirdBeimNaechstenLesenGefuellt) {
  oeffne();
  tippe(6, "");
  feld(0)->setFocus();
  EXPECT_EQ(inhalt(6), "13.06.2006");
}

TEST_F(TVTerminverwaltung, LeeresBisDatumWirdBeimNaechstenLesenGefuellt) {
  oeffne();
  tippe(7, "");
  feld(0)->setFocus();
  EXPECT_EQ(inhalt(7), "04.07.2006");
  EXPECT_EQ(inhalt(6), "13.06.2006");
  EXPECT_EQ(spalte("Termin"), "Schau Steuer");
}

TEST_F(TVTerminverwaltung, FilterNachVolknummerInDerVolkansicht) {
  const qint64 anderes = neuesVolk("9", "X", "Hof");
  termin(tag(6, 24), "Zarge", anderes);
  oeffne();
  volkansicht();
  EXPECT_EQ(spalte("Volknr"), "7 9");
  feld(3)->setFocus();
  QTest::keyClicks(feld(3), "9");
  feld(0)->setFocus();
  EXPECT_EQ(spalte("Termin"), "Zarge");
}

TEST_F(TVTerminverwaltung, FilterNachTerminartMitApostroph) {
  oeffne();
  tippe(1, "Rund um's Volk");
  neu();
  tippe(4, "Rund um's Volk");
  feld(0)->setFocus();
  EXPECT_EQ(spalte("Termin"), "Rund um`s Volk");
}

TEST_F(TVTerminverwaltung, FilterLaesstGetipptesStehen) {
  oeffne();
  klickeZeile(0);
  tippe(1, "halb getip");
  tippe(4, "Steuer");
  feld(0)->setFocus();
  volkansicht();
  EXPECT_EQ(inhalt(1), "halb getip");
  EXPECT_EQ(inhalt(0), "21.06.2006");
}

TEST_F(TVTerminverwaltung, SortierungPerKopfBleibtBeimNeulesen) {
  termin(tag(6, 24), "Ausflug");
  oeffne();
  auto* kopf = li()->horizontalHeader();
  const int stelle = kopf->sectionViewportPosition(li()->spaltenNummer("Termin")) + 5;
  QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {}, QPoint(stelle, kopf->height() / 2));
  ASSERT_EQ(spalte("Termin"), "Ausflug Schau Steuer");
  tippe(1, "Markt");
  neu();
  EXPECT_EQ(spalte("Termin"), "Ausflug Markt Schau Steuer");
  EXPECT_EQ(li()->aktuelleZeile(), 1);
  form->close();
  form->laden();
  EXPECT_EQ(spalte("Datum"), "20.06.2006 21.06.2006 22.06.2006 24.06.2006");
}

// The general view has no such column.
TEST_F(TVTerminverwaltung, SortierungNachVolknummerEndetInDerAllgemeinenAnsicht) {
  oeffne();
  volkansicht();
  li()->sortiere(li()->spaltenNummer("Volknr"), Qt::DescendingOrder);
  klicke("opti_0");
  EXPECT_EQ(li()->sortierSpalte(), -1);
  EXPECT_EQ(spalte("Termin"), "Schau Steuer");
}

TEST_F(TVTerminverwaltung, FilterNachErledigungsStatus) {
  oeffne();
  feld(5)->setFocus();
  QTest::keyClicks(feld(5), "J");
  feld(0)->setFocus();
  EXPECT_EQ(spalte("Termin"), "Steuer");
}

TEST_F(TVTerminverwaltung, ZeileKommtInDieEingaben) {
  oeffne();
  klickeZeile(1);
  EXPECT_EQ(inhalt(0), "22.06.2006");
  EXPECT_EQ(inhalt(1), "Steuer");
  EXPECT_EQ(inhalt(2), "J");
  EXPECT_EQ(inhalt(8), "");
  EXPECT_EQ(inhalt(9), "2");
  volkansicht();
  klickeZeile(0);
  EXPECT_EQ(inhalt(8), "7");
}

TEST_F(TVTerminverwaltung, AllgemeinerTerminLeertDieVolknummer) {
  oeffne();
  tippe(8, "7");
  klickeZeile(0);
  EXPECT_EQ(inhalt(8), "");
}

TEST_F(TVTerminverwaltung, OkOeffnetDieOffenenTermineUndLiestDanachNeu) {
  oeffne();
  klickeZeile(0);
  Formblick blick([](QWidget*) {
    TZ_Variablen::DB.Execute("update Termine set Erledigt = 'J' where Termin = 'Schau'");
  });
  klicke("ok");
  EXPECT_EQ(blick.name, "TV_Starttermine");
  EXPECT_EQ(spalte("Erledigt"), "J J");
  EXPECT_EQ(li()->aktuelleZeile(), 0);
}

TEST_F(TVTerminverwaltung, RueckkehrAusDenOffenenTerminenZeigtDasNeueKennzeichen) {
  oeffne();
  klickeZeile(0);
  Formblick blick([](QWidget*) {
    TZ_Variablen::DB.Execute("update Termine set Erledigt = 'J' where Termin = 'Schau'");
  });
  klicke("ok");
  EXPECT_EQ(inhalt(2), "J");
}

TEST_F(TVTerminverwaltung, RueckkehrAusDenOffenenTerminenLaesstGetipptesStehen) {
  oeffne();
  klickeZeile(0);
  tippe(0, "30.06.2006");
  tippe(1, "Markt in der St");
  Formblick blick([](QWidget*) {});
  klicke("ok");
  EXPECT_EQ(blick.name, "TV_Starttermine");
  EXPECT_EQ(inhalt(0), "30.06.2006");
  EXPECT_EQ(inhalt(1), "Markt in der St");
  EXPECT_EQ(inhalt(9), "10");
  EXPECT_EQ(li()->aktuelleZeile(), 0);
  klickeZeile(1);
  EXPECT_EQ(inhalt(1), "Steuer");
}

TEST_F(TVTerminverwaltung, RueckkehrAusDenOffenenTerminenLaesstEinenGewaehltenStandortStehen) {
  oeffne();
  klickeZeile(0);
  feld(10)->setFocus();
  QTest::keyClicks(feld(10), "H");
  Formblick blick([](QWidget*) {});
  klicke("ok");
  EXPECT_EQ(inhalt(10), "Heide");
}

TEST_F(TVTerminverwaltung, GeschlossenHaeltDasFormularDieDatenbankNicht) {
  form = std::make_unique<TV_Terminverwaltung>();
  Formblick blick([](QWidget*) {});
  form->zeigen();
  EXPECT_EQ(blick.name, "TV_Terminverwaltung");
  boxen.hinweisMit("Die Datenbank ist geschlossen.");
  kind<QRadioButton>("opti_1")->click();
}

TEST_F(TVTerminverwaltung, WasNichtGeladenWerdenKannWirdNichtGezeigtUndHaeltDieDatenbankNicht) {
  db().Execute("drop table Termine");
  form = std::make_unique<TV_Terminverwaltung>();
  EXPECT_THROW(form->zeigen(), Datenbankfehler);
  EXPECT_FALSE(offen());
  boxen.hinweisMit("Die Datenbank ist geschlossen.");
  kind<QRadioButton>("opti_1")->click();
}

TEST_F(TVTerminverwaltung, SpaltenbreitenHabenIhrenSchluessel) {
  Fensterablage::setDatei(TZ_Variablen::AppPfad + "TOVA2.LAY");
  oeffne();
  li()->setColumnWidth(1, 187);
  EXPECT_EQ(Fensterablage::lesen("Spaltenbreiten/tv_terminverwaltung_litermine")
                .toList()
                .value(1)
                .toInt(),
            187);
  Fensterablage::setDatei({});
}

}  // namespace
