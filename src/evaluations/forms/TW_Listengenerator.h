#pragma once

#include "core/forms/Datenformular.h"

class Eingabefeld;
class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

// The list generator: a text with placeholders, the list of the fields to choose them from, the
// files in which texts are kept, and the run for the colonies marked in the main list. Text and
// file stay for the next opening.
class TW_Listengenerator : public Datenformular {
 public:
  explicit TW_Listengenerator(QWidget* öffner);

 protected:
  void füllen() override;  // writes the sample texts where they are missing
  void done(int ergebnis) override;
  bool eventFilter(QObject* objekt, QEvent* event) override;

 private:
  void aufbauen();
  QWidget* textBauen();
  QWidget* felderBauen();
  void verbinden();

  QString text() const;
  void setDatei(const QString& name, const QString& text);
  void dateiZeigen();
  void feldEinfügen();

  void neuerText();
  void textLaden();
  // These give false where the text isn't in a file afterwards.
  bool speichern();
  bool speichernUnter();
  bool schreiben(const QString& name);
  // Asks whether a changed text is to be saved. False: the user wants to go on with it.
  bool darfWeg(const QString& frage);

  void drucken();

  QString m_datei;  // without the folder; empty: the text has no file yet
  QLabel* m_dateiname = nullptr;
  QPlainTextEdit* m_textfeld = nullptr;
  QListWidget* m_kom = nullptr;
  QPushButton* m_einfügen = nullptr;
  QPushButton* m_neu = nullptr;
  QPushButton* m_laden = nullptr;
  QPushButton* m_speichern = nullptr;
  QPushButton* m_speichernUnter = nullptr;
  Eingabefeld* m_sevText1 = nullptr;
  QPushButton* m_drucken = nullptr;
};
