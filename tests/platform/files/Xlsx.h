#pragma once

#include <gtest/gtest.h>

#include <QMap>
#include <QProcess>
#include <QXmlStreamReader>

// Reads a workbook of one sheet back, as it lies in the file: its cells by their names ("B3").
class Xlsx {
 public:
  struct Zelle {
    bool zahl = false;
    QString text;
    int stil = 0;
  };

  explicit Xlsx(const QString& pfad) : m_pfad(pfad) {
    texteLesen();
    stileLesen();
    blattLesen();
  }

  Zelle zelle(const QString& name) const { return m_zellen.value(name); }
  QString text(const QString& name) const { return zelle(name).text; }
  bool istZahl(const QString& name) const { return zelle(name).zahl; }
  bool gibtEs(const QString& name) const { return m_zellen.contains(name); }
  qsizetype anzahl() const { return m_zellen.size(); }

  bool fett(const QString& name) const {
    return m_fett.value(m_stile.value(zelle(name).stil).schrift);
  }
  bool rechts(const QString& name) const { return m_stile.value(zelle(name).stil).rechts; }
  // The number format, empty for the general one.
  QString format(const QString& name) const {
    return m_formate.value(m_stile.value(zelle(name).stil).format);
  }
  // The same of a whole column, counted from 1.
  QString spaltenformat(int spalte) const {
    return m_formate.value(m_stile.value(m_spaltenstile.value(spalte)).format);
  }
  bool spalteRechts(int spalte) const { return m_stile.value(m_spaltenstile.value(spalte)).rechts; }

 private:
  struct Stil {
    int schrift = 0;
    int format = 0;
    bool rechts = false;
  };

  QByteArray teil(const QString& name) const {
    QProcess unzip;
    unzip.start("unzip", {"-p", m_pfad, name});
    EXPECT_TRUE(unzip.waitForFinished(60000)) << "unzip is needed";
    return unzip.readAllStandardOutput();
  }

  void texteLesen() {
    QXmlStreamReader xml(teil("xl/sharedStrings.xml"));
    while (!xml.atEnd())
      if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"t")
        m_texte += xml.readElementText();
  }

  void stileLesen() {
    QXmlStreamReader xml(teil("xl/styles.xml"));
    m_formate[4] = "#,##0.00";  // one of those that every program knows
    bool inSchriften = false;
    bool inZellen = false;
    while (!xml.atEnd()) {
      const auto was = xml.readNext();
      if (was == QXmlStreamReader::EndElement) {
        if (xml.name() == u"fonts") inSchriften = false;
        if (xml.name() == u"cellXfs") inZellen = false;
      }
      if (was != QXmlStreamReader::StartElement) continue;
      const auto werte = xml.attributes();
      if (xml.name() == u"fonts") inSchriften = true;
      if (xml.name() == u"cellXfs") inZellen = true;
      if (xml.name() == u"numFmt")
        m_formate[werte.value("numFmtId").toInt()] = werte.value("formatCode").toString();
      if (inSchriften && xml.name() == u"font") m_fett += false;
      if (inSchriften && xml.name() == u"b") m_fett.last() = true;
      if (inZellen && xml.name() == u"xf")
        m_stile += Stil{werte.value("fontId").toInt(), werte.value("numFmtId").toInt(), false};
      if (inZellen && xml.name() == u"alignment")
        m_stile.last().rechts = werte.value("horizontal") == u"right";
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_FALSE(m_stile.isEmpty());
  }

  void blattLesen() {
    QXmlStreamReader xml(teil("xl/worksheets/sheet1.xml"));
    QString name;
    while (!xml.atEnd()) {
      if (xml.readNext() != QXmlStreamReader::StartElement) continue;
      const auto werte = xml.attributes();
      if (xml.name() == u"col") {
        for (int i = werte.value("min").toInt(); i <= werte.value("max").toInt(); ++i)
          m_spaltenstile[i] = werte.value("style").toInt();
      } else if (xml.name() == u"c") {
        name = werte.value("r").toString();
        Zelle neu;
        neu.stil = werte.value("s").toInt();
        m_art = werte.value("t").toString();
        neu.zahl = m_art.isEmpty() || m_art == u"n";
        m_zellen[name] = neu;
      } else if (xml.name() == u"v" || xml.name() == u"t") {
        const QString inhalt = xml.readElementText();
        m_zellen[name].text = m_art == u"s" ? m_texte.value(inhalt.toInt()) : inhalt;
      }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  }

  QString m_pfad;
  QString m_art;
  QStringList m_texte;
  QMap<QString, Zelle> m_zellen;
  QList<bool> m_fett;
  QList<Stil> m_stile;
  QMap<int, QString> m_formate;
  QMap<int, int> m_spaltenstile;
};
