#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

// How things are called: one spelling for German words, file names that stand once, and a header
// for every source.
namespace {

const QString wurzel = QStringLiteral(TOVA_QUELLEN "/");

QStringList dateien(const QStringList& ordner, const QStringList& muster) {
  QStringList namen;
  for (const QString& name : ordner) {
    QDirIterator lauf(wurzel + name, muster, QDir::Files, QDirIterator::Subdirectories);
    while (lauf.hasNext()) namen << lauf.next().mid(wurzel.size());
  }
  return namen;
}

QString inhalt(const QString& name) {
  QFile datei(wurzel + name);
  return datei.open(QIODevice::ReadOnly) ? QString::fromUtf8(datei.readAll()) : QString();
}

// The source without its texts, comments and #include lines.
QString nurCode(const QString& text) {
  static const QRegularExpression fremd(
      QStringLiteral(R"(R"(\w*)\((?:.|\n)*?\)\1"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])')"
                     R"(|//[^\n]*|/\*(?:.|\n)*?\*/|^[ \t]*#[ \t]*include[^\n]*)"),
      QRegularExpression::MultilineOption);
  QString code = text;
  return code.replace(fremd, QStringLiteral(" "));
}

// Given names that are spelled without umlauts, and words that aren't German or have none.
const QSet<QString>& ausnahmen() {
  static const QSet<QString> namen = {"LoeschenBestaetigt", "DatumErgaenzen",  "DateiWaehlen",
                                      "JahrErgaenzen",      "VolkLoeschen",    "DatenbankOeffnen",
                                      "GeaenderteVoelker",  "MenueSperren",    "Key_Odiaeresis",
                                      "Key_Adiaeresis",     "Key_Udiaeresis",  "cmdschliessen",
                                      "setDatumErgaenzer",  "hilfestartmenue", "aufwaerts",
                                      "abwaerts",           "aufwaertsstock"};
  return namen;
}

bool ohneUmlaut(const QString& wort) {
  static const QRegularExpression umschrieben(
      QStringLiteral("(?:[aou]e|^[AOU]e)(?<![aeqäAEQ]ue)|(?i:gross|schliess|schiess|ausser|aussen|"
                     "aeusser|draussen|dreissig|strasse|stossen|heisst|weiss)"));
  static const QRegularExpression erlaubt(QStringLiteral(
      "^(?i:aktuell\\w*|true|values?|unique|continue|catalogue|due|overdue|hue|does|doesn|goes|"
      "noexcept|whoever|varroen|zuerst|queue\\w*|query|quer\\w*|neue\\w*|bauer\\w*|dauer\\w*|"
      "steuer\\w*|roexplorer|aeon|genauer?|shoe|vague|league|argue|blue|clue|glue|issue|tissue|"
      "rescue|pursue|ensue|venue|revenue|avenue|fuel|duel|cruel|guess\\w*|guest|request\\w*|"
      "sequence|consequence|frequen\\w*|poem|poet|coefficient|maestro|foe|toe|hoe|woe)$"));
  return umschrieben.match(wort).hasMatch() && !erlaubt.match(wort).hasMatch();
}

QStringList umschriebene(const QString& code) {
  static const QRegularExpression name(QStringLiteral("[A-Za-zÄÖÜäöüß_][A-Za-z0-9ÄÖÜäöüß_]*"));
  static const QRegularExpression wort(QStringLiteral("[A-ZÄÖÜ]?[a-zäöüß]+"));
  QSet<QString> gefunden;
  for (auto i = name.globalMatch(code); i.hasNext();) {
    const QString bezeichner = i.next().captured();
    if (ausnahmen().contains(bezeichner.startsWith("m_") ? bezeichner.mid(2) : bezeichner))
      continue;
    for (auto w = wort.globalMatch(bezeichner); w.hasNext();)
      if (ohneUmlaut(w.next().captured())) gefunden << bezeichner;
  }
  return gefunden.values();
}

TEST(Names, GermanWordsCarryTheirUmlauts) {
  for (const QString& datei : dateien({"src", "tests", "examples", "bench"}, {"*.h", "*.cpp"}))
    EXPECT_EQ(umschriebene(nurCode(inhalt(datei))).join(", ").toStdString(), "")
        << datei.toStdString();
}

TEST(Names, TheCheckOfUmlautsKnowsTheWords) {
  EXPECT_EQ(umschriebene("void pruefeNeu(int m_groesse)").size(), 2);
  EXPECT_EQ(umschriebene("Schluessel gewaehlt; Aendern; setUeberschrift(); schliessen").size(), 5);
  EXPECT_EQ(umschriebene("true neueSteuer aktuelleZeile Bauer zuerst value unique").size(), 0);
  EXPECT_EQ(umschriebene(nurCode("// pruefe\n#include \"Pruefung.h\"\n\"loeschen\"")).size(), 0);
}

TEST(Names, FileNamesAreAsciiAndStandOnce) {
  QHash<QString, QString> gesehen;
  for (const QString& datei : dateien({"src", "tests"}, {"*.h", "*.cpp"})) {
    const QString name = QFileInfo(datei).fileName();
    for (const QChar zeichen : datei) EXPECT_LT(zeichen.unicode(), 128) << datei.toStdString();
    if (name == "main.cpp") continue;
    EXPECT_FALSE(gesehen.contains(name))
        << datei.toStdString() << " and " << gesehen[name].toStdString();
    gesehen[name] = datei;
  }
  EXPECT_GT(gesehen.size(), 200);
}

}  // namespace
