#pragma once

#include <QAbstractButton>
#include <QTabWidget>
#include <QTest>
#include <memory>

#include "colonies/Testbetrieb.h"
#include "colonies/forms/TV_Neues_Volk.h"
#include "data/helpers.h"
#include "gemeinsam/Testliste.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Meldungen.h"

// The form over a list of all colonies, driven by key and mouse. Boxes that no test expected fail.
class Formtest : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    db().Execute("delete from Arbeitsplanoptionen");
    Eingabefeld::setDatumErgaenzer([](const QString& text) { return DatumErgaenzen(text); });
  }
  void TearDown() override {
    EXPECT_EQ(boxen.fehler().toStdString(), "");
    form.reset();
    liste.reset();
    Testbetrieb::TearDown();
  }

  void oeffne(const QString& modus, int zeile = 0) {
    if (!liste) liste = std::make_unique<Testliste>("select * from Bienenvolk order by ID");
    if (liste->zeilen() > 0) liste->setAktuelleZeile(zeile);
    TZ_Variablen::VolkModus = modus;
    TZ_Variablen::ListeNeuLesen = 0;
    form = std::make_unique<TV_Neues_Volk>();
    form->laden();
    form->show();
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }
  void neu() { oeffne("Neu"); }
  void aendern(int zeile = 0) { oeffne(QString("Ändern"), zeile); }

  template <typename T = QWidget>
  T* kind(const QString& name) {
    T* k = form->findChild<T*>(name);
    EXPECT_NE(k, nullptr) << name.toStdString();
    return k;
  }
  Eingabefeld* feld(const QString& name) { return kind<Eingabefeld>(name); }
  QString inhalt(const QString& name) { return feld(name)->inhalt(); }

  // Brings the field's tab to the front and types over what stands there.
  void tippe(const QString& name, const QString& text) {
    Eingabefeld* f = feld(name);
    zeigeReiter(f);
    f->setFocus();
    f->selectAll();
    QTest::keyClick(f, Qt::Key_Delete);
    QTest::keyClicks(f, text);
  }
  void zeigeReiter(QWidget* w) {
    auto* reiter = kind<QTabWidget>("reiter");
    for (int i = 0; i < reiter->count(); ++i)
      if (reiter->widget(i)->isAncestorOf(w)) reiter->setCurrentIndex(i);
  }
  void klicke(const QString& name) {
    auto* k = kind<QAbstractButton>(name);
    zeigeReiter(k);
    QTest::mouseClick(k, Qt::LeftButton, {}, QPoint(8, k->height() / 2));
  }
  bool offen() const { return form->isVisible(); }

  Meldungen::Probe boxen;
  std::unique_ptr<Testliste> liste;
  std::unique_ptr<TV_Neues_Volk> form;
};
