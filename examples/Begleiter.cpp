#include "Begleiter.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QListWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int taktMs = 60;
constexpr int geduld = 300;  // beats until a form that doesn't come ends the tour

[[noreturn]] void abbrechen(const QString& grund) {
  std::fprintf(stderr, "The tour stops: %s\n", qPrintable(grund));
  std::exit(1);
}

QWidget* oberstes() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  for (QWidget* fenster : QApplication::topLevelWidgets())
    if (fenster->isVisible() && fenster->objectName() == QLatin1String("TA_TOVA")) return fenster;
  return nullptr;
}

template <typename T>
T* finde(QWidget* form, const QString& name) {
  T* ding = form->findChild<T*>(name);
  if (!ding) abbrechen(QStringLiteral("%1 has no %2").arg(form->objectName(), name));
  return ding;
}

}  // namespace

Begleiter::Begleiter(const QString& bildordner) : m_bildordner(bildordner) {
  QDir().mkpath(bildordner);
  m_takt.setSingleShot(true);  // a running timer is not fired again within its own handler
  QObject::connect(&m_takt, &QTimer::timeout, &m_takt, [this] { weiter(); });
}

Begleiter& Begleiter::schritt(const QString& form, Aktion aktion) {
  m_schritte << Schritt{form, std::move(aktion)};
  return *this;
}

Begleiter& Begleiter::bild(const QString& form, const QString& name) {
  return schritt(form, [this, name](QWidget* fenster) { fotografieren(fenster, name); });
}

void Begleiter::starten() { m_takt.start(taktMs); }

QString Begleiter::offen() const {
  return m_nächster < m_schritte.size() ? m_schritte[m_nächster].form : QString();
}

void Begleiter::weiter() {
  if (m_nächster >= m_schritte.size()) return;
  m_takt.start(taktMs);  // first: the action may open a form and come back only when that closes
  const Schritt schritt = m_schritte[m_nächster];
  QWidget* fenster = oberstes();
  if (!fenster || fenster->objectName() != schritt.form) {
    if (++m_gewartet > geduld)
      abbrechen(
          QStringLiteral("waiting for %1, on top is %2")
              .arg(schritt.form, fenster ? fenster->objectName() : QStringLiteral("nothing")));
    return;
  }
  // Only an active window's inputs learn that the focus comes and goes.
  if (!fenster->isActiveWindow() && ++m_gewartet < 10) {
    fenster->activateWindow();
    return;
  }
  m_gewartet = 0;
  ++m_nächster;
  schritt.aktion(fenster);
}

void Begleiter::fotografieren(QWidget* form, const QString& name) {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  form->grab().save(QDir(m_bildordner).filePath(name + ".png"));
}

void Hand::tippen(QWidget* form, const QString& feld, const QString& text) {
  QWidget* eingabe = finde<QWidget>(form, feld);
  eingabe->setFocus(Qt::TabFocusReason);
  if (qobject_cast<QComboBox*>(eingabe) == nullptr) {
    QTest::keyClick(eingabe, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(eingabe, Qt::Key_Delete);
  }
  // Umlauts have no key of their own here; they come as an input method gives them.
  for (const QChar& zeichen : text) {
    if (zeichen.unicode() < 128) {
      QTest::keyClick(eingabe, zeichen.toLatin1());
    } else {
      QKeyEvent taste(QEvent::KeyPress, 0, Qt::NoModifier, QString(zeichen));
      QCoreApplication::sendEvent(eingabe, &taste);
    }
  }
  QTest::keyClick(eingabe, Qt::Key_Tab);
}

void Hand::drücken(QWidget* form, const QString& knopf) {
  auto* taste = finde<QAbstractButton>(form, knopf);
  if (!taste->isEnabled()) abbrechen(knopf + " is disabled");
  QTest::mouseClick(taste, Qt::LeftButton, Qt::NoModifier,
                    QPoint(qMin(12, taste->width() / 2), taste->height() / 2));
}

void Hand::ankreuzen(QWidget* form, const QString& kästchen) {
  if (!finde<QAbstractButton>(form, kästchen)->isChecked()) drücken(form, kästchen);
}

void Hand::anklicken(QWidget* form, const QString& liste, const QString& text) {
  auto* wahl = finde<QListWidget>(form, liste);
  const auto treffer = wahl->findItems(text, Qt::MatchExactly);
  if (treffer.isEmpty()) abbrechen(QStringLiteral("%1 has no entry %2").arg(liste, text));
  wahl->scrollToItem(treffer.first());
  QTest::mouseClick(wahl->viewport(), Qt::LeftButton, Qt::NoModifier,
                    wahl->visualItemRect(treffer.first()).center());
}

void Hand::wählen(QWidget* form, const QString& eintrag) {
  auto* aktion = finde<QAction>(form, eintrag);
  if (!aktion->isEnabled()) abbrechen(eintrag + " is disabled");
  aktion->trigger();
}

void Hand::reiterWählen(QWidget* form, const QString& reiter, int nummer) {
  QTabBar* leiste = finde<QTabWidget>(form, reiter)->tabBar();
  QTest::mouseClick(leiste, Qt::LeftButton, Qt::NoModifier, leiste->tabRect(nummer).center());
}

void Hand::markieren(QWidget* form, const QString& gitter, const QList<int>& zeilen) {
  auto* tabelle = finde<QTableView>(form, gitter);
  bool erste = true;
  for (const int zeile : zeilen) {
    const QModelIndex index = tabelle->model()->index(zeile, 0);
    tabelle->scrollTo(index);
    QTest::mouseClick(tabelle->viewport(), Qt::LeftButton,
                      erste ? Qt::NoModifier : Qt::ControlModifier,
                      tabelle->visualRect(index).center());
    erste = false;
  }
}
