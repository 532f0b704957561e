#pragma once

#include <QScrollArea>

// Inputs that scroll where the window has no room for all of them. It asks for the room of the
// whole content and can do with a few lines of it; beside a list that takes the rest (stretch 1)
// the list gives way first. What has the keyboard is brought into view.
class Rollbereich : public QScrollArea {
 public:
  explicit Rollbereich(QWidget* inhalt);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* objekt, QEvent* event) override;

 private:
  void zeigeFokus(QWidget* control);
};
