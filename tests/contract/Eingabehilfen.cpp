#include "Eingabehilfen.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

#include "Formregeln.h"
#include "data/helpers.h"
#include "gemeinsam/Beschriftet.h"
#include "platform/controls/Grid.h"

namespace {

bool istZahl(const Eingabefeld* feld) {
  return feld->art() == Eingabefeld::Art::Dezimal || feld->art() == Eingabefeld::Art::Ganzzahl;
}

QString listeninhalt(const QListWidget* liste) {
  QStringList zeilen;
  for (int i = 0; i < liste->count(); ++i) {
    const QListWidgetItem* zeile = liste->item(i);
    zeilen << zeile->text() +
                  (zeile->checkState() == Qt::Checked ? QStringLiteral(" x") : QString());
  }
  return zeilen.join(u'|');
}

}  // namespace

void nachVorn(QWidget* form, QWidget* widget) {
  for (auto* reiter : form->findChildren<QTabWidget*>())
    for (int i = 0; i < reiter->count(); ++i)
      if (reiter->widget(i)->isAncestorOf(widget)) reiter->setCurrentIndex(i);
}

void tippeIn(QWidget* ziel, const QString& text) {
  ziel->setFocus();
  QTest::keyClick(ziel, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(ziel, Qt::Key_Delete);
  QTest::keyClicks(ziel, text);
}

QString probetext(const Eingabefeld::Beschreibung& feld, int nummer) {
  using Art = Eingabefeld::Art;
  const int ziffer = 2 + nummer % 7;
  switch (feld.art) {
    case Art::Dezimal:
      return QStringLiteral("%1,5").arg(ziffer);
    case Art::Ganzzahl:
      return QString::number(ziffer);
    case Art::Datum:
      return nummer == 0 ? QStringLiteral("12.04.2026") : QStringLiteral("1%1.05.2026").arg(ziffer);
    case Art::TagMonat:
      return QStringLiteral("1%1.05").arg(ziffer);
    case Art::Auswahl:
      return feld.auswahl.last().left(1);
    case Art::Text:
      break;
  }
  const QString text = QStringLiteral("Wert") + QString::number(nummer);
  return feld.maxLänge > 0 ? text.right(feld.maxLänge) : text;
}

void tippe(QWidget* form, const QString& name, const QString& text) {
  auto* ziel = form->findChild<QWidget*>(name);
  if (ziel == nullptr) ziel = Beschriftet::finde<QLineEdit>(form, name);
  nachVorn(form, ziel);
  tippeIn(ziel, text);
}

void drücke(QWidget* form, const QString& knopf) {
  auto* ziel = form->findChild<QAbstractButton*>(knopf);
  QTest::mouseClick(ziel, Qt::LeftButton);
}

void klickeZeile(Grid* grid, int zeile) {
  const QModelIndex index = grid->model()->index(zeile, 0);
  grid->scrollTo(index);
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(index).center());
}

void fülle(QWidget* form, const QStringList& außer, const QHash<QString, QString>& werte) {
  int nummer = 0;
  Formregeln::jedeSeite(form, [&] {
    for (QWidget* eingabe : Formregeln::eingaben(form)) {
      if (!eingabe->isEnabled() || außer.contains(eingabe->objectName())) continue;
      if (werte.contains(eingabe->objectName()))
        tippeIn(eingabe, werte[eingabe->objectName()]);
      else if (auto* feld = qobject_cast<Eingabefeld*>(eingabe))
        tippeIn(feld, probetext(feld->beschreibung(), nummer++));
      else if (qobject_cast<QLineEdit*>(eingabe))
        tippeIn(eingabe, QStringLiteral("7"));
      else if (qobject_cast<QPlainTextEdit*>(eingabe))
        tippeIn(eingabe, QStringLiteral("Viel Brut, wenig Platz"));
      else if (qobject_cast<QComboBox*>(eingabe))
        QTest::keyClick(eingabe, Qt::Key_Down);
      else if (qobject_cast<QListWidget*>(eingabe))
        QTest::keyClick(eingabe, Qt::Key_Space);
      else if (qobject_cast<QCheckBox*>(eingabe))
        QTest::mouseClick(eingabe, Qt::LeftButton, {}, QPoint(8, eingabe->height() / 2));
    }
  });
}

QHash<QString, QString> inhalte(QWidget* form) {
  QHash<QString, QString> texte;
  Formregeln::jedeSeite(form, [&] {
    for (const QWidget* eingabe : Formregeln::eingaben(form)) {
      QString& text = texte[eingabe->objectName()];
      if (const auto* feld = qobject_cast<const Eingabefeld*>(eingabe))
        text = istZahl(feld) ? QString::number(ZahlLesen(feld->inhalt())) : feld->inhalt();
      else if (const auto* notiz = qobject_cast<const QPlainTextEdit*>(eingabe))
        text = notiz->toPlainText();
      else if (const auto* zeile = qobject_cast<const QLineEdit*>(eingabe))
        text = zeile->text();
      else if (const auto* wahl = qobject_cast<const QComboBox*>(eingabe))
        text = wahl->currentText();
      else if (const auto* liste = qobject_cast<const QListWidget*>(eingabe))
        text = listeninhalt(liste);
      else if (const auto* knopf = qobject_cast<const QAbstractButton*>(eingabe);
               knopf != nullptr && knopf->isCheckable())
        text = knopf->isChecked() ? QStringLiteral("ja") : QStringLiteral("nein");
      else
        texte.remove(eingabe->objectName());
    }
  });
  return texte;
}
