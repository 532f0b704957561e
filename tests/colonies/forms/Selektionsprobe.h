#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <memory>

#include "colonies/Testbetrieb.h"
#include "colonies/forms/TV_Selektieren.h"
#include "gemeinsam/Testliste.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Meldungen.h"

// Five colonies, the last one gone, and the list of those in stock. Boxes that no test expected
// fail.
class Selektionsprobe : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    for (const char* nummer : {"1", "2", "3", "4"})
      neuesVolk(nummer, "X", nummer[0] < '3' ? "Hof" : "Heide");
    neuesVolk("5", "", "Hof");
    liste = std::make_unique<Testliste>();
  }
  void TearDown() override {
    EXPECT_EQ(boxen.fehler().toStdString(), "");
    form.reset();
    liste.reset();
    Testbetrieb::TearDown();
  }

  static std::string selektiert() {
    const Daten daten =
        db().Lesen("select Volknr from Bienenvolk where Selektiert = 'X' order by ID");
    QStringList nummern;
    for (int i = 0; i < daten->zeilen(); ++i) nummern << daten->wert(i, 0).toString();
    return nummern.join(' ').toStdString();
  }
  // Selects these colonies behind the form's back; the list knows it.
  void merke(const QStringList& nummern) {
    for (const QString& nummer : nummern)
      db().Execute("update Bienenvolk set Selektiert = 'X' where Volknr = ?", {nummer});
    liste->datenvölkerlesen();
  }

  void oeffne() {
    form = std::make_unique<TV_Selektieren>();
    form->laden();
    form->show();
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }
  template <typename T = QWidget>
  T* kind(const QString& name) {
    T* k = form->findChild<T*>(name);
    EXPECT_NE(k, nullptr) << name.toStdString();
    return k;
  }
  Eingabefeld* feld(int index) { return kind<Eingabefeld>(QString("sevt_%1").arg(index)); }
  void tippe(int index, const QString& text) {
    feld(index)->setFocus();
    feld(index)->selectAll();
    QTest::keyClick(feld(index), Qt::Key_Delete);
    QTest::keyClicks(feld(index), text);
  }
  void klicke(const QString& name) {
    auto* k = kind<QAbstractButton>(name);
    QTest::mouseClick(k, Qt::LeftButton, {}, QPoint(8, k->height() / 2));
  }
  void regel(int index) { klicke(QString("entselekt_%1").arg(index)); }

  Meldungen::Probe boxen;
  std::unique_ptr<Testliste> liste;
  std::unique_ptr<TV_Selektieren> form;
};
