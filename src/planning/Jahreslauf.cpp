#include "planning/Jahreslauf.h"

#include "core/globals.h"
#include "core/settings.h"
#include "data/helpers.h"
#include "planning/Optionsfehler.h"
#include "planning/Termine.h"

using namespace TZ_Variablen;

namespace {

// Of today, four digits.
QString jahr() { return HeuteText.mid(6, 4); }

QString startfrage() {
  return QString(
             "Sie starten TOVA das erste mal im neuen Jahr oder haben die Funktion 'Optionen / "
             "Volkabhängige Termine setzen' gewählt.") +
         CRLF + CRLF +
         QString(
             "Durch das setzen der Termine werden alle Termine aus den Arbeitsplanoptionen ab dem "
             "heutigen Datum ") +
         HeuteText +
         QString(
             " allen im Bestand befindlichen Völkern zugeordnet. Diese Aktion wird nur dann "
             "ausgeführt, wenn mindestens ein Volk und eine Arbeitsplanoption eingegeben wurde und "
             "im aktuellen Jahr noch keine variablen Termine gebucht sind.") +
         CRLF + CRLF + QString("Soll die Aktion jetzt ausgeführt werden?");
}

QString löschfrage() {
  return QString("Es befinden sich im Jahr ") + jahr() +
         QString(
             " bereits volkabhängige Termine im Terminkalender. Die Termine für ein komplettes "
             "Jahr können nur dann eingetragen werden, wenn noch keine volkabhängigen Termine "
             "existieren. Sollen die existierenden Termine jetzt gelöscht werden?");
}

QString schonGebucht() {
  return QString("...im aktuellen Jahr ") + jahr() +
         QString(
             " bereits volkabhängige Termine gebucht sind. Bitte löschen Sie ggf. alle "
             "volkabhängigen Termine, bevor Sie diese Aktion durchführen.");
}

// What the questions decided; the writes follow it.
struct Lauf {
  Daten völker;
  Daten optionen;
  QVariantList zeitraum;  // first and last day of the year
  bool löschen = false;
  QString gründe;

  bool ausführbar() const { return gründe.isEmpty(); }
};

Lauf vorbereiten(Database& db, const Terminfragen& fragen) {
  Lauf lauf;
  lauf.zeitraum = {DatumLesen("01.01." + jahr()), DatumLesen("31.12." + jahr())};
  lauf.völker = völkerImBestand(db);
  lauf.optionen = db.Lesen(QString("select ID from Arbeitsplanoptionen where Volkabhängig = 'J'"));
  const Daten termine = db.Lesen(
      "select ID from Termine where Volk_ID <> 0 and Datum >= ? and Datum <= ?", lauf.zeitraum);
  if (lauf.völker->zeilen() == 0)
    lauf.gründe += QString("...keine Bienenvölker aktuell im Bestand sind.") + CRLF;
  if (lauf.optionen->zeilen() == 0)
    lauf.gründe += QString("...keine volkabhängigen Arbeitsplanoptionen eingetragen sind.") + CRLF;
  if (termine->zeilen() == 0) return lauf;
  lauf.löschen = fragen.frage(löschfrage(), true);
  if (!lauf.löschen) lauf.gründe += schonGebucht() + CRLF;
  return lauf;
}

void berechnen(Database& db, const Lauf& lauf, const Terminfragen& fragen) {
  Optionsfehler fehler;
  const int völker = lauf.völker->zeilen();
  for (int v = 0; v < völker; ++v) {
    const qint64 volk = lauf.völker->ganzzahl(v, 0);
    for (int o = 0; o < lauf.optionen->zeilen(); ++o) {
      const qint64 option = lauf.optionen->ganzzahl(o, 0);
      fehler.versuche(option, [&] { TermineBerechnen(db, option, volk); });
    }
    if (fragen.fortschritt) fragen.fortschritt(v + 1, völker);
  }
  fehler.wirf();
}

void schreiben(Database& db, const Lauf& lauf, const Terminfragen& fragen) {
  db.Sammelschreiben([&] {
    if (lauf.löschen)
      db.Execute("delete from Termine where Volk_ID <> 0 and Datum >= ? and Datum <= ?",
                 lauf.zeitraum);
    if (lauf.ausführbar()) berechnen(db, lauf, fragen);
  });
}

}  // namespace

void VolkTermineSetzen(Database& db, const Terminfragen& fragen) {
  if (!fragen.frage(startfrage(), false)) return;
  const Lauf lauf = vorbereiten(db, fragen);
  schreiben(db, lauf, fragen);
  if (lauf.ausführbar())
    fragen.hinweis(QString("Die volkabhängigen Termine wurden für das Jahr ") + jahr() +
                   QString(" neu berechnet und im Terminkalender eingetragen."));
  else
    fragen.hinweis(QString("Die Aktion wird nicht ausgeführt, weil...") + CRLF + CRLF +
                   lauf.gründe);
  EinstellungenZahl[Zahlslots.terminjahr] = jahr().toShort();
  EinstellungenSchreiben();
}

bool neuesJahr() { return jahr().toShort() != EinstellungenZahl[Zahlslots.terminjahr]; }
