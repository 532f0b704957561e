#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>

// Shows a window with the keyboard in it.
inline void zeige(QWidget& fenster) {
  fenster.show();
  fenster.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster));
}

// Runs the action as soon as a modal window is open; the window is given to it.
inline void imDialog(std::function<void(QWidget*)> aktion) {
  auto* uhr = new QTimer(qApp);
  uhr->setInterval(5);
  QObject::connect(uhr, &QTimer::timeout, qApp, [uhr, aktion = std::move(aktion)] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible()) return;
    uhr->stop();
    uhr->deleteLater();
    aktion(dialog);
  });
  uhr->start();
}
