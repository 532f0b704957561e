#pragma once

#include <QString>
#include <memory>

// A workbook of one sheet, written from top to bottom: a row must not be touched any more once one
// below it has been begun. Rows and columns count from 0. Failures throw Dateifehler.
class Tabellenblatt {
 public:
  static constexpr int MaxZeilen = 1048576;
  static constexpr int MaxSpalten = 16384;
  static constexpr int MaxText = 32767;  // characters of a cell; more are cut off

  enum class Form {
    Standard,
    Fett,
    FettRechts,
    Links,
    Rechts,
    Zahl,  // right-aligned, "#,##0.00"
    Anzahl
  };

  // Nothing stands in the file before speichern().
  explicit Tabellenblatt(const QString& pfad, const QString& blattname);
  ~Tabellenblatt();
  Tabellenblatt(const Tabellenblatt&) = delete;
  Tabellenblatt& operator=(const Tabellenblatt&) = delete;

  // zeichen: width in characters. form holds for the cells of the column that nothing is written
  // to.
  void setSpalte(int spalte, double zeichen, Form form);
  // The rows down to this one, with it, stay in sight while the others are scrolled.
  void setKopfzeile(int zeile);
  void text(int zeile, int spalte, const char* utf8, Form form);
  void zahl(int zeile, int spalte, double wert, Form form);
  // Whole or not at all; a previous file is replaced.
  void speichern();

 private:
  struct Innen;
  std::unique_ptr<Innen> m_innen;
};
