#include "bookings/Rechnen.h"

#include <algorithm>

#include "core/globals.h"
#include "data/helpers.h"
#include "platform/locale/Deutsch.h"

namespace {

constexpr int Magazine = 10;
constexpr int Waben = 11;
constexpr int Mittelwaende = 18;
// Foundation sheets are no combs yet: they need room in a magazine but don't count as Waben.
constexpr std::array GezaehlteWaben{12, 13, 14, 16, 17, 19};

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
  int ausloeser;
  int ziel;
  int faktor;  // slot of EinstellungenWert
};

constexpr int WertHonig = 0, WertWachs = 1, WertPollen = 2, WertSonstige = 3, Stundensatz = 4;

constexpr Geldregel Geldregeln[] = {
    {1, 1, 6, WertHonig},   {2, 1, 5, WertWachs},   {3, 1, 5, WertPollen},  {4, 2, 6, WertSonstige},
    {1, 4, 5, Stundensatz}, {4, 4, 5, Stundensatz}, {2, 3, 4, Stundensatz}, {3, 3, 4, Stundensatz},
    {5, 2, 3, Stundensatz}, {6, 2, 3, Stundensatz}, {7, 2, 3, Stundensatz}, {8, 6, 7, Stundensatz},
    {9, 5, 6, Stundensatz},
};

}  // namespace

QList<Slotaenderung> wabenrechnung(int geaenderterSlot, const Slottexte& texte,
                                   int wabenJeMagazin) {
  const bool zaehlt = std::ranges::find(GezaehlteWaben, geaenderterSlot) != GezaehlteWaben.end();
  if (!zaehlt && geaenderterSlot != Mittelwaende) return {};

  double summe = 0;
  for (const int slot : GezaehlteWaben) summe += zahl(texte, slot);
  const int waben = gerundet(summe);
  QList<Slotaenderung> folgen{{Waben, QString::number(waben)}};

  if (wabenJeMagazin >= 1) {
    int gesamt = waben + ganz(texte, Mittelwaende);
    if (gesamt == 0) gesamt = 1;
    gesamt = std::min(gesamt, 90);
    folgen.append({Magazine, QString::number((gesamt + wabenJeMagazin - 1) / wabenJeMagazin)});
  }
  return folgen;
}

Wabenstand wabenstand(const Slottexte& texte) {
  return {ganz(texte, Mittelwaende), ganz(texte, Waben)};
}

QString wabenbilanz(const Wabenstand& basis, const Slottexte& texte) {
  const Wabenstand jetzt = wabenstand(texte);
  return "MW: " + QString::number(basis.mittelwaende) + " (" +
         QString::number(jetzt.mittelwaende - basis.mittelwaende) +
         ")   WZ: " + QString::number(basis.waben) + " (" +
         QString::number(jetzt.waben - basis.waben) + ")";
}

std::optional<Slotaenderung> geldvorgabe(int art, int geaenderterSlot, const Slottexte& texte) {
  const auto regel = std::ranges::find_if(Geldregeln, [&](const Geldregel& r) {
    return r.art == art && r.ausloeser == geaenderterSlot;
  });
  if (regel == std::end(Geldregeln)) return std::nullopt;

  const double faktor =
      Deutsch::einfach(TZ_Variablen::EinstellungenWert[static_cast<size_t>(regel->faktor)]);
  if (regel->faktor == Stundensatz && faktor == 0) return std::nullopt;
  const double betrag = Deutsch::einfach(zahl(texte, geaenderterSlot) * faktor);
  const QString text =
      regel->faktor == Stundensatz ? ZahlFormat(betrag, 2) : Deutsch::schlicht(betrag);
  return Slotaenderung{regel->ziel, text};
}

QList<Slotaenderung> folgeaenderungen(int art, int geaenderterSlot, const Slottexte& texte,
                                      int wabenJeMagazin) {
  if (art == 0) return wabenrechnung(geaenderterSlot, texte, wabenJeMagazin);
  if (const auto geld = geldvorgabe(art, geaenderterSlot, texte)) return {*geld};
  return {};
}
