// What the field shows and holds, and what its button opens; focus, keys and mouse stand in
// Eingabefeld_Bedienung.cpp.
#include "platform/controls/Eingabefeld.h"

#include <QAction>
#include <QApplication>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QToolButton>
#include <QValidator>

#include "platform/controls/Auswahlliste.h"
#include "platform/controls/Eingaberegel.h"
#include "platform/controls/Feldhinweis.h"
#include "platform/controls/Feldsymbole.h"
#include "platform/controls/Gestaltung.h"
#include "platform/controls/Kalender.h"
#include "platform/controls/Rechner.h"
#include "platform/locale/Deutsch.h"

namespace {

std::function<QString(const QString&)>& datumErgänzer() {
  static std::function<QString(const QString&)> ergänzer;
  return ergänzer;
}

std::function<QDate()>& heuteGeber() {
  static std::function<QDate()> heute;
  return heute;
}

std::function<std::pair<int, int>()>& steuersätze() {
  static std::function<std::pair<int, int>()> sätze;
  return sätze;
}

constexpr int EinheitAbstand = 5;

}  // namespace

// Sits where every change of the text passes: key, paste, drop, input method, completion.
class Eingabefeld::Wächter : public QValidator {
 public:
  explicit Wächter(Eingabefeld* feld) : QValidator(feld), m_feld(feld) {}

  State validate(QString& text, int& ort) const override {
    if (m_feld->m_vomProgramm) {
      m_feld->m_vomProgramm = false;
      return Acceptable;
    }
    return m_feld->nimmtÄnderung(text, ort) ? Acceptable : Invalid;
  }

 private:
  Eingabefeld* m_feld;
};

Eingabefeld::Eingabefeld(QWidget* eltern) : QLineEdit(eltern) {
  setValidator(new Wächter(this));
  connect(this, &QLineEdit::textChanged, this, [this](const QString& neu) {
    m_vorher = neu;
    setWarnung(false);
    Q_EMIT inhaltNeu(neu);
  });
  connect(this, &QLineEdit::textEdited, this, [this](const QString& neu) {
    m_vorschlag.clear();
    if (art() != Art::Text || m_liste.isEmpty()) return;  // no number is completed to another
    if (cursorPosition() == neu.size())
      m_vorschlag = aufklappliste()->ergänzen(m_liste, neu);
    else if (m_aufklappliste != nullptr)
      m_aufklappliste->hide();
  });
}

Eingabefeld::~Eingabefeld() { delete m_hinweis; }

void Eingabefeld::einrichten(const Beschreibung& beschreibung) {
  m_beschreibung = beschreibung;
  m_liste.clear();
  if (m_aufklappliste != nullptr) m_aufklappliste->hide();
  if (m_hinweis != nullptr) m_hinweis->verberge();
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
      Eingaberegel::gekürzt(Eingaberegel::bereinigt(text), zahl ? 0 : m_beschreibung.maxLänge);
  const bool gleich = neu == this->text();
  const bool markiert = hasFocus() && selectedText() == this->text();
  entsperren();
  m_vorschlag.clear();
  m_vomProgramm = true;
  QLineEdit::setText(neu);
  m_vomProgramm = false;
  if (markiert) selectAll();  // what is typed next still begins anew
  m_vorher = this->text();
  if (!hasFocus()) setCursorPosition(0);
  if (gleich) Q_EMIT inhaltNeu(neu);
  prüfeWarnung();
}

void Eingabefeld::setDatumErgaenzer(std::function<QString(const QString&)> ergänzer) {
  datumErgänzer() = std::move(ergänzer);
}

void Eingabefeld::setHeute(std::function<QDate()> heute) { heuteGeber() = std::move(heute); }

void Eingabefeld::setSteuersätze(std::function<std::pair<int, int>()> sätze) {
  steuersätze() = std::move(sätze);
}

// ---- the button and what it opens ----

// A number with a pick list (a year) is chosen, not computed.
bool Eingabefeld::bietetListe() const {
  const bool möglich = art() == Art::Text || art() == Art::Ganzzahl;
  return art() == Art::Auswahl || (möglich && !m_liste.isEmpty());
}

void Eingabefeld::knopfEinrichten() {
  const QColor farbe = palette().color(QPalette::Active, QPalette::Text);
  QIcon symbol;
  QString tipp;
  if (bietetListe()) {
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
      fokussieren();
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
    kalenderÖffnen();
  else if ((art() == Art::Dezimal || art() == Art::Ganzzahl) && !bietetListe())
    rechnerÖffnen();
  else
    listeÖffnen();
}

Auswahlliste* Eingabefeld::aufklappliste() {
  if (m_aufklappliste == nullptr) {
    m_aufklappliste = new Auswahlliste(this);
    connect(m_aufklappliste, &Auswahlliste::genommen, this, &Eingabefeld::wählen);
  }
  return m_aufklappliste;
}

void Eingabefeld::listeÖffnen() {
  if (isReadOnly() || angebot().isEmpty()) return;
  aufklappliste()->öffnen(angebot(), text());
}

void Eingabefeld::wählen(const QString& text) {
  setInhalt(text);
  selectAll();
  Q_EMIT ausListeGenommen(inhalt());
}

void Eingabefeld::kalenderÖffnen() {
  abschließen();
  const QDate heute = heuteGeber() ? heuteGeber()() : QDate::currentDate();
  const bool kurz = art() == Art::TagMonat;
  const QString jetzt =
      kurz && !text().isEmpty() ? text() + QStringLiteral(".%1").arg(heute.year()) : text();
  auto* kalender = new Kalender(this, Deutsch::datum(jetzt).value_or(QDate()), heute);
  connect(kalender, &Kalender::genommen, this, [this, kurz](QDate datum) {
    setInhalt(kurz ? datum.toString(QStringLiteral("dd.MM")) : Deutsch::datumText(datum));
    selectAll();
  });
  kalender->zeigeUnter(this);
}

void Eingabefeld::rechnerÖffnen() {
  const double wert = Eingaberegel::zahlform(text()).replace(u',', u'.').toDouble();
  const auto sätze = steuersätze() ? steuersätze()() : std::pair<int, int>(19, 7);
  auto* rechner = new Rechner(this, wert, sätze,
                              [this](double ergebnis) { return rechnerÜbernehmen(ergebnis); });
  rechner->zeigeUnter(this);
}

bool Eingabefeld::rechnerÜbernehmen(double wert) {
  const int stellen = art() == Art::Dezimal ? m_beschreibung.nachkommastellen : 0;
  QString ergebnis = Deutsch::zahl(wert, stellen);
  if (wert == 0) ergebnis = Deutsch::zahl(0, stellen);  // no "-0"
  if (!Eingaberegel::passt(m_beschreibung, ergebnis)) return false;
  setInhalt(ergebnis);
  selectAll();
  return true;
}

// ---- dates ----

void Eingabefeld::abschließen() {
  if (isReadOnly() || text().isEmpty()) return;
  QString fertig;
  if (art() == Art::TagMonat) {
    fertig = Eingaberegel::tagMonat(text());
  } else if (art() == Art::Datum) {
    fertig = datumErgänzer() ? datumErgänzer()(text()) : text();
    const auto datum = Deutsch::datum(fertig);
    fertig = datum ? Deutsch::datumText(*datum) : QString();
  }
  if (!fertig.isEmpty() && fertig != text())
    setInhalt(fertig);
  else
    prüfeWarnung();
}

void Eingabefeld::prüfeWarnung() {
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
  QRect fläche = style()->subElementRect(QStyle::SE_LineEditContents, &rahmen, this);
  if (const auto* knopf = findChild<QToolButton*>(); knopf != nullptr && knopf->isVisible())
    fläche.setRight(knopf->x() - 2);
  else
    fläche.adjust(0, 0, -3, 0);
  QPainter maler(this);
  maler.setPen(palette().color(QPalette::PlaceholderText));
  maler.drawText(fläche, Qt::AlignRight | Qt::AlignVCenter, m_beschreibung.einheit);
}

int Eingabefeld::breiteFür(int zeichen) const {
  ensurePolished();
  const QFontMetrics mass(font());
  const int breit = mass.horizontalAdvance(art() == Art::Text ? u'x' : u'0') + (art() == Art::Text);
  return breit * zeichen + textMargins().right() + (m_knopf == nullptr ? 14 : 40);
}

QSize Eingabefeld::sizeHint() const {
  int zeichen = Eingaberegel::größteLänge(m_beschreibung);
  if (zeichen == 0) zeichen = art() == Art::Text ? 30 : 8;
  if (art() == Art::Auswahl)
    for (const QString& wahl : m_beschreibung.auswahl)
      zeichen = std::max(zeichen, static_cast<int>(wahl.size()));
  return {breiteFür(std::clamp(zeichen, 4, 40)), QLineEdit::sizeHint().height()};
}

QSize Eingabefeld::minimumSizeHint() const {
  return {std::min(sizeHint().width(), breiteFür(12)), QLineEdit::minimumSizeHint().height()};
}
