#include "data/forms/Verwaltungsblock.h"

#include <sqlite3.h>

#include <QAbstractButton>
#include <QSignalBlocker>
#include <QTest>
#include <memory>

#include "colonies/Testbetrieb.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"
#include "platform/database/verbindung/Verbindung.h"

using namespace Verwaltung;

namespace {

// A block over the customers that tells in which order it is asked.
class Probeblock : public Verwaltungsblock {
 public:
  Probeblock() : Verwaltungsblock(plan()) {}
  QStringList ablauf;
  QStringList gründe;
  QString einwand;
  bool löschenScheitert = false;

 protected:
  QStringList prüfe(const Texte&, bool ändern) override {
    ablauf << (ändern ? "pruefe aendern" : "pruefe neu");
    return gründe;
  }
  QString vorSpeichern(const Texte& texte, std::optional<qint64> id,
                       QVariantHash& weitere) override {
    ablauf << "vor " + texte["Kundenname"] + (id ? " alt" : " neu");
    weitere["Web"] = QString("ohne Eingabe");
    return einwand;
  }
  qint64 schreiben(const Texte& texte, std::optional<qint64> id,
                   const QVariantHash& weitere) override {
    ablauf << "schreibe";
    return Verwaltungsblock::schreiben(texte, id, weitere);
  }
  void nachSpeichern(qint64, bool neu) override { ablauf << (neu ? "nach neu" : "nach alt"); }
  void nachListe() override { ablauf << "liste"; }
  void vorLöschen(qint64 id) override {
    ablauf << "loesche " + QString::number(id);
    datenbank().Execute("update Kunden set Firma = ?", {QString("vor dem Löschen")});
    if (löschenScheitert)
      throw Datenbankfehler(Datenbankfehler::Art::Allgemein, "Das Löschen scheitert.");
  }
  void nachLöschen() override { ablauf << "geloescht"; }

 private:
  static Plan plan() {
    Plan p;
    p.tabelle = "Kunden";
    p.felder = {text("Kundenname", "Name", 30),
                auswahl("Lieferant", "Lieferant", {"J", "N"}).vorgabe("N"),
                text("Ort", "Ort", 30).liste("select distinct Ort from Kunden order by Ort"),
                text("Firma", "Firma", 30).gezeigt()};
    p.titel = "Kunden";
    p.anweisung = "select * from Kunden order by Kundenname";
    p.liste = "li";
    p.listentitel = "Kunden";
    p.eingabe = "sevt";
    p.neu = "neu";
    p.löschen = "löschen";
    return p;
  }
};

class Verwaltungsblocktest : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    db().Execute("delete from Kunden");
    for (const char* name : {"Adam", "Berta"})
      db().Execute("insert into Kunden(Kundenname, Lieferant, Ort) values (?, ?, ?)",
                   {name, "J", "Celle"});
    block = std::make_unique<Probeblock>();
    block->laden(db());
    block->show();
    block->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(block.get()));
    block->ablauf.clear();
  }
  void TearDown() override {
    EXPECT_EQ(boxen.fehler().toStdString(), "");
    block.reset();
    Testbetrieb::TearDown();
  }
  void tippe(const QString& feld, const QString& neu) {
    block->eingabe(feld)->setFocus();
    block->eingabe(feld)->selectAll();
    QTest::keyClicks(block->eingabe(feld), neu);
  }
  void klicke(const QString& name) {
    QTest::mouseClick(block->findChild<QAbstractButton*>(name), Qt::LeftButton);
  }
  void wähle(int zeile) {
    Grid* li = block->liste();
    QTest::mouseClick(li->viewport(), Qt::LeftButton, {},
                      li->visualRect(li->model()->index(zeile, 0)).center());
  }
  Meldungen::Probe boxen;
  std::unique_ptr<Probeblock> block;
};

TEST_F(Verwaltungsblocktest, GeladenZeigtErDieLeereFormOhneAktuelleZeile) {
  EXPECT_EQ(block->texte()["Kundenname"], "");
  EXPECT_EQ(block->texte()["Lieferant"], "N");
  EXPECT_FALSE(block->aktuelleId().has_value());
  EXPECT_EQ(block->liste()->zeilen(), 2);
  EXPECT_EQ(block->eingabe("Ort")->liste(), QStringList("Celle"));
  EXPECT_TRUE(block->eingabe("Firma")->isReadOnly());
}

TEST_F(Verwaltungsblocktest, NeuFragtSchreibtLiestUndFindetDieZeile) {
  tippe("Kundenname", "Caesar");
  tippe("Ort", "Ulm");
  klicke("neu_0");
  EXPECT_EQ(block->ablauf,
            QStringList({"pruefe neu", "vor Caesar neu", "schreibe", "nach neu", "liste"}));
  EXPECT_EQ(anzahl("Kunden"), 3);
  EXPECT_EQ(wert("select Web from Kunden where Kundenname = 'Caesar'").toString(), "ohne Eingabe");
  EXPECT_EQ(block->liste()->aktuelleZeile(), 2);
  EXPECT_EQ(block->eingabe("Ort")->liste(), QStringList({"Celle", "Ulm"}));
  EXPECT_TRUE(block->eingabe("Kundenname")->hasFocus());
}

TEST_F(Verwaltungsblocktest, ÄndernSchreibtÜberDieAktuelleZeile) {
  wähle(1);
  EXPECT_EQ(block->texte()["Kundenname"], "Berta");
  tippe("Kundenname", "Aaron");
  klicke("neu_1");
  EXPECT_EQ(block->ablauf,
            QStringList({"pruefe aendern", "vor Aaron alt", "schreibe", "nach alt", "liste"}));
  EXPECT_EQ(anzahl("Kunden"), 2);
  EXPECT_EQ(anzahl("Kunden", "Kundenname = 'Berta'"), 0);
  EXPECT_EQ(block->liste()->aktuelleZeile(), 0);  // sorted to the top and found again
}

TEST_F(Verwaltungsblocktest, GründeUndEinwandHaltenDasSpeichernAuf) {
  block->gründe = QStringList{"...a.", "...b."};
  boxen.hinweis("Die Daten werden nicht gespeichert, weil...\n\n...a.\n...b.");
  klicke("neu_0");
  block->gründe.clear();
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!");
  klicke("neu_1");
  block->einwand = "Gibt es schon!";
  boxen.hinweis("Gibt es schon!");
  tippe("Kundenname", "Dora");
  klicke("neu_0");
  EXPECT_EQ(block->ablauf,
            QStringList({"pruefe neu", "pruefe aendern", "pruefe neu", "vor Dora neu"}));
  EXPECT_EQ(anzahl("Kunden"), 2);
}

TEST_F(Verwaltungsblocktest, EineVerschwundeneZeileWirdGesagt) {
  wähle(0);
  db().Execute("delete from Kunden where Kundenname = 'Adam'");
  boxen.hinweisMit("in der Datenbank nicht mehr vorhanden");
  klicke("neu_1");
  EXPECT_EQ(anzahl("Kunden"), 1);
}

TEST_F(Verwaltungsblocktest, EntladenLässtDieDatenbankLosUndLadenNimmtSieWieder) {
  block->entladen();
  tippe("Kundenname", "Caesar");
  boxen.hinweisMit("Die Datenbank ist geschlossen.");
  klicke("neu_0");
  EXPECT_EQ(block->liste()->zeilen(), 2);
  block->laden(db());
  tippe("Kundenname", "Caesar");
  klicke("neu_0");
  EXPECT_EQ(anzahl("Kunden"), 3);
}

TEST_F(Verwaltungsblocktest, LöschenFragtUndZeigtDieNächsteZeile) {
  TZ_Variablen::EinstellungenZahl[Zahlslots.löschabfrage] = 1;
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke(QString("löschen"));
  wähle(0);
  boxen.frageMit("unwiederbringlich gelöscht werden?", false);
  klicke(QString("löschen"));
  EXPECT_EQ(anzahl("Kunden"), 2);
  EXPECT_EQ(block->ablauf, QStringList());
  const qint64 adam = *block->aktuelleId();
  boxen.frageMit("unwiederbringlich gelöscht werden?", true);
  klicke(QString("löschen"));
  EXPECT_EQ(anzahl("Kunden", "Kundenname = 'Adam'"), 0);
  EXPECT_EQ(block->texte()["Kundenname"], "Berta");
  EXPECT_EQ(block->ablauf, QStringList({"loesche " + QString::number(adam), "geloescht"}));
}

TEST_F(Verwaltungsblocktest, ScheitertWasMitgelöschtWirdBleibtDieZeileUndKeineIstGewählt) {
  wähle(0);
  const auto adam = block->aktuelleId();
  ASSERT_TRUE(adam.has_value());
  block->löschenScheitert = true;
  boxen.hinweisMit("Das Löschen scheitert.");
  klicke(QString("löschen"));
  EXPECT_EQ(anzahl("Kunden"), 2);
  EXPECT_EQ(anzahl("Kunden", QString("Firma = 'vor dem Löschen'")), 2);  // what was done stays
  EXPECT_EQ(block->liste()->zeilen(), 2);
  EXPECT_EQ(block->texte()["Kundenname"], "Adam");
  EXPECT_EQ(block->ablauf, QStringList("loesche " + QString::number(*adam)));
  EXPECT_FALSE(block->aktuelleId().has_value());
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke(QString("löschen"));
}

// The row is deleted already when the commit fails, or what the list is read from is gone.
TEST_F(Verwaltungsblocktest, ScheitertDasFestschreibenDesLöschensStehtDieZeileWiederDa) {
  sqlite3* anderes = nullptr;
  ASSERT_EQ(sqlite3_open(TZ_Variablen::DatenbankPfad.toUtf8(), &anderes), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(anderes, "begin; select * from Kunden", nullptr, nullptr, nullptr),
            SQLITE_OK);
  Verbindung::zu(TZ_Variablen::DatenbankPfad)->steuere("pragma busy_timeout = 50");
  wähle(0);
  boxen.hinweisMit("Von diesem Vorgang wurde nichts gespeichert.");
  klicke(QString("löschen"));
  EXPECT_EQ(block->liste()->zeilen(), 2);
  EXPECT_EQ(block->liste()->zelle(0, "Kundenname"), "Adam");
  EXPECT_FALSE(block->aktuelleId().has_value());
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke(QString("löschen"));
  sqlite3_exec(anderes, "rollback", nullptr, nullptr, nullptr);
  sqlite3_close(anderes);
  EXPECT_EQ(anzahl("Kunden"), 2);
  wähle(0);
  klicke(QString("löschen"));
  EXPECT_EQ(anzahl("Kunden", "Kundenname = 'Adam'"), 0);
}

TEST_F(Verwaltungsblocktest, EineZeileDieDieEingabenNieZeigtenWirdNurAufNachfrageÜberschrieben) {
  tippe("Kundenname", "Caesar");
  {
    const QSignalBlocker ohneEingaben(block->liste());
    block->liste()->setAktuelleZeile(1);
  }
  const QString frage =
      "Der gewählte Datensatz steht nicht in den Eingabefeldern:\n\nName: Berta, Lieferant: J, "
      "Ort: Celle\n\nSoll er wirklich mit den jetzigen Eingaben überschrieben werden?";
  boxen.frage(frage, false, Meldungen::Vorgabe::Nein);
  klicke("neu_1");
  EXPECT_EQ(block->ablauf, QStringList("pruefe aendern"));
  EXPECT_EQ(anzahl("Kunden", "Kundenname = 'Berta'"), 1);
  boxen.frage(frage, true, Meldungen::Vorgabe::Nein);
  klicke("neu_1");
  EXPECT_EQ(anzahl("Kunden", "Kundenname = 'Caesar'"), 1);
  EXPECT_EQ(anzahl("Kunden"), 2);
  klicke("neu_1");  // shown by now: nothing is asked
}

TEST_F(Verwaltungsblocktest, EineZeileDieDieEingabenNieZeigtenWirdNurAufNachfrageGelöscht) {
  TZ_Variablen::EinstellungenZahl[Zahlslots.löschabfrage] = 0;  // not even then without a question
  {
    const QSignalBlocker ohneEingaben(block->liste());
    block->liste()->setAktuelleZeile(1);
  }
  const qint64 berta = *block->aktuelleId();
  const QString frage =
      "Soll der markierte Datensatz wirklich unwiederbringlich gelöscht werden?\n\nName: Berta, "
      "Lieferant: J, Ort: Celle";
  boxen.frage(frage, false, Meldungen::Vorgabe::Nein);
  klicke(QString("löschen"));
  EXPECT_EQ(block->texte()["Kundenname"], "");
  EXPECT_EQ(anzahl("Kunden"), 2);
  boxen.frage(frage, true, Meldungen::Vorgabe::Nein);
  klicke(QString("löschen"));
  EXPECT_EQ(anzahl("Kunden", "Kundenname = 'Berta'"), 0);
  EXPECT_EQ(block->ablauf, QStringList({"loesche " + QString::number(berta), "geloescht"}));
}

TEST_F(Verwaltungsblocktest, ÖffnenAlleinLiestNochNichts) {
  Probeblock neu;
  neu.öffnen(db());
  EXPECT_EQ(neu.texte()["Lieferant"], "N");
  EXPECT_EQ(neu.liste()->zeilen(), 0);
  EXPECT_EQ(neu.eingabe("Ort")->liste(), QStringList());
  EXPECT_EQ(neu.ablauf, QStringList());
  neu.listeLesen();
  EXPECT_EQ(neu.liste()->zeilen(), 2);
  EXPECT_EQ(neu.ablauf, QStringList("liste"));
}

TEST_F(Verwaltungsblocktest, EinUnbekannterDatensatzÄndertDieAnzeigeNicht) {
  wähle(1);
  const auto berta = block->aktuelleId();
  ASSERT_TRUE(berta.has_value());
  block->zeigeDatensatz(*berta + 1000);
  EXPECT_EQ(block->aktuelleId(), berta);
  EXPECT_EQ(block->texte()["Kundenname"], "Berta");
}

TEST_F(Verwaltungsblocktest, DieTastenfolgeGehtVonDenEingabenÜberDieKnöpfeZurListe) {
  QStringList namen;
  for (const QWidget* w : block->tabfolge()) namen << w->objectName();
  EXPECT_EQ(namen, QStringList({"sevt_0", "sevt_1", "sevt_2", "sevt_3", "neu_0", "neu_1",
                                QString("löschen"), "li"}));
}

}  // namespace
