#include "mainform/forms/Formen.h"

#include <QPointer>
#include <algorithm>
#include <typeindex>
#include <unordered_map>

#include "bookings/forms/TE_Eingabe.h"
#include "colonies/forms/TV_Neues_Volk.h"
#include "core/forms/TH_Hilfe.h"
#include "core/globals.h"
#include "evaluations/Arbeitsplan.h"
#include "evaluations/Arbeitszeiten.h"
#include "evaluations/Deckungsbeitrag.h"
#include "evaluations/Gruppierungen.h"
#include "evaluations/Handelsauswertung.h"
#include "evaluations/Lagerauswertung.h"
#include "evaluations/Standortauswertung.h"
#include "evaluations/Statistik.h"
#include "evaluations/Stockkarten.h"
#include "evaluations/VoelkerBuchungen.h"
#include "evaluations/VoelkerBuchungenStandard.h"
#include "evaluations/Voelkerdaten.h"
#include "evaluations/Zuchtauswertung.h"
#include "evaluations/forms/Auswertungsformular.h"
#include "evaluations/forms/TW_Grafiken.h"
#include "evaluations/forms/TW_Listengenerator.h"
#include "mainform/Menue.h"
#include "mainform/forms/TH_Hilfe_Wieanfangen.h"
#include "mainform/forms/TO_Einstellungen.h"
#include "planning/forms/TV_Arplanoptionen.h"
#include "planning/forms/TV_Starttermine.h"
#include "planning/forms/TV_Terminverwaltung.h"
#include "platform/controls/Ereignis.h"
#include "sites/forms/TV_Pflanzen_Standorte.h"
#include "stores/forms/TV_EinVerkauf_Lager.h"

using namespace TZ_Variablen;

namespace {

using Einsteller = std::function<void(const QString&)>;

template <typename Form>
Formen::Eintrag form(const QString& eintrag, const Einsteller& einstellen = {}) {
  return {eintrag, [](QWidget* öffner) -> Formular* { return new Form(öffner); }, einstellen,
          &typeid(Form)};
}

// An evaluation, whose form is made from its description.
template <auto Beschreibung>
Formen::Eintrag auswertung(const QString& eintrag) {
  return form<Auswertungsform<Beschreibung>>(eintrag);
}

// How an entry's value reaches its form.
void alsBuchungsart(const QString& wert) { BuchungsArt = wert.toInt(); }
void alsVolkModus(const QString& wert) { VolkModus = wert; }
void alsFormModus(const QString& wert) { FormModus = wert; }

const Formen::Eintrag* gesucht(const QString& eintrag) {
  const auto& alle = Formen::liste();
  const auto treffer = std::ranges::find(alle, eintrag, &Formen::Eintrag::eintrag);
  return treffer == alle.end() ? nullptr : &*treffer;
}

// Puts a form that was shown before over another opener.
void setÖffner(Formular* form, QWidget* öffner) {
  if (öffner != nullptr && form->parentWidget() != öffner->window())
    form->setParent(öffner->window(), form->windowFlags());
}

// The one instance of the class, made on first use; it goes with its last opener.
Formular& geholt(const Formen::Eintrag& eintrag, QWidget* öffner) {
  static std::unordered_map<std::type_index, QPointer<Formular>> formen;
  QPointer<Formular>& form = formen[std::type_index(*eintrag.klasse)];
  if (!form) {
    const Ereignis::Sanduhr sanduhr;
    form = eintrag.machen(öffner);
  }
  return *form;
}

}  // namespace

const QList<Formen::Eintrag>& Formen::liste() {
  static const QList<Eintrag> alle = {
      form<TV_Neues_Volk>("XV_neuevölker", alsVolkModus),
      form<TV_Neues_Volk>("XV_volkändern", alsVolkModus),
      form<TE_Eingabe>("XE_stockkarte", alsBuchungsart),
      form<TE_Eingabe>("XE_honigernte", alsBuchungsart),
      form<TE_Eingabe>("XE_wachsernte", alsBuchungsart),
      form<TE_Eingabe>("XE_pollenernte", alsBuchungsart),
      form<TE_Eingabe>("XE_sonstigeernte", alsBuchungsart),
      form<TE_Eingabe>("XE_arbeiten", alsBuchungsart),
      form<TE_Eingabe>("XE_wanderung", alsBuchungsart),
      form<TE_Eingabe>("XE_gewichtsmessung", alsBuchungsart),
      form<TE_Eingabe>("XE_behandlung", alsBuchungsart),
      form<TE_Eingabe>("XE_Königinenwechsel", alsBuchungsart),
      form<TE_Eingabe>("XE_Notizen", alsBuchungsart),
      form<TV_Pflanzen_Standorte>("XV_standorte", alsFormModus),
      form<TV_Pflanzen_Standorte>("XV_pflanzen", alsFormModus),
      form<TV_Arplanoptionen>("XV_Arbeitsplanoptionen"),
      form<TV_Terminverwaltung>("XV_Termine"),
      form<TV_Starttermine>("XV_Aktuelle_Termine"),
      form<TV_EinVerkauf_Lager>("XV_einkauf", alsFormModus),
      form<TV_EinVerkauf_Lager>("XV_verkauf", alsFormModus),
      form<TV_EinVerkauf_Lager>("XV_honiglager", alsFormModus),
      auswertung<Völkerdaten::beschreibung>("XW_Völker"),
      auswertung<VölkerBuchungenStandard::beschreibung>("XW_Völkerbuchungenstandard"),
      auswertung<VölkerBuchungen::beschreibung>("XW_Völkerbuchungen"),
      auswertung<Stockkarten::beschreibung>("XW_Stockkarten"),
      auswertung<Arbeitsplan::beschreibung>("XW_Arbeitspläne"),
      auswertung<Deckungsbeitrag::beschreibung>("XW_Deckungsbeiträge"),
      auswertung<Arbeitszeiten::beschreibung>("XW_Arbeitszeiten"),
      form<TW_Listengenerator>("XW_Listengenerator"),
      auswertung<Statistik::beschreibung>("XW_Statistiken"),
      form<TW_Grafiken>("XW_Grafiken"),
      auswertung<Gruppierungen::beschreibung>("XW_Gruppierungen"),
      auswertung<Standortauswertung::beschreibung>("XW_Standorte"),
      auswertung<Handelsauswertung::beschreibung>("XW_Einverkauf"),
      auswertung<Lagerauswertung::beschreibung>("XW_Honiglager"),
      auswertung<Zuchtauswertung::beschreibung>("XW_Zuchtbuch"),
      form<TO_Einstellungen>("O_Einstellungen"),
      form<TH_Hilfe_Wieanfangen>("hilfewieanfangen"),
  };
  return alle;
}

bool Formen::gibtEs(const QString& eintrag) { return gesucht(eintrag) != nullptr; }

void Formen::zeigen(QWidget* öffner, const QString& eintrag) {
  const Eintrag* gefunden = gesucht(eintrag);
  if (gefunden == nullptr) return;
  Formular& form = geholt(*gefunden, öffner);
  if (form.isVisible()) return;
  setÖffner(&form, öffner);
  if (gefunden->einstellen) gefunden->einstellen(Menü::eintrag(eintrag).wert);
  form.zeigen();
}

void Formen::hilfe(QWidget* öffner, const QString& thema) {
  static QPointer<TH_Hilfe> fenster;
  HilfeThema = thema;
  if (!fenster) fenster = new TH_Hilfe(öffner);
  setÖffner(fenster, öffner);
  Ereignis::ausführen(öffner, [] { fenster->zeigen(); });
}
