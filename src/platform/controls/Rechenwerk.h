#pragma once

#include <QString>
#include <optional>

// The arithmetic of the pocket calculator, key by key, left to right without precedence. No window.
// What is shown has a decimal comma; a division by zero or a number of more than 15 digits shows
// "Fehler" until C is pressed.
class Rechenwerk {
 public:
  enum class Operation { Keine, Plus, Minus, Mal, Geteilt };

  void ziffer(int ziffer);  // 0 to 9
  void komma();
  void zurück();  // takes the last character back; a result starts anew
  void operation(Operation operation);
  void gleich();             // pressed again it repeats the last operation
  void steuer(int prozent);  // adds so many percent to the number shown
  void löschen();            // C
  void setWert(double wert);

  QString anzeige() const;
  QString vorgang() const;  // what is pending, as "12,5 +"
  bool fehler() const { return m_fehler; }
  bool offen() const { return m_operation != Operation::Keine; }
  // The number shown; none after a failure.
  std::optional<double> wert() const;

 private:
  double gezeigt() const;
  void zeige(double wert);
  bool rechne(double rechts, Operation operation);

  QString m_eingabe = QStringLiteral("0");
  bool m_wirdGetippt = true;  // the next digit goes on with m_eingabe
  bool m_rechtsDa = false;    // there is a right operand for the pending operation
  double m_wert = 0;          // exact value behind m_eingabe while it is a result
  double m_links = 0;
  Operation m_operation = Operation::Keine;
  double m_letzterRechts = 0;
  Operation m_letzte = Operation::Keine;
  bool m_fehler = false;
};
