// A booking run that fails: the message comes, what was typed stays, the list shows what was saved.
#include <sqlite3.h>

#include "Eingabeprobe.h"
#include "bookings/Zusammenfassung.h"
#include "platform/database/verbindung/Verbindung.h"

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
  void störe(const QString& ereignis, const QString& tabelle, const QString& wenn) {
    direkt("create trigger stoerung before " + ereignis + " on " + tabelle + " when " + wenn +
           " begin select raise(fail, 'gestört'); end");
  }
  static QString stand(int gebucht, int gesamt) {
    return QString(
               "\n\nGebucht ist die Eingabe jetzt bei %1 von %2 Völkern. Gebuchte Völker sind "
               "nicht "
               "mehr markiert, so daß [Neu] nur noch die übrigen bucht.")
        .arg(gebucht)
        .arg(gesamt);
  }
  static QString nachgetragen() {
    return "\n\nDie Buchungen sind gespeichert; nur die Angaben der gebuchten Völker in der "
           "Hauptliste fehlen noch. TOVA trägt sie von selbst nach, sobald die Datenbank wieder "
           "beschrieben werden kann, auch nach einem Neustart.";
  }
  static QString gestört() {
    return "Die Datenbank \"" + DatenbankPfad +
           "\" konnte die Anweisung nicht ausführen (gestört).";
  }
};

TEST_F(EingabeFehler, BrichtDerLaufBeimDrittenVolkAbBleibenZweiGebuchtUndDieEingabeStehen) {
  störe("insert", "Arbeiten", "new.Volk_ID = 3");
  markiere({0, 1, 2});
  öffne(5);
  tippe("Arbeitsart", "Füttern");
  boxen.frageMit("Es sind im Moment 3 Völker markiert.", true).hinweis(gestört() + stand(2, 3));
  klicke("neu_0");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(anzahl("Arbeiten"), 2);
  EXPECT_EQ(liste->markierteZeilen(), QList<int>{2}) << "going on must book each once";
  EXPECT_EQ(volkli()->markierteZeilen(), QList<int>{2});
  EXPECT_EQ(li()->zeilen(), 1) << "the list shows what was saved for the current colony";
  EXPECT_EQ(text("Arbeitsart"), "Füttern");
  EXPECT_FALSE(SammelFolgevolk);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_TRUE(volkli()->isEnabled());
  direkt("drop trigger stoerung");
  klicke("neu_0");  // one colony is left: no question
  EXPECT_EQ(anzahl("Arbeiten"), 3);
  EXPECT_EQ(wert("select count(*) from Arbeiten where Volk_ID = 3"), 1);
}

TEST_F(EingabeFehler, NachDemFehlerKannWeitergearbeitetWerden) {
  störe("insert", "Arbeiten", "new.Volk_ID = 1");
  öffne(5);
  tippe("Arbeitsart", "Füttern");
  boxen.hinweis(gestört());
  klicke("neu_0");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
  direkt("drop trigger stoerung");
  klicke("neu_0");
  EXPECT_EQ(wert("select Arbeitsart from Arbeiten"), "Füttern");
}

TEST_F(EingabeFehler, EinMisslungenesÄndernLässtZeileUndEingabeStehen) {
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  zeile("Arbeiten", 1, "2026-05-02", {{"Arbeitsart", "zwei"}});
  störe("update", "Arbeiten", "1");
  öffne(5);
  klicke(li(), 0);
  tippe("Arbeitsart", "neu");
  boxen.hinweis(gestört());
  klicke("neu_1");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(text("Arbeitsart"), "neu");
  EXPECT_EQ(li()->aktuelleZeile(), 0);
  EXPECT_EQ(li()->zelle(0, "Arbeitsart"), "eins");
}

TEST_F(EingabeFehler, EinMisslungenesLöschenLässtDieZeileInDerListe) {
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  störe("delete", "Arbeiten", "1");
  öffne(5);
  boxen.hinweis(gestört());
  klicke("löschen");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(li()->zeilen(), 1);
  EXPECT_EQ(anzahl("Arbeiten"), 1);
}

TEST_F(EingabeFehler, MisslingtDasNachziehenSchließtDieFormTrotzdem) {
  störe("update", "Bienenvolk", "1");
  öffne(1);
  tippe("Menge (kg)", "5");
  klicke("neu_0");
  boxen.hinweis(gestört() + nachgetragen());
  klicke("cmdschließen");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(ZusammenfassungenOffen(DB)) << "they are written later";
}

TEST_F(EingabeFehler, BenutztEinAnderesProgrammDieDatenbankBeimSchließenWirdSpäterNachgeholt) {
  öffne(1);
  tippe("Menge (kg)", "5");
  klicke("neu_0");
  sqlite3* anderes = nullptr;
  ASSERT_EQ(sqlite3_open(DatenbankPfad.toUtf8(), &anderes), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(anderes, "begin immediate", nullptr, nullptr, nullptr), SQLITE_OK);
  Verbindung::zu(DatenbankPfad)->steuere("pragma busy_timeout = 50");
  boxen.hinweisMit("von einem anderen Programm benutzt");
  klicke("cmdschließen");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_FALSE(form->isVisible());
  EXPECT_THROW(ZusammenfassungenNachholen(DB), Datenbankfehler);
  sqlite3_exec(anderes, "rollback", nullptr, nullptr, nullptr);
  sqlite3_close(anderes);
  EXPECT_TRUE(wert("select Honigmenge_Gesamt from Bienenvolk where ID = 1").isNull());
  EXPECT_TRUE(ZusammenfassungenNachholen(DB));
  EXPECT_EQ(wert("select Honigmenge_Gesamt from Bienenvolk where ID = 1"), 5.0);
}

TEST_F(EingabeFehler, DieFrageVorDemLöschenNenntTagUndArtUndStehtAufNein) {
  EinstellungenZahl[Zahlslots.löschabfrage] = 1;
  zeile("Arbeiten", 1, "2026-05-01", {{"Arbeitsart", "eins"}});
  öffne(5);
  const QString frage =
      "Soll der markierte Datensatz wirklich unwiederbringlich gelöscht werden?\n\nArbeiten vom "
      "01.05.2026";
  boxen.frage(frage, false, Meldungen::Vorgabe::Nein);
  klicke("löschen");
  EXPECT_EQ(anzahl("Arbeiten"), 1);
  boxen.frage(frage, true, Meldungen::Vorgabe::Nein);
  klicke("löschen");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(anzahl("Arbeiten"), 0);
}

TEST_F(EingabeFehler, HonigwabenStehenNachEinemFehlerSoWieSieGespeichertWurden) {
  EinstellungenZahl[Zahlslots.honigInWaben] = 1;
  EinstellungenWert[Wertslots.kgJeHonigwabe] = 2.5f;
  störe("insert", "Honigernte", "new.Volk_ID = 2");
  markiere({0, 1});
  öffne(1);
  tippe("Menge (kg)", "10");
  boxen.frageMit("2 Völker markiert", true).hinweisMit("bei 1 von 2 Völkern");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Honigernte"), 1);
  EXPECT_EQ(text("Menge (kg)"), "62,50") << "the second colony had already multiplied";
}

TEST_F(EingabeFehler, WurdeDerGanzeLaufVerworfenStehenWiederDieHonigwaben) {
  EinstellungenZahl[Zahlslots.honigInWaben] = 1;
  EinstellungenWert[Wertslots.kgJeHonigwabe] = 2.5f;
  direkt(
      "create trigger stoerung before insert on Honigernte when new.Volk_ID = 2 "
      "begin select raise(rollback, 'verworfen'); end");
  markiere({0, 1});
  öffne(1);
  tippe("Menge (kg)", "10");
  boxen.frageMit("2 Völker markiert", true)
      .hinweisMit("Von diesem Vorgang wurde nichts gespeichert.");
  klicke("neu_0");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(anzahl("Honigernte"), 0);
  EXPECT_EQ(li()->zeilen(), 0);
  EXPECT_EQ(text("Menge (kg)"), "10") << "a second try must not multiply the multiplied";
  direkt("drop trigger stoerung");
  boxen.frageMit("2 Völker markiert", true);
  klicke("neu_0");
  EXPECT_EQ(wert("select Menge_kg from Honigernte where Volk_ID = 1"), 25.0);
  EXPECT_EQ(wert("select Menge_kg from Honigernte where Volk_ID = 2"), 62.5);
}

}  // namespace
