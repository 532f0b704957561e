#include "mainform/Einstellungen.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include "Umfeld.h"
#include "core/settings.h"
#include "mainform/Feldfolge.h"
#include "mainform/Volkliste.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;
using Einstellungen::Stand;

class Einstellungsdaten : public Umfeld {
 protected:
  void SetUp() override {
    Umfeld::SetUp();
    datenbank();
    EinstellungenStandard(QDate(2024, 6, 15));
    EinstellungenPrüfen();
    listenfelderPrüfen();
    stockkartenfelderPrüfen();
  }
  static Stand stand() { return Einstellungen::lesen(DB); }
  static void speichern(const Stand& stand) { Einstellungen::speichern(stand, DB); }
  // Saves one input and gives what its whole-number slot then holds.
  static int gespeichert(int sevt, const QString& text, const Zahlslot& slot) {
    Stand s = stand();
    s.sevt[sevt] = text;
    speichern(s);
    return EinstellungenZahl[slot];
  }
};

TEST_F(Einstellungsdaten, JederSchalterHatSeinenPlatzUndText) {
  const QList<std::tuple<int, int, QString>> erwartet = {
      {0, 13, "Bei jedem Programmstart die Terminliste für die nächsten Tage öffnen"},
      {1, 48, "Anzahl Datensätze anzeigen (nur bei Explorer-Auswertung)"},
      {2, 47, "Seite x von x anzeigen (nur bei Explorer-Auswertung)"},
      {3, 57, "Volknummer bei Eingabe automatisch hochzählen"},
      {4, 46, "Datum bei jeder Auswertung als Listenkopf schreiben"},
      {5, 24, "Jede erfolgreiche Eingabe mit einem Piepton bestätigen"},
      {6, 51,
       "Anzeige der laufenden Nummer statt der Volknummer in der ersten Spalte im Hauptmodul"},
      {7, 55, "Löschen von Buchungen nur nach einer Sicherheitsabfrage"},
      {8, 68,
       "Honigernten automatisch als Zugang im Honiglager einbuchen (Nur neue Honigernten - keine "
       "Änderungen und Löschungen)"},
      {10, 72,
       "Bei allen Sammelbuchungen die Mengen, Zeiten und die Kosten immer durch die Anzahl "
       "ausgewählter Völker teilen"},
      {11, 73,
       "Bei neuen Buchungen für Honigernten nicht die Honigmenge, sondern die Anzahl Honigwaben "
       "eintragen und diese intern mit folgendem Wert multiplizieren..."}};
  ASSERT_EQ(Einstellungen::schalter().size(), erwartet.size());
  for (const auto& [index, slot, text] : erwartet) {
    EXPECT_EQ(Einstellungen::schalter(index).slot.nummer, slot);
    EXPECT_EQ(Einstellungen::schalter(index).beschriftung, text);
    for (const bool ja : {true, false}) {
      Stand s = stand();
      s.kon[index] = ja;
      speichern(s);
      EXPECT_EQ(EinstellungenZahl[Einstellungen::schalter(index).slot], ja ? 1 : 0) << slot;
      EXPECT_EQ(stand().kon[index], ja) << slot;
    }
  }
}

TEST_F(Einstellungsdaten, JedeEingabeHatIhrenPlatzUndText) {
  const QList<std::tuple<int, int, QString>> erwartet = {
      {0, 50, "Anzahl Tage zwischen zwei Datensicherungen"},
      {1, 17, "Offene Termine beim Start berechnen bis"},
      {2, 0, "Kopftext, der bei den Auswertungen mit ausgedruckt werden soll"},
      {3, 4, "Tabellentrennzeichen für die Text-Darstellung"},
      {4, 49, "Anzahl Zeilen je Seite bei Explorer-Auswertung"},
      {5, 0, "Honigwert je kg"},
      {6, 1, "Wachswert je kg"},
      {7, 2, "Pollenwert je g"},
      {8, 3, "Wert sonstige Ernte je g"},
      {9, 4, "Kostensatz je Stunde bei Buchungen"},
      {10, 44, "MwSt-Satz 1 (linke Maustaste im Taschenrechner)"},
      {11, 45, "MwSt-Satz 2 (rechte Maustaste im Taschenrechner)"},
      {12, 5, "Honigmenge je Honigwabe in kg"},
      {13, 33, "1. Sortierung"},
      {14, 34, "2. Sortierung"},
      {15, 56, "Standardanzahl Waben je Magazin"}};
  ASSERT_EQ(Einstellungen::eingaben().size(), erwartet.size());
  for (const auto& [index, slot, text] : erwartet) {
    const Einstellungen::Eingabe& e = Einstellungen::eingabe(index);
    EXPECT_EQ(std::visit([](const auto& s) { return s.nummer; }, e.slot), slot) << index;
    EXPECT_EQ(e.feld.beschriftung, text) << index;
  }
}

TEST_F(Einstellungsdaten, ZahlenGehenInIhrenPlatzUndZurück) {
  for (const auto& [sevt, slot] : {std::pair(0, Zahlslots.sicherungstage),
                                   {1, Zahlslots.termintage},
                                   {4, Zahlslots.explorerzeilen},
                                   {10, Zahlslots.mehrwertsteuer1},
                                   {11, Zahlslots.mehrwertsteuer2}}) {
    EXPECT_EQ(gespeichert(sevt, "33", slot), 33) << slot.nummer;
    EXPECT_EQ(stand().sevt[sevt], "33");
  }
  EXPECT_EQ(gespeichert(15, "12", Zahlslots.wabenJeMagazin), 12);
}

TEST_F(Einstellungsdaten, TageZwischenSicherungenEinsBis999SonstVierzehn) {
  EXPECT_EQ(gespeichert(0, "0", Zahlslots.sicherungstage), 14);
  EXPECT_EQ(gespeichert(0, "", Zahlslots.sicherungstage), 14);
  EXPECT_EQ(gespeichert(0, "1", Zahlslots.sicherungstage), 1);
  EXPECT_EQ(gespeichert(0, "999", Zahlslots.sicherungstage), 999);
  EXPECT_EQ(gespeichert(0, "1000", Zahlslots.sicherungstage), 14);
}

TEST_F(Einstellungsdaten, TerminhorizontEinsBis365) {
  EXPECT_EQ(gespeichert(1, "0", Zahlslots.termintage), 14);
  EXPECT_EQ(gespeichert(1, "1", Zahlslots.termintage), 1);
  EXPECT_EQ(gespeichert(1, "365", Zahlslots.termintage), 365);
  EXPECT_EQ(gespeichert(1, "366", Zahlslots.termintage), 365);
  EXPECT_EQ(gespeichert(1, "99999999999", Zahlslots.termintage), 365);
}

TEST_F(Einstellungsdaten, ZeilenJeSeiteMindestensDreißig) {
  EXPECT_EQ(stand().sevt[4], "60");
  EXPECT_EQ(gespeichert(4, "29", Zahlslots.explorerzeilen), 30);
  EXPECT_EQ(gespeichert(4, "30", Zahlslots.explorerzeilen), 30);
  EXPECT_EQ(gespeichert(4, "9999", Zahlslots.explorerzeilen), 9999);
  EXPECT_EQ(gespeichert(4, "70000", Zahlslots.explorerzeilen), 9999);
}

TEST_F(Einstellungsdaten, MehrwertsteuerEinsBisFünfzig) {
  EXPECT_EQ(stand().sevt[10], "19");
  EXPECT_EQ(stand().sevt[11], "7");
  for (const char* text : {"0", "51", ""}) {
    EXPECT_EQ(gespeichert(10, text, Zahlslots.mehrwertsteuer1), 19);
    EXPECT_EQ(gespeichert(11, text, Zahlslots.mehrwertsteuer2), 7);
  }
  EXPECT_EQ(gespeichert(10, "1", Zahlslots.mehrwertsteuer1), 1);
  EXPECT_EQ(gespeichert(11, "50", Zahlslots.mehrwertsteuer2), 50);
}

TEST_F(Einstellungsdaten, WabenJeMagazinAchtBisSechzehn) {
  EXPECT_EQ(stand().sevt[15], "10");
  EXPECT_EQ(gespeichert(15, "7", Zahlslots.wabenJeMagazin), 10);
  EXPECT_EQ(gespeichert(15, "8", Zahlslots.wabenJeMagazin), 8);
  EXPECT_EQ(gespeichert(15, "16", Zahlslots.wabenJeMagazin), 16);
  EXPECT_EQ(gespeichert(15, "17", Zahlslots.wabenJeMagazin), 10);
}

TEST_F(Einstellungsdaten, WerteMitZweiNachkommastellen) {
  Stand s = stand();
  EXPECT_EQ(s.sevt[5], "0,00");
  const QList<std::pair<int, QString>> texte = {{5, "7,50"}, {6, "12,00"}, {7, "0,03"},
                                                {8, "0,10"}, {9, "15,25"}, {12, "1,90"}};
  for (const auto& [sevt, text] : texte) s.sevt[sevt] = text;
  speichern(s);
  EXPECT_EQ(EinstellungenWert[Wertslots.honigJeKg], 7.5f);
  EXPECT_EQ(EinstellungenWert[Wertslots.wachsJeKg], 12.0f);
  EXPECT_EQ(EinstellungenWert[Wertslots.pollenJeG], 0.03f);
  EXPECT_EQ(EinstellungenWert[Wertslots.sonstigesJeG], 0.1f);
  EXPECT_EQ(EinstellungenWert[Wertslots.stundensatz], 15.25f);
  EXPECT_EQ(EinstellungenWert[Wertslots.kgJeHonigwabe], 1.9f);
  EinstellungenWert.fill(0);
  EinstellungenLesen();
  for (const auto& [sevt, text] : texte) EXPECT_EQ(stand().sevt[sevt], text) << sevt;
}

TEST_F(Einstellungsdaten, WerteAbTausendStehenOhneTausenderpunkt) {
  EinstellungenWert[Wertslots.honigJeKg] = 12345.67f;
  EinstellungenWert[Wertslots.stundensatz] = 1000;
  const Stand s = stand();
  EXPECT_EQ(s.sevt[5], "12345,67");
  EXPECT_EQ(s.sevt[9], "1000,00");
  speichern(s);
  EXPECT_EQ(EinstellungenWert[Wertslots.honigJeKg], 12345.67f);
  EXPECT_EQ(EinstellungenWert[Wertslots.stundensatz], 1000);
}

// The key sound has its own slot, which another form writes.
TEST_F(Einstellungsdaten, PieptonSchaltetDenTastentonNicht) {
  for (const qint16 tastenton : {qint16{0}, qint16{1}})
    for (const bool piepton : {true, false}) {
      EinstellungenZahl[Zahlslots.tastenton] = tastenton;
      Stand s = stand();
      s.kon[5] = piepton;
      speichern(s);
      EXPECT_EQ(EinstellungenZahl[Zahlslots.piepton], piepton ? 1 : 0);
      EXPECT_EQ(EinstellungenZahl[Zahlslots.tastenton], tastenton);
    }
}

TEST_F(Einstellungsdaten, KopftextUndTrennzeichenBleibenWieGetippt) {
  Stand s = stand();
  s.sevt[2] = "Imkerei Müller | Waldhof";
  s.sevt[3] = "; ";
  speichern(s);
  EXPECT_EQ(EinstellungenText[Textslots.kopftext], QString("Imkerei Müller | Waldhof"));
  EXPECT_EQ(EinstellungenText[Textslots.trennzeichen], "; ");
  EinstellungenText[Textslots.kopftext].clear();
  EinstellungenText[Textslots.trennzeichen].clear();
  EinstellungenLesen();
  EXPECT_EQ(stand().sevt[2], QString("Imkerei Müller | Waldhof"));
  EXPECT_EQ(stand().sevt[3], "; ");
}

TEST_F(Einstellungsdaten, LeeresTrennzeichenWirdSenkrechterStrich) {
  Stand s = stand();
  s.sevt[3].clear();
  speichern(s);
  EXPECT_EQ(EinstellungenText[Textslots.trennzeichen], " | ");
  EXPECT_EQ(Einstellungen::trennzeichen().first(), " | ");
}

TEST_F(Einstellungsdaten, ZweiteSortierungGleichDerErstenWirdGeleert) {
  Stand s = stand();
  s.sevt[13] = "Standort";
  s.sevt[14] = "Standort";
  speichern(s);
  EXPECT_EQ(EinstellungenText[Textslots.sortierung1], "Standort");
  EXPECT_EQ(EinstellungenText[Textslots.sortierung2], "");
  s.sevt[14] = "Volknr";
  speichern(s);
  EXPECT_EQ(EinstellungenText[Textslots.sortierung2], "Volknr");
  EXPECT_EQ(volklisteAnweisung(Volkfilter::Alles).right(26), " order by Standort, Volknr");
}

TEST_F(Einstellungsdaten, SortierungNachUnbekanntemFeldGiltAlsKeine) {
  EinstellungenText[Textslots.sortierung1] = "Gibtsnicht";
  EinstellungenText[Textslots.sortierung2] = "volkname";
  EXPECT_EQ(stand().sevt[13], "");
  EXPECT_EQ(stand().sevt[14], "Volkname");
}

TEST_F(Einstellungsdaten, HakenSindEinZeichenJePosition) {
  Stand s = stand();
  ASSERT_EQ(s.gezeigt.size(), 45 + 11);
  EXPECT_EQ(s.gezeigt.count(true), 56);
  s.gezeigt[0] = false;   // Volkname
  s.gezeigt[44] = false;  // Abnehmer
  s.gezeigt[45] = false;  // Stockkarte
  s.gezeigt[55] = false;  // Notizen
  speichern(s);
  EXPECT_EQ(EinstellungenText[Textslots.infofenster],
            "0" + QString(43, u'1') + "00" + QString(9, u'1') + "0");
  EXPECT_EQ(stand().gezeigt, s.gezeigt);
}

TEST_F(Einstellungsdaten, GanzOhneHakenZeigtDieListeWiederAlles) {
  Stand s = stand();
  s.gezeigt.fill(false);
  speichern(s);
  stockkartenfelderPrüfen();
  EXPECT_EQ(stand().gezeigt.count(true), 56);
}

TEST_F(Einstellungsdaten, KurzeHakenfolgeZeigtDenRestNicht) {
  EinstellungenText[Textslots.infofenster] = "101";
  const Stand s = stand();
  EXPECT_TRUE(s.gezeigt[0]);
  EXPECT_FALSE(s.gezeigt[1]);
  EXPECT_TRUE(s.gezeigt[2]);
  EXPECT_EQ(s.gezeigt.count(true), 2);
}

TEST_F(Einstellungsdaten, BeschriftungenDesInfoFensters) {
  const QStringList zeilen = Einstellungen::zeilentexte();
  ASSERT_EQ(zeilen.size(), 45);
  EXPECT_EQ(zeilen[0], "Volkname");
  EXPECT_EQ(zeilen[5], QString("Summe Wände/Waben"));
  EXPECT_EQ(zeilen[20], QString("Frühjahrsentw."));
  EXPECT_EQ(zeilen[44], "Abnehmer");
  EXPECT_EQ(Einstellungen::buchungstexte(),
            QStringList({"Stockkarte", "Honigernte", "Wachsernte", "Pollenernte", "Sonstige Ernte",
                         "Arbeiten", "Wanderung", "Gewichtsmessung", "Behandlung", "Königinwechsel",
                         "Notizen"}));
}

TEST_F(Einstellungsdaten, VerschobeneFelderWerdenZuAnweisungen) {
  Stand s = stand();
  Feldfolge::verschieben(s.volkfelder, 1, -1);
  Feldfolge::verschieben(s.stockfelder, 2, -1);
  speichern(s);
  EXPECT_TRUE(EinstellungenText[Textslots.volkfelder].startsWith(
      QString("select Volkname, Volknr, Volkstärke, ")));
  EXPECT_TRUE(EinstellungenText[Textslots.volkfelder].endsWith("Selektiert, ID from Bienenvolk"));
  EXPECT_TRUE(EinstellungenText[Textslots.stockkartenfelder].startsWith(
      QString("select Datum, Brutstand, Volkstärke, Wabensitz")));
  EXPECT_TRUE(
      EinstellungenText[Textslots.stockkartenfelder].endsWith("Bemerkung, ID from Stockkarte"));
  EXPECT_EQ(stand().volkfelder, s.volkfelder);
  EXPECT_EQ(stand().stockfelder, s.stockfelder);
  const QString vorher = EinstellungenText[Textslots.volkfelder];
  listenfelderPrüfen();
  EXPECT_EQ(EinstellungenText[Textslots.volkfelder], vorher);
}

TEST_F(Einstellungsdaten, GemerkteSortierungFolgtIhremFeld) {
  EinstellungenZahl[Zahlslots.sortierspalte] = 2;  // Volkname
  Stand s = stand();
  Feldfolge::verschieben(s.volkfelder, 1, 1);
  Feldfolge::verschieben(s.volkfelder, 2, 1);
  speichern(s);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sortierspalte], 4);
  speichern(s);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sortierspalte], 4);
}

TEST_F(Einstellungsdaten, SpeichernSchreibtDieDateiUndLässtDieListeNeuLesen) {
  ListeNeuLesen = 0;
  ASSERT_FALSE(QFile::exists(datei("Einstellungen.TV2")));
  Stand s = stand();
  s.sevt[0] = "21";
  speichern(s);
  EXPECT_EQ(ListeNeuLesen, 1);
  const QStringList zeilen = Textdatei::lesen(datei("Einstellungen.TV2"));
  ASSERT_EQ(zeilen.size(), 173);
  EXPECT_EQ(zeilen[50], "21");
}

TEST_F(Einstellungsdaten, AnderePlätzeBleibenWieSieSind) {
  const QSet<int> eigene = {13, 17, 24, 25, 44, 45, 46, 47, 48, 49, 50, 51, 55, 56, 57, 68, 72, 73};
  for (size_t i = 0; i < EinstellungenZahl.size(); ++i)
    if (!eigene.contains(static_cast<int>(i)))
      EinstellungenZahl.at(i) = static_cast<qint16>(1000 + i);
  EinstellungenText[Textslots.letzteSicherung] = "01.02.2024";
  constexpr size_t Namenlos = 6;
  EinstellungenWert.at(Namenlos) = 4.5f;
  speichern(stand());
  for (size_t i = 0; i < EinstellungenZahl.size(); ++i)
    if (!eigene.contains(static_cast<int>(i))) {
      EXPECT_EQ(EinstellungenZahl.at(i), static_cast<int>(1000 + i));
    }
  EXPECT_EQ(EinstellungenText[Textslots.letzteSicherung], "01.02.2024");
  EXPECT_EQ(EinstellungenWert.at(Namenlos), 4.5f);
}

TEST_F(Einstellungsdaten, UnverändertesSpeichernÄndertKeineEinstellung) {
  EinstellungenText[Textslots.sortierung1] = "Volknr";
  const auto zahlen = EinstellungenZahl;
  const auto texte = EinstellungenText;
  speichern(stand());
  EXPECT_EQ(EinstellungenZahl, zahlen);
  for (size_t i = 0; i < texte.size(); ++i)
    EXPECT_EQ(EinstellungenText.at(i), i == 24 ? QString(56, u'1') : texte.at(i)) << i;
}

TEST_F(Einstellungsdaten, ScheiterndesSchreibenWirdGemeldetUndDieBisherigenGelten) {
  speichern(stand());
  EinstellungenZahl[Zahlslots.sortierspalte] = 2;  // sorted by the second field
  ListeNeuLesen = 0;
  const auto zahl = EinstellungenZahl;
  const auto wert = EinstellungenWert;
  const auto text = EinstellungenText;
  Stand s = stand();
  s.kon[0] = !s.kon[0];
  for (const auto& [index, inhalt] :
       {std::pair(0, "30"), {2, "Kopf"}, {3, ";"}, {5, "7,5"}, {13, "Volkname"}})
    s.sevt[index] = inhalt;
  std::swap(s.volkfelder[0], s.volkfelder[1]);
  std::swap(s.stockfelder[1], s.stockfelder[2]);
  s.gezeigt[0] = !s.gezeigt[0];
  QFile::remove(datei("Einstellungen.TV2"));
  QDir().mkpath(datei("Einstellungen.TV2"));  // a folder stands in the file's place
  try {
    speichern(s);
    FAIL();
  } catch (const Dateifehler& fehler) {
    EXPECT_TRUE(fehler.text().contains("Einstellungen.TV2"));
    EXPECT_TRUE(fehler.text().endsWith(
        "Die Einstellungen wurden nicht gespeichert, es gelten weiter die bisherigen. Ihre "
        "Eingaben bleiben stehen: Beheben Sie die Ursache und drücken Sie noch einmal OK."));
  }
  EXPECT_EQ(EinstellungenZahl, zahl);
  EXPECT_EQ(EinstellungenWert, wert);
  EXPECT_EQ(EinstellungenText, text);
  EXPECT_EQ(ListeNeuLesen, 0);
  QDir().rmdir(datei("Einstellungen.TV2"));
  speichern(s);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sicherungstage], 30);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sortierspalte],
            1);  // the field went to the first place once, not twice
  EXPECT_EQ(ListeNeuLesen, 1);
  EXPECT_EQ(Textdatei::lesen(datei("Einstellungen.TV2"))[50], "30");
}

TEST_F(Einstellungsdaten, StandardSetztNurSeineWerte) {
  Stand s;
  for (const auto& schalter : Einstellungen::schalter()) s.kon[schalter.index] = false;
  for (int i = 0; i <= 15; ++i) s.sevt[i] = "x";
  s.kon[1] = s.kon[4] = s.kon[6] = s.kon[8] = s.kon[10] = true;
  Einstellungen::standardSetzen(s);
  const QList<bool> erwartet = {true, false, true, true, false, true, false, true, false};
  for (int i = 0; i <= 8; ++i) EXPECT_EQ(s.kon[i], erwartet[i]) << i;
  EXPECT_TRUE(s.kon[10]);
  EXPECT_FALSE(s.kon[11]);
  EXPECT_EQ(s.sevt[0], "14");
  EXPECT_EQ(s.sevt[1], "14");
  EXPECT_EQ(s.sevt[2], "");
  EXPECT_EQ(s.sevt[3], " | ");
  EXPECT_EQ(s.sevt[4], "60");
  for (int i = 5; i <= 15; ++i) EXPECT_EQ(s.sevt[i], "x") << i;
  EXPECT_EQ(
      Einstellungen::standardFrage(),
      QString("Sollen die aktuellen Werte wirklich mit den Standard-Werten überschrieben werden?"));
}

TEST_F(Einstellungsdaten, BreitenBleibenBeiIhremFeld) {
  EXPECT_EQ(Einstellungen::umgeordnet({10, 20, 30}, {"A", "B", "C"}, {"C", "A", "B"}),
            QVariantList({30, 10, 20}));
  EXPECT_TRUE(Einstellungen::umgeordnet({10, 20}, {"A", "B", "C"}, {"C", "A", "B"}).isEmpty());
  EXPECT_TRUE(Einstellungen::umgeordnet({10, 20}, {"A", "B"}, {"A", "D"}).isEmpty());
}
