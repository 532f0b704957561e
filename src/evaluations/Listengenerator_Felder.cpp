// The fields that the list generator offers, in the order of its list.

#include "evaluations/Listengenerator.h"

namespace Listengenerator {

namespace {

// Without a field of its own the label names it, its blanks being "_".
Datenfeld volk(const QString& bezeichnung, const QString& platzhalter, const QString& feld = {}) {
  return {bezeichnung, platzhalter, QStringLiteral("Bienenvolk"),
          feld.isEmpty() ? QString(bezeichnung).replace(u' ', u'_') : feld};
}

// What is offered of a kind of booking, twice: of the newest ("Letzte", "{L...}") and of the one
// before it ("Vorletzte", "{V...}").
struct Teil {
  QString bezeichnung;  // behind "Letzte"
  QString platzhalter;  // behind "{L"
  QString feld;
};
QList<Datenfeld> verlauf(const QString& tabelle, const QList<Teil>& teile) {
  QList<Datenfeld> felder;
  for (int buchung = 0; buchung < 2; ++buchung)
    for (const Teil& teil : teile)
      felder.append(
          {(buchung == 0 ? QStringLiteral("Letzte") : QStringLiteral("Vorletzte")) +
               teil.bezeichnung,
           (buchung == 0 ? QStringLiteral("{L") : QStringLiteral("{V")) + teil.platzhalter, tabelle,
           teil.feld, buchung});
  return felder;
}

QList<Datenfeld> stand() {
  return {volk("Volknr", "{Volknr--}"),
          volk("Volkname", "{Volkname----------}"),
          volk("Magazine", "{MZ}"),
          volk("Wabenanzahl", "{WZ}"),
          volk("Honigwaben", "{HW}"),
          volk("Brutwaben", "{BW}"),
          volk("Pollenwaben", "{PW}"),
          volk("Drohnenwaben", "{DW}"),
          volk("Leerwaben", "{LW}"),
          volk("Futterwaben", "{FW}"),
          volk("Honigwaben verdeckelt", "{HW_v}", "HW_verdeckelt"),
          volk("Brutwaben Stifte", "{BW_s}", "BW_Stift"),
          volk("Brutwaben offen", "{BW_o}", "BW_offen"),
          volk("Brutwaben verdeckelt", "{BW_v}", "BW_verdeckelt"),
          volk("Mittelwände", "{MW}"),
          volk("Volkstärke", "{VS}"),
          volk("Brutstand", "{BS}"),
          volk("Wabensitz", "{WS}"),
          volk("Sanftmut", "{SM}"),
          volk("Schwarmtrieb", "{ST}"),
          volk("Frühjahrsentwicklung", "{FJ}", "Frühjahrsentw"),
          volk("Winterfestigkeit", "{WF}"),
          volk("Varroabefall", "{VB}"),
          volk("Belagert", "{BL}"),
          volk("Belegstelle", "{Belegstelle-------}"),
          volk("Zuchtbuchnr", "{Zuchtbuchnr--}"),
          volk("Letzte Honigernte", "{L_Honig-}", "L_Honigernte"),
          volk("Letzte Honigmenge", "{LH_Men}", "L_Honigmenge_kg"),
          volk("Honigmenge gesamt", "{HM_Ges}"),
          volk("Letzte Behandlung", "{L_Behand}", "L_Behandlung"),
          volk("Standort", "{Standort--------------------}"),
          volk("Königin Nr", "{KönNr-------------}"),
          volk("Königin Farbe", "{KönFarbe}"),
          volk("Königin Zugangsdatum", "{KönDatum}"),
          volk("Futtervorrat eigen", "{FV_e}"),
          volk("Futtervorrat flüssig", "{FV_f}"),
          volk("Futtervorrat Teig", "{FV_T}"),
          volk("Beuteart", "{Beuteart----------}"),
          volk("Waben je Magazin", "{WM}"),
          volk("Bienenrasse", "{Bienenrasse-------}"),
          volk("Volk Zugangsdatum", "{Zugang--}"),
          volk("Volk Herkunft", "{Herkunft--------------------}"),
          volk("Volk Einkaufspreis", "{EK_Preis}"),
          volk("Aktuell im Bestand", "{AB}", "Akt_im_Bestand"),
          volk("Abgangsdatum", "{Abgang--}"),
          volk("Abgangsgrund", "{Abgangsgrund------}"),
          volk("Abnehmer", "{Abnehmer--------------------}"),
          volk("Volk Verkaufspreis", "{VK_Preis}")};
}

QList<Datenfeld> buchungen() {
  return verlauf("Arbeiten", {{" Arbeit Datum", "A_Datum}", "Datum"},
                              {" Arbeit", "A_Arbeit-------------------}", "Arbeitsart"},
                              {" Arbeit Bemerkung", "A_Bem----------------------}", "Bemerkung"}}) +
         verlauf("Wanderung",
                 {{" Wanderung Datum", "W_Datum}", "Datum"},
                  {" Wanderung Standort", "W_Standort-----------------}", "Standort"},
                  {" Wanderung Bemerkung", "W_Bem----------------------}", "Bemerkung"}}) +
         verlauf("Gewichtsmessung", {{"s Gewicht Datum", "G_Datum}", "Datum"},
                                     {"s Gewicht", "G_Gew}", "Gewicht_kg"}}) +
         verlauf("Behandlung",
                 {{" Behandlung Datum", "B_Datum}", "Datum"},
                  {" Behandlung Mittel", "B_Mittel-------------------}", "Mittel"},
                  {" Behandlung Menge", "B_Men}", "Menge_g"},
                  {" Behandlung Art", "B_Art----------------------}", "Behandlungsart"},
                  {" Behandlung Zulassungsnr", "B_ZulNr}", "Zulassungsnr"},
                  {" Behandlung Wartezeit", "BWz}", "Wartezeit"},
                  {" Behandlung Bemerkung", "B_Bem----------------------}", "Bemerkung"},
                  {" Behandlung Anz_Varroen", "BVa}", "Anz_Varroen"}});
}

}  // namespace

const QList<Datenfeld>& datenfelder() {
  static const QList<Datenfeld> alle = stand() + buchungen();
  return alle;
}

}  // namespace Listengenerator
