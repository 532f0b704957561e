#pragma once

#include <array>
#include <functional>

#include "planning/Starttermine.h"
#include "platform/controls/Formular.h"

class Eingabefeld;
class Grid;
class QCheckBox;
class QPushButton;

// The list of the open appointments of the next days, and the buttons that close them. Its check
// box is slot 13 of EinstellungenZahl.
class TV_Starttermine : public Formular {
 public:
  explicit TV_Starttermine(QWidget* oeffner = nullptr);

  // Shows the form modally and returns when it was closed. Throws Datenbankfehler when it can't be
  // loaded; it isn't shown then.
  void zeigen();
  // Loading alone: title, check box, first values, pick lists, the list.
  void laden();

 protected:
  void done(int ergebnis) override;
  bool eventFilter(QObject* objekt, QEvent* event) override;

 private:
  enum Slot : size_t { Erledigungstag, Art, Ort, Bis };

  void aufbauen();
  QWidget* tagBauen();
  QWidget* einzelnBauen();
  QWidget* standortBauen();
  QWidget* fussBauen();
  void verbinden();

  void listeLesen();  // the row that was current stays it
  void schreiben(const std::function<void()>& aktion);
  void zeileZeigen(int zeile);
  void erledigen(int zeile);
  void markierteErledigen();
  void bisHeuteErledigen();
  void amStandortErledigen();
  void gruppiertListen();
  Starttermine::Erledigung erledigung() const;

  Database m_db;
  Grid* litermine = nullptr;
  std::array<Eingabefeld*, 4> sevt{};  // by Slot; Art, Ort and Bis are of the closing by site
  std::array<QPushButton*, 4> cmdok{};
  QCheckBox* konterminreihe = nullptr;
  QCheckBox* kon = nullptr;
  QPushButton* ok = nullptr;
  QPushButton* okgruppiert = nullptr;
  QPushButton* hilfe = nullptr;
  QPushButton* schließen = nullptr;
};
