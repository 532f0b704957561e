#include "bookings/Buchung.h"

#include <QScopeGuard>
#include <functional>
#include <optional>

#include "bookings/Rechnen.h"
#include "bookings/Vorgaben.h"
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
  const auto stehtDa = [&](const Slotaenderung& vorgabe) {
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
  const double kgJeWabe = Deutsch::einfach(EinstellungenWert[5]);
  if (EinstellungenZahl[73] != 1 || !(kgJeWabe > 0)) return;
  if (!regel) regel = wertregel(datenbank, buchung);
  buchung.texte[1] = ZahlFormat(Deutsch::einfach(zahl(buchung, 1) * kgJeWabe), 2);
  if (regel->art == Wertregel::Art::Getippt) return;
  const Slotaenderung wert = regel->art == Wertregel::Art::Faktor
                                 ? *geldvorgabe(buchung.art, 1, buchung.texte)
                                 : wertZumPreis(buchung.art, buchung.texte, regel->preis);
  buchung.texte[static_cast<size_t>(wert.slot)] = wert.text;
}

QVariant feldwert(const Buchung& buchung, const Buchungsslot& slot) {
  switch (slot.art) {
    case Slotart::Dezimal:
      return zahl(buchung, slot.nummer);
    case Slotart::Ganzzahl:
      return GanzLesen(buchung.texte[static_cast<size_t>(slot.nummer)]);
    default:
      return text(buchung, slot.nummer);
  }
}

// What the slots write, in the order of the type's slots.
QVariantList feldwerte(const Buchung& buchung, int anzahlMarkiert) {
  const bool teilen = EinstellungenZahl[72] == 1 && anzahlMarkiert >= 2;
  QVariantList werte;
  for (const Buchungsslot& slot : buchungstyp(buchung.art).plaetze) {
    if (teilen && slot.geteilt)
      werte.append(
          ZahlLesen(ZahlFormat(Deutsch::einfach(zahl(buchung, slot.nummer) / anzahlMarkiert), 2)));
    else
      werte.append(feldwert(buchung, slot));
  }
  return werte;
}

// One movement for one harvest, however many colonies it came from.
void honiglagerSchreiben(Database& datenbank, const Buchung& buchung, int anzahlMarkiert) {
  const double menge = zahl(buchung, 1);
  if (!(menge > 0) || EinstellungenZahl[68] != 1 || SammelFolgevolk) return;
  // Undivided, each colony was booked the whole quantity.
  const double zugang =
      EinstellungenZahl[72] == 0 ? Deutsch::einfach(menge * anzahlMarkiert) : menge;
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
}

Recordset zeileOeffnen(Database& datenbank, const QString& tabelle, qint64 volkId,
                       const QString& buchungId) {
  QString abfrage = "select top 1 * from " + tabelle + " where Volk_ID = ?";
  QVariantList werte{volkId};
  if (buchungId != Neu) {
    abfrage += " and ID = ?";
    werte.append(buchungId.toLongLong());
  }
  return datenbank.OpenRecordset(abfrage, werte);
}

void volkMerken(QString& geaenderteVoelker, const QString& volkId) {
  const QString eintrag = "/" + volkId + "/";
  if (!geaenderteVoelker.contains(eintrag)) geaenderteVoelker += eintrag;
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
    oeffne(volk, buchungId);
    if (neueErnte) honigwabenUmrechnen(m_datenbank, m_buchung, m_wertregel);
    felderSchreiben();
    if (neueErnte) honiglagerSchreiben(m_datenbank, m_buchung, m_kontext.anzahlMarkiert);
    (*m_zeile)["Datum"] = m_tag;
    (*m_zeile)["Volk_ID"] = volk;
    m_zeile->Update();
    ListeNeuLesen = 1;
    volkMerken(m_kontext.geaenderteVoelker, volkId);
  }

 private:
  void oeffne(qint64 volk, const QString& buchungId) {
    if (buchungId == Neu) {
      if (!m_zeile) m_zeile = zeileOeffnen(m_datenbank, m_typ.tabelle, volk, Neu);
      m_zeile->AddNew();
    } else {
      m_zeile = zeileOeffnen(m_datenbank, m_typ.tabelle, volk, buchungId);
      m_zeile->MoveFirst();
      m_zeile->Edit();
    }
  }
  void felderSchreiben() {
    if (m_werte.isEmpty() || m_gelesen != m_buchung.texte) {
      m_werte = feldwerte(m_buchung, m_kontext.anzahlMarkiert);
      m_gelesen = m_buchung.texte;
    }
    for (qsizetype i = 0; i < m_typ.plaetze.size(); ++i)
      (*m_zeile)[m_typ.plaetze[i].feld] = m_werte[i];
  }

  Database& m_datenbank;
  Buchung& m_buchung;
  Buchungskontext& m_kontext;
  const Buchungstyp& m_typ;
  const QDate m_tag;
  const QStringList m_termine;
  std::optional<Recordset> m_zeile;
  std::optional<Wertregel> m_wertregel;
  Slottexte m_gelesen;  // the texts that m_werte come from
  QVariantList m_werte;
};

// Runs the writes as one commit. When the engine has thrown them all away, nothing of them may
// show: booking and context are as before, so that a second try doesn't multiply combs again.
void sammeln(Database& datenbank, Buchung& buchung, Buchungskontext& kontext,
             const std::function<void()>& aktion) {
  const Buchung buchungVorher = buchung;
  const Buchungskontext kontextVorher = kontext;
  datum(buchung);  // no date: nothing at all is written
  try {
    datenbank.Sammelschreiben(aktion);
  } catch (const Datenbankfehler& fehler) {
    if (fehler.allesVerworfen()) {
      buchung = buchungVorher;
      kontext = kontextVorher;
    }
    throw;
  }
}

}  // namespace

void BuchungSpeichern(Database& datenbank, Buchung& buchung, const QString& volkId,
                      const QString& buchungId, Buchungskontext& kontext) {
  sammeln(datenbank, buchung, kontext,
          [&] { Schreiber(datenbank, buchung, kontext).schreibe(volkId, buchungId); });
}

void BuchungslaufSpeichern(Database& datenbank, Buchung& buchung, const QStringList& volkIds,
                           Buchungskontext& kontext) {
  const auto aufraeumen = qScopeGuard([] { SammelFolgevolk = false; });
  sammeln(datenbank, buchung, kontext, [&] {
    Schreiber schreiber(datenbank, buchung, kontext);
    for (const QString& volkId : volkIds) {
      schreiber.schreibe(volkId, Neu);
      SammelFolgevolk = true;
    }
  });
}
