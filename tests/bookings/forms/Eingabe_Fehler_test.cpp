// A booking run that fails: the message comes, what was typed stays, the list shows what was saved.
#include <sqlite3.h>

#include "Eingabeprobe.h"

namespace {

using namespace TZ_Variablen;

class EingabeFehler : public Eingabeprobe {
 protected:
  // Runs the engine's own SQL on a connection of its own.
  void direkt(const QString& sql) {
    sqlite3* engine = nullptr;
    ASSERT_EQ(sqlite3_open(DatenbankPfad.toUtf8(), &engine), SQLITE_OK);
    char* fehler = nullptr;
    EXPECT_EQ(sqlite3_exec(engine, sql.toUtf8(), nullptr, nullptr, &fehler), SQLITE_OK)
        << (fehler ? fehler : "");
    sqlite3_free(fehler);
    sqlite3_close(engine);
  }
  void stoere(const QString& ereignis, const QString& tabelle, const QString& wenn) {
    direkt("create trigger stoerung before " + ereignis + " on " + tabelle + " when " + wenn +
           " begin select raise(fail, 'gestört'); end");
  }
  static QString gestoert() {
    return "Die Datenbank \"" + DatenbankPfad +
           "\" konnte die Anweisung nicht ausführen (gestört).";
  }
};

TEST_F(EingabeFehler, BrichtDerLaufBeimDrittenVolkAbBleibenZweiGebuchtUndDieEingabeStehen) {
  stoere("insert", "Arbeiten", "new.Volk_ID = 3");
  markiere({0, 1, 2});
  oeffne(5);
  tippe(1, "Füttern");
  boxen.frageMit("Es sind im Moment 3 Völker markiert.", true).hinweis(gestoert());
  klicke("neu_0");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(anzahl("Arbeiten"), 2);
  EXPECT_EQ(li()->zeilen(), 1) << "the list shows what was saved for the current colony";
  EXPECT_EQ(text(1), "Füttern");
  EXPECT_FALSE(SammelFolgevolk);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_TRUE(volkli()->isEnabled());
}

TEST_F(EingabeFehler, NachDemFehlerKannWeitergearbeitetWerden) {
  stoere("insert", "Arbeiten", "new.Volk_ID = 1");
  oeffne(5);
  tippe(1, "Füttern");
  boxen.hinweis(gestoert());
  klicke("neu_0");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
  direkt("drop trigger stoerung");
  klicke("neu_0");
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten"), "Füttern");
}

TEST_F(EingabeFehler, EinMisslungenesAendernLaesstZeileUndEingabeStehen) {
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  zeile("Arbeiten", 1, "2026-05-02", {{"Arbeitsart", "zwei"}});
  stoere("update", "Arbeiten", "1");
  oeffne(5);
  klicke(li(), 0);
  tippe(1, "neu");
  boxen.hinweis(gestoert());
  klicke("neu_1");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(text(1), "neu");
  EXPECT_EQ(li()->aktuelleZeile(), 0);
  EXPECT_EQ(li()->zelle(0, "Arbeitsart"), "eins");
}

TEST_F(EingabeFehler, EinMisslungenesLoeschenLaesstDieZeileInDerListe) {
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  stoere("delete", "Arbeiten", "1");
  oeffne(5);
  boxen.hinweis(gestoert());
  klicke("löschen");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(li()->zeilen(), 1);
  EXPECT_EQ(anzahl("Arbeiten"), 1);
}

TEST_F(EingabeFehler, MisslingtDasNachziehenSchliesstDieFormTrotzdem) {
  stoere("update", "Bienenvolk", "1");
  oeffne(1);
  tippe(1, "5");
  klicke("neu_0");
  boxen.hinweis(gestoert());
  klicke("cmdschließen");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_FALSE(form->isVisible());
}

TEST_F(EingabeFehler, HonigwabenStehenNachEinemFehlerSoWieSieGespeichertWurden) {
  EinstellungenZahl[73] = 1;
  EinstellungenWert[5] = 2.5f;
  stoere("insert", "Honigernte", "new.Volk_ID = 2");
  markiere({0, 1});
  oeffne(1);
  tippe(1, "10");
  boxen.frageMit("2 Völker markiert", true).hinweis(gestoert());
  klicke("neu_0");
  EXPECT_EQ(anzahl("Honigernte"), 1);
  EXPECT_EQ(text(1), "62,50") << "the second colony had already multiplied";
}

TEST_F(EingabeFehler, WurdeDerGanzeLaufVerworfenStehenWiederDieHonigwaben) {
  EinstellungenZahl[73] = 1;
  EinstellungenWert[5] = 2.5f;
  direkt(
      "create trigger stoerung before insert on Honigernte when new.Volk_ID = 2 "
      "begin select raise(rollback, 'verworfen'); end");
  markiere({0, 1});
  oeffne(1);
  tippe(1, "10");
  boxen.frageMit("2 Völker markiert", true)
      .hinweisMit("Von diesem Vorgang wurde nichts gespeichert.");
  klicke("neu_0");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(anzahl("Honigernte"), 0);
  EXPECT_EQ(li()->zeilen(), 0);
  EXPECT_EQ(text(1), "10") << "a second try must not multiply the multiplied";
  direkt("drop trigger stoerung");
  boxen.frageMit("2 Völker markiert", true);
  klicke("neu_0");
  EXPECT_EQ(wert("select Menge_kg from Honigernte where Volk_ID = 1"), 25.0);
  EXPECT_EQ(wert("select Menge_kg from Honigernte where Volk_ID = 2"), 62.5);
}

}  // namespace
