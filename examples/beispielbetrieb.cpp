// Makes the sample operation in a folder.
// usage: beispielbetrieb FOLDER [--völker N] [--jahre N] [--buchungen-je-volk N] [--saat N]
//                        [--heute dd.mm.yyyy]

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <cstdio>

#include "Betrieb.h"
#include "platform/database/werte/Datenbankfehler.h"
#include "platform/files/Textdatei.h"
#include "platform/locale/Deutsch.h"

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription("Makes the sample operation in a folder.");
  parser.addHelpOption();
  parser.addPositionalArgument("folder", "An empty folder.");
  parser.addOptions({{"voelker", "Colonies.", "n", "24"},
                     {"jahre", "Seasons.", "n", "3"},
                     {"buchungen-je-volk", "Bookings of each colony.", "n", "0"},
                     {"saat", "Seed.", "n", "1"},
                     {"heute", "The day of the operation.", "dd.mm.yyyy"}});
  parser.process(app);
  if (parser.positionalArguments().size() != 1) parser.showHelp(2);

  Betriebsgröße größe;
  größe.völker = parser.value("voelker").toInt();
  größe.jahre = parser.value("jahre").toInt();
  größe.buchungenJeVolk = parser.value("buchungen-je-volk").toInt();
  größe.saat = parser.value("saat").toUInt();
  if (parser.isSet("heute")) größe.heute = Deutsch::datum(parser.value("heute")).value_or(QDate());

  const QString ordner = parser.positionalArguments().first();
  if (QFile::exists(ordner + "/TOVA2.MDB")) {
    std::fprintf(stderr, "There is a database in %s already.\n", qPrintable(ordner));
    return 1;
  }
  QDir().mkpath(ordner);
  try {
    betriebAnlegen(ordner, größe);
  } catch (const Datenbankfehler& fehler) {
    std::fprintf(stderr, "%s\n", qPrintable(fehler.text()));
    return 1;
  } catch (const Dateifehler& fehler) {
    std::fprintf(stderr, "%s\n", qPrintable(fehler.text()));
    return 1;
  }
  return 0;
}
