#include "evaluations/Ereignisbericht.h"

#include <algorithm>

#include <limits>
#include <numeric>
#include <string>
#include <unordered_map>

#include "data/helpers.h"
#include "evaluations/Feldtext.h"
#include "platform/database/werte/Kollation.h"
#include "platform/database/werte/Zeilenordnung.h"

using namespace Auswertung;

namespace {

constexpr int Schritt = 5000;  // bookings between two reports of progress
constexpr std::string_view Trenner = "  ";
constexpr size_t KeineZelle = std::numeric_limits<size_t>::max();

enum Feld : int { VolkID, Datum, ErstesFeld };

// The colonies chosen: in which order they come, and their texts.
struct Volk {
  quint64 rang = 0;  // equal where the order of texts takes their numbers for equal
  std::string nummer;
  std::string name;
  size_t nummernzelle = KeineZelle;  // where the block has them already
  size_t namenszelle = KeineZelle;
};

std::string lesetext(const Datenblock& block, int zeile, int spalte) {
  std::string text;
  Feldtext::anhängen(text, block.rohtext(zeile, spalte));
  return text;
}

QHash<qint64, Volk> völkerLesen(Lauf& lauf) {
  const Daten daten =
      lauf.db.Lesen(QStringLiteral("select ID, Volknr, Volkname from Bienenvolk") +
                    schlichterRest(lauf.eingaben) + QStringLiteral(" order by Volknr"));
  QHash<qint64, Volk> völker;
  quint64 rang = 0;
  for (int i = 0; i < daten->zeilen(); ++i) {
    if (i > 0 && Kollation::vergleicheUtf8(daten->rohtext(i - 1, 1), daten->rohtext(i, 1)) != 0)
      ++rang;
    völker.insert(daten->ganzzahl(i, 0), {rang, lesetext(*daten, i, 1), lesetext(*daten, i, 2)});
  }
  return völker;
}

// "yyyy-mm-dd" as the number yyyymmdd; 0 for no date.
quint64 tageszahl(QByteArrayView tag) {
  quint64 zahl = 0;
  for (const char c : tag)
    if (c != '-') zahl = zahl * 10 + static_cast<quint64>(c - '0');
  return zahl;
}

// A text that many rows share lies in the block once.
void geteilt(Datenblock::Bauer& ziel, size_t& zelle, QByteArrayView text) {
  if (zelle != KeineZelle) return ziel.wie(zelle);
  zelle = ziel.zellen();
  ziel.text(text.data(), text.size());
}

class Bericht {
 public:
  explicit Bericht(Lauf& lauf)
      : m_lauf(lauf),
        m_mitNummer(lauf.eingaben.an(QStringLiteral("kontier"), 0)),
        m_mitName(lauf.eingaben.an(QStringLiteral("kontier"), 1)),
        m_nachVolk(lauf.eingaben.an(QStringLiteral("kontiergruppe"))),
        m_völker(völkerLesen(lauf)),
        m_bauer(spalten()) {}

  Ausgabeliste erstellen() {
    if (!m_völker.isEmpty()) {
      platzSchaffen();
      for (const auto& art : Ereignisbericht::arten()) tabelle(art);
    }
    std::vector<int> ordnung(m_schlüssel.size());
    std::iota(ordnung.begin(), ordnung.end(), 0);
    Zeilenordnung::sortiere(ordnung, m_schlüssel);
    if (m_nachVolk && m_lauf.eingaben.an(QStringLiteral("tierleer"))) ordnung = getrennt(ordnung);
    return Ausgabeliste(m_bauer.fertig(), m_titel, std::move(ordnung));
  }

 private:
  std::vector<Spalte> spalten() {
    std::vector<Spalte> alle{{QStringLiteral("datum"), Feldtyp::Datum, 0},
                             {QStringLiteral("buchung"), Feldtyp::Memo, 0}};
    m_titel = QStringList{QStringLiteral("Datum"), QStringLiteral("Buchung")};
    const auto dazu = [&](const QString& name, const QString& titel) {
      alle.push_back({name, Feldtyp::Memo, 0});
      m_titel += titel;
    };
    if (m_mitNummer) dazu(QStringLiteral("vnummer"), QStringLiteral("Volknr"));
    if (m_mitName) dazu(QStringLiteral("vname"), QStringLiteral("Volkname"));
    dazu(QStringLiteral("hinweise"), QStringLiteral("Hinweise"));
    return alle;
  }

  // As many rows as there can be; what isn't needed costs no memory. Numbers of rows with wide gaps
  // between them ask for no more than a large operation has.
  void platzSchaffen() {
    constexpr qint64 Höchstens = 4'000'000;
    constexpr size_t TextJeZeile = 40;
    qint64 gesamt = 0;
    for (const auto& art : Ereignisbericht::arten())
      gesamt += m_lauf.db.Lesen(QStringLiteral("select max(ID) as n from ") + art.tabelle)
                    ->ganzzahl(0, 0);
    m_gesamt = static_cast<int>(std::min(gesamt, Höchstens));
    if (einVolk()) return;
    const auto zeilen = static_cast<size_t>(m_gesamt);
    m_bauer.reserviere(zeilen * static_cast<size_t>(m_titel.size()), zeilen * TextJeZeile);
    m_schlüssel.reserve(zeilen);
  }

  bool einVolk() const { return m_völker.size() == 1; }

  void tabelle(const Ereignisbericht::Ereignisart& art) {
    Tabelle tabelle{art.tabelle.toStdString()};
    for (const auto& feld : art.felder) tabelle.vorsätze.push_back(feld.vorsatz.toStdString());
    const auto [anweisung, werte] = lesen(art);
    m_lauf.db.Durchlaufe(anweisung, werte, [&](const Laufzeile& buchung) {
      if (m_lauf.fortschritt && ++m_fertig % Schritt == 0)
        m_lauf.fortschritt(std::min(m_fertig, m_gesamt), m_gesamt);
      const auto volk = m_völker.find(buchung.ganzzahl(VolkID));
      if (volk != m_völker.end()) zeile(tabelle, buchung, *volk);
    });
  }

  // The whole table from front to back, or one colony's bookings by their index.
  std::pair<QString, QVariantList> lesen(const Ereignisbericht::Ereignisart& art) const {
    QString felder;
    for (const auto& feld : art.felder) felder += QStringLiteral(", ") + feld.name;
    QStringList bedingungen;
    QVariantList werte;
    if (einVolk()) {
      bedingungen += QStringLiteral("Volk_ID = ?");
      werte += m_völker.cbegin().key();
    }
    if (m_lauf.eingaben.wahl(QStringLiteral("optibuch")) == 1) {
      bedingungen += QStringLiteral("+Datum >= ? and +Datum <= ?");
      for (int i : {0, 1}) werte += DatumLesen(m_lauf.eingaben.text(QStringLiteral("tdat"), i));
    }
    QString anweisung =
        QStringLiteral("select Volk_ID, Datum") + felder + QStringLiteral(" from ") + art.tabelle;
    if (!bedingungen.isEmpty())
      anweisung += QStringLiteral(" where ") + bedingungen.join(QStringLiteral(" and "));
    return {anweisung + QStringLiteral(" order by ID"), werte};
  }

  struct Tabelle {
    std::string name;
    std::vector<std::string> vorsätze = {};
    size_t namenszelle = KeineZelle;
  };

  void zeile(Tabelle& tabelle, const Laufzeile& buchung, Volk& volk) {
    const QByteArrayView tag = buchung.rohtext(Datum);
    const quint64 zahl = tageszahl(tag);
    m_schlüssel.push_back(m_nachVolk ? volk.rang << 32 | zahl : zahl << 32 | volk.rang);
    if (tag.isEmpty())
      m_bauer.null();
    else
      geteilt(m_bauer, m_tage.try_emplace(zahl, KeineZelle).first->second, tag);
    geteilt(m_bauer, tabelle.namenszelle, tabelle.name);
    if (m_mitNummer) geteilt(m_bauer, volk.nummernzelle, volk.nummer);
    if (m_mitName) geteilt(m_bauer, volk.namenszelle, volk.name);
    hinweise(buchung, tabelle.vorsätze);
  }

  void hinweise(const Laufzeile& buchung, const std::vector<std::string>& vorsätze) {
    m_text.clear();
    for (size_t i = 0; i < vorsätze.size(); ++i) {
      if (i > 0) m_text += Trenner;
      m_text += vorsätze[i];
      Feldtext::anhängen(m_text, buchung, ErstesFeld + static_cast<int>(i));
    }
    while (!m_text.empty() && m_text.back() == ' ') m_text.pop_back();
    m_bauer.text(m_text.data(), static_cast<qsizetype>(m_text.size()));
  }

  // With an empty row wherever another colony begins: always the same one, behind all others.
  std::vector<int> getrennt(const std::vector<int>& ordnung) {
    const auto leerzeile = static_cast<int>(m_schlüssel.size());
    for (qsizetype i = 0; i < m_titel.size(); ++i) m_bauer.null();
    std::vector<int> mit;
    mit.reserve(ordnung.size() + static_cast<size_t>(m_völker.size()));
    for (size_t i = 0; i < ordnung.size(); ++i) {
      if (i > 0 && rang(ordnung[i]) != rang(ordnung[i - 1])) mit.push_back(leerzeile);
      mit.push_back(ordnung[i]);
    }
    return mit;
  }
  quint64 rang(int zeile) const { return m_schlüssel[static_cast<size_t>(zeile)] >> 32; }

  Lauf& m_lauf;
  bool m_mitNummer;
  bool m_mitName;
  bool m_nachVolk;
  QHash<qint64, Volk> m_völker;
  QStringList m_titel;
  Datenblock::Bauer m_bauer;
  std::unordered_map<quint64, size_t> m_tage;  // the cells of the days
  Zeilenordnung::Schlüssel m_schlüssel;
  std::string m_text;
  int m_fertig = 0;
  int m_gesamt = 0;
};

}  // namespace

namespace Ereignisbericht {

const QList<Ereignisart>& arten() {
  static const QList<Ereignisart> alle{
      {"Stockkarte",
       {{"Volkstärke", "VS="},
        {"Brutstand", "BS="},
        {"Wabensitz", "WS="},
        {"Sanftmut", "SM="},
        {"Schwarmtrieb", "ST="},
        {"Frühjahrsentw", "FE="},
        {"Winterfestigkeit", "WF="},
        {"Varroabefall", "VM="}}},
      {"Honigernte", {{"Menge_kg"}, {"Qualität"}}},
      {"Wachsernte", {{"Menge_kg"}, {"Qualität"}}},
      {"Pollenernte", {{"Menge_g"}, {"Qualität"}}},
      {"Sonstigeernte", {{"Ernteart"}, {"Menge_g"}, {"Qualität"}}},
      {"Arbeiten", {{"Arbeitsart"}}},
      {"Wanderung", {{"Standort"}}},
      {"Gewichtsmessung", {{"Gewicht_kg"}}},
      {"Behandlung", {{"Mittel"}, {"Menge_g"}, {"Behandlungsart"}}},
      {"Königinwechsel", {{"Herkunft"}, {"Zuchtindex"}, {"Farbe"}}},
      {"Notizen", {{"Notiz"}}}};
  return alle;
}

Ausgabeliste liste(Lauf& lauf) { return Bericht(lauf).erstellen(); }

}  // namespace Ereignisbericht
