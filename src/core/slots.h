#pragma once

#include <QtGlobal>
#include <array>
#include <bit>
#include <limits>

// The slots of the three stores of settings: one row each, with its place in the store, its name,
// its default and what it takes. First start, repair, the settings form and every reader go by
// these rows; a slot has no other number.
//
// A new slot is one row. What isn't named here is kept by the settings file as it stands.

// The default of a slot that begins with the year of today.
inline constexpr int LaufendesJahr = std::numeric_limits<int>::min();

// What is stored for a number outside von to bis.
struct Slotgrenzen {
  int von = 0;
  int bis = 9999;
  int darunter = 0;
  int darüber = 9999;

  constexpr int begrenzt(qint64 zahl) const {
    if (zahl < von) return darunter;
    return zahl > bis ? darüber : static_cast<int>(zahl);
  }
};

enum class Reparatur : int {
  Speichern,  // when the settings form saves
  AuchStart   // at the start too, whatever the file holds
};

struct Zahlslot {
  int nummer = 0;
  int standard = 0;
  Slotgrenzen grenzen = {};
  Reparatur reparatur = Reparatur::Speichern;
};

struct Wertslot {
  int nummer = 0;
  constexpr bool operator==(const Wertslot&) const = default;
};

struct Textslot {
  int nummer = 0;
  const char16_t* standard = u"";
};

inline constexpr struct Zahltabelle {
  Zahlslot statistikSchnitt{0};
  Zahlslot völkerwahl{2};  // of all evaluations
  Zahlslot volkdatenSortierung{4};
  Zahlslot buchungsauswahl{5};
  Zahlslot ereignisbericht{6};
  Zahlslot ereignisseNachVölkern{7};
  Zahlslot buchungenLeerzeile{8};
  Zahlslot buchungenVolknummer{9};
  Zahlslot buchungenVolkname{10};
  Zahlslot terminlisteBeimStart{13, 1};
  Zahlslot tastenton{14};  // the box "Volknummer" of the work plan
  Zahlslot arbeitsplanVolkname{15};
  Zahlslot arbeitsplanStandort{16};
  Zahlslot termintage{17, 14, {1, 365, 14, 365}};
  Zahlslot textQuer{18};
  Zahlslot textFett{19};
  Zahlslot textKursiv{20};
  Zahlslot webzeilen{21};  // rows of a page of the web report; the sort of the work plan
  Zahlslot textGröße{22};
  Zahlslot textRand{23};
  Zahlslot piepton{24, 1};
  Zahlslot sortierspalte{25};    // of the list of colonies, from 1 on
  Zahlslot sortierrichtung{26};  // 1: descending
  Zahlslot arbeitsplanTage{27};  // that are added to the first day
  Zahlslot terminjahr{28, LaufendesJahr};
  Zahlslot buchungsauswahlStandard{29};
  Zahlslot jahrVon{31};
  Zahlslot jahrBis{32};
  Zahlslot nachVölkern{33};  // 0: by years
  Zahlslot listeVolknummer{34};
  Zahlslot listeVolkname{35};
  Zahlslot listeStandort{36};
  Zahlslot nektarpunkte{37};
  Zahlslot pollenpunkte{38};
  Zahlslot anteilfaktor{39};
  Zahlslot entfernungsfaktor{40};
  Zahlslot anfahrtzuschlag{41};
  Zahlslot wasserzuschlag{42};
  Zahlslot prämienzuschlag{43};
  Zahlslot mehrwertsteuer1{44, 0, {1, 50, 19, 19}, Reparatur::AuchStart};
  Zahlslot mehrwertsteuer2{45, 0, {1, 50, 7, 7}, Reparatur::AuchStart};
  Zahlslot datumAlsListenkopf{46, 1};
  Zahlslot seitenzeile{47, 1};
  Zahlslot anzahlzeile{48};
  Zahlslot explorerzeilen{49, 60, {30, 9999, 30, 9999}};
  Zahlslot sicherungstage{50, 14, {1, 999, 14, 14}};
  Zahlslot laufendeNummer{51};
  Zahlslot selektionNurBestand{52};
  Zahlslot selektionAlteLöschen{53};
  Zahlslot spaltenbreiteAutomatisch{54};
  Zahlslot löschabfrage{55, 1};
  Zahlslot wabenJeMagazin{56, 0, {8, 16, 10, 10}, Reparatur::AuchStart};
  Zahlslot volknummerHochzählen{57, 1};
  Zahlslot infofensterBreit{58};
  Zahlslot anzeigebereich{67};  // of the bookings' list: Anzeigebereich
  Zahlslot ernteInsHoniglager{68};
  Zahlslot grafikZeigen{69};
  Zahlslot sammelbuchungTeilen{72};
  Zahlslot honigInWaben{73};
  Zahlslot stockkartenAbstand{74};  // empty lines between two colonies, 0 to 2
  Zahlslot stockkartenÄnderungen{75};
  Zahlslot stockkartenAbkürzungen{76};
  Zahlslot stockkartenTrennlinie{77};
  Zahlslot startzähler{78};
} Zahlslots;

inline constexpr struct Werttabelle {
  Wertslot honigJeKg{0};
  Wertslot wachsJeKg{1};
  Wertslot pollenJeG{2};
  Wertslot sonstigesJeG{3};
  Wertslot stundensatz{4};
  Wertslot kgJeHonigwabe{5};
} Wertslots;

inline constexpr struct Texttabelle {
  Textslot kopftext{0};
  Textslot volkdatenFelder{3};
  Textslot trennzeichen{4, u" | "};
  Textslot stockkarteFelder{5};  // of the booking lists, one for each type but the notes
  Textslot honigernteFelder{6};
  Textslot wachsernteFelder{7};
  Textslot pollenernteFelder{8};
  Textslot sonstigeernteFelder{9};
  Textslot arbeitenFelder{10};
  Textslot wanderungFelder{11};
  Textslot gewichtsmessungFelder{12};
  Textslot behandlungFelder{13};
  Textslot königinwechselFelder{14};
  Textslot terminZeichen{15};  // of the work plan's table
  Textslot freiZeichen{16};
  Textslot volkfelder{17};             // the select of the list of colonies
  Textslot deckungsbeitragPosten{18};  // a character an item: 1 is on
  Textslot arbeitszeitTabellen{19};
  Textslot pauschaleEinnahme{20};
  Textslot pauschaleKosten{21};
  Textslot stockkartenfelder{22};
  Textslot statistikMaße{23};
  Textslot infofenster{24};  // a character a position: 1 is shown
  Textslot letzteSicherung{26};
  Textslot datumVon{27};
  Textslot datumBis{28};
  Textslot sortierung1{33};
  Textslot sortierung2{34};
} Textslots;

// The rows of a table, which holds nothing but rows.
template <typename Slot, typename Tabelle>
std::array<Slot, sizeof(Tabelle) / sizeof(Slot)> slotzeilen(const Tabelle& tabelle) {
  return std::bit_cast<std::array<Slot, sizeof(Tabelle) / sizeof(Slot)>>(tabelle);
}
inline auto zahlslots() { return slotzeilen<Zahlslot>(Zahlslots); }
inline auto wertslots() { return slotzeilen<Wertslot>(Wertslots); }
inline auto textslots() { return slotzeilen<Textslot>(Textslots); }

// A store: an array whose places go by their rows, not by a number.
template <typename Zelle, typename Slot, size_t Plätze>
struct Slotspeicher : std::array<Zelle, Plätze> {
  constexpr Zelle& operator[](const Slot& slot) {
    return std::array<Zelle, Plätze>::operator[](static_cast<size_t>(slot.nummer));
  }
  constexpr const Zelle& operator[](const Slot& slot) const {
    return std::array<Zelle, Plätze>::operator[](static_cast<size_t>(slot.nummer));
  }
  Zelle& operator[](int nummer) = delete;
  const Zelle& operator[](int nummer) const = delete;
};
