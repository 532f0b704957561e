#pragma once

#include "core/forms/Datenformular.h"
#include "data/forms/Verwaltungsblock.h"

// A form of management blocks. One that has a single block says so in its constructor and is done;
// one with several lays them out itself and overrides füllen where they are read in an order of
// their own.
class Verwaltungsformular : public Datenformular {
 public:
  using Datenformular::Datenformular;

 protected:
  // The whole form: the block above the foot, its "Neu" what Enter presses.
  void ausBlock(Verwaltungsblock* block, const Fuß& fuß = {});
  // Those that the form lays out itself, in the order in which they are loaded.
  void setBlöcke(const QList<Verwaltungsblock*>& blöcke) { m_blöcke = blöcke; }
  const QList<Verwaltungsblock*>& blöcke() const { return m_blöcke; }

  void füllen() override;  // loads the blocks, the keyboard in the first input
  void loslassen() override;

 private:
  QList<Verwaltungsblock*> m_blöcke;
};
