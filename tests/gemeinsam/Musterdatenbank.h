#pragma once

#include <QFile>
#include <functional>
#include <tuple>

#include "data/Datenbankdatei.h"
#include "gemeinsam/Programmordner.h"

// A database that a test program makes once; each test gets a copy of the file. It is the one of a
// first start and what the filling, which finds it open as DB, puts into it.
class Musterdatenbank {
 public:
  explicit Musterdatenbank(std::function<void()> füllen = {}) : m_füllen(std::move(füllen)) {}

  // A copy in the program folder, open as DB.
  void kopieren() {
    if (!QFile::exists(muster())) anlegen();
    if (!QFile::copy(muster(), TZ_Variablen::DatenbankPfad))
      qFatal("%s ist nicht zu kopieren.", qPrintable(muster()));
    Programmordner::verbinde();
  }

 private:
  QString muster() const { return m_ordner.filePath(QStringLiteral("TOVA2.MDB")); }
  // What the filling does to paths and settings ends with it.
  void anlegen() const {
    using namespace TZ_Variablen;
    const auto vorher =
        std::tuple(AppPfad, DatenbankPfad, EinstellungenZahl, EinstellungenWert, EinstellungenText);
    AppPfad = m_ordner.path() + u'/';
    DatenbankPfad = muster();
    DatenbankAnlegen();
    if (m_füllen) m_füllen();
    Programmordner::trenne();
    std::tie(AppPfad, DatenbankPfad, EinstellungenZahl, EinstellungenWert, EinstellungenText) =
        vorher;
  }

  QTemporaryDir m_ordner;
  std::function<void()> m_füllen;
};

// The database of a first start in the program folder, open as DB.
inline void leereDatenbank() {
  static Musterdatenbank muster;
  muster.kopieren();
}
