#include "bookings/Buchungstypen.h"
#include "core/settings.h"
#include "mainform/Einstellungen.h"
#include "mainform/Volkanzeige.h"

namespace Einstellungen {

namespace {

// The button standard sets a box as the first start does, unless the row says otherwise.
Schalter schalter(int index, const Zahlslot& slot, const QString& text) {
  return {index, slot, text, slot.standard != 0};
}

Schalter ohneStandard(Schalter schalter) {
  schalter.standard.reset();
  return schalter;
}

Schalter mitStandard(bool ja, Schalter schalter) {
  schalter.standard = ja;
  return schalter;
}

Eingabe zahl(int index, const Zahlslot& slot, const QString& text, const QString& einheit) {
  Eingabe e{index, slot, Verwaltung::ganzzahl({}, text, Slotgrenzen().bis).einheit(einheit)};
  if (slot.standard != 0) e.standard = QString::number(slot.standard);
  return e;
}

// Two decimals, since the settings file keeps two.
Eingabe wert(int index, const Wertslot& slot, const QString& text, const QString& einheit) {
  return {index, slot, Verwaltung::dezimal({}, text, 8, 2).einheit(einheit)};
}

Eingabe text(int index, const Textslot& slot, const QString& text, const QStringList& liste = {}) {
  return {index, slot, Verwaltung::text({}, text, 0).angebot(liste).wörtlich(),
          QString::fromUtf16(slot.standard)};
}

Eingabe feld(int index, const Textslot& slot, const QString& text) {
  return {index, slot, Verwaltung::auswahl({}, text, {})};
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
      schalter(0, Zahlslots.terminlisteBeimStart,
               "Bei jedem Programmstart die Terminliste für die nächsten Tage öffnen"),
      schalter(1, Zahlslots.anzahlzeile,
               "Anzahl Datensätze anzeigen (nur bei Explorer-Auswertung)"),
      schalter(2, Zahlslots.seitenzeile, "Seite x von x anzeigen (nur bei Explorer-Auswertung)"),
      schalter(3, Zahlslots.volknummerHochzählen, "Volknummer bei Eingabe automatisch hochzählen"),
      mitStandard(false, schalter(4, Zahlslots.datumAlsListenkopf,
                                  "Datum bei jeder Auswertung als Listenkopf schreiben")),
      schalter(5, Zahlslots.piepton, "Jede erfolgreiche Eingabe mit einem Piepton bestätigen"),
      schalter(6, Zahlslots.laufendeNummer,
               "Anzeige der laufenden Nummer statt der Volknummer in der ersten Spalte im "
               "Hauptmodul"),
      schalter(7, Zahlslots.löschabfrage,
               "Löschen von Buchungen nur nach einer Sicherheitsabfrage"),
      schalter(8, Zahlslots.ernteInsHoniglager,
               "Honigernten automatisch als Zugang im Honiglager einbuchen (Nur neue Honigernten - "
               "keine Änderungen und Löschungen)"),
      ohneStandard(schalter(10, Zahlslots.sammelbuchungTeilen,
                            "Bei allen Sammelbuchungen die Mengen, Zeiten und die Kosten immer "
                            "durch die Anzahl ausgewählter Völker teilen")),
      ohneStandard(schalter(11, Zahlslots.honigInWaben,
                            "Bei neuen Buchungen für Honigernten nicht die Honigmenge, sondern die "
                            "Anzahl Honigwaben eintragen und diese intern mit folgendem Wert "
                            "multiplizieren...")),
  };
  return liste;
}

const QList<Eingabe>& eingaben() {
  static const QList<Eingabe> liste = {
      zahl(0, Zahlslots.sicherungstage, "Anzahl Tage zwischen zwei Datensicherungen", "Tage"),
      zahl(1, Zahlslots.termintage, "Offene Termine beim Start berechnen bis", "Tage"),
      text(2, Textslots.kopftext, "Kopftext, der bei den Auswertungen mit ausgedruckt werden soll"),
      text(3, Textslots.trennzeichen, "Tabellentrennzeichen für die Text-Darstellung",
           trennzeichen()),
      zahl(4, Zahlslots.explorerzeilen, "Anzahl Zeilen je Seite bei Explorer-Auswertung", "Zeilen"),
      wert(5, Wertslots.honigJeKg, "Honigwert je kg", "€"),
      wert(6, Wertslots.wachsJeKg, "Wachswert je kg", "€"),
      wert(7, Wertslots.pollenJeG, "Pollenwert je g", "€"),
      wert(8, Wertslots.sonstigesJeG, "Wert sonstige Ernte je g", "€"),
      wert(9, Wertslots.stundensatz, "Kostensatz je Stunde bei Buchungen", "€"),
      zahl(10, Zahlslots.mehrwertsteuer1, "MwSt-Satz 1 (linke Maustaste im Taschenrechner)", "%"),
      zahl(11, Zahlslots.mehrwertsteuer2, "MwSt-Satz 2 (rechte Maustaste im Taschenrechner)", "%"),
      wert(12, Wertslots.kgJeHonigwabe, "Honigmenge je Honigwabe in kg", "kg"),
      feld(13, Textslots.sortierung1, "1. Sortierung"),
      feld(14, Textslots.sortierung2, "2. Sortierung"),
      zahl(15, Zahlslots.wabenJeMagazin, "Standardanzahl Waben je Magazin", {}),
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
