#include "evaluations/Listengenerator.h"

#include <QHash>
#include <array>

#include "core/globals.h"
#include "data/helpers.h"
#include "output/Textausgabe.h"
#include "output/Zelltext.h"
#include "platform/files/Textdatei.h"

using TZ_Variablen::AppPfad;
using TZ_Variablen::CRLF;

namespace Listengenerator {

namespace {

// A piece of a line: a text or, with a field, a placeholder.
struct Stück {
  QString text;
  const Datenfeld* feld = nullptr;
};
using Zeile = QList<Stück>;

const Datenfeld* feldAn(QStringView rest) {
  for (const Datenfeld& feld : datenfelder())
    if (rest.startsWith(feld.platzhalter)) return &feld;
  return nullptr;
}

Zeile zerlegt(const QString& zeile) {
  Zeile stücke;
  qsizetype textanfang = 0;
  for (qsizetype i = zeile.indexOf(u'{'); i >= 0; i = zeile.indexOf(u'{', i)) {
    const Datenfeld* feld = feldAn(QStringView(zeile).mid(i));
    if (feld == nullptr) {
      ++i;
      continue;
    }
    stücke.append({zeile.mid(textanfang, i - textanfang), nullptr});
    stücke.append({feld->platzhalter, feld});
    i += feld->platzhalter.size();
    textanfang = i;
  }
  stücke.append({zeile.mid(textanfang), nullptr});
  return stücke;
}

// The rows of a table that belong to some colonies: of Bienenvolk one each, of a booking table the
// newest two, on one day the one with the lowest ID first.
class Volkzeilen {
 public:
  Volkzeilen() = default;
  Volkzeilen(Database& db, const QString& tabelle, const QList<qint64>& völker) {
    const bool stamm = tabelle == u"Bienenvolk";
    const QString schlüssel = stamm ? QStringLiteral("ID") : QStringLiteral("Volk_ID");
    QStringList fragezeichen(völker.size(), QStringLiteral("?"));
    QVariantList werte(völker.begin(), völker.end());
    m_daten = db.Lesen(QStringLiteral("select * from ") + tabelle + QStringLiteral(" where ") +
                           schlüssel + QStringLiteral(" in (") + fragezeichen.join(u',') + u')' +
                           (stamm ? QString() : QStringLiteral(" order by Datum DESC, ID")),
                       werte);
    const int spalte = m_daten->spaltenNummer(schlüssel);
    for (int zeile = 0; zeile < m_daten->zeilen(); ++zeile) {
      Zeilen& zeilen = m_zeilen[m_daten->ganzzahl(zeile, spalte)];
      if (zeilen.anzahl < zeilen.nummern.size()) zeilen.nummern[zeilen.anzahl++] = zeile;
    }
  }

  bool hat(qint64 volk) const { return m_zeilen.contains(volk); }
  // As a list shows it; empty without such a row.
  QString wert(qint64 volk, const Datenfeld& feld) const {
    const Zeilen zeilen = m_zeilen.value(volk);
    const auto stelle = static_cast<size_t>(feld.buchung);
    if (stelle >= zeilen.anzahl) return {};
    return TextLesen(m_daten->anzeige(zeilen.nummern[stelle], m_daten->spaltenNummer(feld.feld)));
  }

 private:
  struct Zeilen {
    std::array<int, 2> nummern{};
    size_t anzahl = 0;
  };
  Daten m_daten;
  QHash<qint64, Zeilen> m_zeilen;
};

using Tabellen = QHash<QString, Volkzeilen>;

QString ausgefüllt(const Zeile& zeile, qint64 volk, const Tabellen& tabellen) {
  QString text;
  for (const Stück& stück : zeile)
    text += stück.feld == nullptr
                ? stück.text
                : gesetzt(tabellen.constFind(stück.feld->tabelle)->wert(volk, *stück.feld),
                          static_cast<int>(stück.text.size()));
  return text;
}

// Bienenvolk in any case: it says which colonies there are.
QStringList gebrauchteTabellen(const QList<Zeile>& vorlage) {
  QStringList namen = {QStringLiteral("Bienenvolk")};
  for (const Zeile& zeile : vorlage)
    for (const Stück& stück : zeile)
      if (stück.feld != nullptr && !namen.contains(stück.feld->tabelle))
        namen += stück.feld->tabelle;
  return namen;
}

}  // namespace

QString gesetzt(const QString& wert, int breite) {
  return Zelltext::zahl(wert.toUtf8()) ? TextRechts(wert, breite) : TextLinks(wert, breite);
}

QString eintrag(const Datenfeld& feld) {
  return feld.bezeichnung + QStringLiteral(" -> ") + feld.platzhalter;
}

QStringList zeilen(Database& db, const QStringList& vorlage, const QList<qint64>& völker,
                   int jeSeite) {
  constexpr qsizetype AufEinmal = 250;  // colonies whose bookings are held at the same time
  QList<Zeile> stücke;
  for (const QString& zeile : vorlage) stücke.append(zerlegt(zeile));
  const QStringList namen = gebrauchteTabellen(stücke);

  QStringList ausgabe;
  int aufSeite = 0;
  for (qsizetype anfang = 0; anfang < völker.size(); anfang += AufEinmal) {
    const QList<qint64> gruppe = völker.mid(anfang, AufEinmal);
    Tabellen tabellen;
    for (const QString& name : namen) tabellen[name] = Volkzeilen(db, name, gruppe);
    for (const qint64 volk : gruppe) {
      if (!tabellen[namen.first()].hat(volk)) continue;
      for (const Zeile& zeile : stücke) ausgabe += ausgefüllt(zeile, volk, tabellen);
      if (++aufSeite != jeSeite) continue;
      ausgabe += QStringLiteral("#");
      aufSeite = 0;
    }
  }
  return ausgabe;
}

namespace {

QString mitZeilenenden(QString text) {
  return text.replace(CRLF, QStringLiteral("\n")).replace(u'\n', CRLF);
}

}  // namespace

void listen(Database& db, const QString& text, const QList<qint64>& völker, int jeSeite) {
  const QString datei = AppPfad + QStringLiteral("druck.txt");
  Textdatei::flüchtigSchreibenGanz(datei, mitZeilenenden(text));
  Textausgabe::listeSchreiben(zeilen(db, Textdatei::lesen(datei), völker, jeSeite));
}

// An umlaut of two characters becomes the one that the code page has.
QString fremdeZeichen(const QString& text) {
  QStringList fremde;
  for (const char32_t zeichen : text.normalized(QString::NormalizationForm_C).toUcs4()) {
    const QString einzeln = QString::fromUcs4(&zeichen, 1);
    const bool fremd = Textdatei::vonCp1252(Textdatei::nachCp1252(einzeln)) != einzeln;
    if (fremd && !fremde.contains(einzeln)) fremde += einzeln;
  }
  return fremde.join(u' ');
}

void sichern(const QString& name, const QString& text) {
  Textdatei::schreibenGanz(AppPfad + name,
                           mitZeilenenden(text.normalized(QString::NormalizationForm_C)));
}

QString nichtsMarkiertText() {
  return QStringLiteral(
      "Der Text wird für alle markierten (blau Hinterlegten) Völker aus dem Hauptmodul gelistet. "
      "Da kein Volk markiert ist, kann die Liste nicht erstellt werden.");
}

QString neuFrage() {
  return QStringLiteral(
      "Ein neuer Text löscht den geänderten aktuellen Text. Soll der aktuelle Text vorher "
      "gesichert werden?");
}

QString ladenFrage() {
  return QStringLiteral(
      "Das laden eines neuen Textes löscht den geänderten aktuellen Text. Soll der aktuelle Text "
      "vorher gesichert werden?");
}

QString schließenFrage() {
  return QStringLiteral(
      "Der geänderte Text ist noch nicht gesichert. Soll er vor dem Schließen gesichert werden?");
}

QString keineDateiText() {
  return QStringLiteral("Es befindet sich keine passende Textdatei auf dem Datenträger");
}

QString überschreibenFrage(const QString& name) {
  return QStringLiteral("Die Datei ") + name +
         QStringLiteral(
             " existiert bereits auf dem Datenträger! Soll die Datei überschrieben werden?");
}

}  // namespace Listengenerator
