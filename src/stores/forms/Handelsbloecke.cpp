#include "stores/forms/Handelsbloecke.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>

#include "core/globals.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"

using Bauteile::knopfOhneEnter;
using Bauteile::überschrift;
using Handel::Seite;
using Verwaltung::Texte;

namespace {

Verwaltungsblock::Plan geschäftsplan(Seite seite) {
  const bool einkauf = seite == Seite::Einkauf;
  Verwaltungsblock::Plan plan;
  plan.tabelle = Handel::tabelle(seite);
  plan.felder = Handel::geschäftsfelder(seite);
  plan.titel = einkauf ? "Einkäufe eingeben / ändern" : "Verkäufe eingeben / ändern";
  plan.anweisung = Handel::geschäftsliste(seite);
  plan.liste = einkauf ? "lieinkauf" : "liverkauf";
  plan.listentitel = einkauf ? "Einkäufe" : "Verkäufe";
  plan.schlüssel = einkauf ? "tv_einverkauf_lager_lieinkauf" : "tv_einverkauf_lager_liverkauf";
  plan.eingabe = einkauf ? "sevteinkauf" : "sevtverkauf";
  plan.neu = einkauf ? "neueinkauf" : "neuverkauf";
  plan.löschen = einkauf ? "lscheinkauf" : "lschverkauf";
  if (!einkauf)
    plan.zuerstMarkieren =
        "Bitte markieren Sie zuerst den Datensatz (die Pflanze), den Sie ändern möchten!";
  return plan;
}

Verwaltungsblock::Plan lagerplan() {
  Verwaltungsblock::Plan plan;
  plan.tabelle = "Honiglager";
  plan.felder = Handel::lagerfelder();
  plan.titel = "Lagerbuchungen eingeben / ändern";
  plan.anweisung = Handel::lagerliste();
  plan.liste = "lihonig";
  plan.listentitel = "Honiglager";
  plan.schlüssel = "tv_einverkauf_lager_lihonig";
  plan.eingabe = "sevthonig";
  plan.neu = "neuhonig";
  plan.löschen = "lschhonig";
  return plan;
}

// While it lives no button of the window can be pressed. The keyboard focus comes back to the
// button that had it and goes nowhere else in between: a list that gets it would take a row.
class Knopfsperre {
 public:
  explicit Knopfsperre(QWidget* fenster) : m_fokus(fenster->focusWidget()) {
    for (QPushButton* knopf : fenster->findChildren<QPushButton*>()) {
      if (!knopf->isEnabled()) continue;
      if (knopf == m_fokus) knopf->clearFocus();
      m_gesperrt << knopf;
    }
    for (QPushButton* knopf : m_gesperrt) knopf->setEnabled(false);
  }
  ~Knopfsperre() {
    for (QPushButton* knopf : m_gesperrt) knopf->setEnabled(true);
    if (auto* knopf = qobject_cast<QPushButton*>(m_fokus.data())) knopf->setFocus();
  }
  Knopfsperre(const Knopfsperre&) = delete;
  Knopfsperre& operator=(const Knopfsperre&) = delete;

 private:
  QPointer<QWidget> m_fokus;
  QList<QPushButton*> m_gesperrt;
};

QVBoxLayout* spalteIn(QWidget* seite) {
  auto* spalte = new QVBoxLayout(seite);
  spalte->setContentsMargins(0, 0, 0, 0);
  return spalte;
}

}  // namespace

// ---- all three ----

void Handelsblock::listeLesen() {
  const Knopfsperre sperre(window());
  Verwaltungsblock::listeLesen();
}

QString Handelsblock::meldung(const QStringList& gründe) const {
  return Verwaltung::ablehnung(gründe) + TZ_Variablen::CRLF;
}

void Handelsblock::nachListe() {
  const QSignalBlocker ohneEingaben(liste());
  liste()->setAktuelleZeile(liste()->zeilen() - 1);
}

// ---- purchases and sales ----

Geschäftsblock::Geschäftsblock(Seite seite, std::function<void()> lagerLesen,
                               std::function<void()> geändert)
    : Handelsblock(geschäftsplan(seite)),
      m_seite(seite),
      m_lagerLesen(std::move(lagerLesen)),
      m_geändert(std::move(geändert)) {}

void Geschäftsblock::listeLesen() {
  Handelsblock::listeLesen();
  m_geändert();
}

void Geschäftsblock::nachLöschen() { m_geändert(); }

QStringList Geschäftsblock::prüfe(const Texte& texte, bool) {
  return Handel::geschäftsgründe(texte);
}

// What a failure half way has left in the tables stands in the lists: pressing the button again
// would book it twice.
qint64 Geschäftsblock::schreiben(const Texte& texte, std::optional<qint64> id,
                                 const QVariantHash&) {
  const bool honig = Handel::istHonig(texte["Produkt"]);
  qint64 gespeichert = 0;
  try {
    gespeichert = Handel::geschäftSpeichern(datenbank(), m_seite, texte, id);
  } catch (const Datenbankfehler& fehler) {
    if (!fehler.allesVerworfen()) {
      listeLesen();
      if (honig) m_lagerLesen();
    }
    throw;
  }
  if (honig) m_lagerLesen();
  return gespeichert;
}

// Date and product come from the inputs: a movement of another day or product stays in the store.
void Geschäftsblock::vorLöschen(qint64 id) {
  const Texte eingaben = texte();
  Handel::bewegungLöschen(datenbank(), m_seite, eingaben["Datum"], eingaben["Produkt"], id);
  datenbank().NachFestschreiben([this] { m_lagerLesen(); });
}

// ---- honey store ----

Lagerblock::Lagerblock() : Handelsblock(lagerplan()) {
  for (const auto& feld : felder())
    if (feld.art == Verwaltung::Art::Dezimal)  // headed as the inputs: they say that it's kilograms
      liste()->setÜberschrift(feld.feld, feld.beschriftung);
  auto* links = new QWidget;
  auto* teiler = Bauteile::teiler("lagerteiler", {links, 3, 600}, {bestandBauen(), 2, 400});
  delete layout()->replaceWidget(liste(), teiler);
  QVBoxLayout* spalte = spalteIn(links);
  auto* kopf = new QHBoxLayout;
  kopf->addWidget(überschrift("Lagerbuchungen"));
  kopf->addStretch(1);
  spalte->addLayout(kopf);
  spalte->addWidget(liste(), 1);
  kopf->addStrut(m_comalle->sizeHint().height());  // both lists begin at the same height
}

QWidget* Lagerblock::bestandBauen() {
  m_ligroup = new Grid;
  m_ligroup->setObjectName("ligroup");
  m_ligroup->setAccessibleName("Bestand je Produkt und Charge");
  m_ligroup->setLayoutSchlüssel("tv_einverkauf_lager_ligroup");
  m_ligroup->setSelectionMode(QAbstractItemView::SingleSelection);
  m_comalle = knopfOhneEnter("Aktualisieren", "comalle");
  m_comalle->setToolTip("Den Bestand je Produkt und Charge neu ausrechnen");
  Ereignis::wenn(m_comalle, &QPushButton::clicked, this, [this] { bestandZeigen(); });
  auto* rechts = new QWidget;
  QVBoxLayout* spalte = spalteIn(rechts);
  auto* kopf = new QHBoxLayout;
  m_bestandsstand = new QLabel("(nicht aktuell)");
  m_bestandsstand->setObjectName("bestandsstand");
  kopf->addWidget(überschrift("Bestand"));
  kopf->addWidget(m_bestandsstand);
  kopf->addStretch(1);
  kopf->addWidget(m_comalle);
  spalte->addLayout(kopf);
  spalte->addWidget(m_ligroup, 1);
  return rechts;
}

QList<QWidget*> Lagerblock::tabfolge() const {
  return Verwaltungsblock::tabfolge() << m_comalle << m_ligroup;
}

// A deal makes another row current. Inputs that only show the former one go along: "Ändern" would
// write them over a row that they don't belong to. What was typed stays.
void Lagerblock::listeLesen() {
  const bool mitgehen = zeigtAktuelleZeile();
  Handelsblock::listeLesen();
  if (const auto id = aktuelleId(); id && mitgehen) zeigeDatensatz(*id);
  m_bestandsstand->show();
}

bool Lagerblock::zeigtAktuelleZeile() const {
  const int zeile = liste()->aktuelleZeile();
  if (zeile < 0) return false;
  const Texte gezeigt = texte();
  for (const Verwaltung::Feld& feld : felder())
    if (gezeigt[feld.feld] != Verwaltung::feldtext(feld, liste()->wert(zeile, feld.feld)))
      return false;
  return true;
}

void Lagerblock::nachLöschen() { m_bestandsstand->show(); }

void Lagerblock::bestandLeeren() { m_ligroup->setDaten({}); }

void Lagerblock::bestandZeigen() {
  const Ereignis::Sanduhr sanduhr;
  m_ligroup->setDaten(Handel::bestand(datenbank()));
  m_bestandsstand->hide();
}

QStringList Lagerblock::prüfe(const Texte& texte, bool) { return Handel::lagergründe(texte); }

// A changed row keeps its tie to its deal.
QString Lagerblock::vorSpeichern(const Texte&, std::optional<qint64> id, QVariantHash& weitere) {
  if (!id) weitere["EVK_ID"] = 0;
  return {};
}
