#include <gtest/gtest.h>

#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>
#include <typeinfo>

#include "Eingabehilfen.h"
#include "Formenliste.h"
#include "data/forms/Verwaltungsblock.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Grid.h"
#include "platform/files/Textdatei.h"

using TZ_Variablen::DB;
using Verwaltung::Feld;

// What every management block promises, asked of each block of each form. What is peculiar to one
// is asked in its own room.
namespace {

// Parts of a form are told by their type; a block has no meta-object of its own.
QList<Verwaltungsblock*> blöcke(QWidget* form) {
  QList<Verwaltungsblock*> alle;
  for (QWidget* w : form->findChildren<QWidget*>())
    if (auto* block = dynamic_cast<Verwaltungsblock*>(w)) alle << block;
  return alle;
}

struct Stelle {
  size_t fall;  // in the list of forms
  qsizetype nummer;
  QString klasse;
};

// Where blocks are; each form is looked at once.
const QList<Stelle>& stellen() {
  static const QList<Stelle> alle = [] {
    QList<Stelle> gefunden;
    QStringList gesehen;
    for (size_t i = 0; i < formenliste().size(); ++i) {
      const Formfall& fall = formenliste()[i];
      if (fall.hauptformular || gesehen.contains(fall.objekt)) continue;
      gesehen << fall.objekt;
      Betrieb betrieb;
      const Form form = fall.machen(betrieb);
      const QList<Verwaltungsblock*> darin = blöcke(form.get());
      for (qsizetype n = 0; n < darin.size(); ++n)
        gefunden << Stelle{i, n, QString::fromUtf8(typeid(*darin[n]).name())};
    }
    return gefunden;
  }();
  return alle;
}

class Blockvertrag : public testing::Test {
 protected:
  // Acts on each block, in a new operation and with its page in front.
  void jeder(const std::function<void()>& aktion) {
    ASSERT_FALSE(stellen().isEmpty());
    for (const Stelle& stelle : stellen()) {
      const testing::ScopedTrace wo(__FILE__, __LINE__, stelle.klasse.toStdString());
      betrieb = std::make_unique<Betrieb>();
      TZ_Variablen::EinstellungenZahl[Zahlslots.löschabfrage] = 1;  // deleting asks
      form = formenliste()[stelle.fall].machen(*betrieb);
      ASSERT_NE(form, nullptr);
      form->show();
      form->activateWindow();
      ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
      block = blöcke(form.get())[stelle.nummer];
      nachVorn(form.get(), block->liste());
      aktion();
      EXPECT_EQ(betrieb->boxen.fehler().toStdString(), "");
      form.reset();
      betrieb.reset();
    }
  }

  const Verwaltungsblock::Plan& plan() const { return block->plan(); }
  Eingabefeld* eingabe(const Feld& feld) const { return block->eingabe(feld.feld); }
  void neu() { drücke(form.get(), plan().neu + "_0"); }
  void ändern() { drücke(form.get(), plan().neu + "_1"); }
  void löschen() { drücke(form.get(), plan().löschen); }
  Meldungen::Probe& boxen() { return betrieb->boxen; }

  // Types a text of its kind into every input; the texts go with the number.
  void tippeAlles(int nummer) {
    for (const Feld& feld : plan().felder)
      if (!feld.nurAnzeige)
        tippeIn(eingabe(feld), probetext(eingabe(feld)->beschreibung(), nummer++));
  }
  void tippeNichts() {
    for (const Feld& feld : plan().felder)
      if (!feld.nurAnzeige && feld.art != Verwaltung::Art::Auswahl) tippeIn(eingabe(feld), {});
  }
  // A new row of those texts.
  qint64 trageEin(int nummer) {
    tippeAlles(nummer);
    neu();
    return letzteId();
  }
  qint64 letzteId() const {
    return DB.Lesen("select max(ID) as m from " + plan().tabelle)->ganzzahl(0, 0);
  }
  qint64 anzahl() const { return Betrieb::anzahl(plan().tabelle); }
  void wähle(qint64 id) {
    klickeZeile(block->liste(), block->liste()->findeZeile("ID = " + QString::number(id)));
  }

  // The table's row as the inputs show one.
  Verwaltung::Texte zeile(qint64 id) const {
    const Daten daten = DB.Lesen("select * from " + plan().tabelle + " where ID = ?", {id});
    Verwaltung::Texte texte;
    for (const Feld& feld : plan().felder)
      texte[feld.feld] = daten->zeilen() == 0
                             ? QString("keine Zeile")
                             : feldtext(feld, daten->wert(0, daten->spaltenNummer(feld.feld)));
    return texte;
  }
  void eingabenZeigen(const Verwaltung::Texte& soll) const {
    for (const Feld& feld : plan().felder)
      EXPECT_EQ(eingabe(feld)->inhalt().toStdString(), soll[feld.feld].toStdString())
          << qPrintable(feld.beschriftung);
  }
  // What was typed is what is stored.
  void gespeichert(qint64 id, const Verwaltung::Texte& getippt) const {
    const Verwaltung::Texte steht = zeile(id);
    for (const Feld& feld : plan().felder) {
      if (feld.nurAnzeige) continue;
      EXPECT_EQ(steht[feld.feld].toStdString(),
                feldtext(feld, feldwert(feld, getippt[feld.feld])).toStdString())
          << qPrintable(feld.beschriftung);
    }
  }
  // The row of this ID is current and stands in the inputs, the list and the pick lists are those
  // of now, and the next row can be typed.
  void stehtDa(qint64 id) const {
    EXPECT_EQ(block->aktuelleId(), id);
    EXPECT_EQ(block->liste()->findeZeile("ID = " + QString::number(id)),
              block->liste()->aktuelleZeile());
    eingabenZeigen(zeile(id));
    for (const Feld& feld : plan().felder)
      if (feld.hatPickliste()) {
        EXPECT_EQ(eingabe(feld)->liste(), pickliste(DB, feld)) << qPrintable(feld.beschriftung);
      }
    const Eingabefeld* erstes = eingabe(plan().felder.first());
    EXPECT_TRUE(erstes->hasFocus());
    EXPECT_EQ(erstes->selectedText(), erstes->text());
  }

  std::unique_ptr<Betrieb> betrieb;
  Form form;
  Verwaltungsblock* block = nullptr;
};

// The classes on Verwaltungsblock on which no other stands, as the headers have them.
QStringList klassen() {
  QHash<QString, QString> basis;
  static const QRegularExpression kopf("class (\\w+) : public (\\w+)",
                                       QRegularExpression::UseUnicodePropertiesOption);
  QDirIterator lauf(QStringLiteral(TOVA_QUELLEN "/src"), {"*.h"}, QDir::Files,
                    QDirIterator::Subdirectories);
  while (lauf.hasNext()) {
    QFile datei(lauf.next());
    if (!datei.open(QFile::ReadOnly)) continue;
    auto treffer = kopf.globalMatch(QString::fromUtf8(datei.readAll()));
    while (treffer.hasNext()) {
      const auto t = treffer.next();
      basis[t.captured(1)] = t.captured(2);
    }
  }
  const QStringList getragen = basis.values();
  QStringList alle;
  for (const QString& klasse : basis.keys()) {
    QString wurzel = klasse;
    while (basis.contains(wurzel)) wurzel = basis[wurzel];
    if (wurzel == "QWidget" && klasse != "Verwaltungsblock" && !getragen.contains(klasse)) {
      for (QString k = klasse; basis.contains(k); k = basis[k])
        if (basis[k] == "Verwaltungsblock") alle << klasse;
    }
  }
  return alle;
}

}  // namespace

TEST_F(Blockvertrag, JederBlockDesProgrammsWirdGefragt) {
  QStringList gefunden;
  for (const Stelle& stelle : stellen()) gefunden << stelle.klasse;
  const QStringList soll = klassen();
  ASSERT_GE(soll.size(), 5);
  for (const QString& klasse : soll)
    EXPECT_FALSE(gefunden.filter(klasse).isEmpty()) << klasse.toStdString();
}

TEST_F(Blockvertrag, GeladenStehenDieVorgabenDaUndNeuSchreibtNichtsDavonVonSelbst) {
  jeder([this] {
    const QString vorher = Betrieb::abbild();
    Verwaltung::Texte soll;
    for (const Feld& feld : plan().felder)
      soll[feld.feld] = feldtext(feld, feldwert(feld, feld.ersterText));
    for (const Feld& feld : plan().felder)
      EXPECT_EQ(feldtext(feld, feldwert(feld, eingabe(feld)->inhalt())).toStdString(),
                soll[feld.feld].toStdString())
          << qPrintable(feld.beschriftung);
    EXPECT_TRUE(vorher == Betrieb::abbild());
  });
}

TEST_F(Blockvertrag, NeuTrägtDasGetippteAlsNeueZeileEinUndFindetSie) {
  jeder([this] {
    const qint64 vorher = anzahl();
    const int zeilen = block->liste()->zeilen();
    tippeAlles(0);
    const Verwaltung::Texte getippt = block->texte();
    neu();
    EXPECT_EQ(anzahl(), vorher + 1);
    EXPECT_EQ(block->liste()->zeilen(), zeilen + 1);
    gespeichert(letzteId(), getippt);
    stehtDa(letzteId());
  });
}

TEST_F(Blockvertrag, ÄndernSchreibtNurÜberDieGewählteZeile) {
  jeder([this] {
    const qint64 andere = trageEin(10);
    const qint64 gewählt = trageEin(20);
    const auto stand = zeile(andere);
    const qint64 vorher = anzahl();
    wähle(gewählt);
    tippeAlles(30);
    const Verwaltung::Texte getippt = block->texte();
    ändern();
    EXPECT_EQ(anzahl(), vorher);
    EXPECT_EQ(zeile(andere), stand);
    gespeichert(gewählt, getippt);
    stehtDa(gewählt);
  });
}

TEST_F(Blockvertrag, OhneZeileSagenÄndernUndLöschenWasFehlt) {
  jeder([this] {
    DB.Execute("delete from " + plan().tabelle);
    block->listeLesen();
    ASSERT_EQ(block->liste()->zeilen(), 0);
    tippeAlles(0);
    const Verwaltung::Texte getippt = block->texte();
    const QString vorher = Betrieb::abbild();
    boxen()
        .hinweis(plan().zuerstMarkieren)
        .hinweis("Bitte markieren Sie zuerst den Datensatz, den Sie löschen möchten.");
    ändern();
    löschen();
    EXPECT_TRUE(vorher == Betrieb::abbild());
    eingabenZeigen(getippt);
  });
}

TEST_F(Blockvertrag, WasNichtGehtStehtInEinerMeldungUndNichtsWirdGeschrieben) {
  jeder([this] {
    wähle(trageEin(0));
    tippeNichts();
    const Verwaltung::Texte getippt = block->texte();
    const QString vorher = Betrieb::abbild();
    boxen().hinweisMit("Die Daten werden nicht gespeichert, weil...\n\n...");
    neu();
    EXPECT_EQ(boxen().fehler().toStdString(), "");
    boxen().hinweisMit("Die Daten werden nicht gespeichert, weil...\n\n...");
    ändern();
    EXPECT_TRUE(vorher == Betrieb::abbild());
    eingabenZeigen(getippt);
  });
}

TEST_F(Blockvertrag, KlickUndTastenZeigenEineArbeitskopieDerZeile) {
  jeder([this] {
    trageEin(10);
    trageEin(20);
    Grid* liste = block->liste();
    klickeZeile(liste, 0);
    const qint64 erste = *block->aktuelleId();
    eingabenZeigen(zeile(erste));
    QTest::keyClick(liste, Qt::Key_Down);
    EXPECT_EQ(liste->aktuelleZeile(), 1);
    EXPECT_NE(block->aktuelleId(), erste);
    eingabenZeigen(zeile(*block->aktuelleId()));
    const QString vorher = Betrieb::abbild();
    const Feld& feld = plan().felder.first();
    const QString zelle = liste->zelle(1, feld.feld);
    tippeAlles(30);
    EXPECT_TRUE(vorher == Betrieb::abbild());
    EXPECT_EQ(liste->zelle(1, feld.feld), zelle);
    QTest::keyClick(liste, Qt::Key_Up);
    QTest::keyClick(liste, Qt::Key_Down);
    eingabenZeigen(zeile(*block->aktuelleId()));
  });
}

TEST_F(Blockvertrag, LöschenFragtErstUndZeigtDieZeileDieDannDortSteht) {
  jeder([this] {
    trageEin(10);
    klickeZeile(block->liste(), 0);
    const qint64 id = *block->aktuelleId();
    const qint64 vorher = anzahl();
    const QString stand = Betrieb::abbild();
    boxen().frageMit("unwiederbringlich gelöscht werden?", false);
    löschen();
    EXPECT_TRUE(stand == Betrieb::abbild());
    EXPECT_EQ(block->aktuelleId(), id);
    boxen().frageMit("unwiederbringlich gelöscht werden?", true);
    löschen();
    EXPECT_EQ(anzahl(), vorher - 1);
    EXPECT_EQ(zeile(id)[plan().felder.first().feld], "keine Zeile");
    EXPECT_EQ(block->liste()->aktuelleZeile(), 0);
    eingabenZeigen(zeile(*block->aktuelleId()));
  });
}

TEST_F(Blockvertrag, NachDerLetztenZeileStehtDieLeereFormDa) {
  jeder([this] {
    const Verwaltung::Texte leer = block->texte();
    trageEin(10);
    klickeZeile(block->liste(), 0);
    for (int rest = block->liste()->zeilen(); rest > 0; --rest) {
      EXPECT_EQ(block->liste()->zeilen(), rest);
      boxen().frageMit("unwiederbringlich gelöscht werden?", true);
      löschen();
    }
    EXPECT_EQ(block->liste()->zeilen(), 0);
    EXPECT_FALSE(block->aktuelleId().has_value());
    eingabenZeigen(leer);
  });
}
