#pragma once

#include <array>
#include <functional>

#include "core/forms/Datenformular.h"
#include "planning/Starttermine.h"

class Eingabefeld;
class Grid;
class QCheckBox;
class QPushButton;

// The list of the open appointments of the next days, and the buttons that close them. Its check
// box is slot 13 of EinstellungenZahl.
class TV_Starttermine : public Datenformular {
 public:
  explicit TV_Starttermine(QWidget* öffner = nullptr);

 protected:
  void füllen() override;  // title, check box, first values, pick lists, the list
  void done(int ergebnis) override;
  bool eventFilter(QObject* objekt, QEvent* event) override;

 private:
  enum Slot : size_t { Erledigungstag, Art, Ort, Bis };

  void aufbauen();
  QWidget* tagBauen();
  QWidget* einzelnBauen();
  QWidget* standortBauen();
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

  Grid* m_litermine = nullptr;
  std::array<Eingabefeld*, 4> m_sevt{};  // by Slot; Art, Ort and Bis are of the closing by site
  std::array<QPushButton*, 4> m_cmdok{};
  QCheckBox* m_konterminreihe = nullptr;
  QCheckBox* m_kon = nullptr;
  QPushButton* m_ok = nullptr;
  QPushButton* m_okgruppiert = nullptr;
};
