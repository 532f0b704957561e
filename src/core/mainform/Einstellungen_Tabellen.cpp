#include "bookings/Buchungstypen.h"
#include "core/mainform/Einstellungen.h"
#include "core/mainform/Volkanzeige.h"
#include "core/settings.h"

namespace Einstellungen {

namespace {

Eingabe zahl(int index, int slot, const QString& text, const QString& einheit, Grenzen grenzen = {},
             std::optional<QString> standard = {}) {
  return {index, Ablage::Zahl, slot, text, einheit, grenzen, std::move(standard)};
}

Eingabe wert(int index, int slot, const QString& text, const QString& einheit) {
  return {index, Ablage::Wert, slot, text, einheit, {}, {}};
}

Eingabe text(int index, int slot, const QString& text, const QString& standard) {
  return {index, Ablage::Text, slot, text, {}, {}, standard};
}

Eingabe feld(int index, int slot, const QString& text) {
  return {index, Ablage::Feld, slot, text, {}, {}, {}};
}

template <typename T>
const T& mitIndex(const QList<T>& liste, int index) {
  for (const T& eintrag : liste)
    if (eintrag.index == index) return eintrag;
  qFatal("Einstellungen: no control with index %d", index);
}

}  // namespace

const QList<Schalter>& schalter() {
  static const QList<Schalter> liste = {
      {0, 13, "Bei jedem Programmstart die Terminliste für die nächsten Tage öffnen", true},
      {1, 48, "Anzahl Datensätze anzeigen (nur bei Explorer-Auswertung)", false},
      {2, 47, "Seite x von x anzeigen (nur bei Explorer-Auswertung)", true},
      {3, 57, "Volknummer bei Eingabe automatisch hochzählen", true},
      {4, 46, "Datum bei jeder Auswertung als Listenkopf schreiben", false},
      {5, 24, "Jede erfolgreiche Eingabe mit einem Piepton bestätigen", true},
      {6, 51,
       "Anzeige der laufenden Nummer statt der Volknummer in der ersten Spalte im Hauptmodul",
       false},
      {7, 55, "Löschen von Buchungen nur nach einer Sicherheitsabfrage", true},
      {8, 68,
       "Honigernten automatisch als Zugang im Honiglager einbuchen (Nur neue Honigernten - keine "
       "Änderungen und Löschungen)",
       false},
      {10,
       72,
       "Bei allen Sammelbuchungen die Mengen, Zeiten und die Kosten immer durch die Anzahl "
       "ausgewählter Völker teilen",
       {}},
      {11,
       73,
       "Bei neuen Buchungen für Honigernten nicht die Honigmenge, sondern die Anzahl Honigwaben "
       "eintragen und diese intern mit folgendem Wert multiplizieren...",
       {}},
  };
  return liste;
}

const QList<Eingabe>& eingaben() {
  static const QList<Eingabe> liste = {
      zahl(0, 50, "Anzahl Tage zwischen zwei Datensicherungen", "Tage", {1, 999, 14, 14}, "14"),
      zahl(1, 17, "Offene Termine beim Start berechnen bis", "Tage", {1, 365, 14, 365}, "14"),
      text(2, 0, "Kopftext, der bei den Auswertungen mit ausgedruckt werden soll", {}),
      text(3, 4, "Tabellentrennzeichen für die Text-Darstellung", trennzeichen().first()),
      zahl(4, 49, "Anzahl Zeilen je Seite bei Explorer-Auswertung", "Zeilen", {30, 9999, 30, 9999},
           "60"),
      wert(5, 0, "Honigwert je kg", "€"),
      wert(6, 1, "Wachswert je kg", "€"),
      wert(7, 2, "Pollenwert je g", "€"),
      wert(8, 3, "Wert sonstige Ernte je g", "€"),
      wert(9, 4, "Kostensatz je Stunde bei Buchungen", "€"),
      zahl(10, 44, "MwSt-Satz 1 (linke Maustaste im Taschenrechner)", "%"),
      zahl(11, 45, "MwSt-Satz 2 (rechte Maustaste im Taschenrechner)", "%"),
      wert(12, 5, "Honigmenge je Honigwabe in kg", "kg"),
      feld(13, 33, "1. Sortierung"),
      feld(14, 34, "2. Sortierung"),
      zahl(15, 56, "Standardanzahl Waben je Magazin", {}),
  };
  return liste;
}

const Schalter& schalter(int index) { return mitIndex(schalter(), index); }

const Eingabe& eingabe(int index) { return mitIndex(eingaben(), index); }

QStringList trennzeichen() { return {TrennzeichenStandard, "  ", "; ", ", ", " - ", " / "}; }

QStringList zeilentexte() {
  QStringList texte;
  for (const Volkanzeige::Zeile& zeile : Volkanzeige::zeilen()) {
    QString text = zeile.beschriftung.trimmed();
    if (text.endsWith(u':')) text.chop(1);
    texte << text;
  }
  return texte;
}

QStringList buchungstexte() {
  QStringList texte;
  for (int art = 0; art <= 10; ++art) texte << buchungstyp(art).beschriftung;
  return texte;
}

}  // namespace Einstellungen
