#include "mainform/forms/Bildfeld.h"

#include <QPainter>
#include <QScrollBar>

#include "Hauptumfeld.h"
#include "mainform/forms/Stockzeichner.h"

using namespace TZ_Variablen;

namespace {

using Zellen = QHash<QString, QString>;

Volkbild::Bild bildVon(const Zellen& zellen) {
  Volkbild::Rahmen rahmen;
  return Volkbild::bild([&zellen](const QString& spalte) { return zellen.value(spalte); }, rahmen);
}

// The hive drawn alone on 600 x 500 pixels.
class Stock {
 public:
  explicit Stock(const Zellen& zellen, double dichte = 1)
      : m_bild(bildVon(zellen)),
        m_pixel(QSize(600, 500) * dichte, QImage::Format_ARGB32_Premultiplied),
        mass(Feld, m_bild, dichte) {
    m_pixel.setDevicePixelRatio(dichte);
    m_pixel.fill(Qt::transparent);
    QPainter maler(&m_pixel);
    Stockzeichner::zeichne(maler, Feld, m_bild, false);
  }
  QColor farbe(const QPointF& ort) const {
    return m_pixel.pixelColor((ort * m_pixel.devicePixelRatio()).toPoint());
  }
  QColor wabe(int platz) const { return farbe(mass.wabe(platz).center()); }

 private:
  const QRectF Feld{0, 0, 600, 500};
  Volkbild::Bild m_bild;
  QImage m_pixel;

 public:
  Stockmaß mass;
};

bool farbton(const QColor& farbe, int ton) {
  return farbe.hsvSaturation() > 120 && std::abs(farbe.hsvHue() - ton) < 8;
}

// A form with the frame alone.
struct Feld {
  Feld() { feld.setFont(QApplication::font()); }
  void größe(int breite, int höhe) {
    feld.resize(breite, höhe);
    feld.show();
    QApplication::processEvents();
  }
  QLabel* label(int nummer) const {
    return feld.findChild<QLabel*>(QStringLiteral("bildpos_%1").arg(nummer));
  }
  Bildfeld feld;
};

class Volkgrafik : public Hauptumfeld {};

}  // namespace

TEST(Stockbild, WabenStehenInIhrenFarben) {
  const Stock stock({{"Waben_je_Magazin", "10"},
                     {"Brutwaben", "1"},
                     {"Honigwaben", "1"},
                     {"Pollenwaben", "1"},
                     {"Drohnenwaben", "1"},
                     {"Futterwaben", "1"},
                     {"Leerwaben", "1"},
                     {"Mittelwände", "1"}});
  EXPECT_TRUE(farbton(stock.wabe(0), 0)) << qPrintable(stock.wabe(0).name());
  EXPECT_TRUE(farbton(stock.wabe(1), 60)) << qPrintable(stock.wabe(1).name());
  EXPECT_TRUE(farbton(stock.wabe(2), 240)) << qPrintable(stock.wabe(2).name());
  EXPECT_TRUE(farbton(stock.wabe(3), 180)) << qPrintable(stock.wabe(3).name());
  EXPECT_LT(stock.wabe(4).hsvSaturation(), 10) << qPrintable(stock.wabe(4).name());
  EXPECT_NEAR(stock.wabe(4).value(), 128, 20);
  EXPECT_TRUE(farbton(stock.wabe(5), 120)) << qPrintable(stock.wabe(5).name());
  EXPECT_GT(stock.wabe(6).lightness(), 220) << qPrintable(stock.wabe(6).name());
}

TEST(Stockbild, FreiePlätzeZeigenDasInnereDerZarge) {
  const Stock stock({{"Waben_je_Magazin", "10"}, {"Brutwaben", "1"}});
  for (int platz = 1; platz < 10; ++platz) EXPECT_LT(stock.wabe(platz).lightness(), 80) << platz;
}

TEST(Stockbild, DasErsteMagazinStehtUnten) {
  const Stock stock({{"Waben_je_Magazin", "10"}, {"Brutwaben", "10"}, {"Honigwaben", "1"}});
  EXPECT_GT(stock.mass.magazin(0).top(), stock.mass.magazin(1).top());
  EXPECT_DOUBLE_EQ(stock.mass.magazin(0).top(), stock.mass.magazin(1).bottom());
  EXPECT_TRUE(farbton(stock.wabe(0), 0));
  EXPECT_TRUE(farbton(stock.wabe(16), 60));
}

TEST(Stockbild, DieErstenPlätzeLiegenInDerMitteUndWachsenNachAußen) {
  const Stockmaß mass(QRectF(0, 0, 600, 500), bildVon({{"Waben_je_Magazin", "16"}}), 1);
  const double mitte = mass.magazin(0).center().x();
  for (int platz = 0; platz + 2 < 16; ++platz)
    EXPECT_GT(std::abs(mass.wabe(platz + 2).center().x() - mitte),
              std::abs(mass.wabe(platz).center().x() - mitte))
        << platz;
}

TEST(Stockbild, JedeWabenzahlPasstZwischenDieWände) {
  for (int w = 8; w <= 16; ++w) {
    const Volkbild::Bild bild = bildVon({{"Waben_je_Magazin", QString::number(w)}});
    const Stockmaß mass(QRectF(0, 0, 600, 500), bild, 1);
    for (int platz = 0; platz < w; ++platz) {
      EXPECT_GE(mass.wabe(platz).left(), mass.x(bild.rahmen.links + 105)) << w << ' ' << platz;
      EXPECT_LE(mass.wabe(platz).right(), mass.x(bild.rahmen.rechts)) << w << ' ' << platz;
    }
  }
}

TEST(Stockbild, FünfMagazineBleibenImFeld) {
  const QRectF feld(0, 0, 200, 180);
  const Stockmaß mass(feld, bildVon({{"Waben_je_Magazin", "16"}, {"Brutwaben", "80"}}), 1);
  EXPECT_GE(mass.dach().top(), feld.top());
  EXPECT_LE(mass.boden(), feld.bottom());
  EXPECT_GT(mass.magazin(4).height(), 10);
}

TEST(Stockbild, KantenLiegenAufGanzenBildpunktenAuchBeiFeinemSchirm) {
  for (double dichte : {1.0, 1.25, 1.5, 2.0}) {
    const Stockmaß mass(QRectF(0, 0, 333, 257), bildVon({{"Brutwaben", "40"}}), dichte);
    for (int platz = 0; platz < 40; ++platz)
      for (double kante : {mass.wabe(platz).left(), mass.wabe(platz).right(),
                           mass.wabe(platz).top(), mass.wabe(platz).bottom()})
        EXPECT_NEAR(kante * dichte, std::round(kante * dichte), 1e-6) << dichte << ' ' << platz;
  }
}

TEST(Bildfeld, MarkenGleitenMitDerNote) {
  Feld f;
  f.größe(460, 400);
  f.feld.zeigen("1", "Anna",
                bildVon({{"Volkstärke", "10"}, {"Wabensitz", "5"}, {"Belagert", "99"}}), {});
  EXPECT_EQ(f.label(0)->text(), "10,0");
  EXPECT_EQ(f.label(1)->text(), "0,0");
  EXPECT_EQ(f.label(2)->text(), "5,0");
  EXPECT_EQ(f.label(8)->text(), "10,0");
  EXPECT_EQ(f.label(8)->x(), f.label(0)->x());
  EXPECT_GT(f.label(0)->x(), f.label(1)->x() + 30);
  EXPECT_NEAR(f.label(2)->x(), (f.label(0)->x() + f.label(1)->x()) / 2.0, 1);
}

TEST(Bildfeld, AuchImSchmalstenFeldSiehtManDieMarkenGleiten) {
  Feld f;
  const int w = f.feld.minimumSizeHint().width();
  f.größe(w, f.feld.heightForWidth(w));
  f.feld.zeigen("1", "Anna", bildVon({{"Volkstärke", "10"}}), {});
  EXPECT_GE(f.label(0)->x() - f.label(1)->x(), f.feld.fontMetrics().height());
  EXPECT_LE(f.label(0)->geometry().right(), f.feld.widget()->width());
}

TEST(Bildfeld, HonigsummenStehenInIhrenFeldern) {
  Feld f;
  f.feld.zeigen("1", "Anna", bildVon({}), {"12,5", "20,0", "32,5"});  // newest, year, all time
  EXPECT_EQ(f.label(19)->text(), "12,5");
  EXPECT_EQ(f.label(9)->text(), "20,0");
  EXPECT_EQ(f.label(20)->text(), "32,5");
}

TEST(Bildfeld, EinNameMitSpitzenKlammernStehtDaWieEingegeben) {
  Feld f;
  f.größe(460, 400);
  f.feld.zeigen("1", "<b>Anna</b>", bildVon({}), {});
  const QImage pixel = f.label(11)->grab().toImage();
  int rechts = 0;  // the last column with ink
  for (int x = 0; x < pixel.width(); ++x)
    for (int y = 0; y < pixel.height(); ++y)
      if (pixel.pixel(x, y) != pixel.pixel(pixel.width() - 1, 0)) rechts = x;
  const int breite = f.label(11)->fontMetrics().horizontalAdvance("<b>Anna</b>");
  EXPECT_NEAR(rechts, breite * pixel.devicePixelRatio(), 4);
}

TEST(Bildfeld, DerLängsteNameUndDieLängsteNummerSindGanzZuLesen) {
  const QString name = "Volk am Waldrand Ost";  // as long as the fields are
  const QString nummer = "2024-00817";
  for (int breite : {15, 20, 26, 45}) {
    Feld f;
    const int w = breite * f.feld.fontMetrics().height();
    f.größe(w, f.feld.heightForWidth(w));
    f.feld.zeigen(nummer, name, bildVon({}), {});
    f.größe(w, f.feld.heightForWidth(w));
    for (int i : {10, 11}) {
      const QLabel* label = f.label(i);
      EXPECT_EQ(label->text(), i == 10 ? nummer : name);
      EXPECT_GE(label->width(), i == 10 ? label->sizeHint().width() : 1) << breite;
      EXPECT_GE(label->height(),
                label->fontMetrics()
                    .boundingRect(label->contentsRect(), Qt::TextWordWrap, label->text())
                    .height())
          << breite;
      EXPECT_LE(label->fontMetrics()
                    .boundingRect(label->contentsRect(), Qt::TextWordWrap, label->text())
                    .width(),
                label->width())
          << breite;
    }
    EXPECT_FALSE(f.label(10)->geometry().intersects(f.label(11)->geometry())) << breite;
    EXPECT_FALSE(f.feld.verticalScrollBar()->isVisible()) << breite;
  }
}

TEST(Bildfeld, LegendeUndHinweisStehenDa) {
  Feld f;
  f.größe(460, 400);
  const QStringList texte = {"Honigwabe",  "Brutwabe", "Pollenwabe", "Drohnenwabe",
                             "Futterwabe", "Leerwabe", "Mittelwand"};
  for (int i = 0; i < 7; ++i) {
    EXPECT_EQ(f.label(12 + i)->text(), texte[i]);
    EXPECT_GE(f.label(12 + i)->width(), f.label(12 + i)->sizeHint().width()) << i;
  }
  QStringList alle;
  for (const QLabel* label : f.feld.findChildren<QLabel*>()) alle << label->text();
  EXPECT_TRUE(
      alle.contains("Die Reihung der Waben wird automatisch ermittelt und muss nicht "
                    "original sein!"));
  EXPECT_TRUE(alle.contains("Honig (letzte):"));
  EXPECT_TRUE(alle.contains("Honig (alles):"));
}

TEST(Bildfeld, ErzähltDemVorleserWasZuSehenIst) {
  Feld f;
  f.feld.setHonigjahr("Honig (2024):");
  f.feld.zeigen("7", "Frieda",
                bildVon({{"Waben_je_Magazin", "10"}, {"Brutwaben", "6"}, {"Honigwaben", "6"}}),
                {"12,5", "20,0", "32,5"});
  const QString text = f.feld.accessibleDescription();
  EXPECT_TRUE(
      text.startsWith("Volk 7 Frieda. Magazin 1: 6 Brutwaben, 4 Honigwaben. "
                      "Magazin 2: 2 Honigwaben. Noten: Volkstärke 0,0,"))
      << qPrintable(text);
  EXPECT_TRUE(
      text.endsWith("Honig (letzte): 12,5 kg. Honig (2024): 20,0 kg. "
                    "Honig (alles): 32,5 kg."))
      << qPrintable(text);
}

TEST(Bildfeld, NichtsÜberdecktSichUndNichtsStehtAußerhalb) {
  const QFont schrift = QApplication::font();
  for (double faktor : {1.0, 1.5, 2.0}) {
    QFont größer = schrift;
    größer.setPointSizeF(schrift.pointSizeF() * faktor);
    QApplication::setFont(größer);
    for (int breite : {15, 20, 26, 35, 45, 60}) {
      Feld f;
      f.feld.setHonigjahr("Honig (2024):");
      f.feld.zeigen("4711", "Volk am Waldrand", bildVon({}), {"112,5", "120,0", "1332,5"});
      const int w = breite * f.feld.fontMetrics().height();
      f.größe(w, f.feld.heightForWidth(w));
      EXPECT_FALSE(f.feld.verticalScrollBar()->isVisible()) << breite;
      const auto labels = f.feld.findChildren<QLabel*>();
      for (const QLabel* eines : labels) {
        EXPECT_TRUE(f.feld.widget()->rect().contains(eines->geometry()))
            << faktor << ' ' << breite << qPrintable(eines->text());
        for (const QLabel* anderes : labels)
          EXPECT_TRUE(eines == anderes || !eines->geometry().intersects(anderes->geometry()))
              << faktor << ' ' << breite << qPrintable(eines->text() + u'/' + anderes->text());
      }
    }
  }
  QApplication::setFont(schrift);
}

TEST(Bildfeld, ImNiedrigenFensterLässtEsSichRollen) {
  Feld f;
  f.größe(460, 150);
  EXPECT_TRUE(f.feld.verticalScrollBar()->isVisible());
  EXPECT_GT(f.feld.verticalScrollBar()->maximum(), 0);
  f.größe(460, f.feld.heightForWidth(460));
  EXPECT_FALSE(f.feld.verticalScrollBar()->isVisible());
}

TEST_F(Volkgrafik, DasPanelZeichnetDasAngezeigteVolk) {
  völker(2);
  starten();
  DB.Execute(
      "update Bienenvolk set Waben_je_Magazin = 10, Brutwaben = 6, Honigwaben = 6, "
      "Sanftmut = 8.5 where ID = 2");
  form->datenvölkerlesen();
  form->setAktuelleZeile(1);
  klick("kon1");
  const auto* bild = finde<Bildfeld>("bild");
  EXPECT_TRUE(bild->isVisible());
  EXPECT_TRUE(bild->accessibleDescription().startsWith(
      "Volk 2 Volk 2. Magazin 1: 6 Brutwaben, 4 Honigwaben. Magazin 2: 2 Honigwaben. "))
      << qPrintable(bild->accessibleDescription());
  EXPECT_EQ(finde<QLabel>("bildpos_3")->text(), "8,5");
  EXPECT_EQ(finde<QLabel>("bildpos_10")->text(), "2");
  klick("kon1");
  EXPECT_FALSE(bild->isVisible());
}

TEST_F(Volkgrafik, DieNotenStehenAuchOhneIhreZeilenImBild) {
  völker(1);
  starten();
  DB.Execute("update Bienenvolk set Volkstärke = 6.5, Belagert = 12 where ID = 1");
  form->datenvölkerlesen();
  EinstellungenText[Textslots.infofenster] = u'1' + QString(59, u'0');
  klick("kon1");
  EXPECT_TRUE(panel().contains("Volkname"));
  EXPECT_FALSE(panel().contains("Volkstärke"));
  EXPECT_EQ(finde<QLabel>("bildpos_0")->text(), "6,5");
  EXPECT_EQ(finde<QLabel>("bildpos_8")->text(), "10,0");
}

TEST_F(Volkgrafik, NebenUnbekannterWabenzahlBleibtDerRahmenDesVorigenVolkes) {
  völker(3);
  starten();
  DB.Execute("update Bienenvolk set Volknr = '1', Volkname = 'Anna', Waben_je_Magazin = 9");
  DB.Execute("update Bienenvolk set Waben_je_Magazin = 7 where ID = 2");
  DB.Execute("update Bienenvolk set Waben_je_Magazin = 16 where ID = 3");
  form->datenvölkerlesen();
  klick("kon1");
  const auto zeige = [this](int zeile) {
    form->setAktuelleZeile(zeile);
    klick("cmdok");
    return finde<Bildfeld>("bild")->grab().toImage();
  };
  const QImage neun = zeige(0);
  EXPECT_EQ(zeige(1), neun);
  const QImage sechzehn = zeige(2);
  EXPECT_NE(sechzehn, neun);
  EXPECT_EQ(zeige(1), sechzehn);
}
