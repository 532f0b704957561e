#include "mainform/Start.h"

#include <QDir>
#include <QFile>

#include "Umfeld.h"
#include "core/settings.h"
#include "mainform/Volkliste.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;

class Programmstart : public Umfeld {
 protected:
  void anlegen(const QString& name) const {
    QFile f(datei(name));
    ASSERT_TRUE(f.open(QFile::WriteOnly));
    f.write("x");
  }
};

TEST_F(Programmstart, FenstertitelNenntDieVersion) {
  EXPECT_EQ(Start::fenstertitel(), QStringLiteral("TOVA 2.0.57 - Die Software für Imker"));
}

TEST_F(Programmstart, ZweiLeerzeichenNachDemAusrufezeichen) {
  EXPECT_TRUE(
      Start::schonGestartetText().startsWith("Die Anwendung wurde bereits gestartet!  Mit"));
}

TEST_F(Programmstart, DeutscheFormenBestehenAlleDreiPrüfungen) {
  EXPECT_EQ(Start::landtest(), QString());
  EXPECT_EQ(Start::währungstest(), QString());
  EXPECT_EQ(Start::datumtest(QDateTime(QDate(2024, 6, 5), QTime(7, 8, 9))), QString());
}

TEST_F(Programmstart, PfadEndetMitGenauEinemSchrägstrich) {
  Start::pfadeSetzen(QStringLiteral("/imker/tova"));
  EXPECT_EQ(AppPfad, QStringLiteral("/imker/tova/"));
  EXPECT_EQ(DatenbankPfad, QStringLiteral("/imker/tova/TOVA2.MDB"));
  Start::pfadeSetzen(QStringLiteral("/imker/tova/"));
  EXPECT_EQ(AppPfad, QStringLiteral("/imker/tova/"));
  EXPECT_EQ(ListeNeuLesen, 1);
  EXPECT_EQ(ProgrammGestartet, 0);
}

TEST_F(Programmstart, OhneDateiEntstehtDieDatenbankMitStartwerten) {
  EXPECT_FALSE(Start::datenbankVorhanden());
  Database db = Start::datenbankÖffnen();
  EXPECT_TRUE(Start::datenbankVorhanden());
  EXPECT_EQ(db.Lesen("select ID from Bienenvolk")->zeilen(), 0);
  EXPECT_EQ(db.Lesen("select ID from Arbeitsplanoptionen")->zeilen(), 18);
}

TEST_F(Programmstart, VorhandeneDatenbankWirdGeöffnet) {
  datenbank();
  neu("Bienenvolk", {{"Volknr", "1"}});
  DB.Close();
  Arbeitsbereich.Close();
  Database db = Start::datenbankÖffnen();
  EXPECT_EQ(db.Lesen("select ID from Bienenvolk")->zeilen(), 1);
  EXPECT_TRUE(DB.IsOpen());
}

TEST_F(Programmstart, FremdeDateiIstEinFehlerUndBleibtWieSieIst) {
  anlegen("TOVA2.MDB");
  EXPECT_THROW(Start::datenbankÖffnen(), Datenbankfehler);
  QFile f(datei("TOVA2.MDB"));
  ASSERT_TRUE(f.open(QFile::ReadOnly));
  EXPECT_EQ(f.readAll(), QByteArray("x"));
}

TEST_F(Programmstart, SchreibgeschützteDateienWerdenGenanntUndFrei) {
  anlegen("a.TV2");
  anlegen("b.TV2");
  anlegen("frei.TV2");
  for (const char* name : {"a.TV2", "b.TV2"}) QFile::setPermissions(datei(name), QFile::ReadOwner);
  const QStringList dateien = Start::schreibgeschützte();
  ASSERT_EQ(dateien.size(), 2);
  EXPECT_TRUE(dateien[0].endsWith("/a.TV2"));
  EXPECT_TRUE(dateien[1].endsWith("/b.TV2"));
  Start::schreibschutzEntfernen(dateien);
  EXPECT_EQ(Start::schreibgeschützte(), QStringList());
}

TEST_F(Programmstart, SchreibschutzTextNenntDieAnzahl) {
  EXPECT_EQ(
      Start::schreibschutzText(2),
      QStringLiteral("ACHTUNG!!!\r\n\r\nIm Installationsverzeichnis von TOVA befinden sich 2 "
                     "Dateien, die mit einem Schreibschutz versehen sind. Dadurch kann es bei TOVA "
                     "zu Funktionsstörungen kommen. Der Schreibschutz wird deshalb entfernt?"));
}

TEST_F(Programmstart, ResteAbgeschossenerSicherungenVerschwinden) {
  for (const char* name :
       {"Einstellungen.TV2.aBcDeF", "TV_Neues_Volk.TV2.xYzabc", "LISTE.TXT.QrsTuv",
        "gridli.txt.kLmnoP", "tova_liste.xlsx.WvUtsr", "TOVA2.LAY.pQRstu", "Einstellungen.TV2",
        "Einstellungen.TV2.backup", "TOVA2.MDB.aBcDeF"})
    anlegen(name);
  Start::resteLöschen();
  EXPECT_EQ(QDir(m_ordner.path()).entryList(QDir::Files, QDir::Name),
            QStringList({"Einstellungen.TV2", "Einstellungen.TV2.backup", "TOVA2.MDB.aBcDeF"}));
}

TEST_F(Programmstart, ResteEinerAbgeschossenenKomprimierungVerschwinden) {
  datenbank();
  for (const char* name : {"TOVA2.$$$", "TOVA2.$$$-journal", "TOVA2.MDB.neu",
                           "TOVA2.MDB.neu-journal", "TOVA2.MDB.alt"})
    anlegen(name);
  Start::resteLöschen();
  EXPECT_EQ(QDir(m_ordner.path()).entryList(QDir::Files, QDir::Name),
            QStringList({"TOVA2.MDB", "TOVA2.MDB.alt"}));
}

TEST_F(Programmstart, EineDatenbankEinerNeuerenFassungIstEinFehlerUndBleibt) {
  datenbank();
  DB.setSchemastand(999);
  DB.Close();
  Arbeitsbereich.Close();
  EXPECT_THROW(Start::datenbankÖffnen(), Datenbankfehler);
  EXPECT_EQ(DB.Schemastand(), 999);
}

TEST_F(Programmstart, ErsterStartSetztUndSichertDieVorgaben) {
  EinstellungenText[Textslots.infofenster].clear();
  Start::einstellungenLaden(QDate(2024, 6, 15));
  EXPECT_EQ(HeuteText, QStringLiteral("15.06.2024"));
  const QMap<int, int> soll = {{13, 1}, {17, 14}, {24, 1},  {28, 2024}, {46, 1},
                               {47, 1}, {49, 60}, {50, 14}, {55, 1},    {57, 1}};
  for (int i = 0; i <= 100; ++i) EXPECT_EQ(EinstellungenZahl.at(i), soll.value(i)) << i;
  EXPECT_EQ(EinstellungenText[Textslots.trennzeichen], QStringLiteral(" | "));
  EXPECT_EQ(Textdatei::lesen(datei("Einstellungen.TV2")).size(), 173);
}

TEST_F(Programmstart, OhneEinstellungenEntstehenDieFeldlistenNeu) {
  datenbank();
  Start::einstellungenLaden(QDate(2024, 6, 15));
  EXPECT_EQ(EinstellungenText[Textslots.volkfelder], QString());
  listenfelderPrüfen();
  stockkartenfelderPrüfen();
  EXPECT_TRUE(EinstellungenText[Textslots.volkfelder].startsWith("select Volknr, Volkname, "));
  EXPECT_TRUE(
      EinstellungenText[Textslots.stockkartenfelder].startsWith("select Datum, Volkstärke, "));
  EXPECT_EQ(EinstellungenText[Textslots.infofenster], QString(60, u'1'));
}

TEST_F(Programmstart, VorhandeneEinstellungenWerdenGelesen) {
  EinstellungenZahl[Zahlslots.termintage] = 30;
  EinstellungenText[Textslots.sortierung1] = QStringLiteral("Volkname");
  EinstellungenSchreiben();
  EinstellungenZahl.fill(0);
  EinstellungenText.fill({});
  Start::einstellungenLaden(QDate(2024, 6, 15));
  EXPECT_EQ(EinstellungenZahl[Zahlslots.termintage], 30);
  EXPECT_EQ(EinstellungenText[Textslots.sortierung1], QStringLiteral("Volkname"));
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sicherungstage], 0);
}

TEST_F(Programmstart, AbgebrocheneEinstellungenHabenAbDerStelleIhreVorgaben) {
  QStringList zeilen(52, "0");
  zeilen[17] = "30";
  zeilen[48] = "fünf";
  Textdatei::schreiben(datei("Einstellungen.TV2"), zeilen);
  const QByteArray vorher = Textdatei::bytesLesen(datei("Einstellungen.TV2"));
  const auto bruch = Start::einstellungenLaden(QDate(2024, 6, 15));
  ASSERT_TRUE(bruch.has_value());
  EXPECT_EQ(bruch->zeile, 49);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.termintage], 30);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.datumAlsListenkopf], 0);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.explorerzeilen], 60);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sicherungstage], 14);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.löschabfrage], 1);
  EXPECT_EQ(Textdatei::bytesLesen(datei("Einstellungen.TV2.alt")), vorher);
  EXPECT_EQ(Textdatei::lesen(datei("Einstellungen.TV2")).size(), 173);
  const QString text = Start::einstellungsbruchText(*bruch);
  EXPECT_TRUE(text.contains("ab Zeile 49 nicht gelesen werden. Dort steht \u201Efünf\u201C"))
      << text.toStdString();
  EXPECT_TRUE(text.contains("Einstellungen.TV2.alt"));
  EXPECT_FALSE(Start::einstellungenLaden(QDate(2024, 6, 15)).has_value());
}

TEST_F(Programmstart, GanzeEinstellungenHabenKeineKopie) {
  EinstellungenSchreiben();
  EXPECT_FALSE(Start::einstellungenLaden(QDate(2024, 6, 15)).has_value());
  EXPECT_FALSE(QFile::exists(datei("Einstellungen.TV2.alt")));
}

TEST_F(Programmstart, JederZwanzigsteStartErinnertAnNeueFassungen) {
  QList<int> erinnert;
  for (int start = 1; start <= 60; ++start)
    if (Start::startZählen()) erinnert << start;
  EXPECT_EQ(erinnert, QList<int>({20, 40, 60}));
  EXPECT_EQ(EinstellungenZahl[Zahlslots.startzähler], 60);
}

TEST_F(Programmstart, StartzählerFängtÜberDreißigtausendVonVornAn) {
  EinstellungenZahl[Zahlslots.startzähler] = 30000;
  EXPECT_FALSE(Start::startZählen());
  EXPECT_EQ(EinstellungenZahl[Zahlslots.startzähler], 30001);
  EXPECT_FALSE(Start::startZählen());
  EXPECT_EQ(EinstellungenZahl[Zahlslots.startzähler], 2);
}

TEST_F(Programmstart, TerminGenauAmLetztenTagIstFällig) {
  datenbank();
  EinstellungenZahl[Zahlslots.termintage] = 14;
  neu("Termine", {{"Datum", QDate(2024, 6, 30)}, {"Erledigt", "N"}});
  EXPECT_FALSE(Start::termineFällig(DB));
  neu("Termine", {{"Datum", QDate(2024, 6, 29)}, {"Erledigt", "J"}});
  EXPECT_FALSE(Start::termineFällig(DB));
  neu("Termine", {{"Datum", QDate(2024, 6, 29)}, {"Erledigt", "N"}});
  EXPECT_TRUE(Start::termineFällig(DB));
}

TEST_F(Programmstart, NurAusgegebeneBerichteWerdenGelöscht) {
  for (const char* name : {"report-1.htm", "report-abc.htm", "report.htm", "LISTE.TXT"})
    anlegen(name);
  Start::berichteLöschen();
  EXPECT_FALSE(QFile::exists(datei("report-1.htm")));
  EXPECT_FALSE(QFile::exists(datei("report-abc.htm")));
  EXPECT_TRUE(QFile::exists(datei("report.htm")));
  EXPECT_TRUE(QFile::exists(datei("LISTE.TXT")));
}

TEST_F(Programmstart, SicherungVorGenauVierzehnTagenErinnert) {
  EinstellungenZahl[Zahlslots.sicherungstage] = 14;
  EinstellungenText[Textslots.letzteSicherung] = QStringLiteral("01.06.2024");
  EXPECT_TRUE(Start::sicherungFällig());
  EinstellungenText[Textslots.letzteSicherung] = QStringLiteral("02.06.2024");
  EXPECT_FALSE(Start::sicherungFällig());
  EXPECT_EQ(EinstellungenText[Textslots.letzteSicherung], QStringLiteral("02.06.2024"));
}

TEST_F(Programmstart, OhneSicherungBeginntDieFristHeute) {
  EinstellungenZahl[Zahlslots.sicherungstage] = 14;
  for (const char* text : {"", "nie", "31.02.2024"}) {
    EinstellungenText[Textslots.letzteSicherung] = QString::fromLatin1(text);
    EXPECT_FALSE(Start::sicherungFällig());
    EXPECT_EQ(EinstellungenText[Textslots.letzteSicherung], QStringLiteral("15.06.2024"));
  }
}
