#include "Trachtgebiet.h"

#include "core/globals.h"
#include "platform/locale/Deutsch.h"
#include "sites/Standorte.h"

using TZ_Variablen::DB;

namespace {

constexpr int pflanzenjahr = 2006;  // of the bloom that a new database brings

struct Pflanze {
  const char* name;
  const char* von;  // "dd.mm"
  const char* bis;
  int nektar;
  int pollen;
};

// What grows here beside the plants of a new database.
const Pflanze pflanzen[] = {
    {"Salweide", "01.03", "20.04", 6, 8},
    {"Raps", "20.04", "25.05", 9, 7},
    {"Apfel", "25.04", "20.05", 7, 5},
    {"Weißdorn", "05.05", "05.06", 4, 4},
    {"Robinie", "25.05", "15.06", 9, 2},
    {"Weißklee", "20.05", "30.09", 6, 6},
    {"Himbeere", "25.05", "30.06", 8, 5},
    {"Sommerlinde", "08.06", "30.06", 8, 2},
    {"Brombeere", "01.06", "31.07", 6, 6},
    {"Edelkastanie", "10.06", "10.07", 7, 7},
    {"Phacelia", "15.06", "30.09", 9, 6},
    {"Weißtanne", "15.06", "31.07", 8, 0},
    {"Sonnenblume", "10.07", "31.08", 6, 6},
    {"Besenheide", "01.08", "20.09", 7, 3},
    {"Drüsiges Springkraut", "10.07", "10.10", 8, 6},
};

struct Tracht {
  Stand stand;
  const char* pflanze;
  int meter;
  int anteil;  // per cent
};

const Tracht trachten[] = {
    {Hausgarten, "Krokus", 50, 5},         {Hausgarten, "Haselnuss", 200, 5},
    {Hausgarten, "Salweide", 450, 10},     {Hausgarten, "Kirsche", 100, 15},
    {Hausgarten, "Löwenzahn", 150, 20},    {Hausgarten, "Winterlinde", 400, 20},
    {Hausgarten, "Weißklee", 300, 10},     {Hausgarten, "Efeu", 80, 10},
    {Rapsfeld, "Raps", 100, 70},           {Rapsfeld, "Löwenzahn", 400, 10},
    {Rapsfeld, "Weißdorn", 600, 10},       {Rapsfeld, "Phacelia", 800, 10},
    {Lindenallee, "Bergahorn", 300, 10},   {Lindenallee, "Robinie", 700, 10},
    {Lindenallee, "Sommerlinde", 50, 30},  {Lindenallee, "Winterlinde", 50, 45},
    {Waldlichtung, "Himbeere", 150, 20},   {Waldlichtung, "Brombeere", 200, 10},
    {Waldlichtung, "Fichte", 20, 40},      {Waldlichtung, "Weißtanne", 100, 25},
    {Streuobstwiese, "Kirsche", 50, 25},   {Streuobstwiese, "Apfel", 20, 35},
    {Streuobstwiese, "Löwenzahn", 20, 20}, {Streuobstwiese, "Weißklee", 30, 15},
    {Heidefläche, "Besenheide", 50, 80},   {Heidefläche, "Goldrute", 500, 10},
};

// What the forms would refuse must not come in here either.
void verlange(const QStringList& gründe) {
  if (!gründe.isEmpty())
    throw Datenbankfehler(Datenbankfehler::Art::Allgemein, Verwaltung::ablehnung(gründe));
}

QList<qint64> standorteAnlegen(Zufall& zufall) {
  QList<qint64> ids;
  for (const Bienenstand& stand : bienenstände()) {
    Verwaltung::Texte texte = Verwaltung::vorgaben(Standorte::standortfelder());
    texte["Standort"] = QString(stand.name);
    texte["Zusatzortshinweis"] = QString(stand.hinweis);
    texte["Wintertauglich"] = QString(stand.winter ? "J" : "N");
    texte["Klima"] = QString(stand.klima);
    texte["Pkw_anfahrbar"] = QString(stand.auto_hin ? "J" : "N");
    texte["Entfernung_Wasser_m"] = QString::number(zufall.zahl(1, 12) * 50);
    texte["Flugrichtung"] = QString(stand.flugrichtung);
    texte[QString("Max_Völker")] = QString::number(stand.winter ? 40 : 25);
    texte[QString("Standortprämie_Volk")] = Deutsch::zahl(stand.prämie, 2);
    verlange(Standorte::standortGründe(texte));
    ids << Verwaltung::speichern(DB, "Standorte", Standorte::standortfelder(), texte, {},
                                 Standorte::neuerPlatz());
  }
  return ids;
}

void pflanzenAnlegen() {
  for (const Pflanze& pflanze : pflanzen) {
    const auto tag = [](const char* tagMonat) {
      return QStringLiteral("%1.%2").arg(QString(tagMonat)).arg(pflanzenjahr);
    };
    Verwaltung::Texte texte;
    texte["Pflanze"] = QString(pflanze.name);
    texte["Weidezeit_von"] = tag(pflanze.von);
    texte["Weidezeit_bis"] = tag(pflanze.bis);
    texte["Nektarstufe"] = QString::number(pflanze.nektar);
    texte["Pollenstufe"] = QString::number(pflanze.pollen);
    verlange(Standorte::pflanzenGründe(texte));
    Verwaltung::speichern(DB, "Pflanzen", Standorte::pflanzenfelder(), texte, {});
  }
}

void trachtenAnlegen(const QList<qint64>& standorte) {
  for (const Tracht& tracht : trachten) {
    const qint64 standort = standorte[tracht.stand];
    Verwaltung::Texte texte;
    texte["Pflanze"] = QString(tracht.pflanze);
    texte["Entfernung_m"] = QString::number(tracht.meter);
    texte["Proz_Anteil"] = QString::number(tracht.anteil);
    verlange(Standorte::trachtGründe(texte, Standorte::anteilSumme(DB, standort)));
    Verwaltung::speichern(DB, "Standorte_Pflanzen", Standorte::trachtfelder(), texte, {},
                          {{"Standort_Kennung", standort}});
  }
}

}  // namespace

const QList<Bienenstand>& bienenstände() {
  static const QList<Bienenstand> stände = {
      {"Hausgarten Oberndorf", "hinter der Scheune", "mild", "Süd-Ost", true, true, 0},
      {"Rapsfeld Mühlenweg", "Zufahrt über den Feldweg", "offen, windig", "Süd", false, true, 0},
      {"Lindenallee am Schloßpark", "Schlüssel beim Gärtner", "geschützt", "Süd-Ost", true, true,
       5},
      {"Waldlichtung Schwarzer Grund", "nur mit Allrad", "kühl, feucht", "Ost", true, false, 3.5},
      {"Streuobstwiese Talhof", "beim Bauern Huber anmelden", "mild", "Süd", false, true, 4},
      {"Heidefläche Birkenbusch", "Genehmigung vom Forstamt", "trocken", "Süd-West", false, true,
       2.5},
  };
  return stände;
}

void trachtgebietAnlegen(Zufall& zufall, int jahr) {
  DB.Sammelschreiben([&] {
    const QList<qint64> standorte = standorteAnlegen(zufall);
    pflanzenAnlegen();
    trachtenAnlegen(standorte);
    Standorte::weidezeitenVerschieben(DB, jahr - pflanzenjahr);
    Standorte::trachtzeitenErmitteln(DB);
  });
}
