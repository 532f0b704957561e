#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <optional>

#include "platform/database/Datenbank.h"
#include "platform/database/Recordset.h"
#include "platform/database/verbindung/Verbindung.h"

// A database with a colony table of all field types, in a folder of its own.
class Testdatenbank : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(m_ordner.isValid());
    db = arbeitsbereich.CreateDatabase(pfad());
    db.Execute(QStringLiteral(
        "create table Bienenvolk (Volkname TEXT (20), Bemerkung MEMO, Wabenanzahl SHORT, Jahre "
        "LONG, Menge_kg SINGLE, Preis CURRENCY, Datum DATETIME, Akt_im_Bestand TEXT (1), ID "
        "COUNTER)"));
  }

  QString pfad() const { return m_ordner.filePath(QStringLiteral("TOVA2.MDB")); }
  QString imOrdner(const QString& name) const { return m_ordner.filePath(name); }
  QStringList dateien() const {
    return QDir(m_ordner.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
  }
  Verbindung& verbindung() const { return *Verbindung::zu(pfad()); }
  qint64 anzahl(const QString& bedingung = {}) {
    return db.Lesen(QStringLiteral("select count(*) from Bienenvolk ") + bedingung)->ganzzahl(0, 0);
  }
  QVariant einWert(const QString& anweisung, const QVariantList& werte = {}) {
    const Daten daten = db.Lesen(anweisung, werte);
    EXPECT_EQ(daten->zeilen(), 1) << anweisung.toStdString();
    return daten->zeilen() == 1 ? daten->wert(0, 0) : QVariant();
  }
  // Writes one colony of this name and gives its ID.
  qint64 volk(const QString& name) {
    db.Execute(QStringLiteral("insert into Bienenvolk (Volkname) values (?)"), {name});
    return db.LetzteID();
  }

  QTemporaryDir m_ordner;
  Workspace arbeitsbereich;
  Database db;
};

inline QByteArray dateiinhalt(const QString& pfad) {
  QFile datei(pfad);
  EXPECT_TRUE(datei.open(QIODevice::ReadOnly)) << pfad.toStdString();
  return datei.readAll();
}

inline void schreibeDatei(const QString& pfad, const QByteArray& inhalt) {
  QFile datei(pfad);
  ASSERT_TRUE(datei.open(QIODevice::WriteOnly)) << pfad.toStdString();
  ASSERT_EQ(datei.write(inhalt), inhalt.size());
}

// The failure that an action throws; none when it doesn't.
template <class Aktion>
std::optional<Datenbankfehler> fehlerVon(Aktion aktion) {
  try {
    aktion();
  } catch (const Datenbankfehler& fehler) {
    return fehler;
  }
  return std::nullopt;
}

#define ERWARTE_FEHLER(aktion, erwarteteArt, teil)                                   \
  do {                                                                               \
    const auto fehler = fehlerVon([&] { aktion; });                                  \
    ASSERT_TRUE(fehler.has_value()) << "no failure: " #aktion;                       \
    EXPECT_EQ(fehler->art(), Datenbankfehler::Art::erwarteteArt) << fehler->what();  \
    EXPECT_TRUE(fehler->text().contains(QString::fromUtf8(teil))) << fehler->what(); \
  } while (false)
