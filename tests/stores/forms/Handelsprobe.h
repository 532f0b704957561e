#pragma once

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

#include "gemeinsam/Formularprobe.h"
#include "stores/Handelsbetrieb.h"
#include "stores/forms/TV_EinVerkauf_Lager.h"

inline void PrintTo(const QString& text, std::ostream* aus) { *aus << text.toStdString(); }

class Handelsprobe : public Formularprobe<TV_EinVerkauf_Lager, Handelsbetrieb> {
 protected:
  enum Reiter { Einkauf, Verkauf, Lager };

  void öffne(int reiter) { öffneMit(QString::number(reiter)); }
  void öffneMit(const QString& modus) {
    TZ_Variablen::FormModus = modus;
    Formularprobe::öffne();
  }
  // The texts of all inputs of a tab, joined by "|".
  QString inhalte(const QString& tab) {
    QStringList texte;
    for (int i = 0; auto* f = form->findChild<Eingabefeld*>(QString("sevt%1_%2").arg(tab).arg(i));
         ++i)
      texte << f->inhalt();
    return texte.join("|");
  }
  QString summen() { return kind<QLabel>("bezsumme")->text(); }
  int reiter() { return kind<QTabWidget>("reiter")->currentIndex(); }
  void zumReiter(int nummer) {
    QTabBar* leiste = kind<QTabWidget>("reiter")->findChild<QTabBar*>();
    QTest::mouseClick(leiste, Qt::LeftButton, {}, leiste->tabRect(nummer).center());
  }
  static void fügeEin(Eingabefeld* f, const QString& neu) {
    QApplication::clipboard()->setText(neu);
    f->setFocus();
    f->selectAll();
    QTest::keyClick(f, Qt::Key_V, Qt::ControlModifier);
  }
  void tippeVerkauf(const QString& produkt, const QString& menge, const QString& abnehmer = {}) {
    tippe("Verkäufe", "Produkt", produkt);
    tippe("Abnehmer", abnehmer);
    tippe("Verkäufe", "Menge", menge);
  }
  void tippeEinkauf(const QString& produkt, const QString& menge, const QString& lieferant = {}) {
    tippe("Einkäufe", "Produkt", produkt);
    tippe("Lieferant", lieferant);
    tippe("Einkäufe", "Menge", menge);
  }
  void tippeLager(const QString& produkt, const QString& zugang, const QString& abgang) {
    tippe("Produkt (Sorte)", produkt);
    tippe("Eingang (kg)", zugang);
    tippe("Ausgang (kg)", abgang);
  }
};
