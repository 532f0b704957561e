#include "evaluations/Gruppierungen.h"

#include <algorithm>

#include "evaluations/Leseliste.h"

using namespace Auswertung;

namespace Gruppierungen {

namespace {

const QString Titel = QStringLiteral("Ergebnis");

const QStringList& volkfelder() {
  static const QStringList felder = {
      "Volkstärke",    "Magazine",     "Wabenanzahl",      "Honigwaben",    "Brutwaben",
      "Pollenwaben",   "Drohnenwaben", "Leerwaben",        "Mittelwände",   "Futterwaben",
      "HW_verdeckelt", "BW_Stift",     "BW_offen",         "BW_verdeckelt", "Brutstand",
      "Wabensitz",     "Sanftmut",     "Schwarmtrieb",     "Frühjahrsentw", "Winterfestigkeit",
      "Varroabefall",  "Belagert",     "Belegstelle",      "Zuchtbuchnr",   "Standort",
      "Königin_Farbe", "Beuteart",     "Waben_je_Magazin", "Bienenrasse",   "Volk_Herkunft",
      "Abnehmer",      "Abgangsgrund"};
  return felder;
}

const QStringList& buchungsposten() {
  static const QStringList posten = {
      "Honigernte / Honigsorte",     "Honigernte / Qualität",    "Wachsernte / Qualität",
      "Pollenernte / Qualität",      "Sonstigeernte / Ernteart", "Sonstigeernte / Qualität",
      "Arbeiten / Arbeitsart",       "Wanderung / Standort",     "Behandlung / Mittel",
      "Behandlung / Behandlungsart", "Behandlung / Anz_Varroen", "Königinwechsel / Herkunft",
      "Königinwechsel / Zuchtindex", "Königinwechsel / Farbe"};
  return posten;
}

const QStringList& kostentabellen() {
  static const QStringList tabellen = {"Honigernte",      "Wachsernte", "Pollenernte",
                                       "Sonstigeernte",   "Arbeiten",   "Wanderung",
                                       "Gewichtsmessung", "Behandlung", "Königinwechsel"};
  return tabellen;
}

// The fields of the colonies by which one may group, first what names a colony.
QList<Posten> gruppenfelder(Database& db, const Eingaben&) {
  const QStringList zuerst{"Volknr", "Volkname"};
  QList<Posten> posten;
  for (const QString& name : zuerst) posten.append({name, name});
  for (const Spalte& s : db.Felder("Bienenvolk"))
    if (!zuerst.contains(s.name) && s.name != u"ID") posten.append({s.name, s.name});
  return posten;
}

// And what every kind of booking has.
QList<Posten> buchungsfelder(Database& db, const Eingaben& e) {
  QList<Posten> posten = gruppenfelder(db, e);
  for (const char* feld : {"Datum", "Zeit_h", "Kosten"})
    posten.append({QString::fromLatin1(feld), QString::fromLatin1(feld)});
  return posten;
}

// What is added up and averaged of a harvest: the value's and the quantity's fields with the names
// that they have in the list.
QString ernteteil(const QString& wert, const QString& name, const QString& dname,
                  const QString& menge) {
  return QStringLiteral(
             ", count(*) as Buchungen, sum(Kosten) as S_Kosten, sum(%1) as %2, sum(%4) as Menge, "
             "sum(Zeit_h) as Zeit, avg(Kosten) as D_Kosten, avg(%1) as %3, avg(%4) as D_Menge, "
             "avg(Zeit_h) as D_Zeit from Bienenvolk, ")
      .arg(wert, name, dname, menge);
}

QString summenteil(const QString& tabelle) {
  if (tabelle == u"Honigernte")
    return ernteteil("Honig_Wert", "Honigwert", "D_Honigwert", "Menge_kg");
  if (tabelle == u"Wachsernte")
    return ernteteil("Wachs_Wert", "Wachswert", "D_Wachswert", "Menge_kg");
  if (tabelle == u"Pollenernte")
    return ernteteil("Pollen_Wert", "Pollenwert", "D_Pollenwert", "Menge_g");
  if (tabelle == u"Sonstigeernte") return ernteteil("Wert", "S_Wert", "D_Wert", "Menge_g");
  return QStringLiteral(
      ", count(*) as Buchungen, sum(Kosten) as S_Kosten, sum(Zeit_h) as Zeit, avg(Kosten) as "
      "D_Kosten, avg(Zeit_h) as D_Zeit from Bienenvolk, ");
}

Ergebnis ergebnis(Lauf& lauf, const QString& anweisung, const QString& wovon) {
  static const QStringList geld{"S_Kosten", "Honigwert",   "Wachswert",   "Pollenwert",   "S_Wert",
                                "D_Kosten", "D_Honigwert", "D_Wachswert", "D_Pollenwert", "D_Wert"};
  Ergebnis e;
  e.liste = Ausgabeliste(gelesen(lauf, anweisung, {}, geld));
  e.titel = wovon.isEmpty() ? Titel : Titel + " (" + wovon + ")";
  return e;
}

}  // namespace

// ---- statements ----

QString volkgruppen(const QString& feld) {
  const bool abgegangene = feld == u"Abgangsgrund" || feld == u"Abnehmer";
  return "select " + feld + ", count(*) as Anzahl from Bienenvolk where Akt_im_Bestand " +
         (abgegangene ? "<> 'X'" : "= 'X'") + " group by " + feld;
}

QString buchungskreuz(const QString& posten, const QString& gruppe) {
  const QString tabelle = posten.section(" / ", 0, 0);
  QString feld = posten.section(" / ", 1);
  if (feld == u"Standort") feld = QStringLiteral("Wanderung.Standort");  // not the colony's own
  return "transform count(*) select " + gruppe + ", count(*) as Anzahl from Bienenvolk, " +
         tabelle + " where Akt_im_Bestand = 'X' and Volk_ID = Bienenvolk.ID group by " + gruppe +
         " pivot " + feld + ";";
}

QString kostengruppen(const QString& tabelle, const QString& gruppe) {
  return "select " + gruppe + summenteil(tabelle) + tabelle +
         " where Akt_im_Bestand = 'X' and Volk_ID = Bienenvolk.ID group by " + gruppe;
}

QString standortliste(Standortliste welche) {
  if (welche == Standortliste::Völker)
    return "select Standort, count(*) as Anzahl from Bienenvolk where Akt_im_Bestand = 'X' group "
           "by Standort";
  return QStringLiteral(
             "transform count(*) select Standort, count(*) as Völker from Bienenvolk where "
             "Akt_im_Bestand = 'X' group by Standort pivot %1;")
      .arg(welche == Standortliste::Waben ? "Wabenanzahl" : "Mittelwände");
}

QString bestandsalter(Alter einheit, const QString& pivot) {
  const bool jahre = einheit == Alter::Jahre;
  return QStringLiteral(
             "transform count(*) select datediff('%1',Volk_Zugangsdatum, now) as %2 from "
             "Bienenvolk where Akt_im_Bestand = 'X' and Volk_Zugangsdatum IS NOT NULL group by "
             "datediff('%1', Volk_Zugangsdatum, now) pivot %3;")
      .arg(jahre ? "yyyy" : "m", jahre ? "Alter_Jahre" : "Alter_Monate", pivot);
}

// ---- description ----

namespace {

Eingabe feldwahl(int index, const QString& titel, const Postenquelle& felder) {
  return auswahl(Eingaben::glied("kom", index), titel, felder);
}

// The chosen field of the colonies; with its table where the bookings have one of that name.
QString gruppenfeld(Lauf& lauf, int index, const QString& tabelle) {
  const QString feld = lauf.eingaben.text("kom", index);
  const auto gleich = [&](const Spalte& s) { return s.name == feld; };
  const bool inBeiden = std::ranges::any_of(lauf.db.Felder(tabelle), gleich) &&
                        std::ranges::any_of(lauf.db.Felder("Bienenvolk"), gleich);
  return inBeiden ? "Bienenvolk." + feld : feld;
}

// A row of commands of one array, each with its run.
struct Knopfreihe {
  QList<Eingabe> eingaben;
  QList<Befehl> befehle;

  void knopf(const QString& name, const QString& titel, std::function<Ergebnis(Lauf&)> lauf) {
    eingaben += Auswertung::knopf(name, titel);
    befehle.append({name, {}, std::move(lauf)});
  }
};

Knopfreihe kostenreihe() {
  Knopfreihe reihe;
  reihe.eingaben += feldwahl(2, "Gruppiert nach:", buchungsfelder);
  for (int i = 0; i < kostentabellen().size(); ++i) {
    const QString tabelle = kostentabellen()[i];
    reihe.knopf(Eingaben::glied("gruppekostenjetier", i), tabelle, [tabelle](Lauf& lauf) {
      return ergebnis(lauf, kostengruppen(tabelle, gruppenfeld(lauf, 2, tabelle)), tabelle);
    });
  }
  return reihe;
}

Knopfreihe sonstigereihe() {
  Knopfreihe reihe;
  const QStringList titel{"Standort / Völker", "Standort / Waben", "Standort / Mittelwände"};
  for (int i = 0; i < titel.size(); ++i)
    reihe.knopf(Eingaben::glied("sonstigecom", i), titel[i], [i](Lauf& lauf) {
      return ergebnis(lauf, standortliste(static_cast<Standortliste>(i)), {});
    });
  return reihe;
}

Knopfreihe altersreihe() {
  Knopfreihe reihe;
  reihe.eingaben += feldwahl(1, "Pivot nach:", gruppenfelder);
  const QStringList titel{"Bestandsalter nach Jahren", "Bestandsalter nach Monaten"};
  for (int i = 0; i < titel.size(); ++i)
    reihe.knopf(Eingaben::glied("sonstigeok", i), titel[i], [i, titel](Lauf& lauf) {
      return ergebnis(lauf, bestandsalter(static_cast<Alter>(i), lauf.eingaben.text("kom", 1)),
                      titel[i]);
    });
  return reihe;
}

Ergebnis volkgruppenLauf(Lauf& lauf) {
  const QString feld = lauf.eingaben.text("li1");
  return ergebnis(lauf, volkgruppen(feld), feld);
}

Ergebnis buchungskreuzLauf(Lauf& lauf) {
  const QString posten = lauf.eingaben.text("li2");
  const QString gruppe = gruppenfeld(lauf, 0, posten.section(" / ", 0, 0));
  return ergebnis(lauf, buchungskreuz(posten, gruppe), posten);
}

Gruppe volkgruppe() {
  return {"Volkbezogene Gruppierungen (aktueller Bestand)",
          {liste("li1", {}, feste(volkfelder())).beiDoppelklick("gruppeok"),
           knopf("gruppeok", "&Gruppieren")}};
}

Gruppe buchungsgruppe() {
  return {"Buchungen je Volk (aktueller Bestand)",
          {feldwahl(0, "Gruppiert nach:", buchungsfelder),
           liste("li2", {}, feste(buchungsposten())).beiDoppelklick("auswertungok"),
           knopf("auswertungok", "&Auswerten")},
          1};
}

}  // namespace

Beschreibung beschreibung() {
  const Knopfreihe kosten = kostenreihe();
  const Knopfreihe sonstige = sonstigereihe();
  const Knopfreihe alter = altersreihe();
  Beschreibung b;
  b.name = "TW_Gruppierungen";
  b.titel = "Gruppierungen";
  b.gruppen = {volkgruppe(),
               buchungsgruppe(),
               {"Kosten und Zeitgruppierungen je Volk (akt. Bestand)", kosten.eingaben, 0, 3},
               {"Sonstige Auswertungen", sonstige.eingaben, 1, 1},
               {"Pivot Auswertungen", alter.eingaben, 1, 1}};
  Befehl listen{"ok", "&Listen"};
  listen.übergibt = true;
  b.befehle = {listen, {"gruppeok", {}, volkgruppenLauf}, {"auswertungok", {}, buchungskreuzLauf}};
  for (const Knopfreihe& reihe : {kosten, sonstige, alter}) b.befehle += reihe.befehle;
  b.ergebnisliste = "gridli";
  b.zeichen = 190;
  b.zeilen = 45;
  return b;
}

}  // namespace Gruppierungen
