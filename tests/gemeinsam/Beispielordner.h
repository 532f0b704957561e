#pragma once

#include <QFile>
#include <QTemporaryDir>

#include "Betrieb.h"
#include "core/settings.h"
#include "gemeinsam/Programmordner.h"
#include "platform/locale/Deutsch.h"

// A program folder with a copy of the sample operation, open as DB. The operation is made once for
// a test program; each test has a copy of its own.
class Beispielordner {
 public:
  static constexpr const char* Heute = "15.06.2026";

  Beispielordner() : m_muster(muster()), m_ordner(QString::fromLatin1(Heute)) {
    for (const char* datei : {"TOVA2.MDB", "Einstellungen.TV2"})
      if (!QFile::copy(m_muster.filePath(datei), TZ_Variablen::AppPfad + datei))
        qFatal("%s ist nicht zu kopieren.", datei);
    Programmordner::verbinde();
    EinstellungenLesen();
  }

  QString path() const { return m_ordner.path(); }
  // The database file as it lies there.
  static QByteArray dateibytes() {
    QFile datei(TZ_Variablen::DatenbankPfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
  }

 private:
  static const QTemporaryDir& muster() {
    static const QTemporaryDir ordner;
    static const bool angelegt = [] {
      Betriebsgröße größe;
      größe.heute = Deutsch::datum(QString::fromLatin1(Heute)).value();
      betriebAnlegen(ordner.path(), größe);
      Programmordner::trenne();
      return true;
    }();
    Q_UNUSED(angelegt);
    return ordner;
  }

  const QTemporaryDir& m_muster;  // made before the folder, since making it changes all globals
  Programmordner m_ordner;
};
