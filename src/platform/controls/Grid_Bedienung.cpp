// The grid's keys, mouse and column widths.

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QToolTip>

#include "platform/controls/Formular.h"
#include "platform/controls/Grid.h"
#include "platform/controls/GridModell.h"
#include "platform/controls/Kopie.h"
#include "platform/controls/TovaStil.h"

namespace {

constexpr int GemesseneZeilen = 50;  // of the first, and as many of the others
constexpr int GrößteBreite = 20;     // heights of a line, so that it grows with the font
constexpr int Luft = 6;

}  // namespace

// ---- keys and mouse ----

void Grid::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (aktuelleZeile() < 0) {
      event->ignore();  // the form's default button
      return;
    }
    event->accept();
    if (!event->isAutoRepeat()) Q_EMIT zeileDoppelgeklickt(aktuelleZeile());
    return;
  }
  if (event->matches(QKeySequence::Copy)) {
    kopieren();
    event->accept();
    return;
  }
  const int vorher = aktuelleZeile();
  QTableView::keyPressEvent(event);
  // A key that moved, or could have moved at an end of the list, is a key on a row.
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Space:
      m_tasteGedrückt = true;
      break;
    default:
      m_tasteGedrückt = m_tasteGedrückt || aktuelleZeile() != vorher;
  }
}

void Grid::keyReleaseEvent(QKeyEvent* event) {
  QTableView::keyReleaseEvent(event);
  if (event->isAutoRepeat() || !m_tasteGedrückt) return;
  m_tasteGedrückt = false;
  if (aktuelleZeile() >= 0) Q_EMIT zeileAngeklickt(aktuelleZeile());
}

void Grid::keyboardSearch(const QString& zeichen) {
  const int spalte = m_sortierSpalte >= 0 ? m_sortierSpalte : ersteSichtbareSpalte();
  const int zeile =
      m_suche.taste(zeichen, zeilen(), aktuelleZeile(), [&](int ort, const QString& wort) {
        return m_modell->text(ort, spalte).startsWith(wort, Qt::CaseInsensitive);
      });
  if (zeile >= 0) setAktuelleZeile(zeile);
}

void Grid::mousePressEvent(QMouseEvent* event) {
  // A click below the last row keeps what is marked.
  if (!indexAt(event->pos()).isValid()) {
    setFocus(Qt::MouseFocusReason);
    event->accept();
    return;
  }
  QTableView::mousePressEvent(event);
}

void Grid::focusInEvent(QFocusEvent* event) {
  m_imFokus = true;  // coming into the list makes no row current
  QTableView::focusInEvent(event);
  m_imFokus = false;
  viewport()->update();
}

QModelIndex Grid::moveCursor(CursorAction aktion, Qt::KeyboardModifiers tasten) {
  if (m_imFokus) return {};
  if (zeilen() > 0 && aktion == MoveHome) return zielIndex(0);
  if (zeilen() > 0 && aktion == MoveEnd) return zielIndex(zeilen() - 1);
  return QTableView::moveCursor(aktion, tasten);
}

// Shift alone marks from the anchor to here and nothing else; with Ctrl the rest stays marked.
QItemSelectionModel::SelectionFlags Grid::selectionCommand(const QModelIndex& index,
                                                           const QEvent* event) const {
  auto befehl = QTableView::selectionCommand(index, event);
  const bool strecke =
      befehl & QItemSelectionModel::Select && befehl & QItemSelectionModel::Current;
  const bool strg = event != nullptr && event->isInputEvent() &&
                    static_cast<const QInputEvent*>(event)->modifiers() & Qt::ControlModifier;
  if (strecke && !strg) befehl |= QItemSelectionModel::Clear;
  return befehl;
}

bool Grid::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* hilfe = static_cast<QHelpEvent*>(event);
    const QModelIndex i = indexAt(hilfe->pos());
    const QString text = i.isValid() ? m_modell->text(i.row(), i.column()) : QString();
    const bool abgeschnitten =
        i.isValid() &&
        fontMetrics().horizontalAdvance(text) + zellenrand(i.column()) > columnWidth(i.column());
    if (abgeschnitten)
      QToolTip::showText(hilfe->globalPos(), text, viewport(), visualRect(i));
    else
      QToolTip::hideText();
    return true;
  }
  return QTableView::viewportEvent(event);
}

void Grid::kopieren() {
  QList<QStringList> zeilen;
  for (const int zeile : markierteZeilen()) {
    QStringList zellen;
    for (int i = 0; i < spalten(); ++i)
      if (!isColumnHidden(i))
        zellen += m_modell->data(m_modell->index(zeile, i), Qt::DisplayRole).toString();
    zeilen += zellen;
  }
  if (!zeilen.isEmpty()) QGuiApplication::clipboard()->setMimeData(Kopie::ablage(zeilen).release());
}

void Grid::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
    zeilenhöheAnpassen();
}

void Grid::zeilenhöheAnpassen() {
  const int höhe = fontMetrics().height() + 6;
  verticalHeader()->setMinimumSectionSize(höhe);
  verticalHeader()->setDefaultSectionSize(höhe);
}

// ---- column widths ----

void Grid::setLayoutSchlüssel(const QString& schlüssel) {
  m_layoutSchlüssel = schlüssel;
  if (spalten() > 0) breitenLaden();
}

// Kept widths come first, then the ones drawn since, then what the texts need.
void Grid::breitenLaden() {
  QList<int> breiten;
  if (!m_layoutSchlüssel.isEmpty())
    for (const QVariant& wert :
         Fensterablage::lesen(QStringLiteral("Spaltenbreiten/") + m_layoutSchlüssel).toList())
      breiten += std::max(wert.toInt(), KleinsteBreite);
  const bool gemerkt = !breiten.isEmpty() && breiten.size() == spalten();
  if (!gemerkt && m_breitenEigene && m_breiten.size() == spalten()) {
    breiten = m_breiten;
  } else if (!gemerkt) {
    breitenAnpassen();
    return;
  }
  m_breitenEigene = true;
  m_breiten = breiten;
  verborgeneAnwenden();
}

// What a cell's text leaves free, both sides together.
int Grid::zellenrand(int spalte) const {
  const int rand = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
  return rand + (m_modell->rechtsbündig(spalte) ? TovaStil::zahlenrand(fontMetrics()) : 0);
}

// As wide as the heading and the longest of the measured texts, within a limit. The measured ones
// are the first and some of the others, evenly apart: a sorted list begins with equal texts.
void Grid::breitenAnpassen() {
  const QFontMetrics mass(font());
  const int breitestes = mass.horizontalAdvance(u'W');
  const int ziffer = mass.horizontalAdvance(u'0');
  const int grenze = mass.height() * GrößteBreite;
  const int zeilen = this->zeilen();
  const int schritt = std::max(1, (zeilen - GemesseneZeilen) / GemesseneZeilen);
  m_breiten.clear();
  for (int spalte = 0; spalte < spalten(); ++spalte) {
    // With room for the sort arrow, whether it stands there now or not.
    const int rand = zellenrand(spalte) + Luft;
    int breite = horizontalHeader()->sectionSizeHint(spalte) - rand;
    const bool zahl = m_modell->rechtsbündig(spalte) && !hatAnzeige(spalte);
    const bool datum = m_modell->daten()->spalte(spalte).typ == Feldtyp::Datum;
    qsizetype längster = 0;
    // Can't be the widest; making and measuring a text is dear. All dates are of one width.
    const auto schmaler = [&](qsizetype zeichen) {
      return zeichen * 4 < längster * 3 || zeichen * breitestes <= breite ||
             (datum && zeichen == längster);
    };
    for (int zeile = 0; zeile < zeilen && breite < grenze;
         zeile += zeile < GemesseneZeilen ? 1 : schritt) {
      if (schmaler(m_modell->zeichenHöchstens(zeile, spalte))) continue;
      const QString text = m_modell->text(zeile, spalte);
      if (schmaler(text.size())) continue;
      längster = std::max(längster, text.size());
      const int bedarf =
          zahl ? static_cast<int>(text.size()) * ziffer : mass.horizontalAdvance(text);
      breite = std::max(breite, bedarf);
    }
    m_breiten += std::clamp(breite + rand, KleinsteBreite, grenze);
  }
  verborgeneAnwenden();
}

void Grid::passeBreitenAn(int kleinste) {
  constexpr int Zeilen = 300;
  horizontalHeader()->setResizeContentsPrecision(Zeilen);
  m_breiten.clear();
  for (int spalte = 0; spalte < spalten(); ++spalte)
    m_breiten += std::max({sizeHintForColumn(spalte) + 1,
                           horizontalHeader()->sectionSizeHint(spalte), kleinste, KleinsteBreite});
  verborgeneAnwenden();
}

void Grid::breiteGeändert(int spalte, int breite) {
  if (m_breitenGesperrt || spalte < 0 || spalte >= spalten() || isColumnHidden(spalte)) return;
  if (breite < KleinsteBreite) {
    m_breitenGesperrt = true;
    setColumnWidth(spalte, KleinsteBreite);
    m_breitenGesperrt = false;
    breite = KleinsteBreite;
  }
  while (m_breiten.size() < spalten()) m_breiten += columnWidth(static_cast<int>(m_breiten.size()));
  m_breiten[spalte] = breite;
  m_breitenEigene = m_breitenGeändert = true;
  if (!(QGuiApplication::mouseButtons() & Qt::LeftButton)) breitenSichern();
}

void Grid::breitenSichern() {
  m_breitenGeändert = false;
  if (m_layoutSchlüssel.isEmpty()) return;
  QVariantList werte;
  for (const int breite : m_breiten) werte += breite;
  Fensterablage::schreiben(QStringLiteral("Spaltenbreiten/") + m_layoutSchlüssel, werte);
}

bool Grid::eventFilter(QObject* objekt, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease && objekt == horizontalHeader()->viewport() &&
      m_breitenGeändert)
    breitenSichern();
  return QTableView::eventFilter(objekt, event);
}

void Grid::hideEvent(QHideEvent* event) {
  if (m_breitenGeändert) breitenSichern();
  QTableView::hideEvent(event);
}
