#pragma once

#include <QList>
#include <QStringList>
#include <functional>

class QWidget;

// What every form has to keep to. Each rule gives one line for each fault, naming the control.
namespace Formregeln {

// The visible controls that the user acts on, without the parts that a control is made of.
QList<QWidget*> eingaben(QWidget* form);
QString bezeichnung(const QWidget* widget);  // class and name, for messages

// Calls it once for each page of the form's tabs, the page in front; once for a form without tabs.
void jedeSeite(QWidget* form, const std::function<void()>& aktion);

// Every input has an objectName of its own and is read out with a name.
QStringList namen(QWidget* form);
// No two inputs that are seen at once and typed into are read out alike.
QStringList gleichnamig(QWidget* form);
// No two mnemonics of what is visible at once are the same; nor two of one menu bar.
QStringList mnemonics(QWidget* form);
// Letters that a menu has more than once, as "menu:letter". The menu then goes from one to the
// next.
QStringList doppeltImMenü(QWidget* form);
// The stops of the Tab key from where the keyboard is, in their order. Ends before the first stop
// that comes again.
QList<QWidget*> tabfolge(QWidget* form);
// Each input that can be acted on is a stop once, the inputs of a group one after the other and
// none back before the last.
QStringList tabregeln(QWidget* form);
// Makes the form as small as it can be, then: every text has its room, nothing lies outside its
// parent or over its neighbour.
QStringList beschnitten(QWidget* form);
// What the user can't get at in the window as it is: a control that neither stands in it nor is
// scrolled into sight by the keyboard.
QStringList unerreichbar(QWidget* form);
// Buttons that aren't in sight without scrolling. außerRollend: those that scroll with inputs may.
QStringList verborgeneKnöpfe(QWidget* form, bool außerRollend);

}  // namespace Formregeln
