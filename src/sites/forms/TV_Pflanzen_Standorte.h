#pragma once

#include "platform/controls/Formular.h"
#include "platform/database/Datenbank.h"

class Grid;
class QPushButton;
class QTabWidget;
class Standortblock;
class Pflanzenblock;
class Trachtblock;

// Sites, forage plants and which of them stand at which site. The opener sets FormModus to the
// number of the tab ("0" or "2"); another text leaves the first one.
class TV_Pflanzen_Standorte : public Formular {
 public:
  explicit TV_Pflanzen_Standorte(QWidget* oeffner = nullptr);

  // Loads, shows the form modally and returns when it was closed. Throws Datenbankfehler when it
  // can't be loaded; it isn't shown then.
  void zeigen();
  // Loading alone: pick lists, lists and the tab.
  void laden();

 private:
  void aufbauen();
  QWidget* reiterJeStandort();
  QWidget* fussBauen();
  void verbinden();
  void reihenfolgeSetzen();

  void reiterGewechselt(int reiter);
  void pflanzenJeStandortOeffnen();
  void pflanzenDesStandortsZeigen(int ort);
  void jahreVerschieben(int jahre);
  void schliessen();
  void entladen();

  Database m_db;
  QTabWidget* m_reiter = nullptr;
  Standortblock* m_standorte = nullptr;
  Trachtblock* m_tracht = nullptr;
  Pflanzenblock* m_pflanzen = nullptr;
  Grid* lijeort = nullptr;
  QList<qint64> m_orte;  // the sites' IDs, as lijeort was read
  QPushButton* aufwaerts[2] = {};
  QPushButton* comstandortlisten = nullptr;
  QPushButton* hilfe = nullptr;
  QPushButton* beenden = nullptr;
};
