#pragma once

#include <QWidget>
#include <array>

#include "bookings/Buchungstypen.h"

class Eingabefeld;
class QGridLayout;
class QLabel;
class QPlainTextEdit;

// The numbered entry slots of the booking form, sevt_0 (the date) to sevt_27, with their captions:
// dressed and laid out anew for each booking type. Slot 15 is the many-lined note. The date stands
// above all, beside it what the form says about the entry.
class Slotfelder : public QWidget {
 public:
  explicit Slotfelder(QWidget* eltern);

  Eingabefeld* feld(int nummer) const { return m_felder[static_cast<size_t>(nummer)]; }
  QPlainTextEdit* notiz() const { return m_notiz; }
  QLabel* bezeingabeart() const { return m_bezeingabeart; }
  QLabel* bezmw() const { return m_bezmw; }
  // The field or, for slot 15, the note.
  QWidget* eingabe(int nummer) const;

  QString text(int nummer) const;
  // Puts the text in as the program's own.
  void setText(int nummer, const QString& text);
  // Of all slots, shown or hidden. A note's lines end in CR LF.
  Slottexte texte() const;

  // All slots as they are before any type was dressed; the date becomes the given one.
  void zurücksetzen(const QString& datum);
  // Slots 1 to 27; the date stays.
  void alleVerbergen();
  // Dresses a slot, puts its first text in and shows it.
  void einrichten(const Buchungsslot& slot, const QStringList& liste);
  // Places the slots of the type; the others leave no holes.
  void anordnen(const Buchungstyp& typ);

 private:
  QLabel* beschriftung(int nummer) const { return m_bezeichnungen[static_cast<size_t>(nummer)]; }
  void breiteSetzen(const Buchungsslot& slot);
  void kopfSetzen(QGridLayout* raster, int spalten);
  void zelleSetzen(QGridLayout* raster, const QList<int>& zelle, int& zeile, int spalte);

  std::array<Eingabefeld*, AnzahlSlots> m_felder{};
  std::array<QLabel*, AnzahlSlots> m_bezeichnungen{};
  QPlainTextEdit* m_notiz;
  QLabel* m_bezeingabeart;
  QLabel* m_bezmw;
};
