#include "platform/database/Helfer.h"

#include <unistd.h>

#include <QThread>
#include <cstdio>

#include "platform/database/Datenbank.h"
#include "platform/database/Verbindung.h"

namespace {

void sage(const char* wort) {
  std::puts(wort);
  std::fflush(stdout);
}

void schreibe(Database& db, int lauf) {
  db.Execute(QStringLiteral("insert into Bienenvolk (Bemerkung, Jahre) values (?, ?)"),
             {QString(2000, u'x'), lauf});
}

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

int laeufe(const QString& pfad) {
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

}  // namespace

std::optional<int> Helfer::laufe(const QStringList& argumente) {
  if (argumente.size() != 3) return std::nullopt;
  if (argumente[1] == QLatin1String("--unterbrochen")) return unterbrochen(argumente[2]);
  if (argumente[1] == QLatin1String("--laeufe")) return laeufe(argumente[2]);
  if (argumente[1] == QLatin1String("--ohne-rechte")) return ohneRechte(argumente[2]);
  return std::nullopt;
}
