// The entry field's focus, keys and mouse, and what it says about keys that it can't take.

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/controls/Auswahlliste.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Eingaberegel.h"
#include "platform/controls/Feldhinweis.h"

namespace {

bool istEingabetaste(const QKeyEvent& taste) {
  return taste.key() == Qt::Key_Return || taste.key() == Qt::Key_Enter;
}

// Keys that start an action elsewhere while the focus stays in the field.
bool istFunktionstaste(const QKeyEvent& taste) {
  return taste.key() >= Qt::Key_F1 && taste.key() <= Qt::Key_F35;
}

bool istKürzel(const QKeyEvent& taste) {
  return taste.modifiers() == Qt::AltModifier && taste.key() > Qt::Key_Space &&
         taste.key() < Qt::Key_Escape;
}

// Keys with which the user takes up a refused entry again.
bool setztNeuAn(const QKeyEvent& taste) {
  switch (taste.key()) {
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
      return true;
    default:
      return taste.matches(QKeySequence::SelectAll) || taste.matches(QKeySequence::Cut) ||
             taste.matches(QKeySequence::Undo);
  }
}

}  // namespace

// ---- focus ----

void Eingabefeld::fokussieren() {
  setFocus(Qt::OtherFocusReason);
  entsperren();
  m_erstklick = false;
  selectAll();
}

void Eingabefeld::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  const auto anlass = event->reason();
  m_erstklick = anlass == Qt::MouseFocusReason;
  // A choice is one piece.
  if (art() == Art::Auswahl || m_erstklick || anlass == Qt::OtherFocusReason) selectAll();
}

void Eingabefeld::focusOutEvent(QFocusEvent* event) {
  const auto anlass = event->reason();
  const bool verlassenWird =
      anlass != Qt::PopupFocusReason && anlass != Qt::ActiveWindowFocusReason;
  if (verlassenWird) abgeben();
  if (anlass == Qt::ActiveWindowFocusReason) abschließen();
  if (m_aufklappliste != nullptr) m_aufklappliste->hide();
  m_erstklick = false;
  QLineEdit::focusOutEvent(event);
  if (verlassenWird) Q_EMIT verlassen();
}

// The first click selects all, wherever it falls; who draws the mouse over a part means that part.
void Eingabefeld::mousePressEvent(QMouseEvent* event) {
  entsperren();
  m_klickort = event->pos();
  QLineEdit::mousePressEvent(event);
}

void Eingabefeld::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (!m_erstklick || event->button() != Qt::LeftButton) return;
  m_erstklick = false;
  const int weg = (event->pos() - m_klickort).manhattanLength();
  if (!hasSelectedText() || weg < QApplication::startDragDistance()) selectAll();
}

void Eingabefeld::dropEvent(QDropEvent* event) {
  entsperren();
  QLineEdit::dropEvent(event);
}

// ---- leaving ----

void Eingabefeld::abgeben() {
  vorschlagNehmen();
  abschließen();
  zahlSetzen();
  m_suche.neuBeginnen();
  entsperren();
  if (m_hinweis != nullptr) m_hinweis->verblasse();
}

void Eingabefeld::zahlSetzen() {
  if (art() != Art::Dezimal || isReadOnly()) return;
  const QString fertig = Eingaberegel::zahlform(text());
  if (fertig == text()) return;
  setInhalt(fertig);
  // "1.239" could have gone on as thousands; now it is a number with three decimals.
  if (!Eingaberegel::passt(m_beschreibung, fertig))
    zeigeHinweis(Eingaberegel::grund(m_beschreibung, {}, fertig, static_cast<int>(fertig.size())));
}

// The text that is marked in the open list, else the only one that begins with what was typed.
void Eingabefeld::vorschlagNehmen() {
  QString vorschlag = m_vorschlag;
  if (m_aufklappliste != nullptr && m_aufklappliste->isVisible()) {
    if (const QString markiert = m_aufklappliste->markiert(); !markiert.isEmpty())
      vorschlag = markiert;
    m_aufklappliste->hide();
  }
  m_vorschlag.clear();
  if (!vorschlag.isEmpty() && vorschlag != text()) wählen(vorschlag);
}

// ---- keys ----

bool Eingabefeld::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    auto* taste = static_cast<QKeyEvent*>(event);
    if (m_aufklappliste != nullptr && m_aufklappliste->nimmtTaste(taste)) {
      event->accept();
      return true;
    }
    if (istFunktionstaste(*taste)) abschließen();
    if (istKürzel(*taste) && !taste->isAutoRepeat()) {
      abgeben();
      Q_EMIT verlassen();
    }
  }
  return QLineEdit::event(event);
}

void Eingabefeld::keyPressEvent(QKeyEvent* event) {
  if (m_aufklappliste != nullptr && m_aufklappliste->taste(event)) {
    if (!m_aufklappliste->isVisible()) m_vorschlag.clear();  // Esc keeps what was typed
    return;
  }
  const bool altUnten = event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier;
  const bool unten = event->key() == Qt::Key_Down && art() == Art::Auswahl;
  if (altUnten || unten || event->key() == Qt::Key_F4) {
    if (event->key() != Qt::Key_F4 && !angebot().isEmpty())
      listeÖffnen();
    else
      aufklappen();
    event->accept();
    return;
  }
  if (setztNeuAn(*event)) entsperren();
  if (istEingabetaste(*event) && !event->isAutoRepeat()) {
    abgeben();
    Q_EMIT verlassen();
  }
  if (zeichenTippen(*event)) {
    event->accept();
    return;
  }
  QLineEdit::keyPressEvent(event);
}

// Keys that mean something else than their character; true when it was one.
bool Eingabefeld::zeichenTippen(const QKeyEvent& event) {
  const QString zeichen = event.text();
  if (isReadOnly() || zeichen.size() != 1 || !zeichen.front().isPrint()) return false;
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) return false;
  if (art() == Art::Auswahl) {
    wahlTippen(zeichen);
    return true;
  }
  const bool trenner = zeichen == u"." || zeichen == u",";
  if (!trenner || m_gesperrt) return false;
  if (art() == Art::Dezimal && !hasSelectedText() && cursorPosition() < text().size() &&
      text()[cursorPosition()] == u',') {
    cursorForward(false);  // typing over the comma that stands there
    return true;
  }
  if (zeichen == u"." || (art() != Art::Datum && art() != Art::TagMonat)) return false;
  QKeyEvent punkt(QEvent::KeyPress, Qt::Key_Period, event.modifiers(), QStringLiteral("."));
  QLineEdit::keyPressEvent(&punkt);
  return true;
}

void Eingabefeld::wahlTippen(const QString& zeichen) {
  const QStringList& wahl = m_beschreibung.auswahl;
  bool kurz = true;  // J and N: each key is a word
  for (const QString& text : wahl) kurz = kurz && text.size() <= 1;
  if (kurz) m_suche.neuBeginnen();
  qsizetype gesucht = 0;
  const int treffer =
      m_suche.taste(zeichen, static_cast<int>(wahl.size()), static_cast<int>(wahl.indexOf(text())),
                    [&](int ort, const QString& wort) {
                      gesucht = wort.size();
                      return wahl[ort].startsWith(wort, Qt::CaseInsensitive);
                    });
  if (treffer < 0) {
    if (gesucht == 1) m_suche.neuBeginnen();  // no word has begun yet
    zeigeHinweis(QStringLiteral("nur aus der Liste"));
    return;
  }
  if (m_hinweis != nullptr) m_hinweis->verberge();
  wählen(wahl[treffer]);
  if (m_aufklappliste != nullptr && m_aufklappliste->isVisible()) listeÖffnen();
}

// ---- what the field can't take ----

// Judges a change, whichever way it came; true when it holds, perhaps with another text.
bool Eingabefeld::nimmtÄnderung(QString& text, int& ort) {
  if (text == m_vorher) return true;
  const QString neu = Eingaberegel::neues(m_vorher, text, ort);
  if (m_gesperrt && !neu.isEmpty()) return false;
  const auto ergebnis = Eingaberegel::prüfe(m_beschreibung, m_vorher, text, ort);
  const bool taste = neu.size() == 1;
  if (!neu.isEmpty() && (!ergebnis || ergebnis->gekürzt)) {
    zeigeHinweis(Eingaberegel::grund(m_beschreibung, m_vorher, text, ort));
    if (!taste) QApplication::beep();
    m_gesperrt = taste && art() != Art::Text && art() != Art::Auswahl;
  } else if (ergebnis) {
    entsperren();
    if (m_hinweis != nullptr) m_hinweis->verberge();
  }
  if (!ergebnis) return false;
  if (ergebnis->text != text) {
    m_vorher = text = ergebnis->text;
    ort = ergebnis->cursor;
  }
  return true;
}

QString Eingabefeld::hinweis() const {
  return m_hinweis != nullptr && !m_hinweis->isHidden() ? m_hinweis->text() : QString();
}

void Eingabefeld::zeigeHinweis(const QString& text) {
  if (text.isEmpty()) return;
  if (m_hinweis == nullptr) m_hinweis = new Feldhinweis(this);
  m_hinweis->zeige(text);
}

void Eingabefeld::entsperren() { m_gesperrt = false; }
