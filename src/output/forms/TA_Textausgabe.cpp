#include "output/forms/TA_Textausgabe.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
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
  static QString name = QString::fromLatin1(ÜblicheSchrift);
  return name;
}

}  // namespace

TA_Textausgabe::TA_Textausgabe(QWidget* öffner)
    : Formular(QStringLiteral("TA_Textausgabe"), QStringLiteral("Listen-Ausgabe"), öffner) {
  aufbauen();
  verbinden();
}

void TA_Textausgabe::öffnen(QWidget* öffner) {
  static QPointer<TA_Textausgabe> form;
  if (!form)
    form = new TA_Textausgabe(öffner);
  else if (öffner != nullptr && form->parentWidget() != öffner->window())
    form->setParent(öffner->window(), form->windowFlags());
  form->zeigen();
}

void TA_Textausgabe::füllen() {
  schriftenFüllen();
  einstellungenSetzen(Textausgabe::laden());
  FormModus.clear();
  m_t->clear();
  if (Textausgabe::schriftUnpassend(m_kom->currentText())) hinweis(Textausgabe::schriftHinweis());
  setWindowTitle(QStringLiteral("Listen-Ausgabe ") + AusgabeDatei);
  textLesen();
  m_t->setFocus();
}

void TA_Textausgabe::schriftenFüllen() {
  m_schriften = schriftliste(Druck::schriften(true), Druck::schriften(false));
  const QSignalBlocker still(m_kom);
  m_kom->clear();
  for (const Schriftwahl& wahl : m_schriften) m_kom->addItem(wahl.name);
  m_kom->setCurrentIndex(schriftIndex(m_schriften, schriftname()));
}

void TA_Textausgabe::einstellungenSetzen(const Textausgabe::Einstellungen& e) {
  m_druckformat[e.quer ? 1 : 0]->setChecked(true);
  m_kon[0]->setChecked(e.fett);
  m_kon[1]->setChecked(e.kursiv);
  m_tz->setText(QString::number(e.rand));
  schriftgrößeSetzen(e.größe);
}

Textausgabe::Einstellungen TA_Textausgabe::einstellungen() const {
  return {m_druckformat[1]->isChecked(), m_kon[0]->isChecked(), m_kon[1]->isChecked(),
          schriftgröße(), Textausgabe::rand(m_tz->text())};
}

void TA_Textausgabe::textLesen() {
  if (!Textdatei::existiert(AusgabeDatei)) {
    hinweis(Textausgabe::fehltText(AusgabeDatei));
    return;
  }
  const Textausgabe::Anzeige anzeige = Textausgabe::lesen(AusgabeDatei);
  m_t->setPlainText(anzeige.text);
  if (anzeige.zuGroß) hinweis(Textausgabe::zuGroßText());
}

int TA_Textausgabe::schriftgröße() const { return m_größe->currentText().toInt(); }

// The list holds the sizes that are kept; a smaller one, reached by the buttons, joins it for now.
void TA_Textausgabe::schriftgrößeSetzen(int punkt) {
  const QSignalBlocker still(m_größe);
  while (m_größe->count() > 0 && m_größe->itemText(0).toInt() < Textausgabe::KleinsteGröße)
    m_größe->removeItem(0);
  const QString text = QString::number(punkt);
  if (punkt < Textausgabe::KleinsteGröße) m_größe->insertItem(0, text);
  m_größe->setCurrentIndex(m_größe->findText(text));
  schriftZeigen();
}

QFont TA_Textausgabe::schrift() const {
  const int nummer = m_kom->currentIndex();
  QFont f(nummer < 0 ? QString::fromLatin1(ÜblicheSchrift) : m_schriften[nummer].familie);
  f.setStyleHint(QFont::Monospace);
  f.setPointSize(schriftgröße());
  f.setBold(m_kon[0]->isChecked());
  f.setItalic(m_kon[1]->isChecked());
  f.setKerning(false);
  return f;
}

void TA_Textausgabe::schriftZeigen() { m_t->setFont(schrift()); }

void TA_Textausgabe::randBegrenzen() {
  const QString text = Textausgabe::randNachTippen(m_tz->text());
  if (text != m_tz->text()) m_tz->setText(text);
}

void TA_Textausgabe::textDrucken() {
  // The raw text: the plain one would turn protected blanks into blanks.
  QString text = m_t->document()->toRawText();
  text.replace(QChar(QChar::ParagraphSeparator), CRLF);
  drucke(Textausgabe::druckaufSchreiben(text), Textausgabe::Druckweg::Text);
}

void TA_Textausgabe::dateiDrucken() { drucke(AusgabeDatei, Textausgabe::Druckweg::Datei); }

// The margin counts as it is when the button is pressed.
void TA_Textausgabe::drucke(const QString& datei, Textausgabe::Druckweg weg) {
  const QStringList zeilen = Textdatei::lesen(datei);
  const int rand = Textausgabe::rand(m_tz->text());
  Druck::Auftrag auftrag;
  auftrag.titel = QStringLiteral("Listen-Ausgabe");
  auftrag.schrift = schrift();
  auftrag.quer = m_druckformat[1]->isChecked();
  auftrag.umbruch = [&](const Druck::Satzspiegel& spiegel) {
    return Textausgabe::seiten(zeilen, weg, rand, spiegel.zeilen, spiegel.passend);
  };
  Druck::drucken(auftrag, this);
}

void TA_Textausgabe::hinweis(const QString& text) {
  Meldungen::Hinweis(text, isVisible() ? this : parentWidget());
}

void TA_Textausgabe::done(int ergebnis) {
  if (m_kom->currentIndex() >= 0) schriftname() = m_kom->currentText();
  Textausgabe::sichern(einstellungen());
  Formular::done(ergebnis);
}

// Ctrl and the wheel change the size as the buttons do, so that list and text agree.
bool TA_Textausgabe::eventFilter(QObject* objekt, QEvent* event) {
  if (objekt == m_t->viewport() && event->type() == QEvent::Wheel) {
    const auto* rad = static_cast<QWheelEvent*>(event);
    if ((rad->modifiers() & Qt::ControlModifier) != 0) {
      const int richtung = rad->angleDelta().y() > 0 ? 1 : -1;
      schriftgrößeSetzen(Textausgabe::größeNach(schriftgröße(), richtung));
      return true;
    }
  }
  return Formular::eventFilter(objekt, event);
}
