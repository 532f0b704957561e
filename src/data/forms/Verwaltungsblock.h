#pragma once

#include <QWidget>

#include "data/Verwaltungsfelder.h"

class Eingabefeld;
class Grid;
class QBoxLayout;
class QPushButton;

// The shared part of all management forms: a list and, in inputs, a working copy of its current
// row. "Neu" adds what the inputs show as a new row, "Ändern" writes it over the current one,
// "Löschen" deletes that. A form holds one or several blocks.
//
// A new block is a class on this one: it hands its Plan to the constructor and overrides the steps
// that are peculiar to it (the protected functions), in most cases prüfe and vorSpeichern alone.
// sites/forms/Standortbloecke is the example.
class Verwaltungsblock : public QWidget {
 public:
  struct Plan {
    QString tabelle;
    Verwaltung::Felder felder;
    QString titel;                  // over the inputs
    QString anweisung;              // of the list, its columns include ID and the fields
    QString liste;                  // objectName of the list
    QString listentitel;            // its accessible name
    QString schlüssel;              // under which its column widths are kept
    QString eingabe, neu, löschen;  // objectNames; the first two get an index behind them
    // What "Ändern" says without a current row.
    QString zuerstMarkieren = "Bitte markieren Sie zuerst den Datensatz, den Sie ändern möchten!";
    QString hinweis = {};  // above the inputs that are only shown
  };

  explicit Verwaltungsblock(const Plan& plan, QWidget* eltern = nullptr);

  // Pick lists, the empty form and the list, without a current row. This, listeLesen and
  // picklistenLesen throw Datenbankfehler.
  void laden(const Database& datenbank);
  // The handle and the empty form alone, for a form that reads its blocks in an order of its own.
  void öffnen(const Database& datenbank);
  // Lets go of the database: the form was closed. What is shown stays until it is loaded again.
  void entladen() { m_datenbank.Close(); }
  // The rows anew, none current; the inputs stay. An override calls this one.
  virtual void listeLesen();
  void picklistenLesen();

  const Plan& plan() const { return m_plan; }
  Grid* liste() const { return m_liste; }
  Eingabefeld* eingabe(const QString& feld) const;
  Verwaltung::Texte texte() const;
  std::optional<qint64> aktuelleId() const;  // nothing without a current row
  // Makes the row of this ID current and shows it in the inputs; without one nothing changes.
  void zeigeDatensatz(qint64 id);
  void fokusAufErstesFeld();
  QPushButton* neuKnopf() const { return m_neu[0]; }
  // The controls in the order of the keyboard. A block with controls of its own adds them.
  virtual QList<QWidget*> tabfolge() const;
  // Room for controls of the form: behind the buttons, and above the list.
  QBoxLayout* knopfzeile() const { return m_knopfzeile; }
  QBoxLayout* listenkopf() const { return m_listenkopf; }

 protected:
  Database& datenbank() { return m_datenbank; }
  const Verwaltung::Felder& felder() const { return m_plan.felder; }

  // ---- what a block may override ----

  // The list: the values of its statement, and what follows when it was read.
  virtual QVariantList listenwerte() const { return {}; }
  virtual void nachListe() {}

  // "Neu" and "Ändern" ask in this order. The first two can stop it with a box; after the last the
  // pick lists and the list are read and the saved row is shown.
  // 1. The reasons for not saving, and the text of the one box that tells them.
  virtual QStringList prüfe(const Verwaltung::Texte& texte, bool ändern);
  virtual QString meldung(const QStringList& gründe) const;
  // 2. An objection (an empty text is none), once it is known that "Ändern" has a row. Fields
  //    without an input go into weitere. Without an ID a new row is being saved.
  virtual QString vorSpeichern(const Verwaltung::Texte& texte, std::optional<qint64> id,
                               QVariantHash& weitere);
  // 3. Writes the row and gives its ID. A row that takes others along writes them here, all in a
  //    Sammelschreiben of its own.
  virtual qint64 schreiben(const Verwaltung::Texte& texte, std::optional<qint64> id,
                           const QVariantHash& weitere);
  // 4. What follows from the saved row, in a commit of its own.
  virtual void nachSpeichern(qint64 id, bool neu);

  // "Löschen", after the user has agreed: what goes with the row, in one commit with it and before
  // it; and what is to be shown when the row is gone from the list. When it fails the row is still
  // there, and none is current: the button pressed once more must not take another one.
  virtual void vorLöschen(qint64) {}
  virtual void nachLöschen() {}

 private:
  void aufbauen();
  QWidget* eingabenBauen();
  Eingabefeld* feldBauen(int nummer);
  void verbinden();
  void leeren();  // the inputs as in the empty form
  void zeigeZeile(int zeile);
  QString benennung(int zeile) const;
  bool überschreibenErfragt(int zeile);
  bool löschenErfragt(int zeile);
  void speichern(bool ändern);
  void löschen();

  Plan m_plan;
  Database m_datenbank;
  std::optional<qint64> m_gezeigt;  // the row that the inputs were filled from
  QList<Eingabefeld*> m_eingaben;
  Grid* m_liste = nullptr;
  QPushButton* m_neu[2] = {};
  QPushButton* m_löschen = nullptr;
  QBoxLayout* m_knopfzeile = nullptr;
  QBoxLayout* m_listenkopf = nullptr;
};
