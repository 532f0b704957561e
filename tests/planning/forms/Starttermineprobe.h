#pragma once

#include <QCheckBox>
#include <QHeaderView>
#include <QPushButton>

#include "planning/forms/TV_Starttermine.h"
#include "planning/forms/Terminformprobe.h"

class TVStarttermine : public Terminformprobe<TV_Starttermine> {
 protected:
  // Colonies 1 and 2 at Hof; four open appointments within the horizon.
  void fünf() {
    volk1 = neuesVolk("1", "X", "Hof");
    volk2 = neuesVolk("2", "X", "Hof");
    termin(tag(6, 15), "Durchsicht", volk1);
    termin(tag(6, 16), "Durchsicht", volk2);
    termin(tag(6, 20), "Schau");
    termin(tag(7, 4), "Durchsicht", volk1);
    termin(tag(7, 5), "Durchsicht", volk1);
  }
  qint64 volk1 = 0;
  qint64 volk2 = 0;
};
