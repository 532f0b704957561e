#include "platform/controls/Eingabefeld.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QToolButton>
#include <QValidator>
#include <cmath>

#include "platform/controls/Auswahlliste.h"
#include "platform/controls/Eingaberegel.h"
#include "platform/controls/Feldsymbole.h"
#include "platform/controls/Gestaltung.h"
#include "platform/controls/Kalender.h"
#include "platform/controls/Rechner.h"
#include "platform/locale/Deutsch.h"

namespace {

std::function<QString(const QString&)>& datumErgaenzer() {
  static std::function<QString(const QString&)> ergaenzer;
  return ergaenzer;
}

std::function<QDate()>& heuteGeber() {
  static std::function<QDate()> heute;
  return heute;
}

std::function<std::pair<int, int>()>& steuersaetze() {
  static std::function<std::pair<int, int>()> saetze;
  return saetze;
}

constexpr int EinheitAbstand = 5;

// Keys that start an action elsewhere while the focus stays in the field.
bool fuehrtWeg(const QKeyEvent& event) {
  const bool funktion = event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F35;
  const bool alt = event.modifiers() == Qt::AltModifier && event.key() != Qt::Key_Alt;
  return funktion || alt;
}

}  // namespace

// Sits where every change of the text passes: key, paste, drop, input method, completion.
class Eingabefeld::Waechter : public QValidator {
 public:
  explicit Waechter(Eingabefeld* feld) : QValidator(feld), m_feld(feld) {}

  State validate(QString& text, int& ort) const override {
    if (m_feld->m_vomProgramm) {
      m_feld->m_vomProgramm = false;
      return Acceptable;
    }
    const auto ergebnis = Eingaberegel::pruefe(m_feld->m_beschreibung, m_feld->m_vorher, text, ort);
    const bool eingefuegt = std::abs(text.size() - m_feld->m_vorher.size()) > 1;
    if (!ergebnis) {
      if (eingefuegt) QApplication::beep();
      return Invalid;
    }
    if (ergebnis->gekuerzt && eingefuegt) QApplication::beep();
    if (ergebnis->text == text) return Acceptable;
    m_feld->m_vorher = text = ergebnis->text;
    ort = ergebnis->cursor;
    return Acceptable;
  }

 private:
  Eingabefeld* m_feld;
};

Eingabefeld::Eingabefeld(QWidget* eltern) : QLineEdit(eltern) {
  setValidator(new Waechter(this));
  connect(this, &QLineEdit::textChanged, this, [this](const QString& neu) {
    m_vorher = neu;
    setWarnung(false);
    Q_EMIT inhaltGeaendert(neu);
  });
  connect(this, &QLineEdit::textEdited, this, [this](const QString& neu) {
    if (art() == Art::Auswahl || m_liste.isEmpty()) return;
    if (cursorPosition() == neu.size())
      aufklappliste()->ergaenzen(m_liste, neu);
    else if (m_aufklappliste != nullptr)
      m_aufklappliste->hide();
  });
}

void Eingabefeld::einrichten(const Beschreibung& beschreibung) {
  m_beschreibung = beschreibung;
  m_liste.clear();
  if (m_aufklappliste != nullptr) m_aufklappliste->hide();
  const bool zahl = art() == Art::Dezimal || art() == Art::Ganzzahl;
  setAlignment((zahl ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  const int platz = beschreibung.einheit.isEmpty()
                        ? 0
                        : fontMetrics().horizontalAdvance(beschreibung.einheit) + EinheitAbstand;
  setTextMargins(0, 0, platz, 0);
  knopfEinrichten();
  setInhalt(beschreibung.ersterText);
  updateGeometry();
}

void Eingabefeld::setListe(const QStringList& texte) {
  m_liste = texte;
  if (m_aufklappliste != nullptr) m_aufklappliste->hide();
  knopfEinrichten();
}

const QStringList& Eingabefeld::angebot() const {
  return art() == Art::Auswahl ? m_beschreibung.auswahl : m_liste;
}

void Eingabefeld::setInhalt(const QString& text) {
  // A number that lost a digit is another number.
  const bool zahl = art() == Art::Dezimal || art() == Art::Ganzzahl;
  const QString neu =
      Eingaberegel::gekuerzt(Eingaberegel::bereinigt(text), zahl ? 0 : m_beschreibung.maxLaenge);
  const bool gleich = neu == this->text();
  m_vomProgramm = true;
  QLineEdit::setText(neu);
  m_vomProgramm = false;
  m_vorher = this->text();
  if (!hasFocus()) setCursorPosition(0);
  if (gleich) Q_EMIT inhaltGeaendert(neu);
  pruefeWarnung();
}

void Eingabefeld::setDatumErgaenzer(std::function<QString(const QString&)> ergaenzer) {
  datumErgaenzer() = std::move(ergaenzer);
}

void Eingabefeld::setHeute(std::function<QDate()> heute) { heuteGeber() = std::move(heute); }

void Eingabefeld::setSteuersaetze(std::function<std::pair<int, int>()> saetze) {
  steuersaetze() = std::move(saetze);
}

// ---- the button and what it opens ----

void Eingabefeld::knopfEinrichten() {
  const QColor farbe = palette().color(QPalette::Active, QPalette::Text);
  QIcon symbol;
  QString tipp;
  if (art() == Art::Auswahl || (art() == Art::Text && !m_liste.isEmpty())) {
    symbol = Feldsymbole::pfeil(farbe);
    tipp = QStringLiteral("Auswahlliste öffnen (F4)");
  } else if (art() == Art::Datum || art() == Art::TagMonat) {
    symbol = Feldsymbole::kalender(farbe);
    tipp = QStringLiteral("Kalender öffnen (F4)");
  } else if (art() == Art::Dezimal || art() == Art::Ganzzahl) {
    symbol = Feldsymbole::rechner(farbe);
    tipp = QStringLiteral("Taschenrechner öffnen (F4)");
  }
  if (symbol.isNull()) {
    delete m_knopf;
    m_knopf = nullptr;
    return;
  }
  if (m_knopf == nullptr) {
    m_knopf = addAction(symbol, QLineEdit::TrailingPosition);
    connect(m_knopf, &QAction::triggered, this, [this] {
      setFocus(Qt::MouseFocusReason);
      aufklappen();
    });
  }
  m_knopf->setIcon(symbol);
  m_knopf->setToolTip(tipp);
  m_knopf->setText(tipp);
}

void Eingabefeld::aufklappen() {
  if (isReadOnly() || !isEnabled()) return;
  if (m_aufklappliste != nullptr && m_aufklappliste->isVisible())
    m_aufklappliste->hide();
  else if (art() == Art::Datum || art() == Art::TagMonat)
    kalenderOeffnen();
  else if (art() == Art::Dezimal || art() == Art::Ganzzahl)
    rechnerOeffnen();
  else
    listeOeffnen();
}

Auswahlliste* Eingabefeld::aufklappliste() {
  if (m_aufklappliste == nullptr) {
    m_aufklappliste = new Auswahlliste(this);
    connect(m_aufklappliste, &Auswahlliste::gewaehlt, this, &Eingabefeld::waehlen);
  }
  return m_aufklappliste;
}

void Eingabefeld::listeOeffnen() {
  if (isReadOnly() || angebot().isEmpty()) return;
  aufklappliste()->oeffnen(angebot(), text());
}

void Eingabefeld::waehlen(const QString& text) {
  setInhalt(text);
  selectAll();
  Q_EMIT ausListeGewaehlt(inhalt());
}

void Eingabefeld::kalenderOeffnen() {
  abschliessen();
  const QDate heute = heuteGeber() ? heuteGeber()() : QDate::currentDate();
  const bool kurz = art() == Art::TagMonat;
  const QString jetzt =
      kurz && !text().isEmpty() ? text() + QStringLiteral(".%1").arg(heute.year()) : text();
  auto* kalender = new Kalender(this, Deutsch::datum(jetzt).value_or(QDate()), heute);
  connect(kalender, &Kalender::gewaehlt, this, [this, kurz](QDate datum) {
    setInhalt(kurz ? datum.toString(QStringLiteral("dd.MM")) : Deutsch::datumText(datum));
    selectAll();
  });
  kalender->zeigeUnter(this);
}

void Eingabefeld::rechnerOeffnen() {
  const double wert = QString(text()).replace(u',', u'.').toDouble();
  const auto saetze = steuersaetze() ? steuersaetze()() : std::pair<int, int>(19, 7);
  auto* rechner = new Rechner(this, wert, saetze,
                              [this](double ergebnis) { return rechnerUebernehmen(ergebnis); });
  rechner->zeigeUnter(this);
}

bool Eingabefeld::rechnerUebernehmen(double wert) {
  const int stellen = art() == Art::Dezimal ? m_beschreibung.nachkommastellen : 0;
  QString ergebnis = Deutsch::zahl(wert, stellen);
  if (wert == 0) ergebnis = Deutsch::zahl(0, stellen);  // no "-0"
  if (!Eingaberegel::passt(m_beschreibung, ergebnis)) return false;
  setInhalt(ergebnis);
  selectAll();
  return true;
}

// ---- leaving and completing ----

void Eingabefeld::abschliessen() {
  if (isReadOnly() || text().isEmpty()) return;
  QString fertig;
  if (art() == Art::TagMonat) {
    fertig = Eingaberegel::tagMonat(text());
  } else if (art() == Art::Datum) {
    fertig = datumErgaenzer() ? datumErgaenzer()(text()) : text();
    const auto datum = Deutsch::datum(fertig);
    fertig = datum ? Deutsch::datumText(*datum) : QString();
  }
  if (!fertig.isEmpty() && fertig != text())
    setInhalt(fertig);
  else
    pruefeWarnung();
}

void Eingabefeld::pruefeWarnung() {
  const bool datum = art() == Art::Datum && !Deutsch::datum(text());
  const bool tag = art() == Art::TagMonat && Eingaberegel::tagMonat(text()).isEmpty();
  setWarnung(!text().isEmpty() && (datum || tag));
}

void Eingabefeld::setWarnung(bool ja) {
  if (ja == m_warnung) return;
  m_warnung = ja;
  QPalette farben;
  if (ja) farben.setColor(QPalette::Text, Gestaltung::warnfarbe(QApplication::palette()));
  setPalette(farben);
  setAccessibleDescription(ja ? QStringLiteral("Das ist kein gültiges Datum.") : QString());
}

void Eingabefeld::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (art() == Art::Auswahl) selectAll();  // a choice is one piece
}

void Eingabefeld::focusOutEvent(QFocusEvent* event) {
  if (m_aufklappliste != nullptr) m_aufklappliste->hide();
  const bool weg = event->reason() != Qt::PopupFocusReason;
  if (weg) abschliessen();
  QLineEdit::focusOutEvent(event);
  if (weg && event->reason() != Qt::ActiveWindowFocusReason) Q_EMIT verlassen();
}

// ---- keys ----

bool Eingabefeld::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    auto* taste = static_cast<QKeyEvent*>(event);
    if (m_aufklappliste != nullptr && m_aufklappliste->nimmtTaste(taste)) {
      event->accept();
      return true;
    }
    if (fuehrtWeg(*taste)) abschliessen();
  }
  return QLineEdit::event(event);
}

void Eingabefeld::keyPressEvent(QKeyEvent* event) {
  if (m_aufklappliste != nullptr && m_aufklappliste->taste(event)) return;
  const bool altUnten = event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier;
  const bool unten = event->key() == Qt::Key_Down && art() == Art::Auswahl;
  if (altUnten || unten || event->key() == Qt::Key_F4) {
    if (event->key() != Qt::Key_F4 && !angebot().isEmpty())
      listeOeffnen();
    else
      aufklappen();
    event->accept();
    return;
  }
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) abschliessen();
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
    const int jetzt = static_cast<int>(m_beschreibung.auswahl.indexOf(text()));
    const int treffer = Auswahlliste::sucheAnfang(m_beschreibung.auswahl, zeichen, jetzt);
    if (treffer < 0) return true;
    waehlen(m_beschreibung.auswahl[treffer]);
    if (m_aufklappliste != nullptr && m_aufklappliste->isVisible()) listeOeffnen();
    return true;
  }
  const bool trenner = zeichen == u"." || zeichen == u",";
  if (!trenner || art() == Art::Text || art() == Art::Ganzzahl) return false;
  const QChar eigener = art() == Art::Dezimal ? u',' : u'.';
  if (art() == Art::Dezimal && !hasSelectedText() && cursorPosition() < text().size() &&
      text()[cursorPosition()] == eigener) {
    cursorForward(false);  // typing over the comma that stands there
    return true;
  }
  if (zeichen.front() == eigener) return false;
  QKeyEvent ersatz(QEvent::KeyPress, eigener == u',' ? Qt::Key_Comma : Qt::Key_Period,
                   event.modifiers(), QString(eigener));
  QLineEdit::keyPressEvent(&ersatz);
  return true;
}

// ---- looks ----

void Eingabefeld::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && m_knopf != nullptr && !m_warnung) knopfEinrichten();
}

void Eingabefeld::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (m_beschreibung.einheit.isEmpty()) return;
  QStyleOptionFrame rahmen;
  initStyleOption(&rahmen);
  QRect flaeche = style()->subElementRect(QStyle::SE_LineEditContents, &rahmen, this);
  if (const auto* knopf = findChild<QToolButton*>(); knopf != nullptr && knopf->isVisible())
    flaeche.setRight(knopf->x() - 2);
  else
    flaeche.adjust(0, 0, -3, 0);
  QPainter maler(this);
  maler.setPen(palette().color(QPalette::PlaceholderText));
  maler.drawText(flaeche, Qt::AlignRight | Qt::AlignVCenter, m_beschreibung.einheit);
}

int Eingabefeld::breiteFuer(int zeichen) const {
  ensurePolished();
  const QFontMetrics mass(font());
  const int breit = mass.horizontalAdvance(art() == Art::Text ? u'x' : u'0') + (art() == Art::Text);
  return breit * zeichen + textMargins().right() + (m_knopf == nullptr ? 14 : 40);
}

QSize Eingabefeld::sizeHint() const {
  int zeichen = Eingaberegel::groessteLaenge(m_beschreibung);
  if (zeichen == 0) zeichen = art() == Art::Text ? 30 : 8;
  if (art() == Art::Auswahl)
    for (const QString& wahl : m_beschreibung.auswahl)
      zeichen = std::max(zeichen, static_cast<int>(wahl.size()));
  return {breiteFuer(std::clamp(zeichen, 4, 40)), QLineEdit::sizeHint().height()};
}

QSize Eingabefeld::minimumSizeHint() const {
  return {std::min(sizeHint().width(), breiteFuer(12)), QLineEdit::minimumSizeHint().height()};
}
