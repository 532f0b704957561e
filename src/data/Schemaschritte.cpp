#include "data/Schemaschritte.h"

#include <QDir>

#include "core/globals.h"

namespace {

// What databases of the earliest version lack.
void ersterSchritt(Umbau& umbau) {
  const auto volk = QStringLiteral("Bienenvolk");
  const auto karte = QStringLiteral("Stockkarte");
  const auto waben = {"Futterwaben", "HW_verdeckelt", "BW_Stift", "BW_offen", "BW_verdeckelt"};
  const auto zahl = [&umbau](const QString& tabelle, const char* feld) {
    umbau.feld(tabelle, QString::fromUtf8(feld) + QStringLiteral(" INTEGER"), QStringLiteral("0"));
  };
  for (const char* feld : waben) zahl(volk, feld);
  umbau.feld(volk, QStringLiteral("Belegstelle TEXT (20)"), QStringLiteral("''"),
             QStringLiteral("volk13"));
  umbau.feld(volk, QStringLiteral("Zuchtbuchnr TEXT (15)"), QStringLiteral("''"));
  umbau.feld(volk, QStringLiteral("Waben_je_Magazin INTEGER"),
             QStringLiteral("'%1'").arg(TZ_Variablen::EinstellungenZahl[Zahlslots.wabenJeMagazin]));
  for (const char* feld : waben) zahl(karte, feld);
  umbau.feld(QStringLiteral("Standorte"), QStringLiteral("PTop LONG"), QStringLiteral("250"));
  umbau.feld(QStringLiteral("Standorte"), QStringLiteral("PLeft LONG"), QStringLiteral("0"));
  umbau.tabelle(QStringLiteral("DIBVerschluss"),
                QStringLiteral("Verschlussnr TEXT (10), Charge TEXT (15), Kunde TEXT (20), Datum "
                               "DATETIME, Bemerkung TEXT (30), ID COUNTER"),
                {{"dibverschluss1", "Verschlussnr"},
                 {"dibverschluss2", "Charge"},
                 {"dibverschluss3", "Kunde"},
                 {"dibverschluss4", "Datum"},
                 {"dibverschluss5", "Bemerkung"},
                 {"dibverschluss6", "ID"}});
  umbau.feld(QStringLiteral("Honigernte"), QStringLiteral("Charge TEXT (15)"), QStringLiteral("''"),
             QStringLiteral("honigernte10"));
}

// The colonies whose summary is still to be written.
void zweiterSchritt(Umbau& umbau) {
  umbau.tabelle(QStringLiteral("Zusammenfassung_offen"), QStringLiteral("Volk_ID LONG, ID COUNTER"),
                {{"zusammenfassung_offen1", "Volk_ID"}});
}

}  // namespace

const std::vector<Schemaschritt>& schemaschritte() {
  static const std::vector<Schemaschritt> schritte = {ersterSchritt, zweiterSchritt};
  return schritte;
}

int heutigerSchemastand() { return static_cast<int>(schemaschritte().size()); }

// --- Umbau ------------------------------------------------------------------------------------

void Umbau::feld(const QString& tabelle, const QString& erklärung, const QString& wert,
                 const QString& index) {
  const QString name = erklärung.section(u' ', 0, 0);
  if (!hatFeld(tabelle, name))
    führeAus(QStringLiteral("ALTER TABLE %1 ADD COLUMN %2").arg(tabelle, erklärung));
  if (!index.isEmpty()) this->index(index, tabelle, name);
  const auto mitWert =
      QStringLiteral("select top 1 ID from %1 where %2 <> Null").arg(tabelle, name);
  const auto zeilen = QStringLiteral("select top 1 ID from %1").arg(tabelle);
  if (m_db.Lesen(zeilen)->zeilen() > 0 && m_db.Lesen(mitWert)->zeilen() == 0)
    m_db.Execute(QStringLiteral("UPDATE %1 SET %2 = %3").arg(tabelle, name, wert));
}

void Umbau::tabelle(const QString& name, const QString& felder,
                    const std::vector<std::pair<const char*, const char*>>& indexe) {
  if (!m_db.Tabellen().contains(name, Qt::CaseInsensitive))
    führeAus(QStringLiteral("create table %1(%2)").arg(name, felder));
  for (const auto& [index, feld] : indexe)
    this->index(QString::fromUtf8(index), name, QString::fromUtf8(feld));
}

void Umbau::index(const QString& name, const QString& tabelle, const QString& feld) {
  const Daten da = m_db.Lesen(
      QStringLiteral("select name from sqlite_master where type = 'index' and name = ?"), {name});
  if (da->zeilen() == 0)
    führeAus(QStringLiteral("create index %1 on %2(%3)").arg(name, tabelle, feld));
}

bool Umbau::hatFeld(const QString& tabelle, const QString& feld) const {
  for (const Spalte& spalte : m_db.Felder(tabelle))
    if (spalte.name.compare(feld, Qt::CaseInsensitive) == 0) return true;
  return false;
}

void Umbau::führeAus(const QString& anweisung) {
  m_db.Execute(anweisung);
  m_geändert = true;
}

// --- Stand ------------------------------------------------------------------------------------

int schemastand(const Database& db) {
  for (const Spalte& spalte : db.Felder(QStringLiteral("Bienenvolk")))
    if (spalte.name == QLatin1String("Futterwaben")) return db.Schemastand();
  return 0;
}

void schemastandPrüfen(const Database& db, int höchster) {
  if (db.Schemastand() <= höchster) return;
  throw Datenbankfehler(
      Datenbankfehler::Art::KeineDatenbank,
      QStringLiteral("Die Datenbank \"%1\" wurde mit einer neueren Fassung von TOVA bearbeitet "
                     "(Stand %2, diese Fassung kennt Stand %3). Bitte verwenden Sie die neuere "
                     "Fassung.")
          .arg(QDir::toNativeSeparators(db.Name()))
          .arg(db.Schemastand())
          .arg(höchster));
}

bool schemaschritteNehmen(Database& db, const std::vector<Schemaschritt>& schritte) {
  const int höchster = static_cast<int>(schritte.size());
  schemastandPrüfen(db, höchster);
  bool ergänzt = false;
  for (int stand = schemastand(db); stand < höchster; ++stand) {
    Umbau umbau(db);
    schritte[static_cast<size_t>(stand)](umbau);
    if (stand == 0) ergänzt = umbau.geändert();
  }
  if (db.Schemastand() != höchster) db.setSchemastand(höchster);
  return ergänzt;
}
