#include "stores/forms/TV_EinVerkauf_Lager.h"

#include <QLabel>
#include <QPushButton>
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

TV_EinVerkauf_Lager::TV_EinVerkauf_Lager(QWidget* öffner)
    : Verwaltungsformular("TV_EinVerkauf_Lager", "Ein- und Verkäufe / Honiglager", öffner) {
  aufbauen();
  verbinden();
}

// ---- layout ----

void TV_EinVerkauf_Lager::aufbauen() {
  const auto lagerLesen = [this] { m_lager->listeLesen(); };
  const auto geändert = [this] { m_summenstand->show(); };
  m_einkauf = new Geschäftsblock(Handel::Seite::Einkauf, lagerLesen, geändert);
  m_verkauf = new Geschäftsblock(Handel::Seite::Verkauf, lagerLesen, geändert);
  m_lager = new Lagerblock;

  m_reiter = new QTabWidget;
  m_reiter->setObjectName("reiter");
  m_reiter->setAccessibleName("Einkäufe, Verkäufe und Honiglager");
  m_reiter->addTab(reiterseite(m_einkauf), "Einkäufe");
  m_reiter->addTab(reiterseite(m_verkauf), "Verkäufe");
  m_reiter->addTab(reiterseite(m_lager), "Honiglager");

  setBlöcke({m_lager, m_einkauf, m_verkauf});
  zusammensetzen(m_reiter, {.links = fußBauen(), .schließen = "beenden"});
  QList<QWidget*> folge{m_reiter->tabBar()};
  folge << m_einkauf->tabfolge() << m_verkauf->tabfolge() << m_lager->tabfolge();
  setTabfolge(folge);
  setWunschgröße(180, 38);
}

QList<QWidget*> TV_EinVerkauf_Lager::fußBauen() {
  m_comlisten = knopf("&Listen", "comlisten");
  m_comlisten->setEnabled(gibtEs("XW_Einverkauf"));
  m_comlisten->setToolTip("Die Ein- und Verkäufe oder das Honiglager auswerten");
  m_rosumme = knopf("Summen", "rosumme", "Die Summen der Einkäufe und Verkäufe neu ausrechnen");
  m_bezsumme = new QLabel;
  m_bezsumme->setObjectName("bezsumme");
  m_bezsumme->setTextInteractionFlags(Qt::TextSelectableByMouse);
  m_summenstand = new QLabel("(nicht aktuell)");
  m_summenstand->setObjectName("summenstand");
  return {m_comlisten, m_rosumme, m_bezsumme, m_summenstand};
}

void TV_EinVerkauf_Lager::verbinden() {
  Ereignis::wenn(m_reiter, &QTabWidget::currentChanged, this,
                 [this](int reiter) { reiterGewechselt(reiter); });
  Ereignis::wenn(m_comlisten, &QPushButton::clicked, this, [this] {
    öffnen(m_reiter->currentIndex() == ReiterLager ? "XW_Honiglager" : "XW_Einverkauf");
  });
  Ereignis::wenn(m_rosumme, &QPushButton::clicked, this, [this] { summenZeigen(); });
}

// ---- opening and closing ----

void TV_EinVerkauf_Lager::füllen() {
  const Ereignis::Sanduhr sanduhr;
  for (Verwaltungsblock* block : blöcke()) block->öffnen(m_db);
  for (Verwaltungsblock* block : blöcke()) block->listeLesen();
  for (Verwaltungsblock* block : blöcke()) block->picklistenLesen();
  m_lager->bestandLeeren();
  summenZeigen();
  const qint64 reiter = GanzLesen(TZ_Variablen::FormModus);
  const bool gibtEs = reiter >= 0 && reiter < m_reiter->count();
  m_reiter->setCurrentIndex(gibtEs ? static_cast<int>(reiter) : ReiterEinkauf);
  reiterGewechselt(m_reiter->currentIndex());
}

void TV_EinVerkauf_Lager::reiterGewechselt(int reiter) {
  Verwaltungsblock* block = m_lager;
  if (reiter == ReiterEinkauf) block = m_einkauf;
  if (reiter == ReiterVerkauf) block = m_verkauf;
  block->neuKnopf()->setDefault(true);
  if (!m_reiter->tabBar()->hasFocus()) block->fokusAufErstesFeld();
}

void TV_EinVerkauf_Lager::summenZeigen() {
  m_bezsumme->setText(Handel::summenzeile(m_db));
  m_summenstand->hide();
}
