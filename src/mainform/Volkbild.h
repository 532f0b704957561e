#pragma once

#include <QString>
#include <array>
#include <functional>
#include <optional>

// The hive picture of the main form: which comb stands where, how wide the magazines are, where
// the markers of the scores stand. Without the drawing itself.
namespace Volkbild {

inline constexpr int Plätze = 80;         // places for combs
inline constexpr int MagazinPlätze = 16;  // of them in each magazine
inline constexpr int Magazine = 5;
inline constexpr int Noten = 9;           // scores with a marker
inline constexpr double MarkeBei0 = 375;  // twips along the scale
inline constexpr double MarkeBei10 = 1275;

// In the order in which the combs are placed.
enum class Wabenart { Brut, Honig, Pollen, Drohnen, Futter, Leer, Mittelwand };

struct Wabe {
  Wabenart art;
  QString spalte;   // of the main list: how many
  int farbnummer;   // of the palette
  QString legende;  // name of one
  int bildpos;      // number of the legend's label
};
inline constexpr int Wabenarten = 7;
const std::array<Wabe, Wabenarten>& waben();

// A colour of the classic palette of 16, number 0 to 15, as 0xRRGGBB.
quint32 palettenfarbe(int nummer);

// The scores in the order of their labels (bildpos 0 to 8).
struct Note {
  QString spalte;
  QString beschriftung;
};
const std::array<Note, Noten>& noten();

// Where the frames of the magazines stand, in twips.
struct Rahmen {
  int links = 135;
  int rechts = 3150;
  int obenBreite = 3120;
};
// The frame for so many combs in a magazine; nothing outside of 8 to 16.
std::optional<Rahmen> rahmenFür(int wabenJeMagazin);

struct Marke {
  double stelle = MarkeBei0;  // twips
  QString text = QStringLiteral("0,0");
};
// A score as the list shows it; above 10 it counts as 10.
Marke marke(const QString& wert);

struct Bild {
  std::array<std::optional<Wabenart>, Plätze> waben;  // empty: no comb to be seen
  int magazine = 1;                                   // 1 to 5
  Rahmen rahmen;
  std::array<Marke, Noten> marken;
};

// The cell of the list's current row by column, as the list shows it.
using Zelle = std::function<QString(const QString& spalte)>;

// The picture of a colony. rahmen is where the frames stand, from the colony before; it is fitted
// to Waben_je_Magazin, and stays as it is when that is not 8 to 16.
Bild bild(const Zelle& zelle, Rahmen& rahmen);

// The picture in words, for those who can't see it.
QString beschreibung(const Bild& bild);

}  // namespace Volkbild
