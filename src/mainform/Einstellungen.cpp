#include "mainform/Einstellungen.h"

#include "core/globals.h"
#include "core/settings.h"
#include "data/helpers.h"
#include "mainform/Feldfolge.h"
#include "platform/files/Textdatei.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace Einstellungen {

namespace {

// A sort that the list doesn't have as a field is none.
QString listenfeld(const QString& name, const QStringList& felder) {
  for (const QString& feld : felder)
    if (feld.compare(name.trimmed(), Qt::CaseInsensitive) == 0) return feld;
  return {};
}

// What the slot holds.
QVariant slotwert(const Zahlslot& slot) { return int{EinstellungenZahl[slot]}; }
QVariant slotwert(const Wertslot& slot) {
  return Deutsch::einfach(static_cast<double>(EinstellungenWert[slot]));
}
QVariant slotwert(const Textslot& slot) { return EinstellungenText[slot]; }

void setSlot(const Zahlslot& slot, const QVariant& wert) {
  EinstellungenZahl[slot] = static_cast<qint16>(slot.grenzen.begrenzt(wert.toLongLong()));
}
void setSlot(const Wertslot& slot, const QVariant& wert) {
  EinstellungenWert[slot] = wert.toFloat();
}
void setSlot(const Textslot& slot, const QVariant& wert) {
  EinstellungenText[slot] = wert.toString();
}

QString inhalt(const Eingabe& e, const QStringList& volkfelder) {
  const QVariant wert = std::visit([](const auto& slot) { return slotwert(slot); }, e.slot);
  return e.istListenfeld() ? listenfeld(wert.toString(), volkfelder)
                           : Verwaltung::feldtext(e.feld, wert);
}

void inSlot(const Eingabe& e, const QString& text) {
  const QVariant wert = Verwaltung::feldwert(e.feld, text);
  std::visit([&wert](const auto& slot) { setSlot(slot, wert); }, e.slot);
}

// A remembered sort belongs to a field, and that has another place now.
void sortierspalteMitnehmen(const QStringList& vorher, const QStringList& nachher) {
  const QString feld = vorher.value(EinstellungenZahl[Zahlslots.sortierspalte] - 1);
  const qsizetype neu = nachher.indexOf(feld);
  if (!feld.isEmpty() && neu >= 0)
    EinstellungenZahl[Zahlslots.sortierspalte] = static_cast<qint16>(neu + 1);
}

// The three slot stores as they were, for the case that what is in them now can't be written.
class Slotstand {
 public:
  void zurücknehmen() const {
    EinstellungenZahl = m_zahl;
    EinstellungenWert = m_wert;
    EinstellungenText = m_text;
    ListeNeuLesen = m_listeNeuLesen;
  }

 private:
  decltype(EinstellungenZahl) m_zahl = EinstellungenZahl;
  decltype(EinstellungenWert) m_wert = EinstellungenWert;
  decltype(EinstellungenText) m_text = EinstellungenText;
  int m_listeNeuLesen = ListeNeuLesen;
};

}  // namespace

Stand lesen(const Database& db) {
  Stand stand;
  stand.volkfelder = Feldfolge::lesen(Feldfolge::Liste::Volk, db);
  stand.stockfelder = Feldfolge::lesen(Feldfolge::Liste::Stockkarte, db);
  for (const Schalter& s : schalter()) stand.kon[s.index] = EinstellungenZahl[s.slot] != 0;
  for (const Eingabe& e : eingaben()) stand.sevt[e.index] = inhalt(e, stand.volkfelder);
  const qsizetype positionen = zeilentexte().size() + buchungstexte().size();
  for (qsizetype i = 0; i < positionen; ++i)
    stand.gezeigt << (EinstellungenText[Textslots.infofenster].mid(i, 1) == u'1');
  return stand;
}

void standardSetzen(Stand& stand) {
  for (const Schalter& s : schalter())
    if (s.standard) stand.kon[s.index] = *s.standard;
  for (const Eingabe& e : eingaben())
    if (e.standard) stand.sevt[e.index] = *e.standard;
}

QString standardFrage() {
  return QStringLiteral(
      "Sollen die aktuellen Werte wirklich mit den Standard-Werten überschrieben werden?");
}

namespace {

void inDieSlots(const Stand& stand, const QStringList& vorher) {
  for (const Schalter& s : schalter()) EinstellungenZahl[s.slot] = stand.kon.value(s.index) ? 1 : 0;
  for (const Eingabe& e : eingaben()) inSlot(e, stand.sevt.value(e.index));

  QString& trenner = EinstellungenText[Textslots.trennzeichen];
  if (trenner.isEmpty()) trenner = trennzeichen().first();
  QString& zweite = EinstellungenText[Textslots.sortierung2];
  if (zweite == EinstellungenText[Textslots.sortierung1]) zweite.clear();

  EinstellungenText[Textslots.infofenster].clear();
  for (const bool ja : stand.gezeigt) EinstellungenText[Textslots.infofenster] += ja ? u'1' : u'0';
  sortierspalteMitnehmen(vorher, stand.volkfelder);
  EinstellungenText[Textslots.volkfelder] =
      Feldfolge::anweisung(Feldfolge::Liste::Volk, stand.volkfelder);
  EinstellungenText[Textslots.stockkartenfelder] =
      Feldfolge::anweisung(Feldfolge::Liste::Stockkarte, stand.stockfelder);
  ListeNeuLesen = 1;
}

}  // namespace

void speichern(const Stand& stand, const Database& db) {
  const QStringList vorher = Feldfolge::lesen(Feldfolge::Liste::Volk, db);
  const Slotstand bisher;
  inDieSlots(stand, vorher);
  try {
    EinstellungenSchreiben();
  } catch (const Dateifehler& fehler) {
    bisher.zurücknehmen();
    throw Dateifehler(fehler.text() + CRLF + CRLF + nichtGespeichertText());
  }
}

QString nichtGespeichertText() {
  return QStringLiteral(
      "Die Einstellungen wurden nicht gespeichert, es gelten weiter die bisherigen. Ihre Eingaben "
      "bleiben stehen: Beheben Sie die Ursache und drücken Sie noch einmal OK.");
}

QVariantList umgeordnet(const QVariantList& werte, const QStringList& vorher,
                        const QStringList& nachher) {
  if (werte.size() != vorher.size() || nachher.size() != vorher.size()) return {};
  QVariantList ergebnis;
  for (const QString& feld : nachher) {
    const qsizetype ort = vorher.indexOf(feld);
    if (ort < 0) return {};
    ergebnis << werte[ort];
  }
  return ergebnis;
}

}  // namespace Einstellungen
