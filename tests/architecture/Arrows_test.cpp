#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>

// The rooms' order of docs/architecture.md, read from the #include lines of the sources.
namespace {

const QString quellen = QStringLiteral(TOVA_QUELLEN "/src");

// From the bottom up. A room may include its own headers and those of rooms above it in this list.
const QStringList räume = {"platform/locale",
                           "platform/database/werte",
                           "platform/database/dialekt",
                           "platform/database/verbindung",
                           "platform/database",
                           "platform/files",
                           "platform/controls",
                           "core",
                           "core/forms",
                           "data",
                           "data/forms",
                           "output",
                           "output/forms",
                           "planning",
                           "colonies",
                           "bookings",
                           "stores",
                           "sites",
                           "evaluations",
                           "planning/forms",
                           "colonies/forms",
                           "bookings/forms",
                           "stores/forms",
                           "sites/forms",
                           "evaluations/forms",
                           "mainform",
                           "mainform/forms",
                           "app"};

// Subsystems know each other only where one calls the other.
const QMultiMap<QString, QString> untereinander = {{"colonies", "planning"}};
const QStringList subsysteme = {"planning", "colonies", "bookings",
                                "stores",   "sites",    "evaluations"};

struct Einbindung {
  QString datei;  // below src/
  int zeile;
  QString ziel;  // as written between the marks
  bool eigene;   // "..." and not <...>
};

QStringList dateien() {
  QStringList namen;
  QDirIterator lauf(quellen, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
  while (lauf.hasNext()) namen << lauf.next().mid(quellen.size() + 1);
  return namen;
}

QString inhalt(const QString& name) {
  QFile datei(quellen + "/" + name);
  return datei.open(QIODevice::ReadOnly) ? QString::fromUtf8(datei.readAll()) : QString();
}

QList<Einbindung> einbindungen() {
  static const QRegularExpression muster(
      QStringLiteral("^\\s*#\\s*include\\s*([<\"])([^>\"]+)[>\"]"));
  QList<Einbindung> alle;
  for (const QString& name : dateien()) {
    int nummer = 0;
    for (const QString& zeile : inhalt(name).split('\n')) {
      ++nummer;
      const auto treffer = muster.match(zeile);
      if (treffer.hasMatch())
        alle << Einbindung{name, nummer, treffer.captured(2), treffer.captured(1) == "\""};
    }
  }
  return alle;
}

QString raum(const QString& datei) { return datei.section('/', 0, -2); }

QString ort(const Einbindung& e) {
  return QStringLiteral("%1:%2 includes %3").arg(e.datei).arg(e.zeile).arg(e.ziel);
}

QString subsystem(const QString& name) { return name.section('/', 0, 0); }

bool erlaubt(const QString& von, const QString& nach) {
  if (von == nach) return true;
  // What is put out is the forms'; an evaluation is a list or a text.
  if (subsysteme.contains(von) && nach == "output") return von == "evaluations";
  if (subsysteme.contains(subsystem(von)) && subsysteme.contains(subsystem(nach)) &&
      subsystem(von) != subsystem(nach))
    return untereinander.contains(subsystem(von), subsystem(nach));
  return räume.indexOf(nach) < räume.indexOf(von);
}

TEST(Arrows, EverySourceLiesInAKnownRoom) {
  ASSERT_GT(dateien().size(), 20);
  for (const QString& name : dateien())
    EXPECT_TRUE(räume.contains(raum(name))) << name.toStdString();
}

TEST(Arrows, NoIncludePointsDown) {
  for (const Einbindung& e : einbindungen()) {
    if (!e.eigene || !räume.contains(raum(e.ziel))) continue;
    EXPECT_TRUE(erlaubt(raum(e.datei), raum(e.ziel))) << ort(e).toStdString();
  }
}

// A source without a header of its name is a part of one: "Volkanzeige_Tabellen" of "Volkanzeige".
TEST(Arrows, EverySourceHasItsHeader) {
  const QStringList alle = dateien();
  for (const QString& name : alle) {
    if (!name.endsWith(".cpp") || name == "app/main.cpp") continue;
    QString stamm = name.chopped(4);
    bool gefunden = alle.contains(stamm + ".h");
    while (!gefunden && stamm.lastIndexOf('_') > stamm.lastIndexOf('/')) {
      stamm.truncate(stamm.lastIndexOf('_'));
      gefunden = alle.contains(stamm + ".h");
    }
    EXPECT_TRUE(gefunden) << name.toStdString();
  }
}

TEST(Arrows, WorkIncludesNoWidget) {
  static const QRegularExpression fenster(QStringLiteral(
      "^(QWidget|QDialog|QApplication|QMessageBox|QTableView|QLineEdit|QPainter|QPrinter|QtWidgets|"
      "QtGui|QLabel|QPushButton)"));
  for (const Einbindung& e : einbindungen()) {
    const QString von = raum(e.datei);
    if (von.endsWith("/forms") || von == "platform/controls" || von == "app") continue;
    EXPECT_FALSE(fenster.match(e.ziel).hasMatch()) << ort(e).toStdString();
    EXPECT_FALSE(raum(e.ziel).endsWith("/forms") || raum(e.ziel) == "platform/controls")
        << ort(e).toStdString();
  }
}

TEST(Arrows, LibrariesAreIncludedInPlatformOnly) {
  static const QRegularExpression fremd(
      QStringLiteral("^(sqlite3|zip|xlsxwriter|mdbtools|glib|unistd|sys/|fcntl)"));
  for (const Einbindung& e : einbindungen()) {
    if (e.datei.startsWith("platform/")) continue;
    EXPECT_FALSE(fremd.match(e.ziel).hasMatch()) << ort(e).toStdString();
  }
}

TEST(Arrows, MessageBoxesAndFileDialogsAreMadeInPlatformOnly) {
  for (const QString& name : dateien()) {
    if (name.startsWith("platform/")) continue;
    const QString text = inhalt(name);
    EXPECT_FALSE(text.contains("QMessageBox")) << name.toStdString();
    EXPECT_FALSE(text.contains("QFileDialog")) << name.toStdString();
  }
}

// A slot has its number in one row of core/slots.h. The test of the file's lines counts them.
TEST(Arrows, SettingsSlotsGoByTheirNames) {
  static const QRegularExpression nummer(QStringLiteral(
      "Einstellungen(Zahl|Wert|Text)\\s*(\\[|\\.at\\()[^\\])]*[0-9]+[^\\])]*[\\])]"));
  int gelesen = 0;
  for (const char* ordner : {"src", "tests", "bench", "examples", "tools"}) {
    QDirIterator lauf(QStringLiteral(TOVA_QUELLEN "/") + ordner, {"*.h", "*.cpp"}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (lauf.hasNext()) {
      QFile datei(lauf.next());
      if (datei.fileName().endsWith("Einstellungsdatei_test.cpp")) continue;
      ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
      QString text = QString::fromUtf8(datei.readAll());
      ++gelesen;
      auto treffer = nummer.globalMatch(text);
      while (treffer.hasNext()) {
        const QString stelle = treffer.next().captured();
        static const QRegularExpression name(QStringLiteral("slots\\.\\w+\\]$"));
        EXPECT_TRUE(name.match(stelle).hasMatch())
            << datei.fileName().toStdString() << ": " << stelle.toStdString();
      }
    }
  }
  EXPECT_GT(gelesen, 200);
}

TEST(Arrows, FormsHoldNoStatement) {
  static const QRegularExpression anweisung(
      QStringLiteral("\"(select .* from|insert into|update .* set|delete from) "),
      QRegularExpression::CaseInsensitiveOption);
  for (const QString& name : dateien()) {
    if (!raum(name).endsWith("/forms")) continue;
    EXPECT_FALSE(anweisung.match(inhalt(name)).hasMatch()) << name.toStdString();
  }
}

// The names under which a source, or a header that it includes, has entry fields.
QSet<QString> eingabefelder(const QString& datei, const QList<Einbindung>& alle) {
  static const QRegularExpression muster(
      QStringLiteral("\\bEingabefeld\\*(?:, *[\\w:]+)?>?\\s+(?:\\w+::)*(\\w+)"));
  QString text = inhalt(datei);
  for (const Einbindung& e : alle)
    if (e.eigene && e.datei == datei) text += inhalt(e.ziel);
  QSet<QString> namen;
  for (auto lauf = muster.globalMatch(text); lauf.hasNext();) namen << lauf.next().captured(1);
  return namen;
}

// A bare setFocus leaves the old content behind the cursor, and what is typed next is refused or
// becomes another value: Eingabefeld::fokussieren selects it.
TEST(Arrows, EntryFieldsAreFocusedInOneWay) {
  static const QRegularExpression muster(
      QStringLiteral("(\\w+)(?:\\((?:[^;()]|\\([^;()]*\\))*\\)|\\[[^;\\]]*\\]|\\.\\w+\\(\\))*\\s*(?"
                     ":->|\\.)\\s*(setFocus|fokussieren)\\("));
  const QList<Einbindung> alle = einbindungen();
  int fokussiert = 0;
  for (const QString& name : dateien()) {
    if (name.startsWith("platform/controls/")) continue;
    const QSet<QString> felder = eingabefelder(name, alle);
    for (auto lauf = muster.globalMatch(inhalt(name)); lauf.hasNext();) {
      const auto treffer = lauf.next();
      const bool eines = felder.contains(treffer.captured(1));
      fokussiert += eines ? 1 : 0;
      EXPECT_EQ(eines, treffer.captured(2) == "fokussieren")
          << name.toStdString() << ": " << treffer.captured(0).toStdString();
    }
  }
  EXPECT_GT(fokussiert, 8);  // the fields are recognised
}

}  // namespace
