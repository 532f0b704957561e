#include "platform/database/dialekt/Dialektleser.h"

#include <sqlite3.h>

#include "platform/database/werte/Datenbankfehler.h"

namespace {

// Words that are never names unless they stand in brackets.
constexpr const char* wörter[] = {
    "select", "from",   "where",  "group",  "order", "by",     "having",    "distinct", "top",
    "as",     "and",    "or",     "not",    "null",  "is",     "in",        "like",     "between",
    "insert", "into",   "values", "update", "set",   "delete", "create",    "alter",    "drop",
    "table",  "index",  "on",     "inner",  "left",  "right",  "join",      "outer",    "union",
    "pivot",  "exists", "desc",   "asc",    "true",  "false",  "transform", "unique",   "all",
};

bool gleich(QStringView links, QStringView rechts) {
  return links.compare(rechts, Qt::CaseInsensitive) == 0;
}

}  // namespace

namespace Dialekt {

QString alsName(const QString& name) {
  bool schlicht = !name.isEmpty() && !(name[0] >= u'0' && name[0] <= u'9');
  for (const QChar zeichen : name) {
    schlicht = schlicht && (zeichen.isLetterOrNumber() || zeichen == u'_');
  }
  const QByteArray utf8 = name.toUtf8();
  if (schlicht && sqlite3_keyword_check(utf8.constData(), static_cast<int>(utf8.size())) == 0) {
    return name;
  }
  return QLatin1Char('[') + name + QLatin1Char(']');
}

QString alsText(const QString& text) {
  QString inhalt = text;
  inhalt.replace(QLatin1Char('\''), QLatin1String("''"));
  return QLatin1Char('\'') + inhalt + QLatin1Char('\'');
}

const Spalte* Quelle::feld(QStringView gesucht) const {
  for (const Spalte& spalte : felder) {
    if (gleich(spalte.name, gesucht)) return &spalte;
  }
  return nullptr;
}

bool Ausdruck::istFeld(int nummer, QStringView name) const {
  return sorte == Sorte::Feld && quelle == nummer && gleich(feld, name);
}

Leser::Leser(const QString& anweisung, const Katalog& katalog, const Auskunft& auskunft)
    : m_anweisung(anweisung),
      m_katalog(katalog),
      m_auskunft(auskunft),
      m_marken(zerlege(anweisung)) {
  for (const Marke& eine : m_marken) m_werte += eine.art == Marke::Art::Wert ? 1 : 0;
}

// ---- marks ----

void Leser::weiter() {
  if (m_stelle + 1 < m_marken.size()) ++m_stelle;
}

bool Leser::istWort(QLatin1String wort) const {
  return marke().art == Marke::Art::Name && !marke().geklammert &&
         marke().text.compare(wort, Qt::CaseInsensitive) == 0;
}

bool Leser::nimmWort(QLatin1String wort) {
  if (!istWort(wort)) return false;
  weiter();
  return true;
}

void Leser::verlangeWort(QLatin1String wort) {
  if (!nimmWort(wort)) unlesbar();
}

bool Leser::istZeichen(QLatin1String zeichen) const {
  return marke().art == Marke::Art::Zeichen && marke().text == zeichen;
}

bool Leser::nimmZeichen(QLatin1String zeichen) {
  if (!istZeichen(zeichen)) return false;
  weiter();
  return true;
}

void Leser::verlangeZeichen(QLatin1String zeichen) {
  if (!nimmZeichen(zeichen)) unlesbar();
}

bool Leser::istName() const {
  if (marke().art != Marke::Art::Name) return false;
  if (marke().geklammert) return true;
  for (const char* wort : wörter) {
    if (marke().text.compare(QLatin1String(wort), Qt::CaseInsensitive) == 0) return false;
  }
  return true;
}

QString Leser::nimmName() {
  if (!istName()) unlesbar();
  QString name = marke().text;
  weiter();
  return name;
}

int Leser::nimmAnzahl() {
  bool geht = false;
  const int anzahl = marke().art == Marke::Art::Zahl ? marke().text.toInt(&geht) : 0;
  if (!geht) unlesbar();
  weiter();
  return anzahl;
}

void Leser::verlangeEnde() {
  nimmZeichen(QLatin1String(";"));
  if (marke().art != Marke::Art::Ende) unlesbar();
}

size_t Leser::suche(QLatin1String wort) const {
  int tiefe = 0;
  for (size_t i = m_stelle; i < m_marken.size(); ++i) {
    const Marke& m = m_marken[i];
    if (m.art == Marke::Art::Zeichen && m.text == QLatin1String("(")) ++tiefe;
    if (m.art == Marke::Art::Zeichen && m.text == QLatin1String(")") && --tiefe < 0) break;
    if (tiefe == 0 && m.art == Marke::Art::Name && !m.geklammert &&
        m.text.compare(wort, Qt::CaseInsensitive) == 0) {
      return i;
    }
  }
  return m_stelle;
}

void Leser::wirf(const QString& text) const {
  throw Datenbankfehler(Datenbankfehler::Art::Anweisung, text, m_anweisung);
}

// ---- tables and fields ----

Quelle Leser::nimmTabelle() {
  const QString name = nimmName();
  Quelle quelle;
  quelle.felder = m_katalog(name);
  if (quelle.felder.empty()) {
    wirf(QStringLiteral("Die Tabelle \"%1\" gibt es in der Datenbank nicht.").arg(name));
  }
  if (m_auskunft.tabellenname) quelle.tabelle = m_auskunft.tabellenname(name);
  if (quelle.tabelle.isEmpty()) quelle.tabelle = name;
  quelle.name = quelle.tabelle;
  return quelle;
}

const Spalte& Leser::nimmFeld(const Quelle& quelle) {
  const QString name = nimmName();
  const Spalte* spalte = quelle.feld(name);
  if (!spalte) {
    wirf(QStringLiteral("Das Feld \"%1\" gibt es in der Tabelle \"%2\" nicht.")
             .arg(name, quelle.tabelle));
  }
  return *spalte;
}

bool Leser::findeFeld(const Geltung& g, const QString& tabelle, const QString& gesucht,
                      Ausdruck& ergebnis) const {
  bool gefunden = false;
  for (size_t i = 0; i < g.quellen.size(); ++i) {
    const Quelle& quelle = g.quellen[i];
    const Spalte* spalte = quelle.feld(gesucht);
    if (!spalte || (!tabelle.isEmpty() && !gleich(quelle.name, tabelle))) continue;
    if (gefunden) {
      wirf(QStringLiteral("Das Feld \"%1\" gibt es in mehreren Tabellen der Anweisung.")
               .arg(gesucht));
    }
    gefunden = true;
    ergebnis.sorte = Ausdruck::Sorte::Feld;
    ergebnis.quelle = static_cast<int>(i);
    ergebnis.feld = spalte->name;
    ergebnis.sql = alsName(spalte->name);
    if (!tabelle.isEmpty() || g.quellen.size() > 1) {
      ergebnis.sql.prepend(alsName(quelle.name) + QLatin1Char('.'));
    }
  }
  return gefunden;
}

bool Leser::findeAlias(const QString& gesucht, Ausdruck& ergebnis) const {
  for (const Geltung::Alias& alias : geltung->aliase) {
    if (!gleich(alias.name, gesucht)) continue;
    ergebnis = alias.ausdruck;
    ergebnis.sql = alsName(alias.name);
    return true;
  }
  return false;
}

Ausdruck Leser::feld(const QString& tabelle, const QString& gesucht) const {
  using Vorrang = Geltung::Vorrang;
  Ausdruck ergebnis;
  if (geltung) {
    const bool ohneTabelle = tabelle.isEmpty();
    const Vorrang vorrang = geltung->vorrang;
    if (ohneTabelle && vorrang == Vorrang::AliaseZuerst && findeAlias(gesucht, ergebnis))
      return ergebnis;
    if (findeFeld(*geltung, tabelle, gesucht, ergebnis)) return ergebnis;
    if (ohneTabelle && vorrang == Vorrang::FelderZuerst && findeAlias(gesucht, ergebnis))
      return ergebnis;
  }
  const QString ganz = tabelle.isEmpty() ? gesucht : tabelle + QLatin1Char('.') + gesucht;
  wirf(QStringLiteral("Das Feld \"%1\" gibt es in der Datenbank nicht.").arg(ganz));
}

}  // namespace Dialekt
