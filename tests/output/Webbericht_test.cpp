#include "output/Webbericht.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include "gemeinsam/Programmordner.h"
#include "output/Listen.h"
#include "platform/files/Textdatei.h"

namespace {

using TZ_Variablen::AppPfad;
using TZ_Variablen::EinstellungenText;
using TZ_Variablen::EinstellungenZahl;
using Webbericht::Vorgaben;

class WebberichtTest : public testing::Test {
 protected:
  QString schreibe(const Ausgabeliste& liste, const Vorgaben& vorgaben = {}) const {
    return Webbericht::schreiben(AppPfad, liste, vorgaben);
  }
  QString seite(int nummer = 1) const {
    const QString name = nummer == 1 ? QString("report.htm") : QString("report-%1.htm").arg(nummer);
    return QString::fromUtf8(Listen::bytes(AppPfad + name));
  }
  QStringList seiten() const {
    return QDir(AppPfad).entryList({"report*.htm"}, QDir::Files, QDir::Name);
  }
  static Ausgabeliste reihen(int anzahl) {
    QList<QVariantList> zeilen;
    for (int i = 1; i <= anzahl; ++i) zeilen += QVariantList{"Volk " + QString::number(i)};
    return Ausgabeliste(Listen::block({{"Volk", Feldtyp::Text, 20}}, zeilen));
  }
  // The texts of all elements of this name.
  static QStringList texte(const QString& html, const QString& element) {
    const QRegularExpression muster(QString("<%1(?: [^>]*)?>(.*?)</%1>").arg(element),
                                    QRegularExpression::DotMatchesEverythingOption);
    QStringList alle;
    auto lauf = muster.globalMatch(html);
    while (lauf.hasNext()) alle += lauf.next().captured(1);
    return alle;
  }
  static QStringList verweise(const QString& html) {
    static const QRegularExpression muster("<a href=\"([^\"]*)\">([^<]*)</a>");
    QStringList alle;
    auto lauf = muster.globalMatch(html);
    while (lauf.hasNext()) {
      const auto treffer = lauf.next();
      alle += treffer.captured(2) + "=" + treffer.captured(1);
    }
    return alle;
  }
  // Every element that is opened is closed in order; what has no end in HTML is taken as closed.
  static void wohlgeformt(QString html) {
    html.replace(QRegularExpression("<(meta[^>]*)>"), "<\\1/>");
    html.remove("<!DOCTYPE html>\n");
    QXmlStreamReader xml(html);
    while (!xml.atEnd()) xml.readNext();
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  }

  Programmordner ordner{"20.11.2026"};
};

TEST_F(WebberichtTest, DieErsteSeiteIstReportHtmImProgrammordner) {
  EXPECT_EQ(schreibe(reihen(3)), ordner.filePath("report.htm"));
  EXPECT_EQ(seiten(), QStringList{"report.htm"});
}

TEST_F(WebberichtTest, EsIstEineDeutscheHtmlSeiteInUtf8) {
  schreibe(Ausgabeliste(Listen::ernte()));
  const QString html = seite();
  EXPECT_TRUE(
      html.startsWith("<!DOCTYPE html>\n<html lang=\"de\">\n<head>\n<meta charset=\"utf-8\">"));
  EXPECT_EQ(texte(html, "title").size(), 1);
  EXPECT_FALSE(texte(html, "title").value(0).isEmpty());
  EXPECT_TRUE(html.contains("@media print"));
  EXPECT_TRUE(html.endsWith("</body>\n</html>\n"));
  wohlgeformt(html);
}

TEST_F(WebberichtTest, ÜberschriftenUndZellenStehenInIhrerReihenfolge) {
  schreibe(Ausgabeliste(Listen::ernte(), {"Volk", "Ernten"}, {1, 0}));
  EXPECT_EQ(texte(seite(), "th"), (QStringList{"Volk", "Ernten", "Menge_kg", "Erlös", "Datum"}));
  EXPECT_EQ(texte(seite(), "td"), (QStringList{"Bärbel", "10", "7", "1049,00", "21.07.2026", "Anna",
                                               "2", "12,5", "87,50", "04.05.2026"}));
}

TEST_F(WebberichtTest, ZahlenStehenRechts) {
  schreibe(Ausgabeliste(Listen::ernte()));
  EXPECT_TRUE(seite().contains("<td class=\"z\">12,5</td>"));
  EXPECT_TRUE(seite().contains("<td>Anna</td>"));
  EXPECT_TRUE(seite().contains("<td>04.05.2026</td>"));
  EXPECT_TRUE(seite().contains("<th scope=\"col\" class=\"z\">Menge_kg</th>"));
  EXPECT_TRUE(seite().contains("<th scope=\"col\">Volkname</th>"));
}

TEST_F(WebberichtTest, NurLangeTexteBrechenAufDemBildschirmUm) {
  const QString lang(33, 'a');
  schreibe(Ausgabeliste(Listen::block({{"T", Feldtyp::Memo, 0}}, {{QString(32, 'a')}, {lang}})));
  EXPECT_TRUE(seite().contains("<td>" + QString(32, 'a') + "</td>"));
  EXPECT_TRUE(seite().contains("<td class=\"l\">" + lang + "</td>"));
}

TEST_F(WebberichtTest, BesondereZeichenWerdenMaskiert) {
  const Daten d = Listen::block({{"<b>", Feldtyp::Text, 9}}, {{"<script>a & \"b\"</script>"},
                                                              {QString("x") + QChar(7) + "y 🐝"}});
  Vorgaben v;
  v.titel = "A & B <C>";
  schreibe(Ausgabeliste(d), v);
  EXPECT_EQ(texte(seite(), "th"), QStringList{"&lt;b&gt;"});
  EXPECT_EQ(texte(seite(), "td"),
            (QStringList{"&lt;script&gt;a &amp; &quot;b&quot;&lt;/script&gt;", "xy 🐝"}));
  EXPECT_EQ(texte(seite(), "h1"), QStringList{"A &amp; B &lt;C&gt;"});
  EXPECT_EQ(texte(seite(), "title"), QStringList{"A &amp; B &lt;C&gt;"});
  wohlgeformt(seite());
}

TEST_F(WebberichtTest, OhneTitelKeineÜberschrift) {
  schreibe(reihen(1));
  EXPECT_TRUE(texte(seite(), "h1").isEmpty());
}

TEST_F(WebberichtTest, ZeilenJeSeiteTeilenDenBericht) {
  Vorgaben v;
  v.zeilenJeSeite = 4;
  schreibe(reihen(10), v);
  EXPECT_EQ(seiten(), (QStringList{"report-2.htm", "report-3.htm", "report.htm"}));
  EXPECT_EQ(texte(seite(1), "td"), (QStringList{"Volk 1", "Volk 2", "Volk 3", "Volk 4"}));
  EXPECT_EQ(texte(seite(2), "td"), (QStringList{"Volk 5", "Volk 6", "Volk 7", "Volk 8"}));
  EXPECT_EQ(texte(seite(3), "td"), (QStringList{"Volk 9", "Volk 10"}));
  for (int i : {1, 2, 3}) {
    EXPECT_EQ(texte(seite(i), "th"), QStringList{"Volk"});
    wohlgeformt(seite(i));
  }
}

TEST_F(WebberichtTest, EineVolleLetzteSeiteZiehtKeineLeereNachSich) {
  Vorgaben v;
  v.zeilenJeSeite = 5;
  schreibe(reihen(10), v);
  EXPECT_EQ(seiten(), (QStringList{"report-2.htm", "report.htm"}));
}

TEST_F(WebberichtTest, NullUndNegativeZeilenJeSeiteGebenEineSeite) {
  for (const int zeilen : {0, -1, -32768}) {
    Vorgaben v;
    v.zeilenJeSeite = zeilen;
    schreibe(reihen(10), v);
    EXPECT_EQ(seiten(), QStringList{"report.htm"}) << zeilen;
    EXPECT_EQ(texte(seite(), "td").size(), 10);
  }
}

TEST_F(WebberichtTest, DieSeitenVerweisenAufeinander) {
  Vorgaben v;
  v.zeilenJeSeite = 4;
  schreibe(reihen(10), v);
  EXPECT_EQ(verweise(texte(seite(1), "nav").value(0)),
            (QStringList{"2=report-2.htm", "3=report-3.htm", "Weiter=report-2.htm"}));
  EXPECT_EQ(
      verweise(texte(seite(2), "nav").value(0)),
      (QStringList{"Zurück=report.htm", "1=report.htm", "3=report-3.htm", "Weiter=report-3.htm"}));
  EXPECT_EQ(verweise(texte(seite(3), "nav").value(1)),
            (QStringList{"Zurück=report-2.htm", "1=report.htm", "2=report-2.htm"}));
}

TEST_F(WebberichtTest, VieleSeitenZeigenNurDieNachbarnErsteUndLetzte) {
  Vorgaben v;
  v.zeilenJeSeite = 1;
  schreibe(reihen(100), v);
  EXPECT_EQ(seiten().size(), 100);
  QStringList nummern;
  for (const QString& verweis : verweise(texte(seite(50), "nav").value(0)))
    nummern += verweis.section('=', 0, 0);
  EXPECT_EQ(nummern,
            (QStringList{"Zurück", "1", "47", "48", "49", "51", "52", "53", "100", "Weiter"}));
}

TEST_F(WebberichtTest, EinBerichtVonEinerSeiteHatKeineVerweise) {
  schreibe(reihen(10));
  EXPECT_TRUE(verweise(seite()).isEmpty());
  EXPECT_TRUE(texte(seite(), "nav").isEmpty());
}

TEST_F(WebberichtTest, SeitenzeileAbZweiSeiten) {
  Vorgaben v;
  v.zeilenJeSeite = 5;
  v.seitenzeile = true;
  schreibe(reihen(10), v);
  EXPECT_TRUE(seite(1).contains("<p class=\"seite\">Seite 1 von 2</p>"));
  EXPECT_TRUE(seite(2).contains("<p class=\"seite\">Seite 2 von 2</p>"));
}

TEST_F(WebberichtTest, EineSeiteHatKeineSeitenzeileAuchWennSieGewünschtIst) {
  Vorgaben v;
  v.seitenzeile = true;
  schreibe(reihen(10), v);
  EXPECT_FALSE(seite().contains("Seite 1"));
}

TEST_F(WebberichtTest, OhneDenWunschKeineSeitenzeile) {
  Vorgaben v;
  v.zeilenJeSeite = 5;
  schreibe(reihen(10), v);
  EXPECT_FALSE(seite(1).contains("Seite 1 von"));
}

TEST_F(WebberichtTest, DieAnzahlStehtNurAufDerLetztenSeite) {
  Vorgaben v;
  v.zeilenJeSeite = 4;
  v.anzahlzeile = true;
  schreibe(reihen(10), v);
  EXPECT_FALSE(seite(1).contains("Anzahl"));
  EXPECT_FALSE(seite(2).contains("Anzahl"));
  EXPECT_TRUE(seite(3).contains("<p class=\"anzahl\">Anzahl Datensätze: 10</p>"));
}

TEST_F(WebberichtTest, OhneDenWunschKeineAnzahl) {
  schreibe(reihen(10));
  EXPECT_FALSE(seite().contains("Anzahl"));
}

TEST_F(WebberichtTest, AlteSeitenEinesLängerenBerichtsVerschwinden) {
  Vorgaben v;
  v.zeilenJeSeite = 2;
  schreibe(reihen(10), v);
  ASSERT_EQ(seiten().size(), 5);
  v.zeilenJeSeite = 8;
  schreibe(reihen(10), v);
  EXPECT_EQ(seiten(), (QStringList{"report-2.htm", "report.htm"}));
}

TEST_F(WebberichtTest, EineTrennzeileStehtOhneIhrenPunktUndOhneZuVerschwinden) {
  const Daten d = Listen::block({{"Ort", Feldtyp::Text, 9}, {"kg", Feldtyp::Einfach, 0}},
                                {{"Wald", 7.5}, {".", QVariant()}, {"Wiese", 12}});
  schreibe(Ausgabeliste(d));
  EXPECT_TRUE(seite().contains("<tr class=\"trenner\"><td></td><td></td></tr>"));
  EXPECT_EQ(texte(seite(), "td").size(), 6);
}

TEST_F(WebberichtTest, VorgabenNachDenEinstellungen) {
  EinstellungenZahl[Zahlslots.webzeilen] = 25;
  EinstellungenZahl[Zahlslots.explorerzeilen] = 60;
  EinstellungenZahl[Zahlslots.datumAlsListenkopf] = 1;
  EinstellungenText[Textslots.kopftext] = "Imkerei Königsblüte";
  Vorgaben v = Webbericht::vorgaben();
  EXPECT_EQ(v.titel, QString("20.11.2026   Imkerei Königsblüte"));
  EXPECT_EQ(v.zeilenJeSeite, 25);
  EXPECT_FALSE(v.seitenzeile);
  EXPECT_FALSE(v.anzahlzeile);
  EinstellungenZahl[Zahlslots.datumAlsListenkopf] = 0;
  EinstellungenZahl[Zahlslots.seitenzeile] = 1;
  EinstellungenZahl[Zahlslots.anzahlzeile] = 1;
  v = Webbericht::vorgaben();
  EXPECT_EQ(v.titel, QString("Imkerei Königsblüte"));
  EXPECT_TRUE(v.seitenzeile);
  EXPECT_TRUE(v.anzahlzeile);
  EinstellungenZahl[Zahlslots.datumAlsListenkopf] = 1;
  EinstellungenText[Textslots.kopftext] = "";
  EXPECT_EQ(Webbericht::vorgaben().titel, "20.11.2026   ");
}

TEST_F(WebberichtTest, KannNichtGeschriebenWerdenWirdEsGemeldet) {
  ASSERT_TRUE(QDir().mkdir(ordner.filePath("report.htm")));
  EXPECT_THROW(schreibe(reihen(1)), Dateifehler);
}

}  // namespace
