#pragma once

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <memory>

#include "bookings/forms/TE_Eingabe.h"
#include "data/schema.h"
#include "gemeinsam/Formularprobe.h"
#include "gemeinsam/Musterdatenbank.h"
#include "gemeinsam/Testliste.h"

// gtest shows QString values readable.
inline void PrintTo(const QString& text, std::ostream* aus) {
  *aus << '"' << qPrintable(text) << '"';
}

// A new operation with three colonies on two sites. Today is the 15th of June 2026.
class Eingabebetrieb : public testing::Test {
 protected:
  void SetUp() override {
    static Musterdatenbank muster([] {
      volk("1", "Anna", "Hof");
      volk("2", "Berta", "Waldrand");
      volk("3", "Carla", "Hof");
    });
    muster.kopieren();
  }

  // Writes a colony; the first one gets the ID 1.
  static void volk(const QString& nr, const QString& name, const QString& standort,
                   int wabenJeMagazin = 10) {
    TZ_Variablen::DB.Execute(
        "insert into Bienenvolk (Volknr, Volkname, Standort, Waben_je_Magazin, Akt_im_Bestand) "
        "values (?, ?, ?, ?, 'X')",
        {nr, name, standort, wabenJeMagazin});
  }
  // Writes a row of a table, the date as yyyy-mm-dd.
  void zeile(const QString& tabelle, qint64 volkId, const QString& datum,
             const QList<std::pair<QString, QVariant>>& felder = {}) {
    QString namen = "Datum, Volk_ID";
    QString platz = "?, ?";
    QVariantList werte{QDate::fromString(datum, Qt::ISODate), volkId};
    for (const auto& [feld, wert] : felder) {
      namen += ", " + feld;
      platz += ", ?";
      werte.append(wert);
    }
    TZ_Variablen::DB.Execute("insert into " + tabelle + " (" + namen + ") values (" + platz + ")",
                             werte);
  }

  static Daten lies(const QString& anweisung) { return TZ_Variablen::DB.Lesen(anweisung); }
  static qint64 anzahl(const QString& tabelle) {
    return lies("select count(*) as anzahl from " + tabelle)->ganzzahl(0, 0);
  }
  static QVariant wert(const QString& anweisung) {
    const Daten daten = lies(anweisung);
    return daten->zeilen() == 0 ? QVariant("no row") : daten->wert(0, 0);
  }

  Programmordner m_ordner{"15.06.2026"};
};

// The form on it.
class Eingabeprobe : public Formularprobe<TE_Eingabe, Eingabebetrieb> {
 protected:
  void TearDown() override {
    EXPECT_EQ(boxen.fehler(), "");
    if (form && form->isVisible()) form->close();
    form.reset();
    liste.reset();
    Formularprobe::TearDown();
  }

  // Shows the form for a type; the main list stands on its first colony unless one is there.
  void öffne(int art) {
    if (!liste) liste = std::make_unique<Testliste>();
    if (!form) form = neueForm();
    TZ_Variablen::BuchungsArt = art;
    form->laden();
    form->show();
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }
  void markiere(const QList<int>& zeilen) {
    if (!liste) liste = std::make_unique<Testliste>();
    liste->setMarkierteZeilen(zeilen);
  }

  QPlainTextEdit* notiz() { return Beschriftet::finde<QPlainTextEdit>(form.get(), "Notiz"); }
  QString text(const QString& name) { return feld(name)->text(); }
  QString text(int slot) { return feld(slot)->text(); }
  QString schild(const QString& name) { return kind<QLabel>(name)->text(); }
  Grid* li() { return kind<Grid>("li"); }
  Grid* volkli() { return kind<Grid>("volkli"); }
  bool hatFokus(const QString& name) { return QApplication::focusWidget() == feld(name); }

  void taste(QWidget* ziel, Qt::Key taste, Qt::KeyboardModifiers dazu = Qt::NoModifier) {
    QTest::keyClick(ziel, taste, dazu);
  }
  void fügeEin(QWidget* ziel, const QString& text) {
    QApplication::clipboard()->setText(text);
    ziel->setFocus();
    QTest::keyClick(ziel, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(ziel, Qt::Key_V, Qt::ControlModifier);
  }
  using Formularprobe::klicke;
  void klicke(Grid* liste, int zeile, Qt::KeyboardModifiers dazu = Qt::NoModifier) {
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, dazu, mitte(liste, zeile));
  }
  void wähleStandort(const QString& standort) {
    auto* kom = kind<QComboBox>("kom");
    const int index = kom->findText(standort);
    ASSERT_GE(index, 0) << qPrintable(standort);
    kom->setCurrentIndex(index);
    Q_EMIT kom->activated(index);
  }

  // The slots 1 to 27 that are to be seen.
  QList<int> sichtbar() {
    QList<int> slots;
    for (int slot = 1; slot < 28; ++slot)
      if (kind<QWidget>("sevt_" + QString::number(slot))->isVisible()) slots.append(slot);
    return slots;
  }

  std::unique_ptr<Testliste> liste;
};
