#include "Rueckschau.h"

#include <QStringList>
#include <QWidget>

#include "Begleiter.h"

namespace {

void öffne(Begleiter& tag, const QString& eintrag) {
  tag.schritt("TA_TOVA", [eintrag](QWidget* form) { Hand::wählen(form, eintrag); });
}

// An evaluation from its menu entry to its closing. The question is put in and the form's picture
// taken before the command; the list that it gives has a picture of its own.
struct Frage {
  QString eintrag;
  QString form;
  QString bild;
  Begleiter::Aktion eingeben;
  QString befehl = "ok";
  QString ausgabe = "TA_Zwischenliste";
};

void frage(Begleiter& tag, const Frage& f) {
  öffne(tag, f.eintrag);
  tag.schritt(f.form, [&tag, f](QWidget* form) {
    if (f.eingeben) f.eingeben(form);
    tag.fotografieren(form, "auswertung_" + f.bild);
    Hand::drücken(form, f.befehl);
  });
  tag.schritt(f.ausgabe, [&tag, f](QWidget* form) {
    tag.fotografieren(form, "auswertung_" + f.bild + "_liste");
    Hand::drücken(form, f.ausgabe == u"TA_Textausgabe" ? "abbv" : "cmdschließen");
  });
  tag.schritt(f.form, [](QWidget* form) { Hand::drücken(form, "beenden"); });
}

void dreiJahre(QWidget* form) {
  Hand::tippen(form, "t_0", "2024");
  Hand::tippen(form, "t_1", "2026");
}

// ---- colonies and bookings ----

void völkerZeigen(Begleiter& tag) {
  tag.schritt("TA_TOVA", [](QWidget* form) { Hand::markieren(form, "datali", {0}); });
  frage(tag, {"XW_Völker", "TW_Völkerdaten", "volkdaten", [](QWidget* form) {
                for (const char* feld : {"Volkstärke", "Bienenrasse", "Königin_Farbe"})
                  Hand::anklicken(form, "liste", feld);
                Hand::drücken(form, "optitieraus_0");
                Hand::tippen(form, "komsort", "Standort");
              }});
  frage(tag, {"XW_Völkerbuchungenstandard", "TW_Völker_Buchungen_Standard", "buchungen",
              [](QWidget* form) {
                Hand::drücken(form, "optitieraus_1");
                Hand::tippen(form, "sevt_0", "Behandlung");
                Hand::drücken(form, "alletier_1");
                for (const char* feld : {"Datum", "Mittel", "Zulassungsnr", "Wartezeit"})
                  Hand::anklicken(form, "li", feld);
                Hand::tippen(form, "tdat_0", "01.01.2025");
                Hand::tippen(form, "tdat_1", "31.12.2025");
                Hand::tippen(form, "sevt_1", "Datum");
              }});
  frage(tag, {"XW_Völkerbuchungen", "TW_Völker_Buchungen", "ereignisse", [](QWidget* form) {
                Hand::drücken(form, "optitieraus_4");
                Hand::ankreuzen(form, "konereignis");
              }});
  frage(tag, {"XW_Stockkarten", "TW_Stockkarten", "stockkarten",
              [](QWidget* form) {
                Hand::tippen(form, "tdat_0", "01.04.2026");
                Hand::tippen(form, "tdat_1", "20.06.2026");
                Hand::ankreuzen(form, "kondetails");
                Hand::ankreuzen(form, "konseparat");
                Hand::ankreuzen(form, "tierleer_0");
              },
              "ok", "TA_Textausgabe"});
}

// A text that the program brings along, for two colonies.
void listengeneratorZeigen(Begleiter& tag) {
  tag.schritt("TA_TOVA", [](QWidget* form) {
    Hand::markieren(form, "datali", {0, 1});
    Hand::wählen(form, "XW_Listengenerator");
  });
  tag.schritt("TW_Listengenerator", [](QWidget* form) { Hand::drücken(form, "laden"); });
  tag.schritt("TS_Dateiauswahl", [](QWidget* form) {
    Hand::anklicken(form, "Datei1", "Beispiel_Wabeneintrag.TKS");
    Hand::drücken(form, "ok");
  });
  tag.schritt("TW_Listengenerator", [&](QWidget* form) {
    tag.fotografieren(form, "auswertung_listengenerator");
    Hand::drücken(form, "drucken");
  });
  tag.schritt("TA_Textausgabe", [&](QWidget* form) {
    tag.fotografieren(form, "auswertung_listengenerator_liste");
    Hand::drücken(form, "abbv");
  });
  tag.schritt("TW_Listengenerator", [](QWidget* form) { Hand::drücken(form, "schließen"); });
}

// ---- work and figures ----

void zahlenZeigen(Begleiter& tag) {
  frage(tag, {"XW_Arbeitspläne", "TW_Arbeitsplan", "arbeitsplan",
              [](QWidget* form) {
                Hand::ankreuzen(form, "kon_1");
                Hand::ankreuzen(form, "kon_2");
                Hand::drücken(form, "optisort_2");
                Hand::tippen(form, "tdat", "22.06.2026");
                Hand::drücken(form, "woche_0");
              },
              "ok_1"});
  frage(tag, {"XW_Deckungsbeiträge", "TW_Deckungsbeitrag", "deckungsbeitrag", [](QWidget* form) {
                Hand::drücken(form, "optitieraus_1");
                dreiJahre(form);
                Hand::drücken(form, "alletier_1");
                for (const int posten : {0, 6, 10, 13, 15})
                  Hand::ankreuzen(form, QStringLiteral("konkost_%1").arg(posten));
              }});
  frage(tag, {"XW_Arbeitszeiten", "TW_Arbeitszeiten", "arbeitszeiten", [](QWidget* form) {
                dreiJahre(form);
                Hand::drücken(form, "alletier_0");
              }});
  frage(tag, {"XW_Statistiken", "TW_Statistiken", "statistik",
              [](QWidget* form) {
                Hand::drücken(form, "alletier_1");
                for (const char* maß : {"Durchschn. Honigernte (kg)", "Gesamte Honigernte (kg)",
                                        "Gesamter Honigwert"})
                  Hand::anklicken(form, "li1", maß);
                dreiJahre(form);
                Hand::ankreuzen(form, "konschnitt");
              },
              "ok_0"});
}

// Those whose answer stays in their own window.
void gruppenUndGrafikZeigen(Begleiter& tag) {
  öffne(tag, "XW_Gruppierungen");
  tag.schritt("TW_Gruppierungen", [&](QWidget* form) {
    Hand::anklicken(form, "li2", "Honigernte / Honigsorte");
    Hand::drücken(form, "auswertungok");
    tag.fotografieren(form, "auswertung_gruppierungen");
    Hand::drücken(form, "beenden");
  });
  öffne(tag, "XW_Grafiken");
  tag.schritt("TW_Grafiken", [&](QWidget* form) {
    tag.fotografieren(form, "auswertung_grafik_torte");
    Hand::drücken(form, "auswahl_2");
    Hand::drücken(form, "optitorte_1");
    tag.fotografieren(form, "auswertung_grafik_balken");
    Hand::drücken(form, "auswahl_1");
    Hand::tippen(form, "t", "2025");
    Hand::drücken(form, "optitorte_0");
    Hand::drücken(form, "opti3d_1");
    Hand::ankreuzen(form, "kongrosserteil");
    Hand::ankreuzen(form, "konwertanzeige_0");
    tag.fotografieren(form, "auswertung_grafik");
    Hand::drücken(form, "schließen");
  });
}

// ---- sites and trade ----

void ständeUndHandelZeigen(Begleiter& tag) {
  frage(tag, {"XW_Standorte", "TW_Standorte", "standorte", {}, "rolisten_5"});
  frage(tag, {"XW_Einverkauf", "TW_EinVerkauf", "handel", {}, "rolisten_3"});
  frage(tag, {"XW_Honiglager", "TW_Honiglager", "honiglager", {}, "rolisten_2"});
}

}  // namespace

void auswertungenZeigen(Begleiter& tag) {
  völkerZeigen(tag);
  listengeneratorZeigen(tag);
  zahlenZeigen(tag);
  gruppenUndGrafikZeigen(tag);
  ständeUndHandelZeigen(tag);
}
