#include "data/Datenbankdatei.h"

#include <QDir>
#include <QFile>

#include "core/globals.h"
#include "core/settings.h"
#include "data/Schemaschritte.h"
#include "data/schema.h"

using namespace TZ_Variablen;

namespace {

void tabellenAnlegen(Database& datenbank) {
  datenbank.Sammelschreiben([&] {
    for (const Tabelle& tabelle : schema()) {
      datenbank.Execute(tabelle.anlegen);
      for (const QString& index : tabelle.indexe) datenbank.Execute(index);
      for (const QString& zeile : tabelle.startwerte) datenbank.Execute(zeile);
    }
    datenbank.setSchemastand(heutigerSchemastand());
  });
}

void entfernen(const QString& pfad) {
  QFile::remove(pfad);
  QFile::remove(pfad + QStringLiteral("-journal"));
}

}  // namespace

// The file gets its name only when it is whole: what a crash leaves behind is never taken for a
// database.
void DatenbankAnlegen() {
  const QString werdend = DatenbankPfad + QStringLiteral(".neu");
  entfernen(werdend);
  try {
    Workspace bereich;
    Database neu = bereich.CreateDatabase(werdend);
    tabellenAnlegen(neu);
    neu.Close();
    bereich.Close();
  } catch (...) {
    entfernen(werdend);
    throw;
  }
  // A journal left by an earlier database of this name would be played back into the new one.
  const QString rest = DatenbankPfad + QStringLiteral("-journal");
  if ((QFile::exists(rest) && !QFile::remove(rest)) || !QFile::rename(werdend, DatenbankPfad)) {
    entfernen(werdend);
    throw Datenbankfehler(
        Datenbankfehler::Art::NurLesen,
        QStringLiteral("Die neue Datenbank \"%1\" konnte nicht angelegt werden. Bitte prüfen Sie, "
                       "ob in dem Ordner geschrieben werden darf.")
            .arg(QDir::toNativeSeparators(DatenbankPfad)));
  }
  DB = Arbeitsbereich.OpenDatabase(DatenbankPfad);
}

void SchemaErweitern() {
  schemastandPrüfen(DB);
  if (schemastand(DB) == heutigerSchemastand()) return;
  DB.Sammelschreiben([] {
    if (!schemaschritteNehmen(DB, schemaschritte())) return;
    // Before the commit: a start that is killed here takes all of it again.
    EinstellungenText[Textslots.infofenster] = QString(60, QLatin1Char('1'));
    EinstellungenSchreiben();
  });
}
