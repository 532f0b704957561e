#include "evaluations/Buchungssummen.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

namespace Auswertung {

Summenort aufnehmen(QList<Summenauftrag>& aufträge, const Summenauftrag& tabelle,
                    const QString& feld) {
  auto auftrag = std::ranges::find(aufträge, tabelle.tabelle, &Summenauftrag::tabelle);
  if (auftrag == aufträge.end()) {
    aufträge.append(tabelle);
    auftrag = std::prev(aufträge.end());
  }
  QStringList& felder = auftrag->felder;
  if (!feld.isEmpty() && !felder.contains(feld)) felder += feld;
  return {static_cast<size_t>(auftrag - aufträge.begin()),
          std::max(0, static_cast<int>(felder.indexOf(feld)))};
}

Buchungssummen::Buchungssummen(int zeilen, qsizetype felder)
    : m_felder(static_cast<size_t>(felder)),
      m_anzahl(static_cast<size_t>(zeilen)),
      m_stände(static_cast<size_t>(zeilen) * static_cast<size_t>(felder)) {}

namespace {

constexpr qint64 Million = 1'000'000;

// The number in millionths, when it is a whole number of them and not so large that they could
// overflow.
std::optional<qint64> inMillionsteln(double zahl) {
  constexpr double Größte = 1e5;
  if (!(std::fabs(zahl) < Größte)) return std::nullopt;
  const auto viele = static_cast<qint64>(zahl * Million + (zahl < 0 ? -0.5 : 0.5));
  if (static_cast<double>(viele) / Million != zahl) return std::nullopt;
  return viele;
}

}  // namespace

double Buchungssummen::summe(size_t ort) const {
  const qint64 millionstel = m_stände[ort].millionstel;
  const qint64 ganze = millionstel / Million;
  Dezimalsumme summe = m_übrige.isEmpty() ? Dezimalsumme() : m_übrige.value(ort);
  summe.dazu(static_cast<double>(ganze));
  summe.dazu(static_cast<double>(millionstel - ganze * Million) / Million);
  return summe.wert();
}

double Buchungssummen::mittel(int zeile, int feld) const {
  const size_t wo = ort(zeile, feld);
  const qint64 werte = m_stände[wo].werte;
  return werte == 0 ? 0 : summe(wo) / static_cast<double>(werte);
}

void Buchungssummen::dazu(int zeile, const Laufzeile& buchung) {
  ++m_anzahl[static_cast<size_t>(zeile)];
  size_t wo = ort(zeile, 0);
  for (int feld = 0; feld < static_cast<int>(m_felder); ++feld, ++wo) {
    const double zahl = buchung.zahl(feld);
    if (zahl == 0 && buchung.istNull(feld)) continue;
    Stand& stand = m_stände[wo];
    ++stand.werte;
    if (const auto millionstel = inMillionsteln(zahl))
      stand.millionstel += *millionstel;
    else
      m_übrige[wo].dazu(zahl);
  }
}

namespace {

// Tells how far the passes are. How many rows a table has is guessed by its last ID.
class Wegweiser {
 public:
  Wegweiser(Lauf& lauf, const QList<Summenauftrag>& aufträge) : m_lauf(lauf) {
    if (!m_lauf.fortschritt) return;
    for (const Summenauftrag& auftrag : aufträge) m_ganz += letzteID(auftrag.tabelle);
  }
  void beginne(const QString& tabelle) {
    if (!m_lauf.fortschritt) return;
    m_vorher += m_länge;
    m_länge = letzteID(tabelle);
    m_schritte = 0;
    melde(0);
  }
  void schritt() {
    if (++m_schritte % Abstand == 0 && m_lauf.fortschritt) melde(std::min(m_schritte, m_länge));
  }

 private:
  static constexpr int Abstand = 4096;

  qint64 letzteID(const QString& tabelle) {
    return m_lauf.db.Lesen(QStringLiteral("select max(ID) as letzte from ") + tabelle)
        ->ganzzahl(0, 0);
  }
  void melde(qint64 zeilen) {
    m_lauf.fortschritt(static_cast<int>((m_vorher + zeilen) / Abstand),
                       static_cast<int>(m_ganz / Abstand) + 1);
  }

  Lauf& m_lauf;
  qint64 m_ganz = 0;
  qint64 m_vorher = 0;  // in the tables before this one
  qint64 m_länge = 0;
  qint64 m_schritte = 0;
};

// The table in its own order: the signs keep the indexes out.
QString durchlauf(const Summenauftrag& auftrag, const QStringList& schlüssel) {
  return QStringLiteral("select ") + (auftrag.felder + schlüssel).join(QStringLiteral(", ")) +
         QStringLiteral(" from ") + auftrag.tabelle +
         QStringLiteral(" where +Datum >= ? and +Datum <= ?") + auftrag.bedingung;
}

Buchungssummen summiere(Lauf& lauf, const Listenzeilen& zeilen, const Summenauftrag& auftrag,
                        Wegweiser& weg) {
  Buchungssummen summen(zeilen.anzahl(), auftrag.felder.size());
  const bool nachVolk = zeilen.brauchtVolk() && !auftrag.ohneVolk;
  QStringList schlüssel;
  if (nachVolk) schlüssel += QStringLiteral("Volk_ID");
  if (!zeilen.jeVolk()) schlüssel += QStringLiteral("Datum");
  const int volk = static_cast<int>(auftrag.felder.size());
  const int datum = volk + (nachVolk ? 1 : 0);
  const auto zeileVon = [&](const Laufzeile& buchung) {
    if (zeilen.jeVolk()) return zeilen.zeile(buchung.ganzzahl(volk));
    const int jahr = buchung.jahr(datum);
    return nachVolk ? zeilen.zeile(buchung.ganzzahl(volk), jahr) : zeilen.zeileVon(jahr);
  };
  const Jahre jahre = zeilen.jahre();
  lauf.db.Durchlaufe(durchlauf(auftrag, schlüssel),
                     {QDate(jahre.von, 1, 1), QDate(jahre.bis, 12, 31)},
                     [&](const Laufzeile& buchung) {
                       weg.schritt();
                       const int zeile = zeileVon(buchung);
                       if (zeile >= 0) summen.dazu(zeile, buchung);
                     });
  return summen;
}

}  // namespace

std::vector<Buchungssummen> summiere(Lauf& lauf, const Listenzeilen& zeilen,
                                     const QList<Summenauftrag>& aufträge) {
  Wegweiser weg(lauf, aufträge);
  std::vector<Buchungssummen> alle;
  for (const Summenauftrag& auftrag : aufträge) {
    weg.beginne(auftrag.tabelle);
    alle.push_back(summiere(lauf, zeilen, auftrag, weg));
  }
  return alle;
}

}  // namespace Auswertung
