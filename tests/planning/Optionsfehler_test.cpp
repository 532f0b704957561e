#include "planning/Optionsfehler.h"

#include <gtest/gtest.h>

// One work plan option that can't be computed, among others that can.
namespace {

using Art = Datenbankfehler::Art;

const QString andere = "Die Termine aller anderen Arbeitsplan-Optionen wurden eingetragen.";

std::function<void()> scheitert(Art art, const QString& text = "Option 'Schalttag'") {
  return [art, text] { throw Datenbankfehler(art, text); };
}

QString gemeldet(const Optionsfehler& fehler) {
  try {
    fehler.wirf();
  } catch (const Datenbankfehler& f) {
    return f.text();
  }
  return "nichts";
}

TEST(Optionsfehler, OhneFehlerWirdNichtsGemeldet) {
  Optionsfehler fehler;
  fehler.versuche(1, [] {});
  EXPECT_EQ(gemeldet(fehler), "nichts");
}

TEST(Optionsfehler, NachEinerSchlechtenOptionKommenDieAnderenDran) {
  Optionsfehler fehler;
  bool gerechnet = false;
  fehler.versuche(1, scheitert(Art::Wertebereich));
  fehler.versuche(2, [&] { gerechnet = true; });
  EXPECT_TRUE(gerechnet);
  EXPECT_EQ(gemeldet(fehler), "Option 'Schalttag'\r\n\r\n" + andere);
}

TEST(Optionsfehler, WennKeineGelangWirdDasAuchNichtBehauptet) {
  Optionsfehler fehler;
  fehler.versuche(1, scheitert(Art::Wertebereich, "eins"));
  fehler.versuche(2, scheitert(Art::Anweisung, "zwei"));
  EXPECT_EQ(gemeldet(fehler), "eins\r\n\r\nzwei");
}

TEST(Optionsfehler, EineOptionDieBeimZweitenVolkScheitertZähltNichtAlsAndere) {
  Optionsfehler fehler;
  fehler.versuche(1, [] {});
  fehler.versuche(1, scheitert(Art::Wertebereich, "eins"));
  EXPECT_EQ(gemeldet(fehler), "eins");
}

TEST(Optionsfehler, DerNachsatzStehtAmEndeUndNurNachEinemFehler) {
  Optionsfehler fehler;
  EXPECT_EQ(fehler.text("Das Volk ist gespeichert."), "");
  fehler.versuche(1, scheitert(Art::Wertebereich, "eins"));
  fehler.versuche(2, [] {});
  EXPECT_EQ(fehler.text("Das Volk ist gespeichert."),
            "eins\r\n\r\n" + andere + "\r\n\r\nDas Volk ist gespeichert.");
}

TEST(Optionsfehler, EineGescheiterteOptionWirdNichtNocheinmalGerechnet) {
  Optionsfehler fehler;
  int läufe = 0;
  fehler.versuche(1, scheitert(Art::Wertebereich));
  fehler.versuche(1, [&] { ++läufe; });
  EXPECT_EQ(läufe, 0);
}

TEST(Optionsfehler, WasNichtAnDerOptionLiegtGehtSofortWeiter) {
  for (const Art art : {Art::Allgemein, Art::NurLesen, Art::Voll, Art::Gesperrt}) {
    Optionsfehler fehler;
    EXPECT_THROW(fehler.versuche(1, scheitert(art)), Datenbankfehler);
    EXPECT_EQ(gemeldet(fehler), "nichts");
  }
}

TEST(Optionsfehler, EinVerworfenerVorgangGehtSofortWeiter) {
  Optionsfehler fehler;
  Datenbankfehler verworfen(Art::Wertebereich, "alles fort");
  verworfen.setAllesVerworfen(true);
  EXPECT_THROW(fehler.versuche(1, [&] { throw verworfen; }), Datenbankfehler);
}

}  // namespace
