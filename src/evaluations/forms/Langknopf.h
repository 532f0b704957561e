#pragma once

#include <QPushButton>

// A button whose long caption stands in several lines.
class Langknopf : public QPushButton {
 public:
  explicit Langknopf(const QString& text) : QPushButton(text) { setAutoDefault(false); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};
