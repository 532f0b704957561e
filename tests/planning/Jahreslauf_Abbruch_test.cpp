// The yearly run that doesn't come to its end: the disk is full, or the program is killed. Then the
// appointments are those of before or all of the new ones, and the question comes back.
#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <csignal>

#include "colonies/Testbetrieb.h"
#include "core/settings.h"
#include "gemeinsam/Nebenprogramm.h"
#include "planning/Jahreslauf.h"
#include "planning/Optionen.h"
#include "platform/database/Dateigrenze.h"
#include "platform/database/verbindung/Verbindung.h"

using namespace TZ_Variablen;

namespace {

constexpr int Völker = 200;
// Of each colony from the 20th of June 2006 on: 26.06. 10.07. 24.07. and so on to 25.12.
constexpr int TageJeOption = 14;
constexpr int Optionen = 3;
constexpr qint64 Alle = qint64{Völker} * Optionen * TageJeOption;

Verbindung& verbindung() { return *Verbindung::zu(DatenbankPfad); }

Terminfragen immerJa(std::function<void(qint64)> schritt = {},
                     std::function<void(const QString&)> hinweis = {}) {
  Terminfragen fragen;
  fragen.frage = [](const QString&, bool) { return true; };
  fragen.hinweis = [hinweis](const QString& text) {
    if (hinweis) hinweis(text);
  };
  fragen.fortschritt = [schritt](qint64 fertig, qint64) {
    if (schritt) schritt(fertig);
  };
  return fragen;
}

void töten() { std::raise(SIGKILL); }

// The same program again, as the one that is killed: at a colony of the run, when the message
// comes, or behind it.
const Nebenprogramm abbruch("--jahreslauf", [](const QStringList& argumente) {
  const QString stelle = argumente.value(1);
  Programmordner::betrete(argumente.value(0), "20.06.2006");
  EinstellungenLesen();
  Programmordner::verbinde();
  verbindung().steuere("pragma cache_size = 10");  // what is written reaches the file at once
  VolkTermineSetzen(DB, immerJa(
                            [&](qint64 fertig) {
                              if (stelle == QString::number(fertig)) töten();
                            },
                            [&](const QString&) {
                              if (stelle == "Meldung") töten();
                            }));
  if (stelle == "Ende") töten();
  return 1;
});

class Jahresabbruch : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    EinstellungenZahl[Zahlslots.terminjahr] = 2005;
    EinstellungenSchreiben();
    db().Sammelschreiben([] {
      db().Execute("delete from Arbeitsplanoptionen");
      for (int i = 0; i < Optionen; ++i)
        option("Option " + QString::number(i), "26.06", 14, "31.12");
      for (int i = 1; i <= Völker; ++i) neuesVolk(QString::number(i));
      db().Execute(
          "insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, 'Alt', 'J', 1)",
          {QDate(2006, 5, 1)});
    });
  }
  void trennen() { Programmordner::trenne(); }
  void neuÖffnen() {
    Programmordner::verbinde();
    EinstellungenZahl[Zahlslots.terminjahr] = 0;
    EinstellungenLesen();
  }
  static void nurDieAltenTermine() {
    EXPECT_EQ(anzahl("Termine"), 1);
    EXPECT_EQ(wert("select Termin from Termine"), "Alt");
  }
  static void alleNeuenTermine() {
    EXPECT_EQ(anzahl("Termine"), Alle);
    EXPECT_EQ(anzahl("Termine", "Termin = 'Alt'"), 0);
  }
  static void heil() { EXPECT_EQ(verbindung().steuere("pragma integrity_check"), "ok"); }
  // The next start asks, and the run comes to its end.
  static void nächsterAnlauf() {
    EXPECT_TRUE(neuesJahr());
    QStringList hinweise;
    VolkTermineSetzen(db(), immerJa({}, [&](const QString& text) { hinweise << text; }));
    ASSERT_EQ(hinweise.size(), 1);
    EXPECT_TRUE(hinweise[0].startsWith("Die volkabhängigen Termine wurden für das Jahr 2006"));
    alleNeuenTermine();
    EXPECT_FALSE(neuesJahr());
    heil();
  }
};

// --- full disk ---

TEST_F(Jahresabbruch, BeiVollemDatenträgerBleibenDieAltenTermineUndDieFrageKommtWieder) {
  const int seiten = verbindung().steuere("pragma page_count").toInt();
  verbindung().steuere("pragma max_page_count = " + QByteArray::number(seiten + 2));
  int hinweise = 0;
  qint64 weit = 0;
  try {
    VolkTermineSetzen(
        db(), immerJa([&](qint64 fertig) { weit = fertig; }, [&](const QString&) { ++hinweise; }));
    FAIL() << "kein Fehler";
  } catch (const Datenbankfehler& fehler) {
    EXPECT_EQ(fehler.art(), Datenbankfehler::Art::Voll);
    EXPECT_TRUE(fehler.allesVerworfen());
    EXPECT_TRUE(fehler.text().contains("Von diesem Vorgang wurde nichts gespeichert."));
  }
  EXPECT_GT(weit, 0);  // in the middle
  EXPECT_LT(weit, Völker);
  EXPECT_EQ(hinweise, 0);
  nurDieAltenTermine();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2005);
  verbindung().steuere("pragma max_page_count = 1000000");
  nächsterAnlauf();
}

TEST_F(Jahresabbruch, WennErstDasFestschreibenKeinenPlatzFindetIstEsEbenso) {
  {
    const Dateigrenze grenze(static_cast<rlim_t>(QFileInfo(DatenbankPfad).size()) + 4096);
    EXPECT_THROW(VolkTermineSetzen(db(), immerJa()), Datenbankfehler);
  }
  nurDieAltenTermine();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2005);
  nächsterAnlauf();
}

TEST_F(Jahresabbruch, AlleNeuSetzenLässtBeiVollemDatenträgerDieAltenTermineStehen) {
  db().Execute("update Termine set Termin = 'Option 0'");
  QList<Optionszeile> optionen;
  const Daten zeilen = db().Lesen(optionenAnweisung());
  for (int i = 0; i < zeilen->zeilen(); ++i)
    optionen << Optionszeile{zeilen->ganzzahl(i, zeilen->spaltenNummer(u"ID")),
                             zeilen->anzeige(i, 0), "J"};
  const int seiten = verbindung().steuere("pragma page_count").toInt();
  verbindung().steuere("pragma max_page_count = " + QByteArray::number(seiten + 2));
  EXPECT_THROW(alleTermineBerechnen(db(), optionen), Datenbankfehler);
  EXPECT_EQ(anzahl("Termine"), 1);
  verbindung().steuere("pragma max_page_count = 1000000");
  alleTermineBerechnen(db(), optionen);
  alleNeuenTermine();
}

TEST_F(Jahresabbruch, EineNeueOptionIstBeiVollemDatenträgerWederDaNochHatSieTermine) {
  const Optionseingabe neu = {"Neu", "26.06", "31.12", "14", "J", "", ""};
  const int seiten = verbindung().steuere("pragma page_count").toInt();
  verbindung().steuere("pragma max_page_count = " + QByteArray::number(seiten + 1));
  EXPECT_THROW(optionAnlegen(db(), neu), Datenbankfehler);
  EXPECT_EQ(anzahl("Arbeitsplanoptionen"), Optionen);
  nurDieAltenTermine();
  verbindung().steuere("pragma max_page_count = 1000000");
  optionAnlegen(db(), neu);
  EXPECT_EQ(anzahl("Termine"), 1 + Völker * TageJeOption);
}

// --- killed ---

class Jahresmord : public Jahresabbruch, public testing::WithParamInterface<const char*> {
 protected:
  void töteBei(const QString& stelle) {
    trennen();
    QProcess programm;
    programm.start(QCoreApplication::applicationFilePath(),
                   {"--jahreslauf", m_ordner.path(), stelle});
    ASSERT_TRUE(programm.waitForFinished(60000));
    ASSERT_EQ(programm.exitStatus(), QProcess::CrashExit);
  }
};

TEST_P(Jahresmord, MittenImLaufBleibenDieAltenTermineUndDieFrageKommtWieder) {
  töteBei(GetParam());
  // It was in the middle of writing: the journal lies there.
  EXPECT_GT(QFileInfo(DatenbankPfad + "-journal").size(), 0);
  neuÖffnen();
  heil();
  nurDieAltenTermine();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2005);
  nächsterAnlauf();
}

INSTANTIATE_TEST_SUITE_P(BeimVolk, Jahresmord, testing::Values("1", "100", "200"));

TEST_F(Jahresmord, NachDemSchreibenSindAlleTermineDaUndDieFrageKommtNochEinmal) {
  töteBei("Meldung");
  neuÖffnen();
  heil();
  alleNeuenTermine();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.terminjahr], 2005);
  nächsterAnlauf();
}

TEST_F(Jahresmord, NachDemEndeIstAllesDaUndKeineFrageKommt) {
  töteBei("Ende");
  neuÖffnen();
  heil();
  alleNeuenTermine();
  EXPECT_FALSE(neuesJahr());
}

// --- the tables of an earlier version: the start asks before it extends them ---

bool fehlteFrüher(const QString& feld) {
  static const QStringList neu = {"Futterwaben",      "HW_verdeckelt", "BW_Stift",    "BW_offen",
                                  "BW_verdeckelt",    "Belegstelle",   "Zuchtbuchnr", "Charge",
                                  "Waben_je_Magazin", "PTop",          "PLeft"};
  return neu.contains(feld.section(' ', 0, 0));
}

TEST_F(Jahresabbruch, MitDenTabellenEinerFrüherenVersionLäuftDerJahreslaufEbenso) {
  for (const Tabelle& tabelle : schema()) {
    if (tabelle.name == "DIBVerschluss") db().Execute("drop table DIBVerschluss");
    if (!QStringList({"Bienenvolk", "Honigernte", "Stockkarte", "Standorte"})
             .contains(tabelle.name))
      continue;
    QStringList felder;
    const qsizetype klammer = tabelle.anlegen.indexOf('(');
    for (const QString& feld : tabelle.anlegen.mid(klammer + 1).chopped(1).split(", "))
      if (!fehlteFrüher(feld)) felder << feld;
    db().Execute("drop table " + tabelle.name);
    db().Execute("create table " + tabelle.name + "(" + felder.join(", ") + ")");
  }
  const qint64 volk = neuesVolk("1");
  neuesVolk("2", "");
  option("Honig", "01.06", 14, "31.07", "J", "Honigernte");
  db().Execute("insert into Honigernte(Datum, Volk_ID) values (?, ?)", {QDate(2006, 7, 10), volk});
  VolkTermineSetzen(db(), immerJa());
  EXPECT_EQ(anzahl("Termine"), Optionen * TageJeOption + 2);
  EXPECT_EQ(anzahl("Termine", "Termin = 'Honig' and Datum >= #07/13/2006#"), 2);
  EXPECT_FALSE(neuesJahr());
  EinstellungenText[Textslots.infofenster].clear();
  SchemaErweitern();  // and what the start does next finds its tables
  EXPECT_EQ(anzahl("Termine"), Optionen * TageJeOption + 2);
  EXPECT_EQ(wert("select count(*) as n from Bienenvolk where Futterwaben = 0").toInt(), 2);
}

}  // namespace
