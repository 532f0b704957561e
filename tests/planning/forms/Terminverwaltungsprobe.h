#pragma once

#include <QHeaderView>
#include <QPushButton>
#include <QRadioButton>

#include "planning/forms/TV_Terminverwaltung.h"
#include "planning/forms/Terminformprobe.h"

// The calendar with four appointments: one is done, one belongs to a colony, one lies far ahead.
class TVTerminverwaltung : public Terminformprobe<TV_Terminverwaltung> {
 protected:
  void SetUp() override {
    Terminformprobe::SetUp();
    volk = neuesVolk("7", "X", "Heide");
    neuesVolk("8", "", "Heide");
    termin(tag(6, 21), "Schau");
    termin(tag(6, 22), "Steuer", 0, "J");
    termin(tag(6, 23), "Durchsicht", volk);
    termin(tag(8, 1), "Fest");
  }
  void volkansicht() { klicke("opti_1"); }
  void neu() { klicke("neu_0"); }
  void ändern() { klicke("neu_1"); }

  qint64 volk = 0;
};
