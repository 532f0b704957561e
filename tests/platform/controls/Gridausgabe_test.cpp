// What the grid tells about itself for handing its list on, and fitting the columns.

#include <gtest/gtest.h>

#include <QHeaderView>

#include "platform/controls/Grid.h"
#include "platform/controls/Hilfen.h"
#include "platform/controls/Oeffnen.h"

namespace {

Daten zeilen() {
  Datenblock::Bauer bauer({{"Volk", Feldtyp::Text, 20}, {"n", Feldtyp::Lang, 0}});
  for (const auto& [name, n] : {std::pair{"Carla", 3}, {"Anna", 1}, {"Bea", 2}}) {
    bauer.text(QString::fromUtf8(name));
    bauer.ganz(n);
  }
  return bauer.fertig();
}

TEST(Gridausgabe, EinLeeresGitterHatKeineZeilen) {
  const Grid gitter;
  EXPECT_EQ(gitter.daten(), nullptr);
  EXPECT_TRUE(gitter.ordnung().empty());
}

TEST(Gridausgabe, DieOrdnungFolgtDerSortierung) {
  Grid gitter;
  const Daten daten = zeilen();
  gitter.setDaten(daten);
  EXPECT_EQ(gitter.daten(), daten);
  EXPECT_EQ(gitter.ordnung(), (std::vector<int>{0, 1, 2}));
  gitter.sortiere(0, Qt::AscendingOrder);
  EXPECT_EQ(gitter.ordnung(), (std::vector<int>{1, 2, 0}));
  EXPECT_EQ(gitter.text(0, 0), "Anna");
}

TEST(Gridausgabe, ÜberschriftenUndEigeneTexte) {
  Grid gitter;
  gitter.setDaten(zeilen());
  gitter.setÜberschrift("n", "Anzahl");
  gitter.setAnzeige("N", [](const QVariant& wert) { return wert.toString() + " Stück"; });
  EXPECT_EQ(gitter.überschrift(0), "Volk");
  EXPECT_EQ(gitter.überschrift(1), "Anzahl");
  EXPECT_FALSE(gitter.hatAnzeige(0));
  EXPECT_TRUE(gitter.hatAnzeige(1));
  EXPECT_EQ(gitter.text(0, 1), "3 Stück");
}

TEST(Gridausgabe, AngepassteSpaltenZeigenIhrenGanzenInhaltUndSindNieZuSchmal) {
  Datenblock::Bauer bauer({{"A", Feldtyp::Text, 200}, {"i", Feldtyp::Text, 20}});
  const QString lang(90, 'W');
  for (const QString& text : {QString("kurz"), lang}) {
    bauer.text(text);
    bauer.text(QString("l"));
  }
  Grid gitter;
  gitter.resize(300, 200);
  gitter.setDaten(bauer.fertig());
  zeige(gitter);
  ASSERT_LT(gitter.columnWidth(0), gitter.fontMetrics().horizontalAdvance(lang));
  gitter.passeBreitenAn(60);
  EXPECT_GE(gitter.columnWidth(0), gitter.fontMetrics().horizontalAdvance(lang));
  EXPECT_EQ(gitter.columnWidth(1), 60);
}

TEST(Gridausgabe, VerborgeneSpaltenBleibenBeimAnpassenVerborgen) {
  Grid gitter;
  gitter.setDaten(zeilen());
  gitter.setSpalteVerborgen("n", true);
  gitter.passeBreitenAn(27);
  EXPECT_TRUE(gitter.isColumnHidden(1));
  EXPECT_FALSE(gitter.isColumnHidden(0));
}

TEST(Öffnen, DerGesetzteÖffnerBekommtDiePfade) {
  QStringList pfade;
  bool gelingt = true;
  Öffnen::setÖffner([&](const QString& pfad) {
    pfade += pfad;
    return gelingt;
  });
  EXPECT_TRUE(Öffnen::datei("/imkerei/report.htm"));
  gelingt = false;
  EXPECT_FALSE(Öffnen::datei("/imkerei/tova_liste.xlsx"));
  Öffnen::setÖffner({});
  EXPECT_EQ(pfade, (QStringList{"/imkerei/report.htm", "/imkerei/tova_liste.xlsx"}));
}

}  // namespace
