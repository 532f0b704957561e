#include "Arplanprobe.h"

using namespace TZ_Variablen;

namespace {

class Arplanoptionen : public Arplanprobe {};

}  // namespace

TEST_F(Arplanoptionen, TitelBeschriftungenUndHinweisStehenDa) {
  öffne();
  EXPECT_EQ(form->objectName(), "TV_Arplanoptionen");
  EXPECT_EQ(form->windowTitle(), "Arbeitsplan-Optionen");
  const QStringList beschriftungen = {"Arbeitsart",
                                      "Startzeitraum (TT.MM)",
                                      "Endzeitraum (TT.MM)",
                                      "Wiederholungsfrist (Tage)",
                                      "Volkabhängig (J/N)",
                                      "Autom. Erled. Buchung",
                                      "Autom. Erled. Arbeitsart"};
  for (int i = 0; i < 7; ++i) EXPECT_EQ(feld(i)->accessibleName(), beschriftungen[i]);
  const QList<std::pair<QString, QString>> knöpfe = {
      {"neu_0", "&Neu"},
      {"neu_1", "&Ändern"},
      {"löschen", "&Löschen"},
      {"calender", "Alle Termine für das aktuelle Jahr 2006 löschen und wieder neu setzen"},
      {"terminverwaltung", "&Terminverwaltung"},
      {"hilfe", "&Hilfe"},
      {"cmdschließen", "&Schließen"}};
  for (const auto& [name, text] : knöpfe) EXPECT_EQ(kind<QAbstractButton>(name)->text(), text);
  EXPECT_EQ(kind<QLabel>("hinweis")->text(),
            "Hinweis: Durch das Hinzufüngen, Ändern und Löschen von Arbeitsplanoptionen werden "
            "alle daraus resultierenden Termine automatisch berechnet und in die Terminverwaltung "
            "eingetragen. Durch das Löschen einer Arbeitsplan-Option werden die entsprechenden "
            "Termine gelöscht.");
}

TEST_F(Arplanoptionen, DieFelderHabenIhreArtIhreLängeUndIhrenErstenText) {
  öffne();
  using Art = Eingabefeld::Art;
  const QList<Art> arten = {Art::Text,    Art::TagMonat, Art::TagMonat, Art::Ganzzahl,
                            Art::Auswahl, Art::Auswahl,  Art::Auswahl};
  for (int i = 0; i < 7; ++i) EXPECT_EQ(feld(i)->art(), arten[i]) << i;
  EXPECT_EQ(inhalte(), QStringList({"", "", "", "0", "", "", ""}));
  tippe("Arbeitsart", QString(40, 'x'));
  EXPECT_EQ(feld("Arbeitsart")->inhalt().size(), 30);
  tippe("Wiederholungsfrist (Tage)", "123");
  EXPECT_EQ(feld("Wiederholungsfrist (Tage)")->inhalt(), "12");
  EXPECT_EQ(feld("Volkabhängig (J/N)")->beschreibung().auswahl, QStringList({"J", "N"}));
  EXPECT_EQ(feld("Autom. Erled. Buchung")->beschreibung().auswahl,
            QStringList({"", "Honigernte", "Wachsernte", "Pollenernte", "Wanderung",
                         "Gewichtsmessung", "Behandlung", "Königinwechsel"}));
}

TEST_F(Arplanoptionen, DieErledigtArbeitsartBietetDieGebuchtenArbeitenUndKeinenFreienText) {
  for (const char* art : {"Schied", "Absperren", "Schied"})
    db().Execute("insert into Arbeiten(Arbeitsart, Volk_ID) values (?, 1)", {QString(art)});
  öffne();
  EXPECT_EQ(feld("Autom. Erled. Arbeitsart")->beschreibung().auswahl,
            QStringList({"", "Absperren", "Schied"}));
  feld("Autom. Erled. Arbeitsart")->setFocus();
  QTest::keyClicks(feld("Autom. Erled. Arbeitsart"), "x");
  EXPECT_EQ(feld("Autom. Erled. Arbeitsart")->inhalt(), "");
  QTest::keyClicks(feld("Autom. Erled. Arbeitsart"), "S");
  EXPECT_EQ(feld("Autom. Erled. Arbeitsart")->inhalt(), "Schied");
}

TEST_F(Arplanoptionen, DieListeStehtNachDerArbeitsart) {
  option("Zander", "01.06", 0, "01.06");
  option("Ähren", "01.06", 0, "01.06");
  option("Honig", "01.06", 0, "01.06");
  öffne();
  EXPECT_EQ(namen(), QStringList({"Ähren", "Honig", "Zander"}));
  EXPECT_EQ(liste()->aktuelleZeile(), -1);
}

TEST_F(Arplanoptionen, ZeilenklickZeigtDieZeile) {
  db().Execute("insert into Arbeiten(Arbeitsart, Volk_ID) values ('Schied', 1)");
  option("Honig", "01.06", 14, "31.08", "J", "Honigernte", "Schied");
  option("Werkstatt", "01.12", 0, "01.12", "N", "Stockkarte", "Vergessen");
  öffne();
  klickeZeile(0);
  EXPECT_EQ(inhalte(), QStringList({"Honig", "01.06", "31.08", "14", "J", "Honigernte", "Schied"}));
  klickeZeile(1);  // what the choice doesn't offer isn't shown
  EXPECT_EQ(inhalte(), QStringList({"Werkstatt", "01.12", "01.12", "0", "N", "", ""}));
  QTest::keyClick(liste(), Qt::Key_Up);
  EXPECT_EQ(feld("Arbeitsart")->inhalt(), "Honig");
}

TEST_F(Arplanoptionen, NeuSpeichertDieOptionRechnetIhreTermineUndZeigtSie) {
  neuesVolk("1");
  neuesVolk("2");
  option("Aaa", "01.06", 0, "01.06");
  öffne();
  fülle("Kontrolle", "01.07", "15.07", "J");
  tippe("Wiederholungsfrist (Tage)", "14");
  tippe("Autom. Erled. Buchung", "H");
  klicke("neu_0");
  EXPECT_EQ(namen(), QStringList({"Aaa", "Kontrolle"}));
  EXPECT_EQ(liste()->aktuelleZeile(), 1);
  EXPECT_EQ(inhalte(), QStringList({"Kontrolle", "01.07", "15.07", "14", "J", "Honigernte", ""}));
  EXPECT_TRUE(feld("Arbeitsart")->hasFocus());
  EXPECT_EQ(anzahl("Termine", "Termin = 'Kontrolle'"), 4);
}

TEST_F(Arplanoptionen, EingabetasteImDatumErgänztEsUndSpeichert) {
  öffne();
  fülle("Kontrolle", "1.7", "", "N");
  tippe("Endzeitraum (TT.MM)", "15.7.");
  QTest::keyClick(feld("Endzeitraum (TT.MM)"), Qt::Key_Return);
  EXPECT_EQ(wert("select Startzeitraum from Arbeitsplanoptionen"), "01.07");
  EXPECT_EQ(wert("select Endzeitraum from Arbeitsplanoptionen"), "15.07");
}

TEST_F(Arplanoptionen, NeuOhneEingabenNenntDieGründeUndSchreibtNichts) {
  öffne();
  boxen.hinweis(
      "Die Daten werden nicht gespeichert, weil...\n\n...die Arbeitsart angegeben werden muß.\n"
      "...der Start- und Endzeitraum angegeben werden muß.\n");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 0);
}

TEST_F(Arplanoptionen, DerSchalttagWirdOhneSchaltjahrAbgelehnt) {
  öffne();
  fülle("Kontrolle", "29.02", "15.07", "J");
  boxen.hinweisMit("...der Start- und Endzeitraum angegeben werden muß.");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 0);
}

TEST_F(Arplanoptionen, NeuMitVergebenemNamenWirdAbgelehnt) {
  option("Honig", "01.06", 14, "31.08");
  öffne();
  fülle("Honig", "01.07", "15.07", "J");
  boxen.hinweis("Es existiert bereits ein Arbeitsplan mit dem Namen Honig.");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 1);
}

TEST_F(Arplanoptionen, ÄndernOhneZeileBittetUmEine) {
  option("Honig", "01.06", 14, "31.08");
  öffne();
  fülle("Anders", "01.07", "15.07", "J");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  klicke("neu_1");
  EXPECT_EQ(namen(), QStringList("Honig"));
}

TEST_F(Arplanoptionen, ÄndernBenenntNurUmUndNimmtDieTermineMit) {
  option("Honig", "01.06", 14, "31.08");
  termin("Honig", QDate(1999, 6, 1));
  termin("Honig", QDate(2006, 6, 1));
  öffne();
  klickeZeile(0);
  tippe("Arbeitsart", "Ernte");
  tippe("Startzeitraum (TT.MM)", "01.07");
  tippe("Volkabhängig (J/N)", "N");
  boxen.hinweis(Ändernhinweis);
  klicke("neu_1");
  EXPECT_EQ(inhalte(), QStringList({"Ernte", "01.06", "31.08", "14", "J", "", ""}));
  EXPECT_EQ(anzahl("Termine", "Termin = 'Ernte'"), 2);
  EXPECT_EQ(anzahl("Termine"), 2);
}

TEST_F(Arplanoptionen, ÄndernAufDenEigenenNamenGehtAufEinenFremdenNicht) {
  option("Honig", "01.06", 14, "31.08");
  option("Wachs", "01.06", 14, "31.08");
  öffne();
  klickeZeile(0);
  boxen.hinweis(Ändernhinweis);
  klicke("neu_1");
  tippe("Arbeitsart", "Wachs");
  boxen.hinweis("Es existiert bereits ein Arbeitsplan mit dem Namen Wachs.");
  klicke("neu_1");
  EXPECT_EQ(namen(), QStringList({"Honig", "Wachs"}));
}

TEST_F(Arplanoptionen, NachDemUmbenennenGiltDerNeueName) {
  option("Honig", "01.06", 14, "31.08");
  termin("Honig", QDate(2006, 6, 1));
  öffne();
  klickeZeile(0);
  for (const char* name : {"Ernte", "Lese"}) {
    tippe("Arbeitsart", name);
    boxen.hinweis(Ändernhinweis);
    klicke("neu_1");
  }
  EXPECT_EQ(wert("select Termin from Termine"), "Lese");
}

TEST_F(Arplanoptionen, LöschenOhneZeileBittetUmEine) {
  option("Honig", "01.06", 14, "31.08");
  öffne();
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke("löschen");
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 1);
}

TEST_F(Arplanoptionen, LöschenMitNeinLässtAlles) {
  option("Honig", "01.06", 14, "31.08");
  öffne();
  klickeZeile(0);
  boxen.frage(Löschfrage, false);
  klicke("löschen");
  EXPECT_EQ(namen(), QStringList("Honig"));
}

TEST_F(Arplanoptionen, LöschenNimmtDieTermineAllerJahreUndZeigtDieNächsteZeile) {
  option("Honig", "01.06", 14, "31.08");
  option("Wachs", "01.07", 0, "01.07");
  termin("Honig", QDate(1999, 6, 1));
  termin("Honig", QDate(2006, 6, 1), 0);
  termin("Wachs", QDate(2006, 6, 1));
  öffne();
  klickeZeile(0);
  boxen.frage(Löschfrage, true);
  klicke("löschen");
  EXPECT_EQ(namen(), QStringList("Wachs"));
  EXPECT_EQ(feld("Arbeitsart")->inhalt(), "Wachs");
  EXPECT_EQ(anzahl("Termine"), 1);
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 1);
}

TEST_F(Arplanoptionen, AlleNeuSetzenFragtUndSchreibtDieTermineAllerOptionen) {
  neuesVolk("1");
  option("Honig", "01.07", 0, "01.07");
  option("Werkstatt", "01.12", 0, "01.12", "N");
  termin("Honig", QDate(1999, 6, 1));
  öffne();
  boxen.frage(Neufrage, false);
  klicke("calender");
  EXPECT_EQ(anzahl("Termine"), 1);
  boxen.frage(Neufrage, true).hinweis("Die Termine wurden gelöscht und neu gesetzt.");
  klicke("calender");
  EXPECT_EQ(anzahl("Termine", "Termin = 'Honig'"), 1);
  EXPECT_EQ(anzahl("Termine", "Termin = 'Werkstatt' and Volk_ID = 0"), 1);
  EXPECT_EQ(anzahl("Termine"), 2);
}

TEST_F(Arplanoptionen, AlleNeuSetzenNenntDieUngültigeOption) {
  neuesVolk("1");
  option("Arbeit", "29.02", 0, "29.02");
  option("Honig", "01.07", 0, "01.07");
  öffne();
  boxen.frage(Neufrage, true).hinweisMit("'Arbeit'");
  klicke("calender");
  EXPECT_EQ(anzahl("Termine"), 1);
}

TEST_F(Arplanoptionen, DieTerminverwaltungIstGesperrtBisEsSieGibt) {
  öffne();
  EXPECT_FALSE(kind("terminverwaltung")->isEnabled());
  QStringList geöffnet;
  Formular::setWeiterführung({[](const QString& eintrag) { return eintrag == "XV_Termine"; },
                              [&](QWidget*, const QString& eintrag) { geöffnet << eintrag; }});
  öffne();
  klicke("terminverwaltung");
  EXPECT_EQ(geöffnet, QStringList{"XV_Termine"});
  Formular::setWeiterführung({});
}

TEST_F(Arplanoptionen, HilfeUndSchließen) {
  QString thema;
  Formular::setHilfe([&](QWidget*, const QString& text) { thema = text; });
  öffne();
  klicke("hilfe");
  EXPECT_EQ(thema, "TV_Arplanoptionen");
  Formular::setHilfe({});
  klicke("cmdschließen");
  EXPECT_FALSE(form->isVisible());
}

TEST_F(Arplanoptionen, NachDemSchließenÖffnetSieSichMitFrischenDaten) {
  öffne();
  klicke("cmdschließen");
  option("Honig", "01.07", 0, "01.07");
  form->laden();
  form->show();
  EXPECT_EQ(namen(), QStringList("Honig"));
}

TEST_F(Arplanoptionen, PasstAuchMitGroßerSchriftAufDenSchirm) {
  option("Honigernte", "01.06", 14, "31.08", "J", "Honigernte");
  option("Kerzenproduktion", "01.11", 0, "01.11", "N");
  for (const Tabelle& t : schema())
    if (t.name == "Arbeitsplanoptionen")
      for (const QString& zeile : t.startwerte.mid(0, 8)) db().Execute(zeile);
  for (const int prozent : {100, 150}) {
    const Schriftgröße schrift(prozent);
    öffne();
    klickeZeile(4);
    passtAufKleinenSchirm(*form);
    form->resize(1100 * prozent / 100, 640);  // as on a screen with room
    knöpfeSindLesbar(*form);
    bildAblegen(*form, QString("plan_optionen_%1").arg(prozent));
    form.reset();
  }
}
