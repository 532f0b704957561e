#pragma once

#include <functional>

#include "data/forms/Verwaltungsblock.h"
#include "stores/Handel.h"

class QLabel;
class QPushButton;

// The three blocks of TV_EinVerkauf_Lager. After each reading the last row, the latest by date, is
// current; the inputs keep what they hold, but the honey store's show the new current row when they
// showed the former one. While a list is read no button of the form can be pressed.

class Handelsblock : public Verwaltungsblock {
 public:
  void listeLesen() override;

 protected:
  explicit Handelsblock(const Plan& plan) : Verwaltungsblock(plan) {}
  QString meldung(const QStringList& gründe) const override;
  void nachListe() override;
};

// Purchases or sales.
class Geschäftsblock : public Handelsblock {
 public:
  // lagerLesen: reads the list of the honey store anew. geändert: the deals are no longer those of
  // before, nor are their sums.
  Geschäftsblock(Handel::Seite seite, std::function<void()> lagerLesen,
                 std::function<void()> geändert);

  void listeLesen() override;

 protected:
  QStringList prüfe(const Verwaltung::Texte& texte, bool ändern) override;
  qint64 schreiben(const Verwaltung::Texte& texte, std::optional<qint64> id,
                   const QVariantHash& weitere) override;
  void vorLöschen(qint64 id) override;
  void nachLöschen() override;

 private:
  Handel::Seite m_seite;
  std::function<void()> m_lagerLesen;
  std::function<void()> m_geändert;
};

// The honey store, with its stock beside the list.
class Lagerblock : public Handelsblock {
 public:
  Lagerblock();

  void listeLesen() override;
  QList<QWidget*> tabfolge() const override;
  void bestandLeeren();

 protected:
  QStringList prüfe(const Verwaltung::Texte& texte, bool ändern) override;
  QString vorSpeichern(const Verwaltung::Texte& texte, std::optional<qint64> id,
                       QVariantHash& weitere) override;
  void nachLöschen() override;

 private:
  bool zeigtAktuelleZeile() const;
  QWidget* bestandBauen();
  void bestandZeigen();

  Grid* m_ligroup = nullptr;
  QLabel* m_bestandsstand = nullptr;  // seen while the stock isn't that of the list
  QPushButton* m_comalle = nullptr;
};
