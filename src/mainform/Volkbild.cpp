#include "mainform/Volkbild.h"

#include <QStringList>
#include <algorithm>

#include "data/helpers.h"

namespace Volkbild {

namespace {

// Puts comb after comb into the next place.
class Einräumer {
 public:
  Einräumer(Bild& bild, int wabenJeMagazin) : m_bild(bild), m_jeMagazin(wabenJeMagazin) {}

  void setze(Wabenart art, double anzahl) {
    // More than all places changes nothing, and a count may be any number.
    const int n = static_cast<int>(std::min<double>(anzahl, Plätze));
    for (int i = 0; i < n; ++i) setze(art);
  }
  // The highest magazine that was reached; the first one is always there.
  int magazine() const { return std::clamp(m_zähler / MagazinPlätze + 1, 1, Volkbild::Magazine); }

 private:
  void setze(Wabenart art) {
    ++m_zähler;
    const bool springt = m_jeMagazin >= 8 && m_jeMagazin < MagazinPlätze;
    if (springt && m_zähler < Plätze && m_zähler % MagazinPlätze == m_jeMagazin)
      m_zähler += MagazinPlätze - m_jeMagazin;
    if (m_zähler < Plätze) m_bild.waben[static_cast<size_t>(m_zähler)] = art;
  }

  Bild& m_bild;
  int m_jeMagazin;
  int m_zähler = -1;
};

QString wabenImMagazin(const Bild& bild, int magazin) {
  const auto von = bild.waben.begin() + static_cast<ptrdiff_t>(magazin) * MagazinPlätze;
  QStringList teile;
  for (const Wabe& wabe : waben()) {
    const auto n = std::count(von, von + MagazinPlätze, std::optional(wabe.art));
    if (n > 0) teile << QString::number(n) + u' ' + (n == 1 ? wabe.legende : wabe.spalte);
  }
  return teile.isEmpty() ? QStringLiteral("leer") : teile.join(QStringLiteral(", "));
}

}  // namespace

const std::array<Wabe, Wabenarten>& waben() {
  static const std::array<Wabe, Wabenarten> liste = {{
      {Wabenart::Brut, QStringLiteral("Brutwaben"), 12, QStringLiteral("Brutwabe"), 13},
      {Wabenart::Honig, QStringLiteral("Honigwaben"), 14, QStringLiteral("Honigwabe"), 12},
      {Wabenart::Pollen, QStringLiteral("Pollenwaben"), 9, QStringLiteral("Pollenwabe"), 14},
      {Wabenart::Drohnen, QStringLiteral("Drohnenwaben"), 11, QStringLiteral("Drohnenwabe"), 15},
      {Wabenart::Futter, QStringLiteral("Futterwaben"), 8, QStringLiteral("Futterwabe"), 16},
      {Wabenart::Leer, QStringLiteral("Leerwaben"), 10, QStringLiteral("Leerwabe"), 17},
      {Wabenart::Mittelwand, QStringLiteral("Mittelwände"), 15, QStringLiteral("Mittelwand"), 18},
  }};
  return liste;
}

quint32 palettenfarbe(int nummer) {
  static constexpr std::array<quint32, 16> farben = {
      0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xc0c0c0,
      0x808080, 0x0000ff, 0x00ff00, 0x00ffff, 0xff0000, 0xff00ff, 0xffff00, 0xffffff};
  return farben[static_cast<size_t>(std::clamp(nummer, 0, 15))];
}

const std::array<Note, Noten>& noten() {
  static const std::array<Note, Noten> liste = {{
      {QStringLiteral("Volkstärke"), QStringLiteral("Volkst.")},
      {QStringLiteral("Brutstand"), QStringLiteral("Brutst.")},
      {QStringLiteral("Wabensitz"), QStringLiteral("Wabens.")},
      {QStringLiteral("Sanftmut"), QStringLiteral("Sanftm.")},
      {QStringLiteral("Schwarmtrieb"), QStringLiteral("Schwtr.")},
      {QStringLiteral("Frühjahrsentw"), QStringLiteral("FJEntw.")},
      {QStringLiteral("Winterfestigkeit"), QStringLiteral("Winterf.")},
      {QStringLiteral("Varroabefall"), QStringLiteral("Varroab.")},
      {QStringLiteral("Belagert"), QStringLiteral("Belagert")},
  }};
  return liste;
}

// Each further comb takes 180 twips; the walls move outward by turns, the left one first.
std::optional<Rahmen> rahmenFür(int wabenJeMagazin) {
  if (wabenJeMagazin < 8 || wabenJeMagazin > 16) return std::nullopt;
  const int mehr = wabenJeMagazin - 8;
  return Rahmen{855 - (mehr + 1) / 2 * 180, 2430 + mehr / 2 * 180, 1680 + mehr * 180};
}

Marke marke(const QString& wert) {
  const double note = std::min(ZahlLesen(wert), 10.0);
  return {MarkeBei0 + (MarkeBei10 - MarkeBei0) / 10 * note, ZahlFormat(note, 1)};
}

Bild bild(const Zelle& zelle, Rahmen& rahmen) {
  const double gelesen = ZahlLesen(zelle(QStringLiteral("Waben_je_Magazin")));
  const int wabenJeMagazin = static_cast<int>(std::min(gelesen, 1000.0));
  rahmen = rahmenFür(wabenJeMagazin).value_or(rahmen);

  Bild bild;
  bild.rahmen = rahmen;
  Einräumer einräumer(bild, wabenJeMagazin);
  for (const Wabe& wabe : waben()) einräumer.setze(wabe.art, ZahlLesen(zelle(wabe.spalte)));
  bild.magazine = einräumer.magazine();
  for (size_t i = 0; i < Noten; ++i) bild.marken[i] = marke(zelle(noten()[i].spalte));
  return bild;
}

QString beschreibung(const Bild& bild) {
  QStringList sätze;
  for (int i = 0; i < bild.magazine; ++i)
    sätze << QStringLiteral("Magazin %1: %2.").arg(i + 1).arg(wabenImMagazin(bild, i));
  QStringList werte;
  for (size_t i = 0; i < Noten; ++i) werte << noten()[i].spalte + u' ' + bild.marken[i].text;
  return sätze.join(u' ') + QStringLiteral(" Noten: ") + werte.join(QStringLiteral(", ")) + u'.';
}

}  // namespace Volkbild
