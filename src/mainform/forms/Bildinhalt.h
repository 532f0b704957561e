#pragma once

#include <QWidget>
#include <array>

#include "mainform/Volkanzeige.h"
#include "mainform/Volkbild.h"

class QLabel;

// What stands in the frame of the hive picture.
class Bildinhalt : public QWidget {
 public:
  explicit Bildinhalt(QWidget* eltern = nullptr);

  void zeigen(const QString& volknr, const QString& volkname, const Volkbild::Bild& bild,
              const Volkanzeige::Honig& honig);
  void setHonigjahr(const QString& beschriftung);

  // The height that the picture likes, and the least in which nothing is lost.
  int schöneHöhe(int breite) const;
  int kleinsteHöhe(int breite) const;
  int kleinsteBreite() const;
  QString beschreibung() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;

 private:
  static constexpr int Summen = 3;
  // Where everything stands.
  struct Lage {
    QRect volknr, volkname, stock, noten, hinweis;
    std::array<QRect, Summen> summe, wert, einheit;
    std::array<QRect, Volkbild::Wabenarten> legende;
    int höhe = 0;
  };
  // The arrangement in a width; zeilenhöhe is that of one score.
  Lage lage(int breite, int zeilenhöhe) const;
  void kopf(Lage& lage, int breite) const;
  int honigZeilen(Lage& lage, const QRect& platz) const;
  int honigSpalten(Lage& lage, const QRect& platz) const;
  int legendenFluss(Lage& lage, const QRect& platz) const;
  int hinweistext(Lage& lage, const QRect& platz) const;

  void schriftenSetzen();
  void anordnen();
  void markenSetzen();
  QRect notenzeile(int note) const;
  QRect skala(int note) const;
  void zeichneSkalen(QPainter& maler) const;
  int schöneZeile() const;
  int kleinsteZeile() const;
  int passendeZeile() const;

  Volkbild::Bild m_bild;
  Lage m_lage;
  QLabel* m_volknr;
  QLabel* m_volkname;
  std::array<QLabel*, Volkbild::Noten> m_marken{};
  std::array<QLabel*, Volkbild::Wabenarten> m_legende{};  // in the order of their labels
  std::array<QLabel*, Summen> m_summen{};                 // last, this year, all
  std::array<QLabel*, Summen> m_werte{};
  std::array<QLabel*, Summen> m_einheiten{};
  QLabel* m_hinweis;
};
