#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <algorithm>

// The rooms' order of docs/architecture.md, read from the #include lines of the sources.
namespace {

const QString quellen = QStringLiteral(TOVA_QUELLEN "/src");

// From the bottom up. A room may include its own headers and those of rooms above it in this list.
const QStringList raeume = {"platform/locale",
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
                            "planning/forms",
                            "colonies/forms",
                            "bookings/forms",
                            "stores/forms",
                            "sites/forms",
                            "core/mainform",
                            "core/mainform/forms",
                            "app"};

// Subsystems know each other only where one calls the other.
const QMultiMap<QString, QString> untereinander = {{"colonies", "planning"}};
const QStringList subsysteme = {"planning", "colonies", "bookings", "stores", "sites"};

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
  if (subsysteme.contains(von) && nach == "output") return false;  // what is put out is the forms'
  if (subsysteme.contains(subsystem(von)) && subsysteme.contains(subsystem(nach)) &&
      subsystem(von) != subsystem(nach))
    return untereinander.contains(subsystem(von), subsystem(nach));
  return raeume.indexOf(nach) < raeume.indexOf(von);
}

TEST(Arrows, EverySourceLiesInAKnownRoom) {
  ASSERT_GT(dateien().size(), 20);
  for (const QString& name : dateien())
    EXPECT_TRUE(raeume.contains(raum(name))) << name.toStdString();
}

TEST(Arrows, NoIncludePointsDown) {
  for (const Einbindung& e : einbindungen()) {
    if (!e.eigene || !raeume.contains(raum(e.ziel))) continue;
    EXPECT_TRUE(erlaubt(raum(e.datei), raum(e.ziel))) << ort(e).toStdString();
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

TEST(Arrows, FormsHoldNoStatement) {
  static const QRegularExpression anweisung(
      QStringLiteral("\"(select .* from|insert into|update .* set|delete from) "),
      QRegularExpression::CaseInsensitiveOption);
  for (const QString& name : dateien()) {
    if (!raum(name).endsWith("/forms")) continue;
    EXPECT_FALSE(anweisung.match(inhalt(name)).hasMatch()) << name.toStdString();
  }
}

}  // namespace
