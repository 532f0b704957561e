#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>
#include <memory>
#include <type_traits>

#include "data/helpers.h"
#include "gemeinsam/Beschriftet.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"

// What forms say and ask alike.
inline const QString Weil = "Die Daten werden nicht gespeichert, weil...\r\n\r\n";
inline const QString Löschfrage =
    "Soll der markierte Datensatz wirklich unwiederbringlich gelöscht werden?";

// A form in a program folder of its own (Basis), driven by key and mouse on its named controls.
// Boxes that no test expected fail.
template <typename Form, typename Basis>
class Formularprobe : public Basis {
 protected:
  void SetUp() override {
    Basis::SetUp();
    Eingabefeld::setDatumErgaenzer([](const QString& text) { return DatumErgaenzen(text); });
  }
  void TearDown() override {
    EXPECT_EQ(boxen.fehler().toStdString(), "");
    form.reset();
    Basis::TearDown();
  }

  void öffne() {
    form = neueForm();
    form->laden();
    form->show();
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }
  bool offen() const { return form->isVisible(); }

  template <typename T = QWidget>
  T* kind(const QString& name) {
    T* k = form->template findChild<T*>(name);
    EXPECT_NE(k, nullptr) << name.toStdString();
    return k;
  }
  // An input by its caption; by its objectName where that is the matter. Where captions stand in
  // several tabs or frames at once, the one that is meant can be named.
  Eingabefeld* feld(const QString& name) {
    if (auto* benanntes = form->template findChild<Eingabefeld*>(name)) return benanntes;
    return Beschriftet::finde(form.get(), name);
  }
  Eingabefeld* feld(const QString& bereich, const QString& beschriftung) {
    return Beschriftet::finde(form.get(), beschriftung, bereich);
  }
  Eingabefeld* feld(int index) { return kind<Eingabefeld>(QString("sevt_%1").arg(index)); }
  std::string inhalt(const QString& name) { return feld(name)->inhalt().toStdString(); }
  std::string inhalt(const QString& bereich, const QString& beschriftung) {
    return feld(bereich, beschriftung)->inhalt().toStdString();
  }
  std::string inhalt(int index) { return feld(index)->inhalt().toStdString(); }
  Grid* liste(const QString& name) { return kind<Grid>(name); }

  static void tasten(QWidget* ziel, const QString& text) {
    for (const QChar zeichen : text)  // keyClicks knows no umlauts
      QTest::sendKeyEvent(QTest::Click, ziel, static_cast<Qt::Key>(zeichen.toUpper().unicode()),
                          QString(zeichen), Qt::NoModifier);
  }
  // Types over what stands in the input.
  static void tippe(QLineEdit* eingabe, const QString& text) {
    eingabe->setFocus();
    eingabe->selectAll();
    const auto* feld = qobject_cast<Eingabefeld*>(eingabe);
    if (feld == nullptr || feld->art() != Eingabefeld::Art::Auswahl)
      QTest::keyClick(eingabe, Qt::Key_Delete);
    tasten(eingabe, text);
  }
  void tippe(const QString& name, const QString& text) {
    auto* benanntes = form->template findChild<QLineEdit*>(name);
    tippe(benanntes ? benanntes : Beschriftet::finde<QLineEdit>(form.get(), name), text);
  }
  void tippe(const QString& bereich, const QString& beschriftung, const QString& text) {
    tippe(feld(bereich, beschriftung), text);
  }
  void tippe(int index, const QString& text) { tippe(feld(index), text); }

  // At its left end, where a check box has its mark.
  static void klicke(QAbstractButton* knopf) {
    QTest::mouseClick(knopf, Qt::LeftButton, {}, QPoint(8, knopf->height() / 2));
  }
  void klicke(const QString& name) { klicke(kind<QAbstractButton>(name)); }
  static QPoint mitte(Grid* grid, int zeile) {
    const QModelIndex index = grid->model()->index(zeile, 0);
    grid->scrollTo(index);
    return grid->visualRect(index).center();
  }
  void wähle(const QString& grid, int zeile) {
    QTest::mouseClick(liste(grid)->viewport(), Qt::LeftButton, {}, mitte(liste(grid), zeile));
  }

  static std::unique_ptr<Form> neueForm() {
    if constexpr (std::is_default_constructible_v<Form>)
      return std::make_unique<Form>();
    else
      return std::make_unique<Form>(nullptr);  // without a window that opened it
  }

  Meldungen::Probe boxen;
  std::unique_ptr<Form> form;
};
