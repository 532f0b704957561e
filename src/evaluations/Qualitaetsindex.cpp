#include "evaluations/Qualitaetsindex.h"

#include <cmath>
#include <limits>

#include "data/helpers.h"
#include "platform/database/werte/Kollation.h"

namespace Qualitätsindex {

namespace {

constexpr int Prozent = 100;
constexpr int FernePflanze_m = 3000;  // from here on the distance doesn't count
constexpr int FernesWasser_m = 1000;
constexpr double Prämienschritt = 10;

constexpr double Kleinste = std::numeric_limits<qint32>::min();
constexpr double Größte = std::numeric_limits<qint32>::max();

// To the nearest whole number, a half to the even one; none where it doesn't fit into 32 bits.
std::optional<qint64> gerundet(double wert) {
  const double ganz = std::nearbyint(wert);
  if (!(ganz >= Kleinste && ganz <= Größte)) return std::nullopt;
  return static_cast<qint64>(ganz);
}

[[noreturn]] void zuGroß(const Standort& ort) {
  throw Datenbankfehler(
      Datenbankfehler::Art::Wertebereich,
      QString("Der Qualitäts-Index des Standorts \"%1\" kann nicht berechnet werden, weil seine "
              "Punkte über %2 hinausgehen. Bitte prüfen Sie die Qualitätsparameter und die "
              "Eintragungen zum Standort und zu seinen Pflanzen.")
          .arg(ort.name)
          .arg(static_cast<qint32>(Größte)));
}

qint64 verlangt(const std::optional<qint64>& punkte, const Standort& ort) {
  if (!punkte) zuGroß(ort);
  return *punkte;
}

qint64 erhöht(qint64 punkte, double prozent, const Standort& ort) {
  const auto viele = static_cast<double>(punkte);
  return verlangt(gerundet(viele + prozent * viele / Prozent), ort);
}

}  // namespace

int tagesschlüssel(QDate tag) { return tag.month() * 100 + tag.day(); }

Trachten::Trachten(Database& db, const Parameter& parameter) : m_parameter(parameter) {
  beiträgeLesen(db, pflanzenLesen(db));
}

// Of plants that share a name the first entered counts.
Trachten::Pflanzen Trachten::pflanzenLesen(Database& db) {
  Pflanzen pflanzen;
  db.Durchlaufe(
      "select Pflanze, Weidezeit_von, Weidezeit_bis, Nektarstufe, Pollenstufe "
      "from Pflanzen order by ID",
      {}, [&](const Laufzeile& zeile) {
        const QByteArray name = Kollation::schlüssel(zeile.text(0));
        if (zeile.istNull(0) || pflanzen.contains(name)) return;
        Pflanze p{.blüte = {}, .nektarstufe = zeile.ganzzahl(3), .pollenstufe = zeile.ganzzahl(4)};
        const QDate von = zeile.datum(1);
        const QDate bis = zeile.datum(2);
        if (von.isValid() && bis.isValid()) p.blüte = {tagesschlüssel(von), tagesschlüssel(bis)};
        pflanzen.insert(name, p);
      });
  return pflanzen;
}

void Trachten::beiträgeLesen(Database& db, const Pflanzen& pflanzen) {
  QHash<QByteArray, Pflanzen::const_iterator> bekannte;  // by the name as it is written
  db.Durchlaufe(
      "select Standort_Kennung, Pflanze, Entfernung_m, Proz_Anteil "
      "from Standorte_Pflanzen order by ID",
      {}, [&](const Laufzeile& zeile) {
        const QByteArray name = zeile.rohtext(1).toByteArray();
        auto treffer = bekannte.constFind(name);
        if (treffer == bekannte.constEnd())
          treffer = bekannte.insert(
              name, pflanzen.constFind(Kollation::schlüssel(TextLesen(zeile.text(1)))));
        if (*treffer == pflanzen.constEnd()) return;
        const Pflanze& pflanze = **treffer;
        m_beiträge[zeile.ganzzahl(0)].push_back(
            {pflanze.blüte, beitrag(pflanze, zeile.ganzzahl(2), zeile.ganzzahl(3))});
      });
}

std::optional<qint64> Trachten::beitrag(const Pflanze& pflanze, qint64 entfernung,
                                        qint64 anteil) const {
  const Parameter& p = m_parameter;
  auto punkte = gerundet(static_cast<double>(pflanze.nektarstufe) * p.nektar +
                         static_cast<double>(pflanze.pollenstufe) * p.pollen);
  if (punkte && anteil > 0 && p.anteil > 0) {
    const auto viele = static_cast<double>(*punkte);
    punkte = gerundet(viele + viele * (static_cast<double>(anteil) * p.anteil / Prozent));
  }
  if (punkte && entfernung > 0 && entfernung < FernePflanze_m && p.entfernung > 0) {
    const auto faktor = static_cast<float>(p.entfernung / FernePflanze_m);
    punkte = gerundet(static_cast<double>(FernePflanze_m - entfernung) *
                      static_cast<double>(faktor) * static_cast<double>(*punkte));
  }
  return punkte;
}

qint64 Trachten::summe(const Standort& ort, int tag) const {
  qint64 summe = 0;
  const auto beiträge = m_beiträge.constFind(ort.id);
  if (beiträge == m_beiträge.constEnd()) return 0;
  for (const Beitrag& b : *beiträge) {
    if (tag < b.blüte.von || tag > b.blüte.bis) continue;
    summe = verlangt(gerundet(static_cast<double>(summe + verlangt(b.punkte, ort))), ort);
  }
  return summe;
}

Punkte Trachten::punkte(const Standort& ort, int tag) const {
  const Parameter& p = m_parameter;
  const qint64 pflanze = summe(ort, tag);
  qint64 gesamt = pflanze;
  if (pflanze > 0) {
    if (ort.pkw) gesamt = erhöht(gesamt, p.pkw, ort);
    if (ort.wasser_m > 0 && ort.wasser_m < FernesWasser_m && p.wasser > 0)
      gesamt = erhöht(gesamt,
                      static_cast<float>(static_cast<double>(FernesWasser_m - ort.wasser_m) *
                                         (p.wasser / FernesWasser_m)),
                      ort);
    if (p.prämie > 0 && ort.prämie > 0)
      gesamt = erhöht(gesamt, static_cast<float>(ort.prämie / Prämienschritt * p.prämie), ort);
  }
  return {pflanze, gesamt - pflanze, gesamt};
}

}  // namespace Qualitätsindex
