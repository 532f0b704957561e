#include "data/forms/Verwaltungsblock.h"

#include <QAbstractButton>
#include <QTest>
#include <memory>

#include "colonies/Testbetrieb.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"

using namespace Verwaltung;

namespace {

// A block over the customers that tells in which order it is asked.
class Probeblock : public Verwaltungsblock {
 public:
  Probeblock() : Verwaltungsblock(plan()) {}
  QStringList ablauf;
  QStringList gründe;
  QString einwand;

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
  void nachSpeichern(qint64, bool neu) override { ablauf << (neu ? "nach neu" : "nach alt"); }
  void nachListe() override { ablauf << "liste"; }
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
    p.loeschen = "löschen";
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
  void waehle(int zeile) {
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
  EXPECT_EQ(block->ablauf, QStringList({"pruefe neu", "vor Caesar neu", "nach neu", "liste"}));
  EXPECT_EQ(anzahl("Kunden"), 3);
  EXPECT_EQ(wert("select Web from Kunden where Kundenname = 'Caesar'").toString(), "ohne Eingabe");
  EXPECT_EQ(block->liste()->aktuelleZeile(), 2);
  EXPECT_EQ(block->eingabe("Ort")->liste(), QStringList({"Celle", "Ulm"}));
  EXPECT_TRUE(block->eingabe("Kundenname")->hasFocus());
}

TEST_F(Verwaltungsblocktest, AendernSchreibtUeberDieAktuelleZeile) {
  waehle(1);
  EXPECT_EQ(block->texte()["Kundenname"], "Berta");
  tippe("Kundenname", "Aaron");
  klicke("neu_1");
  EXPECT_EQ(block->ablauf, QStringList({"pruefe aendern", "vor Aaron alt", "nach alt", "liste"}));
  EXPECT_EQ(anzahl("Kunden"), 2);
  EXPECT_EQ(anzahl("Kunden", "Kundenname = 'Berta'"), 0);
  EXPECT_EQ(block->liste()->aktuelleZeile(), 0);  // sorted to the top and found again
}

TEST_F(Verwaltungsblocktest, GruendeUndEinwandHaltenDasSpeichernAuf) {
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
  waehle(0);
  db().Execute("delete from Kunden where Kundenname = 'Adam'");
  boxen.hinweisMit("in der Datenbank nicht mehr vorhanden");
  klicke("neu_1");
  EXPECT_EQ(anzahl("Kunden"), 1);
}

TEST_F(Verwaltungsblocktest, EntladenLaesstDieDatenbankLosUndLadenNimmtSieWieder) {
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

TEST_F(Verwaltungsblocktest, LoeschenFragtUndZeigtDieNaechsteZeile) {
  TZ_Variablen::EinstellungenZahl[55] = 1;
  boxen.hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
  klicke(QString("löschen"));
  waehle(0);
  boxen.frageMit("unwiederbringlich gelöscht werden?", false);
  klicke(QString("löschen"));
  EXPECT_EQ(anzahl("Kunden"), 2);
  EXPECT_EQ(block->ablauf, QStringList());
  boxen.frageMit("unwiederbringlich gelöscht werden?", true);
  klicke(QString("löschen"));
  EXPECT_EQ(anzahl("Kunden", "Kundenname = 'Adam'"), 0);
  EXPECT_EQ(block->texte()["Kundenname"], "Berta");
  EXPECT_EQ(block->ablauf, QStringList("geloescht"));
}

}  // namespace
