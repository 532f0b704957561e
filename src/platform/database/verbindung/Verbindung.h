#pragma once

#include <QHash>
#include <QStringList>
#include <QVariant>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/database/verbindung/Anweisungen.h"
#include "platform/database/verbindung/Laufzeile.h"
#include "platform/database/werte/Datenbankfehler.h"
#include "platform/database/werte/Datenblock.h"

struct sqlite3;

// The rows of a statement and what is needed to write them back.
struct Leseergebnis {
  Daten daten;
  QString tabelle;     // the one table behind the rows; empty when they can't be changed
  QStringList felder;  // that table's field behind each column, empty for an expression
};

// The one connection to a file with its caches of translations, prepared statements and the
// catalogue. Everything throws Datenbankfehler.
class Verbindung {
 public:
  // Betrachten reads the file as it lies there: without locks, journals or any trace beside it.
  enum class Modus { Neu, Schreiben, NurLesen, Betrachten };

  // Opens and sets up; doesn't check what the file is.
  Verbindung(const QString& pfad, Modus modus);
  ~Verbindung();
  Verbindung(const Verbindung&) = delete;
  Verbindung& operator=(const Verbindung&) = delete;

  const QString& pfad() const { return m_pfad; }
  bool offen() const { return m_db != nullptr; }
  // What a running Sammelschreiben has written so far is kept. When that fails it is lost and the
  // failure says so (allesVerworfen); closed it is in any case.
  void schließe();
  // Whether the file was renamed or deleted under the connection.
  bool verschoben() const;
  bool nurLesend() const;
  bool istDatei(const QString& pfad) const;  // whether the path leads to this connection's file

  // Database's operations of the same names, in the tables' own dialect.
  qint64 execute(const QString& anweisung, const QVariantList& werte);
  Leseergebnis lies(const QString& anweisung, const QVariantList& werte);
  void durchlaufe(const QString& anweisung, const QVariantList& werte,
                  const std::function<bool(const Laufzeile&)>& besucher);
  void sammelschreiben(const std::function<void()>& aktion);
  void nachFestschreiben(std::function<void()> folge);
  QString übersetzung(const QString& anweisung);
  qint64 letzteID() const;
  const std::vector<Spalte>& felder(const QString& tabelle);
  const QStringList& tabellen();

  // Runs a statement of the engine's own that writes rows, prepared once per text. Returns the
  // number of rows changed.
  qint64 schreibeRoh(const QString& sql, const QVariantList& werte);
  // Runs a setting or a control statement of the engine and gives its first value as a text. Also
  // the tests' way to a full disk (max_page_count) and to the engine's own check of the file.
  QByteArray steuere(const QByteArray& sql);

  // The open connection to a file, nullptr when this process has none.
  static Verbindung* zu(const QString& pfad);

 private:
  Dialekt::Übersetzt übersetze(const QString& text);
  bool beginntIndex(const QString& tabelle, const QString& feld);
  std::shared_ptr<Anweisung> übersetzeUndBereite(const QString& text);
  std::shared_ptr<Anweisung> bereite(const QString& text, Dialekt::Übersetzt übersetzt);
  void ermittleSpalten(Anweisung& a);
  void prüfeNeuBereitet(Anweisung& a);
  void binde(Anweisung& a, const QVariantList& werte);
  bool schritt(Anweisung& a);
  Daten liesZeilen(Anweisung& a);
  void prüfeNutzbar(const QString& anweisung) const;
  void prüfeSchreibbar(const QString& anweisung) const;
  Anweisungen::Leihe leihe(const QString& anweisung);
  static void prüfeLesend(const Anweisung& a);
  void beginne();
  std::exception_ptr laufe(const std::function<void()>& aktion);
  void schreibeFest();
  void verwirf(Datenbankfehler& fehler);
  void trenne();
  [[noreturn]] void wirf(int code, const QString& anweisung, bool beimVorbereiten = false);
  void vergiss();

  QString m_pfad;
  QString m_ort;  // the path without links and detours
  sqlite3* m_db = nullptr;
  Anweisungen m_anweisungen;  // by their text in the tables' dialect
  Anweisungen m_roh;          // by their text in the engine's
  QHash<QString, std::vector<Spalte>> m_felder;
  std::optional<QStringList> m_tabellen;
  int m_läufe = 0;  // how many visitors are on their way
  int m_tiefe = 0;  // how many Sammelschreiben are running inside one another
  // The failure with which the running Sammelschreiben was thrown away.
  std::optional<Datenbankfehler> m_verlust;
  std::vector<std::function<void()>> m_folgen;  // of the running Sammelschreiben, once committed
};
