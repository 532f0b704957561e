#include "platform/controls/Formular.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QTabWidget>

namespace {

std::function<void(QWidget*, const QString&)>& hilfeRufer() {
  static std::function<void(QWidget*, const QString&)> hilfe;
  return hilfe;
}

QString& ablageDatei() {
  static QString pfad;
  return pfad;
}

QString ohneMnemonic(const QString& text) {
  QString ergebnis;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == u'&' && i + 1 < text.size()) ++i;
    ergebnis += text[i];
  }
  ergebnis = ergebnis.trimmed();
  if (ergebnis.endsWith(u':')) ergebnis.chop(1);
  return ergebnis.trimmed();
}

// A window kept for a screen that is gone or smaller now comes back onto a screen there is.
void inSichtbaren(QWidget* fenster) {
  QScreen* schirm = QGuiApplication::screenAt(fenster->frameGeometry().center());
  if (schirm == nullptr) schirm = QGuiApplication::primaryScreen();
  if (schirm == nullptr || fenster->isMaximized()) return;
  const QRect frei = schirm->availableGeometry();
  const QSize rahmen = fenster->frameGeometry().size() - fenster->size();
  const QSize groesse =
      fenster->size().boundedTo(frei.size() - rahmen).expandedTo(fenster->minimumSize());
  fenster->resize(groesse);
  const QSize ganz = groesse + rahmen;
  const int x = std::max(frei.left(), std::min(fenster->x(), frei.right() + 1 - ganz.width()));
  const int y = std::max(frei.top(), std::min(fenster->y(), frei.bottom() + 1 - ganz.height()));
  fenster->move(x, y);
}

// From a button beside the pages too, where a tab widget takes the keys only on its pages.
bool reiterWechseln(const QWidget* fenster, const QKeyEvent* event) {
  const bool vor = event->key() == Qt::Key_Tab;
  auto* reiter = fenster->findChild<QTabWidget*>();
  if ((!vor && event->key() != Qt::Key_Backtab) || !(event->modifiers() & Qt::ControlModifier) ||
      reiter == nullptr)
    return false;
  const int zahl = reiter->count();
  reiter->setCurrentIndex((reiter->currentIndex() + (vor ? 1 : zahl - 1)) % zahl);
  return true;
}

QString ablageSchluessel(const QWidget* fenster) {
  return QStringLiteral("Fenster/") + fenster->objectName();
}

}  // namespace

Formular::Formular(const QString& name, const QString& titel, QWidget* oeffner)
    : QDialog(oeffner != nullptr ? oeffner->window() : nullptr) {
  setObjectName(name);
  setWindowTitle(titel);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setWindowFlag(Qt::WindowMaximizeButtonHint, true);
  setSizeGripEnabled(true);
}

// A form destroyed while it is shown hides its controls once more, when the form's own part is gone
// already: none of them may call a handler then.
Formular::~Formular() {
  for (QObject* teil : findChildren<QObject*>()) teil->disconnect(this);
}

void Formular::zeigen() {
  setModal(true);
  exec();
}

void Formular::setVisible(bool sichtbar) {
  // A dialog only learns of its default button when that is set within it; otherwise it takes the
  // first button that gets the focus, for good.
  if (sichtbar && !m_vorgabeFest) {
    m_vorgabeFest = true;
    for (QPushButton* knopf : findChildren<QPushButton*>()) {
      if (!knopf->isDefault()) continue;
      knopf->setDefault(false);  // else setting it again does nothing
      knopf->setDefault(true);
      break;
    }
  }
  QDialog::setVisible(sichtbar);
}

void Formular::setHilfe(std::function<void(QWidget*, const QString&)> hilfe) {
  hilfeRufer() = std::move(hilfe);
}

void Formular::hilfeZeigen() {
  if (hilfeRufer()) hilfeRufer()(this, objectName());
}

QLabel* Formular::beschriften(const QString& text, QWidget* eingabe) {
  auto* schild = new QLabel(text);
  schild->setBuddy(eingabe);
  eingabe->setAccessibleName(ohneMnemonic(text));
  return schild;
}

void Formular::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F1) {
    hilfeZeigen();
    event->accept();
    return;
  }
  if (reiterWechseln(this, event)) return event->accept();
  QDialog::keyPressEvent(event);
}

void Formular::showEvent(QShowEvent* event) {
  if (!event->spontaneous() && !m_geometrieGeladen) {
    m_geometrieGeladen = true;
    const QByteArray gemerkt = Fensterablage::lesen(ablageSchluessel(this)).toByteArray();
    if (!gemerkt.isEmpty() && restoreGeometry(gemerkt)) inSichtbaren(this);
  }
  QDialog::showEvent(event);
}

void Formular::done(int ergebnis) {
  if (isVisible()) Fensterablage::schreiben(ablageSchluessel(this), saveGeometry());
  QDialog::done(ergebnis);
}

namespace Fensterablage {

void setDatei(const QString& pfad) { ablageDatei() = pfad; }

QVariant lesen(const QString& schluessel) {
  if (ablageDatei().isEmpty()) return {};
  return QSettings(ablageDatei(), QSettings::IniFormat).value(schluessel);
}

// A folder that can't be written only costs the remembered sizes.
void schreiben(const QString& schluessel, const QVariant& wert) {
  if (ablageDatei().isEmpty()) return;
  QSettings ablage(ablageDatei(), QSettings::IniFormat);
  ablage.setValue(schluessel, wert);
  ablage.sync();
}

}  // namespace Fensterablage
