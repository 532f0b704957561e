#include "stores/forms/TV_EinVerkauf_Lager.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QTabBar>
#include <QTabWidget>

#include "core/globals.h"
#include "data/helpers.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Ereignis.h"
#include "stores/forms/Handelsbloecke.h"

using Bauteile::knopf;
using Bauteile::reiterseite;

namespace {

enum Reiter { ReiterEinkauf, ReiterVerkauf, ReiterLager };

}  // namespace

TV_EinVerkauf_Lager::TV_EinVerkauf_Lager(QWidget* oeffner)
    : Formular("TV_EinVerkauf_Lager", "Ein- und Verkäufe / Honiglager", oeffner) {
  aufbauen();
  verbinden();
}

// ---- layout ----

void TV_EinVerkauf_Lager::aufbauen() {
  const auto lagerLesen = [this] { m_lager->listeLesen(); };
  const auto geaendert = [this] { m_summenstand->show(); };
  m_einkauf = new Geschaeftsblock(Handel::Seite::Einkauf, lagerLesen, geaendert);
  m_verkauf = new Geschaeftsblock(Handel::Seite::Verkauf, lagerLesen, geaendert);
  m_lager = new Lagerblock;

  m_reiter = new QTabWidget;
  m_reiter->setObjectName("reiter");
  m_reiter->setAccessibleName("Einkäufe, Verkäufe und Honiglager");
  m_reiter->addTab(reiterseite(m_einkauf), "Einkäufe");
  m_reiter->addTab(reiterseite(m_verkauf), "Verkäufe");
  m_reiter->addTab(reiterseite(m_lager), "Honiglager");

  auto* spalte = new QVBoxLayout(this);
  spalte->addWidget(m_reiter, 1);
  spalte->addWidget(fussBauen());
  reihenfolgeSetzen();
  Bauteile::fenstergroesse(this, 180, 38);
}

QWidget* TV_EinVerkauf_Lager::fussBauen() {
  comlisten = knopf("&Listen", "comlisten");
  comlisten->setEnabled(false);  // the evaluation does not exist
  rosumme = knopf("Summen", "rosumme", "Die Summen der Einkäufe und Verkäufe neu ausrechnen");
  bezsumme = new QLabel;
  bezsumme->setObjectName("bezsumme");
  bezsumme->setTextInteractionFlags(Qt::TextSelectableByMouse);
  m_summenstand = new QLabel("(nicht aktuell)");
  m_summenstand->setObjectName("summenstand");
  hilfe = knopf("&Hilfe", "hilfe");
  beenden = knopf("&Schließen", "beenden");
  auto* fuss = new QWidget;
  auto* zeile = new QHBoxLayout(fuss);
  zeile->setContentsMargins(0, 0, 0, 0);
  zeile->addWidget(comlisten);
  zeile->addWidget(rosumme);
  zeile->addSpacing(fontMetrics().averageCharWidth());
  zeile->addWidget(bezsumme);
  zeile->addWidget(m_summenstand);
  zeile->addStretch(1);
  zeile->addWidget(hilfe);
  zeile->addWidget(beenden);
  return fuss;
}

void TV_EinVerkauf_Lager::reihenfolgeSetzen() {
  QList<QWidget*> folge{m_reiter->tabBar()};
  folge << m_einkauf->tabfolge() << m_verkauf->tabfolge() << m_lager->tabfolge() << comlisten
        << rosumme << hilfe << beenden;
  Bauteile::tabfolge(folge);
}

void TV_EinVerkauf_Lager::verbinden() {
  Ereignis::wenn(m_reiter, &QTabWidget::currentChanged, this,
                 [this](int reiter) { reiterGewechselt(reiter); });
  Ereignis::wenn(rosumme, &QPushButton::clicked, this, [this] { summenZeigen(); });
  Ereignis::wenn(hilfe, &QPushButton::clicked, this, [this] { hilfeZeigen(); });
  Ereignis::wenn(beenden, &QPushButton::clicked, this, [this] { accept(); });
}

// ---- opening and closing ----

void TV_EinVerkauf_Lager::zeigen() {
  const auto ende = qScopeGuard([this] { entladen(); });
  laden();
  Formular::zeigen();
}

void TV_EinVerkauf_Lager::laden() {
  const Ereignis::Sanduhr sanduhr;
  m_db = TZ_Variablen::Arbeitsbereich.OpenDatabase(TZ_Variablen::DatenbankPfad);
  const QList<Verwaltungsblock*> bloecke{m_lager, m_einkauf, m_verkauf};
  for (Verwaltungsblock* block : bloecke) block->oeffnen(m_db);
  for (Verwaltungsblock* block : bloecke) block->listeLesen();
  for (Verwaltungsblock* block : bloecke) block->picklistenLesen();
  m_lager->bestandLeeren();
  summenZeigen();
  const qint64 reiter = GanzLesen(TZ_Variablen::FormModus);
  const bool gibtEs = reiter >= 0 && reiter < m_reiter->count();
  m_reiter->setCurrentIndex(gibtEs ? static_cast<int>(reiter) : ReiterEinkauf);
  reiterGewechselt(m_reiter->currentIndex());
}

void TV_EinVerkauf_Lager::entladen() {
  for (Verwaltungsblock* block : QList<Verwaltungsblock*>{m_einkauf, m_verkauf, m_lager})
    block->entladen();
  m_db.Close();
}

void TV_EinVerkauf_Lager::reiterGewechselt(int reiter) {
  Verwaltungsblock* block = m_lager;
  if (reiter == ReiterEinkauf) block = m_einkauf;
  if (reiter == ReiterVerkauf) block = m_verkauf;
  block->neuKnopf()->setDefault(true);
  if (!m_reiter->tabBar()->hasFocus()) block->fokusAufErstesFeld();
}

void TV_EinVerkauf_Lager::summenZeigen() {
  bezsumme->setText(Handel::summenzeile(m_db));
  m_summenstand->hide();
}
