#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QTabWidget>
#include <QTest>
#include <memory>

#include "data/helpers.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"
#include "sites/Ortebetrieb.h"
#include "sites/forms/TV_Pflanzen_Standorte.h"

// The form, driven by key and mouse. Boxes that no test expected fail.
class Orteprobe : public Ortebetrieb {
 protected:
  void SetUp() override {
    Ortebetrieb::SetUp();
    Eingabefeld::setDatumErgaenzer([](const QString& text) { return DatumErgaenzen(text); });
  }
  void TearDown() override {
    EXPECT_EQ(boxen.fehler().toStdString(), "");
    form.reset();
    Ortebetrieb::TearDown();
  }

  void oeffne(const QString& modus = "0") {
    TZ_Variablen::FormModus = modus;
    form = std::make_unique<TV_Pflanzen_Standorte>();
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
  Grid* liste(const QString& name) { return kind<Grid>(name); }
  Eingabefeld* feld(const QString& name) { return kind<Eingabefeld>(name); }
  std::string inhalt(const QString& name) { return feld(name)->inhalt().toStdString(); }
  QString text(const QString& name) { return kind<QLabel>(name)->text(); }
  int reiter() { return kind<QTabWidget>("reiter")->currentIndex(); }
  void zumReiter(int nummer) {
    QTabBar* leiste = kind<QTabWidget>("reiter")->findChild<QTabBar*>();
    QTest::mouseClick(leiste, Qt::LeftButton, {}, leiste->tabRect(nummer).center());
  }
  void tippe(const QString& name, const QString& neu) {
    Eingabefeld* f = feld(name);
    f->setFocus();
    f->selectAll();
    if (f->art() != Eingabefeld::Art::Auswahl) QTest::keyClick(f, Qt::Key_Delete);
    QTest::keyClicks(f, neu);
  }
  void klicke(const QString& name) {
    auto* k = kind<QAbstractButton>(name);
    QTest::mouseClick(k, Qt::LeftButton, {}, QPoint(8, k->height() / 2));
  }
  void waehle(const QString& name, int zeile) {
    Grid* li = liste(name);
    const QModelIndex index = li->model()->index(zeile, 0);
    QTest::mouseClick(li->viewport(), Qt::LeftButton, {}, li->visualRect(index).center());
  }
  void tippePflanze(const QString& name, const QString& von, const QString& bis) {
    tippe("sevt_0", name);
    tippe("sevt_1", von);
    tippe("sevt_2", bis);
  }
  void tippeTracht(const QString& name, const QString& entfernung, const QString& anteil) {
    tippe("sevtje_0", name);
    tippe("sevtje_1", entfernung);
    tippe("sevtje_2", anteil);
  }
  bool offen() const { return form->isVisible(); }

  Meldungen::Probe boxen;
  std::unique_ptr<TV_Pflanzen_Standorte> form;
};
