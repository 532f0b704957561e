#include "platform/database/werte/Feldregeln.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/database/werte/Datenbankfehler.h"

namespace {

QString s(const char* text) { return QString::fromUtf8(text); }

Spalte feld(Feldtyp typ, int länge = 0) { return {s("Volkname"), typ, länge}; }

QString fehlertext(const Spalte& spalte, const QVariant& wert) {
  try {
    Feldregeln::prüfe(spalte, wert);
  } catch (const Datenbankfehler& fehler) {
    EXPECT_EQ(fehler.art(), Datenbankfehler::Art::Wertebereich);
    return fehler.text();
  }
  return {};
}

}  // namespace

TEST(Feldregeln, NullGehtInJedesFeld) {
  for (const Feldtyp typ : {Feldtyp::Text, Feldtyp::Memo, Feldtyp::Kurz, Feldtyp::Lang,
                            Feldtyp::Einfach, Feldtyp::Währung, Feldtyp::Datum, Feldtyp::Zähler}) {
    EXPECT_FALSE(Feldregeln::prüfe(feld(typ, 5), QVariant()).isValid());
    EXPECT_FALSE(Feldregeln::prüfe(feld(typ, 5), QDate()).isValid());
  }
}

TEST(Feldregeln, ZuLangerTextNenntFeldUndGrenze) {
  EXPECT_EQ(fehlertext(feld(Feldtyp::Text, 20), s("abcdefghijklmnopqrstuvwx")),
            s("Der Text für das Feld \"Volkname\" ist zu lang (24 Zeichen, erlaubt sind 20)."));
  EXPECT_EQ(fehlertext(feld(Feldtyp::Text, 24), s("abcdefghijklmnopqrstuvwx")), QString());
}

TEST(Feldregeln, ZeichenZählenWieSieEinMenschZählt) {
  EXPECT_EQ(Feldregeln::zeichen(s("Bär🐝")), 4);
  EXPECT_EQ(fehlertext(feld(Feldtyp::Text, 4), s("Bär🐝")), QString());
  EXPECT_NE(fehlertext(feld(Feldtyp::Text, 3), s("Bär🐝")), QString());
}

TEST(Feldregeln, MemoIstUnbegrenzt) {
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Memo), QString(100000, u'x')).toString().size(),
            100000);
}

TEST(Feldregeln, LeererTextBleibtLeererText) {
  const QVariant wert = Feldregeln::prüfe(feld(Feldtyp::Text, 5), QString());
  EXPECT_TRUE(wert.isValid());
  EXPECT_EQ(wert.typeId(), int(QMetaType::QString));
}

TEST(Feldregeln, ZahlUndDatumGehenAlsDeutscherTextInEinTextfeld) {
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Text, 20), 3.5).toString(), s("3,5"));
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Text, 20), 12).toString(), s("12"));
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Text, 20), QDate(2006, 2, 5)).toString(),
            s("05.02.2006"));
}

TEST(Feldregeln, GrenzenDerGanzenZahlen) {
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Kurz), 32767).toLongLong(), 32767);
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Kurz), -32768).toLongLong(), -32768);
  EXPECT_TRUE(fehlertext(feld(Feldtyp::Kurz), 32768).contains(s("-32768 bis 32767")));
  EXPECT_NE(fehlertext(feld(Feldtyp::Kurz), -32769), QString());
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Lang), 2147483647LL).toLongLong(), 2147483647LL);
  EXPECT_TRUE(fehlertext(feld(Feldtyp::Lang), 2147483648LL).contains(s("2147483647")));
  EXPECT_NE(fehlertext(feld(Feldtyp::Lang), -2147483649LL), QString());
  EXPECT_NE(fehlertext(feld(Feldtyp::Lang), 1e300), QString());
}

TEST(Feldregeln, DezimalzahlInGanzzahlfeldRundetDieHälfteZurGeradenZahl) {
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Lang), 2.5), QVariant::fromValue<qint64>(2));
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Lang), 3.5), QVariant::fromValue<qint64>(4));
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Kurz), -2.5), QVariant::fromValue<qint64>(-2));
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Kurz), 32767.4), QVariant::fromValue<qint64>(32767));
  EXPECT_NE(fehlertext(feld(Feldtyp::Kurz), 32767.6), QString());
}

TEST(Feldregeln, TextInZahlenfeldMitKommaOderPunkt) {
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Einfach), s(" 3,5 ")), QVariant(3.5));
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Einfach), s("3.5")), QVariant(3.5));
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Lang), s("12")), QVariant::fromValue<qint64>(12));
  for (const char* text : {"abc", "12 kg", "1,2,3", "nan", "inf", "0x10", "-"}) {
    EXPECT_TRUE(fehlertext(feld(Feldtyp::Einfach), s(text)).contains(s("keine Zahl"))) << text;
  }
}

TEST(Feldregeln, LeererTextInZahlenUndDatumsfeldIstEinFehler) {
  EXPECT_NE(fehlertext(feld(Feldtyp::Lang), QString()), QString());
  EXPECT_NE(fehlertext(feld(Feldtyp::Währung), s("  ")), QString());
  EXPECT_NE(fehlertext(feld(Feldtyp::Datum), s("")), QString());
}

TEST(Feldregeln, EinfachIstDieKürzesteDezimalzahl) {
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Einfach), double(3.33F)), QVariant(3.33));
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Einfach), 3.33F), QVariant(3.33));
  EXPECT_NE(fehlertext(feld(Feldtyp::Einfach), 1e39), QString());
  EXPECT_NE(fehlertext(feld(Feldtyp::Einfach), std::numeric_limits<double>::infinity()), QString());
  EXPECT_NE(fehlertext(feld(Feldtyp::Einfach), std::numeric_limits<double>::quiet_NaN()),
            QString());
}

TEST(Feldregeln, WährungHatVierStellenDieHälfteZurGeradenZiffer) {
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Währung), 1.00005), QVariant(1.0));
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Währung), 1.00015), QVariant(1.0002));
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Währung), 1.00025), QVariant(1.0002));
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Währung), 2.34567), QVariant(2.3457));
  EXPECT_NE(fehlertext(feld(Feldtyp::Währung), 1e15), QString());
}

TEST(Feldregeln, DatumAusDatumUndAusText) {
  const QVariant tag = QDate(2006, 2, 5);
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Datum), QDate(2006, 2, 5)), tag);
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Datum), s("05.02.2006")), tag);
  EXPECT_EQ(Feldregeln::prüfe(feld(Feldtyp::Datum), s("2006-02-05")), tag);
  EXPECT_TRUE(fehlertext(feld(Feldtyp::Datum), s("31.02.2006")).contains(s("kein Datum")));
  EXPECT_TRUE(fehlertext(feld(Feldtyp::Datum), s("Mai")).contains(s("Volkname")));
  EXPECT_NE(fehlertext(feld(Feldtyp::Datum), 38753), QString());
  EXPECT_NE(fehlertext(feld(Feldtyp::Datum), QDate(99, 1, 1)), QString());
}

TEST(Feldregeln, EinWahrheitswertUndEinDatumSindKeineZahl) {
  EXPECT_NE(fehlertext(feld(Feldtyp::Lang), true), QString());
  EXPECT_NE(fehlertext(feld(Feldtyp::Lang), QDate(2006, 2, 5)), QString());
}

TEST(Feldregeln, IsoDatumNimmtNurDieGenaueForm) {
  EXPECT_EQ(Feldregeln::isoDatum("2006-02-05"), QDate(2006, 2, 5));
  EXPECT_FALSE(Feldregeln::isoDatum("2006-02-30").isValid());
  EXPECT_FALSE(Feldregeln::isoDatum("2006-2-5").isValid());
  EXPECT_FALSE(Feldregeln::isoDatum("2006-02-05 ").isValid());
  EXPECT_FALSE(Feldregeln::isoDatum("05.02.2006").isValid());
}

TEST(Feldregeln, WasOhneWeiteresPasstLässtPrüfeUnverändert) {
  EXPECT_TRUE(Feldregeln::ganzPasst(Feldtyp::Kurz, -32768));
  EXPECT_FALSE(Feldregeln::ganzPasst(Feldtyp::Kurz, 32768));
  EXPECT_TRUE(Feldregeln::ganzPasst(Feldtyp::Lang, 2147483647LL));
  EXPECT_FALSE(Feldregeln::ganzPasst(Feldtyp::Lang, 2147483648LL));
  EXPECT_FALSE(Feldregeln::ganzPasst(Feldtyp::Text, 5));
  EXPECT_FALSE(Feldregeln::ganzPasst(Feldtyp::Währung, 5));
  EXPECT_TRUE(Feldregeln::textPasst(Feldtyp::Text, 5, "12345"));
  EXPECT_FALSE(Feldregeln::textPasst(Feldtyp::Text, 5, "123456"));
  EXPECT_TRUE(Feldregeln::textPasst(Feldtyp::Memo, 0, "123456"));
  EXPECT_TRUE(Feldregeln::textPasst(Feldtyp::Datum, 0, "2006-02-05"));
  EXPECT_FALSE(Feldregeln::textPasst(Feldtyp::Datum, 0, "05.02.2006"));
  EXPECT_FALSE(Feldregeln::textPasst(Feldtyp::Datum, 0, "0099-01-01"));
  EXPECT_FALSE(Feldregeln::textPasst(Feldtyp::Lang, 0, "12"));
}

TEST(Feldregeln, IsoTextHatVierStellenFürDasJahr) {
  EXPECT_EQ(Feldregeln::isoText(QDate(2006, 2, 5)), "2006-02-05");
  EXPECT_EQ(Feldregeln::isoText(QDate(987, 12, 31)), "0987-12-31");
}
