#include "output/Webbericht.h"

#include <QDir>
#include <QFile>
#include <algorithm>

#include "core/globals.h"
#include "output/Zelltext.h"
#include "platform/files/Dateischreiber.h"
#include "platform/files/Textdatei.h"

namespace {

constexpr int Schritt = 1000;  // rows between two reports of progress

constexpr size_t LangerText = 32;  // bytes; shorter texts stay on one line on the screen

constexpr std::string_view Aussehen = R"css(
:root { color-scheme: light; --schrift: #26221a; --honig: #b97a00; --linie: #ded6c4; }
* { box-sizing: border-box; }
body { margin: 0; padding: 1.5rem 2rem; background: #fbf8f1; color: var(--schrift);
  font: 15px/1.45 "Segoe UI", "Noto Sans", "DejaVu Sans", Arial, sans-serif; }
h1 { margin: 0 0 1rem; font-size: 1.35rem; font-weight: 600; white-space: pre-wrap; }
table { border-collapse: collapse; background: #fff; font-variant-numeric: tabular-nums;
  box-shadow: 0 1px 4px rgba(60, 45, 0, .18); }
th, td { padding: .35rem .7rem; text-align: left; vertical-align: top; white-space: pre-wrap;
  border-bottom: 1px solid var(--linie); overflow-wrap: break-word; min-width: 3rem; }
th { position: sticky; top: 0; background: #f6e3b4; border-bottom: 2px solid var(--honig);
  font-weight: 600; overflow-wrap: normal; }
td { max-width: 32rem; white-space: pre; }
td.l { min-width: 14rem; white-space: pre-wrap; }
.z { text-align: right; white-space: nowrap; }
tbody tr:nth-child(even) td { background: #fdfaf2; }
tbody tr:hover td { background: #fff1cc; }
tr.trenner td { background: #f3ecdc; height: 1.2rem; }
nav { margin: 1rem 0; }
nav ul { display: flex; flex-wrap: wrap; gap: .3rem; margin: 0; padding: 0; list-style: none; }
nav a, nav span { display: block; padding: .25rem .65rem; border: 1px solid var(--linie);
  border-radius: 4px; background: #fff; color: #7a4f00; text-decoration: none; }
nav a:hover, nav a:focus { border-color: var(--honig); background: #fff1cc; }
nav [aria-current] { background: var(--honig); border-color: var(--honig); color: #fff; }
nav span.luecke { border-color: transparent; background: none; }
footer { margin-top: 1rem; color: #6b6353; }
footer p { margin: .2rem 0; }
@media print {
  @page { margin: 14mm; }
  body { padding: 0; background: none; color: #000; font-size: 9pt; }
  nav { display: none; }
  table { box-shadow: none; width: 100%; }
  thead { display: table-header-group; }
  th { position: static; background: #eee; border-bottom: 1.5pt solid #000; }
  th, td { padding: 1.5pt 4pt; border-bottom-color: #999; }
  td, td.l { min-width: 0; white-space: pre-wrap; }
  tr { break-inside: avoid; }
  tbody tr:nth-child(even) td, tr.trenner td { background: none; }
  footer { color: #000; }
}
)css";

// Text for an HTML page; control characters that mustn't stand there are left out.
void html(std::string& ziel, std::string_view text) {
  for (const char c : text) {
    switch (c) {
      case '&':
        ziel += "&amp;";
        break;
      case '<':
        ziel += "&lt;";
        break;
      case '>':
        ziel += "&gt;";
        break;
      case '"':
        ziel += "&quot;";
        break;
      default: {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte >= ' ' && byte != 0x7F) || c == '\n' || c == '\t') ziel += c;
      }
    }
  }
}

std::string html(const QString& text) {
  std::string ziel;
  html(ziel, text.toStdString());
  return ziel;
}

std::string dateiname(int seite) {
  return seite == 1 ? "report.htm" : "report-" + std::to_string(seite) + ".htm";
}

class Bericht {
 public:
  Bericht(const Ausgabeliste& liste, const Webbericht::Vorgaben& vorgaben)
      : m_liste(liste), m_vorgaben(vorgaben) {
    m_zeilenJeSeite =
        vorgaben.zeilenJeSeite > 0 ? vorgaben.zeilenJeSeite : std::max(liste.zeilen(), 1);
    m_seiten = std::max(1, (liste.zeilen() + m_zeilenJeSeite - 1) / m_zeilenJeSeite);
    for (int i = 0; i < liste.spalten(); ++i)
      m_kopfzellen += (rechts(i) ? "<th scope=\"col\" class=\"z\">" : "<th scope=\"col\">") +
                      html(liste.überschrift(i)) + "</th>";
  }

  int seiten() const { return m_seiten; }

  void seite(const QString& ordner, int nummer, const Fortschritt& fortschritt) {
    Dateischreiber datei(ordner + QString::fromStdString(dateiname(nummer)));
    std::string& z = datei.puffer();
    kopf(z, nummer);
    z += "<table>\n<thead><tr>" + m_kopfzellen + "</tr></thead>\n<tbody>\n";
    const int bis = std::min(m_liste.zeilen(), nummer * m_zeilenJeSeite);
    for (int i = (nummer - 1) * m_zeilenJeSeite; i < bis; ++i) {
      zeile(z, i);
      datei.weiter();
      if (fortschritt && i % Schritt == 0) fortschritt(i, m_liste.zeilen());
    }
    z += "</tbody>\n</table>\n";
    fuß(z, nummer);
    datei.fertig();
  }

 private:
  // The heading of a column stands on the right when its first cell does.
  bool rechts(int spalte) const {
    for (int i = 0; i < m_liste.zeilen(); ++i) {
      const int block = m_liste.blockzeile(i);
      if (m_liste.istTrennzeile(i) || m_liste.daten()->istNull(block, spalte)) continue;
      return Zelltext::zahl(*m_liste.daten(), block, spalte).has_value();
    }
    return false;
  }

  void kopf(std::string& z, int nummer) const {
    const std::string titel = html(m_vorgaben.titel);
    z += "<!DOCTYPE html>\n<html lang=\"de\">\n<head>\n<meta charset=\"utf-8\">\n"
         "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>";
    z += titel.empty() ? "TOVA 2.0 - Liste" : titel;
    z += "</title>\n<style>";
    z += Aussehen;
    z += "</style>\n</head>\n<body>\n";
    if (!titel.empty()) z += "<h1>" + titel + "</h1>\n";
    seitenwahl(z, nummer, "oben");
  }

  void fuß(std::string& z, int nummer) const {
    seitenwahl(z, nummer, "unten");
    const bool seitenzeile = m_vorgaben.seitenzeile && m_seiten > 1;
    const bool anzahlzeile = m_vorgaben.anzahlzeile && nummer == m_seiten;
    if (seitenzeile || anzahlzeile) {
      z += "<footer>\n";
      if (anzahlzeile)
        z +=
            "<p class=\"anzahl\">Anzahl Datensätze: " + std::to_string(m_liste.zeilen()) + "</p>\n";
      if (seitenzeile)
        z += "<p class=\"seite\">Seite " + std::to_string(nummer) + " von " +
             std::to_string(m_seiten) + "</p>\n";
      z += "</footer>\n";
    }
    z += "</body>\n</html>\n";
  }

  void verweis(std::string& z, int seite, const std::string& text) const {
    z += "<li><a href=\"" + dateiname(seite) + "\">" + text + "</a></li>\n";
  }

  // First, last and the pages around this one.
  void seitenwahl(std::string& z, int nummer, const std::string& wo) const {
    if (m_seiten == 1) return;
    constexpr int Nachbarn = 3;
    z += "<nav aria-label=\"Seiten " + wo + "\"><ul>\n";
    if (nummer > 1) verweis(z, nummer - 1, "Zurück");
    int letzte = 0;
    for (int i = 1; i <= m_seiten; ++i) {
      if (i != 1 && i != m_seiten && std::abs(i - nummer) > Nachbarn) continue;
      if (i != letzte + 1) z += "<li><span class=\"luecke\">…</span></li>\n";
      letzte = i;
      if (i == nummer)
        z += "<li><span aria-current=\"page\">" + std::to_string(i) + "</span></li>\n";
      else
        verweis(z, i, std::to_string(i));
    }
    if (nummer < m_seiten) verweis(z, nummer + 1, "Weiter");
    z += "</ul></nav>\n";
  }

  void zeile(std::string& z, int nummer) {
    const Datenblock& daten = *m_liste.daten();
    const int block = m_liste.blockzeile(nummer);
    const bool trenner = m_liste.istTrennzeile(nummer);
    z += trenner ? "<tr class=\"trenner\">" : "<tr>";
    for (int i = 0; i < m_liste.spalten(); ++i) {
      m_text.clear();
      // The point of a separator row is a mark for the program only.
      if (!trenner || i > 0) Zelltext::anhängen(m_text, daten, block, i);
      z += Zelltext::zahl(daten, block, i) ? "<td class=\"z\">"
           : m_text.size() > LangerText    ? "<td class=\"l\">"
                                           : "<td>";
      html(z, m_text);
      z += "</td>";
    }
    z += "</tr>\n";
  }

  const Ausgabeliste& m_liste;
  const Webbericht::Vorgaben& m_vorgaben;
  int m_zeilenJeSeite;
  int m_seiten;
  std::string m_kopfzellen;
  std::string m_text;
};

void alteSeitenLöschen(const QString& ordner) {
  const QDir verzeichnis(ordner);
  for (const QString& name :
       verzeichnis.entryList({QStringLiteral("report-*.htm")}, QDir::Files | QDir::Hidden)) {
    const QString pfad = verzeichnis.filePath(name);
    if (!QFile::remove(pfad) && QFile::exists(pfad)) Textdatei::schreibfehler(pfad);
  }
}

}  // namespace

namespace Webbericht {

Vorgaben vorgaben() {
  using namespace TZ_Variablen;
  Vorgaben v;
  const Listenkopf kopf = listenkopf();
  if (!kopf.datum.isEmpty()) v.titel = kopf.datum + QStringLiteral("   ");
  v.titel += kopf.kopftext;
  v.zeilenJeSeite = EinstellungenZahl[Zahlslots.webzeilen];
  v.seitenzeile = EinstellungenZahl[Zahlslots.seitenzeile] == 1;
  v.anzahlzeile = EinstellungenZahl[Zahlslots.anzahlzeile] == 1;
  return v;
}

QString schreiben(const QString& ordner, const Ausgabeliste& liste, const Vorgaben& vorgaben,
                  const Fortschritt& fortschritt) {
  alteSeitenLöschen(ordner);
  Bericht bericht(liste, vorgaben);
  for (int seite = 1; seite <= bericht.seiten(); ++seite) bericht.seite(ordner, seite, fortschritt);
  return ordner + QStringLiteral("report.htm");
}

}  // namespace Webbericht
