#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QWidget>

// How a form stands on the screen.

// The program's font in so many per cent of its size, for as long as it lives.
class Schriftgröße {
 public:
  explicit Schriftgröße(int prozent) : m_vorher(QApplication::font()) {
    QFont schrift = m_vorher;
    schrift.setPointSizeF(m_vorher.pointSizeF() * prozent / 100);
    QApplication::setFont(schrift);
  }
  ~Schriftgröße() { QApplication::setFont(m_vorher); }
  Schriftgröße(const Schriftgröße&) = delete;
  Schriftgröße& operator=(const Schriftgröße&) = delete;

 private:
  QFont m_vorher;
};

// It can be made small enough for a notebook: 1366 x 768 less the window's title and the task bar.
inline void passtAufKleinenSchirm(const QWidget& form) {
  EXPECT_LE(form.minimumSizeHint().width(), 1366);
  EXPECT_LE(form.minimumSizeHint().height(), 700);
}

// No visible button's words are cut off.
inline void knöpfeSindLesbar(const QWidget& form) {
  for (const auto* knopf : form.findChildren<QPushButton*>()) {
    if (!knopf->isVisible()) continue;
    EXPECT_GE(knopf->width(), knopf->minimumSizeHint().width()) << qPrintable(knopf->text());
    EXPECT_GE(knopf->height(), knopf->minimumSizeHint().height()) << qPrintable(knopf->text());
  }
}

// Leaves a picture for the eye where TOVA_BILDER names a folder.
inline void bildAblegen(QWidget& fenster, const QString& name) {
  const QString ordner = qEnvironmentVariable("TOVA_BILDER");
  if (ordner.isEmpty()) return;
  EXPECT_TRUE(fenster.grab().save(ordner + "/" + name + ".png"));
}
