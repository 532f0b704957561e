// What this test program does as a second process.

#include <unistd.h>

#include <QThread>
#include <cstdio>

#include "gemeinsam/Nebenprogramm.h"
#include "platform/database/Datenbank.h"
#include "platform/database/verbindung/Verbindung.h"

namespace {

void sage(const char* wort) {
  std::puts(wort);
  std::fflush(stdout);
}

void schreibe(Database& db, int lauf) {
  db.Execute(QStringLiteral("insert into Bienenvolk (Bemerkung, Jahre) values (?, ?)"),
             {QString(2000, u'x'), lauf});
}

// Writes 150 of 300 rows of one action, through a cache so small that they reach the file, says
// "halb" and waits to be killed.
int unterbrochen(const QString& pfad) {
  Workspace arbeitsbereich;
  Database db = arbeitsbereich.OpenDatabase(pfad);
  Verbindung::zu(pfad)->steuere("pragma cache_size = 5");
  db.Sammelschreiben([&] {
    for (int i = 0; i < 300; ++i) {
      if (i == 150) {
        sage("halb");
        QThread::sleep(60);
      }
      schreibe(db, 1);
    }
  });
  return 0;
}

// Changes all rows of one action in their place, through a small cache, says "halb" and waits to be
// killed.
int geändert(const QString& pfad) {
  Workspace arbeitsbereich;
  Database db = arbeitsbereich.OpenDatabase(pfad);
  Verbindung::zu(pfad)->steuere("pragma cache_size = 5");
  db.Sammelschreiben([&] {
    db.Execute(QStringLiteral("update Bienenvolk set Jahre = 9"));
    sage("halb");
    QThread::sleep(60);
  });
  return 0;
}

// Says "los" and writes actions of 300 rows, one after the other, until killed.
int läufe(const QString& pfad) {
  Workspace arbeitsbereich;
  Database db = arbeitsbereich.OpenDatabase(pfad);
  int lauf = static_cast<int>(
      db.Lesen(QStringLiteral("select max(Jahre) from Bienenvolk"))->ganzzahl(0, 0));
  sage("los");
  for (;;) {
    ++lauf;
    db.Sammelschreiben([&] {
      for (int i = 0; i < 300; ++i) schreibe(db, lauf);
    });
  }
}

// Opens the file as a user without rights; says the kind of failure ("nurlesen", "keine", "anders")
// or "offen".
int ohneRechte(const QString& pfad) {
  constexpr uid_t niemand = 65534;
  if (geteuid() == 0 && (setgid(niemand) != 0 || setuid(niemand) != 0)) return 1;
  try {
    Workspace arbeitsbereich;
    arbeitsbereich.OpenDatabase(pfad);
    sage("offen");
  } catch (const Datenbankfehler& fehler) {
    const bool nurLesen = fehler.art() == Datenbankfehler::Art::NurLesen;
    const bool keine = fehler.art() == Datenbankfehler::Art::KeineDatenbank;
    sage(nurLesen ? "nurlesen" : (keine ? "keine" : "anders"));
    sage(fehler.what());
  }
  return 0;
}

// Behind the word stands the file.
Nebenprogramm::Aufgabe mitDatei(int (*aufgabe)(const QString&)) {
  return [aufgabe](const QStringList& argumente) { return aufgabe(argumente.value(0)); };
}

const Nebenprogramm programme[] = {{"--unterbrochen", mitDatei(unterbrochen)},
                                   {"--geaendert", mitDatei(geändert)},
                                   {"--laeufe", mitDatei(läufe)},
                                   {"--ohne-rechte", mitDatei(ohneRechte)}};

}  // namespace
