#include <QDir>
#include <QFile>

#include "core/globals.h"
#include "core/settings.h"
#include "data/schema.h"
#include "platform/database/Recordset.h"

using namespace TZ_Variablen;

namespace {

void tabellenAnlegen(Database& datenbank) {
  datenbank.Sammelschreiben([&] {
    for (const Tabelle& tabelle : schema()) {
      datenbank.Execute(tabelle.anlegen);
      for (const QString& index : tabelle.indexe) datenbank.Execute(index);
      for (const QString& zeile : tabelle.startwerte) datenbank.Execute(zeile);
    }
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

namespace {

// What databases of earlier versions lack. Each step runs by itself, in this order.
QStringList erweiterungen() {
  QStringList schritte = {
      QStringLiteral("ALTER TABLE Bienenvolk ADD COLUMN Futterwaben INTEGER"),
      QStringLiteral("UPDATE Bienenvolk SET Futterwaben = 0"),
      QStringLiteral("ALTER TABLE Bienenvolk ADD COLUMN HW_verdeckelt INTEGER"),
      QStringLiteral("UPDATE Bienenvolk SET HW_verdeckelt = 0"),
      QStringLiteral("ALTER TABLE Bienenvolk ADD COLUMN BW_Stift INTEGER"),
      QStringLiteral("UPDATE Bienenvolk SET BW_Stift = 0"),
      QStringLiteral("ALTER TABLE Bienenvolk ADD COLUMN BW_offen INTEGER"),
      QStringLiteral("UPDATE Bienenvolk SET BW_offen = 0"),
      QStringLiteral("ALTER TABLE Bienenvolk ADD COLUMN BW_verdeckelt INTEGER"),
      QStringLiteral("UPDATE Bienenvolk SET BW_verdeckelt = 0"),
      QStringLiteral("ALTER TABLE Bienenvolk ADD COLUMN Belegstelle TEXT (20)"),
      QStringLiteral("create index volk13 on Bienenvolk(Belegstelle)"),
      QStringLiteral("UPDATE Bienenvolk SET Belegstelle = ''"),
      QStringLiteral("ALTER TABLE Bienenvolk ADD COLUMN Zuchtbuchnr TEXT (15)"),
      QStringLiteral("UPDATE Bienenvolk SET Zuchtbuchnr = ''"),
      QStringLiteral("ALTER TABLE Bienenvolk ADD COLUMN Waben_je_Magazin INTEGER"),
      QStringLiteral("UPDATE Bienenvolk SET Waben_je_Magazin = '%1'").arg(EinstellungenZahl[56]),
      QStringLiteral("ALTER TABLE Stockkarte ADD COLUMN Futterwaben INTEGER"),
      QStringLiteral("UPDATE Stockkarte SET Futterwaben = 0"),
      QStringLiteral("ALTER TABLE Stockkarte ADD COLUMN HW_verdeckelt INTEGER"),
      QStringLiteral("UPDATE Stockkarte SET HW_verdeckelt = 0"),
      QStringLiteral("ALTER TABLE Stockkarte ADD COLUMN BW_Stift INTEGER"),
      QStringLiteral("UPDATE Stockkarte SET BW_Stift = 0"),
      QStringLiteral("ALTER TABLE Stockkarte ADD COLUMN BW_offen INTEGER"),
      QStringLiteral("UPDATE Stockkarte SET BW_offen = 0"),
      QStringLiteral("ALTER TABLE Stockkarte ADD COLUMN BW_verdeckelt INTEGER"),
      QStringLiteral("UPDATE Stockkarte SET BW_verdeckelt = 0"),
      QStringLiteral("ALTER TABLE Standorte ADD COLUMN PTop LONG"),
      QStringLiteral("UPDATE Standorte SET PTop = 250"),
      QStringLiteral("ALTER TABLE Standorte ADD COLUMN PLeft LONG"),
      QStringLiteral("UPDATE Standorte SET PLeft = 0"),
  };
  // The seals are a table of their own, the last one of the schema.
  const Tabelle& verschluss = schema().last();
  schritte << verschluss.anlegen << verschluss.indexe;
  schritte << QStringLiteral("ALTER TABLE Honigernte ADD COLUMN Charge TEXT (15)")
           << QStringLiteral("create index honigernte10 on Honigernte(Charge)")
           << QStringLiteral("UPDATE Honigernte SET Charge = ''");
  return schritte;
}

bool istAktuell() {
  Recordset volk = DB.OpenRecordset(QStringLiteral("select top 1 * from Bienenvolk"));
  for (int i = 0; i < volk.FieldCount(); ++i)
    if (volk.Fields(i).Name() == QLatin1String("Futterwaben")) return true;
  return false;
}

}  // namespace

void SchemaErweitern() {
  if (istAktuell()) return;
  for (const QString& schritt : erweiterungen()) DB.Execute(schritt);
  EinstellungenText[24] = QString(60, QLatin1Char('1'));
  EinstellungenSchreiben();
}
