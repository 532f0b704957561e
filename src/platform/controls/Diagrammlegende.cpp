#include "platform/controls/Diagrammlegende.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

constexpr double Zeilenabstand = 1.3;  // to the height of the text

// The square of the colour and what stands between the pieces of an entry.
double kästchen(const QFontMetricsF& masse) { return masse.ascent(); }
double lücke(const QFontMetricsF& masse) { return masse.height() / 2; }

}  // namespace

Diagrammlegende::Diagrammlegende(const Diagramminhalt& inhalt, const QFont& schrift, QSizeF raum)
    : m_inhalt(inhalt), m_schrift(schrift) {
  constexpr double Kleinste = 0.75;  // of the font
  constexpr double KurzerName = 10;  // in heights of the text
  constexpr double KürzesterName = 4;
  if (inhalt.punkte.isEmpty()) return;
  const int größte = schrift.pixelSize();
  const int kleinste = std::max(1, static_cast<int>(std::ceil(größte * Kleinste)));
  for (int größe = größte; größe >= kleinste; --größe) {
    einteilen(größe, raum.height());
    einpassen(raum.width(), größe == kleinste ? KürzesterName : KurzerName);
    if (m_größe.width() <= raum.width()) return;
  }
  const int spalten = std::max(1, static_cast<int>(raum.width() / m_spaltenbreite));
  einteilen(kleinste, raum.height());
  m_spalten = spalten;
  m_zeilen = std::clamp(static_cast<int>(raum.height() / m_zeilenhöhe), 1, m_genannt);
  const int plätze = m_zeilen * m_spalten;
  if (plätze < m_genannt) m_genannt = plätze - 1;  // the last one tells how many there are besides
  einpassen(raum.width(), KürzesterName);
}

void Diagrammlegende::einteilen(int schriftgröße, double höhe) {
  m_schrift.setPixelSize(schriftgröße);
  const QFontMetricsF masse(m_schrift);
  const auto anzahl = static_cast<int>(m_inhalt.punkte.size());
  m_zeilenhöhe = masse.height() * Zeilenabstand;
  m_zeilen = std::clamp(static_cast<int>(höhe / m_zeilenhöhe), 1, anzahl);
  m_spalten = (anzahl + m_zeilen - 1) / m_zeilen;
  m_zeilen = (anzahl + m_spalten - 1) / m_spalten;  // columns of the same length
  m_genannt = anzahl;
  m_nummern = m_namen = m_werte = 0;
  for (int i = 0; i < anzahl; ++i) {
    m_nummern = std::max(m_nummern, masse.horizontalAdvance(nummer(i)));
    m_namen = std::max(m_namen, masse.horizontalAdvance(m_inhalt.punkte[i].name) + 1);
    m_werte = std::max(m_werte, masse.horizontalAdvance(m_inhalt.werttext(i)));
  }
  if (m_nummern > 0) m_nummern += lücke(masse);
  if (m_werte > 0) m_werte += 2 * lücke(masse);
}

// Cuts the names as far as it must and may.
void Diagrammlegende::einpassen(double breite, double kürzesterName) {
  const QFontMetricsF masse(m_schrift);
  const double übriges = kästchen(masse) + m_nummern + m_werte + 3 * lücke(masse);
  const double kürzester = std::min(m_namen, kürzesterName * masse.height());
  m_namen = std::clamp(breite / m_spalten - übriges, kürzester, m_namen);
  m_spaltenbreite = übriges + m_namen;
  m_größe = {m_spalten * m_spaltenbreite, m_zeilen * m_zeilenhöhe};
}

QString Diagrammlegende::nummer(int punkt) const {
  return m_inhalt.nummeriert() ? QString::number(punkt + 1) : QString();
}

void Diagrammlegende::malen(QPainter& maler, const QPointF& ort) const {
  maler.setFont(m_schrift);
  const auto zeile = [&](int nummer) {
    const int spalte = nummer / m_zeilen;
    const int reihe = nummer % m_zeilen;
    return QRectF(ort + QPointF(spalte * m_spaltenbreite, reihe * m_zeilenhöhe),
                  QSizeF(m_spaltenbreite, m_zeilenhöhe));
  };
  for (int i = 0; i < m_genannt; ++i) maleEintrag(maler, i, zeile(i));
  const auto übrig = m_inhalt.punkte.size() - m_genannt;
  if (übrig > 0)
    maler.drawText(zeile(m_genannt), Qt::AlignVCenter | Qt::AlignLeft,
                   QStringLiteral("und %1 weitere").arg(übrig));
}

void Diagrammlegende::maleEintrag(QPainter& maler, int punkt, const QRectF& zeile) const {
  const QFontMetricsF masse(m_schrift);
  const double seite = kästchen(masse);
  maler.fillRect(QRectF(zeile.left(), zeile.center().y() - seite / 2, seite, seite),
                 Diagramminhalt::farbe(punkt));
  double x = zeile.left() + seite + lücke(masse);
  const auto feld = [&](double breite) {
    const QRectF feld(x, zeile.top(), breite, zeile.height());
    x += breite;
    return feld;
  };
  maler.setPen(Qt::darkGray);
  maler.drawText(feld(m_nummern).adjusted(0, 0, -lücke(masse), 0),
                 Qt::AlignVCenter | Qt::AlignRight, nummer(punkt));
  maler.setPen(Qt::black);
  maler.drawText(feld(m_namen), Qt::AlignVCenter | Qt::AlignLeft,
                 masse.elidedText(m_inhalt.punkte[punkt].name, Qt::ElideRight, m_namen));
  maler.drawText(feld(m_werte), Qt::AlignVCenter | Qt::AlignRight, m_inhalt.werttext(punkt));
}
