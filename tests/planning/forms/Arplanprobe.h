#pragma once

#include <QLabel>

#include "colonies/Testbetrieb.h"
#include "gemeinsam/Bildschirm.h"
#include "gemeinsam/Formularprobe.h"
#include "planning/forms/TV_Arplanoptionen.h"

inline const QString Neufrage =
    "Durch diese Aktion werden alle Termine lt. Arbeitsplanoptionen aus dem aktuellen Jahr 2006 "
    "gelöscht und neu berechnet. Es werden auch die erledigten Termine gelöscht. Berechnet werden "
    "die Termine lediglich ab dem aktuellen Datum 20.06.2006.\n\nSoll die Aktion wirklich "
    "ausgeführt werden?";
inline const QString Ändernhinweis =
    "Sie haben [Ändern] ausgewählt. Bitte beachten Sie, daß lediglich der Inhalt des Feldes "
    "Arbeitsart geändert wird. Falls Sie ein anderes Datenfeld ändern möchten, dann müssen Sie den "
    "Termin vorher löschen und wieder neu anlegen.";

// The form of the work plan options on the 20th of June 2006.
class Arplanprobe : public Formularprobe<TV_Arplanoptionen, Testbetrieb> {
 protected:
  void SetUp() override {
    Formularprobe::SetUp();
    TZ_Variablen::EinstellungenZahl[Zahlslots.löschabfrage] = 1;
    db().Execute("delete from Arbeitsplanoptionen");
  }

  QStringList inhalte() {
    QStringList texte;
    for (int i = 0; i < 7; ++i) texte << feld(i)->inhalt();
    return texte;
  }
  // A choice takes the first letter.
  void tippe(const QString& name, const QString& text) { tippe(feld(name), text); }
  void tippe(int i, const QString& text) { tippe(feld(i), text); }
  static void tippe(Eingabefeld* eingabe, const QString& text) {
    if (eingabe->art() != Eingabefeld::Art::Auswahl) return Formularprobe::tippe(eingabe, text);
    eingabe->setFocus();
    eingabe->setInhalt({});
    QTest::keyClicks(eingabe, text.left(1));
  }
  void fülle(const QString& name, const QString& start, const QString& ende, const QString& volk) {
    tippe("Arbeitsart", name);
    tippe("Startzeitraum (TT.MM)", start);
    tippe("Endzeitraum (TT.MM)", ende);
    tippe("Volkabhängig (J/N)", volk);
  }
  Grid* liste() { return kind<Grid>("liarplan"); }
  void klickeZeile(int zeile) { wähle("liarplan", zeile); }
  QStringList namen() {
    QStringList texte;
    for (int i = 0; i < liste()->zeilen(); ++i) texte << liste()->zelle(i, "Arbeitsart");
    return texte;
  }
  static void termin(const QString& text, QDate datum, qint64 volk = 1) {
    db().Execute("insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, ?, 'N', ?)",
                 {datum, text, volk});
  }
};
