#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QStringEncoder>
#include <csignal>
#include <random>

#include "core/settings.h"
#include "gemeinsam/AndererBenutzer.h"
#include "gemeinsam/Programmordner.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;

namespace {

class Einstellungen : public testing::Test {
 protected:
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

  static void fülle() {
    EinstellungenZahl.fill(77);
    EinstellungenWert.fill(7.25F);
    EinstellungenText.fill(QStringLiteral("vorher"));
  }

  Programmordner m_ordner{"20.06.2026"};
};

TEST_F(Einstellungen, DateiHatHundertdreiundsiebzigZeilen) {
  EinstellungenSchreiben();
  EXPECT_EQ(bytes().count("\r\n"), 173);
  EXPECT_TRUE(bytes().endsWith("\r\n"));
}

TEST_F(Einstellungen, JederPlatzHatSeineZeile) {
  for (size_t i = 0; i < EinstellungenZahl.size(); ++i)
    EinstellungenZahl.at(i) = static_cast<qint16>(i);
  for (size_t i = 0; i < EinstellungenWert.size(); ++i)
    EinstellungenWert.at(i) = static_cast<float>(i) + 0.5F;
  for (size_t i = 0; i < EinstellungenText.size(); ++i)
    EinstellungenText.at(i) = QStringLiteral("Text %1").arg(i);
  EinstellungenSchreiben();
  EXPECT_EQ(bytes(), ganzeDatei().join("\r\n") + "\r\n");
}

TEST_F(Einstellungen, GelesenWirdNachDerZeilennummer) {
  legZeilen(ganzeDatei());
  EinstellungenLesen();
  for (size_t i = 0; i < EinstellungenZahl.size(); ++i)
    EXPECT_EQ(EinstellungenZahl.at(i), static_cast<qint16>(i));
  for (size_t i = 0; i < EinstellungenWert.size(); ++i)
    EXPECT_EQ(EinstellungenWert.at(i), static_cast<float>(i) + 0.5F);
  for (size_t i = 0; i < EinstellungenText.size(); ++i)
    EXPECT_EQ(EinstellungenText.at(i), QStringLiteral("Text %1").arg(i));
}

TEST_F(Einstellungen, AllePlätzeHinUndZurück) {
  std::mt19937 zufall(5);
  for (qint16& zahl : EinstellungenZahl) zahl = static_cast<qint16>(zufall());
  for (float& wert : EinstellungenWert)
    wert = static_cast<float>(static_cast<int>(zufall() % 2000001) - 1000000) / 100.0F;
  for (QString& text : EinstellungenText) text = QStringLiteral("äöü%1ß €").arg(zufall());
  const auto zahlen = EinstellungenZahl;
  const auto werte = EinstellungenWert;
  const auto texte = EinstellungenText;
  EinstellungenSchreiben();
  fülle();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl, zahlen);
  EXPECT_EQ(EinstellungenWert, werte);
  EXPECT_EQ(EinstellungenText, texte);
}

TEST_F(Einstellungen, GrenzenDerGanzenZahlen) {
  EinstellungenZahl.at(0) = 32767;
  EinstellungenZahl.at(100) = -32768;
  EinstellungenSchreiben();
  fülle();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl.at(0), 32767);
  EXPECT_EQ(EinstellungenZahl.at(100), -32768);
}

TEST_F(Einstellungen, WerteMitZweiStellenUndPunkt) {
  EinstellungenWert = {8.5F, 0.1F, -3.25F, 1234567.0F, 0.015F, 12.0F, 0, 0, 0, 0, 0};
  EinstellungenSchreiben();
  const QStringList zeilen = Textdatei::lesen(pfad());
  EXPECT_EQ(zeilen.mid(101, 6).join(u'/'), QStringLiteral("8.50/0.10/-3.25/1234567.00/0.02/12.00"));
}

TEST_F(Einstellungen, RiesigerWertWirdNichtAbgeschnitten) {
  EinstellungenWert[Wertslots.sonstigesJeG] = 3.4e38F;
  EinstellungenSchreiben();
  fülle();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenWert[Wertslots.sonstigesJeG], 3.4e38F);
  EXPECT_EQ(EinstellungenText.at(60), QString());
}

TEST_F(Einstellungen, UmlauteStehenInDerCodepage) {
  EinstellungenText[Textslots.kopftext] = QStringLiteral("Imkerei Müller");
  EinstellungenSchreiben();
  EXPECT_TRUE(bytes().contains("Imkerei M\xFCller\r\n"));
}

TEST_F(Einstellungen, ZeichenAußerhalbDerCodepageWerdenFragezeichen) {
  EinstellungenText[Textslots.kopftext] = QStringLiteral("Пчела 🐝");
  EinstellungenSchreiben();
  fülle();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText[Textslots.kopftext], QStringLiteral("????? ?"));
}

TEST_F(Einstellungen, ZwanzigtausendZeichenInEinemPlatz) {
  EinstellungenText[Textslots.volkfelder] = QString(20000, u'ä');
  EinstellungenText.at(18) = QStringLiteral("danach");
  const QString lang = EinstellungenText[Textslots.volkfelder];
  EinstellungenSchreiben();
  fülle();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText[Textslots.volkfelder], lang);
  EXPECT_EQ(EinstellungenText.at(18), QStringLiteral("danach"));
}

TEST_F(Einstellungen, ZeilenumbruchVerschiebtDieFolgendenZeilenNicht) {
  EinstellungenText.at(5) = QStringLiteral("a\r\nb\nc\rd");
  EinstellungenText.at(6) = QStringLiteral("sechs");
  EinstellungenSchreiben();
  EXPECT_EQ(bytes().count("\r\n"), 173);
  fülle();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText.at(5), QStringLiteral("a b c d"));
  EXPECT_EQ(EinstellungenText.at(6), QStringLiteral("sechs"));
}

TEST_F(Einstellungen, BlanksAmRandEinesTextesBleiben) {
  EinstellungenText[Textslots.trennzeichen] = QStringLiteral(" | ");
  EinstellungenSchreiben();
  fülle();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText[Textslots.trennzeichen], QStringLiteral(" | "));
}

TEST_F(Einstellungen, LeererTrennerWirdStrichZwischenBlanks) {
  EinstellungenSchreiben();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText[Textslots.trennzeichen], QStringLiteral(" | "));
}

TEST_F(Einstellungen, OhneDateiBleibtAlles) {
  fülle();
  EinstellungenText[Textslots.trennzeichen].clear();
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl.at(0), 77);
  EXPECT_EQ(EinstellungenText[Textslots.trennzeichen], QString());
}

TEST_F(Einstellungen, LeereDateiLässtAllePlätze) {
  fülle();
  leg("");
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl.at(0), 77);
  EXPECT_EQ(EinstellungenText.at(60), QStringLiteral("vorher"));
}

TEST_F(Einstellungen, KurzeDateiLässtDieÜbrigenPlätze) {
  for (const int länge : {1, 50, 101, 102, 112, 113, 172}) {
    fülle();
    legZeilen(ganzeDatei().mid(0, länge));
    EinstellungenLesen();
    for (int i = 0; i < 173; ++i) {
      const auto platz = static_cast<size_t>(i <= 100 ? i : i <= 111 ? i - 101 : i - 112);
      const bool gelesen = i < länge;
      if (i <= 100)
        EXPECT_EQ(EinstellungenZahl.at(platz), gelesen ? i : 77);
      else if (i <= 111)
        EXPECT_EQ(EinstellungenWert.at(platz), gelesen ? static_cast<float>(platz) + 0.5F : 7.25F);
      else
        EXPECT_EQ(EinstellungenText.at(platz),
                  gelesen ? QStringLiteral("Text %1").arg(platz) : QStringLiteral("vorher"));
    }
  }
}

TEST_F(Einstellungen, MittenInEinerZahlAbgeschnitteneDateiNimmtDenRest) {
  fülle();
  leg("14\r\n1");
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl.at(0), 14);
  EXPECT_EQ(EinstellungenZahl.at(1), 1);
  EXPECT_EQ(EinstellungenZahl.at(2), 77);
}

TEST_F(Einstellungen, BeiEinerSchlechtenZahlenzeileIstSchluss) {
  for (const char* schlecht :
       {"", "x", "1,5", "1.5", "32768", "-32769", "1 2", "0x10", "1e2", "99999999999999999999"}) {
    fülle();
    auto zeilen = ganzeDatei();
    zeilen[3] = schlecht;
    legZeilen(zeilen);
    EinstellungenLesen();
    EXPECT_EQ(EinstellungenZahl.at(2), 2) << schlecht;
    EXPECT_EQ(EinstellungenZahl.at(3), 77) << schlecht;
    EXPECT_EQ(EinstellungenZahl.at(4), 77) << schlecht;
    EXPECT_EQ(EinstellungenText[Textslots.kopftext], QStringLiteral("vorher")) << schlecht;
  }
}

TEST_F(Einstellungen, BeiEinerSchlechtenWertzeileIstSchluss) {
  for (const char* schlecht : {"", "x", "1.2.3", "1 000", "inf", "nan", "1e99", ".", "-"}) {
    fülle();
    auto zeilen = ganzeDatei();
    zeilen[103] = schlecht;
    legZeilen(zeilen);
    EinstellungenLesen();
    EXPECT_EQ(EinstellungenZahl.at(100), 100) << schlecht;
    EXPECT_EQ(EinstellungenWert[Wertslots.wachsJeKg], 1.5F) << schlecht;
    EXPECT_EQ(EinstellungenWert[Wertslots.pollenJeG], 7.25F) << schlecht;
    EXPECT_EQ(EinstellungenText[Textslots.kopftext], QStringLiteral("vorher")) << schlecht;
  }
}

TEST_F(Einstellungen, BlanksUmEineZahlSindErlaubt) {
  auto zeilen = ganzeDatei();
  zeilen[0] = " 14 ";
  zeilen[1] = "\t-3";
  zeilen[101] = "   8.50 ";
  legZeilen(zeilen);
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl.at(0), 14);
  EXPECT_EQ(EinstellungenZahl.at(1), -3);
  EXPECT_EQ(EinstellungenWert[Wertslots.honigJeKg], 8.5F);
  EXPECT_EQ(EinstellungenText.at(60), QStringLiteral("Text 60"));
}

TEST_F(Einstellungen, EinWertMitKommaWirdVerstanden) {
  auto zeilen = ganzeDatei();
  zeilen[101] = "8,50";
  legZeilen(zeilen);
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenWert[Wertslots.honigJeKg], 8.5F);
  EXPECT_EQ(EinstellungenText.at(60), QStringLiteral("Text 60"));
}

TEST_F(Einstellungen, ZuLangeDateiWirdAmEndeÜbergangen) {
  auto zeilen = ganzeDatei();
  for (int i = 0; i < 500; ++i) zeilen += "zuviel";
  legZeilen(zeilen);
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText.at(60), QStringLiteral("Text 60"));
}

TEST_F(Einstellungen, EineDateiMitLfAlleinWirdGelesen) {
  legZeilen(ganzeDatei(), "\n");
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenText.at(60), QStringLiteral("Text 60"));
}

TEST_F(Einstellungen, BinäreDateiÄndertNichts) {
  fülle();
  QByteArray müll;
  std::mt19937 zufall(8);
  for (int i = 0; i < 100000; ++i) müll += static_cast<char>(zufall() | 0x80U);
  leg(müll);
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl.at(0), 77);
  EXPECT_EQ(EinstellungenText[Textslots.kopftext], QStringLiteral("vorher"));
}

TEST_F(Einstellungen, EineDateiAusNullbytesÄndertNichts) {
  fülle();
  leg(QByteArray(8192, '\0'));
  EinstellungenLesen();
  EXPECT_EQ(EinstellungenZahl.at(0), 77);
}

TEST_F(Einstellungen, BeiVollerScheibeBleibtDieAlteDateiByteFürByte) {
  legZeilen(ganzeDatei());
  const QByteArray alt = bytes();
  fülle();
  EinstellungenText[Textslots.kopftext] = QString(50000, u'x');
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

TEST_F(Einstellungen, SchreibgeschützteDateiBleibtUndWirdGemeldet) {
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

TEST_F(Einstellungen, NichtLesbareDateiIstEinFehlerUndÄndertNichts) {
  fülle();
  legZeilen(ganzeDatei());
  QFile::setPermissions(m_ordner.path(), QFileDevice::Permissions(0x7777));
  QFile::setPermissions(pfad(),
                        geteuid() == 0 ? QFileDevice::ReadOwner : QFileDevice::Permissions());
  {
    const AndererBenutzer niemand;
    EXPECT_THROW(EinstellungenLesen(), Dateifehler);
  }
  EXPECT_EQ(EinstellungenZahl.at(0), 77);
}

TEST_F(Einstellungen, DieDesErstenStarts) {
  EinstellungenStandard(QDate(2026, 3, 1));
  const QMap<size_t, int> gesetzt = {{13, 1}, {17, 14}, {24, 1},  {28, 2026}, {46, 1},
                                     {47, 1}, {49, 60}, {50, 14}, {55, 1},    {57, 1}};
  for (size_t i = 0; i < EinstellungenZahl.size(); ++i)
    EXPECT_EQ(EinstellungenZahl.at(i), gesetzt.value(i, 0)) << i;
  EXPECT_EQ(EinstellungenText[Textslots.trennzeichen], QStringLiteral(" | "));
}

TEST_F(Einstellungen, MehrwertsteuerVonEinsBisFünfzigBleibt) {
  for (const int satz : {1, 19, 50}) {
    for (const Zahlslot& slot : {Zahlslots.mehrwertsteuer1, Zahlslots.mehrwertsteuer2})
      EinstellungenZahl[slot] = static_cast<qint16>(satz);
    EinstellungenPrüfen();
    EXPECT_EQ(EinstellungenZahl[Zahlslots.mehrwertsteuer1], satz);
    EXPECT_EQ(EinstellungenZahl[Zahlslots.mehrwertsteuer2], satz);
  }
}

TEST_F(Einstellungen, MehrwertsteuerAußerhalbWirdNeunzehnUndSieben) {
  for (const int satz : {0, -1, 51, 32767, -32768}) {
    for (const Zahlslot& slot : {Zahlslots.mehrwertsteuer1, Zahlslots.mehrwertsteuer2})
      EinstellungenZahl[slot] = static_cast<qint16>(satz);
    EinstellungenPrüfen();
    EXPECT_EQ(EinstellungenZahl[Zahlslots.mehrwertsteuer1], 19);
    EXPECT_EQ(EinstellungenZahl[Zahlslots.mehrwertsteuer2], 7);
  }
}

TEST_F(Einstellungen, WabenJeMagazinVonAchtBisSechzehn) {
  for (const auto& [vorher, nachher] :
       {std::pair{7, 10}, {8, 8}, {10, 10}, {16, 16}, {17, 10}, {0, 10}, {-5, 10}}) {
    EinstellungenZahl[Zahlslots.wabenJeMagazin] = static_cast<qint16>(vorher);
    EinstellungenPrüfen();
    EXPECT_EQ(EinstellungenZahl[Zahlslots.wabenJeMagazin], nachher) << vorher;
  }
}

TEST_F(Einstellungen, AndereGrenzenWerdenBeimStartNichtGeprüft) {
  EinstellungenZahl[Zahlslots.sicherungstage] = 0;
  EinstellungenZahl[Zahlslots.termintage] = 400;
  EinstellungenPrüfen();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sicherungstage], 0);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.termintage], 400);
}

// ---- the table of the slots ----

TEST_F(Einstellungen, KeinPlatzStehtZweimalInDerTabelle) {
  const auto einmalig = [](const auto& zeilen, size_t plätze) {
    int vorher = -1;
    for (const auto& slot : zeilen) {
      EXPECT_GT(slot.nummer, vorher);  // also in their order
      EXPECT_LT(static_cast<size_t>(slot.nummer), plätze);
      vorher = slot.nummer;
    }
  };
  einmalig(zahlslots(), EinstellungenZahl.size());
  einmalig(wertslots(), EinstellungenWert.size());
  einmalig(textslots(), EinstellungenText.size());
}

TEST_F(Einstellungen, JedeVorgabeLiegtInIhrenGrenzenOderWirdBeimStartHineingebracht) {
  for (const Zahlslot& slot : zahlslots()) {
    if (slot.standard == LaufendesJahr) continue;
    const bool drin = slot.grenzen.begrenzt(slot.standard) == slot.standard;
    EXPECT_TRUE(drin || slot.reparatur == Reparatur::AuchStart) << slot.nummer;
    EXPECT_EQ(slot.grenzen.begrenzt(slot.grenzen.darunter), slot.grenzen.darunter) << slot.nummer;
    EXPECT_EQ(slot.grenzen.begrenzt(slot.grenzen.darüber), slot.grenzen.darüber) << slot.nummer;
  }
}

// ---- where the reading stops, and the copy ----

TEST_F(Einstellungen, GanzeDateiHatKeinenBruch) {
  legZeilen(ganzeDatei());
  EXPECT_FALSE(EinstellungenLesen().has_value());
}

TEST_F(Einstellungen, OhneDateiGibtEsKeinenBruch) {
  EXPECT_FALSE(EinstellungenLesen().has_value());
}

TEST_F(Einstellungen, DerBruchNenntZeileUndGrund) {
  const auto bruch = [this](int zeile, const char* text) {
    auto zeilen = ganzeDatei();
    zeilen[zeile - 1] = text;
    legZeilen(zeilen);
    return EinstellungenLesen().value_or(Einstellungsbruch{});
  };
  EXPECT_EQ(bruch(4, "vier").zeile, 4);
  EXPECT_EQ(bruch(4, "vier").grund,
            QStringLiteral("Dort steht \u201Evier\u201C, das ist keine ganze Zahl von -32768 bis "
                           "32767."));
  EXPECT_EQ(bruch(104, "8.5.0").zeile, 104);
  EXPECT_EQ(bruch(104, "8.5.0").grund,
            QStringLiteral("Dort steht \u201E8.5.0\u201C, das ist keine Zahl."));
  EXPECT_EQ(bruch(1, "\x01\x02").grund.left(16), QStringLiteral("Dort steht \u201E??\u201C,"));
  EXPECT_LT(bruch(1, QByteArray(5000, 'x').constData()).grund.size(), 120);
}

TEST_F(Einstellungen, EineKurzeDateiEndetVorherUndEineLeereIstLeer) {
  legZeilen(ganzeDatei().mid(0, 130));
  auto bruch = EinstellungenLesen();
  ASSERT_TRUE(bruch.has_value());
  EXPECT_EQ(bruch->zeile, 131);
  EXPECT_EQ(bruch->grund, QStringLiteral("Die Datei endet vorher."));
  leg("");
  bruch = EinstellungenLesen();
  ASSERT_TRUE(bruch.has_value());
  EXPECT_EQ(bruch->zeile, 1);
  EXPECT_EQ(bruch->grund, QStringLiteral("Die Datei ist leer."));
}

TEST_F(Einstellungen, EineAndereCodierungWirdErkanntUndNichtGelesen) {
  const QByteArray text = ganzeDatei().join("\r\n") + "\r\n";
  const QString unicode = QString::fromLatin1(text);
  QStringEncoder klein(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom);
  QStringEncoder groß(QStringEncoder::Utf16BE, QStringEncoder::Flag::WriteBom);
  for (const auto& [bytes, name] : {std::pair<QByteArray, QString>{klein(unicode), "UTF-16"},
                                    {groß(unicode), "UTF-16"},
                                    {"\xEF\xBB\xBF" + text, "UTF-8"}}) {
    fülle();
    leg(bytes);
    const auto bruch = EinstellungenLesen();
    ASSERT_TRUE(bruch.has_value());
    EXPECT_EQ(bruch->zeile, 1);
    EXPECT_TRUE(bruch->grund.contains(name + " gespeichert statt")) << bruch->grund.toStdString();
    EXPECT_EQ(EinstellungenZahl[Zahlslots.termintage], 77);
    EXPECT_EQ(EinstellungenText[Textslots.kopftext], QStringLiteral("vorher"));
  }
}

// Any text is written and read back, also one that would be UTF-8.
TEST_F(Einstellungen, EinTextDerWieUtf8AussiehtWirdGelesenWieErGeschriebenWurde) {
  EinstellungenText[Textslots.kopftext] = QStringLiteral("MÃ¼ller");
  EinstellungenSchreiben();
  fülle();
  EXPECT_FALSE(EinstellungenLesen().has_value());
  EXPECT_EQ(EinstellungenText[Textslots.kopftext], QStringLiteral("MÃ¼ller"));
}

TEST_F(Einstellungen, AufgehobenWirdByteFürByteUndDieNeuesteDatei) {
  leg("x\r\n");
  EinstellungenAufheben();
  const QByteArray müll("\xFF\xFE\0\x1A\r", 5);
  leg(müll);
  EinstellungenAufheben();
  EXPECT_EQ(bytes(), müll);
  EXPECT_EQ(Textdatei::bytesLesen(pfad() + ".alt"), müll);
}

}  // namespace
