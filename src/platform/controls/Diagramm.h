#pragma once

#include <QImage>
#include <QWidget>

#include "platform/controls/Diagramminhalt.h"

// A chart of named points: a pie, lying flat or with its depth, or bars; around it the title, the
// foot and a legend. On paper and in files it is the same drawing without loss, always black on
// white.
class Diagramm : public QWidget {
 public:
  explicit Diagramm(QWidget* eltern = nullptr);

  // Redraws at once.
  void setInhalt(const Diagramminhalt& inhalt);
  const Diagramminhalt& inhalt() const { return m_inhalt; }

  // Draws it into a field of any size, as for a printed page.
  void malen(QPainter& maler, const QRectF& feld) const;
  // As it is shown, in twice the resolution.
  QImage bild() const;
  // Into a file, as the name's ending says: .png, .svg, or .pdf (a sheet A4). Throws Dateifehler.
  void speichern(const QString& pfad) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QByteArray alsPng() const;
  QByteArray alsSvg() const;
  QByteArray alsPdf() const;

  Diagramminhalt m_inhalt;
};
