#include "Formenliste.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QTabWidget>
#include <QTest>

#include "Eingabehilfen.h"
#include "bookings/Buchungstypen.h"
#include "bookings/forms/TE_Eingabe.h"
#include "colonies/forms/TV_Neues_Volk.h"
#include "colonies/forms/TV_Selektieren.h"
#include "core/forms/TH_Hilfe.h"
#include "core/mainform/forms/TA_TOVA.h"
#include "core/mainform/forms/TH_Hilfe_Wieanfangen.h"
#include "core/mainform/forms/TO_Einstellungen.h"
#include "data/forms/TS_Dateiauswahl.h"
#include "data/forms/TS_Dateispeichern.h"
#include "output/Textausgabe.h"
#include "output/Uebergabe.h"
#include "output/forms/TA_Textausgabe.h"
#include "output/forms/TA_Zwischenliste.h"
#include "planning/forms/TV_Arplanoptionen.h"
#include "planning/forms/TV_Starttermine.h"
#include "planning/forms/TV_Terminverwaltung.h"
#include "platform/controls/Grid.h"
#include "sites/forms/TV_Pflanzen_Standorte.h"
#include "stores/Handel.h"
#include "stores/forms/TV_EinVerkauf_Lager.h"

using namespace TZ_Variablen;

namespace {

const QString Loeschfrage =
    "Soll der markierte Datensatz wirklich unwiederbringlich gelöscht werden?";

Formfall hauptformular() {
  Formfall f{"TA_TOVA", "TA_TOVA", "TA_TOVA", {}, {}};
  f.machen = [](Betrieb& betrieb) -> Form {
    betrieb.uebergeben();
    auto form = std::make_unique<TA_TOVA>();
    if (!form->laden({betrieb.ordner(), QDate(2026, 6, 15), [] { return true; }})) return nullptr;
    form->datenvölkerlesen();
    EinstellungenZahl[13] = 0;  // the open appointments would stand in front of it
    return form;
  };
  f.hauptformular = true;
  f.loeschen = Loeschen{
      "Bienenvolk", "Das Löschen eines Volkes entfernt das markierte Volk",
      [](QWidget* form) { form->findChild<QAction*>(QString("XV_volklöschen"))->trigger(); }};
  f.doppelt = QStringList{QString("Alt+V: &Völker und &Verwaltung")};
  f.doppeltImMenue = QStringList{"V_Verwaltung:A", "XE_Eingabe:S", "XE_Eingabe:W", "popupliste:V"};
  return f;
}

Formfall ersteSchritte() {
  return {"TH_Hilfe_Wieanfangen", "TH_Hilfe_Wieanfangen", "TH_Hilfe_Wieanfangen", "schritt_2",
          [](Betrieb&) -> Form {
            return std::make_unique<TH_Hilfe_Wieanfangen>(
                nullptr, TH_Hilfe_Wieanfangen::Schritte{nullptr, nullptr, [] {}});
          }};
}

Form volkform(Betrieb& betrieb, const QString& modus, int zeile) {
  betrieb.liste().datenvölkerlesen();
  betrieb.liste().setAktuelleZeile(zeile);
  VolkModus = modus;
  auto form = std::make_unique<TV_Neues_Volk>();
  form->laden();
  return form;
}

Formfall neuesVolk() {
  Formfall f{"TV_Neues_Volk_Neu", "TV_Neues_Volk", "TV_Neues_Volk", "ok", {}};
  f.machen = [](Betrieb& betrieb) { return volkform(betrieb, "Neu", 0); };
  f.sichern = Sichern{"ok",
                      {"kon", "sevt_13"},  // a colony in stock hasn't gone
                      {},
                      [](Betrieb& betrieb) { return volkform(betrieb, QString("Ändern"), 3); },
                      {},
                      [](QWidget* form, Meldungen::Probe& boxen) {
                        tippe(form, "sevt_0", {});
                        boxen.hinweisMit("...die Volknummer angegeben werden muß.");
                      }};
  return f;
}

Formfall volkAendern() {
  Formfall f{"TV_Neues_Volk_Aendern", "TV_Neues_Volk", "TV_Neues_Volk", "ok", {}};
  f.machen = [](Betrieb& betrieb) { return volkform(betrieb, QString("Ändern"), 1); };
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
QString schlicht(QString text) { return text.replace(QString("ö"), QString("oe")).remove(u' '); }

Formfall eingabe(int art) {
  Formfall f{"TE_Eingabe_" + schlicht(buchungstyp(art).beschriftung),
             "TE_Eingabe",
             "TE_Eingabe",
             "neu_0",
             {}};
  f.machen = [art](Betrieb& betrieb) -> Form {
    betrieb.liste();
    BuchungsArt = art;
    return std::make_unique<TE_Eingabe>(nullptr);
  };
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
  f.loeschen = Loeschen{buchungstyp(art).tabelle, Loeschfrage,
                        [](QWidget* form) { druecke(form, QString("löschen")); }};
  return f;
}

Formfall hilfe() {
  return {"TH_Hilfe", "TH_Hilfe", {}, "schliessen", [](Betrieb&) -> Form {
            HilfeThema = "TE_Eingabe";
            auto form = std::make_unique<TH_Hilfe>(nullptr);
            return form->lesen() ? std::move(form) : nullptr;
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
Form standortform(const QString& modus) {
  if (DB.Lesen("select ID from Standorte")->zeilen() == 0) {
    DB.Execute("insert into Standorte(Standort) values (?)", {QString("Hausgarten")});
    DB.Execute(
        "insert into Standorte_Pflanzen(Pflanze, Entfernung_m, Proz_Anteil, Standort_Kennung) "
        "values (?, ?, ?, ?)",
        {QString("Krokus"), 500, 60, DB.LetzteID()});
  }
  FormModus = modus;
  auto form = std::make_unique<TV_Pflanzen_Standorte>();
  form->laden();
  return form;
}

// Clicks the first row for which the condition holds.
void zeileAufReiter(QWidget* form, int reiter, const QString& liste, const QString& bedingung) {
  form->findChild<QTabWidget*>("reiter")->setCurrentIndex(reiter);
  auto* grid = form->findChild<Grid*>(liste);
  klickeZeile(grid, grid->findeZeile(bedingung));
}

// The given captions; the first of the two can't be chosen.
QStringList alleSDesFusses() {
  return {
      "Alt+S: QPushButton comstandortlisten \"&Standorte / Pflanzen auswerten\" und QPushButton "
      "beenden \"&Schließen\""};
}

Formfall arbeitsplanoptionen() {
  Formfall f{"TV_Arplanoptionen", "TV_Arplanoptionen", "TV_Arplanoptionen", "neu_0", {}};
  f.machen = [](Betrieb&) -> Form {
    auto form = std::make_unique<TV_Arplanoptionen>();
    form->laden();
    return form;
  };
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
  f.loeschen = Loeschen{"Arbeitsplanoptionen", Loeschfrage, [](QWidget* form) {
                          klickeZeile(form->findChild<Grid*>("liarplan"), 0);
                          druecke(form, QString("löschen"));
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
  const Daten voelker = DB.Lesen("select ID from Bienenvolk order by ID");
  for (int i = 0; i < voelker->zeilen(); ++i) {
    eintragen("2026-06-10", "Honigraum aufsetzen", "N", voelker->ganzzahl(i, 0));
    eintragen("2026-06-20", "Schwarmkontrolle", "N", voelker->ganzzahl(i, 0));
  }
}

// In the view of the colonies' appointments, which has the most columns.
Formfall terminverwaltung() {
  Formfall f{"TV_Terminverwaltung", "TV_Terminverwaltung", "TV_Terminverwaltung", "neu_0", {}};
  f.machen = [](Betrieb&) -> Form {
    termineEintragen();
    auto form = std::make_unique<TV_Terminverwaltung>();
    form->laden();
    form->findChild<QAbstractButton*>("opti_1")->click();
    return form;
  };
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
  f.loeschen = Loeschen{"Termine", Loeschfrage, [](QWidget* form) {
                          auto* grid = form->findChild<Grid*>("litermine");
                          klickeZeile(grid, grid->findeZeile("Termin = 'Schwarmkontrolle'"));
                          druecke(form, QString("löschen"));
                        }};
  return f;
}

// The check box is kept; what closes appointments asks for a row first.
Formfall starttermine() {
  Formfall f{"TV_Starttermine", "TV_Starttermine", "TV_Starttermine", QString("schließen"), {}};
  f.machen = [](Betrieb&) -> Form {
    termineEintragen();
    auto form = std::make_unique<TV_Starttermine>();
    form->laden();
    return form;
  };
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
             "neustandort_0", [](Betrieb&) { return standortform("0"); }};
  f.loeschen = Loeschen{"Standorte", Loeschfrage, [](QWidget* form) {
                          zeileAufReiter(form, 0, "listandorte", "Standort = 'Hausgarten'");
                          druecke(form, "lschstandort");
                        }};
  f.sichern =
      abgelehntOhne("neustandort_0", "sevtstandort_0", "...der Standort angegeben werden muß.");
  f.doppelt = alleSDesFusses();
  return f;
}

Formfall pflanzenJeStandort() {
  Formfall f{"TV_Pflanzen_Standorte_JeStandort",
             "TV_Pflanzen_Standorte",
             "TV_Pflanzen_Standorte",
             "neuje_0",
             {}};
  f.machen = [](Betrieb&) {
    Form form = standortform("0");
    form->findChild<QTabWidget*>("reiter")->setCurrentIndex(1);
    return form;
  };
  f.loeschen = Loeschen{"Standorte_Pflanzen", Loeschfrage, [](QWidget* form) {
                          zeileAufReiter(form, 1, "lijepflanze", "Pflanze = 'Krokus'");
                          druecke(form, "lschje");
                        }};
  f.sichern = abgelehntOhne("neuje_0", "sevtje_0", "...die Pflanze angegeben werden muß.");
  f.doppelt = alleSDesFusses();
  return f;
}

Formfall pflanzen() {
  Formfall f{"TV_Pflanzen_Standorte_Pflanzen", "TV_Pflanzen_Standorte", "TV_Pflanzen_Standorte",
             "neu_0", [](Betrieb&) { return standortform("2"); }};
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
  f.loeschen = Loeschen{"Pflanzen", Loeschfrage, [](QWidget* form) {
                          zeileAufReiter(form, 2, "lipflanzen", "Pflanze = 'Krokus'");
                          druecke(form, QString("löschen"));
                        }};
  f.doppelt = alleSDesFusses();
  return f;
}

void bucheHonig(Handel::Seite seite, const QString& produkt, const QString& menge) {
  Verwaltung::Texte texte = Verwaltung::vorgaben(Handel::geschaeftsfelder(seite));
  texte["Produkt"] = produkt;
  texte["Menge"] = menge;
  texte[Handel::partnerfeld(seite)] = QString("Bäckerei Grünäcker");
  texte["Charge"] = "A1";
  Handel::geschaeftSpeichern(DB, seite, texte, {});
}

// A purchase and a sale, so that no list is empty.
Form handelsform(const QString& modus) {
  if (DB.Lesen("select ID from Einkauf")->zeilen() == 0) {
    bucheHonig(Handel::Seite::Einkauf, "Rapshonig", "40");
    bucheHonig(Handel::Seite::Verkauf, "Waldhonig", "12,5");
  }
  FormModus = modus;
  auto form = std::make_unique<TV_EinVerkauf_Lager>();
  form->laden();
  return form;
}

// One case for each tab; the inputs of the other two stay as they are.
Formfall handel(int reiter) {
  struct Tab {
    QString name, tabelle, produkt;
    int eingaben;
  };
  static const QList<Tab> tabs = {{"einkauf", "Einkauf", "Rapshonig", 8},
                                  {"verkauf", "Verkauf", "Waldhonig", 8},
                                  {"honig", "Honiglager", "Waldhonig", 7}};
  const Tab& tab = tabs[reiter];
  const QString liste = "li" + tab.name;
  Formfall f{"TV_EinVerkauf_Lager_" + tab.tabelle, "TV_EinVerkauf_Lager", "TV_EinVerkauf_Lager",
             "neu" + tab.name + "_0",
             [reiter](Betrieb&) { return handelsform(QString::number(reiter)); }};
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
  f.loeschen = Loeschen{tab.tabelle, Loeschfrage, [reiter, liste, tab](QWidget* form) {
                          zeileAufReiter(form, reiter, liste, "Produkt = '" + tab.produkt + "'");
                          druecke(form, "lsch" + tab.name);
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
    auto form = std::make_unique<TO_Einstellungen>();
    form->laden();
    return form;
  };
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
    Uebergabe::schreiben(Uebergabe::datei(), Ausgabeliste(daten));
    auto form = std::make_unique<TA_Zwischenliste>();
    form->laden();
    return form;
  };
  f.doppeltImMenue = QStringList{"popzeile:S"};
  f.sichern = Sichern{QString("cmdschließen"), {}, {}, f.machen, {}, {}};
  return f;
}

}  // namespace

const std::vector<Formfall>& formenliste() {
  static const std::vector<Formfall> liste = [] {
    std::vector<Formfall> alle{hauptformular(), ersteSchritte(), neuesVolk(), volkAendern()};
    for (int art = 0; art < 11; ++art) alle.push_back(eingabe(art));
    alle.insert(alle.end(), {hilfe(), dateiauswahl(), dateispeichern(), selektieren(), standorte(),
                             pflanzenJeStandort(), pflanzen(), handel(0), handel(1), handel(2),
                             arbeitsplanoptionen(), terminverwaltung(), starttermine(),
                             einstellungen(), textausgabe(), zwischenliste()});
    return alle;
  }();
  return liste;
}
