#include "output/Excelausgabe.h"

#include <QDir>
#include <algorithm>

#include "core/globals.h"
#include "output/Zelltext.h"
#include "platform/files/Tabellenblatt.h"
#include "platform/files/Textdatei.h"

namespace {

using Form = Tabellenblatt::Form;

constexpr int Schritt = 500;          // rows between two reports of progress
constexpr int GemesseneZeilen = 500;  // for the widths
constexpr qsizetype KleinsteBreite = 8;
constexpr qsizetype GrößteBreite = 50;

// Control characters can't stand in a sheet, besides tab and line breaks.
void bereinigt(std::string& text) {
  std::erase_if(text, [](char c) {
    return static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\n' && c != '\r';
  });
}

std::string bereinigt(const QString& text) {
  std::string utf8 = text.toStdString();
  bereinigt(utf8);
  return utf8;
}

// Which of the first columns hold numbers alone: at least one, and no text in any row but the
// separators.
std::vector<bool> zahlenspalten(const Ausgabeliste& liste) {
  const int spalten = std::min(liste.spalten(), Ausgabeliste::MaxSpalten);
  std::vector<bool> hatZahl(static_cast<size_t>(spalten), false);
  std::vector<bool> hatText(static_cast<size_t>(spalten), false);
  const Datenblock& block = *liste.daten();
  for (int zeile = 0; zeile < liste.zeilen(); ++zeile) {
    if (liste.istTrennzeile(zeile)) continue;
    const int b = liste.blockzeile(zeile);
    for (int i = 0; i < spalten; ++i) {
      const auto nummer = static_cast<size_t>(i);
      if (hatText[nummer] || block.istNull(b, i)) continue;
      if (Zelltext::zahl(block, b, i))
        hatZahl[nummer] = true;
      else if (!block.istText(b, i) || !block.rohtext(b, i).isEmpty())
        hatText[nummer] = true;
    }
  }
  for (size_t i = 0; i < hatZahl.size(); ++i) hatZahl[i] = hatZahl[i] && !hatText[i];
  hatZahl.resize(static_cast<size_t>(liste.spalten()), false);
  return hatZahl;
}

double breite(const Ausgabeliste& liste, int spalte, bool zahlen) {
  constexpr qsizetype Zahlenzusatz = 4;  // groups and decimals
  qsizetype länge = liste.überschrift(spalte).size();
  for (int i = 0; i < std::min(liste.zeilen(), GemesseneZeilen); ++i)
    länge = std::max(länge, liste.daten()->anzeige(liste.blockzeile(i), spalte).size() +
                                (zahlen ? Zahlenzusatz : 0));
  return static_cast<double>(std::clamp(länge, KleinsteBreite, GrößteBreite)) + 2;
}

class Schreiber {
 public:
  Schreiber(Tabellenblatt& blatt, const Ausgabeliste& liste)
      : m_blatt(blatt), m_liste(liste), m_zahlen(zahlenspalten(liste)) {}

  void spalten() {
    for (int i = 0; i < m_liste.spalten(); ++i)
      m_blatt.setSpalte(i, breite(m_liste, i, istZahl(i)),
                        istZahl(i) ? Form::Zahl : Form::Standard);
  }

  void kopf(const Listenkopf& kopf) {
    if (!kopf.datum.isEmpty()) {
      m_blatt.text(m_zeile, 0, bereinigt(kopf.datum).c_str(), Form::Links);
      m_zeile += kopf.kopftext.isEmpty() ? 1 : 2;
    }
    if (!kopf.kopftext.isEmpty()) {
      m_blatt.text(m_zeile, 0, bereinigt(kopf.kopftext).c_str(), Form::Links);
      m_zeile += 2;
    }
    for (int i = 0; i < m_liste.spalten(); ++i)
      m_blatt.text(m_zeile, i, bereinigt(m_liste.überschrift(i)).c_str(),
                   istZahl(i) ? Form::FettRechts : Form::Fett);
    m_blatt.setKopfzeile(m_zeile++);
  }

  void zeile(int nummer) {
    const int block = m_liste.blockzeile(nummer);
    for (int i = 0; i < m_liste.spalten(); ++i) zelle(block, i);
    ++m_zeile;
  }

 private:
  bool istZahl(int spalte) const { return m_zahlen[static_cast<size_t>(spalte)]; }

  void zelle(int block, int spalte) {
    const Datenblock& daten = *m_liste.daten();
    if (daten.istNull(block, spalte)) return;
    if (const auto zahl = Zelltext::zahl(daten, block, spalte)) {
      m_blatt.zahl(m_zeile, spalte, *zahl, istZahl(spalte) ? Form::Zahl : Form::Standard);
      return;
    }
    m_text.clear();
    Zelltext::anhängen(m_text, daten, block, spalte);
    bereinigt(m_text);
    if (m_text.empty()) return;
    m_blatt.text(m_zeile, spalte, m_text.c_str(), istZahl(spalte) ? Form::Rechts : Form::Standard);
  }

  Tabellenblatt& m_blatt;
  const Ausgabeliste& m_liste;
  std::vector<bool> m_zahlen;
  std::string m_text;
  int m_zeile = 0;
};

void größePrüfen(const Ausgabeliste& liste) {
  constexpr int Kopfzeilen = 5;
  if (liste.spalten() > Tabellenblatt::MaxSpalten ||
      liste.zeilen() > Tabellenblatt::MaxZeilen - Kopfzeilen)
    throw Dateifehler(
        QStringLiteral("Die Liste hat %1 Zeilen und %2 Spalten. Das ist mehr, als in eine Tabelle "
                       "passt. Bitte schränken Sie die Auswertung ein.")
            .arg(liste.zeilen())
            .arg(liste.spalten()));
}

}  // namespace

namespace Excelausgabe {

QString datei() { return TZ_Variablen::AppPfad + QStringLiteral("tova_liste.xlsx"); }

void schreiben(const QString& pfad, const Ausgabeliste& liste, const Listenkopf& kopf,
               const Fortschritt& fortschritt) {
  größePrüfen(liste);
  Tabellenblatt blatt(pfad, QStringLiteral("Liste"));
  Schreiber schreiber(blatt, liste);
  schreiber.spalten();
  schreiber.kopf(kopf);
  for (int i = 0; i < liste.zeilen(); ++i) {
    schreiber.zeile(i);
    if (fortschritt && i % Schritt == 0) fortschritt(i, liste.zeilen());
  }
  blatt.speichern();
}

}  // namespace Excelausgabe
