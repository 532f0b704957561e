#include "bookings/Rechnen.h"

#include <algorithm>

#include "core/globals.h"
#include "data/helpers.h"
#include "platform/locale/Deutsch.h"

namespace {

constexpr int Magazine = 10;
constexpr int Waben = 11;
constexpr int Mittelwände = 18;
// Foundation sheets are no combs yet: they need room in a magazine but don't count as Waben.
constexpr std::array GezählteWaben{12, 13, 14, 16, 17, 19};

double zahl(const Slottexte& texte, int slot) {
  return ZahlLesen(texte[static_cast<size_t>(slot)]);
}

// A mask file can bring any number; two of these still add up within an int.
int gerundet(double wert) {
  return static_cast<int>(Deutsch::gerade(std::min(wert, 999'999'999.0)));
}

int ganz(const Slottexte& texte, int slot) { return gerundet(zahl(texte, slot)); }

struct Geldregel {
  int art;
  int auslöser;
  int ziel;
  Wertslot faktor;
};

constexpr Wertslot Stundensatz = Wertslots.stundensatz;

constexpr Geldregel Geldregeln[] = {
    {1, 1, 6, Wertslots.honigJeKg}, {2, 1, 5, Wertslots.wachsJeKg},
    {3, 1, 5, Wertslots.pollenJeG}, {4, 2, 6, Wertslots.sonstigesJeG},
    {1, 4, 5, Stundensatz},         {4, 4, 5, Stundensatz},
    {2, 3, 4, Stundensatz},         {3, 3, 4, Stundensatz},
    {5, 2, 3, Stundensatz},         {6, 2, 3, Stundensatz},
    {7, 2, 3, Stundensatz},         {8, 6, 7, Stundensatz},
    {9, 5, 6, Stundensatz},
};

}  // namespace

QList<Slotänderung> wabenrechnung(int geänderterSlot, const Slottexte& texte, int wabenJeMagazin) {
  const bool zählt = std::ranges::find(GezählteWaben, geänderterSlot) != GezählteWaben.end();
  if (!zählt && geänderterSlot != Mittelwände) return {};

  double summe = 0;
  for (const int slot : GezählteWaben) summe += zahl(texte, slot);
  const int waben = gerundet(summe);
  QList<Slotänderung> folgen{{Waben, QString::number(waben)}};

  if (wabenJeMagazin >= 1) {
    int gesamt = waben + ganz(texte, Mittelwände);
    if (gesamt == 0) gesamt = 1;
    gesamt = std::min(gesamt, 90);
    folgen.append({Magazine, QString::number((gesamt + wabenJeMagazin - 1) / wabenJeMagazin)});
  }
  return folgen;
}

Wabenstand wabenstand(const Slottexte& texte) {
  return {ganz(texte, Mittelwände), ganz(texte, Waben)};
}

QString wabenbilanz(const Wabenstand& basis, const Slottexte& texte) {
  const Wabenstand jetzt = wabenstand(texte);
  return "MW: " + QString::number(basis.mittelwände) + " (" +
         QString::number(jetzt.mittelwände - basis.mittelwände) +
         ")   WZ: " + QString::number(basis.waben) + " (" +
         QString::number(jetzt.waben - basis.waben) + ")";
}

std::optional<Slotänderung> geldvorgabe(int art, int geänderterSlot, const Slottexte& texte) {
  const auto regel = std::ranges::find_if(
      Geldregeln, [&](const Geldregel& r) { return r.art == art && r.auslöser == geänderterSlot; });
  if (regel == std::end(Geldregeln)) return std::nullopt;

  const double faktor = Deutsch::einfach(TZ_Variablen::EinstellungenWert[regel->faktor]);
  const bool zeit = regel->faktor == Stundensatz;
  if (zeit && faktor == 0) return std::nullopt;
  const double betrag = Deutsch::einfach(zahl(texte, geänderterSlot) * faktor);
  const QString text = zeit ? ZahlFormat(betrag, 2) : Deutsch::schlicht(betrag);
  return Slotänderung{regel->ziel, text};
}

QList<Slotänderung> folgeänderungen(int art, int geänderterSlot, const Slottexte& texte,
                                    int wabenJeMagazin) {
  if (art == 0) return wabenrechnung(geänderterSlot, texte, wabenJeMagazin);
  if (const auto geld = geldvorgabe(art, geänderterSlot, texte)) return {*geld};
  return {};
}
