#include "platform/database/Recordset.h"

#include <QHash>
#include <numeric>

#include "platform/database/verbindung/Verbindung.h"
#include "platform/database/werte/Feldregeln.h"
#include "platform/database/werte/Suchbedingung.h"

namespace {

using Art = Datenbankfehler::Art;

[[noreturn]] void wirf(const QString& text, Art art = Art::Allgemein) {
  throw Datenbankfehler(art, text);
}

QString inAnführung(const QString& name) {
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
  enum class Zustand { Lesen, Neu, Ändern };

  std::shared_ptr<Verbindung> verbindung;
  QString tabelle;
  QStringList felder;
  int idSpalte = -1;
  Daten block;
  QHash<int, Zuweisungen> geändert;  // by row number in the block
  std::vector<std::vector<QVariant>> angehängt;
  // The rows in their order once one is deleted: numbers in the block, those behind it appended.
  std::vector<int> folge;
  bool folgeGilt = false;
  int stelle = 0;
  Zustand zustand = Zustand::Lesen;
  Zuweisungen entwurf;
  // The last insert, since a loop of AddNew fills the same fields again and again.
  std::vector<int> letzteFelder;
  QString letztesEinfügen;

  void prüfeOffen() const;
  void prüfeÄnderbar() const;
  int anzahl() const;
  int zeilenNummer(int ort) const { return folgeGilt ? folge[static_cast<size_t>(ort)] : ort; }
  int aktuelleZeile() const;
  QVariant gespeichert(int nummer, int spalte) const;
  QVariant wert(int spalte) const;
  int spalte(const QString& name) const;
  bool trifftZu(const Suchbedingung& suche, int nummer) const;
  void beginne(Zustand neuer);
  void weiseZu(int spalte, const QVariant& wert);
  const QString& einfügen();
  void fügeEin();
  void schreibeÄnderung();
  void lösche();

  static const QVariant* suche(const Zuweisungen& werte, int spalte);
};

void Recordset::Daten_::prüfeOffen() const {
  if (!block) wirf(QStringLiteral("Die Datensätze sind geschlossen."));
}

void Recordset::Daten_::prüfeÄnderbar() const {
  prüfeOffen();
  if (!tabelle.isEmpty() && idSpalte >= 0) return;
  wirf(QStringLiteral("Diese Datensätze können nur gelesen werden."), Art::Anweisung);
}

int Recordset::Daten_::anzahl() const {
  return folgeGilt ? static_cast<int>(folge.size())
                   : block->zeilen() + static_cast<int>(angehängt.size());
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
    return angehängt[static_cast<size_t>(nummer - block->zeilen())][static_cast<size_t>(spalte)];
  }
  if (!geändert.isEmpty()) {
    const auto zeile = geändert.constFind(nummer);
    const QVariant* wert = zeile == geändert.constEnd() ? nullptr : suche(*zeile, spalte);
    if (wert) return *wert;
  }
  return block->wert(nummer, spalte);
}

QVariant Recordset::Daten_::wert(int spalte) const {
  prüfeOffen();
  if (zustand != Zustand::Lesen) {
    const QVariant* neu = suche(entwurf, spalte);
    if (neu) return *neu;
    if (zustand == Zustand::Neu) return {};
  }
  return gespeichert(aktuelleZeile(), spalte);
}

int Recordset::Daten_::spalte(const QString& name) const {
  prüfeOffen();
  const int nummer = block->spaltenNummer(name);
  if (nummer < 0) {
    wirf(QStringLiteral("Das Feld \"%1\" gibt es nicht.").arg(name), Art::Anweisung);
  }
  return nummer;
}

bool Recordset::Daten_::trifftZu(const Suchbedingung& suche, int nummer) const {
  if (nummer >= block->zeilen()) {
    return suche.trifftZu(angehängt[static_cast<size_t>(nummer - block->zeilen())]);
  }
  if (geändert.isEmpty() || !geändert.contains(nummer)) return suche.trifftZu(*block, nummer);
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

const QString& Recordset::Daten_::einfügen() {
  const auto gleicheFelder = [this] {
    if (letztesEinfügen.isEmpty() || letzteFelder.size() != entwurf.size()) return false;
    for (size_t i = 0; i < entwurf.size(); ++i) {
      if (letzteFelder[i] != entwurf[i].first) return false;
    }
    return true;
  };
  if (gleicheFelder()) return letztesEinfügen;
  letzteFelder.clear();
  QStringList namen;
  for (const auto& [spalte, wert] : entwurf) {
    letzteFelder.push_back(spalte);
    namen << inAnführung(felder[spalte]);
  }
  letztesEinfügen = QStringLiteral("insert into ") + inAnführung(tabelle);
  if (namen.isEmpty()) {
    letztesEinfügen += QStringLiteral(" default values");
  } else {
    const QStringList fragen(namen.size(), QStringLiteral("?"));
    letztesEinfügen += QStringLiteral(" (") + namen.join(QLatin1String(", ")) +
                       QStringLiteral(") values (") + fragen.join(QLatin1String(", ")) +
                       QLatin1Char(')');
  }
  return letztesEinfügen;
}

void Recordset::Daten_::fügeEin() {
  std::vector<QVariant> zeile(static_cast<size_t>(block->spalten()));
  QVariantList werte;
  werte.reserve(static_cast<qsizetype>(entwurf.size()));
  for (const auto& [spalte, roh] : entwurf) {
    werte << Feldregeln::prüfe(block->spalte(spalte), roh);
    zeile[static_cast<size_t>(spalte)] = werte.constLast();
  }
  verbindung->schreibeRoh(einfügen(), werte);
  zeile[static_cast<size_t>(idSpalte)] = QVariant::fromValue<qint64>(verbindung->letzteID());
  angehängt.push_back(std::move(zeile));
  if (folgeGilt) folge.push_back(block->zeilen() + static_cast<int>(angehängt.size()) - 1);
}

void Recordset::Daten_::schreibeÄnderung() {
  const int nummer = aktuelleZeile();
  QString zuweisungen;
  QVariantList werte;
  Zuweisungen neue;
  for (const auto& [spalte, roh] : entwurf) {
    QVariant neu = Feldregeln::prüfe(block->spalte(spalte), roh);
    if (gleich(neu, gespeichert(nummer, spalte))) continue;
    if (spalte == idSpalte) {
      wirf(QStringLiteral("Die Nummer eines Datensatzes (Feld \"%1\") kann nicht geändert werden.")
               .arg(felder[spalte]),
           Art::Anweisung);
    }
    if (!werte.isEmpty()) zuweisungen += QStringLiteral(", ");
    zuweisungen += inAnführung(felder[spalte]) + QStringLiteral(" = ?");
    werte << neu;
    neue.emplace_back(spalte, std::move(neu));
  }
  if (werte.isEmpty()) return;
  werte << gespeichert(nummer, idSpalte);
  const qint64 geschrieben = verbindung->schreibeRoh(
      QStringLiteral("update ") + inAnführung(tabelle) + QStringLiteral(" set ") + zuweisungen +
          QStringLiteral(" where ") + inAnführung(felder[idSpalte]) + QStringLiteral(" = ?"),
      werte);
  if (geschrieben == 0) {
    wirf(QStringLiteral("Der Datensatz ist nicht mehr vorhanden und kann nicht geändert werden."));
  }
  if (nummer >= block->zeilen()) {
    auto& zeile = angehängt[static_cast<size_t>(nummer - block->zeilen())];
    for (auto& [spalte, neu] : neue) zeile[static_cast<size_t>(spalte)] = std::move(neu);
    return;
  }
  Zuweisungen& bisher = geändert[nummer];
  for (auto& [spalte, neu] : neue) {
    std::erase_if(bisher, [s = spalte](const auto& alt) { return alt.first == s; });
    bisher.emplace_back(spalte, std::move(neu));
  }
}

void Recordset::Daten_::lösche() {
  const int nummer = aktuelleZeile();
  const qint64 gelöscht = verbindung->schreibeRoh(
      QStringLiteral("delete from ") + inAnführung(tabelle) + QStringLiteral(" where ") +
          inAnführung(felder[idSpalte]) + QStringLiteral(" = ?"),
      {gespeichert(nummer, idSpalte)});
  if (gelöscht == 0) {
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
    : m_d(std::make_shared<Daten_>()) {
  m_d->verbindung = std::move(verbindung);
  m_d->tabelle = std::move(tabelle);
  m_d->felder = std::move(felder);
  m_d->block = std::move(daten);
  if (m_d->tabelle.isEmpty()) return;
  for (int s = 0; s < m_d->block->spalten(); ++s) {
    if (m_d->block->spalte(s).typ == Feldtyp::Zähler && !m_d->felder[s].isEmpty())
      m_d->idSpalte = s;
  }
}

Recordset::Daten_& Recordset::daten() const {
  if (!m_d) wirf(QStringLiteral("Die Datensätze sind geschlossen."));
  m_d->prüfeOffen();
  return *m_d;
}

int Recordset::RecordCount() const { return daten().anzahl(); }

bool Recordset::AmEnde() const { return daten().stelle >= daten().anzahl(); }

void Recordset::MoveFirst() {
  daten().zustand = Daten_::Zustand::Lesen;
  m_d->stelle = 0;
}

void Recordset::MoveLast() {
  daten().zustand = Daten_::Zustand::Lesen;
  m_d->stelle = std::max(0, m_d->anzahl() - 1);
}

void Recordset::MoveNext() {
  daten().zustand = Daten_::Zustand::Lesen;
  if (m_d->stelle < m_d->anzahl()) ++m_d->stelle;
}

void Recordset::FindFirst(const QString& bedingung) {
  daten().zustand = Daten_::Zustand::Lesen;
  m_noMatch = true;
  const Suchbedingung suche(bedingung, *m_d->block);
  const int anzahl = m_d->anzahl();
  for (int i = 0; i < anzahl; ++i) {
    if (!m_d->trifftZu(suche, m_d->zeilenNummer(i))) continue;
    m_d->stelle = i;
    m_noMatch = false;
    return;
  }
}

void Recordset::AddNew() {
  daten().prüfeÄnderbar();
  m_d->beginne(Daten_::Zustand::Neu);
}

void Recordset::Edit() {
  daten().prüfeÄnderbar();
  m_d->aktuelleZeile();
  m_d->beginne(Daten_::Zustand::Ändern);
}

void Recordset::Update() {
  switch (daten().zustand) {
    case Daten_::Zustand::Lesen:
      wirf(QStringLiteral("Es wird gerade kein Datensatz geschrieben (AddNew oder Edit fehlt)."),
           Art::Anweisung);
    case Daten_::Zustand::Neu:
      m_d->fügeEin();
      break;
    case Daten_::Zustand::Ändern:
      m_d->schreibeÄnderung();
      break;
  }
  m_d->zustand = Daten_::Zustand::Lesen;
}

void Recordset::Delete() {
  daten().prüfeÄnderbar();
  m_d->zustand = Daten_::Zustand::Lesen;
  m_d->lösche();
}

void Recordset::Close() {
  if (!m_d) return;
  m_d->block.reset();
  m_d->verbindung.reset();
  m_d.reset();
}

int Recordset::FieldCount() const { return daten().block->spalten(); }

Recordset::Feld Recordset::Fields(const QString& name) { return {m_d, daten().spalte(name)}; }

Recordset::Feld Recordset::Fields(int index) {
  if (index < 0 || index >= daten().block->spalten()) {
    wirf(QStringLiteral("Ein Feld mit der Nummer %1 gibt es nicht.").arg(index), Art::Anweisung);
  }
  return {m_d, index};
}

Recordset::Feld Recordset::operator[](const QString& name) { return Fields(name); }

QVariant Recordset::Wert(const QString& name) const { return m_d->wert(daten().spalte(name)); }

QString Recordset::Feld::Name() const {
  m_d->prüfeOffen();
  return m_d->block->spalte(m_spalte).name;
}

Feldtyp Recordset::Feld::Type() const {
  m_d->prüfeOffen();
  return m_d->block->spalte(m_spalte).typ;
}

int Recordset::Feld::Size() const {
  m_d->prüfeOffen();
  return m_d->block->spalte(m_spalte).länge;
}

QVariant Recordset::Feld::Value() const { return m_d->wert(m_spalte); }

void Recordset::Feld::setValue(const QVariant& wert) {
  m_d->prüfeOffen();
  if (m_d->zustand == Daten_::Zustand::Lesen) {
    wirf(QStringLiteral("Das Feld \"%1\" kann erst nach AddNew oder Edit geändert werden.")
             .arg(Name()),
         Art::Anweisung);
  }
  if (m_d->felder[m_spalte].isEmpty()) {
    wirf(QStringLiteral("Das Feld \"%1\" ist ein Rechenergebnis und kann nicht geändert werden.")
             .arg(Name()),
         Art::Anweisung);
  }
  m_d->weiseZu(m_spalte, wert);
}
