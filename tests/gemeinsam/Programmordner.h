#pragma once

#include <QTemporaryDir>

#include "core/globals.h"

// A new folder that the program takes for its own, on a day of the test's choice. Everything global
// begins anew with it and ends with it.
class Programmordner : public QTemporaryDir {
 public:
  explicit Programmordner(const QString& heute) { betrete(path(), heute); }
  ~Programmordner() {
    trenne();
    TZ_Variablen::zurücksetzen();
  }
  Programmordner(const Programmordner&) = delete;
  Programmordner& operator=(const Programmordner&) = delete;

  // The program before its start in that folder.
  static void betrete(const QString& ordner, const QString& heute) {
    TZ_Variablen::zurücksetzen();
    TZ_Variablen::AppPfad = ordner + u'/';
    TZ_Variablen::DatenbankPfad = TZ_Variablen::AppPfad + QStringLiteral("TOVA2.MDB");
    TZ_Variablen::HeuteText = heute;
  }
  static void verbinde() {
    TZ_Variablen::DB = TZ_Variablen::Arbeitsbereich.OpenDatabase(TZ_Variablen::DatenbankPfad);
  }
  static void trenne() {
    TZ_Variablen::DB.Close();
    TZ_Variablen::Arbeitsbereich.Close();
  }
};
