#pragma once

#include "platform/controls/Formular.h"
#include "platform/database/Datenbank.h"

class QLabel;
class QPushButton;
class QTabWidget;
class Geschaeftsblock;
class Lagerblock;
class Verwaltungsblock;

// The beekeeper's cash and honey book: purchases, sales and the honey store. The opener sets
// FormModus to the number of the tab, "0" to "2"; another text opens the first.
class TV_EinVerkauf_Lager : public Formular {
 public:
  explicit TV_EinVerkauf_Lager(QWidget* oeffner = nullptr);

  // Loads, shows the form modally and returns when it was closed. Throws Datenbankfehler when it
  // can't be loaded; it isn't shown then.
  void zeigen();
  // Loading alone: lists, pick lists, sums and the tab.
  void laden();

 private:
  void aufbauen();
  QWidget* fussBauen();
  void verbinden();
  void reihenfolgeSetzen();

  void reiterGewechselt(int reiter);
  void summenZeigen();
  void entladen();

  Database m_db;
  QTabWidget* m_reiter = nullptr;
  Geschaeftsblock* m_einkauf = nullptr;
  Geschaeftsblock* m_verkauf = nullptr;
  Lagerblock* m_lager = nullptr;
  QPushButton* comlisten = nullptr;
  QPushButton* rosumme = nullptr;
  QLabel* bezsumme = nullptr;
  QLabel* m_summenstand = nullptr;  // seen while the sums aren't those of the lists
  QPushButton* hilfe = nullptr;
  QPushButton* beenden = nullptr;
};
