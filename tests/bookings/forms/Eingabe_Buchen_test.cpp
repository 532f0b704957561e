// New, change, delete and closing, as the user does them.
#include "Eingabeprobe.h"

namespace {

using Buchen = Eingabeprobe;
using namespace TZ_Variablen;

const QString FalschesDatum =
    "Die Buchung wird nicht ausgeführt, weil das Datum nicht korrekt ist.";
const QString DreiMarkiert =
    "Es sind im Moment 3 Völker markiert. Soll die Buchung wirklich bei allen markierten Völkern "
    "eingetragen werden?";

TEST_F(Buchen, NeuMitEinemVolkFragtNichtsUndBuchtSofort) {
  oeffne(5);
  tippe(1, "Füttern");
  tippe(2, "1,5");
  tippe(4, "nach Regen");
  klicke("neu_0");
  const Daten daten = lies("select * from Arbeiten");
  ASSERT_EQ(daten->zeilen(), 1);
  const auto feldwert = [&](const char* name) {
    return daten->wert(0, daten->spaltenNummer(QString(name)));
  };
  EXPECT_EQ(feldwert("Datum"), QDate(2026, 6, 15));
  EXPECT_EQ(feldwert("Arbeitsart"), "Füttern");
  EXPECT_EQ(feldwert("Zeit_h"), 1.5);
  EXPECT_EQ(feldwert("Bemerkung"), "nach Regen");
  EXPECT_EQ(feldwert("Volk_ID").toInt(), 1);
  EXPECT_EQ(li()->zeilen(), 1);
  EXPECT_EQ(ListeNeuLesen, 1);
  EXPECT_TRUE(hatFokus(0));
  EXPECT_EQ(text(1), "Füttern") << "the newest booking is the copy to begin with";
}

TEST_F(Buchen, DieEingabetasteBuchtAusJedemPlatz) {
  oeffne(5);
  tippe(1, "Füttern");
  taste(feld(1), Qt::Key_Return);
  EXPECT_EQ(anzahl("Arbeiten"), 1);
  EXPECT_TRUE(hatFokus(0));
}

TEST_F(Buchen, NachLoeschenUndNeinBuchtDieEingabetasteWieder) {
  zeile("Arbeiten", 1, "2026-05-20", {{"Arbeitsart", "Füttern"}});
  TZ_Variablen::EinstellungenZahl[55] = 1;
  oeffne(5);
  boxen.frageMit("Soll der markierte Datensatz", false);
  kind<QAbstractButton>("löschen")->setFocus();
  klicke("löschen");
  tippe(1, "Kontrolle");
  taste(feld(1), Qt::Key_Return);
  EXPECT_EQ(anzahl("Arbeiten"), 2);
}

TEST_F(Buchen, NachDemSchliessenUndWiederoeffnenBuchtDieEingabetaste) {
  oeffne(5);
  kind<QAbstractButton>("cmdschließen")->setFocus();
  klicke("cmdschließen");
  oeffne(5);
  tippe(1, "Kontrolle");
  taste(feld(1), Qt::Key_Return);
  EXPECT_EQ(anzahl("Arbeiten"), 1);
  EXPECT_TRUE(form->isVisible());
}

TEST_F(Buchen, EineGehalteneEingabetasteBuchtNurEinmal) {
  oeffne(5);
  tippe(1, "Füttern");
  taste(feld(1), Qt::Key_Return);
  for (int i = 0; i < 5; ++i) {
    QKeyEvent nochmal(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(feld(0), &nochmal);
  }
  EXPECT_EQ(anzahl("Arbeiten"), 1);
}

TEST_F(Buchen, DieEingabetasteInDenListenBuchtNicht) {
  zeile("Arbeiten", 1, "2026-05-20", {{"Arbeitsart", "Füttern"}});
  oeffne(5);
  for (QWidget* hier : QList<QWidget*>{li(), volkli(), kind<QWidget>("kom")}) {
    hier->setFocus();
    taste(hier, Qt::Key_Return);
    EXPECT_EQ(anzahl("Arbeiten"), 1);
    EXPECT_TRUE(hatFokus(0));
  }
}

TEST_F(Buchen, DatumskurzformenWerdenErgaenztAuchWennSofortGebuchtWird) {
  const QList<std::pair<QString, QDate>> faelle{
      {"5", QDate(2026, 6, 5)},      {"17", QDate(2026, 6, 17)},        {"32", QDate(2026, 2, 3)},
      {"1.1", QDate(2026, 1, 1)},    {"010126", QDate(2026, 1, 1)},     {"0305", QDate(2026, 5, 3)},
      {"1.2.26", QDate(2026, 2, 1)}, {"29.02.2024", QDate(2024, 2, 29)}};
  oeffne(7);
  for (const auto& [getippt, datum] : faelle) {
    DB.Execute("delete from Gewichtsmessung");
    tippe(0, getippt);
    taste(feld(0), Qt::Key_Return);
    EXPECT_EQ(wert("select Datum from Gewichtsmessung"), datum) << qPrintable(getippt);
    EXPECT_EQ(text(0), datum.toString("dd.MM.yyyy"));
  }
}

TEST_F(Buchen, DieMerktasteErgaenztDasDatumAuch) {
  oeffne(7);
  tippe(0, "5");
  taste(feld(0), Qt::Key_N, Qt::AltModifier);
  QTest::qWait(150);  // the button springs back before it clicks
  EXPECT_EQ(wert("select Datum from Gewichtsmessung"), QDate(2026, 6, 5));
}

TEST_F(Buchen, Der31FebruarWirdAbgelehntUndNichtsGeschrieben) {
  oeffne(5);
  tippe(1, "Füttern");
  tippe(0, "31.2.2026");
  boxen.hinweis(FalschesDatum);
  taste(feld(0), Qt::Key_Return);
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
  EXPECT_EQ(ListeNeuLesen, 0);
  EXPECT_EQ(text(1), "Füttern");
  EXPECT_TRUE(hatFokus(0)) << "where there is something to mend";
}

TEST_F(Buchen, OhneDatumWirdNichtsGebucht) {
  oeffne(5);
  tippe(0, "");
  taste(feld(0), Qt::Key_Delete);
  boxen.hinweis(FalschesDatum);
  klicke("neu_0");
  boxen.hinweis(FalschesDatum);
  klicke("neu_1");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
}

TEST_F(Buchen, NeuOhneMarkiertesVolkVerlangtEines) {
  oeffne(5);
  markiere({});
  boxen.hinweis(
      "Bitte markieren Sie zuerst die Völker, bei denen die Buchung ausgeführt werden soll!");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
}

TEST_F(Buchen, MitDreiMarkiertenVoelkernWirdEinmalGefragtUndBeiAllenGebucht) {
  markiere({0, 1, 2});
  oeffne(5);
  tippe(1, "Füttern");
  boxen.frage(DreiMarkiert, true);
  klicke("neu_0");
  EXPECT_EQ(boxen.fehler(), "");
  const Daten daten = lies("select Volk_ID from Arbeiten order by ID");
  ASSERT_EQ(daten->zeilen(), 3);
  EXPECT_EQ(daten->ganzzahl(0, 0), 1);
  EXPECT_EQ(daten->ganzzahl(1, 0), 2);
  EXPECT_EQ(daten->ganzzahl(2, 0), 3);
  EXPECT_FALSE(SammelFolgevolk);
  EXPECT_EQ(liste->markierteZeilen(), (QList<int>{0, 1, 2})) << "the marking stays";
}

TEST_F(Buchen, NeinAufDieFrageBuchtNichtsUndDieEingabeBleibt) {
  markiere({0, 1, 2});
  oeffne(5);
  tippe(1, "Füttern");
  boxen.frage(DreiMarkiert, false);
  klicke("neu_0");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
  EXPECT_EQ(text(1), "Füttern");
}

TEST_F(Buchen, AendernOhneBuchungVerlangtEinenDatensatz) {
  oeffne(5);
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  klicke("neu_1");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
}

TEST_F(Buchen, AendernSchreibtDieGewaehlteZeileUndFindetSieWieder) {
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  zeile("Arbeiten", 1, "2026-05-02", {{"Arbeitsart", "zwei"}});
  zeile("Arbeiten", 1, "2026-05-03", {{"Arbeitsart", "drei"}});
  oeffne(5);
  klicke(li(), 1);
  tippe(1, "zwei neu");
  tippe(0, "04.05.2026");
  klicke("neu_1");
  ASSERT_EQ(li()->zeilen(), 3);
  EXPECT_EQ(li()->aktuelleZeile(), 2) << "the changed booking is the newest now";
  EXPECT_EQ(li()->zelle(2, "Arbeitsart"), "zwei neu");
  EXPECT_EQ(text(1), "zwei neu");
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten where ID = 1"), "eins");
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten where ID = 3"), "drei");
}

TEST_F(Buchen, EinZweitesAendernTrifftWiederDieselbeZeileMitIhrenWerten) {
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  zeile("Arbeiten", 1, "2026-05-02", {{"Arbeitsart", "zwei"}});
  oeffne(5);
  klicke(li(), 0);
  tippe(4, "A");
  klicke("neu_1");
  klicke("neu_1");
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten where ID = 1"), "eins");
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten where ID = 2"), "zwei");
}

TEST_F(Buchen, AendernMitDreiMarkiertenWarntUndAendertNurDieZeileDesAktuellenVolkes) {
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "alt"}});
  zeile("Arbeiten", 2, "2026-05-01", {{"Arbeitsart", "alt"}});
  markiere({0, 1, 2});
  oeffne(5);
  tippe(1, "neu");
  boxen.hinweis(
      "ACHTUNG: Sie haben mehrere Völker markiert und [Ändern] angeklickt. Änderungen können nur "
      "für ein Volk vorgenommen werden. Die Änderung wird deshalb nur beim aktuellen Volk 1 auf "
      "dem ausgewählten Datensatz ausgeführt.");
  klicke("neu_1");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(anzahl("Arbeiten"), 2);
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten where Volk_ID = 1"), "neu");
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten where Volk_ID = 2"), "alt");
}

TEST_F(Buchen, LoeschenOhneZeileVerlangtEinenDatensatz) {
  oeffne(5);
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke("löschen");
}

TEST_F(Buchen, LoeschenFragtUndNeinLaesstDieBuchungStehen) {
  EinstellungenZahl[55] = 1;
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  oeffne(5);
  boxen.frageMit("Soll der markierte Datensatz wirklich unwiederbringlich gelöscht werden?", false);
  klicke("löschen");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(anzahl("Arbeiten"), 1);
  EXPECT_EQ(li()->zeilen(), 1);
}

TEST_F(Buchen, LoeschenNimmtDieZeileUndZeigtDieDieNunDortSteht) {
  EinstellungenZahl[55] = 1;
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  zeile("Arbeiten", 1, "2026-05-02", {{"Arbeitsart", "zwei"}});
  oeffne(5);
  klicke(li(), 0);
  boxen.frageMit("unwiederbringlich", true);
  klicke("löschen");
  EXPECT_EQ(anzahl("Arbeiten"), 1);
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten"), "zwei");
  EXPECT_EQ(text(1), "zwei");
  EXPECT_EQ(ListeNeuLesen, 0) << "deleting alone is no reason to read the list anew";
}

TEST_F(Buchen, LoeschenOhneSicherheitsabfrageLoeschtSofort) {
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  oeffne(5);
  klicke("löschen");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
  EXPECT_EQ(li()->zeilen(), 0);
}

TEST_F(Buchen, DieLoeschfrageKommtErstWennEineZeileGewaehltIst) {
  EinstellungenZahl[55] = 1;
  oeffne(5);
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke("löschen");
  EXPECT_EQ(boxen.fehler(), "");
}

TEST_F(Buchen, GeteiltWerdenZehnKiloAufDreiVoelkerZuJe3Komma33) {
  EinstellungenZahl[72] = 1;
  EinstellungenZahl[68] = 1;
  markiere({0, 1, 2});
  oeffne(1);
  tippe(1, "10");
  tippe(2, "Raps");
  boxen.frage(DreiMarkiert, true);
  klicke("neu_0");
  for (int volk = 1; volk <= 3; ++volk)
    EXPECT_EQ(wert("select Menge_kg from Honigernte where Volk_ID = " + QString::number(volk)),
              3.33);
  EXPECT_EQ(anzahl("Honiglager"), 1);
  EXPECT_EQ(wert("select Zugang from Honiglager"), 10.0);
}

// 10 combs of 2.5 kg: 25 kg for the first colony, which the second one multiplies once more.
TEST_F(Buchen, HonigwabenWerdenKiloUndDasZweiteVolkMultipliziertWeiter) {
  EinstellungenZahl[73] = 1;
  EinstellungenWert[5] = 2.5f;
  markiere({0, 1});
  oeffne(1);
  tippe(1, "10");
  boxen.frageMit("Es sind im Moment 2 Völker markiert.", true);
  klicke("neu_0");
  EXPECT_EQ(wert("select Menge_kg from Honigernte where Volk_ID = 1"), 25.0);
  EXPECT_EQ(wert("select Menge_kg from Honigernte where Volk_ID = 2"), 62.5);
}

TEST_F(Buchen, DreihundertVoelkerInEinemLauf) {
  DB.Sammelschreiben([&] {
    for (int nr = 4; nr <= 300; ++nr) volk(QString::number(nr), "Volk", "Heide");
  });
  liste = std::make_unique<Testliste>();
  QList<int> alle;
  for (int zeile = 0; zeile < 300; ++zeile) alle.append(zeile);
  liste->setMarkierteZeilen(alle);
  oeffne(0);
  tippe(13, "6");
  boxen.frageMit("Es sind im Moment 300 Völker markiert.", true);
  klicke("neu_0");
  EXPECT_EQ(anzahl("Stockkarte"), 300);
  EXPECT_EQ(wert("select count(*) as n from Stockkarte where Brutwaben = 6").toInt(), 300);
  form->close();
  EXPECT_EQ(wert("select count(*) as n from Bienenvolk where Brutwaben = 6").toInt(), 300);
}

// What closing does, whichever way the window is left.
class Schliessen : public Eingabeprobe {
 protected:
  void bucheHonig() {
    oeffne(1);
    tippe(1, "12,5");
    klicke("neu_0");
    ASSERT_EQ(wert("select Honigmenge_Gesamt from Bienenvolk where ID = 1").toDouble(), 0.0)
        << "the summary waits for the closing";
  }
  void pruefeZusammenfassung() {
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(wert("select Honigmenge_Gesamt from Bienenvolk where ID = 1"), 12.5);
    EXPECT_EQ(wert("select L_Honigmenge_kg from Bienenvolk where ID = 1"), 12.5);
    EXPECT_EQ(wert("select L_Honigernte from Bienenvolk where ID = 1"), QDate(2026, 6, 15));
    EXPECT_EQ(ListeNeuLesen, 1) << "the main form reads its list anew";
  }
};

TEST_F(Schliessen, MitDemKnopfZiehtDieVolkfelderNach) {
  bucheHonig();
  klicke("cmdschließen");
  pruefeZusammenfassung();
}

TEST_F(Schliessen, MitDerEscapetasteEbenso) {
  bucheHonig();
  taste(feld(0), Qt::Key_Escape);
  pruefeZusammenfassung();
}

TEST_F(Schliessen, MitDemFensterrahmenEbenso) {
  bucheHonig();
  form->close();
  pruefeZusammenfassung();
}

TEST_F(Schliessen, OhneBuchungBleibtDasVolkWieEsIst) {
  DB.Execute("update Bienenvolk set L_Honigmenge_kg = 77 where ID = 1");
  oeffne(1);
  form->close();
  EXPECT_EQ(wert("select L_Honigmenge_kg from Bienenvolk where ID = 1"), 77.0);
  EXPECT_EQ(ListeNeuLesen, 0);
}

TEST_F(Schliessen, DieGeloeschteErnteBleibtInDerZusammenfassungWennSonstNichtsGebuchtWurde) {
  zeile("Honigernte", 1, "2026-06-01", {{"Menge_kg", 8}});
  DB.Execute(
      "update Bienenvolk set L_Honigernte = ?, L_Honigmenge_kg = 8, Honigmenge_Gesamt = 8 "
      "where ID = 1",
      {QDate(2026, 6, 1)});
  oeffne(1);
  klicke("löschen");
  form->close();
  EXPECT_EQ(anzahl("Honigernte"), 0);
  EXPECT_EQ(wert("select L_Honigernte from Bienenvolk where ID = 1"), QDate(2026, 6, 1));
}

TEST_F(Schliessen, MitEinerAnderenBuchungDesVolkesFaelltDieGeloeschteErnteHeraus) {
  zeile("Honigernte", 1, "2026-06-01", {{"Menge_kg", 8}});
  DB.Execute(
      "update Bienenvolk set L_Honigernte = ?, L_Honigmenge_kg = 8, Honigmenge_Gesamt = 8 "
      "where ID = 1",
      {QDate(2026, 6, 1)});
  oeffne(1);
  klicke("löschen");
  klicke("opti_5");
  klicke("neu_0");
  form->close();
  EXPECT_TRUE(wert("select L_Honigernte from Bienenvolk where ID = 1").isNull());
  EXPECT_EQ(wert("select Honigmenge_Gesamt from Bienenvolk where ID = 1").toDouble(), 0.0);
}

TEST_F(Schliessen, DieGebuchtenVoelkerGeltenNurFuerDieseOeffnung) {
  bucheHonig();
  form->close();
  DB.Execute("update Bienenvolk set L_Honigmenge_kg = 77 where ID = 1");
  liste->datenvölkerlesen();
  liste->setAktuelleZeile(1);
  oeffne(1);
  klicke("neu_0");
  form->close();
  EXPECT_EQ(wert("select L_Honigmenge_kg from Bienenvolk where ID = 1"), 77.0);
}

TEST_F(Schliessen, BeimZweitenOeffnenStehtWiederHeuteImDatum) {
  oeffne(5);
  tippe(0, "01.01.2026");
  form->close();
  oeffne(5);
  EXPECT_EQ(text(0), "15.06.2026");
}

}  // namespace
