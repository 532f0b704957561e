#include <gtest/gtest.h>

#include <random>

#include "data/helpers.h"
#include "platform/controls/Eingaberegel.h"

// What stands in a number field after it was left is the number that ZahlLesen makes of the keys,
// up to the first one that the field refused.
TEST(Zahleneingabe, DerWertIstDerDerTasten) {
  std::mt19937 zufall(20260615);
  const QString zeichen = QStringLiteral("0123456789..,,");
  int mitPunkt = 0;
  int ganz = 0;
  for (int lauf = 0; lauf < 20000; ++lauf) {
    Eingabefeld::Beschreibung feld;
    feld.art = Eingabefeld::Art::Dezimal;
    feld.nachkommastellen = 1 + lauf % 4;
    feld.maxLänge = lauf % 3 == 0 ? 0 : 4 + lauf % 7;
    QString text = QStringLiteral("");
    bool allesGenommen = true;
    for (int i = 0; i < 10 && allesGenommen; ++i) {
      const QString neu = text + zeichen[static_cast<qsizetype>(zufall() % 14)];
      const auto ergebnis = Eingaberegel::prüfe(feld, text, neu, static_cast<int>(neu.size()));
      allesGenommen = ergebnis.has_value();
      if (!allesGenommen)
        EXPECT_FALSE(Eingaberegel::grund(feld, text, neu, static_cast<int>(neu.size())).isEmpty())
            << neu.toStdString();
      else
        EXPECT_EQ(ergebnis->text, neu) << "a key that is taken stays as it is";
      if (allesGenommen) text = neu;
    }
    mitPunkt += text.contains(u'.') ? 1 : 0;
    ganz += allesGenommen ? 1 : 0;
    const QString fertig = Eingaberegel::zahlform(text);
    EXPECT_FALSE(fertig.contains(u'.')) << text.toStdString();
    EXPECT_EQ(ZahlLesenDoppelt(fertig), ZahlLesenDoppelt(text)) << text.toStdString();
  }
  EXPECT_GT(mitPunkt, 1000);
  EXPECT_GT(ganz, 100);
}
