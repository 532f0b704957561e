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
using Bauteile::ueberschrift;
using Handel::Seite;
using Verwaltung::Texte;

namespace {

Verwaltungsblock::Plan geschaeftsplan(Seite seite) {
  const bool einkauf = seite == Seite::Einkauf;
  Verwaltungsblock::Plan plan;
  plan.tabelle = Handel::tabelle(seite);
  plan.felder = Handel::geschaeftsfelder(seite);
  plan.titel = einkauf ? "Einkäufe eingeben / ändern" : "Verkäufe eingeben / ändern";
  plan.anweisung = Handel::geschaeftsliste(seite);
  plan.liste = einkauf ? "lieinkauf" : "liverkauf";
  plan.listentitel = einkauf ? "Einkäufe" : "Verkäufe";
  plan.schluessel = einkauf ? "tv_einverkauf_lager_lieinkauf" : "tv_einverkauf_lager_liverkauf";
  plan.eingabe = einkauf ? "sevteinkauf" : "sevtverkauf";
  plan.neu = einkauf ? "neueinkauf" : "neuverkauf";
  plan.loeschen = einkauf ? "lscheinkauf" : "lschverkauf";
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
  plan.schluessel = "tv_einverkauf_lager_lihonig";
  plan.eingabe = "sevthonig";
  plan.neu = "neuhonig";
  plan.loeschen = "lschhonig";
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

Geschaeftsblock::Geschaeftsblock(Seite seite, std::function<void()> lagerLesen,
                                 std::function<void()> geaendert)
    : Handelsblock(geschaeftsplan(seite)),
      m_seite(seite),
      m_lagerLesen(std::move(lagerLesen)),
      m_geaendert(std::move(geaendert)) {}

void Geschaeftsblock::listeLesen() {
  Handelsblock::listeLesen();
  m_geaendert();
}

void Geschaeftsblock::nachLöschen() {
  m_lagerLesen();
  m_geaendert();
}

QStringList Geschaeftsblock::prüfe(const Texte& texte, bool) {
  return Handel::geschaeftsgruende(texte);
}

// What a failure half way has left in the tables stands in the lists: pressing the button again
// would book it twice.
qint64 Geschaeftsblock::schreiben(const Texte& texte, std::optional<qint64> id,
                                  const QVariantHash&) {
  const bool honig = Handel::istHonig(texte["Produkt"]);
  qint64 gespeichert = 0;
  try {
    gespeichert = Handel::geschaeftSpeichern(datenbank(), m_seite, texte, id);
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
void Geschaeftsblock::vorLöschen(qint64 id) {
  const Texte eingaben = texte();
  Handel::bewegungLoeschen(datenbank(), m_seite, eingaben["Datum"], eingaben["Produkt"], id);
}

// ---- honey store ----

Lagerblock::Lagerblock() : Handelsblock(lagerplan()) {
  for (const auto& feld : felder())
    if (feld.art == Verwaltung::Art::Dezimal)  // headed as the inputs: they say that it's kilograms
      liste()->setUeberschrift(feld.feld, feld.beschriftung);
  auto* links = new QWidget;
  auto* teiler = Bauteile::teiler("lagerteiler", {links, 3, 600}, {bestandBauen(), 2, 400});
  delete layout()->replaceWidget(liste(), teiler);
  QVBoxLayout* spalte = spalteIn(links);
  auto* kopf = new QHBoxLayout;
  kopf->addWidget(ueberschrift("Lagerbuchungen"));
  kopf->addStretch(1);
  spalte->addLayout(kopf);
  spalte->addWidget(liste(), 1);
  kopf->addStrut(comalle->sizeHint().height());  // both lists begin at the same height
}

QWidget* Lagerblock::bestandBauen() {
  ligroup = new Grid;
  ligroup->setObjectName("ligroup");
  ligroup->setAccessibleName("Bestand je Produkt und Charge");
  ligroup->setLayoutSchluessel("tv_einverkauf_lager_ligroup");
  ligroup->setSelectionMode(QAbstractItemView::SingleSelection);
  comalle = knopfOhneEnter("Aktualisieren", "comalle");
  comalle->setToolTip("Den Bestand je Produkt und Charge neu ausrechnen");
  Ereignis::wenn(comalle, &QPushButton::clicked, this, [this] { bestandZeigen(); });
  auto* rechts = new QWidget;
  QVBoxLayout* spalte = spalteIn(rechts);
  auto* kopf = new QHBoxLayout;
  bestandsstand = new QLabel("(nicht aktuell)");
  bestandsstand->setObjectName("bestandsstand");
  kopf->addWidget(ueberschrift("Bestand"));
  kopf->addWidget(bestandsstand);
  kopf->addStretch(1);
  kopf->addWidget(comalle);
  spalte->addLayout(kopf);
  spalte->addWidget(ligroup, 1);
  return rechts;
}

QList<QWidget*> Lagerblock::tabfolge() const {
  return Verwaltungsblock::tabfolge() << comalle << ligroup;
}

// A deal makes another row current. Inputs that only show the former one go along: "Ändern" would
// write them over a row that they don't belong to. What was typed stays.
void Lagerblock::listeLesen() {
  const bool mitgehen = zeigtAktuelleZeile();
  Handelsblock::listeLesen();
  if (const auto id = aktuelleId(); id && mitgehen) zeigeDatensatz(*id);
  bestandsstand->show();
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

void Lagerblock::nachLöschen() { bestandsstand->show(); }

void Lagerblock::bestandLeeren() { ligroup->setDaten({}); }

void Lagerblock::bestandZeigen() {
  const Ereignis::Sanduhr sanduhr;
  ligroup->setDaten(Handel::bestand(datenbank()));
  bestandsstand->hide();
}

QStringList Lagerblock::prüfe(const Texte& texte, bool) { return Handel::lagergruende(texte); }

// A changed row keeps its tie to its deal.
QString Lagerblock::vorSpeichern(const Texte&, std::optional<qint64> id, QVariantHash& weitere) {
  if (!id) weitere["EVK_ID"] = 0;
  return {};
}
