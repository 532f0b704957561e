#include "Erzeuger.h"

#include <algorithm>
#include <cmath>

#include "Trachtgebiet.h"
#include "bookings/Zusammenfassung.h"
#include "colonies/Volk.h"
#include "core/globals.h"
#include "data/helpers.h"
#include "platform/locale/Deutsch.h"

using TZ_Variablen::DB;

namespace {

const QStringList namen = {"Auguste",  "Berta",  "Clothilde", "Dorothea", "Emma",    "Friederike",
                           "Gisela",   "Hanna",  "Ida",       "Johanna",  "Käthe",   "Luise",
                           "Mathilde", "Nelly",  "Ottilie",   "Paula",    "Rosa",    "Sophie",
                           "Theresia", "Ursula", "Viktoria",  "Wilma",    "Zäzilie", "Änne"};
const QStringList rassen = {"Carnica", "Carnica", "Carnica", "Buckfast", "Dunkle Biene"};
const QStringList beuten = {"Zander", "Zander", "Dadant", "Deutsch Normal"};
const QStringList bemerkungen = {
    "alles in Ordnung",       "Königin gesehen", "Spielnäpfchen",
    "Weiselzellen gebrochen", "Raum gegeben",    "sehr sanft",
    "etwas unruhig",          "Futter knapp",    "Drohnenrahmen geschnitten",
    "Brutnest geschlossen",   "Beute gereinigt", ""};

// The marking colour of a queen follows from the year she hatched in.
QString jahresfarbe(int jahr) {
  static const QStringList farben = {"blau", "weiß", "gelb", "rot", "grün"};
  return farben[jahr % 5];
}

}  // namespace

// Fills slots by the name of their field, so that the slot numbers stand in one place only.
class Eintrag {
 public:
  Eintrag(int art, QDate datum) {
    m_buchung.art = art;
    m_buchung.texte[0] = Deutsch::datumText(datum);
    for (const Buchungsslot& platz : buchungstyp(art).plätze)
      m_buchung.texte[static_cast<size_t>(platz.nummer)] = platz.ersterText;
  }
  Eintrag& text(const char* feld, const QString& wert) {
    for (const Buchungsslot& platz : buchungstyp(m_buchung.art).plätze)
      if (platz.feld == QLatin1String(feld) || platz.feld == QString(feld))
        m_buchung.texte[static_cast<size_t>(platz.nummer)] = wert;
    return *this;
  }
  Eintrag& zahl(const char* feld, double wert, int stellen = 2) {
    return text(feld, Deutsch::zahl(wert, stellen));
  }
  Eintrag& ganz(const char* feld, int wert) { return text(feld, QString::number(wert)); }
  // Working time with its costs at 18 € an hour.
  Eintrag& zeit(double stunden) { return zahl("Zeit_h", stunden).zahl("Kosten", stunden * 18); }

  Buchung& buchung() { return m_buchung; }

 private:
  Buchung m_buchung;
};

void Erzeuger::volkAnlegen(int nummer) {
  m_volk = &m_völker.emplace_back();
  m_volk->zugang = ersterZugang().addDays(m_zufall.zahl(0, zugangstage));
  const int erstesJahr = m_volk->zugang.year();
  // One in eight doesn't come through its second winter.
  const bool weg = nummer % 8 == 5 && m_größe.jahre > 1;
  m_volk->abgang = weg ? QDate(erstesJahr + 1, 2, m_zufall.zahl(5, 25)) : QDate();
  m_volk->stimmung = m_zufall.bruch(2.5, 4);
  m_volk->eigenart = m_zufall.zahl(-2, 2);

  Volkeingabe e;
  e.kon = !weg;
  const auto setze = [&e](const char* feld, const QString& wert) {
    for (const Volkfeld& f : volkfelder())
      if (f.feld == QString(feld)) e[f] = wert;
  };
  const QString name = nummer <= namen.size() ? namen[nummer - 1]
                                              : namen[nummer % namen.size()] + " " +
                                                    QString::number(nummer / namen.size());
  setze("Volknr", QString::number(nummer));
  setze("Volkname", name);
  setze("Bienenrasse", m_zufall.aus(rassen));
  setze("Beuteart", m_zufall.aus(beuten));
  setze("Waben_je_Magazin", "10");
  setze("Standort", bienenstände()[Hausgarten].name);
  setze("Königin_Nr", QStringLiteral("%1-%2").arg(erstesJahr - 1).arg(nummer));
  setze("Königin_Farbe", jahresfarbe(erstesJahr - 1));
  setze("Königin_Zugangsdatum", Deutsch::datumText(m_volk->zugang));
  setze("Volk_Zugangsdatum", Deutsch::datumText(m_volk->zugang));
  setze("Volk_Herkunft", nummer % 3 == 0 ? "eigener Ableger" : "Imkerei Grünwald");
  setze("Volk_Einkaufspreis", nummer % 3 == 0 ? "0,00" : "120,00");
  setze("Volk_Verkaufspreis", "0,00");
  if (weg) {
    setze("Abgangsdatum", Deutsch::datumText(m_volk->abgang));
    setze("Abgangsgrund", "Winterverlust");
  }
  const Volkfragen keineFragen = {[](const QString&) { return true; }, [](const QString&) {}};
  m_volk->id = QString::number(volkSpeichern(DB, 0, e, e, keineFragen));
}

void Erzeuger::saison(int nummer, int jahr) {
  m_volk = &m_völker[static_cast<size_t>(nummer - 1)];
  durchsichten(jahr);
  ernten(jahr);
  wanderungen(jahr);
  arbeiten(jahr);
  behandlungen(jahr);
  königin(jahr);
  notiz(jahr);
}

void Erzeuger::notiz(int jahr) {
  if (!m_zufall.chance(60)) return;
  Eintrag e(10, tag(jahr, 5, 1, 28));
  e.buchung().texte[NotizSlot] =
      "Beim Öffnen ruhig, schöne geschlossene Brutfläche.\nIm Auge behalten, ob das Volk "
      "schwärmen will; " +
      m_zufall.aus({"Absperrgitter nachsehen.", "zwei Mittelwände nachgeben.",
                    "Nachbarvolk verstärken.", "Ableger vormerken."});
  buchen(e);
}

void Erzeuger::auffüllen(int nummer) {
  m_volk = &m_völker[static_cast<size_t>(nummer - 1)];
  if (m_größe.buchungenJeVolk > m_volk->gebucht)
    waagstockTage(m_größe.buchungenJeVolk - m_volk->gebucht);
}

void Erzeuger::durchsichten(int jahr) {
  QDate am = tag(jahr, 3, 15, 28);
  while (am < QDate(jahr, 9, 20)) {
    durchsicht(am);
    am = am.addDays(am.month() >= 5 && am.month() <= 6 ? m_zufall.zahl(9, 14)
                                                       : m_zufall.zahl(18, 30));
  }
}

// A colony grows from March to its height in June and shrinks towards autumn.
void Erzeuger::durchsicht(QDate am) {
  const double jahreslauf = std::sin(M_PI * (am.dayOfYear() - 40) / 260.0);
  const double kraft = std::clamp(jahreslauf, 0.1, 1.0);
  const int brut = std::max(1, static_cast<int>(kraft * 9) + m_volk->eigenart);
  const int honig = am.month() >= 5 && am.month() <= 7 ? m_zufall.zahl(2, 9) : m_zufall.zahl(0, 2);
  const int pollen = m_zufall.zahl(1, 2);
  const int drohnen = am.month() >= 4 && am.month() <= 7 ? 1 : 0;
  const int futter = am.month() < 5 || am.month() > 7 ? m_zufall.zahl(2, 5) : m_zufall.zahl(0, 1);
  const int leer = m_zufall.zahl(0, 3);
  const int mittel = am.month() >= 4 && am.month() <= 6 ? m_zufall.zahl(0, 3) : 0;
  const int waben = brut + honig + pollen + drohnen + futter + leer;
  const auto note = [this](double mitte) {
    return std::clamp(mitte + m_zufall.bruch(-0.8, 0.8), 0.0, 5.0);
  };
  Eintrag e(0, am);
  e.zahl("Volkstärke", note(1.5 + kraft * 3), 1)
      .zahl("Brutstand", note(1 + kraft * 3.5), 1)
      .zahl("Wabensitz", note(m_volk->stimmung), 1)
      .zahl("Sanftmut", note(m_volk->stimmung), 1)
      .zahl("Schwarmtrieb", am.month() == 5 ? note(2) : note(0.8), 1)
      .zahl("Frühjahrsentw", am.month() < 6 ? note(3) : 0, 1)
      .zahl("Winterfestigkeit", am.month() < 5 ? note(3) : 0, 1)
      .zahl("Varroabefall", note(am.month() / 4.0), 1)
      .zahl("Belagert", note(kraft * 4), 1);
  e.ganz("Magazine", std::clamp((waben + mittel + 9) / 10, 1, 9))
      .ganz("Waben", waben)
      .ganz("Honigwaben", honig)
      .ganz("Brutwaben", brut)
      .ganz("Pollenwaben", pollen)
      .ganz("Drohnenwaben", drohnen)
      .ganz("Leerwaben", leer)
      .ganz("Mittelwände", mittel)
      .ganz("Futterwaben", futter)
      .ganz("HW_verdeckelt", honig ? m_zufall.zahl(0, 10) * 10 : 0)
      .ganz("BW_Stift", m_zufall.zahl(2, 6) * 5)
      .ganz("BW_offen", m_zufall.zahl(4, 8) * 5)
      .ganz("BW_verdeckelt", m_zufall.zahl(6, 12) * 5);
  if (am.month() >= 8) e.zahl("Futter_flüssig_l", m_zufall.zahl(2, 8));
  if (am.month() == 3) e.zahl("Futter_Teig_kg", m_zufall.zahl(0, 2) * 0.5);
  e.zahl("Eigener_Futtervorrat", futter * 1.8).text("Bemerkung", m_zufall.aus(bemerkungen));
  buchen(e);
}

void Erzeuger::honig(QDate am, const QString& sorte, double kg) {
  const double rund = std::round(kg * 10) / 10;
  buchen(Eintrag(1, am)
             .zahl("Menge_kg", rund)
             .text("Honigsorte", sorte)
             .text("Qualität", m_zufall.chance(85) ? "I" : "II")
             .zeit(0.5)
             .zahl("Honig_Wert", rund * 7.5)
             .text("Charge", QStringLiteral("%1/%2").arg(am.year()).arg(sorte.left(3).toUpper()))
             .text("Bemerkung", rund > 25 ? "Rekord!" : ""));
}

void Erzeuger::ernten(int jahr) {
  const double güte = m_zufall.bruch(0.6, 1.3);
  honig(tag(jahr, 5, 20, 28), "Rapshonig", m_zufall.bruch(8, 18) * güte);
  honig(tag(jahr, 7, 2, 12), "Lindenhonig", m_zufall.bruch(6, 16) * güte);
  if (m_zufall.chance(40)) honig(tag(jahr, 7, 25, 31), "Waldhonig", m_zufall.bruch(4, 14) * güte);
  buchen(Eintrag(2, tag(jahr, 9, 5, 25))
             .zahl("Menge_kg", m_zufall.bruch(0.2, 0.8))
             .text("Qualität", "hell")
             .zeit(0.25)
             .zahl("Wachs_Wert", 4.5));
  if (m_zufall.chance(25))
    buchen(Eintrag(3, tag(jahr, 5, 5, 25))
               .ganz("Menge_g", m_zufall.zahl(4, 15) * 50)
               .text("Qualität", "frisch")
               .zeit(0.5)
               .zahl("Pollen_Wert", 9));
  if (m_zufall.chance(15))
    buchen(Eintrag(4, tag(jahr, 8, 5, 25))
               .text("Ernteart", "Propolis")
               .ganz("Menge_g", m_zufall.zahl(20, 90))
               .text("Qualität", "roh")
               .zeit(0.25)
               .zahl("Wert", 6));
}

void Erzeuger::wanderungen(int jahr) {
  const auto wandern = [this](QDate am, Stand stand) {
    const Bienenstand& ort = bienenstände()[stand];
    buchen(Eintrag(6, am)
               .text("Standort", ort.name)
               .zeit(0.75)
               .zahl("Standortprämie", ort.prämie)
               .text("Prämie_erhalten", ort.prämie > 0 && m_zufall.chance(70) ? "J" : "N"));
  };
  if (m_zufall.chance(70))
    wandern(tag(jahr, 4, 20, 28), m_zufall.chance(75) ? Rapsfeld : Streuobstwiese);
  if (m_zufall.chance(60)) wandern(tag(jahr, 6, 5, 15), Lindenallee);
  if (m_zufall.chance(30)) wandern(tag(jahr, 7, 14, 20), Waldlichtung);
  if (m_zufall.chance(15)) {
    wandern(tag(jahr, 8, 2, 6), Heidefläche);
    wandern(tag(jahr, 9, 15, 25), Hausgarten);
    return;
  }
  // Most come home for the winter; the queerest stay where a colony may.
  const bool heim = m_zufall.chance(75);
  wandern(tag(jahr, 8, 8, 20), heim || m_volk->eigenart < 1
                                   ? Hausgarten
                                   : (m_volk->eigenart == 1 ? Lindenallee : Waldlichtung));
}

void Erzeuger::arbeiten(int jahr) {
  const auto arbeit = [this](QDate am, const char* art, double stunden) {
    buchen(Eintrag(5, am)
               .text("Arbeitsart", art)
               .zeit(stunden)
               .text("Bemerkung", m_zufall.chance(25) ? m_zufall.aus(bemerkungen) : QString()));
  };
  arbeit(tag(jahr, 3, 10, 25), "Frühjahrskontrolle", 0.3);
  arbeit(tag(jahr, 4, 10, 20), "Honigraum aufsetzen", 0.2);
  arbeit(tag(jahr, 5, 8, 25), "Drohnenbrutentnahme", 0.2);
  arbeit(tag(jahr, 6, 8, 25), "Drohnenbrutentnahme", 0.2);
  arbeit(tag(jahr, 9, 1, 12), "Fütterung", 0.3);
  arbeit(tag(jahr, 10, 5, 20), "Einwinterung", 0.4);
  for (int monat = 4; monat <= 9; ++monat)
    if (m_zufall.chance(50))
      buchen(Eintrag(7, tag(jahr, monat, 1, 28))
                 .zahl("Gewicht_kg", m_zufall.bruch(28, 62), 3)
                 .zeit(0.05));
}

void Erzeuger::behandlungen(int jahr) {
  const auto behandeln = [this](QDate am, const char* art, const char* mittel, int gramm,
                                const char* zulassung, int wartezeit) {
    buchen(Eintrag(8, am)
               .text("Behandlungsart", art)
               .text("Mittel", mittel)
               .ganz("Menge_g", gramm)
               .text("Zulassungsnr", zulassung)
               .ganz("Wartezeit", wartezeit)
               .zeit(0.2)
               .ganz("Anz_Varroen", m_zufall.zahl(0, 180)));
  };
  behandeln(tag(jahr, 8, 1, 10), "Sommerbehandlung", "Ameisensäure 60%", 60, "6.00.00", 0);
  behandeln(tag(jahr, 9, 10, 22), "Nachbehandlung", "Ameisensäure 60%", 60, "6.00.00", 0);
  behandeln(tag(jahr, 12, 10, 24), "Winterbehandlung", "Oxalsäure geträufelt", 30, "4.12.07", 30);
}

void Erzeuger::königin(int jahr) {
  if (!m_zufall.chance(40)) return;
  buchen(
      Eintrag(9, tag(jahr, 6, 15, 28))
          .text("Herkunft", m_zufall.aus({"eigene Zucht", "Belegstelle Sülmeck", "Züchter Jäger"}))
          .text("Zuchtindex", QString::number(m_zufall.zahl(95, 121)))
          .text("Nummer", QStringLiteral("%1-%2").arg(jahr).arg(m_zufall.zahl(10, 99)))
          .text("Farbe", jahresfarbe(jahr))
          .zeit(0.5));
}

// A hive on a scale is weighed day by day.
void Erzeuger::waagstockTage(int anzahl) {
  QDate am = m_volk->abgang.isValid() ? m_volk->abgang : m_heute;
  const double gewicht = m_zufall.bruch(30, 45);
  const int vorher = m_volk->gebucht;
  while (m_volk->gebucht - vorher < anzahl && am > m_volk->zugang) {
    buchen(Eintrag(7, am).zahl("Gewicht_kg", gewicht + m_zufall.bruch(-3, 3), 3));
    am = am.addDays(-1);
  }
}

// Nothing is booked before the colony came, after it left, or tomorrow.
void Erzeuger::buchen(Eintrag eintrag) {
  const QDate am = DatumLesen(eintrag.buchung().texte[0]);
  if (am < m_volk->zugang || am > m_heute || (m_volk->abgang.isValid() && am > m_volk->abgang))
    return;
  // As if noted already: all summaries are written at the end.
  m_kontext.geänderteVölker = "/" + m_volk->id + "/";
  BuchungSpeichern(DB, eintrag.buchung(), m_volk->id, "-1", m_kontext);
  ++m_volk->gebucht;
}

void Erzeuger::nachziehen() {
  QString alle;
  for (const Volkstand& volk : m_völker) alle += "/" + volk.id + "/";
  VolkfelderNachziehen(DB, alle);
}
