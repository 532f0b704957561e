#pragma once

#include <QHash>
#include <QWidget>
#include <functional>

#include "data/Verwaltungsfelder.h"

class Eingabefeld;
class Grid;
class QBoxLayout;
class QLabel;
class QPushButton;

// The shared part of all management forms: a list and, in inputs, a working copy of its current
// row. "Neu" adds what the inputs show as a new row, "Ändern" writes it over the current one,
// "Löschen" deletes that. A form holds one or several blocks; what is peculiar to one is
// overridden.
class Verwaltungsblock : public QWidget {
 public:
  struct Plan {
    QString tabelle;
    Verwaltung::Felder felder;
    QString titel;                   // over the inputs
    QString anweisung;               // of the list, its columns include ID and the fields
    QString liste;                   // objectName of the list
    QString listentitel;             // its accessible name
    QString schluessel;              // under which its column widths are kept
    QString eingabe, neu, loeschen;  // objectNames; the first two get an index behind them
    // What "Ändern" says without a current row.
    QString zuerstMarkieren = "Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!";
    QString hinweis = {};  // above the inputs that are only shown
  };

  explicit Verwaltungsblock(const Plan& plan, QWidget* eltern = nullptr);

  // Pick lists, the empty form and the list, without a current row. All three reading functions
  // throw Datenbankfehler.
  void laden(const Database& datenbank);
  // The handle and the empty form alone, for a form with an order of its own.
  void oeffnen(const Database& datenbank);
  // Lets go of the database: the form was closed. What is shown stays until it is loaded again.
  void entladen() { m_datenbank.Close(); }
  virtual void listeLesen();  // the rows anew, none current; the inputs stay
  void picklistenLesen();

  Grid* liste() const { return m_liste; }
  Eingabefeld* eingabe(const QString& feld) const;
  Verwaltung::Texte texte() const;
  std::optional<qint64> aktuelleId() const;  // nothing without a current row
  // Makes the row of this ID current and shows it in the inputs; without one nothing changes.
  void zeigeDatensatz(qint64 id);
  void leeren();  // the inputs as in the empty form
  void fokusAufErstesFeld();
  QPushButton* neuKnopf() const { return m_neu[0]; }
  // The controls in the order of the keyboard.
  QList<QWidget*> tabfolge() const;
  // Room for controls of the form: behind the buttons, and above the list.
  QBoxLayout* knopfzeile() const { return m_knopfzeile; }
  QBoxLayout* listenkopf() const { return m_listenkopf; }

 protected:
  Database& datenbank() { return m_datenbank; }
  const Verwaltung::Felder& felder() const { return m_plan.felder; }
  virtual QVariantList listenwerte() const { return {}; }  // values of the list's statement
  // The reasons for not saving, which one box tells.
  virtual QStringList prüfe(const Verwaltung::Texte& texte, bool ändern);
  virtual QString meldung(const QStringList& gründe) const;  // the text of that box
  // The text of a box that stops the saving, or an empty one. Fields without an input go into
  // weitere. Without an ID a new row is being saved.
  virtual QString vorSpeichern(const Verwaltung::Texte& texte, std::optional<qint64> id,
                               QVariantHash& weitere);
  // Writes the row, and gives its ID. What belongs to the row and has to be in one commit with it
  // goes here and into vorLöschen.
  virtual qint64 schreiben(const Verwaltung::Texte& texte, std::optional<qint64> id,
                           const QVariantHash& weitere);
  virtual void nachSpeichern(qint64 id, bool neu);  // before the list is read anew
  virtual void nachListe() {}                       // the list was read
  virtual void vorLöschen(qint64) {}  // the user has agreed; in one commit with the row
  virtual void nachLöschen() {}
  // The current row was shown in the inputs.
  virtual void gezeigt() {}

 private:
  void aufbauen();
  QWidget* eingabenBauen();
  Eingabefeld* feldBauen(int nummer);
  void verbinden();
  void zeigeZeile(int zeile);
  void speichern(bool ändern);
  void löschen();

  Plan m_plan;
  Database m_datenbank;
  QList<Eingabefeld*> m_eingaben;
  Grid* m_liste = nullptr;
  QPushButton* m_neu[2] = {};
  QPushButton* m_löschen = nullptr;
  QBoxLayout* m_knopfzeile = nullptr;
  QBoxLayout* m_listenkopf = nullptr;
};
