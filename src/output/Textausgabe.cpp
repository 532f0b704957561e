#include "output/Textausgabe.h"

#include <QDir>
#include <algorithm>

#include "core/globals.h"
#include "output/Textliste.h"
#include "platform/files/Textdatei.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace {

constexpr int GrößterRand = 30;  // that the field takes
constexpr int GrößterRandBeimLaden = 20;
constexpr int Tabulator = 8;
const QString Einzug = QStringLiteral("  ");

// Notes may hold tabs; on paper they go to every eighth column.
QString ohneTabulator(const QString& zeile) {
  if (!zeile.contains(u'\t')) return zeile;
  QString ergebnis;
  for (const QChar zeichen : zeile)
    if (zeichen == u'\t')
      ergebnis += QString(Tabulator - ergebnis.size() % Tabulator, u' ');
    else
      ergebnis += zeichen;
  return ergebnis;
}

// Where a text that fits up to "platz" is cut: behind the last blank of its right half, else there.
qsizetype schnitt(const QString& text, qsizetype vorspann, qsizetype platz) {
  if (text[platz] == u' ') return platz;
  const qsizetype früheste = vorspann + (platz - vorspann) / 2;
  for (qsizetype i = platz; i > früheste; --i)
    if (text[i - 1] == u' ') return i;
  return platz;
}

QString ohneBlankVorn(const QString& text) {
  qsizetype anfang = 0;
  while (anfang < text.size() && text[anfang] == u' ') ++anfang;
  return text.mid(anfang);
}

}  // namespace

namespace Textausgabe {

void listeSchreiben(const QStringList& zeilen) {
  AusgabeDatei = Textliste::datei();
  Textdatei::flüchtigSchreiben(AusgabeDatei, zeilen);
}

Anzeige lesen(const QString& pfad) {
  Anzeige anzeige;
  for (const QString& zeile : Textdatei::lesen(pfad)) {
    anzeige.text += zeile + CRLF;
    if (anzeige.text.size() > MeisteZeichen) {
      anzeige.zuGroß = true;
      break;
    }
  }
  return anzeige;
}

QString fehltText(const QString& pfad) {
  return QStringLiteral("Die Datei ") + pfad + QStringLiteral(" existiert nicht");
}

QString zuGroßText() {
  return "ACHTUNG:" + CRLF + CRLF +
         "Der Text ist über 32 kB groß. Es ist deshalb u.U. nicht alles im Textfeld enthalten. "
         "Beim Ausdruck mit 'Datei drucken' werden trotzdem alle Daten ausgedruckt!";
}

QString schriftHinweis() {
  return "Hinweis:" + CRLF + CRLF +
         "Um die Tabellenausgabe im ZEB-Editor richtig darstellen zu können, sollten Sie eine "
         "nicht proportionale Schrift, z.B. Courier New oder eine andere Courier-Schrift, "
         "auswählten!";
}

bool schriftUnpassend(const QString& name) { return !name.startsWith(QStringLiteral("Courier")); }

Einstellungen laden() {
  Einstellungen e;
  e.quer = EinstellungenZahl[Zahlslots.textQuer] != 0;
  e.fett = EinstellungenZahl[Zahlslots.textFett] != 0;
  e.kursiv = EinstellungenZahl[Zahlslots.textKursiv] != 0;
  const int größe = EinstellungenZahl[Zahlslots.textGröße];
  if (größe >= KleinsteGröße && größe <= GrößteGröße) e.größe = größe;
  e.rand = std::clamp<int>(EinstellungenZahl[Zahlslots.textRand], 0, GrößterRandBeimLaden);
  return e;
}

void sichern(const Einstellungen& e) {
  EinstellungenZahl[Zahlslots.textQuer] = e.quer ? 1 : 0;
  EinstellungenZahl[Zahlslots.textFett] = e.fett ? 1 : 0;
  EinstellungenZahl[Zahlslots.textKursiv] = e.kursiv ? 1 : 0;
  EinstellungenZahl[Zahlslots.textGröße] = static_cast<qint16>(e.größe);
  EinstellungenZahl[Zahlslots.textRand] = static_cast<qint16>(e.rand);
}

int größeNach(int größe, int schritt) {
  return std::clamp(größe + schritt, KleinsteStufe, GrößteStufe);
}

QString randNachTippen(const QString& text) {
  const double zahl = Deutsch::val(text);
  if (zahl < 0) return QStringLiteral("0");
  if (zahl > GrößterRand) return QString::number(GrößterRand);
  return text;
}

int rand(const QString& text) {
  return static_cast<int>(std::clamp(Deutsch::val(text), 0.0, double(GrößterRand)));
}

bool istSeitenwechsel(const QString& zeile, Druckweg weg) {
  return (weg == Druckweg::Datei ? zeile.trimmed() : zeile) == QStringLiteral("#");
}

QStringList umbrechen(const QString& zeile, int rand, const Passend& passend) {
  QStringList ergebnis;
  QString vorspann(rand, u' ');
  QString text = vorspann + ohneTabulator(zeile);
  for (;;) {
    const qsizetype platz = passend(text);
    if (platz >= text.size()) break;
    if (platz <= vorspann.size()) {
      // The page is narrower than the margin: the text goes without it.
      if (vorspann.isEmpty()) {
        ergebnis += text.left(1);
        text = text.mid(1);
      } else {
        text = text.mid(vorspann.size());
        vorspann.clear();
      }
      continue;
    }
    const qsizetype ende = schnitt(text, vorspann.size(), platz);
    ergebnis += text.left(ende);
    const QString rest = ohneBlankVorn(text.mid(ende));
    if (rest.isEmpty()) return ergebnis;
    if (!vorspann.isEmpty() || rand == 0) vorspann = QString(rand, u' ') + Einzug;
    text = vorspann + rest;
  }
  ergebnis += text;
  return ergebnis;
}

QList<QStringList> seiten(const QStringList& zeilen, Druckweg weg, int rand, int zeilenJeSeite,
                          const Passend& passend) {
  QList<QStringList> seiten{{QString()}};
  for (const QString& zeile : zeilen) {
    if (istSeitenwechsel(zeile, weg)) {
      seiten.append(QStringList());
      continue;
    }
    for (const QString& teil : umbrechen(zeile, rand, passend)) {
      if (seiten.last().size() >= zeilenJeSeite) seiten.append(QStringList());
      seiten.last().append(teil);
    }
  }
  if (seiten.size() > 1 && seiten.last().isEmpty()) seiten.removeLast();
  return seiten;
}

QString druckaufSchreiben(const QString& text) {
  QString pfad = QDir::current().filePath(QStringLiteral("DRUCKAUF.TXT"));
  Textdatei::flüchtigSchreibenGanz(pfad, text);
  return pfad;
}

}  // namespace Textausgabe
