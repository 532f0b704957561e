#include "Arplanprobe.h"

using namespace TZ_Variablen;

namespace {

class Arplanoptionen : public Arplanprobe {};

}  // namespace

TEST_F(Arplanoptionen, TitelBeschriftungenUndHinweisStehenDa) {
  oeffne();
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
  const QList<std::pair<QString, QString>> knoepfe = {
      {"neu_0", "&Neu"},
      {"neu_1", "&Ändern"},
      {"löschen", "&Löschen"},
      {"calender", "Alle Termine für das aktuelle Jahr 2006 löschen und wieder neu setzen"},
      {"terminverwaltung", "&Terminverwaltung"},
      {"hilfe", "&Hilfe"},
      {"cmdschließen", "&Schließen"}};
  for (const auto& [name, text] : knoepfe) EXPECT_EQ(kind<QAbstractButton>(name)->text(), text);
  EXPECT_EQ(kind<QLabel>("hinweis")->text(),
            "Hinweis: Durch das Hinzufüngen, Ändern und Löschen von Arbeitsplanoptionen werden "
            "alle daraus resultierenden Termine automatisch berechnet und in die Terminverwaltung "
            "eingetragen. Durch das Löschen einer Arbeitsplan-Option werden die entsprechenden "
            "Termine gelöscht.");
}

TEST_F(Arplanoptionen, DieFelderHabenIhreArtIhreLaengeUndIhrenErstenText) {
  oeffne();
  using Art = Eingabefeld::Art;
  const QList<Art> arten = {Art::Text,    Art::TagMonat, Art::TagMonat, Art::Ganzzahl,
                            Art::Auswahl, Art::Auswahl,  Art::Auswahl};
  for (int i = 0; i < 7; ++i) EXPECT_EQ(feld(i)->art(), arten[i]) << i;
  EXPECT_EQ(inhalte(), QStringList({"", "", "", "0", "", "", ""}));
  tippe(0, QString(40, 'x'));
  EXPECT_EQ(feld(0)->inhalt().size(), 30);
  tippe(3, "123");
  EXPECT_EQ(feld(3)->inhalt(), "12");
  EXPECT_EQ(feld(4)->beschreibung().auswahl, QStringList({"J", "N"}));
  EXPECT_EQ(feld(5)->beschreibung().auswahl,
            QStringList({"", "Honigernte", "Wachsernte", "Pollenernte", "Wanderung",
                         "Gewichtsmessung", "Behandlung", "Königinwechsel"}));
}

TEST_F(Arplanoptionen, DieErledigtArbeitsartBietetDieGebuchtenArbeitenUndKeinenFreienText) {
  for (const char* art : {"Schied", "Absperren", "Schied"})
    db().Execute("insert into Arbeiten(Arbeitsart, Volk_ID) values (?, 1)", {QString(art)});
  oeffne();
  EXPECT_EQ(feld(6)->beschreibung().auswahl, QStringList({"", "Absperren", "Schied"}));
  feld(6)->setFocus();
  QTest::keyClicks(feld(6), "x");
  EXPECT_EQ(feld(6)->inhalt(), "");
  QTest::keyClicks(feld(6), "S");
  EXPECT_EQ(feld(6)->inhalt(), "Schied");
}

TEST_F(Arplanoptionen, DieListeStehtNachDerArbeitsart) {
  option("Zander", "01.06", 0, "01.06");
  option("Ähren", "01.06", 0, "01.06");
  option("Honig", "01.06", 0, "01.06");
  oeffne();
  EXPECT_EQ(namen(), QStringList({"Ähren", "Honig", "Zander"}));
  EXPECT_EQ(liste()->aktuelleZeile(), -1);
}

TEST_F(Arplanoptionen, ZeilenklickZeigtDieZeile) {
  db().Execute("insert into Arbeiten(Arbeitsart, Volk_ID) values ('Schied', 1)");
  option("Honig", "01.06", 14, "31.08", "J", "Honigernte", "Schied");
  option("Werkstatt", "01.12", 0, "01.12", "N", "Stockkarte", "Vergessen");
  oeffne();
  klickeZeile(0);
  EXPECT_EQ(inhalte(), QStringList({"Honig", "01.06", "31.08", "14", "J", "Honigernte", "Schied"}));
  klickeZeile(1);  // what the choice doesn't offer isn't shown
  EXPECT_EQ(inhalte(), QStringList({"Werkstatt", "01.12", "01.12", "0", "N", "", ""}));
  QTest::keyClick(liste(), Qt::Key_Up);
  EXPECT_EQ(feld(0)->inhalt(), "Honig");
}

TEST_F(Arplanoptionen, NeuSpeichertDieOptionRechnetIhreTermineUndZeigtSie) {
  neuesVolk("1");
  neuesVolk("2");
  option("Aaa", "01.06", 0, "01.06");
  oeffne();
  fuelle("Kontrolle", "01.07", "15.07", "J");
  tippe(3, "14");
  tippe(5, "H");
  klicke("neu_0");
  EXPECT_EQ(namen(), QStringList({"Aaa", "Kontrolle"}));
  EXPECT_EQ(liste()->aktuelleZeile(), 1);
  EXPECT_EQ(inhalte(), QStringList({"Kontrolle", "01.07", "15.07", "14", "J", "Honigernte", ""}));
  EXPECT_TRUE(feld(0)->hasFocus());
  EXPECT_EQ(anzahl("Termine", "Termin = 'Kontrolle'"), 4);
}

TEST_F(Arplanoptionen, EingabetasteImDatumErgaenztEsUndSpeichert) {
  oeffne();
  fuelle("Kontrolle", "1.7", "", "N");
  tippe(2, "15.7.");
  QTest::keyClick(feld(2), Qt::Key_Return);
  EXPECT_EQ(wert("select Startzeitraum from Arbeitsplanoptionen"), "01.07");
  EXPECT_EQ(wert("select Endzeitraum from Arbeitsplanoptionen"), "15.07");
}

TEST_F(Arplanoptionen, NeuOhneEingabenNenntDieGruendeUndSchreibtNichts) {
  oeffne();
  boxen.hinweis(
      "Die Daten werden nicht gespeichert, weil...\n\n...die Arbeitsart angegeben werden muß.\n"
      "...der Start- und Endzeitraum angegeben werden muß.\n");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 0);
}

TEST_F(Arplanoptionen, DerSchalttagWirdOhneSchaltjahrAbgelehnt) {
  oeffne();
  fuelle("Kontrolle", "29.02", "15.07", "J");
  boxen.hinweisMit("...der Start- und Endzeitraum angegeben werden muß.");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 0);
}

TEST_F(Arplanoptionen, NeuMitVergebenemNamenWirdAbgelehnt) {
  option("Honig", "01.06", 14, "31.08");
  oeffne();
  fuelle("Honig", "01.07", "15.07", "J");
  boxen.hinweis("Es existiert bereits ein Arbeitsplan mit dem Namen Honig.");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 1);
}

TEST_F(Arplanoptionen, AendernOhneZeileBittetUmEine) {
  option("Honig", "01.06", 14, "31.08");
  oeffne();
  fuelle("Anders", "01.07", "15.07", "J");
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  klicke("neu_1");
  EXPECT_EQ(namen(), QStringList("Honig"));
}

TEST_F(Arplanoptionen, AendernBenenntNurUmUndNimmtDieTermineMit) {
  option("Honig", "01.06", 14, "31.08");
  termin("Honig", QDate(1999, 6, 1));
  termin("Honig", QDate(2006, 6, 1));
  oeffne();
  klickeZeile(0);
  tippe(0, "Ernte");
  tippe(1, "01.07");
  tippe(4, "N");
  boxen.hinweis(Aendernhinweis);
  klicke("neu_1");
  EXPECT_EQ(inhalte(), QStringList({"Ernte", "01.06", "31.08", "14", "J", "", ""}));
  EXPECT_EQ(anzahl("Termine", "Termin = 'Ernte'"), 2);
  EXPECT_EQ(anzahl("Termine"), 2);
}

TEST_F(Arplanoptionen, AendernAufDenEigenenNamenGehtAufEinenFremdenNicht) {
  option("Honig", "01.06", 14, "31.08");
  option("Wachs", "01.06", 14, "31.08");
  oeffne();
  klickeZeile(0);
  boxen.hinweis(Aendernhinweis);
  klicke("neu_1");
  tippe(0, "Wachs");
  boxen.hinweis("Es existiert bereits ein Arbeitsplan mit dem Namen Wachs.");
  klicke("neu_1");
  EXPECT_EQ(namen(), QStringList({"Honig", "Wachs"}));
}

TEST_F(Arplanoptionen, NachDemUmbenennenGiltDerNeueName) {
  option("Honig", "01.06", 14, "31.08");
  termin("Honig", QDate(2006, 6, 1));
  oeffne();
  klickeZeile(0);
  for (const char* name : {"Ernte", "Lese"}) {
    tippe(0, name);
    boxen.hinweis(Aendernhinweis);
    klicke("neu_1");
  }
  EXPECT_EQ(wert("select Termin from Termine"), "Lese");
}

TEST_F(Arplanoptionen, LoeschenOhneZeileBittetUmEine) {
  option("Honig", "01.06", 14, "31.08");
  oeffne();
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke("löschen");
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 1);
}

TEST_F(Arplanoptionen, LoeschenMitNeinLaesstAlles) {
  option("Honig", "01.06", 14, "31.08");
  oeffne();
  klickeZeile(0);
  boxen.frage(Loeschfrage, false);
  klicke("löschen");
  EXPECT_EQ(namen(), QStringList("Honig"));
}

TEST_F(Arplanoptionen, LoeschenNimmtDieTermineAllerJahreUndZeigtDieNaechsteZeile) {
  option("Honig", "01.06", 14, "31.08");
  option("Wachs", "01.07", 0, "01.07");
  termin("Honig", QDate(1999, 6, 1));
  termin("Honig", QDate(2006, 6, 1), 0);
  termin("Wachs", QDate(2006, 6, 1));
  oeffne();
  klickeZeile(0);
  boxen.frage(Loeschfrage, true);
  klicke("löschen");
  EXPECT_EQ(namen(), QStringList("Wachs"));
  EXPECT_EQ(feld(0)->inhalt(), "Wachs");
  EXPECT_EQ(anzahl("Termine"), 1);
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), 1);
}

TEST_F(Arplanoptionen, AlleNeuSetzenFragtUndSchreibtDieTermineAllerOptionen) {
  neuesVolk("1");
  option("Honig", "01.07", 0, "01.07");
  option("Werkstatt", "01.12", 0, "01.12", "N");
  termin("Honig", QDate(1999, 6, 1));
  oeffne();
  boxen.frage(Neufrage, false);
  klicke("calender");
  EXPECT_EQ(anzahl("Termine"), 1);
  boxen.frage(Neufrage, true).hinweis("Die Termine wurden gelöscht und neu gesetzt.");
  klicke("calender");
  EXPECT_EQ(anzahl("Termine", "Termin = 'Honig'"), 1);
  EXPECT_EQ(anzahl("Termine", "Termin = 'Werkstatt' and Volk_ID = 0"), 1);
  EXPECT_EQ(anzahl("Termine"), 2);
}

TEST_F(Arplanoptionen, AlleNeuSetzenNenntDieUngueltigeOption) {
  neuesVolk("1");
  option("Arbeit", "29.02", 0, "29.02");
  option("Honig", "01.07", 0, "01.07");
  oeffne();
  boxen.frage(Neufrage, true).hinweisMit("'Arbeit'");
  klicke("calender");
  EXPECT_EQ(anzahl("Termine"), 1);
}

TEST_F(Arplanoptionen, DieTerminverwaltungIstGesperrtBisEsSieGibt) {
  oeffne();
  EXPECT_FALSE(kind("terminverwaltung")->isEnabled());
  int geoeffnet = 0;
  form->setTerminverwaltung([&] { ++geoeffnet; });
  klicke("terminverwaltung");
  EXPECT_EQ(geoeffnet, 1);
}

TEST_F(Arplanoptionen, HilfeUndSchliessen) {
  QString thema;
  Formular::setHilfe([&](QWidget*, const QString& text) { thema = text; });
  oeffne();
  klicke("hilfe");
  EXPECT_EQ(thema, "TV_Arplanoptionen");
  Formular::setHilfe({});
  klicke("cmdschließen");
  EXPECT_FALSE(form->isVisible());
}

TEST_F(Arplanoptionen, NachDemSchliessenOeffnetSieSichMitFrischenDaten) {
  oeffne();
  klicke("cmdschließen");
  option("Honig", "01.07", 0, "01.07");
  form->laden();
  form->show();
  EXPECT_EQ(namen(), QStringList("Honig"));
}

TEST_F(Arplanoptionen, PasstAuchMitGrosserSchriftAufDenSchirm) {
  option("Honigernte", "01.06", 14, "31.08", "J", "Honigernte");
  option("Kerzenproduktion", "01.11", 0, "01.11", "N");
  for (const Tabelle& t : schema())
    if (t.name == "Arbeitsplanoptionen")
      for (const QString& zeile : t.startwerte.mid(0, 8)) db().Execute(zeile);
  for (const int prozent : {100, 150}) {
    const Schriftgroesse schrift(prozent);
    oeffne();
    klickeZeile(4);
    passtAufKleinenSchirm(*form);
    form->resize(1100 * prozent / 100, 640);  // as on a screen with room
    knoepfeSindLesbar(*form);
    bildAblegen(*form, QString("plan_optionen_%1").arg(prozent));
    form.reset();
  }
}
