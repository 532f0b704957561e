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
  öffne(5);
  tippe("Arbeitsart", "Füttern");
  tippe("Zeit (h)", "1,5");
  tippe("Bemerkung", "nach Regen");
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
  EXPECT_TRUE(hatFokus("Datum"));
  EXPECT_EQ(text("Arbeitsart"), "Füttern") << "the newest booking is the copy to begin with";
}

// The day typed next replaces the one that stands there, wherever the focus came from.
TEST_F(Buchen, DasDatumIstMarkiertSoOftDasProgrammHineingeht) {
  const auto bereit = [this](const char* woher) {
    EXPECT_TRUE(hatFokus("Datum")) << woher;
    EXPECT_EQ(feld("Datum")->selectedText(), text("Datum")) << woher;
    feld("Datum")->end(false);
  };
  öffne(5);
  bereit("Öffnen");
  taste(feld("Datum"), Qt::Key_Return);
  bereit("Buchung");
  klicke("nextvolk1_1");
  bereit("Nächstes");
  klicke("nextvolk1_0");
  bereit("Voriges");
  wähleStandort("Waldrand");
  bereit("Standort");
  klicke("opti_8");
  bereit("Art");
  boxen.hinweis(FalschesDatum);
  tippe("Datum", "31.2.");
  taste(feld("Datum"), Qt::Key_Return);
  bereit("falsches Datum");
}

TEST_F(Buchen, DerTagDerNächstenBuchungWirdEinfachGetippt) {
  öffne(5);
  taste(feld("Datum"), Qt::Key_Return);
  tasten(QApplication::focusWidget(), "7");
  taste(feld("Datum"), Qt::Key_Return);
  EXPECT_EQ(wert("select max(Datum) from Arbeiten").toString(), "2026-06-15");
  EXPECT_EQ(wert("select min(Datum) from Arbeiten").toString(), "2026-06-07");
}

TEST_F(Buchen, EinAngefangenerTextDerListeWirdNichtDanebenGebucht) {
  zeile("Honigernte", 2, "2026-05-20", {{"Honigsorte", "Lindenhonig"}, {"Menge_kg", 3}});
  öffne(1);
  tippe("Menge (kg)", "2");
  tippe("Honigsorte", "Lin");
  taste(feld("Honigsorte"), Qt::Key_Return);
  EXPECT_EQ(wert("select Honigsorte from Honigernte where Volk_ID = 1").toString(), "Lindenhonig");
}

TEST_F(Buchen, DieEingabetasteBuchtAusJedemPlatz) {
  öffne(5);
  tippe("Arbeitsart", "Füttern");
  taste(feld("Arbeitsart"), Qt::Key_Return);
  EXPECT_EQ(anzahl("Arbeiten"), 1);
  EXPECT_TRUE(hatFokus("Datum"));
}

TEST_F(Buchen, NachLöschenUndNeinBuchtDieEingabetasteWieder) {
  zeile("Arbeiten", 1, "2026-05-20", {{"Arbeitsart", "Füttern"}});
  TZ_Variablen::EinstellungenZahl[Zahlslots.löschabfrage] = 1;
  öffne(5);
  boxen.frageMit("Soll der markierte Datensatz", false);
  kind<QAbstractButton>("löschen")->setFocus();
  klicke("löschen");
  tippe("Arbeitsart", "Kontrolle");
  taste(feld("Arbeitsart"), Qt::Key_Return);
  EXPECT_EQ(anzahl("Arbeiten"), 2);
}

TEST_F(Buchen, NachDemSchließenUndWiederöffnenBuchtDieEingabetaste) {
  öffne(5);
  kind<QAbstractButton>("cmdschließen")->setFocus();
  klicke("cmdschließen");
  öffne(5);
  tippe("Arbeitsart", "Kontrolle");
  taste(feld("Arbeitsart"), Qt::Key_Return);
  EXPECT_EQ(anzahl("Arbeiten"), 1);
  EXPECT_TRUE(form->isVisible());
}

TEST_F(Buchen, EineGehalteneEingabetasteBuchtNurEinmal) {
  öffne(5);
  tippe("Arbeitsart", "Füttern");
  taste(feld("Arbeitsart"), Qt::Key_Return);
  for (int i = 0; i < 5; ++i) {
    QKeyEvent nochmal(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(feld("Datum"), &nochmal);
  }
  EXPECT_EQ(anzahl("Arbeiten"), 1);
}

TEST_F(Buchen, DieEingabetasteInDenListenBuchtNicht) {
  zeile("Arbeiten", 1, "2026-05-20", {{"Arbeitsart", "Füttern"}});
  öffne(5);
  for (QWidget* hier : QList<QWidget*>{li(), volkli(), kind<QWidget>("kom")}) {
    hier->setFocus();
    taste(hier, Qt::Key_Return);
    EXPECT_EQ(anzahl("Arbeiten"), 1);
    EXPECT_TRUE(hatFokus("Datum"));
  }
}

TEST_F(Buchen, DatumskurzformenWerdenErgänztAuchWennSofortGebuchtWird) {
  const QList<std::pair<QString, QDate>> fälle{
      {"5", QDate(2026, 6, 5)},      {"17", QDate(2026, 6, 17)},        {"32", QDate(2026, 2, 3)},
      {"1.1", QDate(2026, 1, 1)},    {"010126", QDate(2026, 1, 1)},     {"0305", QDate(2026, 5, 3)},
      {"1.2.26", QDate(2026, 2, 1)}, {"29.02.2024", QDate(2024, 2, 29)}};
  öffne(7);
  for (const auto& [getippt, datum] : fälle) {
    DB.Execute("delete from Gewichtsmessung");
    tippe("Datum", getippt);
    taste(feld("Datum"), Qt::Key_Return);
    EXPECT_EQ(wert("select Datum from Gewichtsmessung"), datum) << qPrintable(getippt);
    EXPECT_EQ(text("Datum"), datum.toString("dd.MM.yyyy"));
  }
}

TEST_F(Buchen, DieMerktasteErgänztDasDatumAuch) {
  öffne(7);
  tippe("Datum", "5");
  taste(feld("Datum"), Qt::Key_N, Qt::AltModifier);
  QTest::qWait(150);  // the button springs back before it clicks
  EXPECT_EQ(wert("select Datum from Gewichtsmessung"), QDate(2026, 6, 5));
}

TEST_F(Buchen, Der31FebruarWirdAbgelehntUndNichtsGeschrieben) {
  öffne(5);
  tippe("Arbeitsart", "Füttern");
  tippe("Datum", "31.2.2026");
  boxen.hinweis(FalschesDatum);
  taste(feld("Datum"), Qt::Key_Return);
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
  EXPECT_EQ(ListeNeuLesen, 0);
  EXPECT_EQ(text("Arbeitsart"), "Füttern");
  EXPECT_TRUE(hatFokus("Datum")) << "where there is something to mend";
}

TEST_F(Buchen, OhneDatumWirdNichtsGebucht) {
  öffne(5);
  tippe("Datum", "");
  taste(feld("Datum"), Qt::Key_Delete);
  boxen.hinweis(FalschesDatum);
  klicke("neu_0");
  boxen.hinweis(FalschesDatum);
  klicke("neu_1");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
}

TEST_F(Buchen, NeuOhneMarkiertesVolkVerlangtEines) {
  öffne(5);
  markiere({});
  boxen.hinweis(
      "Bitte markieren Sie zuerst die Völker, bei denen die Buchung ausgeführt werden soll!");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
}

TEST_F(Buchen, MitDreiMarkiertenVölkernWirdEinmalGefragtUndBeiAllenGebucht) {
  markiere({0, 1, 2});
  öffne(5);
  tippe("Arbeitsart", "Füttern");
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
  öffne(5);
  tippe("Arbeitsart", "Füttern");
  boxen.frage(DreiMarkiert, false);
  klicke("neu_0");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
  EXPECT_EQ(text("Arbeitsart"), "Füttern");
}

TEST_F(Buchen, ÄndernOhneBuchungVerlangtEinenDatensatz) {
  öffne(5);
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  klicke("neu_1");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
}

TEST_F(Buchen, ÄndernSchreibtDieGewählteZeileUndFindetSieWieder) {
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  zeile("Arbeiten", 1, "2026-05-02", {{"Arbeitsart", "zwei"}});
  zeile("Arbeiten", 1, "2026-05-03", {{"Arbeitsart", "drei"}});
  öffne(5);
  klicke(li(), 1);
  tippe("Arbeitsart", "zwei neu");
  tippe("Datum", "04.05.2026");
  klicke("neu_1");
  ASSERT_EQ(li()->zeilen(), 3);
  EXPECT_EQ(li()->aktuelleZeile(), 2) << "the changed booking is the newest now";
  EXPECT_EQ(li()->zelle(2, "Arbeitsart"), "zwei neu");
  EXPECT_EQ(text("Arbeitsart"), "zwei neu");
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten where ID = 1"), "eins");
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten where ID = 3"), "drei");
}

TEST_F(Buchen, EinZweitesÄndernTrifftWiederDieselbeZeileMitIhrenWerten) {
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  zeile("Arbeiten", 1, "2026-05-02", {{"Arbeitsart", "zwei"}});
  öffne(5);
  klicke(li(), 0);
  tippe("Bemerkung", "A");
  klicke("neu_1");
  klicke("neu_1");
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten where ID = 1"), "eins");
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten where ID = 2"), "zwei");
}

TEST_F(Buchen, ÄndernMitDreiMarkiertenWarntUndÄndertNurDieZeileDesAktuellenVolkes) {
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "alt"}});
  zeile("Arbeiten", 2, "2026-05-01", {{"Arbeitsart", "alt"}});
  markiere({0, 1, 2});
  öffne(5);
  tippe("Arbeitsart", "neu");
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

TEST_F(Buchen, LöschenOhneZeileVerlangtEinenDatensatz) {
  öffne(5);
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke("löschen");
}

TEST_F(Buchen, LöschenFragtUndNeinLässtDieBuchungStehen) {
  EinstellungenZahl[Zahlslots.löschabfrage] = 1;
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  öffne(5);
  boxen.frageMit("Soll der markierte Datensatz wirklich unwiederbringlich gelöscht werden?", false);
  klicke("löschen");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(anzahl("Arbeiten"), 1);
  EXPECT_EQ(li()->zeilen(), 1);
}

TEST_F(Buchen, LöschenNimmtDieZeileUndZeigtDieDieNunDortSteht) {
  EinstellungenZahl[Zahlslots.löschabfrage] = 1;
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  zeile("Arbeiten", 1, "2026-05-02", {{"Arbeitsart", "zwei"}});
  öffne(5);
  klicke(li(), 0);
  boxen.frageMit("unwiederbringlich", true);
  klicke("löschen");
  EXPECT_EQ(anzahl("Arbeiten"), 1);
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten"), "zwei");
  EXPECT_EQ(text("Arbeitsart"), "zwei");
  EXPECT_EQ(ListeNeuLesen, 0) << "deleting alone is no reason to read the list anew";
}

TEST_F(Buchen, LöschenOhneSicherheitsabfrageLöschtSofort) {
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  öffne(5);
  klicke("löschen");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
  EXPECT_EQ(li()->zeilen(), 0);
}

TEST_F(Buchen, DieLöschfrageKommtErstWennEineZeileGewähltIst) {
  EinstellungenZahl[Zahlslots.löschabfrage] = 1;
  öffne(5);
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke("löschen");
  EXPECT_EQ(boxen.fehler(), "");
}

TEST_F(Buchen, GeteiltWerdenZehnKiloAufDreiVölkerZuJe3Komma33) {
  EinstellungenZahl[Zahlslots.sammelbuchungTeilen] = 1;
  EinstellungenZahl[Zahlslots.ernteInsHoniglager] = 1;
  markiere({0, 1, 2});
  öffne(1);
  tippe("Menge (kg)", "10");
  tippe("Honigsorte", "Raps");
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
  EinstellungenZahl[Zahlslots.honigInWaben] = 1;
  EinstellungenWert[Wertslots.kgJeHonigwabe] = 2.5f;
  markiere({0, 1});
  öffne(1);
  tippe("Menge (kg)", "10");
  boxen.frageMit("Es sind im Moment 2 Völker markiert.", true);
  klicke("neu_0");
  EXPECT_EQ(wert("select Menge_kg from Honigernte where Volk_ID = 1"), 25.0);
  EXPECT_EQ(wert("select Menge_kg from Honigernte where Volk_ID = 2"), 62.5);
}

TEST_F(Buchen, DreihundertVölkerInEinemLauf) {
  DB.Sammelschreiben([&] {
    for (int nr = 4; nr <= 300; ++nr) volk(QString::number(nr), "Volk", "Heide");
  });
  liste = std::make_unique<Testliste>();
  QList<int> alle;
  for (int zeile = 0; zeile < 300; ++zeile) alle.append(zeile);
  liste->setMarkierteZeilen(alle);
  öffne(0);
  tippe("Brutwaben", "6");
  boxen.frageMit("Es sind im Moment 300 Völker markiert.", true);
  klicke("neu_0");
  EXPECT_EQ(anzahl("Stockkarte"), 300);
  EXPECT_EQ(wert("select count(*) as n from Stockkarte where Brutwaben = 6").toInt(), 300);
  form->close();
  EXPECT_EQ(wert("select count(*) as n from Bienenvolk where Brutwaben = 6").toInt(), 300);
}

// What closing does, whichever way the window is left.
class Schließen : public Eingabeprobe {
 protected:
  void bucheHonig() {
    öffne(1);
    tippe("Menge (kg)", "12,5");
    klicke("neu_0");
    ASSERT_EQ(wert("select Honigmenge_Gesamt from Bienenvolk where ID = 1").toDouble(), 0.0)
        << "the summary waits for the closing";
  }
  void prüfeZusammenfassung() {
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(wert("select Honigmenge_Gesamt from Bienenvolk where ID = 1"), 12.5);
    EXPECT_EQ(wert("select L_Honigmenge_kg from Bienenvolk where ID = 1"), 12.5);
    EXPECT_EQ(wert("select L_Honigernte from Bienenvolk where ID = 1"), QDate(2026, 6, 15));
    EXPECT_EQ(ListeNeuLesen, 1) << "the main form reads its list anew";
  }
};

TEST_F(Schließen, MitDemKnopfZiehtDieVolkfelderNach) {
  bucheHonig();
  klicke("cmdschließen");
  prüfeZusammenfassung();
}

TEST_F(Schließen, MitDerEscapetasteEbenso) {
  bucheHonig();
  taste(feld("Datum"), Qt::Key_Escape);
  prüfeZusammenfassung();
}

TEST_F(Schließen, MitDemFensterrahmenEbenso) {
  bucheHonig();
  form->close();
  prüfeZusammenfassung();
}

TEST_F(Schließen, OhneBuchungBleibtDasVolkWieEsIst) {
  DB.Execute("update Bienenvolk set L_Honigmenge_kg = 77 where ID = 1");
  öffne(1);
  form->close();
  EXPECT_EQ(wert("select L_Honigmenge_kg from Bienenvolk where ID = 1"), 77.0);
  EXPECT_EQ(ListeNeuLesen, 0);
}

TEST_F(Schließen, DieGelöschteErnteBleibtInDerZusammenfassungWennSonstNichtsGebuchtWurde) {
  zeile("Honigernte", 1, "2026-06-01", {{"Menge_kg", 8}});
  DB.Execute(
      "update Bienenvolk set L_Honigernte = ?, L_Honigmenge_kg = 8, Honigmenge_Gesamt = 8 "
      "where ID = 1",
      {QDate(2026, 6, 1)});
  öffne(1);
  klicke("löschen");
  form->close();
  EXPECT_EQ(anzahl("Honigernte"), 0);
  EXPECT_EQ(wert("select L_Honigernte from Bienenvolk where ID = 1"), QDate(2026, 6, 1));
}

TEST_F(Schließen, MitEinerAnderenBuchungDesVolkesFälltDieGelöschteErnteHeraus) {
  zeile("Honigernte", 1, "2026-06-01", {{"Menge_kg", 8}});
  DB.Execute(
      "update Bienenvolk set L_Honigernte = ?, L_Honigmenge_kg = 8, Honigmenge_Gesamt = 8 "
      "where ID = 1",
      {QDate(2026, 6, 1)});
  öffne(1);
  klicke("löschen");
  klicke("opti_5");
  klicke("neu_0");
  form->close();
  EXPECT_TRUE(wert("select L_Honigernte from Bienenvolk where ID = 1").isNull());
  EXPECT_EQ(wert("select Honigmenge_Gesamt from Bienenvolk where ID = 1").toDouble(), 0.0);
}

TEST_F(Schließen, DieGebuchtenVölkerGeltenNurFürDieseÖffnung) {
  bucheHonig();
  form->close();
  DB.Execute("update Bienenvolk set L_Honigmenge_kg = 77 where ID = 1");
  liste->datenvölkerlesen();
  liste->setAktuelleZeile(1);
  öffne(1);
  klicke("neu_0");
  form->close();
  EXPECT_EQ(wert("select L_Honigmenge_kg from Bienenvolk where ID = 1"), 77.0);
}

TEST_F(Schließen, BeimZweitenÖffnenStehtWiederHeuteImDatum) {
  öffne(5);
  tippe("Datum", "01.01.2026");
  form->close();
  öffne(5);
  EXPECT_EQ(text("Datum"), "15.06.2026");
}

}  // namespace
