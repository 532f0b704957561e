#include "mainform/forms/Bildinhalt.h"

#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "mainform/forms/Stockzeichner.h"
#include "platform/controls/Gestaltung.h"

using Volkbild::Bild;
using Volkbild::Wabenart;

namespace {

// The marker of a score: its value on a small plate.
class Marke : public QLabel {
 public:
  explicit Marke(QWidget* eltern) : QLabel(QStringLiteral("0,0"), eltern) {
    setAlignment(Qt::AlignCenter);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Qt::NoPen);
    maler.setBrush(palette().color(QPalette::Active, QPalette::Highlight));
    maler.drawRoundedRect(rect(), height() * 0.3, height() * 0.3);
    maler.setPen(palette().color(QPalette::Active, QPalette::HighlightedText));
    maler.drawText(rect(), Qt::AlignCenter, text());
  }
};

// A colour of the legend and its name.
class Legende : public QLabel {
 public:
  Legende(const Volkbild::Wabe& wabe, QWidget* eltern)
      : QLabel(wabe.legende, eltern), m_art(wabe.art) {
    setObjectName(QStringLiteral("bildpos_%1").arg(wabe.bildpos));
  }
  QSize sizeHint() const override {
    const QFontMetrics mass = fontMetrics();
    return {einzug() + mass.horizontalAdvance(text()) + mass.height() / 2, mass.height() * 5 / 4};
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const int höhe = fontMetrics().height() * 9 / 10;
    const QRect feld(0, (height() - höhe) / 2, höhe * 3 / 5, höhe);
    Stockzeichner::zeichneWabe(maler, feld, m_art);
    maler.setPen(palette().color(QPalette::WindowText));
    maler.drawText(rect().adjusted(einzug(), 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, text());
  }

 private:
  int einzug() const { return fontMetrics().height(); }

  Wabenart m_art;
};

QFont schrift(QFont vorlage, double faktor, bool fett) {
  vorlage.setPointSizeF(vorlage.pointSizeF() * faktor);
  vorlage.setBold(fett);
  return vorlage;
}

// Labels of the honey sums: of the newest harvest, of this year, of all time.
constexpr std::array<int, 3> Summenlabel = {19, 9, 20};

}  // namespace

Bildinhalt::Bildinhalt(QWidget* eltern)
    : QWidget(eltern),
      m_volknr(new QLabel(this)),
      m_volkname(new QLabel(this)),
      m_hinweis(new QLabel(QStringLiteral("Die Reihung der Waben wird automatisch ermittelt und "
                                          "muss nicht original sein!"),
                           this)) {
  m_volknr->setObjectName(QStringLiteral("bildpos_10"));
  m_volkname->setObjectName(QStringLiteral("bildpos_11"));
  m_volkname->setWordWrap(true);
  for (QLabel* eingegeben : {m_volknr, m_volkname}) eingegeben->setTextFormat(Qt::PlainText);
  for (int i = 0; i < Volkbild::Noten; ++i) {
    auto* marke = new Marke(this);
    marke->setObjectName(QStringLiteral("bildpos_%1").arg(i));
    marke->setAccessibleName(Volkbild::noten()[static_cast<size_t>(i)].spalte);
    m_marken[static_cast<size_t>(i)] = marke;
  }
  for (const Volkbild::Wabe& wabe : Volkbild::waben())
    m_legende[static_cast<size_t>(wabe.bildpos - 12)] = new Legende(wabe, this);
  m_summen = {new QLabel(QStringLiteral("Honig (letzte):"), this), new QLabel(this),
              new QLabel(QStringLiteral("Honig (alles):"), this)};
  m_summen[1]->setObjectName(QStringLiteral("honigjahr"));
  for (size_t i = 0; i < Summen; ++i) {
    m_werte[i] = new QLabel(QStringLiteral("0,0"), this);
    m_werte[i]->setObjectName(QStringLiteral("bildpos_%1").arg(Summenlabel[i]));
    m_einheiten[i] = new QLabel(QStringLiteral("kg"), this);
    m_einheiten[i]->setForegroundRole(QPalette::PlaceholderText);
  }
  m_hinweis->setWordWrap(true);
  m_hinweis->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  m_hinweis->setForegroundRole(QPalette::PlaceholderText);
  schriftenSetzen();
}

void Bildinhalt::zeigen(const QString& volknr, const QString& volkname, const Bild& bild,
                        const Volkanzeige::Honig& honig) {
  m_bild = bild;
  m_volknr->setText(volknr);
  m_volkname->setText(volkname);
  m_werte[0]->setText(honig.letzte);
  m_werte[1]->setText(honig.jahr);
  m_werte[2]->setText(honig.alles);
  for (size_t i = 0; i < Volkbild::Noten; ++i) m_marken[i]->setText(bild.marken[i].text);
  setAccessibleDescription(beschreibung());
  anordnen();
}

void Bildinhalt::setHonigjahr(const QString& beschriftung) {
  m_summen[1]->setText(beschriftung);
  anordnen();
}

QString Bildinhalt::beschreibung() const {
  QStringList teile = {
      QStringLiteral("Volk ") + m_volknr->text() + u' ' + m_volkname->text() + u'.',
      Volkbild::beschreibung(m_bild)};
  for (size_t i = 0; i < Summen; ++i)
    teile << m_summen[i]->text() + u' ' + m_werte[i]->text() + QStringLiteral(" kg.");
  return teile.join(u' ');
}

void Bildinhalt::schriftenSetzen() {
  m_volknr->setFont(schrift(font(), 1.2, true));
  m_volkname->setFont(schrift(font(), 1.2, false));
  for (QLabel* marke : m_marken) marke->setFont(schrift(font(), 0.85, true));
  for (QLabel* legende : m_legende) legende->setFont(schrift(font(), 0.92, false));
  for (QLabel* wert : m_werte) wert->setFont(schrift(font(), 1.0, true));
  QFont klein = schrift(font(), 0.85, false);
  klein.setItalic(true);
  m_hinweis->setFont(klein);
}

// --- arrangement

int Bildinhalt::schöneZeile() const { return fontMetrics().height() * 4 / 3; }

int Bildinhalt::kleinsteZeile() const { return m_marken[0]->fontMetrics().height() + 4; }

int Bildinhalt::schöneHöhe(int breite) const { return lage(breite, schöneZeile()).höhe; }

int Bildinhalt::kleinsteHöhe(int breite) const { return lage(breite, kleinsteZeile()).höhe; }

int Bildinhalt::kleinsteBreite() const { return fontMetrics().height() * 15; }

Bildinhalt::Lage Bildinhalt::lage(int breite, int zeilenhöhe) const {
  const int em = fontMetrics().height();
  const int rand = em / 2;
  const int innen = breite - 2 * rand;
  const bool breit = breite >= 42 * em;
  Lage l;
  kopf(l, breite);
  const int oben = l.volkname.bottom() + 1 + rand / 2;
  int unten = oben + Volkbild::Noten * zeilenhöhe;

  const int dritte = breit ? std::max(17 * em, innen * 3 / 10) : 0;
  const int übrig = innen - dritte - (breit ? em : 0);
  const int noten = std::clamp(übrig * 45 / 100, std::min(8 * em, übrig * 3 / 5), 15 * em);
  l.stock = QRect(rand, oben, übrig - noten - em, unten - oben);
  l.noten = QRect(l.stock.right() + 1 + em, oben, noten, unten - oben);

  int y = breit ? oben : unten + rand;
  const int links = breit ? rand + innen - dritte : rand;
  const auto platz = [&] { return QRect(links, y, breit ? dritte : innen, 0); };
  y = (breit ? honigZeilen(l, platz()) : honigSpalten(l, platz())) + rand;
  y = legendenFluss(l, platz()) + rand / 2;
  y = hinweistext(l, platz());
  if (y > unten && breit) {
    l.stock.setBottom(y - 1);
    l.noten.setBottom(y - 1);
  }
  l.höhe = std::max(y, unten) + rand;
  return l;
}

// The name stands beside the number, below it where it would be cut.
void Bildinhalt::kopf(Lage& lage, int breite) const {
  const int rand = fontMetrics().height() / 2;
  const int innen = breite - 2 * rand;
  const int höhe = m_volkname->fontMetrics().height();
  const int nummer = std::min(m_volknr->sizeHint().width(), innen);
  lage.volknr = QRect(rand, rand / 2, nummer, höhe);
  QPoint ort(rand, rand / 2);
  if (!m_volknr->text().isEmpty()) {
    const int name = m_volkname->fontMetrics().horizontalAdvance(m_volkname->text()) + 1;
    if (nummer + rand + name <= innen)
      ort.rx() += nummer + rand;
    else
      ort.ry() += höhe;
  }
  const int weite = breite - rand - ort.x();
  lage.volkname = QRect(ort, QSize(weite, std::max(höhe, m_volkname->heightForWidth(weite))));
}

// One below the other: caption, value, unit.
int Bildinhalt::honigZeilen(Lage& lage, const QRect& platz) const {
  const int zeile = fontMetrics().height() * 5 / 4;
  int beschriftung = 0;
  int wert = 0;
  for (size_t i = 0; i < Summen; ++i) {
    beschriftung = std::max(beschriftung, m_summen[i]->sizeHint().width());
    wert = std::max(wert, m_werte[i]->sizeHint().width());
  }
  const int abstand = fontMetrics().height() / 2;
  int y = platz.top();
  for (size_t i = 0; i < Summen; ++i, y += zeile) {
    int x = platz.left();
    lage.summe[i] = QRect(x, y, beschriftung, zeile);
    x += beschriftung + abstand;
    // Right-aligned by their own widths, so that the commas stand below each other.
    const int breite = m_werte[i]->sizeHint().width();
    lage.wert[i] = QRect(x + wert - breite, y, breite, zeile);
    lage.einheit[i] = QRect(x + wert + abstand / 2, y, m_einheiten[i]->sizeHint().width(), zeile);
  }
  return y;
}

// Side by side with the value below its caption, where there is room for three.
int Bildinhalt::honigSpalten(Lage& lage, const QRect& platz) const {
  const int em = fontMetrics().height();
  const int spalte = (platz.width() - em) / Summen;
  for (size_t i = 0; i < Summen; ++i)
    if (m_summen[i]->sizeHint().width() > spalte) return honigZeilen(lage, platz);
  for (size_t i = 0; i < Summen; ++i) {
    const int x = platz.left() + static_cast<int>(i) * (spalte + em / 2);
    lage.summe[i] = QRect(x, platz.top(), spalte, em * 6 / 5);
    const int y = platz.top() + em * 6 / 5;
    const int breite = m_werte[i]->sizeHint().width();
    lage.wert[i] = QRect(x, y, breite, em * 6 / 5);
    lage.einheit[i] = QRect(x + breite + em / 4, y, m_einheiten[i]->sizeHint().width(), em * 6 / 5);
  }
  return platz.top() + em * 12 / 5;
}

// In columns of the same width, as many as fit.
int Bildinhalt::legendenFluss(Lage& lage, const QRect& platz) const {
  QSize größe;
  for (const QLabel* legende : m_legende) größe = größe.expandedTo(legende->sizeHint());
  const int spalten = std::clamp(platz.width() / größe.width(), 1, Volkbild::Wabenarten);
  const int zeilen = (Volkbild::Wabenarten + spalten - 1) / spalten;
  const int gleich = (Volkbild::Wabenarten + zeilen - 1) / zeilen;
  const int weite = platz.width() / std::max(gleich, 1);
  for (int i = 0; i < Volkbild::Wabenarten; ++i)
    lage.legende[static_cast<size_t>(i)] =
        QRect(platz.left() + i % gleich * weite, platz.top() + i / gleich * größe.height(), weite,
              größe.height());
  return platz.top() + zeilen * größe.height();
}

int Bildinhalt::hinweistext(Lage& lage, const QRect& platz) const {
  const int höhe = m_hinweis->heightForWidth(platz.width());
  lage.hinweis = QRect(platz.topLeft(), QSize(platz.width(), höhe));
  return platz.top() + höhe;
}

// The highest line with which all fits into the height.
int Bildinhalt::passendeZeile() const {
  int zeile = schöneZeile();
  const int übrig = height() - lage(width(), zeile).höhe;
  if (übrig >= 0) return zeile + übrig / Volkbild::Noten;
  while (zeile > kleinsteZeile() && lage(width(), zeile).höhe > height()) --zeile;
  return zeile;
}

void Bildinhalt::anordnen() {
  m_lage = lage(width(), passendeZeile());
  m_volknr->setGeometry(m_lage.volknr);
  m_volkname->setGeometry(m_lage.volkname);
  m_hinweis->setGeometry(m_lage.hinweis);
  for (size_t i = 0; i < Summen; ++i) {
    m_summen[i]->setGeometry(m_lage.summe[i]);
    m_werte[i]->setGeometry(m_lage.wert[i]);
    m_einheiten[i]->setGeometry(m_lage.einheit[i]);
  }
  for (size_t i = 0; i < Volkbild::Wabenarten; ++i) m_legende[i]->setGeometry(m_lage.legende[i]);
  markenSetzen();
  update();
}

QRect Bildinhalt::notenzeile(int note) const {
  const QRect& feld = m_lage.noten;
  const int oben = feld.top() + feld.height() * note / Volkbild::Noten;
  return {feld.left(), oben, feld.width(),
          feld.top() + feld.height() * (note + 1) / Volkbild::Noten - oben};
}

// Where the marker slides: behind the longest caption.
QRect Bildinhalt::skala(int note) const {
  int beschriftung = 0;
  for (const Volkbild::Note& n : Volkbild::noten())
    beschriftung = std::max(beschriftung, fontMetrics().horizontalAdvance(n.beschriftung));
  return notenzeile(note).adjusted(beschriftung + fontMetrics().height() / 2, 0, 0, 0);
}

void Bildinhalt::markenSetzen() {
  const QFontMetrics mass = m_marken[0]->fontMetrics();
  const QSize größe(mass.horizontalAdvance(QStringLiteral("10,0")) + mass.height() * 3 / 5,
                    mass.height() + 2);
  for (int i = 0; i < Volkbild::Noten; ++i) {
    const QRect bahn = skala(i);
    const double anteil = (m_bild.marken[static_cast<size_t>(i)].stelle - Volkbild::MarkeBei0) /
                          (Volkbild::MarkeBei10 - Volkbild::MarkeBei0);
    const int x = bahn.left() + qRound(anteil * std::max(0, bahn.width() - größe.width()));
    m_marken[static_cast<size_t>(i)]->setGeometry(
        QRect(QPoint(x, bahn.center().y() + 1 - größe.height() / 2), größe));
  }
}

// --- events and drawing

void Bildinhalt::resizeEvent(QResizeEvent*) { anordnen(); }

void Bildinhalt::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  schriftenSetzen();
  anordnen();
}

// Under the mouse a comb says what it is.
bool Bildinhalt::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* hilfe = static_cast<QHelpEvent*>(event);
  const Stockmaß mass(m_lage.stock, m_bild, devicePixelRatioF());
  for (int platz = 0; platz < Volkbild::Plätze; ++platz) {
    const auto art = m_bild.waben[static_cast<size_t>(platz)];
    if (!art || !mass.wabe(platz).contains(hilfe->pos())) continue;
    const QString name = Volkbild::waben()[static_cast<size_t>(*art)].legende;
    QToolTip::showText(hilfe->globalPos(), name, this, mass.wabe(platz).toAlignedRect());
    return true;
  }
  QToolTip::hideText();
  return true;
}

void Bildinhalt::paintEvent(QPaintEvent*) {
  QPainter maler(this);
  Stockzeichner::zeichne(maler, m_lage.stock, m_bild, Gestaltung::istDunkel(palette()));
  zeichneSkalen(maler);
}

void Bildinhalt::zeichneSkalen(QPainter& maler) const {
  maler.setRenderHint(QPainter::Antialiasing);
  QColor rille = palette().color(QPalette::WindowText);
  rille.setAlpha(40);
  QColor füllung = palette().color(QPalette::Active, QPalette::Highlight);
  füllung.setAlpha(130);
  const double dicke = std::max(3, fontMetrics().height() / 5);
  for (int i = 0; i < Volkbild::Noten; ++i) {
    const QRect zeile = notenzeile(i);
    maler.setPen(palette().color(QPalette::WindowText));
    maler.drawText(zeile, Qt::AlignLeft | Qt::AlignVCenter,
                   Volkbild::noten()[static_cast<size_t>(i)].beschriftung);
    const QRectF bahn(skala(i).left(), zeile.center().y() + 1 - dicke / 2, skala(i).width(), dicke);
    maler.setPen(Qt::NoPen);
    maler.setBrush(rille);
    maler.drawRoundedRect(bahn, dicke / 2, dicke / 2);
    QRectF voll = bahn;
    voll.setRight(m_marken[static_cast<size_t>(i)]->geometry().center().x());
    maler.setBrush(füllung);
    maler.drawRoundedRect(voll, dicke / 2, dicke / 2);
  }
}
