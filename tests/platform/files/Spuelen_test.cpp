#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <string>
#include <vector>

#include "platform/files/Textdatei.h"

// The calls that decide whether a file survives a power cut, seen on their way to the system.
namespace {

std::vector<std::string> aufrufe;

template <typename Funktion>
Funktion echte(const char* name) {
  return reinterpret_cast<Funktion>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" int fsync(int griff) {
  aufrufe.emplace_back("spuelen");
  return echte<int (*)(int)>("fsync")(griff);
}

extern "C" int fdatasync(int griff) {
  aufrufe.emplace_back("spuelen");
  return echte<int (*)(int)>("fdatasync")(griff);
}

extern "C" int rename(const char* von, const char* nach) noexcept {
  aufrufe.emplace_back("umbenennen");
  return echte<int (*)(const char*, const char*)>("rename")(von, nach);
}

namespace {

TEST(Spülen, InhaltVorDemUmbenennenUndOrdnerDanach) {
  const QTemporaryDir ordner;
  const QString pfad = ordner.filePath(QStringLiteral("a.txt"));
  Textdatei::schreiben(pfad, {QStringLiteral("alt")});
  aufrufe.clear();
  Textdatei::schreiben(pfad, {QStringLiteral("neu")});
  EXPECT_EQ(aufrufe, (std::vector<std::string>{"spuelen", "umbenennen", "spuelen"}));
}

TEST(Spülen, WasFlüchtigIstWirdErsetztAberNichtGespült) {
  const QTemporaryDir ordner;
  const QString pfad = ordner.filePath(QStringLiteral("a.txt"));
  Textdatei::flüchtigSchreiben(pfad, {QStringLiteral("alt")});
  aufrufe.clear();
  Textdatei::flüchtigSchreiben(pfad, {QStringLiteral("neu"), QStringLiteral("Völker")});
  EXPECT_EQ(aufrufe, (std::vector<std::string>{"umbenennen"}));
  EXPECT_EQ(Textdatei::bytesLesen(pfad), QByteArray("neu\r\nV\xF6lker\r\n"));
  Textdatei::flüchtigSchreibenGanz(pfad, QStringLiteral("ganz"));
  EXPECT_EQ(Textdatei::bytesLesen(pfad), QByteArray("ganz"));
}

}  // namespace
