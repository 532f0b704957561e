#include "platform/controls/Formular.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QSettings>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/controls/Bauteile.h"
#include "platform/controls/Ereignis.h"

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

Formular::Weiterführung& weiterführung() {
  static Formular::Weiterführung weiter;
  return weiter;
}

// A window kept for a screen that is gone or smaller now comes back onto a screen there is.
void inSichtbaren(QWidget* fenster) {
  QScreen* schirm = QGuiApplication::screenAt(fenster->frameGeometry().center());
  if (schirm == nullptr) schirm = QGuiApplication::primaryScreen();
  if (schirm == nullptr || fenster->isMaximized()) return;
  const QRect frei = schirm->availableGeometry();
  const QSize rahmen = fenster->frameGeometry().size() - fenster->size();
  const QSize größe =
      fenster->size().boundedTo(frei.size() - rahmen).expandedTo(fenster->minimumSize());
  fenster->resize(größe);
  const QSize ganz = größe + rahmen;
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

QString ablageSchlüssel(const QWidget* fenster) {
  return QStringLiteral("Fenster/") + fenster->objectName();
}

}  // namespace

Formular::Formular(const QString& name, const QString& titel, QWidget* öffner)
    : QDialog(öffner != nullptr ? öffner->window() : nullptr) {
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
  const auto ende = qScopeGuard([form = QPointer<Formular>(this)] {
    if (form) form->loslassen();  // it may be destroyed while it is shown
  });
  laden();
  setModal(true);
  exec();
}

void Formular::laden() {
  ergreifen();
  füllen();
}

void Formular::schließen() { reject(); }

void Formular::setVisible(bool sichtbar) {
  if (sichtbar) {
    vorgabeFestmachen();
    if (!isVisible()) hinstellen();
  }
  QDialog::setVisible(sichtbar);
}

// A dialog only learns of its default button when that is set within it; otherwise it takes the
// first button that gets the focus, for good.
void Formular::vorgabeFestmachen() {
  if (m_vorgabeFest) return;
  m_vorgabeFest = true;
  for (QPushButton* knopf : findChildren<QPushButton*>()) {
    if (!knopf->isDefault()) continue;
    knopf->setDefault(false);  // else setting it again does nothing
    knopf->setDefault(true);
    return;
  }
}

// What was filled before the window is shown asks for its room only now, from the inside outwards:
// layouts that can't be seen don't tell each other.
void Formular::messbarMachen() {
  QList<QWidget*> teile = findChildren<QWidget*>();
  std::reverse(teile.begin(), teile.end());
  for (QWidget* teil : teile) {
    teil->ensurePolished();
    teil->updateGeometry();
  }
}

// Where it stood when it was closed last, else in the size that it asks for; the toolkit then puts
// it over its opener.
void Formular::hinstellen() {
  if (m_lage.isEmpty()) m_lage = Fensterablage::lesen(ablageSchlüssel(this)).toByteArray();
  winId();  // only a window that is made knows its frame, which the kept place counts in
  if (!m_lage.isEmpty() && restoreGeometry(m_lage))
    inSichtbaren(this);
  else if (!m_hingestellt && !testAttribute(Qt::WA_Resized)) {
    messbarMachen();
    Bauteile::fenstergröße(this, m_wunsch.width(), m_wunsch.height());
  }
  m_hingestellt = true;
}

void Formular::setWunschgröße(int zeichen, int zeilen) { m_wunsch = {zeichen, zeilen}; }

void Formular::zusammensetzen(QWidget* inhalt, const Fuß& fuß) {
  const auto knopf =
      fuß.ohneEnter ? Bauteile::knopfOhneEnter : [](const QString& text, const QString& name) {
        return Bauteile::knopf(text, name);
      };
  m_schließknopf = knopf(fuß.wort, fuß.schließen);
  auto* spalte = new QVBoxLayout(this);
  spalte->addWidget(inhalt, 1);
  QList<QWidget*> rechts;
  if (!fuß.hilfe.isEmpty()) {
    m_hilfeknopf = knopf(QStringLiteral("&Hilfe"), fuß.hilfe);
    Ereignis::wenn(m_hilfeknopf, &QPushButton::clicked, this, [this] { hilfeZeigen(); });
    rechts << m_hilfeknopf;
  }
  rechts << m_schließknopf;
  spalte->addWidget(Bauteile::leiste(fuß.links, rechts));
  m_fuß = fuß.links + rechts;
  Ereignis::wenn(m_schließknopf, &QPushButton::clicked, this, [this] { schließen(); });
}

void Formular::setTabfolge(QList<QWidget*> folge, const QList<QWidget*>& zuletzt) {
  folge << m_fuß << zuletzt;
  folge.removeIf([](const QWidget* control) { return control->focusPolicy() == Qt::NoFocus; });
  Bauteile::tabfolge(folge);
}

void Formular::setWeiterführung(Weiterführung weiter) { weiterführung() = std::move(weiter); }

void Formular::führtZu(QPushButton* knopf, const QString& eintrag) {
  knopf->setEnabled(gibtEs(eintrag));
  Ereignis::wenn(knopf, &QPushButton::clicked, this, [this, eintrag] { öffnen(eintrag); });
}

bool Formular::gibtEs(const QString& eintrag) {
  return weiterführung().gibtEs && weiterführung().gibtEs(eintrag);
}

void Formular::öffnen(const QString& eintrag) {
  if (gibtEs(eintrag)) weiterführung().öffne(this, eintrag);
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

void Formular::done(int ergebnis) {
  if (isVisible()) {
    m_lage = saveGeometry();
    Fensterablage::schreiben(ablageSchlüssel(this), m_lage);
  }
  QDialog::done(ergebnis);
}

namespace Fensterablage {

void setDatei(const QString& pfad) { ablageDatei() = pfad; }

QVariant lesen(const QString& schlüssel) {
  if (ablageDatei().isEmpty()) return {};
  return QSettings(ablageDatei(), QSettings::IniFormat).value(schlüssel);
}

// A folder that can't be written only costs the remembered sizes. One that was taken away isn't
// made anew, as the store of the settings would do. A lock beside the file can only be a remainder,
// since no second program works on the folder; the store would wait for it half a minute.
void schreiben(const QString& schlüssel, const QVariant& wert) {
  if (ablageDatei().isEmpty() || !QFileInfo(ablageDatei()).dir().exists()) return;
  const QFileInfo sperre(ablageDatei() + QStringLiteral(".lock"));
  if (sperre.isDir() || (sperre.exists() && !QFile::remove(sperre.filePath()))) return;
  QSettings ablage(ablageDatei(), QSettings::IniFormat);
  ablage.setValue(schlüssel, wert);
  ablage.sync();
}

}  // namespace Fensterablage
