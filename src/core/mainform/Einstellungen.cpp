#include "core/mainform/Einstellungen.h"

#include "core/globals.h"
#include "core/mainform/Feldfolge.h"
#include "core/settings.h"
#include "data/helpers.h"
#include "platform/files/Textdatei.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace Einstellungen {

namespace {

constexpr int ErsteSortierung = 13;
constexpr int ZweiteSortierung = 14;

size_t platz(int slot) { return static_cast<size_t>(slot); }

// A sort that the list doesn't have as a field is none.
QString listenfeld(const QString& name, const QStringList& felder) {
  for (const QString& feld : felder)
    if (feld.compare(name.trimmed(), Qt::CaseInsensitive) == 0) return feld;
  return {};
}

QString inhalt(const Eingabe& e, const QStringList& volkfelder) {
  switch (e.ablage) {
    case Ablage::Zahl:
      return QString::number(EinstellungenZahl[platz(e.slot)]);
    case Ablage::Wert:
      return ZahlText2(Deutsch::einfach(static_cast<double>(EinstellungenWert[platz(e.slot)])));
    case Ablage::Text:
      return EinstellungenText[platz(e.slot)];
    case Ablage::Feld:
      return listenfeld(EinstellungenText[platz(e.slot)], volkfelder);
  }
  return {};
}

qint16 begrenzt(const Grenzen& g, qint64 zahl) {
  if (zahl < g.von) return static_cast<qint16>(g.darunter);
  if (zahl > g.bis) return static_cast<qint16>(g.darueber);
  return static_cast<qint16>(zahl);
}

void inSlot(const Eingabe& e, const QString& text) {
  switch (e.ablage) {
    case Ablage::Zahl:
      EinstellungenZahl[platz(e.slot)] = begrenzt(e.grenzen, GanzLesen(text));
      break;
    case Ablage::Wert:
      EinstellungenWert[platz(e.slot)] = static_cast<float>(ZahlLesen(text));
      break;
    case Ablage::Text:
    case Ablage::Feld:
      EinstellungenText[platz(e.slot)] = text;
      break;
  }
}

// A remembered sort belongs to a field, and that has another place now.
void sortierspalteMitnehmen(const QStringList& vorher, const QStringList& nachher) {
  const QString feld = vorher.value(EinstellungenZahl[25] - 1);
  const qsizetype neu = nachher.indexOf(feld);
  if (!feld.isEmpty() && neu >= 0) EinstellungenZahl[25] = static_cast<qint16>(neu + 1);
}

// The three slot stores as they were, for the case that what is in them now can't be written.
class Slotstand {
 public:
  void zuruecknehmen() const {
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
  for (const Schalter& s : schalter()) stand.kon[s.index] = EinstellungenZahl[platz(s.slot)] != 0;
  for (const Eingabe& e : eingaben()) stand.sevt[e.index] = inhalt(e, stand.volkfelder);
  const qsizetype positionen = zeilentexte().size() + buchungstexte().size();
  for (qsizetype i = 0; i < positionen; ++i)
    stand.gezeigt << (EinstellungenText[24].mid(i, 1) == u'1');
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
  for (const Schalter& s : schalter())
    EinstellungenZahl[platz(s.slot)] = stand.kon.value(s.index) ? 1 : 0;
  for (const Eingabe& e : eingaben()) inSlot(e, stand.sevt.value(e.index));
  MehrwertsteuerPruefen();
  WabenJeMagazinPruefen();

  QString& trenner = EinstellungenText[platz(eingabe(3).slot)];
  if (trenner.isEmpty()) trenner = trennzeichen().first();
  const QString& erste = EinstellungenText[platz(eingabe(ErsteSortierung).slot)];
  QString& zweite = EinstellungenText[platz(eingabe(ZweiteSortierung).slot)];
  if (zweite == erste) zweite.clear();

  EinstellungenText[24].clear();
  for (const bool ja : stand.gezeigt) EinstellungenText[24] += ja ? u'1' : u'0';
  sortierspalteMitnehmen(vorher, stand.volkfelder);
  EinstellungenText[17] = Feldfolge::anweisung(Feldfolge::Liste::Volk, stand.volkfelder);
  EinstellungenText[22] = Feldfolge::anweisung(Feldfolge::Liste::Stockkarte, stand.stockfelder);
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
    bisher.zuruecknehmen();
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
