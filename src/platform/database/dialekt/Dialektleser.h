#pragma once

#include <vector>

#include "platform/database/dialekt/Dialekt.h"
#include "platform/database/dialekt/Dialektmarken.h"

// Reads a statement mark by mark and writes its expressions in the engine's language. Internal to
// the dialect; what a statement as a whole becomes stands in Dialekt.cpp.
namespace Dialekt {

// A table that a statement reads or writes.
struct Quelle {
  QString tabelle;  // as declared
  QString name;     // how the statement refers to it
  std::vector<Spalte> felder;

  const Spalte* feld(QStringView name) const;
};

struct Ausdruck {
  enum class Sorte { Null, Text, LeererText, Zahl, Feld, Sonst };
  QString sql;
  Sorte sorte = Sorte::Sonst;
  int quelle = -1;  // of a Feld: index of its table
  QString feld;     // of a Feld: its name as declared

  bool istText() const { return sorte == Sorte::Text || sorte == Sorte::LeererText; }
  bool istFeld(int nummer, QStringView name) const;
};

// What names mean in one select, update or delete.
struct Geltung {
  struct Alias {
    QString name;
    Ausdruck ausdruck;
  };
  std::vector<Quelle> quellen;
  std::vector<Alias> aliase;  // of the columns, once they are read
  enum class Vorrang { NurFelder, FelderZuerst, AliaseZuerst } vorrang = Vorrang::NurFelder;
  bool aggregat = false;  // set when a function over many rows was read
};

class Leser {
 public:
  Leser(const QString& anweisung, const Katalog& katalog, const Auskunft& auskunft);

  // ---- marks ----
  const Marke& marke() const { return m_marken[m_stelle]; }
  size_t stelle() const { return m_stelle; }
  void geheZu(size_t stelle) { m_stelle = stelle; }
  void weiter();
  bool istWort(QLatin1String wort) const;
  bool nimmWort(QLatin1String wort);
  void verlangeWort(QLatin1String wort);
  bool istZeichen(QLatin1String zeichen) const;
  bool nimmZeichen(QLatin1String zeichen);
  void verlangeZeichen(QLatin1String zeichen);
  // A name that is no word of the language.
  bool istName() const;
  QString nimmName();
  // A whole number without a sign.
  int nimmAnzahl();
  void verlangeEnde();
  int werte() const { return m_werte; }
  // Where the clause begins that this word opens, from here on and not in parentheses; the current
  // place when there is none.
  size_t suche(QLatin1String wort) const;
  [[noreturn]] void unlesbar() const { wirfUnlesbar(m_anweisung, marke().ort); }
  [[noreturn]] void wirf(const QString& text) const;

  // ---- tables ----
  // The next name as a table; throws when there is none.
  Quelle nimmTabelle();
  // A field of this table; throws when there is none.
  const Spalte& nimmFeld(const Quelle& quelle);
  const Auskunft& auskunft() const { return m_auskunft; }

  // ---- expressions ----
  Geltung* geltung = nullptr;

  // A value: "= Null" in it is a comparison that gives null.
  Ausdruck wert();
  // A condition: "= Null" in it means "is null".
  Ausdruck bedingung();

 private:
  class Tiefe;

  Ausdruck oder();
  Ausdruck und();
  Ausdruck nicht();
  Ausdruck vergleich();
  void vergleichsrest(Ausdruck& links, const QString& zeichen);
  bool wortrest(Ausdruck& links);
  QString menge();
  Ausdruck verkettung();
  Ausdruck summe();
  Ausdruck produkt();
  Ausdruck vorzeichen();
  Ausdruck einfach();
  Ausdruck name();
  Ausdruck funktion(const QString& name);
  Ausdruck feld(const QString& tabelle, const QString& name) const;
  bool findeFeld(const Geltung& g, const QString& tabelle, const QString& name,
                 Ausdruck& ergebnis) const;
  bool findeAlias(const QString& name, Ausdruck& ergebnis) const;

  const QString m_anweisung;
  const Katalog& m_katalog;
  const Auskunft& m_auskunft;
  std::vector<Marke> m_marken;
  size_t m_stelle = 0;
  int m_werte = 0;
  int m_tiefe = 0;
  bool m_bedingung = false;
};

// A name as the engine takes it, in brackets where it must be.
QString alsName(const QString& name);
// A text as the engine takes it.
QString alsText(const QString& text);
// With the collation where the engine wouldn't know it: for sorting and grouping.
QString mitKollation(const Ausdruck& ausdruck);

}  // namespace Dialekt
