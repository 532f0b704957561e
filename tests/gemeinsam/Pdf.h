#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QStringList>

// Reads back what was printed into a PDF file, with the tools of poppler.
class Pdf {
 public:
  struct Wort {
    QString text;
    double x = 0;  // points from the left and the upper edge of the paper
    double y = 0;
    double rechts = 0;
  };

  explicit Pdf(QString pfad) : m_pfad(std::move(pfad)) {}

  int seitenzahl() const { return angabe("Pages").toInt(); }
  QString titel() const { return angabe("Title"); }
  bool querformat() const {
    const auto treffer = QRegularExpression("([0-9.]+) x ([0-9.]+)").match(angabe("Page size"));
    EXPECT_TRUE(treffer.hasMatch());
    return treffer.captured(1).toDouble() > treffer.captured(2).toDouble();
  }
  QString schriften() const { return ausgabe("pdffonts", {m_pfad}); }

  // The lines of a page (from 1) as they stand on the paper, without blanks at their ends and
  // without the empty lines above and below.
  QStringList zeilen(int seite) const {
    const QString nummer = QString::number(seite);
    QStringList alle;
    for (QString zeile : ausgabe("pdftotext", {"-layout", "-nopgbrk", "-enc", "UTF-8", "-f", nummer,
                                               "-l", nummer, m_pfad, "-"})
                             .split('\n')) {
      while (zeile.endsWith(' ')) zeile.chop(1);
      alle << zeile;
    }
    while (!alle.isEmpty() && alle.first().isEmpty()) alle.removeFirst();
    while (!alle.isEmpty() && alle.last().isEmpty()) alle.removeLast();
    return alle;
  }

  // The words of a page with their places.
  QList<Wort> wörter(int seite) const {
    const QString nummer = QString::number(seite);
    static const QRegularExpression muster(
        "<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\"[^>]*>([^<]*)</word>");
    QList<Wort> alle;
    auto lauf = muster.globalMatch(
        ausgabe("pdftotext", {"-bbox", "-enc", "UTF-8", "-f", nummer, "-l", nummer, m_pfad, "-"}));
    while (lauf.hasNext()) {
      const auto m = lauf.next();
      alle.append({m.captured(4), m.captured(1).toDouble(), m.captured(2).toDouble(),
                   m.captured(3).toDouble()});
    }
    return alle;
  }

 private:
  QString angabe(const QString& name) const {
    for (const QString& zeile : ausgabe("pdfinfo", {m_pfad}).split('\n'))
      if (zeile.startsWith(name + ':')) return zeile.mid(name.size() + 1).trimmed();
    ADD_FAILURE() << "pdfinfo gives no " << name.toStdString();
    return {};
  }
  static QString ausgabe(const QString& werkzeug, const QStringList& angaben) {
    QProcess lauf;
    lauf.start(werkzeug, angaben);
    EXPECT_TRUE(lauf.waitForFinished()) << werkzeug.toStdString() << " is missing";
    EXPECT_EQ(lauf.exitCode(), 0) << lauf.readAllStandardError().toStdString();
    return QString::fromUtf8(lauf.readAllStandardOutput());
  }

  QString m_pfad;
};
