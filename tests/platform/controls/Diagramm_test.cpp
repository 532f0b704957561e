#include "platform/controls/Diagramm.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QPainter>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <array>
#include <cmath>

#include "gemeinsam/Bildschirm.h"
#include "gemeinsam/Pdf.h"
#include "platform/controls/Diagrammlegende.h"
#include "platform/controls/Druck.h"
#include "platform/files/Textdatei.h"

namespace {

using Art = Diagramminhalt::Art;
using Werte = Diagramminhalt::Werte;

const QList<Art> Arten = {Art::Torte, Art::Torte3D, Art::Balken};

Diagramminhalt inhalt(Art art, const QList<Diagramminhalt::Punkt>& punkte,
                      Werte werte = Werte::Mengen) {
  Diagramminhalt neu;
  neu.art = art;
  neu.werte = werte;
  neu.titel = "Auswertung (Völker an Standorten)";
  neu.fuß = "Stand: 20.06.2006";
  neu.punkte = punkte;
  return neu;
}

QList<Diagramminhalt::Punkt> viele(int anzahl, const QString& name = "Honigsorte %1") {
  QList<Diagramminhalt::Punkt> punkte;
  for (int i = 0; i < anzahl; ++i) punkte.append({name.arg(i + 1), 3.5 + i * 7 % 23});
  return punkte;
}

class Diagrammtest : public testing::Test {
 protected:
  Diagrammtest() { d.resize(800, 600); }

  // All texts of the drawing.
  QStringList texte() {
    d.speichern(pfad("bild.svg"));
    QStringList alle;
    static const QRegularExpression muster("<text[^>]*>([^<]*)</text>");
    QFile datei(pfad("bild.svg"));
    EXPECT_TRUE(datei.open(QFile::ReadOnly));
    const QString svg = QString::fromUtf8(datei.readAll());
    for (auto lauf = muster.globalMatch(svg); lauf.hasNext();)
      alle += lauf.next().captured(1).trimmed();
    return alle;
  }
  // How many dots of the picture have a point's colour.
  int fläche(int punkt) { return fläche(Diagramminhalt::farbe(punkt), d.rect()); }
  int fläche(const QColor& farbe, const QRect& ausschnitt) {
    const QImage bild = d.grab(ausschnitt).toImage();
    int zahl = 0;
    for (int y = 0; y < bild.height(); ++y)
      for (int x = 0; x < bild.width(); ++x)
        if (bild.pixel(x, y) == farbe.rgb()) ++zahl;
    return zahl;
  }
  QString pfad(const QString& name) const { return ordner.filePath(name); }

  QTemporaryDir ordner;
  Diagramm d;
};

TEST_F(Diagrammtest, TitelFußNamenUndWerteStehenDaran) {
  for (const Art art : Arten) {
    d.setInhalt(inhalt(art, {{"Hof", 12.5}, {"Mühlbach", 37.5}}));
    const QStringList alle = texte();
    for (const char* text : {"Auswertung (Völker an Standorten)", "Stand: 20.06.2006", "Hof",
                             "Mühlbach", "12,5", "37,5"})
      EXPECT_TRUE(alle.contains(QString(text))) << text << " in Art " << static_cast<int>(art);
  }
}

TEST_F(Diagrammtest, ProzenteHabenEineNachkommastelle) {
  d.setInhalt(inhalt(Art::Torte, {{"Hof", 1}, {"Heide", 2}}, Werte::Prozent));
  const QStringList alle = texte();
  EXPECT_TRUE(alle.contains("33,3 %"));
  EXPECT_TRUE(alle.contains("66,7 %"));
  EXPECT_FALSE(alle.contains("1"));
}

TEST_F(Diagrammtest, OhneWerteStehenNurDieNamenDa) {
  d.setInhalt(inhalt(Art::Torte, {{"Hof", 17}, {"Heide", 23}}, Werte::Keine));
  EXPECT_EQ(texte().filter(QRegularExpression("17|23|%")), QStringList());
}

TEST_F(Diagrammtest, WerSiehtNichtHörtDiePunkte) {
  d.setInhalt(inhalt(Art::Torte, {{"Hof", 1.5}, {"Heide", 2}}));
  EXPECT_EQ(d.accessibleName(), "Auswertung (Völker an Standorten)");
  EXPECT_EQ(d.accessibleDescription(), "Hof 1,5; Heide 2");
}

TEST_F(Diagrammtest, DieStückeSindSoGroßWieIhrAnteil) {
  for (const Art art : {Art::Torte, Art::Torte3D}) {
    d.setInhalt(inhalt(art, {{"Hof", 1}, {"Heide", 3}}, Werte::Keine));
    const double hof = fläche(0);
    const double heide = fläche(1);
    EXPECT_GT(hof, 5000);
    EXPECT_NEAR(heide / hof, 3, 0.05) << static_cast<int>(art);
  }
}

TEST_F(Diagrammtest, DieBalkenSindSoHochWieIhrWert) {
  d.setInhalt(inhalt(Art::Balken, {{"Hof", 10}, {"Heide", 30}}, Werte::Keine));
  EXPECT_GT(fläche(0), 5000);
  EXPECT_NEAR(static_cast<double>(fläche(1)) / fläche(0), 3, 0.05);
}

TEST_F(Diagrammtest, EinHerausgezogenesStückLässtEineLücke) {
  for (const Art art : {Art::Torte, Art::Torte3D}) {
    Diagramminhalt neu = inhalt(art, {{"Hof", 1}, {"Heide", 1}, {"Wald", 2}}, Werte::Keine);
    const auto weiße = [&] { return fläche(Qt::white, d.rect()); };
    // As large as the room allows either way: what tells is the gap across the picture's middle.
    const auto farbwechsel = [&] {
      const QImage bild = d.grab().toImage();
      int lücken = 0;
      for (int y = 0; y < bild.height(); ++y) {
        bool farbe = false;
        bool danach = false;
        for (int x = 0; x < d.width() * 3 / 5; ++x) {
          const bool weiß = bild.pixel(x, y) == QColor(Qt::white).rgb();
          if (farbe && weiß) danach = true;
          if (danach && !weiß) {
            ++lücken;
            break;
          }
          farbe = farbe || !weiß;
        }
      }
      return lücken;
    };
    d.setInhalt(neu);
    const int vorher = farbwechsel();
    EXPECT_GT(weiße(), 0);
    neu.herausgezogen = 1;
    d.setInhalt(neu);
    EXPECT_GT(farbwechsel(), vorher + 10) << static_cast<int>(art);
  }
}

TEST_F(Diagrammtest, OhnePunkteStehenTitelUndFußDa) {
  for (const Art art : Arten) {
    d.setInhalt(inhalt(art, {}));
    EXPECT_TRUE(texte().contains("Auswertung (Völker an Standorten)"));
    EXPECT_TRUE(texte().contains("Stand: 20.06.2006"));
    EXPECT_EQ(fläche(0), 0);
  }
}

TEST_F(Diagrammtest, NullUndNegativeWerteHabenInDerTorteKeinStück) {
  for (const Art art : {Art::Torte, Art::Torte3D}) {
    Diagramminhalt neu = inhalt(art, {{"Hof", -5}, {"Heide", 0}}, Werte::Prozent);
    neu.herausgezogen = 1;
    d.setInhalt(neu);
    EXPECT_EQ(texte().count("0,0 %"), 2) << "in the legend alone";
    EXPECT_LT(fläche(0), 500);
  }
}

TEST_F(Diagrammtest, NegativeBalkenHängenUnterDerNull) {
  d.setInhalt(inhalt(Art::Balken, {{"Hof", 10}, {"Heide", -10}}, Werte::Keine));
  const QRect oben(0, 0, d.width(), d.height() / 2 - 10);
  EXPECT_GT(fläche(Diagramminhalt::farbe(0), oben), 5000);
  EXPECT_EQ(fläche(Diagramminhalt::farbe(1), oben), 0);
  EXPECT_GT(fläche(1), 5000);
}

TEST_F(Diagrammtest, EineEinzigeSorteIstEineGanzeTorte) {
  for (const Art art : {Art::Torte, Art::Torte3D}) {
    Diagramminhalt neu = inhalt(art, {{"Raps", 7}}, Werte::Prozent);
    neu.herausgezogen = 0;
    d.setInhalt(neu);
    EXPECT_EQ(texte().count("100,0 %"), 2) << "on it and in the legend";
  }
}

TEST_F(Diagrammtest, ZahlenDerAchseSindRund) {
  d.setInhalt(inhalt(Art::Balken, {{"A", 0.5}, {"B", 1.9}}, Werte::Keine));
  const QStringList alle = texte();
  EXPECT_TRUE(alle.contains("0,0")) << alle.join(' ').toStdString();
  EXPECT_TRUE(alle.contains("1,0"));
  EXPECT_TRUE(alle.contains("2,0"));
}

TEST_F(Diagrammtest, MehrStückeAlsFarbenSindNummeriert) {
  d.setInhalt(inhalt(Art::Torte, viele(8), Werte::Keine));
  EXPECT_FALSE(texte().contains("8"));
  d.setInhalt(inhalt(Art::Torte, viele(9), Werte::Keine));
  EXPECT_EQ(texte().count("9"), 2) << "at the slice and in the legend";
}

TEST_F(Diagrammtest, DreißigJahreHabenAlleIhrenNamenUnterDemBalken) {
  QList<Diagramminhalt::Punkt> jahre = viele(30, "%1");
  for (auto& jahr : jahre) jahr.name = QString::number(1976 + jahr.name.toInt());
  d.setInhalt(inhalt(Art::Balken, jahre));
  const QStringList alle = texte();
  for (const auto& jahr : jahre) EXPECT_EQ(alle.count(jahr.name), 2) << jahr.name.toStdString();
}

TEST_F(Diagrammtest, JedeGrößeUndAnzahlLässtSichZeichnen) {
  for (const Art art : Arten)
    for (const int anzahl : {1, 2, 9, 40, 300})
      for (const QSize größe : {QSize(1, 1), QSize(40, 30), QSize(200, 900), QSize(1800, 200)}) {
        Diagramminhalt neu = inhalt(art, viele(anzahl));
        neu.herausgezogen = 0;
        d.setInhalt(neu);
        d.resize(größe);
        EXPECT_FALSE(d.grab().isNull());
      }
}

// ---- colours ----

struct Licht {
  double rot, grün, blau;
};

// As people see it who lack one kind of cones (Viénot, Brettel and Mollon 1999), in linear light.
Licht gesehen(const QColor& farbe, bool protanop) {
  const auto licht = [](double anteil) {
    return anteil <= 0.04045 ? anteil / 12.92 : std::pow((anteil + 0.055) / 1.055, 2.4);
  };
  const double r = licht(farbe.redF());
  const double g = licht(farbe.greenF());
  const double b = licht(farbe.blueF());
  if (protanop) {
    const double gelb = 0.11238 * r + 0.88762 * g;
    return {gelb, gelb, 0.00401 * (r - g) + b};
  }
  const double gelb = 0.29275 * r + 0.70725 * g;
  return {gelb, gelb, 0.02234 * (g - r) + b};
}

// How far two colours are from each other (CIE L*a*b* 1976); 2 can just be told.
double abstand(const QColor& a, const QColor& b, bool protanop) {
  const auto lab = [&](const QColor& farbe) {
    const Licht l = gesehen(farbe, protanop);
    const auto f = [](double t) {
      return t > 0.008856 ? std::cbrt(t) : 7.787 * std::max(0.0, t) + 16.0 / 116;
    };
    const double x = f((0.4124 * l.rot + 0.3576 * l.grün + 0.1805 * l.blau) / 0.9505);
    const double y = f(0.2126 * l.rot + 0.7152 * l.grün + 0.0722 * l.blau);
    const double z = f((0.0193 * l.rot + 0.1192 * l.grün + 0.9505 * l.blau) / 1.089);
    return std::array{116 * y, 500 * (x - y), 200 * (y - z)};
  };
  const auto p = lab(a);
  const auto q = lab(b);
  return std::hypot(p[0] - q[0], p[1] - q[1], p[2] - q[2]);
}

TEST(Diagrammfarben, AchtFarbenBleibenAuchBeiRotgrünschwächeVerschieden) {
  constexpr double Deutlich = 15;
  EXPECT_LT(abstand("#2ca02c", "#d62728", false), Deutlich) << "a usual red and green";
  for (const bool protanop : {true, false})
    for (int i = 0; i < 8; ++i)
      for (int j = 0; j < i; ++j)
        EXPECT_GT(abstand(Diagramminhalt::farbe(i), Diagramminhalt::farbe(j), protanop), Deutlich)
            << i << " und " << j << (protanop ? " protanop" : " deuteranop");
}

TEST(Diagrammfarben, VierundzwanzigSindVerschiedenUndIhreSchriftIstLesbar) {
  for (int i = 0; i < 24; ++i) {
    for (int j = 0; j < i; ++j) EXPECT_NE(Diagramminhalt::farbe(i), Diagramminhalt::farbe(j));
    const QColor grund = Diagramminhalt::farbe(i);
    EXPECT_GT(std::abs(qGray(grund.rgb()) - qGray(Diagramminhalt::schriftAuf(grund).rgb())), 100);
  }
}

// ---- the legend ----

class Legendentest : public testing::Test {
 protected:
  static QFont schrift() {
    QFont f;
    f.setPixelSize(14);
    return f;
  }
};

TEST_F(Legendentest, VierzigSortenStehenAlleDaUndPassen) {
  const Diagramminhalt i = inhalt(Art::Torte, viele(40));
  const Diagrammlegende legende(i, schrift(), {400, 500});
  EXPECT_EQ(legende.genannt(), 40);
  EXPECT_LE(legende.größe().width(), 400);
  EXPECT_LE(legende.größe().height(), 500);
}

TEST_F(Legendentest, EinLangerNameWirdGekürztStattDieSchriftZuVerkleinern) {
  Diagramminhalt i = inhalt(Art::Torte, {{"Hof", 1}});
  const double zeile = Diagrammlegende(i, schrift(), {300, 500}).größe().height();
  i.punkte[0].name = QString("Rapsfeld Obermoosbach ").repeated(5);
  const Diagrammlegende lang(i, schrift(), {300, 500});
  EXPECT_LE(lang.größe().width(), 300);
  EXPECT_EQ(lang.größe().height(), zeile);
}

TEST_F(Legendentest, WasKeinenPlatzHatWirdGezählt) {
  const Diagramminhalt i = inhalt(Art::Torte, viele(300));
  const Diagrammlegende legende(i, schrift(), {200, 200});
  EXPECT_LT(legende.genannt(), 300);
  EXPECT_GT(legende.genannt(), 5);
  EXPECT_LE(legende.größe().height(), 200);
  EXPECT_LE(legende.größe().width(), 200);
}

// ---- paper and files ----

TEST_F(Diagrammtest, EinPngHatDieDoppelteSchärfe) {
  d.setInhalt(inhalt(Art::Torte, {{"Hof", 1}}));
  d.speichern(pfad("Bild.PNG"));
  const QImage bild(pfad("Bild.PNG"));
  EXPECT_EQ(bild.size(), QSize(1600, 1200));
  EXPECT_EQ(bild, d.bild());
}

TEST_F(Diagrammtest, EinPdfIstEinBlattImQuerformat) {
  d.setInhalt(inhalt(Art::Balken, {{"Hof", 1.5}, {"Mühlbach", 3}}));
  d.speichern(pfad("bild.pdf"));
  const Pdf pdf(pfad("bild.pdf"));
  EXPECT_EQ(pdf.seitenzahl(), 1);
  EXPECT_TRUE(pdf.querformat());
  EXPECT_EQ(pdf.titel(), "Auswertung (Völker an Standorten)");
  const QString text = pdf.zeilen(1).join('\n');
  for (const char* teil :
       {"Auswertung (Völker an Standorten)", "Mühlbach", "1,5", "Stand: 20.06.2006"})
    EXPECT_TRUE(text.contains(QString(teil))) << teil;
}

TEST_F(Diagrammtest, GedrucktFülltEsDasBlatt) {
  d.setInhalt(inhalt(Art::Torte, {{"Hof", 1}, {"Mühlbach", 3}}));
  Druck::Auftrag auftrag;
  auftrag.titel = "Grafik";
  auftrag.quer = true;
  auftrag.malen = [this](QPainter& maler, const QRectF& feld) { d.malen(maler, feld); };
  QPrinter drucker(QPrinter::HighResolution);
  Druck::einrichten(drucker, auftrag);
  drucker.setOutputFormat(QPrinter::PdfFormat);
  drucker.setOutputFileName(pfad("druck.pdf"));
  Druck::ausgeben(drucker, auftrag);
  const Pdf pdf(pfad("druck.pdf"));
  EXPECT_EQ(pdf.seitenzahl(), 1);
  EXPECT_TRUE(pdf.querformat());
  double unten = 0;
  double rechts = 0;
  for (const Pdf::Wort& wort : pdf.wörter(1)) {
    unten = std::max(unten, wort.y);
    rechts = std::max(rechts, wort.rechts);
  }
  EXPECT_GT(unten, 500);   // of 595 points
  EXPECT_GT(rechts, 750);  // of 842
}

TEST_F(Diagrammtest, EinOrdnerDenEsNichtGibtWirdGesagt) {
  d.setInhalt(inhalt(Art::Torte, {{"Hof", 1}}));
  for (const char* name : {"weg/bild.png", "weg/bild.svg", "weg/bild.pdf"})
    EXPECT_THROW(d.speichern(pfad(name)), Dateifehler) << name;
}

// With TOVA_BILDER set to a folder the charts are saved there as pictures.
TEST_F(Diagrammtest, Bilder) {
  QList<Diagramminhalt::Punkt> punkte = viele(40);
  punkte[1].name = "Lindenallee am Mühlbach";
  punkte[3].name = "Rapsfeld Obermoosbach, zweite Reihe hinter dem Wald";
  for (const QSize größe : {QSize(900, 620), QSize(560, 420)})
    for (const int anzahl : {0, 1, 2, 4, 12, 30, 40})
      for (const auto& [name, art] :
           {std::pair{"torte", Art::Torte}, {"torte3d", Art::Torte3D}, {"balken", Art::Balken}}) {
        Diagramminhalt neu =
            inhalt(art, punkte.first(anzahl), anzahl % 4 == 0 ? Werte::Mengen : Werte::Prozent);
        if (anzahl > 2) neu.herausgezogen = 2;
        d.resize(größe);
        d.setInhalt(neu);
        bildAblegen(d, QString("diagramm_%1_%2_%3").arg(name).arg(anzahl).arg(größe.width()));
      }
}

}  // namespace
