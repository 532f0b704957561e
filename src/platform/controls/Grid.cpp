#include "platform/controls/Grid.h"

#include <QHeaderView>
#include <QResizeEvent>
#include <QScrollBar>
#include <algorithm>

#include "platform/controls/GridModell.h"
#include "platform/controls/GridZeichner.h"

Grid::Grid(QWidget* eltern) : QTableView(eltern), m_modell(new GridModell(this)) {
  setModel(m_modell);
  setItemDelegate(new GridZeichner(this));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  auto* kopf = horizontalHeader();
  kopf->setMinimumSectionSize(KleinsteBreite);
  kopf->setHighlightSections(false);
  kopf->setSectionsClickable(true);
  kopf->setSortIndicatorShown(true);
  kopf->setSortIndicator(-1, Qt::AscendingOrder);
  kopf->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setHighlightSections(false);
  verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
  verticalHeader()->hide();
  zeilenhöheAnpassen();
  verbinden();
}

QSize Grid::minimumSizeHint() const {
  constexpr int Zeilen = 3;
  const int rahmen = 2 * frameWidth() + horizontalScrollBar()->sizeHint().height();
  const int höhe = horizontalHeader()->sizeHint().height() +
                   Zeilen * verticalHeader()->defaultSectionSize() + rahmen;
  return {QTableView::minimumSizeHint().width(), höhe};
}

void Grid::verbinden() {
  auto* kopf = horizontalHeader();
  // A click on a header sorts and marks nothing.
  disconnect(kopf, &QHeaderView::sectionPressed, this, nullptr);
  disconnect(kopf, &QHeaderView::sectionEntered, this, nullptr);
  connect(kopf, &QHeaderView::sortIndicatorChanged, this, &Grid::vomKopfSortiert);
  connect(kopf, &QHeaderView::sectionResized, this,
          [this](int spalte, int, int breite) { breiteGeändert(spalte, breite); });
  kopf->viewport()->installEventFilter(this);
  connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& neu, const QModelIndex& alt) {
            for (const QModelIndex& i : {neu, alt})
              if (i.isValid())
                viewport()->update(0, rowViewportPosition(i.row()) - 1, viewport()->width(),
                                   rowHeight(i.row()) + 2);
            if (!m_wechselGesperrt) Q_EMIT zeileGewechselt(aktuelleZeile());
          });
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    if (!m_wechselGesperrt) Q_EMIT markierungNeu();
  });
  connect(this, &QTableView::clicked, this,
          [this](const QModelIndex& i) { Q_EMIT zeileAngeklickt(i.row()); });
  connect(this, &QTableView::doubleClicked, this,
          [this](const QModelIndex& i) { Q_EMIT zeileDoppelgeklickt(i.row()); });
  connect(verticalHeader(), &QHeaderView::sectionClicked, this, &Grid::zeileAngeklickt);
  connect(verticalHeader(), &QHeaderView::sectionDoubleClicked, this, &Grid::zeileDoppelgeklickt);
}

// ---- rows and cells ----

void Grid::setDaten(Daten daten, std::vector<int> ordnung) {
  const bool warAktuell = aktuelleZeile() >= 0;
  const bool warMarkiert = selectionModel()->hasSelection();
  QStringList namen;
  for (int i = 0; daten && i < daten->spalten(); ++i) namen += daten->spalte(i).name;
  if (namen != m_spaltennamen) m_breitenEigene = false;
  m_spaltennamen = namen;
  m_sortierSpalte = -1;
  m_sortierRichtung = Qt::AscendingOrder;
  m_suche.neuBeginnen();
  m_breitenGesperrt = true;
  m_modell->setDaten(std::move(daten), std::move(ordnung));
  m_breitenGesperrt = false;
  zeigeSortierung();
  verborgeneAnwenden();
  breitenLaden();
  if (warAktuell) Q_EMIT zeileGewechselt(-1);
  if (warMarkiert) Q_EMIT markierungNeu();
}

int Grid::zeilen() const { return m_modell->zeilen(); }

int Grid::spalten() const { return m_modell->spalten(); }

QString Grid::spaltenName(int spalte) const { return m_spaltennamen.value(spalte); }

int Grid::spaltenNummer(const QString& name) const {
  return m_modell->daten() ? m_modell->daten()->spaltenNummer(name) : -1;
}

QString Grid::zelle(int zeile, const QString& spalte) const {
  const int nummer = spaltenNummer(spalte);
  if (zeile < 0 || zeile >= zeilen() || nummer < 0) return {};
  return m_modell->text(zeile, nummer);
}

QVariant Grid::wert(int zeile, const QString& spalte) const {
  const int nummer = spaltenNummer(spalte);
  if (zeile < 0 || zeile >= zeilen() || nummer < 0) return {};
  return m_modell->wert(zeile, nummer);
}

Daten Grid::daten() const { return m_modell->daten(); }

std::vector<int> Grid::ordnung() const {
  std::vector<int> zeilennummern(static_cast<size_t>(zeilen()));
  for (int i = 0; i < zeilen(); ++i)
    zeilennummern[static_cast<size_t>(i)] = m_modell->blockzeile(i);
  return zeilennummern;
}

QString Grid::überschrift(int spalte) const { return m_modell->überschrift(spalte); }

QString Grid::text(int zeile, int spalte) const { return m_modell->text(zeile, spalte); }

bool Grid::hatAnzeige(int spalte) const { return m_modell->hatAnzeige(spalte); }

void Grid::setAnzeige(const QString& spalte, std::function<QString(const QVariant&)> anzeige) {
  m_modell->setAnzeige(spalte, std::move(anzeige));
}

void Grid::setÜberschrift(const QString& spalte, const QString& text) {
  m_modell->setÜberschrift(spalte, text);
}

void Grid::setSpalteVerborgen(const QString& spalte, bool ja) {
  m_verborgen.removeAll(spalte.toLower());
  if (ja) m_verborgen += spalte.toLower();
  verborgeneAnwenden();
}

void Grid::verborgeneAnwenden() {
  m_breitenGesperrt = true;
  for (int i = 0; i < spalten(); ++i) {
    const bool weg = m_verborgen.contains(m_spaltennamen[i].toLower());
    setColumnHidden(i, weg);
    if (!weg && i < m_breiten.size()) setColumnWidth(i, m_breiten[i]);
  }
  m_breitenGesperrt = false;
}

void Grid::setErsteSpalte(std::function<QString(int)> text) {
  verticalHeader()->setVisible(static_cast<bool>(text));
  m_modell->setErsteSpalte(std::move(text));
}

int Grid::findeZeile(const QString& bedingung) const { return m_modell->finde(bedingung); }

void Grid::löscheZeile(int zeile, Database& datenbank, const QString& tabelle) {
  const int spalte = spaltenNummer(QStringLiteral("ID"));
  if (zeile < 0 || zeile >= zeilen()) return;
  const QString anweisung = QStringLiteral("delete from %1 where ID = ?").arg(tabelle);
  if (spalte < 0)
    throw Datenbankfehler(Datenbankfehler::Art::Anweisung,
                          QStringLiteral("Der Datensatz kann nicht gelöscht werden, weil die Liste "
                                         "keine Spalte ID hat."),
                          anweisung);
  datenbank.Execute(anweisung, {m_modell->wert(zeile, spalte)});
  datenbank.NachFestschreiben([this, zeile] { nimmZeileHeraus(zeile); });
}

void Grid::nimmZeileHeraus(int zeile) {
  m_wechselGesperrt = true;
  m_modell->entferneZeile(zeile);
  setAktuelleZeile(std::min(zeile, zeilen() - 1));
  m_wechselGesperrt = false;
  viewport()->update();
  Q_EMIT zeileGewechselt(aktuelleZeile());
  Q_EMIT markierungNeu();
}

// ---- current and marked rows ----

int Grid::aktuelleZeile() const { return currentIndex().isValid() ? currentIndex().row() : -1; }

int Grid::ersteSichtbareSpalte() const {
  for (int i = 0; i < spalten(); ++i)
    if (!isColumnHidden(i)) return i;
  return 0;
}

QModelIndex Grid::zielIndex(int zeile) const {
  const QModelIndex jetzt = currentIndex();
  const int spalte =
      jetzt.isValid() && !isColumnHidden(jetzt.column()) ? jetzt.column() : ersteSichtbareSpalte();
  return m_modell->index(zeile, spalte);
}

void Grid::setAktuelleZeile(int zeile) {
  if (zeile < 0 || zeile >= zeilen()) {
    selectionModel()->clearSelection();
    selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    return;
  }
  const QModelIndex ziel = zielIndex(zeile);
  selectionModel()->setCurrentIndex(
      ziel, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  rolleZu(ziel);
}

// The list moves up and down only: what the user looks at sideways stays.
void Grid::rolleZu(const QModelIndex& index) {
  const int seitlich = horizontalScrollBar()->value();
  scrollTo(index);
  horizontalScrollBar()->setValue(seitlich);
}

// The current row stays in view when the list gets less room; one that the user has scrolled away
// stays away.
void Grid::resizeEvent(QResizeEvent* event) {
  const QModelIndex jetzt = currentIndex();
  const QRect zeile = jetzt.isValid() ? visualRect(jetzt) : QRect();
  const bool zuSehen = jetzt.isValid() && zeile.bottom() >= 0 &&
                       (zeile.top() < event->oldSize().height() || !event->oldSize().isValid());
  QTableView::resizeEvent(event);
  if (zuSehen) rolleZu(jetzt);
}

QList<int> Grid::markierteZeilen() const {
  std::vector<bool> markiert(static_cast<size_t>(zeilen()), false);
  for (const QItemSelectionRange& stück : selectionModel()->selection())
    for (int i = stück.top(); i <= stück.bottom(); ++i) markiert[static_cast<size_t>(i)] = true;
  QList<int> ergebnis;
  for (int i = 0; i < zeilen(); ++i)
    if (markiert[static_cast<size_t>(i)]) ergebnis += i;
  return ergebnis;
}

void Grid::setMarkierteZeilen(const QList<int>& gewünscht) {
  QList<int> sortiert = gewünscht;
  std::sort(sortiert.begin(), sortiert.end());
  QItemSelection auswahl;
  for (qsizetype i = 0; i < sortiert.size();) {
    const int von = sortiert[i];
    int bis = von;
    while (++i < sortiert.size() && sortiert[i] <= bis + 1) bis = sortiert[i];
    const int oben = std::max(von, 0);
    const int unten = std::min(bis, zeilen() - 1);
    if (spalten() > 0 && oben <= unten)
      auswahl.append({m_modell->index(oben, 0), m_modell->index(unten, spalten() - 1)});
  }
  {
    // One piece at a time would be compared with all others; so nothing is told until the end.
    const QSignalBlocker still(selectionModel());
    selectionModel()->clearSelection();
    selectionModel()->select(auswahl, QItemSelectionModel::Select);
  }
  viewport()->update();
  Q_EMIT markierungNeu();
}

// ---- sorting ----

void Grid::sortiere(int spalte, Qt::SortOrder richtung) {
  m_sortierSpalte = spalte >= 0 && spalte < spalten() ? spalte : -1;
  m_sortierRichtung = richtung;
  zeigeSortierung();
  m_wechselGesperrt = true;
  m_modell->sortiere(m_sortierSpalte, richtung);
  m_wechselGesperrt = false;
  if (aktuelleZeile() >= 0) rolleZu(currentIndex());
}

int Grid::sortierSpalte() const { return m_sortierSpalte; }

Qt::SortOrder Grid::sortierRichtung() const { return m_sortierRichtung; }

void Grid::zeigeSortierung() {
  const QSignalBlocker still(horizontalHeader());
  horizontalHeader()->setSortIndicator(m_sortierSpalte, m_sortierRichtung);
}

void Grid::vomKopfSortiert(int spalte, Qt::SortOrder richtung) {
  if (spalte < 0) return;
  sortiere(spalte, richtung);
  Q_EMIT vomBenutzerSortiert(spalte, richtung);
}
