#pragma once

#include <QSet>
#include <QStringList>
#include <functional>

#include "platform/database/werte/Datenbankfehler.h"

// What failed for single options in a run over many: an option that can't be computed (a 29th of
// February in a year without one) doesn't take the others' appointments with it. The run leaves it
// out and tells or throws what failed when it is through.
class Optionsfehler {
 public:
  // Runs the work for one option; not at all for an option that has failed before. A failure that
  // isn't the option's own (full disk, lost transaction) goes on at once.
  void versuche(qint64 optionId, const std::function<void()>& arbeit);
  // What failed, all options in one text, which ends with what the user should know of the rest of
  // the action. Empty when nothing failed.
  QString text(const QString& nachsatz = {}) const;
  // Throws it, when something failed.
  void wirf() const;

 private:
  QSet<qint64> m_optionen;   // that failed
  QSet<qint64> m_gelungene;  // that were computed for a colony at least
  QStringList m_texte;
  Datenbankfehler::Art m_art = Datenbankfehler::Art::Allgemein;
  QString m_anweisung;
};
