#include "colonies/Volkeingabe.h"

#include "colonies/Testbetrieb.h"
#include "platform/files/Textdatei.h"

namespace {

class NeuesVolk : public Testbetrieb {};
class Standardwerte : public Testbetrieb {};
class VolkLaden : public Testbetrieb {};

const Volkfeld& feld(const QString& name) {
  for (const Volkfeld& f : volkfelder())
    if (f.feld == name) return f;
  static const Volkfeld keins;
  ADD_FAILURE() << name.toStdString();
  return keins;
}

TEST_F(NeuesVolk, LeeresFeldGibtNummerEins) { EXPECT_EQ(volkNeu("").sevt[0], "1"); }

TEST_F(NeuesVolk, ZiffernZählenWeiter) {
  EXPECT_EQ(volkFolgenummer("1"), "2");
  EXPECT_EQ(volkFolgenummer("9"), "10");
  EXPECT_EQ(volkFolgenummer("007"), "8");
}

TEST_F(NeuesVolk, TextLeertDieNummer) {
  EXPECT_EQ(volkFolgenummer("A1"), "");
  EXPECT_EQ(volkFolgenummer("1a"), "");
  EXPECT_EQ(volkFolgenummer("12 "), "");
  EXPECT_EQ(volkFolgenummer("-1"), "");
}

TEST_F(NeuesVolk, OhneSlot57WirdDieNummerGeleert) {
  TZ_Variablen::EinstellungenZahl[Zahlslots.volknummerHochzählen] = 0;
  EXPECT_EQ(volkFolgenummer("5"), "");
  EXPECT_EQ(volkFolgenummer(""), "");
}

TEST_F(NeuesVolk, NummerDieNichtMehrPasstWirdGeleert) {
  EXPECT_EQ(volkFolgenummer("9999999998"), "9999999999");
  EXPECT_EQ(volkFolgenummer("9999999999"), "");
}

TEST_F(NeuesVolk, OhneDateiSindAlleFelderLeerUndDasVolkImBestand) {
  const Volkeingabe neu = volkNeu("41");
  EXPECT_EQ(neu.sevt[0], "42");
  for (size_t i = 1; i < neu.sevt.size(); ++i) {
    if (i != 17) {
      EXPECT_EQ(neu.sevt[i], "") << i;
    }
  }
  for (const QString& text : neu.sevtx) EXPECT_EQ(text, "");
  EXPECT_TRUE(neu.kon);
}

TEST_F(NeuesVolk, WabenJeMagazinKommenAusSlot56) {
  TZ_Variablen::EinstellungenZahl[Zahlslots.wabenJeMagazin] = 12;
  EXPECT_EQ(volkNeu("").sevt[17], "12");
}

Volkeingabe beispiel() {
  Volkeingabe e;
  for (size_t i = 0; i < e.sevt.size(); ++i) e.sevt[i] = "Wert " + QString::number(i);
  e.sevt[12] = "12,50";
  e.sevt[17] = "11";
  e.kon = false;
  return e;
}

TEST_F(Standardwerte, DateiHatZwanzigZeilenInFesterReihe) {
  volkStandardSchreiben(beispiel());
  QStringList erwartet;
  for (int i = 1; i <= 11; ++i) erwartet << "Wert " + QString::number(i);
  erwartet << "12,50";
  for (int i = 13; i <= 16; ++i) erwartet << "Wert " + QString::number(i);
  erwartet << "0"
           << "Wert 18"
           << "Wert 19"
           << "11";
  EXPECT_EQ(Textdatei::lesen(TZ_Variablen::AppPfad + "TV_Neues_Volk.TV2"), erwartet);
}

TEST_F(Standardwerte, VolkImBestandStehtAlsEinsInZeileSiebzehn) {
  Volkeingabe e = beispiel();
  e.kon = true;
  volkStandardSchreiben(e);
  EXPECT_EQ(Textdatei::lesen(volkStandardDatei()).at(16), "1");
  EXPECT_TRUE(volkNeu("").kon);
}

TEST_F(Standardwerte, GeschriebenesKommtZurück) {
  volkStandardSchreiben(beispiel());
  const Volkeingabe neu = volkNeu("");
  EXPECT_EQ(neu.sevt[0], "1");
  EXPECT_EQ(neu.sevt[1], "Wert 1");
  EXPECT_EQ(neu.sevt[12], "12,50");
  EXPECT_EQ(neu.sevt[16], "Wert 16");
  EXPECT_EQ(neu.sevt[17], "11");
  EXPECT_EQ(neu.sevt[18], "Wert 18");
  EXPECT_EQ(neu.sevt[19], "Wert 19");
  EXPECT_FALSE(neu.kon);
  for (const QString& text : neu.sevtx) EXPECT_EQ(text, "");
}

TEST_F(Standardwerte, SchreibenSetztSlot56) {
  volkStandardSchreiben(beispiel());
  EXPECT_EQ(TZ_Variablen::EinstellungenZahl[Zahlslots.wabenJeMagazin], 11);
}

TEST_F(Standardwerte, ZeileZwanzigWirdNichtZurückgelesen) {
  volkStandardSchreiben(beispiel());
  TZ_Variablen::EinstellungenZahl[Zahlslots.wabenJeMagazin] = 9;
  EXPECT_EQ(volkNeu("").sevt[17], "9");
}

TEST_F(Standardwerte, AlteDateiBisZeileSiebzehn) {
  QStringList zeilen;
  for (int i = 1; i <= 16; ++i) zeilen << "Z" + QString::number(i);
  zeilen << "1";
  Textdatei::schreiben(volkStandardDatei(), zeilen);
  const Volkeingabe neu = volkNeu("");
  EXPECT_EQ(neu.sevt[1], "Z1");
  EXPECT_EQ(neu.sevt[16], "Z16");
  EXPECT_TRUE(neu.kon);
  EXPECT_EQ(neu.sevt[17], "10");
  EXPECT_EQ(neu.sevt[18], "");
  EXPECT_EQ(neu.sevt[19], "");
}

TEST_F(Standardwerte, AbgeschnitteneDateiGibtWasSieHat) {
  Textdatei::schreiben(volkStandardDatei(), {"Maja", "Carnica"});
  const Volkeingabe neu = volkNeu("");
  EXPECT_EQ(neu.sevt[1], "Maja");
  EXPECT_EQ(neu.sevt[2], "Carnica");
  EXPECT_EQ(neu.sevt[3], "");
  EXPECT_TRUE(neu.kon);
}

TEST_F(Standardwerte, ZuLangerTextWirdAufDasFeldGekürzt) {
  Textdatei::schreiben(volkStandardDatei(), {"123456789012345678901234"});
  EXPECT_EQ(volkNeu("").sevt[1], "12345678901234567890");
}

TEST_F(Standardwerte, NichtSchreibbareDateiLässtDenSlotStehen) {
  TZ_Variablen::AppPfad = m_ordner.path() + "/gibtsnicht/";
  EXPECT_THROW(volkStandardSchreiben(beispiel()), Dateifehler);
  EXPECT_EQ(TZ_Variablen::EinstellungenZahl[Zahlslots.wabenJeMagazin], 10);
}

TEST_F(VolkLaden, WerteErscheinenInDeutscherForm) {
  db().Execute(
      QString("insert into Bienenvolk(Volknr, Volkname, Königin_Zugangsdatum, Mittelwände, "
              "Volk_Einkaufspreis, Volkstärke, L_Honigernte, L_Honigmenge_kg, Honigwaben, "
              "Akt_im_Bestand) values ('7a', ' Maja ', ?, 3, 1234.5, 3.3, ?, 12, 4, 'X')"),
      {QDate(2005, 7, 1), QDate(2006, 6, 2)});
  const auto volk = volkLaden(db(), db().LetzteID());
  ASSERT_TRUE(volk.has_value());
  EXPECT_EQ(volk->sevt[0], "7a");
  EXPECT_EQ(volk->sevt[1], "Maja");
  EXPECT_EQ(volk->sevt[6], "01.07.2005");
  EXPECT_EQ(volk->sevt[8], "3");
  EXPECT_EQ(volk->sevt[12], "1234,5");
  EXPECT_EQ((*volk)[feld("Volkstärke")], "3,3");
  EXPECT_EQ((*volk)[feld("L_Honigernte")], "02.06.2006");
  EXPECT_EQ((*volk)[feld("L_Honigmenge_kg")], "12");
  EXPECT_EQ((*volk)[feld("Honigwaben")], "4");
  EXPECT_TRUE(volk->kon);
}

TEST_F(VolkLaden, NullErscheintLeer) {
  const auto volk = volkLaden(db(), neuesVolk("1"));
  ASSERT_TRUE(volk.has_value());
  EXPECT_EQ(volk->sevt[2], "");
  EXPECT_EQ(volk->sevt[6], "");
  EXPECT_EQ(volk->sevtx[0], "");
}

TEST_F(VolkLaden, LeeresUndNullesKennzeichenHeissenNichtImBestand) {
  EXPECT_FALSE(volkLaden(db(), neuesVolk("1", ""))->kon);
  db().Execute("insert into Bienenvolk(Volknr) values ('2')");
  EXPECT_FALSE(volkLaden(db(), db().LetzteID())->kon);
  EXPECT_FALSE(volkLaden(db(), neuesVolk("3", "N"))->kon);
}

TEST_F(VolkLaden, UnbekannteIdGibtNichts) { EXPECT_FALSE(volkLaden(db(), 99).has_value()); }

}  // namespace
