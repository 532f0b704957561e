#include "evaluations/forms/TW_Listengenerator.h"

#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>

#include "core/globals.h"
#include "core/main_list.h"
#include "data/forms/TS_Dateispeichern.h"
#include "data/forms/helpers_forms.h"
#include "evaluations/Listengenerator.h"
#include "output/forms/TA_Textausgabe.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Meldungen.h"
#include "platform/files/Textdatei.h"

using TZ_Variablen::AppPfad;
using TZ_Variablen::DateiErgebnis;

TW_Listengenerator::TW_Listengenerator(QWidget* öffner)
    : Datenformular("TW_Listengenerator",
                    "Listengenerator (für frei definierbare Listen - kombiniert mit beliebigem "
                    "Text)",
                    öffner) {
  aufbauen();
  verbinden();
}

void TW_Listengenerator::verbinden() {
  const auto wenn = [this](QPushButton* knopf, auto aktion) {
    Ereignis::wenn(knopf, &QPushButton::clicked, this, aktion);
  };
  wenn(m_neu, [this] { neuerText(); });
  wenn(m_laden, [this] { textLaden(); });
  wenn(m_speichern, [this] { speichern(); });
  wenn(m_speichernUnter, [this] { speichernUnter(); });
  wenn(m_drucken, [this] { drucken(); });
  wenn(m_einfügen, [this] { feldEinfügen(); });
  Ereignis::wenn(m_kom, &QListWidget::itemDoubleClicked, this, [this] { feldEinfügen(); });
  Ereignis::wenn(m_textfeld->document(), &QTextDocument::modificationChanged, this,
                 [this] { dateiZeigen(); });
  m_kom->installEventFilter(this);
}

// The list can be used without them.
void TW_Listengenerator::füllen() {
  Ereignis::ausführen(this, Listengenerator::beispieleSchreiben);
  m_textfeld->setFocus();
}

// Enter takes the field; the form's default button isn't meant there.
bool TW_Listengenerator::eventFilter(QObject* objekt, QEvent* event) {
  if (objekt == m_kom && event->type() == QEvent::KeyPress) {
    const int taste = static_cast<QKeyEvent*>(event)->key();
    if (taste == Qt::Key_Return || taste == Qt::Key_Enter) {
      feldEinfügen();
      return true;
    }
  }
  return Datenformular::eventFilter(objekt, event);
}

// Between what stands before and behind the cursor, which then stands behind the placeholder.
void TW_Listengenerator::feldEinfügen() {
  const int nummer = m_kom->currentRow();
  if (nummer < 0) return;
  m_textfeld->textCursor().insertText(Listengenerator::datenfelder()[nummer].platzhalter);
  m_textfeld->ensureCursorVisible();
  m_textfeld->setFocus();
}

// The raw text: the plain one would turn protected blanks into blanks.
QString TW_Listengenerator::text() const {
  QString text = m_textfeld->document()->toRawText();
  for (const auto ende : {QChar::ParagraphSeparator, QChar::LineSeparator})
    text.replace(QChar(ende), QChar(u'\n'));
  return text;
}

void TW_Listengenerator::setDatei(const QString& name, const QString& text) {
  m_datei = name;
  m_textfeld->setPlainText(text);
  m_textfeld->document()->setModified(false);
  dateiZeigen();
  m_textfeld->setFocus();
}

void TW_Listengenerator::dateiZeigen() {
  QString text = m_datei.isEmpty() ? QStringLiteral("Neuer Text") : m_datei;
  if (m_textfeld->document()->isModified()) text += QStringLiteral(" (geändert)");
  m_dateiname->setText(text);
}

void TW_Listengenerator::neuerText() {
  if (darfWeg(Listengenerator::neuFrage())) setDatei({}, {});
}

void TW_Listengenerator::textLaden() {
  if (!darfWeg(Listengenerator::ladenFrage())) return;
  const QString name = DateiWaehlen(AppPfad + u'*' + Listengenerator::Endung, this);
  if (name == u"-")
    Meldungen::Hinweis(Listengenerator::keineDateiText(), this);
  else if (!name.isEmpty())
    setDatei(name, Textdatei::lesenGanz(AppPfad + name));
}

bool TW_Listengenerator::speichern() {
  return m_datei.isEmpty() ? speichernUnter() : schreiben(m_datei);
}

bool TW_Listengenerator::speichernUnter() {
  const qsizetype endung = m_datei.lastIndexOf(u'.');
  TS_Dateispeichern dialog(this, m_datei.left(endung));
  dialog.zeigen();
  if (DateiErgebnis.isEmpty()) return false;
  const QString name = DateiErgebnis + Listengenerator::Endung;
  if (Textdatei::existiert(AppPfad + name) &&
      !Meldungen::Frage(Listengenerator::überschreibenFrage(name), Meldungen::Vorgabe::Nein, this))
    return false;
  return schreiben(name);
}

bool TW_Listengenerator::schreiben(const QString& name) {
  Listengenerator::sichern(name, text());
  if (const QString fremde = Listengenerator::fremdeZeichen(text()); !fremde.isEmpty())
    Meldungen::Hinweis(
        QString("Diese Zeichen gibt es in der Datei nicht; dort steht für jedes ein Fragezeichen: "
                "%1")
            .arg(fremde),
        this);
  m_datei = name;
  m_textfeld->document()->setModified(false);
  dateiZeigen();
  return true;
}

// A new text without a word in it is nothing to keep.
bool TW_Listengenerator::darfWeg(const QString& frage) {
  const bool geändert =
      m_textfeld->document()->isModified() && !(m_datei.isEmpty() && text().trimmed().isEmpty());
  return !geändert || !Meldungen::Frage(frage, Meldungen::Vorgabe::Ja, this) || speichern();
}

void TW_Listengenerator::drucken() {
  const Hauptliste& liste = *hauptliste();
  QList<qint64> völker;
  for (const int zeile : liste.markierteZeilen())
    völker += liste.zelle(zeile, QStringLiteral("ID")).toLongLong();
  if (völker.isEmpty()) {
    Meldungen::Hinweis(Listengenerator::nichtsMarkiertText(), this);
    return;
  }
  {
    const Ereignis::Sanduhr sanduhr;
    Listengenerator::listen(m_db, text(), völker, m_sevText1->inhalt().toInt());
  }
  TA_Textausgabe::öffnen(this);
}

// A text that isn't saved stays in the window, so that it can be opened once more.
void TW_Listengenerator::done(int ergebnis) {
  bool geht = false;
  Ereignis::ausführen(this, [&] { geht = darfWeg(Listengenerator::schließenFrage()); });
  if (geht) Datenformular::done(ergebnis);
}
