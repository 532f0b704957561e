#pragma once

#include <gtest/gtest.h>

#include <QDate>
#include <QTemporaryDir>

#include "core/globals.h"
#include "core/mainform/Start.h"
#include "data/schema.h"
#include "platform/database/Datenbank.h"

using Felder = QList<std::pair<QString, QVariant>>;

// A program folder with an empty database, on the 15th of June 2024.
class Umfeld : public testing::Test {
 protected:
  void SetUp() override {
    TZ_Variablen::zuruecksetzen();
    ASSERT_TRUE(m_ordner.isValid());
    Start::pfadeSetzen(m_ordner.path());
    TZ_Variablen::HeuteText = QStringLiteral("15.06.2024");
    TZ_Variablen::EinstellungenText[24] = QString(60, u'1');
  }
  void TearDown() override {
    TZ_Variablen::DB.Close();
    TZ_Variablen::Arbeitsbereich.Close();
    TZ_Variablen::zuruecksetzen();
  }
  void datenbank() { Start::datenbankOeffnen(); }
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

  QTemporaryDir m_ordner;
};
