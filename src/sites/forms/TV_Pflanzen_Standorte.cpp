#include "sites/forms/TV_Pflanzen_Standorte.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <map>

#include "core/globals.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"
#include "sites/Standorte.h"
#include "sites/forms/Standortbloecke.h"

using Bauteile::knopf;
using Bauteile::reiterseite;

namespace {

enum Reiter { ReiterStandorte, ReiterJeStandort, ReiterPflanzen };

// The IDs of the sites in the chooser, whose rows have none. Both lists come in the same order, so
// the rows of one name belong together in theirs; 0 for a site that isn't listed.
QList<qint64> ortsIds(const Datenblock& orte, const Grid& standorte) {
  std::map<int, int> geordnet;  // as read, however the user has sorted them since
  const auto ordnung = standorte.ordnung();
  for (int i = 0; i < standorte.zeilen(); ++i) geordnet[ordnung[static_cast<size_t>(i)]] = i;
  QHash<QString, QList<qint64>> jeName;
  for (const auto& [gelesen, zeile] : geordnet)
    jeName[standorte.wert(zeile, "Standort").toString()]
        << standorte.wert(zeile, "ID").toLongLong();
  QList<qint64> ids;
  for (int i = 0; i < orte.zeilen(); ++i) {
    auto& gleiche = jeName[orte.wert(i, 0).toString()];
    ids << (gleiche.isEmpty() ? 0 : gleiche.takeFirst());
  }
  return ids;
}

}  // namespace

TV_Pflanzen_Standorte::TV_Pflanzen_Standorte(QWidget* öffner)
    : Verwaltungsformular("TV_Pflanzen_Standorte", "Pflanzen und Standorte (Wanderung)", öffner) {
  aufbauen();
  verbinden();
}

// ---- layout ----

void TV_Pflanzen_Standorte::aufbauen() {
  m_standorte = new Standortblock;
  m_pflanzen = new Pflanzenblock;
  m_tracht = new Trachtblock;
  m_aufwaerts[0] =
      knopf("Weidezeit + 1 Jahr", "aufwaerts_0", "Die Weidezeit aller Pflanzen um ein Jahr vor");
  m_aufwaerts[1] =
      knopf("Weidezeit - 1 Jahr", "aufwaerts_1", "Die Weidezeit aller Pflanzen um ein Jahr zurück");
  for (QPushButton* k : m_aufwaerts) m_pflanzen->knopfzeile()->addWidget(k);

  m_reiter = new QTabWidget;
  m_reiter->setObjectName("reiter");
  m_reiter->setAccessibleName("Standorte und Pflanzen");
  m_reiter->addTab(reiterseite(m_standorte), "Standorte");
  m_reiter->addTab(reiterJeStandort(), "Pflanzen je Standort");
  m_reiter->addTab(reiterseite(m_pflanzen), "Pflanzen");

  m_comstandortlisten = knopf("&Standorte / Pflanzen auswerten", "comstandortlisten");
  führtZu(m_comstandortlisten, "XW_Standorte");
  setBlöcke({m_pflanzen, m_standorte, m_tracht});
  zusammensetzen(m_reiter, {.links = {m_comstandortlisten}, .schließen = "beenden"});
  schließknopf()->setToolTip("Die Trachtzeiten neu ermitteln und schließen");
  QList<QWidget*> folge{m_reiter->tabBar()};
  folge << m_standorte->tabfolge() << m_lijeort << m_tracht->tabfolge() << m_pflanzen->tabfolge();
  setTabfolge(folge);
  setWunschgröße(145, 38);
}

// Left the site chooser, right what grows there.
QWidget* TV_Pflanzen_Standorte::reiterJeStandort() {
  m_lijeort = new Grid;
  m_lijeort->setObjectName("lijeort");
  m_lijeort->setAccessibleName("Standort wählen");
  m_lijeort->setSelectionMode(QAbstractItemView::SingleSelection);
  m_lijeort->setMinimumWidth(24 * fontMetrics().averageCharWidth());
  return reiterseite(Bauteile::teiler("teiler", {m_lijeort, 1, 300}, {m_tracht, 2, 600}));
}

void TV_Pflanzen_Standorte::verbinden() {
  Ereignis::wenn(m_reiter, &QTabWidget::currentChanged, this,
                 [this](int reiter) { reiterGewechselt(reiter); });
  Ereignis::wenn(m_lijeort, &Grid::zeileGewechselt, this,
                 [this](int ort) { pflanzenDesStandortsZeigen(ort); });
  for (const int i : {0, 1})
    Ereignis::wenn(m_aufwaerts[i], &QPushButton::clicked, this,
                   [this, i] { jahreVerschieben(i == 0 ? 1 : -1); });
}

// ---- opening and closing ----

void TV_Pflanzen_Standorte::füllen() {
  m_reiter->setCurrentIndex(ReiterStandorte);
  for (Verwaltungsblock* block : blöcke()) block->laden(m_db);
  if (TZ_Variablen::FormModus == "2") m_reiter->setCurrentIndex(ReiterPflanzen);
  reiterGewechselt(m_reiter->currentIndex());
}

void TV_Pflanzen_Standorte::schließen() {
  {
    const Ereignis::Sanduhr sanduhr;
    Standorte::trachtzeitenErmitteln(m_db);
  }
  accept();
}

// ---- tabs ----

void TV_Pflanzen_Standorte::reiterGewechselt(int reiter) {
  if (reiter == ReiterJeStandort) {
    pflanzenJeStandortÖffnen();
    return;
  }
  Verwaltungsblock* block = m_standorte;
  if (reiter == ReiterPflanzen) block = m_pflanzen;
  block->neuKnopf()->setDefault(true);
  if (!m_reiter->tabBar()->hasFocus()) block->fokusAufErstesFeld();
}

void TV_Pflanzen_Standorte::pflanzenJeStandortÖffnen() {
  if (m_standorte->liste()->zeilen() == 0) {
    Meldungen::Hinweis(
        "Bevor die Pflanzen für die Standorte eingegeben werden, muß mindestens ein Standort "
        "eingetragen werden. Deshalb wird jetzt das Register für die Standorte geöffnet.",
        this);
    m_reiter->setCurrentIndex(ReiterStandorte);
    return;
  }
  const auto aktuell = m_standorte->aktuelleId();
  m_tracht->picklistenLesen();
  m_tracht->neuKnopf()->setDefault(true);
  const Daten orte = Standorte::standortnamen(m_db);
  m_orte = ortsIds(*orte, *m_standorte->liste());
  m_lijeort->setDaten(orte);
  const qsizetype zeile = aktuell ? m_orte.indexOf(*aktuell) : 0;
  m_lijeort->setAktuelleZeile(static_cast<int>(std::max<qsizetype>(zeile, 0)));
  if (!m_reiter->tabBar()->hasFocus()) m_lijeort->setFocus();
}

void TV_Pflanzen_Standorte::pflanzenDesStandortsZeigen(int ort) {
  if (ort < 0) return;
  const qint64 id = m_orte.value(m_lijeort->ordnung()[static_cast<size_t>(ort)]);
  Grid* standorte = m_standorte->liste();
  standorte->setAktuelleZeile(standorte->findeZeile("ID = " + QString::number(id)));
  m_tracht->setStandort(id);
}

// The inputs are a copy of the current row, so it is shown anew, also when a plant stopped the run.
void TV_Pflanzen_Standorte::jahreVerschieben(int jahre) {
  const Ereignis::Sanduhr sanduhr;
  const auto id = m_pflanzen->aktuelleId();
  const auto neuLesen = [&] {
    m_pflanzen->listeLesen();
    if (id) m_pflanzen->zeigeDatensatz(*id);
  };
  try {
    Standorte::weidezeitenVerschieben(m_db, jahre);
  } catch (...) {
    neuLesen();
    throw;
  }
  neuLesen();
}
