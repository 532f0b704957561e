#pragma once

#include <QDir>
#include <memory>

#include "gemeinsam/Programmordner.h"
#include "gemeinsam/Testliste.h"
#include "platform/controls/Meldungen.h"

// A program folder with the help text and three colonies that have two bookings of each type, on
// the 15th of June 2026. Joined with the controls as the program does it; help that a form asks for
// is only noted. Boxes are answered from the queue; one that wasn't expected counts as No.
class Betrieb {
 public:
  Betrieb();
  ~Betrieb();
  Betrieb(const Betrieb&) = delete;
  Betrieb& operator=(const Betrieb&) = delete;

  QString ordner() const { return m_ordner.path(); }
  // The main list as a plain table; made on first use.
  Testliste& liste();
  // The main form opens the database itself and is the main list.
  void übergeben();

  // All rows of all tables, to compare before and after.
  static QString abbild();
  static qint64 anzahl(const QString& tabelle);

  Meldungen::Probe boxen;
  QStringList hilfen;  // topics that were asked for

 private:
  const QString m_vorher = QDir::currentPath();
  Programmordner m_ordner;
  std::unique_ptr<Testliste> m_liste;
};
