#include <gtest/gtest.h>

#include "platform/database/werte/Datenbankfehler.h"
#include "platform/database/werte/Datenblock.h"
#include "platform/database/werte/Kreuztabelle.h"

namespace {

QString s(const char* text) { return QString::fromUtf8(text); }

Daten beispiel() {
  Datenblock::Bauer bauer({{s("Volkname"), Feldtyp::Text, 20},
                           {s("Anzahl"), Feldtyp::Lang, 0},
                           {s("Menge_kg"), Feldtyp::Einfach, 0},
                           {s("Preis"), Feldtyp::Währung, 0},
                           {s("Datum"), Feldtyp::Datum, 0},
                           {s("letztes"), Feldtyp::Ausdruck, 0}});
  bauer.text(u"Müller 1");
  bauer.ganz(12);
  bauer.gleitkomma(3.33);
  bauer.gleitkomma(4.5);
  bauer.wert(QDate(2006, 2, 5));
  bauer.text("2006-02-05", 10);
  bauer.text("", 0);
  bauer.null();
  bauer.gleitkomma(0.1 + 0.2);
  bauer.gleitkomma(1.2345);
  bauer.null();
  bauer.text("2006-02-5x", 10);
  return bauer.fertig();
}

}  // namespace

TEST(Datenblock, WerteKommenMitIhrerArtZurück) {
  const Daten d = beispiel();
  ASSERT_EQ(d->zeilen(), 2);
  ASSERT_EQ(d->spalten(), 6);
  EXPECT_EQ(d->wert(0, 0), QVariant(s("Müller 1")));
  EXPECT_EQ(d->wert(0, 1), QVariant::fromValue<qint64>(12));
  EXPECT_EQ(d->wert(0, 2), QVariant(3.33));
  EXPECT_EQ(d->wert(0, 4), QVariant(QDate(2006, 2, 5)));
}

TEST(Datenblock, NullUndLeererTextSindZweierlei) {
  const Daten d = beispiel();
  EXPECT_FALSE(d->istNull(1, 0));
  EXPECT_TRUE(d->wert(1, 0).isValid());
  EXPECT_EQ(d->wert(1, 0).toString(), QString());
  EXPECT_TRUE(d->istNull(1, 1));
  EXPECT_FALSE(d->wert(1, 1).isValid());
}

TEST(Datenblock, EinAusdruckInDerFormEinesDatumsIstEinDatum) {
  const Daten d = beispiel();
  EXPECT_EQ(d->wert(0, 5), QVariant(QDate(2006, 2, 5)));
  EXPECT_EQ(d->anzeige(0, 5), s("05.02.2006"));
  EXPECT_EQ(d->wert(1, 5), QVariant(s("2006-02-5x")));
}

TEST(Datenblock, AnzeigeIstDeutsch) {
  const Daten d = beispiel();
  EXPECT_EQ(d->anzeige(0, 0), s("Müller 1"));
  EXPECT_EQ(d->anzeige(0, 1), s("12"));
  EXPECT_EQ(d->anzeige(0, 2), s("3,33"));
  EXPECT_EQ(d->anzeige(0, 3), s("4,50"));
  EXPECT_EQ(d->anzeige(0, 4), s("05.02.2006"));
  EXPECT_EQ(d->anzeige(1, 1), QString());
  EXPECT_EQ(d->anzeige(1, 3), s("1,2345"));
}

TEST(Datenblock, RauschenHinterDerFünfzehntenStelleZeigtSichNicht) {
  EXPECT_EQ(beispiel()->anzeige(1, 2), s("0,3"));
}

TEST(Datenblock, AuchEinGeldbetragZeigtKeinRauschen) {
  Datenblock::Bauer bauer({{s("Erlös"), Feldtyp::Währung, 0}});
  double summe = 0;
  for (int i = 0; i < 7; ++i) summe += 11.1;
  ASSERT_NE(summe, 77.7);
  for (const double wert : {summe, -summe, 0.1 + 0.2, 4.35 * 100, 1.2345}) bauer.gleitkomma(wert);
  const Daten d = bauer.fertig();
  EXPECT_EQ(d->anzeige(0, 0), s("77,70"));
  EXPECT_EQ(d->anzeige(1, 0), s("-77,70"));
  EXPECT_EQ(d->anzeige(2, 0), s("0,30"));
  EXPECT_EQ(d->anzeige(3, 0), s("435,00"));
  EXPECT_EQ(d->anzeige(4, 0), s("1,2345"));
}

// 223.7 - 223 is 0.69999999999998863: the noise stands where the larger numbers end.
TEST(Datenblock, WasVonEinerSummeÜbrigBleibtZeigtKeinRauschen) {
  Datenblock::Bauer bauer({{s("Summe"), Feldtyp::Ausdruck, 0}});
  for (const double wert : {223.7 - 223, 223 - 223.7, 1234567.25, 3.33}) bauer.gleitkomma(wert);
  const Daten d = bauer.fertig();
  EXPECT_EQ(d->anzeige(0, 0), s("0,7"));
  EXPECT_EQ(d->anzeige(1, 0), s("-0,7"));
  EXPECT_EQ(d->anzeige(2, 0), s("1234567,25"));
  EXPECT_EQ(d->anzeige(3, 0), s("3,33"));
}

TEST(Datenblock, SpaltenFindetManOhneRücksichtAufGroßschreibung) {
  const Daten d = beispiel();
  EXPECT_EQ(d->spaltenNummer(u"menge_KG"), 2);
  EXPECT_EQ(d->spaltenNummer(u"Menge"), -1);
}

TEST(Datenblock, ZahlVonTextNimmtDieFührendeZahlUndVonNullNull) {
  Datenblock::Bauer bauer({{s("a"), Feldtyp::Text, 20}, {s("b"), Feldtyp::Einfach, 0}});
  bauer.text(u"12.5 kg");
  bauer.null();
  bauer.text(u"abc");
  bauer.gleitkomma(2.5);
  const Daten d = bauer.fertig();
  EXPECT_EQ(d->zahl(0, 0), 12.5);
  EXPECT_EQ(d->zahl(0, 1), 0.0);
  EXPECT_EQ(d->zahl(1, 0), 0.0);
  EXPECT_EQ(d->ganzzahl(1, 1), 2);  // a half goes to the even number
}

TEST(Datenblock, RohtextIstUtf8) {
  const Daten d = beispiel();
  EXPECT_EQ(d->rohtext(0, 0), QByteArrayView("M\xC3\xBCller 1"));
  EXPECT_EQ(d->rohtext(0, 4), QByteArrayView("2006-02-05"));
  EXPECT_TRUE(d->rohtext(0, 1).isEmpty());
}

TEST(Datenblock, EineUnvollständigeZeileIstEinFehler) {
  Datenblock::Bauer bauer({{s("a"), Feldtyp::Lang, 0}, {s("b"), Feldtyp::Lang, 0}});
  bauer.ganz(1);
  EXPECT_THROW(bauer.fertig(), Datenbankfehler);
}

TEST(Datenblock, OhneZeilenBleibenDieSpalten) {
  Datenblock::Bauer bauer({{s("a"), Feldtyp::Lang, 0}});
  const Daten d = bauer.fertig();
  EXPECT_EQ(d->zeilen(), 0);
  EXPECT_EQ(d->spalten(), 1);
}

// --- cross tables -----------------------------------------------------------------------------

namespace {

// Grouped rows of: site, total, pivot value, count.
Daten gruppiert(const QList<QVariantList>& zeilen) {
  Datenblock::Bauer bauer({{s("Standort"), Feldtyp::Text, 30},
                           {s("Völker"), Feldtyp::Ausdruck, 0},
                           {s("p"), Feldtyp::Ausdruck, 0},
                           {s("f"), Feldtyp::Ausdruck, 0}});
  for (const auto& zeile : zeilen) {
    for (const QVariant& wert : zeile) bauer.wert(wert);
  }
  return bauer.fertig();
}

TEST(Datenblock, EineZelleWieEineFrühereNimmtKeinenTextDazu) {
  Datenblock::Bauer bauer({{s("Volknr"), Feldtyp::Text, 10}, {s("Menge"), Feldtyp::Einfach, 0}});
  bauer.text(QStringView(s("Bär")));
  const size_t menge = bauer.zellen();
  bauer.gleitkomma(2.5);
  EXPECT_EQ(menge, 1U);
  for (int i = 0; i < 1000; ++i) {
    bauer.wie(0);
    bauer.wie(menge);
  }
  const Daten block = bauer.fertig();
  EXPECT_EQ(block->zeilen(), 1001);
  EXPECT_EQ(block->anzeige(1000, 0), "Bär");
  EXPECT_EQ(block->zahl(1000, 1), 2.5);
  EXPECT_EQ(block->textbytes(), 4U);
}

}  // namespace

TEST(Kreuztabelle, ZahlenSpaltenAufsteigendNullZuerstLeereZellenBleibenNull) {
  const Daten roh =
      gruppiert({{s("Garten"), 3, 10, 2}, {s("Garten"), 3, QVariant(), 1}, {s("Wald"), 4, 9, 4}});
  const Daten t = Kreuztabelle::baue(*roh, 2);
  ASSERT_EQ(t->zeilen(), 2);
  ASSERT_EQ(t->spalten(), 5);
  EXPECT_EQ(t->spalte(0).name, s("Standort"));
  EXPECT_EQ(t->spalte(0).typ, Feldtyp::Text);
  EXPECT_EQ(t->spalte(1).name, s("Völker"));
  EXPECT_EQ(t->spalte(2).name, s("<>"));
  EXPECT_EQ(t->spalte(3).name, s("9"));
  EXPECT_EQ(t->spalte(4).name, s("10"));
  EXPECT_EQ(t->wert(0, 1).toInt(), 3);
  EXPECT_EQ(t->wert(0, 2).toInt(), 1);
  EXPECT_TRUE(t->istNull(0, 3));
  EXPECT_EQ(t->wert(0, 4).toInt(), 2);
  EXPECT_TRUE(t->istNull(1, 2));
  EXPECT_EQ(t->wert(1, 3).toInt(), 4);
  EXPECT_TRUE(t->istNull(1, 4));
}

TEST(Kreuztabelle, TexteNachDerKollationUndGroßschreibungIstEineSpalte) {
  const Daten roh = gruppiert({{s("Garten"), 2, s("Zarge"), 1},
                               {s("Garten"), 2, s("Ähre"), 1},
                               {s("Wald"), 2, s("ZARGE"), 1},
                               {s("Wald"), 2, s("Buche"), 1}});
  const Daten t = Kreuztabelle::baue(*roh, 2);
  ASSERT_EQ(t->spalten(), 5);
  EXPECT_EQ(t->spalte(2).name, s("Ähre"));
  EXPECT_EQ(t->spalte(3).name, s("Buche"));
  EXPECT_EQ(t->spalte(4).name, s("Zarge"));
  EXPECT_EQ(t->wert(1, 4).toInt(), 1);
}

TEST(Kreuztabelle, DieGruppenBehaltenIhreFolge) {
  const Daten roh = gruppiert({{s("Wald"), 1, 1, 1}, {s("Garten"), 1, 1, 1}, {s("Wald"), 1, 2, 5}});
  const Daten t = Kreuztabelle::baue(*roh, 2);
  ASSERT_EQ(t->zeilen(), 2);
  EXPECT_EQ(t->wert(0, 0).toString(), s("Wald"));
  EXPECT_EQ(t->wert(0, 3).toInt(), 5);
  EXPECT_EQ(t->wert(1, 0).toString(), s("Garten"));
}

TEST(Kreuztabelle, ÜberschriftenSindDeutsch) {
  const Daten roh = gruppiert({{s("Wald"), 1, 2.5, 1}, {s("Wald"), 1, QDate(2006, 2, 5), 1}});
  const Daten t = Kreuztabelle::baue(*roh, 2);
  EXPECT_EQ(t->spalte(2).name, s("2,5"));
  EXPECT_EQ(t->spalte(3).name, s("05.02.2006"));
}

TEST(Kreuztabelle, OhneZeilenBleibenDieGruppenspalten) {
  const Daten t = Kreuztabelle::baue(*gruppiert({}), 2);
  EXPECT_EQ(t->zeilen(), 0);
  EXPECT_EQ(t->spalten(), 2);
}
