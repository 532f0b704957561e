#include "output/forms/TA_Textausgabe.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QScreen>
#include <QTextDocument>
#include <QWheelEvent>

#include "core/globals.h"
#include "platform/controls/Druck.h"
#include "platform/controls/Meldungen.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;

namespace {

// The font's name is kept until the program ends.
QString& schriftname() {
  static QString name = QString::fromLatin1(UeblicheSchrift);
  return name;
}

}  // namespace

TA_Textausgabe::TA_Textausgabe(QWidget* oeffner)
    : Formular(QStringLiteral("TA_Textausgabe"), QStringLiteral("Listen-Ausgabe"), oeffner) {
  aufbauen();
  verbinden();
}

void TA_Textausgabe::oeffnen(QWidget* oeffner) {
  static QPointer<TA_Textausgabe> form;
  if (!form)
    form = new TA_Textausgabe(oeffner);
  else if (oeffner != nullptr && form->parentWidget() != oeffner->window())
    form->setParent(oeffner->window(), form->windowFlags());
  form->zeigen();
}

void TA_Textausgabe::zeigen() {
  laden();
  Formular::zeigen();
}

void TA_Textausgabe::laden() {
  schriftenFuellen();
  einstellungenSetzen(Textausgabe::laden());
  FormModus.clear();
  t->clear();
  if (Textausgabe::schriftUnpassend(kom->currentText())) hinweis(Textausgabe::schriftHinweis());
  inBildschirm();
  setWindowTitle(QStringLiteral("Listen-Ausgabe ") + AusgabeDatei);
  textLesen();
  t->setFocus();
}

void TA_Textausgabe::schriftenFuellen() {
  m_schriften = schriftliste(Druck::schriften(true), Druck::schriften(false));
  const QSignalBlocker still(kom);
  kom->clear();
  for (const Schriftwahl& wahl : m_schriften) kom->addItem(wahl.name);
  kom->setCurrentIndex(schriftIndex(m_schriften, schriftname()));
}

void TA_Textausgabe::einstellungenSetzen(const Textausgabe::Einstellungen& e) {
  druckformat[e.quer ? 1 : 0]->setChecked(true);
  kon[0]->setChecked(e.fett);
  kon[1]->setChecked(e.kursiv);
  tz->setText(QString::number(e.rand));
  schriftgroesseSetzen(e.groesse);
}

Textausgabe::Einstellungen TA_Textausgabe::einstellungen() const {
  return {druckformat[1]->isChecked(), kon[0]->isChecked(), kon[1]->isChecked(), schriftgroesse(),
          Textausgabe::rand(tz->text())};
}

void TA_Textausgabe::textLesen() {
  if (!Textdatei::existiert(AusgabeDatei)) {
    hinweis(Textausgabe::fehltText(AusgabeDatei));
    return;
  }
  const Textausgabe::Anzeige anzeige = Textausgabe::lesen(AusgabeDatei);
  t->setPlainText(anzeige.text);
  if (anzeige.zuGross) hinweis(Textausgabe::zuGrossText());
}

// Lists are wide: as large as the screen allows. A size that was remembered comes at the showing.
void TA_Textausgabe::inBildschirm() {
  if (isVisible()) return;
  const QScreen* schirm = parentWidget() != nullptr ? parentWidget()->screen() : screen();
  constexpr double Anteil = 0.9;  // leaves room for the window's own frame
  if (schirm != nullptr)
    resize((schirm->availableGeometry().size() * Anteil).expandedTo(minimumSizeHint()));
}

int TA_Textausgabe::schriftgroesse() const { return größe->currentText().toInt(); }

// The list holds the sizes that are kept; a smaller one, reached by the buttons, joins it for now.
void TA_Textausgabe::schriftgroesseSetzen(int groesse) {
  const QSignalBlocker still(größe);
  while (größe->count() > 0 && größe->itemText(0).toInt() < Textausgabe::KleinsteGroesse)
    größe->removeItem(0);
  const QString text = QString::number(groesse);
  if (groesse < Textausgabe::KleinsteGroesse) größe->insertItem(0, text);
  größe->setCurrentIndex(größe->findText(text));
  schriftZeigen();
}

QFont TA_Textausgabe::schrift() const {
  const int nummer = kom->currentIndex();
  QFont f(nummer < 0 ? QString::fromLatin1(UeblicheSchrift) : m_schriften[nummer].familie);
  f.setStyleHint(QFont::Monospace);
  f.setPointSize(schriftgroesse());
  f.setBold(kon[0]->isChecked());
  f.setItalic(kon[1]->isChecked());
  f.setKerning(false);
  return f;
}

void TA_Textausgabe::schriftZeigen() { t->setFont(schrift()); }

void TA_Textausgabe::randBegrenzen() {
  const QString text = Textausgabe::randNachTippen(tz->text());
  if (text != tz->text()) tz->setText(text);
}

void TA_Textausgabe::textDrucken() {
  // The raw text: the plain one would turn protected blanks into blanks.
  QString text = t->document()->toRawText();
  text.replace(QChar(QChar::ParagraphSeparator), CRLF);
  drucke(Textausgabe::druckaufSchreiben(text), Textausgabe::Druckweg::Text);
}

void TA_Textausgabe::dateiDrucken() { drucke(AusgabeDatei, Textausgabe::Druckweg::Datei); }

// The margin counts as it is when the button is pressed.
void TA_Textausgabe::drucke(const QString& datei, Textausgabe::Druckweg weg) {
  const QStringList zeilen = Textdatei::lesen(datei);
  const int rand = Textausgabe::rand(tz->text());
  Druck::Auftrag auftrag;
  auftrag.titel = QStringLiteral("Listen-Ausgabe");
  auftrag.schrift = schrift();
  auftrag.quer = druckformat[1]->isChecked();
  auftrag.umbruch = [&](const Druck::Satzspiegel& spiegel) {
    return Textausgabe::seiten(zeilen, weg, rand, spiegel.zeilen, spiegel.passend);
  };
  Druck::drucken(auftrag, this);
}

void TA_Textausgabe::hinweis(const QString& text) {
  Meldungen::Hinweis(text, isVisible() ? this : parentWidget());
}

void TA_Textausgabe::done(int ergebnis) {
  if (kom->currentIndex() >= 0) schriftname() = kom->currentText();
  Textausgabe::sichern(einstellungen());
  Formular::done(ergebnis);
}

// Ctrl and the wheel change the size as the buttons do, so that list and text agree.
bool TA_Textausgabe::eventFilter(QObject* objekt, QEvent* event) {
  if (objekt == t->viewport() && event->type() == QEvent::Wheel) {
    const auto* rad = static_cast<QWheelEvent*>(event);
    if ((rad->modifiers() & Qt::ControlModifier) != 0) {
      const int richtung = rad->angleDelta().y() > 0 ? 1 : -1;
      schriftgroesseSetzen(Textausgabe::groesseNach(schriftgroesse(), richtung));
      return true;
    }
  }
  return Formular::eventFilter(objekt, event);
}
