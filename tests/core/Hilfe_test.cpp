#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>

#include "core/help.h"
#include "core/main_list.h"
#include "gemeinsam/Programmordner.h"
#include "platform/files/Textdatei.h"

namespace {

class HilfeTest : public testing::Test {
 protected:
  ~HilfeTest() override { TZ_Variablen::zurücksetzen(); }

  void leg(const QString& text) const { Textdatei::schreibenGanz(Hilfe::datei(), text); }

  static std::string abschnitt(const QString& thema) {
    const auto zeilen = Hilfe::abschnitt(thema);
    return zeilen ? zeilen->join(u'/').toStdString() : "(keiner)";
  }

  Programmordner m_ordner{"20.06.2026"};
};

TEST_F(HilfeTest, AbschnittVomThemaBisEnde) {
  leg(QStringLiteral("Vorspann\r\nA\r\na1\r\na2\r\n#ende#\r\nB\r\nb1\r\n#ende#\r\n"));
  EXPECT_EQ(abschnitt(QStringLiteral("A")), "a1/a2");
  EXPECT_EQ(abschnitt(QStringLiteral("B")), "b1");
}

TEST_F(HilfeTest, ThemaMitUmlaut) {
  leg(QStringLiteral("Hilfe_Völker\r\nText\r\n#ende#\r\n"));
  EXPECT_EQ(abschnitt(QStringLiteral("Hilfe_Völker")), "Text");
}

TEST_F(HilfeTest, NurDieGanzeZeileIstDasThema) {
  leg(
      QStringLiteral("TA_TOVA2\r\nfalsch\r\n#ende#\r\n TA_TOVA\r\nfalsch\r\n#ende#\r\n"
                     "TA_TOVA\r\nrichtig\r\n#ende#\r\n"));
  EXPECT_EQ(abschnitt(QStringLiteral("TA_TOVA")), "richtig");
}

TEST_F(HilfeTest, UnbekanntesThemaHatKeinenAbschnitt) {
  leg(QStringLiteral("A\r\na1\r\n#ende#\r\n\r\n"));
  EXPECT_EQ(abschnitt(QStringLiteral("C")), "(keiner)");
  EXPECT_EQ(abschnitt(QString()), "(keiner)");
  EXPECT_EQ(abschnitt(QStringLiteral("#ende#")), "(keiner)");
}

TEST_F(HilfeTest, AbschnittOhneEndeGehtBisZumDateiende) {
  leg(QStringLiteral("A\r\na1\r\na2"));
  EXPECT_EQ(abschnitt(QStringLiteral("A")), "a1/a2");
}

TEST_F(HilfeTest, LeererAbschnitt) {
  leg(QStringLiteral("A\r\n#ende#\r\n"));
  EXPECT_EQ(abschnitt(QStringLiteral("A")), "");
}

TEST_F(HilfeTest, FehlendeDatei) {
  EXPECT_THROW(Hilfe::abschnitt(QStringLiteral("A")), Dateifehler);
  EXPECT_EQ(Hilfe::fehltMeldung(), QStringLiteral("Die Hilfedatei ") + TZ_Variablen::AppPfad +
                                       QStringLiteral("HILFETOVA.HLP existiert nicht!"));
}

TEST(HilfeHtml, TitelÜberschriftListeUndAbsatz) {
  EXPECT_EQ(Hilfe::alsHtml({QStringLiteral("Titel"), QStringLiteral("====="), QString(),
                            QStringLiteral("Ein Absatz"), QStringLiteral("auf zwei Zeilen."),
                            QString(), QStringLiteral("Unter"), QStringLiteral("-----"),
                            QStringLiteral("- eins"), QStringLiteral("- zwei"), QString(),
                            QStringLiteral("  genau  so"), QStringLiteral("  hier")})
                .toStdString(),
            "<h2>Titel</h2>\n<p>Ein Absatz auf zwei Zeilen.</p>\n<h3>Unter</h3>\n"
            "<ul><li>eins</li><li>zwei</li></ul>\n<pre>  genau  so\n  hier</pre>\n");
}

TEST(HilfeHtml, ZeichenDerAuszeichnungWerdenGezeigtWieSieSind) {
  EXPECT_EQ(Hilfe::alsHtml({QStringLiteral("a < b & <b>c</b>")}).toStdString(),
            "<p>a &lt; b &amp; &lt;b&gt;c&lt;/b&gt;</p>\n");
}

TEST(HilfeHtml, KeinTextKeinHtml) { EXPECT_EQ(Hilfe::alsHtml({}), QString()); }

// The file that is delivered.
class Hilfedatei : public testing::Test {
 protected:
  Hilfedatei() { TZ_Variablen::AppPfad = QStringLiteral(TOVA_QUELLEN "/src/app/"); }
  ~Hilfedatei() override { TZ_Variablen::zurücksetzen(); }
};

TEST_F(Hilfedatei, HatAlleThemen) {
  for (const char* thema : {"Hilfe_Startmenue",    "Hilfe_Wiemacheich",
                            "Hilfe_Völker",        "Hilfe_Eingabe",
                            "Hilfe_Auswertungen",  "Hilfe_Verwaltung",
                            "Hilfe_Optionen",      "TA_TOVA",
                            "TV_Neues_Volk",       "TV_Arplanoptionen",
                            "TV_Terminverwaltung", "TV_Starttermine",
                            "TV_Selektieren",      "TV_Pflanzen_Standorte",
                            "TV_EinVerkauf_Lager", "TA_Textausgabe",
                            "TE_Eingabe",          "TH_Hilfe_Wieanfangen",
                            "TS_Dateiauswahl",     "TS_Dateispeichern"}) {
    const auto zeilen = Hilfe::abschnitt(QString::fromUtf8(thema));
    ASSERT_TRUE(zeilen) << thema;
    EXPECT_TRUE(Hilfe::alsHtml(*zeilen).startsWith(QStringLiteral("<h2>"))) << thema;
    EXPECT_GT(zeilen->join(u' ').size(), 300) << thema;
  }
}

TEST_F(Hilfedatei, JederAbschnittHatSeinEnde) {
  bool offen = false;
  int abschnitte = 0;
  for (const QString& zeile : Textdatei::lesen(Hilfe::datei())) {
    static const QRegularExpression schlüssel(QStringLiteral("\\A(Hilfe|T[A-Z])_\\w+\\z"),
                                              QRegularExpression::UseUnicodePropertiesOption);
    if (schlüssel.match(zeile).hasMatch()) {
      EXPECT_FALSE(offen) << zeile.toStdString();
      offen = true;
      ++abschnitte;
    } else if (zeile == QStringLiteral("#ende#")) {
      EXPECT_TRUE(offen);
      offen = false;
    }
  }
  EXPECT_FALSE(offen);
  EXPECT_GE(abschnitte, 13);
}

TEST_F(Hilfedatei, StehtInDerCodepageMitCrLf) {
  QFile datei(Hilfe::datei());
  ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
  const QByteArray bytes = datei.readAll();
  EXPECT_TRUE(bytes.contains("Hilfe_V\xF6lker\r\n"));
  EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));
  EXPECT_FALSE(Textdatei::vonCp1252(bytes).contains(QStringLiteral("Ã")));
  EXPECT_FALSE(bytes.contains('?' + QByteArray("?")));
}

TEST(Hauptlistenplatz, OhneHauptformularEineLeereListe) {
  setHauptliste(nullptr);
  ASSERT_NE(hauptliste(), nullptr);
  EXPECT_EQ(hauptliste()->zeilen(), 0);
  EXPECT_EQ(hauptliste()->aktuelleZeile(), -1);
  EXPECT_EQ(hauptliste()->zelle(0, QStringLiteral("ID")), QString());
}

TEST(Globale, ZurücksetzenMachtAllesWieVorDemStart) {
  using namespace TZ_Variablen;
  AktVolkID = HeuteText = FormModus = QStringLiteral("x");
  BuchungsArt = ListeNeuLesen = BildAnhalten = 1;
  SammelFolgevolk = true;
  EinstellungenZahl.back() = 5;
  EinstellungenWert.back() = 5;
  EinstellungenText.back() = QStringLiteral("x");
  zurücksetzen();
  EXPECT_EQ(AktVolkID + HeuteText + FormModus, QString());
  EXPECT_EQ(BuchungsArt + ListeNeuLesen + BildAnhalten, 0);
  EXPECT_FALSE(SammelFolgevolk);
  EXPECT_EQ(EinstellungenZahl.back(), 0);
  EXPECT_EQ(EinstellungenWert.back(), 0);
  EXPECT_EQ(EinstellungenText.back(), QString());
}

}  // namespace
