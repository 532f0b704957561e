#pragma once

#include <array>
#include <optional>

#include "output/Ausgabeliste.h"
#include "platform/controls/Formular.h"

class Fortschrittsbalken;
class Grid;
class QCheckBox;
class QMenu;
class QPushButton;

// The last step of the evaluations: shows the list that was handed on in gridli.txt and passes it
// on, sorted as it is shown, to the text output, a spreadsheet or the browser. When the spreadsheet
// couldn't be opened FormModus is "xyz" afterwards.
class TA_Zwischenliste : public Formular {
 public:
  explicit TA_Zwischenliste(QWidget* öffner = nullptr);
  // Shows the list that was just written to gridli.txt, which needn't be read again.
  TA_Zwischenliste(QWidget* öffner, Ausgabeliste geschrieben);

 protected:
  void füllen() override;  // the list, the column widths; throws Dateifehler
  void done(int ergebnis) override;

 private:
  void aufbauen();
  QList<QWidget*> knöpfeBauen();
  void popupBauen();
  void verbinden();
  void breitenAnpassen();
  Ausgabeliste liste() const;
  bool istLeer();  // tells it to the user
  void textAuswertung();
  void excelAuswertung();
  void explorerAuswertung();

  std::optional<Ausgabeliste> m_geschrieben;
  QStringList m_überschriften;
  Grid* m_gridli = nullptr;
  QCheckBox* m_kon = nullptr;
  QPushButton* m_comtext = nullptr;
  QPushButton* m_comexcel = nullptr;
  std::array<QPushButton*, 2> m_roexplorer{};
  QMenu* m_popzeile = nullptr;
  Fortschrittsbalken* m_meter = nullptr;
};

// What the evaluations call: hand a list on and show it in TA_Zwischenliste. They throw
// Dateifehler.

// meter: the caller's bar, which shows how far the writing of a long list is.
void zwischenlisteZeigen(QWidget* öffner, const Ausgabeliste& liste,
                         Fortschrittsbalken* meter = nullptr);
// All rows and columns; a column without a caption is called by its name.
void zwischenlisteZeigen(QWidget* öffner, const Daten& daten,
                         const QStringList& überschriften = {});
// What a grid shows: its rows in their order, its captions and texts, the hidden columns as well.
void zwischenlisteZeigen(QWidget* öffner, const Grid& grid);
