#pragma once

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QTabWidget>

#include "platform/controls/Eingabefeld.h"

// Inputs as the user knows them: by the caption, under which they are read out too.
namespace Beschriftet {

// The inputs of that kind, in the page or the frame of that title where one is named.
template <typename T>
QList<T*> alle(const QWidget* form, const QString& bereich) {
  QList<T*> eingaben = form->findChildren<T*>();
  eingaben.removeIf([](T* eingabe) {
    return eingabe->accessibleName().isEmpty() || eingabe->objectName().startsWith("qt_");
  });
  if (bereich.isEmpty()) return eingaben;
  const auto darin = [&](const QWidget* eingabe) {
    for (const QWidget* w = eingabe; w != form && w != nullptr; w = w->parentWidget()) {
      if (const auto* rahmen = qobject_cast<const QGroupBox*>(w);
          rahmen != nullptr && rahmen->title().remove(u'&') == bereich)
        return true;
      for (const auto* reiter : form->findChildren<QTabWidget*>())
        if (const int seite = reiter->indexOf(const_cast<QWidget*>(w)); seite >= 0)
          if (reiter->tabText(seite).remove(u'&') == bereich) return true;
    }
    return false;
  };
  eingaben.removeIf([&](T* eingabe) { return !darin(eingabe); });
  return eingaben;
}

// The one input of that caption; those that can be seen come first. None or several fail and name
// the captions that there are.
template <typename T = Eingabefeld>
T* finde(const QWidget* form, const QString& beschriftung, const QString& bereich = {}) {
  QList<T*> gefunden;
  QStringList vorhanden;
  bool gesehen = false;
  for (T* eingabe : alle<T>(form, bereich)) {
    const bool sichtbar = eingabe->isVisible();
    if (sichtbar) vorhanden << eingabe->accessibleName();
    if (eingabe->accessibleName() != beschriftung || (gesehen && !sichtbar)) continue;
    if (sichtbar && !gesehen) gefunden.clear();
    gesehen = gesehen || sichtbar;
    gefunden << eingabe;
  }
  if (gefunden.size() == 1) return gefunden.first();
  ADD_FAILURE() << gefunden.size() << " Eingaben heißen \"" << qPrintable(beschriftung) << "\""
                << qPrintable(bereich.isEmpty() ? QString() : " in \"" + bereich + "\"")
                << "; zu sehen sind: " << qPrintable(vorhanden.join(", "));
  return gefunden.isEmpty() ? nullptr : gefunden.first();
}

}  // namespace Beschriftet
