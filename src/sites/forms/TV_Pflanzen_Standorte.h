#pragma once

#include "data/forms/Verwaltungsformular.h"

class Grid;
class QPushButton;
class QTabWidget;
class Standortblock;
class Pflanzenblock;
class Trachtblock;

// Sites, forage plants and which of them stand at which site. The opener sets FormModus to the
// number of the tab ("0" or "2"); another text leaves the first one.
class TV_Pflanzen_Standorte : public Verwaltungsformular {
 public:
  explicit TV_Pflanzen_Standorte(QWidget* öffner = nullptr);

 protected:
  void füllen() override;  // pick lists, lists and the tab
  // Works out the forage periods anew. The window's own close box and Esc don't come this way.
  void schließen() override;

 private:
  void aufbauen();
  QWidget* reiterJeStandort();
  void verbinden();

  void reiterGewechselt(int reiter);
  void pflanzenJeStandortÖffnen();
  void pflanzenDesStandortsZeigen(int ort);
  void jahreVerschieben(int jahre);

  QTabWidget* m_reiter = nullptr;
  Standortblock* m_standorte = nullptr;
  Trachtblock* m_tracht = nullptr;
  Pflanzenblock* m_pflanzen = nullptr;
  Grid* m_lijeort = nullptr;
  QList<qint64> m_orte;  // the sites' IDs, as lijeort was read
  QPushButton* m_aufwaerts[2] = {};
  QPushButton* m_comstandortlisten = nullptr;
};
