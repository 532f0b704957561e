#pragma once

#include <QDate>
#include <QHash>
#include <QMainWindow>
#include <array>
#include <functional>
#include <memory>

#include "core/main_list.h"
#include "mainform/Menue.h"
#include "mainform/Volkbild.h"
#include "platform/controls/Druckersuche.h"
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
class QTimer;
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
    std::function<bool()> druckerDa = Druckersuche::systemHatDrucker;
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
  void löscheZeile(int zeile) override;
  void datenvölkerlesen() override;

  // Writes the panel for the list's current row; without one it tells so.
  void VolkAnzeigen();
  // Enables or disables all by which the user can act on the list.
  void MenueSperren(bool frei);
  // What happens at each activation of the window; nothing while a form is open over it.
  void aktivieren();
  // Chooses a menu entry by name.
  void wählen(const QString& eintrag);

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
  void knöpfeBauen(QHBoxLayout* zeile);
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
  void zusammenfassungenNachholen();
  void abschließen();
  void komprimieren();

  // TA_TOVA_Liste.cpp
  QStringList listeLesen();
  void zeileÜbernehmen();
  void filterBeschriften();
  void leerhinweisSetzen();
  void wechseln(int richtung);
  void panelListen();
  void grafikUmschalten();
  void breitenUmschalten();

  // TA_TOVA_Menue.cpp
  void menüsBauen();
  void leisteBauen();
  void popupBauen();
  void befehleAnpassen();
  void ausführen(const Menü::Eintrag& eintrag);
  void popupWählen(int index);
  void leisteAnpassen();

  Database m_db;
  QTimer* m_nachholen = nullptr;  // until no colony's summary is left to be written
  std::unique_ptr<Einzelstart> m_einzelstart;
  bool m_geladen = false;
  bool m_beendet = false;     // after compaction: closing does nothing any more
  bool m_vorgemerkt = false;  // an activation is queued
  bool m_aktiviertGerade = false;
  bool m_grafikGesperrt = false;  // kon1 is being set by the program
  QString m_text;                 // of the panel, with its line ends
  Volkbild::Rahmen m_rahmen;      // of the magazines in the picture

  std::array<QToolBar*, 2> m_mleiste{};  // one bar to the user, in one row or in two
  QAction* m_umbruchtrenner = nullptr;
  QMenu* m_popupliste = nullptr;
  QList<QMenu*> m_menüs;
  QHash<QString, QAction*> m_aktionen;  // of the menu entries, by name
  QList<QAction*> m_tasten;             // in the order of Menü::tasten()
  QList<QAction*> m_popzeile;

  QSplitter* m_teiler = nullptr;
  Grid* m_datali = nullptr;
  QLabel* m_leerhinweis = nullptr;
  QButtonGroup* m_filter = nullptr;
  std::array<QRadioButton*, 3> m_optiverkauft{};
  QPlainTextEdit* m_text1 = nullptr;
  QPushButton* m_cmdok = nullptr;
  std::array<QToolButton*, 2> m_abwaerts{};
  QToolButton* m_comdrucken = nullptr;
  QToolButton* m_linksrechts = nullptr;
  QCheckBox* m_kon = nullptr;
  QCheckBox* m_kon1 = nullptr;
  Bildfeld* m_bild = nullptr;
};
