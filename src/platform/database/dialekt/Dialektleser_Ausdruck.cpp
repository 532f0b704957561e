#include "platform/database/dialekt/Dialektleser.h"

// The expressions of a statement: one function for each strength of bond, from the weakest to the
// strongest.

namespace {

constexpr int größteTiefe = 300;
constexpr int meisteTeile = 100;  // of a sum: the engine's functions take 127 values

struct Funktionsregel {
  const char* name;
  int mindestens;
  int höchstens;
  const char* sql;
  bool aggregat;
};

constexpr Funktionsregel regeln[] = {
    {"count", 1, 1, "count", true},
    {"sum", 1, 1, "sum", true},
    {"avg", 1, 1, "avg", true},
    {"min", 1, 1, "min", true},
    {"max", 1, 1, "max", true},
    {"year", 1, 1, "year", false},
    {"month", 1, 1, "month", false},
    {"day", 1, 1, "day", false},
    {"datediff", 3, 3, "datediff", false},
    {"now", 0, 0, "now", false},
    {"left", 2, 2, "tova_left", false},
    {"right", 2, 2, "tova_right", false},
    {"mid", 2, 3, "mid", false},
    {"len", 1, 1, "len", false},
    {"trim", 1, 1, "trim", false},
    {"ltrim", 1, 1, "ltrim", false},
    {"rtrim", 1, 1, "rtrim", false},
    {"ucase", 1, 1, "ucase", false},
    {"lcase", 1, 1, "lcase", false},
    {"val", 1, 1, "val", false},
    {"int", 1, 1, "int", false},
    {"abs", 1, 1, "abs", false},
    {"iif", 3, 3, "iif", false},
};

}  // namespace

namespace Dialekt {

QString mitKollation(const Ausdruck& ausdruck) {
  using Sorte = Ausdruck::Sorte;
  if (ausdruck.sorte == Sorte::Feld || ausdruck.sorte == Sorte::Zahl) return ausdruck.sql;
  return QLatin1Char('(') + ausdruck.sql + QLatin1String(") COLLATE tova");
}

// Guards the stack against a statement of thousands of parentheses.
class Leser::Tiefe {
 public:
  explicit Tiefe(Leser& leser) : m_leser(leser) {
    if (++m_leser.m_tiefe > größteTiefe) {
      --m_leser.m_tiefe;
      m_leser.unlesbar();
    }
  }
  ~Tiefe() { --m_leser.m_tiefe; }
  Tiefe(const Tiefe&) = delete;
  Tiefe& operator=(const Tiefe&) = delete;

 private:
  Leser& m_leser;
};

Ausdruck Leser::wert() {
  const bool vorher = m_bedingung;
  m_bedingung = false;
  Ausdruck ergebnis = oder();
  m_bedingung = vorher;
  return ergebnis;
}

Ausdruck Leser::bedingung() {
  const bool vorher = m_bedingung;
  m_bedingung = true;
  Ausdruck ergebnis = oder();
  m_bedingung = vorher;
  return ergebnis;
}

Ausdruck Leser::oder() {
  const Tiefe tiefe(*this);
  Ausdruck links = und();
  while (nimmWort(QLatin1String("or"))) {
    links.sql += QLatin1String(" OR ") + und().sql;
    links.sorte = Ausdruck::Sorte::Sonst;
  }
  return links;
}

Ausdruck Leser::und() {
  Ausdruck links = nicht();
  while (nimmWort(QLatin1String("and"))) {
    links.sql += QLatin1String(" AND ") + nicht().sql;
    links.sorte = Ausdruck::Sorte::Sonst;
  }
  return links;
}

Ausdruck Leser::nicht() {
  const Tiefe tiefe(*this);
  if (!nimmWort(QLatin1String("not"))) return vergleich();
  Ausdruck ergebnis;
  ergebnis.sql = QLatin1String("NOT ") + nicht().sql;
  return ergebnis;
}

Ausdruck Leser::vergleich() {
  Ausdruck links = verkettung();
  bool erster = true;
  for (;;) {
    Ausdruck ganz = links;
    if (!erster) ganz.sql = QLatin1Char('(') + ganz.sql + QLatin1Char(')');
    if (marke().art == Marke::Art::Zeichen &&
        QStringView(u" = <> < > <= >= ")
            .contains(QLatin1Char(' ') + marke().text + QLatin1Char(' '))) {
      const QString zeichen = marke().text;
      weiter();
      vergleichsrest(ganz, zeichen);
    } else if (!wortrest(ganz)) {
      return links;
    }
    links = ganz;
    links.sorte = Ausdruck::Sorte::Sonst;
    erster = false;
  }
}

// The right side of a comparison. A flag that was never set is not the flag: "<> 'X'" holds for
// null too.
void Leser::vergleichsrest(Ausdruck& links, const QString& zeichen) {
  using Sorte = Ausdruck::Sorte;
  Ausdruck rechts = verkettung();
  const bool ungleich = zeichen == QLatin1String("<>");
  if (m_bedingung && (ungleich || zeichen == QLatin1String("="))) {
    const QString art = ungleich ? QStringLiteral(" IS NOT NULL") : QStringLiteral(" IS NULL");
    if (rechts.sorte == Sorte::Null) {
      links.sql += art;
      return;
    }
    if (links.sorte == Sorte::Null) {
      links.sql = rechts.sql + art;
      return;
    }
  }
  const bool jedesFeld = links.sorte == Sorte::Feld || rechts.sorte == Sorte::Feld;
  const bool jedeZahl = links.sorte == Sorte::Zahl || rechts.sorte == Sorte::Zahl;
  const bool auchNull = ungleich && (links.sorte == Sorte::Text || rechts.sorte == Sorte::Text);
  links.sql +=
      auchNull ? QStringLiteral(" IS NOT ") : QLatin1Char(' ') + zeichen + QLatin1Char(' ');
  links.sql += jedesFeld || jedeZahl ? rechts.sql : mitKollation(rechts);
}

// "is null", "like", "in" and "between" behind their left side; false when none of them follows.
bool Leser::wortrest(Ausdruck& links) {
  if (nimmWort(QLatin1String("is"))) {
    const bool verneint = nimmWort(QLatin1String("not"));
    verlangeWort(QLatin1String("null"));
    links.sql += verneint ? QLatin1String(" IS NOT NULL") : QLatin1String(" IS NULL");
    return true;
  }
  const size_t anfang = m_stelle;
  const bool verneint = nimmWort(QLatin1String("not"));
  const QString nichtWort = verneint ? QStringLiteral(" NOT") : QString();
  if (nimmWort(QLatin1String("like"))) {
    const QString muster = verkettung().sql;
    links.sql = QStringLiteral("%1tova_wie(%2, %3)")
                    .arg(verneint ? QStringLiteral("NOT ") : QString(), links.sql, muster);
    return true;
  }
  const bool feldLinks = links.sorte == Ausdruck::Sorte::Feld;
  const bool zahlLinks = links.sorte == Ausdruck::Sorte::Zahl;
  if (nimmWort(QLatin1String("in"))) {
    if (!feldLinks && !zahlLinks) links.sql = mitKollation(links);
    links.sql += nichtWort + QLatin1String(" IN ") + menge();
    return true;
  }
  if (nimmWort(QLatin1String("between"))) {
    if (!feldLinks && !zahlLinks) links.sql = mitKollation(links);
    links.sql += nichtWort + QLatin1String(" BETWEEN ") + verkettung().sql;
    verlangeWort(QLatin1String("and"));
    links.sql += QLatin1String(" AND ") + verkettung().sql;
    return true;
  }
  geheZu(anfang);
  return false;
}

// The right side of "in": values in parentheses.
QString Leser::menge() {
  verlangeZeichen(QLatin1String("("));
  QString sql = QStringLiteral("(") + wert().sql;
  while (nimmZeichen(QLatin1String(","))) sql += QLatin1String(", ") + wert().sql;
  verlangeZeichen(QLatin1String(")"));
  return sql + QLatin1Char(')');
}

Ausdruck Leser::verkettung() {
  Ausdruck links = summe();
  if (!istZeichen(QLatin1String("&"))) return links;
  const auto teil = [](const Ausdruck& a) {
    return QLatin1String("coalesce(") + a.sql + QLatin1String(", '')");
  };
  Ausdruck ergebnis;
  ergebnis.sql = QLatin1Char('(') + teil(links);
  while (nimmZeichen(QLatin1String("&"))) ergebnis.sql += QLatin1String(" || ") + teil(summe());
  ergebnis.sql += QLatin1Char(')');
  return ergebnis;
}

// "+" with a text on either side joins texts. Numbers are added all at once, so that the sum is
// rounded by the largest of them.
Ausdruck Leser::summe() {
  Ausdruck links = produkt();
  bool text = links.istText();
  QStringList teile;
  const auto addiere = [&] {
    if (!teile.isEmpty()) links.sql = QLatin1String("tova_summe(") + teile.join(u", ") + u')';
    teile.clear();
  };
  while (istZeichen(QLatin1String("+")) || istZeichen(QLatin1String("-"))) {
    const bool minus = istZeichen(QLatin1String("-"));
    weiter();
    const Ausdruck rechts = produkt();
    text = !minus && (text || rechts.istText());
    if (text) {
      addiere();
      links.sql = QLatin1String("((") + links.sql + QLatin1String(") || (") + rechts.sql +
                  QLatin1String("))");
    } else {
      if (teile.size() == meisteTeile) addiere();
      if (teile.isEmpty()) teile << links.sql;
      teile << (minus ? QLatin1String("-(") + rechts.sql + QLatin1Char(')') : rechts.sql);
    }
    links.sorte = Ausdruck::Sorte::Sonst;
  }
  addiere();
  return links;
}

// "/" never cuts: 7 / 2 is 3.5.
Ausdruck Leser::produkt() {
  Ausdruck links = vorzeichen();
  while (istZeichen(QLatin1String("*")) || istZeichen(QLatin1String("/"))) {
    const bool geteilt = istZeichen(QLatin1String("/"));
    weiter();
    links.sql += (geteilt ? QLatin1String(" * 1.0 / ") : QLatin1String(" * ")) + vorzeichen().sql;
    links.sorte = Ausdruck::Sorte::Sonst;
  }
  return links;
}

Ausdruck Leser::vorzeichen() {
  const Tiefe tiefe(*this);
  // "+" in front of a field keeps the engine from an index of it.
  if (nimmZeichen(QLatin1String("+"))) {
    Ausdruck ergebnis = vorzeichen();
    if (ergebnis.sorte != Ausdruck::Sorte::Feld) return ergebnis;
    ergebnis.sql.prepend(u'+');
    ergebnis.quelle = -1;
    return ergebnis;
  }
  if (!nimmZeichen(QLatin1String("-"))) return einfach();
  Ausdruck ergebnis = vorzeichen();
  const bool zahl = ergebnis.sorte == Ausdruck::Sorte::Zahl;
  // Two signs in a row would begin a comment.
  const bool klammern = !zahl || ergebnis.sql.startsWith(QLatin1Char('-'));
  ergebnis.sql = klammern ? QLatin1String("-(") + ergebnis.sql + QLatin1Char(')')
                          : QLatin1Char('-') + ergebnis.sql;
  ergebnis.sorte = zahl && !klammern ? Ausdruck::Sorte::Zahl : Ausdruck::Sorte::Sonst;
  return ergebnis;
}

Ausdruck Leser::einfach() {
  using Sorte = Ausdruck::Sorte;
  Ausdruck ergebnis;
  const Marke& m = marke();
  switch (m.art) {
    case Marke::Art::Text:
      ergebnis.sorte = m.text.isEmpty() ? Sorte::LeererText : Sorte::Text;
      ergebnis.sql = alsText(m.text);
      break;
    case Marke::Art::Datum:
      ergebnis.sql = alsText(m.text);
      break;
    case Marke::Art::Zahl:
      ergebnis.sorte = Sorte::Zahl;
      ergebnis.sql = m.text;
      break;
    case Marke::Art::Wert:
      ergebnis.sql = QLatin1Char('?') + QString::number(m.nummer);
      break;
    case Marke::Art::Name:
      return name();
    case Marke::Art::Zeichen:
      verlangeZeichen(QLatin1String("("));
      ergebnis = oder();
      ergebnis.sql = QLatin1Char('(') + ergebnis.sql + QLatin1Char(')');
      verlangeZeichen(QLatin1String(")"));
      return ergebnis;
    case Marke::Art::Ende:
      unlesbar();
  }
  weiter();
  return ergebnis;
}

// A word that is a value, a function or a field.
Ausdruck Leser::name() {
  Ausdruck ergebnis;
  if (nimmWort(QLatin1String("null"))) {
    ergebnis.sorte = Ausdruck::Sorte::Null;
    ergebnis.sql = QStringLiteral("NULL");
    return ergebnis;
  }
  for (const char* wahrheit : {"TRUE", "FALSE"}) {
    if (!nimmWort(QLatin1String(wahrheit))) continue;
    ergebnis.sorte = Ausdruck::Sorte::Zahl;
    ergebnis.sql = QLatin1String(wahrheit);
    return ergebnis;
  }
  const bool folgtKlammer = m_stelle + 1 < m_marken.size() &&
                            m_marken[m_stelle + 1].art == Marke::Art::Zeichen &&
                            m_marken[m_stelle + 1].text == QLatin1String("(");
  if (folgtKlammer && !marke().geklammert) {
    const QString funktionsname = marke().text;
    weiter();
    return funktion(funktionsname);
  }
  const bool jetzt = istWort(QLatin1String("now"));
  const QString erster = nimmName();
  if (nimmZeichen(QLatin1String("."))) return feld(erster, nimmName());
  if (jetzt) {
    ergebnis.sql = QStringLiteral("now()");
    return ergebnis;
  }
  return feld(QString(), erster);
}

Ausdruck Leser::funktion(const QString& gesucht) {
  const Funktionsregel* regel = nullptr;
  for (const Funktionsregel& eine : regeln) {
    if (gesucht.compare(QLatin1String(eine.name), Qt::CaseInsensitive) == 0) regel = &eine;
  }
  if (!regel) wirf(QStringLiteral("Die Funktion \"%1\" gibt es nicht.").arg(gesucht));
  if (regel->aggregat && geltung) geltung->aggregat = true;
  verlangeZeichen(QLatin1String("("));
  Ausdruck ergebnis;
  ergebnis.sql = QLatin1String(regel->sql) + QLatin1Char('(');
  int argumente = 0;
  if (gesucht.compare(QLatin1String("count"), Qt::CaseInsensitive) == 0 &&
      nimmZeichen(QLatin1String("*"))) {
    ergebnis.sql += QLatin1Char('*');
    argumente = 1;
  } else if (!istZeichen(QLatin1String(")"))) {
    const bool erstesIstBedingung = QLatin1String(regel->name) == QLatin1String("iif");
    do {
      if (argumente > 0) ergebnis.sql += QLatin1String(", ");
      ergebnis.sql += (argumente == 0 && erstesIstBedingung ? bedingung() : wert()).sql;
      ++argumente;
    } while (nimmZeichen(QLatin1String(",")));
  }
  if (argumente < regel->mindestens || argumente > regel->höchstens) unlesbar();
  verlangeZeichen(QLatin1String(")"));
  ergebnis.sql += QLatin1Char(')');
  return ergebnis;
}

}  // namespace Dialekt
