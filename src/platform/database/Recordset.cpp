#include "platform/database/Recordset.h"

#include <QHash>
#include <numeric>

#include "platform/database/Feldregeln.h"
#include "platform/database/Suchbedingung.h"
#include "platform/database/Verbindung.h"

namespace {

using Art = Datenbankfehler::Art;

[[noreturn]] void wirf(const QString& text, Art art = Art::Allgemein) {
  throw Datenbankfehler(art, text);
}

QString inAnfuehrung(const QString& name) {
  QString doppelt = name;
  doppelt.replace(QLatin1Char('"'), QLatin1String("\"\""));
  return QLatin1Char('"') + doppelt + QLatin1Char('"');
}

// As stored: a text in other letter case or with a blank more is another value.
bool gleich(const QVariant& links, const QVariant& rechts) {
  if (!links.isValid() || !rechts.isValid()) return !links.isValid() && !rechts.isValid();
  return links.typeId() == rechts.typeId() && links == rechts;
}

}  // namespace

// The block is immutable: what is written afterwards lies beside it, as fields that cover those of
// the block and as rows that follow it.
struct Recordset::Daten_ {
  // Fields with their values; a row has few, or all in their order.
  using Zuweisungen = std::vector<std::pair<int, QVariant>>;
  enum class Zustand { Lesen, Neu, Aendern };

  std::shared_ptr<Verbindung> verbindung;
  QString tabelle;
  QStringList felder;
  int idSpalte = -1;
  Daten block;
  QHash<int, Zuweisungen> geaendert;  // by row number in the block
  std::vector<std::vector<QVariant>> angehaengt;
  // The rows in their order once one is deleted: numbers in the block, those behind it appended.
  std::vector<int> folge;
  bool folgeGilt = false;
  int stelle = 0;
  Zustand zustand = Zustand::Lesen;
  Zuweisungen entwurf;
  // The last insert, since a loop of AddNew fills the same fields again and again.
  std::vector<int> letzteFelder;
  QString letztesEinfuegen;

  void pruefeOffen() const;
  void pruefeAenderbar() const;
  int anzahl() const;
  int zeilenNummer(int ort) const { return folgeGilt ? folge[static_cast<size_t>(ort)] : ort; }
  int aktuelleZeile() const;
  QVariant gespeichert(int nummer, int spalte) const;
  QVariant wert(int spalte) const;
  int spalte(const QString& name) const;
  bool trifftZu(const Suchbedingung& suche, int nummer) const;
  void beginne(Zustand neuer);
  void weiseZu(int spalte, const QVariant& wert);
  const QString& einfuegen();
  void fuegeEin();
  void schreibeAenderung();
  void loesche();

  static const QVariant* suche(const Zuweisungen& werte, int spalte);
};

void Recordset::Daten_::pruefeOffen() const {
  if (!block) wirf(QStringLiteral("Die Datensätze sind geschlossen."));
}

void Recordset::Daten_::pruefeAenderbar() const {
  pruefeOffen();
  if (!tabelle.isEmpty() && idSpalte >= 0) return;
  wirf(QStringLiteral("Diese Datensätze können nur gelesen werden."), Art::Anweisung);
}

int Recordset::Daten_::anzahl() const {
  return folgeGilt ? static_cast<int>(folge.size())
                   : block->zeilen() + static_cast<int>(angehaengt.size());
}

int Recordset::Daten_::aktuelleZeile() const {
  if (stelle >= anzahl()) wirf(QStringLiteral("Es gibt keinen aktuellen Datensatz."));
  return zeilenNummer(stelle);
}

const QVariant* Recordset::Daten_::suche(const Zuweisungen& werte, int spalte) {
  for (const auto& [nummer, wert] : werte) {
    if (nummer == spalte) return &wert;
  }
  return nullptr;
}

QVariant Recordset::Daten_::gespeichert(int nummer, int spalte) const {
  if (nummer >= block->zeilen()) {
    return angehaengt[static_cast<size_t>(nummer - block->zeilen())][static_cast<size_t>(spalte)];
  }
  if (!geaendert.isEmpty()) {
    const auto zeile = geaendert.constFind(nummer);
    const QVariant* wert = zeile == geaendert.constEnd() ? nullptr : suche(*zeile, spalte);
    if (wert) return *wert;
  }
  return block->wert(nummer, spalte);
}

QVariant Recordset::Daten_::wert(int spalte) const {
  pruefeOffen();
  if (zustand != Zustand::Lesen) {
    const QVariant* neu = suche(entwurf, spalte);
    if (neu) return *neu;
    if (zustand == Zustand::Neu) return {};
  }
  return gespeichert(aktuelleZeile(), spalte);
}

int Recordset::Daten_::spalte(const QString& name) const {
  pruefeOffen();
  const int nummer = block->spaltenNummer(name);
  if (nummer < 0) {
    wirf(QStringLiteral("Das Feld \"%1\" gibt es nicht.").arg(name), Art::Anweisung);
  }
  return nummer;
}

bool Recordset::Daten_::trifftZu(const Suchbedingung& suche, int nummer) const {
  if (nummer >= block->zeilen()) {
    return suche.trifftZu(angehaengt[static_cast<size_t>(nummer - block->zeilen())]);
  }
  if (geaendert.isEmpty() || !geaendert.contains(nummer)) return suche.trifftZu(*block, nummer);
  std::vector<QVariant> zeile;
  zeile.reserve(static_cast<size_t>(block->spalten()));
  for (int s = 0; s < block->spalten(); ++s) zeile.push_back(gespeichert(nummer, s));
  return suche.trifftZu(zeile);
}

void Recordset::Daten_::beginne(Zustand neuer) {
  zustand = neuer;
  entwurf.clear();
}

void Recordset::Daten_::weiseZu(int spalte, const QVariant& wert) {
  for (auto& [nummer, bisher] : entwurf) {
    if (nummer != spalte) continue;
    bisher = wert;
    return;
  }
  entwurf.emplace_back(spalte, wert);
}

const QString& Recordset::Daten_::einfuegen() {
  const auto gleicheFelder = [this] {
    if (letztesEinfuegen.isEmpty() || letzteFelder.size() != entwurf.size()) return false;
    for (size_t i = 0; i < entwurf.size(); ++i) {
      if (letzteFelder[i] != entwurf[i].first) return false;
    }
    return true;
  };
  if (gleicheFelder()) return letztesEinfuegen;
  letzteFelder.clear();
  QStringList namen;
  for (const auto& [spalte, wert] : entwurf) {
    letzteFelder.push_back(spalte);
    namen << inAnfuehrung(felder[spalte]);
  }
  letztesEinfuegen = QStringLiteral("insert into ") + inAnfuehrung(tabelle);
  if (namen.isEmpty()) {
    letztesEinfuegen += QStringLiteral(" default values");
  } else {
    const QStringList fragen(namen.size(), QStringLiteral("?"));
    letztesEinfuegen += QStringLiteral(" (") + namen.join(QLatin1String(", ")) +
                        QStringLiteral(") values (") + fragen.join(QLatin1String(", ")) +
                        QLatin1Char(')');
  }
  return letztesEinfuegen;
}

void Recordset::Daten_::fuegeEin() {
  std::vector<QVariant> zeile(static_cast<size_t>(block->spalten()));
  QVariantList werte;
  werte.reserve(static_cast<qsizetype>(entwurf.size()));
  for (const auto& [spalte, roh] : entwurf) {
    werte << Feldregeln::pruefe(block->spalte(spalte), roh);
    zeile[static_cast<size_t>(spalte)] = werte.constLast();
  }
  verbindung->schreibeRoh(einfuegen(), werte);
  zeile[static_cast<size_t>(idSpalte)] = QVariant::fromValue<qint64>(verbindung->letzteID());
  angehaengt.push_back(std::move(zeile));
  if (folgeGilt) folge.push_back(block->zeilen() + static_cast<int>(angehaengt.size()) - 1);
}

void Recordset::Daten_::schreibeAenderung() {
  const int nummer = aktuelleZeile();
  QString zuweisungen;
  QVariantList werte;
  Zuweisungen neue;
  for (const auto& [spalte, roh] : entwurf) {
    QVariant neu = Feldregeln::pruefe(block->spalte(spalte), roh);
    if (gleich(neu, gespeichert(nummer, spalte))) continue;
    if (spalte == idSpalte) {
      wirf(QStringLiteral("Die Nummer eines Datensatzes (Feld \"%1\") kann nicht geändert werden.")
               .arg(felder[spalte]),
           Art::Anweisung);
    }
    if (!werte.isEmpty()) zuweisungen += QStringLiteral(", ");
    zuweisungen += inAnfuehrung(felder[spalte]) + QStringLiteral(" = ?");
    werte << neu;
    neue.emplace_back(spalte, std::move(neu));
  }
  if (werte.isEmpty()) return;
  werte << gespeichert(nummer, idSpalte);
  const qint64 geschrieben = verbindung->schreibeRoh(
      QStringLiteral("update ") + inAnfuehrung(tabelle) + QStringLiteral(" set ") + zuweisungen +
          QStringLiteral(" where ") + inAnfuehrung(felder[idSpalte]) + QStringLiteral(" = ?"),
      werte);
  if (geschrieben == 0) {
    wirf(QStringLiteral("Der Datensatz ist nicht mehr vorhanden und kann nicht geändert werden."));
  }
  if (nummer >= block->zeilen()) {
    auto& zeile = angehaengt[static_cast<size_t>(nummer - block->zeilen())];
    for (auto& [spalte, neu] : neue) zeile[static_cast<size_t>(spalte)] = std::move(neu);
    return;
  }
  Zuweisungen& bisher = geaendert[nummer];
  for (auto& [spalte, neu] : neue) {
    std::erase_if(bisher, [s = spalte](const auto& alt) { return alt.first == s; });
    bisher.emplace_back(spalte, std::move(neu));
  }
}

void Recordset::Daten_::loesche() {
  const int nummer = aktuelleZeile();
  const qint64 geloescht = verbindung->schreibeRoh(
      QStringLiteral("delete from ") + inAnfuehrung(tabelle) + QStringLiteral(" where ") +
          inAnfuehrung(felder[idSpalte]) + QStringLiteral(" = ?"),
      {gespeichert(nummer, idSpalte)});
  if (geloescht == 0) {
    wirf(QStringLiteral("Der Datensatz ist nicht mehr vorhanden und kann nicht gelöscht werden."));
  }
  if (!folgeGilt) {
    folge.resize(static_cast<size_t>(anzahl()));
    std::iota(folge.begin(), folge.end(), 0);
    folgeGilt = true;
  }
  folge.erase(folge.begin() + stelle);
}

Recordset::Recordset(std::shared_ptr<Verbindung> verbindung, QString tabelle, QStringList felder,
                     Daten daten)
    : d(std::make_shared<Daten_>()) {
  d->verbindung = std::move(verbindung);
  d->tabelle = std::move(tabelle);
  d->felder = std::move(felder);
  d->block = std::move(daten);
  if (d->tabelle.isEmpty()) return;
  for (int s = 0; s < d->block->spalten(); ++s) {
    if (d->block->spalte(s).typ == Feldtyp::Zaehler && !d->felder[s].isEmpty()) d->idSpalte = s;
  }
}

Recordset::Daten_& Recordset::daten() const {
  if (!d) wirf(QStringLiteral("Die Datensätze sind geschlossen."));
  d->pruefeOffen();
  return *d;
}

int Recordset::RecordCount() const { return daten().anzahl(); }

bool Recordset::AmEnde() const { return daten().stelle >= daten().anzahl(); }

void Recordset::MoveFirst() {
  daten().zustand = Daten_::Zustand::Lesen;
  d->stelle = 0;
}

void Recordset::MoveLast() {
  daten().zustand = Daten_::Zustand::Lesen;
  d->stelle = std::max(0, d->anzahl() - 1);
}

void Recordset::MoveNext() {
  daten().zustand = Daten_::Zustand::Lesen;
  if (d->stelle < d->anzahl()) ++d->stelle;
}

void Recordset::FindFirst(const QString& bedingung) {
  daten().zustand = Daten_::Zustand::Lesen;
  m_noMatch = true;
  const Suchbedingung suche(bedingung, *d->block);
  const int anzahl = d->anzahl();
  for (int i = 0; i < anzahl; ++i) {
    if (!d->trifftZu(suche, d->zeilenNummer(i))) continue;
    d->stelle = i;
    m_noMatch = false;
    return;
  }
}

void Recordset::AddNew() {
  daten().pruefeAenderbar();
  d->beginne(Daten_::Zustand::Neu);
}

void Recordset::Edit() {
  daten().pruefeAenderbar();
  d->aktuelleZeile();
  d->beginne(Daten_::Zustand::Aendern);
}

void Recordset::Update() {
  switch (daten().zustand) {
    case Daten_::Zustand::Lesen:
      wirf(QStringLiteral("Es wird gerade kein Datensatz geschrieben (AddNew oder Edit fehlt)."),
           Art::Anweisung);
    case Daten_::Zustand::Neu:
      d->fuegeEin();
      break;
    case Daten_::Zustand::Aendern:
      d->schreibeAenderung();
      break;
  }
  d->zustand = Daten_::Zustand::Lesen;
}

void Recordset::Delete() {
  daten().pruefeAenderbar();
  d->zustand = Daten_::Zustand::Lesen;
  d->loesche();
}

void Recordset::Close() {
  if (!d) return;
  d->block.reset();
  d->verbindung.reset();
  d.reset();
}

int Recordset::FieldCount() const { return daten().block->spalten(); }

Recordset::Feld Recordset::Fields(const QString& name) { return {d, daten().spalte(name)}; }

Recordset::Feld Recordset::Fields(int index) {
  if (index < 0 || index >= daten().block->spalten()) {
    wirf(QStringLiteral("Ein Feld mit der Nummer %1 gibt es nicht.").arg(index), Art::Anweisung);
  }
  return {d, index};
}

Recordset::Feld Recordset::operator[](const QString& name) { return Fields(name); }

QVariant Recordset::Wert(const QString& name) const { return d->wert(daten().spalte(name)); }

QString Recordset::Feld::Name() const {
  d->pruefeOffen();
  return d->block->spalte(m_spalte).name;
}

Feldtyp Recordset::Feld::Type() const {
  d->pruefeOffen();
  return d->block->spalte(m_spalte).typ;
}

int Recordset::Feld::Size() const {
  d->pruefeOffen();
  return d->block->spalte(m_spalte).laenge;
}

QVariant Recordset::Feld::Value() const { return d->wert(m_spalte); }

void Recordset::Feld::setValue(const QVariant& wert) {
  d->pruefeOffen();
  if (d->zustand == Daten_::Zustand::Lesen) {
    wirf(QStringLiteral("Das Feld \"%1\" kann erst nach AddNew oder Edit geändert werden.")
             .arg(Name()),
         Art::Anweisung);
  }
  if (d->felder[m_spalte].isEmpty()) {
    wirf(QStringLiteral("Das Feld \"%1\" ist ein Rechenergebnis und kann nicht geändert werden.")
             .arg(Name()),
         Art::Anweisung);
  }
  d->weiseZu(m_spalte, wert);
}
