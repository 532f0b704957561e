#pragma once

#include <array>

#include "output/Ausgabeliste.h"
#include "platform/controls/Formular.h"

class Grid;
class QCheckBox;
class QMenu;
class QProgressBar;
class QPushButton;

// The last step of the evaluations: shows the list that was handed on in gridli.txt and passes it
// on, sorted as it is shown, to the text output, a spreadsheet or the browser.
class TA_Zwischenliste : public Formular {
 public:
  explicit TA_Zwischenliste(QWidget* oeffner = nullptr);

  // Loads the list, shows the form modally and returns when it was closed. When the spreadsheet
  // couldn't be opened FormModus is "xyz" then. Throws Dateifehler when the list can't be loaded.
  void zeigen();
  // Loading alone: the list, the column widths.
  void laden();

 protected:
  void done(int ergebnis) override;

 private:
  void aufbauen();
  QWidget* knopfleiste();
  void popupBauen();
  void verbinden();
  void breitenAnpassen();
  Ausgabeliste liste() const;
  bool istLeer();  // tells it to the user
  // Runs with the wait pointer; a long list keeps the window alive and shows how far it is.
  void laufen(const std::function<void(const Fortschritt&)>& arbeit);
  void textAuswertung();
  void excelAuswertung();
  void explorerAuswertung();

  bool m_laeuft = false;
  QStringList m_ueberschriften;
  Grid* gridli = nullptr;
  QCheckBox* kon = nullptr;
  QPushButton* comtext = nullptr;
  QPushButton* comexcel = nullptr;
  std::array<QPushButton*, 2> roexplorer{};
  QPushButton* hilfe = nullptr;
  QPushButton* cmdschließen = nullptr;
  QMenu* popzeile = nullptr;
  QProgressBar* meter = nullptr;
};

// What the evaluations call: hand a list on and show it in TA_Zwischenliste. They throw
// Dateifehler.

// All rows and columns; a column without a caption is called by its name.
void zwischenlisteZeigen(QWidget* oeffner, const Daten& daten,
                         const QStringList& ueberschriften = {});
// What a grid shows: its rows in their order, its captions and texts, the hidden columns as well.
void zwischenlisteZeigen(QWidget* oeffner, const Grid& grid);
