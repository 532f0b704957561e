#pragma once

#include <gtest/gtest.h>

#include <QDate>

#include "data/schema.h"
#include "gemeinsam/Musterdatenbank.h"
#include "mainform/Start.h"

using Felder = QList<std::pair<QString, QVariant>>;

// A program folder on the 15th of June 2024.
class Umfeld : public testing::Test {
 protected:
  void SetUp() override {
    Start::pfadeSetzen(m_ordner.path());
    TZ_Variablen::EinstellungenText[Textslots.infofenster] = QString(60, u'1');
  }
  static void datenbank() { leereDatenbank(); }
  // Adds a row; gives its ID.
  static qint64 neu(const QString& tabelle, const Felder& felder) {
    QStringList namen;
    QStringList marken;
    QVariantList werte;
    for (const auto& [name, wert] : felder) {
      namen << name;
      marken << QStringLiteral("?");
      werte << wert;
    }
    TZ_Variablen::DB.Execute(QStringLiteral("insert into %1 (%2) values (%3)")
                                 .arg(tabelle, namen.join(u','), marken.join(u',')),
                             werte);
    return TZ_Variablen::DB.LetzteID();
  }
  QString datei(const QString& name) const { return m_ordner.filePath(name); }

  Programmordner m_ordner{QStringLiteral("15.06.2024")};
};
