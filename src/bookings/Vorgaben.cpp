#include "bookings/Vorgaben.h"

#include "data/helpers.h"
#include "platform/database/Recordset.h"
#include "platform/locale/Deutsch.h"

namespace {

QString eingabe(const Slottexte& texte, int slot) {
  return TextLesen(texte[static_cast<size_t>(slot)]);
}

// The newest booking of all colonies counts.
Recordset neueste(Database& datenbank, const QString& tabelle, const QStringList& felder,
                  const QVariantList& werte) {
  return datenbank.OpenRecordset("select top 1 * from " + tabelle + " where " +
                                     felder.join(" = ? and ") + " = ? order by Datum DESC",
                                 werte);
}

QList<Slotänderung> behandlung(Database& datenbank, int slot, const Slottexte& texte) {
  const QString text = eingabe(texte, slot);
  if (text.isEmpty()) return {};
  Recordset zeile =
      neueste(datenbank, "Behandlung", {slot == 1 ? "Behandlungsart" : "Mittel"}, {text});
  if (zeile.RecordCount() == 0) return {};

  QList<Slotänderung> vorgaben;
  if (slot == 1) vorgaben.append({2, TextLesen(zeile.Wert("Mittel"))});
  vorgaben.append({3, ZahlFormat(ZahlLesen(zeile.Wert("Menge_g")), 0)});
  vorgaben.append({4, TextLesen(zeile.Wert("Zulassungsnr"))});
  vorgaben.append({5, ZahlFormat(ZahlLesen(zeile.Wert("Wartezeit")), 0)});
  return vorgaben;
}

// What makes two harvests comparable, and where quantity and value of a type stand.
struct Preisregel {
  int art;
  QList<int> auslöser;
  QList<int> güte;  // slots whose fields name the grade
  int menge;
  int wert;
};

const QList<Preisregel>& preisregeln() {
  static const QList<Preisregel> regeln{
      {1, {1, 2, 3}, {2, 3}, 1, 6},
      {2, {1, 2}, {2}, 1, 5},
      {3, {1, 2}, {2}, 1, 5},
      {4, {1, 2, 3}, {1, 3}, 2, 6},
  };
  return regeln;
}

const Preisregel* preisregel(int art) {
  for (const Preisregel& regel : preisregeln())
    if (regel.art == art) return &regel;
  return nullptr;
}

}  // namespace

std::optional<double> letzterPreis(Database& datenbank, int art, const Slottexte& texte) {
  const Preisregel& regel = *preisregel(art);
  const Buchungstyp& typ = buchungstyp(art);
  QStringList felder;
  QVariantList werte;
  for (const int slot : regel.güte) {
    felder.append(typ.platz(slot)->feld);
    werte.append(eingabe(texte, slot));
  }
  Recordset zeile = neueste(datenbank, typ.tabelle, felder, werte);
  if (zeile.RecordCount() == 0) return std::nullopt;
  const double menge = zeile.Wert(typ.platz(regel.menge)->feld).toDouble();
  if (!(menge > 0)) return std::nullopt;
  return zeile.Wert(typ.platz(regel.wert)->feld).toDouble() / menge;
}

Slotänderung wertZumPreis(int art, const Slottexte& texte, double preis) {
  const Preisregel& regel = *preisregel(art);
  const double menge = ZahlLesen(texte[static_cast<size_t>(regel.menge)]);
  // Single precision: 5 x (0.45 / 10) is 0.225 and not a little less.
  return {regel.wert, ZahlFormat(Deutsch::einfach(menge * preis), 2)};
}

QList<Slotänderung> vorgabenBeimVerlassen(Database& datenbank, int art, int slot,
                                          const Slottexte& texte) {
  if (art == 8 && (slot == 1 || slot == 2)) return behandlung(datenbank, slot, texte);
  const Preisregel* regel = preisregel(art);
  if (regel == nullptr || !regel->auslöser.contains(slot)) return {};
  const auto preis = letzterPreis(datenbank, art, texte);
  if (!preis) return {};
  return {wertZumPreis(art, texte, *preis)};
}
