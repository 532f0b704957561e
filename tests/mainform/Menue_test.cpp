#include "mainform/Menue.h"

#include <gtest/gtest.h>

#include <QSet>

using Menü::Regel;
using Menü::Ziel;

TEST(Menübaum, SechsMenüsInIhrerFolge) {
  QStringList namen;
  QStringList titel;
  for (const Menü::Menü& menü : Menü::menüs()) {
    namen << menü.name;
    titel << menü.titel;
  }
  EXPECT_EQ(namen, QStringList({"XV_Bienenvolk", "XE_Eingabe", "A_Auswertungen", "V_Verwaltung",
                                "O_Optionen", "H_Hilfe"}));
  EXPECT_EQ(titel, QStringList({"&Völker", "&Eingabe", "&Auswertungen", "&Verwaltung", "&Optionen",
                                "&Hilfe"}));
}

TEST(Menübaum, JederEintragStehtEinmal) {
  QSet<QString> namen;
  int anzahl = 0;
  for (const Menü::Menü& menü : Menü::menüs())
    for (const Menü::Eintrag& eintrag : menü.einträge) {
      namen.insert(eintrag.name);
      EXPECT_FALSE(eintrag.titel.isEmpty()) << qPrintable(eintrag.name);
      ++anzahl;
    }
  EXPECT_EQ(anzahl, 8 + 11 + 17 + 14 + 9 + 3);
  EXPECT_EQ(namen.size(), anzahl);
}

TEST(Menübaum, BuchungenTragenIhreArt) {
  const QStringList namen = {"XE_stockkarte",       "XE_honigernte",      "XE_wachsernte",
                             "XE_pollenernte",      "XE_sonstigeernte",   "XE_arbeiten",
                             "XE_wanderung",        "XE_gewichtsmessung", "XE_behandlung",
                             "XE_Königinenwechsel", "XE_Notizen"};
  for (int art = 0; art < namen.size(); ++art) {
    const Menü::Eintrag& eintrag = Menü::eintrag(namen[art]);
    EXPECT_EQ(eintrag.wert, QString::number(art));
    EXPECT_EQ(eintrag.ziel, Ziel::Form);
    EXPECT_EQ(eintrag.regel, Regel::BrauchtZeile);
  }
}

TEST(Menübaum, WasOhneFormIstLässtSichNieWählen) {
  for (const Regel regel : {Regel::Immer, Regel::BrauchtZeile, Regel::BrauchtListe})
    EXPECT_FALSE(Menü::wählbar(Ziel::Form, false, regel, true, true));
}

TEST(Menübaum, RegelnBrauchenZeileOderListe) {
  EXPECT_FALSE(Menü::wählbar(Ziel::Form, true, Regel::BrauchtZeile, false, true));
  EXPECT_TRUE(Menü::wählbar(Ziel::Form, true, Regel::BrauchtZeile, true, true));
  EXPECT_FALSE(Menü::wählbar(Ziel::Hilfe, false, Regel::BrauchtListe, false, false));
  EXPECT_TRUE(Menü::wählbar(Ziel::Hilfe, false, Regel::BrauchtListe, false, true));
  EXPECT_TRUE(Menü::wählbar(Ziel::Hilfe, false, Regel::Immer, false, false));
}

TEST(Menübaum, EinträgeDieEineListeBrauchen) {
  QStringList namen;
  for (const Menü::Menü& menü : Menü::menüs())
    for (const Menü::Eintrag& eintrag : menü.einträge)
      if (eintrag.regel == Regel::BrauchtListe) namen << eintrag.name;
  EXPECT_EQ(namen,
            QStringList({"XV_völkerselektieren", "XV_selektiertevölkermarkieren",
                         "XV_markiertevölkerselektieren", "XW_Völker", "XW_Völkerbuchungenstandard",
                         "XW_Völkerbuchungen", "XW_Arbeitspläne", "XW_Deckungsbeiträge",
                         "XW_Arbeitszeiten", "XW_Statistiken", "XW_Gruppierungen"}));
}

TEST(Menübaum, TastenDieEineZeileOderListeBrauchen) {
  QStringList zeile;
  QStringList liste;
  for (const Menü::Taste& taste : Menü::tasten()) {
    if (taste.regel == Regel::BrauchtZeile) zeile << taste.name;
    if (taste.regel == Regel::BrauchtListe) liste << taste.name;
  }
  EXPECT_EQ(zeile, QStringList({"btn_volkändern", "btn_e_stockkarte", "btn_e_honigernte",
                                "btn_e_wachsernte", "btn_e_arbeiten", "btn_e_wanderung",
                                "btn_e_behandlung"}));
  EXPECT_EQ(QSet<QString>(liste.begin(), liste.end()),
            QSet<QString>({"btn_a_völker", "btn_a_buchungen", "btn_a_arbeitspläne",
                           "btn_a_deckungsbeiträge", "btn_a_statistiken", "btn_a_gruppierungen",
                           "btn_landkarte", "btn_grafik"}));
}

TEST(Menübaum, VierundzwanzigTastenHandelnWieEinEintrag) {
  EXPECT_EQ(Menü::tasten().size(), 24);
  for (const Menü::Taste& taste : Menü::tasten())
    EXPECT_EQ(Menü::eintrag(taste.eintrag).name, taste.eintrag) << qPrintable(taste.name);
}

TEST(Menübaum, PopupMitFünfzehnZeilenUndEinemTrenner) {
  const auto& popup = Menü::popup();
  ASSERT_EQ(popup.size(), 15);
  EXPECT_EQ(popup[0].titel, QStringLiteral("&Neues Volk eingeben"));
  EXPECT_TRUE(popup[3].eintrag.isEmpty());
  EXPECT_EQ(popup[13].titel, QStringLiteral("Königinwechsel"));
  for (int i = 4; i < 15; ++i)
    EXPECT_EQ(Menü::eintrag(popup[i].eintrag).wert, QString::number(i - 4));
}
