#pragma once

#include <QDialog>
#include <functional>

class QLabel;
class QGridLayout;

// What all forms share: the given name as objectName, geometry remembered per form, Esc closes, F1
// opens the help topic of the form's name, Ctrl+Tab turns the pages, modal above its opener.
class Formular : public QDialog {
 public:
  // name: the form's name, also the key of its geometry and its help topic.
  Formular(const QString& name, const QString& titel, QWidget* oeffner);
  ~Formular() override;

  // Shows the form modally and returns when it was closed.
  void zeigen();

  // Takes the button made default (setDefault) as the one that Enter presses whenever no other
  // button has the focus, also when it was made before it stood in the form.
  void setVisible(bool sichtbar) override;

  // What F1 and the help buttons call with the topic; set once by the program.
  static void setHilfe(std::function<void(QWidget*, const QString&)> hilfe);
  void hilfeZeigen();

  // A caption label for an input: sets it as its buddy and as the input's accessible name.
  static QLabel* beschriften(const QString& text, QWidget* eingabe);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void done(int ergebnis) override;

 private:
  bool m_geometrieGeladen = false;
  bool m_vorgabeFest = false;
};

// Column widths, geometry and splits of windows, by key, in one file of the program folder.
namespace Fensterablage {
void setDatei(const QString& pfad);  // empty: nothing is kept
QVariant lesen(const QString& schluessel);
void schreiben(const QString& schluessel, const QVariant& wert);
}  // namespace Fensterablage
