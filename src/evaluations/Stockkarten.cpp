#include "evaluations/Stockkarten.h"

#include <array>
#include <map>
#include <tuple>
#include <unordered_map>

#include "data/helpers.h"
#include "platform/locale/Dezimalsumme.h"

using namespace Auswertung;

namespace {

constexpr int Textbreite = 10;  // of the colony's number and of the date
constexpr int Schritt = 1000;   // inspections between two reports of progress

struct Messspalte {
  const char* feld;
  int breite;
  int nachkommastellen;
  bool plus = true;  // a change above 0 has its sign
};

constexpr std::array Messspalten{Messspalte{"Volkstärke", 4, 1},
                                 Messspalte{"Brutstand", 4, 1},
                                 Messspalte{"Wabensitz", 4, 1},
                                 Messspalte{"Sanftmut", 4, 1},
                                 Messspalte{"Schwarmtrieb", 4, 1},
                                 Messspalte{"Frühjahrsentw", 4, 1},
                                 Messspalte{"Winterfestigkeit", 4, 1},
                                 Messspalte{"Varroabefall", 4, 1},
                                 Messspalte{"Belagert", 4, 1},
                                 Messspalte{"Magazine", 3, 0},
                                 Messspalte{"Waben", 3, 0},
                                 Messspalte{"Honigwaben", 3, 0},
                                 Messspalte{"Brutwaben", 3, 0},
                                 Messspalte{"Pollenwaben", 3, 0},
                                 Messspalte{"Drohnenwaben", 3, 0},
                                 Messspalte{"Leerwaben", 3, 0},
                                 Messspalte{"Futterwaben", 3, 0},
                                 Messspalte{"Mittelwände", 3, 0, false},
                                 Messspalte{"HW_verdeckelt", 4, 0},
                                 Messspalte{"BW_Stift", 4, 0},
                                 Messspalte{"BW_offen", 4, 0},
                                 Messspalte{"BW_verdeckelt", 4, 0},
                                 Messspalte{"Futter_flüssig_l", 4, 1},
                                 Messspalte{"Futter_Teig_kg", 4, 1},
                                 Messspalte{"Eigener_Futtervorrat", 4, 1}};

// "--- " below HWV% has always been so.
const QString Trennlinie = QStringLiteral(
    "----------|----------|----|----|----|----|----|----|----|----|----|---|---|---|---|---|---|---"
    "|"
    "---|---|--- |----|----|----|----|----|----|");

QStringList abkürzungen() {
  return {
      QStringLiteral(
          "VS=Volksstärke          BS=Brutstand           WS=Wabensitz          SM=Sanftmut"),
      QStringLiteral(
          "ST=Schwarmtrieb         FE=Frühjahrsentw.      WF=Winterfestigkeit   VB=Varroabefall"),
      QStringLiteral(
          "BE=Belagert             MAG=Magazine           WAB=Waben gesamt      HW=Honigwaben"),
      QStringLiteral(
          "BW=Brutwaben            PW=Pollenwaben         DW=Drohnenwaben       LW=Leerwaben"),
      QStringLiteral("FW=Futterwaben          MW=Mittelwände"),
      QStringLiteral("HWV%=Honigw.verdeckelt  BWS%=Brutwaben Stifte  BWO%=Brutwaben offen  "
                     "BWV%=Brutwaben verdeckelt"),
      QStringLiteral("F_fl=Futter flüssig     F_Tg=Futter Teig       F_Ei=Futter eigen"),
      {}};
}

QStringList kopf(bool mitAbkürzungen) {
  QStringList zeilen{QStringLiteral("STOCKKARTE"), {}};
  if (mitAbkürzungen) zeilen += abkürzungen();
  zeilen += QStringLiteral(
      "Volknr    |Datum     | VS | BS | WS | SM | ST | FE | WF | VB | BE |MAG|WAB| HW| BW| PW| "
      "DW| LW| FW| MW|HWV%|BWS%|BWO%|BWV%|F_fl|F_Tg|F_Ei|Bemerkung");
  zeilen += Trennlinie;
  return zeilen;
}

// All inspections wanted, colony by colony, each colony's oldest first.
QString anweisung(const Eingaben& eingaben) {
  QString felder;
  for (const Messspalte& s : Messspalten)
    felder += QStringLiteral(", Stockkarte.") + QString::fromUtf8(s.feld);
  return QStringLiteral(
             "select Bienenvolk.ID, Bienenvolk.Volknr, Stockkarte.Datum, "
             "Stockkarte.Bemerkung") +
         felder +
         QStringLiteral(" from Bienenvolk, Stockkarte where Bienenvolk.ID = Stockkarte.Volk_ID") +
         zeitraumRest(eingaben, QStringLiteral("Stockkarte.Datum")) +
         QStringLiteral(
             " order by Bienenvolk.Volknr, Bienenvolk.ID, Stockkarte.Datum, "
             "Stockkarte.ID");
}
enum Feld : int { VolkID, Volknr, Datum, Bemerkung, Messwerte };

struct Durchsicht {
  QString datum;
  std::array<double, Messspalten.size()> werte{};
  QString bemerkung;
};

Durchsicht gelesen(const Laufzeile& zeile) {
  Durchsicht d{TextLesen(zeile.datum(Datum)), {}, TextLesen(zeile.text(Bemerkung))};
  for (size_t i = 0; i < d.werte.size(); ++i)
    d.werte[i] = ZahlLesen(zeile.zahl(Messwerte + static_cast<int>(i)));
  return d;
}

// Takes the inspections in their order and writes the lines of one colony after the other.
class Schreiber {
 public:
  explicit Schreiber(const Eingaben& eingaben)
      : m_nurÄnderungen(eingaben.an(QStringLiteral("konseparat"))),
        m_nurEine(eingaben.wahl(QStringLiteral("optibuch")) == 2),
        m_leerzeilen(eingaben.an(QStringLiteral("tierleer"), 1)   ? 2
                     : eingaben.an(QStringLiteral("tierleer"), 0) ? 1
                                                                  : 0),
        m_trennlinie(eingaben.an(QStringLiteral("kontrennlinie"))),
        m_zeilen(kopf(eingaben.an(QStringLiteral("kondetails")))) {}

  void dazu(const Laufzeile& zeile) {
    if (m_anzahl == 0 || zeile.ganzzahl(VolkID) != m_volk) {
      volkEnde();
      m_volk = zeile.ganzzahl(VolkID);
    } else if (m_nurEine) {
      return;
    }
    Durchsicht neue = gelesen(zeile);
    if (m_anzahl == 0)
      voll(neue, TextLesen(zeile.text(Volknr)));
    else if (m_nurÄnderungen)
      änderung(neue);
    else
      voll(neue, {});
    m_letzte = std::move(neue);
    ++m_anzahl;
  }

  QStringList fertig() {
    volkEnde();
    return m_zeilen;
  }

 private:
  void voll(const Durchsicht& d, const QString& volknr) {
    QString zeile = anfang(volknr, d);
    for (size_t i = 0; i < Messspalten.size(); ++i) zelle(zeile, Messspalten[i], d.werte[i], false);
    m_zeilen += zeile + d.bemerkung;
  }

  void änderung(const Durchsicht& d) {
    QString zeile = anfang({}, d);
    for (size_t i = 0; i < Messspalten.size(); ++i)
      zelle(zeile, Messspalten[i], Dezimalsumme::von({d.werte[i], -m_letzte.werte[i]}),
            Messspalten[i].plus);
    m_zeilen += zeile + d.bemerkung;
  }

  static QString anfang(const QString& volknr, const Durchsicht& d) {
    return TextLinks(volknr, Textbreite) + u'|' + TextLinks(d.datum, Textbreite) + u'|';
  }
  // Few values come often: each is put into its form once.
  void zelle(QString& zeile, const Messspalte& s, double wert, bool plus) {
    auto& bekannte = m_zellen[{s.nachkommastellen, s.breite, plus}];
    auto [stelle, neu] = bekannte.try_emplace(wert);
    if (neu)
      stelle->second = ZahlFormatBreite(wert, s.nachkommastellen, s.breite, plus ? 1 : 0) + u'|';
    zeile += stelle->second;
  }

  void volkEnde() {
    if (m_anzahl == 0) return;
    if (m_nurÄnderungen && m_anzahl > 1) voll(m_letzte, {});
    for (int i = 0; i < m_leerzeilen; ++i) m_zeilen += QString();
    if (m_trennlinie) m_zeilen += Trennlinie;
    m_anzahl = 0;
  }

  bool m_nurÄnderungen;
  bool m_nurEine;
  int m_leerzeilen;
  bool m_trennlinie;
  QStringList m_zeilen;
  qint64 m_volk = 0;
  int m_anzahl = 0;  // the colony's inspections so far
  Durchsicht m_letzte;
  std::map<std::tuple<int, int, bool>, std::unordered_map<double, QString>> m_zellen;
};

// One box at most.
void schließtAus(const QString& name, Eingaben& eingaben) {
  const QString tierleer = QStringLiteral("tierleer");
  for (int i : {0, 1})
    if (name == Eingaben::glied(tierleer, i) && eingaben.an(name))
      eingaben.setAn(tierleer, 1 - i, false);
}

Ergebnis listen(Lauf& lauf) {
  Ergebnis ergebnis;
  ergebnis.text = Stockkarten::bericht(lauf);
  return ergebnis;
}

Gruppe darstellung() {
  return {QStringLiteral("Darstellung"),
          {haken(QStringLiteral("konseparat"),
                 QStringLiteral("Ab der zweiten Zeile Änderungen anzeigen"))
               .slot(Zahlslots.stockkartenÄnderungen),
           haken(QStringLiteral("kondetails"),
                 QStringLiteral("Hinweise bezüglich der Abkürzungen mit ausgeben"))
               .slot(Zahlslots.stockkartenAbkürzungen),
           haken(QStringLiteral("tierleer"), 0,
                 QStringLiteral("Zwischen den Völkern eine Leerzeile einfügen"))
               .slot(Zahlslots.stockkartenAbstand, 1),
           haken(QStringLiteral("tierleer"), 1,
                 QStringLiteral("Zwischen den Völkern zwei Leerzeile einfügen"))
               .slot(Zahlslots.stockkartenAbstand, 2),
           haken(QStringLiteral("kontrennlinie"),
                 QStringLiteral("Zwischen den Völkern eine Trennlinie einfügen"))
               .slot(Zahlslots.stockkartenTrennlinie)},
          1};
}

}  // namespace

namespace Stockkarten {

QStringList bericht(Lauf& lauf) {
  const auto gesamt = static_cast<int>(
      lauf.db.Lesen(QStringLiteral("select count(*) as n from Stockkarte"))->ganzzahl(0, 0));
  int fertig = 0;
  Schreiber schreiber(lauf.eingaben);
  lauf.db.Durchlaufe(anweisung(lauf.eingaben), {}, [&](const Laufzeile& zeile) {
    schreiber.dazu(zeile);
    if (lauf.fortschritt && ++fertig % Schritt == 0) lauf.fortschritt(fertig, gesamt);
  });
  return schreiber.fertig();
}

Beschreibung beschreibung() {
  Beschreibung b;
  b.name = QStringLiteral("TW_Stockkarten");
  b.titel = QStringLiteral("Stockkarten");
  b.gruppen = {völkerwahl(),
               buchungsauswahl(QStringLiteral("Folgende Stockkarteneinträge listen"),
                               buchungsauswahlTexte(), Zahlslots.buchungsauswahl),
               darstellung()};
  b.beiÄnderung = schließtAus;
  b.prüfe = [](const QString&, const Eingaben& eingaben) { return zeitraumGründe(eingaben); };
  b.befehle = {{QStringLiteral("ok"), QStringLiteral("&Listen"), listen}};
  return b;
}

}  // namespace Stockkarten
