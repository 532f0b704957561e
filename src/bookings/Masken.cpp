#include "bookings/Masken.h"

#include "core/globals.h"
#include "platform/files/Textdatei.h"

namespace {

// The slots that a mask has a line for, in the order of the lines.
QList<int> maskenslots(const Slotarten& arten) {
  QList<int> nummern;
  for (int slot = 1; slot < AnzahlSlots; ++slot)
    if (slot != NotizSlot && arten[static_cast<size_t>(slot)] != Verwaltung::Art::Auswahl)
      nummern.append(slot);
  return nummern;
}

}  // namespace

void einkleiden(Slotarten& arten, int art) {
  for (const Buchungsslot& slot : buchungstyp(art).plätze)
    arten[static_cast<size_t>(slot.nummer)] = slot.art;
}

QString maskenDatei(int art) {
  return TZ_Variablen::AppPfad + "TOVA_TE_EINGABE_STD" + QString::number(art) + ".TV2";
}

void maskeSichern(int art, const Slottexte& texte, const Slotarten& arten) {
  QStringList zeilen;
  for (const int slot : maskenslots(arten)) zeilen.append(texte[static_cast<size_t>(slot)]);
  Textdatei::schreiben(maskenDatei(art), zeilen);
}

QString maskeGesichertText(int art) {
  return "Die aktuelle Eingabemaske wurde unter dem Dateinamen " + maskenDatei(art) +
         " gespeichert.";
}

std::optional<QList<Slotänderung>> maskeEinlesen(int art, const Slotarten& arten) {
  if (!Textdatei::existiert(maskenDatei(art))) return std::nullopt;
  const QStringList zeilen = Textdatei::lesen(maskenDatei(art));
  QList<Slotänderung> texte;
  for (const int slot : maskenslots(arten)) {
    if (texte.size() == zeilen.size()) break;
    texte.append({slot, zeilen.at(texte.size())});
  }
  return texte;
}
