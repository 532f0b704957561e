#include "Handelsbuch.h"

#include <algorithm>
#include <cmath>

#include "core/globals.h"
#include "platform/locale/Deutsch.h"
#include "stores/Handel.h"

using TZ_Variablen::DB;

namespace {

constexpr int reifetage = 14;      // until a batch is stirred and filled
constexpr int verkaufstage = 330;  // by then a batch is as good as sold
constexpr int füllabstand = 45;    // days between two fillings of a batch
constexpr double rückstellprobe = 0.5;

const QStringList haushalte = {"Ziegler Martha",    "Brandl Josef",   "Öttinger Käthe",
                               "Wimmer Alois",      "Dr. Seidl Ruth", "Neumann Günther",
                               "Pfarramt Oberndorf"};
const QStringList händler = {"Hofladen Steiner", "Bäckerei Lechner", "Gasthof zur Post",
                             "Dorfladen Talhof", "Reformhaus Kranz"};
const QStringList andere = {"Kindergarten Oberndorf", "Weihnachtsmarkt", "Imker Jäger"};

QString zahl(double wert) { return Deutsch::zahl(wert, 2); }

double halbeKilo(double kg) { return std::floor(kg * 2) / 2; }

void verlange(const QStringList& gründe) {
  if (!gründe.isEmpty())
    throw Datenbankfehler(Datenbankfehler::Art::Allgemein, Verwaltung::ablehnung(gründe));
}

}  // namespace

void Handelsbuch::führen() {
  for (int jahr = m_erstesJahr; jahr <= m_heute.year(); ++jahr) {
    einkaufen(jahr);
    nebenherVerkaufen(jahr);
  }
  for (const Posten& honig : posten()) honigVerkaufen(honig);
  schreiben();
}

// "Gläser", not "Honiggläser": whatever has honey in its name counts as honey in the store.
void Handelsbuch::einkaufen(int jahr) {
  const int v = m_völker;
  einkauf(tag(jahr, 3), "Mittelwände Zander", "Bienenwachs rein", "Imkerbedarf Wagner",
          std::ceil(v * 0.4), "kg", std::ceil(v * 0.4) * 14.5);
  einkauf(tag(jahr, 4), "Gläser 500 g", "mit Deckel", "Glashütte Breitner", v * 30, "St",
          v * 30 * 0.48);
  einkauf(tag(jahr, 5), "Etiketten", "Hausmarke", "Druckerei Falk", v * 30, "St", v * 30 * 0.06);
  einkauf(tag(jahr, 6), "Rähmchen Zander", "gedrahtet", "Imkerbedarf Wagner", v * 4, "St",
          v * 4 * 1.35);
  einkauf(QDate(jahr, 7, m_zufall.zahl(20, 30)), "Ameisensäure 60%", "ad us. vet.",
          "Apotheke am Markt", std::ceil(v / 8.0), "l", std::ceil(v / 8.0) * 13.9);
  einkauf(tag(jahr, 8), "Zucker", "Raffinade", "Landhandel Maier", v * 12, "kg", v * 12 * 0.92);
  einkauf(tag(jahr, 9), "Futtersirup", "invertiert", "Landhandel Maier", v * 5, "kg", v * 5 * 1.15);
  einkauf(tag(jahr, 10), "Waldhonig", "Tanne", "Imkerei Grünwald", v, "kg", v * 8.2,
          QStringLiteral("GW-%1").arg(jahr));
  einkauf(tag(jahr, 11), "Oxalsäure 3,5%", "ad us. vet.", "Apotheke am Markt", std::ceil(v / 16.0),
          "l", std::ceil(v / 16.0) * 17.5);
  einkauf(tag(jahr, 2), "Futterteig", "", "Imkerbedarf Wagner", v, "kg", v * 2.1);
}

void Handelsbuch::nebenherVerkaufen(int jahr) {
  const int v = m_völker;
  verkauf(tag(jahr, 5), "Ableger", "mit Jungkönigin", andere[2], std::ceil(v / 12.0), "St",
          std::ceil(v / 12.0) * 130);
  verkauf(tag(jahr, 6), "Pollen", "getrocknet", händler[4], std::ceil(v / 6.0), "kg",
          std::ceil(v / 6.0) * 32);
  verkauf(tag(jahr, 10), "Bienenwachs", "geklärt", andere[2], std::ceil(v * 0.2), "kg",
          std::ceil(v * 0.2) * 11);
  verkauf(tag(jahr, 11), "Kerzen", "gegossen", andere[0], 20, "St", 50);
  verkauf(QDate(jahr, 12, m_zufall.zahl(1, 20)), "Kerzen", "gegossen", andere[1], 60, "St", 168);
  verkauf(tag(jahr, 12), "Propolis", "Tinktur", haushalte[4], 200, "ml", 48);
}

QList<Handelsbuch::Posten> Handelsbuch::posten() const {
  const Daten zeilen = DB.Lesen(
      "select Produkt, Charge, sum(Zugang) as Summe, max(Datum) as Bis from Honiglager group by "
      "Produkt, Charge order by Produkt, Charge");
  QList<Posten> alle;
  for (int i = 0; i < zeilen->zeilen(); ++i)
    alle << Posten{zeilen->anzeige(i, 0), zeilen->anzeige(i, 1), zeilen->zahl(i, 2),
                   QDate::fromString(zeilen->wert(i, 3).toString().left(10), Qt::ISODate)};
  for (const Geschäft& geschäft : m_geschäfte)
    if (!geschäft.verkauf && Handel::istHonig(geschäft.produkt))
      alle << Posten{geschäft.produkt, geschäft.charge, geschäft.menge, geschäft.tag};
  return alle;
}

// Every week or two somebody buys: households some jars, shops a good deal more.
void Handelsbuch::honigVerkaufen(const Posten& posten) {
  double rest = posten.kg;
  const QDate fertig = posten.vollständig.addDays(reifetage);
  const QDate ende = posten.vollständig.addDays(verkaufstage);
  for (QDate am = fertig; am <= std::min(ende, m_heute); am = am.addDays(m_zufall.zahl(6, 16))) {
    const bool laden = m_zufall.chance(40);
    const double kg =
        halbeKilo(posten.kg * (laden ? m_zufall.bruch(0.03, 0.08) : m_zufall.bruch(0.01, 0.03)));
    const QString kunde = m_zufall.aus(laden ? händler : haushalte);
    if (kg <= 0 || kg > rest - rückstellprobe) continue;
    rest -= kg;
    const qint64 füllung = (fertig.daysTo(am) / füllabstand) * füllabstand;
    m_geschäfte << Geschäft{am,
                            true,
                            posten.produkt,
                            laden ? "Karton" : "Glas 500 g",
                            kunde,
                            kg,
                            "kg",
                            kg * (laden ? 9.0 : 11.0),
                            posten.charge,
                            fertig.addDays(füllung)};
  }
  if (ende > m_heute) return;
  const double übrig = halbeKilo(rest - rückstellprobe);
  if (übrig > 0)
    m_entnahmen << Entnahme{ende, posten.produkt, posten.charge, übrig, "Met und Backhonig"};
}

void Handelsbuch::einkauf(QDate tag, const char* produkt, const char* qualität,
                          const char* lieferant, double menge, const char* einheit, double geld,
                          const QString& charge) {
  if (tag > m_heute) return;
  m_geschäfte << Geschäft{tag, false, produkt, qualität, lieferant, menge, einheit, geld, charge};
}

void Handelsbuch::verkauf(QDate tag, const char* produkt, const char* qualität,
                          const QString& abnehmer, double menge, const char* einheit, double geld) {
  if (tag > m_heute) return;
  m_geschäfte << Geschäft{tag, true, produkt, qualität, abnehmer, menge, einheit, geld, {}};
}

// In the order of the days, as they were entered.
void Handelsbuch::schreiben() {
  const auto früher = [](const auto& a, const auto& b) { return a.tag < b.tag; };
  std::stable_sort(m_geschäfte.begin(), m_geschäfte.end(), früher);
  std::stable_sort(m_entnahmen.begin(), m_entnahmen.end(), früher);
  DB.Sammelschreiben([this] {
    for (const Geschäft& geschäft : std::as_const(m_geschäfte)) speichern(geschäft);
    for (const Entnahme& entnahme : std::as_const(m_entnahmen)) speichern(entnahme);
  });
}

void Handelsbuch::speichern(const Geschäft& geschäft) {
  const Handel::Seite seite = geschäft.verkauf ? Handel::Seite::Verkauf : Handel::Seite::Einkauf;
  Verwaltung::Texte texte;
  texte["Datum"] = Deutsch::datumText(geschäft.tag);
  texte["Produkt"] = geschäft.produkt;
  texte[QString("Qualität")] = geschäft.qualität;
  texte[Handel::partnerfeld(seite)] = geschäft.partner;
  texte["Menge"] = zahl(geschäft.menge);
  texte["Einheit"] = geschäft.einheit;
  texte[Handel::geldfeld(seite)] = zahl(geschäft.geld);
  texte["Charge"] = geschäft.charge;
  verlange(Handel::geschäftsgründe(texte));
  const qint64 id = Handel::geschäftSpeichern(DB, seite, texte, {});
  if (geschäft.abgefüllt.isValid()) abfüllungEintragen(id, geschäft.abgefüllt);
}

// As on the honey tab: the sale's movement is changed, all its other fields stay.
void Handelsbuch::abfüllungEintragen(qint64 verkaufId, QDate tag) {
  const Daten zeile =
      DB.Lesen("select * from Honiglager where EVK_ID = ? and Zugang = 0", {verkaufId});
  Verwaltung::Texte texte;
  for (const Verwaltung::Feld& feld : Handel::lagerfelder())
    texte[feld.feld] = Verwaltung::feldtext(feld, zeile->wert(0, zeile->spaltenNummer(feld.feld)));
  texte[QString("Abfülldatum")] = Deutsch::datumText(tag);
  verlange(Handel::lagergründe(texte));
  Verwaltung::speichern(DB, "Honiglager", Handel::lagerfelder(), texte,
                        zeile->ganzzahl(0, zeile->spaltenNummer(u"ID")));
}

void Handelsbuch::speichern(const Entnahme& entnahme) {
  Verwaltung::Texte texte;
  texte["Datum"] = Deutsch::datumText(entnahme.tag);
  texte["Produkt"] = entnahme.produkt;
  texte["Zugang"] = "0";
  texte["Abgang"] = zahl(entnahme.kg);
  texte["Bemerkung"] = entnahme.bemerkung;
  texte["Charge"] = entnahme.charge;
  verlange(Handel::lagergründe(texte));
  Verwaltung::speichern(DB, "Honiglager", Handel::lagerfelder(), texte, {}, {{"EVK_ID", 0}});
}
