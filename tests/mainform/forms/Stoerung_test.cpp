#include <sys/resource.h>

#include <QDir>
#include <csignal>

#include "Hauptumfeld.h"
#include "gemeinsam/AndererBenutzer.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;

namespace {

const auto AlleRechte = QFileDevice::Permissions(0x7777);
const auto AlleLesen = QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther;
const auto AlleSchreiben =
    QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;
const auto AlleÖffnen = QFileDevice::ExeOwner | QFileDevice::ExeGroup | QFileDevice::ExeOther;

// What may lie in the program folder under the database's name: the start tells it, touches
// nothing and ends.
class Datenbankstörung : public Hauptumfeld {
 protected:
  QStringList ordnerinhalt() const {
    return QDir(m_ordner.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
  }
  void wirdAbgelehnt(const QByteArray& inhalt, const QString& meldung) {
    dateiSchreiben("TOVA2.MDB", inhalt);
    probe.hinweisMit(meldung.arg(datei("TOVA2.MDB")));
    EXPECT_FALSE(laden());
    form->close();
    beenden();
    EXPECT_EQ(dateiLesen("TOVA2.MDB"), inhalt);
    EXPECT_EQ(ordnerinhalt(), QStringList({"TOVA2.MDB"}));
  }
  QByteArray gültige() {
    völker(3);
    return dateiLesen("TOVA2.MDB");
  }
};

}  // namespace

TEST_F(Datenbankstörung, Textdatei) {
  wirdAbgelehnt("Liebe Imkerfreunde,\r\n",
                "Die Datei \"%1\" ist eine Textdatei und keine "
                "Datenbank von TOVA.");
}

TEST_F(Datenbankstörung, NullBytes) {
  wirdAbgelehnt({}, "Die Datei \"%1\" ist leer und keine Datenbank.");
}

TEST_F(Datenbankstörung, InDerMitteAbgeschnitten) {
  const QByteArray ganz = gültige();
  wirdAbgelehnt(ganz.left(ganz.size() / 2),
                "Die Datenbank \"%1\" ist unvollständig: Ihr Ende "
                "fehlt.");
}

TEST_F(Datenbankstörung, ImKopfAbgeschnitten) {
  wirdAbgelehnt(gültige().left(50), "Die Datenbank \"%1\" ist unvollständig: Ihr Ende fehlt.");
}

TEST_F(Datenbankstörung, HinterDemKopfZerstört) {
  QByteArray zerstört = gültige();
  zerstört.replace(100, zerstört.size() - 100, QByteArray(zerstört.size() - 100, '\x5A'));
  wirdAbgelehnt(zerstört, "Die Datei \"%1\" ist beschädigt oder keine Datenbank von TOVA.");
}

TEST_F(Datenbankstörung, ÄlteresFormat) {
  wirdAbgelehnt(QByteArray("\x00\x01\x00\x00\x53\x74\x61\x6e\x64\x61\x72\x64\x20\x4a\x65\x74\x20"
                           "\x44\x42\x00",
                           20) +
                    QByteArray(4076, '\0'),
                "Die Datei \"%1\" ist die Datenbank einer älteren TOVA-Version.");
}

TEST_F(Datenbankstörung, IrgendwelcheBytes) {
  wirdAbgelehnt(QByteArray(5000, '\xFE').replace(0, 4, QByteArray("\x01\x02\x03\x04")),
                "Die Datei \"%1\" ist keine Datenbank von TOVA.");
}

TEST_F(Datenbankstörung, DatenbankEinesAnderenProgramms) {
  const QString pfad = datei("TOVA2.MDB");
  {
    Workspace bereich;
    bereich.CreateDatabase(pfad).Execute("create table Buecher (Titel TEXT (20))");
    bereich.Close();
  }
  wirdAbgelehnt(dateiLesen("TOVA2.MDB"),
                "Die Datei \"%1\" ist keine Datenbank von TOVA: Die "
                "Tabelle Bienenvolk fehlt.");
}

TEST_F(Datenbankstörung, Ordner) {
  ASSERT_TRUE(QDir(m_ordner.path()).mkpath("TOVA2.MDB/darin"));
  probe.hinweisMit("\"" + datei("TOVA2.MDB") + "\" ist ein Ordner und keine Datenbank.");
  EXPECT_FALSE(laden());
  beenden();
  EXPECT_EQ(ordnerinhalt(), QStringList({"TOVA2.MDB"}));
  EXPECT_TRUE(QDir(datei("TOVA2.MDB/darin")).exists());
}

TEST_F(Datenbankstörung, FremdeDateiBehältIhrenSchreibschutz) {
  dateiSchreiben("TOVA2.MDB", "Brief");
  ASSERT_TRUE(QFile::setPermissions(datei("TOVA2.MDB"), AlleLesen));
  probe.hinweisMit("ist eine Textdatei");
  EXPECT_FALSE(laden());
  EXPECT_FALSE(QFile::permissions(datei("TOVA2.MDB")) & QFile::WriteOwner);
}

TEST_F(Datenbankstörung, NichtLesbareDatei) {
  const QByteArray vorher = gültige();
  QFile::setPermissions(m_ordner.path(), AlleRechte);
  QFile::setPermissions(datei("TOVA2.MDB"), {});
  probe.hinweisMit("Die Datenbank \"" + datei("TOVA2.MDB") + "\" kann nicht gelesen werden.");
  {
    const AndererBenutzer niemand;
    ASSERT_FALSE(niemand.darfAlles());
    EXPECT_FALSE(laden());
    beenden();
  }
  QFile::setPermissions(datei("TOVA2.MDB"), AlleRechte);
  EXPECT_EQ(dateiLesen("TOVA2.MDB"), vorher);
  EXPECT_EQ(ordnerinhalt(), QStringList({"TOVA2.MDB"}));
}

TEST_F(Datenbankstörung, OrdnerInDenNichtGeschriebenWerdenDarf) {
  const QByteArray vorher = gültige();
  QFile::setPermissions(datei("TOVA2.MDB"), AlleLesen | AlleSchreiben);
  QFile::setPermissions(m_ordner.path(), AlleLesen | AlleÖffnen);
  probe.hinweisMit("In den Ordner \"" + m_ordner.path() + "\" der Datenbank kann nicht");
  {
    const AndererBenutzer niemand;
    ASSERT_FALSE(niemand.darfAlles());
    EXPECT_FALSE(laden());
    beenden();
  }
  QFile::setPermissions(m_ordner.path(), AlleRechte);
  EXPECT_EQ(dateiLesen("TOVA2.MDB"), vorher);
  EXPECT_EQ(ordnerinhalt(), QStringList({"TOVA2.MDB"}));
}

TEST_F(Datenbankstörung, ErsterStartInEinemOrdnerInDenNichtGeschriebenWerdenDarf) {
  QFile::setPermissions(m_ordner.path(), AlleLesen | AlleÖffnen);
  probe.hinweisMit(datei("TOVA2.MDB"));
  {
    const AndererBenutzer niemand;
    ASSERT_FALSE(niemand.darfAlles());
    EXPECT_FALSE(laden());
    beenden();
  }
  QFile::setPermissions(m_ordner.path(), AlleRechte);
  EXPECT_EQ(ordnerinhalt(), QStringList());
}

TEST_F(Datenbankstörung, VollerDatenträgerBeimErstenStartHinterlässtNichts) {
  probe.hinweisMit("Auf dem Datenträger ist kein Platz mehr");
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit vorher{};
  getrlimit(RLIMIT_FSIZE, &vorher);
  rlimit eng = vorher;
  eng.rlim_cur = 20000;
  setrlimit(RLIMIT_FSIZE, &eng);
  EXPECT_FALSE(laden());
  form->close();
  beenden();
  setrlimit(RLIMIT_FSIZE, &vorher);
  EXPECT_EQ(ordnerinhalt(), QStringList());
}

TEST_F(Datenbankstörung, OrdnerMitUmlautenUndZeichenDieAnderswoEtwasBedeuten) {
  const QString ordner = datei(QStringLiteral("Bienen & Völker's 100%1 #? \"x\""));
  ASSERT_TRUE(QDir().mkpath(ordner));
  const auto gestartet = [&ordner] {
    TA_TOVA programm;
    const bool gut = programm.laden({ordner, QDate(2024, 6, 15), [] { return true; }});
    programm.close();
    return gut;
  };
  EXPECT_TRUE(gestartet());
  DB.Execute("insert into Bienenvolk (Volknr, Akt_im_Bestand) values ('1', 'X')");
  trennen();
  zurücksetzen();
  EXPECT_TRUE(gestartet());
  EXPECT_EQ(DB.Lesen("select ID from Bienenvolk")->zeilen(), 1);
  EXPECT_TRUE(QFile::exists(ordner + "/Einstellungen.TV2"));
}

TEST_F(Datenbankstörung, ZerstörteFensterablageHältDenStartNichtAuf) {
  völker(2);
  QByteArray bytes;
  for (int i = 0; i < 5000; ++i) bytes += static_cast<char>(i * 31 + i / 256);
  dateiSchreiben("TOVA2.LAY", bytes);
  starten();
  EXPECT_EQ(nummern(), QStringList({"1", "2"}));
  datali()->horizontalHeader()->resizeSection(1, 144);
  schließen();
  zurücksetzen();
  starten();
  EXPECT_EQ(datali()->columnWidth(1), 144);
}

TEST_F(Datenbankstörung, NachDemErstenProgrammGehtDasZweite) {
  völker(1);
  starten();
  probe.hinweisMit("Die Anwendung wurde bereits gestartet!");
  {
    TA_TOVA zweites;
    EXPECT_FALSE(zweites.laden({m_ordner.path(), QDate(2024, 6, 15), [] { return true; }}));
    zweites.close();
  }
  EXPECT_EQ(nummern(), QStringList({"1"}));  // the first one goes on
  schließen();
  zurücksetzen();
  starten();
  EXPECT_EQ(nummern(), QStringList({"1"}));
}

namespace {

// A settings file that someone has edited or that a computer has lost.
class Einstellungsstörung : public Hauptumfeld {
 protected:
  // The program tells the line once, keeps the file beside, works with the defaults and leaves a
  // whole file behind.
  void meldetUndSchreibtGanz(const QByteArray& inhalt, const QString& meldung) {
    probe.hinweisMit(meldung);
    startetUndSchreibtGanz(inhalt);
    EXPECT_EQ(dateiLesen("Einstellungen.TV2.alt"), inhalt);
    zurücksetzen();
    starten();
    EXPECT_EQ(nummern(), QStringList({"1", "2"}));
    EXPECT_EQ(EinstellungenZahl[Zahlslots.termintage], 14);
    EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2024);
    schließen();
    EXPECT_EQ(dateiLesen("Einstellungen.TV2.alt"), inhalt);
  }
  void startetUndSchreibtGanz(const QByteArray& inhalt) {
    völker(2);
    dateiSchreiben("Einstellungen.TV2", inhalt);
    starten();
    EXPECT_EQ(nummern(), QStringList({"1", "2"}));
    EXPECT_EQ(EinstellungenZahl[Zahlslots.mehrwertsteuer1], 19);
    EXPECT_EQ(EinstellungenZahl[Zahlslots.mehrwertsteuer2], 7);
    EXPECT_EQ(EinstellungenZahl[Zahlslots.wabenJeMagazin], 10);
    EXPECT_EQ(EinstellungenZahl[Zahlslots.startzähler], 1);
    EXPECT_TRUE(EinstellungenText[Textslots.volkfelder].startsWith("select Volknr, Volkname, "));
    EXPECT_EQ(EinstellungenText[Textslots.trennzeichen], QStringLiteral(" | "));
    EXPECT_EQ(EinstellungenText[Textslots.infofenster], QString(60, u'1'));
    klick("cmdok");
    EXPECT_TRUE(panel().startsWith("VOLKDATEN"));
    schließen();
    EXPECT_EQ(Textdatei::lesen(datei("Einstellungen.TV2")).size(), 173);
  }
};

}  // namespace

TEST_F(Einstellungsstörung, LeereDatei) {
  meldetUndSchreibtGanz({}, "ab Zeile 1 nicht gelesen werden. Die Datei ist leer.");
}

TEST_F(Einstellungsstörung, KurzeDatei) {
  meldetUndSchreibtGanz("0\r\n0\r\n1", "ab Zeile 4 nicht gelesen werden. Die Datei endet vorher.");
}

TEST_F(Einstellungsstörung, DateiInUtf16) {
  const QByteArray bytes = QByteArray("\xFF\xFE", 2) + QByteArray("0\0\r\0\n\0", 6);
  meldetUndSchreibtGanz(bytes, "ab Zeile 1 nicht gelesen werden. Die Datei ist in der Codierung");
}

// What stands behind the bad line must not be gone with the next close.
TEST_F(Einstellungsstörung, SchlechteZeileMittendrin) {
  QByteArray inhalt;
  for (int i = 0; i < 13; ++i) inhalt += "0\r\n";
  inhalt += "0\r\nhallo\r\n";
  for (int i = 15; i < 101; ++i) inhalt += "0\r\n";
  for (int i = 0; i < 11; ++i) inhalt += "8.50\r\n";
  for (int i = 0; i < 61; ++i) inhalt += "Imkerei Waldhof\r\n";
  meldetUndSchreibtGanz(inhalt, "ab Zeile 15 nicht gelesen werden. Dort steht \u201Ehallo\u201C");
  EXPECT_EQ(Textdatei::lesen(datei("Einstellungen.TV2"))[13], "0");  // read
  EXPECT_EQ(Textdatei::lesen(datei("Einstellungen.TV2"))[55], "1");  // its default
  EXPECT_EQ(Textdatei::lesen(datei("Einstellungen.TV2"))[112], "");  // never read
}

TEST_F(Einstellungsstörung, NachEinemAbsturzWirdNichtNochEinmalGemeldet) {
  völker(1);
  dateiSchreiben("Einstellungen.TV2", "x\r\n");
  probe.hinweisMit("ab Zeile 1 nicht gelesen werden");
  EXPECT_TRUE(laden());  // and no close
  beenden();
  zurücksetzen();
  EXPECT_TRUE(laden());
}

TEST_F(Einstellungsstörung, DieSichNichtAufhebenLässtBeendetMitMeldungUndBleibt) {
  völker(1);
  dateiSchreiben("Einstellungen.TV2", "x\r\n");
  ASSERT_TRUE(QDir(m_ordner.path()).mkpath("Einstellungen.TV2.alt"));
  probe.hinweisMit(datei("Einstellungen.TV2.alt"));
  EXPECT_FALSE(laden());
  form->close();
  EXPECT_EQ(dateiLesen("Einstellungen.TV2"), QByteArray("x\r\n"));
}

TEST_F(Einstellungsstörung, BinäreDatei) {
  QByteArray bytes;
  for (int i = 0; i < 20000; ++i) bytes += static_cast<char>(i * 37 + i / 256);
  meldetUndSchreibtGanz(bytes, "ab Zeile 1 nicht gelesen werden. Dort steht");
}

TEST_F(Einstellungsstörung, ZuLangeDateiMitEinerRiesigenZeile) {
  QByteArray inhalt;
  for (int i = 0; i < 101; ++i) inhalt += "0\r\n";
  for (int i = 0; i < 11; ++i) inhalt += "0.00\r\n";
  inhalt += QByteArray(1000000, 'x') + "\r\n";
  for (int i = 0; i < 60; ++i) inhalt += "\r\n";
  for (int i = 0; i < 5000; ++i) inhalt += "zuviel\r\n";
  probe.frageMit("Sie starten TOVA das erste mal im neuen Jahr", false);
  startetUndSchreibtGanz(inhalt);
}

TEST_F(Einstellungsstörung, OrdnerAnIhrerStelleBeendetMitMeldung) {
  völker(1);
  ASSERT_TRUE(QDir(m_ordner.path()).mkpath("Einstellungen.TV2"));
  probe.hinweisMit(datei("Einstellungen.TV2"));
  EXPECT_FALSE(laden());
}

TEST_F(Einstellungsstörung, NichtLesbareDateiBeendetMitMeldungUndBleibt) {
  völker(1);
  dateiSchreiben("Einstellungen.TV2", "1\r\n2\r\n");
  QFile::setPermissions(m_ordner.path(), AlleRechte);
  QFile::setPermissions(datei("TOVA2.MDB"), AlleLesen | AlleSchreiben);
  QFile::setPermissions(datei("Einstellungen.TV2"), QFileDevice::WriteOwner);
  probe.hinweisMit("Die Datei " + datei("Einstellungen.TV2") + " kann nicht gelesen werden.");
  {
    const AndererBenutzer niemand;
    ASSERT_FALSE(niemand.darfAlles());
    EXPECT_FALSE(laden());
    form->close();
    beenden();
  }
  QFile::setPermissions(datei("Einstellungen.TV2"), AlleRechte);
  EXPECT_EQ(dateiLesen("Einstellungen.TV2"), QByteArray("1\r\n2\r\n"));
}
