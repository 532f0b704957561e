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
  EXPECT_EQ(block->ablauf,
            QStringList({"pruefe neu", "vor Caesar neu", "schreibe", "nach neu", "liste"}));
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
  EXPECT_EQ(block->ablauf,
            QStringList({"pruefe aendern", "vor Aaron alt", "schreibe", "nach alt", "liste"}));
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
  const qint64 adam = *block->aktuelleId();
  boxen.frageMit("unwiederbringlich gelöscht werden?", true);
  klicke(QString("löschen"));
  EXPECT_EQ(anzahl("Kunden", "Kundenname = 'Adam'"), 0);
  EXPECT_EQ(block->texte()["Kundenname"], "Berta");
  EXPECT_EQ(block->ablauf, QStringList({"loesche " + QString::number(adam), "geloescht"}));
}

TEST_F(Verwaltungsblocktest, ScheitertWasMitgeloeschtWirdBleibtDieZeileStehenUndGewaehlt) {
  waehle(0);
  const auto adam = block->aktuelleId();
  ASSERT_TRUE(adam.has_value());
  block->löschenScheitert = true;
  boxen.hinweisMit("Das Löschen scheitert.");
  klicke(QString("löschen"));
  EXPECT_EQ(anzahl("Kunden"), 2);
  EXPECT_EQ(anzahl("Kunden", QString("Firma = 'vor dem Löschen'")), 2);  // what was done stays
  EXPECT_EQ(block->liste()->zeilen(), 2);
  EXPECT_EQ(block->aktuelleId(), adam);
  EXPECT_EQ(block->texte()["Kundenname"], "Adam");
  EXPECT_EQ(block->ablauf, QStringList("loesche " + QString::number(*adam)));
}

TEST_F(Verwaltungsblocktest, OeffnenAlleinLiestNochNichts) {
  Probeblock neu;
  neu.oeffnen(db());
  EXPECT_EQ(neu.texte()["Lieferant"], "N");
  EXPECT_EQ(neu.liste()->zeilen(), 0);
  EXPECT_EQ(neu.eingabe("Ort")->liste(), QStringList());
  EXPECT_EQ(neu.ablauf, QStringList());
  neu.listeLesen();
  EXPECT_EQ(neu.liste()->zeilen(), 2);
  EXPECT_EQ(neu.ablauf, QStringList("liste"));
}

TEST_F(Verwaltungsblocktest, EinUnbekannterDatensatzAendertDieAnzeigeNicht) {
  waehle(1);
  const auto berta = block->aktuelleId();
  ASSERT_TRUE(berta.has_value());
  block->zeigeDatensatz(*berta + 1000);
  EXPECT_EQ(block->aktuelleId(), berta);
  EXPECT_EQ(block->texte()["Kundenname"], "Berta");
}

TEST_F(Verwaltungsblocktest, DieTastenfolgeGehtVonDenEingabenUeberDieKnoepfeZurListe) {
  QStringList namen;
  for (const QWidget* w : block->tabfolge()) namen << w->objectName();
  EXPECT_EQ(namen, QStringList({"sevt_0", "sevt_1", "sevt_2", "sevt_3", "neu_0", "neu_1",
                                QString("löschen"), "li"}));
}

}  // namespace
