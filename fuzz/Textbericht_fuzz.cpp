// Text reports: a file of any bytes is shown and laid out on pages without losing anything, and a
// list of any cells becomes lines of one width.
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>

#include "Fuzzziel.h"
#include "output/Textausgabe.h"
#include "output/Textliste.h"
#include "platform/files/Textdatei.h"

namespace {

constexpr qsizetype MeisteZeichenJeLauf = 2000;

QString ohneBlanks(const QString& text) {
  QString rest;
  for (const QChar c : text)
    if (c != u' ' && c != u'\t') rest += c;
  return rest;
}

void setzen(const QStringList& zeilen, int rand, int breite, int zeilenJeSeite) {
  const auto passend = [breite](QStringView text) {
    return std::min<qsizetype>(breite, text.size());
  };
  for (const auto weg : {Textausgabe::Druckweg::Text, Textausgabe::Druckweg::Datei}) {
    QString vorher;
    for (const QString& zeile : zeilen)
      if (!Textausgabe::istSeitenwechsel(zeile, weg)) vorher += ohneBlanks(zeile);
    QString nachher;
    for (const QStringList& seite :
         Textausgabe::seiten(zeilen, weg, rand, zeilenJeSeite, passend)) {
      verlange(seite.size() <= zeilenJeSeite, "a page takes no more lines than it has room for");
      for (const QString& zeile : seite) {
        verlange(zeile.size() <= std::max(breite, 1), "a line fits the page", zeile);
        nachher += ohneBlanks(zeile);
      }
    }
    verlange(vorher == nachher, "nothing is lost on paper", vorher + u'\n' + nachher);
  }
}

void liste(const QString& pfad, const QStringList& zeilen, int spalten) {
  std::vector<Spalte> felder;
  felder.reserve(static_cast<std::size_t>(spalten));
  for (int i = 0; i < spalten; ++i)
    felder.push_back({QStringLiteral("Feld %1").arg(i), Feldtyp::Text, 0});
  Datenblock::Bauer bauer(felder);
  for (const QString& zeile : zeilen)
    for (qsizetype i = 0; i < spalten; ++i) bauer.text(zeile.mid(i * 7 % (zeile.size() + 1)));
  const Ausgabeliste ausgabe(bauer.fertig());
  Textliste::schreiben(pfad, ausgabe, {}, QStringLiteral(" | "));
  const QStringList geschrieben = Textdatei::lesen(pfad);
  qsizetype breite = -1;
  for (const QString& zeile : geschrieben) {
    if (zeile.isEmpty()) continue;  // between two groups
    if (breite < 0) breite = zeile.size();
    verlange(zeile.size() == breite, "the lines of a list are of one width", zeile);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t größe) {
  static const QTemporaryDir ordner;
  if (größe < 3) return 0;
  const QString pfad = ordner.filePath(QStringLiteral("LISTE.TXT"));
  QFile datei(pfad);
  verlange(datei.open(QIODevice::WriteOnly), "a file for the report");
  datei.write(alsBytes(daten + 3, größe - 3));
  datei.close();

  const Textausgabe::Anzeige anzeige = Textausgabe::lesen(pfad);
  const QStringList zeilen = Textdatei::lesen(pfad);
  verlange(anzeige.zuGroß || anzeige.text.count(QStringLiteral("\r\n")) >= zeilen.size(),
           "the field shows each line");
  setzen(zeilen, daten[0] % 31, daten[1], 1 + daten[2] % 80);
  const QString text = Textausgabe::randNachTippen(zeilen.value(0));
  verlange(Textausgabe::rand(text) >= 0 && Textausgabe::rand(text) <= 30, "a margin has limits");
  if (größe < MeisteZeichenJeLauf) liste(pfad, zeilen, 1 + daten[0] % 60);
  return 0;
}
