#pragma once

#include <QApplication>
#include <QPointer>
#include <QTimer>

#include "colonies/Testbetrieb.h"
#include "colonies/forms/TV_Selektieren.h"
#include "gemeinsam/Formularprobe.h"
#include "gemeinsam/Testliste.h"

// Five colonies, the last one gone, and the list of those in stock.
class Selektionsprobe : public Formularprobe<TV_Selektieren, Testbetrieb> {
 protected:
  void SetUp() override {
    Formularprobe::SetUp();
    for (const char* nummer : {"1", "2", "3", "4"})
      neuesVolk(nummer, "X", nummer[0] < '3' ? "Hof" : "Heide");
    neuesVolk("5", "", "Hof");
    liste = std::make_unique<Testliste>();
  }
  void TearDown() override {
    form.reset();
    liste.reset();
    Formularprobe::TearDown();
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

  void regel(int index) { klicke(QString("entselekt_%1").arg(index)); }

  std::unique_ptr<Testliste> liste;
};
