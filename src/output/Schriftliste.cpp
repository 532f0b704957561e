#include "output/Schriftliste.h"

#include <QSet>

namespace {

// From the most to the least like Courier.
const QStringList& ähnliche() {
  static const QStringList namen = {
      QStringLiteral("Nimbus Mono PS"),   QStringLiteral("Nimbus Mono L"),
      QStringLiteral("TeX Gyre Cursor"),  QStringLiteral("FreeMono"),
      QStringLiteral("Liberation Mono"),  QStringLiteral("Cousine"),
      QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Noto Sans Mono")};
  return namen;
}

bool istCourier(const QString& name) { return name.startsWith(QStringLiteral("Courier")); }

// Empty when none is needed, or when the system has no fixed-pitch font at all.
QString ersatz(const QStringList& feste, const QStringList& übrige) {
  for (const QStringList& liste : {feste, übrige})
    for (const QString& familie : liste)
      if (istCourier(familie)) return {};
  for (const QString& familie : ähnliche())
    if (feste.contains(familie)) return familie;
  return feste.value(0);
}

}  // namespace

QList<Schriftwahl> schriftliste(const QStringList& feste, const QStringList& übrige) {
  QList<Schriftwahl> liste;
  QSet<QString> schon;
  const QString anstelle = ersatz(feste, übrige);
  if (!anstelle.isEmpty()) {
    liste.append({QString::fromLatin1(ÜblicheSchrift) + QStringLiteral(" (Ersatz: ") + anstelle +
                      QStringLiteral(")"),
                  anstelle});
    schon.insert(anstelle);
  }
  for (const QString& familie : feste + übrige) {
    if (schon.contains(familie)) continue;
    schon.insert(familie);
    liste.append({familie, familie});
  }
  return liste;
}

int schriftIndex(const QList<Schriftwahl>& liste, const QString& name) {
  for (int i = 0; i < liste.size(); ++i)
    if (liste[i].name == name) return i;
  for (int i = 0; i < liste.size(); ++i)
    if (istCourier(liste[i].name)) return i;
  return liste.isEmpty() ? -1 : 0;
}
