#include "mainform/Volkliste.h"

#include "core/globals.h"

using namespace TZ_Variablen;

namespace {

const QString Volkfelder = QStringLiteral(
    "select Volknr, Volkname, Volkstärke, Magazine, Wabenanzahl, Honigwaben, Brutwaben, "
    "Pollenwaben, Drohnenwaben, Leerwaben, Mittelwände, Futterwaben, HW_verdeckelt, BW_Stift, "
    "BW_offen, BW_verdeckelt, Brutstand, Wabensitz, Sanftmut, Schwarmtrieb, Frühjahrsentw, "
    "Winterfestigkeit, Varroabefall, Belagert, Belegstelle, Zuchtbuchnr, L_Honigernte, "
    "L_Honigmenge_kg, Honigmenge_Gesamt, L_Behandlung, Standort, "
    "Königin_Nr, Königin_Farbe, Königin_Zugangsdatum, Futtervorrat_eigen, Futtervorrat_flüssig, "
    "Futtervorrat_Teig, Beuteart, Waben_je_Magazin, Bienenrasse, Volk_Zugangsdatum, "
    "Volk_Herkunft, Volk_Einkaufspreis, Akt_im_Bestand, Abgangsdatum, Abgangsgrund, "
    "Abnehmer, Volk_Verkaufspreis, Selektiert, ID from Bienenvolk");

const QString Stockkartenfelder = QStringLiteral(
    "select Datum, Volkstärke, Brutstand, Wabensitz, Sanftmut, Schwarmtrieb, Frühjahrsentw, "
    "Winterfestigkeit, Varroabefall, Belagert, Magazine, Waben, Honigwaben, Brutwaben, "
    "Pollenwaben, Drohnenwaben, Leerwaben, Mittelwände, Futterwaben, HW_verdeckelt, BW_Stift, "
    "BW_offen, BW_verdeckelt, Futter_flüssig_l, Futter_Teig_kg, Eigener_Futtervorrat, Volk_ID, "
    "Bemerkung, ID from Stockkarte");

// A field list from before the table had the field Futterwaben is dropped.
void feldlistePrüfen(QString& anweisung, const QString& standard) {
  if (!anweisung.contains(QStringLiteral("Futterwaben"))) anweisung.clear();
  if (anweisung.trimmed().isEmpty()) anweisung = standard;
}

qint64 anzahl(Database& db, const QString& anweisung) {
  return db.Lesen(anweisung)->ganzzahl(0, 0);
}

}  // namespace

void listenfelderPrüfen() { feldlistePrüfen(EinstellungenText[Textslots.volkfelder], Volkfelder); }

void stockkartenfelderPrüfen() {
  feldlistePrüfen(EinstellungenText[Textslots.stockkartenfelder], Stockkartenfelder);
  if (!EinstellungenText[Textslots.infofenster].contains(u'1'))
    EinstellungenText[Textslots.infofenster] = QString(60, u'1');
}

const QString& listenfelderStandard() { return Volkfelder; }

const QString& stockkartenfelderStandard() { return Stockkartenfelder; }

QString volklisteAnweisung(Volkfilter filter) {
  QString anweisung = EinstellungenText[Textslots.volkfelder];
  if (filter == Volkfilter::Bestand) anweisung += QStringLiteral(" where Akt_im_Bestand = 'X'");
  if (filter == Volkfilter::Abgang) anweisung += QStringLiteral(" where Akt_im_Bestand <> 'X'");
  if (!EinstellungenText[Textslots.sortierung1].isEmpty()) {
    anweisung += QStringLiteral(" order by ") + EinstellungenText[Textslots.sortierung1];
    if (!EinstellungenText[Textslots.sortierung2].isEmpty())
      anweisung += QStringLiteral(", ") + EinstellungenText[Textslots.sortierung2];
  }
  return anweisung;
}

Daten volkliste(Database& db, Volkfilter filter) { return db.Lesen(volklisteAnweisung(filter)); }

Volkanzahl volkanzahl(Database& db) {
  return {anzahl(db, QStringLiteral(
                         "select count(*) as anzahl from Bienenvolk where Akt_im_Bestand = 'X'")),
          anzahl(db, QStringLiteral(
                         "select count(*) as anzahl from Bienenvolk where Akt_im_Bestand <> 'X'"))};
}

QStringList filterbeschriftungen(const Volkanzahl& anzahl) {
  const auto mitAnzahl = [](const QString& wort, qint64 zahl) {
    return wort + QString::number(zahl) + QStringLiteral(" Völker)");
  };
  return {mitAnzahl(QStringLiteral("Bestand ("), anzahl.bestand),
          mitAnzahl(QStringLiteral("Abgang ("), anzahl.abgang),
          mitAnzahl(QStringLiteral("Alles ("), anzahl.bestand + anzahl.abgang)};
}

Listensortierung gemerkteSortierung(int spalten) {
  if (EinstellungenZahl[Zahlslots.sortierspalte] <= 0 ||
      EinstellungenZahl[Zahlslots.sortierspalte] > spalten)
    EinstellungenZahl[Zahlslots.sortierspalte] = 1;
  Listensortierung sortierung;
  sortierung.spalte = spalten > 0 && EinstellungenText[Textslots.sortierung1].isEmpty()
                          ? EinstellungenZahl[Zahlslots.sortierspalte] - 1
                          : -1;
  sortierung.richtung =
      EinstellungenZahl[Zahlslots.sortierrichtung] == 1 ? Qt::DescendingOrder : Qt::AscendingOrder;
  return sortierung;
}

void sortierungMerken(const Listensortierung& sortierung) {
  EinstellungenZahl[Zahlslots.sortierspalte] = static_cast<qint16>(sortierung.spalte + 1);
  EinstellungenZahl[Zahlslots.sortierrichtung] = sortierung.richtung == Qt::DescendingOrder ? 1 : 0;
}

QString ersteSpalte(int zeile, const QString& volknr) {
  return EinstellungenZahl[Zahlslots.laufendeNummer] == 1 ? QString::number(zeile + 1) : volknr;
}
