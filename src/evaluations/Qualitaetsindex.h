#pragma once

#include <QHash>
#include <vector>

#include "evaluations/Auswertung.h"

// How good a site is on a day: points for the plants that bloom there, raised by percentages for
// its access, water and premium.
namespace Qualitätsindex {

// What the beekeeper sets. A factor of 0 switches its step off.
struct Parameter {
  double nektar = 0;      // points for each degree of nectar
  double pollen = 0;      // and of pollen
  double anteil = 0;      // factor of a share of 100 %
  double entfernung = 0;  // factor of a plant right at the site
  double pkw = 0;         // per cent for access by car
  double wasser = 0;      // per cent for water right at the site
  double prämie = 0;      // per cent for each 10 Euro
};

// A site apart from its plants.
struct Standort {
  qint64 id = 0;
  QString name;
  bool pkw = false;
  qint64 wasser_m = 0;  // 0: not known
  double prämie = 0;    // Euro a colony
};

// 32 bits each.
struct Punkte {
  qint64 pflanze = 0;
  qint64 standort = 0;
  qint64 gesamt = 0;
  bool operator==(const Punkte&) const = default;
};

// The day without its year, as month and day: 405 is the 5th of April.
int tagesschlüssel(QDate tag);

// All sites' plants with their points, read once; what differs from day to day is only which of
// them bloom.
class Trachten {
 public:
  Trachten(Database& db, const Parameter& parameter);

  // Throws Datenbankfehler when the points don't fit into 32 bits.
  Punkte punkte(const Standort& ort, int tag) const;

 private:
  struct Blüte {  // from a day to a day; a bloom over the turn of the year holds no day
    int von = 1;
    int bis = 0;
  };
  struct Pflanze {
    Blüte blüte;
    qint64 nektarstufe = 0;
    qint64 pollenstufe = 0;
  };
  struct Beitrag {  // of a plant to its site
    Blüte blüte;
    std::optional<qint64> punkte;  // none: too many for 32 bits
  };
  using Pflanzen = QHash<QByteArray, Pflanze>;  // by the key of the name's order

  static Pflanzen pflanzenLesen(Database& db);
  void beiträgeLesen(Database& db, const Pflanzen& pflanzen);
  std::optional<qint64> beitrag(const Pflanze& pflanze, qint64 entfernung, qint64 anteil) const;
  qint64 summe(const Standort& ort, int tag) const;

  Parameter m_parameter;
  QHash<qint64, std::vector<Beitrag>> m_beiträge;  // by the site's ID
};

}  // namespace Qualitätsindex
