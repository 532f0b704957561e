// The rarer cases: which objection comes first, periods that can't be entered any more, the last
// row, failures while loading and saving.
#include <QTimer>

#include "Arplanprobe.h"
#include "platform/controls/Formular.h"
#include "platform/database/verbindung/Verbindung.h"
#include "platform/files/Ton.h"

using namespace TZ_Variablen;

namespace {

const QString BitteMarkieren = "Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!";
const QString Verkehrt =
    "Die Daten werden nicht gespeichert, weil...\n\n...der Startzeitraum nicht hinter dem "
    "Endzeitraum liegen darf.\n";
const QString OhneZeit =
    "Die Daten werden nicht gespeichert, weil...\n\n...der Start- und Endzeitraum angegeben werden "
    "muß.\n";

class Arplanfälle : public Arplanprobe {
 protected:
  // The cells of the option in the table.
  static QString zeitraum(const QString& name) {
    const Daten zeile = db().Lesen(
        "select Startzeitraum, Endzeitraum from Arbeitsplanoptionen where Arbeitsart = ?", {name});
    return zeile->zeilen() == 1 ? zeile->anzeige(0, 0) + " " + zeile->anzeige(0, 1)
                                : QString("keine Zeile");
  }
  // As it is opened from the menu; the action must close it.
  void zeigeUnd(const std::function<void()>& aktion) {
    form = std::make_unique<TV_Arplanoptionen>();
    QTimer::singleShot(0, form.get(), aktion);
    form->zeigen();
  }
  // Whether the form's handle is closed: what it would save can't reach the database.
  void istGetrennt() {
    feld("Arbeitsart")->setInhalt("Neu");
    feld("Startzeitraum (TT.MM)")->setInhalt("01.07");
    feld("Endzeitraum (TT.MM)")->setInhalt("15.07");
    boxen.hinweisMit("Die Datenbank ist geschlossen.");
    kind<QAbstractButton>("neu_0")->click();
    EXPECT_EQ(boxen.fehler().toStdString(), "");
  }
  static Verbindung& verbindung() { return *Verbindung::zu(DatenbankPfad); }
  static void fastVoll() {
    const int seiten = verbindung().steuere("pragma page_count").toInt();
    verbindung().steuere("pragma max_page_count = " + QByteArray::number(seiten + 1));
  }
  static void wiederPlatz() { verbindung().steuere("pragma max_page_count = 1000000"); }
};

}  // namespace

// --- the order of the objections ---

TEST_F(Arplanfälle, ÄndernNenntErstDieGründeDannDieFehlendeZeileDannDenVergebenenNamen) {
  option("Honig", "01.06", 14, "31.08");
  option("Wachs", "01.06", 14, "31.08");
  öffne();
  tippe("Arbeitsart", "Wachs");  // no row, no period, a name that is taken
  boxen.hinweis(OhneZeit);
  klicke("neu_1");
  EXPECT_EQ(boxen.fehler(), "");
  tippe("Startzeitraum (TT.MM)", "01.06");
  tippe("Endzeitraum (TT.MM)", "31.08");
  boxen.hinweis(BitteMarkieren);
  klicke("neu_1");
  EXPECT_EQ(boxen.fehler(), "");
  klickeZeile(0);
  tippe("Arbeitsart", "Wachs");
  tippe("Startzeitraum (TT.MM)", "01.09");
  boxen.hinweis(Verkehrt);
  klicke("neu_1");
  EXPECT_EQ(boxen.fehler(), "");
  tippe("Startzeitraum (TT.MM)", "01.06");
  boxen.hinweis("Es existiert bereits ein Arbeitsplan mit dem Namen Wachs.");
  klicke("neu_1");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(namen(), QStringList({"Honig", "Wachs"}));
}

TEST_F(Arplanfälle, NeuNenntDieGründeVorDemVergebenenNamen) {
  option("Honig", "01.06", 14, "31.08");
  öffne();
  fülle("Honig", "01.09", "31.08", "J");
  boxen.hinweis(Verkehrt);
  klicke("neu_0");
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 1);
}

// --- rows whose period can't be entered here ---

TEST_F(Arplanfälle, EineOptionÜberDenJahreswechselLässtSichMitIhremZeitraumNichtUmbenennen) {
  option("Winterkontrolle", "01.11", 14, "15.05");
  termin("Winterkontrolle", QDate(2005, 12, 1));
  öffne();
  klickeZeile(0);
  tippe("Arbeitsart", "Winter");
  boxen.hinweis(Verkehrt);
  klicke("neu_1");
  EXPECT_EQ(zeitraum("Winterkontrolle"), "01.11 15.05");
  EXPECT_EQ(wert("select Termin from Termine"), "Winterkontrolle");
  EXPECT_EQ(feld("Arbeitsart")->inhalt(), "Winter");
}

TEST_F(Arplanfälle, EineOptionÜberDenJahreswechselBehältBeimUmbenennenIhrenZeitraum) {
  option("Winterkontrolle", "01.11", 14, "15.05");
  öffne();
  klickeZeile(0);
  tippe("Arbeitsart", "Winter");
  tippe("Endzeitraum (TT.MM)", "31.12");  // only to pass the check: it isn't written
  boxen.hinweis(Ändernhinweis);
  klicke("neu_1");
  EXPECT_EQ(zeitraum("Winter"), "01.11 15.05");
  EXPECT_EQ(inhalte(), QStringList({"Winter", "01.11", "15.05", "14", "J", "", ""}));
}

TEST_F(Arplanfälle, EineOptionMitSchalttagLässtSichImGemeinjahrMitIhmNichtUmbenennen) {
  option("Schalttag", "29.02", 0, "29.02");
  öffne();
  klickeZeile(0);
  tippe("Arbeitsart", "Schaltjahr");
  boxen.hinweis(OhneZeit);
  klicke("neu_1");
  EXPECT_EQ(zeitraum("Schalttag"), "29.02 29.02");
  tippe("Startzeitraum (TT.MM)", "28.02");
  tippe("Endzeitraum (TT.MM)", "28.02");
  boxen.hinweis(Ändernhinweis);
  klicke("neu_1");
  EXPECT_EQ(zeitraum("Schaltjahr"), "29.02 29.02");
}

TEST_F(Arplanfälle, EineOptionMitSchalttagLässtSichImSchaltjahrUmbenennen) {
  HeuteText = "20.01.2008";
  option("Schalttag", "29.02", 0, "29.02");
  öffne();
  klickeZeile(0);
  tippe("Arbeitsart", "Schaltjahr");
  boxen.hinweis(Ändernhinweis);
  klicke("neu_1");
  EXPECT_EQ(zeitraum("Schaltjahr"), "29.02 29.02");
}

// --- what the choices show ---

TEST_F(Arplanfälle, EineArbeitsartInAndererSchreibungWirdWieImAngebotGezeigt) {
  db().Execute("insert into Arbeiten(Arbeitsart, Volk_ID) values ('Schied', 1)");
  option("Honig", "01.06", 14, "31.08", "J", "honigernte", "SCHIED");
  öffne();
  klickeZeile(0);
  EXPECT_EQ(inhalte(), QStringList({"Honig", "01.06", "31.08", "14", "J", "Honigernte", "Schied"}));
}

TEST_F(Arplanfälle, DieAuswahlfelderNehmenKeinenFreienText) {
  öffne();
  for (const int i : {4, 5, 6}) {
    feld(i)->setFocus();
    QTest::keyClicks(feld(i), "x");
    EXPECT_EQ(feld(i)->inhalt(), "") << i;
  }
}

// --- adding ---

TEST_F(Arplanfälle, NeuMitLeererVolkabhängigkeitGibtJedemVolkSeineTermine) {
  neuesVolk("1");
  neuesVolk("2");
  öffne();
  fülle("Kontrolle", "01.07", "15.07", "");
  klicke("neu_0");
  EXPECT_EQ(wert(QString("select Volkabhängig from Arbeitsplanoptionen")), "");
  EXPECT_EQ(anzahl("Termine", "Volk_ID <> 0"), 2);
}

TEST_F(Arplanfälle, NeuMitStartGleichEndeUndFristNullGibtEinenTermin) {
  öffne();
  fülle("Kontrolle", "15.09", "15.09", "N");
  klicke("neu_0");
  EXPECT_EQ(feld("Wiederholungsfrist (Tage)")->inhalt(), "0");
  EXPECT_EQ(anzahl("Termine", "Datum = #09/15/2006# and Volk_ID = 0"), 1);
}

TEST_F(Arplanfälle, DieFristGehtBisNeunundneunzig) {
  öffne();
  tippe("Wiederholungsfrist (Tage)", "99");
  EXPECT_EQ(feld("Wiederholungsfrist (Tage)")->inhalt(), "99");
  tippe("Wiederholungsfrist (Tage)", "-1");
  EXPECT_EQ(feld("Wiederholungsfrist (Tage)")->inhalt(), "");
  EXPECT_EQ(feld("Wiederholungsfrist (Tage)")->hinweis(), "nur ganze Zahlen");
}

TEST_F(Arplanfälle, NachJedemSpeichernUndNurDannKommtDerTastenton) {
  int töne = 0;
  Ton::setSpieler([&](int, int) { ++töne; });
  EinstellungenZahl[Zahlslots.tastenton] = 1;
  öffne();
  boxen.hinweisMit("Die Daten werden nicht gespeichert");
  klicke("neu_0");
  EXPECT_EQ(töne, 0);
  fülle("Kontrolle", "15.09", "15.09", "N");
  klicke("neu_0");
  EXPECT_EQ(töne, 1);
  boxen.hinweis(Ändernhinweis);
  klicke("neu_1");
  EXPECT_EQ(töne, 2);
  Ton::setSpieler({});
}

// --- deleting ---

TEST_F(Arplanfälle, LöschenDerEinzigenZeileLeertDieFelderUndDieListe) {
  db().Execute("insert into Arbeiten(Arbeitsart, Volk_ID) values ('Schied', 1)");
  option("Honig", "01.06", 14, "31.08", "J", "Honigernte", "Schied");
  öffne();
  klickeZeile(0);
  boxen.frage(Löschfrage, true);
  klicke("löschen");
  EXPECT_EQ(namen(), QStringList());
  EXPECT_EQ(liste()->aktuelleZeile(), -1);
  EXPECT_EQ(inhalte(), QStringList({"", "", "", "0", "", "", ""}));
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke("löschen");
}

TEST_F(Arplanfälle, LöschenDerUnterstenZeileZeigtDieDarüberUndLöschtDannNurDeren) {
  option("Honig", "01.06", 14, "31.08");
  option("Wachs", "01.07", 0, "01.07");
  option("Zander", "01.07", 0, "01.07");
  for (const char* name : {"Honig", "Wachs", "Zander"}) termin(name, QDate(2006, 7, 1));
  öffne();
  klickeZeile(2);
  boxen.frage(Löschfrage, true);
  klicke("löschen");
  EXPECT_EQ(feld("Arbeitsart")->inhalt(), "Wachs");
  boxen.frage(Löschfrage, true);
  klicke("löschen");
  EXPECT_EQ(namen(), QStringList("Honig"));
  EXPECT_EQ(anzahl("Termine"), 1);
  EXPECT_EQ(wert("select Termin from Termine"), "Honig");
}

TEST_F(Arplanfälle, OhneLöschabfrageWirdSofortGelöscht) {
  EinstellungenZahl[Zahlslots.löschabfrage] = 0;
  option("Honig", "01.06", 14, "31.08");
  termin("Honig", QDate(2006, 7, 1));
  öffne();
  klickeZeile(0);
  klicke("löschen");
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 0);
  EXPECT_EQ(anzahl("Termine"), 0);
}

TEST_F(Arplanfälle, EinNameMitHochkommaWirdMitSeinenTerminenGelöscht) {
  option("Rund um's Volk", "01.06", 14, "31.08");
  termin("Rund um's Volk", QDate(2006, 7, 1));
  öffne();
  klickeZeile(0);
  EXPECT_EQ(feld("Arbeitsart")->inhalt(), "Rund um`s Volk");
  boxen.frage(Löschfrage, true);
  klicke("löschen");
  EXPECT_EQ(anzahl("Termine"), 0);
}

// --- all anew ---

TEST_F(Arplanfälle, AlleNeuSetzenGehtDieListeSoDurchWieSieSteht) {
  option("Honig", "01.07", 0, "01.07", "N");
  option("Wachs", "01.07", 0, "01.07", "N");
  öffne();
  liste()->sortiere(0, Qt::DescendingOrder);
  boxen.frage(Neufrage, true).hinweis("Die Termine wurden gelöscht und neu gesetzt.");
  klicke("calender");
  EXPECT_EQ(wert("select Termin from Termine order by ID"), "Wachs");
}

TEST_F(Arplanfälle, AlleNeuSetzenMitLeererListeSchreibtNichts) {
  neuesVolk("1");
  termin("Von Hand", QDate(2006, 7, 1));
  öffne();
  boxen.frage(Neufrage, true).hinweis("Die Termine wurden gelöscht und neu gesetzt.");
  klicke("calender");
  EXPECT_EQ(anzahl("Termine"), 1);
}

TEST_F(Arplanfälle, AlleNeuSetzenOhneVolkImBestandLöschtNur) {
  neuesVolk("1", "");
  option("Honig", "01.07", 0, "01.07");
  termin("Honig", QDate(2005, 7, 1));
  öffne();
  boxen.frage(Neufrage, true).hinweis("Die Termine wurden gelöscht und neu gesetzt.");
  klicke("calender");
  EXPECT_EQ(anzahl("Termine"), 0);
}

TEST_F(Arplanfälle, DerKnopfNenntDasJahrVonHeute) {
  HeuteText = "02.01.2007";
  öffne();
  EXPECT_EQ(kind<QAbstractButton>("calender")->text(),
            "Alle Termine für das aktuelle Jahr 2007 löschen und wieder neu setzen");
}

// --- list and connection ---

TEST_F(Arplanfälle, DieSpaltenbreitenBleiben) {
  Fensterablage::setDatei(AppPfad + "TOVA2.LAY");
  option("Honig", "01.06", 14, "31.08");
  öffne();
  liste()->setColumnWidth(0, 187);
  klicke("cmdschließen");
  form.reset();
  EXPECT_EQ(Fensterablage::lesen("Spaltenbreiten/TOVA/tv_arplanoptionen_liarplan/ColWidths")
                .toList()
                .value(0)
                .toInt(),
            187);
  öffne();
  EXPECT_EQ(liste()->columnWidth(0), 187);
  Fensterablage::setDatei({});
}

TEST_F(Arplanfälle, SchließenTrenntDieDatenbank) {
  zeigeUnd([this] { klicke("cmdschließen"); });
  istGetrennt();
}

TEST_F(Arplanfälle, EscTrenntDieDatenbank) {
  zeigeUnd([this] { QTest::keyClick(feld("Arbeitsart"), Qt::Key_Escape); });
  EXPECT_FALSE(form->isVisible());
  istGetrennt();
}

TEST_F(Arplanfälle, ScheitertDasLesenDerArbeitsartenBleibtDieDatenbankNichtOffen) {
  db().Execute("drop table Arbeiten");
  form = std::make_unique<TV_Arplanoptionen>();
  EXPECT_THROW(form->zeigen(), Datenbankfehler);
  istGetrennt();
}

TEST_F(Arplanfälle, ScheitertDasLesenDerListeBleibtDieDatenbankNichtOffen) {
  db().Execute("drop table Arbeitsplanoptionen");
  form = std::make_unique<TV_Arplanoptionen>();
  EXPECT_THROW(form->zeigen(), Datenbankfehler);
  istGetrennt();
}

// --- saving that fails ---

TEST_F(Arplanfälle, NachGescheitertenTerminenStehtDieGespeicherteOptionInDerListe) {
  option("Aaa", "01.06", 0, "01.06");
  öffne();
  klickeZeile(0);
  db().Execute("drop table Termine");
  fülle("Kontrolle", "01.07", "15.07", "N");
  boxen.hinweis("Die Tabelle \"Termine\" gibt es in der Datenbank nicht.");
  klicke("neu_0");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 2);  // what was written before the failure stays
  EXPECT_EQ(namen(), QStringList({"Aaa", "Kontrolle"}));
  EXPECT_EQ(liste()->aktuelleZeile(), 0);
  EXPECT_EQ(inhalte(), QStringList({"Kontrolle", "01.07", "15.07", "0", "N", "", ""}));
}

TEST_F(Arplanfälle, NachGescheitertemUmbenennenBleibenZeileUndEingabe) {
  option("Honig", "01.06", 14, "31.08");
  option("Wachs", "01.06", 14, "31.08");
  öffne();
  klickeZeile(1);
  db().Execute("drop table Termine");
  tippe("Arbeitsart", "Kerzen");
  boxen.hinweis(Ändernhinweis).hinweis("Die Tabelle \"Termine\" gibt es in der Datenbank nicht.");
  klicke("neu_1");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(namen(), QStringList({"Honig", "Kerzen"}));  // the row was written before
  EXPECT_EQ(liste()->aktuelleZeile(), 1);
  EXPECT_EQ(feld("Arbeitsart")->inhalt(), "Kerzen");
}

TEST_F(Arplanfälle, BeiVollemDatenträgerBleibtDieEingabeUndDasselbeNeuGelingtDanach) {
  for (int i = 0; i < 200; ++i) neuesVolk(QString::number(i));
  option("Aaa", "01.06", 0, "01.06");
  öffne();
  klickeZeile(0);
  fülle("Kontrolle", "01.07", "31.12", "J");
  tippe("Wiederholungsfrist (Tage)", "9");
  fastVoll();
  boxen.hinweisMit("Auf dem Datenträger ist kein Platz mehr");
  klicke("neu_0");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(namen(), QStringList("Aaa"));
  EXPECT_EQ(liste()->aktuelleZeile(), 0);
  EXPECT_EQ(inhalte(), QStringList({"Kontrolle", "01.07", "31.12", "9", "J", "", ""}));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  wiederPlatz();
  klicke("neu_0");
  EXPECT_EQ(namen(), QStringList({"Aaa", "Kontrolle"}));
  EXPECT_EQ(anzahl("Termine"), 200 * 21);  // 01.07. and each ninth day to 28.12.
}

TEST_F(Arplanfälle, NachGescheitertemLöschenZeigtDieListeWasNochDaIst) {
  option("Honig", "01.06", 14, "31.08");
  option("Wachs", "01.06", 14, "31.08");
  öffne();
  klickeZeile(0);
  db().Execute("drop table Termine");
  boxen.frage(Löschfrage, true).hinweis("Die Tabelle \"Termine\" gibt es in der Datenbank nicht.");
  klicke("löschen");
  EXPECT_EQ(boxen.fehler(), "");
  // The row was deleted before the failure, and that stays: nothing is current.
  EXPECT_EQ(namen(), QStringList("Wachs"));
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 1);
  EXPECT_EQ(liste()->aktuelleZeile(), -1);
  EXPECT_EQ(feld("Arbeitsart")->inhalt(), "");
}
