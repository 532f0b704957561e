#include "bookings/Buchung.h"

#include <QScopeGuard>
#include <algorithm>
#include <functional>
#include <optional>

#include "bookings/Rechnen.h"
#include "bookings/Vorgaben.h"
#include "bookings/Zusammenfassung.h"
#include "core/globals.h"
#include "data/helpers.h"
#include "platform/database/Recordset.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace {

constexpr int Honigernte = 1;
constexpr int Arbeiten = 5;

const QString Neu = QStringLiteral("-1");

double zahl(const Buchung& buchung, int slot) {
  return ZahlLesen(buchung.texte[static_cast<size_t>(slot)]);
}

QString text(const Buchung& buchung, int slot) {
  return TextLesen(buchung.texte[static_cast<size_t>(slot)]);
}

QDate datum(const Buchung& buchung) {
  const QDate tag = DatumLesen(buchung.texte[0]);
  if (!tag.isValid())
    throw Datenbankfehler(Datenbankfehler::Art::Wertebereich,
                          "Das Datum der Buchung ist nicht korrekt.");
  return tag;
}

// The texts of the appointments that a booking settles: of the options that name its table, and
// for Arbeiten of the options that name its kind of work. The same for all colonies of a run.
QStringList erledigteTermine(Database& datenbank, const Buchung& buchung) {
  QStringList termine;
  const auto sammle = [&](const QString& anweisung, const QString& wert) {
    Recordset option = datenbank.OpenRecordset(anweisung, {wert});
    for (; !option.AmEnde(); option.MoveNext())
      termine.append(TextLesen(option.Wert("Arbeitsart")));
  };
  sammle("select * from Arbeitsplanoptionen where Auto_erledigt_Buchung = ?",
         buchungstyp(buchung.art).tabelle);
  if (buchung.art == Arbeiten && !text(buchung, 1).isEmpty())
    sammle("select * from Arbeitsplanoptionen where Auto_erledigt_Arbeitsart = ?",
           text(buchung, 1));
  return termine;
}

void termineErledigen(Database& datenbank, const QStringList& termine, QDate bis, qint64 volkId) {
  for (const QString& termin : termine)
    datenbank.Execute(
        "update Termine set Erledigt = 'J' where Termin = ? and Datum <= ? and Volk_ID = ?",
        {termin, bis, volkId});
}

// What the form put into Honigwert for the quantity in slot 1, or that it was typed.
struct Wertregel {
  enum class Art { Getippt, Faktor, LetzterPreis };
  Art art = Art::Getippt;
  double preis = 0;  // of LetzterPreis, per kg
};

Wertregel wertregel(Database& datenbank, const Buchung& buchung) {
  const auto stehtDa = [&](const Slotänderung& vorgabe) {
    return buchung.texte[static_cast<size_t>(vorgabe.slot)] == vorgabe.text;
  };
  if (stehtDa(*geldvorgabe(buchung.art, 1, buchung.texte))) return {Wertregel::Art::Faktor};
  const auto preis = letzterPreis(datenbank, buchung.art, buchung.texte);
  if (preis && stehtDa(wertZumPreis(buchung.art, buchung.texte, *preis)))
    return {Wertregel::Art::LetzterPreis, *preis};
  return {};
}

// Slot 1 was entered in combs and becomes kilograms. A value that the form put in for the combs
// follows; one that was typed stays. The first colony of a run decides which it is.
void honigwabenUmrechnen(Database& datenbank, Buchung& buchung, std::optional<Wertregel>& regel) {
  const double kgJeWabe = Deutsch::einfach(EinstellungenWert[Wertslots.kgJeHonigwabe]);
  if (EinstellungenZahl[Zahlslots.honigInWaben] != 1 || !(kgJeWabe > 0)) return;
  if (!regel) regel = wertregel(datenbank, buchung);
  buchung.texte[1] = ZahlFormat(Deutsch::einfach(zahl(buchung, 1) * kgJeWabe), 2);
  if (regel->art == Wertregel::Art::Getippt) return;
  const Slotänderung wert = regel->art == Wertregel::Art::Faktor
                                ? *geldvorgabe(buchung.art, 1, buchung.texte)
                                : wertZumPreis(buchung.art, buchung.texte, regel->preis);
  buchung.texte[static_cast<size_t>(wert.slot)] = wert.text;
}

bool wirdGeteilt(const Buchung& buchung, int anzahlMarkiert) {
  const auto& plätze = buchungstyp(buchung.art).plätze;
  return EinstellungenZahl[Zahlslots.sammelbuchungTeilen] == 1 && anzahlMarkiert >= 2 &&
         std::any_of(plätze.begin(), plätze.end(), [](const auto& slot) { return slot.geteilt; });
}

// What the slots write, in the order of the type's slots.
QVariantList feldwerte(const Buchung& buchung, int anzahlMarkiert) {
  const bool teilen = wirdGeteilt(buchung, anzahlMarkiert);
  QVariantList werte;
  for (const Buchungsslot& slot : buchungstyp(buchung.art).plätze) {
    if (teilen && slot.geteilt)
      werte.append(
          ZahlLesen(ZahlFormat(Deutsch::einfach(zahl(buchung, slot.nummer) / anzahlMarkiert), 2)));
    else
      werte.append(Verwaltung::feldwert(slot, buchung.texte[static_cast<size_t>(slot.nummer)]));
  }
  return werte;
}

// One movement for one harvest, however many colonies it came from. Gives the kilograms, if any.
std::optional<double> honiglagerSchreiben(Database& datenbank, const Buchung& buchung,
                                          int anzahlMarkiert) {
  const double menge = zahl(buchung, 1);
  if (!(menge > 0) || EinstellungenZahl[Zahlslots.ernteInsHoniglager] != 1 || SammelFolgevolk)
    return std::nullopt;
  // Undivided, each colony was booked the whole quantity.
  const double zugang = EinstellungenZahl[Zahlslots.sammelbuchungTeilen] == 0
                            ? Deutsch::einfach(menge * anzahlMarkiert)
                            : menge;
  Recordset lager = datenbank.OpenRecordset("select * from Honiglager where ID = 0");
  lager.AddNew();
  lager["Datum"] = datum(buchung);
  lager["Produkt"] = text(buchung, 2);
  lager["Zugang"] = zugang;
  lager["Abgang"] = 0;
  lager["Charge"] = text(buchung, 7);
  lager["Bemerkung"] = QString("");
  lager["EVK_ID"] = 0;
  lager["Abfülldatum"] = QVariant();
  lager.Update();
  return zugang;
}

Recordset zeileÖffnen(Database& datenbank, const QString& tabelle, qint64 volkId,
                      const QString& buchungId) {
  QString abfrage = "select top 1 * from " + tabelle + " where Volk_ID = ?";
  QVariantList werte{volkId};
  if (buchungId != Neu) {
    abfrage += " and ID = ?";
    werte.append(buchungId.toLongLong());
  }
  return datenbank.OpenRecordset(abfrage, werte);
}

// The first booking of a colony also notes in the database that its summary is to be written.
void volkMerken(Database& datenbank, QString& geänderteVölker, const QString& volkId) {
  const QString eintrag = "/" + volkId + "/";
  if (geänderteVölker.contains(eintrag)) return;
  ZusammenfassungVormerken(datenbank, volkId.toLongLong());
  geänderteVölker += eintrag;
}

// Writes bookings, one after the other. What can't differ from colony to colony is read once: the
// options, the recordset through which rows are added, and the values of texts that stay the same.
class Schreiber {
 public:
  Schreiber(Database& datenbank, Buchung& buchung, Buchungskontext& kontext)
      : m_datenbank(datenbank),
        m_buchung(buchung),
        m_kontext(kontext),
        m_typ(buchungstyp(buchung.art)),
        m_tag(datum(buchung)),
        m_termine(erledigteTermine(datenbank, buchung)) {}

  // The steps of one booking. The appointments come first and stay closed whatever happens to the
  // row; the movement of the honey store is written just before the row.
  void schreibe(const QString& volkId, const QString& buchungId) {
    const qint64 volk = volkId.toLongLong();
    const bool neueErnte = m_buchung.art == Honigernte && buchungId == Neu;
    termineErledigen(m_datenbank, m_termine, m_tag, volk);
    öffne(volk, buchungId);
    if (neueErnte) honigwabenUmrechnen(m_datenbank, m_buchung, m_wertregel);
    felderSchreiben();
    if (neueErnte)
      if (const auto kg = honiglagerSchreiben(m_datenbank, m_buchung, m_kontext.anzahlMarkiert))
        m_zugang = kg;
    (*m_zeile)["Datum"] = m_tag;
    (*m_zeile)["Volk_ID"] = volk;
    m_zeile->Update();
    ListeNeuLesen = 1;
    volkMerken(m_datenbank, m_kontext.geänderteVölker, volkId);
    m_kontext.gebucht << volkId;
  }
  std::optional<double> zugang() const { return m_zugang; }  // of the honey store

 private:
  void öffne(qint64 volk, const QString& buchungId) {
    if (buchungId == Neu) {
      if (!m_zeile) m_zeile = zeileÖffnen(m_datenbank, m_typ.tabelle, volk, Neu);
      m_zeile->AddNew();
    } else {
      m_zeile = zeileÖffnen(m_datenbank, m_typ.tabelle, volk, buchungId);
      m_zeile->MoveFirst();
      m_zeile->Edit();
    }
  }
  void felderSchreiben() {
    if (m_werte.isEmpty() || m_gelesen != m_buchung.texte) {
      m_werte = feldwerte(m_buchung, m_kontext.anzahlMarkiert);
      m_gelesen = m_buchung.texte;
    }
    for (qsizetype i = 0; i < m_typ.plätze.size(); ++i)
      (*m_zeile)[m_typ.plätze[i].feld] = m_werte[i];
  }

  Database& m_datenbank;
  Buchung& m_buchung;
  Buchungskontext& m_kontext;
  const Buchungstyp& m_typ;
  const QDate m_tag;
  const QStringList m_termine;
  std::optional<Recordset> m_zeile;
  std::optional<Wertregel> m_wertregel;
  std::optional<double> m_zugang;
  Slottexte m_gelesen;  // the texts that m_werte come from
  QVariantList m_werte;
};

// What a failure by rule has left, for the user to go on from: how many of how many are booked and
// what the store holds for them. Empty for a single colony that left nothing.
QString laufstand(const Buchung& buchung, qsizetype gebucht, qsizetype gesamt,
                  std::optional<double> zugang) {
  QStringList sätze;
  if (gesamt > 1 && gebucht == 0)
    sätze << QStringLiteral("Von %1 Völkern wurde noch keines gebucht.").arg(gesamt);
  if (gesamt > 1 && gebucht > 0)
    sätze << QStringLiteral(
                 "Gebucht ist die Eingabe jetzt bei %1 von %2 Völkern. Gebuchte Völker sind nicht "
                 "mehr markiert, so daß [Neu] nur noch die übrigen bucht.")
                 .arg(gebucht)
                 .arg(gesamt);
  if (gebucht > 0 && wirdGeteilt(buchung, static_cast<int>(gesamt)))
    sätze << QStringLiteral(
        "Geteilte Mengen verteilt [Neu] dann auf die übrigen Völker. Bitte tragen Sie vorher ein, "
        "was auf sie noch entfällt.");
  if (zugang)
    sätze << QStringLiteral(
                 "Im Honiglager steht bereits ein Zugang von %1 kg für den ganzen Vorgang; weitere "
                 "Buchungen kommen hinzu. Bitte berichtigen Sie das Honiglager danach.")
                 .arg(Deutsch::schlicht(*zugang));
  return sätze.join(CRLF + CRLF);
}

// Runs the bookings as one commit. When all were thrown away, nothing of them may show: booking and
// context are as before, so that a second try doesn't multiply combs again.
void sammeln(Database& datenbank, Buchung& buchung, Buchungskontext& kontext, qsizetype anzahl,
             const std::function<void(Schreiber&)>& aktion) {
  kontext.gebucht.clear();
  const Buchung buchungVorher = buchung;
  const Buchungskontext kontextVorher = kontext;
  datum(buchung);  // no date: nothing at all is written
  std::optional<double> zugang;
  try {
    datenbank.Sammelschreiben([&] {
      Schreiber schreiber(datenbank, buchung, kontext);
      const auto merken = qScopeGuard([&] { zugang = schreiber.zugang(); });
      aktion(schreiber);
    });
  } catch (const Datenbankfehler& fehler) {
    if (fehler.allesVerworfen()) {
      buchung = buchungVorher;
      kontext = kontextVorher;
      throw;
    }
    const QString stand = laufstand(buchung, kontext.gebucht.size(), anzahl, zugang);
    if (stand.isEmpty()) throw;
    throw Datenbankfehler(fehler.art(), fehler.text() + CRLF + CRLF + stand, fehler.anweisung());
  }
}

}  // namespace

void BuchungSpeichern(Database& datenbank, Buchung& buchung, const QString& volkId,
                      const QString& buchungId, Buchungskontext& kontext) {
  sammeln(datenbank, buchung, kontext, 1,
          [&](Schreiber& schreiber) { schreiber.schreibe(volkId, buchungId); });
}

void BuchungslaufSpeichern(Database& datenbank, Buchung& buchung, const QStringList& volkIds,
                           Buchungskontext& kontext) {
  const auto aufräumen = qScopeGuard([] { SammelFolgevolk = false; });
  sammeln(datenbank, buchung, kontext, volkIds.size(), [&](Schreiber& schreiber) {
    for (const QString& volkId : volkIds) {
      schreiber.schreibe(volkId, Neu);
      SammelFolgevolk = true;
    }
  });
}
