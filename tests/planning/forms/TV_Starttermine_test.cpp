// The list of the open appointments: what it shows and hands on.

#include "planning/forms/Starttermineprobe.h"

namespace {

using TZ_Variablen::EinstellungenZahl;

TEST_F(TVStarttermine, JedesFeldHatNamenUndBeschriftung) {
  öffne();
  EXPECT_EQ(form->objectName(), "TV_Starttermine");
  EXPECT_EQ(form->windowTitle(), "Aktuelle offene Termine (bis 14 Tage ab heute)");
  EXPECT_EQ(kind<QCheckBox>("kon")->text(),
            "Terminliste bei jedem Programmstart öffnen (falls offene Termine anstehen)");
  EXPECT_EQ(kind<QCheckBox>("konterminreihe")->text(),
            "Terminreihe bei regelmäßigen Terminen neu anpassen?");
  EXPECT_EQ(kind<QPushButton>("cmdok_0")->text(), "Aktuellen Termin erledigen zum obigen Datum");
  EXPECT_EQ(kind<QPushButton>("cmdok_3")->text(), "zum obigen Datum erledigen");
  for (const char* name : {"cmdok_1", "cmdok_2", "ok", "okgruppiert"}) kind<QPushButton>(name);
  const QStringList namen = {"Erledigungsdatum", "Die Termine", "am Standort", "bis einschl."};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(feld(i)->accessibleName(), namen[i]);
}

TEST_F(TVStarttermine, ErsteWerteUndListen) {
  option("Durchsicht", "01.06", 14, "31.08");
  neuesVolk("1", "X", "Hof");
  neuesVolk("2", "X", "Heide");
  öffne();
  EXPECT_EQ(inhalt("Erledigungsdatum"), "20.06.2006");
  EXPECT_EQ(inhalt("bis einschl."), "20.06.2006");
  EXPECT_EQ(feld("Die Termine")->liste(), QStringList({"Durchsicht"}));
  EXPECT_EQ(feld("am Standort")->liste(), QStringList({"Heide", "Hof"}));
  EXPECT_FALSE(kind<QCheckBox>("konterminreihe")->isChecked());
}

TEST_F(TVStarttermine, HakenKommtAusPlatz13UndGehtBeimSchließenDorthin) {
  EinstellungenZahl[Zahlslots.terminlisteBeimStart] = 1;
  öffne();
  EXPECT_TRUE(kind<QCheckBox>("kon")->isChecked());
  klicke("kon");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminlisteBeimStart], 1);
  QTest::keyClick(form.get(), Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminlisteBeimStart], 0);
}

TEST_F(TVStarttermine, ListeZeigtOffeneBisZurGrenze) {
  fünf();
  öffne();
  EXPECT_EQ(spalte("Datum"), "15.06.2006 16.06.2006 20.06.2006 04.07.2006");
  EXPECT_EQ(li()->aktuelleZeile(), -1);
}

TEST_F(TVStarttermine, EinKlickBereitetDieErledigungAmStandortVor) {
  fünf();
  öffne();
  klickeZeile(3);
  EXPECT_EQ(inhalt("Erledigungsdatum"), "20.06.2006");
  EXPECT_EQ(inhalt("Die Termine"), "Durchsicht");
  EXPECT_EQ(inhalt("am Standort"), "Hof");
  EXPECT_EQ(inhalt("bis einschl."), "04.07.2006");
}

TEST_F(TVStarttermine, AllgemeinerTerminLeertDenStandort) {
  fünf();
  öffne();
  klickeZeile(0);
  klickeZeile(2);
  EXPECT_EQ(inhalt("Die Termine"), "Schau");
  EXPECT_EQ(inhalt("am Standort"), "");
}

TEST_F(TVStarttermine, EingabetasteInDerListeIstEinDoppelklick) {
  fünf();
  öffne();
  klickeZeile(1);
  QTest::keyClick(li(), Qt::Key_Return);
  EXPECT_EQ(termine("Erledigt = 'J'"), "16.06. Durchsicht J " + std::to_string(volk2));
}

TEST_F(TVStarttermine, EingabetasteInEinemFeldDrücktDenKnopfSeinerGruppe) {
  fünf();
  öffne();
  klickeZeile(0);
  tippe("Erledigungsdatum", "19.06.2006");
  QTest::keyClick(feld("Erledigungsdatum"), Qt::Key_Return);
  EXPECT_EQ(termine("Erledigt = 'J'"), "19.06. Durchsicht J " + std::to_string(volk1));
  tippe("Die Termine", "Durchsicht");
  tippe("am Standort", "Hof");
  tippe("bis einschl.", "16.06.2006");
  boxen.frage("Es wurden 1 Termine gefunden. Sollen diese wirklich erledigt werden?", false);
  QTest::keyClick(feld("bis einschl."), Qt::Key_Return);
  EXPECT_TRUE(form->isVisible());
}

TEST_F(TVStarttermine, LeereListenWerdenNichtÜbergeben) {
  öffne();
  boxen.hinweis("Keine zu listenden Daten gefunden");
  klicke("ok");
  boxen.hinweis("Keine zu listenden Daten gefunden");
  klicke("okgruppiert");
  EXPECT_FALSE(QFile::exists(TZ_Variablen::AppPfad + "gridli.txt"));
}

TEST_F(TVStarttermine, ListeGehtAnDieZwischenliste) {
  fünf();
  öffne();
  int zeilen = 0;
  Formblick blick([&](QWidget* f) { zeilen = f->findChild<Grid*>("gridli")->zeilen(); });
  klicke("ok");
  EXPECT_EQ(blick.name, "TA_Zwischenliste");
  EXPECT_EQ(zeilen, 4);
  EXPECT_TRUE(QFile::exists(TZ_Variablen::AppPfad + "gridli.txt"));
}

TEST_F(TVStarttermine, GruppierteListeHatIhreVierSpalten) {
  fünf();
  öffne();
  QStringList spalten;
  int zeilen = 0;
  Formblick blick([&](QWidget* f) {
    auto* gridli = f->findChild<Grid*>("gridli");
    for (int i = 0; i < gridli->spalten(); ++i) spalten << gridli->spaltenName(i);
    zeilen = gridli->zeilen();
  });
  klicke("okgruppiert");
  EXPECT_EQ(blick.name, "TA_Zwischenliste");
  EXPECT_EQ(spalten, QStringList({"Standort", "Datum", "Termin", QString("Anz_Völker")}));
  EXPECT_EQ(zeilen, 3);
}

TEST_F(TVStarttermine, GruppierteListeZähltDieVölkerJeStandortTagUndArt) {
  saison();
  öffne();
  QStringList zeilen;
  Formblick blick([&](QWidget* f) {
    auto* gridli = f->findChild<Grid*>("gridli");
    for (int i = 0; i < gridli->zeilen(); ++i)
      if (gridli->zelle(i, "Standort") == "Hausgarten")
        zeilen << gridli->zelle(i, "Datum") + " " + gridli->zelle(i, "Termin") + " " +
                      gridli->zelle(i, QString("Anz_Völker"));
    bildAblegen(*f, "termine_gruppiert");
  });
  klicke("okgruppiert");
  // Colonies 1, 4, 7 and 10 stand there, two of them a day later.
  EXPECT_EQ(zeilen.join("; ").toStdString(),
            "08.06.2006 Schwarmkontrolle 2; 09.06.2006 Schwarmkontrolle 2; "
            "12.06.2006 Honigraum aufsetzen 2; 13.06.2006 Honigraum aufsetzen 2; "
            "16.06.2006 Behandlung mit Ameisensäure 2; 17.06.2006 Behandlung mit Ameisensäure 2");
}

TEST_F(TVStarttermine, SpaltenbreitenHabenIhrenSchlüssel) {
  Fensterablage::setDatei(TZ_Variablen::AppPfad + "TOVA2.LAY");
  fünf();
  öffne();
  li()->setColumnWidth(1, 187);
  EXPECT_EQ(
      Fensterablage::lesen("Spaltenbreiten/tv_starttermine_litermine").toList().value(1).toInt(),
      187);
  Fensterablage::setDatei({});
}

TEST_F(TVStarttermine, GeschlossenHältDasFormularDieDatenbankNicht) {
  form = std::make_unique<TV_Starttermine>();
  Formblick blick([](QWidget*) {});
  form->zeigen();
  EXPECT_EQ(blick.name, "TV_Starttermine");
  boxen.hinweisMit("Die Datenbank ist geschlossen.");
  kind<QPushButton>("okgruppiert")->click();
}

TEST_F(TVStarttermine, WasNichtGeladenWerdenKannWirdNichtGezeigtUndHältDieDatenbankNicht) {
  db().Execute("drop table Arbeitsplanoptionen");
  form = std::make_unique<TV_Starttermine>();
  EXPECT_THROW(form->zeigen(), Datenbankfehler);
  EXPECT_FALSE(offen());
  boxen.hinweisMit("Die Datenbank ist geschlossen.");
  kind<QPushButton>("okgruppiert")->click();
}

TEST_F(TVStarttermine, FünfzigtausendFälligeZeilenÖffnenAlle) {
  const qint64 volk = neuesVolk("1", "X", "Hof");
  db().Sammelschreiben([&] {
    for (int i = 0; i < 50000; ++i) termin(tag(6, 1).addDays(i % 30), "Durchsicht", volk);
  });
  öffne();
  EXPECT_EQ(li()->zeilen(), 50000);
}

TEST_F(TVStarttermine, BildBeiHundertUndHundertfünfzigProzent) {
  saison();
  for (const int prozent : {100, 150}) {
    const Schriftgröße schrift(prozent);
    öffne();
    klickeZeile(1);
    passtAufKleinenSchirm(*form);
    knöpfeSindLesbar(*form);
    bildAblegen(*form, QString("termine_start_%1").arg(prozent));
    form.reset();
  }
}

}  // namespace
