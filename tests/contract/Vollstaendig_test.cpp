#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFileInfo>

#include "Formenliste.h"

// A form that is in the program is in the registry, so that every rule is asked of it.
namespace {

const QString quellen = QStringLiteral(TOVA_QUELLEN "/src");

// The forms by their headers: forms/TV_Neues_Volk.h. Names of files are written without umlauts.
QStringList köpfe() {
  QStringList namen;
  QDirIterator lauf(quellen, {QStringLiteral("T?_*.h")}, QDir::Files, QDirIterator::Subdirectories);
  while (lauf.hasNext()) {
    const QFileInfo datei(lauf.next());
    if (datei.dir().dirName() == QLatin1String("forms")) namen << datei.completeBaseName();
  }
  namen.sort();
  return namen;
}

QString dateiname(QString form) {
  const std::pair<QChar, const char*> umlaute[] = {{u'ä', "ae"}, {u'ö', "oe"}, {u'ü', "ue"},
                                                   {u'Ä', "Ae"}, {u'Ö', "Oe"}, {u'Ü', "Ue"},
                                                   {u'ß', "ss"}};
  for (const auto& [umlaut, ersatz] : umlaute) form.replace(umlaut, QLatin1String(ersatz));
  return form;
}

bool istBeschrieben(const QString& form) {
  QDirIterator lauf(quellen + QStringLiteral("/evaluations"), {QStringLiteral("*.cpp")},
                    QDir::Files);
  while (lauf.hasNext()) {
    QFile datei(lauf.next());
    if (datei.open(QIODevice::ReadOnly) &&
        QString::fromUtf8(datei.readAll()).contains(u'"' + form + u'"'))
      return true;
  }
  return false;
}

QStringList verzeichnis() {
  QStringList namen;
  for (const Formfall& fall : formenliste()) namen << dateiname(fall.objekt);
  return namen;
}

}  // namespace

TEST(Formenliste, JedesFormularDesProgrammsStehtImVerzeichnis) {
  const QStringList alle = köpfe();
  ASSERT_GE(alle.size(), 15) << quellen.toStdString();
  const QStringList bekannt = verzeichnis();
  for (const QString& form : alle)
    EXPECT_TRUE(bekannt.contains(form)) << form.toStdString() << " fehlt im Verzeichnis";
}

// An evaluation has no window of its own: it is described in src/evaluations.
TEST(Formenliste, JederEintragHatSeinFormularOderSeineBeschreibungImProgramm) {
  const QStringList alle = köpfe();
  for (const Formfall& fall : formenliste())
    EXPECT_TRUE(alle.contains(dateiname(fall.objekt)) || istBeschrieben(fall.objekt))
        << fall.objekt.toStdString();
}

TEST(Formenliste, JederFallHatSeinenEigenenNamen) {
  QStringList fälle;
  for (const Formfall& fall : formenliste()) fälle << fall.fall;
  EXPECT_EQ(fälle.removeDuplicates(), 0);
}
