#include "Formenliste.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QTabWidget>
#include <QTest>
#include <algorithm>

#include "Eingabehilfen.h"
#include "bookings/Buchungstypen.h"
#include "colonies/forms/TV_Selektieren.h"
#include "core/forms/TH_Hilfe.h"
#include "data/forms/TS_Dateiauswahl.h"
#include "data/forms/TS_Dateispeichern.h"
#include "evaluations/forms/Auswertungsformular.h"
#include "mainform/Menue.h"
#include "mainform/forms/Formen.h"
#include "mainform/forms/TA_TOVA.h"
#include "output/Textausgabe.h"
#include "output/Uebergabe.h"
#include "output/forms/TA_Textausgabe.h"
#include "output/forms/TA_Zwischenliste.h"
#include "platform/controls/Formular.h"
#include "platform/controls/Grid.h"
#include "stores/Handel.h"

using namespace TZ_Variablen;

namespace {

const QString Löschfrage =
    "Soll der markierte Datensatz wirklich unwiederbringlich gelöscht werden?";

Formfall hauptformular() {
  Formfall f{"TA_TOVA", "TA_TOVA", "TA_TOVA", {}, {}};
  f.machen = [](Betrieb& betrieb) -> Form {
    betrieb.übergeben();
    auto form = std::make_unique<TA_TOVA>();
    if (!form->laden({betrieb.ordner(), QDate(2026, 6, 15), [] { return true; }})) return nullptr;
    form->datenvölkerlesen();
    EinstellungenZahl[Zahlslots.terminlisteBeimStart] =
        0;  // the open appointments would stand in front of it
    return form;
  };
  f.hauptformular = true;
  f.löschen = Löschen{
      "Bienenvolk", "Das Löschen eines Volkes entfernt das markierte Volk",
      [](QWidget* form) { form->findChild<QAction*>(QString("XV_volklöschen"))->trigger(); }};
  f.doppelt = QStringList{QString("Alt+V: &Völker und &Verwaltung")};
  f.doppeltImMenü = QStringList{"V_Verwaltung:A", "XE_Eingabe:S", "XE_Eingabe:W", "popupliste:V"};
  return f;
}

// The form of a menu entry, as the program makes it.
Form ausEintrag(const QString& name) {
  const auto& alle = Formen::liste();
  const auto eintrag = std::ranges::find(alle, name, &Formen::Eintrag::eintrag);
  if (eintrag == alle.end()) return nullptr;
  if (eintrag->einstellen) eintrag->einstellen(Menü::eintrag(name).wert);
  std::unique_ptr<Formular> form(eintrag->machen(nullptr));
  form->laden();
  return form;
}

Formfall ersteSchritte() {
  Formfall f{"TH_Hilfe_Wieanfangen", "TH_Hilfe_Wieanfangen", "TH_Hilfe_Wieanfangen", "schritt_2",
             [](Betrieb&) { return ausEintrag("hilfewieanfangen"); }};
  f.einträge = QStringList{"hilfewieanfangen"};
  return f;
}

Form volkform(Betrieb& betrieb, const QString& eintrag, int zeile) {
  betrieb.liste().datenvölkerlesen();
  betrieb.liste().setAktuelleZeile(zeile);
  return ausEintrag(eintrag);
}

Formfall neuesVolk() {
  Formfall f{"TV_Neues_Volk_Neu", "TV_Neues_Volk", "TV_Neues_Volk", "ok", {}};
  f.machen = [](Betrieb& betrieb) { return volkform(betrieb, "XV_neuevölker", 0); };
  f.einträge = QStringList{"XV_neuevölker"};
  f.sichern = Sichern{"ok",
                      {"kon", "sevt_13"},  // a colony in stock hasn't gone
                      {},
                      [](Betrieb& betrieb) { return volkform(betrieb, "XV_volkändern", 3); },
                      {},
                      [](QWidget* form, Meldungen::Probe& boxen) {
                        tippe(form, "sevt_0", {});
                        boxen.hinweisMit("...die Volknummer angegeben werden muß.");
                      }};
  return f;
}

Formfall volkÄndern() {
  Formfall f{"TV_Neues_Volk_Aendern", "TV_Neues_Volk", "TV_Neues_Volk", "ok", {}};
  f.machen = [](Betrieb& betrieb) { return volkform(betrieb, "XV_volkändern", 1); };
  f.einträge = QStringList{"XV_volkändern"};
  f.sichern = Sichern{"ok",
                      {"kon", "sevt_13"},
                      [](Meldungen::Probe& boxen) {
                        boxen.hinweisMit("Sie haben Werte geändert")
                            .frageMit("Sie haben den neuen Standort ", true);
                      },
                      f.machen,
                      {},
                      [](QWidget* form, Meldungen::Probe& boxen) {
                        tippe(form, "sevt_0", "3");
                        boxen.hinweisMit("...die Volknummer bereits existiert.");
                      }};
  return f;
}

// The type's name in plain letters.
QString schlicht(QString text) {
  for (const auto& [umlaut, ersatz] : {std::pair{"ä", "ae"}, {"ö", "oe"}, {"ü", "ue"}, {"ß", "ss"}})
    text.replace(QString(umlaut), QString(ersatz));
  return text.remove(u' ');
}

Formfall eingabe(int art) {
  QString eintrag;
  for (const Menü::Eintrag& e : Menü::menüs()[1].einträge)
    if (e.wert == QString::number(art)) eintrag = e.name;
  Formfall f{"TE_Eingabe_" + schlicht(buchungstyp(art).beschriftung),
             "TE_Eingabe",
             "TE_Eingabe",
             "neu_0",
             {}};
  f.machen = [eintrag](Betrieb& betrieb) -> Form {
    betrieb.liste();
    return ausEintrag(eintrag);
  };
  f.einträge = QStringList{eintrag};
  f.sichern = Sichern{
      "neu_0",
      {"kom"},
      {},
      f.machen,
      [](QWidget* form) {
        auto* li = form->findChild<Grid*>("li");
        for (int i = 0; i < li->zeilen(); ++i)
          if (li->zelle(i, "Datum") == "12.04.2026") klickeZeile(li, i);
      },
      [](QWidget* form, Meldungen::Probe& boxen) {
        tippe(form, "sevt_0", "31.02.2026");
        boxen.hinweis("Die Buchung wird nicht ausgeführt, weil das Datum nicht korrekt ist.");
      }};
  f.löschen = Löschen{buchungstyp(art).tabelle, Löschfrage,
                      [](QWidget* form) { drücke(form, QString("löschen")); }};
  return f;
}

Formfall hilfe() {
  return {"TH_Hilfe", "TH_Hilfe", {}, "schliessen", [](Betrieb&) -> Form {
            HilfeThema = "TE_Eingabe";
            auto form = std::make_unique<TH_Hilfe>(nullptr);
            form->laden();
            return form;
          }};
}

Formfall dateiauswahl() {
  return {"TS_Dateiauswahl", "TS_Dateiauswahl", "TS_Dateiauswahl", "ok",
          [](Betrieb& betrieb) -> Form {
            for (const char* name : {"/ernte.TKS", "/frühjahr.TKS"}) {
              QFile datei(betrieb.ordner() + QString(name));
              if (!datei.open(QFile::WriteOnly)) return nullptr;
            }
            return std::make_unique<TS_Dateiauswahl>(AppPfad + "*.TKS", nullptr);
          }};
}

Formfall dateispeichern() {
  Formfall f{"TS_Dateispeichern", "TS_Dateispeichern", "TS_Dateispeichern", "ok", {}};
  f.machen = [](Betrieb&) -> Form {
    return std::make_unique<TS_Dateispeichern>(nullptr, DateiErgebnis);
  };
  f.sichern = Sichern{"ok", {}, {}, f.machen, {}, {}};
  return f;
}

// The button beside the input that has the keyboard is the default one.
Formfall selektieren() {
  Formfall f{"TV_Selektieren", "TV_Selektieren", "TV_Selektieren", "entselekt_2", {}};
  f.machen = [](Betrieb& betrieb) -> Form {
    betrieb.liste();
    auto form = std::make_unique<TV_Selektieren>();
    form->laden();
    return form;
  };
  f.sichern =
      Sichern{"schliessen",
              {"sevt_0", "sevt_1", "sevt_2", "sevt_3", "sevt_4", "sevt_5", "sevt_6"},
              {},
              f.machen,
              {},
              [](QWidget*, Meldungen::Probe& boxen) {
                boxen.hinweisMit("Der Selektionswunsch kann nicht ausgeführt werden, weil ");
              },
              {},
              "entselekt_2"};
  return f;
}

// A site with a plant, so that every tab can be opened; a new database has plants, but no site.
Form standortform(const QString& eintrag) {
  if (DB.Lesen("select ID from Standorte")->zeilen() == 0) {
    DB.Execute("insert into Standorte(Standort) values (?)", {QString("Hausgarten")});
    DB.Execute(
        "insert into Standorte_Pflanzen(Pflanze, Entfernung_m, Proz_Anteil, Standort_Kennung) "
        "values (?, ?, ?, ?)",
        {QString("Krokus"), 500, 60, DB.LetzteID()});
  }
  return ausEintrag(eintrag);
}

// Clicks the first row for which the condition holds.
void zeileAufReiter(QWidget* form, int reiter, const QString& liste, const QString& bedingung) {
  form->findChild<QTabWidget*>("reiter")->setCurrentIndex(reiter);
  auto* grid = form->findChild<Grid*>(liste);
  klickeZeile(grid, grid->findeZeile(bedingung));
}

// The given captions; the first of the two can't be chosen.
QStringList alleSDesFußes() {
  return {
      "Alt+S: QPushButton comstandortlisten \"&Standorte / Pflanzen auswerten\" und QPushButton "
      "beenden \"&Schließen\""};
}

Formfall arbeitsplanoptionen() {
  Formfall f{"TV_Arplanoptionen", "TV_Arplanoptionen", "TV_Arplanoptionen", "neu_0", {}};
  f.machen = [](Betrieb&) { return ausEintrag("XV_Arbeitsplanoptionen"); };
  f.einträge = QStringList{"XV_Arbeitsplanoptionen"};
  f.sichern = Sichern{"neu_0",
                      {},
                      {},
                      f.machen,
                      [](QWidget* form) { klickeZeile(form->findChild<Grid*>("liarplan"), 0); },
                      [](QWidget* form, Meldungen::Probe& boxen) {
                        tippe(form, "sevt_0", {});
                        boxen.hinweisMit("...die Arbeitsart angegeben werden muß.");
                      }};
  // The first of the list; a period that ends behind its start.
  f.sichern->werte = {{"sevt_0", "1. Durchsicht"}, {"sevt_1", "01.05"}, {"sevt_2", "30.06"}};
  f.löschen = Löschen{"Arbeitsplanoptionen", Löschfrage, [](QWidget* form) {
                        klickeZeile(form->findChild<Grid*>("liarplan"), 0);
                        drücke(form, QString("löschen"));
                      }};
  return f;
}

// General appointments and some of colonies, due and to come, open and done.
void termineEintragen() {
  if (DB.Lesen("select ID from Termine where Termin = 'Imkerstammtisch'")->zeilen() > 0) return;
  const auto eintragen = [](const char* tag, const QString& text, const char* erledigt,
                            qint64 volkId) {
    DB.Execute("insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, ?, ?, ?)",
               {QDate::fromString(tag, Qt::ISODate), text, QString(erledigt), volkId});
  };
  eintragen("2026-06-12", "Imkerstammtisch", "J", 0);
  eintragen("2026-06-26", "Imkerstammtisch", "N", 0);
  const Daten völker = DB.Lesen("select ID from Bienenvolk order by ID");
  for (int i = 0; i < völker->zeilen(); ++i) {
    eintragen("2026-06-10", "Honigraum aufsetzen", "N", völker->ganzzahl(i, 0));
    eintragen("2026-06-20", "Schwarmkontrolle", "N", völker->ganzzahl(i, 0));
  }
}

// In the view of the colonies' appointments, which has the most columns.
Formfall terminverwaltung() {
  Formfall f{"TV_Terminverwaltung", "TV_Terminverwaltung", "TV_Terminverwaltung", "neu_0", {}};
  f.machen = [](Betrieb&) -> Form {
    termineEintragen();
    Form form = ausEintrag("XV_Termine");
    form->findChild<QAbstractButton*>("opti_1")->click();
    return form;
  };
  f.einträge = QStringList{"XV_Termine"};
  f.sichern = Sichern{"neu_0",
                      {"opti_0", "opti_1", "sevt_3", "sevt_4", "sevt_5", "sevt_6", "sevt_7",
                       "sevt_9", "sevt_10"},  // view and filters; the days follow the date
                      {},
                      f.machen,
                      [](QWidget* form) {
                        auto* grid = form->findChild<Grid*>("litermine");
                        klickeZeile(grid, grid->findeZeile("Termin = 'Futter nachsehen'"));
                      },
                      [](QWidget* form, Meldungen::Probe& boxen) {
                        tippe(form, "sevt_1", {});
                        boxen.hinweisMit("...die Terminart angegeben werden muß.");
                      }};
  f.sichern->werte = {{"sevt_0", "18.06.2026"}, {"sevt_1", "Futter nachsehen"}, {"sevt_8", "2"}};
  f.löschen = Löschen{"Termine", Löschfrage, [](QWidget* form) {
                        auto* grid = form->findChild<Grid*>("litermine");
                        klickeZeile(grid, grid->findeZeile("Termin = 'Schwarmkontrolle'"));
                        drücke(form, QString("löschen"));
                      }};
  return f;
}

// The check box is kept; what closes appointments asks for a row first.
Formfall starttermine() {
  Formfall f{"TV_Starttermine", "TV_Starttermine", "TV_Starttermine", QString("schließen"), {}};
  f.machen = [](Betrieb&) -> Form {
    termineEintragen();
    return ausEintrag("XV_Aktuelle_Termine");
  };
  f.einträge = QStringList{"XV_Aktuelle_Termine"};
  f.sichern = Sichern{QString("schließen"),
                      {"sevt_0", "sevt_1", "sevt_2", "sevt_3", "konterminreihe"},
                      {},
                      f.machen,
                      {},
                      [](QWidget*, Meldungen::Probe& boxen) {
                        boxen.hinweis("Bitter markieren Sie zuerst die zu erledigenden Termine.");
                      },
                      {},
                      "cmdok_1"};
  f.eingabeknopf = "cmdok_0";
  return f;
}

// Refused as long as the one input is empty. Only that: a walk over the tabs chooses a site and
// begins its plants anew, so what is typed on these tabs isn't there any more after it.
Sichern abgelehntOhne(const QString& knopf, const QString& pflichtfeld, const QString& grund) {
  return {knopf, {}, {}, {}, {}, [pflichtfeld, grund](QWidget* form, Meldungen::Probe& boxen) {
            tippe(form, pflichtfeld, {});
            boxen.hinweisMit(grund);
          }};
}

Formfall standorte() {
  Formfall f{"TV_Pflanzen_Standorte_Standorte", "TV_Pflanzen_Standorte", "TV_Pflanzen_Standorte",
             "neustandort_0", [](Betrieb&) { return standortform("XV_standorte"); }};
  f.einträge = QStringList{"XV_standorte"};
  f.löschen = Löschen{"Standorte", Löschfrage, [](QWidget* form) {
                        zeileAufReiter(form, 0, "listandorte", "Standort = 'Hausgarten'");
                        drücke(form, "lschstandort");
                      }};
  f.sichern =
      abgelehntOhne("neustandort_0", "sevtstandort_0", "...der Standort angegeben werden muß.");
  f.doppelt = alleSDesFußes();
  return f;
}

Formfall pflanzenJeStandort() {
  Formfall f{"TV_Pflanzen_Standorte_JeStandort",
             "TV_Pflanzen_Standorte",
             "TV_Pflanzen_Standorte",
             "neuje_0",
             {}};
  f.machen = [](Betrieb&) {
    Form form = standortform("XV_standorte");
    form->findChild<QTabWidget*>("reiter")->setCurrentIndex(1);
    return form;
  };
  f.löschen = Löschen{"Standorte_Pflanzen", Löschfrage, [](QWidget* form) {
                        zeileAufReiter(form, 1, "lijepflanze", "Pflanze = 'Krokus'");
                        drücke(form, "lschje");
                      }};
  f.sichern = abgelehntOhne("neuje_0", "sevtje_0", "...die Pflanze angegeben werden muß.");
  f.doppelt = alleSDesFußes();
  return f;
}

Formfall pflanzen() {
  Formfall f{"TV_Pflanzen_Standorte_Pflanzen", "TV_Pflanzen_Standorte", "TV_Pflanzen_Standorte",
             "neu_0", [](Betrieb&) { return standortform("XV_pflanzen"); }};
  f.einträge = QStringList{"XV_pflanzen"};
  QStringList andere{"sevtje_0", "sevtje_1", "sevtje_2"};
  for (int i = 0; i < 11; ++i) andere << QString("sevtstandort_%1").arg(i);
  f.sichern = Sichern{"neu_0",
                      andere,
                      {},
                      f.machen,
                      [](QWidget* form) {
                        zeileAufReiter(form, 0, "listandorte", "Standort = 'Hausgarten'");
                        zeileAufReiter(form, 2, "lipflanzen", "Pflanze = 'Wert0'");
                      },
                      [](QWidget* form, Meldungen::Probe& boxen) {
                        tippe(form, "sevt_0", {});
                        boxen.hinweisMit("...die Pflanze angegeben werden muß.");
                      }};
  f.löschen = Löschen{"Pflanzen", Löschfrage, [](QWidget* form) {
                        zeileAufReiter(form, 2, "lipflanzen", "Pflanze = 'Krokus'");
                        drücke(form, QString("löschen"));
                      }};
  f.doppelt = alleSDesFußes();
  return f;
}

void bucheHonig(Handel::Seite seite, const QString& produkt, const QString& menge) {
  Verwaltung::Texte texte = Verwaltung::vorgaben(Handel::geschäftsfelder(seite));
  texte["Produkt"] = produkt;
  texte["Menge"] = menge;
  texte[Handel::partnerfeld(seite)] = QString("Bäckerei Grünäcker");
  texte["Charge"] = "A1";
  Handel::geschäftSpeichern(DB, seite, texte, {});
}

// A purchase and a sale, so that no list is empty.
Form handelsform(const QString& eintrag) {
  if (DB.Lesen("select ID from Einkauf")->zeilen() == 0) {
    bucheHonig(Handel::Seite::Einkauf, "Rapshonig", "40");
    bucheHonig(Handel::Seite::Verkauf, "Waldhonig", "12,5");
  }
  return ausEintrag(eintrag);
}

// One case for each tab; the inputs of the other two stay as they are.
Formfall handel(int reiter) {
  struct Tab {
    QString eintrag, name, tabelle, produkt;
    int eingaben;
  };
  static const QList<Tab> tabs = {{"XV_einkauf", "einkauf", "Einkauf", "Rapshonig", 8},
                                  {"XV_verkauf", "verkauf", "Verkauf", "Waldhonig", 8},
                                  {"XV_honiglager", "honig", "Honiglager", "Waldhonig", 7}};
  const Tab& tab = tabs[reiter];
  const QString liste = "li" + tab.name;
  Formfall f{"TV_EinVerkauf_Lager_" + tab.tabelle, "TV_EinVerkauf_Lager", "TV_EinVerkauf_Lager",
             "neu" + tab.name + "_0", [tab](Betrieb&) { return handelsform(tab.eintrag); }};
  f.einträge = QStringList{tab.eintrag};
  QStringList andere;
  for (const Tab& anderer : tabs)
    for (int i = 0; anderer.name != tab.name && i < anderer.eingaben; ++i)
      andere << QString("sevt%1_%2").arg(anderer.name).arg(i);
  const QString produkt = "sevt" + tab.name + "_1";
  f.sichern = Sichern{"neu" + tab.name + "_0",
                      andere,
                      {},
                      f.machen,
                      [reiter, liste](QWidget* form) {
                        zeileAufReiter(form, reiter, liste, "Produkt = 'Sommerhonig'");
                      },
                      [produkt](QWidget* form, Meldungen::Probe& boxen) {
                        tippe(form, produkt, {});
                        boxen.hinweisMit("...das Produkt angegeben werden muß.");
                      }};
  f.sichern->werte = {{produkt, "Sommerhonig"}};
  f.löschen = Löschen{tab.tabelle, Löschfrage, [reiter, liste, tab](QWidget* form) {
                        zeileAufReiter(form, reiter, liste, "Produkt = '" + tab.produkt + "'");
                        drücke(form, "lsch" + tab.name);
                      }};
  for (const Tab& jeder : tabs)  // the given captions; the second can't be chosen
    f.doppelt << "Alt+L: QPushButton lsch" + jeder.name +
                     " \"&Löschen\" und QPushButton comlisten \"&Listen\"";
  return f;
}

Formfall einstellungen() {
  Formfall f{"TO_Einstellungen", "TO_Einstellungen", "TO_Einstellungen", "ok", {}};
  f.machen = [](Betrieb& betrieb) -> Form {
    betrieb.liste();
    return ausEintrag("O_Einstellungen");
  };
  f.einträge = QStringList{"O_Einstellungen"};
  f.sichern = Sichern{"ok", {}, {}, f.machen, {}, {}};
  // Lines of a page from 30 on, combs of a magazine from 8 to 16, two fields to sort by.
  f.sichern->werte = {{"sevt_4", "45"}, {"sevt_15", "12"}, {"sevt_14", "V"}};
  return f;
}

// What is chosen there is kept when it closes.
Formfall textausgabe() {
  Formfall f{"TA_Textausgabe", "TA_Textausgabe", "TA_Textausgabe", "drucken", {}};
  f.machen = [](Betrieb&) -> Form {
    Textausgabe::listeSchreiben({"Volk       Honig", "1 Anna      3,33"});
    auto form = std::make_unique<TA_Textausgabe>(nullptr);
    form->laden();
    return form;
  };
  f.sichern = Sichern{"abbv", {"t", "kom"}, {}, f.machen, {}, {}};
  return f;
}

Formfall zwischenliste() {
  Formfall f{"TA_Zwischenliste", "TA_Zwischenliste", "TA_Zwischenliste", {}, {}};
  f.machen = [](Betrieb&) -> Form {
    const Daten daten = DB.Lesen("select Volknr, Volkname, Standort from Bienenvolk");
    Übergabe::schreiben(Übergabe::datei(), Ausgabeliste(daten));
    auto form = std::make_unique<TA_Zwischenliste>();
    form->laden();
    return form;
  };
  f.doppeltImMenü = QStringList{"popzeile:S"};
  f.sichern = Sichern{QString("cmdschließen"), {}, {}, f.machen, {}, {}};
  return f;
}

// A form of which the list of forms is all that is known.
Formfall schlichterFall(const Formen::Eintrag& eintrag) {
  const std::unique_ptr<Formular> form(eintrag.machen(nullptr));
  const QString name = form->objectName();
  Formfall f{schlicht(name + u'_' + eintrag.eintrag), name, name, {}, {}};
  f.machen = [gemeint = eintrag.eintrag](Betrieb& betrieb) {
    betrieb.liste();
    return ausEintrag(gemeint);
  };
  f.einträge = QStringList{eintrag.eintrag};
  f.schlicht = true;
  f.befehleRollen = dynamic_cast<Auswertungsformular*>(form.get()) != nullptr;
  return f;
}

}  // namespace

const std::vector<Formfall>& formenliste() {
  static const std::vector<Formfall> liste = [] {
    std::vector<Formfall> alle{hauptformular(), ersteSchritte(), neuesVolk(), volkÄndern()};
    for (int art = 0; art < 11; ++art) alle.push_back(eingabe(art));
    alle.insert(alle.end(), {hilfe(), dateiauswahl(), dateispeichern(), selektieren(), standorte(),
                             pflanzenJeStandort(), pflanzen(), handel(0), handel(1), handel(2),
                             arbeitsplanoptionen(), terminverwaltung(), starttermine(),
                             einstellungen(), textausgabe(), zwischenliste()});
    for (const Formen::Eintrag& eintrag : Formen::liste())
      if (std::ranges::none_of(
              alle, [&](const Formfall& fall) { return fall.einträge.contains(eintrag.eintrag); }))
        alle.push_back(schlichterFall(eintrag));
    return alle;
  }();
  return liste;
}
