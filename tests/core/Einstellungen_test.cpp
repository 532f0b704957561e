#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <random>

#include "core/globals.h"
#include "core/settings.h"
#include "gemeinsam/AndererBenutzer.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;

namespace {

class Einstellungen : public testing::Test {
 protected:
  Einstellungen() {
    zuruecksetzen();
    AppPfad = m_ordner.path() + u'/';
  }
  ~Einstellungen() override { zuruecksetzen(); }

  QString pfad() const { return AppPfad + QStringLiteral("Einstellungen.TV2"); }

  void leg(const QByteArray& bytes) const {
    QFile datei(pfad());
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(bytes);
  }

  QByteArray bytes() const {
    QFile datei(pfad());
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("(keine Datei)");
  }

  // A file whose slots tell their numbers: Zahl n is n, Wert n is n + 0.5, Text n is "Text n".
  static QList<QByteArray> ganzeDatei() {
    QList<QByteArray> zeilen;
    for (int i = 0; i <= 100; ++i) zeilen += QByteArray::number(i);
    for (int i = 0; i <= 10; ++i) zeilen += QByteArray::number(i) + ".50";
    for (int i = 0; i <= 60; ++i) zeilen += "Text " + QByteArray::number(i);
    return zeilen;
  }
  void legZeilen(const QList<QByteArray>& zeilen, const QByteArray& ende = "\r\n") const {
    leg(zeilen.join(ende) + ende);
  }

  static void fuelle() {
    EinstellungenZahl.fill(77);
    EinstellungenWert.fill(7.25F);
    EinstellungenText.fill(QStringLiteral("vorher"));
  }

  QTemporaryDir m_ordner;
};

TEST_F(Einstellungen, DateiHatHundertdreiundsiebzigZeilen) {
  EinstellungenSchreiben();
  EXPECT_EQ(bytes().count("\r\n"), 173);
  EXPECT_TRUE(bytes().endsWith("\r\n"));
}

TEST_F(Einstellungen, JederPlatzHatSeineZeile) {
  for (size_t i = 0; i < EinstellungenZahl.size(); ++i)
    EinstellungenZahl[i] = static_cast<qint16>(i);
  for (size_t i = 0; i < EinstellungenWert.size(); ++i)
    EinstellungenWert[i] = static_cast<float>(i) + 0.5F;
  for (size_t i = 0; i < EinstellungenText.size(); ++i)
    EinstellungenText[i] = QStringLiteral("Text %1").arg(i);
  EinstellungenSchreiben();
  EXPECT_EQ(bytes(), ganzeDatei().join("\r\n") + "\r\n");
}

TEST_F(Einstellungen, GelesenWirdNachDerZeilennummer) {
  legZeilen(ganzeDatei());
  EinstellungenLesen();
  for (size_t i = 0; i < EinstellungenZahl.size(); ++i)
    EXPECT_EQ(EinstellungenZahl[i], static_cast<qint16>(i));
  for (size_t i = 0; i < EinstellungenWert.size(); ++i)
    EXPECT_EQ(EinstellungenWert[i], static_cast<float>(i) + 0.5F);
  for (size_t i = 0; i < EinstellungenText.size(); ++i)
    EXPECT_EQ(EinstellungenText[i], QStringLiteral("Text %1").arg(i));
}

TEST_F(Einstellungen, AllePlaetzeHinUndZurueck) {
  std::mt19937 zufall(5);
  for (qint16& zahl : EinstellungenZahl) zahl = static_cast<qint16>(zufall());
  for (float& wert : EinstellungenWert)
    wert = static_cast<float>(static_cast<int>(zufall() % 2000001) - 1000000) / 100.0F;
  for (QString& text : EinstellungenText) text = QStringLiteral("äöü%1ß €").arg(zufall());
  const auto zahlen = EinstellungenZahl;
  const auto werte = EinstellungenWert;
  const auto texte = EinstellungenText;
  EinstellungenSchreiben();
  fuelle();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl, zahlen);
  EXPECT_EQ(EinstellungenWert, werte);
  EXPECT_EQ(EinstellungenText, texte);
}

TEST_F(Einstellungen, GrenzenDerGanzenZahlen) {
  EinstellungenZahl[0] = 32767;
  EinstellungenZahl[100] = -32768;
  EinstellungenSchreiben();
  fuelle();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl[0], 32767);
  EXPECT_EQ(EinstellungenZahl[100], -32768);
}

TEST_F(Einstellungen, WerteMitZweiStellenUndPunkt) {
  EinstellungenWert = {8.5F, 0.1F, -3.25F, 1234567.0F, 0.015F, 12.0F, 0, 0, 0, 0, 0};
  EinstellungenSchreiben();
  const QStringList zeilen = Textdatei::lesen(pfad());
  EXPECT_EQ(zeilen.mid(101, 6).join(u'/'), QStringLiteral("8.50/0.10/-3.25/1234567.00/0.02/12.00"));
}

TEST_F(Einstellungen, RiesigerWertWirdNichtAbgeschnitten) {
  EinstellungenWert[3] = 3.4e38F;
  EinstellungenSchreiben();
  fuelle();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenWert[3], 3.4e38F);
  EXPECT_EQ(EinstellungenText[60], QString());
}

TEST_F(Einstellungen, UmlauteStehenInDerCodepage) {
  EinstellungenText[0] = QStringLiteral("Imkerei Müller");
  EinstellungenSchreiben();
  EXPECT_TRUE(bytes().contains("Imkerei M\xFCller\r\n"));
}

TEST_F(Einstellungen, ZeichenAusserhalbDerCodepageWerdenFragezeichen) {
  EinstellungenText[0] = QStringLiteral("Пчела 🐝");
  EinstellungenSchreiben();
  fuelle();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText[0], QStringLiteral("????? ?"));
}

TEST_F(Einstellungen, ZwanzigtausendZeichenInEinemPlatz) {
  EinstellungenText[17] = QString(20000, u'ä');
  EinstellungenText[18] = QStringLiteral("danach");
  const QString lang = EinstellungenText[17];
  EinstellungenSchreiben();
  fuelle();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText[17], lang);
  EXPECT_EQ(EinstellungenText[18], QStringLiteral("danach"));
}

TEST_F(Einstellungen, ZeilenumbruchVerschiebtDieFolgendenZeilenNicht) {
  EinstellungenText[5] = QStringLiteral("a\r\nb\nc\rd");
  EinstellungenText[6] = QStringLiteral("sechs");
  EinstellungenSchreiben();
  EXPECT_EQ(bytes().count("\r\n"), 173);
  fuelle();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText[5], QStringLiteral("a b c d"));
  EXPECT_EQ(EinstellungenText[6], QStringLiteral("sechs"));
}

TEST_F(Einstellungen, BlanksAmRandEinesTextesBleiben) {
  EinstellungenText[4] = QStringLiteral(" | ");
  EinstellungenSchreiben();
  fuelle();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText[4], QStringLiteral(" | "));
}

TEST_F(Einstellungen, LeererTrennerWirdStrichZwischenBlanks) {
  EinstellungenSchreiben();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText[4], QStringLiteral(" | "));
}

TEST_F(Einstellungen, OhneDateiBleibtAlles) {
  fuelle();
  EinstellungenText[4].clear();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl[0], 77);
  EXPECT_EQ(EinstellungenText[4], QString());
}

TEST_F(Einstellungen, LeereDateiLaesstAllePlaetze) {
  fuelle();
  leg("");
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl[0], 77);
  EXPECT_EQ(EinstellungenText[60], QStringLiteral("vorher"));
}

TEST_F(Einstellungen, KurzeDateiLaesstDieUebrigenPlaetze) {
  for (const int laenge : {1, 50, 101, 102, 112, 113, 172}) {
    fuelle();
    legZeilen(ganzeDatei().mid(0, laenge));
    EinstellungenLesen();
    for (int i = 0; i < 173; ++i) {
      const auto platz = static_cast<size_t>(i <= 100 ? i : i <= 111 ? i - 101 : i - 112);
      const bool gelesen = i < laenge;
      if (i <= 100)
        EXPECT_EQ(EinstellungenZahl[platz], gelesen ? i : 77);
      else if (i <= 111)
        EXPECT_EQ(EinstellungenWert[platz], gelesen ? static_cast<float>(platz) + 0.5F : 7.25F);
      else
        EXPECT_EQ(EinstellungenText[platz],
                  gelesen ? QStringLiteral("Text %1").arg(platz) : QStringLiteral("vorher"));
    }
  }
}

TEST_F(Einstellungen, MittenInEinerZahlAbgeschnitteneDateiNimmtDenRest) {
  fuelle();
  leg("14\r\n1");
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl[0], 14);
  EXPECT_EQ(EinstellungenZahl[1], 1);
  EXPECT_EQ(EinstellungenZahl[2], 77);
}

TEST_F(Einstellungen, BeiEinerSchlechtenZahlenzeileIstSchluss) {
  for (const char* schlecht :
       {"", "x", "1,5", "1.5", "32768", "-32769", "1 2", "0x10", "1e2", "99999999999999999999"}) {
    fuelle();
    auto zeilen = ganzeDatei();
    zeilen[3] = schlecht;
    legZeilen(zeilen);
    EinstellungenLesen();
    EXPECT_EQ(EinstellungenZahl[2], 2) << schlecht;
    EXPECT_EQ(EinstellungenZahl[3], 77) << schlecht;
    EXPECT_EQ(EinstellungenZahl[4], 77) << schlecht;
    EXPECT_EQ(EinstellungenText[0], QStringLiteral("vorher")) << schlecht;
  }
}

TEST_F(Einstellungen, BeiEinerSchlechtenWertzeileIstSchluss) {
  for (const char* schlecht : {"", "x", "1.2.3", "1 000", "inf", "nan", "1e99", ".", "-"}) {
    fuelle();
    auto zeilen = ganzeDatei();
    zeilen[103] = schlecht;
    legZeilen(zeilen);
    EinstellungenLesen();
    EXPECT_EQ(EinstellungenZahl[100], 100) << schlecht;
    EXPECT_EQ(EinstellungenWert[1], 1.5F) << schlecht;
    EXPECT_EQ(EinstellungenWert[2], 7.25F) << schlecht;
    EXPECT_EQ(EinstellungenText[0], QStringLiteral("vorher")) << schlecht;
  }
}

TEST_F(Einstellungen, BlanksUmEineZahlSindErlaubt) {
  auto zeilen = ganzeDatei();
  zeilen[0] = " 14 ";
  zeilen[1] = "\t-3";
  zeilen[101] = "   8.50 ";
  legZeilen(zeilen);
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl[0], 14);
  EXPECT_EQ(EinstellungenZahl[1], -3);
  EXPECT_EQ(EinstellungenWert[0], 8.5F);
  EXPECT_EQ(EinstellungenText[60], QStringLiteral("Text 60"));
}

TEST_F(Einstellungen, EinWertMitKommaWirdVerstanden) {
  auto zeilen = ganzeDatei();
  zeilen[101] = "8,50";
  legZeilen(zeilen);
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenWert[0], 8.5F);
  EXPECT_EQ(EinstellungenText[60], QStringLiteral("Text 60"));
}

TEST_F(Einstellungen, ZuLangeDateiWirdAmEndeUebergangen) {
  auto zeilen = ganzeDatei();
  for (int i = 0; i < 500; ++i) zeilen += "zuviel";
  legZeilen(zeilen);
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText[60], QStringLiteral("Text 60"));
}

TEST_F(Einstellungen, EineDateiMitLfAlleinWirdGelesen) {
  legZeilen(ganzeDatei(), "\n");
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText[60], QStringLiteral("Text 60"));
}

TEST_F(Einstellungen, BinaereDateiAendertNichts) {
  fuelle();
  QByteArray muell;
  std::mt19937 zufall(8);
  for (int i = 0; i < 100000; ++i) muell += static_cast<char>(zufall() | 0x80U);
  leg(muell);
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl[0], 77);
  EXPECT_EQ(EinstellungenText[0], QStringLiteral("vorher"));
}

TEST_F(Einstellungen, EineDateiAusNullbytesAendertNichts) {
  fuelle();
  leg(QByteArray(8192, '\0'));
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl[0], 77);
}

TEST_F(Einstellungen, BeiVollerScheibeBleibtDieAlteDateiByteFuerByte) {
  legZeilen(ganzeDatei());
  const QByteArray alt = bytes();
  fuelle();
  EinstellungenText[0] = QString(50000, u'x');
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit vorher{};
  getrlimit(RLIMIT_FSIZE, &vorher);
  rlimit eng = vorher;
  eng.rlim_cur = 1000;
  setrlimit(RLIMIT_FSIZE, &eng);
  EXPECT_THROW(EinstellungenSchreiben(), Dateifehler);
  setrlimit(RLIMIT_FSIZE, &vorher);
  EXPECT_EQ(bytes(), alt);
}

TEST_F(Einstellungen, FehlenderOrdnerGibtEinenDateifehler) {
  AppPfad = m_ordner.path() + QStringLiteral("/fehlt/");
  EXPECT_THROW(EinstellungenSchreiben(), Dateifehler);
}

TEST_F(Einstellungen, SchreibgeschuetzteDateiBleibtUndWirdGemeldet) {
  legZeilen(ganzeDatei());
  const QByteArray alt = bytes();
  const auto alle = QFileDevice::Permissions(0x7777);
  QFile::setPermissions(m_ordner.path(), alle);
  QFile::setPermissions(pfad(),
                        QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther);
  {
    const AndererBenutzer niemand;
    ASSERT_FALSE(niemand.darfAlles());
    EXPECT_THROW(EinstellungenSchreiben(), Dateifehler);
  }
  EXPECT_EQ(bytes(), alt);
}

TEST_F(Einstellungen, NichtLesbareDateiIstEinFehlerUndAendertNichts) {
  fuelle();
  legZeilen(ganzeDatei());
  QFile::setPermissions(m_ordner.path(), QFileDevice::Permissions(0x7777));
  QFile::setPermissions(pfad(),
                        geteuid() == 0 ? QFileDevice::ReadOwner : QFileDevice::Permissions());
  {
    const AndererBenutzer niemand;
    EXPECT_THROW(EinstellungenLesen(), Dateifehler);
  }
  EXPECT_EQ(EinstellungenZahl[0], 77);
}

TEST_F(Einstellungen, DieDesErstenStarts) {
  EinstellungenStandard(QDate(2026, 3, 1));
  const QMap<size_t, int> gesetzt = {{13, 1}, {17, 14}, {24, 1},  {28, 2026}, {46, 1},
                                     {47, 1}, {49, 60}, {50, 14}, {55, 1},    {57, 1}};
  for (size_t i = 0; i < EinstellungenZahl.size(); ++i)
    EXPECT_EQ(EinstellungenZahl[i], gesetzt.value(i, 0)) << i;
  EXPECT_EQ(EinstellungenText[4], QStringLiteral(" | "));
}

TEST_F(Einstellungen, MehrwertsteuerVonEinsBisFuenfzigBleibt) {
  for (const int satz : {1, 19, 50}) {
    EinstellungenZahl[44] = EinstellungenZahl[45] = static_cast<qint16>(satz);
    MehrwertsteuerPruefen();
    EXPECT_EQ(EinstellungenZahl[44], satz);
    EXPECT_EQ(EinstellungenZahl[45], satz);
  }
}

TEST_F(Einstellungen, MehrwertsteuerAusserhalbWirdNeunzehnUndSieben) {
  for (const int satz : {0, -1, 51, 32767, -32768}) {
    EinstellungenZahl[44] = EinstellungenZahl[45] = static_cast<qint16>(satz);
    MehrwertsteuerPruefen();
    EXPECT_EQ(EinstellungenZahl[44], 19);
    EXPECT_EQ(EinstellungenZahl[45], 7);
  }
}

TEST_F(Einstellungen, WabenJeMagazinVonAchtBisSechzehn) {
  for (const auto& [vorher, nachher] :
       {std::pair{7, 10}, {8, 8}, {10, 10}, {16, 16}, {17, 10}, {0, 10}, {-5, 10}}) {
    EinstellungenZahl[56] = static_cast<qint16>(vorher);
    WabenJeMagazinPruefen();
    EXPECT_EQ(EinstellungenZahl[56], nachher) << vorher;
  }
}

}  // namespace
