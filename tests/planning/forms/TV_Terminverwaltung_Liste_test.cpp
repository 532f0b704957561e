// What the calendar shows: views, filters, sort, the current row.

#include "planning/forms/Terminverwaltungsprobe.h"

namespace {

TEST_F(TVTerminverwaltung, JedesÖffnenBeginntMitDenAllgemeinenTerminen) {
  öffne();
  klicke("opti_1");
  form->close();
  form->laden();
  EXPECT_TRUE(kind<QAbstractButton>("opti_0")->isChecked());
}

TEST_F(TVTerminverwaltung, DieZweiAnsichtenWechselnPerKlick) {
  öffne();
  volkansicht();
  EXPECT_EQ(spalte("Termin"), "Durchsicht");
  EXPECT_EQ(spalte("Volknr"), "7");
  klicke("opti_0");
  EXPECT_EQ(spalte("Termin"), "Schau Steuer");
}

TEST_F(TVTerminverwaltung, GeänderterFilterWirktBeimVerlassen) {
  öffne();
  tippe("...die Terminart", "Steuer");
  EXPECT_EQ(spalte("Termin"), "Schau Steuer");
  feld("Datum")->setFocus();
  EXPECT_EQ(spalte("Termin"), "Steuer");
  tippe("...die Terminart", "");
  tippe("...Termindatum bis", "1.8.06");
  feld("Datum")->setFocus();
  EXPECT_EQ(spalte("Termin"), "Schau Steuer Fest");
}

// As when the user looks something up in another program while he types.
TEST_F(TVTerminverwaltung, FilterWirktAuchNachEinemBlickInEinAnderesFenster) {
  öffne();
  tippe("...die Terminart", "Steuer");
  QFocusEvent hinaus(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  QApplication::sendEvent(feld("...die Terminart"), &hinaus);
  QFocusEvent herein(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
  QApplication::sendEvent(feld("...die Terminart"), &herein);
  EXPECT_EQ(spalte("Termin"), "Schau Steuer");
  feld("Datum")->setFocus();
  EXPECT_EQ(spalte("Termin"), "Steuer");
}

// Saving by its key reads the list with the filter that is just being typed.
TEST_F(TVTerminverwaltung, NachDemSpeichernAusEinemFilterBleibtDieNeueZeileAktuell) {
  öffne();
  tippe("Termin", "Markt");
  tippe("...die Terminart", "Markt");
  QTest::keyClick(feld("...die Terminart"), Qt::Key_N, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return spalte("Termin") == "Markt"; }));
  ASSERT_EQ(li()->aktuelleZeile(), 0);
  feld("Datum")->setFocus();
  EXPECT_EQ(li()->aktuelleZeile(), 0);
}

TEST_F(TVTerminverwaltung, UnveränderterFilterLiestNichtNeu) {
  öffne();
  klickeZeile(1);
  feld("...die Terminart")->setFocus();
  feld("Datum")->setFocus();
  EXPECT_EQ(li()->aktuelleZeile(), 1);
}

TEST_F(TVTerminverwaltung, EingabetasteImFilterZeigtDieListeUndSpeichertNichts) {
  öffne();
  tippe("Termin", "Neues");
  tippe("...die Terminart", "Steuer");
  QTest::keyClick(feld("...die Terminart"), Qt::Key_Return);
  EXPECT_EQ(spalte("Termin"), "Steuer");
  EXPECT_EQ(anzahl("Termine"), 4);
}

TEST_F(TVTerminverwaltung, LeeresVomDatumWirdBeimNächstenLesenGefüllt) {
  öffne();
  tippe("...Termindatum vom", "");
  feld("Datum")->setFocus();
  EXPECT_EQ(inhalt("...Termindatum vom"), "13.06.2006");
}

TEST_F(TVTerminverwaltung, LeeresBisDatumWirdBeimNächstenLesenGefüllt) {
  öffne();
  tippe("...Termindatum bis", "");
  feld("Datum")->setFocus();
  EXPECT_EQ(inhalt("...Termindatum bis"), "04.07.2006");
  EXPECT_EQ(inhalt("...Termindatum vom"), "13.06.2006");
  EXPECT_EQ(spalte("Termin"), "Schau Steuer");
}

TEST_F(TVTerminverwaltung, FilterNachVolknummerInDerVolkansicht) {
  const qint64 anderes = neuesVolk("9", "X", "Hof");
  termin(tag(6, 24), "Zarge", anderes);
  öffne();
  volkansicht();
  EXPECT_EQ(spalte("Volknr"), "7 9");
  feld("...die Volknummer")->setFocus();
  QTest::keyClicks(feld("...die Volknummer"), "9");
  feld("Datum")->setFocus();
  EXPECT_EQ(spalte("Termin"), "Zarge");
}

TEST_F(TVTerminverwaltung, FilterNachTerminartMitApostroph) {
  öffne();
  tippe("Termin", "Rund um's Volk");
  neu();
  tippe("...die Terminart", "Rund um's Volk");
  feld("Datum")->setFocus();
  EXPECT_EQ(spalte("Termin"), "Rund um`s Volk");
}

TEST_F(TVTerminverwaltung, FilterLässtGetipptesStehen) {
  öffne();
  klickeZeile(0);
  tippe("Termin", "halb getip");
  tippe("...die Terminart", "Steuer");
  feld("Datum")->setFocus();
  volkansicht();
  EXPECT_EQ(inhalt("Termin"), "halb getip");
  EXPECT_EQ(inhalt("Datum"), "21.06.2006");
}

TEST_F(TVTerminverwaltung, SortierungPerKopfBleibtBeimNeulesen) {
  termin(tag(6, 24), "Ausflug");
  öffne();
  auto* kopf = li()->horizontalHeader();
  const int stelle = kopf->sectionViewportPosition(li()->spaltenNummer("Termin")) + 5;
  QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {}, QPoint(stelle, kopf->height() / 2));
  ASSERT_EQ(spalte("Termin"), "Ausflug Schau Steuer");
  tippe("Termin", "Markt");
  neu();
  EXPECT_EQ(spalte("Termin"), "Ausflug Markt Schau Steuer");
  EXPECT_EQ(li()->aktuelleZeile(), 1);
  form->close();
  form->laden();
  EXPECT_EQ(spalte("Datum"), "20.06.2006 21.06.2006 22.06.2006 24.06.2006");
}

// The general view has no such column.
TEST_F(TVTerminverwaltung, SortierungNachVolknummerEndetInDerAllgemeinenAnsicht) {
  öffne();
  volkansicht();
  li()->sortiere(li()->spaltenNummer("Volknr"), Qt::DescendingOrder);
  klicke("opti_0");
  EXPECT_EQ(li()->sortierSpalte(), -1);
  EXPECT_EQ(spalte("Termin"), "Schau Steuer");
}

TEST_F(TVTerminverwaltung, FilterNachErledigungsStatus) {
  öffne();
  feld("...den Erledigungs-Status")->setFocus();
  QTest::keyClicks(feld("...den Erledigungs-Status"), "J");
  feld("Datum")->setFocus();
  EXPECT_EQ(spalte("Termin"), "Steuer");
}

TEST_F(TVTerminverwaltung, ZeileKommtInDieEingaben) {
  öffne();
  klickeZeile(1);
  EXPECT_EQ(inhalt("Datum"), "22.06.2006");
  EXPECT_EQ(inhalt("Termin"), "Steuer");
  EXPECT_EQ(inhalt("Erledigt (J/N)"), "J");
  EXPECT_EQ(inhalt("Volknummer"), "");
  EXPECT_EQ(inhalt("Heute in..."), "2");
  volkansicht();
  klickeZeile(0);
  EXPECT_EQ(inhalt("Volknummer"), "7");
}

TEST_F(TVTerminverwaltung, AllgemeinerTerminLeertDieVolknummer) {
  öffne();
  tippe("Volknummer", "7");
  klickeZeile(0);
  EXPECT_EQ(inhalt("Volknummer"), "");
}

TEST_F(TVTerminverwaltung, OkÖffnetDieOffenenTermineUndLiestDanachNeu) {
  öffne();
  klickeZeile(0);
  Formblick blick([](QWidget*) {
    TZ_Variablen::DB.Execute("update Termine set Erledigt = 'J' where Termin = 'Schau'");
  });
  klicke("ok");
  EXPECT_EQ(blick.name, "TV_Starttermine");
  EXPECT_EQ(spalte("Erledigt"), "J J");
  EXPECT_EQ(li()->aktuelleZeile(), 0);
}

TEST_F(TVTerminverwaltung, RückkehrAusDenOffenenTerminenZeigtDasNeueKennzeichen) {
  öffne();
  klickeZeile(0);
  Formblick blick([](QWidget*) {
    TZ_Variablen::DB.Execute("update Termine set Erledigt = 'J' where Termin = 'Schau'");
  });
  klicke("ok");
  EXPECT_EQ(inhalt("Erledigt (J/N)"), "J");
}

TEST_F(TVTerminverwaltung, RückkehrAusDenOffenenTerminenLässtGetipptesStehen) {
  öffne();
  klickeZeile(0);
  tippe("Datum", "30.06.2006");
  tippe("Termin", "Markt in der St");
  Formblick blick([](QWidget*) {});
  klicke("ok");
  EXPECT_EQ(blick.name, "TV_Starttermine");
  EXPECT_EQ(inhalt("Datum"), "30.06.2006");
  EXPECT_EQ(inhalt("Termin"), "Markt in der St");
  EXPECT_EQ(inhalt("Heute in..."), "10");
  EXPECT_EQ(li()->aktuelleZeile(), 0);
  klickeZeile(1);
  EXPECT_EQ(inhalt("Termin"), "Steuer");
}

TEST_F(TVTerminverwaltung, RückkehrAusDenOffenenTerminenLässtEinenGewähltenStandortStehen) {
  öffne();
  klickeZeile(0);
  feld("oder alle Völker am Standort")->setFocus();
  QTest::keyClicks(feld("oder alle Völker am Standort"), "H");
  Formblick blick([](QWidget*) {});
  klicke("ok");
  EXPECT_EQ(inhalt("oder alle Völker am Standort"), "Heide");
}

TEST_F(TVTerminverwaltung, GeschlossenHältDasFormularDieDatenbankNicht) {
  form = std::make_unique<TV_Terminverwaltung>();
  Formblick blick([](QWidget*) {});
  form->zeigen();
  EXPECT_EQ(blick.name, "TV_Terminverwaltung");
  boxen.hinweisMit("Die Datenbank ist geschlossen.");
  kind<QRadioButton>("opti_1")->click();
}

TEST_F(TVTerminverwaltung, WasNichtGeladenWerdenKannWirdNichtGezeigtUndHältDieDatenbankNicht) {
  db().Execute("drop table Termine");
  form = std::make_unique<TV_Terminverwaltung>();
  EXPECT_THROW(form->zeigen(), Datenbankfehler);
  EXPECT_FALSE(offen());
  boxen.hinweisMit("Die Datenbank ist geschlossen.");
  kind<QRadioButton>("opti_1")->click();
}

TEST_F(TVTerminverwaltung, SpaltenbreitenHabenIhrenSchlüssel) {
  Fensterablage::setDatei(TZ_Variablen::AppPfad + "TOVA2.LAY");
  öffne();
  li()->setColumnWidth(1, 187);
  EXPECT_EQ(Fensterablage::lesen("Spaltenbreiten/tv_terminverwaltung_litermine")
                .toList()
                .value(1)
                .toInt(),
            187);
  Fensterablage::setDatei({});
}

}  // namespace
