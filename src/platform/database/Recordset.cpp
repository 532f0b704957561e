#include "platform/database/Recordset.h"

#include <QHash>

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

// The block is immutable: what is written afterwards lies in rows of its own that cover those of
// the block or follow them.
struct Recordset::Daten_ {
  using Zeile = std::vector<QVariant>;
  enum class Zustand { Lesen, Neu, Aendern };

  std::shared_ptr<Verbindung> verbindung;
  QString tabelle;
  QStringList felder;
  int idSpalte = -1;
  Daten block;
  QHash<int, Zeile> geaendert;  // by row number in the block
  std::vector<Zeile> angehaengt;
  // The rows in their order once one is deleted: numbers in the block, those behind it appended.
  std::vector<int> folge;
  bool folgeGilt = false;
  int stelle = 0;
  Zustand zustand = Zustand::Lesen;
  Zeile entwurf;
  std::vector<bool> belegt;

  void pruefeOffen() const {
    if (!block) wirf(QStringLiteral("Die Datensätze sind geschlossen."));
  }
  int anzahl() const {
    return folgeGilt ? static_cast<int>(folge.size())
                     : block->zeilen() + static_cast<int>(angehaengt.size());
  }
  int zeilenNummer(int ort) const { return folgeGilt ? folge[static_cast<size_t>(ort)] : ort; }
  int aktuelleZeile() const {
    if (stelle >= anzahl()) wirf(QStringLiteral("Es gibt keinen aktuellen Datensatz."));
    return zeilenNummer(stelle);
  }
  const Zeile* eigeneZeile(int nummer) const {
    if (nummer >= block->zeilen()) {
      return &angehaengt[static_cast<size_t>(nummer - block->zeilen())];
    }
    if (geaendert.isEmpty()) return nullptr;
    const auto gefunden = geaendert.constFind(nummer);
    return gefunden == geaendert.constEnd() ? nullptr : &*gefunden;
  }
  QVariant gespeichert(int nummer, int spalte) const {
    const Zeile* eigene = eigeneZeile(nummer);
    return eigene ? (*eigene)[static_cast<size_t>(spalte)] : block->wert(nummer, spalte);
  }
  QVariant wert(int spalte) const {
    pruefeOffen();
    if (zustand == Zustand::Neu) return entwurf[static_cast<size_t>(spalte)];
    if (zustand == Zustand::Aendern && belegt[static_cast<size_t>(spalte)]) {
      return entwurf[static_cast<size_t>(spalte)];
    }
    return gespeichert(aktuelleZeile(), spalte);
  }
  void beginne(Zustand neuer) {
    zustand = neuer;
    entwurf.assign(static_cast<size_t>(block->spalten()), QVariant());
    belegt.assign(static_cast<size_t>(block->spalten()), false);
  }
  int spalte(const QString& name) const {
    pruefeOffen();
    const int nummer = block->spaltenNummer(name);
    if (nummer < 0) {
      wirf(QStringLiteral("Das Feld \"%1\" gibt es nicht.").arg(name), Art::Anweisung);
    }
    return nummer;
  }
  void pruefeAenderbar() const {
    pruefeOffen();
    if (!tabelle.isEmpty() && idSpalte >= 0) return;
    wirf(QStringLiteral("Diese Datensätze können nur gelesen werden."), Art::Anweisung);
  }
  qint64 id(int nummer) const { return gespeichert(nummer, idSpalte).toLongLong(); }
  Zeile ganzeZeile(int nummer) const {
    Zeile zeile;
    for (int s = 0; s < block->spalten(); ++s) zeile.push_back(gespeichert(nummer, s));
    return zeile;
  }

  void fuegeEin();
  void schreibeAenderung();
};

void Recordset::Daten_::fuegeEin() {
  QString namen;
  QString fragen;
  QVariantList werte;
  Zeile zeile = entwurf;
  for (int s = 0; s < block->spalten(); ++s) {
    if (!belegt[static_cast<size_t>(s)]) continue;
    QVariant& wert = zeile[static_cast<size_t>(s)];
    wert = Feldregeln::pruefe(block->spalte(s), wert);
    const QLatin1String komma(werte.isEmpty() ? "" : ", ");
    namen += komma + inAnfuehrung(felder[s]);
    fragen += komma + QLatin1Char('?');
    werte << wert;
  }
  const QString kopf = QStringLiteral("insert into ") + inAnfuehrung(tabelle);
  verbindung->schreibeRoh(werte.isEmpty()
                              ? kopf + QStringLiteral(" default values")
                              : kopf + QStringLiteral(" (") + namen + QStringLiteral(") values (") +
                                    fragen + QLatin1Char(')'),
                          werte);
  zeile[static_cast<size_t>(idSpalte)] = QVariant::fromValue<qint64>(verbindung->letzteID());
  angehaengt.push_back(std::move(zeile));
  if (folgeGilt) folge.push_back(block->zeilen() + static_cast<int>(angehaengt.size()) - 1);
}

void Recordset::Daten_::schreibeAenderung() {
  const int nummer = aktuelleZeile();
  QString zuweisungen;
  QVariantList werte;
  Zeile zeile = ganzeZeile(nummer);
  for (int s = 0; s < block->spalten(); ++s) {
    if (!belegt[static_cast<size_t>(s)]) continue;
    const QVariant neu = Feldregeln::pruefe(block->spalte(s), entwurf[static_cast<size_t>(s)]);
    if (gleich(neu, zeile[static_cast<size_t>(s)])) continue;
    if (s == idSpalte) {
      wirf(QStringLiteral("Die Nummer eines Datensatzes (Feld \"%1\") kann nicht geändert werden.")
               .arg(felder[s]),
           Art::Anweisung);
    }
    if (!werte.isEmpty()) zuweisungen += QStringLiteral(", ");
    zuweisungen += inAnfuehrung(felder[s]) + QStringLiteral(" = ?");
    werte << neu;
    zeile[static_cast<size_t>(s)] = neu;
  }
  if (werte.isEmpty()) return;
  werte << id(nummer);
  const qint64 geschrieben = verbindung->schreibeRoh(
      QStringLiteral("update ") + inAnfuehrung(tabelle) + QStringLiteral(" set ") + zuweisungen +
          QStringLiteral(" where ") + inAnfuehrung(felder[idSpalte]) + QStringLiteral(" = ?"),
      werte);
  if (geschrieben == 0) {
    wirf(QStringLiteral("Der Datensatz ist nicht mehr vorhanden und kann nicht geändert werden."));
  }
  if (nummer >= block->zeilen()) {
    angehaengt[static_cast<size_t>(nummer - block->zeilen())] = std::move(zeile);
  } else {
    geaendert.insert(nummer, std::move(zeile));
  }
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
    const int nummer = d->zeilenNummer(i);
    const Daten_::Zeile* eigene = d->eigeneZeile(nummer);
    if (!(eigene ? suche.trifftZu(*eigene) : suche.trifftZu(*d->block, nummer))) continue;
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
  const int nummer = d->aktuelleZeile();
  const qint64 geloescht = d->verbindung->schreibeRoh(
      QStringLiteral("delete from ") + inAnfuehrung(d->tabelle) + QStringLiteral(" where ") +
          inAnfuehrung(d->felder[d->idSpalte]) + QStringLiteral(" = ?"),
      {d->id(nummer)});
  if (geloescht == 0) {
    wirf(QStringLiteral("Der Datensatz ist nicht mehr vorhanden und kann nicht gelöscht werden."));
  }
  if (!d->folgeGilt) {
    const int anzahl = d->anzahl();
    d->folge.reserve(static_cast<size_t>(anzahl));
    for (int i = 0; i < anzahl; ++i) d->folge.push_back(i);
    d->folgeGilt = true;
  }
  d->folge.erase(d->folge.begin() + d->stelle);
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
  d->entwurf[static_cast<size_t>(m_spalte)] = wert;
  d->belegt[static_cast<size_t>(m_spalte)] = true;
}
