#include "colonies/forms/Markieren.h"

#include <QPointer>
#include <QWidget>

#include "colonies/Selektion.h"
#include "colonies/forms/TV_Selektieren.h"
#include "core/globals.h"
#include "core/main_list.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Meldungen.h"

namespace {

// The list's rows as it shows them: colonies behind its filter don't count.
QList<int> selektierteZeilen() {
  const Hauptliste* liste = hauptliste();
  QList<int> zeilen;
  for (int i = 0; i < liste->zeilen(); ++i)
    if (liste->zelle(i, QStringLiteral("Selektiert")) == QStringLiteral("X")) zeilen << i;
  return zeilen;
}

TV_Selektieren& formular(QWidget* fenster) {
  static QPointer<TV_Selektieren> form;
  if (form && form->parentWidget() != fenster->window()) delete form;
  if (!form) form = new TV_Selektieren(fenster);
  return *form;
}

}  // namespace

void völkerSelektieren(QWidget* fenster) {
  formular(fenster).zeigen();
  const qsizetype anzahl = selektierteZeilen().size();
  if (anzahl == 0) return;
  if (Meldungen::Frage(
          QStringLiteral("Es sind ") + QString::number(anzahl) +
              QStringLiteral(" Völker selektiert. Sollen diese auch gleich markiert werden?"),
          Meldungen::Vorgabe::Ja, fenster))
    selektierteMarkieren(fenster);
}

void selektierteMarkieren(QWidget* fenster) {
  {
    const Ereignis::Sanduhr sanduhr;
    const QList<int> zeilen = selektierteZeilen();
    if (!zeilen.isEmpty()) hauptliste()->setAktuelleZeile(zeilen.first());
    hauptliste()->setMarkierteZeilen(zeilen);
  }
  Meldungen::Hinweis(
      QStringLiteral(
          "Sie können die Völker auch mit gedrückter STRG-Taste und der Maus markieren."),
      fenster);
}

void markierteSelektieren() {
  const Ereignis::Sanduhr sanduhr;
  Hauptliste* liste = hauptliste();
  QList<qint64> ids;
  for (const int zeile : liste->markierteZeilen())
    ids << liste->zelle(zeile, QStringLiteral("ID")).toLongLong();
  Selektion::nurDiese(TZ_Variablen::DB, ids);
  liste->datenvölkerlesen();
}
