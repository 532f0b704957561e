#include "Formregeln.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSizeGrip>
#include <QSplitterHandle>
#include <QStackedWidget>
#include <QStyleOptionFrame>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>
#include <QToolBar>

namespace {

template <typename... Arten>
bool ist(const QObject* objekt) {
  return ((qobject_cast<const Arten*>(objekt) != nullptr) || ...);
}

template <typename... Arten>
bool liegtIn(const QWidget* widget) {
  for (const QWidget* w = widget->parentWidget(); w != nullptr && !w->isWindow();
       w = w->parentWidget())
    if (ist<Arten...>(w)) return true;
  return false;
}

// What the toolkit builds its controls from.
bool istTeil(const QWidget* widget) {
  return widget->objectName().startsWith(QStringLiteral("qt_")) ||
         liegtIn<QLineEdit, QComboBox, QAbstractSpinBox, QTabBar, QAbstractItemView, QMenuBar>(
             widget);
}

// What a scroll bar brings into view may lie outside.
bool rollt(const QWidget* widget) { return liegtIn<QAbstractScrollArea>(widget); }

QList<QWidget*> sichtbare(QWidget* form) {
  QList<QWidget*> alle;
  for (QWidget* w : form->findChildren<QWidget*>())
    if (w->window() == form && w->isVisible()) alle << w;
  return alle;
}

QLabel* schildVon(const QWidget* eingabe) {
  for (auto* label : eingabe->window()->findChildren<QLabel*>())
    if (label->buddy() == eingabe && !label->text().isEmpty()) return label;
  return nullptr;
}

QString vorlesename(const QWidget* eingabe) {
  if (!eingabe->accessibleName().isEmpty()) return eingabe->accessibleName();
  if (const auto* knopf = qobject_cast<const QAbstractButton*>(eingabe)) return knopf->text();
  const QLabel* schild = schildVon(eingabe);
  return schild != nullptr ? schild->text() : QString();
}

QChar mnemonic(const QString& text) {
  const QKeySequence folge = QKeySequence::mnemonic(text);
  return folge.isEmpty() ? QChar() : QChar(folge[0].key()).toUpper();
}

class Buchstaben {
 public:
  void nimm(const QString& text, const QString& wo) {
    const QChar buchstabe = mnemonic(text);
    if (buchstabe.isNull()) return;
    if (m_wo.contains(buchstabe))
      fehler << QStringLiteral("Alt+%1: %2 und %3").arg(buchstabe).arg(m_wo[buchstabe], wo);
    m_wo[buchstabe] = wo;
  }
  QStringList fehler;

 private:
  QHash<QChar, QString> m_wo;
};

// A group of radio buttons is one stop: that of the one chosen.
const void* gruppeVon(const QWidget* eingabe) {
  const auto* knopf = qobject_cast<const QAbstractButton*>(eingabe);
  if (knopf != nullptr && knopf->group() != nullptr && knopf->group()->exclusive())
    return knopf->group();
  if (ist<QRadioButton>(eingabe)) return eingabe->parentWidget();
  return eingabe;
}

QRect lage(const QWidget* widget) {
  return {widget->mapTo(widget->window(), QPoint(0, 0)), widget->size()};
}

// The keyboard may begin in the midst of a group: the same round from where a group begins.
QList<QWidget*> vonGruppenanfang(QList<QWidget*> folge) {
  for (qsizetype i = 0; i < folge.size(); ++i) {
    const QWidget* gruppe = folge.first()->parentWidget();
    if (gruppe->isWindow() || gruppe != folge.last()->parentWidget()) break;
    folge.append(folge.takeFirst());
  }
  return folge;
}

// Above it and not further right, or beside it on the left.
bool liegtDavor(const QRect& a, const QRect& b) {
  if (a.bottom() < b.top()) return a.left() <= b.left();
  return a.top() <= b.bottom() && a.right() < b.left();
}

int textplatz(const QLineEdit* feld) {
  QStyleOptionFrame rahmen;
  rahmen.initFrom(feld);
  rahmen.rect = feld->contentsRect();
  rahmen.lineWidth = feld->hasFrame()
                         ? feld->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &rahmen, feld)
                         : 0;
  QRect fläche = feld->style()->subElementRect(QStyle::SE_LineEditContents, &rahmen, feld);
  fläche = fläche.marginsRemoved(feld->textMargins());
  for (const auto* knopf : feld->findChildren<QAbstractButton*>())
    if (knopf->isVisible()) fläche.setRight(std::min(fläche.right(), knopf->x() - 1));
  return fläche.width() - 2;
}

// What the control shows doesn't fit into it.
bool zuEng(const QWidget* w) {
  if (const auto* feld = qobject_cast<const QLineEdit*>(w))
    return feld->fontMetrics().horizontalAdvance(feld->displayText()) > textplatz(feld) ||
           feld->height() < feld->fontMetrics().height();
  if (const auto* label = qobject_cast<const QLabel*>(w)) {
    if (label->text().isEmpty()) return false;
    if (label->wordWrap()) return label->heightForWidth(label->width()) > label->height();
    // A long text that may be cut says so by this.
    if (label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored)
      return label->height() < label->minimumSizeHint().height();
    return label->width() < label->sizeHint().width() ||
           label->height() < label->minimumSizeHint().height();
  }
  if (ist<QAbstractButton>(w) && !liegtIn<QToolBar>(w))
    return w->width() < w->minimumSizeHint().width() || w->height() < w->minimumSizeHint().height();
  if (const auto* wahl = qobject_cast<const QComboBox*>(w)) {
    QStyleOptionComboBox aussehen;
    aussehen.initFrom(wahl);
    aussehen.editable = wahl->isEditable();
    const QRect feld = wahl->style()->subControlRect(QStyle::CC_ComboBox, &aussehen,
                                                     QStyle::SC_ComboBoxEditField, wahl);
    const QString text = wahl->currentIndex() < 0 ? wahl->placeholderText() : wahl->currentText();
    // A list of long texts may show their beginnings.
    const bool schmal = wahl->width() < wahl->minimumSizeHint().width();
    return (schmal && wahl->fontMetrics().horizontalAdvance(text) > feld.width()) ||
           wahl->height() < wahl->minimumSizeHint().height();
  }
  if (ist<QGroupBox>(w))
    return w->width() < w->minimumSizeHint().width() || w->height() < w->minimumSizeHint().height();
  if (ist<QTabBar>(w)) return w->width() < w->sizeHint().width();
  return false;
}

bool zähltFürLage(const QWidget* w) {
  return !w->isWindow() && !istTeil(w) && !rollt(w) && !ist<QSizeGrip, QSplitterHandle>(w) &&
         !ist<QStackedWidget, QTabWidget>(w->parentWidget());
}

}  // namespace

namespace Formregeln {

QString bezeichnung(const QWidget* widget) {
  if (widget == nullptr) return QStringLiteral("nichts");
  QString text =
      QString::fromLatin1(widget->metaObject()->className()) + u' ' + widget->objectName();
  if (const auto* label = qobject_cast<const QLabel*>(widget))
    text += QStringLiteral(" \"%1\"").arg(label->text());
  else if (const auto* knopf = qobject_cast<const QAbstractButton*>(widget))
    text += QStringLiteral(" \"%1\"").arg(knopf->text());
  return text;
}

QList<QWidget*> eingaben(QWidget* form) {
  QList<QWidget*> alle;
  for (QWidget* w : sichtbare(form))
    if (ist<QLineEdit, QComboBox, QAbstractSpinBox, QAbstractButton, QAbstractItemView,
            QPlainTextEdit, QTextEdit>(w) &&
        !istTeil(w) && !ist<QHeaderView>(w))
      alle << w;
  return alle;
}

void jedeSeite(QWidget* form, const std::function<void()>& aktion) {
  QTabWidget* reiter = nullptr;
  for (auto* kandidat : form->findChildren<QTabWidget*>())
    if (kandidat->isVisible() && reiter == nullptr) reiter = kandidat;
  if (reiter == nullptr) {
    aktion();
    return;
  }
  for (int i = 0; i < reiter->count(); ++i) {
    reiter->setCurrentIndex(i);
    QApplication::processEvents();
    aktion();
  }
}

QStringList namen(QWidget* form) {
  QStringList fehler;
  QHash<QString, int> gesehen;
  for (const QWidget* eingabe : eingaben(form)) {
    if (eingabe->objectName().isEmpty())
      fehler << QStringLiteral("ohne Namen: ") + bezeichnung(eingabe);
    else if (++gesehen[eingabe->objectName()] == 2)
      fehler << QStringLiteral("zweimal derselbe Name: ") + bezeichnung(eingabe);
    if (vorlesename(eingabe).trimmed().isEmpty())
      fehler << QStringLiteral("ohne Beschriftung: ") + bezeichnung(eingabe);
  }
  return fehler;
}

QStringList gleichnamig(QWidget* form) {
  QStringList fehler;
  QHash<QString, QString> gesehen;
  for (const QWidget* eingabe : eingaben(form)) {
    if (!ist<QLineEdit, QPlainTextEdit>(eingabe)) continue;
    const QString name = vorlesename(eingabe).remove(u'&');
    if (gesehen.contains(name))
      fehler << QStringLiteral("zweimal \"%1\": %2 und %3")
                    .arg(name, gesehen[name], bezeichnung(eingabe));
    gesehen[name] = bezeichnung(eingabe);
  }
  return fehler;
}

QStringList mnemonics(QWidget* form) {
  Buchstaben buchstaben;
  for (QWidget* w : sichtbare(form)) {
    if (liegtIn<QToolBar>(w) || istTeil(w)) continue;
    if (const auto* knopf = qobject_cast<QAbstractButton*>(w))
      buchstaben.nimm(knopf->text(), bezeichnung(w));
    else if (const auto* label = qobject_cast<QLabel*>(w); label != nullptr && label->buddy())
      buchstaben.nimm(label->text(), bezeichnung(w));
    else if (const auto* gruppe = qobject_cast<QGroupBox*>(w))
      buchstaben.nimm(gruppe->title(), gruppe->title());
    else if (const auto* reiter = qobject_cast<QTabBar*>(w))
      for (int i = 0; i < reiter->count(); ++i)
        buchstaben.nimm(reiter->tabText(i), reiter->tabText(i));
    else if (const auto* leiste = qobject_cast<QMenuBar*>(w))
      for (const QAction* aktion : leiste->actions())
        buchstaben.nimm(aktion->text(), aktion->text());
  }
  return buchstaben.fehler;
}

QStringList doppeltImMenü(QWidget* form) {
  QStringList doppelt;
  for (const auto* menü : form->findChildren<QMenu*>()) {
    QHash<QChar, int> anzahl;
    for (const QAction* aktion : menü->actions())
      if (const QChar buchstabe = mnemonic(aktion->text()); buchstabe.isLetterOrNumber())
        if (++anzahl[buchstabe] == 2) doppelt << menü->objectName() + u':' + buchstabe;
  }
  doppelt.sort();
  return doppelt;
}

QList<QWidget*> tabfolge(QWidget* form) {
  QList<QWidget*> folge;
  constexpr int Höchstens = 300;
  QWidget* hier = form->focusWidget();
  for (int i = 0; i < Höchstens && hier != nullptr && !folge.contains(hier); ++i) {
    folge << hier;
    QTest::keyClick(hier, Qt::Key_Tab);
    hier = QApplication::focusWidget();
  }
  return folge;
}

QStringList tabregeln(QWidget* form) {
  QStringList fehler;
  const QList<QWidget*> folge = tabfolge(form);
  if (folge.isEmpty()) return {QStringLiteral("nichts hat die Tastatur")};
  if (QApplication::focusWidget() != folge.first())
    fehler << QStringLiteral("die Tabulatortaste kommt nicht zum Anfang zurück, sondern zu ") +
                  bezeichnung(QApplication::focusWidget());

  QHash<const void*, int> halte;
  for (const QWidget* w : folge) {
    ++halte[gruppeVon(w)];
    if (!eingaben(form).contains(w) && !ist<QTabBar>(w))
      fehler << QStringLiteral("Halt bei keiner Eingabe: ") + bezeichnung(w);
  }
  for (const QWidget* eingabe : eingaben(form)) {
    if (!eingabe->isEnabled() || liegtIn<QToolBar>(eingabe)) continue;
    const int anzahl = halte.value(gruppeVon(eingabe));
    if (anzahl != 1) fehler << QStringLiteral("%1 Halte bei ").arg(anzahl) + bezeichnung(eingabe);
  }

  const QList<QWidget*> runde = vonGruppenanfang(folge);
  QList<const QWidget*> verlassen;
  for (qsizetype i = 1; i < runde.size(); ++i) {
    const QWidget* vorher = runde[i - 1];
    const QWidget* jetzt = runde[i];
    if (vorher->parentWidget() != jetzt->parentWidget()) {
      // What stands in the window itself is no group.
      if (vorher->parentWidget() != form) verlassen << vorher->parentWidget();
      if (verlassen.contains(jetzt->parentWidget()))
        fehler << QStringLiteral("zurück in eine Gruppe: ") + bezeichnung(jetzt);
    } else if (liegtDavor(lage(jetzt), lage(vorher))) {
      fehler << QStringLiteral("zurück von ") + bezeichnung(vorher) + QStringLiteral(" zu ") +
                    bezeichnung(jetzt);
    }
  }
  return fehler;
}

QStringList beschnitten(QWidget* form) {
  // Layouts within layouts settle one after the other.
  for (QSize vorher; vorher != form->size();) {
    vorher = form->size();
    form->resize(1, 1);
    QTest::qWait(1);
  }
  QStringList fehler;
  const QList<QWidget*> alle = sichtbare(form);
  for (const QWidget* w : alle) {
    if (!istTeil(w) && zuEng(w))
      fehler << QStringLiteral("zu eng: %1, %2 x %3 statt %4 x %5")
                    .arg(bezeichnung(w))
                    .arg(w->width())
                    .arg(w->height())
                    .arg(w->sizeHint().width())
                    .arg(w->sizeHint().height());
    if (!zähltFürLage(w)) continue;
    if (!w->parentWidget()->rect().contains(w->geometry()))
      fehler << QStringLiteral("ragt hinaus: ") + bezeichnung(w);
    for (const QWidget* anderes : alle)
      if (anderes > w && anderes->parentWidget() == w->parentWidget() && zähltFürLage(anderes) &&
          anderes->geometry().intersects(w->geometry()))
        fehler << QStringLiteral("übereinander: ") + bezeichnung(w) + QStringLiteral(" und ") +
                      bezeichnung(anderes);
  }
  return fehler;
}

QStringList unerreichbar(QWidget* form) {
  QStringList fehler;
  QWidget* vorher = form->focusWidget();
  for (QWidget* w : eingaben(form)) {
    if (liegtIn<QToolBar>(w) || !w->isEnabled()) continue;
    w->clearFocus();
    w->setFocus();
    QApplication::processEvents();
    // A list or a long text needs no more than a few rows in sight.
    const QRect sichtbar = w->visibleRegion().boundingRect();
    if (sichtbar.size() != w->size() &&
        !(ist<QAbstractScrollArea>(w) && sichtbar.height() >= 2 * w->fontMetrics().height()))
      fehler << QStringLiteral("nicht zu erreichen: ") + bezeichnung(w);
  }
  if (vorher != nullptr) vorher->setFocus();
  return fehler;
}

QStringList verborgeneKnöpfe(QWidget* form, bool außerRollend) {
  QStringList fehler;
  for (const QWidget* w : eingaben(form))
    if (ist<QPushButton>(w) && w->visibleRegion().boundingRect().size() != w->size() &&
        !(außerRollend && liegtIn<QScrollArea>(w)))
      fehler << QStringLiteral("Knopf nicht zu sehen: ") + bezeichnung(w);
  return fehler;
}

}  // namespace Formregeln
