#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <typeinfo>

class Formular;
class QWidget;

// The forms of the program, by the menu entry that opens them. Menu, tool bar, the buttons that
// lead from form to form and the contract test know of a form from this one list.
namespace Formen {

struct Eintrag {
  QString eintrag;  // its caption, rule and value stand in mainform/Menue.cpp
  std::function<Formular*(QWidget* öffner)> machen;
  std::function<void(const QString& wert)> einstellen;  // hands the entry's value on; may be empty
  const std::type_info* klasse;                         // entries of one class share its instance
};

const QList<Eintrag>& liste();
bool gibtEs(const QString& eintrag);

// Shows the entry's form modally over its opener and returns when it was closed. It is made on
// first use. Throws what loading it throws.
void zeigen(QWidget* öffner, const QString& eintrag);

// The help window, over whatever form asks for it. A missing help file is told.
void hilfe(QWidget* öffner, const QString& thema);

}  // namespace Formen
