#include "colonies/Selektion.h"

#include "core/globals.h"
#include "data/helpers.h"
#include "platform/database/werte/Kollation.h"

namespace {

using Selektion::Auftrag;
using Selektion::Regel;

const QString Löschen = QStringLiteral("update Bienenvolk set Selektiert = ''");
const QString Setzen = QStringLiteral("update Bienenvolk set Selektiert = 'X'");

const Regel& regelVon(const Auftrag& auftrag) { return Selektion::regeln().at(auftrag.regel); }

const QString& text(const Auftrag& auftrag, int sevt) {
  return auftrag.sevt[static_cast<size_t>(sevt)];
}

// Sets the flag where the condition holds; an empty one holds for every colony.
void setze(Database& db, const Auftrag& auftrag, const QString& bedingung,
           const QVariantList& werte = {}) {
  QStringList bedingungen;
  if (auftrag.nurBestand) bedingungen << QStringLiteral("Akt_im_Bestand = 'X'");
  if (!bedingung.isEmpty()) bedingungen << bedingung;
  const QString wo = bedingungen.join(QStringLiteral(" and "));
  db.Execute(wo.isEmpty() ? Setzen : Setzen + QStringLiteral(" where ") + wo, werte);
}

// The stored texts are compared as they are shown, trimmed and with backticks, so each different
// one is judged here and its colonies are set together.
void setzeNachText(Database& db, const Auftrag& auftrag, const Regel& regel) {
  const QString gesucht = TextLesen(text(auftrag, regel.sevt));
  const Daten werte = db.Lesen(Selektion::listenAnweisung(regel.sevt));
  for (int i = 0; i < werte->zeilen(); ++i) {
    const QVariant wert = werte->wert(i, 0);
    if (wert.isNull() || Kollation::vergleiche(TextLesen(wert), gesucht) != 0) continue;
    setze(db, auftrag, regel.feld + QStringLiteral(" = ?"), {wert});
  }
}

void setzeNachZahl(Database& db, const Auftrag& auftrag, const Regel& regel) {
  const QString feld = text(auftrag, regel.sevt);
  // In the precision of the fields, so that 3,3 finds a 3,3.
  const double zahl = ZahlLesen(text(auftrag, regel.sevt + 1));
  setze(db, auftrag, feld + QStringLiteral(" = ?"), {zahl});
  if (zahl == 0) setze(db, auftrag, feld + QStringLiteral(" = Null"));
}

void setzeNachRegel(Database& db, const Auftrag& auftrag) {
  const Regel& regel = regelVon(auftrag);
  switch (regel.art) {
    case Regel::Art::Alle:
      return setze(db, auftrag, {});
    case Regel::Art::Keine:
      return;
    case Regel::Art::Text:
      return setzeNachText(db, auftrag, regel);
    case Regel::Art::Bestand:
      return setze(db, auftrag, QStringLiteral("Akt_im_Bestand = 'X'"));
    case Regel::Art::Zahl:
      return setzeNachZahl(db, auftrag, regel);
  }
}

qint64 anzahl(Database& db, const QString& anweisung) {
  return db.Lesen(anweisung)->ganzzahl(0, 0);
}

}  // namespace

namespace Selektion {

const QList<Regel>& regeln() {
  using Art = Regel::Art;
  static const QList<Regel> liste = {
      {"Alle Völker selektieren", Art::Alle, -1, {}, {}},
      {"Alle Völker entselektieren", Art::Keine, -1, {}, {}},
      {"Völker mit Standort --->", Art::Text, 0, "Standort", "der Standort"},
      {"Völker mit Beuteart  --->", Art::Text, 1, "Beuteart", "die Beuteart"},
      {"Völker der Rasse --->", Art::Text, 2, "Bienenrasse", "die Rasse"},
      {"Völker der Herkunft --->", Art::Text, 3, "Volk_Herkunft", "die Herkunft"},
      {"Völker an Abnehmer --->", Art::Text, 4, "Abnehmer", "der Abnehmer"},
      {"Völker die aktuell im Bestand sind", Art::Bestand, -1, {}, {}},
      {"Völker wo...", Art::Zahl, 5, {}, "der Bezug"}};
  return liste;
}

const QStringList& zahlfelder() {
  static const QStringList liste = {
      "Volkstärke",       "Mittelwände", "Magazine",     "Wabenanzahl",  "Honigwaben",
      "Brutwaben",        "Pollenwaben", "Drohnenwaben", "Leerwaben",    "Futterwaben",
      "Brutstand",        "Wabensitz",   "Sanftmut",     "Schwarmtrieb", "Frühjahrsentw",
      "Winterfestigkeit", "Varroabefall"};
  return liste;
}

QString feldVon(int sevt) {
  for (const Regel& regel : regeln())
    if (regel.art == Regel::Art::Text && regel.sevt == sevt) return regel.feld;
  return {};
}

QString listenAnweisung(int sevt) {
  const QString feld = feldVon(sevt);
  if (feld.isEmpty()) return {};
  return QStringLiteral("select distinct ") + feld + QStringLiteral(" from Bienenvolk order by ") +
         feld;
}

QString prüfen(const Auftrag& auftrag) {
  const Regel& regel = regelVon(auftrag);
  if (regel.sevt < 0) return {};
  const QString eingabe = TextLesen(text(auftrag, regel.sevt));
  const bool fehlt =
      regel.art == Regel::Art::Zahl ? !zahlfelder().contains(eingabe) : eingabe.isEmpty();
  if (!fehlt) return {};
  return QStringLiteral("Der Selektionswunsch kann nicht ausgeführt werden, weil ") + regel.wort +
         QStringLiteral(" nicht ausgewählt ist.");
}

void ausführen(Database& db, const Auftrag& auftrag) {
  // Before the first write: a failure half way leaves a changed selection as well.
  TZ_Variablen::ListeNeuLesen = 1;
  db.Sammelschreiben([&] {
    if (auftrag.alteLöschen || regelVon(auftrag).art == Regel::Art::Keine) db.Execute(Löschen);
    setzeNachRegel(db, auftrag);
  });
}

void nurDiese(Database& db, const QList<qint64>& ids) {
  db.Sammelschreiben([&] {
    db.Execute(Löschen);
    for (const qint64 id : ids) db.Execute(Setzen + QStringLiteral(" where ID = ?"), {id});
  });
}

Anzahl selektierte(Database& db) {
  return {anzahl(db, "select count(*) as anzahl from Bienenvolk where Selektiert = 'X'"),
          anzahl(db,
                 "select count(*) as anzahl from Bienenvolk where Selektiert = 'X' and "
                 "Akt_im_Bestand <> 'X'")};
}

QString anzahlText(const Anzahl& anzahl) {
  if (anzahl.alle == 0) return QStringLiteral("Zur Zeit ist kein Volk selektiert.");
  const QString anfang =
      anzahl.alle == 1 ? QStringLiteral("Zur Zeit ist 1 Volk selektiert")
                       : QStringLiteral("Zur Zeit sind %1 Völker selektiert").arg(anzahl.alle);
  if (anzahl.abgang == 0) return anfang + u'.';
  return anfang + QStringLiteral(", davon %1 nicht mehr im Bestand.").arg(anzahl.abgang);
}

}  // namespace Selektion
