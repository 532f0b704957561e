#pragma once

#include <QScrollArea>

#include "mainform/Volkanzeige.h"
#include "mainform/Volkbild.h"

class Bildinhalt;

// The frame with the hive picture: the hive, the scale of each score, the honey sums and the
// legend. It finds its own arrangement for any width and font; where the window is too low for it,
// it scrolls. Its labels carry the names bildpos_0 to bildpos_20.
class Bildfeld : public QScrollArea {
 public:
  explicit Bildfeld(QWidget* eltern = nullptr);

  // Shows a colony. The honey sums are in kg.
  void zeigen(const QString& volknr, const QString& volkname, const Volkbild::Bild& bild,
              const Volkanzeige::Honig& honig);
  // The label of this year's honey: "Honig (2024):"
  void setHonigjahr(const QString& beschriftung);

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int breite) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void neuEinpassen();
  void einpassen();

  Bildinhalt* m_inhalt;
};
