// What is printed is read back from a PDF file with the tools of poppler.
#include "platform/controls/Druck.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPrinter>
#include <QTemporaryDir>

#include "gemeinsam/Druckdialog.h"
#include "gemeinsam/Pdf.h"
#include "platform/controls/Hilfen.h"
#include "platform/database/Dateigrenze.h"
#include "platform/files/Textdatei.h"

namespace {

class Drucktest : public testing::Test {
 protected:
  static QFont schrift(int größe = 10) {
    QFont f(Druck::schriften(true).value(0));
    f.setPointSize(größe);
    return f;
  }
  // These pages, whatever room there is.
  static Druck::Auftrag auftrag(const QList<QStringList>& seiten, const QFont& f = schrift()) {
    Druck::Auftrag a;
    a.titel = "Listen-Ausgabe Prüfung";
    a.schrift = f;
    a.umbruch = [seiten](const Druck::Satzspiegel&) { return seiten; };
    return a;
  }
  Pdf drucke(const Druck::Auftrag& a, std::function<void(QPrinter&)> wahl = {}) {
    QPrinter drucker(QPrinter::HighResolution);
    Druck::einrichten(drucker, a);
    drucker.setOutputFormat(QPrinter::PdfFormat);
    drucker.setOutputFileName(pfad());
    if (wahl) wahl(drucker);
    Druck::ausgeben(drucker, a);
    return Pdf(pfad());
  }
  Druck::Satzspiegel spiegel(const QFont& f, bool quer = false) {
    Druck::Satzspiegel gesehen;
    Druck::Auftrag a = auftrag({{"x"}}, f);
    a.quer = quer;
    a.umbruch = [&gesehen](const Druck::Satzspiegel& s) {
      gesehen = s;
      return QList<QStringList>{{"x"}};
    };
    drucke(a);
    return gesehen;
  }
  QString pfad() const { return ordner.filePath("druck.pdf"); }

  QTemporaryDir ordner;
};

TEST_F(Drucktest, JedeSeiteTrägtIhreZeilen) {
  const Pdf pdf = drucke(auftrag({{"Königin", "Völker ß € 5"}, {"zweite"}, {}, {"vierte"}}));
  EXPECT_EQ(pdf.seitenzahl(), 4);
  EXPECT_EQ(pdf.zeilen(1), QStringList({"Königin", "Völker ß € 5"}));
  EXPECT_EQ(pdf.zeilen(2), QStringList({"zweite"}));
  EXPECT_EQ(pdf.zeilen(3), QStringList());
  EXPECT_EQ(pdf.zeilen(4), QStringList({"vierte"}));
}

TEST_F(Drucktest, HochUndQuerformatAufA4) {
  Druck::Auftrag a = auftrag({{"x"}});
  EXPECT_FALSE(drucke(a).querformat());
  a.quer = true;
  EXPECT_TRUE(drucke(a).querformat());
}

TEST_F(Drucktest, DasDokumentTrägtSeinenTitel) {
  EXPECT_EQ(drucke(auftrag({{"x"}})).titel(), QString("Listen-Ausgabe Prüfung"));
}

// The set-up brings this font in all four styles; not every fixed-pitch font has italics.
TEST_F(Drucktest, SchriftFettUndKursivStehenImDokument) {
  QFont f("Liberation Mono", 10);
  f.setBold(true);
  f.setItalic(true);
  const QString namen = drucke(auftrag({{"x"}}, f)).schriften();
  EXPECT_TRUE(namen.contains("Bold")) << namen.toStdString();
  EXPECT_TRUE(namen.contains("Italic") || namen.contains("Oblique")) << namen.toStdString();
  EXPECT_FALSE(drucke(auftrag({{"x"}})).schriften().contains("Bold"));
}

TEST_F(Drucktest, DieSchriftgrößeWirktAufZeilenUndZeichen) {
  const auto breite = [this](int größe) {
    const auto w = drucke(auftrag({{"0123456789"}}, schrift(größe))).wörter(1);
    return w.isEmpty() ? 0.0 : w[0].rechts - w[0].x;
  };
  const double zehn = breite(10);
  EXPECT_GT(zehn, 0);
  EXPECT_NEAR(breite(20), 2 * zehn, 1);
}

TEST_F(Drucktest, SpaltenStehenGenauUntereinander) {
  const auto w = drucke(auftrag({{QString(40, 'i') + " A", QString(40, 'W') + " B"}})).wörter(1);
  ASSERT_EQ(w.size(), 4);
  EXPECT_NEAR(w[1].x, w[3].x, 0.2);
}

TEST_F(Drucktest, EineVolleSeiteStehtGanzAufDemPapier) {
  const Druck::Satzspiegel s = spiegel(schrift());
  QStringList voll;
  const qsizetype zeichen = s.passend(QString(1000, '0'));
  for (int i = 0; i < s.zeilen; ++i) voll << QString(zeichen, '0');
  const auto w = drucke(auftrag({voll})).wörter(1);
  ASSERT_EQ(w.size(), s.zeilen);
  constexpr double Breite = 595, Höhe = 842, Rand = 28;  // A4 and 10 mm in points
  EXPECT_GE(w.first().x, Rand);
  EXPECT_LE(w.first().rechts, Breite - Rand + 1);
  EXPECT_GT(w.first().rechts, Breite - Rand - 10);  // one more wouldn't have fitted
  EXPECT_LE(w.last().y, Höhe - Rand);
}

TEST_F(Drucktest, QuerformatHatWenigerUndLängereZeilen) {
  const auto hoch = spiegel(schrift());
  const auto quer = spiegel(schrift(), true);
  const QString lang(1000, '0');
  EXPECT_LT(quer.zeilen, hoch.zeilen);
  EXPECT_GT(quer.passend(lang), hoch.passend(lang));
}

TEST_F(Drucktest, EineProportionaleSchriftWirdGemessen) {
  const QStringList andere = Druck::schriften(false);
  if (andere.isEmpty()) GTEST_SKIP() << "no proportional font on this machine";
  QFont f(andere.contains("DejaVu Sans") ? QString("DejaVu Sans") : andere[0]);
  f.setPointSize(10);
  const auto s = spiegel(f);
  EXPECT_GT(s.passend(QString(1000, 'i')), s.passend(QString(1000, 'W')));
  EXPECT_EQ(s.passend(u"kurz"), 4);
}

TEST_F(Drucktest, NurDieGewähltenSeitenUndDieAnzahlDerExemplare) {
  const auto a = auftrag({{"eins"}, {"zwei"}, {"drei"}});
  const Pdf teil = drucke(a, [](QPrinter& d) {
    d.setPrintRange(QPrinter::PageRange);
    d.setFromTo(2, 3);
  });
  EXPECT_EQ(teil.seitenzahl(), 2);
  EXPECT_EQ(teil.zeilen(1), QStringList({"zwei"}));
  EXPECT_EQ(drucke(a, [](QPrinter& d) { d.setCopyCount(2); }).seitenzahl(), 6);
}

TEST_F(Drucktest, EinFehlenderOrdnerWirdMitDemNamenDerDateiGemeldet) {
  QPrinter drucker(QPrinter::HighResolution);
  const auto a = auftrag({{"x"}});
  Druck::einrichten(drucker, a);
  drucker.setOutputFormat(QPrinter::PdfFormat);
  drucker.setOutputFileName(ordner.filePath("weg/druck.pdf"));
  try {
    Druck::ausgeben(drucker, a);
    FAIL() << "it could be written";
  } catch (const Dateifehler& fehler) {
    EXPECT_TRUE(fehler.text().contains("weg/druck.pdf")) << fehler.text().toStdString();
  }
}

TEST_F(Drucktest, EinVollerDatenträgerWirdGemeldet) {
  const Dateigrenze voll(2000);
  EXPECT_THROW(drucke(auftrag({{"x"}})), Dateifehler);
}

TEST_F(Drucktest, ImDruckdialogStehtImmerEinePdfDateiZurWahl) {
  const Druckdialog dialog(pfad(), [](QPrintDialog* d) {
    EXPECT_EQ(d->objectName(), QString("druckdialog"));
    EXPECT_GE(Druckdialog::pdfEintrag(d), 0);
    const QFileInfo vorschlag(d->findChild<QLineEdit*>("filename")->text());
    EXPECT_EQ(vorschlag.fileName(), QString("Listen-Ausgabe Prüfung.pdf"));
    EXPECT_TRUE(vorschlag.dir().exists());
  });
  EXPECT_TRUE(Druck::drucken(auftrag({{"gedruckt"}}), nullptr));
  EXPECT_EQ(Pdf(pfad()).zeilen(1), QStringList({"gedruckt"}));
}

TEST_F(Drucktest, AbgebrochenerDruckdialogDrucktNichts) {
  const Druckdialog dialog({});
  EXPECT_FALSE(Druck::drucken(auftrag({{"x"}}), nullptr));
  EXPECT_FALSE(QFileInfo::exists(pfad()));
}

// The text stays text on the paper, in each font that may stand in for Courier.
TEST_F(Drucktest, JedeFesteSchriftDrucktUmlauteUndSpaltenRichtig) {
  for (const QString& familie : Druck::schriften(true)) {
    const Pdf pdf = drucke(auftrag({{"Königin  5,00 € Größe"}}, QFont(familie, 12)));
    EXPECT_EQ(pdf.zeilen(1).join('|').simplified(), QString("Königin 5,00 € Größe"))
        << familie.toStdString();
  }
}

TEST_F(Drucktest, SchriftenSindNachFesterBreiteGetrennt) {
  const QStringList feste = Druck::schriften(true);
  ASSERT_FALSE(feste.isEmpty());
  for (const QString& familie : feste)
    EXPECT_NEAR(QFontMetricsF(QFont(familie)).horizontalAdvance(QString(10, 'i')),
                QFontMetricsF(QFont(familie)).horizontalAdvance(QString(10, 'M')), 0.1)
        << familie.toStdString();
  QStringList alle = feste + Druck::schriften(false);
  EXPECT_EQ(alle.removeDuplicates(), 0);
}

}  // namespace
