#include "Bienenjahr.h"

#include <QWidget>

#include "Begleiter.h"

namespace {

void öffne(Begleiter& tag, const QString& eintrag) {
  tag.schritt("TA_TOVA", [eintrag](QWidget* form) { Hand::wählen(form, eintrag); });
}

void arbeitsplanZeigen(Begleiter& tag) {
  öffne(tag, "XV_Arbeitsplanoptionen");
  tag.schritt("TV_Arplanoptionen", [&](QWidget* form) {
    Hand::tippen(form, "sevt_0", "Absperrgitter einlegen");
    Hand::tippen(form, "sevt_1", "15.4");
    Hand::tippen(form, "sevt_2", "15.4");
    Hand::tippen(form, "sevt_4", "J");
    Hand::drücken(form, "neu_0");
    tag.fotografieren(form, "arbeitsplan_neue_option");
    Hand::markieren(form, "liarplan", {5});
    tag.fotografieren(form, "arbeitsplan_optionen");
    Hand::drücken(form, QString("cmdschließen"));
  });
}

void terminverwaltungZeigen(Begleiter& tag) {
  öffne(tag, "XV_Termine");
  tag.schritt("TV_Terminverwaltung", [&](QWidget* form) {
    tag.fotografieren(form, "terminverwaltung_allgemein");
    Hand::tippen(form, "sevt_9", "5");
    Hand::tippen(form, "sevt_1", "Honigschleuder putzen");
    Hand::drücken(form, "neu_0");
    tag.fotografieren(form, "terminverwaltung_neu");
    Hand::drücken(form, "opti_1");
    Hand::markieren(form, "litermine", {2});
    tag.fotografieren(form, "terminverwaltung_voelker");
    Hand::drücken(form, QString("schließen"));
  });
}

void offeneTermineZeigen(Begleiter& tag) {
  öffne(tag, "XV_Aktuelle_Termine");
  tag.schritt("TV_Starttermine", [&](QWidget* form) {
    Hand::markieren(form, "litermine", {0});
    tag.fotografieren(form, "offene_termine_ausgewaehlt");
    Hand::drücken(form, "cmdok_0");
    tag.fotografieren(form, "offene_termine_erledigt");
    Hand::drücken(form, "okgruppiert");
  });
  tag.schritt("TA_Zwischenliste", [&](QWidget* form) {
    tag.fotografieren(form, "termine_gruppiert");
    Hand::drücken(form, "comtext");
  });
  tag.schritt("TA_Textausgabe", [&](QWidget* form) {
    tag.fotografieren(form, "termine_gruppiert_text");
    Hand::drücken(form, "abbv");
  });
  tag.schritt("TA_Zwischenliste",
              [](QWidget* form) { Hand::drücken(form, QString("cmdschließen")); });
  tag.schritt("TV_Starttermine", [](QWidget* form) { form->close(); });
}

}  // namespace

void planungZeigen(Begleiter& tag) {
  arbeitsplanZeigen(tag);
  terminverwaltungZeigen(tag);
  offeneTermineZeigen(tag);
}

void standorteZeigen(Begleiter& tag) {
  öffne(tag, "XV_standorte");
  tag.schritt("TV_Pflanzen_Standorte", [&](QWidget* form) {
    Hand::markieren(form, "listandorte", {2});
    tag.fotografieren(form, "standorte_1_standorte");
    Hand::reiterWählen(form, "reiter", 1);
    Hand::markieren(form, "lijeort", {0});
    Hand::markieren(form, "lijepflanze", {1});
    tag.fotografieren(form, "standorte_2_je_standort");
    Hand::reiterWählen(form, "reiter", 2);
    Hand::markieren(form, "lipflanzen", {3});
    tag.fotografieren(form, "standorte_3_pflanzen");
    Hand::drücken(form, "beenden");
  });
}

void handelZeigen(Begleiter& tag) {
  öffne(tag, "XV_einkauf");
  tag.schritt("TV_EinVerkauf_Lager", [&](QWidget* form) {
    Hand::markieren(form, "lieinkauf", {17});
    tag.fotografieren(form, "handel_1_einkaeufe");
    Hand::drücken(form, "beenden");
  });
  öffne(tag, "XV_verkauf");
  tag.schritt("TV_EinVerkauf_Lager", [&](QWidget* form) {
    const QStringList verkauf = {"20.6", "Rapshonig", "Glas 500 g", "Ziegler Martha",
                                 "2",    "kg",        "22",         "2026/RAP"};
    for (int i = 0; i < verkauf.size(); ++i)
      Hand::tippen(form, QStringLiteral("sevtverkauf_%1").arg(i), verkauf[i]);
    Hand::drücken(form, "neuverkauf_0");
    tag.fotografieren(form, "handel_2_verkaeufe");
    Hand::reiterWählen(form, "reiter", 2);
    Hand::drücken(form, "comalle");
    tag.fotografieren(form, "handel_3_honiglager");
    Hand::drücken(form, "beenden");
  });
  öffne(tag, "XV_honiglager");
  tag.schritt("TV_EinVerkauf_Lager", [](QWidget* form) { Hand::drücken(form, "beenden"); });
}
