#include "output/Schriftliste.h"

#include <gtest/gtest.h>

namespace {

QStringList namen(const QList<Schriftwahl>& liste) {
  QStringList alle;
  for (const Schriftwahl& wahl : liste) alle << wahl.name;
  return alle;
}

TEST(Schriftliste, FesteSchriftenStehenVorDenAnderen) {
  EXPECT_EQ(namen(schriftliste({"Courier New", "FreeMono"}, {"Arial", "Times"})),
            QStringList({"Courier New", "FreeMono", "Arial", "Times"}));
}

TEST(Schriftliste, KeineSchriftStehtDoppelt) {
  EXPECT_EQ(namen(schriftliste({"Courier New", "FreeMono", "FreeMono"}, {"Arial", "Courier New"})),
            QStringList({"Courier New", "FreeMono", "Arial"}));
}

TEST(Schriftliste, MitCourierNewGibtEsKeinenErsatz) {
  const auto liste = schriftliste({"Nimbus Mono PS", "Courier New"}, {});
  EXPECT_EQ(namen(liste), QStringList({"Nimbus Mono PS", "Courier New"}));
  EXPECT_EQ(schriftIndex(liste, "Courier New"), 1);
}

TEST(Schriftliste, EineAndereCourierTrittAnDieStelleVonCourierNew) {
  const auto liste = schriftliste({"DejaVu Sans Mono", "Courier 10 Pitch"}, {"Arial"});
  EXPECT_EQ(namen(liste), QStringList({"DejaVu Sans Mono", "Courier 10 Pitch", "Arial"}));
  EXPECT_EQ(schriftIndex(liste, "Courier New"), 1);
}

TEST(Schriftliste, OhneCourierStehtDieÄhnlichsteAlsErsatzVorn) {
  const auto liste = schriftliste({"DejaVu Sans Mono", "Nimbus Mono PS", "Zierschrift"}, {"Arial"});
  EXPECT_EQ(namen(liste), QStringList({"Courier New (Ersatz: Nimbus Mono PS)", "DejaVu Sans Mono",
                                       "Zierschrift", "Arial"}));
  EXPECT_EQ(liste[0].familie, QString("Nimbus Mono PS"));
  EXPECT_EQ(schriftIndex(liste, "Courier New"), 0);
}

TEST(Schriftliste, IrgendeineFesteSchriftIstBesserAlsKeine) {
  EXPECT_EQ(namen(schriftliste({"Zierschrift"}, {"Arial"})),
            QStringList({"Courier New (Ersatz: Zierschrift)", "Arial"}));
}

TEST(Schriftliste, OhneFesteSchriftWirdKeineAlsCourierAusgegeben) {
  const auto liste = schriftliste({}, {"Arial"});
  EXPECT_EQ(namen(liste), QStringList({"Arial"}));
  EXPECT_EQ(schriftIndex(liste, "Courier New"), 0);
}

TEST(Schriftliste, EineGemerkteSchriftWirdWiedergefunden) {
  EXPECT_EQ(schriftIndex(schriftliste({"Courier New"}, {"Arial", "Times"}), "Times"), 2);
}

TEST(Schriftliste, EineLeereListeHatKeinenEintrag) {
  EXPECT_EQ(schriftIndex(schriftliste({}, {}), "Courier New"), -1);
}

}  // namespace
