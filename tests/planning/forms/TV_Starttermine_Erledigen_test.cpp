// Closing appointments from the list of the open ones.

#include "planning/forms/Starttermineprobe.h"

namespace {

TEST_F(TVStarttermine, LangerStandortnameErledigtSeineTermine) {
  const QString ort = "Lindenallee am Schloßpark hinter der Mühle";
  const qint64 volk = neuesVolk("1", "X", ort);
  termin(tag(6, 15), "Durchsicht", volk);
  öffne();
  klickeZeile(0);
  EXPECT_EQ(inhalt("am Standort"), ort.toStdString());
  boxen.frageMit("Es wurden 1 Termine gefunden.", true);
  klicke("cmdok_3");
  EXPECT_EQ(spalte("Datum"), "");
}

TEST_F(TVStarttermine, AnpassenWirdBeiJedemÖffnenNeuGewählt) {
  öffne();
  klicke("konterminreihe");
  ASSERT_TRUE(kind<QCheckBox>("konterminreihe")->isChecked());
  form->close();
  form->laden();
  EXPECT_FALSE(kind<QCheckBox>("konterminreihe")->isChecked());
}

TEST_F(TVStarttermine, DoppelklickErledigtAmGeplantenTag) {
  fünf();
  öffne();
  doppelklick(1);
  EXPECT_EQ(termine("Erledigt = 'J'"), "16.06. Durchsicht J " + std::to_string(volk2));
  EXPECT_EQ(inhalt("Erledigungsdatum"), "16.06.2006");
  EXPECT_EQ(li()->zeilen(), 3);
  EXPECT_EQ(li()->aktuelleZeile(), 1);
}

TEST_F(TVStarttermine, OhneZeileWirdUmMarkierungGebeten) {
  fünf();
  öffne();
  boxen.hinweis("Bitte markieren Sie zuerst den zu erledigenden Termin.");
  klicke("cmdok_0");
  boxen.hinweis("Bitter markieren Sie zuerst die zu erledigenden Termine.");
  klicke("cmdok_1");
  EXPECT_EQ(termine("Erledigt = 'J'"), "");
}

TEST_F(TVStarttermine, AktuellerWirdZumObigenDatumErledigt) {
  fünf();
  öffne();
  klickeZeile(0);
  tippe("Erledigungsdatum", "19.6.06");
  klicke("cmdok_0");
  EXPECT_EQ(termine("Erledigt = 'J'"), "19.06. Durchsicht J " + std::to_string(volk1));
}

TEST_F(TVStarttermine, UngültigesDatumErledigtOhneDenTagUndOhneDieReihe) {
  fünf();
  option("Durchsicht", "01.06", 14, "31.08");
  öffne();
  klickeZeile(0);
  klicke("konterminreihe");
  tippe("Erledigungsdatum", "31.02.2006");
  klicke("cmdok_0");
  EXPECT_EQ(termine("Erledigt = 'J'"), "15.06. Durchsicht J " + std::to_string(volk1));
  EXPECT_EQ(anzahl("Termine"), 5);
}

TEST_F(TVStarttermine, HakenPasstDieReiheAn) {
  fünf();
  option("Durchsicht", "01.06", 14, "31.07");
  öffne();
  klickeZeile(0);
  klicke("konterminreihe");
  klicke("cmdok_0");
  const std::string volk = std::to_string(volk1);
  EXPECT_EQ(termine("Volk_ID = " + QString::number(volk1)), "20.06. Durchsicht J " + volk +
                                                                "; 04.07. Durchsicht N " + volk +
                                                                "; 18.07. Durchsicht N " + volk);
}

TEST_F(TVStarttermine, DoppelklickPasstDieReiheAbDemGeplantenTagAn) {
  fünf();
  option("Durchsicht", "01.06", 14, "31.07");
  öffne();
  klicke("konterminreihe");
  doppelklick(0);
  const std::string volk = std::to_string(volk1);
  EXPECT_EQ(termine("Volk_ID = " + QString::number(volk1)),
            "15.06. Durchsicht J " + volk + "; 29.06. Durchsicht N " + volk +
                "; 13.07. Durchsicht N " + volk + "; 27.07. Durchsicht N " + volk);
}

TEST_F(TVStarttermine, ZeileBleibtAktuellNachDemErledigenDerMarkierten) {
  fünf();
  öffne();
  klickeZeile(0);
  QTest::mouseClick(li()->viewport(), Qt::LeftButton, Qt::ControlModifier, mitte(li(), 2));
  ASSERT_EQ(li()->aktuelleZeile(), 2);
  boxen.frage("Sollen die 2 Termine wirklich als erledigt markiert werden?", true);
  klicke("cmdok_1");
  EXPECT_EQ(spalte("Datum"), "16.06.2006 04.07.2006");
  EXPECT_EQ(li()->aktuelleZeile(), 1);
  klickeZeile(0);
  boxen.frage("Sollen die 1 Termine wirklich als erledigt markiert werden?", true);
  klicke("cmdok_1");
  EXPECT_EQ(spalte("Datum"), "04.07.2006");
  EXPECT_EQ(li()->aktuelleZeile(), 0);
}

TEST_F(TVStarttermine, ZeileOderDieLetzteBleibtAktuellNachAllenBisHeute) {
  fünf();
  termin(tag(6, 25), "Fest");
  öffne();
  klickeZeile(1);
  boxen.frageMit("Sollen wirklich alle Termine bis einschließlich zum 20.06.2006", true);
  klicke("cmdok_2");
  EXPECT_EQ(spalte("Datum"), "25.06.2006 04.07.2006");
  EXPECT_EQ(li()->aktuelleZeile(), 1);
  termin(tag(6, 19), "spät bemerkt");
  form->laden();
  klickeZeile(2);
  boxen.frageMit("Sollen wirklich alle Termine bis einschließlich zum 20.06.2006", true);
  klicke("cmdok_2");
  EXPECT_EQ(li()->aktuelleZeile(), 1);
}

TEST_F(TVStarttermine, ZeileBleibtAktuellNachDemErledigenAmStandort) {
  fünf();
  öffne();
  klickeZeile(1);
  boxen.frage("Es wurden 2 Termine gefunden. Sollen diese wirklich erledigt werden?", true);
  klicke("cmdok_3");
  EXPECT_EQ(spalte("Datum"), "20.06.2006 04.07.2006");
  EXPECT_EQ(li()->aktuelleZeile(), 1);
}

TEST_F(TVStarttermine, LetzterErledigterTerminLässtKeineZeileAktuell) {
  termin(tag(6, 15), "Schau");
  öffne();
  doppelklick(0);
  EXPECT_EQ(li()->zeilen(), 0);
  EXPECT_EQ(li()->aktuelleZeile(), -1);
  boxen.hinweis("Bitte markieren Sie zuerst den zu erledigenden Termin.");
  klicke("cmdok_0");
}

TEST_F(TVStarttermine, SortierungPerKopfBleibtNachDemErledigen) {
  fünf();
  öffne();
  auto* kopf = li()->horizontalHeader();
  const int stelle = kopf->sectionViewportPosition(li()->spaltenNummer("Volknr")) + 5;
  QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {}, QPoint(stelle, kopf->height() / 2));
  QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {}, QPoint(stelle, kopf->height() / 2));
  ASSERT_EQ(spalte("Volknr"), "2 1 1 ");
  klickeZeile(0);
  klicke("cmdok_0");
  EXPECT_EQ(spalte("Volknr"), "1 1 ");
  EXPECT_EQ(li()->aktuelleZeile(), 0);
}

TEST_F(TVStarttermine, LetzteZeileErledigtMachtDieNeueLetzteAktuell) {
  fünf();
  öffne();
  klickeZeile(3);
  klicke("cmdok_0");
  EXPECT_EQ(li()->zeilen(), 3);
  EXPECT_EQ(li()->aktuelleZeile(), 2);
}

TEST_F(TVStarttermine, MarkierteMitJaErledigenUndMitNeinNicht) {
  fünf();
  öffne();
  li()->setMarkierteZeilen({0, 2});
  boxen.frage("Sollen die 2 Termine wirklich als erledigt markiert werden?", false);
  klicke("cmdok_1");
  EXPECT_EQ(termine("Erledigt = 'J'"), "");
  boxen.frage("Sollen die 2 Termine wirklich als erledigt markiert werden?", true);
  klicke("cmdok_1");
  EXPECT_EQ(termine("Erledigt = 'J'"),
            "15.06. Durchsicht J " + std::to_string(volk1) + "; 20.06. Schau J 0");
}

TEST_F(TVStarttermine, MarkiertePassenAuchMitHakenKeineReiheAn) {
  fünf();
  option("Durchsicht", "01.06", 14, "31.07");
  öffne();
  klicke("konterminreihe");
  klickeZeile(0);
  boxen.frage("Sollen die 1 Termine wirklich als erledigt markiert werden?", true);
  klicke("cmdok_1");
  const std::string volk = std::to_string(volk1);
  EXPECT_EQ(termine("Volk_ID = " + QString::number(volk1)), "15.06. Durchsicht J " + volk +
                                                                "; 04.07. Durchsicht N " + volk +
                                                                "; 05.07. Durchsicht N " + volk);
}

TEST_F(TVStarttermine, BisHeuteMitJaErledigenUndMitNeinNicht) {
  fünf();
  öffne();
  const QString frage =
      "Sollen wirklich alle Termine bis einschließlich zum 20.06.2006 als erledigt markiert "
      "werden?";
  boxen.frage(frage, false);
  klicke("cmdok_2");
  EXPECT_EQ(anzahl("Termine", "Erledigt = 'J'"), 0);
  boxen.frage(frage, true);
  klicke("cmdok_2");
  EXPECT_EQ(anzahl("Termine", "Erledigt = 'J'"), 3);
  EXPECT_EQ(spalte("Datum"), "04.07.2006");
}

TEST_F(TVStarttermine, StandortOhneAngabenWirdErklärt) {
  fünf();
  öffne();
  boxen.hinweis(
      "Die Terminart, der betroffene Standort und der Zeitraum (bis wann eine Erledigung "
      "gewünscht wird) muss angegeben werden!");
  klicke("cmdok_3");
}

TEST_F(TVStarttermine, StandortOhneTrefferBleibtStill) {
  fünf();
  öffne();
  tippe("Die Termine", "Anderes");
  tippe("am Standort", "Hof");
  klicke("cmdok_3");
  EXPECT_EQ(anzahl("Termine", "Erledigt = 'J'"), 0);
}

TEST_F(TVStarttermine, StandortMitEinemEndeDasKeinDatumIstWirdErklärt) {
  fünf();
  öffne();
  tippe("Die Termine", "Durchsicht");
  tippe("am Standort", "Hof");
  tippe("bis einschl.", "31.02.2006");
  boxen.hinweisMit("Die Terminart, der betroffene Standort und der Zeitraum");
  klicke("cmdok_3");
  EXPECT_EQ(anzahl("Termine", "Erledigt = 'J'"), 0);
}

TEST_F(TVStarttermine, StandortMitNeinErledigtNichts) {
  fünf();
  öffne();
  klickeZeile(1);
  boxen.frage("Es wurden 2 Termine gefunden. Sollen diese wirklich erledigt werden?", false);
  klicke("cmdok_3");
  EXPECT_EQ(anzahl("Termine", "Erledigt = 'J'"), 0);
  EXPECT_EQ(li()->aktuelleZeile(), 1);
}

TEST_F(TVStarttermine, StandortMitHakenPasstDieReiheJedesVolkesAn) {
  fünf();
  option("Durchsicht", "01.06", 14, "10.07");
  öffne();
  klickeZeile(1);
  klicke("konterminreihe");
  boxen.frage("Es wurden 2 Termine gefunden. Sollen diese wirklich erledigt werden?", true);
  klicke("cmdok_3");
  for (const qint64 volk : {volk1, volk2}) {
    EXPECT_EQ(termine("Volk_ID = " + QString::number(volk)),
              "20.06. Durchsicht J " + std::to_string(volk) + "; 04.07. Durchsicht N " +
                  std::to_string(volk));
  }
}

TEST_F(TVStarttermine, StandortMitErledigungsdatumDasKeinesIstBehältTageUndReihe) {
  fünf();
  option("Durchsicht", "01.06", 14, "10.07");
  öffne();
  klickeZeile(1);
  klicke("konterminreihe");
  tippe("Erledigungsdatum", "31.02.2006");
  boxen.frage("Es wurden 2 Termine gefunden. Sollen diese wirklich erledigt werden?", true);
  klicke("cmdok_3");
  EXPECT_EQ(termine("Erledigt = 'J'"), "15.06. Durchsicht J " + std::to_string(volk1) +
                                           "; 16.06. Durchsicht J " + std::to_string(volk2));
  EXPECT_EQ(termine("Erledigt = 'N'"), "20.06. Schau N 0; 04.07. Durchsicht N " +
                                           std::to_string(volk1) + "; 05.07. Durchsicht N " +
                                           std::to_string(volk1));
}

TEST_F(TVStarttermine, StandortZähltAlleUndErledigtDieDerListe) {
  fünf();
  öffne();
  tippe("Die Termine", "Durchsicht");
  tippe("am Standort", "Hof");
  tippe("bis einschl.", "31.07.2006");
  boxen.frage("Es wurden 4 Termine gefunden. Sollen diese wirklich erledigt werden?", true);
  klicke("cmdok_3");
  EXPECT_EQ(anzahl("Termine", "Erledigt = 'J' and Datum = #06/20/2006#"), 3);
  EXPECT_EQ(termine("Erledigt = 'N'"),
            "20.06. Schau N 0; 05.07. Durchsicht N " + std::to_string(volk1));
}

// The option can't be read: the series' open appointments are gone by then.
TEST_F(TVStarttermine, FehlschlagAufHalbemWegZeigtWasGeschriebenIst) {
  fünf();
  öffne();
  klicke("konterminreihe");
  klickeZeile(0);
  db().Execute("drop table Arbeitsplanoptionen");
  boxen.hinweisMit("Arbeitsplanoptionen");
  klicke("cmdok_0");
  EXPECT_EQ(spalte("Datum"), "16.06.2006 20.06.2006");
  EXPECT_EQ(li()->aktuelleZeile(), 0);
  EXPECT_TRUE(form->isVisible());
}

TEST_F(TVStarttermine, FehlschlagErledigtNichtsUndLässtDieEingaben) {
  fünf();
  öffne();
  klickeZeile(0);
  tippe("Erledigungsdatum", "19.06.2006");
  scheitern("update");
  boxen.hinweisMit("kein Platz");
  klicke("cmdok_0");
  EXPECT_EQ(anzahl("Termine", "Erledigt = 'J'"), 0);
  EXPECT_EQ(li()->zeilen(), 4);
  EXPECT_EQ(inhalt("Erledigungsdatum"), "19.06.2006");
}

}  // namespace
