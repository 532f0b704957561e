#pragma once

#include "data/forms/Verwaltungsformular.h"

class QLabel;
class QTabWidget;
class Geschäftsblock;
class Lagerblock;

// The beekeeper's cash and honey book: purchases, sales and the honey store. The opener sets
// FormModus to the number of the tab, "0" to "2"; another text opens the first.
class TV_EinVerkauf_Lager : public Verwaltungsformular {
 public:
  explicit TV_EinVerkauf_Lager(QWidget* öffner = nullptr);

 protected:
  void füllen() override;  // lists, pick lists, sums and the tab

 private:
  void aufbauen();
  QList<QWidget*> fußBauen();
  void verbinden();

  void reiterGewechselt(int reiter);
  void summenZeigen();

  QTabWidget* m_reiter = nullptr;
  Geschäftsblock* m_einkauf = nullptr;
  Geschäftsblock* m_verkauf = nullptr;
  Lagerblock* m_lager = nullptr;
  QPushButton* m_comlisten = nullptr;
  QPushButton* m_rosumme = nullptr;
  QLabel* m_bezsumme = nullptr;
  QLabel* m_summenstand = nullptr;  // seen while the sums aren't those of the lists
};
