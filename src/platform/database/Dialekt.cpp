#include "platform/database/Dialekt.h"

#include "platform/database/Dialektleser.h"

namespace {

using Dialekt::alsName;
using Dialekt::alsText;
using Dialekt::Ausdruck;
using Dialekt::Geltung;
using Dialekt::Leser;
using Dialekt::mitKollation;
using Dialekt::Quelle;
using Dialekt::Uebersetzt;
using QL = QLatin1String;

// A column of a select.
struct Posten {
  Ausdruck ausdruck;
  QString alias;
  QString stern;  // "*" or "T.*" instead of an expression

  QString sql() const {
    if (!stern.isEmpty()) return stern;
    return alias.isEmpty() ? ausdruck.sql : ausdruck.sql + QL(" AS ") + alsName(alias);
  }
};

struct Sortierung {
  Ausdruck ausdruck;
  bool absteigend = false;
};

// A select, taken apart.
struct Auswahl {
  Geltung geltung;
  bool verschieden = false;  // distinct
  int anzahl = -1;           // top
  std::vector<Posten> posten;
  QString von;
  QString wo;
  std::vector<Ausdruck> gruppen;
  QString haben;
  std::vector<Sortierung> sortierung;

  // Rows of the tables as they are, none of them computed from many.
  bool einfach() const { return !verschieden && gruppen.empty() && !geltung.aggregat; }
  bool eineTabelle() const { return geltung.quellen.size() == 1; }
};

QString verbunden(const std::vector<Ausdruck>& teile) {
  QString sql;
  for (const Ausdruck& teil : teile) {
    if (!sql.isEmpty()) sql += QL(", ");
    sql += mitKollation(teil);
  }
  return sql;
}

// The value on its way into a field: through the field's rule.
QString insFeld(const QString& sql, const Spalte& spalte) {
  return QStringLiteral("tova_feld(") + sql + QL(", ") + alsText(spalte.name) + QL(", ") +
         QString::number(static_cast<int>(spalte.typ)) + QL(", ") + QString::number(spalte.laenge) +
         QL(")");
}

// The columns' names in one select for each table row, g0, g1, ...
QString gruppenname(size_t nummer) { return QL("g") + QString::number(nummer); }

class Uebersetzer {
 public:
  Uebersetzer(const QString& anweisung, const Dialekt::Katalog& katalog,
              const Dialekt::Auskunft& auskunft)
      : m_leser(anweisung, katalog, auskunft) {
    m_leser.unterauswahl = [this] { return unterauswahl(); };
  }

  Uebersetzt uebersetze() {
    m_ergebnis.werte = m_leser.werte();
    if (m_leser.istWort(QL("select"))) {
      auswahlAlsGanzes();
    } else if (m_leser.nimmWort(QL("transform"))) {
      kreuztabelle();
    } else if (m_leser.nimmWort(QL("insert"))) {
      schreibt(einfuegen());
    } else if (m_leser.nimmWort(QL("update"))) {
      schreibt(aendern());
    } else if (m_leser.nimmWort(QL("delete"))) {
      schreibt(loeschen());
    } else if (m_leser.nimmWort(QL("create"))) {
      aendertSchema(anlegen());
    } else if (m_leser.nimmWort(QL("alter"))) {
      aendertSchema(umbauen());
    } else if (m_leser.nimmWort(QL("drop"))) {
      aendertSchema(entfernen());
    } else {
      m_leser.unlesbar();
    }
    m_leser.verlangeEnde();
    return std::move(m_ergebnis);
  }

 private:
  // ---- reading a select ----

  Auswahl liesAuswahl() {
    Auswahl auswahl;
    auswahl.geltung.aussen = m_leser.geltung;
    m_leser.verlangeWort(QL("select"));
    auswahl.verschieden = m_leser.nimmWort(QL("distinct"));
    if (m_leser.nimmWort(QL("top"))) auswahl.anzahl = m_leser.nimmAnzahl();
    liesSpaltenUndTabellen(auswahl);
    m_leser.geltung = &auswahl.geltung;
    if (m_leser.nimmWort(QL("where"))) auswahl.wo = m_leser.bedingung().sql;
    using Vorrang = Geltung::Vorrang;
    if (m_leser.nimmWort(QL("group"))) {
      m_leser.verlangeWort(QL("by"));
      auswahl.geltung.vorrang = Vorrang::FelderZuerst;
      do auswahl.gruppen.push_back(m_leser.wert());
      while (m_leser.nimmZeichen(QL(",")));
      if (m_leser.nimmWort(QL("having"))) auswahl.haben = m_leser.bedingung().sql;
    }
    if (m_leser.nimmWort(QL("order"))) {
      m_leser.verlangeWort(QL("by"));
      auswahl.geltung.vorrang = Vorrang::AliaseZuerst;
      do liesSortierung(auswahl);
      while (m_leser.nimmZeichen(QL(",")));
    }
    m_leser.geltung = const_cast<Geltung*>(auswahl.geltung.aussen);
    return auswahl;
  }

  // The tables stand behind the columns but say what these mean: they are read first.
  void liesSpaltenUndTabellen(Auswahl& auswahl) {
    const size_t spalten = m_leser.stelle();
    const size_t von = m_leser.suche(QL("from"));
    if (von != spalten) {
      m_leser.geheZu(von);
      m_leser.weiter();
      auswahl.von = liesTabellen(auswahl.geltung);
    }
    const size_t dahinter = m_leser.stelle();
    m_leser.geheZu(spalten);
    m_leser.geltung = &auswahl.geltung;
    do auswahl.posten.push_back(liesPosten(auswahl));
    while (m_leser.nimmZeichen(QL(",")));
    for (const Posten& posten : auswahl.posten) {
      if (!posten.alias.isEmpty())
        auswahl.geltung.aliase.push_back({posten.alias, posten.ausdruck});
    }
    if (von == spalten) return;
    if (m_leser.stelle() != von) m_leser.unlesbar();
    m_leser.geheZu(dahinter);
  }

  Posten liesPosten(const Auswahl& auswahl) {
    Posten posten;
    if (m_leser.nimmZeichen(QL("*"))) {
      posten.stern = QStringLiteral("*");
      return posten;
    }
    if (liesTabellenstern(auswahl, posten)) return posten;
    posten.ausdruck = m_leser.wert();
    if (m_leser.nimmWort(QL("as"))) posten.alias = m_leser.nimmName();
    return posten;
  }

  // "T.*"
  bool liesTabellenstern(const Auswahl& auswahl, Posten& posten) {
    if (!m_leser.istName()) return false;
    const size_t anfang = m_leser.stelle();
    const QString name = m_leser.nimmName();
    if (m_leser.nimmZeichen(QL(".")) && m_leser.nimmZeichen(QL("*"))) {
      for (const Quelle& quelle : auswahl.geltung.quellen) {
        if (quelle.name.compare(name, Qt::CaseInsensitive) == 0) {
          posten.stern = alsName(quelle.name) + QL(".*");
          return true;
        }
      }
    }
    m_leser.geheZu(anfang);
    return false;
  }

  QString liesTabellen(Geltung& geltung) {
    QString sql = liesTabelle(geltung);
    for (;;) {
      if (m_leser.nimmZeichen(QL(","))) {
        sql += QL(", ") + liesTabelle(geltung);
        continue;
      }
      const QString art = liesVerbindungsart();
      if (art.isEmpty()) return sql;
      sql += art + liesTabelle(geltung);
      m_leser.verlangeWort(QL("on"));
      Geltung* const vorher = m_leser.geltung;
      m_leser.geltung = &geltung;
      sql += QL(" ON ") + m_leser.bedingung().sql;
      m_leser.geltung = vorher;
    }
  }

  QString liesVerbindungsart() {
    QString art;
    if (m_leser.nimmWort(QL("inner"))) {
      art = QStringLiteral(" JOIN ");
    } else if (m_leser.nimmWort(QL("left"))) {
      art = QStringLiteral(" LEFT JOIN ");
    } else if (m_leser.nimmWort(QL("right"))) {
      art = QStringLiteral(" RIGHT JOIN ");
    } else {
      return art;
    }
    m_leser.verlangeWort(QL("join"));
    return art;
  }

  QString liesTabelle(Geltung& geltung) {
    Quelle quelle = m_leser.nimmTabelle();
    QString sql = alsName(quelle.tabelle);
    if (m_leser.nimmWort(QL("as")) || m_leser.istName()) {
      quelle.name = m_leser.nimmName();
      sql += QL(" AS ") + alsName(quelle.name);
    }
    geltung.quellen.push_back(std::move(quelle));
    return sql;
  }

  void liesSortierung(Auswahl& auswahl) {
    Sortierung eine;
    eine.ausdruck = m_leser.wert();
    eine.absteigend = m_leser.nimmWort(QL("desc"));
    if (!eine.absteigend) m_leser.nimmWort(QL("asc"));
    auswahl.sortierung.push_back(std::move(eine));
  }

  // ---- writing a select ----

  QString unterauswahl() {
    const Auswahl auswahl = liesAuswahl();
    m_leser.verlangeZeichen(QL(")"));
    QString sql = kopf(auswahl);
    // Inside of a statement the order only matters where it decides which rows there are.
    if (auswahl.anzahl >= 0) sql += ende(auswahl);
    return sql;
  }

  void auswahlAlsGanzes() {
    const Auswahl auswahl = liesAuswahl();
    if (auswahl.einfach() && auswahl.eineTabelle()) {
      m_ergebnis.tabelle = auswahl.geltung.quellen[0].tabelle;
    }
    m_ergebnis.sql = istWertsuche(auswahl) ? wertsuche(auswahl) : kopf(auswahl) + ende(auswahl);
  }

  static QString vonUndWo(const Auswahl& auswahl) {
    QString sql;
    if (!auswahl.von.isEmpty()) sql += QL(" FROM ") + auswahl.von;
    if (!auswahl.wo.isEmpty()) sql += QL(" WHERE ") + auswahl.wo;
    return sql;
  }

  static QString kopf(const Auswahl& auswahl) {
    QString sql =
        auswahl.verschieden ? QStringLiteral("SELECT DISTINCT ") : QStringLiteral("SELECT ");
    for (size_t i = 0; i < auswahl.posten.size(); ++i) {
      if (i > 0) sql += QL(", ");
      Posten posten = auswahl.posten[i];
      if (auswahl.verschieden) posten.ausdruck.sql = mitKollation(posten.ausdruck);
      sql += posten.sql();
    }
    sql += vonUndWo(auswahl);
    if (!auswahl.gruppen.empty()) sql += QL(" GROUP BY ") + verbunden(auswahl.gruppen);
    if (!auswahl.haben.isEmpty()) sql += QL(" HAVING ") + auswahl.haben;
    return sql;
  }

  // Order and limit. Rows that the given order leaves equal come in the order of their IDs, groups
  // without a given order in the order of what they are grouped by.
  static QString ende(const Auswahl& auswahl) {
    QString sql;
    const auto haengeAn = [&sql](const QString& teil) {
      sql += (sql.isEmpty() ? QL(" ORDER BY ") : QL(", ")) + teil;
    };
    for (const Sortierung& eine : auswahl.sortierung) {
      haengeAn(mitKollation(eine.ausdruck) + (eine.absteigend ? QL(" DESC") : QL("")));
    }
    const bool begrenzt = auswahl.anzahl >= 0;
    if (!auswahl.gruppen.empty()) {
      if (sql.isEmpty() && !auswahl.verschieden) haengeAn(verbunden(auswahl.gruppen));
    } else if (auswahl.einfach() &&
               (begrenzt || (auswahl.eineTabelle() && (!sql.isEmpty() || auswahl.wo.isEmpty())))) {
      for (const QString& id : kennungen(auswahl)) haengeAn(id);
    }
    if (begrenzt) sql += QL(" LIMIT ") + QString::number(auswahl.anzahl);
    return sql;
  }

  // The IDs of the tables that the given order doesn't contain yet.
  static QStringList kennungen(const Auswahl& auswahl) {
    QStringList alle;
    for (size_t i = 0; i < auswahl.geltung.quellen.size(); ++i) {
      const Quelle& quelle = auswahl.geltung.quellen[i];
      const Spalte* id = quelle.feld(u"ID");
      if (!id) continue;
      bool vorhanden = false;
      for (const Sortierung& eine : auswahl.sortierung) {
        vorhanden = vorhanden || eine.ausdruck.istFeld(static_cast<int>(i), u"ID");
      }
      if (!vorhanden) alle += alsName(quelle.name) + QL(".") + alsName(id->name);
    }
    return alle;
  }

  // ---- the different values of an indexed field ----

  bool istWertsuche(const Auswahl& auswahl) const {
    const Dialekt::Auskunft& auskunft = m_leser.auskunft();
    if (!auswahl.verschieden || auswahl.anzahl >= 0 || !auswahl.eineTabelle() ||
        auswahl.posten.size() != 1 || auswahl.sortierung.size() != 1 ||
        auswahl.sortierung[0].absteigend || !auswahl.wo.isEmpty() || !auswahl.gruppen.empty() ||
        !auskunft.beginntIndex) {
      return false;
    }
    const Ausdruck& feld = auswahl.posten[0].ausdruck;
    return feld.sorte == Ausdruck::Sorte::Feld && feld.quelle == 0 &&
           auswahl.sortierung[0].ausdruck.istFeld(0, feld.feld) &&
           auskunft.beginntIndex(auswahl.geltung.quellen[0].tabelle, feld.feld);
  }

  // From each value the index leads to the next one; rows of the same value are never read. Null
  // has no next value and comes first, by itself.
  static QString wertsuche(const Auswahl& auswahl) {
    const Posten& posten = auswahl.posten[0];
    const QString feld = alsName(posten.ausdruck.feld);
    const QString tabelle = alsName(auswahl.geltung.quellen[0].tabelle);
    const QString name = alsName(posten.alias.isEmpty() ? posten.ausdruck.feld : posten.alias);
    return QStringLiteral(
               "WITH RECURSIVE tova_werte(wert) AS ("
               "SELECT * FROM (SELECT %1 FROM %2 WHERE %1 IS NOT NULL ORDER BY %1 LIMIT 1) "
               "UNION ALL SELECT tova_t.%1 FROM tova_werte CROSS JOIN %2 AS tova_t "
               "WHERE tova_t.rowid = (SELECT tova_u.rowid FROM %2 AS tova_u "
               "WHERE tova_u.%1 > tova_werte.wert ORDER BY tova_u.%1 LIMIT 1)) "
               "SELECT * FROM (SELECT %1 AS %3 FROM %2 WHERE %1 IS NULL LIMIT 1) "
               "UNION ALL SELECT wert FROM tova_werte")
        .arg(feld, tabelle, name);
  }

  // ---- cross tables ----

  void kreuztabelle() {
    const size_t anfang = m_leser.stelle();
    m_leser.geheZu(m_leser.suche(QL("select")));
    if (m_leser.stelle() == anfang) m_leser.unlesbar();
    const size_t auswahlAnfang = m_leser.stelle();
    Auswahl auswahl = liesAuswahl();
    if (auswahl.gruppen.empty() || auswahl.verschieden || auswahl.anzahl >= 0 ||
        !auswahl.sortierung.empty() || !auswahl.haben.isEmpty()) {
      m_leser.unlesbar();
    }
    m_leser.geltung = &auswahl.geltung;
    auswahl.geltung.vorrang = Geltung::Vorrang::NurFelder;
    m_leser.verlangeWort(QL("pivot"));
    const Ausdruck pivot = m_leser.wert();
    const size_t schluss = m_leser.stelle();
    m_leser.geheZu(anfang);
    auswahl.geltung.aggregat = false;
    const Ausdruck zelle = m_leser.wert();
    if (m_leser.stelle() != auswahlAnfang || !auswahl.geltung.aggregat) m_leser.unlesbar();
    m_leser.geltung = nullptr;
    m_leser.geheZu(schluss);
    m_ergebnis.kreuztabelle = Dialekt::Kreuztabelle{static_cast<int>(auswahl.posten.size())};
    m_ergebnis.sql = kreuztabelleSql(auswahl, zelle, pivot);
  }

  // Two groupings of the same rows: one by table row, which gives the left columns with their
  // totals, one by table row and pivot value, which gives the cells.
  static QString kreuztabelleSql(const Auswahl& auswahl, const Ausdruck& zelle,
                                 const Ausdruck& pivot) {
    QString gruppen;
    QString gleich;
    QString ordnung;
    for (size_t i = 0; i < auswahl.gruppen.size(); ++i) {
      const QString name = gruppenname(i);
      gruppen += auswahl.gruppen[i].sql + QL(" AS ") + name + QL(", ");
      gleich +=
          (i > 0 ? QL(" AND ") : QL("")) + QStringLiteral("z.%1 IS c.%1 COLLATE tova").arg(name);
      ordnung += (i > 0 ? QL(", ") : QL("")) + QStringLiteral("c.%1 COLLATE tova").arg(name);
    }
    QString links;
    QString ergebnis;
    for (size_t i = 0; i < auswahl.posten.size(); ++i) {
      const Posten& posten = auswahl.posten[i];
      const QString name = QL("s") + QString::number(i);
      links += (i > 0 ? QL(", ") : QL("")) + posten.ausdruck.sql + QL(" AS ") + name;
      ergebnis += QStringLiteral("z.%1 AS %2, ").arg(name, spaltenname(posten, i));
    }
    const QString grundlage = vonUndWo(auswahl) + QL(" GROUP BY ") + verbunden(auswahl.gruppen);
    return QL("WITH z AS (SELECT ") + gruppen + links + grundlage + QL("), c AS (SELECT ") +
           gruppen + pivot.sql + QL(" AS p, ") + zelle.sql + QL(" AS w") + grundlage + QL(", ") +
           mitKollation(pivot) + QL(") SELECT ") + ergebnis +
           QL("c.p AS Pivot, c.w AS Zelle, dense_rank() OVER (ORDER BY ") + ordnung +
           QL(") AS Zeile, dense_rank() OVER (ORDER BY c.p COLLATE tova) AS Spalte "
              "FROM c JOIN z ON ") +
           gleich + QL(" ORDER BY Zeile, Spalte");
  }

  static QString spaltenname(const Posten& posten, size_t nummer) {
    if (!posten.alias.isEmpty()) return alsName(posten.alias);
    if (posten.ausdruck.sorte == Ausdruck::Sorte::Feld) return alsName(posten.ausdruck.feld);
    return QL("Ausdruck") + QString::number(nummer + 1);
  }

  // ---- writing rows ----

  void schreibt(QString sql) {
    m_ergebnis.sql = std::move(sql);
    m_ergebnis.schreibt = true;
  }

  QString einfuegen() {
    m_leser.verlangeWort(QL("into"));
    const Quelle quelle = m_leser.nimmTabelle();
    const std::vector<Spalte> felder = zielfelder(quelle);
    QString sql = QL("INSERT INTO ") + alsName(quelle.tabelle) + QL(" (");
    for (size_t i = 0; i < felder.size(); ++i) {
      sql += (i > 0 ? QL(", ") : QL("")) + alsName(felder[i].name);
    }
    sql += QL(") ");
    if (m_leser.istWort(QL("select"))) return sql + auswahlInsFeld(felder);
    m_leser.verlangeWort(QL("values"));
    sql += QL("VALUES ");
    bool erste = true;
    do {
      sql += (erste ? QL("(") : QL(", (")) + werte(felder) + QL(")");
      erste = false;
    } while (m_leser.nimmZeichen(QL(",")));
    return sql;
  }

  std::vector<Spalte> zielfelder(const Quelle& quelle) {
    if (!m_leser.nimmZeichen(QL("("))) return quelle.felder;
    std::vector<Spalte> felder;
    do felder.push_back(m_leser.nimmFeld(quelle));
    while (m_leser.nimmZeichen(QL(",")));
    m_leser.verlangeZeichen(QL(")"));
    return felder;
  }

  QString werte(const std::vector<Spalte>& felder) {
    m_leser.verlangeZeichen(QL("("));
    QString sql;
    size_t i = 0;
    do {
      if (i == felder.size()) m_leser.unlesbar();
      sql += (i > 0 ? QL(", ") : QL("")) + insFeld(m_leser.wert().sql, felder[i]);
      ++i;
    } while (m_leser.nimmZeichen(QL(",")));
    if (i != felder.size()) m_leser.unlesbar();
    m_leser.verlangeZeichen(QL(")"));
    return sql;
  }

  QString auswahlInsFeld(const std::vector<Spalte>& felder) {
    Auswahl auswahl = liesAuswahl();
    std::vector<Posten> einzeln;
    for (Posten& posten : auswahl.posten) {
      if (posten.stern.isEmpty()) {
        einzeln.push_back(std::move(posten));
        continue;
      }
      for (const Quelle& quelle : auswahl.geltung.quellen) {
        const QString name = alsName(quelle.name);
        if (posten.stern != QL("*") && posten.stern != name + QL(".*")) continue;
        for (const Spalte& spalte : quelle.felder) {
          Posten eines;
          eines.ausdruck.sql = name + QL(".") + alsName(spalte.name);
          einzeln.push_back(std::move(eines));
        }
      }
    }
    if (einzeln.size() != felder.size()) m_leser.unlesbar();
    // "distinct" looks at what was selected, so the rule comes on top of it.
    for (size_t i = 0; i < einzeln.size(); ++i) {
      if (einzeln[i].alias.isEmpty()) einzeln[i].alias = QL("tova_") + QString::number(i);
    }
    auswahl.posten = std::move(einzeln);
    QString sql = QStringLiteral("SELECT ");
    for (size_t i = 0; i < felder.size(); ++i) {
      sql += (i > 0 ? QL(", ") : QL("")) + insFeld(alsName(auswahl.posten[i].alias), felder[i]);
    }
    return sql + QL(" FROM (") + kopf(auswahl) + ende(auswahl) + QL(")");
  }

  QString aendern() {
    Geltung geltung;
    geltung.quellen.push_back(m_leser.nimmTabelle());
    const Quelle quelle = geltung.quellen[0];
    m_leser.geltung = &geltung;
    m_leser.verlangeWort(QL("set"));
    QString sql = QL("UPDATE ") + alsName(quelle.tabelle) + QL(" SET ");
    bool erste = true;
    do {
      const Spalte& spalte = m_leser.nimmFeld(quelle);
      m_leser.verlangeZeichen(QL("="));
      sql += (erste ? QL("") : QL(", ")) + alsName(spalte.name) + QL(" = ") +
             insFeld(m_leser.wert().sql, spalte);
      erste = false;
    } while (m_leser.nimmZeichen(QL(",")));
    if (m_leser.nimmWort(QL("where"))) sql += QL(" WHERE ") + m_leser.bedingung().sql;
    if (geltung.aggregat) m_leser.unlesbar();
    m_leser.geltung = nullptr;
    return sql;
  }

  QString loeschen() {
    m_leser.nimmZeichen(QL("*"));
    m_leser.verlangeWort(QL("from"));
    Geltung geltung;
    geltung.quellen.push_back(m_leser.nimmTabelle());
    m_leser.geltung = &geltung;
    QString sql = QL("DELETE FROM ") + alsName(geltung.quellen[0].tabelle);
    if (m_leser.nimmWort(QL("where"))) sql += QL(" WHERE ") + m_leser.bedingung().sql;
    m_leser.geltung = nullptr;
    return sql;
  }

  // ---- tables and indexes ----

  void aendertSchema(QString sql) {
    m_ergebnis.sql = std::move(sql);
    m_ergebnis.aendertSchema = true;
  }

  QString anlegen() {
    if (m_leser.nimmWort(QL("table"))) {
      QString sql = QL("CREATE TABLE ") + alsName(m_leser.nimmName()) + QL(" (");
      m_leser.verlangeZeichen(QL("("));
      bool erste = true;
      do {
        sql += (erste ? QL("") : QL(", ")) + liesFeld();
        erste = false;
      } while (m_leser.nimmZeichen(QL(",")));
      m_leser.verlangeZeichen(QL(")"));
      return sql + QL(")");
    }
    const bool eindeutig = m_leser.nimmWort(QL("unique"));
    m_leser.verlangeWort(QL("index"));
    QString sql =
        eindeutig ? QStringLiteral("CREATE UNIQUE INDEX ") : QStringLiteral("CREATE INDEX ");
    sql += alsName(m_leser.nimmName());
    m_leser.verlangeWort(QL("on"));
    const Quelle quelle = m_leser.nimmTabelle();
    sql += QL(" ON ") + alsName(quelle.tabelle) + QL(" (");
    m_leser.verlangeZeichen(QL("("));
    bool erste = true;
    do {
      sql += (erste ? QL("") : QL(", ")) + alsName(m_leser.nimmFeld(quelle).name);
      erste = false;
      if (m_leser.nimmWort(QL("desc"))) {
        sql += QL(" DESC");
      } else {
        m_leser.nimmWort(QL("asc"));
      }
    } while (m_leser.nimmZeichen(QL(",")));
    m_leser.verlangeZeichen(QL(")"));
    return sql + QL(")");
  }

  // A field's name and type. The second word of a type tells the engine how to store the values,
  // the first one is the dialect's and comes back from the schema.
  QString liesFeld() {
    const QString name = alsName(m_leser.nimmName());
    struct Typ {
      const char* wort;
      const char* sql;
    };
    static constexpr Typ typen[] = {
        {"MEMO", "MEMO TEXT COLLATE tova"},
        {"SHORT", "SHORT INT"},
        {"INTEGER", "INTEGER"},
        {"LONG", "LONG INT"},
        {"SINGLE", "SINGLE REAL"},
        {"CURRENCY", "CURRENCY REAL"},
        {"DATETIME", "DATETIME TEXT"},
        {"COUNTER", "INTEGER PRIMARY KEY AUTOINCREMENT"},
    };
    if (m_leser.nimmWort(QL("TEXT"))) {
      int laenge = 255;
      if (m_leser.nimmZeichen(QL("("))) {
        laenge = m_leser.nimmAnzahl();
        m_leser.verlangeZeichen(QL(")"));
      }
      if (laenge < 1) m_leser.unlesbar();
      return name + QStringLiteral(" TEXT (%1) COLLATE tova").arg(laenge);
    }
    for (const Typ& typ : typen) {
      if (m_leser.nimmWort(QL(typ.wort))) return name + QL(" ") + QL(typ.sql);
    }
    m_leser.unlesbar();
  }

  QString umbauen() {
    m_leser.verlangeWort(QL("table"));
    const Quelle quelle = m_leser.nimmTabelle();
    const QString sql = QL("ALTER TABLE ") + alsName(quelle.tabelle);
    if (m_leser.nimmWort(QL("drop"))) {
      m_leser.nimmWort(QL("column"));
      return sql + QL(" DROP COLUMN ") + alsName(m_leser.nimmFeld(quelle).name);
    }
    m_leser.verlangeWort(QL("add"));
    m_leser.nimmWort(QL("column"));
    return sql + QL(" ADD COLUMN ") + liesFeld();
  }

  QString entfernen() {
    if (m_leser.nimmWort(QL("table"))) {
      return QL("DROP TABLE ") + alsName(m_leser.nimmTabelle().tabelle);
    }
    m_leser.verlangeWort(QL("index"));
    QString sql = QL("DROP INDEX ") + alsName(m_leser.nimmName());
    if (m_leser.nimmWort(QL("on"))) m_leser.nimmTabelle();
    return sql;
  }

  Leser m_leser;
  Uebersetzt m_ergebnis;
};

}  // namespace

Uebersetzt Dialekt::uebersetze(const QString& anweisung, const Katalog& katalog,
                               const Auskunft& auskunft) {
  return Uebersetzer(anweisung, katalog, auskunft).uebersetze();
}
