#pragma once

#include "data/forms/Verwaltungsblock.h"

class QLabel;

// The three blocks of TV_Pflanzen_Standorte.

class Standortblock : public Verwaltungsblock {
 public:
  Standortblock();

 protected:
  QStringList prüfe(const Verwaltung::Texte& texte, bool ändern) override;
  QString vorSpeichern(const Verwaltung::Texte& texte, std::optional<qint64> id,
                       QVariantHash& weitere) override;
};

class Pflanzenblock : public Verwaltungsblock {
 public:
  Pflanzenblock();

 protected:
  QStringList prüfe(const Verwaltung::Texte& texte, bool ändern) override;
  QString vorSpeichern(const Verwaltung::Texte& texte, std::optional<qint64> id,
                       QVariantHash& weitere) override;
};

// The plants at one site.
class Trachtblock : public Verwaltungsblock {
 public:
  Trachtblock();

  void setStandort(qint64 id);  // shows that site's plants; 0 for none, then nothing is saved

 protected:
  QVariantList listenwerte() const override { return {m_standort}; }
  QStringList prüfe(const Verwaltung::Texte& texte, bool ändern) override;
  QString vorSpeichern(const Verwaltung::Texte& texte, std::optional<qint64> id,
                       QVariantHash& weitere) override;
  void nachListe() override;
  void nachLöschen() override;

 private:
  qint64 m_standort = 0;
  QLabel* m_bezproz = nullptr;
};
