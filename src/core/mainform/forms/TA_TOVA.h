#pragma once

#include <QDate>
#include <QHash>
#include <QMainWindow>
#include <array>
#include <functional>
#include <memory>

#include "core/main_list.h"
#include "core/mainform/Menue.h"
#include "core/mainform/Volkbild.h"
#include "core/mainform/forms/Formen.h"
#include "platform/database/Datenbank.h"
#include "platform/files/Einzelstart.h"

class Bildfeld;
class Grid;
class QButtonGroup;
class QCheckBox;
class QHBoxLayout;
class QLabel;
class QMenu;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QSplitter;
class QToolBar;
class QToolButton;

// The main form: the list of colonies, the panel with all about one of them, and the menus that
// open every other form.
class TA_TOVA : public QMainWindow, public Hauptliste {
 public:
  TA_TOVA();
  ~TA_TOVA() override;

  // What the start finds on the machine; a test gives its own.
  struct Umgebung {
    QString ordner;  // the program folder
    QDate heute = QDate::currentDate();
    std::function<bool()> druckerDa;  // empty: ask the system
  };
  // All steps of the start up to showing the window. False when the program has to end; the user
  // has been told why.
  bool laden(const Umgebung& umgebung);
  // Shows the window: as it was left, maximised at the first start.
  void zeigen();

  int zeilen() const override;
  int aktuelleZeile() const override;
  void setAktuelleZeile(int zeile) override;
  QList<int> markierteZeilen() const override;
  void setMarkierteZeilen(const QList<int>& zeilen) override;
  QString zelle(int zeile, const QString& spalte) const override;
  void loescheZeile(int zeile) override;
  void datenvölkerlesen() override;

  // Writes the panel for the list's current row; without one it tells so.
  void VolkAnzeigen();
  // Enables or disables all by which the user can act on the list.
  void MenueSperren(bool frei);
  // What happens at each activation of the window; nothing while a form is open over it.
  void aktivieren();
  // Chooses a menu entry by name.
  void waehlen(const QString& eintrag);

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* objekt, QEvent* event) override;

 private:
  // TA_TOVA.cpp: what stands where
  void inhaltBauen();
  void filterBauen(QHBoxLayout* zeile);
  void knoepfeBauen(QHBoxLayout* zeile);
  QWidget* listeBauen();
  QWidget* panelBauen();
  void verbinden();
  void breitenTeilen();

  // TA_TOVA_Start.cpp
  void datenbankBereitstellen();
  void schreibschutzAufheben();
  void einstellungenAnwenden();
  void aktivierenVormerken();
  void ersteAktivierung();
  void listeBeiBedarfLesen();
  void abschliessen();
  void komprimieren();

  // TA_TOVA_Liste.cpp
  QStringList listeLesen();
  void zeileUebernehmen();
  void filterBeschriften();
  void leerhinweisSetzen();
  void wechseln(int richtung);
  void panelListen();
  void grafikUmschalten();
  void breitenUmschalten();

  // TA_TOVA_Menue.cpp
  void menuesBauen();
  void leisteBauen();
  void popupBauen();
  void befehleAnpassen();
  void ausfuehren(const Menue::Eintrag& eintrag);
  void popupWaehlen(int index);
  void leisteAnpassen();

  Database m_db;
  std::unique_ptr<Einzelstart> m_einzelstart;
  Formen m_formen{this};
  bool m_geladen = false;
  bool m_beendet = false;     // after compaction: closing does nothing any more
  bool m_vorgemerkt = false;  // an activation is queued
  bool m_aktiviertGerade = false;
  bool m_grafikGesperrt = false;  // kon1 is being set by the program
  QString m_text;                 // of the panel, with its line ends
  Volkbild::Rahmen m_rahmen;      // of the magazines in the picture

  std::array<QToolBar*, 2> mleiste{};  // one bar to the user, in one row or in two
  QAction* m_umbruchtrenner = nullptr;
  QMenu* popupliste = nullptr;
  QList<QMenu*> m_menues;
  QHash<QString, QAction*> m_aktionen;  // of the menu entries, by name
  QList<QAction*> m_tasten;             // in the order of Menue::tasten()
  QList<QAction*> popzeile;

  QSplitter* teiler = nullptr;
  Grid* datali = nullptr;
  QLabel* leerhinweis = nullptr;
  QButtonGroup* filter = nullptr;
  std::array<QRadioButton*, 3> optiverkauft{};
  QPlainTextEdit* text1 = nullptr;
  QPushButton* cmdok = nullptr;
  std::array<QToolButton*, 2> abwaerts{};
  QToolButton* comdrucken = nullptr;
  QToolButton* linksrechts = nullptr;
  QCheckBox* kon = nullptr;
  QCheckBox* kon1 = nullptr;
  Bildfeld* bild = nullptr;
};
