#include "core/mainform/Menue.h"

#include <gtest/gtest.h>

#include <QSet>

using Menue::Regel;
using Menue::Ziel;

TEST(Menuebaum, SechsMenuesInIhrerFolge) {
  QStringList namen;
  QStringList titel;
  for (const Menue::Menue& menue : Menue::menues()) {
    namen << menue.name;
    titel << menue.titel;
  }
  EXPECT_EQ(namen, QStringList({"XV_Bienenvolk", "XE_Eingabe", "A_Auswertungen", "V_Verwaltung",
                                "O_Optionen", "H_Hilfe"}));
  EXPECT_EQ(titel, QStringList({"&Völker", "&Eingabe", "&Auswertungen", "&Verwaltung", "&Optionen",
                                "&Hilfe"}));
}

TEST(Menuebaum, JederEintragStehtEinmal) {
  QSet<QString> namen;
  int anzahl = 0;
  for (const Menue::Menue& menue : Menue::menues())
    for (const Menue::Eintrag& eintrag : menue.eintraege) {
      namen.insert(eintrag.name);
      EXPECT_FALSE(eintrag.titel.isEmpty()) << qPrintable(eintrag.name);
      ++anzahl;
    }
  EXPECT_EQ(anzahl, 8 + 11 + 17 + 14 + 9 + 3);
  EXPECT_EQ(namen.size(), anzahl);
}

TEST(Menuebaum, BuchungenTragenIhreArt) {
  const QStringList namen = {"XE_stockkarte",       "XE_honigernte",      "XE_wachsernte",
                             "XE_pollenernte",      "XE_sonstigeernte",   "XE_arbeiten",
                             "XE_wanderung",        "XE_gewichtsmessung", "XE_behandlung",
                             "XE_Königinenwechsel", "XE_Notizen"};
  for (int art = 0; art < namen.size(); ++art) {
    const Menue::Eintrag& eintrag = Menue::eintrag(namen[art]);
    EXPECT_EQ(eintrag.wert, QString::number(art));
    EXPECT_EQ(eintrag.ziel, Ziel::Eingabe);
    EXPECT_EQ(eintrag.regel, Regel::BrauchtZeile);
  }
}

TEST(Menuebaum, WasOhneFormIstLaesstSichNieWaehlen) {
  for (const Regel regel : {Regel::Immer, Regel::BrauchtZeile, Regel::BrauchtListe})
    EXPECT_FALSE(Menue::waehlbar(Ziel::NochNicht, regel, true, true));
}

TEST(Menuebaum, RegelnBrauchenZeileOderListe) {
  EXPECT_FALSE(Menue::waehlbar(Ziel::Eingabe, Regel::BrauchtZeile, false, true));
  EXPECT_TRUE(Menue::waehlbar(Ziel::Eingabe, Regel::BrauchtZeile, true, true));
  EXPECT_FALSE(Menue::waehlbar(Ziel::Hilfe, Regel::BrauchtListe, false, false));
  EXPECT_TRUE(Menue::waehlbar(Ziel::Hilfe, Regel::BrauchtListe, false, true));
  EXPECT_TRUE(Menue::waehlbar(Ziel::Hilfe, Regel::Immer, false, false));
}

TEST(Menuebaum, EintraegeDieEineListeBrauchen) {
  QStringList namen;
  for (const Menue::Menue& menue : Menue::menues())
    for (const Menue::Eintrag& eintrag : menue.eintraege)
      if (eintrag.regel == Regel::BrauchtListe) namen << eintrag.name;
  EXPECT_EQ(namen,
            QStringList({"XV_völkerselektieren", "XV_selektiertevölkermarkieren",
                         "XV_markiertevölkerselektieren", "XW_Völker", "XW_Völkerbuchungenstandard",
                         "XW_Völkerbuchungen", "XW_Arbeitspläne", "XW_Deckungsbeiträge",
                         "XW_Arbeitszeiten", "XW_Statistiken", "XW_Gruppierungen"}));
}

TEST(Menuebaum, TastenDieEineZeileOderListeBrauchen) {
  QStringList zeile;
  QStringList liste;
  for (const Menue::Taste& taste : Menue::tasten()) {
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

TEST(Menuebaum, VierundzwanzigTastenHandelnWieEinEintrag) {
  EXPECT_EQ(Menue::tasten().size(), 24);
  for (const Menue::Taste& taste : Menue::tasten())
    EXPECT_EQ(Menue::eintrag(taste.eintrag).name, taste.eintrag) << qPrintable(taste.name);
}

TEST(Menuebaum, PopupMitFuenfzehnZeilenUndEinemTrenner) {
  const auto& popup = Menue::popup();
  ASSERT_EQ(popup.size(), 15);
  EXPECT_EQ(popup[0].titel, QStringLiteral("&Neues Volk eingeben"));
  EXPECT_TRUE(popup[3].eintrag.isEmpty());
  EXPECT_EQ(popup[13].titel, QStringLiteral("Königinwechsel"));
  for (int i = 4; i < 15; ++i)
    EXPECT_EQ(Menue::eintrag(popup[i].eintrag).wert, QString::number(i - 4));
}
