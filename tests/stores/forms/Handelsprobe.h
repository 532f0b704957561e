#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <memory>

#include "data/helpers.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"
#include "stores/Handelsbetrieb.h"
#include "stores/forms/TV_EinVerkauf_Lager.h"

inline void PrintTo(const QString& text, std::ostream* aus) { *aus << text.toStdString(); }

// The form, driven by key and mouse. Boxes that no test expected fail.
class Handelsprobe : public Handelsbetrieb {
 protected:
  enum Reiter { Einkauf, Verkauf, Lager };

  void SetUp() override {
    Handelsbetrieb::SetUp();
    Eingabefeld::setDatumErgaenzer([](const QString& text) { return DatumErgaenzen(text); });
  }
  void TearDown() override {
    EXPECT_EQ(boxen.fehler().toStdString(), "");
    form.reset();
    Handelsbetrieb::TearDown();
  }

  void oeffne(int reiter) { oeffneMit(QString::number(reiter)); }
  void oeffneMit(const QString& modus) {
    TZ_Variablen::FormModus = modus;
    form = std::make_unique<TV_EinVerkauf_Lager>();
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
  // The texts of all inputs of a tab, joined by "|".
  QString inhalte(const QString& tab) {
    QStringList texte;
    for (int i = 0; auto* f = form->findChild<Eingabefeld*>(QString("sevt%1_%2").arg(tab).arg(i));
         ++i)
      texte << f->inhalt();
    return texte.join("|");
  }
  QString summen() { return kind<QLabel>("bezsumme")->text(); }
  int reiter() { return kind<QTabWidget>("reiter")->currentIndex(); }
  void zumReiter(int nummer) {
    QTabBar* leiste = kind<QTabWidget>("reiter")->findChild<QTabBar*>();
    QTest::mouseClick(leiste, Qt::LeftButton, {}, leiste->tabRect(nummer).center());
  }
  void tippe(const QString& name, const QString& neu) {
    Eingabefeld* f = feld(name);
    f->setFocus();
    f->selectAll();
    QTest::keyClick(f, Qt::Key_Delete);
    for (const QChar c : neu)  // keyClicks knows no umlauts
      QTest::sendKeyEvent(QTest::Click, f, static_cast<Qt::Key>(c.toUpper().unicode()), QString(c),
                          Qt::NoModifier);
  }
  void fuegeEin(const QString& name, const QString& neu) {
    QApplication::clipboard()->setText(neu);
    Eingabefeld* f = feld(name);
    f->setFocus();
    f->selectAll();
    QTest::keyClick(f, Qt::Key_V, Qt::ControlModifier);
  }
  void klicke(const QString& name) {
    auto* k = kind<QAbstractButton>(name);
    QTest::mouseClick(k, Qt::LeftButton, {}, QPoint(8, k->height() / 2));
  }
  void waehle(const QString& name, int zeile) {
    Grid* li = liste(name);
    const QModelIndex index = li->model()->index(zeile, 0);
    li->scrollTo(index);
    QTest::mouseClick(li->viewport(), Qt::LeftButton, {}, li->visualRect(index).center());
  }
  void tippeVerkauf(const QString& produkt, const QString& menge, const QString& abnehmer = {}) {
    tippe("sevtverkauf_1", produkt);
    tippe("sevtverkauf_3", abnehmer);
    tippe("sevtverkauf_4", menge);
  }
  void tippeEinkauf(const QString& produkt, const QString& menge, const QString& lieferant = {}) {
    tippe("sevteinkauf_1", produkt);
    tippe("sevteinkauf_3", lieferant);
    tippe("sevteinkauf_4", menge);
  }
  void tippeLager(const QString& produkt, const QString& zugang, const QString& abgang) {
    tippe("sevthonig_1", produkt);
    tippe("sevthonig_2", zugang);
    tippe("sevthonig_3", abgang);
  }
  bool offen() const { return form->isVisible(); }

  Meldungen::Probe boxen;
  std::unique_ptr<TV_EinVerkauf_Lager> form;
};
