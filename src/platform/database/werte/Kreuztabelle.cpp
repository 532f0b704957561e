#include "platform/database/werte/Kreuztabelle.h"

#include <map>

#include "platform/database/werte/Kollation.h"
#include "platform/locale/Deutsch.h"

namespace {

// Null before numbers before texts; a date is its text.
int rang(const QVariant& wert) {
  if (!wert.isValid()) return 0;
  return wert.typeId() == QMetaType::LongLong || wert.typeId() == QMetaType::Double ? 1 : 2;
}

QString alsText(const QVariant& wert) {
  return wert.typeId() == QMetaType::QDate ? wert.toDate().toString(Qt::ISODate) : wert.toString();
}

int vergleiche(const QVariant& links, const QVariant& rechts) {
  const int rangLinks = rang(links);
  if (rangLinks != rang(rechts)) return rangLinks - rang(rechts);
  if (rangLinks == 0) return 0;
  if (rangLinks == 2) return Kollation::vergleiche(alsText(links), alsText(rechts));
  const double a = links.toDouble();
  const double b = rechts.toDouble();
  return a < b ? -1 : (a > b ? 1 : 0);
}

struct Kleiner {
  bool operator()(const QVariant& links, const QVariant& rechts) const {
    return vergleiche(links, rechts) < 0;
  }
  bool operator()(const QVariantList& links, const QVariantList& rechts) const {
    for (qsizetype i = 0; i < links.size(); ++i) {
      const int ergebnis = vergleiche(links[i], rechts[i]);
      if (ergebnis != 0) return ergebnis < 0;
    }
    return false;
  }
};

QString überschrift(const QVariant& wert) {
  switch (wert.typeId()) {
    case QMetaType::UnknownType:
      return QStringLiteral("<>");
    case QMetaType::LongLong:
      return wert.toString();
    case QMetaType::Double:
      return Deutsch::schlicht(wert.toDouble());
    case QMetaType::QDate:
      return Deutsch::datumText(wert.toDate());
    default:
      return wert.toString();
  }
}

QVariantList gruppe(const Datenblock& zeilen, int zeile, int gruppen) {
  QVariantList werte;
  werte.reserve(gruppen);
  for (int s = 0; s < gruppen; ++s) werte << zeilen.wert(zeile, s);
  return werte;
}

}  // namespace

Daten Kreuztabelle::baue(const Datenblock& zeilen, int gruppen) {
  std::map<QVariant, int, Kleiner> drehwerte;  // pivot value -> its column
  std::map<QVariantList, int, Kleiner> gruppenNummern;
  std::vector<QVariantList> gruppenInFolge;
  std::vector<int> zuGruppe;
  for (int z = 0; z < zeilen.zeilen(); ++z) {
    drehwerte.emplace(zeilen.wert(z, gruppen), 0);
    QVariantList werte = gruppe(zeilen, z, gruppen);
    const auto [it, neu] = gruppenNummern.emplace(werte, static_cast<int>(gruppenInFolge.size()));
    if (neu) gruppenInFolge.push_back(std::move(werte));
    zuGruppe.push_back(it->second);
  }

  std::vector<Spalte> spalten;
  spalten.reserve(static_cast<size_t>(gruppen) + drehwerte.size());
  for (int s = 0; s < gruppen; ++s) spalten.push_back(zeilen.spalte(s));
  int nummer = 0;
  for (auto& [wert, spalte] : drehwerte) {
    spalte = nummer++;
    spalten.push_back({überschrift(wert), Feldtyp::Ausdruck, 0});
  }

  const size_t breite = drehwerte.size();
  std::vector<QVariant> zellen(gruppenInFolge.size() * breite);
  for (int z = 0; z < zeilen.zeilen(); ++z) {
    const size_t spalte = static_cast<size_t>(drehwerte.at(zeilen.wert(z, gruppen)));
    zellen[static_cast<size_t>(zuGruppe[static_cast<size_t>(z)]) * breite + spalte] =
        zeilen.wert(z, gruppen + 1);
  }

  Datenblock::Bauer bauer(std::move(spalten));
  for (size_t g = 0; g < gruppenInFolge.size(); ++g) {
    for (const QVariant& wert : gruppenInFolge[g]) bauer.wert(wert);
    for (size_t s = 0; s < breite; ++s) bauer.wert(zellen[g * breite + s]);
  }
  return bauer.fertig();
}
