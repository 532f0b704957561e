#include "sites/forms/Standortbloecke.h"

#include <QBoxLayout>
#include <QLabel>

#include "data/helpers.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Grid.h"
#include "sites/Standorte.h"

using Verwaltung::Texte;

namespace {

Verwaltungsblock::Plan standortplan() {
  Verwaltungsblock::Plan plan;
  plan.tabelle = "Standorte";
  plan.felder = Standorte::standortfelder();
  plan.titel = "Standorte eingeben / ändern";
  plan.anweisung = Standorte::standortliste();
  plan.liste = "listandorte";
  plan.listentitel = "Standorte";
  plan.schlüssel = "tv_pflanzen_standorte_listandorte";
  plan.eingabe = "sevtstandort";
  plan.neu = "neustandort";
  plan.löschen = "lschstandort";
  plan.hinweis =
      "Folgende Werte werden über die Pflanzen-Eintragungen zum Standort automatisch ermittelt:";
  return plan;
}

Verwaltungsblock::Plan pflanzenplan() {
  Verwaltungsblock::Plan plan;
  plan.tabelle = "Pflanzen";
  plan.felder = Standorte::pflanzenfelder();
  plan.titel = "Pflanzen eingeben / ändern";
  plan.anweisung = Standorte::pflanzenliste();
  plan.liste = "lipflanzen";
  plan.listentitel = "Pflanzen";
  plan.schlüssel = "tv_pflanzen_standorte_lipflanzen";
  plan.eingabe = "sevt";
  plan.neu = "neu";
  plan.löschen = "löschen";
  return plan;
}

Verwaltungsblock::Plan trachtplan() {
  Verwaltungsblock::Plan plan;
  plan.tabelle = "Standorte_Pflanzen";
  plan.felder = Standorte::trachtfelder();
  plan.titel = "Pflanzen am Standort eingeben / ändern";
  plan.anweisung = Standorte::trachtliste();
  plan.liste = "lijepflanze";
  plan.listentitel = "Pflanzen (Tracht) am ausgewählten Standort";
  plan.schlüssel = "tv_pflanzen_standorte_lijepflanze";
  plan.eingabe = "sevtje";
  plan.neu = "neuje";
  plan.löschen = "lschje";
  plan.zuerstMarkieren =
      "Bitte markieren Sie zuerst den Datensatz (die Pflanze), den Sie ändern möchten!";
  return plan;
}

// The list speaks as the inputs do and hides what only the program needs.
void listeEinrichten(Grid& liste, const Verwaltung::Felder& felder, const QStringList& verborgen) {
  for (const auto& feld : felder) liste.setÜberschrift(feld.feld, feld.beschriftung);
  for (const QString& spalte : verborgen) liste.setSpalteVerborgen(spalte, true);
}

}  // namespace

// ---- sites ----

Standortblock::Standortblock() : Verwaltungsblock(standortplan()) {
  listeEinrichten(*liste(), felder(), {"PTop", "PLeft", "ID"});
}

QStringList Standortblock::prüfe(const Texte& texte, bool) {
  return Standorte::standortGründe(texte);
}

QString Standortblock::vorSpeichern(const Texte& texte, std::optional<qint64> id,
                                    QVariantHash& weitere) {
  if (Verwaltung::vorhanden(datenbank(), "Standorte", felder().first(), texte["Standort"], id))
    return "Der Standort existiert bereits!";
  if (!id) weitere = Standorte::neuerPlatz();
  return {};
}

// ---- plants ----

Pflanzenblock::Pflanzenblock() : Verwaltungsblock(pflanzenplan()) {
  listeEinrichten(*liste(), felder(), {"ID"});
}

QStringList Pflanzenblock::prüfe(const Texte& texte, bool) {
  return Standorte::pflanzenGründe(texte);
}

QString Pflanzenblock::vorSpeichern(const Texte& texte, std::optional<qint64> id, QVariantHash&) {
  if (Verwaltung::vorhanden(datenbank(), "Pflanzen", felder().first(), texte["Pflanze"], id))
    return "Die Pflanze existiert bereits!";
  return {};
}

// ---- plants at a site ----

Trachtblock::Trachtblock() : Verwaltungsblock(trachtplan()) {
  listeEinrichten(*liste(), felder(), {"Standort_Kennung", "ID"});
  m_bezproz = new QLabel("0");
  m_bezproz->setObjectName("bezproz");
  m_bezproz->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  m_bezproz->setMinimumWidth(fontMetrics().horizontalAdvance("00000"));
  listenkopf()->addWidget(Bauteile::überschrift(liste()->accessibleName()));
  listenkopf()->addSpacing(2 * fontMetrics().averageCharWidth());
  listenkopf()->addStretch(1);
  listenkopf()->addWidget(new QLabel("Pflanzen am Standort in %: "));
  listenkopf()->addWidget(m_bezproz);
}

void Trachtblock::setStandort(qint64 id) {
  m_standort = id;
  listeLesen();
}

QStringList Trachtblock::prüfe(const Texte& texte, bool ändern) {
  qint64 sonst = GanzLesen(m_bezproz->text());
  if (ändern) sonst -= liste()->wert(liste()->aktuelleZeile(), "Proz_Anteil").toLongLong();
  return Standorte::trachtGründe(texte, sonst);
}

QString Trachtblock::vorSpeichern(const Texte&, std::optional<qint64>, QVariantHash& weitere) {
  if (m_standort == 0)
    return "Die Pflanze kann nicht eingetragen werden, weil der gewählte Standort nicht im "
           "Register \"Standorte\" steht. Bitte schließen Sie das Fenster und öffnen Sie es neu.";
  weitere["Standort_Kennung"] = m_standort;
  return {};
}

void Trachtblock::nachListe() {
  m_bezproz->setText(QString::number(Standorte::anteilSumme(datenbank(), m_standort)));
}

void Trachtblock::nachLöschen() {
  const auto id = aktuelleId();  // not the row: the user may have sorted the list
  listeLesen();
  if (id) zeigeDatensatz(*id);
}
