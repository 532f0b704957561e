// Opening the form, dressing the slots, the list of bookings and its range.
#include "Eingabeprobe.h"
#include "platform/controls/Ereignis.h"

namespace {

using Maske = Eingabeprobe;
using namespace TZ_Variablen;

QList<int> bis(int letzter) {
  QList<int> slots;
  for (int slot = 1; slot <= letzter; ++slot) slots.append(slot);
  return slots;
}

TEST_F(Maske, TitelUndNameStehenFest) {
  öffne(0);
  EXPECT_EQ(form->windowTitle(), "Eingabe (Bewegungsdaten)");
  EXPECT_EQ(form->objectName(), "TE_Eingabe");
}

TEST_F(Maske, JedeArtZeigtGenauIhrePlätze) {
  QList<int> stockkarte = bis(27);
  stockkarte.removeAll(15);
  const QList<QList<int>> erwartet{stockkarte, bis(8), bis(6), bis(6), bis(7), bis(4),
                                   bis(6),     bis(4), bis(9), bis(7), {15}};
  const QStringList überschriften{
      "Stockkarte", "Honigernte",      "Wachsernte", "Pollenernte",    "Sonstige Ernte", "Arbeiten",
      "Wanderung",  "Gewichtsmessung", "Behandlung", "Königinwechsel", "Notizen"};
  öffne(0);
  for (int art = 10; art >= 0; --art) {
    klicke("opti_" + QString::number(art));
    EXPECT_EQ(BuchungsArt, art);
    EXPECT_EQ(sichtbar(), erwartet[art]) << art;
    EXPECT_EQ(schild("bezeingabeart"), überschriften[art]);
    EXPECT_EQ(kind<QAbstractButton>("opti_" + QString::number(art))->text(), überschriften[art]);
    EXPECT_TRUE(feld("Datum")->isVisible());
    EXPECT_TRUE(hatFokus("Datum")) << art;
  }
}

TEST_F(Maske, BeschriftungenUndVorlesenamenStehenAnDenFeldern) {
  öffne(0);
  EXPECT_EQ(schild("bezsevt_1"), "Volksstärke");
  EXPECT_EQ(schild("bezsevt_24"), "Futter Flssg.|Teig|Eigen");
  EXPECT_EQ(feld(25)->accessibleName(), "Futter Teig");
  EXPECT_EQ(feld(26)->accessibleName(), "Futter Eigen");
  klicke("opti_6");
  EXPECT_EQ(schild("bezsevt_5"), "Prämie erhalten JN");
  EXPECT_EQ(feld(5)->accessibleName(), "Prämie erhalten JN");
  klicke("opti_10");
  EXPECT_EQ(notiz()->accessibleName(), "Notiz");
}

TEST_F(Maske, FutterfelderStehenNebeneinander) {
  öffne(0);
  EXPECT_EQ(feld("Futter flüssig")->y(), feld("Futter Teig")->y());
  EXPECT_EQ(feld("Futter Teig")->y(), feld("Futter Eigen")->y());
  EXPECT_LT(feld("Futter flüssig")->x(), feld("Futter Teig")->x());
  EXPECT_LT(feld("Futter Teig")->x(), feld("Futter Eigen")->x());
}

TEST_F(Maske, OhneBuchungenStehenDieErstenTexteUndDieListeIstLeer) {
  öffne(7);
  EXPECT_EQ(text("Datum"), "15.06.2026");
  EXPECT_EQ(text("Gewicht (kg)"), "0,000");
  EXPECT_EQ(text("Zeit (h)"), "0,00");
  EXPECT_EQ(text("Kosten"), "0,00");
  EXPECT_EQ(text("Bemerkung"), "");
  EXPECT_EQ(li()->zeilen(), 0);
  EXPECT_EQ(schild("bezmw"), "");
}

TEST_F(Maske, DieÜberschriftNenntNummerUndNameDesVolkes) {
  liste = std::make_unique<Testliste>();
  liste->setAktuelleZeile(1);
  öffne(1);
  EXPECT_EQ(schild("bezbewegungsdaten"), "Bewegungsdaten für das Volk:  2 / Berta");
}

TEST_F(Maske, DieNeuesteBuchungDesVolkesIstDieVorlageMitDemDatumVonHeute) {
  zeile("Honigernte", 1, "2026-05-20", {{"Menge_kg", 4.5}, {"Honigsorte", "Löwenzahn"}});
  zeile("Honigernte", 1, "2026-06-01", {{"Menge_kg", 12.5}, {"Honigsorte", "Raps"}});
  zeile("Honigernte", 1, "2026-05-25", {{"Menge_kg", 7}, {"Honigsorte", "Obstblüte"}});
  zeile("Honigernte", 2, "2026-06-10", {{"Menge_kg", 99}, {"Honigsorte", "Wald"}});
  öffne(1);
  EXPECT_EQ(li()->zeilen(), 3);
  EXPECT_EQ(li()->aktuelleZeile(), 2);
  EXPECT_EQ(text("Datum"), "15.06.2026");
  EXPECT_EQ(text("Menge (kg)"), "12,50");
  EXPECT_EQ(text("Honigsorte"), "Raps");
}

TEST_F(Maske, EinKlickAufEineBuchungZeigtSieMitIhremDatum) {
  zeile("Honigernte", 1, "2026-05-20", {{"Menge_kg", 4.5}, {"Honigsorte", "Löwenzahn"}});
  zeile("Honigernte", 1, "2026-06-01", {{"Menge_kg", 12.5}, {"Honigsorte", "Raps"}});
  öffne(1);
  klicke(li(), 0);
  EXPECT_EQ(text("Datum"), "20.05.2026");
  EXPECT_EQ(text("Menge (kg)"), "4,50");
  EXPECT_EQ(text("Honigsorte"), "Löwenzahn");
}

TEST_F(Maske, PfeiltastenInDerListeZeigenDieBuchungen) {
  zeile("Arbeiten", 1, "2026-05-20", {{"Arbeitsart", "Füttern"}});
  zeile("Arbeiten", 1, "2026-06-01", {{"Arbeitsart", "Schwarmkontrolle"}});
  öffne(5);
  li()->setFocus();
  taste(li(), Qt::Key_Up);
  EXPECT_EQ(text("Arbeitsart"), "Füttern");
  EXPECT_EQ(text("Datum"), "20.05.2026");
}

// What is current is what is shown: Ändern writes what the slots hold into the current row.
TEST_F(Maske, DieRechteMaustasteZeigtDieBuchungDieSieAktuellMacht) {
  zeile("Arbeiten", 1, "2026-05-20", {{"Arbeitsart", "Füttern"}});
  zeile("Arbeiten", 1, "2026-06-01", {{"Arbeitsart", "Schwarmkontrolle"}});
  öffne(5);
  QTest::mouseClick(li()->viewport(), Qt::RightButton, Qt::NoModifier,
                    li()->visualRect(li()->model()->index(0, 0)).center());
  EXPECT_EQ(text("Arbeitsart"), li()->aktuelleZeile() == 0 ? "Füttern" : "Schwarmkontrolle");
  klicke("neu_1");
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten where ID = 1"), "Füttern");
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten where ID = 2"), "Schwarmkontrolle");
}

TEST_F(Maske, EineGezogeneMausZeigtDieBuchungBeiDerSieLoslässt) {
  for (const char* tag : {"2026-05-01", "2026-05-02", "2026-05-03"})
    zeile("Arbeiten", 1, tag, {{"Arbeitsart", tag}});
  öffne(5);
  const auto mitte = [&](int zeile) {
    return li()->visualRect(li()->model()->index(zeile, 0)).center();
  };
  QTest::mousePress(li()->viewport(), Qt::LeftButton, Qt::NoModifier, mitte(0));
  QMouseEvent zug(QEvent::MouseMove, mitte(1), li()->viewport()->mapToGlobal(mitte(1)),
                  Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(li()->viewport(), &zug);
  QTest::mouseRelease(li()->viewport(), Qt::LeftButton, Qt::NoModifier, mitte(1));
  ASSERT_EQ(li()->aktuelleZeile(), 1);
  EXPECT_EQ(text("Arbeitsart"), "2026-05-02");
  EXPECT_EQ(text("Datum"), "02.05.2026");
}

TEST_F(Maske, NachDemSortierenZeigtEinKlickDieAngeklickteBuchung) {
  zeile("Honigernte", 1, "2026-05-20", {{"Menge_kg", 9}, {"Honigsorte", "Löwenzahn"}});
  zeile("Honigernte", 1, "2026-06-01", {{"Menge_kg", 3}, {"Honigsorte", "Raps"}});
  öffne(1);
  li()->sortiere(li()->spaltenNummer("Menge_kg"), Qt::AscendingOrder);
  klicke(li(), 0);
  EXPECT_EQ(text("Menge (kg)"), "3,00");
  EXPECT_EQ(text("Honigsorte"), "Raps");
  klicke(li(), 1);
  EXPECT_EQ(text("Honigsorte"), "Löwenzahn");
}

TEST_F(Maske, MitDerTabulatortasteDurchDieListenBleibtDasGetippteStehen) {
  zeile("Arbeiten", 1, "2026-05-20", {{"Arbeitsart", "Füttern"}});
  öffne(5);
  tippe("Arbeitsart", "Waben schneiden");
  for (int i = 0; i < 40; ++i) {
    QWidget* hier = QApplication::focusWidget();
    ASSERT_NE(hier, nullptr);
    QTest::keyClick(hier, Qt::Key_Tab);
  }
  EXPECT_EQ(text("Arbeitsart"), "Waben schneiden");
}

TEST_F(Maske, AktuellesJahrZeigtDenErstenJanuarBisZumLetztenDezember) {
  for (const char* tag :
       {"2024-12-31", "2025-01-01", "2025-12-31", "2026-01-01", "2026-12-31", "2027-01-01"})
    zeile("Arbeiten", 1, tag, {{"Arbeitsart", tag}});
  öffne(5);
  EXPECT_EQ(li()->zeilen(), 6) << "Alles is the choice of a new operation";
  klicke("anzeige_1");
  ASSERT_EQ(li()->zeilen(), 2);
  EXPECT_EQ(li()->zelle(0, "Arbeitsart"), "2026-01-01");
  EXPECT_EQ(li()->zelle(1, "Arbeitsart"), "2026-12-31");
  klicke("anzeige_2");
  ASSERT_EQ(li()->zeilen(), 4);
  EXPECT_EQ(li()->zelle(0, "Arbeitsart"), "2025-01-01");
  EXPECT_EQ(li()->zelle(3, "Arbeitsart"), "2026-12-31");
}

TEST_F(Maske, DerAnzeigebereichBleibtInPlatz67UndGiltFürAlleArten) {
  zeile("Arbeiten", 1, "2025-05-01", {{"Arbeitsart", "alt"}});
  zeile("Wachsernte", 1, "2025-05-01", {{"Menge_kg", 1}});
  öffne(5);
  klicke("anzeige_1");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.anzeigebereich], 1);
  EXPECT_EQ(li()->zeilen(), 0);
  klicke("opti_2");
  EXPECT_EQ(li()->zeilen(), 0);
  form->close();
  öffne(5);
  EXPECT_TRUE(kind<QAbstractButton>("anzeige_1")->isChecked());
  EXPECT_EQ(li()->zeilen(), 0);
  klicke("anzeige_2");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.anzeigebereich], 2);
  EXPECT_EQ(li()->zeilen(), 1);
  klicke("anzeige_0");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.anzeigebereich], 0);
}

TEST_F(Maske, UmschaltenAufAllesBehältDasGetippteDatum) {
  zeile("Arbeiten", 1, "2025-05-01", {{"Arbeitsart", "alt"}});
  EinstellungenZahl[Zahlslots.anzeigebereich] = 1;
  öffne(5);
  tippe("Datum", "01.03.2026");
  klicke("anzeige_0");
  EXPECT_EQ(li()->zeilen(), 1);
  EXPECT_EQ(text("Datum"), "01.03.2026");
  EXPECT_EQ(text("Arbeitsart"), "alt");
}

TEST_F(Maske, EinArtwechselVergisstDasGetippteAberNichtDasDatum) {
  öffne(5);
  tippe("Datum", "03.04.2026");
  tippe("Arbeitsart", "Füttern");
  klicke("opti_8");
  EXPECT_EQ(text("Datum"), "03.04.2026");
  EXPECT_EQ(text("Behandlungsart"), "");
  klicke("opti_5");
  EXPECT_EQ(text("Datum"), "03.04.2026");
  EXPECT_EQ(text("Arbeitsart"), "");
}

TEST_F(Maske, NochEinKlickAufDieselbeArtLässtDasGetippteStehen) {
  öffne(5);
  tippe("Arbeitsart", "Füttern");
  klicke("opti_5");
  EXPECT_EQ(text("Arbeitsart"), "Füttern");
}

TEST_F(Maske, DieAuswahllistenBietenFrühereEingabenAllerVölkerAn) {
  zeile("Honigernte", 2, "2024-06-01", {{"Honigsorte", "Waldhonig"}, {"Charge", "L-17"}});
  zeile("Honigernte", 3, "2025-06-01", {{"Honigsorte", "Lindenhonig"}});
  zeile("Honigernte", 3, "2025-07-01", {{"Honigsorte", "Waldhonig"}});
  TZ_Variablen::DB.Execute("delete from Standorte");
  TZ_Variablen::DB.Execute("insert into Standorte (Standort) values ('Heide')");
  öffne(1);
  EXPECT_EQ(feld("Honigsorte")->liste(), (QStringList{"Lindenhonig", "Waldhonig"}));
  EXPECT_EQ(feld("Charge")->liste(), QStringList{"L-17"});
  EXPECT_EQ(feld("Menge (kg)")->liste(), QStringList{});
  klicke("opti_6");
  EXPECT_EQ(feld("Standort")->liste(), QStringList{"Heide"});
}

TEST_F(Maske, DieStockkarteNimmtDieSpaltenDerEinstellungen) {
  EinstellungenText[Textslots.stockkartenfelder] =
      "select Datum, Waben, Volk_ID, ID from Stockkarte";
  zeile("Stockkarte", 1, "2026-05-01", {{"Waben", 17}, {"Magazine", 2}});
  öffne(0);
  EXPECT_EQ(li()->spalten(), 4);
  EXPECT_EQ(text("Waben"), "17");
  EXPECT_EQ(text("Magazine"), "0") << "a field that the list doesn't have keeps its first text";
}

TEST_F(Maske, EineUnlesbareSpaltenabfrageWirdGemeldetUndDieListeIstLeer) {
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "Füttern"}});
  EinstellungenText[Textslots.stockkartenfelder] = "select Unfug from Stockkarte";
  öffne(5);
  EXPECT_EQ(li()->zeilen(), 1);
  boxen.hinweis("Das Feld \"Unfug\" gibt es in der Datenbank nicht.");
  klicke("opti_0");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(li()->zeilen(), 0) << "rows of the type before would be deleted from the wrong table";
  EXPECT_TRUE(volkli()->isEnabled());
  EXPECT_TRUE(kind<QWidget>("cmdschließen")->isEnabled());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  klicke("opti_5");
  EXPECT_EQ(li()->zeilen(), 1);
}

// Löschen would take the row's number and delete it from the new type's table.
TEST_F(Maske, MisslingtEineAuswahllisteStehenKeineBuchungenDerArtVorherInDerListe) {
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "Füttern"}});
  zeile("Wanderung", 1, "2026-05-01", {{"Standort", "Heide"}});
  öffne(5);
  ASSERT_EQ(li()->zeilen(), 1);
  DB.Execute("drop table Standorte");
  boxen.hinweis("Die Tabelle \"Standorte\" gibt es in der Datenbank nicht.");
  klicke("opti_6");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(li()->zeilen(), 0);
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke("löschen");
  EXPECT_EQ(anzahl("Wanderung"), 1);
  EXPECT_EQ(anzahl("Arbeiten"), 1);
}

TEST_F(Maske, OhneVölkerGehtDieFormAufUndBuchtNichts) {
  DB.Execute("delete from Bienenvolk");
  öffne(5);
  EXPECT_EQ(volkli()->zeilen(), 0);
  EXPECT_EQ(li()->zeilen(), 0);
  klicke("nextvolk1_0");
  klicke("nextvolk1_1");
  boxen.hinweis(
      "Bitte markieren Sie zuerst die Völker, bei denen die Buchung ausgeführt werden soll!");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
}

TEST_F(Maske, NotizenZeigenNurDasMehrzeiligeFeldUndKommenZurück) {
  öffne(10);
  notiz()->setFocus();
  tasten(notiz(), "Weisel gesehen");
  taste(notiz(), Qt::Key_Return);
  tasten(notiz(), "Brut in Ordnung");
  EXPECT_EQ(anzahl("Notizen"), 0) << "Enter is a new line here";
  taste(notiz(), Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(wert("select Notiz from Notizen"), "Weisel gesehen\r\nBrut in Ordnung");
  klicke("opti_5");
  klicke("opti_10");
  EXPECT_EQ(notiz()->toPlainText(), "Weisel gesehen\nBrut in Ordnung");
}

TEST_F(Maske, EineDatenbankDieKeineIstWirdGemeldetUndDieFormNichtGezeigt) {
  liste = std::make_unique<Testliste>();
  DatenbankPfad = AppPfad + "fehlt/TOVA2.MDB";
  boxen.hinweis("Die Datenbank \"" + DatenbankPfad + "\" wurde nicht gefunden.");
  form = std::make_unique<TE_Eingabe>(nullptr);
  EXPECT_FALSE(Ereignis::ausführen(nullptr, [&] { form->zeigen(); }));
  EXPECT_FALSE(form->isVisible());
}

}  // namespace
